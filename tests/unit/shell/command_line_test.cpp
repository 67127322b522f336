// Editing of the command line, and the part of it that is in view.
#include "shell/command_line.h"

#include "unit/shell/shell_fixture.h"

namespace {

class CommandLine : public ShellFixture {
 protected:
  void Type(wchar_t character) {
    shell.key = static_cast<Key>(character);
    TypeCharacter(shell);
  }
  void Fill(int length) { SetCommandLine(shell, Westring::Replicate(L'a', length)); }
  int LineLength() const { return Length(shell.commandLine); }
};

using CommandLineView = testing::Test;

}  // namespace

TEST_F(CommandLine, TypedCharactersGoInAtTheCursor) {
  SetLine(L"ab|d");
  Type(L'c');
  EXPECT_EQ(Line(), L"abc|d");
  Type(0xE9);
  Type(0x4E16);
  EXPECT_EQ(Line(), L"abc\xE9\x4E16|d");
}

TEST_F(CommandLine, TypingFillsTheLineTo512Characters) {
  Fill(511);
  Type(L'b');
  EXPECT_EQ(LineLength(), 512);
  EXPECT_EQ(shell.commandCursor, 512);
  Type(L'c');
  EXPECT_EQ(LineLength(), 512);
  EXPECT_EQ(shell.commandCursor, 512);
  EXPECT_EQ(shell.commandLine[511], L'b');
}

TEST_F(CommandLine, TextPutInAsAWholeFillsItTo511) {
  Fill(508);
  EXPECT_FALSE(InsertText(shell, L"bcde"));
  EXPECT_EQ(LineLength(), 508);
  EXPECT_TRUE(InsertText(shell, L"bcd"));
  EXPECT_EQ(LineLength(), 511);
  EXPECT_EQ(shell.commandCursor, 511);
  EXPECT_FALSE(InsertText(shell, L"e"));
}

TEST_F(CommandLine, TheCursorGoesBehindWhatIsPutIn) {
  SetLine(L"ls | more");
  EXPECT_TRUE(InsertText(shell, L"-l"));
  EXPECT_EQ(Line(), L"ls -l| more");
}

TEST_F(CommandLine, AnInsertedNameIsQuotedForTheShellAndGetsABlank) {
  EXPECT_TRUE(InsertAtCursor(shell, L"my file (1).txt"));
  EXPECT_EQ(Line(), L"my\\ file\\ \\(1\\).txt |");
}

TEST_F(CommandLine, AnInsertedDirectoryGetsNoBlank) {
  EXPECT_TRUE(InsertAtCursor(shell, L"/home/u/"));
  EXPECT_EQ(Line(), L"/home/u/|");
}

TEST_F(CommandLine, NothingInsertedIsNothingAdded) {
  EXPECT_TRUE(InsertAtCursor(shell, L""));
  EXPECT_EQ(Line(), L"|");
}

TEST_F(CommandLine, TheMacroCharacterIsDoubled) {
  EXPECT_TRUE(InsertAtCursor(shell, L"a!b"));
  EXPECT_EQ(Line(), L"a\\!!b |");
}

TEST_F(CommandLine, AnotherMacroCharacterIsTheOneDoubled) {
  Options::CmdChar = '%';
  EXPECT_TRUE(InsertAtCursor(shell, L"50%!"));
  EXPECT_EQ(Line(), L"50%%\\! |");
}

TEST_F(CommandLine, AnInsertionCountsWithItsQuotesAndItsBlank) {
  Fill(505);
  EXPECT_FALSE(InsertAtCursor(shell, L"a b c"));  // "a\ b\ c "
  EXPECT_EQ(LineLength(), 505);
  Fill(503);
  EXPECT_TRUE(InsertAtCursor(shell, L"a b c"));
  EXPECT_EQ(LineLength(), 511);
}

TEST_F(CommandLine, DeleteTakesTheCharacterUnderTheCursor) {
  SetLine(L"a|bc");
  EXPECT_EQ(DeleteAtCursor(shell), kRedrawLine);
  EXPECT_EQ(Line(), L"a|c");
}

TEST_F(CommandLine, DeleteAtTheEndDoesNothing) {
  SetLine(L"|");
  EXPECT_EQ(DeleteAtCursor(shell), kRedrawNothing);
  SetLine(L"abc|");
  EXPECT_EQ(DeleteAtCursor(shell), kRedrawNothing);
  EXPECT_EQ(Line(), L"abc|");
}

TEST_F(CommandLine, BackspaceTakesTheCharacterLeftOfTheCursor) {
  SetLine(L"ab|c");
  EXPECT_EQ(DeleteLeft(shell), kRedrawLine);
  EXPECT_EQ(Line(), L"a|c");
}

TEST_F(CommandLine, BackspaceAtTheStartDoesNothing) {
  SetLine(L"|abc");
  EXPECT_EQ(DeleteLeft(shell), kRedrawNothing);
  EXPECT_EQ(Line(), L"|abc");
}

TEST_F(CommandLine, WordsAreDeletedToBothSidesOfTheCursor) {
  SetLine(L"copy one| two");
  DeleteWordLeft(shell);
  EXPECT_EQ(Line(), L"copy | two");
  DeleteWordRight(shell);
  EXPECT_EQ(Line(), L"copy |");
  DeleteWordRight(shell);
  EXPECT_EQ(Line(), L"copy |");
}

TEST_F(CommandLine, DeletingRightGoesAsFarAsMovingRight) {
  Options::BriefWordRight = false;
  SetLine(L"co|py  two");
  DeleteWordRight(shell);
  EXPECT_EQ(Line(), L"co|two");
}

TEST_F(CommandLine, TheCursorGoesByWordsAndToBothEnds) {
  SetLine(L"copy one| two");
  MoveWordLeft(shell);
  EXPECT_EQ(Line(), L"copy |one two");
  MoveWordRight(shell);
  EXPECT_EQ(Line(), L"copy one| two");
  MoveLineStart(shell);
  EXPECT_EQ(Line(), L"|copy one two");
  MoveLineEnd(shell);
  EXPECT_EQ(Line(), L"copy one two|");
}

TEST_F(CommandLine, SidewaysKeysMoveTheCursorWithinTheLine) {
  SetLine(L"a|b");
  CursorRight(shell);
  EXPECT_EQ(Line(), L"ab|");
  EXPECT_EQ(CursorRight(shell), kRedrawNothing);
  EXPECT_EQ(Line(), L"ab|");
  CursorLeft(shell);
  CursorLeft(shell);
  EXPECT_EQ(Line(), L"|ab");
  EXPECT_EQ(CursorLeft(shell), kRedrawNothing);
  EXPECT_EQ(panel.nameScroll, 0);
}

TEST_F(CommandLine, OnAnEmptyLineSidewaysKeysScrollTheNameUnderThePanelCursor) {
  SetList(kStyleFull, 5, 3);
  Place(0, 2);
  shell.cursorDirty = false;
  CursorRight(shell);
  CursorRight(shell);
  EXPECT_EQ(panel.nameScroll, 2);
  EXPECT_EQ(panel.nameScrollEntry, 2);
  EXPECT_TRUE(shell.cursorDirty);
  for (int i = 0; i < 3; ++i) CursorLeft(shell);
  EXPECT_EQ(panel.nameScroll, 0);
}

TEST(CommandLineView, AShortLineIsShownFromItsStart) {
  const LineView view = FitLine({.cursor = 5, .scroll = 0}, 5, 10, 80);
  EXPECT_EQ(view.cursor, 5);
  EXPECT_EQ(view.scroll, 0);
}

TEST(CommandLineView, ACursorBehindTheLineComesToItsEnd) {
  EXPECT_EQ(FitLine({.cursor = 9, .scroll = 0}, 5, 10, 80).cursor, 5);
}

TEST(CommandLineView, TheCursorMayStandInTheLastColumnAndNotBehindIt) {
  // Ten columns of prompt leave 70, the last of them for the cursor.
  EXPECT_EQ(FitLine({.cursor = 69, .scroll = 0}, 100, 10, 80).scroll, 0);
  EXPECT_EQ(FitLine({.cursor = 70, .scroll = 0}, 100, 10, 80).scroll, 1);
  EXPECT_EQ(FitLine({.cursor = 100, .scroll = 0}, 100, 10, 80).scroll, 31);
}

TEST(CommandLineView, ACursorLeftOfTheViewPullsItBack) {
  EXPECT_EQ(FitLine({.cursor = 7, .scroll = 30}, 100, 10, 80).scroll, 7);
  EXPECT_EQ(FitLine({.cursor = 0, .scroll = 30}, 100, 10, 80).scroll, 0);
}

TEST(CommandLineView, AtLeastTheLast40CharactersStayInView) {
  EXPECT_EQ(FitLine({.cursor = 90, .scroll = 59}, 100, 10, 80).scroll, 59);
  EXPECT_EQ(FitLine({.cursor = 90, .scroll = 60}, 100, 10, 80).scroll, 60);
  EXPECT_EQ(FitLine({.cursor = 90, .scroll = 61}, 100, 10, 80).scroll, 60);
  EXPECT_EQ(FitLine({.cursor = 30, .scroll = 25}, 30, 10, 80).scroll, 0);
}

TEST(CommandLineView, EveryCursorOfEveryLineIsOnTheScreen) {
  for (int length : {0, 1, 39, 40, 41, 69, 70, 71, 200, 512}) {
    for (int start = 0; start <= length; start += 7) {
      for (int cursor = 0; cursor <= length; ++cursor) {
        const LineView view = FitLine({cursor, start}, length, 40, 80);
        EXPECT_GE(view.scroll, 0);
        EXPECT_GE(view.cursor, view.scroll);
        EXPECT_LT(40 + view.cursor - view.scroll, 80) << length << ' ' << start << ' ' << cursor;
      }
    }
  }
}
