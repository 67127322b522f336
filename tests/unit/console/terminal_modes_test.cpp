// Private modes: the cursor's size and the alternate screen.
#include "terminal_fixture.h"

using TerminalModes = TerminalTest;

TEST_F(TerminalModes, HidesAndShowsTheCursor) {
  Show("\033[?25l");
  EXPECT_EQ(result.cursorSize, 0);
  Show("\033[?25l\033[?25h");
  EXPECT_EQ(result.cursorSize, 15);
  Show("\033[?12;25;7l");
  EXPECT_EQ(result.cursorSize, 0);
}

TEST_F(TerminalModes, TheCursorsSizeIsTheScreensUntilItIsSet) {
  PlainScreen screen(20, 6);
  screen.SetCursorSize(40);
  CTerminal terminal(screen, -1);
  terminal.Write("x", 1);
  EXPECT_EQ(screen.cursorSize, 40);
}

TEST_F(TerminalModes, TheAlternateScreenIsBlankInTheAttributeAndStartsAtHome) {
  for (const std::string mode : {"47", "1047", "1049"}) {
    Show("one\r\ntwo\033[32m\033[?" + mode + "h");
    EXPECT_EQ(Rows(), "");
    EXPECT_EQ(Cursor(), "0,0");
    EXPECT_EQ(result.At(0, 0), (Cell{' ', 0x12}));
    EXPECT_EQ(result.At(19, 5), (Cell{' ', 0x12}));
  }
}

TEST_F(TerminalModes, LeavingTheAlternateScreenPutsTheScreenBack) {
  for (const std::string mode : {"47", "1047"}) {
    Show("one\r\ntwo\033[?" + mode + "hother\r\nthing\033[?" + mode + "lx");
    EXPECT_EQ(Rows(), "one|two  x|");
    EXPECT_EQ(Attribute(0, 0), kAttribute);
    EXPECT_EQ(result.At(10, 0), kBlank);
  }
}

TEST_F(TerminalModes, Mode1049PutsTheScreenAndTheCursorBack) {
  Show("one\r\ntwo\033[?1049hother\033[5;5H\033[?1049l");
  EXPECT_EQ(Rows(), "one|two|");
  EXPECT_EQ(Cursor(), "3,1");
}

TEST_F(TerminalModes, Mode1048SavesAndRestoresTheCursorAlone) {
  Show("ab\033[?1048h\033[5;5Hx\033[?1048ly");
  EXPECT_EQ(Rows(), "aby||||    x|");
  Show("ab\0337\033[H\033[?1048lx");  // one place for all
  EXPECT_EQ(Row(0), "abx");
}

TEST_F(TerminalModes, AnAlternateScreenThatIsShownIsLeftAlone) {
  Show("one\033[?47htwo\033[?1047h!\033[?1049h?");
  EXPECT_EQ(Row(0), "two!?");
  Show("one\033[?47htwo\033[?1047h!\033[?47l");
  EXPECT_EQ(Row(0), "one");
  Show("one\033[?47l\033[?1047lx");  // nor is a main screen
  EXPECT_EQ(Row(0), "onex");
}

TEST_F(TerminalModes, NothingOfTheAlternateScreenIsKept) {
  Show("\033[?47h" + kLetters + "\033[6H\n\n\033[3S");
  EXPECT_EQ(KeptRows(), 0);
  Show("\033[?47h\033[?47l" + kLetters + "\033[6H\n");
  EXPECT_EQ(KeptRows(), 1);
}

TEST_F(TerminalModes, ATerminalThatEndsLeavesItsAlternateScreen) {
  PlainScreen screen(20, 6);
  {
    CTerminal terminal(screen, -1);
    terminal.Write("one\033[?47hother", 14);
    EXPECT_EQ(CharacterOf(screen.grid.At(1, 0)), 't');
  }
  EXPECT_EQ(CharacterOf(screen.grid.At(1, 0)), 'n');
  EXPECT_TRUE(AllCells(screen.picture) == AllCells(screen.grid));
}

TEST_F(TerminalModes, ATerminalThatEndsInItsAlternateScreenPutsTheCursorBack) {
  PlainScreen screen(20, 6);
  {
    CTerminal terminal(screen, -1);
    const std::string output = "\033[4;3H\033[?47h\033[2;5H\0337other";  // saves another place as well
    terminal.Write(output.data(), static_cast<int>(output.size()));
  }
  int x = -1, y = -1;
  screen.GetCursor(x, y);
  EXPECT_EQ(x, 2);
  EXPECT_EQ(y, 3);
}

TEST_F(TerminalModes, TheRegionIsTheSameOnBothScreens) {
  Show("\033[2;3r\033[?47h\033[2Hb\033[3Hc\033[4Hd\033[3H\n");
  EXPECT_EQ(Rows(), "|c||d|");
}

TEST_F(TerminalModes, SaveScreenRowKeepsTheRowItIsAskedFor) {
  PlainScreen screen(20, 6);
  CTerminal terminal(screen, -1);
  terminal.Write("one\r\ntwo", 8);
  ScrollBack.Clear();
  terminal.SaveScreenRow(1);
  ASSERT_EQ(ScrollBack.Count(), 1);
  int length = 0;
  const Cell* row = ScrollBack.Row(0, length);
  EXPECT_EQ(TextOf(row, length), "two");
  EXPECT_EQ(length, 20);
  ScrollBack.Clear();
}
