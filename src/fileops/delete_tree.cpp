// Deleting a directory with all that it holds; see delete_file.h.
#include <sys/stat.h>

#include <cerrno>
#include <cwchar>
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

// What getting a name told about it.
struct FoundName {
  std::string name;  // as the system has it; empty behind the last
  unsigned char type = DT_UNKNOWN;

  // 0 or errno.
  int ReadFrom(DoomedFolder& folder) {
    const dirent* const found = folder.NextName();
    name = found ? found->d_name : "";
    type = found ? found->d_type : static_cast<unsigned char>(DT_UNKNOWN);
    return found ? 0 : errno;
  }
};

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
      if (failure == ENOENT && directory.IsInTree()) return 0;  // somebody else has taken it
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
    DoomedFolder folder(directory.Path());
    if (const int code = folder.Open(directory)) return code;
    folder.LookForDescriptions();
    for (;;) {
      int code = Walk(folder);
      if (code <= 0) return code;
      if (!WantsRetry(operation, code, folder.path)) return code < 0 ? kStopCommand : 0;
      folder.Rewind();
    }
  }

  // The next name is read before anything happens to the one at hand. 0, -1, or
  // what kept a name from being read.
  int Walk(DoomedFolder& folder) {
    FoundName current, next;
    int code = next.ReadFrom(folder);
    while (!next.name.empty()) {
      std::swap(current, next);
      code = next.ReadFrom(folder);
      if (stop.Stopped() || Delete(folder, current) < 0) return kStopCommand;
    }
    return code;
  }

  int Delete(DoomedFolder& folder, const FoundName& found) {
    const DoomedObject object(folder, found.name.c_str());
    if (!IsText(found.name)) return Refuse(object);
    if (IsDirectory(object, found.type)) return Clear(object);
    if (!takesAll && !Matches(folder, object)) return 0;
    const int result = DeleteFileObject(operation, object, kDeleteBatch);
    if (folder.hasDescriptions && IsDescriptionsName(Westring(object.Name()))) folder.LookForDescriptions();
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
    if (StatEntry(folder.path, Westring(object.Name()).Text(), found) != 0) return false;
    const bool matches = MatchEntry(mask.Text(), *found) > 0;
    FreeEntry(found);
    return matches;
  }

  FileOperation& operation;
  const Westring& mask;
  const bool takesAll;
  BreakScope stop;
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
