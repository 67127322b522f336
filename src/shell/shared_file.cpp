// A file of lines shared by running copies of the program; see shared_file.h.
#include "shell/shared_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <thread>

#include "config/replacement_file.h"

namespace {

// An append takes microseconds, a replacement the time of bringing it to the disk.
constexpr int kLockAttempts = 60;
constexpr auto kLockPause = std::chrono::milliseconds(20);

constexpr off_t kLargestFile = 256 << 20;

template <class Call>
auto Uninterrupted(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

bool IsProtection(int code) { return code == EACCES || code == EPERM || code == EROFS; }

// 0 for a plain file.
int CodeOfOddFile(int fd) {
  struct stat status;
  if (fstat(fd, &status) != 0) return errno;
  if (S_ISREG(status.st_mode)) return 0;
  return S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
}

}  // namespace

void SharedFile::Close() {
  if (fd >= 0) close(fd);  // and the lock goes
  fd = -1;
  locked = false;
}

// O_NONBLOCK: a pipe in the place of the file must not wait for its other end.
int SharedFile::OpenPlain(int creation) {
  Close();
  constexpr int kFlags = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
  const Estring bytes = ToUtf8(path);
  fd = Uninterrupted([&] { return open(bytes.Text(), O_RDWR | O_APPEND | creation | kFlags, 0600); });
  writable = fd >= 0;
  if (fd < 0 && creation == 0 && IsProtection(errno))
    fd = Uninterrupted([&] { return open(bytes.Text(), O_RDONLY | kFlags); });
  if (fd < 0) return errno;
  const int code = CodeOfOddFile(fd);
  if (code != 0) Close();
  return code;
}

bool SharedFile::IsStillThere() const {
  struct stat opened, named;
  return fstat(fd, &opened) == 0 && stat(ToUtf8(path).Text(), &named) == 0 && opened.st_dev == named.st_dev &&
         opened.st_ino == named.st_ino;
}

// Who waited for the lock may have got that of a file that was replaced
// meanwhile, and opens the new one. File systems without locks do without.
int SharedFile::Open(const Westring& name, int creation) {
  path = name;
  int code = OpenPlain(creation);
  for (int attempt = 0; code == 0 && attempt < kLockAttempts; ++attempt) {
    locked = flock(fd, LOCK_EX | LOCK_NB) == 0;
    if (!locked && errno != EWOULDBLOCK) return 0;
    if (locked && IsStillThere()) return 0;
    if (locked)
      code = OpenPlain(creation);
    else
      std::this_thread::sleep_for(kLockPause);
  }
  if (code == 0) code = OpenPlain(creation);  // the file of now, without its lock
  return code != 0 ? code : EBUSY;
}

int SharedFile::OpenToRead(const Westring& name) { return Open(name, 0); }
int SharedFile::OpenToAppend(const Westring& name) { return Open(name, O_CREAT); }

int SharedFile::ReadFrom(off_t start, std::string& content) {
  constexpr size_t kStep = 1 << 16;
  content.clear();
  for (size_t length = 0;;) {
    const off_t at = start + static_cast<off_t>(length);
    if (at > kLargestFile) return EFBIG;
    content.resize(length + kStep);
    const ssize_t got = Uninterrupted([&] { return pread(fd, content.data() + length, kStep, at); });
    if (got < 0) return errno;
    length += static_cast<size_t>(got);
    content.resize(length);
    if (got == 0) return 0;
  }
}

int SharedFile::Read(std::string& content) {
  const int code = ReadFrom(0, content);
  readSize = static_cast<off_t>(content.size());
  return code;
}

int SharedFile::AppendHere(std::string_view lines) {
  const off_t size = lseek(fd, 0, SEEK_END);
  char last = '\n';
  if (size > 0 && Uninterrupted([&] { return pread(fd, &last, 1, size - 1); }) < 0) return errno;
  const bool isCut = last != '\n' && last != '\r' && last != 0;
  const std::string bytes = (isCut ? "\r\n" : "") + std::string(lines);
  const ssize_t written = Uninterrupted([&] { return write(fd, bytes.data(), bytes.size()); });
  if (written == static_cast<ssize_t>(bytes.size())) return 0;
  const int code = written < 0 ? errno : ENOSPC;
  // A full disk took a part. Without the lock others may have written behind it.
  if (written > 0 && locked) [[maybe_unused]]
    const int ignored = ftruncate(fd, size);
  return code;
}

// Without the lock the file may be replaced before the lines are in it. One more
// append is enough: who replaces it again has to read and write it first.
int SharedFile::Append(std::string_view lines) {
  const int code = AppendHere(lines);
  if (code != 0 || locked || IsStillThere()) return code;
  const int openCode = OpenPlain(O_CREAT);
  return openCode == 0 ? AppendHere(lines) : openCode;
}

// Bringing the new file to a slow disk takes longer than the others wait for the
// lock. They append to the old file, or find that it was replaced.
int SharedFile::CarryOver() {
  std::string late;
  const int code = ReadFrom(readSize, late);
  if (code != 0 || late.empty()) return code;
  SharedFile successor;
  const int openCode = successor.OpenToAppend(path);
  return openCode == 0 || openCode == EBUSY ? successor.Append(late) : openCode;
}

int SharedFile::Replace(std::string_view content) {
  if (!writable) return EACCES;
  ReplacementFile replacement;
  if (const int code = replacement.Open(path)) return code;
  if (const int code = replacement.File().Write(content.data(), content.size())) return code;
  if (const int code = replacement.Commit()) return code;
  return CarryOver();
}
