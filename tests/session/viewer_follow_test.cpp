// Following a file that grows.
#include <gtest/gtest.h>

#include <fstream>

#include "session/viewer_screen.h"

namespace {

void AppendTo(const Session& s, const std::string& text) {
  std::ofstream(s.Path("left/file"), std::ios::app | std::ios::binary) << text;
}

constexpr char kNote[] = " Follow Mode ON - ESC to cancel ";

}  // namespace

TEST(FollowMode, ANoteStandsInTheLastRow) {
  ViewerSession s(ManyLines(100));
  s.Keys("Alt-F");
  EXPECT_EQ(s.Text(24, kBarRow, 32), kNote);
  for (int x = 24; x < 56; ++x) EXPECT_EQ(s.Attribute(x, kBarRow), 0x4F);
  EXPECT_TRUE(s.Row(kBarRow).StartsWith("1Help   2UnWrap 3       "));
}

TEST(FollowMode, WhatIsAppendedScrollsIntoView) {
  ViewerSession s(ManyLines(100));
  s.Keys("Alt-F");
  s.WaitFor([&] { return s.Bottom() == "Line 100"; });
  AppendTo(s, "more\n");
  s.WaitFor([&] { return s.Bottom() == "more"; });
  AppendTo(s, "and more\n");
  s.WaitFor([&] { return s.Bottom() == "and more"; });
}

TEST(FollowMode, AnEmptyFileIsFollowedToo) {
  ViewerSession s("");
  s.Keys("Alt-F");
  AppendTo(s, "first\n");
  s.WaitFor([&] { return s.Top() == "first"; });
}

TEST(FollowMode, EscEndsItAndNotTheViewer) {
  ViewerSession s(ManyLines(100));
  s.Keys("Alt-F Esc");
  EXPECT_TRUE(s.IsShown());
  EXPECT_TRUE(s.Row(kBarRow).EndsWith("5       6       7Search 8Home   9End    10Quit  "));
  const std::string before = s.Page();
  AppendTo(s, "more\n");
  s.Keys("+Shift -Shift");
  EXPECT_EQ(s.Page(), before);
  s.Keys("Esc");
  EXPECT_FALSE(s.IsShown());
}

TEST(FollowMode, OtherKeysWork) {
  ViewerSession s(ManyLines(100));
  s.Keys("Alt-F");
  s.WaitFor([&] { return s.Bottom() == "Line 100"; });
  s.Keys("F4");
  EXPECT_TRUE(s.Row(kFirstTextRow).StartsWith("00000"));
  EXPECT_EQ(s.Text(24, kBarRow, 32), kNote);
  s.Keys("F4");
  EXPECT_EQ(s.Text(24, kBarRow, 32), kNote);
  s.Keys("Esc");
  EXPECT_TRUE(s.Row(kBarRow).StartsWith("1Help   2UnWrap 3       4Hex    5       6 "));
}

TEST(FollowMode, TheKeyBarBelowTheNoteIsTheNewOne) {
  ViewerSession s(ManyLines(100));
  s.Keys("Alt-F F4 Esc");
  EXPECT_TRUE(s.Row(kBarRow).StartsWith("1Help   2UnWrap 3       4ASCII  5 "));
}

TEST(FollowMode, AltFOnceMoreDoesNothing) {
  ViewerSession s(ManyLines(100));
  s.Keys("Alt-F Alt-F Esc");
  EXPECT_TRUE(s.IsShown());
  EXPECT_TRUE(s.Row(kBarRow).StartsWith("1Help   2UnWrap 3       4Hex    5 "));
}

TEST(FollowMode, F10LeavesTheViewerOutOfIt) {
  Session s({{"left/file", ManyLines(100)}});
  s.Keys("Down");
  const std::string before = s.Screen();
  for (const char* key : {"F3", "F10"}) {
    s.Keys(std::string("F3 Alt-F ") + key);
    EXPECT_EQ(s.Screen(), before) << key;
  }
}

TEST(FollowMode, AFileThatVanishesIsShownAsItWas) {
  ViewerSession s(ManyLines(100));
  s.Keys("Alt-F");
  s.WaitFor([&] { return s.Bottom() == "Line 100"; });
  ASSERT_EQ(remove(s.Path("left/file").c_str()), 0);
  s.Keys("Home");
  EXPECT_TRUE(s.IsShown());
  s.WaitFor([&] { return s.Bottom() == "Line 100"; });
}
