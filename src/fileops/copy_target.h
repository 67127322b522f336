// Opening the place that a file's contents go to.
#pragma once

#include <sys/stat.h>

#include "console/input.h"
#include "fileops/descriptor.h"

struct CopyTarget {
  Descriptor file;
  struct stat status;     // as it was opened
  bool isDevice = false;  // or a pipe: no file of the copy's own
};

// A file that is not there is made, never more open to others than source is.
// One that is there is emptied with force, or else EACCES; a device or a pipe is
// opened in any case, a pipe as soon as somebody reads from it, or -1 where the
// user does not wait for that. EEXIST for what must not be written through: the
// source itself by another name, a link, or one of several names of a file.
int OpenCopyTarget(const char* path, const struct stat& source, bool force, BreakScope& cancel,
                   CopyTarget& target);

bool IsDevice(const struct stat& status);  // or a pipe or a socket
