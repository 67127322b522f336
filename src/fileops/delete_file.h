// Deleting one file, one directory, or a tree, with the questions about what is
// read-only. No link is ever followed.
#pragma once

#include "fileops/file_operation.h"

enum DeleteMode {
  kDeleteOne = 0,     // shows the name in a window that goes at the end
  kDeleteBatch = 1,   // the window stays for the next file
  kDeleteClose = 2,   // only closes the window; the path is empty
  kDeleteSilent = 3,  // without a window
  kDeleteAnyway = 4,  // silent, read-only or not; a missing file is a success
};

// 1 removed, 0 skipped, -1 the user stops the command.
int DeleteFile(FileOperation& operation, const Westring& path, int mode);

// Removes an empty directory; one that is not goes to DeleteTree with mask, an
// expression (panels/expression.h) that says which of its files go. Results as
// above.
int DeleteDirectory(FileOperation& operation, const Westring& path, const Westring& mask = L"*");

// Asks, at the outermost tree, and removes the contents and the directory: 1, or
// -1 where it was stopped.
int DeleteTree(FileOperation& operation, const Westring& path, const Westring& mask);
int DeleteContents(FileOperation& operation, const Westring& path, const Westring& mask);

// Attributes of other systems, which files here do not have: does nothing and
// succeeds.
int SetAttributes(const Westring& path, int attributes);

// Whoever keeps the directory tree hears of directories that are gone or new.
// Unset where no tree is kept.
struct TreeHooks {
  void (*removed)(const Westring& path) = nullptr;
  void (*made)(const Westring& path) = nullptr;
  void (*moved)(const Westring& from, const Westring& to) = nullptr;
  void (*save)() = nullptr;
};
extern TreeHooks TheTreeHooks;
