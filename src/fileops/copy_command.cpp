// F5 and F6: which entries, where to, and one after the other.
#include "fileops/copy_command.h"

#include <cerrno>
#include <cwchar>

#include "console/input.h"
#include "fileops/copy_destination.h"
#include "fileops/copy_dialog.h"
#include "fileops/copy_item.h"
#include "fileops/copy_progress.h"
#include "fileops/delete_file.h"
#include "fileops/file_error.h"
#include "fileops/unspellable_names.h"
#include "foundation/paths.h"
#include "panels/directory_sizes.h"
#include "panels/draw_panel.h"
#include "panels/panel_path.h"
#include "panels/read_panel.h"
#include "panels/tree_row.h"

CopyHooks TheCopyHooks;

namespace {

constexpr int kLongestName = 55;  // in the dialog's title

// What the panel stands on: its directory, or its row of a tree.
Westring DirectoryOf(const TPanel& panel) {
  return panel.IsTree() ? TreeRowPath(panel, panel.CurrentIndex()) : Westring(panel.path);
}

class CopyCommand {
 public:
  CopyCommand(TPanel& from, TPanel& beside, int flags)
      : source(from),
        other(beside),
        isMove(flags & kCommandMove),
        isHere(flags & kCommandHere),
        takesTags(source.taggedCount > 0 && !isHere),
        current(*source.Current()),
        sourcePath(source.IsTree() ? DirectoryOf(source) : JoinPath(source.path, current.name)),
        directory(source.IsTree() ? ParentPath(sourcePath.Text()) : Westring(source.path)) {}

  void Run(const Westring* target) {
    if (!takesTags && IsDotDot(current)) return;
    if (!AskWhere(target) || !FindTotal()) return;
    Transfer();
    ReadBothPanels();
    if (newName.IsEmpty()) return;
    PositionOn(source, newName.Text());
    DrawPanel(source);
  }

 private:
  // A name that is no text may read as one with a slash.
  Westring CurrentName() const {
    return source.IsTree() ? Westring(LastComponent(sourcePath.Text())) : Westring(current.name);
  }

  Westring DefaultDestination() const {
    if (!other.IsVisibleFiles() || isHere) return CurrentName();
    const Westring path = AddTrailingSlash(DirectoryOf(other));
    return takesTags ? path : path + CurrentName();
  }

  Westring Title() const {
    if (takesTags)
      return Westring(Estring::Format("%s %d file%c to", isMove ? "Move" : "Copy", source.taggedCount,
                                      source.taggedCount > 1 ? 's' : ' '));
    const Westring name = source.IsTree() ? sourcePath : Westring(current.name);
    return (isMove ? L"Move/Rename \"" : L"Copy \"") + ShortenPath(name, kLongestName) + L"\" to";
  }

  // False where the user, or his destination, ends the command.
  bool AskWhere(const Westring* target) {
    CopyQuestion question;
    if (target) {
      question.destination = *target;
    } else {
      question.title = Title();
      const Westring offered = DefaultDestination();
      question.destination = offered;
      question.otherDirectory = DirectoryOf(other);
      question.flips = !takesTags;
      question.asksOverwrite = takesTags || IsDirectoryHere(question.destination);
      if (!CCopyDlg(question).Ask()) return false;
      destination.isLiteral = wcscmp(question.destination.Text(), offered.Text()) == 0;
    }
    operation.overwriteMode = question.overwriteMode;
    return ResolveDestination(question.destination, source.path, destination) &&
           (!takesTags || HasRoomForMany(destination));
  }

  bool IsDirectoryHere(const Westring& path) const {
    Westring absolute;
    return NormalisePath(path, source.path, absolute) && DirectoryExists(absolute);
  }

  // Renaming takes no time for bytes; all else has their number to go by. False
  // where the user stops the count.
  bool FindTotal() {
    const Westring target =
        takesTags ? DirectoryForMany(destination) : ParentPath(TargetOfOne(destination, sourcePath).Text());
    onlyRenames = isMove && AreOnOneDevice(directory, target);
    const bool isCounted = takesTags || (source.taggedCount == 0 && !source.IsTree());
    if (!onlyRenames && isCounted && CalculateDirSizes(source, true) == 0) return false;
    total = static_cast<int64_t>(takesTags ? source.taggedBytes : static_cast<uint64_t>(current.size));
    return isCounted || onlyRenames || CountOne();
  }

  // An entry beside tagged ones, or of a tree, whose rows hold no sizes.
  bool CountOne() {
    if (!current.IsRealDirectory()) return true;
    DirectoryCount count;
    const uint64_t bytes = CountDirectory(sourcePath, count);
    total = static_cast<int64_t>(bytes);
    return bytes != kCountStopped;
  }

  // The windows are gone, and the description file is closed, when it returns.
  void Transfer() {
    BreakScope cancel;
    CopyProgress progress(isMove);
    progress.state.total = total;
    progress.state.startTime = NowSeconds();
    progress.countsItems = onlyRenames;
    operation.progress = &progress;
    operation.caseFilterOn = HasCaseFilter(source);
    Descriptions descriptions;
    descriptions.Open(directory, isMove, false);
    sources = &descriptions;
    if (takesTags)
      TransferTagged(cancel);
    else
      TransferNamed(CurrentName(), sourcePath, TargetOfOne(destination, sourcePath), 1, 1,
                    current.IsRealDirectory());
    if (movedDirectory && TheTreeHooks.save) TheTreeHooks.save();
    sources = nullptr;
    operation.progress = nullptr;
  }

  void TransferTagged(BreakScope& cancel) {
    for (int i = 0; i < source.count; ++i) source.entries[i]->processed = 0;
    const int count = source.taggedCount;
    for (int i = 0, index = 0; i < source.count && index < count; ++i) {
      entry& e = *source.entries[i];
      if (!e.tagged) continue;
      const Westring path = JoinPath(source.path, e.name);
      const Westring target = TargetOfTagged(destination, path);
      const int code = TransferNamed(e.name, path, target, ++index, count, e.IsRealDirectory());
      if (code == 0) MarkDone(e);
      if (code < 0 || cancel.Stopped()) return;
    }
  }

  // As MoveItem and CopyItem. A name that no path can be told for stays where it is.
  int TransferNamed(const Westring& name, const Westring& path, const Westring& target, int index, int count,
                    bool isDirectory) {
    while (unspellable.Has(name.Text())) {
      int code = EILSEQ;
      if (!WantsRetry(operation, code, path)) return code < 0 ? kStopCommand : kSkipped;
      unspellable.Forget();
    }
    return TransferOne(path, target, index, count, isDirectory);
  }

  int TransferOne(const Westring& path, const Westring& target, int index, int count, bool isDirectory) {
    if (!isMove) return CopyItem(operation, path, target, index, count, sources);
    const int code = MoveItem(operation, path, target, index, count, sources);
    if (code != 0 && code != kMovedThenStop) return code;
    if (isDirectory) {
      movedDirectory = true;
      if (TheTreeHooks.moved) TheTreeHooks.moved(path, target);
    }
    const bool isRenamed = wcscmp(directory.Text(), ParentPath(target.Text()).Text()) == 0;
    if (!takesTags && isRenamed) newName = LastComponent(target.Text());
    return code;
  }

  // Without painting: the window of the progress stands on the list.
  void MarkDone(entry& e) {
    e.tagged = 0;
    e.processed = 1;
    --source.taggedCount;
    source.taggedBytes -= static_cast<uint64_t>(e.size);
  }

  TPanel& source;
  TPanel& other;
  const bool isMove, isHere;
  const bool takesTags;       // all tagged entries, otherwise the current one
  const entry& current;       // stays in place while the list is sorted
  const Westring sourcePath;  // of the current entry
  const Westring directory;   // of all that is copied
  UnspellableNames unspellable{directory};
  CopyDestination destination;
  FileOperation operation;
  bool onlyRenames = false;
  int64_t total = 0;
  Descriptions* sources = nullptr;
  bool movedDirectory = false;
  Westring newName;  // what was renamed; empty for anything else
};

}  // namespace

void CopyOrMove(TPanel& source, TPanel& other, int flags, const Westring* target) {
  if (source.Current()) CopyCommand(source, other, flags).Run(target);
}
