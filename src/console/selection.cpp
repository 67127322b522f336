// Dragging out a rectangle of cells and reading its text.
#include "console/selection.h"

#include "console/cell_string.h"

namespace {

// Moves one pair of edges to at. Within the edges, the one that moved last
// follows.
void MoveEdges(int& low, int& high, bool& highMoves, int at) {
  if (at < low) highMoves = false;
  if (at > high) highMoves = true;
  (highMoves ? high : low) = at;
}

}  // namespace

void Selection::Clear() {
  isActive = false;
  isAnchored = false;
}

bool Selection::Press(int x, int y) {
  Clear();
  if (!region.Contains(x, y)) return false;
  corners = {x, y, x, y};
  isAnchored = true;
  growsRight = growsDown = true;
  return true;
}

bool Selection::Drag(int x, int y) {
  if (!isAnchored || !region.Contains(x, y)) return false;
  MoveEdges(corners.left, corners.right, growsRight, x);
  MoveEdges(corners.top, corners.bottom, growsDown, y);
  isActive = true;
  return true;
}

Westring TextOfCells(const CellGrid& grid, const CellRect& rect) {
  Westring text;
  for (int y = rect.top; y <= rect.bottom; ++y) {
    CellString row;
    grid.ReadRow(row, rect.left, y, rect.right - rect.left + 1, 1);
    Westring line = Westring::Reserved(row.Length());
    for (int i = 0; i < row.Length(); ++i) {
      const wchar_t character = row[i].character;
      line.Text()[i] = character != 0 ? character : L' ';  // a zero cell is no end of the text
    }
    line.Text()[row.Length()] = 0;
    text += RTrim(line);
    text += L'\n';
  }
  return text;
}
