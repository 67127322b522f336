// The command line on the screen: its prompt, what is typed, and what keys put
// into it.
#include <gtest/gtest.h>

#include "console/console.h"
#include "session/main_screen.h"

namespace {

std::string LineOf(const Session& s) { return PromptRow(s).substr(PromptRow(s).find('>') + 1); }

int PromptWidth(const Session& s) { return static_cast<int>(s.Path("left").size()) + 1; }

// The cursor's place in the line, where nothing is scrolled.
int CursorIn(const Session& s) { return s.Cursor().first - PromptWidth(s); }

std::string Clipboard() {
  Westring text;
  Console->GetClipboardText(text);
  return ToUtf8(text).Text();
}

}  // namespace

TEST(CommandLine, TypedTextStandsBehindThePromptWithTheCursor) {
  Session s;
  s.Keys("'ls -l +'");
  EXPECT_EQ(PromptRow(s), s.Path("left") + ">ls -l +");
  EXPECT_EQ(s.Cursor(), std::pair(PromptWidth(s) + 7, 23));
}

TEST(CommandLine, AllOfUnicodeCanBeTyped) {
  Session s;
  s.Keys("'naïve Ωμέγα 世界 שלום'");
  EXPECT_EQ(LineOf(s), "naïve Ωμέγα 世界 שלום");
  s.Keys("Backspace Backspace Home Ctrl-Left Ctrl-Left Ctrl-Del");
  EXPECT_EQ(LineOf(s), "naïve Ωμέγα  של");
}

TEST(CommandLine, ACharacterAboveTheBasicPlaneIsPassedOver) {
  Session s;
  s.Keys("'a😀b'");
  EXPECT_EQ(LineOf(s), "ab");
}

TEST(CommandLine, EditingKeysWorkInTheMiddleOfTheLine) {
  Session s;
  s.Keys("'copy one two' Ctrl-Left Ctrl-Backspace");
  EXPECT_EQ(LineOf(s), "copy two");
  s.Keys("Ctrl-Home Del Ctrl-End Backspace Ctrl-S Backspace");
  EXPECT_EQ(LineOf(s), "opy w");
  EXPECT_EQ(CursorIn(s), 4);
  s.Keys("Ctrl-D Ctrl-D x Alt-Left Alt-Left Alt-Right y");
  EXPECT_EQ(LineOf(s), "opy wyx");
}

TEST(CommandLine, DeletingInAnEmptyLineDoesNothing) {
  Session s;
  s.Keys("Del Backspace Ctrl-Del Ctrl-Backspace");
  EXPECT_EQ(LineOf(s), "");
  EXPECT_EQ(CursorIn(s), 0);
  s.Keys("'ab' Ctrl-Home Backspace");
  EXPECT_EQ(LineOf(s), "ab");
}

TEST(CommandLine, CtrlRightGoesToEndsOrStartsOfWordsByOption) {
  Session ends;
  ends.Keys("'one two' Ctrl-Home Ctrl-Right");
  EXPECT_EQ(CursorIn(ends), 3);
  ends.Keys("F10 Enter");
  Session starts({}, {.settings = "BriefWordRight=off\n"});
  starts.Keys("'one two' Ctrl-Home Ctrl-Right");
  EXPECT_EQ(CursorIn(starts), 4);
}

TEST(CommandLine, ALongLineScrollsUnderTheCursor) {
  Session s;
  const std::string digits = "0123456789",
                    text = digits + digits + digits + digits + digits + digits + digits;
  s.Keys("'" + text + "'");
  const int room = 80 - PromptWidth(s);
  EXPECT_EQ(s.Cursor(), std::pair(79, 23));
  EXPECT_EQ(LineOf(s), text.substr(text.size() - room + 1));
  s.Keys("Ctrl-Home");
  EXPECT_EQ(LineOf(s), text.substr(0, room));
  EXPECT_EQ(CursorIn(s), 0);
  s.Keys("Ctrl-End");
  EXPECT_EQ(s.Cursor().first, 79);
}

TEST(CommandLine, TakesFiveHundredAndTwelveCharacters) {
  Session s;
  s.Keys("'" + std::string(512, 'a') + "bb' Ctrl-Ins");
  EXPECT_EQ(Clipboard(), std::string(512, 'a'));
}

TEST(CommandLine, ThePromptIsTwoCharactersWithoutPathPrompt) {
  Session s;
  s.Command(0x10012F);
  EXPECT_EQ(PromptRow(s), "/t>");
  s.Keys("x");
  EXPECT_EQ(PromptRow(s), "/t>x");
  s.Command(0x10012F);
  EXPECT_EQ(PromptRow(s), s.Path("left") + ">x");
}

TEST(CommandLine, ThePromptIsShortenedToHalfTheScreen) {
  Session s({{"left/a-directory-with-a-long-name/x", ""}});
  s.Keys("Down Enter");
  const std::string path = s.Path("left/a-directory-with-a-long-name");
  EXPECT_EQ(PromptRow(s), "/tmp/..." + path.substr(path.size() - 31) + ">");
}

TEST(CommandLine, ThePromptOfAnInfoPanelIsTheOtherPanels) {
  Session s;
  s.Keys("Ctrl-L Tab");
  EXPECT_EQ(s.Active(), kRightSide);
  EXPECT_EQ(PromptRow(s), s.Path("left") + ">");
}

TEST(CommandLine, EscapeEmptiesTheLine) {
  Session s;
  s.Keys("'some text' Esc");
  EXPECT_EQ(LineOf(s), "");
  EXPECT_EQ(CursorIn(s), 0);
  s.Keys("Esc");
  EXPECT_TRUE(IsShown(s, kLeftSide));
}

TEST(CommandLine, EscapeOnAnEmptyLineSwitchesThePanelsByOption) {
  Session s({}, {.settings = "EscPanelSwitch=on\n"});
  s.Keys("x Esc");
  EXPECT_EQ(LineOf(s), "");
  EXPECT_TRUE(IsShown(s, kLeftSide));
  s.Keys("Esc");
  EXPECT_FALSE(IsShown(s, kLeftSide));
  EXPECT_FALSE(IsShown(s, kRightSide));
  s.Keys("Esc");
  EXPECT_TRUE(IsShown(s, kLeftSide));
  EXPECT_TRUE(IsShown(s, kRightSide));
}

TEST(CommandLine, BracketsInsertThePathsOfBothPanels) {
  Session s;
  s.Keys("'cp ' Ctrl-[");
  EXPECT_EQ(LineOf(s), "cp " + s.Path("left") + "/");
  s.Keys("Esc Tab 'cp ' Ctrl-]");
  EXPECT_EQ(LineOf(s), "cp " + s.Path("right") + "/");
}

TEST(CommandLine, BracketsOnARootInsertOneSlash) {
  Session s({}, {.arguments = {{"-l", "/", "-r", "/"}}});
  s.Keys("Ctrl-[ Space Ctrl-]");
  EXPECT_EQ(PromptRow(s), "/>/ /");
}

TEST(CommandLine, CtrlEnterInsertsTheNameUnderTheCursor) {
  Session s({{"left/my file!.txt", ""}});
  s.Keys("Down 'rm ' Ctrl-Enter");
  EXPECT_EQ(LineOf(s), "rm my\\ file\\!!.txt");
  EXPECT_EQ(CursorIn(s), 19);
  s.Keys("'; ' Ctrl-J");
  EXPECT_EQ(LineOf(s), "rm my\\ file\\!!.txt ; my\\ file\\!!.txt");
}

TEST(CommandLine, CtrlShiftJInsertsTheNameAlsoBehindALetter) {
  Session s({{"left/file", ""}});
  s.Keys("'true' Enter Down 't' Ctrl-Shift-j");
  EXPECT_EQ(LineOf(s), "tfile");
}

TEST(CommandLine, CtrlShiftEnterTakesTheNameToTheClipboard) {
  Session s({{"left/my file", ""}});
  s.Keys("Down Ctrl-Shift-Enter");
  EXPECT_EQ(LineOf(s), "");
  EXPECT_EQ(Clipboard(), "my file");
}

TEST(CommandLine, CtrlFInsertsThePathOfTheEntry) {
  Session s({{"left/my file", ""}});
  s.Keys("Down Ctrl-f");
  EXPECT_EQ(LineOf(s), s.Path("left/my\\ file"));
  s.Keys("Ctrl-Shift-f");
  EXPECT_EQ(Clipboard(), s.Path("left/my file"));
}

TEST(CommandLine, ClipboardKeysCopyTheLineAndPasteAtTheCursor) {
  Session s;
  s.Keys("'one two' Ctrl-Ins Esc");
  EXPECT_EQ(Clipboard(), "one two");
  s.Keys("'<>' Left Shift-Ins");
  EXPECT_EQ(LineOf(s), "<one two>");
  EXPECT_EQ(CursorIn(s), 8);
}

TEST(CommandLine, PastedLineEndsAndTabsBecomeBlanks) {
  Session s;
  Console->SetClipboardText(Westring(L"a\nb\r\nc\td\n"));
  s.Keys("Shift-Ins x");
  EXPECT_EQ(LineOf(s), "a b c d x");
}

TEST(CommandLine, APasteThatWouldNotFitIsPassedOver) {
  Session s;
  Console->SetClipboardText(Westring::Replicate(L'a', 511));
  s.Keys("b Shift-Ins");
  EXPECT_EQ(LineOf(s), "b");
  s.Keys("Backspace Shift-Ins Ctrl-Home");
  EXPECT_EQ(LineOf(s), std::string(80 - PromptWidth(s), 'a'));
}

TEST(CommandLine, AnEmptyClipboardPastesNothing) {
  Session s;
  Console->SetClipboardText(Westring());
  s.Keys("a Shift-Ins b");
  EXPECT_EQ(LineOf(s), "ab");
}

TEST(CommandLine, AStarOfTheGreyKeyIsTypedWhereInvertingIsOff) {
  Session s({}, {.settings = "DisableInvert=on\n"});
  s.Keys("'ls ' Grey*");
  EXPECT_EQ(LineOf(s), "ls *");
  s.Keys("Grey+ Esc Grey- Esc");
  EXPECT_EQ(LineOf(s), "ls *");
}
