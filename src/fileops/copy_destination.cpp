// The destination of a copy or move.
#include "fileops/copy_destination.h"

#include <sys/stat.h>

#include <cwchar>

#include "dialogs/prompt.h"
#include "fileops/build_target.h"
#include "foundation/environment.h"
#include "foundation/paths.h"
#include "panels/panel_path.h"

namespace {

bool Stat(const Westring& path, struct stat& status) { return stat(ToUtf8(path).Text(), &status) == 0; }

bool IsPattern(const CopyDestination& destination) {
  return !destination.isLiteral && IsTargetPattern(destination.path);
}

bool TakesMany(const Westring& path) {
  struct stat status;
  if (!Stat(path, status)) return false;
  const mode_t mode = status.st_mode;
  return S_ISDIR(mode) || S_ISCHR(mode) || S_ISBLK(mode) || S_ISFIFO(mode);
}

}  // namespace

bool ResolveDestination(const Westring& typed, const Westring& base, CopyDestination& destination) {
  const Westring text = destination.isLiteral ? typed : ExpandEnvironment(typed);
  const bool endsInSlash = EndsInSlash(text);
  if (!NormalisePath(text, base, destination.path)) {
    Prompt(L"Invalid path", typed, kPromptOk);
    return false;
  }
  if (endsInSlash) destination.path = AddTrailingSlash(destination.path);
  destination.namesDirectory = endsInSlash || wcscmp(text.Text(), L"..") == 0;
  return true;
}

Westring DirectoryForMany(const CopyDestination& destination) {
  const Westring path = RemoveTrailingSlash(destination.path);
  if (path.IsEmpty()) return destination.path;
  return IsPattern(destination) ? ParentPath(path.Text()) : path;
}

bool HasRoomForMany(const CopyDestination& destination) {
  const Westring directory = DirectoryForMany(destination);
  if (TakesMany(directory)) return true;
  const bool isMissing = EndsInSlash(destination.path) || IsPattern(destination);
  Prompt(isMissing ? L"Directory does not exist" : L"Destination must be a valid directory", directory,
         kPromptOk);
  return false;
}

Westring TargetOfOne(const CopyDestination& destination, const Westring& source) {
  if (destination.namesDirectory) return AddTrailingSlash(destination.path) + LastComponent(source.Text());
  return TargetOfTagged(destination, source);
}

Westring TargetOfTagged(const CopyDestination& destination, const Westring& source) {
  const auto build = destination.isLiteral ? BuildLiteralTarget : BuildTarget;
  Westring target;
  build(source, destination.path, target);
  return target;
}

bool AreOnOneDevice(const Westring& a, const Westring& b) {
  struct stat one, other;
  return !Stat(a, one) || !Stat(b, other) || one.st_dev == other.st_dev;
}
