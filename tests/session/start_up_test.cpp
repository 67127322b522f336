// How the program comes up and how it ends.
#include <gtest/gtest.h>

#include "console/console.h"
#include "foundation/code_pages.h"
#include "session/main_screen.h"

namespace {

const char kQuestion[] = "Are you sure you want to exit Orvane ?";

SessionSetup Settings(const std::string& text) { return {.settings = text}; }

SessionSetup Arguments(const std::vector<std::string>& arguments, const std::string& settings = "") {
  return {.settings = settings, .arguments = arguments};
}

}  // namespace

TEST(StartUp, TheLeftPanelIsActiveWithItsPathInThePrompt) {
  Session s;
  EXPECT_EQ(s.Active(), kLeftSide);
  EXPECT_EQ(PromptRow(s), s.Path("left") + ">");
  EXPECT_EQ(s.Attribute(0, 23), 0x07);
  EXPECT_EQ(BarRow(s, kLeftSide), 1);
  EXPECT_EQ(BarRow(s, kRightSide), -1);
}

TEST(StartUp, StartupSideMakesTheRightPanelActive) {
  Session s({}, Settings("StartupSide=R\n"));
  EXPECT_EQ(s.Active(), kRightSide);
  EXPECT_EQ(PromptRow(s), s.Path("right") + ">");
  EXPECT_EQ(BarRow(s, kRightSide), 1);
}

TEST(StartUp, PanelsStandInTheCurrentDirectoryWithoutAnyOther) {
  Session s({}, Arguments({}));
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path());
  EXPECT_EQ(s.PanelPath(kRightSide), s.Path());
}

TEST(StartUp, TheSettingsNameStartDirectories) {
  Session s({}, Arguments({}, "Left=/usr\nRight=/\n"));
  EXPECT_EQ(s.PanelPath(kLeftSide), "/usr");
  EXPECT_EQ(s.PanelPath(kRightSide), "/");
}

TEST(StartUp, ArgumentsGoBeforeTheSettings) {
  Session s({{"here/", ""}}, Arguments({"-r", "here"}, "Left=/usr\nRight=/\n"));
  EXPECT_EQ(s.PanelPath(kLeftSide), "/usr");
  EXPECT_EQ(s.PanelPath(kRightSide), s.Path("here"));
}

TEST(StartUp, TwentyRowsStayAndEightyColumnsAreForced) {
  Session s({}, Settings("Lines=20\nColumns=100\n"));
  EXPECT_EQ(s.Rows(), 20);
  EXPECT_EQ(s.Columns(), 80);
  EXPECT_EQ(BottomRow(s, kLeftSide), 17);
  EXPECT_TRUE(s.Row(19).StartsWith("1Help"));
}

TEST(StartUp, SixtyColumnsBecomeEighty) {
  Session s({}, Settings("Lines=30\nColumns=60\n"));
  EXPECT_EQ(s.Rows(), 30);
  EXPECT_EQ(s.Columns(), 80);
}

TEST(StartUp, ALargerScreenIsTakenAsItIs) {
  Session s({}, Settings("Lines=43\nColumns=132\n"));
  EXPECT_EQ(s.Rows(), 43);
  EXPECT_EQ(s.Columns(), 132);
  EXPECT_TRUE(s.Text(66, 0, 1) == "╔");
  EXPECT_TRUE(s.Row(42).StartsWith("1Help        2Menu"));
}

TEST(StartUp, PanelsOfFiftyRowsFillTheScreen) {
  Session s({}, Settings("Lines=50\n"));
  EXPECT_EQ(BottomRow(s, kLeftSide), 44 + 3);
  EXPECT_EQ(BottomRow(s, kRightSide), 44 + 3);
}

TEST(StartUp, WithoutFullScreenPanelsTakeHalfOfIt) {
  Session s({}, Settings("Lines=50\nFullScreen=off\n"));
  EXPECT_EQ(BottomRow(s, kLeftSide), 23 + 3);
  EXPECT_EQ(s.Attribute(1, 27), 0x07);
}

TEST(StartUp, PanelsComeUpAsTheSettingsDescribeThem) {
  Session s({{"left/b.txt", "12"}, {"left/a.c", "1"}, {"left/c.txt", "123"}},
            Settings("LeftSort=size\nLeftFilter=*.txt\nRightShowing=off\nLeftStyle=brief\n"));
  EXPECT_EQ(s.Names(kLeftSide), (std::vector<std::string>{"..", "c.txt", "b.txt"}));
  EXPECT_TRUE(s.Row(1).StartsWith("║..          │            │            ║"));
  EXPECT_FALSE(IsShown(s, kRightSide));
}

TEST(StartUp, AnInfoPanelHasItsListingAtOnce) {
  Session s({{"right/a", ""}}, Settings("RightType=info\n"));
  EXPECT_TRUE(PanelRow(s, kRightSide, 0).Contains(" INFO "));
  EXPECT_EQ(s.Names(kRightSide), (std::vector<std::string>{"..", "a"}));
  s.Keys("Ctrl-L");
  EXPECT_TRUE(PanelRow(s, kRightSide, 2).Contains("║a "));
}

TEST(StartUp, WithBothPanelsOffTheCommandLineTakesKeys) {
  Session s({}, Settings("LeftShowing=off\nRightShowing=off\n"));
  EXPECT_FALSE(IsShown(s, kLeftSide));
  EXPECT_FALSE(IsShown(s, kRightSide));
  s.Keys("'ls'");
  EXPECT_EQ(PromptRow(s), s.Path("left") + ">ls");
  EXPECT_TRUE(s.Row(24).StartsWith("1Help"));
  s.Keys("+Shift");
  EXPECT_TRUE(s.Row(24).StartsWith("1Manual"));
}

TEST(StartUp, WithTheActivePanelOffTheOtherBecomesActive) {
  Session s({}, Settings("LeftShowing=off\n"));
  EXPECT_EQ(s.Active(), kRightSide);
  EXPECT_EQ(BarRow(s, kRightSide), 1);
}

TEST(StartUp, TheCodePageIsTheOptionsOr850) {
  {
    Session s({}, Settings("CodePage=866\n"));
    EXPECT_EQ(DefaultCodePage, 866);
  }
  Session s({}, Settings("CodePage=0\n"));
  EXPECT_EQ(DefaultCodePage, 850);
}

TEST(StartUp, AnOddColumnIsLeftOnTheRight) {
  Session s({}, Settings("Columns=101\n"));
  EXPECT_EQ(s.Character(49, 0), U'╗');
  EXPECT_EQ(s.Character(99, 0), U'╗');
  EXPECT_EQ(s.Character(100, 0), U' ');
}

TEST(MainLoop, APassPaintsNoMoreThanItsActionAsksFor) {
  Session s;
  Console->PutString(70, 23, L"mark", 0x07);
  Console->PutString(79, 24, L"X", 0x07);
  s.Keys("Del");  // nothing to delete
  EXPECT_EQ(s.Text(70, 23, 4), "mark");
  s.Keys("a");  // the command line alone
  EXPECT_EQ(s.Text(70, 23, 4), "    ");
  EXPECT_EQ(s.Character(79, 24), U'X');
  s.Keys("+Shift");
  EXPECT_EQ(s.Character(79, 24), U'e');  // of "10MenuRe"
}

TEST(MainLoop, TheCursorIsAThinLineWhileTheProgramWaits) {
  Session s;
  EXPECT_EQ(Console->CursorSize(), 15);
}

TEST(Quit, AsksInTheColourOfMessages) {
  Session s;
  s.Keys("F10");
  const auto row = s.FindRow(kQuestion);
  ASSERT_TRUE(row);
  EXPECT_EQ(s.Attribute(40, *row), 0x70);
  EXPECT_TRUE(s.FindRow("OK"));
  EXPECT_TRUE(s.FindRow("Cancel"));
}

TEST(Quit, EscapeAndOtherKeysReturnToTheLoop) {
  Session s;
  s.Keys("F10 Esc");
  EXPECT_FALSE(s.HasEnded());
  EXPECT_FALSE(s.FindRow(kQuestion));
  s.Keys("F10 n Esc 'x'");
  EXPECT_EQ(PromptRow(s), s.Path("left") + ">x");
}

TEST(Quit, YesOkAndEnterEndTheProgram) {
  for (const char* answer : {"F10 y", "F10 Alt-o", "F10 Enter"}) {
    Session s;
    s.Keys(answer);
    ASSERT_TRUE(s.HasEnded()) << answer;
    EXPECT_EQ(s.ExitCode(), 0);
  }
}

TEST(Quit, TheFourthBitOfConfirmationsAsksNothing) {
  Session s({}, Settings("Confirmations=8\n"));
  s.Keys("F10");
  EXPECT_TRUE(s.HasEnded());
}

TEST(Quit, TheOtherBitsOfConfirmationsStillAsk) {
  Session s({}, Settings("Confirmations=23\n"));
  s.Keys("F10");
  EXPECT_TRUE(s.FindRow(kQuestion));
}

TEST(Quit, AModifierHeldWhileTheWindowClosesDoesNotCount) {
  Session s;
  s.Keys("+Shift");
  s.Command(FKey(10));
  EXPECT_TRUE(s.FindRow(kQuestion));
}

TEST(ExitScript, HoldsThePathOfTheActivePanel) {
  Session s({}, {.arguments = std::vector<std::string>{"-l", "/usr/bin", "-x", "script"}});
  s.Quit();
  EXPECT_EQ(s.Content("script"), "/:\r\ncd \"sr/bin\"\r\n");
}

TEST(ExitScript, IsMadeWhereTheProgramWasStarted) {
  Session s({}, {.arguments = std::vector<std::string>{"-l", "left", "-r", "/usr", "-x", "script"}});
  s.Keys("Tab");
  s.Quit();
  EXPECT_EQ(s.Content("script"), "/:\r\ncd \"sr\"\r\n");
  EXPECT_FALSE(s.Exists("left/script"));
}

TEST(ExitScript, IsNotThereBeforeTheEnd) {
  Session s({}, {.arguments = std::vector<std::string>{"-x", "script"}});
  EXPECT_FALSE(s.Exists("script"));
}

TEST(SaveSetup, ShiftF9WritesTheSettings) {
  Session s({{"home/.orvane/", ""}});
  s.Keys("Alt-Shift-F1 Shift-F9");
  EXPECT_NE(s.Content("home/.orvane/orvane.ini").find("LeftStyle=brief\r\n"), std::string::npos);
}

TEST(SaveSetup, TheMenusCommandWritesThemToo) {
  Session s({{"home/.orvane/", ""}});
  s.Keys("Tab");
  s.Command(0x100134);
  EXPECT_NE(s.Content("home/.orvane/orvane.ini").find("StartupSide=R\r\n"), std::string::npos);
}

TEST(SaveSetup, AutoSaveWritesAtTheEnd) {
  Session s({}, Settings("AutoSave=on\n"));
  s.Keys("Ctrl-F2");
  EXPECT_EQ(s.Content("home/.orvane/orvane.ini"), "AutoSave=on\n");
  s.Quit();
  EXPECT_NE(s.Content("home/.orvane/orvane.ini").find("RightShowing=off\r\n"), std::string::npos);
}

TEST(SaveSetup, WithoutAutoSaveTheFileStaysAsItWas) {
  Session s({}, Settings("Clock=off\n"));
  s.Keys("Ctrl-F2");
  s.Quit();
  EXPECT_EQ(s.Content("home/.orvane/orvane.ini"), "Clock=off\n");
}
