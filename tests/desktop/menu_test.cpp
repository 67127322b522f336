// The pull-down menus with real keys and buttons.
#include <gtest/gtest.h>

#include "support/desktop.h"

namespace {

constexpr int kBlack = 0, kCyan = 3;  // palette indices of the selected item and of the menu
constexpr unsigned kLeftButton = 1, kRightButton = 3;

bool Shows(const Desktop& d, const std::string& text) { return d.Screen().find(text) != std::string::npos; }

// The frame's and the separators' characters are read as "?".
constexpr char kBar[] = "    Left    Files    Commands    Options    Right";

}  // namespace

TEST(Menus, AreWalkedByKeys) {
  Desktop d({{"left/a", "1"}, {"left/b", "22"}});
  d.Keys("F9");
  ASSERT_TRUE(d.Eventually([&] { return d.Row(0).starts_with(kBar) && d.Background(3, 0) == kBlack; }));
  d.Keys("Right");
  ASSERT_TRUE(d.Eventually([&] { return d.Background(3, 0) == kCyan && d.Background(11, 0) == kBlack; }));
  d.Keys("Right Down");
  ASSERT_TRUE(d.EventuallyShows("Tree                 Alt-F10"));
  EXPECT_TRUE(d.Eventually([&] { return d.Background(25, 2) == kBlack && d.Background(25, 3) == kCyan; }));
  EXPECT_TRUE(Shows(d, "Edit User Menu"));
  d.Keys("Down Down Down");
  ASSERT_TRUE(d.Eventually([&] { return d.Background(25, 5) == kBlack; }));
  d.Keys("Enter");  // EGA Lines
  EXPECT_TRUE(d.Eventually([&] { return d.Rows() == 50 && d.Row(49).starts_with("1Help"); }));
  EXPECT_FALSE(Shows(d, "Options"));
}

TEST(Menus, AreWalkedByTheMouse) {
  Desktop d({{"left/a", "1"}, {"left/b", "22"}});
  d.Click(kRightButton, 60, 0);
  ASSERT_TRUE(d.Eventually([&] { return d.Row(0).starts_with(kBar); }));
  d.Click(kLeftButton, 45, 0);
  ASSERT_TRUE(d.EventuallyShows("On/Off      Ctrl-F2"));
  d.Click(kLeftButton, 50, 9);
  EXPECT_TRUE(d.Eventually([&] { return d.Background(60, 10) == kBlack && !Shows(d, "Options"); }));
}

TEST(Menus, ADragFromTheTitleChooses) {
  Desktop d({{"left/.hidden", ""}});
  d.Keys("F9");
  ASSERT_TRUE(d.Eventually([&] { return d.Row(0).starts_with(kBar); }));
  d.MovePointer(12, 0);
  d.Press(kLeftButton);
  ASSERT_TRUE(d.EventuallyShows("Manual       Shift-F1"));
  d.MovePointer(35, 0);
  ASSERT_TRUE(d.EventuallyShows("Hidden Files    Ctrl-H"));
  d.MovePointer(40, 6);
  ASSERT_TRUE(d.Eventually([&] { return d.Background(40, 6) == kBlack; }));
  d.Release(kLeftButton);
  EXPECT_TRUE(d.EventuallyShows(".hidden"));
}

TEST(Menus, TheCloseButtonAsksFromWithin) {
  Desktop d;
  d.Keys("F9 Down");
  ASSERT_TRUE(d.EventuallyShows("Unix detail AlSh-F5"));
  d.CloseWindow();
  ASSERT_TRUE(d.EventuallyShows("Are you sure you want to exit Orvane ?"));
  d.Keys("Enter");
  EXPECT_EQ(d.ExitCode(), 0);
}
