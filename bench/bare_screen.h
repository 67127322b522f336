// Cells that nobody looks at, for a terminal to write on.
#pragma once

#include "console/terminal.h"

class BareScreen : public TerminalScreen {
 public:
  BareScreen(int columns, int rows) : grid(columns, rows) {}

  CellGrid& Grid() override { return grid; }
  void GetCursor(int& x, int& y) const override { x = cursorX, y = cursorY; }
  void SetCursor(int x, int y) override { cursorX = x, cursorY = y; }
  int CursorSize() const override { return cursorSize; }
  void SetCursorSize(int percent) override { cursorSize = percent; }
  void Beep() override {}
  void Changed(const CellRect&) override {}
  void Scrolled(const CellRect&, int) override {}

 private:
  CellGrid grid;
  int cursorX = 0, cursorY = 0, cursorSize = 15;
};
