// Copying one item, with what the user says to a target that exists.
#include "fileops/copy_item.h"

#include <cerrno>

#include "console/key_codes.h"
#include "dialogs/prompt.h"
#include "fileops/copy_file.h"
#include "fileops/copy_progress.h"
#include "fileops/file_error.h"
#include "fileops/item_policy.h"

namespace {

class ItemCopy {
 public:
  explicit ItemCopy(const TransferItem& copied)
      : item(copied), force(item.operation.overwriteMode == kOverwriteAlways) {}

  int Run() {
    while (true) {
      int code = Try();
      if (code == 0) return 0;
      item.StopPainter();
      if (!GoesOn(code)) return code;
    }
  }

 private:
  // 0 or what CopyFile gives.
  int Try() {
    if (!force && item.operation.overwriteMode == kOverwriteIfOlder) {
      const ObjectState source = LookAt(item.source), existing = LookAt(item.target);
      if (source.exists && existing.IsFile() && source.modified <= existing.modified) return 0;
      force = existing.IsFile();
    }
    item.StartPainter();
    return CopyFile(item.operation, item.source, item.target, force, false, item.sources, item.flags);
  }

  // True for another try; else code is the item's end.
  bool GoesOn(int& code) {
    const bool mayExist = code == EACCES || code == EEXIST;
    const ObjectState existing = mayExist ? LookAt(item.target) : ObjectState();
    if (existing.exists && !existing.isDirectory && IsSameObject(item.source, item.target)) {
      const int answer = item.operation.Ask(L"File cannot overwrite itself", item.source, kPromptOkCancel);
      if (answer == static_cast<int>(kEscape)) code = kStopCommand;
      return false;
    }
    const bool isInTheWay = existing.IsFile();
    if (isInTheWay && CanGiveSource(item, false)) return ReplacesTarget(code);
    if (isInTheWay) code = EACCES;
    return RetriesAfter(item, code);
  }

  bool ReplacesTarget(int& code) {
    switch (force ? Overwrite::Replace : AskToOverwrite(item, kPromptAllOlder)) {
      case Overwrite::TryAgain:
        return true;
      case Overwrite::Skip:
        return false;
      case Overwrite::Stop:
        code = kStopCommand;
        return false;
      case Overwrite::Replace:
        break;
    }
    force = true;
    return RemovesTarget(item, false, code);
  }

  TransferItem item;
  bool force;  // an existing file's contents may go
};

}  // namespace

int CopyItem(FileOperation& operation, const Westring& sourcePath, const Westring& targetPath, int index,
             int total, Descriptions* sources) {
  if (operation.progress) operation.progress->ShowItem(sourcePath, targetPath, index, total);
  const BreakScope armed;
  return ItemCopy(TransferItem(operation, sourcePath, targetPath, sources)).Run();
}
