// The box of the ten stored directories.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "config/values/options.h"
#include "console/input.h"
#include "panels/panel.h"
#include "session/main_screen.h"

namespace {

using Strings = std::vector<std::string>;

const FileList kTree = {{"left/a/x", ""}, {"left/b", ""}, {"right/deep/y", ""}, {"home/mine/z", ""}};

std::string Stored(int number) { return ToUtf8(StoredDirectories[number]).Text(); }

bool IsOpen(const Session& s) { return s.FindRow(" Stored Paths ").has_value(); }

// The box's rows without its frame and the blanks behind them.
Strings BoxRows(const Session& s) {
  const int title = s.FindRow(" Stored Paths ").value_or(-1);
  Strings rows;
  for (int y = title + 1; title >= 0 && y <= title + 10; ++y) {
    const std::string row = s.Row(y).String();
    const std::string wanted = std::to_string(y - title - 1) + " - ";
    const size_t start = row.find("║" + wanted);
    if (start == std::string::npos) return rows;
    const size_t text = start + std::string("║").size();
    rows.push_back(ScreenText(row.substr(text, row.find("║", text) - text)).Trimmed());
  }
  return rows;
}

// The columns of the box's frame.
std::pair<int, int> Edges(const Session& s) {
  const int y = s.FindRow(" Stored Paths ").value_or(0);
  const int middle = s.Columns() / 2;
  int left = middle, right = middle;
  while (left > 0 && s.Character(left, y) != U'╔') --left;
  while (right < s.Columns() - 1 && s.Character(right, y) != U'╗') ++right;
  return {left, right};
}

int WidthOfBox(const Session& s) { return Edges(s).second - Edges(s).first + 1; }

}  // namespace

TEST(StoredPaths, TenEmptyRowsStandUnderTheTitle) {
  Session s(kTree);
  s.Keys("Alt-F5");
  // 18 by 12 cells at (31, 4).
  EXPECT_EQ(s.Text(31, 4, 18), "╔═ Stored Paths ═╗");
  EXPECT_EQ(s.Text(31, 5, 18), "║0 - Empty       ║");
  EXPECT_EQ(s.Text(31, 14, 18), "║9 - Empty       ║");
  EXPECT_EQ(s.Text(31, 15, 18), "╚════════════════╝");
  EXPECT_EQ(s.Attribute(31, 4), 0x3F);
  EXPECT_EQ(s.Attribute(32, 5), 0x0F);
  EXPECT_EQ(s.Attribute(47, 5), 0x0F);
  EXPECT_EQ(s.Attribute(32, 6), 0x3F);
  s.Keys("Esc");
  EXPECT_FALSE(IsOpen(s));
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
}

TEST(StoredPaths, TheBoxIsSixWiderThanTheLongestPath) {
  const std::string path = "/" + std::string(29, 'p');
  Session s(kTree, {.settings = "d1=/short\nd4=" + path + "\n"});
  s.Keys("Alt-F5");
  EXPECT_EQ(WidthOfBox(s), 36);
  EXPECT_EQ(BoxRows(s)[4], "4 - " + path);
  EXPECT_EQ(BoxRows(s)[1], "1 - /short");
}

TEST(StoredPaths, TheBoxIsAtMostSeventySixWideAndLongPathsAreShortened) {
  const std::string seventy = "/" + std::string(69, 'p');
  const std::string longer = "/home/" + std::string(600, 'q') + "/end";
  Session s(kTree, {.settings = "d0=" + seventy + "\nd9=" + longer + "\n"});
  s.Keys("Alt-F5");
  EXPECT_EQ(WidthOfBox(s), 76);
  EXPECT_EQ(BoxRows(s)[0], "0 - " + seventy);
  EXPECT_EQ(BoxRows(s)[9], "9 - /home/..." + std::string(57, 'q') + "/end");
}

TEST(StoredPaths, EnterGoesToTheSelectedOne) {
  Session s(kTree);
  StoredDirectories[2] = s.Path("right").c_str();
  s.Keys("Down Alt-F5 Down Down Enter");
  EXPECT_FALSE(IsOpen(s));
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("right"));
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "deep"}));
  EXPECT_EQ(BarRow(s, kLeftSide), 1);
  EXPECT_EQ(PromptRow(s), s.Path("right") + ">");
  EXPECT_EQ(std::filesystem::current_path().string(), s.Path("right"));
}

TEST(StoredPaths, ADigitGoesThereAtOnce) {
  Session s(kTree);
  StoredDirectories[0] = s.Path("right").c_str();
  StoredDirectories[9] = s.Path("left/a").c_str();
  s.Keys("Tab Alt-F5 9");
  EXPECT_FALSE(IsOpen(s));
  EXPECT_EQ(s.PanelPath(kRightSide), s.Path("left/a"));
  s.Keys("Alt-F5 0");
  EXPECT_EQ(s.PanelPath(kRightSide), s.Path("right"));
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
}

TEST(StoredPaths, ChoosingGoesToTheFirstEntryAlsoWhereThePanelIsAlready) {
  Session s(kTree);
  StoredDirectories[3] = s.Path("left").c_str();
  s.Keys("End Alt-F5 3");
  EXPECT_EQ(BarRow(s, kLeftSide), 1);
}

TEST(StoredPaths, AnEmptyRowDoesNothingButTakesTheCursor) {
  Session s(kTree);
  s.Keys("Alt-F5 Enter");
  EXPECT_TRUE(IsOpen(s));
  s.Keys("7");
  EXPECT_TRUE(IsOpen(s));
  EXPECT_EQ(s.Attribute(32, 12), 0x0F);
  EXPECT_EQ(s.Attribute(32, 5), 0x3F);
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
}

TEST(StoredPaths, InsertStoresThePathAndTheBoxShowsIt) {
  Session s(kTree);
  s.Keys("Tab Alt-F5 Down Ins");
  EXPECT_EQ(Stored(1), s.Path("right"));
  EXPECT_TRUE(IsOpen(s));
  EXPECT_EQ(BoxRows(s)[1], "1 - " + s.Path("right"));
  EXPECT_EQ(WidthOfBox(s), std::max(18, static_cast<int>(s.Path("right").size()) + 6));
  EXPECT_EQ(s.Attribute(Edges(s).first + 1, 6), 0x0F);  // the cursor stays on its row
  s.Keys("End Ins");
  EXPECT_EQ(Stored(9), s.Path("right"));
}

TEST(StoredPaths, InsertReplacesWhatWasThere) {
  Session s(kTree, {.settings = "d0=/old\n"});
  s.Keys("Alt-F5 Ins Esc");
  EXPECT_EQ(Stored(0), s.Path("left"));
}

TEST(StoredPaths, DeleteEmptiesTheRow) {
  Session s(kTree, {.settings = "d0=/one\nd1=/two\n"});
  s.Keys("Alt-F5 Del");
  EXPECT_EQ(Stored(0), "");
  EXPECT_EQ(Stored(1), "/two");
  EXPECT_EQ(BoxRows(s)[0], "0 - Empty");
  EXPECT_EQ(BoxRows(s)[1], "1 - /two");
  s.Keys("Del");
  EXPECT_TRUE(IsOpen(s));
}

TEST(StoredPaths, EscLeavesWithWhatWasStored) {
  Session s(kTree);
  s.Keys("Alt-F5 Ins Esc");
  EXPECT_FALSE(IsOpen(s));
  EXPECT_EQ(Stored(0), s.Path("left"));
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
}

TEST(StoredPaths, OtherKeysChangeNothing) {
  Session s(kTree);
  s.Keys("Alt-F5");
  const std::string before = s.Screen();
  s.Keys("x F3 Tab Alt-e Ctrl-m Left Backspace");
  EXPECT_EQ(s.Screen(), before);
  s.Keys("Esc");
  EXPECT_FALSE(IsOpen(s));
}

TEST(StoredPaths, AClickOnARowGoesThere) {
  Session s(kTree);
  StoredDirectories[1] = s.Path("right").c_str();
  s.Keys("Alt-F5");
  s.Click(40, 6);
  EXPECT_FALSE(IsOpen(s));
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("right"));
}

TEST(StoredPaths, TheTildeIsShownAsStoredAndExpandedAtUse) {
  Session s(kTree, {.settings = "d5=~/mine\n"});
  s.Keys("Alt-F5");
  EXPECT_EQ(Stored(5), "~/mine");
  EXPECT_EQ(BoxRows(s)[5], "5 - ~/mine");
  s.Keys("5");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("home/mine"));
  EXPECT_EQ(Stored(5), "~/mine");
}

TEST(StoredPaths, VariablesAreExpandedAtUse) {
  Session s(kTree, {.settings = "d5=$HOME$/mine\n"});
  s.Keys("Alt-F5 5");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("home/mine"));
}

TEST(StoredPaths, AnEmptyHomeLeadsToThatOfTheAccountAndNotAstray) {
  Session s(kTree, {.settings = "d5=~/no such directory here\n", .environment = {{"HOME", ""}}});
  s.Keys("Alt-F5 5");
  s.Keys("Esc");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
}

TEST(StoredPaths, ADirectoryThatIsGoneIsToldAndTheBoxStays) {
  Session s(kTree, {.settings = "d0=~/gone\nd1=/also/gone\n"});
  s.Keys("Alt-F5 Enter");
  const int message = s.FindRow("Invalid directory").value_or(-1);
  ASSERT_GE(message, 0);
  EXPECT_TRUE(s.Row(message + 1).Contains(" " + s.Path("home/gone") + " "));
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  s.Keys("Enter");
  EXPECT_TRUE(IsOpen(s));
  s.Keys("Del 1");
  EXPECT_TRUE(s.FindRow(" /also/gone ").has_value());
  s.Keys("Esc Esc");
  EXPECT_FALSE(IsOpen(s));
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  EXPECT_EQ(Stored(0), "");
}

TEST(StoredPaths, APathLongerThanAnyIsToldAsInvalid) {
  Session s(kTree, {.settings = "d0=/" + std::string(700, 'x') + "\n"});
  s.Keys("Alt-F5 0");
  EXPECT_TRUE(s.FindRow("Invalid directory").has_value());
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
}

TEST(StoredPaths, AreSavedWithTheSettings) {
  Session s(kTree);
  s.Keys("Alt-F5 4 Ins Esc Shift-F9");
  EXPECT_NE(s.Content("home/.orvane/orvane.ini").find("d4=" + s.Path("left") + "\r\n"), std::string::npos);
}

TEST(StoredPaths, CtrlAndTheDigitGoToTheSameOnes) {
  Session s(kTree);
  s.Keys("Alt-F5 4 Ins Esc Down Enter");
  ASSERT_EQ(s.PanelPath(kLeftSide), s.Path("left/a"));
  s.Keys("Ctrl-4");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
}
