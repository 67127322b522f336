// The dirty rectangle.
#include "console/update_batch.h"

#include "console/cell_grid.h"

void UpdateBatch::Begin() {
  if (depth++ == 0) dirty = {};
}

CellRect UpdateBatch::End() {
  if (depth == 0 || --depth > 0) return {};
  return dirty;
}

void UpdateBatch::Add(const CellRect& changed) { dirty = Union(dirty, changed); }

void UpdateBatch::AddScrolled(const CellRect& block, int lines) {
  CellRect moved = Intersection(dirty, ScrollSource(block, lines));
  if (moved.IsEmpty()) return;
  moved.top -= lines;
  moved.bottom -= lines;
  Add(moved);
}
