// Widths and places of the columns of the panel styles.
#include "panels/columns.h"

#include <algorithm>

#include "panels/panel.h"

namespace {

constexpr Column kEnd = {-1, 0, 0};
constexpr Column Starting(int16_t minimum, int16_t maximum) { return {minimum, maximum, minimum}; }

constexpr int kNameColumnOfWide = 1;

int innerColumns = 0;

int SumOfMinimums(const Column* columns) {
  int sum = 0;
  for (; columns->minimum >= 0; ++columns) sum += columns->minimum;
  return sum;
}

// One pass over a style's columns, each taking its part of free by its width.
// Returns what no column could take.
int ShareOnce(Column* columns, int free, int inner) {
  int rest = free;
  for (Column* c = columns; c->minimum >= 0; ++c) {
    const int64_t part = (int64_t{free} * c->width + inner - 1) / inner;
    const int share = static_cast<int>(std::min<int64_t>({part, rest, c->maximum - c->width}));
    c->width = static_cast<int16_t>(c->width + share);
    rest -= share;
  }
  return rest;
}

void ShareOut(Column* columns, int count, int inner) {
  for (Column* c = columns; c->minimum >= 0; ++c) c->width = c->minimum;
  int free = inner - SumOfMinimums(columns) - (count - 1);
  while (free > 0) {
    const int rest = ShareOnce(columns, free, inner);
    if (rest == free) return;  // every column is at its maximum
    free = rest;
  }
}

}  // namespace

Column ColumnTable[kColumnStyles][kMaxColumns + 1] = {
    /* brief */ {Starting(12, 256), Starting(12, 256), Starting(12, 256), kEnd},
    /* full */ {Starting(13, 256), Starting(8, 10), Starting(8, 8), Starting(6, 6), kEnd},
    /* wide */ {Starting(8, 10), Starting(29, 256), kEnd},
    /* briefwide */ {Starting(12, 256), Starting(12, 256), kEnd},
    /* unix */ {Starting(12, 256), Starting(7, 10), Starting(9, 9), Starting(3, 10), Starting(3, 10), kEnd},
};

void ComputeColumns(int inner) {
  innerColumns = std::max(inner, 0);
  for (int style = 0; style < kColumnStyles; ++style) ShareOut(ColumnTable[style], ColumnCount(style), inner);
}

int InnerColumns() { return innerColumns; }

int ColumnCount(int style) {
  if (style < 0 || style >= kColumnStyles) return 0;
  int count = 0;
  while (ColumnTable[style][count].minimum >= 0) ++count;
  return count;
}

int NameColumns(int style) { return style == kStyleBrief ? 3 : style == kStyleBriefWide ? 2 : 1; }

int NameWidth(int style) { return NameWidth(style, 0); }

int NameWidth(int style, int column) {
  if (ColumnCount(style) == 0) return innerColumns;
  if (style == kStyleWide) return ColumnTable[style][kNameColumnOfWide].width;
  return ColumnTable[style][std::clamp(column, 0, NameColumns(style) - 1)].width;
}

int ColumnBorders(int style, int (&borders)[kMaxColumns]) {
  int count = 0, x = 0;
  for (int column = 0; column + 1 < ColumnCount(style); ++column) {
    x += ColumnTable[style][column].width;
    if (x >= innerColumns) break;
    borders[count++] = x++;
  }
  return count;
}

int VisibleEntries(int style, int rows) { return std::max(rows, 1) * NameColumns(style); }

int SlotColumn(int style, int rows, int slot) {
  return std::clamp(slot / std::max(rows, 1), 0, NameColumns(style) - 1);
}

void SlotPosition(int style, int rows, int slot, int& x, int& y) {
  const int column = SlotColumn(style, rows, slot);
  x = 0;
  for (int c = 0; c < column; ++c) x += ColumnTable[style][c].width + 1;
  y = slot - column * rows;
}
