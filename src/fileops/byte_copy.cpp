// How bytes get from one file to the other; see byte_copy.h.
#include "fileops/byte_copy.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <limits>

#include "fileops/copy_progress.h"
#include "fileops/file_error.h"

namespace {

constexpr size_t kBufferBytes = 32768;
// Short enough for the progress, and for who wants to stop.
constexpr int64_t kKernelStep = 4 << 20;
constexpr int64_t kNoEnd = std::numeric_limits<int64_t>::max();
constexpr int kMostFailures = 3;  // of reading, until the user is asked
constexpr int kPatience = 100;    // milliseconds between two looks for a cancel
constexpr int kBlock = 512;       // bytes, the unit of st_blocks

}  // namespace

int ByteCopy::CopyFile(const struct stat& status) {
  int code = 0;
  if (status.st_blocks * kBlock < status.st_size)
    code = CopySegments(status.st_size);
  else if (status.st_size > static_cast<int64_t>(kBufferBytes))
    code = CopyByKernel(status.st_size);
  // Also what was added since, and what only reading tells of.
  if (code == 0 && !ended) code = CopyBuffered(kNoEnd);
  if (code == 0 && at > written && ftruncate(to, at) != 0) code = errno;
  return code;
}

int ByteCopy::CopyStream(bool sourceWaits, bool targetWaits) {
  awaitsSource = sourceWaits;
  awaitsTarget = targetWaits;
  return CopyBuffered(kNoEnd);
}

void ByteCopy::Uncount() {
  if (!operation.progress) return;
  operation.progress->state.done -= at;
  operation.progress->state.dirty = true;
}

// ---- holes -----------------------------------------------------------------

int ByteCopy::CopySegments(int64_t size) {
  while (at < size && !ended) {
    int64_t data = lseek(from, at, SEEK_DATA);
    positioned = false;
    if (data < 0 && errno != ENXIO) return CopyRange(size);  // holes are not told here
    if (data < 0) {
      // Nothing but a hole up to the end, which may have come nearer. What is
      // behind the end as it was need not be a hole.
      struct stat now;
      if (fstat(from, &now) != 0) return errno;
      SkipTo(std::min<int64_t>(now.st_size, size));
      return 0;
    }
    SkipTo(data);
    int64_t hole = lseek(from, at, SEEK_HOLE);
    if (hole <= at) hole = size;
    if (const int code = CopyRange(hole)) return code;
  }
  return 0;
}

int ByteCopy::CopyRange(int64_t end) {
  int code = CopyByKernel(end);
  if (code == 0 && at < end) code = CopyBuffered(end);
  return code;
}

void ByteCopy::SkipTo(int64_t offset) {
  if (offset > at) Advance(offset - at);
}

// ---- by the kernel ---------------------------------------------------------

// Leaves what it can't do, and errors, to the buffer.
int ByteCopy::CopyByKernel(int64_t end) {
  while (kernelCopies && at < end) {
    off_t in = at, out = at;
    const size_t wanted = static_cast<size_t>(std::min(kKernelStep, end - at));
    const ssize_t copied = copy_file_range(from, &in, to, &out, wanted, 0);
    if (copied <= 0) {
      kernelCopies = false;
      break;
    }
    positioned = false;
    Advance(copied);
    written = at;
    if (cancel.Stopped()) return kStopCommand;
  }
  return 0;
}

// ---- by the buffer ---------------------------------------------------------

int ByteCopy::CopyBuffered(int64_t end) {
  if (const int code = MoveBoth()) return code;
  if (!buffer) buffer.reset(new char[kBufferBytes]);
  while (at < end) {
    size_t got = 0;
    const int64_t wanted = std::min<int64_t>(kBufferBytes, end - at);
    if (const int code = ReadSome(static_cast<size_t>(wanted), got)) return code;
    if (got == 0) {
      ended = true;
      return 0;
    }
    if (const int code = WriteAll(got)) return code;
    Advance(static_cast<int64_t>(got));
    written = at;
    if (cancel.Stopped()) return kStopCommand;
  }
  return 0;
}

int ByteCopy::MoveBoth() {
  if (positioned) return 0;
  if (lseek(from, at, SEEK_SET) < 0 || lseek(to, at, SEEK_SET) < 0) return errno;
  positioned = true;
  return 0;
}

// A disk that fails may succeed a little later; the user knows better than any
// number of attempts.
int ByteCopy::ReadSome(size_t wanted, size_t& got) {
  int failures = 0;
  for (;;) {
    if (awaitsSource)
      if (const int code = Await(from, POLLIN)) return code;
    const ssize_t result = read(from, buffer.get(), wanted);
    if (result >= 0) {
      got = static_cast<size_t>(result);
      return 0;
    }
    if (errno == EINTR || (errno == EAGAIN && awaitsSource)) continue;
    if (errno != EIO) return errno;
    if (++failures < kMostFailures) continue;
    int code = EIO;
    if (!WantsRetry(operation, code, sourcePath)) {
      told = true;
      return code;
    }
    if (operation.progress) operation.progress->Start();
    failures = 0;
  }
}

int ByteCopy::WriteAll(size_t n) {
  const char* data = buffer.get();
  while (n > 0) {
    if (awaitsTarget)
      if (const int code = Await(to, POLLOUT)) return code;
    const ssize_t result = write(to, data, n);
    if (result < 0 && (errno == EINTR || (errno == EAGAIN && awaitsTarget))) continue;
    if (result <= 0) return result < 0 ? errno : ENOSPC;
    data += result;
    n -= static_cast<size_t>(result);
  }
  return 0;
}

// An end that has gone counts as ready: reading or writing then tells.
int ByteCopy::Await(int fd, short events) {
  pollfd waiting{fd, events, 0};
  while (poll(&waiting, 1, kPatience) <= 0)
    if (cancel.Stopped()) return kStopCommand;
  return 0;
}

void ByteCopy::Advance(int64_t bytes) {
  at += bytes;
  if (!operation.progress) return;
  TProgress& shown = operation.progress->state;
  shown.dirty = true;
  shown.done += bytes;
  shown.dirty = true;
}
