// Calls of the system that fail, or before which something happens, in the test's
// own process:
//
//   Fault full(kCallWrite, {.path = files.Path("target"), .at = 3, .code = ENOSPC});
//   EXPECT_EQ(Copy("source", "target"), ENOSPC);
//   EXPECT_EQ(full.Calls(), 3);
//
// A path counts as it is given, a name below an open directory as its path. The
// wrappers are in faults.cpp, which a test program links as a source of its
// own; calls that no fault is about go on to the library.
#pragma once

#include <sys/types.h>

#include <functional>
#include <limits>
#include <string>

enum FaultCall {
  kCallOpen,  // also openat
  kCallRead,  // also pread
  kCallWrite,
  kCallKernelCopy,  // copy_file_range, by either file
  kCallClose,       // which has closed all the same
  kCallSync,
  kCallSetTime,
  kCallSetMode,
  kCallTruncate,  // ftruncate
  kCallSeek,
  kCallUnlink,  // also unlinkat and rmdir
  kCallRename,  // also renameat2; by either path
  kCallMakeDirectory,
  kCallMakeLink,  // symlink, by the link's own path
  kCallReadLink,
  kCallSleep,  // usleep, of no file; one that fails takes no time
};

constexpr int kEveryCall = std::numeric_limits<int>::max();

struct FaultPlan {
  std::string path = {};              // of the file, or what its path begins with
  int at = 1;                         // the first call that it happens to
  int times = 1;                      // and how many in a row
  int code = 0;                       // errno; 0 lets the call through
  std::function<void()> before = {};  // done first; its own calls count for nothing
};

// In force as long as it lives. Several may be, the newest asked first.
class Fault {
 public:
  Fault(FaultCall call, FaultPlan plan);
  ~Fault();
  Fault(const Fault&) = delete;
  Fault& operator=(const Fault&) = delete;

  int Calls() const { return calls; }  // that were about the path, failed or not

 private:
  friend struct FaultList;
  bool Applies(FaultCall what, const std::string& path) const;
  int Happen();  // errno or 0

  FaultCall call;
  FaultPlan plan;
  int calls = 0;
  Fault* older;
};

// As long as it lives, this process can change nothing outside of a directory: the
// call fails with EROFS. For tests that press any key at all, and so may come to
// delete what they were never about. What a child does is not held back, nor what
// is written through a stream of the library.
class ReadOnlyOutside {
 public:
  explicit ReadOnlyOutside(const std::string& directory);
  ~ReadOnlyOutside();
  ReadOnlyOutside(const ReadOnlyOutside&) = delete;
  ReadOnlyOutside& operator=(const ReadOnlyOutside&) = delete;

 private:
  std::string prefix;
};
