// The cells, the cursor and the bell of the window for a terminal.
#include "console/attached_terminal.h"

#include "console/console_window.h"
#include "console/toolkit_lock.h"

AttachedTerminal::AttachedTerminal(CConsoleWindow& window, int masterFd)
    : window(window), damage(window.grid.Columns(), window.grid.Rows()), terminal(*this, masterFd) {}

void AttachedTerminal::TakeSize() { damage.SetSize(window.grid.Columns(), window.grid.Rows()); }

void AttachedTerminal::Write(const char* bytes, int n) {
  TakeSize();
  terminal.Write(bytes, n);
}

// Noted first: the echo may be there before write returns.
void AttachedTerminal::SendKey(Key code) {
  if (!SendsBytes(code)) return;
  owesEcho = true;
  terminal.SendKey(code);
}

// Bells between two paints are heard as one, and a flood of them would take a
// call to the display each.
void AttachedTerminal::Paint() {
  TakeSize();
  if (owesBell) window.Ring();
  owesBell = false;
  if (damage.IsEmpty()) return;
  owesEcho = false;
  window.Paint(damage);
  damage.Clear();
}

CellGrid& AttachedTerminal::Grid() { return window.grid; }

void AttachedTerminal::GetCursor(int& x, int& y) const {
  const CConsoleWindow::Place at = window.cursor;
  x = at.x;
  y = at.y;
}

// The cursor's picture moves with the rows it stands on, so its cell is noted
// wherever the cursor has been: the blinking may have drawn it there.
void AttachedTerminal::SetCursor(int x, int y) {
  const CConsoleWindow::Place at = window.cursor;
  if (x == at.x && y == at.y) return;
  NoteCursorCell();
  window.PlaceCursor(x, y);
  NoteCursorCell();
}

int AttachedTerminal::CursorSize() const { return window.cursorSize; }

void AttachedTerminal::SetCursorSize(int percent) {
  if (percent == window.cursorSize) return;
  window.cursorSize = percent;
  NoteCursorCell();
}

// Before the move, so that the note of the cell moves along with what was drawn
// there: during a write the cursor is still where the last one has left it.
void AttachedTerminal::Scrolled(const CellRect& block, int lines) {
  NoteCursorCell();
  damage.Scrolled(block, lines);
}

void AttachedTerminal::NoteCursorCell() { damage.Changed(window.cursor.load().Cell()); }
