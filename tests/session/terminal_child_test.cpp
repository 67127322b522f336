// Children on the console's terminal: what they get, what they leave, and that
// the program comes back from each of them.
#include "shell/terminal_child.h"

#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sched.h>
#include <signal.h>
#include <stddef.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

#include <fstream>
#include <sstream>
#include <thread>

#include "console/scrollback.h"
#include "foundation/environment.h"
#include "shell/child_process.h"
#include "support/console_fixture.h"

namespace {

// What is in a file; of a pipe, all that is written until it is closed.
std::string Content(const char* name) {
  std::ifstream file(name, std::ios::binary);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

void WriteInto(const char* name, const std::string& text) { std::ofstream(name, std::ios::binary) << text; }

bool Exists(const char* name) { return access(name, F_OK) == 0; }

// Changes what a signal does, while it lives.
class SignalIgnored {
 public:
  explicit SignalIgnored(int number) : number(number), before(signal(number, SIG_IGN)) {}
  ~SignalIgnored() { signal(number, before); }
  SignalIgnored(const SignalIgnored&) = delete;
  SignalIgnored& operator=(const SignalIgnored&) = delete;

 private:
  const int number;
  void (*const before)(int);
};

// No further descriptor can be opened, while it lives. The limit is not below
// those that are open: the window's thread polls, which fails above it.
class NoDescriptors {
 public:
  NoDescriptors() {
    getrlimit(RLIMIT_NOFILE, &before);
    const int firstFree = dup(STDERR_FILENO);
    close(firstFree);
    const rlimit none{static_cast<rlim_t>(firstFree), before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
  }
  ~NoDescriptors() { setrlimit(RLIMIT_NOFILE, &before); }
  NoDescriptors(const NoDescriptors&) = delete;
  NoDescriptors& operator=(const NoDescriptors&) = delete;

 private:
  rlimit before;
};

// From here on this process can make threads, but no processes.
bool ForbidForks() {
  const auto field = [](size_t offset) { return static_cast<uint32_t>(offset); };
  sock_filter rules[] = {
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, field(offsetof(seccomp_data, nr))),
      BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_clone, 0, 3),
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, field(offsetof(seccomp_data, args[0]))),
      BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, CLONE_VM, 1, 0),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EAGAIN),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
  };
  const sock_fprog program{sizeof rules / sizeof *rules, rules};
  return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
         prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

// Of this process, with what they are.
std::string OpenDescriptors() {
  std::string open;
  for (int fd = 0; fd < 1024; ++fd) {
    char place[256];
    const std::string link = "/proc/self/fd/" + std::to_string(fd);
    const ssize_t length = readlink(link.c_str(), place, sizeof place);
    if (length > 0) open += link + " " + std::string(place, static_cast<size_t>(length)) + "\n";
  }
  return open;
}

// The times that a thread of ours has gone to sleep by itself.
int64_t SleepsOf(pid_t thread) {
  std::ifstream status("/proc/self/task/" + std::to_string(thread) + "/status");
  std::string word;
  int64_t count = -1;
  while (status >> word && word != "voluntary_ctxt_switches:") {
  }
  status >> count;
  return count;
}

int64_t CpuTimeMs(pthread_t thread) {
  clockid_t clock;
  timespec used{};
  if (pthread_getcpuclockid(thread, &clock) == 0) clock_gettime(clock, &used);
  return int64_t{used.tv_sec} * 1000 + used.tv_nsec / 1000000;
}

class TerminalChild : public ConsoleFixture {
 protected:
  TerminalChild() {
    Variables.Load();
    for (const char* name : {"pipe", "answer"}) EXPECT_EQ(mkfifo(name, 0600), 0);
  }
  ~TerminalChild() override { ScrollBack.Clear(); }

  // What a command prints into a file.
  static std::string OutputOf(const std::string& command) {
    EXPECT_EQ(RunOnTerminal(Westring(("(" + command + ") > out").c_str())), 0) << command;
    return Content("out");
  }
};

}  // namespace

// ---- what it comes to

TEST_F(TerminalChild, ItsExitCodeIsTheResult) {
  for (const int code : {0, 1, 7, 127, 255}) {
    EXPECT_EQ(RunOnTerminal(Westring(Estring::Format("exit %d", code))), code);
  }
}

TEST_F(TerminalChild, EndedByASignalItIsMinusOne) {
  for (const char* name : {"HUP", "INT", "KILL", "TERM", "SEGV", "USR1"}) {
    EXPECT_EQ(RunOnTerminal(Westring((std::string("kill -") + name + " $$").c_str())), -1) << name;
  }
}

TEST_F(TerminalChild, KilledByAnotherItIsMinusOne) {
  std::thread killer([] {
    const pid_t child = std::stoi(Content("pipe"));
    kill(child, SIGKILL);
  });
  EXPECT_EQ(RunOnTerminal(L"echo $$ > pipe; read line < answer"), -1);
  killer.join();
}

TEST_F(TerminalChild, ItsOutputStandsOnTheGridFromTheLastRowOn) {
  RunOnTerminal(L"echo one; printf two >&2");
  EXPECT_EQ(Row(kRows - 2).Trimmed(), "one");
  EXPECT_EQ(Row(kRows - 1).Trimmed(), "two");
  int x = 0, y = 0;
  Console->GetCursor(x, y);
  EXPECT_EQ(x, 3);
  EXPECT_EQ(y, kRows - 1);
}

TEST_F(TerminalChild, WithoutAShellThereIsNoOutput) {
  const auto before = Snapshot();
  for (const char* shell : {static_cast<const char*>(nullptr), "", "/no/such/shell", "/etc/passwd"}) {
    Variables.Set("SHELL", shell);
    EXPECT_EQ(RunOnTerminal(L"echo text"), 255);
  }
  EXPECT_EQ(ChangesSince(before), "");
}

// ---- what it gets

TEST_F(TerminalChild, ItsTerminalIsAsLargeAsTheGrid) { EXPECT_EQ(OutputOf("stty size"), "25 80\n"); }

TEST_F(TerminalChild, EveryStreamIsItsControllingTerminal) {
  EXPECT_EQ(OutputOf("test -t 0 && test -t 2 && tty | tr -d 0-9"), "/dev/pts/\n");
  EXPECT_EQ(RunOnTerminal(L"test -t 1 && echo text > /dev/tty"), 0);
  EXPECT_EQ(Row(kRows - 2).Trimmed(), "text");
}

TEST_F(TerminalChild, ItsTerminalErasesCharactersOfSeveralBytesByBackspace) {
  const std::string modes = OutputOf("stty -a");
  EXPECT_NE(modes.find("erase = ^H;"), std::string::npos) << modes;
  EXPECT_NE(modes.find(" iutf8"), std::string::npos) << modes;
}

TEST_F(TerminalChild, ItHasNoDescriptorsOfOurs) {
  const int ours = dup(STDERR_FILENO);  // without close-on-exec
  const std::string place = "/proc/$$/fd/" + std::to_string(ours);
  EXPECT_EQ(OutputOf("test -e " + place + " && echo open || echo closed"), "closed\n");
  close(ours);
}

TEST_F(TerminalChild, ItHasTheThreeOfItsTerminalOnly) {
  RunOnTerminal(L"(for fd in /proc/$$/fd/*; do readlink $fd; done) > out; :");  // the shell stays to be seen
  std::istringstream places(Content("out"));
  std::string place, terminal;
  int count = 0;
  for (; places >> place; ++count) {
    if (terminal.empty()) terminal = place;
    EXPECT_EQ(place, terminal);
  }
  EXPECT_EQ(terminal.substr(0, 9), "/dev/pts/");
  EXPECT_EQ(count, 3);
}

TEST_F(TerminalChild, TwoHundredOfThemLeaveNoDescriptors) {
  RunOnTerminal(L":");
  const std::string before = OpenDescriptors();
  for (int i = 0; i < 200; ++i) ASSERT_EQ(RunOnTerminal(L"exit 3"), 3);
  EXPECT_EQ(OpenDescriptors(), before);
}

TEST_F(TerminalChild, WhatWeIgnoreTheUsersKeysDoAgain) {
  for (const int number : {SIGINT, SIGQUIT, SIGHUP, SIGTERM}) {
    const SignalIgnored ignored(number);
    EXPECT_EQ(RunOnTerminal(Westring(Estring::Format("kill -%d $$", number))), -1) << number;
  }
}

TEST_F(TerminalChild, NoSignalIsHeldBackFromIt) {
  EXPECT_EQ(OutputOf("grep SigBlk /proc/self/status"), "SigBlk:\t0000000000000000\n");
}

// ---- children of different kinds do not take from each other

TEST_F(TerminalChild, TheEndOfDetachedProgramsTakesNoExitCode) {
  for (int i = 0; i < 20; ++i) {
    ASSERT_TRUE(StartDetached(L":"));
    ASSERT_EQ(RunOnTerminal(L"exit 5"), 5);
  }
}

TEST_F(TerminalChild, AnIgnoredSignalOfChildrenTakesNoExitCode) {
  const SignalIgnored ignored(SIGCHLD);
  EXPECT_EQ(RunOnTerminal(L"exit 5"), 5);
}

TEST_F(TerminalChild, TheSignalOfChildrenComesAgainAfterwards) {
  RunOnTerminal(L":");
  sigset_t mask;
  pthread_sigmask(SIG_SETMASK, nullptr, &mask);
  EXPECT_EQ(sigismember(&mask, SIGCHLD), 0);
}

// ---- it does not hold the program

TEST_F(TerminalChild, AFloodEndsWithItsLastRow) {
  EXPECT_EQ(RunOnTerminal(L"yes \"$(printf %0500d 1)\" | head -c 20M; printf '\\nend'; exit 4"), 4);
  EXPECT_EQ(Row(kRows - 1).Trimmed(), "end");
  EXPECT_TRUE(Row(kRows - 4).StartsWith("00000000"));
}

TEST_F(TerminalChild, WithItsTerminalClosedItIsWaitedForInSleep) {
  const pthread_t pump = pthread_self();
  const pid_t pumpNumber = gettid();
  std::thread companion([&] {
    const int reader = open("pipe", O_WRONLY);  // the child is there, and has closed its terminal
    const int64_t sleeps = SleepsOf(pumpNumber), used = CpuTimeMs(pump);
    while (SleepsOf(pumpNumber) < sleeps + 5) sched_yield();
    EXPECT_LT(CpuTimeMs(pump) - used, 100);
    close(reader);
  });
  EXPECT_EQ(RunOnTerminal(L"printf before; exec <&- >&- 2>&-; read line < pipe; exit 4"), 4);
  companion.join();
  EXPECT_EQ(Row(kRows - 1).Trimmed(), "before");
}

TEST_F(TerminalChild, WithItsTerminalOpenedAgainItIsShownAgain) {
  EXPECT_EQ(RunOnTerminal(L"t=$(tty); exec <&- >&- 2>&-; exec > \"$t\"; printf again; exit 4"), 4);
  EXPECT_EQ(Row(kRows - 1).Trimmed(), "again");
}

TEST_F(TerminalChild, ADaemonIsNotWaitedFor) {
  // The shell stays until the daemon has a session of its own.
  EXPECT_EQ(RunOnTerminal(L"setsid sh -c ': > answer; read line < pipe; : > mark; : > answer' <&- >&- 2>&- &"
                          L"read line < answer; exit 3"),
            3);
  EXPECT_FALSE(Exists("mark"));
  WriteInto("pipe", "go on\n");
  Content("answer");
  EXPECT_TRUE(Exists("mark"));
}

TEST_F(TerminalChild, OneInTheBackgroundThatKeepsTheTerminalIsNotWaitedFor) {
  EXPECT_EQ(RunOnTerminal(L"trap '' HUP; (read line < pipe; : > mark; : > answer) & exit 3"), 3);
  EXPECT_FALSE(Exists("mark"));
  WriteInto("pipe", "go on\n");
  Content("answer");
  EXPECT_TRUE(Exists("mark"));
}

TEST_F(TerminalChild, OneInTheBackgroundThatWritesForeverIsLeft) {
  EXPECT_EQ(RunOnTerminal(L"trap '' HUP; (echo > pipe; yes; : > answer) & read line < pipe; exit 6"), 6);
  Content("answer");  // its terminal went away
}

TEST_F(TerminalChild, OneThatDrawsOnTheOtherScreenAndIsKilledLeavesTheFirst) {
  RunOnTerminal(L"echo first");
  const auto before = Snapshot();
  RunOnTerminal(L"printf '\\033[?1049h\\033[?25l\\033[31mother'; kill -9 $$");
  EXPECT_EQ(ChangesSince(before), "");
}

// ---- what the system refuses

TEST_F(TerminalChild, WithoutATerminalItFailsInSilence) {
  const auto before = Snapshot();
  // As the call will, for a sanitizer needs a pipe to look at an object's class
  // for the first time.
  Console->SetCursor(0, kRows - 1);
  {
    const NoDescriptors none;
    EXPECT_EQ(RunOnTerminal(L"echo text"), -1);
  }
  EXPECT_EQ(ChangesSince(before), "");
  EXPECT_EQ(RunOnTerminal(L"exit 4"), 4);
}

TEST_F(TerminalChild, WithoutAProcessTheUserIsTold) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  signal(SIGCHLD, SIG_DFL);  // no reaper of a test before this one takes the end of the child here
  EXPECT_EXIT(
      {
        bool told = false;
        const bool forbidden = ForbidForks();
        Then([&] {
          const std::string screen = Screen();
          told = screen.find("Error forking child process") != std::string::npos &&
                 screen.find("Resource temporarily unavailable") != std::string::npos;
        });
        Keys("Esc");
        const int result = RunOnTerminal(L"exit 4");
        _exit(forbidden && told && result == -1 ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

// The system then collects a child itself, and tells nobody what it came to.
TEST_F(TerminalChild, AChildThatCannotBeWaitedForIsToldByItsError) {
  std::thread meddler([] {
    Content("pipe");
    signal(SIGCHLD, SIG_IGN);
    WriteInto("answer", "end\n");
  });
  bool told = false;
  Then([&] { told = Screen().find("Error 10 waiting for child") != std::string::npos; });
  Keys("Esc");
  EXPECT_EQ(RunOnTerminal(L"echo > pipe; read line < answer; exit 4"), -1);
  meddler.join();
  signal(SIGCHLD, SIG_DFL);
  EXPECT_TRUE(told);
}
