// What the screen shows before, during and after a command.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>

#include "config/values/options.h"
#include "console/console.h"
#include "foundation/environment.h"
#include "foundation/paths.h"
#include "session/command_fixture.h"
#include "shell/clock.h"
#include "shell/run_command.h"
#include "shell/screen.h"
#include "support/console_fixture.h"
#include "support/hand_made_panels.h"

namespace {

using Strings = std::vector<std::string>;

CellRect SelectableRegion() {
  CellRect region;
  Console->GetSelectableRegion(region);
  return region;
}

const CellRect kWholeScreen = {0, 0, 79, 24};

// A command that waits until the test has looked at the screen.
class DuringACommand : public testing::Test {
 protected:
  Session& Start(const std::string& settings = "", const std::string& keys = "") {
    session.emplace(FileList{}, SessionSetup{.settings = settings, .prepare = [](const Sandbox& files) {
                                               mkfifo(files.Path("pipe").c_str(), 0600);
                                             }});
    session->Keys(keys);
    typist = std::thread([this] { RunLine(*session, "printf working; read x < ../pipe"); });
    session->WaitFor([this] { return TrimmedRow(*session, 24) == "working"; });
    return *session;
  }

  void End() {
    std::ofstream(session->Path("pipe")) << "\n";
    typist.join();
  }

  std::optional<Session> session;
  std::thread typist;
};

}  // namespace

TEST_F(DuringACommand, ThePanelsAndTheClockAreOffAndAllTextCanBeSelected) {
  Session& s = Start("Clock=on\n");
  const std::string prompt = s.Path("left") + ">printf working; read x < ../pipe";
  EXPECT_EQ(TrimmedRow(s, 23), prompt);
  for (int y = 0; y < 23; ++y) EXPECT_EQ(TrimmedRow(s, y), "") << y;
  EXPECT_EQ(SelectableRegion(), kWholeScreen);
  EXPECT_EQ(s.Cursor(), std::pair(7, 24));
  EXPECT_GT(Console->CursorSize(), 0);
  End();
  EXPECT_TRUE(IsShown(s, kLeftSide));
  EXPECT_TRUE(IsShown(s, kRightSide));
  EXPECT_NE(s.Character(79, 0), U'╗');  // the clock stands there
  EXPECT_EQ(SelectableRegion().right, -1);
  EXPECT_TRUE(s.Row(24).StartsWith("1Help"));
}

TEST_F(DuringACommand, TheRegionOfHiddenPanelsComesBack) {
  Session& s = Start("", "Ctrl-O");
  EXPECT_EQ(SelectableRegion(), kWholeScreen);
  End();
  EXPECT_EQ(SelectableRegion(), (CellRect{0, 0, 79, 22}));
  EXPECT_FALSE(IsShown(s, kLeftSide));
  EXPECT_FALSE(IsShown(s, kRightSide));
}

TEST_F(DuringACommand, APanelThatWasOffStaysOff) {
  Session& s = Start("", "Ctrl-F2");
  EXPECT_FALSE(IsShown(s, kLeftSide));
  End();
  EXPECT_TRUE(IsShown(s, kLeftSide));
  EXPECT_FALSE(IsShown(s, kRightSide));
}

TEST(CommandScreen, OutputStandsUnderItsPromptAboveTheCommandLine) {
  Session s;
  RunLine(s, "echo one; echo two");
  EXPECT_EQ(ConsoleText(s), (Strings{Prompt(s) + "echo one; echo two", "one", "two", ""}));
  EXPECT_EQ(s.Cursor(), std::pair(static_cast<int>(Prompt(s).size()), 23));
}

TEST(CommandScreen, ALineWithoutAnEndKeepsItsRow) {
  Session s;
  RunLine(s, "printf abc");
  EXPECT_EQ(ConsoleText(s), (Strings{Prompt(s) + "printf abc", "abc"}));
}

TEST(CommandScreen, CommandsFollowEachOther) {
  Session s;
  RunLine(s, "echo one");
  RunLine(s, "true");
  RunLine(s, "echo two");
  const std::string prompt = Prompt(s);
  EXPECT_EQ(ConsoleText(s),
            (Strings{prompt + "echo one", "one", "", prompt + "true", "", prompt + "echo two", "two", ""}));
}

TEST(CommandScreen, UnderShortPanelsTheOutputIsInView) {
  Session s({}, {.settings = "FullScreen=off\n"});
  RunLine(s, "echo one");
  EXPECT_EQ(TrimmedRow(s, 20), Prompt(s) + "echo one");
  EXPECT_EQ(TrimmedRow(s, 21), "one");
  EXPECT_EQ(TrimmedRow(s, 22), "");
  EXPECT_EQ(TrimmedRow(s, 23), Prompt(s));
  EXPECT_TRUE(IsShown(s, kLeftSide));
}

TEST(CommandScreen, WithThePanelsOffTheOutputStaysInView) {
  Session s;
  s.Keys("Ctrl-O");
  RunLine(s, "echo one");
  EXPECT_EQ(RowsOnScreen(s), (Strings{Prompt(s) + "echo one", "one", ""}));
  EXPECT_EQ(PromptRow(s), Prompt(s));
  EXPECT_TRUE(s.Row(24).StartsWith("1Help"));
}

TEST(CommandScreen, ThePromptIsInTheColourOfTheCommandLine) {
  Session s;
  Options::Colours[kColourCommandLine] = 0x1E;
  RunLine(s, "true");
  s.Keys("Ctrl-O");
  EXPECT_EQ(s.Attribute(0, 21), 0x1E);
  EXPECT_EQ(s.Attribute(79, 21), 0x1E);
  EXPECT_EQ(s.Attribute(40, 22), 0x1E);  // a line that came in by scrolling
}

TEST(CommandScreen, WhatScrollsOffGoesUnderThePanelsToo) {
  Session s;
  RunLine(s, "seq 100");
  const Strings text = ConsoleText(s);
  ASSERT_EQ(text.size(), 23u);
  EXPECT_EQ(text[0], "79");
  EXPECT_EQ(text[21], "100");
}

TEST(CommandScreen, AFullScreenProgramLeavesThePanelsIntact) {
  Session s({{"left/a", ""}});
  const std::string before = s.Screen();
  RunLine(s, "printf '\\033[2J\\033[31;44mall over\\033[5;5H\\033[?25l\\033[3;7r'");
  EXPECT_EQ(s.Screen(), before);
  EXPECT_EQ(s.Cursor(), std::pair(static_cast<int>(Prompt(s).size()), 23));
  RunLine(s, "echo one");
  s.Keys("Ctrl-O");
  EXPECT_EQ(TrimmedRow(s, 21), "one");
  EXPECT_EQ(s.Attribute(0, 21), 0x07);
}

TEST(CommandScreen, ADetachedCommandReturnsAtOnce) {
  Session s({}, {.prepare = [](const Sandbox& files) { mkfifo(files.Path("pipe").c_str(), 0600); }});
  RunLine(s, "cat ../pipe > ../out &");
  EXPECT_EQ(ConsoleText(s), (Strings{Prompt(s) + "cat ../pipe > ../out &", ""}));
  RunLine(s, "echo done > ../pipe");
  s.WaitFor([&] { return s.Content("out") == "done\n"; });
}

TEST(CommandScreen, AFormOfTheCommandForcesTheTerminal) {
  Session s;
  RunLine(s, "#echo one &");
  const Strings text = ConsoleText(s);
  EXPECT_EQ(text[0], Prompt(s) + "#echo one &");
}

namespace {

// RunCommand called by itself, over panels in memory.
class CommandCall : public ConsoleFixture, protected HandMadePanels {
 protected:
  CommandCall() {
    SetSize(38, 10);
    Variables.Load();
    for (TPanel& p : panels) CopyText(p.path, CurrentDirectory().Text());
    Console->SetCursor(0, 23);
  }
  ~CommandCall() override {
    RemoveClock();
    for (TPanel& p : panels) p.window.reset();
  }

  int Call(const wchar_t* command, int flags = kRunPlain, const wchar_t* prompt = L"prompt>") {
    return RunCommand(command, 0, prompt, flags);
  }

  std::string RowText(int y) const { return ConsoleFixture::Row(y).Trimmed(); }
};

}  // namespace

TEST_F(CommandCall, ReturnsTheExitCode) {
  EXPECT_EQ(Call(L"true"), 0);
  EXPECT_EQ(Call(L"exit 3"), 3);
  EXPECT_EQ(Call(L"exit 255"), 255);
  EXPECT_EQ(Call(L"no-such-program"), 127);
}

TEST_F(CommandCall, ASignalReturnsMinusOne) { EXPECT_EQ(Call(L"kill -9 $$"), -1); }

TEST_F(CommandCall, WhatIsDoneInsideReturnsZeroOrMinusOne) {
  EXPECT_EQ(Call(L"set NAME=value"), 0);
  EXPECT_EQ(Call(L"cd /"), 0);
  EXPECT_EQ(ToUtf8(panel.path).Text(), std::string("/"));
  Keys("Enter");
  EXPECT_EQ(Call(L"cd /no/such/directory"), -1);
  EXPECT_EQ(Call(L"cd ."), 0);
}

TEST_F(CommandCall, ADirectoryThatIsNotThereReturnsMinusOneAndRunsNothing) {
  CopyText(panel.path, L"/no/such/directory");
  Then([&] { EXPECT_NE(Screen().find("/no/such/directory"), std::string::npos); });
  Keys("Enter");
  const auto before = Snapshot();
  EXPECT_EQ(Call(L"echo text"), -1);
  EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(CommandCall, OneLineFeedFollowsOrTwo) {
  Call(L"printf one");
  EXPECT_EQ(RowText(23), "one");
  EXPECT_EQ(RowText(24), "");
  Call(L"printf two", kRunTwoFeeds);
  EXPECT_EQ(RowText(22), "two");
  EXPECT_EQ(RowText(23), "");
  EXPECT_EQ(Console->CursorSize(), 0);
}

TEST_F(CommandCall, TheOldRowsOfCommandLineAndKeysAreNotKept) {
  Console->PutString(0, 23, Westring::Replicate(L'x', 80).Text(), 0x07);
  Console->PutString(0, 24, Westring::Replicate(L'y', 80).Text(), 0x07);
  Call(L"true");
  EXPECT_EQ(RowText(22), "prompt>");
  EXPECT_EQ(RowText(23), "");
  EXPECT_EQ(RowText(24), "");
}

TEST_F(CommandCall, APromptWiderThanTheScreenIsCut) {
  Call(L"true", kRunPlain, Westring::Replicate(L'p', 200).Text());
  EXPECT_EQ(RowText(22), std::string(80, 'p'));
  EXPECT_EQ(RowText(23), "");
}

TEST_F(CommandCall, BothPanelsAreOwedARead) {
  Call(L"true");
  EXPECT_TRUE(panels[0].readPending);
  EXPECT_TRUE(panels[1].readPending);
}

TEST_F(CommandCall, ThePanelsGoOffTheScreen) {
  for (int side = 0; side < 2; ++side) MakePanelWindow(panels[side], side);
  Call(L"true");
  EXPECT_TRUE(panels[0].window->IsHidden());
  EXPECT_TRUE(panels[1].window->IsHidden());
  EXPECT_TRUE(panels[0].visible);
}

TEST_F(CommandCall, InPlaceThePanelsAndTheDirectoryStay) {
  for (int side = 0; side < 2; ++side) MakePanelWindow(panels[side], side);
  CopyText(panel.path, L"/no/such/directory");
  EXPECT_EQ(Call(L"true", kRunInPlace), 0);
  EXPECT_FALSE(panels[0].window->IsHidden());
  EXPECT_FALSE(panels[1].window->IsHidden());
}
