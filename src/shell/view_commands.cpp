// F3 and its like: the viewer that the settings name for a file, or our own.
#include "shell/view_commands.h"

#include "config/values/associations.h"
#include "config/values/colours.h"
#include "config/values/options.h"
#include "dialogs/dialog.h"
#include "dialogs/dialog_history.h"
#include "foundation/paths.h"
#include "panels/expression.h"
#include "panels/navigation.h"
#include "shell/clock.h"
#include "shell/macros.h"
#include "shell/run_command.h"
#include "shell/select_commands.h"
#include "viewer/view_files.h"

namespace {

constexpr int kTop = 6, kWidth = 74, kHeight = 9;
constexpr int kColumn = 1, kLabelRow = 1, kFieldRow = 3, kButtonRow = 5;
constexpr int kFieldWidth = 70, kLongestName = 512;

bool AskForFile(Westring& name) {
  Dialog dialog(-1, kTop, kWidth, kTop + kHeight - 1, Options::Colours[kColourMessages]);
  dialog.PrintBytes(kColumn, kLabelRow, "View the file:");
  dialog.AddStringField(kColumn, kFieldRow, true, &name, kFieldWidth, kLongestName, kNoHistory);
  dialog.AddOkCancel(-1, kButtonRow, true);
  return dialog.Run() == static_cast<int>(kEnter);
}

// The clock would go on over the text.
void ViewInternally(TPanel& panel) {
  RemoveClock();
  View(panel);
}

void RunOn(const Westring& command, const Westring& file) {
  Westring text = command;
  const int side = static_cast<int>(ActiveSide);
  if (ExpandMacros(text, file.Text(), side, kMacroTemplate) >= 0) RunCommand(text, side, L"", kRunPlain);
}

// A command is given a member of an archive as a file of its own.
void ViewInArchive(TPanel& panel, const Westring& command) {
  Westring file;
  if (ExtractForView && ExtractForView(panel, *panel.Current(), file) && !file.IsEmpty())
    RunOn(command, file);
}

int ViewWith(Shell& shell, const Westring& command) {
  TPanel& panel = ActivePanel();
  const Westring name(shell.currentEntry->name);
  SetAppTitle(name.Text());
  if (command.IsEmpty())
    ViewInternally(panel);
  else if (panel.archive)
    ViewInArchive(panel, command);
  else
    RunExpanded(command, static_cast<int>(ActiveSide), L"", kMacroTemplate);
  return kRedrawAll;
}

}  // namespace

int ViewEntry(Shell& shell) {
  if (!shell.currentEntry) return kRedrawNothing;
  if (shell.currentEntry->IsDirectory()) return CountSizes(shell);
  Westring command;
  if (!TestRuleList(ViewerAssociations, shell.currentEntry->name, command)) command = Options::Viewer;
  return ViewWith(shell, command);
}

int ViewEntryElsewhere(Shell& shell) {
  if (!shell.currentEntry) return kRedrawNothing;
  if (shell.currentEntry->IsDirectory()) return CountSizes(shell);
  return ViewWith(shell, Options::Viewer2);
}

int ViewNamed(Shell& shell) {
  Westring name(shell.currentEntry ? shell.currentEntry->name : L"");
  if (!AskForFile(name)) return kRedrawAll;
  Westring path;
  if (!NormalisePath(name, ActivePanel().path, path, kLongestPath)) return kRedrawAll;
  if (!Options::Viewer.IsEmpty())
    RunOn(Options::Viewer, path);
  else
    ViewPath(path);
  return kRedrawAll;
}

void ViewPath(const Westring& path) {
  RemoveClock();
  ViewFile(path, -1);
}
