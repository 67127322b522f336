// Looking for holes, backward.
#include "viewer/file_holes.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string>

namespace {

constexpr int64_t kSmallestHole = 1 << 20;  // smaller ones are read as fast

}  // namespace

FileHoles::FileHoles(int file) {
  struct stat status;
  if (fstat(file, &status) != 0 || !S_ISREG(status.st_mode)) return;
  descriptor = open(("/proc/self/fd/" + std::to_string(file)).c_str(), O_RDONLY | O_CLOEXEC);
}

FileHoles::~FileHoles() {
  if (descriptor >= 0) close(descriptor);
}

// The system looks forward only, so ever larger pieces are asked for.
int64_t FileHoles::Begin(int64_t end, int64_t floor) const {
  if (descriptor < 0) return end;
  int64_t begin = end;
  for (int64_t size = kSmallestHole; begin > floor; size *= 2) {
    const int64_t lower = std::max(begin - size, floor);
    if (!IsHole(lower, begin)) break;
    begin = lower;
  }
  return begin;
}

bool FileHoles::IsHole(int64_t begin, int64_t end) const {
  const int64_t data = lseek(descriptor, begin, SEEK_DATA);
  return data >= end || (data < 0 && errno == ENXIO);
}
