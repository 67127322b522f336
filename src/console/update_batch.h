// Holds drawing back between BeginUpdate and EndUpdate.
#pragma once

#include "console/cell.h"

class UpdateBatch {
 public:
  void Begin();
  // What is to be drawn now: the union of all that changed, at the outermost
  // end; else empty.
  CellRect End();
  bool IsOpen() const { return depth > 0; }

  void Add(const CellRect& changed);
  // The picture of a block was moved: what of it was not yet drawn has moved
  // with it.
  void AddScrolled(const CellRect& block, int lines);

 private:
  int depth = 0;
  CellRect dirty;
};
