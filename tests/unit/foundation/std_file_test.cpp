// StdFile: its buffer must never be seen, except where a rule says so.
#include "foundation/std_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <random>
#include <string>

#include "unit/scratch_directory.h"

namespace {

constexpr uint32_t kNewFile = kOpenWrite | kOpenCreate;
constexpr uint32_t kBoth = kOpenRead | kOpenWrite;

class StdFileTest : public testing::Test {
 protected:
  StdFileTest() { umask(022); }

  int Open(const std::string& name, uint32_t flags) { return file.Open(box.Path(name).c_str(), flags); }
  std::string ReadText(size_t n) {
    std::string text(n, 0);
    size_t got = 0;
    file.Read(text.data(), n, &got);
    text.resize(got);
    return text;
  }
  std::string Line(int size = 256) {
    std::string line(static_cast<size_t>(size), 'x');
    file.ReadLine(line.data(), size);
    return line.c_str();
  }
  mode_t Mode(const std::string& name) const {
    struct stat status {};
    stat(box.Path(name).c_str(), &status);
    return status.st_mode & 07777;
  }

  ScratchDirectory box;
  StdFile file;
};

std::string Numbers(int bytes) {
  std::string text;
  for (int i = 0; static_cast<int>(text.size()) < bytes; ++i) text += std::to_string(i) + "\n";
  text.resize(static_cast<size_t>(bytes));
  return text;
}

// Files of this process may not grow past a limit; more is cut short.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : oldHandler(signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit limit{bytes, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &before);
    signal(SIGXFSZ, oldHandler);
  }

 private:
  rlimit before{};
  void (*oldHandler)(int);
};

int pipeForTicks = -1;
volatile sig_atomic_t ticks = 0;

void Tick(int) {
  ticks = ticks + 1;
  if (ticks == 3) [[maybe_unused]]
    const auto written = write(pipeForTicks, "x", 1);
}

}  // namespace

// ---- open and close --------------------------------------------------------

TEST_F(StdFileTest, OpenOfAMissingFileGivesItsError) {
  EXPECT_EQ(Open("none", kOpenRead), ENOENT);
  EXPECT_EQ(file.Error(), ENOENT);
  EXPECT_FALSE(file.IsOpen());
  EXPECT_EQ(file.Descriptor(), 0);
  EXPECT_EQ(std::string(ToUtf8(file.Name()).Text()), box.Path("none"));
}

TEST_F(StdFileTest, WriteTruncatesUnlessItAppends) {
  box.Write("f", "old text");
  ASSERT_EQ(Open("f", kOpenWrite | kOpenAppend), 0);
  EXPECT_EQ(file.Tell(), 8);
  EXPECT_EQ(file.Write("+", 1), 0);
  EXPECT_EQ(file.Close(), 0);
  EXPECT_EQ(box.Content("f"), "old text+");
  ASSERT_EQ(Open("f", kOpenWrite), 0);
  EXPECT_EQ(file.Close(), 0);
  EXPECT_EQ(box.Content("f"), "");
}

TEST_F(StdFileTest, NewFilesGetTheirModes) {
  ASSERT_EQ(Open("plain", kNewFile), 0);
  ASSERT_EQ(Open("program", kNewFile | kOpenExecutable), 0);
  EXPECT_EQ(Mode("plain"), 0644u);
  EXPECT_EQ(Mode("program"), 0755u);
}

TEST_F(StdFileTest, OpenClosesTheFileBefore) {
  ASSERT_EQ(Open("first", kNewFile), 0);
  file.Write("abc", 3);
  ASSERT_EQ(Open("second", kNewFile), 0);
  EXPECT_EQ(box.Content("first"), "abc");
}

TEST_F(StdFileTest, OpenTakesItsOwnName) {
  box.Write("f", "x");
  ASSERT_EQ(Open("f", kOpenRead), 0);
  EXPECT_EQ(file.Open(file.Name(), kOpenRead), 0);
  EXPECT_EQ(ReadText(9), "x");
}

TEST_F(StdFileTest, DescriptorIsClosedAcrossExecUnlessAskedFor) {
  box.Write("f", "");
  ASSERT_EQ(Open("f", kOpenRead), 0);
  EXPECT_TRUE(fcntl(file.Descriptor(), F_GETFD) & FD_CLOEXEC);
  ASSERT_EQ(Open("f", kOpenRead | kOpenKeepOnExec), 0);
  EXPECT_FALSE(fcntl(file.Descriptor(), F_GETFD) & FD_CLOEXEC);
}

TEST_F(StdFileTest, DescriptorZeroIsNeverUsed) {
  box.Write("f", "content");
  const int saved = dup(0);
  close(0);
  const int code = Open("f", kOpenRead);
  const bool zeroIsFree = fcntl(0, F_GETFD) == -1;
  if (saved >= 0) dup2(saved, 0), close(saved);
  EXPECT_EQ(code, 0);
  EXPECT_TRUE(zeroIsFree);
  EXPECT_GT(file.Descriptor(), 0);
  EXPECT_TRUE(fcntl(file.Descriptor(), F_GETFD) & FD_CLOEXEC);
  EXPECT_EQ(ReadText(99), "content");
}

TEST_F(StdFileTest, ClosedFileRefusesEverything) {
  char byte = 0;
  size_t got = 7;
  FileTime time;
  EXPECT_EQ(file.Read(&byte, 1, &got), EBADF);
  EXPECT_EQ(got, 0u);
  EXPECT_EQ(file.ReadLine(&byte, 1), EBADF);
  EXPECT_EQ(file.Write("x", 1), EBADF);
  EXPECT_EQ(file.PutLine("x"), EBADF);
  EXPECT_EQ(file.Seek(0), EBADF);
  EXPECT_EQ(file.Rewind(), EBADF);
  EXPECT_EQ(file.Flush(), EBADF);
  EXPECT_EQ(file.Sync(), EBADF);
  EXPECT_EQ(file.Truncate(0), EBADF);
  EXPECT_EQ(file.GetTime(time), EBADF);
  EXPECT_EQ(file.SetTime(time), EBADF);
  EXPECT_EQ(file.Size(), -1);
  EXPECT_EQ(file.Error(), EBADF);
  EXPECT_EQ(file.Close(), 0);
}

// ---- reading ---------------------------------------------------------------

TEST_F(StdFileTest, ReadPastTheEndIsMinusOne) {
  box.Write("f", "abc");
  ASSERT_EQ(Open("f", kOpenRead), 0);
  char buffer[10] = "";
  EXPECT_EQ(file.Read(buffer, 10), 0);  // short, but something came
  EXPECT_STREQ(buffer, "abc");
  EXPECT_EQ(file.Read(buffer, 10), -1);
  EXPECT_EQ(file.Error(), -1);
  size_t got = 7;
  EXPECT_EQ(file.Read(buffer, 10, &got), -1);
  EXPECT_EQ(got, 0u);
  EXPECT_EQ(file.Read(buffer, 0), 0);
}

TEST_F(StdFileTest, ShortReadTellsItsCount) {
  box.Write("f", "abc");
  ASSERT_EQ(Open("f", kOpenRead), 0);
  char buffer[5000];
  size_t got = 0;
  EXPECT_EQ(file.Read(buffer, sizeof buffer, &got), 0);
  EXPECT_EQ(got, 3u);
}

TEST_F(StdFileTest, ReadsOfAnySizeGiveTheSameBytes) {
  const std::string content = Numbers(40000);
  box.Write("f", content);
  for (const size_t size : {1, 7, 4095, 4096, 4097, 9000, 50000}) {
    ASSERT_EQ(Open("f", kOpenRead), 0);
    std::string all;
    for (std::string part; !(part = ReadText(size)).empty();) all += part;
    EXPECT_EQ(all, content) << size;
    EXPECT_EQ(file.Tell(), 40000);
  }
}

TEST_F(StdFileTest, ReadingADirectoryGivesTheSystemsError) {
  ASSERT_EQ(Open("", kOpenRead), 0);
  char line[10] = "x";
  EXPECT_EQ(file.ReadLine(line, sizeof line), EISDIR);
  EXPECT_STREQ(line, "");
}

TEST_F(StdFileTest, SignalsDoNotBreakARead) {
  ASSERT_EQ(mkfifo(box.Path("pipe").c_str(), 0600), 0);
  pipeForTicks = open(box.Path("pipe").c_str(), O_RDWR);
  ASSERT_GE(pipeForTicks, 0);
  ASSERT_EQ(Open("pipe", kOpenRead), 0);
  ticks = 0;
  struct sigaction action {
  }, before{};
  action.sa_handler = Tick;  // no SA_RESTART: system calls end with EINTR
  sigaction(SIGALRM, &action, &before);
  const itimerval every{{0, 2000}, {0, 2000}}, never{};
  setitimer(ITIMER_REAL, &every, nullptr);
  char byte = 0;
  EXPECT_EQ(file.Read(&byte, 1), 0);  // the third tick writes the byte
  setitimer(ITIMER_REAL, &never, nullptr);
  sigaction(SIGALRM, &before, nullptr);
  close(pipeForTicks);
  EXPECT_EQ(byte, 'x');
}

TEST_F(StdFileTest, ReadLineDropsEveryTrailingReturn) {
  box.Write("f", "a\r\r\nb\n\n\r\nlast");
  ASSERT_EQ(Open("f", kOpenRead), 0);
  EXPECT_EQ(Line(), "a");
  EXPECT_EQ(Line(), "b");
  EXPECT_EQ(Line(), "");
  EXPECT_EQ(file.Error(), 0);
  EXPECT_EQ(Line(), "");
  EXPECT_EQ(Line(), "last");
  EXPECT_EQ(file.Error(), 0);
  EXPECT_EQ(Line(), "");
  EXPECT_EQ(file.Error(), -1);
}

TEST_F(StdFileTest, ReadLineStopsAtAZeroByte) {
  box.Write("f", std::string("ab\0cd\n\0x", 8));
  ASSERT_EQ(Open("f", kOpenRead), 0);
  EXPECT_EQ(Line(), "ab");
  EXPECT_EQ(Line(), "cd");
  EXPECT_EQ(Line(), "");
  EXPECT_EQ(file.Error(), 0);
  EXPECT_EQ(Line(), "x");
}

TEST_F(StdFileTest, ReadLineTakesSizeLessOneAndGoesOnBehind) {
  box.Write("f", "abcdef\n");
  ASSERT_EQ(Open("f", kOpenRead), 0);
  EXPECT_EQ(Line(4), "abc");
  EXPECT_EQ(Line(4), "def");
  EXPECT_EQ(Line(4), "");  // the line end alone
  EXPECT_EQ(file.Error(), 0);
  EXPECT_EQ(Line(4), "");
  EXPECT_EQ(file.Error(), -1);
}

TEST_F(StdFileTest, ReadLineWithNoRoomWritesNothingOutside) {
  box.Write("f", "abc\n");
  ASSERT_EQ(Open("f", kOpenRead), 0);
  char guard[2] = {'x', 'y'};
  EXPECT_EQ(file.ReadLine(guard, 1), 0);
  EXPECT_EQ(guard[0], 0);
  EXPECT_EQ(guard[1], 'y');
  EXPECT_EQ(file.ReadLine(guard, 0), EINVAL);
  EXPECT_EQ(file.Tell(), 0);
}

TEST_F(StdFileTest, ReadLineAgreesWithReadingByteByByte) {
  std::mt19937 random(3);
  std::string content;
  for (int i = 0; i < 30000; ++i) {
    const auto kind = random() % 300;
    content += kind == 0 ? '\n' : kind == 1 ? '\r' : kind == 2 ? '\0' : static_cast<char>('a' + kind % 26);
  }
  box.Write("f", content);
  for (const int size : {2, 100, 5000}) {
    ASSERT_EQ(Open("f", kOpenRead), 0);
    size_t at = 0;
    while (at < content.size()) {
      std::string expected;
      const size_t start = at;
      while (at < content.size() && static_cast<int>(at - start) < size - 1) {
        const char c = content[at++];
        if (c == 0) break;
        expected += c;
        if (c == '\n') break;
      }
      while (!expected.empty() && (expected.back() == '\n' || expected.back() == '\r')) expected.pop_back();
      ASSERT_EQ(Line(size), expected) << "at " << start;
      ASSERT_EQ(file.Error(), 0);
      ASSERT_EQ(file.Tell(), static_cast<int64_t>(at));
    }
    EXPECT_EQ(Line(size), "");
    EXPECT_EQ(file.Error(), -1);
  }
}

// ---- writing ---------------------------------------------------------------

TEST_F(StdFileTest, WritesOfAnySizeGiveTheSameFile) {
  const std::string content = Numbers(40000);
  for (const size_t size : {1, 7, 4095, 4096, 4097, 9000, 40000}) {
    ASSERT_EQ(Open("f", kNewFile), 0);
    for (size_t at = 0; at < content.size(); at += size) {
      const std::string part = content.substr(at, size);
      ASSERT_EQ(file.Write(part.data(), part.size()), 0);
      ASSERT_EQ(file.Tell(), static_cast<int64_t>(at + part.size()));
    }
    ASSERT_EQ(file.Close(), 0);
    EXPECT_EQ(box.Content("f"), content) << size;
  }
}

TEST_F(StdFileTest, SmallWritesStayInTheBufferUntilFlushed) {
  ASSERT_EQ(Open("f", kNewFile), 0);
  file.Write("abc", 3);
  EXPECT_EQ(box.Content("f"), "");
  EXPECT_EQ(file.Size(), 0);
  EXPECT_EQ(file.Flush(), 0);
  EXPECT_EQ(box.Content("f"), "abc");
  EXPECT_EQ(file.Size(), 3);
}

TEST_F(StdFileTest, SyncFlushesWhatIsPending) {
  ASSERT_EQ(Open("f", kNewFile), 0);
  file.Write("abc", 3);
  EXPECT_EQ(file.Sync(), 0);
  EXPECT_EQ(box.Content("f"), "abc");
}

TEST_F(StdFileTest, TextModeTurnsNewlinesInPutTextOnly) {
  ASSERT_EQ(Open("f", kNewFile | kOpenText), 0);
  EXPECT_EQ(file.PutText("a\nb\n\nc"), 0);
  EXPECT_EQ(file.PutLine("x\ny"), 0);
  EXPECT_EQ(file.Write("\n", 1), 0);
  ASSERT_EQ(file.Close(), 0);
  EXPECT_EQ(box.Content("f"), "a\r\nb\r\n\r\ncx\ny\n\n");
}

TEST_F(StdFileTest, WithoutTextModePutTextIsRaw) {
  ASSERT_EQ(Open("f", kNewFile), 0);
  EXPECT_EQ(file.PutText("a\nb"), 0);
  ASSERT_EQ(file.Close(), 0);
  EXPECT_EQ(box.Content("f"), "a\nb");
}

TEST_F(StdFileTest, WriteAfterReadsGoesToWhereTheReaderStood) {
  box.Write("f", "0123456789");
  ASSERT_EQ(Open("f", kBoth | kOpenAppend), 0);
  file.Seek(0);
  EXPECT_EQ(ReadText(3), "012");
  EXPECT_EQ(file.Write("XY", 2), 0);
  EXPECT_EQ(file.Tell(), 5);
  EXPECT_EQ(ReadText(2), "56");
  EXPECT_EQ(file.Close(), 0);
  EXPECT_EQ(box.Content("f"), "012XY56789");
}

TEST_F(StdFileTest, MixedCallsAgreeWithAPlainString) {
  std::mt19937 random(11);
  ASSERT_EQ(Open("f", kBoth | kOpenCreate), 0);
  std::string model;
  size_t at = 0;
  for (int i = 0; i < 4000; ++i) {
    const size_t n = random() % 3 == 0 ? random() % 9000 : random() % 50;
    switch (random() % 4) {
      case 0: {
        const std::string data = Numbers(static_cast<int>(n));
        ASSERT_EQ(file.Write(data.data(), n), 0);
        if (model.size() < at + n) model.resize(at + n);
        model.replace(at, n, data);
        at += n;
        break;
      }
      case 1: {
        const std::string expected = model.substr(std::min(at, model.size()), n);
        ASSERT_EQ(ReadText(n), expected);
        at += expected.size();
        break;
      }
      case 2:
        at = model.empty() ? 0 : random() % model.size();
        ASSERT_EQ(file.Seek(static_cast<int64_t>(at)), 0);
        break;
      default: {
        const int64_t step = static_cast<int64_t>(n) - static_cast<int64_t>(std::min(at, n));
        if (at + static_cast<size_t>(step) > model.size()) break;
        at += static_cast<size_t>(step);
        ASSERT_EQ(file.SeekRelative(step), 0);
      }
    }
    ASSERT_EQ(file.Tell(), static_cast<int64_t>(at));
  }
  ASSERT_EQ(file.Close(), 0);
  EXPECT_EQ(box.Content("f"), model);
}

// ---- failing writes --------------------------------------------------------

TEST_F(StdFileTest, FullDiskIsToldByFlushAndTheBufferStays) {
  ASSERT_EQ(file.Open("/dev/full", kOpenWrite), 0);
  EXPECT_EQ(file.Write("abc", 3), 0);
  EXPECT_EQ(file.Flush(), ENOSPC);
  EXPECT_EQ(file.Tell(), 3);
  EXPECT_EQ(file.Flush(), ENOSPC);
  EXPECT_EQ(file.Close(), ENOSPC);
  EXPECT_FALSE(file.IsOpen());
}

TEST_F(StdFileTest, FailedWriteTakesNothingOfTheNewData) {
  ASSERT_EQ(file.Open("/dev/full", kOpenWrite), 0);
  const std::string most = Numbers(4000);
  EXPECT_EQ(file.Write(most.data(), most.size()), 0);
  EXPECT_EQ(file.Write(most.data(), most.size()), ENOSPC);
  EXPECT_EQ(file.Tell(), 4000);
  EXPECT_EQ(file.Write("x", 1), 0);  // still fits
  EXPECT_EQ(file.Tell(), 4001);
}

TEST_F(StdFileTest, ShortWriteIsAnErrorAndTheRestGoesOutLater) {
  const std::string content = Numbers(4000);
  ASSERT_EQ(Open("f", kNewFile), 0);
  {
    FileSizeLimit limit(1500);
    EXPECT_EQ(file.Write(content.data(), content.size()), 0);
    EXPECT_EQ(file.Flush(), ENOSPC);
    EXPECT_EQ(file.Tell(), 4000);
    EXPECT_EQ(box.Content("f"), content.substr(0, 1500));
  }
  EXPECT_EQ(file.Close(), 0);
  EXPECT_EQ(box.Content("f"), content);
}

TEST_F(StdFileTest, LargeShortWriteIsAnError) {
  const std::string content = Numbers(20000);
  ASSERT_EQ(Open("f", kNewFile), 0);
  FileSizeLimit limit(15000);
  EXPECT_EQ(file.Write(content.data(), content.size()), ENOSPC);
  EXPECT_EQ(file.Tell(), 15000);
}

// ---- position --------------------------------------------------------------

TEST_F(StdFileTest, SeekInsideTheBufferDoesNotAskTheFile) {
  box.Write("f", "0123456789");
  ASSERT_EQ(Open("f", kOpenRead), 0);
  EXPECT_EQ(ReadText(5), "01234");
  box.Write("f", "abcdefghij");
  EXPECT_EQ(file.Seek(1), 0);
  EXPECT_EQ(ReadText(3), "123");
  EXPECT_EQ(file.SeekRelative(-2), 0);
  EXPECT_EQ(ReadText(2), "23");
  EXPECT_EQ(file.Seek(10), 0);  // its end belongs to it
  EXPECT_EQ(file.SeekRelative(-3), 0);
  EXPECT_EQ(ReadText(3), "789");
}

TEST_F(StdFileTest, RewindGoesToTheFileUnlessAnErrorIsPending) {
  box.Write("f", "0123456789");
  ASSERT_EQ(Open("f", kOpenRead), 0);
  EXPECT_EQ(ReadText(5), "01234");
  box.Write("f", "abcdefghij");
  EXPECT_EQ(file.Seek(-1), EINVAL);
  EXPECT_EQ(file.Rewind(), 0);
  EXPECT_EQ(ReadText(3), "012");
  EXPECT_EQ(file.Rewind(), 0);
  EXPECT_EQ(ReadText(3), "abc");
}

TEST_F(StdFileTest, EndOfTheFileKeepsTheBufferForASeekBack) {
  box.Write("f", "0123456789");
  ASSERT_EQ(Open("f", kOpenRead), 0);
  EXPECT_EQ(ReadText(99), "0123456789");
  EXPECT_EQ(ReadText(1), "");
  EXPECT_EQ(file.Error(), -1);
  box.Write("f", "abcdefghij");
  EXPECT_EQ(file.Rewind(), 0);
  EXPECT_EQ(ReadText(3), "012");
}

TEST_F(StdFileTest, SeekFlushesWhatIsPending) {
  ASSERT_EQ(Open("f", kNewFile), 0);
  file.Write("abc", 3);
  EXPECT_EQ(file.Seek(1), 0);
  EXPECT_EQ(box.Content("f"), "abc");
  file.Write("X", 1);
  file.Close();
  EXPECT_EQ(box.Content("f"), "aXc");
}

TEST_F(StdFileTest, RewindFlushesWhatIsPending) {
  ASSERT_EQ(Open("f", kBoth | kOpenCreate), 0);
  file.Write("abc", 3);
  EXPECT_EQ(file.Rewind(), 0);
  EXPECT_EQ(file.Tell(), 0);
  EXPECT_EQ(ReadText(9), "abc");
}

TEST_F(StdFileTest, FailedSeekLeavesThePosition) {
  box.Write("f", "0123456789");
  ASSERT_EQ(Open("f", kOpenRead), 0);
  ReadText(4);
  EXPECT_EQ(file.Seek(-5), EINVAL);
  EXPECT_EQ(file.SeekRelative(INT64_MAX), EINVAL);
  EXPECT_EQ(file.Tell(), 4);
  EXPECT_EQ(ReadText(1), "4");
}

TEST_F(StdFileTest, TruncateFlushesAndForgetsWhatWasReadAhead) {
  box.Write("f", "0123456789");
  ASSERT_EQ(Open("f", kBoth | kOpenAppend), 0);
  file.Seek(0);
  EXPECT_EQ(ReadText(2), "01");
  EXPECT_EQ(file.Truncate(4), 0);
  EXPECT_EQ(file.Tell(), 2);
  EXPECT_EQ(ReadText(99), "23");
  file.Write("ab", 2);
  EXPECT_EQ(file.Truncate(5), 0);
  EXPECT_EQ(box.Content("f"), "0123a");
}

// ---- times -----------------------------------------------------------------

TEST_F(StdFileTest, SetTimeFlushesAndLeavesTheAccessTime) {
  ASSERT_EQ(Open("f", kNewFile), 0);
  const timespec times[2] = {{1000, 0}, {2000, 0}};
  ASSERT_EQ(futimens(file.Descriptor(), times), 0);
  file.Write("abc", 3);
  const FileTime wanted{123456789, 1751373296};
  EXPECT_EQ(file.SetTime(wanted), 0);
  EXPECT_EQ(file.Close(), 0);
  struct stat status {};
  ASSERT_EQ(stat(box.Path("f").c_str(), &status), 0);
  EXPECT_EQ(status.st_mtim.tv_sec, 1751373296);
  EXPECT_EQ(status.st_mtim.tv_nsec, 123456789);
  EXPECT_EQ(status.st_atim.tv_sec, 1000);
  ASSERT_EQ(Open("f", kOpenRead), 0);
  FileTime read;
  EXPECT_EQ(file.GetTime(read), 0);
  EXPECT_EQ(read, wanted);
}

TEST_F(StdFileTest, DosTimesGoBothWays) {
  ASSERT_EQ(Open("f", kNewFile), 0);
  const uint16_t date = 45 << 9 | 7 << 5 | 1, time = 12 << 11 | 34 << 5 | 28;
  EXPECT_EQ(file.SetTime(date, time), 0);
  uint16_t readDate = 0, readTime = 0;
  EXPECT_EQ(file.GetTime(readDate, readTime), 0);
  EXPECT_EQ(readDate, date);
  EXPECT_EQ(readTime, time);
}

TEST_F(StdFileTest, NoTimeIsRefused) {
  ASSERT_EQ(Open("f", kNewFile), 0);
  EXPECT_EQ(file.SetTime(FileTime::None()), EINVAL);
}

TEST_F(StdFileTest, OpeningAFifoNeedNotWaitForItsOtherEnd) {
  ASSERT_EQ(mkfifo(box.Path("fifo").c_str(), 0600), 0);
  ASSERT_EQ(Open("fifo", kOpenRead | kOpenNoWait), 0);
  EXPECT_NE(fcntl(file.Descriptor(), F_GETFL) & O_NONBLOCK, 0);
  char byte = 0;
  EXPECT_EQ(file.Read(&byte, 1), -1);
}
