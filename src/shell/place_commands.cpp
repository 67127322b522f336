// Commands that open the dialogs of mounts and stored directories.
#include "panels/mount_dialog.h"
#include "panels/navigation.h"
#include "panels/stored_paths.h"
#include "shell/dialog_commands.h"

int RunMounts(Shell&, int side, bool filterless) {
  MountDialog(Panels[side], filterless);
  return kRedrawAll;
}

int RunStoredPaths(Shell&) {
  TPanel& panel = ActivePanel();
  if (StoredPaths(panel)) {
    panel.topIndex = panel.cursorRow = 0;
    Enter(panel.Side(), L"", false, -1, 0);
  }
  return kRedrawAll;
}
