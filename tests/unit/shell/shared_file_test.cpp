// A file that copies of the program share, where one of them got no lock in time.
#include "shell/shared_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "unit/scratch_directory.h"

namespace {

class SharedFileTest : public testing::Test {
 protected:
  SharedFileTest() { home.Write("file", "one\r\ntwo\r\n"); }

  Westring Path() const { return Westring(home.Path("file").c_str()); }
  std::string Content() const { return home.Content("file"); }

  ScratchDirectory home;
};

// Another copy's hold on the file, to the object's end.
class Lock {
 public:
  explicit Lock(const std::string& path) : fd(open(path.c_str(), O_RDWR | O_CLOEXEC)) {
    if (flock(fd, LOCK_EX) != 0) abort();
  }
  ~Lock() { close(fd); }
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;

 private:
  int fd;
};

}  // namespace

TEST_F(SharedFileTest, WhatWasAppendedWithoutTheLockStandsBehindTheReplacement) {
  SharedFile replaces;
  ASSERT_EQ(replaces.OpenToRead(Path()), 0);
  std::string content;
  ASSERT_EQ(replaces.Read(content), 0);
  SharedFile appends;
  ASSERT_EQ(appends.OpenToAppend(Path()), EBUSY);
  ASSERT_EQ(appends.Append("three\r\n"), 0);
  EXPECT_EQ(replaces.Replace("two\r\n"), 0);
  EXPECT_EQ(Content(), "two\r\nthree\r\n");
}

TEST_F(SharedFileTest, LinesForAFileThatWasReplacedBeforeTheyWereInItGoToTheNewOne) {
  const Lock held(home.Path("file"));
  SharedFile appends;
  ASSERT_EQ(appends.OpenToAppend(Path()), EBUSY);
  home.Write("replacement", "two\r\n");
  std::filesystem::rename(home.Path("replacement"), home.Path("file"));
  EXPECT_EQ(appends.Append("three\r\n"), 0);
  EXPECT_EQ(Content(), "two\r\nthree\r\n");
}

TEST_F(SharedFileTest, LinesAreAppendedOnceWhereTheFileStaysInItsPlace) {
  const Lock held(home.Path("file"));
  SharedFile appends;
  ASSERT_EQ(appends.OpenToAppend(Path()), EBUSY);
  EXPECT_EQ(appends.Append("three\r\n"), 0);
  EXPECT_EQ(Content(), "one\r\ntwo\r\nthree\r\n");
}
