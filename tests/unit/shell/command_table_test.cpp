// The table of the command keys.
#include <gtest/gtest.h>

#include <vector>

#include "shell/dispatch.h"
#include "shell/menu_commands.h"

namespace {

void ExpectRows(const std::vector<Key>& keys, unsigned needs = 0) {
  for (Key key : keys) {
    const CommandRow* row = FindCommand(key);
    ASSERT_NE(row, nullptr) << std::hex << key;
    EXPECT_EQ(row->needs & needs, needs) << std::hex << key;
  }
}

std::vector<Key> Range(Key first, Key last) {
  std::vector<Key> keys;
  for (Key key = first; key <= last; ++key) keys.push_back(key);
  return keys;
}

}  // namespace

TEST(CommandTable, NoKeyStandsTwice) {
  const CommandRow* rows = CommandTable();
  for (int i = 0; i < CommandCount(); ++i)
    EXPECT_EQ(FindCommand(rows[i].key), &rows[i]) << std::hex << rows[i].key;
}

TEST(CommandTable, KnowsNoKeyThatIsNotThere) {
  EXPECT_EQ(FindCommand('a'), nullptr);
  EXPECT_EQ(FindCommand(kModifierKey), nullptr);
  EXPECT_EQ(FindCommand(0x1001E), nullptr);  // Alt-A begins a quick search
  EXPECT_EQ(FindCommand(CtrlFKey(9)), nullptr);
  EXPECT_EQ(FindCommand(0x10085), nullptr);  // F11
}

TEST(CommandTable, TheCommandLineHasItsKeys) {
  ExpectRows({kEnter,          kAltEnter,       kEscape,         kCtrlRightBracket,
              kCtrlLeft,       kCtrlRight,      kCtrlBackspace,  kCtrlDelete,
              kLeft,           kRight,          kAltLeft,        kAltRight,
              CtrlLetter('s'), CtrlLetter('d'), kCtrlHome,       kCtrlEnd,
              CtrlLetter('e'), kCtrlUp,         CtrlLetter('x'), kCtrlDown,
              kCtrlEnter,      kCtrlShiftEnter, kCtrlShiftJ,     CtrlLetter('f'),
              kCtrlShiftF,     kCtrlTab,        kCtrlInsert,     kShiftInsert,
              kDelete,         kBackspace});
}

TEST(CommandTable, ThePanelsHaveTheirKeys) {
  ExpectRows({kHome,
              kEnd,
              kUp,
              kDown,
              kTab,
              kShiftTab,
              kCtrlBackslash,
              kAltBackslash,
              kCtrlShiftBackslash,
              kCtrlMinus,
              kCtrlPageUp,
              CtrlDigit(9),
              kAltHome,
              kAltBackspace,
              CtrlLetter('g'),
              CtrlLetter('u'),
              CtrlLetter('o'),
              CtrlLetter('p'),
              CtrlLetter('l'),
              CtrlLetter('r'),
              CtrlLetter('h'),
              CtrlLetter('k'),
              CtrlLetter('q'),
              CtrlLetter('t'),
              CtrlLetter('y'),
              CtrlLetter('b'),
              kCtrlM,
              kCtrlShiftM,
              kCtrlGreyPlus,
              kCtrlGreyMinus,
              kCtrlShiftGreyPlus,
              kCtrlShiftGreyMinus,
              kAltGreyPlus});
  ExpectRows({kPageUp, kPageDown, kInsert, kAltUp, kAltDown, kCtrlPageDown, CtrlDigit(3)}, kPanelShown);
}

TEST(CommandTable, FilesHaveTheirKeys) {
  ExpectRows({CtrlLetter('a'), CtrlLetter('c'), kCtrlI, FKey(7)}, kNoArchive);
  ExpectRows({FKey(5), FKey(6), FKey(8)}, kPanelShown | kFilesPanel);
  ExpectRows({ShiftFKey(5), ShiftFKey(6), CtrlShiftFKey(5), CtrlLetter('w')},
             kPanelShown | kFilesPanel | kNoArchive);
}

TEST(CommandTable, EveryFunctionKeyWithAMeaningHasARow) {
  ExpectRows(Range(FKey(1), FKey(8)));
  ExpectRows({FKey(10)});
  ExpectRows(Range(ShiftFKey(1), ShiftFKey(9)));
  ExpectRows(Range(AltFKey(1), AltFKey(10)));
  ExpectRows({CtrlFKey(1), CtrlFKey(2), CtrlShiftFKey(4), CtrlShiftFKey(5)});
  ExpectRows(Range(AltShiftFKey(1), AltShiftFKey(5)));
  ExpectRows(Range(AltShiftFKey(7), AltShiftFKey(9)));
}

// Their layer has taken them before the table is asked.
TEST(CommandTable, TheKeysOfThePullDownMenuHaveNone) {
  for (Key key : {FKey(9), CtrlLetter('n'), ShiftFKey(10)})
    EXPECT_EQ(FindCommand(key), nullptr) << std::hex << key;
}

TEST(CommandTable, TheMenusCommandsHaveRows) {
  ExpectRows(Range(0x100000, 0x100010));
  ExpectRows(Range(0x100012, 0x10001B));
  ExpectRows({0x10006D, 0x10006E, 0x10006F, 0x100071, 0x100072, 0x1000D0, 0x1000D1,
              0x10012C, 0x10012D, 0x10012E, 0x10012F, 0x100131, 0x100132, 0x100133,
              0x100134, 0x100135, 0x100136, 0x100137, 0x100193, 0x10019B, 0x10019C});
  ExpectRows({kMenuFileDate}, kNoArchive);
}

TEST(CommandTable, TheMenusCommandsThatAreShortcutsHaveRows) {
  ExpectRows({0x1005E, 0x1005F, 0x10068, 0x10069, 0x30054, 0x10102, 0x2B + 0x10000, 0x1, 0x3, 0x15, 0xF, 0xB,
              0x11, 0x17});
}
