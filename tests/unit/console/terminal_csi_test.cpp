// The sequences of ESC [ that move, erase, insert, delete and scroll.
#include "terminal_fixture.h"

class TerminalCsi : public TerminalTest {
 protected:
  void ExpectCursor(const std::string& output, const std::string& place) {
    Show(output);
    EXPECT_EQ(Cursor(), place) << output.substr(1);
  }
  void ExpectRows(const std::string& output, const std::string& text) {
    Show(output);
    EXPECT_EQ(Rows(), text) << output.substr(1);
  }
};

// ---- moving ------------------------------------------------------------------

TEST_F(TerminalCsi, UpAndDownStopAtTheEdgesAndDoNotScroll) {
  ExpectCursor("\033[4;4H\033[A", "3,2");
  ExpectCursor("\033[4;4H\033[2A", "3,1");
  ExpectCursor("\033[4;4H\033[9A", "3,0");
  ExpectCursor("\033[4;4H\033[B", "3,4");
  ExpectCursor("\033[4;4H\033[2B", "3,5");
  ExpectCursor("x\033[4;4H\033[9B", "3,5");
  EXPECT_EQ(Row(0), "x");
  EXPECT_EQ(KeptRows(), 0);
}

TEST_F(TerminalCsi, UpAndDownPassTheRegionsEnds) {
  ExpectCursor("\033[2;3r\033[3;1H\033[9B", "0,5");
  ExpectCursor("\033[2;3r\033[3;1H\033[9A", "0,0");
}

TEST_F(TerminalCsi, RightAndLeftStopAtTheEdges) {
  ExpectCursor("\033[4;4H\033[C", "4,3");
  ExpectCursor("\033[4;4H\033[2C", "5,3");
  ExpectCursor("\033[4;4H\033[99C", "19,3");
  ExpectCursor("\033[4;4H\033[D", "2,3");
  ExpectCursor("\033[4;4H\033[2D", "1,3");
  ExpectCursor("\033[4;4H\033[99D", "0,3");
  ExpectCursor("12345678901234567890\033[C", "19,0");  // from behind the last column
}

TEST_F(TerminalCsi, AZeroThatIsGivenMovesByNothing) {
  for (const char final : std::string("ABCD")) {
    ExpectCursor(std::string("\033[4;4H\033[0") + final, "3,3");
    ExpectCursor(std::string("\033[4;4H\033[;5") + final, "3,3");
  }
}

TEST_F(TerminalCsi, GGoesToAColumn) {
  ExpectCursor("\033[4;4H\033[G", "0,3");
  ExpectCursor("\033[4;4H\033[0G", "0,3");
  ExpectCursor("\033[4;4H\033[7G", "6,3");
  ExpectCursor("\033[4;4H\033[21G", "19,3");
}

TEST_F(TerminalCsi, HGoesToAPlace) {
  ExpectCursor("\033[4;4H\033[H", "0,0");
  ExpectCursor("\033[4;4H\033[0;0H", "0,0");
  ExpectCursor("\033[4;4H\033[2H", "0,1");
  ExpectCursor("\033[4;4H\033[;2H", "1,0");
  ExpectCursor("\033[4;4H\033[2;3;4H", "2,1");
  ExpectCursor("\033[7;21H", "19,5");
}

TEST_F(TerminalCsi, DGoesToARow) {
  ExpectCursor("\033[4;4H\033[d", "3,0");
  ExpectCursor("\033[4;4H\033[0d", "3,0");
  ExpectCursor("\033[4;4H\033[2d", "3,1");
  ExpectCursor("\033[4;4H\033[99d", "3,5");
}

// ---- erasing -----------------------------------------------------------------

TEST_F(TerminalCsi, JErasesFromTheCursorDown) {
  for (const std::string sequence : {"\033[J", "\033[0J"}) {
    ExpectRows("one\r\ntwo\r\nsix\033[2;2H\033[32m" + sequence, "one|t|");
    EXPECT_EQ(Cursor(), "1,1");
    EXPECT_EQ(result.At(1, 1), (Cell{' ', 0x12}));
    EXPECT_EQ(result.At(19, 5), (Cell{' ', 0x12}));
    EXPECT_EQ(result.At(0, 1), (Cell{'t', 0x17}));
    EXPECT_EQ(result.At(5, 0), kBlank);
  }
}

TEST_F(TerminalCsi, J1ErasesUpToTheCursorAndItsCell) {
  ExpectRows("one\r\ntwo\r\nsix\033[2;2H\033[32m\033[1J", "|  o|six|");
  EXPECT_EQ(result.At(1, 1), (Cell{' ', 0x12}));
  EXPECT_EQ(result.At(19, 0), (Cell{' ', 0x12}));
  EXPECT_EQ(result.At(3, 1), kBlank);
}

TEST_F(TerminalCsi, J2ErasesAllAndLeavesTheCursor) {
  ExpectRows("one\r\ntwo\033[2J", "");
  EXPECT_EQ(Cursor(), "3,1");
  EXPECT_EQ(result.At(19, 5), (Cell{' ', kAttribute}));
  EXPECT_EQ(KeptRows(), 0);
}

TEST_F(TerminalCsi, OtherPartsOfTheScreenAreNotErased) {
  ExpectRows("one\r\ntwo\033[H\033[3J\033[3K", "one|two|");
}

TEST_F(TerminalCsi, KErasesInTheRow) {
  ExpectRows("first\r\nabcdef\033[4G\033[K", "first|abc|");
  ExpectRows("first\r\nabcdef\033[4G\033[32m\033[0K", "first|abc|");
  EXPECT_EQ(result.At(3, 1), (Cell{' ', 0x12}));
  EXPECT_EQ(result.At(19, 1), (Cell{' ', 0x12}));
  ExpectRows("first\r\nabcdef\033[4G\033[1K", "first|   def|");
  ExpectRows("first\r\nabcdef\033[4G\033[2K", "first|");
  EXPECT_EQ(Cursor(), "3,1");
}

TEST_F(TerminalCsi, ErasingFromBehindTheLastColumnSparesTheRow) {
  ExpectRows("12345678901234567890\033[K", "12345678901234567890|");
  ExpectRows("12345678901234567890\033[5X", "12345678901234567890|");
  ExpectRows("12345678901234567890\033[1K", "");
}

TEST_F(TerminalCsi, XBlanksCells) {
  ExpectRows("abcdef\033[2G\033[X", "a cdef|");
  ExpectRows("abcdef\033[2G\033[32m\033[3X", "a   ef|");
  EXPECT_EQ(result.At(3, 0), (Cell{' ', 0x12}));
  ExpectRows("abcdef\033[2G\033[99X", "a|");
  ExpectRows("abcdef\033[2G\033[0X", "abcdef|");
}

// ---- inserting and deleting ----------------------------------------------------

TEST_F(TerminalCsi, PDeletesCharacters) {
  ExpectRows("abcdef\033[2G\033[P", "acdef|");
  ExpectRows("abcdef\033[2G\033[0P", "acdef|");
  ExpectRows("abcdef\033[2G\033[32m\033[3P", "aef|");
  EXPECT_EQ(result.At(17, 0), (Cell{' ', 0x12}));
  EXPECT_EQ(result.At(16, 0), kBlank);
  ExpectRows("abcdef\033[2G\033[99P", "a|");
  EXPECT_EQ(Cursor(), "1,0");
  ExpectRows("12345678901234567890\033[P", "12345678901234567890|");
}

TEST_F(TerminalCsi, AtSignInsertsBlanks) {
  ExpectRows("abcdef\033[2G\033[@", "a bcdef|");
  ExpectRows("abcdef\033[2G\033[0@", "a bcdef|");
  ExpectRows("12345678901234567890\033[2G\033[32m\033[3@", "1   2345678901234567|");
  EXPECT_EQ(result.At(3, 0), (Cell{' ', 0x12}));
  EXPECT_EQ(result.At(4, 0), (Cell{'2', 0x17}));
  ExpectRows("abcdef\033[2G\033[99@", "a|");
  EXPECT_EQ(Cursor(), "1,0");
}

TEST_F(TerminalCsi, LInsertsLines) {
  ExpectRows(kLetters + "\033[2;3H\033[L", "a||b|c|d|e|");
  EXPECT_EQ(Cursor(), "2,1");
  ExpectRows(kLetters + "\033[2H\033[0L", "a||b|c|d|e|");
  ExpectRows(kLetters + "\033[2H\033[32m\033[2L", "a|||b|c|d|");
  EXPECT_EQ(result.At(7, 2), (Cell{' ', 0x12}));
  ExpectRows(kLetters + "\033[2H\033[99L", "a|");
  EXPECT_EQ(KeptRows(), 0);
}

TEST_F(TerminalCsi, MDeletesLines) {
  ExpectRows(kLetters + "\033[2;3H\033[M", "a|c|d|e|f|");
  EXPECT_EQ(Cursor(), "2,1");
  ExpectRows(kLetters + "\033[2H\033[0M", "a|c|d|e|f|");
  ExpectRows(kLetters + "\033[2H\033[2M", "a|d|e|f|");
  ExpectRows(kLetters + "\033[1H\033[99M", "");
  EXPECT_EQ(KeptRows(), 0);  // they are deleted, not scrolled off
}

TEST_F(TerminalCsi, LinesMoveDownToTheRegionsEnd) {
  ExpectRows(kLetters + "\033[2;4r\033[3H\033[L", "a|b||c|e|f|");
  ExpectRows(kLetters + "\033[2;4r\033[3H\033[M", "a|b|d||e|f|");
  ExpectRows(kLetters + "\033[2;4r\033[1H\033[L", "|a|b|c|e|f|");  // also from above the region
  ExpectRows(kLetters + "\033[2;4r\033[5H\033[L", "a|b|c|d||e|");  // under it, to the last row
  ExpectRows(kLetters + "\033[2;4r\033[5H\033[M", "a|b|c|d|f|");
}

// ---- scrolling -----------------------------------------------------------------

TEST_F(TerminalCsi, SScrollsUpAsOftenAsItSays) {
  ExpectRows(kLetters + "\033[3;3H\033[2S", "c|d|e|f|");
  EXPECT_EQ(Cursor(), "2,2");
  ASSERT_EQ(KeptRows(), 2);
  EXPECT_EQ(KeptRow(1), "b");
  for (const std::string nothing : {"\033[0S", "\033[S", "\033[;5S"}) {
    ExpectRows(kLetters + nothing, "a|b|c|d|e|f|");
    EXPECT_EQ(KeptRows(), 0);
  }
}

TEST_F(TerminalCsi, ScrollingByFiveSavesTheTopFiveRows) {
  ExpectRows(kLetters + "\033[5S", "f|");
  ASSERT_EQ(KeptRows(), 5);
  EXPECT_EQ(KeptRow(0), "a");
  EXPECT_EQ(KeptRow(4), "e");
}

TEST_F(TerminalCsi, ScrollingByMoreThanTheScreenSavesTheScreen) {
  ExpectRows(kLetters + "\033[1000000S", "");
  EXPECT_EQ(KeptRows(), 6);
}

TEST_F(TerminalCsi, TheTopRowsAreSavedEvenIfTheRegionStartsBelow) {
  ExpectRows(kLetters + "\033[3;4r\033[1S", "a|b|d||e|f|");
  ASSERT_EQ(KeptRows(), 1);
  EXPECT_EQ(KeptRow(0), "a");
}

TEST_F(TerminalCsi, NothingIsSavedWithTheOptionOff) {
  Options::ConsoleScrollback = false;
  ExpectRows(kLetters + "\033[2S\033[6H\n", "d|e|f|");
  EXPECT_EQ(KeptRows(), 0);
}

TEST_F(TerminalCsi, TScrollsDown) {
  ExpectRows(kLetters + "\033[3;3H\033[T", "|a|b|c|d|e|");
  EXPECT_EQ(Cursor(), "2,2");
  ExpectRows(kLetters + "\033[0T", "|a|b|c|d|e|");
  ExpectRows(kLetters + "\033[2;4r\033[32m\033[2T", "a|||b|e|f|");
  EXPECT_EQ(result.At(0, 1), (Cell{' ', 0x12}));
  ExpectRows(kLetters + "\033[99T", "");
  EXPECT_EQ(KeptRows(), 0);
}

// ---- the region ----------------------------------------------------------------

TEST_F(TerminalCsi, TheRegionScrollsAtItsLastRow) {
  ExpectRows(kLetters + "\033[2;4r\033[3H\nx", "a|b|c|x|e|f|");
  ExpectRows(kLetters + "\033[2;4r\033[4H\n", "a|c|d||e|f|");
}

TEST_F(TerminalCsi, TheRegionLeavesTheCursor) { ExpectCursor("\033[4;4H\033[2;3r", "3,3"); }

TEST_F(TerminalCsi, WithoutBothEndsOnlyTheRegionsTopGoesBack) {
  for (const std::string reset : {"\033[r", "\033[3r", "\033[2;3;4r"}) {
    ExpectRows(kLetters + "\033[3;4r" + reset + "\033[1S", "b|c|d||e|f|");
  }
  rows = 25;
  std::string text;
  for (char letter = 'a'; letter < 'a' + 25; ++letter) text += std::string("\r\n") + letter;
  Show(text.substr(2) + "\033[5;10r\033[r\033[10H\n");  // rows 0 to 9
  EXPECT_EQ(Row(0), "b");
  EXPECT_EQ(Row(8), "j");
  EXPECT_EQ(Row(9), "");
  EXPECT_EQ(Row(10), "k");
}

TEST_F(TerminalCsi, AnEndOffTheScreenIsNotTaken) {
  ExpectRows(kLetters + "\033[3;4r\033[2;7r\033[1S", "a|c|d||e|f|");
  ExpectRows(kLetters + "\033[3;4r\033[0;5r\033[1S", "a|b|d|e||f|");
  ExpectRows(kLetters + "\033[3;4r\033[;r\033[1S", "a|b|d||e|f|");
}

TEST_F(TerminalCsi, AnInvertedRegionScrollsNothing) {
  ExpectRows(kLetters + "\033[5;2r\033[3S\033[6H\n\033[2T\033M", "a|b|c|d|e|f|");
}

// ---- repeating and inserting -----------------------------------------------------

TEST_F(TerminalCsi, BRepeatsTheLastCharacter) {
  ExpectRows("xy\033[b", "xyy|");
  ExpectRows("xy\033[0b", "xyy|");
  ExpectRows("xy\033[3bz", "xyyyyz|");
  ExpectRows("\u20AC\r\n\033[2b", "\u20AC|\u20AC\u20AC|");
  ExpectRows("\033(0q\033(B\033[b", "\u2500\u2500|");
  ExpectRows("\033[5b", "");
}

TEST_F(TerminalCsi, RepeatingWrapsAndIsBounded) {
  ExpectRows("x\033[20b", "xxxxxxxxxxxxxxxxxxxx|x|");
  Show("x\033[100003b");
  EXPECT_EQ(Row(5), "xxxx");
  EXPECT_EQ(Row(4), std::string(20, 'x'));
  EXPECT_EQ(Cursor(), "4,5");
  EXPECT_LE(KeptRows(), 2 * rows);
}

TEST_F(TerminalCsi, RepeatingEmptiesARegionItScrollsFromBelow) {
  ExpectRows("\033[2;4rx\033[239b", "xxxxxxxxxxxxxxxxxxxx||||xxxxxxxxxxxxxxxxxxxx|xxxxxxxxxxxxxxxxxxxx|");
  ExpectRows("\033[2;4rx\033[999999b", "xxxxxxxxxxxxxxxxxxxx||||xxxxxxxxxxxxxxxxxxxx|xxxxxxxxxxxxxxxxxxxx|");
}

TEST_F(TerminalCsi, InsertModeMovesTheRowRight) {
  ExpectRows("abc\r\033[4hXY", "XYabc|");
  ExpectRows("abc\r\033[4hX\033[4lY", "XYbc|");
  ExpectRows("12345678901234567890\r\033[4hab", "ab123456789012345678|");
  ExpectRows("two\033[2;1Hsix\033[1;19H\033[4habcd", "two               ab|cdsix|");
  ExpectRows("abc\r\033[2;4;6hX", "Xabc|");
  ExpectRows("abc\r\033[5hX", "Xbc|");
  ExpectRows("abc\r\033[4h\u00E9\033[b",
             "\u00E9\u00E9"
             "abc|");
}
