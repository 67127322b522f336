// Text and control bytes in a terminal.
#include "terminal_fixture.h"

using TerminalText = TerminalTest;

// ---- control bytes -----------------------------------------------------------

TEST_F(TerminalText, GoesToTheCursorInTheColourOfTheCommandLine) {
  Show("one two");
  EXPECT_EQ(Row(0), "one two");
  EXPECT_EQ(Cursor(), "7,0");
  EXPECT_EQ(Attribute(0, 0), kAttribute);
  EXPECT_EQ(Attribute(3, 0), kAttribute);
  EXPECT_EQ(result.At(7, 0), kBlank);
}

TEST_F(TerminalText, ABellRingsAndMovesNothing) {
  Show("a\ab\a");
  EXPECT_EQ(result.beeps, 2);
  EXPECT_EQ(Row(0), "ab");
}

TEST_F(TerminalText, ABellDoesNotBreakTheCharacterItRingsIn) {
  Show("\xE2\x82\a\xAC");
  EXPECT_EQ(Row(0), "\u20AC");
  EXPECT_EQ(result.beeps, 1);
}

TEST_F(TerminalText, BackspaceMovesLeftButNotBeyondTheFirstColumn) {
  Show("abc\b\bX");
  EXPECT_EQ(Row(0), "aXc");
  Show("a\b\b\bX");
  EXPECT_EQ(Row(0), "X");
  EXPECT_EQ(Cursor(), "1,0");
}

TEST_F(TerminalText, BackspaceBehindTheLastColumnMovesOntoIt) {
  Show("12345678901234567890\bX");
  EXPECT_EQ(Row(0), "1234567890123456789X");
  EXPECT_EQ(Cursor(), "20,0");
}

TEST_F(TerminalText, TabsGoToMultiplesOfEight) {
  Show("\ta\tb");
  EXPECT_EQ(Row(0), "        a       b");
  Show("1234567\tx");
  EXPECT_EQ(Character(8, 0), 'x');
  Show("12345678\tx");
  EXPECT_EQ(Character(16, 0), 'x');
}

TEST_F(TerminalText, ATabInTheLastEightColumnsGoesToTheNextRow) {
  columns = 80;
  Show("\033[73G\tx");
  EXPECT_EQ(Row(1), "x");
  Show("\033[72G\tx");
  EXPECT_EQ(Character(72, 0), 'x');
}

TEST_F(TerminalText, ATabAtTheEndOfTheLastRowScrolls) {
  Show(kLetters + "\033[6;17H\tx");
  EXPECT_EQ(Rows(), "b|c|d|e|f|x|");
}

TEST_F(TerminalText, LineFeedKeepsTheColumn) {
  Show("ab\ncd");
  EXPECT_EQ(Rows(), "ab|  cd|");
}

TEST_F(TerminalText, LineFeedInTheLastRowScrolls) {
  Show("one\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\n8");
  EXPECT_EQ(Rows(), "3|4|5|6|7| 8|");
  ASSERT_EQ(KeptRows(), 2);
  EXPECT_EQ(KeptRow(0), "one");
  EXPECT_EQ(KeptRow(1), "2");
}

TEST_F(TerminalText, LineFeedBelowTheRegionScrollsTheRegion) {
  Show(kLetters + "\033[2;3r\033[6;2H\nx");
  EXPECT_EQ(Rows(), "a|c||d|e|fx|");
}

TEST_F(TerminalText, CarriageReturnGoesToTheFirstColumn) {
  Show("abc\rX");
  EXPECT_EQ(Row(0), "Xbc");
}

TEST_F(TerminalText, OtherControlBytesAreDropped) {
  std::string all = "a";
  for (char byte = 0; byte < 32; ++byte) {
    if (std::string("\a\b\t\n\r\033").find(byte) == std::string::npos) all += byte;
  }
  Show(all + "b");
  EXPECT_EQ(Row(0), "ab");
  EXPECT_EQ(result.beeps, 0);
}

// ---- wrapping ----------------------------------------------------------------

TEST_F(TerminalText, WrapsWithTheCharacterBehindTheLastColumn) {
  Show("12345678901234567890");
  EXPECT_EQ(Cursor(), "20,0");
  Show("12345678901234567890next");
  EXPECT_EQ(Rows(), "12345678901234567890|next|");
}

TEST_F(TerminalText, AReturnAtTheEndOfAFullRowStaysInIt) {
  Show("12345678901234567890\rX");
  EXPECT_EQ(Rows(), "X2345678901234567890|");
}

TEST_F(TerminalText, WrapsAtTheBottomOfTheScreenByScrolling) {
  Show(kLetters + "\033[6;20HXY");
  EXPECT_EQ(Rows(), "b|c|d|e|f                  X|Y|");
  EXPECT_EQ(KeptRow(0), "a");
}

TEST_F(TerminalText, WrapsOutOfARegionAndScrollsItFromTheLastRow) {
  Show(kLetters + "\033[2;3r\033[3;20HXY");  // the region's end is none to a wrap
  EXPECT_EQ(Rows(), "a|b|c                  X|Y|e|f|");
  Show(kLetters + "\033[2;3r\033[6;20HXY");  // the screen's end is
  EXPECT_EQ(Rows(), "a|c||d|e|Y                  X|");
}

TEST_F(TerminalText, FillsManyRowsInOneWrite) {
  std::string text;
  for (int i = 0; i < 300; ++i) text += static_cast<char>('0' + i % 10);
  Show(text);
  EXPECT_EQ(KeptRows(), 9);
  EXPECT_EQ(Row(5), "01234567890123456789");
  EXPECT_EQ(Cursor(), "20,5");
}

// ---- characters of several bytes ---------------------------------------------

TEST_F(TerminalText, IsReadAsUtf8HoweverItIsCut) {
  Show("a\u00E9\u20AC\U0001F600z");
  EXPECT_EQ(Row(0), "a\u00E9\u20AC\U0001F600z");
  EXPECT_EQ(Cursor(), "5,0");  // a cell each
}

TEST_F(TerminalText, AnUnfinishedCharacterWaits) {
  Show("ab\xE2\x82");
  EXPECT_EQ(Row(0), "ab");
  EXPECT_EQ(Cursor(), "2,0");
}

TEST_F(TerminalText, BytesThatBeginNoCharacterStandForThemselves) {
  Show("\xE9t\xE9\xFE");
  EXPECT_EQ(Row(0), "\u00E9t\u00E9\u00FE");
}

TEST_F(TerminalText, AControlByteEndsABrokenCharacter) {
  Show("\xC3\r\nx\xE2\x82\033[mz");
  EXPECT_EQ(Rows(), "\u00C3|x\u00E2\u2302z|");
}

TEST_F(TerminalText, DeletesAndUpperControlsShowAsAHouse) {
  Show("\x7F\xC2\x80\xC2\x9F\x85\xC2\xA0");
  for (int x = 0; x < 4; ++x) EXPECT_EQ(Character(x, 0), 0x2302) << x;
  EXPECT_EQ(Character(4, 0), 0xA0);
}

TEST_F(TerminalText, OverlongControlsAreNotObeyed) {
  Show("a\xC0\x8A\xC0\x9B[2J\xE0\x80\x80");
  EXPECT_EQ(Cursor(), "7,0");
  EXPECT_EQ(Character(1, 0), 0x25D9);
  EXPECT_EQ(Character(2, 0), 0x2190);
}

// ---- the graphics set --------------------------------------------------------

TEST_F(TerminalText, GraphicsHaveAPictureForEachOfTheirBytes) {
  columns = 40;
  std::string bytes;
  for (char byte = 96; byte <= 126; ++byte) bytes += byte;
  Show("\033(0" + bytes);
  EXPECT_EQ(Row(0),
            "\u25C6\u2592\u2409\u240C\u240D\u240A\u00B0\u00B1\u2424\u240B\u2518\u2510\u250C\u2514\u253C\u23BA"
            "\u23BB\u2500\u23BC\u23BD\u251C\u2524\u2534\u252C\u2502\u2264\u2265\u03C0\u2260\u00A3\u00B7");
}

TEST_F(TerminalText, GraphicsLeaveTheOtherBytes) {
  std::string below;
  for (char byte = 32; byte < 95; ++byte) below += byte;
  columns = 80;
  Show("\033(0" + below);
  EXPECT_EQ(Row(0), below);
  Show("\033(0_x\xE9\x7F\xC3");
  EXPECT_EQ(Row(0), " \u2502\u00E9\u2302\u00C3");
}

TEST_F(TerminalText, GraphicsEndWithTheOrdinarySet) {
  Show("x\033(0x\r\n\t\033(Bx");
  EXPECT_EQ(Rows(), "x\u2502|        x|");
}

TEST_F(TerminalText, OtherSetsAreIgnored) {
  Show("\033(0\033(Ax\033(\033x");
  EXPECT_EQ(Row(0), "\u2502\u2502");
  Show("\033(A\033(1x");
  EXPECT_EQ(Row(0), "x");
}

TEST_F(TerminalText, LongGraphicsWrap) {
  Show("\033(0" + std::string(150, 'q'));
  EXPECT_EQ(KeptRows(), 2);
  EXPECT_EQ(Character(9, 5), 0x2500);
  EXPECT_EQ(Cursor(), "10,5");
}

// ---- the cursor of the screen ------------------------------------------------

TEST_F(TerminalText, StartsWhereTheScreensCursorIs) {
  PlainScreen screen(20, 6);
  CTerminal terminal(screen, -1);
  screen.SetCursor(3, 2);
  terminal.Write("ab", 2);
  EXPECT_EQ(CharacterOf(screen.grid.At(4, 2)), 'b');
  screen.SetCursor(99, -5);
  terminal.Write("c", 1);
  EXPECT_EQ(CharacterOf(screen.grid.At(0, 1)), 'c');  // behind the end of the first row
  EXPECT_EQ(screen.cursorSize, 15);
}

TEST_F(TerminalText, FollowsAScreenThatChangesItsSize) {
  PlainScreen screen(20, 6);
  CTerminal terminal(screen, -1);
  const std::string before = "\033[19;19H\0337\033[?1049hx";
  terminal.Write(before.data(), static_cast<int>(before.size()));
  screen.grid.Reset(10, 3);
  screen.SetCursor(0, 2);
  const std::string after = "0123456789a\033[5S\033[?1049lz";
  terminal.Write(after.data(), static_cast<int>(after.size()));
  EXPECT_EQ(screen.cursorY, 2);
  EXPECT_EQ(screen.cursorX, 1);  // it was behind the new last column
}
