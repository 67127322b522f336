// The pull-down menus as data. An item that has a key gives that key's code.
#include "shell/menu_table.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "dialogs/help.h"
#include "foundation/fold.h"
#include "shell/menu_commands.h"

namespace {

constexpr TMenuItem kSeparator;

constexpr TMenuItem kLeftItems[] = {
    {"Brief       AlSh-F1", 0, kMenuLeftBrief},
    {"Full        AlSh-F2", 0, kMenuLeftFull},
    {"Wide        AlSh-F3", 0, kMenuLeftWide},
    {"Brief-Wide  AlSh-F4", 3, kMenuLeftBriefWide},
    {"Unix detail AlSh-F5", 8, kMenuLeftUnix},
    {"Info        Ctrl-L", 0, kMenuLeftInfo},
    {"Tree", 0, kMenuLeftTree},
    {"On/Off      Ctrl-F1", 0, CtrlFKey(1)},
    kSeparator,
    {"Name        Ctrl-F3", 0, kMenuLeftName},
    {"Extension   Ctrl-F4", 1, kMenuLeftExtension},
    {"Time        Ctrl-F5", 2, kMenuLeftTime},
    {"Size        Ctrl-F6", 0, kMenuLeftSize},
    {"Unsorted    Ctrl-F7", 0, kMenuLeftUnsorted},
    {"Reverse     Ctrl-F8", 2, kMenuLeftReverse},
    kSeparator,
    {"Re-Read     Ctrl-R", 0, kMenuLeftReRead},
    {"Filter", 2, kMenuLeftFilter},
    {"Drive       Alt-F1", 0, AltFKey(1)},
};

constexpr TMenuItem kFilesItems[] = {
    {"Manual       Shift-F1", 5, ShiftFKey(1)},
    {"User Menu          F2", 0, FKey(2)},
    {"View               F3", 0, FKey(3)},
    {"Edit               F4", 0, FKey(4)},
    {"Copy               F5", 0, FKey(5)},
    {"Rename or Move     F6", 0, FKey(6)},
    {"Make Directory     F7", 0, FKey(7)},
    {"Delete             F8", 0, FKey(8)},
    kSeparator,
    {"File Attributes    Ctrl-A", 5, CtrlLetter('a')},
    {"File Case          Ctrl-C", 0, CtrlLetter('c')},
    {"File Date/Time", 10, kMenuFileDate},
    {"File Information   Ctrl-I", 8, kCtrlI},
    kSeparator,
    {"Select Group       Grey +", 7, kMenuSelectGroup},
    {"Unselect Group     Grey -", 1, kMenuUnselectGroup},
    {"Invert Sel'n       Grey *", 0, kMenuInvert},
    {"Restore Sel'n  Alt-Grey +", 2, kMenuRestoreSelection},
    kSeparator,
    {"Quit               F10", 0, FKey(10)},
};

constexpr TMenuItem kCommandsItems[] = {
    {"Tree                 Alt-F10", 0, AltFKey(10)},
    {"File Find            Alt-F7", 0, AltFKey(7)},
    {"History              Alt-F8", 0, AltFKey(8)},
    {"EGA Lines            Alt-F9", 0, AltFKey(9)},
    {"Directory History    Alt-\\", 1, kAltBackslash},
    {"Stored Paths         Alt-F5", 7, AltFKey(5)},
    kSeparator,
    {"Swap Panels          Ctrl-U", 0, CtrlLetter('u')},
    {"Panels On/Off        Ctrl-O", 2, CtrlLetter('o')},
    {"Compare Directories  Ctrl-K", 0, CtrlLetter('k')},
    {"Calculate Dir Size   Ctrl-Q", 10, CtrlLetter('q')},
    {"Open GUI File Window Ctrl-W", 0, CtrlLetter('w')},
    kSeparator,
    {"Edit Associations", 5, kMenuEditAssociations},
    {"Edit User Menu", 10, kMenuEditUserMenu},
};

constexpr TMenuItem kOptionsItems[] = {
    {"Configuration", 0, kMenuConfiguration},
    {"Colours", 1, kMenuColours},
    {"Confirmations", 2, kMenuConfirmations},
    kSeparator,
    {"Hidden Files    Ctrl-H", 0, kMenuHidden},
    {"Path Prompt", 0, kMenuPathPrompt},
    {"Full Screen", 0, kMenuFullScreen},
    {"Clock", 1, kMenuClock},
    {"Tag Directories", 0, kMenuTagDirs},
    {"Thousand Separator", 3, kMenuThousandSep},
    {"Retain Dir Count", 0, kMenuRetainCount},
    kSeparator,
    {"Save Setup      Shft-F9", 0, kMenuSaveSetup},
};

constexpr TMenuItem kRightItems[] = {
    {"Brief       AlSh-F1", 0, kMenuRightBrief},
    {"Full        AlSh-F2", 0, kMenuRightFull},
    {"Wide        AlSh-F3", 0, kMenuRightWide},
    {"Brief-Wide  AlSh-F4", 3, kMenuRightBriefWide},
    {"Unix detail AlSh-F5", 8, kMenuRightUnix},
    {"Info        Ctrl-L", 0, kMenuRightInfo},
    {"Tree", 0, kMenuRightTree},
    {"On/Off      Ctrl-F2", 0, CtrlFKey(2)},
    kSeparator,
    {"Name        Ctrl-F3", 0, kMenuRightName},
    {"Extension   Ctrl-F4", 1, kMenuRightExtension},
    {"Time        Ctrl-F5", 2, kMenuRightTime},
    {"Size        Ctrl-F6", 0, kMenuRightSize},
    {"Unsorted    Ctrl-F7", 0, kMenuRightUnsorted},
    {"Reverse     Ctrl-F8", 2, kMenuRightReverse},
    kSeparator,
    {"Re-Read     Ctrl-R", 0, kMenuRightReRead},
    {"Filter", 2, kMenuRightFilter},
    {"Drive       Alt-F2", 0, AltFKey(2)},
};

// The frame, the mark, and a blank behind the longest text.
constexpr int kWidthBesideText = 4;

template <int count>
constexpr TMenu MakeMenu(const TMenuItem (&items)[count]) {
  static_assert(count <= TMenu::kMostItems);
  TMenu menu;
  menu.count = count;
  for (int i = 0; i < count; ++i) {
    menu.items[i] = items[i];
    if (!items[i].text) continue;
    const int length = static_cast<int>(std::string_view(items[i].text).size());
    menu.width = std::max(menu.width, length + kWidthBesideText);
  }
  return menu;
}

bool IsKey(char quickKey, Key character) {
  return FoldChar(static_cast<wchar_t>(character)) == FoldChar(quickKey);
}

}  // namespace

constinit const MenuSet kMenus = {MakeMenu(kLeftItems), MakeMenu(kFilesItems), MakeMenu(kCommandsItems),
                                  MakeMenu(kOptionsItems), MakeMenu(kRightItems)};

const char kMenuBarLine[] = "    Left    Files    Commands    Options    Right  ";

// The panels' menus say the same and share a page.
const MenuTitle kMenuTitles[kMenuCount] = {
    {"  Left  ", 2, 'L', kHelpMenus},          {"  Files  ", 10, 'F', kHelpMenus + 1},
    {"  Commands  ", 19, 'C', kHelpMenus + 2}, {"  Options  ", 31, 'O', kHelpMenus + 3},
    {"  Right  ", 42, 'R', kHelpMenus},
};

int TitleAt(int x) {
  for (int i = 0; i < kMenuCount; ++i)
    if (x < kMenuTitles[i].column + static_cast<int>(strlen(kMenuTitles[i].text))) return i;
  return -1;
}

int TitleWithKey(Key character) {
  for (int i = 0; i < kMenuCount; ++i)
    if (IsKey(kMenuTitles[i].quickKey, character)) return i;
  return -1;
}

int ItemWithKey(const TMenu& menu, Key character) {
  for (int i = 0; i < menu.count; ++i) {
    const TMenuItem& item = menu.items[i];
    if (!item.IsSeparator() && IsKey(item.text[item.hotIndex], character)) return i;
  }
  return -1;
}

int NextItem(const TMenu& menu, int item, int step) {
  do item = (item + step + menu.count) % menu.count;
  while (menu.items[item].IsSeparator());
  return item;
}
