// The bytes of one file. The kernel carries them where it can; a buffer does the
// rest; and what is a hole in the source becomes none of the disk's blocks.
#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <memory>

#include "console/input.h"
#include "fileops/file_operation.h"

class ByteCopy {
 public:
  ByteCopy(FileOperation& copyOperation, BreakScope& cancelState, const Westring& path, int source,
           int target)
      : operation(copyOperation), cancel(cancelState), sourcePath(path), from(source), to(target) {}
  ByteCopy(const ByteCopy&) = delete;
  ByteCopy& operator=(const ByteCopy&) = delete;

  // From one regular file to another, empty one, until the source ends, which
  // need not be where status says. 0; errno; EIO where the user was told, see
  // WasTold; -1 where he stopped it.
  int CopyFile(const struct stat& status);
  // The same where an end is a pipe or a device. Waits for the other side of a
  // pipe, and for a device to be ready, as long as the user doesn't stop it.
  int CopyStream(bool sourceWaits, bool targetWaits);

  int64_t Copied() const { return at; }  // the size of the target
  bool WasTold() const { return told; }
  // What was counted as done is not, as the copy has failed.
  void Uncount();

 private:
  int CopySegments(int64_t size);
  int CopyRange(int64_t end);
  int CopyByKernel(int64_t end);
  int CopyBuffered(int64_t end);
  int MoveBoth();
  int ReadSome(size_t wanted, size_t& got);
  int WriteAll(size_t n);
  int Await(int fd, short events);
  void SkipTo(int64_t offset);
  void Advance(int64_t bytes);

  FileOperation& operation;
  BreakScope& cancel;
  const Westring& sourcePath;
  int from, to;
  int64_t at = 0;          // of both files
  int64_t written = 0;     // where the last data ends; at is behind it in a hole
  bool positioned = true;  // the files' own positions are there as well
  bool kernelCopies = true;
  bool ended = false;  // the source did
  bool told = false;
  bool awaitsSource = false, awaitsTarget = false;
  std::unique_ptr<char[]> buffer;
};
