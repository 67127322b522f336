// The three fates of a command: a built-in, a program apart from us, a child on
// the console's terminal.
#include "shell/spawn.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "dialogs/prompt.h"
#include "shell/child_process.h"
#include "shell/terminal_child.h"

BuiltInCommands TheBuiltIns;

namespace {

constexpr char kLoader[] = "/lib/ld-linux-x86-64.so.2";

bool RunBuiltIn(const CommandWords& words) {
  struct Row {
    const wchar_t* name;
    void (*run)(const Westring& file);
  };
  const Row rows[] = {{L"$view", TheBuiltIns.view}, {L"$edit", TheBuiltIns.edit}};
  for (const Row& row : rows) {
    if (words.program != row.name) continue;
    if (row.run) row.run(Unescape(words.arguments));
    return true;
  }
  return false;
}

// Reads all of it, so that the writer is not ended by a closed pipe.
bool HoldsText(FILE* lines, const char* text) {
  char line[1024];
  bool found = false;
  while (fgets(line, sizeof line, lines)) found |= strstr(line, text) != nullptr;
  return found;
}

}  // namespace

// A script is no program of the loader's, which then lists nothing.
bool LinksX11(const Westring& path) {
  const Estring program = ToUtf8(path);
  int ends[2];
  if (pipe(ends) != 0) return false;
  const pid_t child = fork();
  if (child == 0) {
    dup2(ends[1], STDOUT_FILENO);
    close(ends[0]);
    close(ends[1]);
    execl(kLoader, kLoader, "--list", program.Text(), nullptr);
    _exit(EXIT_FAILURE);
  }
  close(ends[1]);
  FILE* const lines = child > 0 ? fdopen(ends[0], "r") : nullptr;
  if (!lines) {
    close(ends[0]);
    return false;
  }
  const bool found = HoldsText(lines, "libX11");
  fclose(lines);
  waitpid(child, nullptr, 0);
  return found;
}

int SpawnCommand(const Westring& text, int) {
  const CommandWords words = SplitCommand(text);
  if (RunBuiltIn(words)) return 0;
  Westring program;
  if (!words.forceTerminal && FindProgram(words.program, program) &&
      (words.background || LinksX11(program))) {
    StartDetached(words.command);
    return 0;
  }
  // Also for a program that was not found: the shell tells why.
  return RunOnTerminal(words.command);
}
