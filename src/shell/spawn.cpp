// The three fates of a command: a built-in, a program apart from us, a child on
// the console's terminal.
#include "shell/spawn.h"

#include <fcntl.h>
#include <sys/stat.h>
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

// The second one is where today's systems have it.
constexpr const char* kLoaders[] = {
    "/lib/ld-linux-x86-64.so.2",
    "/lib64/ld-linux-x86-64.so.2",
    "/lib/ld-linux-aarch64.so.1",
};

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

// A pipe or a device would keep the loader waiting.
bool IsRegularFile(const Estring& path) {
  struct stat status;
  return stat(path.Text(), &status) == 0 && S_ISREG(status.st_mode);
}

// In a child: lists the libraries of program. What it has to say about files that
// are no programs is for nobody.
[[noreturn]] void BecomeLoader(const Estring& program, int output) {
  dup2(output, STDOUT_FILENO);
  const int nothing = open("/dev/null", O_WRONLY);
  if (nothing >= 0) dup2(nothing, STDERR_FILENO);
  CloseInherited();
  for (const char* loader : kLoaders) execl(loader, loader, "--list", program.Text(), nullptr);
  _exit(EXIT_FAILURE);
}

int Detach(const Westring& command) {
  if (StartDetached(command)) return 0;
  TellForkFailed();
  return -1;
}

}  // namespace

// A script is no program of the loader's, which then lists nothing.
bool LinksX11(const Westring& path) {
  const Estring program = ToUtf8(path);
  if (!IsRegularFile(program)) return false;
  int ends[2];
  if (pipe(ends) != 0) return false;
  const pid_t child = fork();
  if (child == 0) BecomeLoader(program, ends[1]);
  close(ends[1]);
  bool found = false;
  if (FILE* const lines = child > 0 ? fdopen(ends[0], "r") : nullptr) {
    found = HoldsText(lines, "libX11");
    fclose(lines);
  } else {
    close(ends[0]);
  }
  if (child > 0) waitpid(child, nullptr, 0);  // where the reaper has not done so
  return found;
}

int SpawnCommand(const Westring& text, int) {
  const CommandWords words = SplitCommand(text);
  if (RunBuiltIn(words)) return 0;
  Westring program;
  if (!words.forceTerminal && FindProgram(words.program, program) &&
      (words.background || LinksX11(program))) {
    return Detach(words.command);
  }
  // Also for a program that was not found: the shell tells why.
  return RunOnTerminal(words.command);
}
