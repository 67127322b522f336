// Quick search and selection by the keys of the main loop, on panels without a
// window.
#include <vector>

#include "shell/dispatch.h"
#include "shell/menu_commands.h"
#include "unit/shell/shell_fixture.h"

namespace {

constexpr Key kAltF = 0x10021, kAlt0 = 0x10081, kAltL = 0x10026;

// A call of a tree's hooks.
struct Opening {
  char what;
  int row;
  bool open;
  bool operator==(const Opening&) const = default;
};
std::vector<Opening> openings;

class SearchKeys : public ShellFixture {
 protected:
  SearchKeys() {
    CurrentModifiers = 0;
    Options::StickyAlt = Options::DisableInvert = Options::TagDirs = false;
    SetList(kStyleFull, 5, 20);
  }
  ~SearchKeys() override {
    CurrentModifiers = 0;
    ThePanelHooks = {};
  }

  int Press(Key key) {
    TakeCurrent();
    shell.bothHidden = !panels[0].visible && !panels[1].visible;
    shell.cursorDirty = false;
    shell.key = key;
    DispatchKey(shell);
    return shell.redrawLevel;
  }
  std::wstring Text() const { return panel.quickSearch; }

  void SetTreeHooks() {
    openings.clear();
    SetTree();
    Place(0, 1);
    ThePanelHooks.openNode = [](TPanel&, int row, bool open) { openings.push_back({'n', row, open}); };
    ThePanelHooks.openBranch = [](TPanel&, int row, bool open) { openings.push_back({'b', row, open}); };
  }
};

}  // namespace

TEST_F(SearchKeys, AltWithACharacterSearches) {
  EXPECT_EQ(Press(kAltF), kRedrawLine);
  EXPECT_EQ(Press(kAlt0), kRedrawLine);
  EXPECT_EQ(Press(0x10079), kRedrawLine);  // Alt-2, which no name has there
  EXPECT_EQ(Text(), L"f0");
  EXPECT_FALSE(shell.keyPending);
  EXPECT_TRUE(shell.cursorDirty);
  EXPECT_EQ(Line(), L"|");
}

TEST_F(SearchKeys, KeysWithoutACharacterOfTheirOwnDoNothing) {
  for (Key key : std::initializer_list<Key>{0x16, 0x1A, 30, 0x10085, 0x1F600, kModifierKey, 0}) {
    EXPECT_EQ(Press(key), kRedrawNothing) << std::hex << key;
    EXPECT_EQ(Text(), L"");
  }
}

TEST_F(SearchKeys, PanelsThatShowNoListSearchNothing) {
  panel.panelType = kPanelInfo;
  Press(kAltL);
  Press(kAltF);
  EXPECT_EQ(Text(), L"");
  panel.panelType = kPanelFiles;
  panels[0].visible = panels[1].visible = false;
  Press(kAltF);
  EXPECT_EQ(Text(), L"");
}

TEST_F(SearchKeys, AltUpAndDownGoOnWithASearchOrToTaggedEntries) {
  panel.entries[15]->tagged = 1;
  Press(kAltDown);
  EXPECT_EQ(panel.CurrentIndex(), 15);
  Press(kAltF);
  Press(kAltDown);
  EXPECT_EQ(panel.CurrentIndex(), 16);
  Press(kAltUp);
  Press(kAltUp);
  EXPECT_EQ(panel.CurrentIndex(), 14);
  EXPECT_EQ(Text(), L"f");
}

TEST_F(SearchKeys, RightCompletesASearchAndCtrlDNever) {
  SetLine(L"a|b");
  Press(kAltF);
  Press(CtrlLetter('d'));
  EXPECT_EQ(Line(), L"ab|");
  EXPECT_EQ(Text(), L"f");
  SetLine(L"|ab");
  Press(kRight);
  EXPECT_EQ(Text(), L"f0");
  Press(kAltRight);
  EXPECT_EQ(Line(), L"|ab");
  EXPECT_TRUE(shell.cursorDirty);
  panel.quickSearch[0] = 0;
  Press(kAltRight);
  Press(kRight);
  EXPECT_EQ(Line(), L"ab|");
}

TEST_F(SearchKeys, RightIsTheCommandLinesWhileTheSearchIsOutOfSight) {
  Press(kAltF);
  panels[0].visible = panels[1].visible = false;
  SetLine(L"|ab");
  Press(kRight);
  EXPECT_EQ(Line(), L"a|b");
}

TEST_F(SearchKeys, RightMovesByColumnsWhereThereAreSome) {
  SetList(kStyleBrief, 5, 20);
  Press(kAltF);
  Press(kRight);
  EXPECT_EQ(panel.CurrentIndex(), 5);
  EXPECT_EQ(Text(), L"");
}

TEST_F(SearchKeys, EachMoveOfTheCursorEndsTheSearch) {
  for (Key key :
       std::initializer_list<Key>{kHome, kEnd, kUp, kDown, kPageUp, kPageDown, kInsert, FKey(5), FKey(6)}) {
    const CommandRow* const row = FindCommand(key);
    ASSERT_NE(row, nullptr);
    EXPECT_TRUE(row->needs & kEndsSearch) << std::hex << key;
  }
  for (Key key : {kHome, kEnd, kUp, kDown, kPageUp, kPageDown, kInsert}) {
    Place(0, 2);
    Press(kAltF);
    ASSERT_EQ(Text(), L"f");
    Press(key);
    EXPECT_EQ(Text(), L"") << std::hex << key;
  }
}

TEST_F(SearchKeys, TypingOnTheCommandLineDoesNotEndTheSearchAndEscDoes) {
  Press(kAltF);
  Press('x');
  EXPECT_EQ(Text(), L"f");
  Press(kEscape);
  EXPECT_EQ(Text(), L"");
}

TEST_F(SearchKeys, AltBackspaceTakesTheLastCharacter) {
  Press(kAltF);
  Press(kAlt0);
  for (const wchar_t* left : {L"f", L"", L""}) {
    Press(kAltBackspace);
    EXPECT_EQ(Text(), left);
    EXPECT_TRUE(shell.cursorDirty);
  }
}

TEST_F(SearchKeys, InATreeTheGreyKeysOpenAndCloseARow) {
  SetTreeHooks();
  for (Key key : std::initializer_list<Key>{kGreyPlus, kMenuSelectGroup, kGreyMinus, kMenuUnselectGroup}) {
    panel.readPending = false;
    Press(key);
    EXPECT_TRUE(panel.readPending) << std::hex << key;
  }
  EXPECT_EQ(openings,
            (std::vector<Opening>{{'n', 1, true}, {'n', 1, true}, {'n', 1, false}, {'n', 1, false}}));
}

TEST_F(SearchKeys, InATreeCtrlAndTheGreyKeysOpenAndCloseAllBelow) {
  SetTreeHooks();
  static int reads;
  reads = 0;
  ThePanelHooks.readTree = [](TPanel&) { ++reads; };
  panels[1].visible = false;
  for (Key key : {kCtrlGreyPlus, kCtrlShiftGreyPlus, kCtrlGreyMinus, kCtrlShiftGreyMinus}) Press(key);
  EXPECT_EQ(openings,
            (std::vector<Opening>{{'b', 1, true}, {'b', 1, true}, {'b', 1, false}, {'b', 1, false}}));
  EXPECT_EQ(reads, 4);
  EXPECT_TRUE(panels[1].readPending);
  EXPECT_EQ(panel.taggedCount, 0);
}

TEST_F(SearchKeys, InATreeWithoutRowsTheGreyKeysDoNothing) {
  SetTreeHooks();
  SetList(kStyleTree, 5, 0);
  for (Key key : {kGreyPlus, kGreyMinus, kCtrlGreyPlus, kCtrlGreyMinus}) Press(key);
  EXPECT_TRUE(openings.empty());
}

TEST_F(SearchKeys, CtrlAndTheGreyKeysTagAllAndNone) {
  Press(kCtrlGreyPlus);
  EXPECT_EQ(panel.taggedCount, 20);
  Press(kCtrlGreyMinus);
  EXPECT_EQ(panel.taggedCount, 0);
  Press(kGreyStar);
  EXPECT_EQ(panel.taggedCount, 20);
  Press(kMenuInvert);
  EXPECT_EQ(panel.taggedCount, 0);
  EXPECT_TRUE(shell.cursorDirty);
}

TEST_F(SearchKeys, ShiftIsPassedOn) {
  panel.entries[3]->attributes = kAttrDirectory;
  CurrentModifiers = kModCtrl | kModShift;
  Press(kCtrlShiftGreyPlus);
  EXPECT_EQ(panel.taggedCount, 20);
  CurrentModifiers = kModCtrl;
  Press(kCtrlGreyMinus);
  EXPECT_EQ(panel.taggedCount, 0);
  Press(kCtrlGreyPlus);
  EXPECT_EQ(panel.taggedCount, 19);
  CurrentModifiers = 0;
}

TEST_F(SearchKeys, WithBothPanelsOffTheGreyKeysDoNothing) {
  panels[0].visible = panels[1].visible = false;
  for (Key key : {kGreyPlus, kGreyMinus, kGreyStar, kCtrlGreyPlus}) Press(key);
  EXPECT_EQ(panel.taggedCount, 0);
  EXPECT_EQ(Line(), L"|");
}

TEST_F(SearchKeys, AltGreyPlusAndTheMenuRestore) {
  panel.entries[4]->processed = 1;
  panel.entries[5]->tagged = 1;
  panel.taggedCount = 1;
  Press(kAltGreyPlus);
  EXPECT_TRUE(panel.entries[4]->tagged);
  EXPECT_FALSE(panel.entries[5]->tagged);
  panel.entries[4]->processed = 0;
  Press(kMenuRestoreSelection);
  EXPECT_EQ(panel.taggedCount, 0);
}
