// Where a list stands: which item its first row shows, and which row has the
// cursor. Only numbers, no screen.
#pragma once

#include <cstdint>

struct ListView {
  int32_t count;    // items, 0 or more
  int32_t height;   // rows, 1 or more
  int32_t top = 0;  // the item of the first row
  int32_t row = 0;  // of the cursor, from 0

  int32_t Index() const { return top + row; }  // of the item under the cursor
  int32_t ItemsInView() const;
  bool HasItemAt(int32_t shownRow) const { return shownRow >= 0 && shownRow < ItemsInView(); }

  // Puts the cursor on an item and scrolls no further than that needs.
  void Show(int32_t index);
  // Puts the cursor on a row, or on the last item in view if that is higher up.
  void PointAt(int32_t shownRow);

  void Up();
  void Down();
  void PageUp();
  void PageDown();  // keeps the row: the last page may be short
  void Home();
  void End();

  // By one item under a cursor that keeps its row; false at the list's end.
  bool ScrollUp();
  bool ScrollDown();
};

// The item that a caller's selection means: the nearest there is. In an empty
// list 0 and -1 both say "none" and stay; all else becomes -1.
int32_t NearestItem(int32_t selection, int32_t count);
