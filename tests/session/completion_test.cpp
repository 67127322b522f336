// File names completed on the command line.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "console/console.h"
#include "session/command_fixture.h"

namespace {

std::string LineOf(const Session& s) { return PromptRow(s).substr(PromptRow(s).find('>') + 1); }

// The line that becomes of a typed one.
std::string Completed(Session& s, const std::string& typed) {
  s.Keys("Esc " + Typed(typed) + " Ctrl-Tab");
  return LineOf(s);
}

// Also where it is scrolled.
std::string WholeLine(Session& s) {
  s.Keys("Ctrl-Ins");
  Westring text;
  Console->GetClipboardText(text);
  return ToUtf8(text).Text();
}

// Where the cursor stands in the line, of which nothing is scrolled.
int CursorIn(const Session& s) { return s.Cursor().first - static_cast<int>(Prompt(s).size()); }

}  // namespace

TEST(Completion, TheOnlyNameIsTakenAtOnce) {
  Session s({{"left/alpha", ""}, {"left/beta", ""}});
  EXPECT_EQ(Completed(s, "cat al"), "cat alpha");
  EXPECT_EQ(CursorIn(s), 9);
  EXPECT_EQ(Completed(s, "b"), "beta");
}

TEST(Completion, NothingFoundChangesNothing) {
  Session s({{"left/alpha", ""}});
  for (const char* line : {"cat x", "cat alphas", "cat no/", "cat no/al", "Al"})
    EXPECT_EQ(Completed(s, line), line);
}

TEST(Completion, OfSeveralTheUserChooses) {
  Session s({{"left/b3", ""}, {"left/B1", ""}, {"left/b2/", ""}, {"left/c", ""}});
  Completed(s, "cat b");
  const auto top = s.FindRow("File Names");
  ASSERT_TRUE(top);
  EXPECT_TRUE(s.Row(*top + 1).Contains("║b2 "));  // names above the command line in their order
  EXPECT_TRUE(s.Row(*top + 2).Contains("║b3 "));
  EXPECT_TRUE(s.Row(*top + 3).Contains("╚"));
  s.Keys("Down Enter");
  EXPECT_EQ(LineOf(s), "cat b3");
  EXPECT_EQ(CursorIn(s), 6);
}

TEST(Completion, LeavingTheListChangesNothing) {
  Session s({{"left/b1", ""}, {"left/b2", ""}});
  s.Keys("'cat b'");
  const std::string before = s.Screen();
  s.Keys("Ctrl-Tab Esc");
  EXPECT_EQ(s.Screen(), before);
  EXPECT_EQ(CursorIn(s), 5);
}

TEST(Completion, NoBeginningOffersAllNames) {
  Session s({{"left/b1", ""}, {"left/.hidden", ""}, {"left/b2", ""}});
  Completed(s, "cat ");
  s.Keys("End Enter");
  EXPECT_EQ(LineOf(s), "cat b2");
}

TEST(Completion, HiddenNamesAreOfferedOnceBegunOrShown) {
  Session s({{"left/.hidden", ""}, {"left/seen", ""}});
  EXPECT_EQ(Completed(s, "cat "), "cat seen");
  EXPECT_EQ(Completed(s, "cat ."), "cat .hidden");
  s.Keys("Ctrl-H");
  Completed(s, "cat ");
  EXPECT_TRUE(s.FindRow("File Names"));
  s.Keys("Esc");
}

TEST(Completion, OnlyTheWordBeforeTheCursorIsReplaced) {
  Session s({{"left/alpha", ""}});
  s.Keys("'cp al right' Left Left Left Left Left Left Ctrl-Tab");
  EXPECT_EQ(LineOf(s), "cp alpha right");
  EXPECT_EQ(CursorIn(s), 8);
}

TEST(Completion, BlanksAndRedirectionsBeginAWord) {
  Session s({{"left/alpha", ""}});
  EXPECT_EQ(Completed(s, "cat <al"), "cat <alpha");
  EXPECT_EQ(Completed(s, "cat>al"), "cat>alpha");
  EXPECT_EQ(Completed(s, "cat>>al"), "cat>>alpha");
  EXPECT_EQ(Completed(s, "a|al"), "a|al");
}

TEST(Completion, AnEscapedBlankBelongsToTheWord) {
  Session s({{"left/a b c", ""}, {"left/b", ""}, {"left/x<y", ""}});
  EXPECT_EQ(Completed(s, "cat a\\ b"), "cat a\\ b\\ c");
  EXPECT_EQ(Completed(s, "cat a"), "cat a\\ b\\ c");
  EXPECT_EQ(Completed(s, "cat x\\<"), "cat x\\<y");
  EXPECT_EQ(Completed(s, "cat a\\\\ b"), "cat a\\\\ b");  // the blank is a blank again
  s.Keys("Esc");
}

TEST(Completion, ABackslashAtTheCursorIsNoHarm) {
  Session s({{"left/alpha", ""}});
  EXPECT_EQ(Completed(s, "cat \\"), "cat \\");
  s.Keys("Esc '\\al' Left Left Ctrl-Tab");
  EXPECT_EQ(LineOf(s), "\\al");
}

TEST(Completion, GoesIntoDirectories) {
  Session s({{"left/my dir/file one", ""}, {"right/other", ""}});
  EXPECT_EQ(Completed(s, "cat my\\ dir/f"), "cat my\\ dir/file\\ one");
  EXPECT_EQ(Completed(s, "cat my"), "cat my\\ dir");
  EXPECT_EQ(Completed(s, "cat ../right/o"), "cat ../right/other");
  EXPECT_EQ(Completed(s, "cat " + s.Path("right/")), "cat " + s.Path("right/other"));
}

TEST(Completion, TheHomeAndVariablesStayAsTheyWereTyped) {
  Session s({{"home/note one", ""}});
  EXPECT_EQ(Completed(s, "cat ~/no"), "cat ~/note\\ one");
  EXPECT_EQ(Completed(s, "cat $HOME/no"), "cat $HOME/note\\ one");
}

TEST(Completion, AnEscapedVariableIsAName) {
  Session s({{"left/$HOME/file", ""}, {"left/~/file", ""}});
  EXPECT_EQ(Completed(s, "cat \\$HOME/f"), "cat \\$HOME/file");
  EXPECT_EQ(Completed(s, "cat \\~/f"), "cat \\~/file");
}

TEST(Completion, ANameWithTheMacroCharacterCanBeRunAndCompletedFurther) {
  Session s({{"left/wow!a", "one"}, {"left/wow!b", "two"}});
  Completed(s, "cat wow");
  s.Keys("Enter");
  EXPECT_EQ(LineOf(s), "cat wow\\!!a");
  s.Keys("Backspace Ctrl-Tab Down Enter ' > ../out' Enter");
  EXPECT_EQ(s.Content("out"), "two");
}

TEST(Completion, PatternsInTheWordAreLetters) {
  Session s({{"left/a*b", ""}, {"left/axb", ""}});
  EXPECT_EQ(Completed(s, "rm a\\*"), "rm a\\*b");
  EXPECT_EQ(Completed(s, "rm a?"), "rm a?");
}

TEST(Completion, ALineThatWouldGetTooLongStays) {
  const std::string name(200, 'n');
  Session s({{"left/" + name, ""}});
  const std::string line = std::string(310, 'x') + " n";
  s.Keys("Ctrl-O " + Typed("x" + line) + " Ctrl-Tab");
  EXPECT_EQ(WholeLine(s), "x" + line);
  s.Keys("Home Del End Ctrl-Tab");  // to 511 characters
  EXPECT_EQ(WholeLine(s), std::string(310, 'x') + " " + name);
}

TEST(Completion, OnAnInformationPanelTakesTheOtherOnesDirectory) {
  Session s({{"left/alpha", ""}});
  s.Keys("Ctrl-L Tab 'cat al' Ctrl-Tab");
  EXPECT_EQ(LineOf(s), "cat alpha");
}

TEST(Completion, ManyNamesScrollInTheList) {
  Session s(NumberedFiles("left", 300));
  Completed(s, "cat f");
  s.Keys("End Enter");
  EXPECT_EQ(LineOf(s), "cat f299");
}

TEST(Completion, ANameWiderThanTheScreenCanBeChosen) {
  Session s({{"left/n1" + std::string(150, 'x'), ""}, {"left/n2", ""}});
  Completed(s, "cat n");
  EXPECT_TRUE(s.FindRow("File Names"));
  s.Keys("Enter");
  EXPECT_EQ(WholeLine(s), "cat n1" + std::string(150, 'x'));
}

TEST(Completion, AnUnreadableOrVanishedDirectoryChangesNothing) {
  Session s({{"left/alpha", ""}});
  unlink(s.Path("left/alpha").c_str());
  ASSERT_EQ(rmdir(s.Path("left").c_str()), 0);
  EXPECT_EQ(Completed(s, "cat al"), "cat al");
  const std::string tooLong = "cat " + std::string(500, 'd') + "/x";
  Completed(s, tooLong);
  EXPECT_EQ(WholeLine(s), tooLong);
}
