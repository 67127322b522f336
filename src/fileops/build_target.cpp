// Where one name goes: into a directory, to a name of its own, or to what a
// pattern makes of it.
#include "fileops/build_target.h"

#include <cwchar>

#include "foundation/paths.h"
#include "foundation/wildcards.h"
#include "panels/panel_path.h"

namespace {

// No object can have these.
bool IsNoName(const Westring& name) {
  return name.IsEmpty() || wcscmp(name.Text(), L".") == 0 || wcscmp(name.Text(), L"..") == 0;
}

// A pattern that leaves nothing of a name, as "*" does of ".profile", would lead
// to the directory itself: such a name stays what it is.
Westring NameFromPattern(const wchar_t* sourceName, const wchar_t* pattern) {
  Westring name;
  ApplyRenameMask(sourceName, pattern, name);
  return IsNoName(name) ? Westring(sourceName) : name;
}

// To copy x to a directory that ends in "/x" means that directory: no "x/x" comes
// of it.
bool GoesInto(const Westring& source, const wchar_t* sourceName, const Westring& directory) {
  return DirectoryExists(directory) && wcscmp(directory.Text(), source.Text()) != 0 &&
         wcscmp(LastComponent(directory.Text()), sourceName) != 0;
}

}  // namespace

bool IsTargetPattern(const Westring& spec) {
  const Westring path = EndsInSlash(spec) ? DropRight(spec, 1) : spec;
  return wcspbrk(LastComponent(path.Text()), L"*?") != nullptr;
}

void BuildTarget(const Westring& source, const Westring& spec, Westring& out) {
  if (!IsTargetPattern(spec)) return BuildLiteralTarget(source, spec, out);
  const Westring path = EndsInSlash(spec) ? DropRight(spec, 1) : spec;
  const wchar_t* const last = LastComponent(path.Text());
  const Westring directory(path.Text(), static_cast<int>(last - path.Text()));
  out = directory + NameFromPattern(LastComponent(source.Text()), last);
}

void BuildLiteralTarget(const Westring& source, const Westring& spec, Westring& out) {
  const wchar_t* const sourceName = LastComponent(source.Text());
  const bool isInside = EndsInSlash(spec) || GoesInto(source, sourceName, spec);
  out = isInside ? AddTrailingSlash(spec) + sourceName : spec;
}
