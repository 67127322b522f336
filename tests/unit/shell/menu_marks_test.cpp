// What the menus mark. In a panel's menu the marks from the fifth row on stand
// one row above the item they tell of; so they are meant.
#include "shell/menu_marks.h"

#include <gtest/gtest.h>

#include <vector>

#include "config/values/options.h"
#include "foundation/code_pages.h"

namespace {

using Rows = std::vector<int>;

constexpr int kCheckMark = 0x221A;

class MenuMarks : public testing::Test {
 protected:
  MenuMarks() {
    CaseTablesReady = true;
    Panels = panels;
    Options::Hidden = Options::PathPrompt = Options::FullScreen = Options::Clock = false;
    Options::TagDirs = Options::ThousandSep = Options::RetainCount = false;
  }
  ~MenuMarks() override { Panels = nullptr; }

  static Rows Marked(const TMenu& menu, int mark = kCheckMark) {
    Rows rows;
    for (int i = 0; i < menu.count; ++i) {
      if (menu.items[i].mark == mark) rows.push_back(i);
      EXPECT_TRUE(menu.items[i].mark == mark || menu.items[i].mark == ' ') << i;
    }
    return rows;
  }

  Rows OfPanel(int type, int style, int sortKey) {
    panels[0].panelType = type;
    panels[0].style = style;
    panels[0].sortKey = sortKey;
    return Marked(MarkedMenus()[kLeftMenu]);
  }

  TPanel panels[2];
};

}  // namespace

TEST_F(MenuMarks, StylesFromBriefToBriefWideMarkTheirItems) {
  EXPECT_EQ(OfPanel(kPanelFiles, kStyleBrief, 0), (Rows{0, 8}));
  EXPECT_EQ(OfPanel(kPanelFiles, kStyleFull, 0), (Rows{1, 8}));
  EXPECT_EQ(OfPanel(kPanelFiles, kStyleWide, 0), (Rows{2, 8}));
  EXPECT_EQ(OfPanel(kPanelFiles, kStyleBriefWide, 0), (Rows{3, 8}));
}

TEST_F(MenuMarks, UnixDetailMarksNothing) { EXPECT_EQ(OfPanel(kPanelFiles, kStyleUnix, 0), Rows{8}); }

TEST_F(MenuMarks, InformationMarksUnixDetailWhateverTheStyle) {
  for (int style : {kStyleBrief, kStyleFull, kStyleUnix, kStyleTree})
    EXPECT_EQ(OfPanel(kPanelInfo, style, 0), (Rows{4, 8})) << style;
}

TEST_F(MenuMarks, TheTreeMarksInfo) { EXPECT_EQ(OfPanel(kPanelFiles, kStyleTree, 0), (Rows{5, 8})); }

TEST_F(MenuMarks, TheOrderByNameMarksTheSeparatorAndTheOthersTheItemBefore) {
  EXPECT_EQ(OfPanel(kPanelFiles, kStyleUnix, 0), Rows{8});   // the separator
  EXPECT_EQ(OfPanel(kPanelFiles, kStyleUnix, 1), Rows{9});   // Extension: Name
  EXPECT_EQ(OfPanel(kPanelFiles, kStyleUnix, 2), Rows{10});  // Time: Extension
  EXPECT_EQ(OfPanel(kPanelFiles, kStyleUnix, 3), Rows{11});  // Size: Time
  EXPECT_EQ(OfPanel(kPanelFiles, kStyleUnix, 4), Rows{12});  // Unsorted: Size
}

TEST_F(MenuMarks, AReversedOrderMarksUnsortedToo) {
  EXPECT_EQ(OfPanel(kPanelFiles, kStyleUnix, 5), (Rows{8, 13}));
  EXPECT_EQ(OfPanel(kPanelFiles, kStyleUnix, 7), (Rows{10, 13}));
  EXPECT_EQ(OfPanel(kPanelFiles, kStyleUnix, 9), (Rows{12, 13}));
}

TEST_F(MenuMarks, EachPanelMarksItsOwnMenu) {
  panels[0].style = kStyleBrief;
  panels[1].style = kStyleWide;
  panels[1].sortKey = 6;
  const MenuSet menus = MarkedMenus();
  EXPECT_EQ(Marked(menus[kLeftMenu]), (Rows{0, 8}));
  EXPECT_EQ(Marked(menus[kRightMenu]), (Rows{2, 9, 13}));
}

TEST_F(MenuMarks, OptionsAreMarkedWhereTheyAreOn) {
  const std::pair<bool*, int> options[] = {
      {&Options::Hidden, 4},  {&Options::PathPrompt, 5},  {&Options::FullScreen, 6},   {&Options::Clock, 7},
      {&Options::TagDirs, 8}, {&Options::ThousandSep, 9}, {&Options::RetainCount, 10},
  };
  EXPECT_EQ(Marked(MarkedMenus()[kOptionsMenu]), Rows{});
  for (const auto& [option, row] : options) {
    *option = true;
    EXPECT_EQ(Marked(MarkedMenus()[kOptionsMenu]), Rows{row});
    *option = false;
  }
}

TEST_F(MenuMarks, FilesAndCommandsHaveNone) {
  Options::Hidden = Options::Clock = true;
  EXPECT_EQ(Marked(MarkedMenus()[kFilesMenu]), Rows{});
  EXPECT_EQ(Marked(MarkedMenus()[kCommandsMenu]), Rows{});
}

TEST_F(MenuMarks, AStarMarksUntilTheCaseTablesAreThere) {
  CaseTablesReady = false;
  EXPECT_EQ(Marked(MarkedMenus()[kLeftMenu], '*'), (Rows{1, 8}));
}
