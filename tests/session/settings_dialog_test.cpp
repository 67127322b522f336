// The Configuration dialog and what follows from it.
#include <gtest/gtest.h>

#include "config/values/options.h"
#include "console/console.h"
#include "session/main_screen.h"
#include "shell/menu_commands.h"

namespace {

constexpr char kSettings[] = "home/.orvane/orvane.ini";

// The inside of the dialog on a screen of 80 by 25.
constexpr int kInsideX = 3, kInsideY = 4;

// Tab to the group; the text fields are the first.
constexpr char kToNumbers[] = "Tab Tab ";
constexpr char kToTimeMode[] = "Tab Tab Tab ";

void Open(Session& s) { s.Command(kMenuConfiguration); }

void Configure(Session& s, const std::string& keys) {
  Open(s);
  s.Keys(keys);
}

bool IsOpen(const Session& s) { return s.FindRow(" Configuration ").has_value(); }

bool HasLine(const std::string& text, const std::string& line) {
  return ("\n" + text).find("\n" + line + "\r\n") != std::string::npos;
}

// The last section, as it is in the file now.
std::string SavedOptions(const Session& s) {
  const std::string text = s.Content(kSettings);
  const size_t head = text.find("[General Options]");
  return head == std::string::npos ? "" : text.substr(head);
}

// Every option of the dialog, from the first field to the last button.
constexpr char kChangeAll[] =
    "'view1' Down 'view2' Down 'edit1' Down 'edit2' Down '/left' Down '/right' Down 'xterm -e !' Down "
    "'/tree' Down 'vfat,msdos' Down '/opt/bin' "
    "Tab Space Down Space Down Space Down Space "
    "Tab '30' Down '90' Down '77' "
    "Tab Down Enter";

constexpr const char* kChangedLines[] = {
    "Viewer=view1",
    "Viewer2=view2",
    "Editor=edit1",
    "Editor2=edit2",
    "Left=/left",
    "Right=/right",
    "Background=xterm -e !",
    "TreeDir=/tree",
    "CaseFilter=vfat,msdos",
    "PathAppend=/opt/bin",
    "AutoSave=on",
    "PMClip=off",
    "Lines=30",
    "EscPanelSwitch=on",
    "SizeCountPause=on",
    "Columns=90",
    "ScrollDelay=77",
    "TimeMode=24",
};

}  // namespace

TEST(SettingsDialog, StandsInTheMiddleWithItsTitleOnTheFrame) {
  Session s;
  Open(s);
  EXPECT_EQ(s.Character(2, 3), U'╔');
  EXPECT_EQ(s.Character(77, 21), U'╝');
  EXPECT_EQ(s.Text(31, 3, 17), "═ Configuration ═");
  EXPECT_EQ(s.Attribute(40, 3), 0x70);
}

TEST(SettingsDialog, EveryLabelHasItsPlace) {
  Session s({}, {.settings = "Left=/start\nBackground=xterm !\nLines=25\nColumns=80\n"});
  Open(s);
  const std::string rows[] = {
      "",
      "  Viewer:                                          [ ]  Auto Save",
      "  Alternate Viewer:         pager                  [X]  Use X clipboard",
      "  Editor:                                          [ ]  ESC Panel Switch",
      "  Alternate Editor:         editor                 [ ]  Size Count Pause",
      "",
      "  Left Startup Directory:   /start                 Lines         25",
      "  Right Startup Directory:                         Columns       80",
      "                                                   Scroll Delay  10",
      "  Separate Session Prefix:  xterm !",
      "  Tree Data Directory:                             Time Mode",
      "  Case Filter File Systems:                        (•) 12 HR",
      "  Path Extension:                                  ( ) 24 HR",
      "",
      "",
      "",
      "                       [ OK ]  [ Cancel ]  [ Help ]",
  };
  for (int row = 0; row < 17; ++row) {
    std::string shown = s.Text(kInsideX, kInsideY + row, 74).String();
    shown.erase(shown.find_last_not_of(' ') + 1);
    EXPECT_EQ(shown, rows[row]) << row;
  }
  for (int x : {28, 47}) EXPECT_EQ(s.Attribute(kInsideX + x, kInsideY + 12), 0x30) << x;
  for (int x : {27, 48}) EXPECT_EQ(s.Attribute(kInsideX + x, kInsideY + 12), 0x70) << x;
  for (int x : {65, 67}) EXPECT_EQ(s.Attribute(kInsideX + x, kInsideY + 8), 0x30) << x;
  for (int x : {64, 68}) EXPECT_EQ(s.Attribute(kInsideX + x, kInsideY + 8), 0x70) << x;
}

TEST(SettingsDialog, AllThatIsEnteredIsSavedAndThereAfterTheNextStart) {
  std::string saved;
  {
    Session s;
    Configure(s, kChangeAll);
    EXPECT_FALSE(IsOpen(s));
    s.Keys("Shift-F9");
    saved = SavedOptions(s);
    for (const char* line : kChangedLines) EXPECT_TRUE(HasLine(saved, line)) << line;
  }
  Session s({}, {.settings = saved});
  EXPECT_EQ(s.Rows(), 30);
  EXPECT_EQ(s.Columns(), 90);
  s.Keys("Shift-F9");
  EXPECT_EQ(SavedOptions(s), saved);
}

// The values of the table above are all other ones than before.
TEST(SettingsDialog, CancelKeepsEveryOption) {
  Session s;
  s.Keys("Shift-F9");
  const std::string before = SavedOptions(s);
  for (const char* line : kChangedLines) EXPECT_FALSE(HasLine(before, line)) << line;
  std::string cancelled = kChangeAll;
  cancelled.replace(cancelled.rfind("Enter"), 5, "Tab Right Enter");
  Configure(s, cancelled);
  EXPECT_FALSE(IsOpen(s));
  s.Keys("Shift-F9");
  EXPECT_EQ(SavedOptions(s), before);
  EXPECT_EQ(s.Rows(), 25);
}

TEST(SettingsDialog, EscKeepsEveryOptionAndTheScreen) {
  Session s({{"left/a", ""}});
  s.Keys("Shift-F9");
  const std::string before = SavedOptions(s), screen = s.Screen();
  std::string cancelled = kChangeAll;
  cancelled.replace(cancelled.rfind("Enter"), 5, "Esc");
  Configure(s, cancelled);
  EXPECT_EQ(s.Screen(), screen);
  s.Keys("Shift-F9");
  EXPECT_EQ(SavedOptions(s), before);
}

TEST(SettingsDialog, EmptiedFieldsAreEmptyAfterwards) {
  Session s;
  Configure(s, "Down Del Ctrl-Del Down Down Ctrl-Del Enter");
  s.Keys("Shift-F9");
  EXPECT_TRUE(HasLine(SavedOptions(s), "Viewer2="));
  EXPECT_TRUE(HasLine(SavedOptions(s), "Editor2="));
}

TEST(SettingsDialog, ALongTextIsCutAtTheFieldAndNotInTheFile) {
  std::string saved;
  const std::string longest(511, 'w');
  {
    Session s;
    Configure(s, "'" + longest + "xyz' Enter Shift-F9");
    saved = SavedOptions(s);
    EXPECT_TRUE(HasLine(saved, "Viewer=" + longest));
  }
  Session s({}, {.settings = saved});
  s.Keys("Shift-F9");
  EXPECT_TRUE(HasLine(SavedOptions(s), "Viewer=" + longest));
}

TEST(SettingsDialog, HotLettersLeadToFieldsAndSwitches) {
  Session s;
  Configure(
      s,
      "Alt-p '/opt' Alt-d 'ed' Alt-i 'less' Alt-f 'vfat' Alt-t '/t' Alt-s 'xterm !' Alt-l '/l' Alt-r '/r' "
      "Alt-v 'v' Alt-e 'e' Alt-a Alt-x Alt-w Alt-u Alt-n '26' Alt-m '81' Alt-y '5' Alt-2 Alt-o");
  EXPECT_FALSE(IsOpen(s));
  s.Keys("Shift-F9");
  const std::string saved = SavedOptions(s);
  for (const char* line :
       {"PathAppend=/opt", "Editor2=ed", "Viewer2=less", "CaseFilter=vfat", "TreeDir=/t",
        "Background=xterm !", "Left=/l", "Right=/r", "Viewer=v", "Editor=e", "AutoSave=on", "PMClip=off",
        "EscPanelSwitch=on", "SizeCountPause=on", "Lines=26", "Columns=81", "ScrollDelay=5", "TimeMode=24"})
    EXPECT_TRUE(HasLine(saved, line)) << line;
}

TEST(SettingsDialog, TheHotLettersStandOut) {
  Session s;
  Open(s);
  const std::pair<int, int> letters[] = {{2, 1}, {13, 2}, {2, 3}, {13, 4}, {2, 6}, {7, 11}, {56, 1}, {53, 6}};
  for (const auto& [x, y] : letters)
    EXPECT_EQ(s.Attribute(kInsideX + x, kInsideY + y), 0x71) << x << ' ' << y;
  EXPECT_EQ(s.Attribute(kInsideX + 3, kInsideY + 1), 0x70);
}

TEST(SettingsDialog, F1ShowsHelpAndComesBackToTheDialogAsItWas) {
  Session s;
  Configure(s, "'mine' Tab Space");
  const std::string screen = s.Screen();
  s.Keys("F1");
  EXPECT_NE(s.Screen(), screen);
  s.Keys("Esc");
  EXPECT_EQ(s.Screen(), screen);
  s.Keys("Space Enter Shift-F9");
  EXPECT_TRUE(HasLine(SavedOptions(s), "Viewer=mine"));
  EXPECT_TRUE(HasLine(SavedOptions(s), "AutoSave=off"));
}

TEST(SettingsDialog, TheHelpButtonDoesTheSame) {
  Session s;
  Configure(s, "'mine' Shift-Tab Right Right");
  const std::string screen = s.Screen();
  s.Keys("Enter");
  EXPECT_NE(s.Screen(), screen);
  s.Keys("Esc");
  EXPECT_EQ(s.Screen(), screen);
  s.Keys("Left Enter Shift-F9");
  EXPECT_TRUE(HasLine(SavedOptions(s), "Viewer="));
}

// Radio buttons select what has the focus: just passing must not.
TEST(SettingsDialog, TabsAllRoundChangeNothing) {
  Session s({}, {.settings = "TimeMode=24\n"});
  s.Keys("Shift-F9");
  const std::string before = SavedOptions(s);
  Configure(s, "Tab Tab Tab Tab Tab Tab Shift-Tab Shift-Tab Shift-Tab Shift-Tab Enter Shift-F9");
  EXPECT_EQ(SavedOptions(s), before);
}

TEST(SettingsDialog, PanelsAreReadAgainAfterItAndOnlyAfterOk) {
  Session s({{"left/a", ""}});
  s.Write("left/new", "");
  s.Write("right/new", "");
  Configure(s, "Esc");
  EXPECT_EQ(s.Names(kLeftSide), (std::vector<std::string>{"..", "a"}));
  Configure(s, "Enter");
  EXPECT_EQ(s.Names(kLeftSide), (std::vector<std::string>{"..", "a", "new"}));
  EXPECT_TRUE(PanelRow(s, kLeftSide, 3).Contains("new"));
  EXPECT_TRUE(PanelRow(s, kRightSide, 2).Contains("new"));
}

TEST(SettingsDialog, AnotherCodePageTakesEffect) {
  Session s;
  Open(s);
  Options::CodePage = 437;  // no control of the dialog does this
  s.Keys("Enter");
  EXPECT_EQ(Console->CodePage(), 437);
}

TEST(SettingsDialogSize, LinesTakeEffectAtOnceAndBack) {
  Session s({{"left/a", ""}}, {.settings = "Clock=on\n"});
  Configure(s, std::string(kToNumbers) + "'60' Enter");
  EXPECT_EQ(s.Rows(), 60);
  EXPECT_EQ(s.Columns(), 80);
  EXPECT_TRUE(s.Row(59).StartsWith("1Help"));
  EXPECT_EQ(BottomRow(s, kLeftSide), 57);
  EXPECT_EQ(BarRow(s, kLeftSide), 1);
  Configure(s, std::string(kToNumbers) + "'25' Enter");
  EXPECT_EQ(s.Rows(), 25);
  EXPECT_TRUE(s.Row(24).StartsWith("1Help"));
  EXPECT_EQ(BottomRow(s, kRightSide), 22);
}

TEST(SettingsDialogSize, ColumnsTakeEffectAtOnce) {
  Session s;
  Configure(s, std::string(kToNumbers) + "Down '100' Enter");
  EXPECT_EQ(s.Columns(), 100);
  EXPECT_EQ(s.Rows(), 25);
  EXPECT_EQ(s.Character(50, 0), U'╔');
}

TEST(SettingsDialogSize, ZeroAndAnUnchangedSizeLeaveTheScreen) {
  Session s({}, {.settings = "Lines=30\nColumns=90\n"});
  s.Keys("Alt-F9");
  ASSERT_EQ(s.Rows(), 50);
  Configure(s, "Enter");
  EXPECT_EQ(s.Rows(), 50);
  Configure(s, std::string(kToNumbers) + "'0' Down Del Ctrl-Del Enter");
  EXPECT_EQ(s.Rows(), 50);
  EXPECT_EQ(s.Columns(), 90);
  EXPECT_EQ(Options::Lines, 0);
  EXPECT_EQ(Options::Columns, 0);
}

TEST(SettingsDialogSize, ACancelledSizeIsNotTaken) {
  Session s;
  Configure(s, std::string(kToNumbers) + "'60' Esc");
  EXPECT_EQ(s.Rows(), 25);
}

TEST(SettingsDialogSize, SizesOutOfReasonLeaveTheProgramAtWork) {
  for (const char* size :
       {"'1' Down '1'", "'3' Down '9'", "'24' Down '79'", "'7' Down '25'", "'999' Down '999'"}) {
    Session s(NumberedFiles("left", 40), {.settings = "Clock=on\n"});
    Configure(s, std::string(kToNumbers) + size + " Enter");
    s.Keys("Down PgDn End Ins Ctrl-O Ctrl-O Tab Ctrl-U F10 Esc 'x' Esc");
    Configure(s, "Esc");
    s.Keys("Alt-Shift-F9 Alt-F9 Alt-F9");
    s.Keys("'ok'");
    EXPECT_TRUE(PromptRow(s).ends_with(">ok")) << size;
  }
}

TEST(SettingsDialogSize, AScrollDelayOutOfReasonIsShownAndKept) {
  Session s({}, {.settings = "ScrollDelay=99999\n"});
  Configure(s, "Enter");
  EXPECT_EQ(Options::ScrollDelay, 99999);
  Configure(s, std::string(kToNumbers) + "Down Down '1234' Enter");
  EXPECT_EQ(Options::ScrollDelay, 123);
}

TEST(SettingsDialogClock, TheTimeModeTakesEffectAtOnce) {
  Session s({}, {.settings = "Clock=on\n"});
  EXPECT_EQ(s.Attribute(74, 0), 0x30);
  Configure(s, std::string(kToTimeMode) + "Down Enter");
  EXPECT_EQ(s.Attribute(75, 0), 0x30);
  EXPECT_EQ(s.Attribute(74, 0), 0x1B);
  EXPECT_EQ(s.Character(74, 0), U'═');
  EXPECT_TRUE(s.Character(79, 0) >= U'0' && s.Character(79, 0) <= U'9');
  Configure(s, std::string(kToTimeMode) + "Up Enter");
  EXPECT_EQ(s.Attribute(74, 0), 0x30);
  EXPECT_TRUE(s.Character(79, 0) == U'a' || s.Character(79, 0) == U'p');
}

TEST(SettingsDialogClock, KeepsItsModeWhileTheDialogIsOpen) {
  Session s({}, {.settings = "Clock=on\n"});
  Configure(s, std::string(kToTimeMode) + "Down");
  s.WaitFor([&] { return s.Character(76, 0) == U':'; });
  s.WaitFor([&] { return s.Character(76, 0) == U' '; });
  EXPECT_TRUE(s.Character(79, 0) == U'a' || s.Character(79, 0) == U'p');
  s.Keys("Esc");
  EXPECT_EQ(s.Attribute(74, 0), 0x30);
}

TEST(SettingsDialogClock, WithoutTheRightPanelTheConsoleComesBackBesideIt) {
  Session s({}, {.settings = "Clock=on\n"});
  s.Keys("Ctrl-F2");
  Configure(s, std::string(kToTimeMode) + "Down Enter");
  EXPECT_EQ(s.Attribute(74, 0), 0x07);
  EXPECT_EQ(s.Attribute(75, 0), 0x30);
}

TEST(SettingsDialogClock, StaysAwayWhereItIsOff) {
  Session s;
  Configure(s, std::string(kToTimeMode) + "Down Enter");
  EXPECT_EQ(s.Character(79, 0), U'╗');
}
