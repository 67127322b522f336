// The function-key bar under keyboard and mouse.
#include <gtest/gtest.h>

#include "session/main_screen.h"

namespace {

constexpr char kPlain[] = "1Help   2Menu   3View   4Edit   5Copy   6RenMov 7Mkdir  8Delete 9PullDn 10Quit  ";
constexpr char kAlt[] = "1Left   2Right  3View.. 4Edit.. 5DStore 6Object 7Find   8Histry 9EGA Ln 10Tree  ";
constexpr char kCtrl[] = "1Left   2Right  3Name   4Exten  5Time   6Size   7Unsort 8Revers 9       10      ";
constexpr char kShift[] = "1Manual 2MnMenu 3View.. 4Edit.. 5Copy   6Rename 7MkArch 8DelOne 9SavSet 10MenuRe";
constexpr char kAltShift[] =
    "1Brief  2Full   3Wide   4BriefW 5Unix   6       7FindRC 8DirHst 9ColChg 10      ";
constexpr char kCtrlShift[] =
    "1       2       3       4       5SymLnk 6       7       8       9       10      ";
constexpr char kDigits[] = "1       2       3       4       5       6       7       8       9       10      ";

bool Asks(const Session& s) { return s.FindRow("Are you sure you want to exit").has_value(); }

}  // namespace

TEST(KeyBar, ShowsTheLabelsOfTheModifiersHeld) {
  Session s;
  EXPECT_EQ(s.Row(24), kPlain);
  const std::pair<const char*, const char*> holds[] = {{"Ctrl", kCtrl}, {"Alt", kAlt}, {"Shift", kShift}};
  for (const auto& [name, labels] : holds) {
    s.Keys(std::string("+") + name);
    EXPECT_EQ(s.Row(24), labels) << name;
    s.Keys(std::string("-") + name);
    EXPECT_EQ(s.Row(24), kPlain) << name;
  }
}

TEST(KeyBar, ShowsTheLabelsOfSeveralModifiersAsTheyComeAndGo) {
  Session s;
  const std::pair<const char*, const char*> steps[] = {
      {"+Alt", kAlt},          {"+Shift", kAltShift}, {"+Ctrl", kDigits}, {"-Alt", kCtrlShift},
      {"-Shift", kCtrl},       {"+Alt", kDigits},     {"-Ctrl", kAlt},    {"-Alt", kPlain},
      {"+Shift", kShift},      {"+Alt", kAltShift},   {"-Shift", kAlt},   {"+Ctrl", kDigits},
      {"+Shift", kDigits},     {"-Ctrl", kAltShift},  {"-Alt", kShift},   {"+Ctrl", kCtrlShift},
      {"-Shift -Ctrl", kPlain}};
  for (const auto& [keys, labels] : steps) {
    s.Keys(keys);
    EXPECT_EQ(s.Row(24), labels) << keys;
  }
}

TEST(KeyBar, AKeyPressedWithTheModifierLeavesItsLabels) {
  Session s({{"left/a", ""}});
  s.Keys("+Ctrl Ctrl-End");
  EXPECT_EQ(s.Row(24), kCtrl);
  s.Keys("-Ctrl");
  EXPECT_EQ(s.Row(24), kPlain);
}

TEST(KeyBar, DigitsStandInTheColourOfTheCommandLine) {
  Session s;
  EXPECT_EQ(s.Attribute(0, 24), 0x07);
  EXPECT_EQ(s.Attribute(1, 24), 0x30);
  EXPECT_EQ(s.Attribute(7, 24), 0x07);
  EXPECT_EQ(s.Attribute(8, 24), 0x07);
  EXPECT_EQ(s.Attribute(73, 24), 0x07);
  EXPECT_EQ(s.Attribute(74, 24), 0x30);
  EXPECT_EQ(s.Attribute(79, 24), 0x30);
}

TEST(KeyBar, FillsAWiderScreen) {
  Session s;
  s.Keys("Alt-Shift-F9");
  EXPECT_TRUE(s.Row(24).StartsWith("1Help        2Menu        3View        4Edit"));
  EXPECT_TRUE(s.Row(24).EndsWith("10Quit         "));
}

TEST(KeyBar, AClickPressesTheKey) {
  Session s;
  s.Mouse(kMouseLeftPress, 75, 24);
  EXPECT_FALSE(Asks(s));
  s.Mouse(kMouseLeftRelease, 79, 24);
  EXPECT_TRUE(Asks(s));
}

TEST(KeyBar, AReleaseOnAnotherKeyDoesNothing) {
  Session s;
  s.Mouse(kMouseLeftPress, 75, 24);
  s.Mouse(kMouseLeftRelease, 66, 24);
  EXPECT_FALSE(Asks(s));
  s.Mouse(kMouseLeftRelease, 75, 24);
  EXPECT_FALSE(Asks(s));
}

TEST(KeyBar, AReleaseOutsideTheBarDoesNothing) {
  Session s;
  s.Mouse(kMouseLeftPress, 75, 24);
  s.Mouse(kMouseLeftRelease, 75, 23);
  EXPECT_FALSE(Asks(s));
}

TEST(KeyBar, AReleaseWithoutAPressDoesNothing) {
  Session s;
  s.Mouse(kMouseLeftPress, 75, 10);
  s.Mouse(kMouseLeftRelease, 75, 24);
  EXPECT_FALSE(Asks(s));
}

TEST(KeyBar, ModifiersHeldGoWithTheClick) {
  Session s;
  s.Keys("+Ctrl");
  s.Click(1, 24, kModCtrl);  // Ctrl-F1
  s.Keys("-Ctrl");
  EXPECT_FALSE(IsShown(s, kLeftSide));
}

TEST(KeyBar, TheRightButtonGivesTheAltKey) {
  Session s;
  s.RightClick(66, 24);  // Alt-F9
  EXPECT_EQ(s.Rows(), 50);
}

TEST(KeyBar, AnyOtherButtonDoesNothing) {
  Session s;
  s.Mouse(kMouseLeftPress, 75, 24);
  s.Mouse(kMouseRightRelease, 75, 24);
  EXPECT_FALSE(Asks(s));
  EXPECT_EQ(s.Rows(), 25);
}
