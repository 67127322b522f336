// The table of blocks. A block knows how many bytes it has; where they end, the
// file ends for those who read, be its size what it may.
#include "viewer/block_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "viewer/read_ahead.h"

struct CBlockFile::Block {
  int64_t offset = 0;
  int count = 0;             // bytes that could be read
  int64_t fileSizeThen = 0;  // what was known when it was read
  BlockBytes bytes{new uint8_t[kBlockSize]};
};

namespace {

// Opening a FIFO may wait for ever, and opening a device may do things.
int RefusalOf(const char* path) {
  struct stat status;
  if (stat(path, &status) != 0) return 0;  // opening will tell
  if (S_ISDIR(status.st_mode)) return EISDIR;
  return S_ISREG(status.st_mode) || S_ISBLK(status.st_mode) ? 0 : EOPNOTSUPP;
}

// A disk tells its size by its end only.
int64_t SizeNow(int fd) {
  struct stat status;
  if (fstat(fd, &status) != 0) return 0;
  if (!S_ISBLK(status.st_mode)) return status.st_size;
  return std::max<int64_t>(lseek(fd, 0, SEEK_END), 0);
}

int64_t BlockOffset(int64_t offset) { return offset - offset % CBlockFile::kBlockSize; }

}  // namespace

CBlockFile::CBlockFile() = default;

CBlockFile::~CBlockFile() { Close(); }

int CBlockFile::Open(const Westring& path) {
  Close();
  if (const int code = RefusalOf(ToUtf8(path).Text())) return Fail(code);
  if (const int code = StdFile::Open(path, kOpenRead | kOpenNoWait)) return code;
  FileSize = SizeNow(Descriptor());
  tellsSize = FileSize > 0;
  return 0;
}

int CBlockFile::Close() {
  readAhead.reset();
  for (std::unique_ptr<Block>& block : blocks) block.reset();
  blockCount = 0;
  firstOffset = -kBlockSize;
  firstCount = 0;
  firstBytes = nullptr;
  FileSize = 0;
  RereadTail = false;
  return StdFile::Close();
}

int CBlockFile::BytesFrom(int64_t offset, const uint8_t*& bytes) {
  if (ByteAt(offset) < 0) return 0;
  bytes = firstBytes + (offset - firstOffset);
  return static_cast<int>(firstCount - (offset - firstOffset));
}

int CBlockFile::BytesUpTo(int64_t offset, const uint8_t*& bytes) {
  if (ByteAt(offset) < 0) return 0;
  bytes = firstBytes;
  return static_cast<int>(offset - firstOffset + 1);
}

int64_t CBlockFile::ReadableEnd(int64_t offset) {
  if (offset <= 0 || ByteAt(offset - 1) >= 0 || !IsOpen()) return offset;
  const int64_t blockOffset = BlockOffset(offset - 1);
  const int slot = FindBlock(blockOffset);
  if (slot >= 0 && blocks[slot]->count > 0) return blockOffset + blocks[slot]->count;
  return std::min(blockOffset, tellsSize ? SizeNow(Descriptor()) : FileSize);
}

// ---- the table -------------------------------------------------------------

int CBlockFile::ByteElsewhere(int64_t offset) {
  if (offset < 0 || !IsOpen()) return -1;
  const int64_t blockOffset = BlockOffset(offset);
  const int slot = FindBlock(blockOffset);
  if (slot < 0) {
    MoveToFront(TakeBlock(blockOffset));
    Read(*blocks[0], true);
    ReadOn();
  } else {
    Block& found = *blocks[slot];
    if (HasGrownTo(offset, found)) Read(found, false);
    if (offset - blockOffset >= found.count) return -1;
    MoveToFront(slot);
  }
  firstOffset = blockOffset;
  firstCount = blocks[0]->count;
  firstBytes = blocks[0]->bytes.get();
  return offset - blockOffset < firstCount ? firstBytes[offset - blockOffset] : -1;
}

// The slot, or -1.
int CBlockFile::FindBlock(int64_t blockOffset) const {
  for (int slot = 0; slot < blockCount; ++slot)
    if (blocks[slot]->offset == blockOffset) return slot;
  return -1;
}

// A slot for another block: a new one, or that of the block not used for longest.
int CBlockFile::TakeBlock(int64_t blockOffset) {
  if (blockCount < kMostBlocks) blocks[blockCount++] = std::make_unique<Block>();
  const int slot = blockCount - 1;
  blocks[slot]->offset = blockOffset;
  return slot;
}

// Whether it is worth reading a block again that lacks the byte at offset.
bool CBlockFile::HasGrownTo(int64_t offset, const Block& block) const {
  if (offset - block.offset < block.count) return false;
  return offset >= FileSize ? RereadTail : FileSize > block.fileSizeThen;
}

void CBlockFile::Read(Block& block, bool mayBeAhead) {
  BlockRead read;
  const bool isAhead = mayBeAhead && readAhead && readAhead->Take(block.offset, block.bytes, read);
  // Read ahead before the file grew.
  const bool isOutdated = read.count < kBlockSize && block.offset + read.count < FileSize;
  if (!isAhead || isOutdated) read = ReadBlock(Descriptor(), block.offset, block.bytes.get(), kBlockSize);
  block.count = read.count;
  wasLong = read.wasLong;
  // A look far behind the end must not make the file seem to reach there.
  if (block.count > 0) FileSize = std::max(FileSize, block.offset + block.count);
  block.fileSizeThen = FileSize;
  if (block.offset == firstOffset) firstCount = block.count;
}

void CBlockFile::MoveToFront(int slot) {
  std::rotate(blocks.begin(), blocks.begin() + slot, blocks.begin() + slot + 1);
}

// What the system has in memory is read faster than a thread wakes.
void CBlockFile::ReadOn() {
  if (!wasLong) return;
  const int64_t before = blockCount > 1 ? blocks[1]->offset : -1;
  const int64_t next = NextBlockOffset(before, blocks[0]->offset, kBlockSize);
  if (next < 0 || next >= FileSize) return;
  if (!readAhead) readAhead = std::make_unique<ReadAhead>(Descriptor(), kBlockSize);
  readAhead->Request(next);
}
