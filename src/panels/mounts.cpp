// Reading the mount table.
#include "panels/mounts.h"

#include <sys/statvfs.h>

#include <cerrno>
#include <cstring>
#include <cwchar>
#include <memory>
#include <utility>

#include "foundation/std_file.h"
#include "panels/panel_path.h"

namespace {

constexpr int kLineSize = 1024;
constexpr int kEndOfFile = -1;  // of StdFile

bool IsOctal(char ch, char highest) { return ch >= '0' && ch <= highest; }

// Blanks, tabs, newlines and backslashes of a field stand as "\" and three
// octal digits.
void DecodeEscapes(char* field) {
  char* out = field;
  for (const char* p = field; *p; ++out) {
    if (p[0] == '\\' && IsOctal(p[1], '3') && IsOctal(p[2], '7') && IsOctal(p[3], '7')) {
      *out = static_cast<char>((p[1] - '0') << 6 | (p[2] - '0') << 3 | (p[3] - '0'));
      p += 4;
    } else {
      *out = *p++;
    }
  }
  *out = 0;
}

// Null for a line of fewer than three fields. Takes line apart.
std::unique_ptr<TMountPoint> ParseMount(char* line) {
  char* rest = nullptr;
  Westring fields[3];
  for (Westring& text : fields) {
    char* const field = strtok_r(line, " \t", &rest);
    if (!field) return nullptr;
    DecodeEscapes(field);
    text = Westring(field);
    line = nullptr;
  }
  return std::unique_ptr<TMountPoint>(
      new TMountPoint{std::move(fields[0]), std::move(fields[1]), std::move(fields[2])});
}

bool IsPseudo(const TMountPoint& mount) {
  if (wcscmp(mount.fileSystem.Text(), L"tmpfs") == 0) return true;
  struct statvfs status;
  return statvfs(ToUtf8(mount.mountPoint).Text(), &status) != 0 || status.f_blocks == 0;
}

// Reads past the rest of a line that did not fit: its options can be long.
void SkipRest(StdFile& file, const char* line) {
  char rest[kLineSize];
  size_t length = strlen(line);
  while (length == kLineSize - 1) {
    file.ReadLine(rest, kLineSize);
    length = strlen(rest);
  }
}

}  // namespace

bool ReadMountTable(const char* table, CMountPointList& list, bool all) {
  list.Clear();
  StdFile file;
  char line[kLineSize];
  int code = file.Open(table, kOpenRead);
  while (code == 0 && (code = file.ReadLine(line, kLineSize)) == 0) {
    SkipRest(file, line);
    std::unique_ptr<TMountPoint> mount = ParseMount(line);
    if (mount && (all || !IsPseudo(*mount))) list.Append(mount.release());
  }
  if (code == kEndOfFile) return true;
  list.Clear();
  errno = code;
  return false;
}

bool ReadMounts(CMountPointList& list, bool all) { return ReadMountTable(kMountTable, list, all); }

const TMountPoint* FindMountIn(const CMountPointList& list, const Westring& path) {
  const TMountPoint* best = nullptr;
  int bestLength = 0;
  for (int i = 0; i < list.Count(); ++i) {
    const TMountPoint* const mount = list.Peek(i);
    const int length = Length(mount->mountPoint);
    if (length <= bestLength || !IsPathInside(path.Text(), mount->mountPoint.Text())) continue;
    best = mount;
    bestLength = length;
  }
  return best;
}

bool FindMount(const Westring& path, Westring& fileSystem, Westring& mountPoint) {
  CMountPointList list;
  if (!ReadMounts(list, true)) return false;
  const TMountPoint* const mount = FindMountIn(list, path);
  if (!mount) return false;
  fileSystem = mount->fileSystem;
  mountPoint = mount->mountPoint;
  return true;
}
