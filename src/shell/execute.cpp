// Enter: the line is run; without one, the entry decides what happens.
#include "shell/execute.h"

#include "config/values/associations.h"
#include "config/values/options.h"
#include "console/console.h"
#include "foundation/paths.h"
#include "panels/expression.h"
#include "panels/navigation.h"
#include "panels/tree_row.h"
#include "shell/command_line.h"
#include "shell/history.h"
#include "shell/macros.h"
#include "shell/panel_commands.h"
#include "shell/run_command.h"
#include "shell/spawn.h"

namespace {

constexpr uint16_t kExecuteBits = 0111;

int RunText(int side, const Westring& text, bool separate) {
  Westring line = TrimCommand(text);
  if (line.IsEmpty()) return kRedrawAll;
  if (separate) line = ApplyBackgroundTemplate(line);
  AddCommand(text);
  RunExpanded(line, side, PromptOf(Panels[side]) + line, kMacroPlain);
  Console->WriteText("\n");
  return kRedrawAll;
}

// A tree leads the panel beside it.
void EnterTreeRow(int side) {
  const TPanel& tree = Panels[side];
  TPanel& beside = Panels[side ^ 1];
  CopyText(beside.path, TreeRowPath(tree, tree.CurrentIndex()).Text());
  beside.topIndex = beside.cursorRow = 0;
  Enter(side ^ 1, L"", false, -1, 0);
}

bool IsProgram(const entry& file) { return file.mode & kExecuteBits && !(file.attributes & kAttrDangling); }

// In front of a command that the user did not type.
Westring FilePrompt(const TPanel& panel) {
  if (!Options::PathPrompt) return Left(Westring(panel.path), 1) + L":>";
  return ShortenPath(panel.path, ScreenColumns / 2 - 1) + L">";
}

void RunFileCommand(int side, const Westring& found, bool separate) {
  const Westring command = separate ? ApplyBackgroundTemplate(found) : found;
  const Westring prompt = FilePrompt(Panels[side]) + WithoutMacros(command);
  AddCommand(command);
  RunCommand(command, side, prompt, kRunTwoFeeds);
}

int ActOnEntry(int side, bool separate) {
  const TPanel& panel = Panels[side];
  const entry* const current = panel.IsVisibleFiles() ? panel.Current() : nullptr;
  if (!current) return kRedrawNothing;
  const Westring name(current->name);  // the entry goes with the read
  if (current->IsDirectory()) {
    if (panel.IsTree())
      EnterTreeRow(side);
    else
      Enter(side, name.Text(), false, -1, 0);
    return kRedrawLine;
  }
  Westring command;
  if (FindFileCommand(side, *current, command))
    RunFileCommand(side, command, separate);
  else
    OpenAsArchive(side, name);
  return kRedrawAll;
}

}  // namespace

bool FindFileCommand(int side, const entry& file, Westring& command) {
  Westring name(file.name);
  Westring text;  // without macros: stands for the name alone
  if (!TestRuleList(Associations, file, text)) {
    if (!IsProgram(file)) return false;
    name = JoinPath(Panels[side].path, name);
  }
  if (ExpandMacros(text, name.Text(), side, kMacroTemplate) < 0) return false;
  command = text;
  return true;
}

int ExecuteCommandLine(int side, const Westring& text, bool separate) {
  return text.IsEmpty() ? ActOnEntry(side, separate) : RunText(CommandSide(side), text, separate);
}
