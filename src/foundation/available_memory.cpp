// Asking the kernel for the memory that is left.
#include "foundation/available_memory.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

constexpr int64_t kUnknown = INT64_MAX;

// The number behind a label, or the file's first one without; kUnknown if there
// is none. No stream: this is asked for when memory is short.
int64_t NumberIn(const char* file, const char* label) {
  char text[4096];
  const int fd = open(file, O_RDONLY | O_CLOEXEC);
  if (fd < 0) return kUnknown;
  const ssize_t length = read(fd, text, sizeof text - 1);
  close(fd);
  text[std::max<ssize_t>(length, 0)] = 0;
  const char* const found = strstr(text, label);
  if (found == nullptr) return kUnknown;
  const char* const number = found + strlen(label);
  char* end = nullptr;
  const int64_t value = strtoll(number, &end, 10);
  return end == number ? kUnknown : value;
}

int64_t LeftInSystem() {
  const int64_t kilobytes = NumberIn("/proc/meminfo", "MemAvailable:");
  return kilobytes == kUnknown ? kUnknown : kilobytes * 1024;
}

int64_t LeftInLimit() {
  rlimit limit{};
  if (getrlimit(RLIMIT_AS, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY) return kUnknown;
  const int64_t pages = NumberIn("/proc/self/statm", "");
  if (pages == kUnknown) return kUnknown;
  return std::max<int64_t>(static_cast<int64_t>(limit.rlim_cur) - pages * sysconf(_SC_PAGESIZE), 0);
}

}  // namespace

int64_t AvailableMemory() { return std::min(LeftInSystem(), LeftInLimit()); }
