// cd and vcd; see change_commands.h.
#include "shell/change_commands.h"

#include <unistd.h>

#include <cctype>
#include <cerrno>
#include <cstring>
#include <cwchar>

#include "dialogs/prompt.h"
#include "foundation/paths.h"
#include "foundation/std_file.h"
#include "panels/navigation.h"
#include "shell/run_command.h"
#include "shell/shell_quote.h"
#include "shell/spawn.h"
#include "shell/temp_names.h"

namespace {

constexpr int kCdLength = 2, kVcdLength = 3;

// The program tells what was chosen in two lines: a drive, and a command with the
// path in quotes. One line of fewer characters than a drive has tells nothing.
constexpr size_t kDriveLength = 2;
constexpr int kLineSize = 4096;

int Refuse(const wchar_t* message, const Westring& path) {
  Prompt(message, path, kPromptOk);
  return -1;
}

Westring ScratchFile() { return JoinPath(TempDirectory(), L"orvanecd.$$$"); }

// 0 or errno. What an earlier run has left would be read as this one's.
int RemoveScratchFile(const Westring& path) {
  return unlink(ToUtf8(path).Text()) == 0 || errno == ENOENT ? 0 : errno;
}

// Behind the first quote, without the one at the end.
Westring QuotedPart(const char* line) {
  const char* const quote = strchr(line, '"');
  return quote ? DropRight(Westring(quote + 1), 1) : Westring();
}

// False, with path untouched, if nothing was chosen.
bool ReadChoice(StdFile& file, Westring& path) {
  char line[kLineSize];
  file.ReadLine(line, kLineSize);
  if (strlen(line) < kDriveLength) return false;
  path = L"@:\\";
  path[0] = static_cast<wchar_t>(toupper(static_cast<unsigned char>(line[0])));
  file.ReadLine(line, kLineSize);
  path += QuotedPart(line);
  return true;
}

// Of a directory that is not where it was looked for, a panel's tree may know.
bool FindInTree(const TPanel& panel, const Westring& typed, Westring& path) {
  return panel.tree && ThePanelHooks.findInTree && ThePanelHooks.findInTree(panel, typed, path);
}

}  // namespace

int RunCd(const Westring& command, int side, Westring& target) {
  TPanel& panel = Panels[side];
  const wchar_t* const behind = command.Text() + kCdLength;
  Westring typed = Unquote(behind + wcsspn(behind, L" "));  // a wider blank begins a name
  ReplaceAll(typed, L"\\", L"/");
  if (typed.IsEmpty()) typed = L".";
  if (!NormalisePath(typed, panel.path, target)) return Refuse(L"Invalid path", typed);
  if (ChangeDirectory(panel, target)) return 0;
  if (FindInTree(panel, typed, target) && ChangeDirectory(panel, target)) return 0;
  return Refuse(L"Invalid directory", target);
}

void RunVcd(const Westring& command, int side, const Westring& prompt) {
  const Westring scratch = ScratchFile();
  if (const int error = RemoveScratchFile(scratch)) return ShowPathError(error, scratch);
  const Westring arguments = TrimCommand(Mid(command, kVcdLength));
  RunCommand(L"vcdpgm.exe " + arguments + L" > " + ShellQuote(scratch), side, prompt, kRunPlain);

  StdFile file;
  if (file.Open(scratch, kOpenRead) != 0) return;
  Westring chosen;
  const bool isChosen = ReadChoice(file, chosen);
  file.Close();
  RemoveScratchFile(scratch);

  TPanel& panel = Panels[side];
  panel.readPending = true;
  if (!isChosen) return;
  panel.topIndex = panel.cursorRow = 0;
  CopyText(panel.path, chosen.Text());
}
