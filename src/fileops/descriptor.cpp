// Descriptor; see descriptor.h.
#include "fileops/descriptor.h"

#include <unistd.h>

#include <cerrno>
#include <utility>

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
  std::swap(fd, other.fd);
  return *this;
}

int Descriptor::Open(const char* path, int flags, mode_t mode, int directory) {
  Close();
  do {
    fd = openat(directory, path, flags | O_CLOEXEC, mode);
  } while (fd < 0 && errno == EINTR);
  return fd < 0 ? errno : 0;
}

int Descriptor::Close() {
  if (fd < 0) return 0;
  // An interrupted close has closed all the same.
  const int code = close(fd) != 0 && errno != EINTR ? errno : 0;
  fd = -1;
  return code;
}

int Descriptor::Release() { return std::exchange(fd, -1); }

int WriteAt(const Descriptor& file, const char* data, size_t n, off_t offset) {
  while (n > 0) {
    const ssize_t written = pwrite(file.Get(), data, n, offset);
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return written < 0 ? errno : ENOSPC;
    data += written;
    n -= static_cast<size_t>(written);
    offset += written;
  }
  return 0;
}
