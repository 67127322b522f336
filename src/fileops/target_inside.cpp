// The way from a target up to the root; see target_inside.h.
#include "fileops/target_inside.h"

#include <fcntl.h>

#include <cerrno>

#include "fileops/copy_job.h"
#include "fileops/descriptor.h"

namespace {

// The target, or the directory that it is to be made in.
int OpenAround(const Estring& target, Descriptor& directory) {
  constexpr int kLook = O_PATH | O_DIRECTORY;
  const int code = directory.Open(target.Text(), kLook);
  if (code != ENOENT && code != ENOTDIR) return code;
  const int slash = RFind(target, '/');
  if (slash < 0) return directory.Open(".", kLook);
  return directory.Open(slash == 0 ? "/" : Left(target, slash).Text(), kLook);
}

}  // namespace

bool IsTargetInside(const Westring& target, const struct stat& directory) {
  Descriptor at;
  if (OpenAround(ToUtf8(target), at) != 0) return false;
  struct stat status = {}, below = {};
  while (fstat(at.Get(), &status) == 0) {
    if (IsSameObject(status, directory)) return true;
    if (IsSameObject(status, below)) return false;  // the root is its own parent
    below = status;
    Descriptor parent;
    if (parent.Open("..", O_PATH | O_DIRECTORY, 0, at.Get()) != 0) return false;
    at = std::move(parent);
  }
  return false;
}
