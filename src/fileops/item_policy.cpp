// The questions that copying and moving one item share.
#include "fileops/item_policy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "console/key_codes.h"
#include "dialogs/prompt.h"
#include "fileops/copy_destination.h"
#include "fileops/copy_file.h"
#include "fileops/copy_item.h"
#include "fileops/copy_progress.h"
#include "fileops/copy_target.h"
#include "fileops/delete_file.h"
#include "fileops/file_error.h"
#include "foundation/file_time.h"
#include "panels/panel_path.h"

namespace {

bool Allows(const Westring& path, int access) {
  return faccessat(AT_FDCWD, ToUtf8(path).Text(), access, AT_EACCESS | AT_SYMLINK_NOFOLLOW) == 0;
}

// In a directory for all, as those of temporary files, each may take his own only.
bool IsKeptByOwner(const Westring& directory, const Westring& path) {
  struct stat around, status;
  const uid_t user = geteuid();
  return user != 0 && stat(ToUtf8(directory).Text(), &around) == 0 && (around.st_mode & S_ISVTX) &&
         around.st_uid != user && lstat(ToUtf8(path).Text(), &status) == 0 && status.st_uid != user;
}

// True where the item is to be tried again.
bool TakesOpenFile(TransferItem& item, int& code) {
  int& mode = item.operation.openFilesMode;
  if (mode == kOpenFilesNever) return false;
  const int answer =
      item.operation.Ask(L"File is open for writing, copy anyway?", item.source, kPromptOkCancelSkipAllNone);
  if (answer == 'a') mode = kOpenFilesAlways;
  if (answer == 'e') mode = kOpenFilesNever;
  if (answer == static_cast<int>(kEscape)) code = kStopCommand;
  if (answer != 'y' && answer != 'a') return false;
  item.flags |= kTakeOpenFile;
  return true;
}

}  // namespace

ObjectState LookAt(const Westring& path) {
  const Estring bytes = ToUtf8(path);
  struct stat status;
  ObjectState state;
  if (lstat(bytes.Text(), &status) != 0) return state;
  state.exists = true;
  state.isLink = S_ISLNK(status.st_mode);
  state.modified = FromTimespec(status.st_mtim).Order();
  if (state.isLink && stat(bytes.Text(), &status) != 0) return state;
  state.isDirectory = S_ISDIR(status.st_mode);
  state.isDevice = IsDevice(status);
  return state;
}

TransferItem::TransferItem(FileOperation& command, const Westring& sourcePath, const Westring& targetPath,
                           Descriptions* descriptions)
    : operation(command),
      source(sourcePath),
      target(targetPath),
      sources(descriptions),
      flags(command.openFilesMode == kOpenFilesAlways ? kTakeOpenFile : 0) {}

void TransferItem::StartPainter() {
  if (operation.progress) operation.progress->Start();
}

void TransferItem::StopPainter() {
  if (operation.progress) operation.progress->Stop();
}

bool RetriesAfter(TransferItem& item, int& code) {
  if (code < 0) {
    code = kStopCommand;
    return false;
  }
  // The user was told of a read error, and a skipped item is his wish.
  if (code == EIO || code == kSkipped) return false;
  if (code == kSourceOpen) return TakesOpenFile(item, code);
  return WantsRetry(item.operation, code, item.source, item.target);
}

Overwrite AskToOverwrite(TransferItem& item, int kind) {
  int& mode = item.operation.overwriteMode;
  if (mode == kOverwriteAlways) return Overwrite::Replace;
  if (mode == kOverwriteNever) return Overwrite::Skip;
  switch (item.operation.Ask(L"File already exists, Overwrite?", item.target, kind)) {
    case 'y':
      return Overwrite::Replace;
    case 'a':
      mode = kOverwriteAlways;
      return Overwrite::Replace;
    case 'd':
      mode = kOverwriteIfOlder;
      return Overwrite::TryAgain;
    case 'e':
      mode = kOverwriteNever;
      return Overwrite::Skip;
    case kEscape:
      return Overwrite::Stop;
    default:
      return Overwrite::Skip;
  }
}

bool RemovesTarget(TransferItem& item, bool isMove, int& code) {
  item.StopPainter();
  // The question may have stood for hours, and the source become the target.
  if (!CanGiveSource(item, isMove) || IsSameObject(item.source, item.target)) return true;
  const int removed = DeleteFile(item.operation, item.target, kDeleteSilent);
  if (removed < 0) code = kStopCommand;
  return removed > 0;
}

bool CanGiveSource(const TransferItem& item, bool isMove) {
  const Westring parent = ParentPath(item.source.Text());
  if (isMove && (!Allows(parent, W_OK | X_OK) || IsKeptByOwner(parent, item.source))) return false;
  const ObjectState state = LookAt(item.source);
  if (!state.exists) return false;
  const bool needsBytes = !isMove || !AreOnOneDevice(parent, ParentPath(item.target.Text()));
  return state.isLink || !needsBytes || Allows(item.source, R_OK);
}

int RefuseName(FileOperation& operation, const DirectoryNames& names, const char* name,
               const Westring& path) {
  struct stat status;
  while (names.Look(name, status)) {
    int code = EILSEQ;
    if (!WantsRetry(operation, code, path)) return code < 0 ? kStopCommand : kSkipped;
  }
  return 0;
}
