// Objects to be deleted, and the directories that hold them; see doomed_object.h.
#include "fileops/doomed_object.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <cwchar>

#include "fileops/descriptions.h"
#include "foundation/paths.h"
#include "panels/panel_path.h"

namespace {

bool IsDotName(const char* name) { return strcmp(name, ".") == 0 || strcmp(name, "..") == 0; }

int ErrorOf(int result) { return result == 0 ? 0 : errno; }

// One that may not be written keeps its lines, and trying costs seconds.
bool HasDescriptions(int directory, const Estring& path) {
  return faccessat(directory, path.Text(), W_OK, 0) == 0;
}

}  // namespace

int DoomedFolder::Open(const DoomedObject& object) {
  Close();
  int fd = -1;
  if (const int code = object.OpenDirectory(fd)) return code;
  stream = fdopendir(fd);
  if (stream) return 0;
  const int code = errno;
  close(fd);
  return code;
}

void DoomedFolder::Close() {
  if (stream) closedir(stream);
  stream = nullptr;
}

const dirent* DoomedFolder::NextName() {
  for (;;) {
    errno = 0;
    const dirent* const found = readdir(stream);
    if (!found || !IsDotName(found->d_name)) return found;
  }
}

void DoomedFolder::LookForDescriptions() {
  hasDescriptions = HasDescriptions(Descriptor(), ToUtf8(kDescriptionsName));
}

DoomedObject::DoomedObject(const Westring& path)
    : bytes(ToUtf8(path)), directory(AT_FDCWD), name(bytes.Text()) {}

DoomedObject::DoomedObject(DoomedFolder& parent, const char* rawName)
    : folder(&parent), directory(parent.Descriptor()), name(rawName) {}

Westring DoomedObject::Path() const {
  const Westring text(name);
  return folder ? JoinPath(folder->path, text) : text;
}

int DoomedObject::OpenDirectory(int& fd) const {
  fd = openat(directory, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
  if (fd >= 0) return 0;
  return IsLink() ? ENOTDIR : errno;
}

int DoomedObject::Access() const { return ErrorOf(faccessat(directory, name, W_OK, 0)); }

int DoomedObject::ParentAccess() const {
  if (folder) return ErrorOf(faccessat(directory, ".", W_OK, 0));
  return ErrorOf(access(ToUtf8(ParentPath(Path().Text())).Text(), W_OK));
}

int DoomedObject::Unlink() const { return ErrorOf(unlinkat(directory, name, 0)); }

int DoomedObject::RemoveDirectory() const {
  const int code = ErrorOf(unlinkat(directory, name, AT_REMOVEDIR));
  return code == EEXIST ? ENOTEMPTY : code;  // some systems say it so
}

bool DoomedObject::IsLink() const {
  const int saved = errno;
  struct stat status;
  const bool isLink = fstatat(directory, name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISLNK(status.st_mode);
  errno = saved;
  return isLink;
}

bool DoomedObject::Exists() const {
  struct stat status;
  return fstatat(directory, name, &status, AT_SYMLINK_NOFOLLOW) == 0;
}

void DoomedObject::RemoveDescriptionLine(FileOperation& operation) const {
  if (folder) {
    if (!folder->hasDescriptions) return;
    RemoveDescription(Path());
    return;
  }
  const Westring path = Path();
  const Westring parent = ParentPath(path.Text());
  if (wcscmp(parent.Text(), operation.describedDirectory.Text()) != 0) {
    operation.describedDirectory = parent;
    operation.hasDescriptions = HasDescriptions(AT_FDCWD, ToUtf8(JoinPath(parent, kDescriptionsName)));
  }
  if (operation.hasDescriptions) RemoveDescription(path);
}
