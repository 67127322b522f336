// Renaming that never replaces what is there.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "fileops/copy_item.h"

namespace {

using RemovePlaceholder = int (*)(const char*);

// For file systems that cannot refuse an existing target themselves. An empty
// object of our own, made where nothing was, holds the place, and the source is
// renamed over it: nobody else's can come in between.
int RenameOverPlaceholder(const char* source, const char* target, bool isDirectory) {
  if (isDirectory) {
    if (mkdir(target, S_IRWXU) != 0) return errno;
  } else {
    const int placeholder = open(target, O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (placeholder < 0) return errno;
    close(placeholder);
  }
  if (rename(source, target) == 0) return 0;
  const int error = errno;
  const RemovePlaceholder remove = isDirectory ? rmdir : unlink;
  remove(target);
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
  return RenameOverPlaceholder(source.Text(), target.Text(), S_ISDIR(status.st_mode));
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
