// The rows that scrolled off the console text, packed: the cells themselves and
// four bytes a row.
#pragma once

#include <climits>
#include <cstdint>
#include <deque>
#include <vector>

#include "console/cell.h"
#include "foundation/available_memory.h"

// Grows for as long as the process runs, by a block at a time: rows that are
// kept are not moved, however many come. Only where the system would otherwise
// end the process for want of memory the oldest rows make room.
class CScrollBackBuffer {
 public:
  // available() tells the bytes that there still are.
  explicit CScrollBackBuffer(int64_t (*available)() = AvailableMemory) : available(available) {}

  int Count() const { return count; }
  // A row of n cells; copied. May drop the oldest rows.
  void Append(const Cell* cells, int n);
  // The cells of row i, which must be there. Valid until the next change.
  const Cell* Row(int i, int& length) const;
  void RemoveLast(int rows);  // at most all
  void Clear();

 private:
  static constexpr int kBlockRows = 1024;
  static constexpr int kMostRows = INT_MAX - kBlockRows;   // or count would overflow
  static constexpr int64_t kReserve = int64_t{128} << 20;  // bytes left to all else

  struct Block {
    std::vector<Cell> cells;        // of kBlockRows rows, one behind the other
    std::vector<uint32_t> rowEnds;  // in cells
  };

  void BeginBlock(int rowLength);

  int64_t (*available)();
  std::deque<Block> blocks;  // all but the last one are full
  int count = 0;
};

extern CScrollBackBuffer ScrollBack;
