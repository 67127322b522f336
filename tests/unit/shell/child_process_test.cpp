// Programs: found, given their environment, and started apart.
#include "shell/child_process.h"

#include <gtest/gtest.h>
#include <pty.h>
#include <sched.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <sstream>
#include <string>

#include "config/values/options.h"
#include "foundation/environment.h"
#include "foundation/strings.h"
#include "unit/scratch_directory.h"

namespace {

std::string Narrow(const Westring& text) { return ToUtf8(text).Text(); }

// Stands in a directory of its own, with a search path and variables of its own.
class ChildProcess : public testing::Test {
 protected:
  ChildProcess() : oldPath(getenv("PATH") ? getenv("PATH") : "") {
    EXPECT_EQ(chdir(files.Path().c_str()), 0);
    Options::PathAppend = L"";
    Variables.Clear();
    Variables.Set("SHELL", "/bin/sh");
    Variables.Set("PATH", oldPath.c_str());
  }
  ~ChildProcess() override {
    setenv("PATH", oldPath.c_str(), 1);
    Options::PathAppend = L"";
    Variables.Load();
    EXPECT_EQ(chdir("/"), 0);
  }

  std::string Path(const std::string& name) const { return files.Path(name); }

  static Westring Wide(const std::string& utf8) { return utf8.c_str(); }

  void Search(const std::string& path) { setenv("PATH", path.c_str(), 1); }

  // The full path, or "-" if there is no such program.
  static std::string Found(const std::string& name) {
    Westring path = L"-";
    FindProgram(Wide(name), path);
    return Narrow(path);
  }

  // Runs command by ExecShell in a child and returns its exit code.
  static int ExitCodeOf(const std::string& command) {
    const pid_t child = fork();
    if (child == 0) ExecShell(Wide(command));
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  // What command prints.
  std::string OutputOf(const std::string& command) {
    EXPECT_EQ(ExitCodeOf("(" + command + ") > out"), 0) << command;
    return files.Content("out");
  }

  // Starts command with its output into a pipe, and reads all of it.
  std::string OutputOfDetached(const std::string& command) {
    unlink(Path("pipe").c_str());
    EXPECT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    EXPECT_TRUE(StartDetached(Wide("(" + command + ") > pipe")));
    return files.Content("pipe");
  }

  // Whether no child is left, running or ended, within some seconds.
  static bool AllAreCollected() {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    siginfo_t child;
    while (waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT) == 0) {
      if (std::chrono::steady_clock::now() > deadline) return false;
      sched_yield();
    }
    return errno == ECHILD;
  }

  ScratchDirectory files;

 private:
  std::string oldPath;
};

using FindProgramTest = ChildProcess;
using ExecShellTest = ChildProcess;
using StartDetachedTest = ChildProcess;

}  // namespace

// ---- FindProgram -------------------------------------------------------------

TEST_F(FindProgramTest, AnExistingNameWithASlashIsTakenAsItIs) {
  files.Write("tool", "");
  EXPECT_EQ(Found("./tool"), "./tool");
  EXPECT_EQ(Found(Path("tool")), Path("tool"));
  EXPECT_EQ(Found(Path("x/../tool")), Path("x/../tool"));  // normalised before it is looked for
}

TEST_F(FindProgramTest, ANameWithASlashThatIsNotThereIsSearchedLikeAnyOther) {
  files.MakeDirectory("a/b");
  files.Write("a/b/tool", "");
  Search(Path("a"));
  EXPECT_EQ(Found("b/tool"), Path("a/b/tool"));
  EXPECT_EQ(Found("/b/other"), "-");
}

TEST_F(FindProgramTest, TheFirstDirectoryThatHasItWins) {
  for (const char* directory : {"a", "b", "c"}) files.MakeDirectory(directory);
  files.Write("b/tool", "");
  files.Write("c/tool", "");
  Search(Path("a") + ":" + Path("b") + ":" + Path("c"));
  EXPECT_EQ(Found("tool"), Path("b/tool"));
}

TEST_F(FindProgramTest, RightsAreNotLookedAt) {
  files.Write("tool", "");
  ASSERT_EQ(chmod(Path("tool").c_str(), 0), 0);
  Search(files.Path());
  EXPECT_EQ(Found("tool"), Path("tool"));
}

TEST_F(FindProgramTest, EmptyPartsAreSkipped) {
  files.Write("tool", "");
  files.Write("tmp", "");  // also there in the root
  Search("::");
  EXPECT_EQ(Found("tool"), "-");
  EXPECT_EQ(Found("tmp"), "-");
  Search("::" + files.Path() + "::");
  EXPECT_EQ(Found("tool"), Path("tool"));
}

TEST_F(FindProgramTest, WithoutASearchPathTheCurrentDirectoryIsSearched) {
  files.Write("tool", "");
  Search("");
  EXPECT_EQ(Found("tool"), "./tool");
  unsetenv("PATH");
  EXPECT_EQ(Found("tool"), "./tool");
}

TEST_F(FindProgramTest, PathAppendIsSearchedLast) {
  files.MakeDirectory("a");
  files.MakeDirectory("b");
  files.Write("b/tool", "");
  Options::PathAppend = Wide(Path("b"));
  for (const char* end : {"", ":"}) {
    Search(Path("a") + end);
    EXPECT_EQ(Found("tool"), Path("b/tool"));
  }
  files.Write("a/tool", "");
  EXPECT_EQ(Found("tool"), Path("a/tool"));
}

TEST_F(FindProgramTest, WhatIsNowhereLeavesThePathUntouched) {
  Search(files.Path());
  EXPECT_EQ(Found("nothing"), "-");
  EXPECT_EQ(Found(""), "-");
}

// ---- ExecShell ---------------------------------------------------------------

TEST_F(ExecShellTest, TheShellGetsTheWholeCommand) {
  EXPECT_EQ(OutputOf("printf 'a b' | tr a x; printf %s \"$0\""), "x b/bin/sh");
  EXPECT_EQ(ExitCodeOf("exit 7"), 7);
}

TEST_F(ExecShellTest, TheShellOfTheVariablesIsCalledWithTheCommandAsOneArgument) {
  files.Write("shell", "#!/bin/sh\nprintf '<%s>' \"$0\" \"$@\" > out\n");
  ASSERT_EQ(chmod(Path("shell").c_str(), 0700), 0);
  Variables.Set("SHELL", Path("shell").c_str());
  EXPECT_EQ(ExitCodeOf("one  two \"three"), 0);
  EXPECT_EQ(files.Content("out"), "<" + Path("shell") + "><-c><one  two \"three>");
}

TEST_F(ExecShellTest, OnlyOurVariablesReachTheCommand) {
  setenv("ORVANE_OUTSIDE", "x", 1);
  Variables.Set("ORVANE_OWN", "a b\nc");
  Variables.Set("ORVANE_EMPTY", "");
  EXPECT_EQ(OutputOf("printf %s \"${ORVANE_OUTSIDE-none}\""), "none");
  EXPECT_EQ(OutputOf("printf %s \"$ORVANE_OWN\""), "a b\nc");
  EXPECT_EQ(OutputOf("printf %s \"${ORVANE_EMPTY-none}\""), "");
  unsetenv("ORVANE_OUTSIDE");
}

TEST_F(ExecShellTest, TheTerminalIsAnXterm) {
  Variables.Set("TERM", "dumb");
  EXPECT_EQ(OutputOf("printf %s \"$TERM\""), "xterm");
  Variables.Set("TERM", nullptr);
  EXPECT_EQ(OutputOf("printf %s \"$TERM\""), "xterm");
}

TEST_F(ExecShellTest, PathAppendGoesBehindThePathWithOneColon) {
  const std::string path = Variables.Get("PATH");
  EXPECT_EQ(OutputOf("printf %s \"$PATH\""), path);
  Options::PathAppend = L"/more:/yet";
  EXPECT_EQ(OutputOf("printf %s \"$PATH\""), path + ":/more:/yet");
  Variables.Set("PATH", (path + ":").c_str());
  EXPECT_EQ(OutputOf("printf %s \"$PATH\""), path + ":/more:/yet");
}

TEST_F(ExecShellTest, OtherScriptsArriveAsUtf8WhateverTheCodePage) {
  EXPECT_EQ(OutputOf("printf %s '\xC3\xA9\xD1\x84\xE4\xB8\x96'"), "\xC3\xA9\xD1\x84\xE4\xB8\x96");
}

TEST_F(ExecShellTest, WithoutAShellTheChildFails) {
  Variables.Set("SHELL", nullptr);
  EXPECT_EQ(ExitCodeOf("exit 0"), 255);
  Variables.Set("SHELL", "");
  EXPECT_EQ(ExitCodeOf("exit 0"), 255);
  Variables.Set("SHELL", Path("nothing").c_str());
  EXPECT_EQ(ExitCodeOf("exit 0"), 255);
}

TEST_F(ExecShellTest, SignalsHeldBackHereReachTheCommand) {
  sigset_t blocked, before;
  sigemptyset(&blocked);
  sigaddset(&blocked, SIGCHLD);
  sigprocmask(SIG_BLOCK, &blocked, &before);
  const std::string mask = OutputOf("grep SigBlk /proc/self/status");
  sigprocmask(SIG_SETMASK, &before, nullptr);
  EXPECT_EQ(mask, "SigBlk:\t0000000000000000\n");
}

// As after any start of the toolkit.
TEST_F(ExecShellTest, ABrokenPipeEndsACommandAlsoWhereItIsIgnoredHere) {
  const auto before = signal(SIGPIPE, SIG_IGN);
  EXPECT_EQ(OutputOf("/bin/sh -c 'kill -s PIPE $$'; printf %s $?"), std::to_string(128 + SIGPIPE));
  signal(SIGPIPE, before);
}

// ---- StartDetached -----------------------------------------------------------

TEST_F(StartDetachedTest, TheCommandRunsByTheShell) {
  Variables.Set("ORVANE_OWN", "value");
  EXPECT_EQ(OutputOfDetached("printf %s-%s \"$ORVANE_OWN\" \"$PWD\""), "value-" + files.Path());
}

TEST_F(StartDetachedTest, FiftyStartsLeaveNoZombie) {
  ASSERT_EQ(chdir("/"), 0);  // they may outlive the test's own directory
  for (int i = 0; i < 50; ++i) ASSERT_TRUE(StartDetached(L":"));
  EXPECT_TRUE(AllAreCollected());
}

TEST_F(StartDetachedTest, AProgramThatGoesOnIsNoChildOfOurs) {
  for (const char* name : {"question", "answer"}) ASSERT_EQ(mkfifo(Path(name).c_str(), 0600), 0);
  ASSERT_TRUE(StartDetached(L"read line < question; printf %s \"$line\" > answer"));
  EXPECT_TRUE(AllAreCollected());
  files.Write("question", "still here\n");
  EXPECT_EQ(files.Content("answer"), "still here");
}

TEST_F(StartDetachedTest, ItHasASessionOfItsOwnAndNoTerminal) {
  // The process number, its state, parent, group, session and terminal.
  std::istringstream stat(OutputOfDetached("cat /proc/$$/stat"));
  std::string number, name, state, parent, group, session, terminal;
  stat >> number >> name >> state >> parent >> group >> session >> terminal;
  EXPECT_EQ(session, number);
  EXPECT_EQ(group, number);
  EXPECT_EQ(terminal, "0");
  EXPECT_NE(std::stoi(session), getsid(0));
  EXPECT_EQ(OutputOfDetached("readlink /proc/$$/fd/0"), "/dev/null\n");
}

TEST_F(StartDetachedTest, OutputIsDroppedWhereItWouldGoToATerminal) {
  int master, terminal, pipe[2];
  ASSERT_EQ(openpty(&master, &terminal, nullptr, nullptr, nullptr), 0);
  ASSERT_EQ(::pipe(pipe), 0);
  const int errors = dup(STDERR_FILENO);
  dup2(terminal, STDERR_FILENO);
  EXPECT_EQ(OutputOfDetached("readlink /proc/$$/fd/2"), "/dev/null\n");
  dup2(pipe[1], STDERR_FILENO);
  EXPECT_EQ(OutputOfDetached("readlink /proc/$$/fd/2").substr(0, 5), "pipe:");
  dup2(errors, STDERR_FILENO);
  for (const int fd : {master, terminal, pipe[0], pipe[1], errors}) close(fd);
}

TEST_F(StartDetachedTest, OurDescriptorsStayHere) {
  const int open = dup(STDERR_FILENO);  // without close-on-exec
  ASSERT_GE(open, 3);
  const std::string place = "/proc/$$/fd/" + std::to_string(open);
  EXPECT_EQ(OutputOfDetached("test -e " + place + " && echo open || echo closed"), "closed\n");
  close(open);
}

TEST_F(StartDetachedTest, AChildInAGroupOfItsOwnKeepsItsExitStatus) {
  ASSERT_EQ(chdir("/"), 0);
  ASSERT_TRUE(StartDetached(L":"));
  const pid_t child = fork();
  if (child == 0) {
    setsid();
    _exit(7);
  }
  siginfo_t ended;
  ASSERT_EQ(waitid(P_PID, static_cast<id_t>(child), &ended, WEXITED | WNOWAIT), 0);
  ASSERT_TRUE(StartDetached(L":"));
  raise(SIGCHLD);
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(WEXITSTATUS(status), 7);
}

TEST_F(StartDetachedTest, WithoutAShellTheStartIsSilent) {
  ASSERT_EQ(chdir("/"), 0);
  Variables.Set("SHELL", nullptr);
  EXPECT_TRUE(StartDetached(L":"));
  EXPECT_TRUE(AllAreCollected());
}
