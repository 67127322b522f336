// Styles, order, size of the screen, and the toggles of the Options menu.
#include <gtest/gtest.h>

#include "session/main_screen.h"

namespace {

using Strings = std::vector<std::string>;

const FileList kFiles = {{"left/a.txt", "1"}, {"left/b.c", "333"}, {"left/c", "22"}, {"right/x", ""}};

}  // namespace

TEST(Styles, AltShiftFunctionKeysSetTheStyleOfTheActivePanel) {
  Session s(kFiles);
  s.Keys("Down Alt-Shift-F1");
  EXPECT_TRUE(s.Row(2).StartsWith("║a.txt       │            │            ║"));
  s.Keys("Alt-Shift-F3");
  EXPECT_TRUE(s.Row(2).StartsWith("║       1│a.txt                        ║"));
  s.Keys("Alt-Shift-F4");
  EXPECT_TRUE(s.Row(2).StartsWith("║a.txt             "));
  EXPECT_EQ(s.Character(1 + 19, 2), U'│');
  s.Keys("Alt-Shift-F5");
  EXPECT_TRUE(s.Row(2).StartsWith("║a.txt       │      1│rw-"));
  s.Keys("Alt-Shift-F2");
  EXPECT_TRUE(s.Row(2).StartsWith("║a.txt        │       1│"));
  EXPECT_EQ(s.Under(kLeftSide), "a.txt");
  EXPECT_EQ(BarRow(s, kLeftSide), 2);
  EXPECT_TRUE(PanelRow(s, kRightSide, 1).StartsWith("║..           │►UP-DIR◄│"));
}

TEST(Styles, MenusSetTheStyleOfTheirSide) {
  Session s(kFiles);
  s.Command(0x10000E);
  EXPECT_EQ(s.Character(40 + 13, 1), U'│');
  EXPECT_EQ(s.Character(14, 1), U'│');
  s.Command(0x100014);
  EXPECT_EQ(s.Character(9, 1), U'│');
  EXPECT_EQ(s.Active(), kLeftSide);
}

TEST(Styles, AStyleOfAMenuBringsAHiddenPanelUp) {
  Session s(kFiles);
  s.Keys("Ctrl-F2");
  s.Command(0x10000E);
  EXPECT_TRUE(IsShown(s, kRightSide));
  EXPECT_EQ(s.Character(40 + 13, 1), U'│');
  s.Keys("Ctrl-F2");
  s.Command(0x10000E);  // the style that it has
  EXPECT_TRUE(IsShown(s, kRightSide));
}

TEST(Styles, FromBriefToFullTheCursorStaysInView) {
  Session s(NumberedFiles("left", 57));
  s.Keys("Alt-Shift-F1 End Alt-Shift-F2");
  EXPECT_EQ(s.Under(kLeftSide), "f056");
  EXPECT_EQ(BarRow(s, kLeftSide), 19);
}

TEST(Sorting, CtrlFunctionKeysSortTheActivePanelAndKeepTheCursor) {
  Session s(kFiles);
  s.Keys("Down");
  s.Keys("Ctrl-F6");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "b.c", "c", "a.txt"}));
  EXPECT_EQ(s.Under(kLeftSide), "a.txt");
  EXPECT_EQ(BarRow(s, kLeftSide), 4);
  s.Keys("Ctrl-F4");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "c", "b.c", "a.txt"}));
  s.Keys("Ctrl-F8");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "a.txt", "b.c", "c"}));
  s.Keys("Ctrl-F8 Ctrl-F3 Ctrl-F8");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "c", "b.c", "a.txt"}));
  EXPECT_EQ(s.Under(kLeftSide), "a.txt");
}

TEST(Sorting, TheRightPanelIsSortedWhenItIsActive) {
  Session s({{"left/a", "1"}, {"left/b", "22"}, {"right/a", "1"}, {"right/b", "22"}});
  s.Keys("Tab Ctrl-F6");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "a", "b"}));
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "b", "a"}));
}

TEST(Sorting, MenusSortTheirSide) {
  Session s({{"left/a", "1"}, {"left/b", "22"}, {"right/a", "1"}, {"right/b", "22"}});
  s.Command(0x10000A);
  s.Command(0x100006);
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "b", "a"}));
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "b", "a"}));
  s.Command(0x10000C);
  s.Command(0x100001);
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "a", "b"}));
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "a", "b"}));
}

TEST(ScreenSize, AltF9GoesBetween25And50Rows) {
  Session s(kFiles);
  s.Keys("Down Alt-F9");
  EXPECT_EQ(s.Rows(), 50);
  EXPECT_EQ(BottomRow(s, kLeftSide), 47);
  EXPECT_EQ(s.Under(kLeftSide), "a.txt");
  EXPECT_EQ(BarRow(s, kLeftSide), 2);
  EXPECT_EQ(PromptRow(s), s.Path("left") + ">");
  s.Keys("Alt-F9");
  EXPECT_EQ(s.Rows(), 25);
  EXPECT_EQ(BottomRow(s, kRightSide), 22);
}

TEST(ScreenSize, AltF9KnowsTheRowsOfTheSettings) {
  Session between(kFiles, {.settings = "Lines=30\n"});
  EXPECT_EQ(between.Rows(), 30);
  for (int rows : {50, 25, 30, 50}) {
    between.Keys("Alt-F9");
    EXPECT_EQ(between.Rows(), rows);
  }
  between.Quit();
  Session above(kFiles, {.settings = "Lines=60\n"});
  for (int rows : {25, 50, 60, 25}) {
    above.Keys("Alt-F9");
    EXPECT_EQ(above.Rows(), rows);
  }
}

TEST(ScreenSize, AltShiftF9GoesThroughTheColumns) {
  Session s(kFiles);
  s.Keys("Alt-Shift-F9");
  EXPECT_EQ(s.Columns(), 132);
  EXPECT_EQ(s.Character(66, 0), U'╔');
  EXPECT_EQ(s.Character(131, 0), U'╗');
  s.Keys("Alt-Shift-F9");
  EXPECT_EQ(s.Columns(), 80);
}

TEST(ScreenSize, AltShiftF9KnowsTheColumnsOfTheSettings) {
  Session s(kFiles, {.settings = "Columns=100\n"});
  EXPECT_EQ(s.Columns(), 100);
  for (int columns : {80, 132, 100, 80}) {
    s.Keys("Alt-Shift-F9");
    EXPECT_EQ(s.Columns(), columns);
  }
}

TEST(ScreenSize, AHiddenPanelHasTheNewSizeWhenItComesBack) {
  Session s(kFiles);
  s.Keys("Ctrl-F2 Alt-F9 Ctrl-F2");
  EXPECT_EQ(BottomRow(s, kRightSide), 47);
  s.Keys("Ctrl-O Alt-Shift-F9 Ctrl-O");
  EXPECT_EQ(s.Character(66, 0), U'╔');
  EXPECT_EQ(BottomRow(s, kRightSide), 47);
}

TEST(ScreenSize, FullScreenOffShowsTheConsoleBelowThePanels) {
  Session s(kFiles);
  s.Keys("Down");
  s.Command(0x100131);
  EXPECT_EQ(BottomRow(s, kLeftSide), 14);
  EXPECT_EQ(s.Row(15).Trimmed(), "");
  EXPECT_EQ(s.Under(kLeftSide), "a.txt");
  EXPECT_EQ(BarRow(s, kLeftSide), 2);
  s.Command(0x100131);
  EXPECT_EQ(BottomRow(s, kLeftSide), 22);
}

TEST(ScreenSize, FullScreenLetsAHiddenPanelBeReadWhenItComesBack) {
  Session s(kFiles);
  s.Keys("Ctrl-F2");
  s.Write("right/y", "");
  s.Command(0x100131);
  s.Keys("Ctrl-F2");
  EXPECT_EQ(BottomRow(s, kRightSide), 14);
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "x", "y"}));
}

TEST(Toggles, ThousandSeparatorRedrawsBothPanels) {
  Session s({{"left/big", std::string(12345, 'x')}, {"right/big", std::string(12345, 'x')}});
  EXPECT_TRUE(PanelRow(s, kLeftSide, 2).Contains("   12345│"));
  s.Command(0x100136);
  EXPECT_TRUE(PanelRow(s, kLeftSide, 2).Contains("  12,345│"));
  EXPECT_TRUE(PanelRow(s, kRightSide, 2).Contains("  12,345│"));
  s.Command(0x100136);
  EXPECT_TRUE(PanelRow(s, kRightSide, 2).Contains("   12345│"));
  EXPECT_EQ(BarRow(s, kLeftSide), 1);
}

TEST(Toggles, RetainDirCountReadsBothPanels) {
  Session s;
  s.Write("left/a", "");
  s.Write("right/b", "");
  s.Command(0x100137);
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "a"}));
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "b"}));
}

TEST(Toggles, AreKeptByTheSettings) {
  Session s({{"home/.orvane/", ""}});
  for (Key command : {0x10012E, 0x10012F, 0x100131, 0x100132, 0x100133, 0x100136, 0x100137})
    s.Command(command);
  s.Keys("Shift-F9");
  const std::string saved = s.Content("home/.orvane/orvane.ini");
  for (const char* line : {"Hidden=on", "PathPrompt=off", "FullScreen=off", "Clock=on", "TagDirs=on",
                           "ThousandSep=on", "RetainCount=on"})
    EXPECT_NE(saved.find(std::string(line) + "\r\n"), std::string::npos) << line;
}
