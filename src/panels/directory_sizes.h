// Ctrl-Q: sizes of directories, counted and shown in the panel.
#pragma once

#include "foundation/sync.h"
#include "panels/panel.h"

// Counts the tagged directories, or the one under the cursor. silent asks for
// nothing at the end. 0 after a cancel, otherwise 1.
int CalculateDirSizes(TPanel& panel, bool silent);

// What a count has met so far; written by the count, read by the box's thread.
struct DirectoryCount {
  int64_t directories = 0, files = 0;
  uint64_t bytes = 0;  // of all files; a link adds nothing

  // The directory at hand, in the system's bytes. The count fills it in when it
  // is asked to, so that it need not do so for each one.
  bool pathWanted = true;
  Mutex pathLock;
  Estring path;
};

constexpr uint64_t kCountStopped = ~uint64_t{0};

// Bytes of all files below path, links not followed; kCountStopped where the
// user stopped it. What cannot be read counts as empty.
uint64_t CountDirectory(const Westring& path, DirectoryCount& count);

// The same below an interior path of an archive.
uint64_t CountInArchive(ArchiveLevel& archive, const Westring& interior, DirectoryCount& count);

// Where a directory tree is kept, it hears of each directory's total.
extern void (*KeepDirectorySize)(const Westring& path, uint64_t bytes);
