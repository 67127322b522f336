// Names of a directory; see directory_names.h.
#include "fileops/directory_names.h"

#include <cerrno>
#include <cstring>

#include "fileops/descriptor.h"

int DirectoryNames::Read(const Westring& path) {
  names.clear();
  position = 0;
  Descriptor directory;
  if (const int code = directory.Open(ToUtf8(path).Text(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW)) return code;
  stream.reset(fdopendir(directory.Get()));
  if (!stream) return errno;
  directory.Release();
  for (;;) {
    errno = 0;
    const dirent* const found = readdir(stream.get());
    if (!found) return errno;
    if (strcmp(found->d_name, ".") != 0 && strcmp(found->d_name, "..") != 0)
      names.append(found->d_name).push_back(0);
  }
}

const char* DirectoryNames::Next() {
  if (position >= names.size()) return nullptr;
  const char* const name = &names[position];
  position += strlen(name) + 1;
  return name;
}

bool DirectoryNames::Look(const char* name, struct stat& status) const {
  return fstatat(dirfd(stream.get()), name, &status, AT_SYMLINK_NOFOLLOW) == 0;
}

bool DirectoryNames::LooksLikeDirectory(const char* name) const {
  struct stat status;
  return fstatat(dirfd(stream.get()), name, &status, 0) == 0 && S_ISDIR(status.st_mode);
}

bool DecodeName(const char* name, Westring& text) {
  text.FromUtf8(name);
  return strcmp(ToUtf8(text).Text(), name) == 0;
}
