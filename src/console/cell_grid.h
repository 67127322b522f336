// The cells of the screen, without their picture.
#pragma once

#include <memory>
#include <vector>

#include "console/cell.h"
#include "console/cell_string.h"

// Every write is clipped to the grid and returns the rectangle in which cells
// changed, empty if none did.
class CellGrid {
 public:
  CellGrid(int columns, int rows) { Reset(columns, rows); }

  void Reset(int columns, int rows);  // all blank in attribute 7
  int Columns() const { return columns; }
  int Rows() const { return rows; }
  CellRect Bounds() const { return {0, 0, columns - 1, rows - 1}; }
  const Cell* Row(int y) const { return &cells[Index(0, y)]; }
  Cell* MutableRow(int y) { return &cells[Index(0, y)]; }  // whoever writes here tells what changed
  const Cell& At(int x, int y) const { return cells[Index(x, y)]; }

  CellRect PutString(int x, int y, const wchar_t* text, uint8_t attribute);
  CellRect PutCells(int x, int y, const Cell* zeroEnded);
  CellRect PutRepeated(int x, int y, int count, Cell cell);
  CellRect SetAttributes(int x, int y, int count, uint8_t attribute);
  CellRect FillBlank(int x, int y, int width, int height, uint8_t attribute);

  // Row after row; what lies outside the grid is blank.
  std::unique_ptr<Cell[]> SaveBlock(int x, int y, int width, int height) const;
  CellRect RestoreBlock(int x, int y, int width, int height, const Cell* source);
  // Appends the cells of the block that are on the grid.
  void ReadRow(CellString& target, int x, int y, int width, int height) const;

  // Moves the rows of a block by lines, downwards if negative, and blanks the
  // rows left behind. The block must be inside the grid. Rows of full width
  // cost the same whatever is in them.
  void Scroll(const CellRect& block, int lines, uint8_t attribute);

 private:
  size_t Index(int x, int y) const { return rowStarts[y] + x; }
  void MoveRows(const CellRect& block, int lines);
  // Gives each cell of a row from first to last the result of change(cell, x).
  template <class Change>
  CellRect ChangeRow(int y, int first, int last, Change change);

  std::vector<Cell> cells;
  std::vector<size_t> rowStarts;  // a permutation of the multiples of columns, which scrolling turns
  int columns = 0, rows = 0;
};

// The part of the block that is inside bounds. Sizes may be anything.
CellRect ClipBlock(int x, int y, int width, int height, const CellRect& bounds);
CellRect Intersection(const CellRect& a, const CellRect& b);
// The smallest rectangle around both; an empty one adds nothing.
CellRect Union(const CellRect& a, const CellRect& b);
// The rows of a block that a Scroll moves away from, and those it moves to;
// both empty if nothing stays.
CellRect ScrollSource(const CellRect& block, int lines);
CellRect ScrollTarget(const CellRect& block, int lines);
CellRect ScrollVacated(const CellRect& block, int lines);
