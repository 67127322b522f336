// A bump allocator: an allocation costs a pointer increment, and all go at once.
#pragma once

#include <cstdint>
#include <cstdlib>

#include "foundation/collections.h"

struct MemoryPoolBlock {
  explicit MemoryPoolBlock(int32_t bytes);
  ~MemoryPoolBlock() { free(base); }
  MemoryPoolBlock(const MemoryPoolBlock&) = delete;
  MemoryPoolBlock& operator=(const MemoryPoolBlock&) = delete;

  char* base;  // null if there was no memory
  char* next;  // first free byte
  int32_t size;
};

class MemoryPool : public TObjectStore<MemoryPoolBlock> {
 public:
  static constexpr int32_t kBlockSize = 0x10000;

  MemoryPool();
  // n bytes with no alignment, or null if there is no memory. Nothing goes back
  // to an earlier block, even if it has room.
  void* Alloc(int32_t n);
  void Reset();  // frees all and starts a fresh block

 private:
  void AddBlock(int32_t size);
  MemoryPoolBlock* currentBlock;
};
