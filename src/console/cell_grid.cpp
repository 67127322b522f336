// Writing, clipping and comparing cells.
#include "console/cell_grid.h"

#include <algorithm>
#include <cstdlib>
#include <cwchar>

namespace {

constexpr uint8_t kBlankAttribute = 7;
constexpr Cell kBlank{' ', kBlankAttribute};

int ClampToInt(int64_t value, int low, int high) {
  return static_cast<int>(std::clamp<int64_t>(value, low, high));
}

}  // namespace

CellRect ClipBlock(int x, int y, int width, int height, const CellRect& bounds) {
  CellRect block;
  block.left = std::max(x, bounds.left);
  block.top = std::max(y, bounds.top);
  block.right = ClampToInt(int64_t{x} + width - 1, bounds.left - 1, bounds.right);
  block.bottom = ClampToInt(int64_t{y} + height - 1, bounds.top - 1, bounds.bottom);
  return block.IsEmpty() ? CellRect{} : block;
}

CellRect Intersection(const CellRect& a, const CellRect& b) {
  const CellRect common{std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
                        std::min(a.bottom, b.bottom)};
  return common.IsEmpty() ? CellRect{} : common;
}

CellRect Union(const CellRect& a, const CellRect& b) {
  if (a.IsEmpty()) return b;
  if (b.IsEmpty()) return a;
  return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
          std::max(a.bottom, b.bottom)};
}

CellRect ScrollTarget(const CellRect& block, int lines) { return ScrollSource(block, -lines); }

CellRect ScrollSource(const CellRect& block, int lines) {
  CellRect moved = block;
  if (lines > 0) moved.top += lines;
  if (lines < 0) moved.bottom += lines;
  return moved.IsEmpty() ? CellRect{} : moved;
}

CellRect ScrollVacated(const CellRect& block, int lines) {
  const CellRect kept = ScrollTarget(block, lines);
  if (kept.IsEmpty()) return block;
  CellRect vacated = block;
  if (lines > 0) vacated.top = kept.bottom + 1;
  if (lines <= 0) vacated.bottom = kept.top - 1;
  return vacated;
}

void CellGrid::Reset(int newColumns, int newRows) {
  columns = newColumns;
  rows = newRows;
  cells.assign(static_cast<size_t>(columns) * rows, kBlank);
  rowStarts.resize(rows);
  for (int y = 0; y < rows; ++y) rowStarts[y] = static_cast<size_t>(y) * columns;
}

template <class Change>
CellRect CellGrid::ChangeRow(int y, int first, int last, Change change) {
  CellRect changed;
  if (y < 0 || y >= rows) return changed;
  for (int x = first; x <= last; ++x) {
    Cell& cell = cells[Index(x, y)];
    const Cell wanted = change(cell, x);
    if (wanted == cell) continue;
    cell = wanted;
    if (changed.IsEmpty()) changed = {x, y, x, y};
    changed.right = x;
  }
  return changed;
}

CellRect CellGrid::PutString(int x, int y, const wchar_t* text, uint8_t attribute) {
  const int length = x < columns ? static_cast<int>(wcsnlen(text, int64_t{columns} - x)) : 0;
  const CellRect place = ClipBlock(x, y, length, 1, Bounds());
  return ChangeRow(y, place.left, place.right,
                   [&](const Cell&, int at) { return Cell{MapCharacter(text[at - x]), attribute}; });
}

CellRect CellGrid::PutCells(int x, int y, const Cell* zeroEnded) {
  int length = 0;
  while (int64_t{x} + length < columns && zeroEnded[length].character != 0) ++length;
  const CellRect place = ClipBlock(x, y, length, 1, Bounds());
  return ChangeRow(y, place.left, place.right, [&](const Cell&, int at) {
    const Cell& source = zeroEnded[at - x];
    return Cell{MapCharacter(source.character), source.attribute};
  });
}

CellRect CellGrid::PutRepeated(int x, int y, int count, Cell cell) {
  if (cell.character < 32) cell.character = MapCharacter(cell.character);
  const CellRect place = ClipBlock(x, y, count, 1, Bounds());
  return ChangeRow(y, place.left, place.right, [&](const Cell&, int) { return cell; });
}

CellRect CellGrid::SetAttributes(int x, int y, int count, uint8_t attribute) {
  const CellRect place = ClipBlock(x, y, count, 1, Bounds());
  return ChangeRow(y, place.left, place.right,
                   [&](const Cell& old, int) { return Cell{old.character, attribute}; });
}

CellRect CellGrid::FillBlank(int x, int y, int width, int height, uint8_t attribute) {
  const CellRect place = ClipBlock(x, y, width, height, Bounds());
  CellRect changed;
  for (int row = place.top; row <= place.bottom; ++row) {
    changed = Union(changed, PutRepeated(place.left, row, place.right - place.left + 1, {' ', attribute}));
  }
  return changed;
}

std::unique_ptr<Cell[]> CellGrid::SaveBlock(int x, int y, int width, int height) const {
  width = std::max(width, 0);
  height = std::max(height, 0);
  const size_t size = static_cast<size_t>(width) * height;
  std::unique_ptr<Cell[]> saved(new Cell[size]);
  std::fill_n(saved.get(), size, kBlank);
  const CellRect place = ClipBlock(x, y, width, height, Bounds());
  for (int row = place.top; row <= place.bottom; ++row) {
    std::copy(Row(row) + place.left, Row(row) + place.right + 1,
              saved.get() + static_cast<size_t>(row - y) * width + (place.left - x));
  }
  return saved;
}

CellRect CellGrid::RestoreBlock(int x, int y, int width, int height, const Cell* source) {
  const CellRect place = ClipBlock(x, y, width, height, Bounds());
  CellRect changed;
  for (int row = place.top; row <= place.bottom; ++row) {
    const Cell* line = source + static_cast<size_t>(row - y) * width;
    changed = Union(changed, ChangeRow(row, place.left, place.right,
                                       [&](const Cell&, int at) { return line[at - x]; }));
  }
  return changed;
}

void CellGrid::ReadRow(CellString& target, int x, int y, int width, int height) const {
  const CellRect place = ClipBlock(x, y, width, height, Bounds());
  for (int row = place.top; row <= place.bottom; ++row) {
    target.Append(Row(row) + place.left, place.right - place.left + 1);
  }
}

void CellGrid::Scroll(const CellRect& block, int lines, uint8_t attribute) {
  MoveRows(block, lines);
  const CellRect vacated = ScrollVacated(block, lines);
  for (int y = vacated.top; y <= vacated.bottom; ++y) {
    std::fill(MutableRow(y) + block.left, MutableRow(y) + block.right + 1, Cell{' ', attribute});
  }
}

// A terminal scrolls for each line of a flood: rows of full width are turned
// round without touching their cells.
void CellGrid::MoveRows(const CellRect& block, int lines) {
  const CellRect source = ScrollSource(block, lines), target = ScrollTarget(block, lines);
  if (source.IsEmpty()) return;
  if (block.left == 0 && block.right == columns - 1) {
    const auto first = rowStarts.begin() + block.top, last = rowStarts.begin() + block.bottom + 1;
    std::rotate(first, lines > 0 ? first + lines : last + lines, last);
    return;
  }
  const int height = source.bottom - source.top + 1;
  for (int i = 0; i < height; ++i) {
    const int row = lines > 0 ? i : height - 1 - i;  // never over rows still to be moved
    std::copy_n(Row(source.top + row) + block.left, block.right - block.left + 1,
                MutableRow(target.top + row) + block.left);
  }
}
