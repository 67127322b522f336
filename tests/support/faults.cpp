// The wrappers around calls of the system; see faults.h. They take the place of
// the library's for this program, and find those by their names, so that a
// sanitizer's own wrappers stay in between.
#include "support/faults.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <iterator>
#include <mutex>
#include <utility>

struct FaultList {
  // 0 where the call goes on.
  static int Ask(FaultCall call, const std::string& path) {
    const std::lock_guard lock(mutex);
    for (Fault* fault = newest; fault; fault = fault->older)
      if (fault->Applies(call, path))
        if (const int code = fault->Happen()) return code;
    return 0;
  }

  static inline std::recursive_mutex mutex;
  static inline Fault* newest = nullptr;
  static inline std::atomic<int> count = 0;
};

Fault::Fault(FaultCall faultyCall, FaultPlan faultPlan) : call(faultyCall), plan(std::move(faultPlan)) {
  const std::lock_guard lock(FaultList::mutex);
  older = FaultList::newest;
  FaultList::newest = this;
  ++FaultList::count;
}

Fault::~Fault() {
  const std::lock_guard lock(FaultList::mutex);
  Fault** place = &FaultList::newest;
  while (*place != this) place = &(*place)->older;
  *place = older;
  --FaultList::count;
}

bool Fault::Applies(FaultCall what, const std::string& path) const {
  return what == call && path.compare(0, plan.path.size(), plan.path) == 0;
}

int Fault::Happen() {
  ++calls;
  if (calls < plan.at || calls - plan.at >= plan.times) return 0;
  if (plan.before) plan.before();
  return plan.code;
}

namespace {

// What paths begin with that may be changed; null if all may.
std::atomic<const std::string*> WritablePrefix = nullptr;

}  // namespace

ReadOnlyOutside::ReadOnlyOutside(const std::string& directory) : prefix(directory + "/") {
  WritablePrefix = &prefix;
}

ReadOnlyOutside::~ReadOnlyOutside() { WritablePrefix = nullptr; }

namespace {

constexpr FaultCall kChanges[] = {kCallSetTime, kCallSetMode,       kCallTruncate, kCallUnlink,
                                  kCallRename,  kCallMakeDirectory, kCallMakeLink};

// A path with a ".." may lead anywhere.
bool IsReadOnly(const std::string& path) {
  const std::string* prefix = WritablePrefix;
  return prefix && (path.compare(0, prefix->size(), *prefix) != 0 || path.find("/..") != path.npos);
}

bool MayChange(int openFlags) {
  return (openFlags & O_ACCMODE) != O_RDONLY || (openFlags & (O_CREAT | O_TRUNC)) != 0;
}

// What the faults themselves do is not theirs to disturb.
thread_local bool isAsking = false;

template <class Path>
bool Fails(FaultCall call, Path path) {
  if (WritablePrefix && std::ranges::find(kChanges, call) != std::end(kChanges) && IsReadOnly(path())) {
    errno = EROFS;
    return true;
  }
  if (FaultList::count == 0 || isAsking) return false;
  const int before = errno;
  isAsking = true;
  const int code = FaultList::Ask(call, path());
  isAsking = false;
  errno = code != 0 ? code : before;
  return code != 0;
}

std::string PathOf(int fd) {
  char link[32], path[PATH_MAX];
  std::snprintf(link, sizeof link, "/proc/self/fd/%d", fd);
  const ssize_t length = readlink(link, path, sizeof path);
  return length < 0 ? std::string() : std::string(path, static_cast<size_t>(length));
}

std::string PathBelow(int directory, const char* path) {
  const bool isRelative = path[0] != '/' && directory != AT_FDCWD;
  return isRelative ? PathOf(directory) + "/" + path : std::string(path);
}

bool FailsOn(FaultCall call, int fd) {
  return Fails(call, [fd] { return PathOf(fd); });
}

bool FailsOn(FaultCall call, const char* path, int directory = AT_FDCWD) {
  return Fails(call, [path, directory] { return PathBelow(directory, path); });
}

bool FailsToOpen(const char* path, int flags, int directory = AT_FDCWD) {
  if (WritablePrefix && MayChange(flags) && IsReadOnly(PathBelow(directory, path))) {
    errno = EROFS;
    return true;
  }
  return FailsOn(kCallOpen, path, directory);
}

template <class Function>
Function* Library(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

mode_t ModeArgument(int flags, va_list arguments) {
  return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
  static auto* const next = Library<int(const char*, int, ...)>("open");
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = ModeArgument(flags, arguments);
  va_end(arguments);
  return FailsToOpen(path, flags) ? -1 : next(path, flags, mode);
}

int openat(int directory, const char* path, int flags, ...) {
  static auto* const next = Library<int(int, const char*, int, ...)>("openat");
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = ModeArgument(flags, arguments);
  va_end(arguments);
  return FailsToOpen(path, flags, directory) ? -1 : next(directory, path, flags, mode);
}

ssize_t read(int fd, void* data, size_t n) {
  static auto* const next = Library<ssize_t(int, void*, size_t)>("read");
  return FailsOn(kCallRead, fd) ? -1 : next(fd, data, n);
}

ssize_t pread(int fd, void* data, size_t n, off_t offset) {
  static auto* const next = Library<ssize_t(int, void*, size_t, off_t)>("pread");
  return FailsOn(kCallRead, fd) ? -1 : next(fd, data, n, offset);
}

ssize_t write(int fd, const void* data, size_t n) {
  static auto* const next = Library<ssize_t(int, const void*, size_t)>("write");
  return FailsOn(kCallWrite, fd) ? -1 : next(fd, data, n);
}

ssize_t pwrite(int fd, const void* data, size_t n, off_t offset) {
  static auto* const next = Library<ssize_t(int, const void*, size_t, off_t)>("pwrite");
  return FailsOn(kCallWrite, fd) ? -1 : next(fd, data, n, offset);
}

ssize_t copy_file_range(int from, off_t* in, int to, off_t* out, size_t n, unsigned flags) {
  static auto* const next = Library<ssize_t(int, off_t*, int, off_t*, size_t, unsigned)>("copy_file_range");
  if (FailsOn(kCallKernelCopy, from) || FailsOn(kCallKernelCopy, to)) return -1;
  return next(from, in, to, out, n, flags);
}

int close(int fd) {
  static auto* const next = Library<int(int)>("close");
  const bool fails = FailsOn(kCallClose, fd);
  const int code = errno;
  const int result = next(fd);
  if (fails) errno = code;
  return fails ? -1 : result;
}

int fsync(int fd) {
  static auto* const next = Library<int(int)>("fsync");
  return FailsOn(kCallSync, fd) ? -1 : next(fd);
}

int futimens(int fd, const timespec times[2]) noexcept {
  static auto* const next = Library<int(int, const timespec*)>("futimens");
  return FailsOn(kCallSetTime, fd) ? -1 : next(fd, times);
}

int fchmod(int fd, mode_t mode) noexcept {
  static auto* const next = Library<int(int, mode_t)>("fchmod");
  return FailsOn(kCallSetMode, fd) ? -1 : next(fd, mode);
}

int ftruncate(int fd, off_t length) noexcept {
  static auto* const next = Library<int(int, off_t)>("ftruncate");
  return FailsOn(kCallTruncate, fd) ? -1 : next(fd, length);
}

off_t lseek(int fd, off_t offset, int whence) noexcept {
  static auto* const next = Library<off_t(int, off_t, int)>("lseek");
  return FailsOn(kCallSeek, fd) ? -1 : next(fd, offset, whence);
}

int unlink(const char* path) noexcept {
  static auto* const next = Library<int(const char*)>("unlink");
  return FailsOn(kCallUnlink, path) ? -1 : next(path);
}

int unlinkat(int directory, const char* path, int flags) noexcept {
  static auto* const next = Library<int(int, const char*, int)>("unlinkat");
  return FailsOn(kCallUnlink, path, directory) ? -1 : next(directory, path, flags);
}

int rmdir(const char* path) noexcept {
  static auto* const next = Library<int(const char*)>("rmdir");
  return FailsOn(kCallUnlink, path) ? -1 : next(path);
}

int rename(const char* from, const char* to) noexcept {
  static auto* const next = Library<int(const char*, const char*)>("rename");
  return FailsOn(kCallRename, from) || FailsOn(kCallRename, to) ? -1 : next(from, to);
}

int renameat2(int fromDirectory, const char* from, int toDirectory, const char* to, unsigned flags) noexcept {
  static auto* const next = Library<int(int, const char*, int, const char*, unsigned)>("renameat2");
  if (FailsOn(kCallRename, from, fromDirectory) || FailsOn(kCallRename, to, toDirectory)) return -1;
  return next(fromDirectory, from, toDirectory, to, flags);
}

int mkdir(const char* path, mode_t mode) noexcept {
  static auto* const next = Library<int(const char*, mode_t)>("mkdir");
  return FailsOn(kCallMakeDirectory, path) ? -1 : next(path, mode);
}

int symlink(const char* text, const char* path) noexcept {
  static auto* const next = Library<int(const char*, const char*)>("symlink");
  return FailsOn(kCallMakeLink, path) ? -1 : next(text, path);
}

ssize_t readlink(const char* path, char* text, size_t size) noexcept {
  static auto* const next = Library<ssize_t(const char*, char*, size_t)>("readlink");
  return FailsOn(kCallReadLink, path) ? -1 : next(path, text, size);
}

int usleep(useconds_t time) {
  static auto* const next = Library<int(useconds_t)>("usleep");
  return FailsOn(kCallSleep, "") ? -1 : next(time);
}
}
