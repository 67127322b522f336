// StdFile; see std_file.h. While reading, the buffer holds bufferFill bytes that
// end at filePosition, the first bufferPosition of them taken. While writing it
// holds bufferPosition bytes that belong at filePosition, and bufferFill is 0.
#include "foundation/std_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace {

enum { kReading = 0, kWriting = 1 };

// One system write never asks for more, so that the kernel's own limit can't
// cut it short.
constexpr size_t kLargestWrite = 1 << 20;

// Repeats a system call that a signal interrupted.
template <class Call>
auto Uninterrupted(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

int SystemFlags(uint32_t flags) {
  int result = 0;
  if (flags & kOpenWrite) result |= flags & kOpenRead ? O_RDWR : O_WRONLY;
  if ((flags & kOpenWrite) && !(flags & kOpenAppend)) result |= O_TRUNC;
  if (flags & kOpenCreate) result |= O_CREAT;
  if (!(flags & kOpenKeepOnExec)) result |= O_CLOEXEC;
  if (flags & kOpenNoWait) result |= O_NONBLOCK;
  return result;
}

// Descriptor 0 stands for "not open", so a file that got it is moved up.
int AwayFromZero(int fd, uint32_t flags) {
  if (fd != 0) return fd;
  const int moved = fcntl(fd, flags & kOpenKeepOnExec ? F_DUPFD : F_DUPFD_CLOEXEC, 1);
  const int code = errno;
  close(fd);
  errno = code;
  return moved;
}

}  // namespace

StdFile::StdFile() : buffer(new char[kBufferSize]) {}

StdFile::~StdFile() { Close(); }

int StdFile::Open(const Westring& path, uint32_t flags) { return OpenFile(ToUtf8(path).Text(), path, flags); }

int StdFile::Open(const char* utf8Path, uint32_t flags) {
  const Westring path(utf8Path);
  return OpenFile(utf8Path ? utf8Path : "", path, flags);
}

int StdFile::OpenFile(const char* bytes, const Westring& path, uint32_t flags) {
  textMode = flags & kOpenText;
  if (&path != &name) name = path;
  Close();
  const mode_t permissions = flags & kOpenExecutable ? 0775 : 0664;
  int opened = Uninterrupted([&] { return open(bytes, SystemFlags(flags), permissions); });
  opened = AwayFromZero(opened, flags);
  bufferPosition = 0;
  bufferFill = 0;
  filePosition = 0;
  mode = kReading;
  if (opened < 0) return Fail(errno);
  fd = opened;
  // A pipe has no end to go to; it stays at 0.
  if (flags & kOpenAppend) filePosition = std::max<int64_t>(lseek(fd, 0, SEEK_END), 0);
  return Fail(0);
}

int StdFile::Close() {
  if (!IsOpen()) return 0;
  int code = mode == kWriting ? FlushBuffer() : 0;
  // An interrupted close has closed all the same.
  if (close(fd) != 0 && errno != EINTR && code == 0) code = errno;
  fd = 0;
  bufferPosition = 0;
  bufferFill = 0;
  return Fail(code);
}

// ---- the buffer ------------------------------------------------------------

// Writes once what is pending. After a short write, which a full disk causes,
// the rest stays pending.
int StdFile::FlushBuffer() {
  if (bufferPosition == 0) return 0;
  const size_t pending = static_cast<size_t>(bufferPosition);
  const ssize_t written = Uninterrupted([&] { return write(fd, buffer.get(), pending); });
  if (written < 0) return errno;
  filePosition += written;
  bufferPosition -= static_cast<int32_t>(written);
  if (bufferPosition == 0) return 0;
  memmove(buffer.get(), buffer.get() + written, static_cast<size_t>(bufferPosition));
  return ENOSPC;
}

// -1 at the end of the file. What was read before stays for a seek back until
// there is something new.
int StdFile::Fill() {
  const ssize_t got = Uninterrupted([&] { return read(fd, buffer.get(), kBufferSize); });
  if (got <= 0) return got < 0 ? errno : -1;
  bufferPosition = 0;
  bufferFill = got;
  filePosition += got;
  return 0;
}

int StdFile::MoveFile(int64_t offset) {
  if (lseek(fd, offset, SEEK_SET) < 0) return errno;
  filePosition = offset;
  bufferPosition = 0;
  bufferFill = 0;
  return 0;
}

int StdFile::SwitchToReading() {
  if (!IsOpen()) return EBADF;
  if (mode == kReading) return 0;
  if (const int code = FlushBuffer()) return code;
  mode = kReading;
  return 0;
}

int StdFile::SwitchToWriting() {
  if (!IsOpen()) return EBADF;
  if (mode == kWriting) return 0;
  if (bufferPosition != bufferFill)
    if (const int code = MoveFile(Tell())) return code;
  bufferPosition = 0;
  bufferFill = 0;
  mode = kWriting;
  return 0;
}

// ---- reading ---------------------------------------------------------------

int StdFile::Read(void* target, size_t n, size_t* read) {
  size_t got = 0;
  int code = SwitchToReading();
  if (code == 0) code = ReadBytes(static_cast<char*>(target), n, got);
  if (read) *read = got;
  // A caller that is told the count takes what came; an error will come again.
  if (got > 0 && (read || code == -1)) code = 0;
  return Fail(code);
}

int StdFile::ReadBytes(char* target, size_t n, size_t& got) {
  while (got < n) {
    const size_t wanted = n - got;
    if (bufferPosition == bufferFill && wanted >= kBufferSize) {
      const ssize_t direct = Uninterrupted([&] { return read(fd, target + got, wanted); });
      if (direct <= 0) return direct < 0 ? errno : -1;
      bufferPosition = 0;
      bufferFill = 0;
      filePosition += direct;
      got += static_cast<size_t>(direct);
      continue;
    }
    if (bufferPosition == bufferFill)
      if (const int code = Fill()) return code;
    const size_t part = std::min(wanted, static_cast<size_t>(bufferFill - bufferPosition));
    memcpy(target + got, buffer.get() + bufferPosition, part);
    bufferPosition += static_cast<int32_t>(part);
    got += part;
  }
  return 0;
}

int StdFile::ReadLine(char* target, int size) {
  if (size <= 0) return Fail(EINVAL);
  int length = 0;
  bool anything = false, ended = false;
  int code = SwitchToReading();
  while (code == 0 && !ended && length < size - 1) {
    if (bufferPosition == bufferFill) code = Fill();
    if (code != 0) break;
    const char* start = buffer.get() + bufferPosition;
    size_t part = static_cast<size_t>(std::min<int64_t>(bufferFill - bufferPosition, size - 1 - length));
    if (const void* newline = memchr(start, '\n', part)) part = static_cast<const char*>(newline) - start + 1;
    if (const void* zero = memchr(start, 0, part)) part = static_cast<const char*>(zero) - start + 1;
    ended = start[part - 1] == '\n' || start[part - 1] == 0;
    memcpy(target + length, start, part);
    bufferPosition += static_cast<int32_t>(part);
    length += static_cast<int>(part);
    anything = true;
  }
  if (length > 0 && target[length - 1] == 0) length--;
  while (length > 0 && (target[length - 1] == '\n' || target[length - 1] == '\r')) length--;
  target[length] = 0;
  return Fail(anything ? 0 : code);
}

// ---- writing ---------------------------------------------------------------

int StdFile::Write(const void* data, size_t n) {
  if (const int code = SwitchToWriting()) return Fail(code);
  return Fail(WriteBytes(static_cast<const char*>(data), n));
}

// What does not fit goes out after what is pending; if that fails, nothing of
// the new data has been taken, and the call may be repeated.
int StdFile::WriteBytes(const char* data, size_t n) {
  if (n > static_cast<size_t>(kBufferSize - bufferPosition))
    if (const int code = FlushBuffer()) return code;
  while (n >= kBufferSize) {
    const size_t part = std::min(n, kLargestWrite);
    const ssize_t written = Uninterrupted([&] { return write(fd, data, part); });
    if (written < 0) return errno;
    filePosition += written;
    if (static_cast<size_t>(written) < part) return ENOSPC;
    data += part;
    n -= part;
  }
  if (n > 0) memcpy(buffer.get() + bufferPosition, data, n);
  bufferPosition += static_cast<int32_t>(n);
  return 0;
}

int StdFile::PutText(const char* text) {
  if (!textMode) return Write(text, strlen(text));
  while (const char* newline = strchr(text, '\n')) {
    if (const int code = Write(text, static_cast<size_t>(newline - text))) return code;
    if (const int code = Write("\r\n", 2)) return code;
    text = newline + 1;
  }
  return Write(text, strlen(text));
}

int StdFile::PutLine(const char* text) {
  if (const int code = Write(text, strlen(text))) return code;
  return Write("\n", 1);
}

int StdFile::Flush() {
  if (!IsOpen()) return Fail(EBADF);
  return Fail(mode == kWriting ? FlushBuffer() : 0);
}

int StdFile::Sync() {
  if (Flush() != 0) return error;
  return Fail(Uninterrupted([&] { return fsync(fd); }) == 0 ? 0 : errno);
}

int StdFile::Truncate(int64_t length) {
  if (Flush() != 0) return error;
  if (Uninterrupted([&] { return ftruncate(fd, length); }) != 0) return Fail(errno);
  // What was read ahead may have gone.
  return Fail(bufferFill > 0 ? MoveFile(Tell()) : 0);
}

// ---- position and size -----------------------------------------------------

int StdFile::Seek(int64_t offset) {
  if (Flush() != 0) return error;
  const int64_t bufferStart = filePosition - bufferFill;
  if (offset < bufferStart || offset > filePosition) return Fail(MoveFile(offset));
  bufferPosition = static_cast<int32_t>(offset - bufferStart);
  return Fail(0);
}

int StdFile::SeekRelative(int64_t offset) {
  int64_t target = 0;
  if (__builtin_add_overflow(Tell(), offset, &target)) return Fail(EINVAL);
  return Seek(target);
}

int StdFile::Rewind() {
  if (IsOpen() && error == 0 && mode == kReading) return Fail(MoveFile(0));
  return Seek(0);
}

int64_t StdFile::Tell() const { return bufferPosition + filePosition - bufferFill; }

int64_t StdFile::Size() {
  struct stat status;
  if (!IsOpen() || fstat(fd, &status) != 0) {
    Fail(IsOpen() ? errno : EBADF);
    return -1;
  }
  Fail(0);
  return status.st_size;
}

// ---- times -----------------------------------------------------------------

int StdFile::GetTime(FileTime& time) {
  if (!IsOpen()) return Fail(EBADF);
  struct stat status;
  if (fstat(fd, &status) != 0) return Fail(errno);
  time = FromTimespec(status.st_mtim);
  return Fail(0);
}

int StdFile::GetTime(uint16_t& dosDate, uint16_t& dosTime) {
  FileTime time;
  if (GetTime(time) != 0) return error;
  ToDos(time, dosDate, dosTime);
  return 0;
}

int StdFile::SetTime(const FileTime& time) {
  if (Flush() != 0) return error;
  // Numbers above a second have meanings of their own to the system.
  if (time.nanoseconds >= 1000000000u) return Fail(EINVAL);
  const timespec times[2] = {{0, UTIME_OMIT}, {time.seconds, time.nanoseconds}};
  return Fail(futimens(fd, times) == 0 ? 0 : errno);
}

int StdFile::SetTime(uint16_t dosDate, uint16_t dosTime) { return SetTime(FromDos(dosDate, dosTime)); }
