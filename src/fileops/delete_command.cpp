// F8 and Shift-F8; see delete_command.h.
#include "fileops/delete_command.h"

#include <cerrno>
#include <cwchar>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "console/input.h"
#include "dialogs/file_question.h"
#include "fileops/delete_dialog.h"
#include "fileops/delete_file.h"
#include "fileops/file_error.h"
#include "fileops/shown_path.h"
#include "fileops/unspellable_names.h"
#include "foundation/environment.h"
#include "panels/panel_path.h"
#include "panels/read_panel.h"
#include "panels/tree_row.h"

void (*DeleteInArchive)(FileOperation& operation, TPanel& panel);

namespace {

// Bits of Options::Confirmations; one that is set spares the user the question.
constexpr int kConfirmOff = 1, kConfirmTaggedOff = 2;

// ---- the questions before ----------------------------------------------------

// Deleted files of some places are kept for a while, and the user may not want
// that. The variable names those places.
bool IsKeptAfterDeletion(const TPanel& panel) {
  const char* const places = panel.archive ? nullptr : Variables.Get("DELDIR");
  return places && Find(Westring(places), Left(Westring(panel.path), 3).Text()) >= 0;
}

bool Confirm(FileOperation& operation, const Westring& first, const Westring& second,
             const DeleteRows& rows) {
  if (Options::Confirmations & kConfirmOff) return true;
  CDeleteDlg dialog(first, second, rows, Options::Colours[kColourMessages]);
  if (!dialog.Ask()) return false;
  operation.noUndelete = dialog.noUndelete;
  operation.readOnlyMode = dialog.readOnlyChoice;
  return true;
}

bool ConfirmOne(FileOperation& operation, const TPanel& panel, const Westring& subject, const entry& e) {
  return Confirm(operation, L"Do you wish to delete", ShownPath(subject),
                 {e.IsDirectory(), IsKeptAfterDeletion(panel)});
}

bool ConfirmTagged(FileOperation& operation, const TPanel& panel) {
  const char* const plural = panel.taggedCount > 1 ? "s" : "";
  const Estring selected = Estring::Format("You have selected %d file%s", panel.taggedCount, plural);
  if (!Confirm(operation, Westring(selected), L"Delete?", {true, IsKeptAfterDeletion(panel)})) return false;
  if (Options::Confirmations & kConfirmTaggedOff) return true;
  const Estring deleting = Estring::Format("You are deleting %d selected files from", panel.taggedCount);
  CDeleteDlg dialog(Westring(deleting), ShownPath(panel.path), {}, Options::Colours[kColourErrors]);
  return dialog.Ask();
}

bool ConfirmSelection(FileOperation& operation, const TPanel& panel) {
  if (panel.taggedCount > 0) return ConfirmTagged(operation, panel);
  const entry* const current = panel.Current();
  if (!current || IsDotDot(*current)) return false;
  const Westring subject =
      panel.IsTree() ? TreeRowPath(panel, panel.CurrentIndex()) : Westring(current->name);
  return ConfirmOne(operation, panel, subject, *current);
}

// ---- the deletion ------------------------------------------------------------

// 1 or 0 where the command goes on, -1 where it stops.
int DeleteObject(FileOperation& operation, const Westring& directory, const Westring& name, bool isDirectory,
                 int mode, UnspellableNames& unspellable) {
  const Westring path = JoinPath(directory, name);
  while (unspellable.Has(name.Text())) {
    int code = EILSEQ;
    if (!WantsRetry(operation, code, path)) return code < 0 ? kStopCommand : 0;
    unspellable.Forget();
  }
  return isDirectory ? DeleteDirectory(operation, path) : DeleteFile(operation, path, mode);
}

void SaveTree() {
  if (TheTreeHooks.save) TheTreeHooks.save();
}

// The panel is read again soon: its rows are not painted now.
void NoteProcessed(TPanel& panel, entry& e) {
  e.processed = 1;
  e.tagged = 0;
  --panel.taggedCount;
  panel.taggedBytes -= static_cast<uint64_t>(e.size);
}

// One that could not be deleted loses its tag as well; Restore Selection brings
// it back.
void DeleteTagged(FileOperation& operation, TPanel& panel) {
  BreakScope stop;
  UnspellableNames unspellable(panel.path);
  bool treeChanged = false;
  for (int i = 0; i < panel.count; ++i) panel.entries[i]->processed = 0;
  for (int i = 0; i < panel.count; ++i) {
    entry& e = *panel.entries[i];
    if (!e.tagged) continue;
    if (stop.Stopped()) break;
    const bool isDirectory = e.IsRealDirectory();
    treeChanged = treeChanged || isDirectory;
    if (DeleteObject(operation, panel.path, e.name, isDirectory, kDeleteBatch, unspellable) < 0) break;
    NoteProcessed(panel, e);
  }
  DeleteFile(operation, Westring(), kDeleteClose);
  if (treeChanged) SaveTree();
}

void DeleteOne(FileOperation& operation, const Westring& directory, const Westring& name, bool isDirectory) {
  UnspellableNames unspellable(directory);
  DeleteObject(operation, directory, name, isDirectory, kDeleteOne, unspellable);
  if (isDirectory) SaveTree();
}

void DeletePath(FileOperation& operation, const Westring& path, bool isDirectory) {
  if (IsRootPath(path.Text())) return;
  DeleteOne(operation, ParentPath(path.Text()), LastComponent(path.Text()), isDirectory);
}

void DeleteCurrent(FileOperation& operation, const TPanel& panel) {
  const entry* const current = panel.Current();
  if (!current || IsDotDot(*current)) return;
  const bool isDirectory = current->IsRealDirectory();
  if (panel.IsTree())
    DeletePath(operation, TreeRowPath(panel, panel.CurrentIndex()), isDirectory);
  else
    DeleteOne(operation, panel.path, current->name, isDirectory);
}

// ---- the file that the user names --------------------------------------------

// A panel of information has no names of its own, and the other one's directory.
Westring OfferedName(const TPanel& panel) {
  const entry* const current = panel.Current();
  if (!panel.IsFiles() || !current || IsDotDot(*current)) return Westring();
  return panel.IsTree() ? TreeRowPath(panel, panel.CurrentIndex()) : Westring(current->name);
}

// False, with the user told, for what is not there.
bool Look(FileOperation& operation, const Westring& path, entry*& found) {
  for (;;) {
    int code = StatEntry(ParentPath(path.Text()), LastComponent(path.Text()), found);
    if (code == 0) return true;
    if (!WantsRetry(operation, code, path)) return false;
  }
}

void DeleteNamed(FileOperation& operation, const TPanel& panel, const Westring& path) {
  entry* found = nullptr;
  if (!Look(operation, path, found)) return;
  const OwnedEntry object(found);
  if (ConfirmOne(operation, panel, path, *object)) DeletePath(operation, path, object->IsRealDirectory());
}

}  // namespace

void DeleteCommand(TPanel& panel) {
  if (panel.count == 0 || (panel.archive && !DeleteInArchive)) return;
  {
    FileOperation operation;
    BreakScope armed;
    if (!ConfirmSelection(operation, panel)) return;
    DeleteSelection(operation, panel);
  }
  ReadBothPanels();
}

void DeleteSelection(FileOperation& operation, TPanel& panel) {
  if (panel.archive) {
    if (DeleteInArchive) DeleteInArchive(operation, panel);
  } else if (panel.taggedCount > 0) {
    DeleteTagged(operation, panel);
  } else {
    DeleteCurrent(operation, panel);
  }
}

void DeleteNamedFile(TPanel& panel) {
  const TPanel& base = panel.IsFiles() ? panel : Panels[panel.Side() ^ 1];
  if (base.archive) return;
  Westring name = OfferedName(panel);
  if (!AskForFile("Delete the file:", name) || name.IsEmpty()) return;
  {
    FileOperation operation;
    BreakScope armed;
    Westring path;
    if (!NormalisePath(name, base.path, path)) {
      int code = ENAMETOOLONG;
      WantsRetry(operation, code, name);
      return;
    }
    // A panel is not deleted from under its user, as F8 does nothing on the way up.
    if (IsPathInside(base.path, path.Text())) return;
    DeleteNamed(operation, base, path);
  }
  ReadBothPanels();
}
