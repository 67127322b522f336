// The read-ahead thread. It takes a buffer in exchange for the one it has filled,
// so nothing is copied.
#include "viewer/read_ahead.h"

#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <utility>

namespace {

using Clock = std::chrono::steady_clock;

// Handing a block over between two threads costs about a quarter of this.
constexpr std::chrono::microseconds kLongRead{100};

// A file of the system that is made while it is read comes in pieces.
int ReadBytes(int fd, int64_t offset, uint8_t* bytes, int size) {
  int count = 0;
  while (count < size) {
    const ssize_t got = pread(fd, bytes + count, static_cast<size_t>(size - count), offset + count);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) break;
    count += static_cast<int>(got);
  }
  return count;
}

}  // namespace

BlockRead ReadBlock(int fd, int64_t offset, uint8_t* bytes, int size) {
  const Clock::time_point begin = Clock::now();
  const int count = ReadBytes(fd, offset, bytes, size);
  return {count, Clock::now() - begin > kLongRead};
}

int64_t NextBlockOffset(int64_t before, int64_t now, int blockSize) {
  const int64_t step = before < 0 ? blockSize : now - before;
  if (step == blockSize) return now <= INT64_MAX - blockSize ? now + blockSize : -1;
  return step == -blockSize && now >= blockSize ? now - blockSize : -1;
}

ReadAhead::ReadAhead(int fileDescriptor, int size)
    : fd(fileDescriptor), blockSize(size), buffer(new uint8_t[static_cast<size_t>(size)]) {
  isRunning = pthread_create(&thread, nullptr, Main, this) == 0;
}

ReadAhead::~ReadAhead() {
  if (!isRunning) return;
  {
    const MutexLock lock(fileLock);
    isClosing = true;
    wake.Set();
  }
  pthread_join(thread, nullptr);
}

void ReadAhead::Request(int64_t offset) {
  if (!isRunning) return;
  const MutexLock lock(fileLock);
  requested = offset;
  ready = {};
  wake.Set();
}

// What the thread has not begun it won't, since the caller reads it now.
bool ReadAhead::Take(int64_t offset, BlockBytes& bytes, BlockRead& read) {
  const MutexLock lock(fileLock);
  if (requested != offset) return false;
  requested = -1;
  if (ready.count == 0) return false;
  std::swap(buffer, bytes);
  read = std::exchange(ready, {});
  return true;
}

void* ReadAhead::Main(void* self) {
  static_cast<ReadAhead*>(self)->Run();
  return nullptr;
}

void ReadAhead::Run() {
  for (;;) {
    wake.Wait(kForever);
    const MutexLock lock(fileLock);
    if (isClosing) return;
    if (requested >= 0 && ready.count == 0) ready = ReadBlock(fd, requested, buffer.get(), blockSize);
    wake.Reset();
  }
}
