// Renaming that never replaces what is there.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "fileops/copy_item.h"
#include "fileops/copy_job.h"
#include "fileops/descriptor.h"

namespace {

// For file systems that cannot refuse an existing target themselves. An empty
// object of our own, made where nothing was, holds the place, and the source is
// renamed over it: nobody else's can come in between.
int RenameOverDirectory(const char* source, const char* target) {
  if (mkdir(target, S_IRWXU) != 0) return errno;
  if (rename(source, target) == 0) return 0;
  const int error = errno;
  rmdir(target);
  return error;
}

// The same for all that is no directory. What somebody has written to the place
// meanwhile stays his.
int RenameOverFile(const char* source, const char* target) {
  Descriptor reserved;
  constexpr int kNew = O_CREAT | O_EXCL | O_WRONLY;
  if (const int code = reserved.Open(target, kNew, S_IRUSR | S_IWUSR)) return code;
  struct stat made, left;
  const bool isKnown = fstat(reserved.Get(), &made) == 0;
  reserved.Close();
  if (rename(source, target) == 0) return 0;
  const int error = errno;
  const bool isOurs = isKnown && lstat(target, &left) == 0 && IsSameObject(made, left) && left.st_size == 0;
  if (isOurs) unlink(target);
  return error;
}

}  // namespace

int RenameObject(const Westring& sourcePath, const Westring& targetPath) {
  const Estring source = ToUtf8(sourcePath), target = ToUtf8(targetPath);
  struct stat status, existing;
  if (lstat(source.Text(), &status) != 0) return errno;
  // The system tells of another device before it tells of the target.
  if (lstat(target.Text(), &existing) == 0) return EEXIST;
  if (renameat2(AT_FDCWD, source.Text(), AT_FDCWD, target.Text(), RENAME_NOREPLACE) == 0) return 0;
  // EINVAL also for a directory that would go into itself, which then fails again.
  if (errno != EINVAL && errno != ENOSYS) return errno;
  const auto renameOver = S_ISDIR(status.st_mode) ? RenameOverDirectory : RenameOverFile;
  return renameOver(source.Text(), target.Text());
}

bool IsSameObject(const Westring& a, const Westring& b) {
  const Estring first = ToUtf8(a), second = ToUtf8(b);
  struct stat one, other;
  if (lstat(first.Text(), &one) != 0 || lstat(second.Text(), &other) != 0) return false;
  const bool firstIsLink = S_ISLNK(one.st_mode), secondIsLink = S_ISLNK(other.st_mode);
  // A link and what it leads to; two links are two objects, wherever they lead.
  if (firstIsLink && !secondIsLink && stat(first.Text(), &one) != 0) return false;
  if (secondIsLink && !firstIsLink && stat(second.Text(), &other) != 0) return false;
  return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}
