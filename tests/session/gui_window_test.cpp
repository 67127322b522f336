// The panel's directory in the desktop's file browser.
#include <unistd.h>

#include "console/console.h"
#include "session/browser_fixture.h"

namespace {

using GuiWindow = BrowserFixture;

}  // namespace

TEST_F(GuiWindow, CtrlWOpensThePanelsDirectory) {
  Session& s = Start({"nautilus"});
  s.Keys("Ctrl-W");
  EXPECT_EQ(Told(), "<nautilus><--browser><" + s.Path("left") + ">@" + s.Path("left"));
}

TEST_F(GuiWindow, ItIsTheActivePanels) {
  Session& s = Start({"nautilus"});
  s.Keys("Tab Ctrl-W");
  EXPECT_EQ(Told(), "<nautilus><--browser><" + s.Path("right") + ">@" + s.Path("right"));
}

TEST_F(GuiWindow, TheFirstBrowserIsTaken) {
  Session& s = Start({"dolphin", "nautilus"});
  s.Keys("Ctrl-W");
  EXPECT_EQ(Told(), "<nautilus><--browser><" + s.Path("left") + ">@" + s.Path("left"));
}

TEST_F(GuiWindow, TheSecondBrowserStandsInForTheFirst) {
  Session& s = Start({"dolphin"});
  s.Keys("Ctrl-W");
  EXPECT_EQ(Told(), "<dolphin><" + s.Path("left") + ">@" + s.Path("left"));
}

TEST_F(GuiWindow, AnyNameOfADirectoryArrivesAsOneArgument) {
  const std::string name = "-a  b\n'c' \"d\" $HOME `e` \\f\t;&|<>(g){h}[i]*?#~!%^=\xC3\xA9\xE4\xB8\x96\\";
  Session& s = Start({"nautilus"}, {{"left/" + name + "/", ""}});
  s.Keys("Down Enter");
  ASSERT_EQ(s.PanelPath(kLeftSide), s.Path("left/" + name));
  s.Keys("Ctrl-W");
  EXPECT_EQ(Told(), "<nautilus><--browser><" + s.Path("left/" + name) + ">@" + s.Path("left/" + name));
}

TEST_F(GuiWindow, ANameMayEndInWhatACommandEndsIn) {
  for (const std::string name : {"blank ", "both &", "slash\\", "slash\\ "}) {
    Session& s = Start({"dolphin"}, {{"left/" + name + "/", ""}});
    s.Keys("Down Enter Ctrl-W");
    EXPECT_EQ(Told(), "<dolphin><" + s.Path("left/" + name) + ">@" + s.Path("left/" + name));
    session.reset();
  }
}

TEST_F(GuiWindow, WithoutABrowserNothingHappens) {
  Session& s = Start({});
  s.Write("left/new", "");
  const std::string before = s.Screen();
  s.Keys("Ctrl-W");
  EXPECT_EQ(s.Screen(), before);
  EXPECT_EQ(s.Names(kLeftSide), Strings{".."});  // no panel was owed a read
}

TEST_F(GuiWindow, BothPanelsAreReadAfterIt) {
  Session& s = Start({"nautilus"});
  s.Write("left/new", "");
  s.Write("right/other", "");
  s.Keys("Ctrl-W");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "new"}));
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "other"}));
  EXPECT_TRUE(PanelRow(s, kLeftSide, 2).Contains("new "));
  EXPECT_EQ(BarRow(s, kLeftSide), 1);
  Told();
}

TEST_F(GuiWindow, AllLinesArePaintedAnew) {
  Session& s = Start({"nautilus"});
  Console->PutString(70, 23, L"mark", 0x07);
  Console->PutString(79, 24, L"X", 0x07);
  s.Command(CtrlLetter('w'));
  EXPECT_EQ(s.Text(70, 23, 4), "    ");
  EXPECT_NE(s.Character(79, 24), U'X');
  Told();
}

TEST_F(GuiWindow, ADirectoryThatCannotBeEnteredIsToldAndNothingRuns) {
  Session& s = Start({"nautilus"});
  ASSERT_EQ(rmdir(s.Path("left").c_str()), 0);
  s.Write("right/new", "");
  s.Keys("Ctrl-W");
  const auto row = s.FindRow("No such file or directory (2)");
  ASSERT_TRUE(row);
  EXPECT_TRUE(s.Row(*row + 1).Contains(" " + s.Path("left") + " "));
  s.Keys("Esc");
  EXPECT_FALSE(s.Exists("home/told"));
  EXPECT_EQ(s.Names(kRightSide), Strings{".."});
}

TEST_F(GuiWindow, WithBothPanelsOffOrOnInformationTheKeyDoesNothing) {
  Session& s = Start({"nautilus"});
  s.Write("left/new", "");
  s.Keys("Ctrl-O Ctrl-W Ctrl-O Ctrl-L Tab Ctrl-W Tab Ctrl-L");
  EXPECT_EQ(s.Names(kLeftSide), Strings{".."});
  EXPECT_FALSE(s.Exists("home/told"));
}
