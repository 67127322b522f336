// Going from directory to directory with the keys of the main screen.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "panels/navigation.h"
#include "session/main_screen.h"

namespace {

using Strings = std::vector<std::string>;

const FileList kTree = {{"left/a/b/deep.txt", ""},
                        {"left/a/x.txt", ""},
                        {"left/c/", ""},
                        {"left/file.txt", ""},
                        {"right/r/", ""}};

std::string ProcessDirectory() { return std::filesystem::current_path().string(); }

void Link(const Sandbox& files, const std::string& target, const std::string& name) {
  ASSERT_EQ(symlink(target.c_str(), files.Path(name).c_str()), 0);
}

}  // namespace

TEST(Navigation, EnterGoesDownAndUp) {
  Session s(kTree);
  s.Keys("Down Enter Down Enter");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/a/b"));
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "deep.txt"}));
  EXPECT_EQ(PromptRow(s), s.Path("left/a/b") + ">");
  s.Keys("Enter");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/a"));
  EXPECT_EQ(s.Under(kLeftSide), "b");
}

TEST(Navigation, TheProcessGoesWithTheActivePanel) {
  Session s(kTree);
  EXPECT_EQ(ProcessDirectory(), s.Path("left"));
  s.Keys("Down Enter");
  EXPECT_EQ(ProcessDirectory(), s.Path("left/a"));
  s.Keys("Tab");
  EXPECT_EQ(ProcessDirectory(), s.Path("right"));
}

TEST(Navigation, EnterOnAPlainFileStaysWhereItIs) {
  Session s(kTree);
  s.Keys("End Enter");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  EXPECT_EQ(s.Under(kLeftSide), "file.txt");
}

TEST(Navigation, WithTextOnTheLineEnterDoesNotMoveThePanel) {
  Session s(kTree);
  s.Keys("Down 'true' Enter");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
}

TEST(Navigation, CtrlPgUpGoesToTheParentFromAnywhere) {
  Session s(kTree);
  s.Keys("Down Enter End Ctrl-PgUp");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  EXPECT_EQ(s.Under(kLeftSide), "a");
}

TEST(Navigation, CtrlPgDnEntersADirectoryAndLeavesAPlainFileAlone) {
  Session s(kTree);
  s.Keys("Down Ctrl-PgDn");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/a"));
  s.Keys("End Ctrl-PgDn");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/a"));
  EXPECT_EQ(s.Under(kLeftSide), "x.txt");
}

TEST(Navigation, CtrlBackslashGoesToTheRoot) {
  Session s(kTree);
  s.Keys("Down Ctrl-\\");
  EXPECT_EQ(s.PanelPath(kLeftSide), "/");
  EXPECT_EQ(BarRow(s, kLeftSide), 1);
  EXPECT_NE(s.Names(kLeftSide).front(), "..");
  s.Keys("Down Ctrl-\\");
  EXPECT_EQ(BarRow(s, kLeftSide), 2);  // already there
}

TEST(Navigation, CtrlPgUpAtTheRootStays) {
  Session s({}, {.arguments = {{"-l", "/", "-r", "/"}}});
  s.Keys("Down Ctrl-PgUp");
  EXPECT_EQ(s.PanelPath(kLeftSide), "/");
}

TEST(Navigation, CtrlShiftBackslashGoesWhereTheOtherPanelIs) {
  Session s(kTree);
  s.Keys("Ctrl-Shift-|");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("right"));
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "r"}));
  s.Keys("Tab Down Enter Tab Ctrl-Shift-'");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("right/r"));
}

TEST(Navigation, CtrlMinusGoesBackToTheDirectoryBefore) {
  Session s(kTree);
  s.Keys("Down Down Enter");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/c"));
  s.Keys("Ctrl--");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  EXPECT_EQ(s.Under(kLeftSide), "c");
  s.Keys("Ctrl--");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/c"));
}

TEST(Navigation, CtrlMinusTakesItsTargetOutOfTheHistoryOfDirectories) {
  Session s(kTree);
  s.Keys("Down Enter Ctrl--");
  ASSERT_EQ(DirectoryHistory.Count(), 1);
  EXPECT_EQ(std::string(ToUtf8(*DirectoryHistory.Peek(0)).Text()), s.Path("left/a"));
}

TEST(Navigation, CtrlMinusBringsTheScrolledPositionBack) {
  FileList files = NumberedFiles("left", 60);
  files.emplace_back("left/zdir/", "");
  Session s(files);
  s.Keys("End Up Up Up");
  const std::string name = s.Under(kLeftSide);
  const int row = BarRow(s, kLeftSide);
  s.Keys("Ctrl-\\ Ctrl--");
  EXPECT_EQ(s.Under(kLeftSide), name);
  EXPECT_EQ(BarRow(s, kLeftSide), row);
}

TEST(Navigation, CtrlMinusWithNothingBeforeStays) {
  Session s(kTree);
  s.Keys("Down Ctrl--");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  EXPECT_EQ(s.Under(kLeftSide), "a");
}

TEST(Navigation, CtrlMinusToADirectoryThatIsGoneIsTold) {
  Session s(kTree);
  s.Keys("Down Down Enter Ctrl-PgUp");
  std::filesystem::remove(s.Path("left/c"));
  s.Keys("Ctrl--");
  EXPECT_TRUE(s.FindRow("Invalid Directory"));
  EXPECT_TRUE(s.FindRow(s.Path("left/c")));
  s.Keys("Esc");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
}

TEST(Navigation, AltHomeGoesHome) {
  Session s({{"home/mine.txt", ""}});
  s.Keys("Alt-Home");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("home"));
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "mine.txt"}));
}

TEST(Navigation, AltHomeWithoutAHomeStays) {
  Session s(kTree, {.environment = {{"HOME", ""}}});
  s.Keys("Alt-Home");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
}

TEST(StoredPaths, CtrlShiftDigitStoresAndCtrlDigitGoes) {
  Session s(kTree);
  s.Keys("Down Enter Ctrl-Shift-1 Ctrl-\\ Ctrl-1");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/a"));
  EXPECT_EQ(s.Under(kLeftSide), "..");
  s.Keys("Tab Ctrl-1");
  EXPECT_EQ(s.PanelPath(kRightSide), s.Path("left/a"));
}

TEST(StoredPaths, TheKeypadDoesTheSame) {
  Session s(kTree);
  s.Keys("Ctrl-Shift-Pad0 Tab Ctrl-0");
  EXPECT_EQ(s.PanelPath(kRightSide), s.Path("left"));
  s.Keys("Down Enter Ctrl-Shift-9 Tab Ctrl-Pad9");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/a"));
}

TEST(StoredPaths, AnEmptySlotDoesNothing) {
  Session s(kTree);
  s.Keys("Down Ctrl-5");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  EXPECT_EQ(s.Under(kLeftSide), "a");
}

TEST(StoredPaths, AreExpandedByTheEnvironment) {
  Session s({{"home/docs/", ""}, {"temp/x/", ""}}, {.settings = "d3=~/docs\nd4=$TEMP/x\n"});
  s.Keys("Ctrl-3");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("home/docs"));
  s.Keys("Ctrl-4");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("temp/x"));
}

TEST(StoredPaths, OneThatLeadsNowhereIsTold) {
  Session s(kTree, {.settings = "d3=/no/such/place\n"});
  s.Keys("Down Ctrl-3");
  EXPECT_TRUE(s.FindRow("Invalid Directory"));
  EXPECT_TRUE(s.FindRow("/no/such/place"));
  s.Keys("Enter");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  EXPECT_EQ(s.Under(kLeftSide), "a");
}

TEST(StoredPaths, ReachTheDiskWithTheSettings) {
  Session s({{"home/.orvane/", ""}, {"left/a/", ""}});
  s.Keys("Down Enter Ctrl-Shift-7");
  s.Keys("Shift-F9");
  EXPECT_NE(s.Content("home/.orvane/orvane.ini").find("d7=" + s.Path("left/a") + "\r\n"), std::string::npos);
}

TEST(StoredPaths, WithBothPanelsOffNineGoesUpAndNothingIsStored) {
  Session s(kTree);
  s.Keys("Down Enter Ctrl-O Ctrl-Shift-1 Ctrl-9 Ctrl-O");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  s.Keys("Ctrl-1");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
}

TEST(Links, CtrlGGoesToTheDirectoryThatALinkPointsTo) {
  Session s(kTree, {.prepare = [](const Sandbox& f) { Link(f, "../left/a/b", "left/link"); }});
  s.Keys("Down Down Down");
  ASSERT_EQ(s.Under(kLeftSide), "link");
  s.Keys("Ctrl-G");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/a/b"));
}

TEST(Links, CtrlGGoesToTheFileThatALinkPointsTo) {
  Session s(kTree, {.prepare = [](const Sandbox& f) { Link(f, f.Path("left/a/x.txt"), "left/zlink"); }});
  s.Keys("End Ctrl-G");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/a"));
  EXPECT_EQ(s.Under(kLeftSide), "x.txt");
}

TEST(Links, CtrlGOnADanglingLinkGoesToItsDirectoryOrTellsThatThereIsNone) {
  Session s(kTree, {.prepare = [](const Sandbox& f) {
              Link(f, "a/none", "left/z1");
              Link(f, "nowhere/none", "left/z2");
            }});
  s.Keys("End Ctrl-G");
  EXPECT_TRUE(s.FindRow("Invalid Directory"));
  s.Keys("Esc Up Ctrl-G");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/a"));
}

TEST(Links, CtrlGOnOtherEntriesDoesNothing) {
  Session s(kTree);
  s.Keys("Down Ctrl-G");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  EXPECT_EQ(s.Under(kLeftSide), "a");
}

TEST(Links, ABackslashInATargetIsPartOfItsName) {
  Session s({{"left/a\\b/c\\d", ""}}, {.prepare = [](const Sandbox& f) { Link(f, "a\\b/c\\d", "left/z"); }});
  s.Keys("End Ctrl-G");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/a\\b"));
  EXPECT_EQ(s.Under(kLeftSide), "c\\d");
}

TEST(ReRead, CtrlRShowsWhatHasComeAndKeepsTagsAndCursor) {
  Session s({{"left/a", ""}, {"left/c", ""}, {"left/d", ""}});
  s.Keys("Down Ins");
  s.Write("left/b", "");
  s.Keys("Ctrl-R");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "a", "b", "c", "d"}));
  EXPECT_EQ(s.Under(kLeftSide), "c");
  EXPECT_EQ(s.Attribute(1, 2), 0x1E);
}

TEST(ReRead, AMenuReadsItsSideOnly) {
  Session s({{"left/a", ""}, {"right/a", ""}});
  s.Write("left/b", "");
  s.Write("right/b", "");
  s.Command(0x10019B);
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "a"}));
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "a", "b"}));
  s.Command(0x100013);
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "a", "b"}));
}

TEST(ReRead, OfTheOtherSideLeavesTheProcessWithTheActivePanel) {
  Session s(kTree);
  s.Command(0x10019B);  // re-read of the right side
  EXPECT_EQ(ProcessDirectory(), s.Path("left"));
}

TEST(ReRead, WithThePanelsOffNothingIsRead) {
  Session s;
  s.Keys("Ctrl-O");
  s.Write("left/b", "");
  s.Keys("Ctrl-R Ctrl-O");
  EXPECT_EQ(s.Names(kLeftSide), Strings{".."});
}

TEST(Hidden, CtrlHShowsAndHidesInBothPanels) {
  Session s({{"left/.dot", ""}, {"left/a", ""}, {"right/.dot", ""}});
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "a"}));
  s.Keys("Down Ctrl-H");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", ".dot", "a"}));
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", ".dot"}));
  EXPECT_EQ(s.Under(kLeftSide), "a");
  EXPECT_EQ(BarRow(s, kLeftSide), 3);
  EXPECT_EQ(ProcessDirectory(), s.Path("left"));
  s.Command(0x10012E);
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "a"}));
  EXPECT_EQ(BarRow(s, kLeftSide), 2);
}

TEST(Hidden, APanelThatWasOffMeanwhileComesBackInTheNewWay) {
  Session s({{"right/.dot", ""}, {"right/a", ""}});
  s.Keys("Ctrl-F2 Ctrl-H Ctrl-F2");
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", ".dot", "a"}));
  s.Keys("Ctrl-O Ctrl-H Ctrl-O");
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "a"}));
}
