// Escape sequences other than those of ESC [, and how all of them are read.
#include "terminal_fixture.h"

using TerminalEscape = TerminalTest;

TEST_F(TerminalEscape, SavesAndRestoresTheCursor) {
  Show("\033[3;5H\0337\033[Hx\0338y");
  EXPECT_EQ(Character(0, 0), 'x');
  EXPECT_EQ(Character(4, 2), 'y');
  Show("abc\0338x");  // nothing saved: the corner
  EXPECT_EQ(Row(0), "xbc");
}

TEST_F(TerminalEscape, RestoresACursorBehindTheLastColumn) {
  Show("12345678901234567890\0337\033[4;4H\0338x");
  EXPECT_EQ(Rows(), "12345678901234567890|x|");
}

TEST_F(TerminalEscape, KeypadModesShowNothing) {
  Show("a\033=b\033>c");
  EXPECT_EQ(Row(0), "abc");
}

TEST_F(TerminalEscape, MScrollsTheRegionDownWhereverTheCursorIs) {
  Show(kLetters + "\033[4;3H\033M");
  EXPECT_EQ(Rows(), "|a|b|c|d|e|");
  EXPECT_EQ(Cursor(), "2,3");
  Show(kLetters + "\033[2;4r\033[6;3H\033M");
  EXPECT_EQ(Rows(), "a||b|c|e|f|");
  EXPECT_EQ(KeptRows(), 0);
}

TEST_F(TerminalEscape, OfAnotherByteOnlyTheEscapeIsDropped) {
  Show("a\033cb\033\\c\033Zd");
  EXPECT_EQ(Row(0), "acb\\cZd");
  Show("a\033\nb");
  EXPECT_EQ(Rows(), "a| b|");
  Show("a\033\033[2Cb");
  EXPECT_EQ(Row(0), "a  b");
  Show("a\033\u20ACb");
  EXPECT_EQ(Row(0), "a\u20ACb");
}

TEST_F(TerminalEscape, AtTheEndOfAWriteTakesEffectWithTheNext) {
  PlainScreen screen(20, 6);
  CTerminal terminal(screen, -1);
  terminal.Write("ab\033", 3);
  EXPECT_EQ(screen.cursorX, 2);
  terminal.Write("[3D", 3);
  EXPECT_EQ(screen.cursorX, 0);
}

// ---- titles ------------------------------------------------------------------

TEST_F(TerminalEscape, ATitleIsSkippedUpToABell) {
  Show("a\033]0;title\r\n \033[2J more\ab");
  EXPECT_EQ(Rows(), "ab|");
  EXPECT_EQ(result.beeps, 0);
}

TEST_F(TerminalEscape, ATitleIsSkippedUpToTheByte9C) {
  Show("a\033]2;title\x9C\x62");
  EXPECT_EQ(Row(0), "ab");
}

TEST_F(TerminalEscape, ATitleIsSkippedUpToAnEscapeWithABackslash) {
  Show("a\033]8;;file:///x\033\\b\033]2;\033x\\y\033\033\\c");
  EXPECT_EQ(Row(0), "abc");
}

TEST_F(TerminalEscape, ALongTitleIsSkippedWhole) {
  const std::string output = "a\033]52;c;" + std::string(200000, 'Q') + "\ab";
  const TerminalResult whole = RunTerminal(output, 20, 6);
  EXPECT_EQ(TextOf(&whole.At(0, 0), 20), "ab");
  EXPECT_EQ(whole.y, 0);
}

TEST_F(TerminalEscape, ATitleWithoutAnEndGivesWayToText) {
  const std::string title(1 << 20, 't');
  PlainScreen screen(20, 6);
  CTerminal terminal(screen, -1);
  const std::string output = "\033]" + title + "ab";
  terminal.Write(output.data(), static_cast<int>(output.size()));
  EXPECT_EQ(screen.cursorX, 2);
  EXPECT_EQ(CharacterOf(screen.grid.At(0, 0)), 'a');
  EXPECT_TRUE(RunTerminal(output, 20, 6, [] { return 7; }) == RunTerminal(output, 20, 6));
}

// ---- reading ESC [ -----------------------------------------------------------

TEST_F(TerminalEscape, UnknownFinalsAreConsumed) {
  Show("a\033[5Qb\033[1;2;3yc\033[?2004hd\033[?9999le\033[14tf\033[sg\033[3;3fh");
  EXPECT_EQ(Row(0), "abcdefgh");
}

TEST_F(TerminalEscape, WithTheGreaterSignNothingMatches) {
  Show("ab\033[>4;2mc\033[>2Dd\033[>He\033[>cf");
  EXPECT_EQ(Row(0), "abcdef");
  EXPECT_EQ(Attribute(5, 0), kAttribute);
}

TEST_F(TerminalEscape, WithTheQuestionMarkOnlyModesMatch) {
  Show("ab\033[?4mc\033[?2Jd\033[?2De");
  EXPECT_EQ(Row(0), "abcde");
  EXPECT_EQ(Attribute(4, 0), kAttribute);
}

TEST_F(TerminalEscape, FormsThatWeDoNotHaveAreConsumedWhole) {
  Show("a\033[2 qb\033[!pc\033[?1$pd\033[=1ce\033[38:2:255:0:0mf\033[1\"qg\033[<uh\033[1?3hi");
  EXPECT_EQ(Row(0), "abcdefghi");
  EXPECT_EQ(Attribute(8, 0), kAttribute);
}

TEST_F(TerminalEscape, AMissingParameterIsZero) {
  Show("\033[;5Hx");
  EXPECT_EQ(Character(4, 0), 'x');
  Show("\033[3;Hx");
  EXPECT_EQ(Character(0, 2), 'x');
  Show("\033[1;31m\033[;32mx");  // the missing one resets
  EXPECT_EQ(Attribute(0, 0), 0x12);
}

TEST_F(TerminalEscape, ControlBytesWorkInsideOfASequence) {
  Show("abc\033[1\r;3\n1mx\033[\b\a7my");
  EXPECT_EQ(Rows(), "abc|y|");
  EXPECT_EQ(result.beeps, 1);
  Show("abc\033[2\033[Dx");  // the second one alone
  EXPECT_EQ(Row(0), "abx");
}

TEST_F(TerminalEscape, AByteAboveAsciiEndsASequence) {
  Show("a\033[2\xE2\x62");
  EXPECT_EQ(Row(0), "ab");
  Show("a\033[2\x7F\x62");
  EXPECT_EQ(Row(0), "ab");
}

TEST_F(TerminalEscape, HugeNumbersStopAtTheEdges) {
  Show("\033[99999999999999999999;99999999999999999999Hx");
  EXPECT_EQ(Character(19, 5), 'x');
  const std::string huge = "4294967297";  // 1 in 32 bits
  for (const char final : std::string("ABCDGdJKLMP@XSTbmhlr")) {
    Show(kLetters + "x\033[" + huge + final + "\033[" + huge + ";" + huge + final);
    EXPECT_TRUE(result.IsSane()) << final;
  }
}

TEST_F(TerminalEscape, ThousandsOfParametersAreReadInOrder) {
  std::string many = "\033[";
  for (int i = 0; i < 10000; ++i) many += "1;4;";
  for (const std::string& output : {many + "0;31mx", many + "0;31mx" + many + "Cy"}) {
    const TerminalResult whole = RunTerminal(output, 20, 6);
    EXPECT_EQ(whole.At(0, 0), (Cell{'x', 0x14}));
    EXPECT_TRUE(RunTerminal(output, 20, 6, [] { return 1023; }) == whole);
  }
}

TEST_F(TerminalEscape, ParametersBeyondAllMeasureAreLeftOut) {
  constexpr int kMost = 65536;
  std::string many = "\033[31";
  for (int i = 0; i < kMost - 2; ++i) many += ";4";
  many += ";32;5;36m";
  const TerminalResult whole = RunTerminal(many + "x", 20, 6);
  EXPECT_EQ(whole.At(0, 0), (Cell{'x', 0x92}));
  EXPECT_EQ(whole.x, 1);
}
