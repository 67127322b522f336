// The history file between several running copies of the program, and across
// the kill of one.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <functional>
#include <memory>
#include <random>
#include <set>
#include <sstream>
#include <thread>

#include "shell/history_file.h"
#include "support/as_nobody.h"
#include "unit/shell/history_fixture.h"

namespace {

namespace fs = std::filesystem;

// A copy of the program that does nothing but its work on the file.
class Copy {
 public:
  explicit Copy(const std::function<void(int done)>& work) {
    int ends[2];
    if (pipe(ends) != 0) abort();
    process = fork();
    if (process == 0) {
      close(ends[0]);
      work(ends[1]);
      _exit(0);
    }
    close(ends[1]);
    done = ends[0];
  }
  ~Copy() { close(done); }
  Copy(const Copy&) = delete;
  Copy& operator=(const Copy&) = delete;

  // The next number that it has told; -1 when it has ended.
  int Next() const {
    int number = -1;
    return read(done, &number, sizeof number) == sizeof number ? number : -1;
  }
  void Kill() const { kill(process, SIGKILL); }
  int Wait() const {
    int status = -1;
    waitpid(process, &status, 0);
    return status;
  }

 private:
  pid_t process = -1;
  int done = -1;
};

void Tell(int done, int number) {
  if (write(done, &number, sizeof number) != sizeof number) _exit(2);
}

class HistoryCopies : public HistoryFixture {
 protected:
  Strings Lines() const {
    Strings lines;
    std::istringstream in(File());
    for (std::string line; std::getline(in, line);) {
      if (!line.empty() && line.back() == '\r') line.pop_back();
      lines.push_back(line);
    }
    return lines;
  }

  std::string Path() const { return home.Path(kFile); }

  // How often this process has the file open.
  int TimesOpen() const {
    int times = 0;
    for (const auto& item : fs::directory_iterator("/proc/self/fd")) {
      std::error_code gone;
      times += fs::read_symlink(item.path(), gone) == Path();
    }
    return times;
  }
};

// Over a page, so that a kill can cut the write of a line in two.
Westring LongCommand(const std::string& name) {
  const std::string text = name + " " + std::string(3000, 'x');
  return Westring(text.c_str());
}

}  // namespace

TEST_F(HistoryCopies, ThatAppendAndRemoveAtTheSameTimeLoseNoLine) {
  constexpr int kCopies = 4, kCommands = 60;
  WriteFile("5\x19 entry\r\n");
  std::vector<std::unique_ptr<Copy>> copies;
  for (int copy = 0; copy < kCopies; ++copy)
    copies.push_back(std::make_unique<Copy>([copy](int) {
      for (int i = 0; i < kCommands; ++i) {
        const std::string name = std::to_string(copy) + "-" + std::to_string(i);
        AddCommand(("keep " + name).c_str());
        if (i % 4 != 0) continue;
        AddCommand(("drop " + name).c_str());
        RemoveCommandFromFile(("drop " + name).c_str());
      }
    }));
  for (const auto& copy : copies) EXPECT_EQ(copy->Wait(), 0);

  const Strings lines = Lines();
  const std::set<std::string> found(lines.begin(), lines.end());
  EXPECT_EQ(lines.size(), size_t{kCopies * kCommands + 1});
  for (int copy = 0; copy < kCopies; ++copy)
    for (int i = 0; i < kCommands; ++i)
      EXPECT_TRUE(found.count("keep " + std::to_string(copy) + "-" + std::to_string(i)));
  EXPECT_TRUE(found.count("5\x19 entry"));
}

TEST_F(HistoryCopies, ThatShortenTheFileAtTheirStartKeepWhatAnotherAppends) {
  constexpr int kCommands = 200;
  Options::MaxHist = kCommands;
  std::string old;
  for (int i = 0; i < kCommands; ++i) old += "old\r\n";
  WriteFile(old);
  const Copy appends([](int) {
    for (int i = 0; i < kCommands; ++i) AddCommand(("new " + std::to_string(i)).c_str());
  });
  const Copy starts([](int) {
    for (int i = 0; i < 40; ++i) LoadHistory();
  });
  EXPECT_EQ(appends.Wait(), 0);
  EXPECT_EQ(starts.Wait(), 0);
  LoadHistory();
  const Strings commands = Commands();
  for (int i = 0; i < kCommands; ++i)
    EXPECT_EQ(std::count(commands.begin(), commands.end(), "new " + std::to_string(i)), 1) << i;
}

TEST_F(HistoryCopies, WhoWaitedForTheLockAppendsToTheFileThatHasTakenThePlace) {
  WriteFile("old\r\n");
  const int holder = open(Path().c_str(), O_RDWR | O_CLOEXEC);
  ASSERT_EQ(flock(holder, LOCK_EX), 0);
  std::atomic<bool> done = false;
  std::thread waiting([&] {
    AppendCommandToFile(L"new");
    done = true;
  });
  while (TimesOpen() < 2 && !done) std::this_thread::yield();
  home.Write("replacement", "replaced\r\n");
  fs::rename(home.Path("replacement"), Path());
  close(holder);
  waiting.join();
  EXPECT_EQ(File(), "replaced\r\nnew\r\n");
}

TEST_F(HistoryCopies, OneThatWasStoppedWithTheLockHoldsNobodyUpForLong) {
  WriteFile("one\r\ntwo\r\n");
  const int holder = open(Path().c_str(), O_RDWR | O_CLOEXEC);
  ASSERT_EQ(flock(holder, LOCK_EX), 0);
  AddCommand(L"three");
  EXPECT_EQ(File(), "one\r\ntwo\r\nthree\r\n");
  EXPECT_EQ(told, Strings{});
  RemoveCommandFromFile(L"one");
  EXPECT_EQ(File(), "one\r\ntwo\r\nthree\r\n") << "a replacement could lose what the other writes";
  EXPECT_EQ(told, Strings{"Device or resource busy|" + Path()});
  Options::MaxHist = 1;
  LoadHistory();
  EXPECT_EQ(Commands(), Strings{"three"});
  EXPECT_EQ(File(), "one\r\ntwo\r\nthree\r\n");
  close(holder);
}

// In each round a copy appends and removes until it is killed somewhere behind
// a few commands. All that it had told as done must be there, and the file must
// take the next round's lines.
TEST_F(HistoryCopies, AKillAtAnyMomentLosesNoLineThatWasDone) {
  constexpr int kRounds = 40;
  std::mt19937 random(4711);
  std::set<std::string> done;
  for (int round = 0; round < kRounds; ++round) {
    const auto command = [round](int i) {
      return LongCommand("round " + std::to_string(round) + " command " + std::to_string(i));
    };
    const Copy copy([&](int told) {
      for (int i = 0;; ++i) {
        AddCommand(command(i));
        Tell(told, i);
        AddCommand(L"drop");
        if (i % 2 == 0) RemoveCommandFromFile(L"drop");
      }
    });
    const auto take = [&](int number) { done.insert(ToUtf8(command(number)).Text()); };
    for (unsigned count = 1 + random() % 5; count > 0; --count) take(copy.Next());
    for (unsigned spin = random() % 200'000; spin > 0; --spin) asm volatile("");
    copy.Kill();
    copy.Wait();
    for (int number = copy.Next(); number >= 0; number = copy.Next()) take(number);
  }

  const Strings lines = Lines();
  const std::set<std::string> found(lines.begin(), lines.end());
  for (const std::string& line : done) EXPECT_TRUE(found.count(line)) << line.substr(0, 40);
  // What else is there was not told yet, or is the start of a line, one a kill.
  int cut = 0;
  for (const std::string& line : found) {
    EXPECT_TRUE(line.starts_with("round ") || std::string("round ").starts_with(line) ||
                std::string("drop").starts_with(line))
        << line.substr(0, 40);
    cut += !line.ends_with("xxx") && line != "drop";
  }
  EXPECT_LE(cut, kRounds);
  LoadHistory();
  EXPECT_EQ(CommandHistory.Count(), static_cast<int>(found.size()));
}

TEST_F(HistoryCopies, AKillDuringAReplacementLeavesTheOldOrTheNewFile) {
  constexpr int kRounds = 30;
  std::mt19937 random(815);
  std::string rest;
  for (int i = 0; i < 2000; ++i) rest += "line " + std::to_string(i) + "\r\n";
  for (int round = 0; round < kRounds; ++round) {
    WriteFile("drop\r\n" + rest);
    const Copy copy([](int told) {
      Tell(told, 0);
      RemoveCommandFromFile(L"drop");
    });
    copy.Next();
    for (unsigned spin = random() % 2'000'000; spin > 0; --spin) asm volatile("");
    copy.Kill();
    copy.Wait();
    const std::string now = File();
    EXPECT_TRUE(now == rest || now == "drop\r\n" + rest) << now.size();
  }
  AddCommand(L"next");
  RemoveCommandFromFile(L"drop");
  EXPECT_EQ(File(), rest + "next\r\n");
}

// ---- for somebody who may not write everything

TEST_F(HistoryCopies, AReadOnlyFileIsReadAndLeftAloneAndTheUserToldOfIt) {
  WriteFile("one\r\ntwo\r\n");
  chmod(Path().c_str(), 0444);
  const AsNobody nobody(home.Path());
  Options::MaxHist = 1;
  LoadHistory();
  EXPECT_EQ(Commands(), Strings{"two"});
  EXPECT_EQ(told, Strings{}) << "a file that stays too long is no loss";
  AddCommand(L"three");
  AddCommand(L"four");
  EXPECT_EQ(told, Strings{"Permission denied|" + Path()});
  RemoveCommandFromFile(L"one");
  EXPECT_EQ(told.size(), 2u);
  EXPECT_EQ(File(), "one\r\ntwo\r\n");
}

TEST_F(HistoryCopies, ADirectoryThatMayNotBeWrittenStillTakesCommands) {
  WriteFile("one\r\n");
  chmod(home.Path(".orvane").c_str(), 0555);
  const AsNobody nobody(home.Path());
  AddCommand(L"two");
  EXPECT_EQ(File(), "one\r\ntwo\r\n");
  EXPECT_EQ(told, Strings{});
  RemoveCommandFromFile(L"one");
  EXPECT_EQ(told, Strings{"Permission denied|" + Path()});
  EXPECT_EQ(File(), "one\r\ntwo\r\n");
}

TEST_F(HistoryCopies, AFileThatMayNotBeReadIsTold) {
  WriteFile("one\r\n");
  chmod(Path().c_str(), 0);
  const AsNobody nobody(home.Path());
  LoadHistory();
  EXPECT_EQ(told, Strings{"Permission denied|" + Path()});
  EXPECT_EQ(Commands(), Strings{});
}
