// The list of colours.
#include <array>

#include "support/list_fixture.h"

namespace {

class ColourSelectorTest : public DialogTest {
 protected:
  static constexpr int kX = 23, kY = 7;

  void AddSelector(int height, int exitMode = kListDefault) {
    dialog->AddColourSelector(2, 1, true, 8, height, strings.data(), attributes.data(),
                              static_cast<int>(strings.size()), &selection, exitMode);
  }

  std::string RowWithMarks(int row) const { return Text(kX - 1, kY + row, 10).String(); }

  const std::array<const char*, 4> strings = {"Panel", "fig", "Bar", "Errors"};
  std::array<uint8_t, 4> attributes = {0x1F, 0x20, 0x0E, 0xF7};
  int32_t selection = 0;
};

TEST_F(ColourSelectorTest, EachItemIsPaintedInItsOwnAttribute) {
  AddSelector(5);
  dialog->Redraw(-1);
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(Attribute(kX, kY + i), attributes[i]);
    EXPECT_EQ(Attribute(kX + 7, kY + i), attributes[i]);
  }
  EXPECT_EQ(Attribute(kX, kY + 4), Options::Colours[kColourMenu]);
  EXPECT_EQ(RowWithMarks(4), "          ");
}

TEST_F(ColourSelectorTest, TheCurrentItemStandsBetweenMarksInTheDialogsAttribute) {
  AddSelector(2);
  Then([&] {
    EXPECT_EQ(RowWithMarks(0), ">Panel   <");
    EXPECT_EQ(RowWithMarks(1), " fig      ");
    EXPECT_EQ(Attribute(kX - 1, kY), kColour);
    EXPECT_EQ(Attribute(kX + 8, kY), kColour);
  });
  Keys("Down");
  Then([&] {
    EXPECT_EQ(RowWithMarks(0), " Panel    ");
    EXPECT_EQ(RowWithMarks(1), ">fig     <");
  });
  Keys("Down");
  Then([&] {
    EXPECT_EQ(RowWithMarks(0), " fig      ");
    EXPECT_EQ(RowWithMarks(1), ">Bar     <");
  });
  Keys("Esc");
  dialog->Run();
}

TEST_F(ColourSelectorTest, FStepsTheForegroundAroundAndLeavesTheBackground) {
  AddSelector(4);
  Keys("f");
  Then([&] {
    EXPECT_EQ(attributes[0], 0x10);
    EXPECT_EQ(Attribute(kX, kY), 0x10);
  });
  Keys("F");
  Then([&] { EXPECT_EQ(attributes[0], 0x1F); });
  Keys("F");
  Then([&] { EXPECT_EQ(attributes[0], 0x1E); });
  Keys("Esc");
  dialog->Run();
  EXPECT_EQ(selection, 0);  // no search for "fig"
}

TEST_F(ColourSelectorTest, BStepsTheBackgroundAroundAndLeavesTheForeground) {
  AddSelector(4);
  selection = 2;
  Keys("B");
  Then([&] { EXPECT_EQ(attributes[2], 0xFE); });
  Keys("b");
  Then([&] { EXPECT_EQ(attributes[2], 0x0E); });
  Keys("b");
  Then([&] {
    EXPECT_EQ(attributes[2], 0x1E);
    EXPECT_EQ(Attribute(kX, kY + 2), 0x1E);
  });
  Keys("Esc");
  dialog->Run();
  EXPECT_EQ(attributes, (std::array<uint8_t, 4>{0x1F, 0x20, 0x1E, 0xF7}));
}

TEST_F(ColourSelectorTest, AllOtherKeysAreThoseOfAList) {
  AddSelector(4, 77);
  Keys("e");
  Then([&] { EXPECT_EQ(selection, 3); });
  Keys("Home PgDn Up Enter");
  EXPECT_EQ(dialog->Run(), 77);
  EXPECT_EQ(selection, 2);
}

TEST_F(ColourSelectorTest, AColourKeyEndsASearch) {
  AddSelector(4);
  Keys("p f");
  Then([&] { EXPECT_EQ(Text(58, 14, 1), "\u2550"); });
  Keys("e");  // not "pe"
  Then([&] { EXPECT_EQ(selection, 3); });
  Keys("Esc");
  dialog->Run();
}

TEST_F(ColourSelectorTest, WithoutItemsItsKeysDoNothing) {
  dialog->AddColourSelector(2, 1, true, 8, 3, nullptr, nullptr, 0, &selection, kListDefault);
  Keys("'fFbB' Down PgDn End");
  Click(kX, kY + 1);
  Keys("Esc");
  EXPECT_EQ(dialog->Run(), kEscape);
  EXPECT_EQ(selection, 0);
  EXPECT_EQ(RowWithMarks(0), "          ");
}

TEST_F(ColourSelectorTest, ColourKeysRightAfterShrinkingChangeAnItemThatIsThere) {
  selection = 3;
  AddSelector(4);
  Then([&] { dialog->SendEvent(0, {kDialogListLength, 2}); });
  Keys("f Esc");
  dialog->Run();
  EXPECT_EQ(attributes, (std::array<uint8_t, 4>{0x1F, 0x21, 0x0E, 0xF7}));
}

}  // namespace
