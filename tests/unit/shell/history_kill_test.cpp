// The history file when a copy of the program is killed at a system call: at
// each of them in turn, before and behind it.
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <functional>

#include "unit/shell/history_fixture.h"

namespace {

constexpr int kCannotBeTraced = 77;

// A copy of the program that stops at both ends of each of its system calls.
class TracedCopy {
 public:
  explicit TracedCopy(const std::function<void()>& work) : process(fork()) {
    if (process == 0) {
      if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(kCannotBeTraced);
      raise(SIGSTOP);
      work();
      _exit(0);
    }
    waitpid(process, &status, 0);
  }
  ~TracedCopy() {
    if (!IsRunning()) return;
    kill(process, SIGKILL);
    waitpid(process, &status, 0);
  }
  TracedCopy(const TracedCopy&) = delete;
  TracedCopy& operator=(const TracedCopy&) = delete;

  bool CannotBeTraced() const { return WIFEXITED(status) && WEXITSTATUS(status) == kCannotBeTraced; }

  // False if it ended first.
  bool RunThroughStops(int stops) {
    for (int i = 0; i < stops && IsRunning(); ++i)
      if (ptrace(PTRACE_SYSCALL, process, nullptr, nullptr) != 0 || waitpid(process, &status, 0) < 0) abort();
    return IsRunning();
  }

 private:
  bool IsRunning() const { return WIFSTOPPED(status); }

  pid_t process;
  int status = 0;
};

class HistoryKill : public HistoryFixture {
 protected:
  // The file is old up to a certain system call of the work and fresh behind it.
  // Whatever the kill left beside it, the file then takes a line and loses it.
  void KillAtEachCall(const std::string& old, const std::string& fresh, const std::function<void()>& work) {
    constexpr int kFewestStops = 10, kMostStops = 1000;
    int stops = 1;
    bool isFresh = false;
    for (bool isCut = true; isCut && stops < kMostStops; ++stops) {
      WriteFile(old);
      {
        TracedCopy copy(work);
        if (copy.CannotBeTraced()) GTEST_SKIP() << "no process may be traced here";
        isCut = copy.RunThroughStops(stops);
      }
      const std::string now = File();
      if (isFresh || !isCut)
        EXPECT_EQ(now, fresh) << stops;
      else
        EXPECT_TRUE(now == old || now == fresh) << stops << ": " << now;
      isFresh = now == fresh;
      AppendCommandToFile(L"next");
      EXPECT_EQ(File(), now + "next\r\n") << stops;
      RemoveCommandFromFile(L"next");
      EXPECT_EQ(File(), now) << stops;
    }
    EXPECT_GT(stops, kFewestStops);
    EXPECT_LT(stops, kMostStops);
    EXPECT_EQ(told, Strings{});
  }
};

}  // namespace

TEST_F(HistoryKill, AppendingLeavesTheFileWithOrWithoutTheLine) {
  KillAtEachCall("one\r\n5\x19two\r\n", "one\r\n5\x19two\r\nthree\r\n", [] { AddCommand(L"three"); });
}

TEST_F(HistoryKill, AppendingAnEntryOfADialogDoesTheSame) {
  KillAtEachCall("one\r\n", "one\r\n5\x19two\r\n", [] { AppendDialogEntryToFile(L"two", 5); });
}

TEST_F(HistoryKill, RemovingLeavesTheOldOrTheNewFile) {
  KillAtEachCall("one\r\n5\x19two\r\nthree\r\n", "5\x19two\r\nthree\r\n",
                 [] { RemoveCommandFromFile(L"one"); });
}

TEST_F(HistoryKill, ShorteningAtTheStartLeavesTheOldOrTheNewFile) {
  Options::MaxHist = 1;
  KillAtEachCall("one\r\n5\x19two\r\nthree\r\n", "three\r\n5\x19two\r\n", [] { LoadHistory(); });
}

TEST_F(HistoryKill, TheFirstCommandOfAllIsThereOrNot) {
  int stops = 1;
  for (bool isCut = true; isCut; ++stops) {
    std::filesystem::remove_all(home.Path(".orvane"));
    {
      TracedCopy copy([] { AddCommand(L"one"); });
      if (copy.CannotBeTraced()) GTEST_SKIP() << "no process may be traced here";
      isCut = copy.RunThroughStops(stops);
    }
    const std::string now = home.Exists(kFile) ? File() : "";
    EXPECT_TRUE(now == "one\r\n" || (isCut && now.empty())) << stops << ": " << now;
    AppendCommandToFile(L"next");
    EXPECT_EQ(File(), now + "next\r\n") << stops;
  }
  EXPECT_GT(stops, 10);
  EXPECT_EQ(told, Strings{});
}
