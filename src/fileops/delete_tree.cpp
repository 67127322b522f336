// Deleting a directory with all that it holds; see delete_file.h.
#include <sys/stat.h>

#include <cerrno>
#include <cwchar>
#include <deque>
#include <string>
#include <utility>

#include "config/values/options.h"
#include "console/input.h"
#include "fileops/delete_file.h"
#include "fileops/delete_object.h"
#include "fileops/deletion_window.h"
#include "fileops/descriptions.h"
#include "fileops/directory_names.h"
#include "fileops/file_error.h"
#include "fileops/tree_question.h"
#include "panels/entry_source.h"
#include "panels/expression.h"

namespace {

// No more folders are open at once, so that no tree uses up what the system lets a
// process open.
constexpr size_t kMostOpen = 64;
// Each level takes some of the stack; no path of a panel leads to the fifth part of
// them.
constexpr int kMostLevels = 1500;

// A name that leads back to itself as text. Nearly all are plain ASCII.
bool IsText(const std::string& name) {
  bool isPlain = true;
  for (char c : name) isPlain = isPlain && static_cast<unsigned char>(c) < 0x80;
  Westring ignored;
  return isPlain || DecodeName(name.c_str(), ignored);
}

class TreeDeletion {
 public:
  TreeDeletion(FileOperation& command, const Westring& expression)
      : operation(command), mask(expression), takesAll(wcscmp(expression.Text(), L"*") == 0) {}

  // 1 removed, 0 where something stayed, -1 stopped.
  int Clear(const DoomedObject& directory) {
    for (;;) {
      const int failure = ClearContents(directory);
      if (failure < 0) return failure;
      if (failure == ENOENT && directory.Folder()) return 0;  // somebody else has taken it
      bool notEmpty = false;
      const int result = DeleteEmptyDirectory(operation, directory, failure == 0, notEmpty);
      if (!notEmpty) return result;
      // What is left was kept on purpose, or came meanwhile: another try means all of it.
      int code = ENOTEMPTY;
      if (!WantsRetry(operation, code, directory.Path())) return code < 0 ? kStopCommand : 0;
    }
  }

 private:
  // Why the directory did not open, 0, or -1.
  int ClearContents(const DoomedObject& directory) {
    if (levels >= kMostLevels) return RefuseLevel(directory);
    DoomedFolder folder(directory);
    if (const int code = folder.Open()) return code;
    folder.LookForDescriptions();
    Enter(folder);
    const int result = WalkWithRetries(folder);
    return result < 0 || !Leave(folder) ? kStopCommand : result;
  }

  // What lies above could not go either, and would be asked for level by level.
  int RefuseLevel(const DoomedObject& directory) {
    int code = ENAMETOOLONG;
    WantsRetry(operation, code, directory.Path());
    return kStopCommand;
  }

  void Enter(DoomedFolder& folder) {
    ++levels;
    open.push_back(&folder);
    if (open.size() <= kMostOpen) return;
    open.front()->Suspend();
    open.pop_front();
  }

  // The folder above was suspended if none is left. False where there is no way
  // back to it. A deletion that stops needs none.
  bool Leave(DoomedFolder& folder) {
    --levels;
    open.pop_back();
    DoomedFolder* const above = folder.Object().Folder();
    if (!above || !open.empty()) return true;
    while (int code = above->Resume(folder))
      if (!WantsRetry(operation, code, above->Object().Path())) return false;
    open.push_back(above);
    return true;
  }

  // 0 or -1.
  int WalkWithRetries(DoomedFolder& folder) {
    for (;;) {
      int code = Walk(folder);
      if (code <= 0) return code;
      if (!WantsRetry(operation, code, folder.Object().Path())) return code < 0 ? kStopCommand : 0;
      folder.Rewind();
    }
  }

  // The next name is read before anything happens to the one at hand. 0, -1, or
  // what kept a name from being read.
  int Walk(DoomedFolder& folder) {
    DoomedName current, next;
    int code = folder.Next(next);
    while (!next.name.empty()) {
      std::swap(current, next);
      code = folder.Next(next);
      if (stop.Stopped() || Delete(folder, current) < 0) return kStopCommand;
    }
    return code;
  }

  int Delete(DoomedFolder& folder, const DoomedName& found) {
    const DoomedObject object(folder, found.name.c_str());
    if (!IsText(found.name)) return Refuse(object);
    if (IsDirectory(object, found.type)) return Clear(object);
    if (!takesAll && !Matches(folder, object)) return 0;
    const int result = DeleteFileObject(operation, object, kDeleteBatch);
    if (folder.hasDescriptions && IsDescriptionsName(object.Name())) folder.LookForDescriptions();
    return result;
  }

  // The path that would be told for it could be another file's.
  int Refuse(const DoomedObject& object) {
    while (object.Exists()) {
      int code = EILSEQ;
      if (!WantsRetry(operation, code, object.Path())) return code < 0 ? kStopCommand : 0;
    }
    return 0;
  }

  static bool IsDirectory(const DoomedObject& object, unsigned char type) {
    if (type != DT_UNKNOWN) return type == DT_DIR;
    struct stat status;
    return fstatat(object.Directory(), object.Name(), &status, AT_SYMLINK_NOFOLLOW) == 0 &&
           S_ISDIR(status.st_mode);
  }

  // What can't be looked at, and what an expression in error says, stays.
  bool Matches(const DoomedFolder& folder, const DoomedObject& object) const {
    entry* found = nullptr;
    if (StatEntry(folder.Object().Path(), Westring(object.Name()).Text(), found) != 0) return false;
    return MatchEntry(mask.Text(), *OwnedEntry(found)) > 0;
  }

  FileOperation& operation;
  const Westring& mask;
  const bool takesAll;
  BreakScope stop;
  int levels = 0;
  std::deque<DoomedFolder*> open;  // the innermost folders, the last one inside all others
};

constexpr int kConfirmTreeOff = 4;  // in Options::Confirmations

bool MayDeleteTree(FileOperation& operation, const Westring& path) {
  if (operation.treeDepth > 0 || operation.treeAll || Options::Confirmations & kConfirmTreeOff) return true;
  operation.StopProgress();
  const TreeAnswer answer = AskForTree(path);
  operation.treeAll = answer == TreeAnswer::All;
  return answer != TreeAnswer::No;
}

}  // namespace

int DeleteTree(FileOperation& operation, const Westring& path, const Westring& mask) {
  if (!MayDeleteTree(operation, path)) return kStopCommand;
  ++operation.treeDepth;
  const int result = DeleteContents(operation, path, mask);
  operation.deletionWindow.reset();
  --operation.treeDepth;
  return result < 0 ? kStopCommand : 1;
}

int DeleteContents(FileOperation& operation, const Westring& path, const Westring& mask) {
  return TreeDeletion(operation, mask).Clear(DoomedObject(path));
}
