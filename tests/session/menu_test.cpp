// The pull-down menus under the keyboard.
#include <cctype>
#include <string>

#include "console/input.h"
#include "session/menu_screen.h"

namespace {

std::string Times(const std::string& key, int count) {
  std::string script;
  for (int i = 0; i < count; ++i) script += key + " ";
  return script;
}

// Of each menu.
class EveryMenu : public MenuScreen, public testing::WithParamInterface<int> {
 protected:
  const std::vector<ExpectedItem>& Items() const { return kExpectedMenus[GetParam()]; }

  void OpenIt() { Keys("Enter " + Times("Right", GetParam())); }
};

INSTANTIATE_TEST_SUITE_P(Menu, EveryMenu, testing::Range(0, 5));

}  // namespace

TEST_P(EveryMenu, GivesTheCommandOfTheItemThatIsWalkedTo) {
  int steps = 0;
  for (const ExpectedItem& item : Items()) {
    if (item.text == nullptr) continue;
    OpenIt();
    Keys(Times("Down", steps++));
    Then([&] { EXPECT_EQ(Item(), item.text); });
    Keys("Enter");
    EXPECT_EQ(Run(), item.command) << item.text;
  }
}

TEST_P(EveryMenu, GivesTheCommandOfTheItemWithTheLetter) {
  for (const ExpectedItem& item : Items()) {
    if (item.text == nullptr) continue;
    for (int letter : {tolower(item.text[item.hotIndex]), toupper(item.text[item.hotIndex])}) {
      OpenIt();
      Keys(std::string(1, static_cast<char>(letter)));
      EXPECT_EQ(Run(), item.command) << item.text;
    }
  }
}

TEST_P(EveryMenu, GivesTheSameWithAltHeld) {
  for (const ExpectedItem& item : Items()) {
    if (item.text == nullptr) continue;
    OpenIt();
    Keys(std::string("Alt-") + item.text[item.hotIndex]);
    EXPECT_EQ(Run(), item.command) << item.text;
  }
}

TEST_P(EveryMenu, IsResumedOnTheItemThatWasChosenByItsLetter) {
  for (const ExpectedItem& item : Items()) {
    if (item.text == nullptr) continue;
    OpenIt();
    Keys(std::string(1, item.text[item.hotIndex]));
    Run();
    Then([&] { EXPECT_EQ(Item(), item.text); });
    Keys("Enter");
    EXPECT_EQ(Resume(), item.command) << item.text;
  }
}

TEST_P(EveryMenu, ShowsItsTitleAndItsItemsInAFrameUnderIt) {
  static const char* const kTitles[] = {"Left", "Files", "Commands", "Options", "Right"};
  OpenIt();
  Then([&] {
    const int left = kLefts[GetParam()], width = kWidths[GetParam()];
    EXPECT_EQ(Row(0).String(), "    Left    Files    Commands    Options    Right  " + std::string(29, ' '));
    EXPECT_EQ(Title(), kTitles[GetParam()]);
    EXPECT_TRUE(Text(left, 1, width).StartsWith("╔═"));
    EXPECT_TRUE(Text(left, 1, width).EndsWith("═╗"));
    int y = 2;
    for (const ExpectedItem& item : Items()) {
      const ScreenText row = Text(left, y, width);
      if (item.text == nullptr) {
        EXPECT_TRUE(row.StartsWith("╟──"));
        EXPECT_TRUE(row.EndsWith("──╢"));
      } else {
        EXPECT_EQ(Text(left + 2, y, width - 3).Trimmed(), item.text);
        EXPECT_EQ(Attribute(left + 2 + item.hotIndex, y), y == 2 ? 0x0E : 0x3E) << item.text;
      }
      ++y;
    }
    EXPECT_TRUE(Text(left, y, width).StartsWith("╚═"));
    EXPECT_TRUE(Text(left, y, width).EndsWith("═╝"));
  });
  Keys("Esc Esc");
  EXPECT_EQ(Run(), 0u);
}

TEST_P(EveryMenu, LeavesTheScreenAsItWas) {
  const auto before = Snapshot();
  for (const char* script : {"End Enter", "Esc Esc", "Home Right Left Down F10"}) {
    OpenIt();
    Keys(script);
    Run();
    EXPECT_EQ(ChangesSince(before), "") << script;
  }
}

TEST_F(MenuScreen, OpensTheMenuOfTheSideClosed) {
  ThenAt("Left", "(closed)");
  Keys("Esc");
  EXPECT_EQ(Run(0), 0u);
  ThenAt("Right", "(closed)");
  Keys("Esc");
  EXPECT_EQ(Run(1), 0u);
}

TEST_F(MenuScreen, TheBarIsInItsColourAndTheTitleInThatOfTheHighlight) {
  Then([&] {
    for (int x = 0; x < kColumns; ++x) EXPECT_EQ(Attribute(x, 0), x >= 2 && x < 10 ? 0x0F : 0x30) << x;
  });
  Keys("Right");
  Then([&] {
    for (int x = 0; x < kColumns; ++x) EXPECT_EQ(Attribute(x, 0), x >= 10 && x < 19 ? 0x0F : 0x30) << x;
  });
  Keys("Esc");
  Run();
}

TEST_F(MenuScreen, TheSelectedRowIsHighlightedFromSideToSide) {
  Keys("Enter Down");
  Then([&] {
    for (int x = 3; x < 24; ++x) EXPECT_EQ(Attribute(x, 3), x == 4 ? 0x0E : 0x0F) << x;
    EXPECT_EQ(Attribute(2, 3), 0x3F);
    EXPECT_EQ(Attribute(24, 3), 0x3F);
    EXPECT_EQ(Attribute(5, 2), 0x3F);
    EXPECT_EQ(Attribute(4, 2), 0x3E);
  });
  Keys("Esc Esc");
  Run();
}

TEST_F(MenuScreen, TheDropDownThrowsItsShadow) {
  Keys("Enter");
  Then([&] {
    EXPECT_EQ(Attribute(25, 2), 0x03);
    EXPECT_EQ(Attribute(26, 10), 0x03);
    EXPECT_EQ(Attribute(27, 10), 0x1B);
    EXPECT_EQ(Attribute(10, 22), 0x03);
  });
  Keys("Esc Esc");
  Run();
}

TEST_F(MenuScreen, ShowsTheMarksOfThePanelsBeforeTheTexts) {
  panels[0].style = kStyleWide;
  panels[1].panelType = kPanelInfo;
  panels[1].sortKey = 6;
  Keys("Enter");
  Then([&] {
    EXPECT_EQ(Text(2, 4, 10), "║√Wide    ");
    EXPECT_EQ(Text(2, 10, 5), "╟────") << "the order by name marks the separator, which hides it";
    EXPECT_EQ(Text(2, 11, 10), "║ Name    ");
  });
  Keys("Left");
  Then([&] {
    EXPECT_EQ(Text(42, 6, 14), "║√Unix detail ");
    EXPECT_EQ(Text(42, 11, 10), "║√Name    ");
    EXPECT_EQ(Text(42, 15, 10), "║√Unsorted");
  });
  Keys("Esc Esc");
  Run();
}

TEST_F(MenuScreen, SidewaysKeysGoRoundTheFiveMenusToTheirFirstItems) {
  Keys("Enter Down Down Right");
  ThenAt("Files", "Manual       Shift-F1");
  Keys("Right");
  ThenAt("Commands", "Tree                 Alt-F10");
  Keys("End Right");
  ThenAt("Options", "Configuration");
  Keys("Right");
  ThenAt("Right", "Brief       AlSh-F1");
  Keys("Right");
  ThenAt("Left", "Brief       AlSh-F1");
  Keys("Left");
  ThenAt("Right", "Brief       AlSh-F1");
  Keys("Down Left");
  ThenAt("Options", "Configuration");
  Keys("Esc Esc");
  Run();
}

TEST_F(MenuScreen, SidewaysKeysGoAlongTheClosedBar) {
  Keys("Left");
  ThenAt("Right", "(closed)");
  Keys("Right Right");
  ThenAt("Files", "(closed)");
  Keys("Esc");
  EXPECT_EQ(Run(), 0u);
}

TEST_F(MenuScreen, DownAndUpPassSeparatorsAndGoRound) {
  Keys("f " + Times("Down", 7));
  ThenAt("Files", "Delete             F8");
  Keys("Down");
  ThenAt("Files", "File Attributes    Ctrl-A");
  Keys("Up");
  ThenAt("Files", "Delete             F8");
  Keys("End");
  ThenAt("Files", "Quit               F10");
  Keys("Down");
  ThenAt("Files", "Manual       Shift-F1");
  Keys("Up");
  ThenAt("Files", "Quit               F10");
  Keys("Up");
  ThenAt("Files", "Restore Sel'n  Alt-Grey +");
  Keys("Home");
  ThenAt("Files", "Manual       Shift-F1");
  Keys("Esc Esc");
  Run();
}

TEST_F(MenuScreen, ClosedTheKeysOfTheItemsOpenIt) {
  Keys("Down");
  ThenAt("Left", "Brief       AlSh-F1");
  Keys("Down Esc");
  ThenAt("Left", "(closed)");
  Keys("Up");
  ThenAt("Left", "Full        AlSh-F2");
  Keys("Esc End");
  ThenAt("Left", "Drive       Alt-F1");
  Keys("Esc Home");
  ThenAt("Left", "Brief       AlSh-F1");
  Keys("Esc Enter");
  ThenAt("Left", "Brief       AlSh-F1");
  Keys("Esc Esc");
  Run();
}

TEST_F(MenuScreen, ALetterOnTheClosedBarOpensTheTitleWithIt) {
  const std::pair<const char*, const char*> letters[] = {
      {"o", "Options"}, {"C", "Commands"}, {"Alt-f", "Files"}, {"r", "Right"}, {"L", "Left"}};
  for (const auto& [letter, title] : letters) {
    Keys(letter);
    Then([&, wanted = title] {
      EXPECT_EQ(Title(), wanted);
      EXPECT_TRUE(IsOpen());
    });
    Keys("Esc Esc");
    EXPECT_EQ(Run(), 0u);
  }
}

TEST_F(MenuScreen, OtherKeysMeanNothing) {
  Keys("x z 1 Space Tab Backspace Ins Del PgUp PgDn F2 F9 F12 Shift-F10 Ctrl-N Grey+ Ctrl-F3");
  ThenAt("Left", "(closed)");
  Keys("Enter z y 1 Space Tab Backspace Ins Del PgUp PgDn F2 F9 F12 Shift-F10 Ctrl-N Grey+ Ctrl-F3");
  ThenAt("Left", "Brief       AlSh-F1");
  Keys("Esc Esc");
  EXPECT_EQ(Run(), 0u);
}

TEST_F(MenuScreen, AModifierDoesNotEndIt) {
  Keys("+Ctrl -Ctrl +Alt -Alt Enter +Shift -Shift");
  ThenAt("Left", "Brief       AlSh-F1");
  Keys("Esc Esc");
  Run();
  CurrentModifiers = ReportedModifiers = 0;
}

TEST_F(MenuScreen, EscClosesTheDropDownAndThenLeaves) {
  Keys("Enter Esc");
  ThenAt("Left", "(closed)");
  Keys("Esc");
  EXPECT_EQ(Run(), 0u);
}

TEST_F(MenuScreen, F10LeavesWithTheCommandToQuit) {
  for (const char* script : {"F10", "Enter F10"}) {
    Keys(script);
    EXPECT_EQ(Run(), 0x10044u) << script;
  }
}

TEST_F(MenuScreen, IsResumedWhereItWasLeft) {
  Keys("Enter Right Down Down Enter");
  EXPECT_EQ(Run(), 0x1003Du);
  ThenAt("Files", "View               F3");
  Keys("Esc Esc");
  EXPECT_EQ(Resume(), 0u);
  ThenAt("Files", "(closed)");
  Keys("Down");
  ThenAt("Files", "View               F3");
  Keys("Esc Esc");
  Resume();
  ThenAt("Right", "(closed)");
  Keys("Down");
  ThenAt("Right", "Brief       AlSh-F1");
  Keys("Esc Esc");
  Run(1);
}

TEST_F(MenuScreen, OnFewRowsTheItemsScroll) {
  Console->Resize(80, 20, "", 0);
  Console->GetSize(ScreenColumns, ScreenRows);
  Keys("f");
  Then([&] {
    EXPECT_EQ(Text(10, 1, 29), "╔═══════════════════════════╗");
    EXPECT_TRUE(Text(12, 2, 10).StartsWith("Manual"));
    EXPECT_TRUE(Text(12, 18, 20).StartsWith("Invert Sel'n"));
    EXPECT_EQ(Text(10, 19, 29), "╚══════════════════════════↓╝");
  });
  Keys("End");
  Then([&] {
    EXPECT_EQ(Text(10, 1, 29), "╔══════════════════════════↑╗");
    EXPECT_EQ(Text(10, 2, 6), "║ Edit");
    EXPECT_EQ(Text(10, 7, 4), "╟───");
    EXPECT_EQ(Text(10, 10, 6), "║ File") << "no trace of the separator";
    EXPECT_EQ(Text(10, 18, 6), "║ Quit");
    EXPECT_EQ(Text(10, 19, 29), "╚═══════════════════════════╝");
    EXPECT_EQ(Attribute(12, 18), 0x0E);
  });
  Keys("Home");
  Then([&] { EXPECT_EQ(Text(10, 2, 8), "║ Manual"); });
  Keys("Esc Esc");
  EXPECT_EQ(Run(), 0u);
}

TEST_F(MenuScreen, OnFewRowsEveryItemIsReached) {
  for (const int rows : {20, 12, 4, 3, 1}) {
    Console->Resize(80, rows, "", 0);
    Console->GetSize(ScreenColumns, ScreenRows);
    int steps = 0;
    for (const ExpectedItem& item : kExpectedMenus[1]) {
      if (item.text == nullptr) continue;
      Keys("f " + Times("Down", steps++));
      if (rows >= 4) {
        Then([&] { EXPECT_TRUE(Screen().find(item.text) != std::string::npos) << item.text << ' ' << rows; });
      }
      Keys("Enter");
      EXPECT_EQ(Run(), item.command) << item.text << ' ' << rows;
    }
  }
}

TEST_F(MenuScreen, OnAWideAndHighScreenItHangsInTheSamePlace) {
  Console->Resize(132, 60, "", 0);
  Console->GetSize(ScreenColumns, ScreenRows);
  Keys("r");
  Then([&] {
    EXPECT_EQ(Text(42, 1, 2), "╔═");
    EXPECT_EQ(Text(64, 21, 1), "╝");
    for (int x = 51; x < 132; ++x) EXPECT_EQ(Attribute(x, 0), 0x30) << x;
  });
  Keys("Esc Esc");
  Run();
}
