// One block of a file is read on a thread while another one is looked at.
#pragma once

#include <pthread.h>

#include <cstdint>
#include <memory>

#include "foundation/sync.h"

using BlockBytes = std::unique_ptr<uint8_t[]>;

// What a read came to: how many bytes, and whether it took so long that the next
// one is better made by a thread.
struct BlockRead {
  int count = 0;
  bool wasLong = false;
};

// Reads size bytes at offset, fewer at the end of the file and where it fails.
BlockRead ReadBlock(int fd, int64_t offset, uint8_t* bytes, int size);

// The block worth reading ahead when one at offset now has been read after one at
// before, -1 for none such: the next one of the same direction. -1 for none.
int64_t NextBlockOffset(int64_t before, int64_t now, int blockSize);

// Asked by one thread. The descriptor stays the caller's and outlives this.
class ReadAhead {
 public:
  ReadAhead(int fd, int blockSize);
  ~ReadAhead();
  ReadAhead(const ReadAhead&) = delete;
  ReadAhead& operator=(const ReadAhead&) = delete;

  void Request(int64_t offset);
  // Gives what was read for offset in exchange for another buffer, after the end
  // of a read that is under way. False for what was not asked for, not begun or
  // has no bytes.
  bool Take(int64_t offset, BlockBytes& bytes, BlockRead& read);

 private:
  static void* Main(void* self);
  void Run();

  const int fd, blockSize;
  Mutex fileLock;  // held while reading; guards all that follows
  Event wake;
  BlockBytes buffer;
  int64_t requested = -1;
  BlockRead ready;
  bool isClosing = false;
  pthread_t thread{};
  bool isRunning = false;  // the asking thread's
};
