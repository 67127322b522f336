// The boxes of earlier commands and directories. Commands are those that the
// program runs itself, so that nothing waits for a child.
#include <gtest/gtest.h>

#include <filesystem>

#include "foundation/environment.h"
#include "panels/navigation.h"
#include "session/main_screen.h"
#include "shell/history.h"

namespace {

using Strings = std::vector<std::string>;

constexpr char kFile[] = "home/.orvane/orvane.hst";

// A session whose history file holds these commands.
FileList WithCommands(const Strings& commands, FileList files = {}) {
  std::string content;
  for (const std::string& command : commands) content += command + "\r\n";
  files.emplace_back(kFile, content);
  return files;
}

Strings Commands() {
  Strings commands;
  for (int i = 0; i < CommandHistory.Count(); ++i) commands.push_back(ToUtf8(*CommandHistory.Peek(i)).Text());
  return commands;
}

bool IsOpen(const Session& s) { return s.FindRow(" History ═").has_value(); }
bool DirectoriesAreOpen(const Session& s) { return s.FindRow(" Directory History ").has_value(); }

std::string LineOf(const Session& s) { return PromptRow(s).substr(PromptRow(s).find('>') + 1); }

std::string Variable(const char* name) {
  const char* value = Variables.Get(name);
  return value ? value : "(none)";
}

// The frame around a title.
struct Box {
  int left = 0, top = -1, right = 0, bottom = 0;
  int ListWidth() const { return right - left - 1; }
  int ListHeight() const { return bottom - top - 1; }
};

Box BoxOf(const Session& s, const std::string& title) {
  Box box;
  box.top = s.FindRow(title).value_or(-1);
  if (box.top < 0) return box;
  box.left = box.right = s.Columns() / 2;
  while (box.left > 0 && s.Character(box.left, box.top) != U'╔') --box.left;
  while (box.right < s.Columns() - 1 && s.Character(box.right, box.top) != U'╗') ++box.right;
  box.bottom = box.top;
  while (box.bottom < s.Rows() - 1 && s.Character(box.left, box.bottom) != U'╚') ++box.bottom;
  return box;
}

Strings Rows(const Session& s, const Box& box) {
  Strings rows;
  for (int y = box.top + 1; y < box.bottom; ++y)
    rows.push_back(s.Text(box.left + 1, y, box.ListWidth()).Trimmed());
  return rows;
}

// The list's row with the cursor.
std::string Selected(const Session& s, const Box& box) {
  for (int y = box.top + 1; y < box.bottom; ++y)
    if (s.Attribute(box.left + 1, y) == 0x0F) return s.Text(box.left + 1, y, box.ListWidth()).Trimmed();
  return "(none)";
}
std::string Selected(const Session& s) { return Selected(s, BoxOf(s, " History ")); }

bool NotFoundIsTold(const Session& s) { return s.FindRow("String not found").has_value(); }

const Strings kFour = {"set ONE=1", "set TWO=2", "echo set", "set THREE=3"};

}  // namespace

// ---- the box of commands

TEST(CommandHistory, AnEmptyOneOpensNothing) {
  Session s;
  const std::string before = s.Screen();
  s.Keys("'text' Alt-F8 'more'");
  EXPECT_FALSE(IsOpen(s));
  EXPECT_EQ(LineOf(s), "textmore");
  s.Keys("Esc");
  EXPECT_EQ(s.Screen(), before);
}

TEST(CommandHistory, ShortCommandsStandInAListOfTenWithTheNewestSelected) {
  Session s(WithCommands({"a", "b", "c"}));
  s.Keys("Alt-F8");
  // 12 by 5 cells at (34, 6).
  EXPECT_EQ(s.Text(34, 6, 12), "╔ History ═╗");
  EXPECT_EQ(s.Text(34, 7, 12), "║a         ║");
  EXPECT_EQ(s.Text(34, 8, 12), "║b         ║");
  EXPECT_EQ(s.Text(34, 9, 12), "║c         ║");
  EXPECT_EQ(s.Text(34, 10, 12), "╚══════════╝");
  EXPECT_EQ(s.Attribute(34, 6), 0x3F);
  EXPECT_EQ(s.Attribute(35, 7), 0x3F);
  EXPECT_EQ(s.Attribute(35, 9), 0x0F);
  EXPECT_EQ(s.Attribute(44, 9), 0x0F);
}

TEST(CommandHistory, TheListIsTwoWiderThanTheLongestCommandRoundedUpToEven) {
  for (const auto& [length, width] :
       {std::pair{8, 10}, {9, 12}, {10, 12}, {11, 14}, {70, 72}, {71, 73}, {300, 73}}) {
    Session s(WithCommands({"x", std::string(static_cast<size_t>(length), 'y')}));
    s.Keys("Alt-F8");
    EXPECT_EQ(BoxOf(s, " History ").ListWidth(), width) << length;
  }
}

TEST(CommandHistory, TheListIsAsHighAsTheHistoryAndLeavesFiveRows) {
  for (const auto& [count, height] : {std::pair{1, 1}, {20, 20}, {21, 20}, {300, 20}}) {
    Strings commands;
    for (int i = 0; i < count; ++i) commands.push_back("command " + std::to_string(i));
    Session s(WithCommands(commands));
    s.Keys("Alt-F8");
    const Box box = BoxOf(s, " History ");
    EXPECT_EQ(box.ListHeight(), height) << count;
    EXPECT_EQ(Selected(s), commands.back());
    s.Keys("Home");
    EXPECT_EQ(Selected(s), "command 0");
  }
}

TEST(CommandHistory, EnterRunsTheSelectedOneAndLeavesTheLine) {
  Session s(WithCommands(kFour));
  s.Keys("'half' Alt-F8 Up Up Enter");
  EXPECT_FALSE(IsOpen(s));
  EXPECT_EQ(Variable("TWO"), "2");
  EXPECT_EQ(Variable("THREE"), "(none)");
  EXPECT_EQ(Commands(), (Strings{"set ONE=1", "echo set", "set THREE=3", "set TWO=2"}));
  EXPECT_TRUE(s.Content(kFile).ends_with("set THREE=3\r\nset TWO=2\r\n"));
  EXPECT_EQ(LineOf(s), "half");
  s.Keys("Ctrl-e");
  EXPECT_EQ(LineOf(s), "set TWO=2");
}

TEST(CommandHistory, AltEnterRunsItByTheTemplate) {
  Session s(WithCommands(kFour), {.settings = "Background=set APART=(!)\n"});
  s.Keys("Alt-F8 Home Alt-Enter");
  EXPECT_FALSE(IsOpen(s));
  EXPECT_EQ(Variable("APART"), "(set ONE=1)");
  EXPECT_EQ(Variable("ONE"), "(none)");
  EXPECT_EQ(Commands().back(), "set ONE=1");
}

TEST(CommandHistory, TheCommandActsOnTheActiveSide) {
  Session s(WithCommands({"cd deep"}, {{"right/deep/x", ""}}));
  s.Keys("Tab Alt-F8 Enter");
  EXPECT_EQ(s.PanelPath(kRightSide), s.Path("right/deep"));
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
}

TEST(CommandHistory, ADoubleClickRunsIt) {
  Session s(WithCommands(kFour));
  s.Keys("Alt-F8");
  const Box box = BoxOf(s, " History ");
  s.Click(box.left + 2, box.top + 1);
  EXPECT_TRUE(IsOpen(s));
  EXPECT_EQ(Selected(s), "set ONE=1");
  s.Mouse(kMouseLeftDouble, box.left + 2, box.top + 1);
  EXPECT_FALSE(IsOpen(s));
  EXPECT_EQ(Variable("ONE"), "1");
}

TEST(CommandHistory, CtrlEnterPutsItInPlaceOfTheLineWithTheCursorAtItsEnd) {
  Session s(WithCommands(kFour));
  s.Keys("'half' Home Alt-F8 Home Ctrl-Enter");
  EXPECT_FALSE(IsOpen(s));
  EXPECT_EQ(LineOf(s), "set ONE=1");
  EXPECT_EQ(s.Cursor().first, static_cast<int>(PromptRow(s).size()));
  EXPECT_EQ(Variable("ONE"), "(none)");
  EXPECT_EQ(Commands(), kFour);
  s.Keys("'0' Ctrl-e");
  EXPECT_EQ(LineOf(s), "set THREE=3");
  s.Keys("Ctrl-x");
  EXPECT_EQ(LineOf(s), "set ONE=10");
}

TEST(CommandHistory, EscLeavesEverythingAsItWas) {
  Session s(WithCommands(kFour));
  s.Keys("'half'");
  const std::string before = s.Screen();
  s.Keys("Alt-F8 Up Esc");
  EXPECT_EQ(s.Screen(), before);
  EXPECT_EQ(Commands(), kFour);
}

TEST(CommandHistory, TypedLettersSearchTheList) {
  Session s(WithCommands(kFour));
  s.Keys("Alt-F8 'ECHO'");
  EXPECT_EQ(Selected(s), "echo set");
  EXPECT_EQ(LineOf(s), "");
}

TEST(CommandHistory, OtherKeysDoNothing) {
  Session s(WithCommands(kFour));
  s.Keys("Alt-F8 F3 Ctrl-o Ins Tab Alt-x Ctrl-Del Alt-F8");
  EXPECT_TRUE(IsOpen(s));
  EXPECT_EQ(Selected(s), "set THREE=3");
}

TEST(CommandHistory, F1ShowsItsHelpAndComesBack) {
  Session s(WithCommands(kFour));
  s.Keys("Alt-F8 Up F1");
  EXPECT_TRUE(s.FindRow(" Esc to Exit ").has_value());
  s.Keys("Esc");
  EXPECT_TRUE(IsOpen(s));
  EXPECT_EQ(Selected(s), "echo set");
}

// ---- searching

TEST(CommandHistorySearch, F7AsksInABoxOfSixtyByFour) {
  Session s(WithCommands(kFour));
  s.Keys("Alt-F8 F7");
  const int label = s.FindRow("║ Search:").value_or(-1);
  ASSERT_GT(label, 0);
  // 60 by 4 cells, 10 columns from the left; the field has 55.
  EXPECT_EQ(s.Character(10, label - 1), U'╔');
  EXPECT_EQ(s.Character(69, label - 1), U'╗');
  EXPECT_EQ(s.Character(10, label + 2), U'╚');
  EXPECT_EQ(s.Character(69, label + 2), U'╝');
  EXPECT_EQ(s.Attribute(11, label), 0x70);
  EXPECT_EQ(s.Attribute(11, label + 1), 0x70);
  EXPECT_EQ(s.Attribute(12, label + 1), 0x30);
  EXPECT_EQ(s.Attribute(66, label + 1), 0x30);
  EXPECT_EQ(s.Attribute(67, label + 1), 0x70);
}

TEST(CommandHistorySearch, F7GoesUpwardFromTheSelectedLineBySubstring) {
  Session s(WithCommands({"make all", "ls", "run make", "make", "x"}));
  s.Keys("Alt-F8 F7 'ake' Enter");
  EXPECT_EQ(Selected(s), "make");
  s.Keys("F7 Enter");
  EXPECT_EQ(Selected(s), "make") << "the selected line is the first asked";
  s.Keys("F7 'make a' Enter");
  EXPECT_EQ(Selected(s), "make all");
  s.Keys("F7 'run' Enter");
  EXPECT_TRUE(NotFoundIsTold(s)) << "it stands further down";
  s.Keys("Enter");
  EXPECT_EQ(Selected(s), "make all");
}

TEST(CommandHistorySearch, LettersCountAsTheyAre) {
  Session s(WithCommands({"Make", "x"}));
  s.Keys("Alt-F8 F7 'make' Enter");
  EXPECT_TRUE(NotFoundIsTold(s));
}

TEST(CommandHistorySearch, AltF7GoesOnWithTheNextShiftF7WithThePreviousLine) {
  Session s(WithCommands({"a1", "b", "a2", "b", "c", "a3"}));
  s.Keys("Alt-F8 F7 'a' Enter");
  EXPECT_EQ(Selected(s), "a3");
  s.Keys("Shift-F7");
  EXPECT_EQ(Selected(s), "a2");
  s.Keys("Shift-F7");
  EXPECT_EQ(Selected(s), "a1");
  s.Keys("Shift-F7");
  EXPECT_TRUE(NotFoundIsTold(s));
  s.Keys("Esc");
  EXPECT_EQ(Selected(s), "a1");
  s.Keys("Alt-F7 Alt-F7");
  EXPECT_EQ(Selected(s), "a3");
  s.Keys("Alt-F7");
  EXPECT_TRUE(NotFoundIsTold(s));
}

TEST(CommandHistorySearch, TheTextIsKeptForTheNextTimeUnlessEscLeftTheBox) {
  Session s(WithCommands({"a1", "b1", "a2", "b2"}));
  s.Keys("Alt-F8 F7 'a' Enter F7 'b' Esc");
  EXPECT_TRUE(IsOpen(s));
  EXPECT_EQ(Selected(s), "a2");
  s.Keys("Esc Alt-F8 Shift-F7");
  EXPECT_EQ(Selected(s), "a2");
  s.Keys("F7");
  const int label = s.FindRow("║ Search:").value_or(-1);
  ASSERT_GE(label, 0);
  EXPECT_EQ(s.Text(12, label + 1, 55).Trimmed(), "a");
}

TEST(CommandHistorySearch, NoTextIsNotSearchedFor) {
  Session s(WithCommands({"a", "b", "c"}));
  s.Keys("Alt-F8 F7 ' ' Enter");
  EXPECT_TRUE(NotFoundIsTold(s));
  s.Keys("Enter");
  EXPECT_EQ(Selected(s), "c");
  s.Keys("F7 Del Enter");
  EXPECT_EQ(Selected(s), "c");
  s.Keys("Shift-F7");
  EXPECT_TRUE(NotFoundIsTold(s));
  s.Keys("Enter");
  EXPECT_EQ(Selected(s), "c");
}

TEST(CommandHistorySearch, ALongListScrollsToTheLineFound) {
  Strings commands = {"needle"};
  for (int i = 0; i < 100; ++i) commands.push_back("hay " + std::to_string(i));
  Session s(WithCommands(commands));
  s.Keys("Alt-F8 F7 'eedl' Enter");
  EXPECT_EQ(Selected(s), "needle");
  EXPECT_EQ(Rows(s, BoxOf(s, " History "))[1], "hay 0");
}

// ---- removing

TEST(CommandHistory, DelAsksAndRemovesFromFileAndList) {
  Session s(WithCommands({"one",
                          "5\x19"
                          "entry",
                          "two", "three", "two"}));
  s.Keys("Alt-F8 Up Up");
  ASSERT_EQ(Selected(s), "one");
  s.Keys("Down Down Del");
  EXPECT_TRUE(s.FindRow("Remove command from history?").has_value());
  s.Keys("Esc");
  EXPECT_TRUE(IsOpen(s));
  EXPECT_EQ(Commands(), (Strings{"one", "three", "two"}));
  s.Keys("Del Enter");
  EXPECT_EQ(Rows(s, BoxOf(s, " History ")), (Strings{"one", "three"}));
  EXPECT_EQ(Selected(s), "three");
  EXPECT_EQ(Commands(), (Strings{"one", "three"}));
  EXPECT_EQ(s.Content(kFile),
            "one\r\n5\x19"
            "entry\r\nthree\r\n");
  s.Keys("Home Del y");
  EXPECT_EQ(Rows(s, BoxOf(s, " History ")), Strings{"three"});
  EXPECT_EQ(Selected(s), "three");
}

TEST(CommandHistory, RemovingTheLastOneClosesTheBox) {
  Session s(WithCommands({"one"}));
  const std::string before = s.Screen();
  s.Keys("Alt-F8 Del Enter");
  EXPECT_FALSE(IsOpen(s));
  EXPECT_EQ(s.Screen(), before);
  EXPECT_EQ(Commands(), Strings{});
  EXPECT_EQ(s.Content(kFile), "");
  s.Keys("Alt-F8");
  EXPECT_FALSE(IsOpen(s));
}

TEST(CommandHistory, BrowsingTheLineGoesOnWhenCommandsWereRemoved) {
  Session s(WithCommands({"one", "two", "three"}));
  s.Keys("Ctrl-e Ctrl-e Ctrl-e Alt-F8 Del Enter Del Enter Esc Ctrl-e Ctrl-e");
  EXPECT_EQ(LineOf(s), "one");
}

// ---- directories

TEST(DirectoryHistory, AnEmptyOneOpensNothing) {
  Session s;
  DirectoryHistory.Clear();
  const std::string before = s.Screen();
  s.Keys("Alt-\\");
  EXPECT_EQ(s.Screen(), before);
}

TEST(DirectoryHistory, AltBackslashAndAltShiftF8OpenItWithTheNewestSelected) {
  Session s({{"left/", ""}});
  DirectoryHistory.Clear();
  for (const wchar_t* path : {L"/", L"/usr", L"/tmp"}) AddDirectoryHistory(path);
  for (const char* key : {"Alt-\\", "Alt-Shift-F8"}) {
    s.Keys(key);
    // 23 by 5 cells at (28, 6).
    EXPECT_EQ(s.Text(28, 6, 23), "╔═ Directory History ═╗") << key;
    EXPECT_EQ(s.Text(28, 7, 23), "║/                    ║");
    EXPECT_EQ(s.Text(28, 9, 23), "║/tmp                 ║");
    EXPECT_EQ(s.Text(28, 10, 23), "╚═════════════════════╝");
    EXPECT_EQ(s.Attribute(28, 6), 0x3F);
    EXPECT_EQ(s.Attribute(29, 7), 0x3F);
    EXPECT_EQ(s.Attribute(29, 9), 0x0F);
    EXPECT_EQ(s.Attribute(49, 9), 0x0F);
    s.Keys("Esc");
    EXPECT_FALSE(DirectoriesAreOpen(s));
    EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  }
}

TEST(DirectoryHistory, TheListIsAsWideAsTheLongestPathWithinTheScreen) {
  Session s;
  for (const auto& [length, width] : {std::pair{20, 21}, {22, 22}, {73, 73}, {74, 73}, {400, 73}}) {
    DirectoryHistory.Clear();
    AddDirectoryHistory(L"/");
    AddDirectoryHistory(("/home/" + std::string(static_cast<size_t>(length - 10), 'x') + "/end").c_str());
    s.Keys("Alt-\\");
    const Box box = BoxOf(s, " Directory History ");
    EXPECT_EQ(box.ListWidth(), width) << length;
    EXPECT_TRUE(Selected(s, box).ends_with("/end")) << "a long path is shortened in its middle";
    EXPECT_EQ(s.Character(box.left + 1, box.top + 1), U'/');
    s.Keys("Esc");
  }
}

TEST(DirectoryHistory, AHundredLeaveFiveRowsOfTheScreenFree) {
  Session s;
  DirectoryHistory.Clear();
  for (int i = 0; i <= 100; ++i) AddDirectoryHistory(("/d" + std::to_string(i)).c_str());
  s.Keys("Alt-\\");
  const Box box = BoxOf(s, " Directory History ");
  EXPECT_EQ(box.ListHeight(), 20);
  EXPECT_EQ(Selected(s, box), "/d100");
  s.Keys("Home");
  EXPECT_EQ(Selected(s, box), "/d1") << "the 101st drops the oldest";
}

TEST(DirectoryHistory, EnterTakesTheActivePanelThere) {
  Session s({{"left/a/inside", ""}, {"right/", ""}});
  s.Keys("Down Enter Ctrl-PgUp");
  ASSERT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  s.Keys("Tab 'half' Alt-\\");
  EXPECT_EQ(Selected(s, BoxOf(s, " Directory History ")), s.Path("left/a"));
  s.Keys("Enter");
  EXPECT_FALSE(DirectoriesAreOpen(s));
  EXPECT_EQ(s.PanelPath(kRightSide), s.Path("left/a"));
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "inside"}));
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  EXPECT_EQ(PromptRow(s), s.Path("left/a") + ">half");
  EXPECT_EQ(std::filesystem::current_path().string(), s.Path("left/a"));
  s.Keys("Alt-Shift-F8");
  EXPECT_EQ(Selected(s, BoxOf(s, " Directory History ")), s.Path("right")) << "the directory that was left";
}

TEST(DirectoryHistory, TypedLettersSearchIt) {
  Session s;
  DirectoryHistory.Clear();
  for (const wchar_t* path : {L"/usr", L"/proc", L"/tmp"}) AddDirectoryHistory(path);
  s.Keys("Alt-\\ '/p' Enter");
  EXPECT_EQ(s.PanelPath(kLeftSide), "/proc");
}

TEST(DirectoryHistory, OneThatHasGoneIsToldAndThePanelStays) {
  Session s({{"left/a/x", ""}});
  s.Keys("Down Enter Ctrl-PgUp");
  std::filesystem::remove_all(s.Path("left/a"));
  s.Keys("Alt-\\ Enter");
  EXPECT_TRUE(s.FindRow("Invalid Directory").has_value());
  EXPECT_TRUE(s.FindRow("left/a ").has_value());
  s.Keys("Enter");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  EXPECT_FALSE(DirectoriesAreOpen(s));
}
