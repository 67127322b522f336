// The pull-down menus.
#pragma once

#include "console/key_codes.h"

// Where the user is in the menus, kept for the next time.
struct MenuPlace {
  int menu = 0;  // 0 Left to 4 Right
  int item = 0;
  bool open = false;  // the drop-down hangs
};

// Lets the user choose; returns the command, a key code, or 0. Unless resume,
// starts at the first item of the side's own menu with the drop-down closed.
Key RunMenu(MenuPlace& place, int side, bool resume);
