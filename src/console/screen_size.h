// How large a screen can be made.
#pragma once

struct ScreenSize {
  int columns = 0, rows = 0;
};

// The largest screen up to the wanted one whose window and picture the display
// can hold, with cells of the given pixels.
ScreenSize BoundScreen(ScreenSize wanted, int cellWidth, int cellHeight);
