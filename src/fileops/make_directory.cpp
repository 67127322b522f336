// F7: making a directory; see make_directory.h.
#include "fileops/make_directory.h"

#include <sys/stat.h>

#include <cerrno>
#include <cwchar>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "dialogs/dialog.h"
#include "dialogs/dialog_history.h"
#include "dialogs/prompt.h"
#include "fileops/delete_file.h"
#include "fileops/file_error.h"
#include "foundation/environment.h"
#include "foundation/paths.h"
#include "panels/draw_panel.h"
#include "panels/panel_path.h"
#include "panels/read_panel.h"
#include "panels/tree_row.h"

namespace {

constexpr int kWidth = 76, kHeight = 6;
constexpr int kColumn = 1, kTitleRow = 0, kFieldRow = 1;
constexpr int kFieldWidth = 72, kLongestName = 512;

bool AskForName(Westring& name) {
  Dialog dialog(-1, -3, kWidth, kHeight, Options::Colours[kColourMessages]);
  dialog.PrintBytes(kColumn, kTitleRow, "Create the directory");
  dialog.AddStringField(kColumn, kFieldRow, true, &name, kFieldWidth, kLongestName, kNoHistory);
  dialog.AddOkCancel(-1, -1, true);
  return dialog.Run() == static_cast<int>(kEnter) && !name.IsEmpty();
}

// The directories on the way are there already, and called what they are.
Westring UpperName(const Westring& path) {
  const auto length = static_cast<int>(LastComponent(path.Text()) - path.Text());
  return Left(path, length) + Fold(Westring(path.Text() + length));
}

// 0 or errno; what stands in the way is EEXIST, whichever the system says.
int Make(const Westring& path, bool& isDirectory) {
  const Estring name = ToUtf8(path);
  if (mkdir(name.Text(), 0777) == 0) return 0;
  const int code = errno;
  struct stat status;
  if ((code != EACCES && code != EEXIST) || lstat(name.Text(), &status) != 0) return code;
  isDirectory = stat(name.Text(), &status) == 0 && S_ISDIR(status.st_mode);
  return EEXIST;
}

void TellTree(const Westring& path) {
  if (TheTreeHooks.made) TheTreeHooks.made(path);
  if (TheTreeHooks.save) TheTreeHooks.save();
}

void MakeOrTell(const Westring& path) {
  FileOperation operation;
  for (;;) {
    bool isDirectory = false;
    int code = Make(path, isDirectory);
    if (code == 0) return TellTree(path);
    if (code == EEXIST) {
      operation.Ask(isDirectory ? L"Directory already exists" : L"File already exists named", path,
                    kPromptOk);
      return;
    }
    if (!WantsRetry(operation, code, path)) return;
  }
}

// Only in the directory that the panel shows is the name the new one's.
void GoToName(TPanel& panel, const Westring& path) {
  if (!panel.IsTree() && wcscmp(ParentPath(path.Text()).Text(), panel.path) != 0) return;
  PositionOn(panel, LastComponent(path.Text()));
  if (panel.visible) DrawPanel(panel);
}

}  // namespace

void MakeDirectory(int side) {
  TPanel& panel = Panels[Panels[side].IsFiles() ? side : side ^ 1];
  if (panel.archive) return;
  Westring name;
  if (!AskForName(name)) return;

  name = ExpandEnvironment(name);
  if (name.IsEmpty()) return;
  const Westring base = panel.IsTree() ? TreeRowPath(panel, panel.CurrentIndex()) : Westring(panel.path);
  Westring path;
  if (!NormalisePath(name, base, path)) {
    FileOperation operation;
    int code = ENAMETOOLONG;
    WantsRetry(operation, code, name);
    return;
  }
  if (HasCaseFilter(panel)) path = UpperName(path);
  MakeOrTell(path);
  ReadBothPanels();
  GoToName(panel, path);
}
