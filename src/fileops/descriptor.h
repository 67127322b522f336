// An open file of the system that closes itself: for what needs flags and calls
// that StdFile does not offer.
#pragma once

#include <fcntl.h>
#include <sys/types.h>

class Descriptor {
 public:
  Descriptor() = default;
  ~Descriptor() { Close(); }
  Descriptor(Descriptor&& other) noexcept : fd(other.fd) { other.fd = -1; }
  Descriptor& operator=(Descriptor&& other) noexcept;

  // Flags as of open(2); it is always closed across exec. A relative path counts
  // from directory. 0 or errno.
  int Open(const char* path, int flags, mode_t mode = 0, int directory = AT_FDCWD);
  int Close();    // 0 or errno, which may be about data that was written long ago
  int Release();  // the caller closes it

  bool IsOpen() const { return fd >= 0; }
  int Get() const { return fd; }  // -1 while not open

 private:
  int fd = -1;
};

// All n bytes. 0 or errno.
int WriteAt(const Descriptor& file, const char* data, size_t n, off_t offset);
