// Where a drop-down hangs, and the cells of its rows.
#include "shell/menu_view.h"

#include <gtest/gtest.h>

#include <string>

#include "config/values/colours.h"
#include "support/cells.h"

namespace {

// Colours that tell apart what the defaults have alike.
class MenuRow : public testing::Test {
 protected:
  MenuRow() {
    Options::Colours[kColourMenu] = 0x3F;
    Options::Colours[kColourMenuHighlight] = 0x0A;
    Options::Colours[kColourMenuQuickKey] = 0x5E;
    Options::Colours[kColourDisabledMenu] = 0x67;
  }
  ~MenuRow() override {
    for (int i = 0; i < kColourCount; ++i) Options::Colours[i] = kDefaultColours[i];
  }
};

std::wstring TextOf(const CellString& row) {
  std::wstring text;
  for (int i = 0; i < row.Length(); ++i) text += static_cast<wchar_t>(row[i].character);
  return text;
}

// One letter a cell: M menu, H highlight, q and h their quick keys,
// d and x their disabled texts.
std::string ColoursOf(const CellString& row) {
  std::string colours;
  for (int i = 0; i < row.Length(); ++i) {
    switch (row[i].attribute) {
      case 0x3F:
        colours += 'M';
        break;
      case 0x0A:
        colours += 'H';
        break;
      case 0x3E:
        colours += 'q';
        break;
      case 0x0E:
        colours += 'h';
        break;
      case 0x37:
        colours += 'd';
        break;
      case 0x07:
        colours += 'x';
        break;
      default:
        colours += '?';
    }
  }
  return colours;
}

TMenu MenuOf(int count, int width) {
  TMenu menu;
  menu.count = count;
  menu.width = width;
  return menu;
}

}  // namespace

TEST_F(MenuRow, HasTheMarkTheTextAndTheQuickKeyOnItsGround) {
  TMenuItem item("Time  F5", 2, 7);
  item.mark = 0x221A;
  const CellString row = BuildMenuRow(item, false, 13);
  EXPECT_EQ(TextOf(row), L"║√Time  F5  ║");
  EXPECT_EQ(ColoursOf(row), "MMMMqMMMMMMMM");
}

TEST_F(MenuRow, IsHighlightedWithinTheFrameWhereItIsSelected) {
  const CellString row = BuildMenuRow(TMenuItem("Time  F5", 2, 7), true, 13);
  EXPECT_EQ(TextOf(row), L"║ Time  F5  ║");
  EXPECT_EQ(ColoursOf(row), "MHHHhHHHHHHHM");
}

TEST_F(MenuRow, OfNoCommandIsDisabledAndHasNoQuickKey) {
  const TMenuItem item("Time  F5", 2, 0);
  EXPECT_EQ(ColoursOf(BuildMenuRow(item, false, 13)), "MdddddddddddM");
  EXPECT_EQ(ColoursOf(BuildMenuRow(item, true, 13)), "MxxxxxxxxxxxM");
}

TEST_F(MenuRow, ASeparatorIsALineAcrossThatHidesItsMark) {
  TMenuItem separator;
  separator.mark = 0x221A;
  const CellString row = BuildMenuRow(separator, false, 6);
  EXPECT_EQ(TextOf(row), L"╟────╢");
  EXPECT_EQ(ColoursOf(row), "MMMMMM");
}

TEST(DropDown, HangsUnderItsTitleWithAFrameAroundAllItems) {
  const CellRect at = PlaceDropDown(MenuOf(20, 29), 10, 80, 25);
  EXPECT_EQ(at, (CellRect{10, 1, 38, 22}));
}

TEST(DropDown, IsMovedToTheLeftOfANarrowScreensEdge) {
  EXPECT_EQ(PlaceDropDown(MenuOf(19, 23), 42, 65, 25), (CellRect{42, 1, 64, 21}));
  EXPECT_EQ(PlaceDropDown(MenuOf(19, 23), 42, 64, 25), (CellRect{41, 1, 63, 21}));
  EXPECT_EQ(PlaceDropDown(MenuOf(19, 23), 42, 10, 25).left, 0);
}

TEST(DropDown, IsCutAtTheLastRow) {
  EXPECT_EQ(PlaceDropDown(MenuOf(20, 29), 10, 80, 23).bottom, 22);
  EXPECT_EQ(PlaceDropDown(MenuOf(20, 29), 10, 80, 22).bottom, 21);
  EXPECT_EQ(PlaceDropDown(MenuOf(20, 29), 10, 80, 4).bottom, 3);
  EXPECT_EQ(PlaceDropDown(MenuOf(20, 29), 10, 80, 1).bottom, 3) << "one item at least";
}

TEST(DropDown, ScrollsOnlyAsFarAsTheItemAsks) {
  EXPECT_EQ(FirstShown(0, 0, 17), 0);
  EXPECT_EQ(FirstShown(0, 16, 17), 0);
  EXPECT_EQ(FirstShown(0, 17, 17), 1);
  EXPECT_EQ(FirstShown(0, 19, 17), 3);
  EXPECT_EQ(FirstShown(3, 4, 17), 3);
  EXPECT_EQ(FirstShown(3, 2, 17), 2);
  EXPECT_EQ(FirstShown(3, 0, 17), 0);
}
