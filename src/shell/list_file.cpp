// List files: the names of a command's files, for programs that read them.
#include "shell/list_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "shell/shell_quote.h"
#include "shell/temp_names.h"

namespace {

// As in the settings file.
constexpr char kLineEnd[] = "\r\n";

// What is in the way of a name that was free a moment ago was put there by
// somebody else. To take such a thing for ours would write where it leads.
int CreateNew(Westring& path) {
  constexpr int kMostTries = 100;
  for (int i = 0; i < kMostTries; ++i) {
    MakeTempName(path, L"");
    const int fd = open(ToUtf8(path).Text(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (fd >= 0 || errno != EEXIST) return fd;
  }
  return -1;
}

// 0 or errno.
int WriteAll(int fd, const std::string& bytes) {
  for (size_t done = 0; done < bytes.size();) {
    const ssize_t written = write(fd, bytes.data() + done, bytes.size() - done);
    if (written < 0 && errno != EINTR) return errno;
    if (written > 0) done += static_cast<size_t>(written);
  }
  return 0;
}

}  // namespace

int WriteListFile(const std::string& lines, Westring& path) {
  const int fd = CreateNew(path);
  if (fd < 0) return errno;
  int error = WriteAll(fd, lines);
  if (close(fd) != 0 && error == 0) error = errno;
  if (error != 0) unlink(ToUtf8(path).Text());
  return error;
}

std::string ListFileLine(const Westring& name) {
  return std::string(ToUtf8(ShellQuote(name)).Text()) + kLineEnd;
}
