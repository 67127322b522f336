// A detached start where the system has room for one more process only.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>

#include "foundation/environment.h"
#include "shell/child_process.h"
#include "unit/scratch_directory.h"

namespace {

// The process whose children have no children, while there is one.
pid_t LastWithRoom = 0;

}  // namespace

// Instead of the system's own, for all tests of this program.
extern "C" pid_t fork() noexcept {
  static const auto systemFork = reinterpret_cast<pid_t (*)()>(dlsym(RTLD_NEXT, "fork"));
  if (LastWithRoom != 0 && LastWithRoom != getpid()) {
    errno = EAGAIN;
    return -1;
  }
  return systemFork();
}

TEST(DetachedWithoutRoom, TheProgramRunsAllTheSameAndIsCollected) {
  ScratchDirectory files;
  const std::string pipe = files.Path("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  Variables.Load();
  Variables.Set("SHELL", "/bin/sh");
  LastWithRoom = getpid();
  EXPECT_TRUE(StartDetached(Westring(("echo text > " + pipe).c_str())));
  LastWithRoom = 0;
  EXPECT_EQ(files.Content("pipe"), "text\n");
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  siginfo_t child;
  while (waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT) == 0) {
    ASSERT_LT(std::chrono::steady_clock::now(), deadline) << "a child is left";
    sched_yield();
  }
  EXPECT_EQ(errno, ECHILD);
}
