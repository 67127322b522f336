// The function-key bar: ten labels of one width.
#include "dialogs/key_bar.h"

#include <algorithm>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "console/console.h"

CellString BuildKeyBar(const char* const* labels, int columns) {
  const int cell = columns / kBarKeys;
  CellString row;
  row.attribute = Options::Colours[kColourMenuBar];
  row.SetLength(kBarKeys * cell);
  if (cell == 0) return row;  // a screen too narrow for any key
  const uint8_t gap = Options::Colours[kColourCommandLine];
  for (int i = 0; i < kBarKeys; ++i) {
    const int start = i * cell;
    row[start].attribute = gap;
    if (i > 0) row[start - 1].attribute = gap;
    if (i == kBarKeys - 1 && cell > 1) row[start + 1].attribute = gap;
    for (int k = 0; labels[i][k] && k < cell; ++k) row[start + k].character = labels[i][k];
  }
  return row;
}

void PaintKeyBar(const char* const* labels) {
  CellString row = BuildKeyBar(labels, ScreenColumns);
  row.Terminate();
  Console->PutCells(0, ScreenRows - 1, row.Cells());
}

int BarIndex(int x, int columns) {
  const int cell = std::max(1, columns / kBarKeys);
  return std::min((x + 1) / cell, kBarKeys - 1);
}
