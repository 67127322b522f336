// Opening the target; see copy_target.h. Nothing is emptied before it is sure to
// be a regular file and not the source.
#include "fileops/copy_target.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>

#include "fileops/copy_job.h"

namespace {

constexpr int kPatience = 100;  // milliseconds between two looks for a cancel
// What may have got there since it was looked at neither blocks nor becomes the
// terminal of this process.
constexpr int kCareful = O_NONBLOCK | O_NOCTTY;

int OpenDevice(const char* path, bool isPipe, BreakScope& cancel, CopyTarget& target) {
  int code = target.file.Open(path, O_WRONLY | kCareful);
  while (isPipe && code == ENXIO) {
    // Nobody reads: there is nothing to wait on but time.
    poll(nullptr, 0, kPatience);
    if (cancel.Stopped()) return kStopCommand;
    code = target.file.Open(path, O_WRONLY | kCareful);
  }
  if (code != 0) return code;
  target.isDevice = true;
  if (fstat(target.file.Get(), &target.status) != 0) return errno;
  return IsDevice(target.status) ? 0 : EEXIST;
}

int OpenExisting(const char* path, const struct stat& source, CopyTarget& target) {
  const int code = target.file.Open(path, O_RDWR | O_NOFOLLOW | kCareful);
  if (code != 0) return code == ELOOP ? EEXIST : code;
  if (fstat(target.file.Get(), &target.status) != 0) return errno;
  if (!S_ISREG(target.status.st_mode) || IsSameObject(target.status, source)) return EEXIST;
  // Nobody has said that what else has this name's contents may go, which can be
  // one of the next sources.
  if (target.status.st_nlink > 1) return EEXIST;
  return ftruncate(target.file.Get(), 0) == 0 ? 0 : errno;
}

}  // namespace

bool IsDevice(const struct stat& status) {
  return S_ISCHR(status.st_mode) || S_ISBLK(status.st_mode) || S_ISFIFO(status.st_mode) ||
         S_ISSOCK(status.st_mode);
}

int OpenCopyTarget(const char* path, const struct stat& source, bool force, BreakScope& cancel,
                   CopyTarget& target) {
  const mode_t mode = (source.st_mode & 0664) | S_IRUSR | S_IWUSR;
  const int code = target.file.Open(path, O_RDWR | O_CREAT | O_EXCL, mode);
  if (code == 0) return fstat(target.file.Get(), &target.status) == 0 ? 0 : errno;
  if (code != EEXIST) return code;
  struct stat existing;
  // A link that leads nowhere: no file is made at its end.
  if (stat(path, &existing) != 0) return EEXIST;
  if (IsSameObject(existing, source)) return EEXIST;
  if (IsDevice(existing)) return OpenDevice(path, S_ISFIFO(existing.st_mode), cancel, target);
  return force ? OpenExisting(path, source, target) : EACCES;
}
