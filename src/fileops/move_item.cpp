// Moving one item: by renaming it, and only where that leads to another file
// system by copying. The item's source goes last.
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "dialogs/prompt.h"
#include "fileops/copy_file.h"
#include "fileops/copy_item.h"
#include "fileops/copy_progress.h"
#include "fileops/directory_names.h"
#include "fileops/item_policy.h"
#include "fileops/target_inside.h"
#include "foundation/paths.h"

namespace {

bool IsRealDirectory(const Westring& path) {
  const ObjectState state = LookAt(path);
  return state.isDirectory && !state.isLink;
}

class ItemMove {
 public:
  ItemMove(const TransferItem& moved, BreakScope& cancelState) : item(moved), cancel(cancelState) {}

  int Run() {
    while (true) {
      item.StartPainter();
      int code = Try();
      if (code == 0) return renames && cancel.Stopped() ? kMovedThenStop : 0;
      item.StopPainter();
      if (!GoesOn(code)) return code;
    }
  }

 private:
  int Try() {
    if (renames) {
      const int code = RenameObject(item.source, item.target);
      if (code == 0) MoveDescription(item.sources, item.source, item.target);
      if (code != EXDEV) return code;
      renames = false;
    }
    // What was in the way is gone by an answer; nothing else may go.
    return CopyFile(item.operation, item.source, item.target, false, true, item.sources, item.flags);
  }

  // True for another try; else code is the item's end, which may be 0.
  bool GoesOn(int& code) {
    if (code != EACCES && code != EEXIST) return RetriesAfter(item, code);
    const ObjectState existing = LookAt(item.target);
    if (!existing.exists || IsSameObject(item.source, item.target)) return RetriesAfter(item, code);
    if (existing.isDirectory && IsRealDirectory(item.source)) return Merges(code);
    if (existing.isDevice && renames) {
      renames = false;  // a device is written to
      return true;
    }
    const bool isInTheWay = existing.IsFile();
    if (isInTheWay && CanGiveSource(item, true)) return ReplacesTarget(code);
    if (isInTheWay) code = EACCES;
    return RetriesAfter(item, code);
  }

  // Times play no part in a move: to take only what is newer is asked like the rest.
  bool ReplacesTarget(int& code) {
    switch (AskToOverwrite(item, kPromptOkCancelSkipAllNone)) {
      case Overwrite::Stop:
        code = kStopCommand;
        return false;
      case Overwrite::Replace:
        return RemovesTarget(item, true, code);
      default:
        return false;
    }
  }

  // The source's contents go into the target that exists, then the source goes.
  bool Merges(int& code) {
    bool keptSome = false;
    code = IsInsideItself() ? EINVAL : MoveContents(keptSome);  // as a rename says it
    if (code != 0) return RetriesAfter(item, code);
    if (keptSome) {
      code = kSkipped;  // the user knows of what is left
      return false;
    }
    code = rmdir(ToUtf8(item.source).Text()) == 0 ? 0 : errno;
    if (code == 0) MoveDescription(item.sources, item.source, item.target);
    if (code == EACCES) code = 0;
    return code != 0 && RetriesAfter(item, code);
  }

  bool IsInsideItself() const {
    struct stat status;
    return lstat(ToUtf8(item.source).Text(), &status) == 0 && IsTargetInside(item.target, status);
  }

  // The results of MoveItem.
  int MoveName(const DirectoryNames& names, const char* name, Descriptions& descriptions) {
    Westring text;
    const bool isHeld = DecodeName(name, text);
    const Westring path = JoinPath(item.source, text);
    if (!isHeld) return RefuseName(item.operation, names, name, path);
    if (IsDescriptionsName(name)) return 0;  // its lines go with their files
    return MoveItem(item.operation, path, JoinPath(item.target, text), 1, 1, &descriptions);
  }

  // 0, errno of reading the directory, or the negative result that ended it.
  int MoveContents(bool& keptSome) {
    DirectoryNames names;
    if (const int error = names.Read(item.source)) return error;
    Descriptions descriptions;
    descriptions.Open(item.source, true, false);
    while (const char* name = names.Next()) {
      const int result = MoveName(names, name, descriptions);
      if (result < 0) return result;
      if (result > 0) keptSome = true;
      if (cancel.Stopped()) return kStopCommand;
    }
    return 0;
  }

  TransferItem item;
  BreakScope& cancel;
  bool renames = true;
};

}  // namespace

int MoveItem(FileOperation& operation, const Westring& sourcePath, const Westring& targetPath, int index,
             int total, Descriptions* sources) {
  if (CopyProgress* const progress = operation.progress) {
    progress->ShowItem(sourcePath, targetPath, index, total);
    if (progress->countsItems && total > 1) {
      progress->state.done = index;
      progress->state.total = total;
    }
  }
  BreakScope cancel;
  return ItemMove(TransferItem(operation, sourcePath, targetPath, sources), cancel).Run();
}
