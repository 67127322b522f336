// The clock in the top right corner.
#include <gtest/gtest.h>

#include <cctype>

#include "session/main_screen.h"

namespace {

// " 9:05a", "13:05", with a colon or a blank between hour and minute.
bool IsTime(const std::string& text, bool twelveHours) {
  if (text.size() != (twelveHours ? 6u : 5u)) return false;
  const auto digit = [&](int i) { return std::isdigit(static_cast<unsigned char>(text[i])) != 0; };
  if (!(digit(0) || text[0] == ' ') || !digit(1) || !digit(3) || !digit(4)) return false;
  if (text[2] != ':' && text[2] != ' ') return false;
  return !twelveHours || text[5] == 'a' || text[5] == 'p';
}

bool ShowsClock(const Session& s) { return IsTime(s.Text(s.Columns() - 6, 0, 6).String(), true); }

SessionSetup ClockOn(const std::string& more = "") { return {.settings = "Clock=on\n" + more}; }

}  // namespace

TEST(Clock, TakesSixCellsOfTheTopRightCorner) {
  Session s({}, ClockOn());
  EXPECT_TRUE(ShowsClock(s)) << s.Row(0);
  for (int x = 74; x < 80; ++x) EXPECT_EQ(s.Attribute(x, 0), 0x30);
  EXPECT_EQ(s.Attribute(73, 0), 0x1B);
}

TEST(Clock, OfTwentyFourHoursTakesFive) {
  Session s({}, ClockOn("TimeMode=24\n"));
  EXPECT_TRUE(IsTime(s.Text(75, 0, 5).String(), false)) << s.Row(0);
  EXPECT_EQ(s.Attribute(75, 0), 0x30);
  EXPECT_EQ(s.Attribute(74, 0), 0x1B);
}

TEST(Clock, RunsWhileTheProgramWaits) {
  Session s({}, ClockOn());
  for (const char32_t separator : {U':', U' ', U':'})
    s.WaitFor([&] { return s.Character(76, 0) == separator; });
  EXPECT_TRUE(ShowsClock(s));
}

TEST(Clock, TheMenuSwitchesItOnAndOff) {
  Session s;
  EXPECT_EQ(s.Character(79, 0), U'╗');
  s.Command(0x100132);
  EXPECT_TRUE(ShowsClock(s));
  s.Command(0x100132);
  EXPECT_EQ(s.Character(79, 0), U'╗');
  EXPECT_EQ(s.Attribute(76, 0), 0x1B);
}

TEST(Clock, SwitchedOffWithoutTheRightPanelLeavesBlanks) {
  Session s({}, ClockOn());
  s.Keys("Ctrl-F2");
  EXPECT_TRUE(ShowsClock(s));
  s.Command(0x100132);
  EXPECT_EQ(s.Text(70, 0, 10), "          ");
  EXPECT_EQ(s.Attribute(75, 0), 0x07);
}

TEST(Clock, StaysThroughAllThatThePanelsDo) {
  Session s({}, ClockOn());
  for (const char* keys : {"Ctrl-O", "Ctrl-O", "Ctrl-F2", "Ctrl-F2", "Ctrl-U", "Tab", "Ctrl-L", "Ctrl-L",
                           "Alt-F9", "Alt-Shift-F9", "Alt-Shift-F1", "Ctrl-R", "F10 Esc"}) {
    s.Keys(keys);
    EXPECT_TRUE(ShowsClock(s)) << keys;
  }
  s.Command(0x100131);
  EXPECT_TRUE(ShowsClock(s));
}

TEST(Clock, WhatItCoversComesBack) {
  Session s({}, ClockOn());
  s.Keys("Ctrl-O");
  EXPECT_EQ(s.Text(0, 0, 74).Trimmed(), "");
  s.Command(0x100132);
  EXPECT_EQ(s.Row(0).Trimmed(), "");
  s.Keys("Ctrl-O");
  EXPECT_EQ(s.Character(79, 0), U'╗');
}

TEST(Clock, TheTitleOfTheRightPanelMakesRoom) {
  Session s({{"right/a-directory-with-quite-a-long-name/x", ""}}, ClockOn());
  s.Keys("Tab Down Enter");
  EXPECT_TRUE(ShowsClock(s));
  EXPECT_TRUE(s.Text(40, 0, 34).Contains("long-name "));
}
