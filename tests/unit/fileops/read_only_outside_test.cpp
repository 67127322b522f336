// The guard that keeps tests over any keys from changing the machine's files.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <functional>
#include <string>

#include "support/faults.h"
#include "unit/scratch_directory.h"

namespace {

struct Change {
  const char* what;
  std::function<int(const std::string& directory)> make;  // below 0 where it failed
};

int OpenAndClose(const std::string& path, int flags) {
  const int fd = open(path.c_str(), flags, 0644);
  if (fd >= 0) close(fd);
  return fd;
}

const Change kChanges[] = {
    {"open to write", [](const std::string& in) { return OpenAndClose(in + "/file", O_WRONLY); }},
    {"open to make", [](const std::string& in) { return OpenAndClose(in + "/new", O_RDONLY | O_CREAT); }},
    {"mkdir", [](const std::string& in) { return mkdir((in + "/directory").c_str(), 0755); }},
    {"rmdir", [](const std::string& in) { return rmdir((in + "/directory").c_str()); }},
    {"symlink", [](const std::string& in) { return symlink("file", (in + "/link").c_str()); }},
    {"rename", [](const std::string& in) { return rename((in + "/file").c_str(), (in + "/other").c_str()); }},
    {"unlink", [](const std::string& in) { return unlink((in + "/other").c_str()); }},
};

class ReadOnlyOutsideTest : public testing::Test {
 protected:
  ReadOnlyOutsideTest() {
    for (const char* name : {"inside/file", "outside/file", "outside/other"}) {
      files.MakeDirectory(std::string(name).substr(0, std::string(name).find('/')));
      files.Write(name, "text");
    }
    files.MakeDirectory("outside/directory");
  }

  ScratchDirectory files;
};

}  // namespace

TEST_F(ReadOnlyOutsideTest, EveryChangeOutsideFailsAndInsideWorks) {
  const ReadOnlyOutside guard(files.Path("inside"));
  for (const Change& change : kChanges) {
    EXPECT_LT(change.make(files.Path("outside")), 0) << change.what;
    EXPECT_EQ(errno, EROFS) << change.what;
    EXPECT_GE(change.make(files.Path("inside")), 0) << change.what;
  }
  EXPECT_EQ(files.Content("outside/file"), "text");
}

TEST_F(ReadOnlyOutsideTest, NoWayLeadsOut) {
  const ReadOnlyOutside guard(files.Path("inside"));
  EXPECT_LT(unlink(files.Path("inside/../outside/file").c_str()), 0);
  EXPECT_LT(rename(files.Path("inside/file").c_str(), files.Path("outside/taken").c_str()), 0);
  EXPECT_LT(unlink((files.Path("inside") + "file").c_str()), 0);
  EXPECT_EQ(errno, EROFS);
  EXPECT_TRUE(files.Exists("outside/file"));
  EXPECT_TRUE(files.Exists("inside/file"));
}

TEST_F(ReadOnlyOutsideTest, WhatIsThereMayBeReadAndAllMayBeChangedAfter) {
  {
    const ReadOnlyOutside guard(files.Path("inside"));
    EXPECT_GE(OpenAndClose(files.Path("outside/file"), O_RDONLY), 0);
  }
  EXPECT_EQ(unlink(files.Path("outside/file").c_str()), 0);
}
