// The five menus as a user finds them: what tests of the menus compare with,
// written down apart from the program's own tables.
#pragma once

#include <cstdint>
#include <vector>

struct ExpectedItem {
  const char* text;  // null for a separator
  int hotIndex;
  uint32_t command;
};

inline constexpr ExpectedItem kLine = {nullptr, 0, 0};

// By the menu's number.
inline const std::vector<ExpectedItem> kExpectedMenus[5] = {
    // Left
    {
        {"Brief       AlSh-F1", 0, 0x10000D},
        {"Full        AlSh-F2", 0, 0x10000F},
        {"Wide        AlSh-F3", 0, 0x100014},
        {"Brief-Wide  AlSh-F4", 3, 0x100018},
        {"Unix detail AlSh-F5", 8, 0x10001A},
        {"Info        Ctrl-L", 0, 0x100000},
        {"Tree", 0, 0x100016},
        {"On/Off      Ctrl-F1", 0, 0x1005E},
        kLine,
        {"Name        Ctrl-F3", 0, 0x100001},
        {"Extension   Ctrl-F4", 1, 0x100002},
        {"Time        Ctrl-F5", 2, 0x100003},
        {"Size        Ctrl-F6", 0, 0x100004},
        {"Unsorted    Ctrl-F7", 0, 0x100005},
        {"Reverse     Ctrl-F8", 2, 0x100006},
        kLine,
        {"Re-Read     Ctrl-R", 0, 0x100013},
        {"Filter", 2, 0x100012},
        {"Drive       Alt-F1", 0, 0x10068},
    },
    // Files
    {
        {"Manual       Shift-F1", 5, 0x30054},
        {"User Menu          F2", 0, 0x1003C},
        {"View               F3", 0, 0x1003D},
        {"Edit               F4", 0, 0x1003E},
        {"Copy               F5", 0, 0x1003F},
        {"Rename or Move     F6", 0, 0x10040},
        {"Make Directory     F7", 0, 0x10041},
        {"Delete             F8", 0, 0x10042},
        kLine,
        {"File Attributes    Ctrl-A", 5, 0x1},
        {"File Case          Ctrl-C", 0, 0x3},
        {"File Date/Time", 10, 0x100071},
        {"File Information   Ctrl-I", 8, 0x10102},
        kLine,
        {"Select Group       Grey +", 7, 0x10006D},
        {"Unselect Group     Grey -", 1, 0x10006E},
        {"Invert Sel'n       Grey *", 0, 0x10006F},
        {"Restore Sel'n  Alt-Grey +", 2, 0x100072},
        kLine,
        {"Quit               F10", 0, 0x10044},
    },
    // Commands
    {
        {"Tree                 Alt-F10", 0, 0x10071},
        {"File Find            Alt-F7", 0, 0x1006E},
        {"History              Alt-F8", 0, 0x1006F},
        {"EGA Lines            Alt-F9", 0, 0x10070},
        {"Directory History    Alt-\\", 1, 0x1002B},
        {"Stored Paths         Alt-F5", 7, 0x1006C},
        kLine,
        {"Swap Panels          Ctrl-U", 0, 0x15},
        {"Panels On/Off        Ctrl-O", 2, 0xF},
        {"Compare Directories  Ctrl-K", 0, 0xB},
        {"Calculate Dir Size   Ctrl-Q", 10, 0x11},
        {"Open GUI File Window Ctrl-W", 0, 0x17},
        kLine,
        {"Edit Associations", 5, 0x1000D0},
        {"Edit User Menu", 10, 0x1000D1},
    },
    // Options
    {
        {"Configuration", 0, 0x10012C},
        {"Colours", 1, 0x10012D},
        {"Confirmations", 2, 0x100135},
        kLine,
        {"Hidden Files    Ctrl-H", 0, 0x10012E},
        {"Path Prompt", 0, 0x10012F},
        {"Full Screen", 0, 0x100131},
        {"Clock", 1, 0x100132},
        {"Tag Directories", 0, 0x100133},
        {"Thousand Separator", 3, 0x100136},
        {"Retain Dir Count", 0, 0x100137},
        kLine,
        {"Save Setup      Shft-F9", 0, 0x100134},
    },
    // Right
    {
        {"Brief       AlSh-F1", 0, 0x10000E},
        {"Full        AlSh-F2", 0, 0x100010},
        {"Wide        AlSh-F3", 0, 0x100015},
        {"Brief-Wide  AlSh-F4", 3, 0x100019},
        {"Unix detail AlSh-F5", 8, 0x10001B},
        {"Info        Ctrl-L", 0, 0x100193},
        {"Tree", 0, 0x100017},
        {"On/Off      Ctrl-F2", 0, 0x1005F},
        kLine,
        {"Name        Ctrl-F3", 0, 0x100007},
        {"Extension   Ctrl-F4", 1, 0x100008},
        {"Time        Ctrl-F5", 2, 0x100009},
        {"Size        Ctrl-F6", 0, 0x10000A},
        {"Unsorted    Ctrl-F7", 0, 0x10000B},
        {"Reverse     Ctrl-F8", 2, 0x10000C},
        kLine,
        {"Re-Read     Ctrl-R", 0, 0x10019B},
        {"Filter", 2, 0x10019C},
        {"Drive       Alt-F2", 0, 0x10069},
    },
};
