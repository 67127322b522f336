// Taking the active panel to another directory, and its names to the command
// line.
#include <cwchar>
#include <cwctype>

#include "config/values/options.h"
#include "console/console.h"
#include "dialogs/prompt.h"
#include "foundation/environment.h"
#include "foundation/paths.h"
#include "panels/draw_panel.h"
#include "panels/navigation.h"
#include "panels/panel_path.h"
#include "panels/read_panel.h"
#include "panels/tree_row.h"
#include "shell/command_line.h"
#include "shell/history.h"
#include "shell/panel_commands.h"

namespace {

// Reads the panel's new path with the cursor at its top.
void EnterAtTop(int side) {
  Panels[side].topIndex = Panels[side].cursorRow = 0;
  Enter(side, L"", false, -1, 0);
}

void LeaveArchives(TPanel& panel, int side) {
  const ArchiveLevel* outermost = panel.archive.get();
  while (outermost->parent) outermost = outermost->parent.get();
  const Westring file = outermost->Path();
  CopyText(panel.path, ParentPath(file.Text()).Text());
  panel.archive.reset();
  EnterAtTop(side);
  PositionOn(panel, LastComponent(file.Text()));
}

int ActiveSideNumber() { return static_cast<int>(ActiveSide); }

}  // namespace

int GoToRoot(Shell&) {
  TPanel& panel = ActivePanel();
  if (panel.archive) {
    LeaveArchives(panel, ActiveSideNumber());
  } else if (wcscmp(panel.path, L"/") != 0) {
    CopyText(panel.path, L"/");
    EnterAtTop(ActiveSideNumber());
  }
  return kRedrawAll;
}

int GoToParent(Shell&) {
  Enter(ActiveSideNumber(), L"..", false, -1, 0);
  return kRedrawAll;
}

int GoToHome(Shell&) {
  const char* home = Variables.Get("HOME");
  if (!home || !*home) return kRedrawNothing;
  if (!ChangeDirectory(ActivePanel(), Westring(home))) {
    Prompt(L"Invalid Directory", Westring(home), kPromptOk);
    return kRedrawNothing;
  }
  EnterAtTop(ActiveSideNumber());
  return kRedrawAll;
}

int GoToOtherPath(Shell&) {
  if (ChangeDirectory(ActivePanel(), OtherPanel().path)) Enter(ActiveSideNumber(), L"", false, -1, 0);
  return kRedrawAll;
}

int GoToPrevious(Shell&) {
  TPanel& panel = ActivePanel();
  if (!*panel.previousPath) return kRedrawNothing;
  const Westring target(panel.previousPath);
  const int top = panel.previousTop, cursor = panel.previousCursor;
  if (!ChangeDirectory(panel, target)) {
    Prompt(L"Invalid Directory", target, kPromptOk);
    return kRedrawNothing;
  }
  panel.topIndex = panel.cursorRow = 0;
  const Westring* newest = DirectoryHistory.Last();
  if (newest && wcscmp(newest->Text(), target.Text()) == 0) DirectoryHistory.Remove();
  Enter(ActiveSideNumber(), L"", false, top, cursor);
  return kRedrawAll;
}

int GoToLinkTarget(Shell& shell) {
  const entry* e = shell.currentEntry;
  if (!e || !e->IsLink()) return kRedrawNothing;
  TPanel& panel = ActivePanel();
  const Westring link = panel.linkTargets.Target(JoinPath(panel.path, e->name));
  Westring target;
  if (!NormalisePath(link, panel.path, target)) return kRedrawNothing;
  const bool isDirectory = e->IsDirectory();
  const Westring directory = isDirectory ? target : ParentPath(target.Text());
  if (!ChangeDirectory(panel, directory)) {
    Prompt(L"Invalid Directory", directory, kPromptOk);
    return kRedrawNothing;
  }
  EnterAtTop(ActiveSideNumber());
  if (!isDirectory) PositionOn(panel, LastComponent(target.Text()));
  return kRedrawAll;
}

void OpenAsArchive(int side, const Westring& name) {
  if (!OpenArchive) return;
  TPanel& panel = Panels[side];
  std::unique_ptr<ArchiveLevel> level = OpenArchive(JoinPath(panel.path, name), panel.archive.get());
  if (!level) return;
  level->parent = std::move(panel.archive);
  panel.archive = std::move(level);
  Enter(side, name.Text(), false, -1, 0);
}

int OpenEntryAsArchive(Shell& shell) {
  if (!shell.currentEntry || !ActivePanel().IsVisibleFiles()) return kRedrawNothing;
  const Westring name(shell.currentEntry->name);  // the entry goes with the read
  if (shell.currentEntry->IsDirectory())
    Enter(ActiveSideNumber(), name.Text(), false, -1, 0);
  else
    OpenAsArchive(ActiveSideNumber(), name);
  return kRedrawAll;
}

int ReReadSide(int side) {
  if (!Panels[side].visible) return kRedrawNothing;
  if (Panels[side].IsTree()) Panels[side].treeRebuild = true;
  Enter(side, L"", true, -1, 0);
  FollowPath(ActivePanel());  // the process stands in the panel read last
  return kRedrawAll;
}

int ReRead(Shell&) { return ReReadSide(ActiveSideNumber()); }

int ToggleHidden(Shell& shell) {
  Options::Hidden = !Options::Hidden;
  for (int side = 0; side < 2; ++side) {
    if (Panels[side].visible)
      Enter(side, L"", true, -1, 0);
    else
      Panels[side].readPending = true;  // its listing was made under the old choice
  }
  FollowPath(ActivePanel());  // the process stands in the panel read last
  shell.cursorDirty = true;
  return kRedrawNothing;
}

namespace {

int StoredPathSide() { return ActivePanel().IsTree() ? ActiveSideNumber() ^ 1 : ActiveSideNumber(); }

}  // namespace

int GoToStored(Shell&, int digit) {
  if (StoredDirectories[digit].IsEmpty()) return kRedrawNothing;
  const int side = StoredPathSide();
  TPanel& panel = Panels[side];
  const Westring target = ExpandEnvironment(StoredDirectories[digit]);
  if (!ChangeDirectory(panel, target)) {
    Prompt(L"Invalid Directory", target, kPromptOk);
    return kRedrawAll;
  }
  panel.panelType = kPanelFiles;
  EnterAtTop(side);
  FollowPath(ActivePanel());
  return kRedrawAll;
}

int StorePath(Shell&, int digit) {
  const TPanel& panel = ActivePanel();
  const Westring path = panel.IsTree() ? TreeRowPath(panel, panel.CurrentIndex()) : panel.path;
  if (!path.IsEmpty()) StoredDirectories[digit] = path;
  return kRedrawNothing;
}

int InsertLeftPath(Shell& shell) {
  return InsertAtCursor(shell, AddTrailingSlash(Panels[0].path)) ? kRedrawLine : kRedrawNothing;
}

int InsertRightPath(Shell& shell) {
  return InsertAtCursor(shell, AddTrailingSlash(Panels[1].path)) ? kRedrawLine : kRedrawNothing;
}

int InsertName(Shell& shell) {
  if (!shell.currentEntry || !ActivePanel().IsFiles()) return kRedrawNothing;
  return InsertAtCursor(shell, shell.currentEntry->name) ? kRedrawLine : kRedrawNothing;
}

int InsertFullPath(Shell& shell) {
  if (!shell.currentEntry || !ActivePanel().IsFiles()) return kRedrawNothing;
  const TPanel& panel = ActivePanel();
  const Westring path = panel.IsTree() ? TreeRowPath(panel, shell.currentIndex)
                                       : JoinPath(panel.path, shell.currentEntry->name);
  if (shell.key == kCtrlShiftF) {
    Console->SetClipboardText(path);
    return kRedrawNothing;
  }
  return InsertAtCursor(shell, path) ? kRedrawLine : kRedrawNothing;
}

namespace {

bool StandsBehindWord(const Shell& shell) {
  if (shell.commandCursor == 0) return false;
  const wchar_t before = shell.commandLine[shell.commandCursor - 1];
  return before > 0 && iswalnum(static_cast<wint_t>(before));
}

}  // namespace

// A search cuts the line at the cursor, also where it finds nothing.
int CompleteOrInsert(Shell& shell) {
  const bool backward = shell.key == kCtrlShiftEnter;
  if (StandsBehindWord(shell) && SearchByPrefix(shell, !backward)) return kRedrawLine;
  if (!backward)
    InsertName(shell);
  else if (shell.currentEntry && ActivePanel().IsFiles())
    Console->SetClipboardText(shell.currentEntry->name);
  return kRedrawLine;
}
