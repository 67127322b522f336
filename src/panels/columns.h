// The columns of the panel styles and their widths.
#pragma once

#include <cstdint>

struct Column {
  int16_t minimum;  // -1 ends a style's row
  int16_t maximum;
  int16_t width;  // now
};

constexpr int kColumnStyles = 5;
constexpr int kMaxColumns = 5;
extern Column ColumnTable[kColumnStyles][kMaxColumns + 1];

// Shares out inner columns of a panel for every style.
void ComputeColumns(int inner);
// What was last shared out: the width inside a panel's frame.
int InnerColumns();

// 0 for a style without columns, as the tree.
int ColumnCount(int style);
// How many of them hold a name: 3 in brief, 2 in briefwide, otherwise 1.
int NameColumns(int style);
// Width of the name field of a style; of its first one, or of the given one
// where a style has several. The whole width for a style without columns.
int NameWidth(int style);
int NameWidth(int style, int column);

// The separators between a style's columns, as cells inside the frame; those
// that a narrow panel has no room for are left out. Returns how many.
int ColumnBorders(int style, int (&borders)[kMaxColumns]);

// How many entries a list of that many rows shows.
int VisibleEntries(int style, int rows);
// The column of names that a slot is in.
int SlotColumn(int style, int rows, int slot);
// The slot's cell inside the panel's frame.
void SlotPosition(int style, int rows, int slot, int& x, int& y);
