// The holes of a sparse file, which hold nothing but zeros and need no reading.
#pragma once

#include <cstdint>

class FileHoles {
 public:
  // Of the file that descriptor is open on. What is no regular file has no holes.
  explicit FileHoles(int descriptor);
  ~FileHoles();
  FileHoles(const FileHoles&) = delete;
  FileHoles& operator=(const FileHoles&) = delete;

  // The lowest offset known from which on there is a hole up to end; end for none.
  // Not below floor.
  int64_t Begin(int64_t end, int64_t floor) const;

 private:
  bool IsHole(int64_t begin, int64_t end) const;

  int descriptor = -1;  // our own: looking for a hole moves the file's position
};
