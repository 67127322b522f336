// Objects to be deleted, and the directories that hold them; see doomed_object.h.
#include "fileops/doomed_object.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <cwchar>
#include <utility>

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

int DoomedFolder::Open() {
  int fd = -1;
  if (const int code = object.OpenDirectory(fd)) return code;
  return Adopt(fd);
}

int DoomedFolder::Adopt(int fd) {
  Close();
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

void DoomedFolder::Suspend() {
  if (!wasSuspended) {
    struct stat status = {};
    fstat(Descriptor(), &status);
    device = status.st_dev;
    inode = status.st_ino;
    DoomedName next;
    while ((restCode = Read(next)) == 0 && !next.name.empty()) rest.push_back(std::move(next));
    std::reverse(rest.begin(), rest.end());
    wasSuspended = true;
  }
  Close();
}

int DoomedFolder::Resume(const DoomedFolder& below) {
  const int fd = openat(below.Descriptor(), "..", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return errno;
  struct stat status = {};
  if (fstat(fd, &status) == 0 && status.st_dev == device && status.st_ino == inode) return Adopt(fd);
  close(fd);
  return ENOENT;
}

int DoomedFolder::Next(DoomedName& next) {
  if (!wasSuspended) return Read(next);
  next = DoomedName();
  if (rest.empty()) return restCode;
  next = std::move(rest.back());
  rest.pop_back();
  return 0;
}

int DoomedFolder::Read(DoomedName& next) {
  const dirent* found = nullptr;
  do {
    errno = 0;
    found = readdir(stream);
  } while (found && IsDotName(found->d_name));
  next.name = found ? found->d_name : "";
  next.type = found ? found->d_type : static_cast<unsigned char>(DT_UNKNOWN);
  return found ? 0 : errno;
}

void DoomedFolder::Rewind() {
  rewinddir(stream);
  wasSuspended = false;
  rest.clear();
}

void DoomedFolder::LookForDescriptions() {
  hasDescriptions = HasDescriptions(Descriptor(), ToUtf8(kDescriptionsName));
}

DoomedObject::DoomedObject(const Westring& path) : bytes(ToUtf8(path)), name(bytes.Text()) {}

DoomedObject::DoomedObject(DoomedFolder& parent, const char* rawName) : folder(&parent), name(rawName) {}

// Made when it is shown: that of each level kept would fill the memory in a tree
// of thousands.
Westring DoomedObject::Path() const {
  std::vector<const char*> names;
  const DoomedObject* top = this;
  for (; top->folder; top = &top->folder->Object()) names.push_back(top->name);
  std::string path = top->name;
  for (auto below = names.rbegin(); below != names.rend(); ++below) path.append("/").append(*below);
  return Westring(path.c_str());
}

const char* DoomedObject::LastName() const {
  const char* const slash = strrchr(name, '/');
  return slash ? slash + 1 : name;
}

int DoomedObject::Directory() const { return folder ? folder->Descriptor() : AT_FDCWD; }

int DoomedObject::OpenDirectory(int& fd) const {
  fd = openat(Directory(), name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
  if (fd >= 0) return 0;
  return IsLink() ? ENOTDIR : errno;
}

int DoomedObject::Access() const { return ErrorOf(faccessat(Directory(), name, W_OK, 0)); }

int DoomedObject::ParentAccess() const {
  if (folder) return ErrorOf(faccessat(Directory(), ".", W_OK, 0));
  return ErrorOf(access(ToUtf8(ParentPath(Path().Text())).Text(), W_OK));
}

int DoomedObject::Unlink() const { return ErrorOf(unlinkat(Directory(), name, 0)); }

int DoomedObject::RemoveDirectory() const {
  const int code = ErrorOf(unlinkat(Directory(), name, AT_REMOVEDIR));
  return code == EEXIST ? ENOTEMPTY : code;  // some systems say it so
}

bool DoomedObject::IsLink() const {
  const int saved = errno;
  struct stat status;
  const bool isLink =
      fstatat(Directory(), name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISLNK(status.st_mode);
  errno = saved;
  return isLink;
}

bool DoomedObject::Exists() const {
  struct stat status;
  return fstatat(Directory(), name, &status, AT_SYMLINK_NOFOLLOW) == 0;
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
