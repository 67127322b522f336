// Deleting a directory that is empty; see delete_file.h.
#include <cerrno>
#include <cwchar>

#include "dialogs/prompt.h"
#include "fileops/delete_file.h"
#include "fileops/delete_object.h"
#include "fileops/file_error.h"
#include "foundation/paths.h"
#include "panels/entry_source.h"
#include "panels/panel_path.h"

TreeHooks TheTreeHooks;

namespace {

// Looks first: one that is not empty has a question of its own, whatever else
// would keep it from going. 0 or errno.
int RemoveIfEmpty(const DoomedObject& object) {
  {
    DoomedFolder folder(object);
    if (const int code = folder.Open()) return code;
    DoomedName first;
    if (const int code = folder.Next(first)) return code;
    if (!first.name.empty()) return ENOTEMPTY;
  }
  return object.RemoveDirectory();
}

// The attributes, if the directory is read-only for this user.
bool IsReadOnly(const Westring& path, int& attributes) {
  entry* found = nullptr;
  if (StatEntry(ParentPath(path.Text()), LastComponent(path.Text()), found) != 0) return false;
  attributes = found->attributes;
  FreeEntry(found);
  return attributes & kAttrReadOnly;
}

class DirectoryDeletion {
 public:
  DirectoryDeletion(FileOperation& command, const DoomedObject& directory)
      : operation(command), object(directory) {}

  int Run(bool wasCleared, bool& notEmpty) {
    notEmpty = false;
    if (wasCleared && object.RemoveDirectory() == 0) return Finish(1);
    for (;;) {
      int code = RemoveIfEmpty(object);
      bool goesOn = true;
      if (code == EACCES) code = RemoveReadOnly(goesOn);
      if (!goesOn) return code;
      if (code == 0) return Finish(1);
      if (code == ENOTDIR) {
        operation.Ask(L"Directory does not exist, cannot delete", object.Path(), kPromptOk);
        return object.Exists() ? 0 : Finish(0);
      }
      if (code == ENOTEMPTY) {
        notEmpty = true;
        return 0;
      }
      if (!WantsRetry(operation, code, object.Path())) return code < 0 ? kStopCommand : 0;
    }
  }

 private:
  // The next error, or, where goesOn gets false, the result of it all.
  int RemoveReadOnly(bool& goesOn) {
    const Westring path = object.Path();
    int attributes = 0;
    if (!IsReadOnly(path, attributes)) return EACCES;
    goesOn = false;
    if (operation.readOnlyMode == kReadOnlyNone) return 0;
    if (operation.readOnlyMode != kReadOnlyAll) {
      const Consent consent = AskReadOnly(operation, L"Directory is Read Only, Delete anyway?", object);
      if (consent != Consent::Yes) return consent == Consent::Stop ? kStopCommand : 0;
    }
    if (SetAttributes(path, attributes & ~kAttrReadOnly) != 0) {
      operation.Ask(L"Unable to clear Read Only flag", path, kPromptOk);
      return 0;
    }
    goesOn = true;
    const int code = object.RemoveDirectory();
    if (code) operation.readOnlyMode = kReadOnlyAsk;
    return code;
  }

  int Finish(int result) {
    object.RemoveDescriptionLine(operation);
    if (TheTreeHooks.removed) TheTreeHooks.removed(object.Path());
    return result;
  }

  FileOperation& operation;
  const DoomedObject& object;
};

}  // namespace

int DeleteEmptyDirectory(FileOperation& operation, const DoomedObject& object, bool wasCleared,
                         bool& notEmpty) {
  return DirectoryDeletion(operation, object).Run(wasCleared, notEmpty);
}

int DeleteDirectory(FileOperation& operation, const Westring& path, const Westring& mask) {
  if (wcscmp(path.Text(), L"..") == 0) return 0;
  Westring normal;
  if (!NormalisePath(path, CurrentDirectory(), normal, kLongestPath)) {
    operation.Ask(L"Directory does not exist, cannot delete", path, kPromptOk);
    return 0;
  }
  bool notEmpty = false;
  const int result = DeleteEmptyDirectory(operation, DoomedObject(normal), false, notEmpty);
  return notEmpty ? DeleteTree(operation, normal, mask) : result;
}
