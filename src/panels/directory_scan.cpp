// Entries of plain directories. Objects are looked at through the directory's
// descriptor and by their raw names, so names that are no valid UTF-8 and paths
// of any length work; the decoded name is for showing only.
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cwchar>

#include "foundation/paths.h"
#include "foundation/wildcards.h"
#include "panels/entry_source.h"

namespace {

// Who asks whether a file may be written.
struct User {
  uid_t uid = getuid();
  gid_t gid = getgid();
};

// The bits of owner and group give the right only to exactly that user and that
// real group; supplementary groups and the superuser's powers do not count.
bool IsReadOnly(const struct stat& status, const User& user) {
  if (status.st_mode & S_IWOTH) return false;
  if ((status.st_mode & S_IWGRP) && status.st_gid == user.gid) return false;
  return !((status.st_mode & S_IWUSR) && status.st_uid == user.uid);
}

bool IsDotName(const wchar_t* name) {
  return name[0] == L'.' && (name[1] == 0 || (name[1] == L'.' && name[2] == 0));
}

// Name and status as an entry. The status is the link's own for a link, and
// gives way to its target's where there is one.
entry* MakeEntry(int directory, const char* rawName, const Westring& name, struct stat status,
                 const User& user) {
  uint16_t attributes = 0;
  if (S_ISLNK(status.st_mode)) {
    struct stat target;
    attributes |= kAttrLink;
    if (fstatat(directory, rawName, &target, 0) == 0)
      status = target;
    else
      attributes |= kAttrDangling;
  }
  if (S_ISDIR(status.st_mode)) attributes |= kAttrDirectory;
  if (name.Text()[0] == L'.' && !IsDotName(name.Text())) attributes |= kAttrHidden;
  if (IsReadOnly(status, user)) attributes |= kAttrReadOnly;

  entry* const e = NewEntry(name.Text());
  e->attributes = attributes;
  e->size = S_ISDIR(status.st_mode) ? 0 : status.st_size;
  e->mode = static_cast<uint16_t>(status.st_mode);
  e->uid = static_cast<uint16_t>(status.st_uid);
  e->gid = static_cast<uint16_t>(status.st_gid);
  e->modified = FromTimespec(status.st_mtim);
  return e;
}

class DirectorySource : public EntrySource {
 public:
  DirectorySource(const Westring& directoryPath, const wchar_t* nameMask, uint32_t attributeWord)
      : path(directoryPath),
        mask(nameMask),
        takesAll(wcscmp(nameMask, L"*") == 0),
        attributes(attributeWord) {}
  ~DirectorySource() override { Close(); }

  int First(entry*& e) override {
    Close();
    stream = opendir(ToUtf8(path).Text());
    return stream ? Next(e) : errno;
  }

  int Next(entry*& e) override {
    if (!stream) return kNoMoreEntries;
    for (;;) {
      errno = 0;
      const dirent* const found = readdir(stream);
      if (!found) return errno ? errno : kNoMoreEntries;
      if ((e = Take(*found))) return 0;
    }
  }

 private:
  // Null for what the caller doesn't want, and for what has gone meanwhile.
  entry* Take(const dirent& found) {
    if (!(attributes & kScanHidden) && found.d_name[0] == '.') return nullptr;
    if (onlyDirectories && found.d_type != DT_DIR && found.d_type != DT_UNKNOWN) return nullptr;
    name.FromUtf8(found.d_name);
    if (!takesAll && !MatchSimple(mask.Text(), name.Text())) return nullptr;
    struct stat status;
    if (fstatat(dirfd(stream), found.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) return nullptr;
    if (onlyDirectories && !S_ISDIR(status.st_mode)) return nullptr;
    return MakeEntry(dirfd(stream), found.d_name, name, status, user);
  }

  void Close() {
    if (stream) closedir(stream);
    stream = nullptr;
  }

  Westring path;
  Westring mask;
  Westring name;  // of the object at hand; kept for its buffer
  bool takesAll;
  uint32_t attributes;
  bool onlyDirectories = attributes & kScanDirectories;
  User user;
  DIR* stream = nullptr;
};

}  // namespace

std::unique_ptr<EntrySource> ScanDirectory(const Westring& path, const wchar_t* mask, uint32_t attributes) {
  return std::make_unique<DirectorySource>(path, mask, attributes);
}

int StatEntry(const Westring& path, const wchar_t* name, entry*& e) {
  const Estring object = ToUtf8(JoinPath(path, name));
  struct stat status;
  if (lstat(object.Text(), &status) != 0) return errno;
  e = MakeEntry(AT_FDCWD, object.Text(), name, status, User());
  return 0;
}
