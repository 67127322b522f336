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

  // 0 or errno; a directory is EISDIR. Takes the size and starts the reading ahead.
  int Open(const Westring& path);
  void Close();

  // 0 to 255, or -1 at and past the end of the file and where nothing can be read.
  int ByteAt(int64_t offset) {
    const int64_t inBlock = offset - firstOffset;
    if (inBlock >= 0 && inBlock < kBlockSize && offset < FileSize) return firstBytes[inBlock];
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

 private:
  struct Block;

  int ByteElsewhere(int64_t offset);

  int64_t firstOffset = -kBlockSize;  // of the block used last
  const uint8_t* firstBytes = nullptr;
  std::array<std::unique_ptr<Block>, kMostBlocks> blocks;
  int blockCount = 0;
  std::unique_ptr<ReadAhead> readAhead;
};
