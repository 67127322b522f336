// A terminal on a plain grid: bytes in, cells and cursor out.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "console/cell_grid.h"
#include "console/scrollback.h"
#include "console/terminal.h"

// Keeps a second grid that learns of changes by being told alone, as a picture
// does.
class PlainScreen : public TerminalScreen {
 public:
  PlainScreen(int columns, int rows) : grid(columns, rows), picture(columns, rows) {}

  CellGrid& Grid() override { return grid; }
  void GetCursor(int& x, int& y) const override { x = cursorX, y = cursorY; }
  void SetCursor(int x, int y) override { cursorX = x, cursorY = y; }
  int CursorSize() const override { return cursorSize; }
  void SetCursorSize(int percent) override { cursorSize = percent; }
  void Beep() override { ++beeps; }
  void Changed(const CellRect& block) override {
    const CellRect seen = Intersection(block, grid.Bounds());
    for (int y = seen.top; y <= seen.bottom; ++y) {
      std::copy(grid.Row(y) + seen.left, grid.Row(y) + seen.right + 1, picture.MutableRow(y) + seen.left);
    }
  }
  void Scrolled(const CellRect& block, int lines) override {
    picture.Scroll(block, lines, 0);
    Changed(ScrollVacated(block, lines));
  }

  CellGrid grid, picture;
  int cursorX = 0, cursorY = 0, cursorSize = 15;
  int beeps = 0;
};

inline std::vector<Cell> AllCells(const CellGrid& grid) {
  std::vector<Cell> cells;
  for (int y = 0; y < grid.Rows(); ++y) cells.insert(cells.end(), grid.Row(y), grid.Row(y) + grid.Columns());
  return cells;
}

inline std::vector<Cell> AllKept() {
  std::vector<Cell> cells;
  for (int i = 0; i < ScrollBack.Count(); ++i) {
    int length = 0;
    const Cell* row = ScrollBack.Row(i, length);
    cells.insert(cells.end(), row, row + length);
  }
  return cells;
}

// Where a terminal has got to.
struct TerminalResult {
  int columns = 0, rows = 0;
  std::vector<Cell> cells;    // of the screen, row after row
  std::vector<Cell> kept;     // of the scrollback
  std::vector<Cell> picture;  // the screen, as one knows it who was told of each change
  int x = 0, y = 0, cursorSize = 0, beeps = 0;

  const Cell& At(int column, int row) const { return cells[static_cast<size_t>(row) * columns + column]; }
  int KeptRows() const { return static_cast<int>(kept.size()) / columns; }
  bool IsSane() const {
    return x >= 0 && x <= columns && y >= 0 && y < rows &&
           cells.size() == static_cast<size_t>(columns) * rows && picture == cells;
  }
  bool operator==(const TerminalResult&) const = default;
};

// What the output comes to when it arrives in pieces of the sizes that
// nextSize() tells. The scrollback is empty before and after.
template <class NextSize>
TerminalResult RunTerminal(std::string_view output, int columns, int rows, NextSize nextSize) {
  ScrollBack.Clear();
  PlainScreen screen(columns, rows);
  CTerminal terminal(screen, -1);
  while (!output.empty()) {
    const size_t size = std::clamp<size_t>(nextSize(), 1, output.size());
    terminal.Write(output.data(), static_cast<int>(size));
    output.remove_prefix(size);
  }
  const TerminalResult result{
      columns,        rows,           AllCells(screen.grid), AllKept(),   AllCells(screen.picture),
      screen.cursorX, screen.cursorY, screen.cursorSize,     screen.beeps};
  ScrollBack.Clear();
  return result;
}

inline TerminalResult RunTerminal(std::string_view output, int columns, int rows) {
  return RunTerminal(output, columns, rows, [&] { return output.size(); });
}
