// Commands that lead to the desktop around the program.
#include "panels/make_objects.h"
#include "panels/tree_row.h"
#include "shell/dialog_commands.h"
#include "shell/gui_window.h"

int RunMakeObjects(Shell&) {
  MakeObjects(ActivePanel());
  return kRedrawNothing;
}

int RunGuiWindow(Shell&) {
  const TPanel& panel = ActivePanel();
  OpenGuiWindow(panel.IsTree() ? TreeRowPath(panel, panel.CurrentIndex()) : Westring(panel.path));
  return kRedrawAll;
}

int RunManual(Shell&) { return OpenManual() ? kRedrawAll : kRedrawNothing; }
