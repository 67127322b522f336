// Replacing a file at once; see replacement_file.h.
#include "config/replacement_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <climits>
#include <cstdio>
#include <thread>

namespace {

constexpr char kScratchEnd[] = "!!!";
constexpr int kScratchEndLength = 3;

constexpr int kMostLinks = 40;  // as the system itself follows

// Another process needs milliseconds for its save; five seconds are patience.
constexpr int kLockAttempts = 100;
constexpr auto kLockPause = std::chrono::milliseconds(50);

int NameStart(const Estring& path) { return RFind(path, '/') + 1; }

// Follows links at the end of path, also to a file that is not there yet.
int FollowLinks(Estring& path) {
  for (int i = 0; i < kMostLinks; ++i) {
    char text[PATH_MAX];
    const ssize_t length = readlink(path.Text(), text, sizeof text - 1);
    if (length < 0) return errno == EINVAL || errno == ENOENT ? 0 : errno;
    text[length] = 0;
    path = text[0] == '/' ? Estring(text) : Left(path, NameStart(path)) + text;
  }
  return ELOOP;
}

// A name without three characters to give keeps them all, and so does one that
// would be its own scratch file.
Estring ScratchName(const Estring& path) {
  int end = Length(path), missing = kScratchEndLength;
  for (const int nameStart = NameStart(path); missing > 0 && end > nameStart;)
    if ((path[--end] & 0xC0) != 0x80) missing--;  // the first byte of a character
  const bool isScratch = Right(path, kScratchEndLength) == kScratchEnd;
  return (missing > 0 || isScratch ? path : Left(path, end)) + kScratchEnd;
}

// What is in the way and no file for us to write into: opening a link would
// write into its target, and opening a pipe would wait.
void RemoveOddScratch(const Estring& scratch) {
  struct stat status;
  if (lstat(scratch.Text(), &status) == 0 && !S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode))
    unlink(scratch.Text());
}

// The owner only where the system lets us.
int CopyModeAndOwner(int fd, const struct stat& old) {
  struct stat now;
  if (fstat(fd, &now) != 0) return errno;
  if (now.st_uid != old.st_uid || now.st_gid != old.st_gid) [[maybe_unused]]
    const int ignored = fchown(fd, old.st_uid, old.st_gid);
  return fchmod(fd, old.st_mode & 07777) == 0 ? 0 : errno;
}

bool IsOpenAt(int fd, const char* path) {
  struct stat opened, named;
  return fstat(fd, &opened) == 0 && lstat(path, &named) == 0 && opened.st_dev == named.st_dev &&
         opened.st_ino == named.st_ino;
}

}  // namespace

ReplacementFile::~ReplacementFile() {
  if (isOurs) unlink(scratch.Text());
}

// Two processes may save at the same moment, as when a session ends. The lock
// makes the second wait, and then find that its scratch file has been renamed.
// File systems without locks do without.
int ReplacementFile::OpenLocked() {
  for (int attempt = 0; attempt < kLockAttempts; ++attempt) {
    RemoveOddScratch(scratch);
    int code = file.Open(scratch.Text(), kOpenWrite | kOpenCreate | kOpenAppend);
    if (code == EACCES && unlink(scratch.Text()) == 0)  // the mode of an old file, left by a crash
      code = file.Open(scratch.Text(), kOpenWrite | kOpenCreate | kOpenAppend);
    if (code != 0) return code;
    if (flock(file.Descriptor(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
      std::this_thread::sleep_for(kLockPause);
    } else if (IsOpenAt(file.Descriptor(), scratch.Text())) {
      return 0;
    }
  }
  file.Close();
  return EBUSY;
}

int ReplacementFile::Open(const Westring& path) {
  target = ToUtf8(path);
  if (const int code = FollowLinks(target)) return code;
  scratch = ScratchName(target);
  struct stat old;
  const bool exists = stat(target.Text(), &old) == 0;
  if (exists && !S_ISREG(old.st_mode)) return S_ISDIR(old.st_mode) ? EISDIR : EINVAL;

  if (const int code = OpenLocked()) return code;
  isOurs = true;
  if (exists)
    if (const int code = CopyModeAndOwner(file.Descriptor(), old)) return code;
  if (const int code = file.Truncate(0)) return code;
  return file.Rewind();
}

int ReplacementFile::Commit() {
  if (const int code = file.Sync()) return code;
  isOurs = false;  // it is whole: where the old file can't be replaced, the user still has it
  // While the lock is held, so that the name is still our file.
  if (rename(scratch.Text(), target.Text()) != 0) return errno;
  return file.Close();
}
