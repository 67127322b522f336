// Deleting one file; see delete_file.h.
#include "fileops/delete_file.h"

#include <cerrno>
#include <cstring>

#include "dialogs/prompt.h"
#include "fileops/delete_object.h"
#include "fileops/deletion_window.h"
#include "fileops/descriptions.h"
#include "fileops/file_error.h"

namespace {

// Not all that may go should: a file without write permission is to be asked
// for, although the system would take it from a directory that may be written.
// What is wrong with a link's target is no reason to keep the link.
int UnlinkGuarded(const DoomedObject& object) {
  const int code = object.Access();
  const bool passes = code == 0 || code == ENOENT || (code != EACCES && object.IsLink());
  return passes ? object.Unlink() : code;
}

// The file itself forbids it, and not the way to it.
bool IsReadOnly(const DoomedObject& object) {
  return object.Access() == EACCES && object.ParentAccess() == 0;
}

class FileDeletion {
 public:
  FileDeletion(FileOperation& command, const DoomedObject& file, int deleteMode)
      : operation(command), object(file), mode(deleteMode) {}

  int Run() {
    if (!IsSilent()) ShowName();
    const int result = Delete();
    if (mode == kDeleteOne) operation.deletionWindow.reset();
    return result;
  }

 private:
  bool IsSilent() const { return mode == kDeleteSilent || mode == kDeleteAnyway; }
  int ReadOnlyMode() const { return mode == kDeleteAnyway ? kReadOnlyAll : operation.readOnlyMode; }

  int Delete() {
    for (bool guarded = true;;) {
      int code = guarded ? UnlinkGuarded(object) : object.Unlink();
      if (code == 0) {
        object.RemoveDescriptionLine(operation);
        return 1;
      }
      if (IsGoneAnyway(code)) return 0;
      if (code == EACCES && guarded) {
        if (ReadOnlyMode() == kReadOnlyNone) return 0;
        if (ReadOnlyMode() == kReadOnlyAll || IsReadOnly(object)) {
          const Consent consent = Ask();
          if (consent != Consent::Yes) return consent == Consent::Stop ? kStopCommand : 0;
          guarded = false;
          continue;
        }
      }
      if (!WantsRetry(operation, code, object.Path())) return code < 0 ? kStopCommand : 0;
    }
  }

  // The descriptions' file goes with its last line, and so with another file.
  bool IsGoneAnyway(int code) const {
    if (code == ENOENT && IsDescriptionsName(object.LastName())) return true;
    return mode == kDeleteAnyway && (code == ENOENT || code == ENOTDIR);
  }

  Consent Ask() {
    if (ReadOnlyMode() == kReadOnlyAll) return Consent::Yes;
    return AskReadOnly(operation, L"File is Read Only, Delete anyway?", object);
  }

  void ShowName() {
    if (!operation.deletionWindow) {
      operation.StopProgress();
      operation.deletionWindow = std::make_unique<DeletionWindow>();
    }
    if (operation.deletionWindow->IsDue()) operation.deletionWindow->Show(object.Path());
  }

  FileOperation& operation;
  const DoomedObject& object;
  const int mode;
};

}  // namespace

Consent AskReadOnly(FileOperation& operation, const wchar_t* text, const DoomedObject& object) {
  const int answer = operation.Ask(text, object.Path(), kPromptOkCancelSkipAllNone);
  if (answer == static_cast<int>(kEscape)) return Consent::Stop;
  if (answer == 'a') operation.readOnlyMode = kReadOnlyAll;
  if (answer == 'e') operation.readOnlyMode = kReadOnlyNone;
  return answer == 'y' || answer == 'a' ? Consent::Yes : Consent::Skip;
}

int DeleteFileObject(FileOperation& operation, const DoomedObject& object, int mode) {
  return FileDeletion(operation, object, mode).Run();
}

int DeleteFile(FileOperation& operation, const Westring& path, int mode) {
  if (mode == kDeleteClose) {
    operation.deletionWindow.reset();
    return 0;
  }
  return DeleteFileObject(operation, DoomedObject(path), mode);
}

int SetAttributes(const Westring&, int) { return 0; }
