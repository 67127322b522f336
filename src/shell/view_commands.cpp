// F3 and its like: the viewer that the settings name for a file, or our own.
#include "shell/view_commands.h"

#include "config/values/associations.h"
#include "config/values/options.h"
#include "dialogs/file_question.h"
#include "foundation/paths.h"
#include "panels/expression.h"
#include "panels/navigation.h"
#include "shell/clock.h"
#include "shell/macros.h"
#include "shell/run_command.h"
#include "shell/select_commands.h"
#include "viewer/view_files.h"

namespace {

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
  if (!AskForFile("View the file:", name)) return kRedrawAll;
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
