// What a key means: the order of the layers, and the conditions of commands.
#include "shell/dispatch.h"

#include "shell/menu_commands.h"
#include "unit/shell/shell_fixture.h"

namespace {

class Dispatch : public ShellFixture {
 protected:
  Dispatch() {
    CurrentModifiers = 0;
    Options::DisableInvert = Options::EscPanelSwitch = false;
    SetList(kStyleFull, 5, 20);
  }
  ~Dispatch() override { CurrentModifiers = 0; }

  // Acts on the key and returns what is to be painted.
  int Press(Key key) {
    TakeCurrent();
    shell.bothHidden = !panels[0].visible && !panels[1].visible;
    shell.cursorDirty = false;
    shell.key = key;
    DispatchKey(shell);
    return shell.redrawLevel;
  }
  void HideBoth() { panels[0].visible = panels[1].visible = false; }
};

}  // namespace

TEST_F(Dispatch, CharactersGoToTheCommandLine) {
  for (wchar_t c : {L' ', L'+', L'~', L'\x80', L'\xE9', L'\xFFFF'}) {
    SetLine(L"|");
    EXPECT_EQ(Press(static_cast<Key>(c)), kRedrawLine);
    EXPECT_EQ(Line(), std::wstring(1, c) + L"|");
  }
}

TEST_F(Dispatch, ControlCodesAndExtendedKeysAreNoCharacters) {
  for (Key key : std::initializer_list<Key>{1, 31, 127, 0x10085, 0x1F600, 0x20000, 0x30054, 0x100011,
                                            kModifierKey, 0}) {
    Press(key);
    EXPECT_EQ(Line(), L"|") << std::hex << key;
  }
}

TEST_F(Dispatch, AFullLineTakesNoCharacter) {
  SetCommandLine(shell, Westring::Replicate(L'a', 512));
  EXPECT_EQ(Press('b'), kRedrawNothing);
  EXPECT_EQ(Length(shell.commandLine), 512);
}

TEST_F(Dispatch, TheGreyStarIsACharacterWhereInvertingIsOff) {
  Press(kGreyStar);
  EXPECT_EQ(Line(), L"|");
  Options::DisableInvert = true;
  Press(kGreyStar);
  EXPECT_EQ(Line(), L"*|");
}

TEST_F(Dispatch, TypingKeepsTheQuickSearch) {
  CopyText(panel.quickSearch, L"f0");
  Press('a');
  EXPECT_STREQ(panel.quickSearch, L"f0");
}

TEST_F(Dispatch, MovingInTheListAndEscapeEndTheQuickSearch) {
  for (Key key : {kUp, kDown, kHome, kEnd, kPageUp, kPageDown, kInsert, kEscape}) {
    CopyText(panel.quickSearch, L"f0");
    Press(key);
    EXPECT_STREQ(panel.quickSearch, L"") << std::hex << key;
  }
}

TEST_F(Dispatch, TheRootsMenuCommandEndsTheQuickSearchAsItsKeyDoes) {
  CopyText(panel.path, L"/");
  for (Key key : {kCtrlBackslash, kAltBackslash}) {
    CopyText(panel.quickSearch, L"f0");
    Press(key);
    EXPECT_STREQ(panel.quickSearch, L"") << std::hex << key;
  }
}

TEST_F(Dispatch, EscapeWithControlInsertsTheLeftPath) {
  CopyText(panel.path, L"/left");
  SetLine(L"x|");
  CurrentModifiers = kModCtrl;
  EXPECT_EQ(Press(kEscape), kRedrawLine);
  EXPECT_EQ(Line(), L"x/left/|");
  CurrentModifiers = 0;
  Press(kEscape);
  EXPECT_EQ(Line(), L"|");
}

TEST_F(Dispatch, KeysOfTheCommandLineLeaveThePanelCursorAsItIs) {
  SetLine(L"one two| three");
  for (Key key :
       std::initializer_list<Key>{kDelete, kAltLeft, kAltRight, kCtrlLeft, kCtrlRight, CtrlLetter('s'),
                                  CtrlLetter('d'), kLeft, kRight, kModifierKey, 'a'}) {
    Press(key);
    EXPECT_FALSE(shell.cursorDirty) << std::hex << key;
  }
  for (Key key : {kUp, kDown, kEnd, kCtrlHome, kEscape, kBackspace}) {
    Press(key);
    EXPECT_TRUE(shell.cursorDirty) << std::hex << key;
  }
}

TEST_F(Dispatch, SidewaysKeysOfBriefMoveThePanelCursor) {
  SetList(kStyleBrief, 5, 20);
  Press(kRight);
  EXPECT_TRUE(shell.cursorDirty);
  EXPECT_EQ(panel.CurrentIndex(), 5);
}

TEST_F(Dispatch, WithBothPanelsOffTheKeysOfTheListDoNothing) {
  HideBoth();
  for (Key key : {kPageUp, kPageDown, kInsert, kAltDown, kCtrlPageDown}) {
    EXPECT_EQ(Press(key), kRedrawNothing) << std::hex << key;
    EXPECT_EQ(panel.CurrentIndex(), 0);
    EXPECT_EQ(panel.taggedCount, 0);
  }
}

TEST_F(Dispatch, SortKeysAreTheMenusCommandsOfTheActiveSide) {
  EXPECT_EQ(Press(CtrlFKey(5)), kRedrawAll);
  EXPECT_EQ(panels[0].sortKey, 2);
  Press(CtrlFKey(8));
  EXPECT_EQ(panels[0].sortKey, 7);
  ActiveSide = 1;
  Press(CtrlFKey(6));
  EXPECT_EQ(panels[1].sortKey, 3);
  Press(kMenuLeftReverse);
  EXPECT_EQ(panels[0].sortKey, 2);
}

TEST_F(Dispatch, DigitsStoreThePathOfTheActivePanel) {
  CopyText(panels[1].path, L"/right");
  ActiveSide = 1;
  Press(CtrlShiftDigit(4));
  Press(CtrlShiftPadDigit(5));
  EXPECT_STREQ(StoredDirectories[4].Text(), L"/right");
  EXPECT_STREQ(StoredDirectories[5].Text(), L"/right");
  StoredDirectories[4] = StoredDirectories[5] = L"";
}

TEST_F(Dispatch, ATreeGivesThePathOfItsRow) {
  SetTree();
  CopyText(panels[1].path, L"/right");
  Place(0, 2);
  Press(CtrlShiftDigit(4));
  EXPECT_STREQ(StoredDirectories[4].Text(), L"/a/b");
  StoredDirectories[4] = L"";
  SetLine(L"|");
  Press(CtrlLetter('f'));
  EXPECT_EQ(Line(), L"/a/b |");
}

TEST_F(Dispatch, DigitsStoreNothingWhereNoFilesAreShown) {
  CopyText(panel.path, L"/left");
  panel.panelType = kPanelInfo;
  Press(CtrlShiftDigit(4));
  panel.panelType = kPanelFiles;
  HideBoth();
  Press(CtrlShiftDigit(4));
  EXPECT_TRUE(StoredDirectories[4].IsEmpty());
}

TEST_F(Dispatch, UnknownKeysDoNothing) {
  SetLine(L"a|b");
  for (Key key : {CtrlFKey(9), Key{0x10086}, Key{0x100FFF}, CtrlDigit(7)}) {
    EXPECT_EQ(Press(key), kRedrawNothing) << std::hex << key;
    EXPECT_EQ(Line(), L"a|b");
  }
}
