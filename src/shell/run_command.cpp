// What happens to a command: cd, vcd and set act on the program itself; for
// anything else the panels leave the screen to its output.
#include "shell/run_command.h"

#include <unistd.h>

#include <cerrno>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "console/console.h"
#include "foundation/environment.h"
#include "foundation/wildcards.h"
#include "panels/navigation.h"
#include "shell/change_commands.h"
#include "shell/clock.h"
#include "shell/macros.h"
#include "shell/screen.h"
#include "shell/spawn.h"
#include "shell/temp_names.h"

namespace {

struct Call {
  const Westring& command;
  int side;
  const Westring& prompt;
  int flags;
};

// The process goes to the panel's directory. 0 or errno.
int StandInPanel(int side) { return chdir(ToUtf8(RealDirectory(Panels[side])).Text()) == 0 ? 0 : errno; }

int ChangePanelDirectory(const Call& call) {
  Westring target;
  if (RunCd(call.command, call.side, target) != 0) return -1;
  TPanel& panel = Panels[call.side];
  panel.topIndex = panel.cursorRow = 0;
  panel.panelType = kPanelFiles;
  Enter(call.side, L"", false, -1, 0);
  return 0;
}

int ChoosePanelDirectory(const Call& call) {
  RunVcd(call.command, call.side, call.prompt);
  StandInPanel(call.side);  // where it can't, the read of the panel tells
  return 0;
}

int SetVariable(const Call& call) {
  constexpr int kSetLength = 4;
  const Westring text = Trim(Mid(call.command, kSetLength));
  const int equals = Find(text, L'=');
  if (equals > 0) {
    Variables.Set(ToUtf8(Left(text, equals)).Text(), ToUtf8(text.Text() + equals + 1).Text());
  }
  return 0;
}

struct OwnCommand {
  const wchar_t* pattern;
  int (*run)(const Call& call);
};

constexpr OwnCommand kOwnCommands[] = {
    {L"cd", ChangePanelDirectory},  {L"cd[\\. ]*", ChangePanelDirectory},
    {L"vcd", ChoosePanelDirectory}, {L"vcd[\\ ]*", ChoosePanelDirectory},
    {L"set *=*", SetVariable},
};

// The prompt row and the row for the output, with the cursor where that begins.
void PrepareScreen(const Westring& prompt) {
  const uint8_t colour = Options::Colours[kColourCommandLine];
  Console->SetDefaultAttribute(colour);
  Console->SetCursorSize(kLineCursorSize);
  Console->PutString(0, ScreenRows - 2, LJust(prompt, ScreenColumns).Text(), colour);
  Console->FillBlank(0, ScreenRows - 1, ScreenColumns, 1, colour);
  Console->SetCursor(0, prompt.IsEmpty() ? ScreenRows - 2 : ScreenRows - 1);
}

int RunOnScreen(const Call& call) {
  PrepareScreen(call.prompt);
  const WholeScreenSelectable selectable;
  SetAppTitle(call.command.Text());
  const int result = SpawnCommand(call.command, call.flags);
  SetAppTitle(nullptr);
  return result;
}

int RunProgram(const Call& call) {
  if (!(call.flags & kRunInPlace)) {
    if (const int error = StandInPanel(call.side)) {
      ShowPathError(error, RealDirectory(Panels[call.side]));
      return -1;
    }
    ShowPanels(false);
  }
  RemoveClock();
  const int result = RunOnScreen(call);
  UpdateGeometry();
  Console->WriteText(call.flags & kRunTwoFeeds ? "\n\n" : "\n");
  Console->SetCursorSize(0);
  Panels[0].readPending = Panels[1].readPending = true;
  return result;
}

// The list may be another one after each command.
void RunForTagged(const Westring& command, int side, const Westring& prompt) {
  const TPanel& panel = Panels[side];
  Westring shown = prompt;
  for (int i = 0; i < panel.count; ++i) {
    if (!panel.entries[i]->tagged) continue;
    const Westring name(panel.entries[i]->name);
    Westring text = command;
    if (ExpandMacros(text, name.Text(), side, kMacroPlain) < 0) return;
    if (RunCommand(text, side, shown, kRunPlain) != 0) return;
    shown = L"";
  }
}

}  // namespace

int RunCommand(const Westring& command, int side, const Westring& prompt, int flags) {
  const Call call{command, side, prompt, flags};
  for (const OwnCommand& own : kOwnCommands)
    if (WildMatchW(own.pattern, command.Text())) return own.run(call);
  return RunProgram(call);
}

void RunExpanded(const Westring& command, int side, const Westring& prompt, int mode) {
  RemoveTempFiles();
  StandInPanel(side);  // where it can't, the run of the command tells
  Westring text = command;
  if (mode == kMacroPlain) {
    const int asked = ExpandMacros(text, L"", side, kMacroTrial);
    if (asked < 0) return;
    if (asked == kMacroRepeat && Panels[side].taggedCount > 0) return RunForTagged(text, side, prompt);
  }
  const entry* const current = Panels[side].Current();
  const Westring name(current ? current->name : L"");
  if (ExpandMacros(text, name.Text(), side, mode) >= 0) RunCommand(text, side, prompt, kRunPlain);
}

Westring ApplyBackgroundTemplate(const Westring& command) {
  Westring result = Options::Background;
  const wchar_t sign[] = {static_cast<unsigned char>(Options::CmdChar), 0};
  if (Find(result, sign[0]) < 0) return result + L" " + command;
  ReplaceAll(result, sign, command.Text());
  return result;
}
