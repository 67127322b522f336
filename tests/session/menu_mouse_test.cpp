// The pull-down menus under the mouse.
#include "session/menu_screen.h"

namespace {

constexpr int kLeftButton = 1, kRightButton = 2;

class MenuMouse : public MenuScreen, public testing::WithParamInterface<int> {
 protected:
  void Press(int x, int y) { Mouse(kEventPress, kLeftButton, x, y); }
  void Drag(int x, int y) { Mouse(kEventMotion, kLeftButton, x, y); }
  void Release(int x, int y) { Mouse(kEventRelease, kLeftButton, x, y); }

  void Wheel(int delta) {
    TEvent event;
    event.type = kEventWheel;
    event.code = delta;
    event.x = 70;
    event.y = 15;
    Put(event);
  }

  void Leave() { Keys("Esc Esc"); }
};

class MenuMouseOf : public MenuMouse {};
INSTANTIATE_TEST_SUITE_P(Menu, MenuMouseOf, testing::Range(0, 5));

}  // namespace

TEST_P(MenuMouseOf, AClickOnAnItemGivesItsCommand) {
  const int left = kLefts[GetParam()], right = left + kWidths[GetParam()] - 1;
  int y = 2;
  for (const ExpectedItem& item : kExpectedMenus[GetParam()]) {
    if (item.text != nullptr) {
      for (const int x : {left + 1, right - 1}) {
        Click(left + 4, 0);
        Press(x, y);
        Then([&] { EXPECT_EQ(Item(), item.text); });
        Release(x, y);
        EXPECT_EQ(Run(), item.command) << item.text << ' ' << x;
      }
    }
    ++y;
  }
}

TEST_P(MenuMouseOf, AClickOnASeparatorOrTheFrameDoesNothing) {
  const int left = kLefts[GetParam()], right = left + kWidths[GetParam()] - 1;
  Click(left + 4, 0);
  int y = 2;
  for (const ExpectedItem& item : kExpectedMenus[GetParam()]) {
    if (item.text == nullptr) Click(left + 3, y);
    Click(left, y);
    Click(right, y);
    ++y;
  }
  Click(left + 3, 1);
  Click(left + 3, y);
  Then([&] { EXPECT_EQ(Item(), kExpectedMenus[GetParam()][0].text); });
  Leave();
  EXPECT_EQ(Run(), 0u);
}

TEST_F(MenuMouse, APressOnATitleOpensItsMenu) {
  const std::pair<int, const char*> columns[] = {
      {0, "Left"},      {9, "Left"},     {10, "Files"},   {18, "Files"}, {19, "Commands"},
      {30, "Commands"}, {31, "Options"}, {41, "Options"}, {42, "Right"}, {50, "Right"}};
  for (const auto& [x, title] : columns) {
    Press(x, 0);
    Then([&, wanted = title] {
      EXPECT_EQ(Title(), wanted);
      EXPECT_TRUE(IsOpen());
    });
    Release(x, 0);
    Then([&, wanted = title] { EXPECT_TRUE(IsOpen()) << wanted; });
    Leave();
    EXPECT_EQ(Run(), 0u);
  }
}

TEST_F(MenuMouse, APressRightOfTheTitlesSelectsNone) {
  Press(51, 0);
  ThenAt("Left", "(closed)");
  Keys("Enter");
  Press(79, 0);
  ThenAt("Left", "Brief       AlSh-F1");
  Leave();
  Run();
}

TEST_F(MenuMouse, APressOnTheOpenMenusTitleKeepsTheItem) {
  Keys("Enter Down Down");
  Click(5, 0);
  ThenAt("Left", "Wide        AlSh-F3");
  Click(12, 0);
  ThenAt("Files", "Manual       Shift-F1");
  Leave();
  Run();
}

TEST_F(MenuMouse, OneDragGoesFromTheTitlesToTheItem) {
  Press(5, 0);
  Drag(12, 0);
  ThenAt("Files", "Manual       Shift-F1");
  Drag(35, 0);
  Drag(35, 3);
  ThenAt("Options", "Colours");
  Drag(35, 5);  // a separator
  ThenAt("Options", "Colours");
  Drag(35, 6);
  ThenAt("Options", "Hidden Files    Ctrl-H");
  Release(35, 6);
  EXPECT_EQ(Run(), 0x10012Eu);
}

TEST_F(MenuMouse, TheItemCountsWhereTheButtonIsLetGo) {
  Click(35, 0);
  Press(35, 2);
  Release(35, 3);
  EXPECT_EQ(Run(), 0x10012Du);
}

TEST_F(MenuMouse, AReleaseOutsideClosesTheDropDownAndThenLeaves) {
  Click(35, 0);
  Press(5, 10);
  ThenAt("Options", "Configuration");
  Release(5, 10);
  ThenAt("Options", "(closed)");
  Press(5, 10);
  ThenAt("Options", "(closed)");
  Release(5, 10);
  EXPECT_EQ(Run(), 0u);
}

TEST_F(MenuMouse, ADragOutOfTheDropDownChoosesNothing) {
  Press(35, 0);
  Drag(35, 3);
  Drag(75, 20);
  ThenAt("Options", "Colours");
  Release(75, 20);
  ThenAt("Options", "(closed)");
  Keys("Esc");
  EXPECT_EQ(Run(), 0u);
}

TEST_F(MenuMouse, AReleaseRightOfTheTitlesIsOutside) {
  Click(60, 0);
  EXPECT_EQ(Run(), 0u);
}

TEST_F(MenuMouse, TheReleaseOfThePressThatBroughtItUpIsIgnored) {
  Mouse(kEventRelease, kRightButton, 60, 0);
  ThenAt("Left", "(closed)");
  Mouse(kEventRelease, kRightButton, 60, 1);
  ThenAt("Left", "(closed)");
  Keys("Esc");
  EXPECT_EQ(Run(), 0u);
}

TEST_F(MenuMouse, TheRightButtonDoesWhatTheLeftDoes) {
  Mouse(kEventMotion, kRightButton, 35, 0);
  Mouse(kEventMotion, kRightButton, 35, 4);
  ThenAt("Options", "Confirmations");
  Mouse(kEventRelease, kRightButton, 35, 4);
  EXPECT_EQ(Run(), 0x100135u);
  Mouse(kEventPress, kRightButton, 12, 0);
  Mouse(kEventRelease, kRightButton, 12, 0);
  Mouse(kEventPress, kRightButton, 12, 3);
  Mouse(kEventRelease, kRightButton, 12, 3);
  EXPECT_EQ(Run(), 0x1003Cu);
}

TEST_F(MenuMouse, TheSecondClickOfADoubleClickIsAPress) {
  Click(12, 0);
  Mouse(kEventPress, kLeftButton, 12, 0);
  Mouse(kEventDoubleClick, kLeftButton, 12, 4);
  ThenAt("Files", "View               F3");
  Release(12, 4);
  EXPECT_EQ(Run(), 0x1003Du);
}

TEST_F(MenuMouse, TheWheelWalksTheOpenDropDown) {
  Wheel(-1);
  ThenAt("Left", "(closed)");
  Keys("Enter");
  Wheel(-1);
  ThenAt("Left", "Full        AlSh-F2");
  Wheel(1);
  Wheel(1);
  ThenAt("Left", "Drive       Alt-F1");
  Leave();
  EXPECT_EQ(Run(), 0u);
}

TEST_F(MenuMouse, TheRowsOfAScrolledDropDownAreThoseInView) {
  Console->Resize(80, 20, "", 0);
  Console->GetSize(ScreenColumns, ScreenRows);
  Keys("f End");
  Press(15, 2);
  Then([&] {
    EXPECT_EQ(Attribute(14, 2), 0x0F);
    EXPECT_EQ(Text(12, 2, 4), "Edit");
  });
  Release(15, 2);
  EXPECT_EQ(Run(), 0x1003Eu);
  Keys("f End");
  Click(15, 18);
  EXPECT_EQ(Run(), 0x10044u);
}
