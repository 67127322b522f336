// The copy of one object; see copy_file.h. What kind it is decides who copies:
// links here, directories in copy_directory.cpp, and what has contents in
// copy_contents.cpp.
#include "fileops/copy_file.h"

#include <unistd.h>

#include <cerrno>
#include <climits>
#include <string>

#include "fileops/copy_job.h"
#include "fileops/copy_progress.h"
#include "fileops/file_error.h"

bool IsSameObject(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

namespace {

// 0 or errno.
int ReadLink(const Estring& path, std::string& text) {
  char buffer[PATH_MAX];
  const ssize_t length = readlink(path.Text(), buffer, sizeof buffer);
  if (length < 0) return errno;
  text.assign(buffer, static_cast<size_t>(length));
  return 0;
}

// The same text at the new place, whatever it leads to there. A link without a
// text counts as copied.
int CopyLink(CopyJob& job) {
  std::string text, now;
  if (const int code = ReadLink(job.source, text)) return code;
  if (text.empty()) return 0;
  if (symlink(text.c_str(), job.target.Text()) != 0) return errno;
  // What has taken the link's place meanwhile has not been copied.
  if (job.isMove && ReadLink(job.source, now) == 0 && now == text) unlink(job.source.Text());
  return 0;
}

int CopyObject(CopyJob& job) {
  if (lstat(job.source.Text(), &job.status) != 0) return errno;
  if (S_ISLNK(job.status.st_mode)) return CopyLink(job);
  if (S_ISDIR(job.status.st_mode)) return CopyDirectory(job);
  return CopyContents(job);
}

// EIO as a result says that the user knows, so here he gets to know.
int CopyAndTell(CopyJob& job) {
  for (;;) {
    int code = CopyObject(job);
    if (code != EIO || job.told || !WantsRetry(job.operation, code, job.sourcePath)) return code;
    if (job.operation.progress) job.operation.progress->Start();  // the question has stopped it
  }
}

}  // namespace

int CopyFile(FileOperation& operation, const Westring& sourcePath, const Westring& targetPath, bool force,
             bool isMove, Descriptions* sources, int flags) {
  BreakScope cancel;
  if (cancel.Stopped()) return kStopCommand;
  CopyJob job{operation, cancel, sourcePath, targetPath, ToUtf8(sourcePath), ToUtf8(targetPath), {},
              force,     isMove, sources,    flags};
  return CopyAndTell(job);
}
