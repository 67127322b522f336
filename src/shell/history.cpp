// The command history and stepping through it on the command line.
#include "shell/history.h"

#include "dialogs/dialog_history.h"
#include "foundation/fold.h"
#include "shell/command_line.h"
#include "shell/history_file.h"

WestringStore CommandHistory;

void AddCommand(const Westring& text, bool quiet, bool isNew) {
  const Westring command = LTrim(text);
  if (command.IsEmpty()) return;
  if (isNew)
    CommandHistory.Add(command);
  else
    AddToHistory(CommandHistory, command);
  if (!quiet) AppendCommandToFile(command);
}

namespace {

void KeepEditedLine(Shell& shell) {
  if (shell.historyIndex == 0) shell.savedLine = shell.commandLine;
}

// One step through the ring of the line being edited (0) and all commands.
void Step(Shell& shell, int step) {
  const int count = CommandHistory.Count();
  shell.historyIndex += step;
  if (shell.historyIndex > count) shell.historyIndex = 0;
  if (shell.historyIndex < 0) shell.historyIndex = count;
}

const Westring& SteppedLine(const Shell& shell) {
  if (shell.historyIndex == 0) return shell.savedLine;
  return *CommandHistory.Peek(CommandHistory.Count() - shell.historyIndex);
}

int StepAndShow(Shell& shell, int step) {
  if (CommandHistory.Count() == 0) return kRedrawNothing;
  KeepEditedLine(shell);
  Step(shell, step);
  SetCommandLine(shell, SteppedLine(shell));
  return kRedrawLine;
}

}  // namespace

int PreviousCommand(Shell& shell) { return StepAndShow(shell, 1); }
int NextCommand(Shell& shell) { return StepAndShow(shell, -1); }

bool SearchByPrefix(Shell& shell, bool older) {
  const int length = shell.commandCursor;
  const Westring prefix = Left(shell.commandLine, length);
  shell.commandLine = prefix;
  KeepEditedLine(shell);
  const int count = CommandHistory.Count();
  for (int steps = 0; steps <= count; ++steps) {
    Step(shell, older ? 1 : -1);
    if (shell.historyIndex == 0) continue;
    const Westring& candidate = SteppedLine(shell);
    if (Length(candidate) >= length && CompareNoCaseN(candidate.Text(), prefix.Text(), length) == 0) {
      shell.commandLine = candidate;
      return true;
    }
  }
  return false;
}
