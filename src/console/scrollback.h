// The rows that scrolled off the console text, packed: the cells themselves and
// four bytes a row.
#pragma once

#include <cstdint>
#include <deque>
#include <vector>

#include "console/cell.h"

// Grows for as long as the process runs, by a block at a time: rows that are
// kept are not moved, however many come.
class CScrollBackBuffer {
 public:
  int Count() const { return count; }
  void Append(const Cell* cells, int n);  // a row of n cells; copied
  // The cells of row i, which must be there. Valid until the next change.
  const Cell* Row(int i, int& length) const;
  void RemoveLast(int rows);  // at most all
  void Clear();

 private:
  static constexpr int kBlockRows = 1024;

  struct Block {
    std::vector<Cell> cells;        // of kBlockRows rows, one behind the other
    std::vector<uint32_t> rowEnds;  // in cells
  };

  std::deque<Block> blocks;  // all but the last one are full
  int count = 0;
};

extern CScrollBackBuffer ScrollBack;
