// The command history and stepping through it.
#include "shell/history.h"

#include <vector>

#include "unit/shell/shell_fixture.h"

namespace {

class History : public ShellFixture {
 protected:
  ~History() override { CommandHistory.Clear(); }

  void Add(const std::vector<const wchar_t*>& commands) {
    for (const wchar_t* command : commands) AddCommand(command, true);
  }
  std::vector<std::wstring> Commands() const {
    std::vector<std::wstring> commands;
    for (int i = 0; i < CommandHistory.Count(); ++i) commands.push_back(CommandHistory.Peek(i)->Text());
    return commands;
  }
  std::wstring Older() { return PreviousCommand(shell), Line(); }
  std::wstring Newer() { return NextCommand(shell), Line(); }
};

using Texts = std::vector<std::wstring>;

}  // namespace

TEST_F(History, NewCommandsGoToTheEnd) {
  Add({L"one", L"two"});
  EXPECT_EQ(Commands(), (Texts{L"one", L"two"}));
}

TEST_F(History, AnEqualCommandMovesToTheEnd) {
  Add({L"one", L"two", L"three", L"one"});
  EXPECT_EQ(Commands(), (Texts{L"two", L"three", L"one"}));
}

TEST_F(History, CommandsThatDifferInCaseAreTwo) {
  Add({L"ls A", L"ls a"});
  EXPECT_EQ(Commands(), (Texts{L"ls A", L"ls a"}));
}

TEST_F(History, LeadingBlanksAreDropped) {
  Add({L"  one ", L"one "});
  EXPECT_EQ(Commands(), (Texts{L"one "}));
}

TEST_F(History, BlanksAloneAreNoCommand) {
  Add({L"", L"   "});
  EXPECT_EQ(Commands(), Texts{});
}

TEST_F(History, StepsGoRoundTheRingOfTheEditedLineAndAllCommands) {
  Add({L"one", L"two"});
  SetLine(L"ha|lf");
  EXPECT_EQ(Older(), L"two|");
  EXPECT_EQ(Older(), L"one|");
  EXPECT_EQ(Older(), L"half|");
  EXPECT_EQ(Older(), L"two|");
}

TEST_F(History, StepsTheOtherWayGoRoundToo) {
  Add({L"one", L"two"});
  SetLine(L"half|");
  EXPECT_EQ(Newer(), L"one|");
  EXPECT_EQ(Newer(), L"two|");
  EXPECT_EQ(Newer(), L"half|");
  EXPECT_EQ(Newer(), L"one|");
}

TEST_F(History, AStepBackUndoesAStep) {
  Add({L"one", L"two"});
  SetLine(L"half|");
  Older();
  EXPECT_EQ(Newer(), L"half|");
  EXPECT_EQ(shell.historyIndex, 0);
}

TEST_F(History, WhileBrowsingTheEditedLineIsTheOneFromBefore) {
  Add({L"one", L"two"});
  SetLine(L"half|");
  Older();
  SetCommandLine(shell, L"changed");
  EXPECT_EQ(Older(), L"one|");
  EXPECT_EQ(Older(), L"half|");
}

TEST_F(History, WithoutCommandsTheKeysDoNothing) {
  SetLine(L"ha|lf");
  EXPECT_EQ(PreviousCommand(shell), kRedrawNothing);
  EXPECT_EQ(NextCommand(shell), kRedrawNothing);
  EXPECT_EQ(Line(), L"ha|lf");
  EXPECT_EQ(shell.historyIndex, 0);
}

TEST_F(History, PrefixSearchFindsTheNewestAndKeepsTheCursor) {
  Add({L"make all", L"ls", L"make clean", L"mount"});
  SetLine(L"ma|");
  EXPECT_TRUE(SearchByPrefix(shell, true));
  EXPECT_EQ(Line(), L"ma|ke clean");
  EXPECT_TRUE(SearchByPrefix(shell, true));
  EXPECT_EQ(Line(), L"ma|ke all");
}

TEST_F(History, PrefixSearchGoesOnRoundTheRing) {
  Add({L"make all", L"make clean"});
  SetLine(L"ma|");
  for (const wchar_t* found : {L"ma|ke clean", L"ma|ke all", L"ma|ke clean"}) {
    EXPECT_TRUE(SearchByPrefix(shell, true));
    EXPECT_EQ(Line(), found);
  }
}

TEST_F(History, PrefixSearchBackwardFindsTheOldestFirst) {
  Add({L"make all", L"ls", L"make clean"});
  SetLine(L"ma|");
  for (const wchar_t* found : {L"ma|ke all", L"ma|ke clean", L"ma|ke all"}) {
    EXPECT_TRUE(SearchByPrefix(shell, false));
    EXPECT_EQ(Line(), found);
  }
}

TEST_F(History, PrefixSearchMindsNoCase) {
  Add({L"Make All"});
  SetLine(L"mAK|");
  EXPECT_TRUE(SearchByPrefix(shell, true));
  EXPECT_EQ(Line(), L"Mak|e All");
}

TEST_F(History, PrefixSearchComparesTheLineUpToTheCursorOnly) {
  Add({L"make all"});
  SetLine(L"ma|nual");
  EXPECT_TRUE(SearchByPrefix(shell, true));
  EXPECT_EQ(Line(), L"ma|ke all");
}

TEST_F(History, ASearchWithoutAMatchStandsWhereItBegan) {
  Add({L"one", L"two", L"three"});
  SetLine(L"half|");
  Older();
  SetLine(L"zz|top");
  EXPECT_FALSE(SearchByPrefix(shell, true));
  EXPECT_EQ(Line(), L"zz|");
  EXPECT_EQ(shell.historyIndex, 1);
}

TEST_F(History, TheOnlyMatchIsFoundAgainByAFullRound) {
  Add({L"one", L"make", L"two"});
  SetLine(L"ma|");
  EXPECT_TRUE(SearchByPrefix(shell, true));
  EXPECT_TRUE(SearchByPrefix(shell, true));
  EXPECT_EQ(Line(), L"ma|ke");
  EXPECT_EQ(shell.historyIndex, 2);
}

TEST_F(History, TheEditedLineIsNoMatchForItsOwnPrefix) {
  Add({L"ls"});
  SetLine(L"mak|e");
  EXPECT_FALSE(SearchByPrefix(shell, true));
  EXPECT_FALSE(SearchByPrefix(shell, false));
}

TEST_F(History, ACommandShorterThanThePrefixIsNoMatch) {
  Add({L"ma"});
  SetLine(L"mak|");
  EXPECT_FALSE(SearchByPrefix(shell, true));
}

TEST_F(History, SearchingAnEmptyHistoryFindsNothing) {
  SetLine(L"ma|");
  EXPECT_FALSE(SearchByPrefix(shell, true));
  EXPECT_FALSE(SearchByPrefix(shell, false));
  EXPECT_EQ(shell.historyIndex, 0);
}

TEST_F(History, AfterASearchTheEditedLineIsInTheRing) {
  Add({L"make all"});
  SetLine(L"ma|nual");
  SearchByPrefix(shell, true);
  EXPECT_EQ(Older(), L"ma|");
}

TEST_F(History, ASearchPastTheEditedLineLeavesItInTheRing) {
  Add({L"one", L"two"});
  SetLine(L"half|");
  Older();
  Older();
  SetLine(L"tw|");
  EXPECT_TRUE(SearchByPrefix(shell, true));
  EXPECT_EQ(Newer(), L"half|");
}
