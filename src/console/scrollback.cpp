// Rows in blocks of one count, so that the number of a row tells its block.
#include "console/scrollback.h"

#include <algorithm>

CScrollBackBuffer ScrollBack;

void CScrollBackBuffer::Append(const Cell* cells, int n) {
  n = std::max(n, 0);
  if (count % kBlockRows == 0) BeginBlock(n);
  Block& block = blocks.back();
  block.cells.insert(block.cells.end(), cells, cells + n);
  block.rowEnds.push_back(static_cast<uint32_t>(block.cells.size()));
  ++count;
  if (count % kBlockRows == 0) block.cells.shrink_to_fit();  // where the width has changed
}

// Rows are as wide as the screen, nearly always: the room is for the whole block.
void CScrollBackBuffer::BeginBlock(int rowLength) {
  if (blocks.size() > 1 && (count > kMostRows || available() < kReserve)) {
    blocks.pop_front();
    count -= kBlockRows;
  }
  blocks.emplace_back();
  blocks.back().cells.reserve(static_cast<size_t>(rowLength) * kBlockRows);
  blocks.back().rowEnds.reserve(kBlockRows);
}

const Cell* CScrollBackBuffer::Row(int i, int& length) const {
  const Block& block = blocks[i / kBlockRows];
  const int inBlock = i % kBlockRows;
  const uint32_t begin = inBlock == 0 ? 0 : block.rowEnds[inBlock - 1];
  length = static_cast<int>(block.rowEnds[inBlock] - begin);
  return block.cells.data() + begin;
}

void CScrollBackBuffer::RemoveLast(int rows) {
  count -= std::clamp(rows, 0, count);
  const size_t kept = (static_cast<size_t>(count) + kBlockRows - 1) / kBlockRows;
  blocks.resize(kept);
  const int inLast = count % kBlockRows;
  if (inLast == 0) return;
  Block& last = blocks.back();
  last.rowEnds.resize(inLast);
  last.cells.resize(last.rowEnds.back());
}

void CScrollBackBuffer::Clear() { RemoveLast(count); }
