// Bytes of a file of any size: a few blocks in memory and one read ahead.
#pragma once

#include <array>
#include <memory>

#include "foundation/std_file.h"

class ReadAhead;

class CBlockFile : public StdFile {
 public:
  static constexpr int kBlockSize = 16384;
  static constexpr int kMostBlocks = 4;

  CBlockFile();
  ~CBlockFile();

  // 0 or errno; a directory is EISDIR, and what has no bytes at offsets, a FIFO or
  // a terminal, is EOPNOTSUPP. Never waits.
  int Open(const Westring& path);
  int Close();

  // 0 to 255, or -1 at and past the end of the file and where nothing can be read.
  int ByteAt(int64_t offset) {
    // Of any two offsets: what lies before the block wraps far behind it.
    const uint64_t inBlock = static_cast<uint64_t>(offset) - static_cast<uint64_t>(firstOffset);
    if (inBlock < static_cast<uint64_t>(firstCount)) return firstBytes[inBlock];
    return ByteElsewhere(offset);
  }

  // The bytes from offset on that stand in memory side by side: their number,
  // bytes pointing to them until the next read; 0 at the end. So a scan asks once
  // a block.
  int BytesFrom(int64_t offset, const uint8_t*& bytes);
  // The bytes up to and with offset: bytes points to the first of them.
  int BytesUpTo(int64_t offset, const uint8_t*& bytes);

  int64_t FileSize = 0;     // raised by what is read, never lowered while open
  bool RereadTail = false;  // a request past the end looks whether the file grew

 protected:
  // The last place up to offset that has readable bytes before it, as far as one
  // look tells: the end of a file that has become shorter, the start of a block
  // that cannot be read.
  int64_t ReadableEnd(int64_t offset);

 private:
  struct Block;

  int ByteElsewhere(int64_t offset);
  int FindBlock(int64_t blockOffset) const;
  int TakeBlock(int64_t blockOffset);
  bool HasGrownTo(int64_t offset, const Block& block) const;
  void Read(Block& block, bool mayBeAhead);
  void MoveToFront(int slot);
  void ReadOn();

  int64_t firstOffset = -kBlockSize;  // of the block used last, which is blocks[0]
  int firstCount = 0;                 // bytes that it has
  const uint8_t* firstBytes = nullptr;
  std::array<std::unique_ptr<Block>, kMostBlocks> blocks;  // used last first
  int blockCount = 0;
  bool wasLong = false;    // the last read of a block
  bool tellsSize = false;  // not so a file that is made while it is read
  std::unique_ptr<ReadAhead> readAhead;
};
