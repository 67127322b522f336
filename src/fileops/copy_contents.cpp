// The copy of what has contents: a regular file, or a device or pipe that is
// read to its end. The source goes last of all, and a target that did not become
// whole does not stay.
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "fileops/byte_copy.h"
#include "fileops/copy_job.h"
#include "fileops/copy_target.h"
#include "fileops/delete_file.h"

namespace {

// A limit on sizes and a reader that has left tell by a signal, too, that would
// end the program. It is caught and not ignored, as children would inherit that.
void CatchSignalsOfWriting() {
  static const bool caught = [] {
    for (const int number : {SIGXFSZ, SIGPIPE}) {
      struct sigaction action = {};
      if (sigaction(number, nullptr, &action) != 0 || action.sa_handler != SIG_DFL) continue;
      action.sa_handler = [](int) {};
      action.sa_flags = SA_RESTART;
      sigaction(number, &action, nullptr);
    }
    return true;
  }();
  (void)caught;
}

// Without waiting for the writer of a pipe, and without following a link that
// has taken the file's place. A file that another program holds to itself opens
// at the second attempt only, if at all.
int OpenSource(CopyJob& job, Descriptor& source) {
  const auto open = [&] {
    return source.Open(job.source.Text(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_NOCTTY);
  };
  int code = open();
  if ((code == EAGAIN || code == EACCES) && !(job.flags & kTakeOpenFile) && open() == 0) code = kSourceOpen;
  if (code != 0) return code;
  return fstat(source.Get(), &job.status) == 0 ? 0 : errno;
}

// Not every file system keeps what it is told of a file, and the file of another
// user can be written but not stamped.
bool IsUnsupported(int code) { return code == EPERM || code == ENOTSUP || code == ENOSYS; }

int Stamp(const CopyJob& job, const CopyTarget& target, const struct stat& source) {
  if (target.isDevice) return 0;
  const timespec times[2] = {{0, UTIME_OMIT}, source.st_mtim};
  // A move is the last chance to keep the time.
  return futimens(target.file.Get(), times) == 0 || (!job.isMove && IsUnsupported(errno)) ? 0 : errno;
}

// A file that is as it shall be needs no word more. What there is more than the
// permissions is always told: writing may have taken it away, or left it from the
// file that was replaced.
int SetMode(const CopyJob& job, const CopyTarget& target) {
  const mode_t mode = job.status.st_mode & 07777;
  if (mode <= 0777 && mode == (target.status.st_mode & 07777)) return 0;
  return fchmod(target.file.Get(), mode) == 0 || IsUnsupported(errno) ? 0 : errno;
}

// True where the name of the target still leads to what was opened.
bool IsInPlace(const CopyJob& job, const CopyTarget& target) {
  struct stat named;
  return lstat(job.target.Text(), &named) == 0 && IsSameObject(named, target.status);
}

// What a move asks for before it gives the source up.
int CheckTarget(const CopyJob& job, const CopyTarget& target, int64_t size) {
  struct stat written;
  if (fstat(target.file.Get(), &written) != 0) return errno;
  return written.st_size == size && IsInPlace(job, target) ? 0 : EBUSY;
}

void RemovePartial(const CopyJob& job, const CopyTarget& target) {
  if (!target.isDevice && IsInPlace(job, target)) DeleteFile(job.operation, job.targetPath, kDeleteAnyway);
}

// The name of the source still leads to what was opened, and nobody has written
// to it since: that may have been behind where the copy was. One that has gone
// is no concern: the target has all of it.
int CheckSource(const CopyJob& job, int64_t size) {
  if (!S_ISREG(job.status.st_mode)) return 0;
  struct stat now;
  if (lstat(job.source.Text(), &now) != 0) return errno == ENOENT ? 0 : errno;
  const timespec &modified = now.st_mtim, &before = job.status.st_mtim;
  const bool same = IsSameObject(now, job.status) && now.st_size == size &&
                    modified.tv_sec == before.tv_sec && modified.tv_nsec == before.tv_nsec;
  return same ? 0 : EBUSY;
}

int RemoveSource(const CopyJob& job) {
  MoveDescription(job.sources, job.sourcePath, job.targetPath);
  struct stat gone;
  if (lstat(job.source.Text(), &gone) != 0 && errno == ENOENT) return 0;
  const int result = DeleteFile(job.operation, job.sourcePath, kDeleteSilent);
  if (result < 0) return kStopCommand;
  return result > 0 ? 0 : kSkipped;
}

// Everything but closing the target.
int CopyInto(const CopyJob& job, const Descriptor& source, const CopyTarget& target, ByteCopy& bytes) {
  const bool fromDevice = !S_ISREG(job.status.st_mode);
  int code = fromDevice || target.isDevice ? bytes.CopyStream(fromDevice, target.isDevice)
                                           : bytes.CopyFile(job.status);
  struct stat copied;
  if (code == 0 && fstat(source.Get(), &copied) != 0) code = errno;
  if (code == 0) code = Stamp(job, target, copied);
  const int modeCode = SetMode(job, target);
  if (code == 0) code = modeCode;
  if (code != 0 || !job.isMove) return code;
  if (!target.isDevice) code = CheckTarget(job, target, bytes.Copied());
  return code == 0 ? CheckSource(job, bytes.Copied()) : code;
}

}  // namespace

int CopyContents(CopyJob& job) {
  CatchSignalsOfWriting();
  Descriptor source;
  if (const int code = OpenSource(job, source)) return code;
  if (S_ISDIR(job.status.st_mode)) return EBUSY;  // it was none a moment ago
  CopyTarget target;
  if (const int code = OpenCopyTarget(job.target.Text(), job.status, job.force, job.cancel, target))
    return code;

  ByteCopy bytes(job.operation, job.cancel, job.sourcePath, source.Get(), target.file.Get());
  int code = CopyInto(job, source, target, bytes);
  if (code == 0) code = target.file.Close();
  if (code != 0) {
    RemovePartial(job, target);
    bytes.Uncount();
    job.told = bytes.WasTold();
    return code;
  }
  if (job.isMove) return RemoveSource(job);
  CopyDescription(job.sources, job.sourcePath, job.targetPath);
  return 0;
}
