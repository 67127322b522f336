// Pipes, sockets and devices at either end of a copy: nothing hangs that the user
// can't stop, and nothing of theirs is removed.
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/sysmacros.h>
#include <sys/un.h>

#include <atomic>
#include <cstring>
#include <optional>
#include <thread>

#include "console/input.h"
#include "unit/fileops/copy_fixture.h"

namespace {

class CopyDevicesTest : public CopyFixture {
 protected:
  void MakePipe(const std::string& name) { ASSERT_EQ(mkfifo(files.Path(name).c_str(), 0644), 0); }

  // Skips the test where only the superuser may.
  void MakeDevice(const std::string& name, int minor) {
    if (mknod(files.Path(name).c_str(), S_IFCHR | 0666, makedev(1, minor)) != 0)
      GTEST_SKIP() << "no device here";
    const int fd = open(files.Path(name).c_str(), O_RDWR);
    if (fd < 0) GTEST_SKIP() << "no device to be opened here";
    close(fd);
  }
  static constexpr int kNull = 3, kZero = 5, kFull = 7;

  void MakeSocket(const std::string& name) {
    const int fd = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, files.Path(name).c_str(), sizeof address.sun_path - 1);
    ASSERT_EQ(bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    close(fd);
  }

  std::string ReadAll(int fd) {
    std::string all;
    char part[4096];
    ssize_t n;
    while ((n = read(fd, part, sizeof part)) > 0) all.append(part, static_cast<size_t>(n));
    return all;
  }
};

// Somebody who wants to stop whatever runs until it has stopped.
class Impatience {
 public:
  ~Impatience() {
    ended = true;
    thread.join();
  }

 private:
  std::atomic<bool> ended = false;
  std::thread thread{[this] {
    while (!ended) {
      RequestBreak();
      std::this_thread::yield();
    }
  }};
};

TEST_F(CopyDevicesTest, APipeIsWrittenWithoutForceAndKeepsItsTime) {
  MakePipe("target");
  files.Write("source", Bytes(200000));
  const timespec times[2] = {{0, UTIME_OMIT}, {1000, 0}};
  utimensat(AT_FDCWD, files.Path("source").c_str(), times, 0);
  std::string arrived;
  std::thread reader([&] {
    const int fd = open(files.Path("target").c_str(), O_RDONLY);
    arrived = ReadAll(fd);
    close(fd);
  });
  EXPECT_EQ(Copy(), 0);
  reader.join();
  EXPECT_TRUE(arrived == Bytes(200000));
  EXPECT_TRUE(S_ISFIFO(Status("target").st_mode));
  EXPECT_NE(Status("target").st_mtim.tv_sec, 1000);
}

TEST_F(CopyDevicesTest, ASourceIsNotGivenUpForAPipeThatNobodyReads) {
  MakePipe("target");
  files.Write("source", "one");
  // The attempt to make a file, one to write, and one more.
  Fault cancel(kCallOpen, Before("target", 3, [] { RequestBreak(); }));
  EXPECT_EQ(Move(), kStopCommand);
  EXPECT_EQ(cancel.Calls(), 3);
  EXPECT_EQ(files.Content("source"), "one");
  EXPECT_TRUE(files.Exists("target"));
}

TEST_F(CopyDevicesTest, AReaderThatComesLaterGetsAll) {
  MakePipe("target");
  files.Write("source", "one");
  int reader = -1;
  Fault comes(kCallOpen, Before("target", 3,
                                [&] { reader = open(files.Path("target").c_str(), O_RDONLY | O_NONBLOCK); }));
  EXPECT_EQ(Move(), 0);
  EXPECT_EQ(ReadAll(reader), "one");
  close(reader);
  EXPECT_FALSE(files.Exists("source"));
}

TEST_F(CopyDevicesTest, AReaderThatLeavesEndsTheCopyAndNotTheProgram) {
  MakePipe("target");
  files.Write("source", Bytes(500000));
  const int reader = open(files.Path("target").c_str(), O_RDONLY | O_NONBLOCK);
  Fault leaves(kCallWrite, Before("target", 2, [&] { close(reader); }));
  EXPECT_EQ(Copy(), EPIPE);
  EXPECT_TRUE(files.Exists("target"));
}

TEST_F(CopyDevicesTest, AFullPipeCanBeStopped) {
  MakePipe("target");
  files.Write("source", Bytes(500000));
  const int reader = open(files.Path("target").c_str(), O_RDONLY | O_NONBLOCK);
  std::optional<Impatience> user;
  Fault starts(kCallWrite, Before("target", 2, [&] { user.emplace(); }));
  EXPECT_EQ(Copy(), kStopCommand);
  user.reset();
  close(reader);
  EXPECT_TRUE(files.Exists("target"));
}

TEST_F(CopyDevicesTest, APipeIsReadToItsEnd) {
  MakePipe("source");
  std::thread writer([&] {
    const int fd = open(files.Path("source").c_str(), O_WRONLY);
    const std::string all = Bytes(200000);
    EXPECT_EQ(write(fd, all.data(), all.size()), static_cast<ssize_t>(all.size()));
    close(fd);
  });
  EXPECT_EQ(Copy(), 0);
  writer.join();
  EXPECT_TRUE(files.Content("target") == Bytes(200000));
  EXPECT_TRUE(S_ISREG(Status("target").st_mode));
}

TEST_F(CopyDevicesTest, APipeWithoutAWriterCanBeStopped) {
  MakePipe("source");
  const Impatience user;
  EXPECT_EQ(Copy(), kStopCommand);
  EXPECT_FALSE(files.Exists("target"));
  EXPECT_TRUE(files.Exists("source"));
}

TEST_F(CopyDevicesTest, APipeIsNotCopiedOntoItself) {
  MakePipe("source");
  EXPECT_EQ(Replace("source", "source"), EEXIST);
}

TEST_F(CopyDevicesTest, SocketsAreRefused) {
  MakeSocket("socket");
  files.Write("source", "one");
  EXPECT_EQ(Copy("socket", "target"), ENXIO);
  EXPECT_FALSE(files.Exists("target"));
  EXPECT_EQ(Copy("source", "socket"), ENXIO);
  EXPECT_EQ(Replace("source", "socket"), ENXIO);
  EXPECT_TRUE(S_ISSOCK(Status("socket").st_mode));
}

TEST_F(CopyDevicesTest, ADeviceIsWrittenAndGetsTheModeOnly) {
  MakeDevice("target", kNull);
  if (IsSkipped()) return;
  files.Write("source", Bytes(100000));
  chmod(files.Path("source").c_str(), 0640);
  const auto before = Status("target").st_mtim;
  EXPECT_EQ(Copy(), 0);
  EXPECT_TRUE(S_ISCHR(Status("target").st_mode));
  EXPECT_EQ(Mode("target"), 0640u);
  EXPECT_NE(Status("target").st_mtim.tv_sec, Status("source").st_mtim.tv_sec + 1);
  EXPECT_EQ(Status("target").st_mtim.tv_sec, before.tv_sec);
}

TEST_F(CopyDevicesTest, ADeviceStaysAfterAnError) {
  MakeDevice("target", kFull);
  if (IsSkipped()) return;
  files.Write("source", "one");
  EXPECT_EQ(Move(), ENOSPC);
  EXPECT_TRUE(S_ISCHR(Status("target").st_mode));
  EXPECT_EQ(files.Content("source"), "one");
}

TEST_F(CopyDevicesTest, ADeviceWithoutAnEndCanBeStopped) {
  MakeDevice("source", kZero);
  if (IsSkipped()) return;
  Fault cancel(kCallRead, Before("source", 20, [] { RequestBreak(); }));
  EXPECT_EQ(Copy(), kStopCommand);
  EXPECT_EQ(cancel.Calls(), 20);
  EXPECT_FALSE(files.Exists("target"));
}

TEST_F(CopyDevicesTest, AnEmptyDeviceMakesAnEmptyFile) {
  MakeDevice("source", kNull);
  if (IsSkipped()) return;
  EXPECT_EQ(Copy(), 0);
  EXPECT_TRUE(S_ISREG(Status("target").st_mode));
  EXPECT_EQ(files.Content("target"), "");
}

}  // namespace
