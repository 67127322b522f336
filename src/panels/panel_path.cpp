// Paths of panels as text.
#include "panels/panel_path.h"

#include <cwchar>

bool IsRootPath(const wchar_t* path) { return wcscmp(path, L"/") == 0 || wcscmp(path, L"//") == 0; }

bool IsPathInside(const wchar_t* path, const wchar_t* directory) {
  const size_t length = wcslen(directory);
  if (length == 0 || wcsncmp(path, directory, length) != 0) return false;
  return directory[length - 1] == L'/' || path[length] == L'/' || path[length] == 0;
}

Westring ParentPath(const wchar_t* path) {
  const auto length = static_cast<int>(LastComponent(path) - path);
  return length > 1 ? Westring(path, length - 1) : Westring(L"/");
}

const wchar_t* LastComponent(const wchar_t* path) {
  const wchar_t* const slash = wcsrchr(path, L'/');
  return slash ? slash + 1 : path;
}

bool EndsInSlash(const Westring& path) { return !path.IsEmpty() && path[Length(path) - 1] == L'/'; }
