// Starting other programs: how they are found, what environment they get, and
// programs that go on by themselves.
//
// A detached program is not our child but the child of one that ends at once. It
// can so have a session of its own and yet never remain as a zombie: what is left
// for us to collect stays in our process group and is gone within a moment.
#include "shell/child_process.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <cwchar>

#include "config/values/options.h"
#include "foundation/environment.h"
#include "foundation/paths.h"

namespace {

// What exit makes of the failure of a call.
constexpr int kNotExecuted = 255;

constexpr int kFirstOwnDescriptor = 3;

// The directories of PathAppend behind those of a search path.
Westring WithPathAppend(const Westring& search) {
  if (Options::PathAppend.IsEmpty()) return search;
  const int length = Length(search);
  const bool isOpen = length > 0 && search[length - 1] == L':';
  return search + (isOpen ? L"" : L":") + Options::PathAppend;
}

bool IsThere(const Westring& path) {
  Westring absolute;
  return NormalisePath(path, CurrentDirectory(), absolute) && FileExists(absolute);
}

void CollectEnded(int);

// The handler is good for one signal, so that it takes no child's exit status from
// a library that waits for it. What ended before is collected here, because it will
// not signal again.
void ArmReaper() {
  struct sigaction action {};
  action.sa_handler = CollectEnded;
  action.sa_flags = SA_NOCLDSTOP | SA_RESTART | SA_RESETHAND;
  sigemptyset(&action.sa_mask);
  sigaction(SIGCHLD, &action, nullptr);
  while (waitpid(0, nullptr, WNOHANG) > 0) {
  }
}

// A child on a terminal has a process group of its own and is not touched. Where
// two ended after each other, the second one's signal needs the handler again.
void CollectEnded(int) {
  const int before = errno;
  pid_t ended;
  do {
    ended = waitpid(0, nullptr, WNOHANG);
  } while (ended > 0);
  if (ended == 0) ArmReaper();
  errno = before;
}

// Also for a kernel that cannot do it at once.
void CloseFrom(int first, int limit) {
  if (close_range(static_cast<unsigned>(first), ~0u, 0) == 0) return;
  for (int fd = first; fd < limit; ++fd) close(fd);
}

// Input comes from nowhere, and output is kept where it goes to a log or a pipe.
void LeaveTerminal() {
  const int nothing = open("/dev/null", O_RDWR);
  if (nothing < 0) return;
  dup2(nothing, STDIN_FILENO);
  for (const int fd : {STDOUT_FILENO, STDERR_FILENO})
    if (isatty(fd)) dup2(nothing, fd);
}

int DescriptorLimit() {
  constexpr rlim_t kMostTried = 65536;
  rlimit limit;
  if (getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur > kMostTried) return kMostTried;
  return static_cast<int>(limit.rlim_cur);
}

}  // namespace

void CloseInherited() { CloseFrom(kFirstOwnDescriptor, DescriptorLimit()); }

bool FindProgram(const Westring& name, Westring& fullPath) {
  if (name.IsEmpty()) return false;
  if (Find(name, L'/') >= 0 && IsThere(name)) {
    fullPath = name;
    return true;
  }
  const char* path = getenv("PATH");
  const Westring search = WithPathAppend(path && *path ? path : ".");
  for (const wchar_t* part = search.Text(); *part;) {
    const int length = static_cast<int>(wcscspn(part, L":"));
    const Westring candidate = JoinPath(Westring(part, length), name);
    if (length > 0 && FileExists(candidate)) {
      fullPath = candidate;
      return true;
    }
    part += part[length] ? length + 1 : length;
  }
  return false;
}

ShellCall::ShellCall(const Westring& text) : command(ToUtf8(text)) {
  Environment copy;
  Variables.CopyTo(copy);
  for (int64_t i = 0; const KeyedValue* item = copy.Peek(i); ++i) Set(item->key.Text(), item->value);
  if (!Options::PathAppend.IsEmpty()) Set("PATH", ToUtf8(WithPathAppend(Westring(copy.Get("PATH")))));
  if (const Estring* found = Find("SHELL")) {
    shell = strchr(found->Text(), '=') + 1;
    hasShell = true;
  }
  Set("TERM", "xterm");
  for (Estring& variable : variables) environment.push_back(variable.Text());
  environment.push_back(nullptr);
}

// To the shell the case of a name counts.
Estring* ShellCall::Find(const char* name) {
  const size_t length = strlen(name);
  for (Estring& variable : variables)
    if (strncmp(variable.Text(), name, length) == 0 && variable[static_cast<int>(length)] == '=')
      return &variable;
  return nullptr;
}

// A name that no environment can hold is left out.
void ShellCall::Set(const char* name, const Estring& value) {
  if (!*name || strchr(name, '=')) return;
  const Estring variable = Estring(name) + "=" + value;
  if (Estring* found = Find(name))
    *found = variable;
  else
    variables.push_back(variable);
}

// What a caller holds back for itself, a new program must get; and what the toolkit
// ignores, too, or the first command of a pipe would outlive the last one.
void ShellCall::Execute() const {
  struct sigaction action {};
  action.sa_handler = SIG_DFL;
  sigemptyset(&action.sa_mask);
  sigaction(SIGPIPE, &action, nullptr);
  sigprocmask(SIG_SETMASK, &action.sa_mask, nullptr);
  if (hasShell) {
    char option[] = "-c";
    char* const arguments[] = {const_cast<char*>(shell.Text()), option, const_cast<char*>(command.Text()),
                               nullptr};
    execve(shell.Text(), arguments, environment.data());
  }
  _exit(kNotExecuted);
}

void ExecShell(const Westring& command) { ShellCall(command).Execute(); }

bool StartDetached(const Westring& command) {
  const ShellCall call(command);
  const pid_t child = fork();
  if (child < 0) return false;
  if (child == 0) {
    const pid_t own = fork();
    if (own > 0) _exit(0);
    // Where there is no room for one more process, this one runs it. It stays in our
    // group, for it is then ours to collect.
    if (own == 0) setsid();
    LeaveTerminal();
    CloseInherited();
    call.Execute();
  }
  // Behind the fork: a signal of an earlier child could have used it up before.
  ArmReaper();
  return true;
}
