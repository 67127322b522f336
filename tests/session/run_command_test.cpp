// Commands from the line: where they run, what becomes of those that fail, and
// those that act on the program itself.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "foundation/environment.h"
#include "session/command_fixture.h"

namespace {

using Strings = std::vector<std::string>;

// Leaves the program able to run the next command.
void ExpectNextCommandRuns(Session& s) {
  RunLine(s, "echo alive > '" + s.Path("alive") + "'");
  EXPECT_EQ(s.Content("alive"), "alive\n");
}

int TemporaryFiles(const Session& s) {
  int count = 0;
  for (const auto& file : std::filesystem::directory_iterator(s.Path("temp")))
    count += file.path().filename().string().starts_with("Orvane#");
  return count;
}

}  // namespace

// ---- where a command runs

TEST(RunCommand, StandsInTheActivePanelsDirectory) {
  Session s;
  RunLine(s, "pwd > where");
  EXPECT_EQ(s.Content("left/where"), s.Path("left") + "\n");
  s.Keys("Tab");
  RunLine(s, "pwd > where");
  EXPECT_EQ(s.Content("right/where"), s.Path("right") + "\n");
}

TEST(RunCommand, FromAnInformationPanelStandsInTheOtherOne) {
  Session s;
  s.Keys("Ctrl-L Tab");
  RunLine(s, "pwd > where");
  EXPECT_EQ(s.Content("left/where"), s.Path("left") + "\n");
}

TEST(RunCommand, BlanksAroundItAreDropped) {
  Session s;
  RunLine(s, "  cd ..  ");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path());
}

TEST(RunCommand, BlanksAloneAreNoCommand) {
  Session s({}, {.settings = "Background=echo ! > ran\n"});
  s.Keys("'   ' Enter '   ' Alt-Enter");
  EXPECT_EQ(PromptRow(s), Prompt(s));
  EXPECT_EQ(ConsoleText(s), Strings{});
  EXPECT_FALSE(s.Exists("left/ran"));
}

TEST(RunCommand, AltEnterPutsItIntoTheTemplate) {
  Session s({}, {.settings = "Background=for i in 1 2; do !; done\n"});
  s.Keys(Typed("echo x >> log") + " Alt-Enter");
  EXPECT_EQ(s.Content("left/log"), "x\nx\n");
  s.Keys("Ctrl-E");
  EXPECT_EQ(PromptRow(s), Prompt(s) + "echo x >> log");  // what was typed
}

TEST(RunCommand, ReadsBothPanelsAgainAndKeepsTheCursor) {
  Session s({{"left/a", ""}, {"left/b", ""}});
  s.Keys("Down Down");
  RunLine(s, "touch aa ../right/new; rm a");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "aa", "b"}));
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "new"}));
  EXPECT_EQ(s.Under(kLeftSide), "b");
  EXPECT_EQ(BarRow(s, kLeftSide), 3);
  EXPECT_TRUE(PanelRow(s, kLeftSide, 2).Contains("aa "));
}

TEST(RunCommand, APanelThatIsOffIsReadWhenItComesBack) {
  Session s;
  s.Keys("Ctrl-F2 Ctrl-O");
  RunLine(s, "touch new ../right/other");
  s.Keys("Ctrl-O");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "new"}));
  s.Keys("Ctrl-F2");
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "other"}));
}

TEST(RunCommand, ThatChangesNothingLeavesThePanelsAsTheyWere) {
  Session s({{"left/a", ""}});
  s.Keys("Down");
  const std::string before = s.Screen();
  RunLine(s, "true");
  EXPECT_EQ(s.Screen(), before);
}

TEST(RunCommand, AFileOfAnyNameReachesItAsOneArgument) {
  const std::string name = "-a\x01 b\t'c\n$HOME `d` \\e\x7F;&|<>(){}[]*?#~!^=\xC3\xA9";
  Session s({{"left/" + name, ""}});
  s.Keys("Down");
  RunLine(s, "printf '%s|' x ! > ../out");
  EXPECT_EQ(s.Content("out"), "x|" + name + "|");
}

TEST(RunCommand, ABlankAtTheEndOfANameIsNoneAroundTheCommand) {
  for (const std::string name : {"a ", "b\t", "c\xE3\x80\x80"}) {
    Session s({{"left/" + name, ""}});
    s.Keys("Down 'printf %s >../out ' Ctrl-Enter Enter");
    EXPECT_EQ(s.Content("out"), name);
  }
}

// ---- what can go wrong

TEST(RunCommand, AProgramThatIsNotThereIsToldByTheShell) {
  Session s({}, {.environment = {{"PATH", "/usr/bin:/bin"}}});
  RunLine(s, "no-such-program");
  const Strings text = ConsoleText(s);
  ASSERT_EQ(text.size(), 3u);
  EXPECT_EQ(text[0], Prompt(s) + "no-such-program");
  EXPECT_TRUE(text[1].ends_with("no-such-program: not found")) << text[1];
}

TEST(RunCommand, ADirectoryThatVanishedIsToldAndNothingRuns) {
  Session s;
  ASSERT_EQ(rmdir(s.Path("left").c_str()), 0);
  RunLine(s, "touch " + s.Path("mark"));
  const auto row = s.FindRow("No such file or directory (2)");
  ASSERT_TRUE(row);
  EXPECT_TRUE(s.Row(*row + 1).Contains(s.Path("left")));
  EXPECT_TRUE(IsShown(s, kLeftSide));
  s.Keys("Esc");
  EXPECT_FALSE(s.Exists("mark"));
  EXPECT_EQ(PromptRow(s), Prompt(s));
  s.Keys("Tab");
  ExpectNextCommandRuns(s);
}

TEST(RunCommand, WithoutAShellNothingIsPrintedAndTheProgramComesBack) {
  for (const char* shell : {"", "/no/such/shell", "/etc/passwd"}) {
    Session s({}, {.environment = {{"SHELL", shell}}});
    RunLine(s, "echo text");
    EXPECT_EQ(ConsoleText(s), (Strings{Prompt(s) + "echo text", ""})) << shell;
    RunLine(s, "set SHELL=/bin/sh");
    ExpectNextCommandRuns(s);
  }
}

TEST(RunCommand, AnUnsetShellIsNoneToo) {
  Session s;
  Variables.Set("SHELL", nullptr);
  RunLine(s, "echo text");
  EXPECT_EQ(ConsoleText(s), (Strings{Prompt(s) + "echo text", ""}));
}

TEST(RunCommand, AnEmptyPathFindsNoProgramsButTheShellRuns) {
  Session s;
  RunLine(s, "set PATH=");
  RunLine(s, "ls; echo on");
  const Strings text = ConsoleText(s);
  ASSERT_GE(text.size(), 4u);
  EXPECT_NE(text[1].find("not found"), std::string::npos);
  EXPECT_EQ(text[2], "on");
  ExpectNextCommandRuns(s);
}

TEST(RunCommand, ALineOfNearlySixteenKilobytesRuns) {
  const std::string name(80, 'n');
  Session s({{"left/" + name, ""}});
  s.Keys("Down");
  const size_t length = s.Path("left/" + name).size();
  const size_t count = 16000 / length;
  std::string line = "printf %s ";
  for (size_t i = 0; i < count; ++i) line += "!f";
  RunLine(s, line + " | wc -c > ../count");
  EXPECT_EQ(std::stoul(s.Content("count")), count * length);
}

TEST(RunCommand, ALineThatGrowsBeyondSixteenKilobytesIsToldAndDoesNotRun) {
  Session s({{"left/" + std::string(200, 'n'), ""}});
  s.Keys("Down");
  std::string line = "touch ../mark; echo ";
  for (int i = 0; i < 90; ++i) line += "!f";
  RunLine(s, line);
  EXPECT_TRUE(s.FindRow("The command is too long"));
  s.Keys("Esc");
  EXPECT_FALSE(s.Exists("mark"));
  EXPECT_TRUE(IsShown(s, kLeftSide));
  ExpectNextCommandRuns(s);
}

TEST(RunCommand, OneThatKillsItselfComesBack) {
  Session s;
  RunLine(s, "echo before; kill -9 $$");
  EXPECT_EQ(ConsoleText(s), (Strings{Prompt(s) + "echo before; kill -9 $$", "before", ""}));
  RunLine(s, "kill -15 $$");
  RunLine(s, "kill -11 $$");
  ExpectNextCommandRuns(s);
}

TEST(RunCommand, OneThatClosesItsTerminalIsWaitedFor) {
  Session s;
  RunLine(s, "exec <&- >&- 2>&-; i=0; while [ $i -lt 20000 ]; do i=$((i+1)); done; : > mark");
  EXPECT_TRUE(s.Exists("left/mark"));
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "mark"}));
}

TEST(RunCommand, ChildrenThatHoldTheTerminalAreNotWaitedFor) {
  Session s({}, {.prepare = [](const Sandbox& files) { mkfifo(files.Path("left/pipe").c_str(), 0600); }});
  RunLine(s, "trap '' HUP; (read x < pipe; : > mark) & echo on");
  const Strings text = ConsoleText(s);
  ASSERT_FALSE(text.empty());
  EXPECT_EQ(text[1], "on");
  EXPECT_FALSE(s.Exists("left/mark"));
  RunLine(s, "echo x > pipe");  // lets it go
  s.WaitFor([&] { return s.Exists("left/mark"); });
}

TEST(RunCommand, AFloodEndsWithItsLastRow) {
  Session s;
  RunLine(s, "seq 1 30000");
  const Strings text = ConsoleText(s);
  ASSERT_EQ(text.size(), 23u);
  EXPECT_EQ(text[20], "29999");
  EXPECT_EQ(text[21], "30000");
  EXPECT_EQ(text[22], "");
}

// ---- repeats, questions, temporary files

TEST(RunExpanded, RepeatsForEachTaggedFileWithOnePrompt) {
  Session s({{"left/a", ""}, {"left/b", ""}, {"left/c", ""}, {"left/d", ""}});
  s.Keys("Down Ins Down Ins Ins");
  RunLine(s, "echo +!t+");
  EXPECT_EQ(ConsoleText(s), (Strings{Prompt(s) + "echo +!t+", "+a+", "", "+c+", "", "+d+", ""}));
}

TEST(RunExpanded, TakesTheTaggedFilesInTheOrderOfTheList) {
  Session s({{"left/a", ""}, {"left/b", ""}, {"left/c", ""}});
  s.Keys("End Ins Home Down Ins");
  RunLine(s, "echo !t >> ../log");
  EXPECT_EQ(s.Content("log"), "a\nc\n");
}

TEST(RunExpanded, StopsAtTheFirstFailure) {
  Session s({{"left/a", ""}, {"left/b", ""}, {"left/c", ""}});
  s.Keys("Down Ins Ins Ins");
  RunLine(s, "echo !t >> ../log; test !t !!= b");
  EXPECT_EQ(s.Content("log"), "a\nb\n");
}

TEST(RunExpanded, WithoutTagsRepeatsNothing) {
  Session s({{"left/a", ""}, {"left/b", ""}});
  s.Keys("Down");
  RunLine(s, "echo !t >> ../log");
  EXPECT_EQ(s.Content("log"), "a\n");
}

TEST(RunExpanded, WithoutTheRepeatMacroRunsOnce) {
  Session s({{"left/a", ""}, {"left/b", ""}});
  s.Keys("Down Ins Ins");
  RunLine(s, "echo ! >> ../log");
  EXPECT_EQ(s.Content("log"), "b\n");
}

TEST(RunExpanded, ARepeatThatChangesTheDirectoryEndsWithTheList) {
  Session s({{"left/a/", ""}, {"left/b/", ""}});
  s.Keys("Down Ins Ins");
  RunLine(s, "cd !t");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/a"));
}

TEST(RunExpanded, AFileThatTheFirstRunTakesAwayStaysInTheRepeats) {
  Session s({{"left/a", ""}, {"left/b", ""}});
  s.Keys("Down Ins Ins");
  RunLine(s, "rm -f a b; echo !t >> ../log");
  EXPECT_EQ(s.Content("log"), "a\nb\n");
  EXPECT_EQ(s.Names(kLeftSide), Strings{".."});
}

TEST(RunExpanded, AsksOnceForAllRepeats) {
  Session s({{"left/a", ""}, {"left/b", ""}, {"left/c", ""}});
  s.Keys("Down Ins Ins Ins");
  RunLine(s, "echo !i\"Word\" !t >> ../log");
  ASSERT_TRUE(s.FindRow("Word"));
  s.Keys("'x y' Enter");
  EXPECT_EQ(s.Content("log"), "x y a\nx y b\nx y c\n");
}

TEST(RunExpanded, ACancelledQuestionEndsItSilently) {
  Session s({{"left/a", ""}});
  const std::string before = s.Screen();
  RunLine(s, "touch ../mark; echo !i");
  s.Keys("Esc");
  EXPECT_EQ(s.Screen(), before);
  EXPECT_FALSE(s.Exists("mark"));
}

TEST(RunExpanded, EachRunRemovesTheTemporaryFilesOfTheOneBefore) {
  Session s({{"left/a", ""}, {"left/b", ""}, {"temp/Orvane#99999.0", "of another"}});
  s.Keys("Down Ins Ins");
  RunLine(s, "cat !@ > ../list");
  EXPECT_EQ(s.Content("list"), "a\r\nb\r\n");
  EXPECT_EQ(TemporaryFiles(s), 2);
  RunLine(s, "true");
  EXPECT_EQ(TemporaryFiles(s), 1);
  EXPECT_EQ(s.Content("temp/Orvane#99999.0"), "of another");
}

TEST(RunExpanded, TheExitRemovesTemporaryFiles) {
  Session s({{"left/a", ""}, {"temp/Orvane#99999.0", "of another"}});
  RunLine(s, "true !@");
  ASSERT_EQ(TemporaryFiles(s), 2);
  s.Quit();
  EXPECT_EQ(TemporaryFiles(s), 1);
}

// ---- set

TEST(SetCommand, PutsAVariableIntoTheChildrensEnvironment) {
  Session s;
  RunLine(s, "set  Thing=some words=and more ");
  RunLine(s, "env > ../env");
  EXPECT_NE(s.Content("env").find("\nThing=some words=and more\n"), std::string::npos);
}

TEST(SetCommand, IsTakenFromTheShellOnlyWithAnEqualsSign) {
  Session s;
  RunLine(s, "set one two; echo $2");
  EXPECT_EQ(ConsoleText(s)[1], "two");
}

TEST(SetCommand, LeavesThePanelsOnTheScreen) {
  Session s({{"left/a", ""}});
  const std::string before = s.Screen();
  RunLine(s, "SET A=b");
  EXPECT_EQ(s.Screen(), before);
  EXPECT_STREQ(Variables.Get("A"), "b");
}

TEST(SetCommand, WithoutANameSetsNothing) {
  Session s;
  const int64_t before = Variables.Count();
  RunLine(s, "set =value");
  EXPECT_EQ(Variables.Count(), before);
}

// ---- cd

TEST(CdCommand, TakesThePanelToTheDirectory) {
  Session s({{"left/sub/x", ""}, {"left/z", ""}});
  s.Keys("End");
  RunLine(s, "cd sub");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/sub"));
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "x"}));
  EXPECT_EQ(s.Under(kLeftSide), "..");
  EXPECT_EQ(BarRow(s, kLeftSide), 1);
  EXPECT_EQ(PromptRow(s), s.Path("left/sub") + ">");
  RunLine(s, "pwd > where");
  EXPECT_EQ(s.Content("left/sub/where"), s.Path("left/sub") + "\n");
}

TEST(CdCommand, AloneStaysWhereItIs) {
  Session s({{"left/sub/", ""}});
  const std::string before = s.Screen();
  RunLine(s, "cd");
  EXPECT_EQ(s.Screen(), before);
  EXPECT_EQ(ConsoleText(s), Strings{});  // no shell was asked
}

TEST(CdCommand, KnowsItsShortForms) {
  Session s({{"left/sub/deep/", ""}});
  RunLine(s, "cd sub/deep");
  RunLine(s, "cd..");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/sub"));
  RunLine(s, "cd.");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/sub"));
  RunLine(s, "CD   ..");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  RunLine(s, "cd /");
  EXPECT_EQ(s.PanelPath(kLeftSide), "/");
  RunLine(s, "cd " + s.Path("right") + "/../left/");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  RunLine(s, "cd\\");
  EXPECT_EQ(s.PanelPath(kLeftSide), "/");
}

TEST(CdCommand, ReadsQuotedNamesAndBackslashesBetweenThem) {
  Session s({{"left/my dir/sub/", ""}});
  RunLine(s, "cd my\\ dir");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/my dir"));
  RunLine(s, "cd ..");
  RunLine(s, "cd my\\ dir\\\\sub");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/my dir/sub"));
}

TEST(CdCommand, ExpandsMacrosAndVariables) {
  Session s({{"left/sub/", ""}});
  s.Keys("Down");
  RunLine(s, "cd !");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/sub"));
  RunLine(s, "cd $HOME");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("home"));
}

TEST(CdCommand, ADirectoryThatIsNotThereIsTold) {
  Session s({{"left/file", ""}});
  for (const char* name : {"nowhere", "file", "file && true"}) {
    RunLine(s, std::string("cd ") + name);
    const auto row = s.FindRow("Invalid directory");
    ASSERT_TRUE(row);
    EXPECT_TRUE(s.Row(*row + 1).Contains(s.Path("left/") + name));
    s.Keys("Esc");
    EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
    EXPECT_TRUE(IsShown(s, kLeftSide));
  }
}

TEST(CdCommand, APathTooLongIsTold) {
  Session s;
  RunLine(s, "cd " + std::string(500, 'x'));
  EXPECT_TRUE(s.FindRow("Invalid path"));
  EXPECT_FALSE(s.FindRow("Invalid directory"));
  s.Keys("Esc");
  EXPECT_FALSE(s.FindRow("Invalid directory"));
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
}

TEST(CdCommand, LongerWordsAreOtherCommands) {
  Session s({{"left/x/", ""}});
  RunLine(s, "cdx");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  EXPECT_NE(ConsoleText(s)[1].find("cdx"), std::string::npos);
}

TEST(CdCommand, WorksWithThePanelsOff) {
  Session s({{"left/sub/x", ""}});
  s.Keys("Ctrl-O");
  RunLine(s, "cd sub");
  EXPECT_EQ(PromptRow(s), s.Path("left/sub") + ">");
  s.Keys("Ctrl-O");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "x"}));
}

TEST(CdCommand, FromAnInformationPanelMovesTheOtherOne) {
  Session s({{"left/sub/", ""}});
  s.Keys("Ctrl-L Tab");
  RunLine(s, "cd sub");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/sub"));
  EXPECT_EQ(s.PanelPath(kRightSide), s.Path("right"));
}

TEST(CdCommand, AVanishedPanelCanBeLeft) {
  Session s({{"left/sub/", ""}});
  s.Keys("Down Enter");
  std::filesystem::remove_all(s.Path("left"));
  RunLine(s, "cd " + s.Path("right"));
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("right"));
}

// ---- vcd

namespace {

// The outside program leaves its arguments, and prints what the test has put by.
class VcdCommand : public testing::Test {
 protected:
  Session& Start(const std::string& output) {
    const std::string script =
        "#!/bin/sh\nprintf '<%s>' \"$@\" > \"$HOME/arguments\"\ncat \"$HOME/output\"\n";
    session.emplace(FileList{{"bin/vcdpgm.exe", script}, {"home/output", output}},
                    SessionSetup{.prepare = [](const Sandbox& files) {
                      chmod(files.Path("bin/vcdpgm.exe").c_str(), 0755);
                    }});
    RunLine(*session, "set PATH=" + session->Path("bin") + ":/usr/bin:/bin");
    return *session;
  }

  std::optional<Session> session;
};

const char kScratch[] = "temp/orvanecd.$$$";

}  // namespace

TEST_F(VcdCommand, TakesThePathFromTheQuotesOfTheSecondLine) {
  Session& s = Start("c:\ncd \"home/u\"\n");
  RunLine(s, "vcd some place");
  EXPECT_EQ(s.Content("home/arguments"), "<some><place>");
  EXPECT_EQ(s.PanelPath(kLeftSide), "C:\\home/u");
  EXPECT_EQ(PromptRow(s), "C:\\home/u>");
  EXPECT_EQ(s.Names(kLeftSide), Strings{".."});  // the panel is read
  EXPECT_FALSE(s.Exists(kScratch));
  RunLine(s, "cd " + s.Path("left"));
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
}

TEST_F(VcdCommand, AShortLineChoosesNothing) {
  for (const char* output : {"", "c\n", "\n\"x\"\n"}) {
    Session& s = Start(output);
    s.Write("left/new", "");
    RunLine(s, "vcd");
    EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
    EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "new"}));
    EXPECT_FALSE(s.Exists(kScratch));
    session.reset();
  }
}

TEST_F(VcdCommand, ASecondLineWithoutQuotesLeavesTheDrive) {
  for (const char* output : {"xy", "xy\n", "xy\nplain\n", "xy\n\""}) {
    Session& s = Start(output);
    RunLine(s, "vcd");
    EXPECT_EQ(s.PanelPath(kLeftSide), "X:\\");
    session.reset();
  }
}

TEST_F(VcdCommand, LinesWithoutEndAreCut) {
  Session& s = Start("c:\n\"" + std::string(100000, 'x') + "\"\n");
  RunLine(s, "vcd");
  EXPECT_EQ(s.PanelPath(kLeftSide).size(), 511u);
  s.Keys("Esc Tab");  // the panel could not be read
  ExpectNextCommandRuns(s);
}

TEST_F(VcdCommand, WhatAnEarlierRunLeftIsNotRead) {
  Session& s = Start("c:\n\"home\"\n");
  RunLine(s, "set PATH=/usr/bin:/bin");
  s.Write(kScratch, "c:\n\"home\"\n");
  RunLine(s, "vcd");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  EXPECT_NE(ConsoleText(s)[1].find("vcdpgm.exe"), std::string::npos);  // the shell's message
  EXPECT_FALSE(s.Exists(kScratch));
}

TEST_F(VcdCommand, AScratchFileThatCannotBeRemovedIsToldAndNothingRuns) {
  Session& s = Start("c:\n\"home\"\n");
  std::filesystem::create_directories(s.Path(std::string(kScratch) + "/inside"));
  RunLine(s, "vcd");
  EXPECT_TRUE(s.FindRow("Is a directory (21)"));
  s.Keys("Esc");
  EXPECT_FALSE(s.Exists("home/arguments"));
}

TEST_F(VcdCommand, IsNoLongerWord) {
  Session& s = Start("c:\n\"home\"\n");
  RunLine(s, "vcdx");
  EXPECT_FALSE(s.Exists("home/arguments"));
  RunLine(s, "VCD\\a");
  EXPECT_EQ(s.Content("home/arguments"), "<a>");
}
