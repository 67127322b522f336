// Which panels are on the screen, which one is active, and what is remembered
// about one that is off.
#include <gtest/gtest.h>

#include "console/console.h"
#include "session/main_screen.h"

namespace {

using Strings = std::vector<std::string>;

const FileList kFiles = {{"left/a", ""}, {"left/b", ""}, {"right/x", ""}, {"right/y", ""}};

// "LR", "L-", "-R" or "--".
std::string Shown(const Session& s) {
  return std::string(IsShown(s, kLeftSide) ? "L" : "-") + (IsShown(s, kRightSide) ? "R" : "-");
}

std::string AfterKeys(Session& s, const std::string& keys) {
  s.Keys(keys);
  return Shown(s);
}

bool TextCanBeSelected() {
  CellRect region;
  Console->GetSelectableRegion(region);
  return !region.IsEmpty();
}

}  // namespace

TEST(PanelsOnOff, CtrlOTakesBothOffAndBringsThemBack) {
  Session s(kFiles);
  EXPECT_EQ(AfterKeys(s, "Ctrl-O"), "--");
  EXPECT_EQ(s.Row(0).Trimmed(), "");
  EXPECT_EQ(AfterKeys(s, "Ctrl-O"), "LR");
  EXPECT_EQ(BarRow(s, kLeftSide), 1);
}

TEST(PanelsOnOff, CtrlOWithOnlyTheRightOneBringsBackThatOne) {
  Session s(kFiles);
  EXPECT_EQ(AfterKeys(s, "Ctrl-F1"), "-R");
  EXPECT_EQ(AfterKeys(s, "Ctrl-O"), "--");
  EXPECT_EQ(AfterKeys(s, "Ctrl-O"), "-R");
  EXPECT_EQ(s.Active(), kRightSide);
}

TEST(PanelsOnOff, CtrlOWithOnlyTheLeftOneBringsBackThatOne) {
  Session s(kFiles);
  EXPECT_EQ(AfterKeys(s, "Ctrl-F2"), "L-");
  EXPECT_EQ(AfterKeys(s, "Ctrl-O"), "--");
  EXPECT_EQ(AfterKeys(s, "Ctrl-O"), "L-");
}

TEST(PanelsOnOff, TwoSwitchedOffOneByOneComeBackTogether) {
  Session s(kFiles);
  EXPECT_EQ(AfterKeys(s, "Ctrl-F1 Ctrl-F2"), "--");
  EXPECT_EQ(AfterKeys(s, "Ctrl-O"), "LR");
  EXPECT_EQ(AfterKeys(s, "Ctrl-F2 Ctrl-F1"), "--");
  EXPECT_EQ(AfterKeys(s, "Ctrl-O"), "LR");
}

TEST(PanelsOnOff, OneThatCameBackWhileBothWereOffIsForgottenAsOff) {
  Session s(kFiles);
  EXPECT_EQ(AfterKeys(s, "Ctrl-F1 Ctrl-O Ctrl-F1"), "L-");
  EXPECT_EQ(AfterKeys(s, "Ctrl-O Ctrl-O"), "L-");
  EXPECT_EQ(AfterKeys(s, "Ctrl-F2"), "LR");
  EXPECT_EQ(AfterKeys(s, "Ctrl-O Ctrl-O"), "LR");
}

TEST(PanelsOnOff, OneThatWasOffAtTheStartStaysOff) {
  Session left(kFiles, {.settings = "LeftShowing=off\n"});
  EXPECT_EQ(AfterKeys(left, "Ctrl-O Ctrl-O"), "-R");
  left.Quit();
  Session right(kFiles, {.settings = "RightShowing=off\n"});
  EXPECT_EQ(AfterKeys(right, "Ctrl-O Ctrl-O"), "L-");
}

TEST(PanelsOnOff, CtrlF1TwiceKeepsDirectoryStyleAndCursor) {
  Session s(kFiles);
  s.Keys("Alt-Shift-F1 Down Ins Ctrl-F1");
  EXPECT_EQ(s.Active(), kRightSide);
  s.Keys("Ctrl-F1 Tab");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  EXPECT_EQ(s.Under(kLeftSide), "b");
  EXPECT_EQ(s.Character(13, 1), U'│');
  EXPECT_EQ(s.Attribute(1, 2), 0x1E);
  EXPECT_EQ(BarRow(s, kLeftSide), 3);
}

TEST(PanelsOnOff, CtrlPSwitchesTheOneThatIsNotActive) {
  Session s(kFiles);
  EXPECT_EQ(AfterKeys(s, "Ctrl-P"), "L-");
  EXPECT_EQ(AfterKeys(s, "Ctrl-P"), "LR");
  EXPECT_EQ(AfterKeys(s, "Tab Ctrl-P"), "-R");
  EXPECT_EQ(s.Active(), kRightSide);
}

TEST(PanelsOnOff, TheMenusSwitchTheirSides) {
  Session s(kFiles);
  s.Command(0x1005F);
  EXPECT_EQ(Shown(s), "L-");
  s.Command(0x1005E);
  EXPECT_EQ(Shown(s), "--");
  s.Command(0x1005F);
  EXPECT_EQ(Shown(s), "-R");
  EXPECT_EQ(s.Active(), kRightSide);
}

TEST(PanelsOnOff, ConsoleTextCanBeSelectedWhileNoPanelIsShown) {
  Session s(kFiles);
  EXPECT_FALSE(TextCanBeSelected());
  s.Keys("Ctrl-O");
  CellRect region;
  Console->GetSelectableRegion(region);
  EXPECT_EQ(region, (CellRect{0, 0, 79, 22}));
  s.Keys("Ctrl-O");
  EXPECT_FALSE(TextCanBeSelected());
  s.Keys("Ctrl-F1 Ctrl-F2");
  EXPECT_TRUE(TextCanBeSelected());
  s.Keys("Ctrl-F2");
  EXPECT_FALSE(TextCanBeSelected());
}

TEST(PanelsOnOff, WithBothOffHomeAndEndMoveOnTheCommandLine) {
  Session s(kFiles);
  s.Keys("Ctrl-O 'abc' Home x End y");
  EXPECT_EQ(PromptRow(s), s.Path("left") + ">xabcy");
  s.Keys("Ctrl-O");
  EXPECT_EQ(s.Under(kLeftSide), "..");
}

TEST(PanelsOnOff, WithBothOffKeysOfTheListDoNothing) {
  Session s(kFiles);
  s.Keys("Down Ctrl-O Ins PgDn PgUp Alt-Down Grey+ Ctrl-PgDn Ctrl-O");
  EXPECT_EQ(Shown(s), "LR");
  EXPECT_EQ(s.Under(kLeftSide), "a");
  EXPECT_EQ(s.Attribute(1, 3), 0x1B);
}

TEST(PanelsOnOff, AHiddenPanelIsReadWhenItIsShown) {
  Session s(kFiles);
  s.Keys("Ctrl-F2 Tab");
  s.Write("right/z", "");
  s.Command(0x100137);  // re-reads what is shown
  s.Keys("Ctrl-F2");
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "x", "y", "z"}));
}

TEST(ActiveSide, TabGoesFromSideToSide) {
  Session s(kFiles);
  s.Keys("Tab");
  EXPECT_EQ(s.Active(), kRightSide);
  EXPECT_EQ(BarRow(s, kLeftSide), -1);
  EXPECT_EQ(BarRow(s, kRightSide), 1);
  EXPECT_EQ(PromptRow(s), s.Path("right") + ">");
  s.Keys("Shift-Tab");
  EXPECT_EQ(s.Active(), kLeftSide);
  EXPECT_EQ(s.Attribute(20, 0), 0x30);
  EXPECT_EQ(s.Attribute(60, 0), 0x1B);
}

TEST(ActiveSide, TabDoesNotGoToAHiddenPanel) {
  Session s(kFiles);
  s.Keys("Ctrl-F2 Tab");
  EXPECT_EQ(s.Active(), kLeftSide);
  EXPECT_EQ(BarRow(s, kLeftSide), 1);
}

TEST(ActiveSide, WithBothPanelsOffTabChangesThePrompt) {
  Session s(kFiles);
  s.Keys("Ctrl-O Tab");
  EXPECT_EQ(s.Active(), kRightSide);
  EXPECT_EQ(PromptRow(s), s.Path("right") + ">");
  s.Keys("Ctrl-O");
  EXPECT_EQ(BarRow(s, kRightSide), 1);
}

TEST(ActiveSide, SwitchingTheActivePanelOffActivatesTheOther) {
  Session s(kFiles);
  s.Keys("Ctrl-F1");
  EXPECT_EQ(s.Active(), kRightSide);
  EXPECT_EQ(BarRow(s, kRightSide), 1);
  EXPECT_EQ(PromptRow(s), s.Path("right") + ">");
}

TEST(Swap, CtrlUExchangesThePanelsAndTheActiveOneGoesAlong) {
  Session s(kFiles);
  s.Keys("Down Down Ctrl-U");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("right"));
  EXPECT_EQ(s.PanelPath(kRightSide), s.Path("left"));
  EXPECT_EQ(s.Active(), kRightSide);
  EXPECT_EQ(s.Under(kRightSide), "b");
  EXPECT_EQ(BarRow(s, kRightSide), 3);
  EXPECT_TRUE(PanelRow(s, kRightSide, 3).Contains("b "));
  EXPECT_TRUE(PanelRow(s, kLeftSide, 2).Contains("x "));
}

TEST(Swap, TagsSortFilterAndStyleTravel) {
  Session s({{"left/a.c", "1"}, {"left/b.c", "22"}, {"left/n.txt", ""}, {"right/x", ""}, {"right/y", "1"}},
            {.settings = "LeftFilter=*.c\nLeftSort=size\nLeftStyle=brief\n"});
  s.Keys("Down Ins Ctrl-U");
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "b.c", "a.c"}));
  EXPECT_EQ(s.Attribute(41, 2), 0x1E);
  EXPECT_EQ(s.Character(40 + 13, 1), U'│');
  s.Keys("Ctrl-R");
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "b.c", "a.c"}));
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "x", "y"}));
}

TEST(Swap, SavedSettingsFollowTheSides) {
  Session s({{"home/.orvane/", ""}});
  s.Keys("Ctrl-F6 Ctrl-U Shift-F9");
  const std::string saved = s.Content("home/.orvane/orvane.ini");
  EXPECT_NE(saved.find("LeftSort=name\r\n"), std::string::npos);
  EXPECT_NE(saved.find("RightSort=size\r\n"), std::string::npos);
}

TEST(Swap, AHiddenPanelIsHiddenOnTheOtherSide) {
  Session s(kFiles);
  s.Keys("Ctrl-F2 Ctrl-U");
  EXPECT_EQ(Shown(s), "-R");
  EXPECT_EQ(s.PanelPath(kRightSide), s.Path("left"));
  EXPECT_EQ(AfterKeys(s, "Ctrl-F1"), "LR");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "x", "y"}));
}

TEST(Swap, TwiceIsAsBefore) {
  Session s(kFiles);
  s.Keys("Down");
  const std::string before = s.Screen();
  s.Keys("Ctrl-U Ctrl-U");
  EXPECT_EQ(s.Screen(), before);
  s.Keys("Ctrl-O");
  EXPECT_EQ(s.Row(5).Trimmed(), "");
}

TEST(InfoPanel, CtrlLShowsInformationOnTheOtherSideAndHidesItAgain) {
  Session s(kFiles);
  s.Keys("Ctrl-L");
  EXPECT_TRUE(PanelRow(s, kRightSide, 0).Contains(" INFO "));
  EXPECT_EQ(s.Active(), kLeftSide);
  s.Keys("Ctrl-L");
  EXPECT_TRUE(PanelRow(s, kRightSide, 2).Contains("x "));
  EXPECT_EQ(Shown(s), "LR");
}

TEST(InfoPanel, FromAnInfoPanelCtrlLActsOnItsOwnSide) {
  Session s(kFiles);
  s.Keys("Ctrl-L Tab Ctrl-L");
  EXPECT_FALSE(PanelRow(s, kRightSide, 0).Contains(" INFO "));
  EXPECT_EQ(BarRow(s, kRightSide), 1);
}

TEST(InfoPanel, APanelBroughtUpForInformationGoesWithIt) {
  Session s(kFiles);
  s.Keys("Ctrl-F2 Ctrl-L");
  EXPECT_EQ(Shown(s), "LR");
  s.Keys("Ctrl-L");
  EXPECT_EQ(Shown(s), "L-");
  s.Keys("Ctrl-O Ctrl-O");
  EXPECT_EQ(Shown(s), "L-");
  s.Keys("Ctrl-F2");
  EXPECT_TRUE(PanelRow(s, kRightSide, 2).Contains("x "));
}

TEST(InfoPanel, GoneWithItsInformationAPanelCountsAsSwitchedOff) {
  Session s(kFiles);
  s.Keys("Ctrl-F2 Ctrl-L Ctrl-L Ctrl-F1");
  EXPECT_EQ(Shown(s), "--");
  EXPECT_EQ(AfterKeys(s, "Ctrl-O"), "LR");
}

TEST(InfoPanel, TheMemoryOfThatTravelsWithTheSwap) {
  Session s(kFiles);
  s.Keys("Ctrl-F2 Ctrl-L Ctrl-U Ctrl-L");
  EXPECT_EQ(Shown(s), "-R");
}

TEST(InfoPanel, TheMenuShowsItOnItsSideAndTakesItOffTheOther) {
  Session s(kFiles);
  s.Command(0x100193);
  EXPECT_TRUE(PanelRow(s, kRightSide, 0).Contains(" INFO "));
  s.Command(0x100000);
  EXPECT_TRUE(PanelRow(s, kLeftSide, 0).Contains(" INFO "));
  EXPECT_FALSE(PanelRow(s, kRightSide, 0).Contains(" INFO "));
  s.Command(0x100000);
  EXPECT_FALSE(PanelRow(s, kLeftSide, 0).Contains(" INFO "));
}

TEST(InfoPanel, KeysOfTheListDoNothingThere) {
  Session s(kFiles);
  s.Keys("Ctrl-L Tab Down Ins PgDn End Ctrl-L");
  EXPECT_EQ(s.Under(kRightSide), "..");
  EXPECT_EQ(s.Attribute(41, 2), 0x1B);
}

TEST(InfoPanel, AStyleShowsTheListingFromBeforeTheInformation) {
  Session s(kFiles);
  const auto before = s.Names(kRightSide);
  s.Keys("Ctrl-L");
  s.Write("right/new", "");
  s.Command(0x10000E);
  EXPECT_EQ(s.Names(kRightSide), before);
}

TEST(InfoPanel, AStyleReadsWhatWasOwedMeanwhile) {
  Session s(kFiles);
  s.Keys("Ctrl-L");
  s.Write("right/.new", "");
  s.Keys("Ctrl-H");
  s.Command(0x10000E);
  EXPECT_EQ(s.Names(kRightSide)[1], ".new");
}

TEST(InfoPanel, AStyleTurnsItIntoFilesAgain) {
  Session s(kFiles);
  s.Keys("Ctrl-L Tab Alt-Shift-F2");
  EXPECT_TRUE(PanelRow(s, kRightSide, 2).Contains("x "));
  EXPECT_EQ(BarRow(s, kRightSide), 1);
}
