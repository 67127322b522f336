// Pumping a child's output to the console until the child has ended.
#include "shell/terminal_child.h"

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "console/console.h"
#include "dialogs/prompt.h"
#include "foundation/paths.h"
#include "shell/child_process.h"

namespace {

constexpr int kPatienceMs = 100;       // between two looks at a silent child
constexpr int kPaintIntervalMs = 16;   // between two paints of a flood
constexpr int kMostDrained = 1 << 20;  // bytes, once the child has ended: others may hold the terminal

class Descriptor {
 public:
  Descriptor() = default;
  ~Descriptor() { Close(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  void Close() {
    if (fd >= 0) close(fd);
    fd = -1;
  }
  int fd = -1;
};

// While it lives SIGCHLD is held back from this thread, so that nothing but the
// pump collects the child. Ignored, as some parents leave it to us, it would have
// the kernel do so.
class ChildSignalHeld {
 public:
  ChildSignalHeld() {
    struct sigaction action;
    if (sigaction(SIGCHLD, nullptr, &action) == 0 && action.sa_handler == SIG_IGN) signal(SIGCHLD, SIG_DFL);
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGCHLD);
    pthread_sigmask(SIG_BLOCK, &set, &before);
  }
  ~ChildSignalHeld() { pthread_sigmask(SIG_SETMASK, &before, nullptr); }
  ChildSignalHeld(const ChildSignalHeld&) = delete;
  ChildSignalHeld& operator=(const ChildSignalHeld&) = delete;

 private:
  sigset_t before;
};

int64_t NowMs() {
  timespec now;
  clock_gettime(CLOCK_MONOTONIC, &now);
  return int64_t{now.tv_sec} * 1000 + now.tv_nsec / 1000000;
}

// As large as the console. Text is UTF-8, and the erase key sends a backspace.
bool OpenTerminal(Descriptor& master, Descriptor& slave) {
  int columns = 0, rows = 0;
  Console->GetSize(columns, rows);
  Console->SetCursor(0, rows - 1);
  winsize size{};
  size.ws_row = static_cast<unsigned short>(rows);
  size.ws_col = static_cast<unsigned short>(columns);
  if (openpty(&master.fd, &slave.fd, nullptr, nullptr, &size) != 0) return false;
  fcntl(master.fd, F_SETFD, FD_CLOEXEC);
  termios modes;
  if (tcgetattr(slave.fd, &modes) == 0) {
    modes.c_iflag |= IUTF8;
    modes.c_cc[VERASE] = '\b';
    tcsetattr(slave.fd, TCSANOW, &modes);
  }
  return true;
}

// What somebody who started us in the background had us ignore, the user's keys
// must do again.
void StopIgnoringSignals() {
  for (int number = 1; number < NSIG; ++number) signal(number, SIG_DFL);
}

[[noreturn]] void BecomeShell(const ShellCall& call, int slave) {
  StopIgnoringSignals();
  setsid();
  ioctl(slave, TIOCSCTTY, 0);
  for (const int fd : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(slave, fd);
  CloseInherited();
  call.Execute();
}

// The child's output on its way to the console.
class Pump {
 public:
  Pump(int master, pid_t child) : master(master), child(child) {}

  void Run() {
    while (!finished) {
      LookAtChild();
      if (!Await(finished ? 0 : kPatienceMs)) continue;
      if (Take() > 0) continue;
      if (!finished) Rest();
    }
    for (int drained = 0; drained < kMostDrained && Await(0);) {
      const int taken = Take();
      if (taken <= 0) break;
      drained += taken;
    }
    Console->PaintTerminal();
  }

  int exitCode = -1;
  int waitError = 0;  // errno of a wait that failed

 private:
  void LookAtChild() {
    int status = 0;
    const pid_t ended = waitpid(child, &status, WNOHANG);
    if (ended == 0) return;
    finished = true;
    if (ended < 0) waitError = errno;
    if (ended > 0 && WIFEXITED(status)) exitCode = WEXITSTATUS(status);
  }

  // Paints where nothing more comes at once. A flood pauses after each piece, so
  // only the answer to a key is painted without a look at the time.
  bool Await(int timeoutMs) {
    if (IsReady(0)) return true;
    const int early = static_cast<int>(paintedAt + kPaintIntervalMs - NowMs());
    if (early > 0 && !Console->TerminalOwesEcho() && IsReady(std::min(early, timeoutMs))) return true;
    Paint();
    return timeoutMs > 0 && IsReady(timeoutMs);
  }

  bool IsReady(int timeoutMs) const {
    pollfd state{master, POLLIN, 0};
    return poll(&state, 1, timeoutMs) > 0;
  }

  int Take() {
    char buffer[1 << 16];
    const ssize_t taken = read(master, buffer, sizeof buffer);
    if (taken <= 0) return -1;
    Console->WriteTerminal(buffer, static_cast<int>(taken));
    if (NowMs() - paintedAt >= kPaintIntervalMs) Paint();
    return static_cast<int>(taken);
  }

  // Nobody has the terminal open. The child has just ended, most likely; or it
  // goes on without, and there is nothing to wait for but its end.
  void Rest() {
    Paint();
    poll(nullptr, 0, restMs);
    restMs = std::min(restMs * 2, kPatienceMs);
  }

  void Paint() {
    Console->PaintTerminal();
    paintedAt = NowMs();
  }

  const int master;
  const pid_t child;
  bool finished = false;
  int64_t paintedAt = 0;
  int restMs = 1;
};

}  // namespace

void TellForkFailed() { Prompt(L"Error forking child process", SystemError(errno).Text(), kPromptOk); }

int RunOnTerminal(const Westring& command) {
  Descriptor master, slave;
  if (!OpenTerminal(master, slave)) return -1;
  const ShellCall call(command);
  const ChildSignalHeld held;
  const pid_t child = fork();
  if (child == 0) BecomeShell(call, slave.fd);
  if (child < 0) {
    TellForkFailed();
    return -1;
  }
  Console->AttachTerminal(master.fd);
  slave.Close();
  Pump pump(master.fd, child);
  pump.Run();
  // Detached before the question below, whose keys would go to the child.
  Console->DetachTerminal();
  master.Close();
  if (pump.waitError != 0)
    Prompt(Westring(Estring::Format("Error %d waiting for child", pump.waitError)), L"", kPromptOk);
  return pump.exitCode;
}
