// Paths as text; see paths.h.
#include "foundation/paths.h"

#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <cstring>
#include <cwchar>
#include <vector>

namespace {

constexpr wchar_t kCutMark = 16;  // a triangle that points to the right

struct Component {
  const wchar_t* text;
  int length;
};

// Adds the components of path to the list, without "." and with each ".." taking
// the one before it away.
void AddComponents(const wchar_t* path, std::vector<Component>& components) {
  while (*path) {
    const int length = static_cast<int>(wcscspn(path, L"/"));
    const bool isDot = length == 1 && path[0] == L'.';
    const bool isDotDot = length == 2 && path[0] == L'.' && path[1] == L'.';
    if (isDotDot) {
      if (!components.empty()) components.pop_back();
    } else if (length > 0 && !isDot) {
      components.push_back({path, length});
    }
    path += length;
    if (*path) path++;
  }
}

// The length of the head that ShortenPath keeps, with its closing slash: "/a/"
// or "//host/share/". 0 if path has none.
int HeadLength(const wchar_t* path) {
  if (*path != L'/') return 0;
  int directories = path[1] == L'/' ? 2 : 1;
  const wchar_t* p = path + directories;
  while (directories-- > 0) {
    p = wcschr(p, L'/');
    if (!p) return 0;
    p++;
  }
  return static_cast<int>(p - path);
}

bool Stat(const Westring& path, struct stat& status) { return stat(ToUtf8(path).Text(), &status) == 0; }

}  // namespace

bool NormalisePath(const Westring& path, const Westring& base, Westring& result, int longest) {
  if (path.IsEmpty()) return false;
  const bool absolute = path[0] == L'/';
  const wchar_t* start = absolute ? path.Text() : base.Text();
  const bool network = start[0] == L'/' && start[1] == L'/';

  std::vector<Component> components;
  if (!absolute) AddComponents(base.Text(), components);
  AddComponents(path.Text(), components);

  int64_t length = network ? 2 : 1;
  for (const Component& component : components) length += component.length + 1;
  if (!components.empty()) length--;
  if (length > longest) return false;

  Westring normal = Westring::Reserved(static_cast<int>(length));
  if (network) normal += L'/';
  if (components.empty()) normal += L'/';
  for (const Component& component : components) {
    normal += L'/';
    normal += Westring(component.text, component.length);
  }
  result = std::move(normal);
  return true;
}

Westring JoinPath(const Westring& directory, const Westring& name) {
  Westring joined = directory;
  const int length = Length(joined);
  const bool hasSlash = length > 0 && joined[length - 1] == L'/';
  if (!hasSlash) joined += L'/';
  joined += name[0] == L'/' ? name.Text() + 1 : name.Text();
  return joined;
}

Westring ShortenPath(const Westring& path, int width) {
  const int length = Length(path);
  if (length <= width) return path;
  if (width <= 0) return Westring();
  const int head = HeadLength(path.Text());
  constexpr int kDots = 3;
  if (head > 0 && head + kDots < width) return Left(path, head) + L"..." + Right(path, width - head - kDots);
  Westring cut = Left(path, width - 1);
  cut += kCutMark;
  return cut;
}

Westring CurrentDirectory() {
  char buffer[PATH_MAX];
  // A directory outside the root is told as "(unreachable)...", which is no path.
  if (!getcwd(buffer, sizeof buffer) || buffer[0] != '/') return Westring();
  return Westring(buffer);
}

Estring ProgramDirectory() {
  char buffer[PATH_MAX];
  const ssize_t length = readlink("/proc/self/exe", buffer, sizeof buffer - 1);
  if (length <= 0) return Estring();
  buffer[length] = 0;
  char* slash = strrchr(buffer, '/');
  if (!slash) return Estring();
  slash[slash == buffer ? 1 : 0] = 0;
  return Estring(buffer);
}

bool FileExists(const Westring& path) {
  struct stat status;
  return Stat(path, status);
}

bool DirectoryExists(const Westring& path) {
  struct stat status;
  return Stat(path, status) && S_ISDIR(status.st_mode);
}

Estring SystemError(int number) { return RTrim(Estring(strerror(number))); }
