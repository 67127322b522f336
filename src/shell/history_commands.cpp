// Commands that open the lists of earlier commands and directories.
#include "dialogs/prompt.h"
#include "panels/navigation.h"
#include "shell/dialog_commands.h"
#include "shell/history_dialogs.h"

// Stepping through the commands begins anew where the list or the line changed.
int RunHistory(Shell& shell) {
  const int redraw = HistoryDialog(static_cast<int>(ActiveSide), shell.commandLine, shell.commandCursor);
  if (redraw != kRedrawNothing) shell.historyIndex = 0;
  return redraw;
}

int RunDirectoryHistory(Shell&) {
  Westring path;
  DirectoryHistoryDialog(path);
  if (path.IsEmpty()) return kRedrawNothing;
  TPanel& panel = ActivePanel();
  if (!ChangeDirectory(panel, path)) {
    Prompt(L"Invalid Directory", path, kPromptOk);
    return kRedrawNothing;
  }
  Enter(panel.Side(), L"", false, -1, 0);
  return kRedrawAll;
}
