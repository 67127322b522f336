// Going to a line and to an offset.
#include <gtest/gtest.h>

#include "session/viewer_screen.h"

TEST(GotoLine, TheBoxAsksForANumber) {
  ViewerSession s(ManyLines(100));
  s.Keys("Alt-L");
  const auto title = s.FindRow(" Goto Line ");
  ASSERT_TRUE(title);
  const ScreenText row = s.Row(*title + 2);
  EXPECT_TRUE(row.Contains("║ Line to go to: "));
  const int left = (80 - 27) / 2;
  EXPECT_EQ(s.Character(left, *title), U'╔');
  EXPECT_EQ(s.Character(left + 26, *title + 4), U'╝');
  EXPECT_NE(s.Attribute(left + 17, *title + 2), s.Attribute(left + 16, *title + 2));
  EXPECT_EQ(s.Attribute(left + 17, *title + 2), s.Attribute(left + 24, *title + 2));
  EXPECT_NE(s.Attribute(left + 24, *title + 2), s.Attribute(left + 25, *title + 2));
}

TEST(GotoLine, TheLineBecomesTheTop) {
  ViewerSession s(ManyLines(100));
  s.Keys("Alt-L '57' Enter");
  EXPECT_EQ(s.Top(), "Line 57");
  s.Keys("Alt-L '1' Enter");
  EXPECT_EQ(s.Top(), "Line 1");
}

TEST(GotoLine, TheLastLineIsThere) {
  ViewerSession s(ManyLines(100));
  s.Keys("Alt-L '100' Enter");
  EXPECT_EQ(s.Top(), "Line 100");
  EXPECT_EQ(s.Line(2), "");
  s.Keys("Up");
  EXPECT_EQ(s.Top(), "Line 99");
}

TEST(GotoLine, PastTheLastOneTheViewerTellsHowManyThereAre) {
  for (const char* number : {"'101'", "'102'", "'99999999'"}) {
    ViewerSession s(ManyLines(100));
    s.Keys("PgDn");
    const std::string before = s.Screen();
    s.Keys(std::string("Alt-L ") + number + " Enter");
    EXPECT_TRUE(s.FindRow("Only 100 lines in this file")) << number;
    s.Keys("Enter");
    EXPECT_EQ(s.Screen(), before) << number;
  }
}

TEST(GotoLine, ALastLineWithoutAnEndCounts) {
  ViewerSession s("one\ntwo\nthree");
  s.Keys("Alt-L '3' Enter");
  EXPECT_EQ(s.Top(), "three");
  s.Keys("Alt-L '4' Enter");
  EXPECT_TRUE(s.FindRow("Only 3 lines in this file"));
}

TEST(GotoLine, AnEmptyFileHasNoLines) {
  ViewerSession s("");
  s.Keys("Alt-L '2' Enter");
  EXPECT_TRUE(s.FindRow("Only 0 lines in this file"));
  s.Keys("Enter Alt-L '1' Enter");
  EXPECT_FALSE(s.FindRow("Only"));
  EXPECT_TRUE(s.IsShown());
}

TEST(GotoLine, ZeroIsTheFirstLine) {
  ViewerSession s(ManyLines(100));
  s.Keys("PgDn Alt-L '0' Enter");
  EXPECT_EQ(s.Top(), "Line 1");
}

TEST(GotoLine, EscLeavesAllAsItWas) {
  ViewerSession s(ManyLines(100));
  s.Keys("PgDn");
  const std::string before = s.Screen();
  s.Keys("Alt-L '50' Esc");
  EXPECT_EQ(s.Screen(), before);
}

TEST(GotoLine, InHexModeTheLinesAreRowsOfSixteenBytes) {
  ViewerSession s(ManyLines(100));
  s.Keys("F4 Alt-L '3' Enter");
  EXPECT_TRUE(s.Row(1).StartsWith("00000020 "));
  s.Keys("Alt-L '1000' Enter");
  EXPECT_TRUE(s.FindRow("Only 50 lines in this file"));  // 792 bytes
}

TEST(GotoLine, AfterAMarkTheFirstLineIsBehindIt) {
  ViewerSession s("\xEF\xBB\xBF" + ManyLines(100));
  s.Keys("PgDn Alt-L '1' Enter");
  EXPECT_EQ(s.Top(), "Line 1");
  s.Keys("Alt-L '2' Enter Up");
  EXPECT_EQ(s.Top(), "Line 1");
}

TEST(GotoOffset, TheBoxAsksForHexadecimalDigits) {
  ViewerSession s(ManyLines(100));
  s.Keys("Alt-O");
  const auto title = s.FindRow(" Goto Offset ");
  ASSERT_TRUE(title);
  EXPECT_TRUE(s.Row(*title + 2).Contains("║ Offset to go to: 0x "));
  const int left = (80 - 35) / 2;
  EXPECT_EQ(s.Character(left, *title), U'╔');
  EXPECT_EQ(s.Character(left + 34, *title + 4), U'╝');
  EXPECT_NE(s.Attribute(left + 20, *title + 2), s.Attribute(left + 21, *title + 2));
  EXPECT_EQ(s.Attribute(left + 21, *title + 2), s.Attribute(left + 32, *title + 2));
  EXPECT_NE(s.Attribute(left + 32, *title + 2), s.Attribute(left + 33, *title + 2));
}

TEST(GotoOffset, TheLineThatHoldsItIsShownWithOneCellMarked) {
  ViewerSession s(ManyLines(100));
  s.Keys("Alt-O 'ff' Enter");  // nine lines of 7 bytes and 24 of 8 are before it
  EXPECT_EQ(s.Marked(), "L");
  const auto [y, x] = s.Mark();
  EXPECT_EQ(x, 0);
  EXPECT_EQ(y, 5);  // four rows above it
  EXPECT_EQ(s.Line(y), "Line 34");
  s.Keys("Alt-O '102' Enter");
  EXPECT_EQ(s.Marked(), "e");
}

TEST(GotoOffset, DigitsEndAtTheFirstThatIsNone) {
  ViewerSession s(ManyLines(100));
  s.Keys("F4 Alt-O '1Fx2' Enter");
  EXPECT_TRUE(s.Row(1).StartsWith("0000001F "));
  s.Keys("Alt-O 'aB' Enter");
  EXPECT_TRUE(s.Row(1).StartsWith("000000AB "));
}

TEST(GotoOffset, AnEmptyFieldIsZero) {
  ViewerSession s(ManyLines(100));
  s.Keys("F4 PgDn Alt-O Enter");
  EXPECT_TRUE(s.Row(1).StartsWith("00000000 "));
}

TEST(GotoOffset, AtTheSizeTheViewerTellsIt) {
  for (const char* digits :
       {"'318'", "'10000'", "'FFFFFFFFFFFFFFFF'", "'8000000000000000'", "'7fffffffffffffff'"}) {
    ViewerSession s(ManyLines(100));  // 792 bytes
    s.Keys("PgDn");
    const std::string before = s.Screen();
    s.Keys(std::string("Alt-O ") + digits + " Enter");
    EXPECT_TRUE(s.FindRow("Only 792 bytes in this file")) << digits;
    s.Keys("Enter");
    EXPECT_EQ(s.Screen(), before) << digits;
  }
}

TEST(GotoOffset, TheLastByteIsThere) {
  ViewerSession s(ManyLines(100) + "x");
  s.Keys("Alt-O '318' Enter");
  EXPECT_EQ(s.Marked(), "x");
}

TEST(GotoOffset, SixteenDigitsFit) {
  ViewerSession s(ManyLines(100));
  s.Keys("F4 Alt-O '00000000000000209' Enter");
  EXPECT_TRUE(s.Row(1).StartsWith("00000020 "));
}

TEST(GotoOffset, AnEmptyFileHasNoBytes) {
  ViewerSession s("");
  s.Keys("Alt-O Enter");
  EXPECT_TRUE(s.FindRow("Only 0 bytes in this file"));
}

TEST(GotoOffset, EscLeavesAllAsItWas) {
  ViewerSession s(ManyLines(100));
  const std::string before = s.Screen();
  s.Keys("Alt-O '50' Esc");
  EXPECT_EQ(s.Screen(), before);
}

TEST(GotoOffset, ColumnsAreThoseOfTheTabWidth) {
  ViewerSession s("\tx\n");
  s.Keys("Alt-4 Alt-O '1' Enter");
  EXPECT_EQ(s.Marked(), "x");
  EXPECT_EQ(s.Mark().second, 4);
}

TEST(GotoOffset, UnwrappedTextMovesAsideInStepsOfFour) {
  ViewerSession s(std::string(100, '.') + "x" + std::string(100, '.') + "\n",
                  {.settings = "ViewerWrap=off\n"});
  s.Keys("Alt-O '64' Enter");
  EXPECT_EQ(s.Marked(), "x");
  EXPECT_EQ(s.Mark().second, 100 - 24);  // 101 - 80 = 21, in steps of four
}
