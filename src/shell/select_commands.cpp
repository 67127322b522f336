// Tagging by expression, all at once, and once more; in a tree the same keys open
// and close its directories. And the sizes of directories.
#include "shell/select_commands.h"

#include "panels/directory_sizes.h"
#include "panels/read_panel.h"
#include "panels/select_group.h"
#include "panels/tags.h"

namespace {

bool HasShift(const Shell& shell) { return shell.modifiers & kModShift; }

int Select(Shell& shell, int mode) {
  SelectGroup(ActivePanel(), mode, HasShift(shell));
  return kRedrawNothing;
}

int SelectOrOpen(Shell& shell, int mode) {
  TPanel& panel = ActivePanel();
  if (!panel.IsTree()) return Select(shell, mode);
  if (!shell.currentEntry || !ThePanelHooks.openNode) return kRedrawNothing;
  ThePanelHooks.openNode(panel, shell.currentIndex, mode > 0);
  panel.readPending = true;
  return kRedrawNothing;
}

int TagAllOrOpen(Shell& shell, int mode) {
  TPanel& panel = ActivePanel();
  if (!panel.IsTree()) {
    TagAll(panel, mode, HasShift(shell));
    return kRedrawNothing;
  }
  if (!shell.currentEntry || !ThePanelHooks.openBranch) return kRedrawNothing;
  ThePanelHooks.openBranch(panel, shell.currentIndex, mode > 0);
  ReadBothPanels();
  return kRedrawNothing;
}

}  // namespace

int RunSelect(Shell& shell) { return SelectOrOpen(shell, 1); }
int RunUnselect(Shell& shell) { return SelectOrOpen(shell, -1); }
int RunSelectAnywhere(Shell& shell) { return Select(shell, 1); }
int RunUnselectAnywhere(Shell& shell) { return Select(shell, -1); }

int InvertTags(Shell& shell) {
  TagAll(ActivePanel(), 0, HasShift(shell));
  return kRedrawNothing;
}

int TagAllEntries(Shell& shell) { return TagAllOrOpen(shell, 1); }
int ClearAllTags(Shell& shell) { return TagAllOrOpen(shell, -1); }

int RestoreTags(Shell&) {
  RestoreSelection(ActivePanel());
  return kRedrawNothing;
}

int CountSizes(Shell&) {
  CalculateDirSizes(ActivePanel(), false);
  return kRedrawNothing;
}
