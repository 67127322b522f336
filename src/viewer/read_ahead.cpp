// The read-ahead thread. It takes a buffer in exchange for the one it has filled,
// so nothing is copied.
#include "viewer/read_ahead.h"

#include <sys/uio.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace {

// What the system has in memory, and no more.
ssize_t ReadCached(int fd, int64_t offset, uint8_t* bytes, int size) {
  const iovec target{bytes, static_cast<size_t>(size)};
  return preadv2(fd, &target, 1, offset, RWF_NOWAIT);
}

}  // namespace

// A file of the system that is made while it is read comes in pieces.
BlockRead ReadBlock(int fd, int64_t offset, uint8_t* bytes, int size) {
  BlockRead read;
  const ssize_t cached = ReadCached(fd, offset, bytes, size);
  if (cached == size) return {size, false};
  if (cached > 0) read.count = static_cast<int>(cached);
  while (read.count < size) {
    const size_t missing = static_cast<size_t>(size - read.count);
    const ssize_t got = pread(fd, bytes + read.count, missing, offset + read.count);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) break;
    read.count += static_cast<int>(got);
    read.waited = true;
  }
  return read;
}

int64_t NextBlockOffset(int64_t before, int64_t now, int blockSize) {
  if (before < 0 || now == before + blockSize) return now + blockSize;
  if (now == before - blockSize && now >= blockSize) return now - blockSize;
  return -1;
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
