// Joining many small changes of cells into one repaint.
#include "console/terminal_damage.h"

#include <algorithm>
#include <cstdlib>

#include "console/cell_grid.h"

TerminalDamage::TerminalDamage(int columns, int rows) : columns(columns), rows(rows) { Clear(); }

void TerminalDamage::SetSize(int newColumns, int newRows) {
  if (columns == newColumns && static_cast<int>(rows.size()) == newRows) return;
  columns = newColumns;
  rows.resize(static_cast<size_t>(newRows));
  Clear();
}

void TerminalDamage::Clear() {
  std::fill(rows.begin(), rows.end(), Span{columns, -1});
  move = {};
  isEmpty = true;
}

void TerminalDamage::AddSpan(int y, int left, int right) {
  Span& span = rows[static_cast<size_t>(y)];
  span.left = std::min(span.left, left);
  span.right = std::max(span.right, right);
}

void TerminalDamage::AddRows(const CellRect& block) {
  const CellRect visible = Intersection(block, {0, 0, columns - 1, static_cast<int>(rows.size()) - 1});
  if (visible.IsEmpty()) return;
  for (int y = visible.top; y <= visible.bottom; ++y) AddSpan(y, visible.left, visible.right);
  isEmpty = false;
}

void TerminalDamage::Changed(const CellRect& block) { AddRows(block); }

// Moves of one block add up, for what each left behind is noted on its own.
// Where another block has moved, or all has left, the rows are painted anew.
void TerminalDamage::Scrolled(const CellRect& block, int lines) {
  if (block.IsEmpty() || lines == 0) return;
  isEmpty = false;
  MoveSpans(block, lines);
  const bool isOther = move.lines != 0 && !(move.block == block);
  const int sum = move.lines + lines;
  if (!isOther && std::abs(sum) <= block.bottom - block.top) {
    move = {block, sum};
    return;
  }
  if (isOther) AddRows(move.block);
  AddRows(block);
  move = {};
}

void TerminalDamage::MoveSpans(const CellRect& block, int lines) {
  const CellRect source = ScrollSource(block, lines);
  if (!source.IsEmpty()) {
    const auto first = rows.begin() + source.top, last = rows.begin() + source.bottom + 1;
    if (lines > 0)
      std::copy(first, last, first - lines);
    else
      std::copy_backward(first, last, last - lines);
  }
  const CellRect vacated = ScrollVacated(block, lines);
  for (int y = vacated.top; y <= vacated.bottom; ++y)
    rows[static_cast<size_t>(y)] = {block.left, block.right};
}

std::vector<CellRect> TerminalDamage::Blocks() const {
  std::vector<CellRect> blocks;
  for (int y = 0; y < static_cast<int>(rows.size()); ++y) {
    const Span& span = rows[static_cast<size_t>(y)];
    if (span.right < span.left) continue;
    const bool isSame = !blocks.empty() && blocks.back().bottom == y - 1 && blocks.back().left == span.left &&
                        blocks.back().right == span.right;
    if (isSame)
      blocks.back().bottom = y;
    else
      blocks.push_back({span.left, y, span.right, y});
  }
  return blocks;
}
