// Blocks from malloc, so that a lack of memory is an answer and no exception.
#include "foundation/memory_pool.h"

#include <algorithm>
#include <memory>

MemoryPoolBlock::MemoryPoolBlock(int32_t bytes)
    : base(static_cast<char*>(malloc(bytes))), next(base), size(bytes) {}

MemoryPool::MemoryPool() { AddBlock(kBlockSize); }

void* MemoryPool::Alloc(int32_t n) {
  if (n < 0) return nullptr;
  for (int attempt = 0; attempt < 2; attempt++) {
    char* const place = currentBlock->next;
    if (place && n <= currentBlock->base + currentBlock->size - place) {
      currentBlock->next = place + n;
      return place;
    }
    if (attempt == 0) AddBlock(std::max(n, kBlockSize));
  }
  return nullptr;
}

void MemoryPool::Reset() {
  Clear();
  AddBlock(kBlockSize);
}

void MemoryPool::AddBlock(int32_t size) {
  auto block = std::make_unique<MemoryPoolBlock>(size);
  Append(block.get());
  currentBlock = block.release();
}
