// What the parts of one copy share; inside of copy_file.cpp's family only.
#pragma once

#include <sys/stat.h>

#include "console/input.h"
#include "fileops/copy_file.h"

struct CopyJob {
  FileOperation& operation;
  BreakScope& cancel;
  const Westring& sourcePath;
  const Westring& targetPath;
  Estring source, target;  // the same for the system
  struct stat status;      // of the source itself, never of what it links to
  bool force;
  bool isMove;
  Descriptions* sources;
  int flags;
  bool told = false;  // the user has been told of the error that is the result
};

// Each with the results of CopyFile.
int CopyContents(CopyJob& job);   // a regular file or a device
int CopyDirectory(CopyJob& job);  // with all it holds

bool IsSameObject(const struct stat& a, const struct stat& b);
