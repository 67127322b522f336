// The rectangle of text that the mouse selects.
#pragma once

#include "console/cell_grid.h"
#include "foundation/strings.h"

class Selection {
 public:
  // Where selecting is allowed; empty for nowhere.
  void SetRegion(const CellRect& where) { region = where; }
  const CellRect& Region() const { return region; }

  // The cells that show selected; empty if there are none.
  CellRect Selected() const { return isActive ? corners : CellRect{}; }
  bool IsActive() const { return isActive; }
  void Clear();

  // A press puts the anchor at its cell, a motion drags the selection from it.
  // False if the event is not the selection's. The caller repaints what
  // Selected() was before and is after.
  bool Press(int x, int y);
  bool Drag(int x, int y);

 private:
  CellRect region, corners;
  bool isAnchored = false;
  bool isActive = false;
  bool growsRight = true, growsDown = true;
};

// The characters of a rectangle: each row without its trailing blanks, then a
// line feed.
Westring TextOfCells(const CellGrid& grid, const CellRect& rect);
