// Counting what is below a directory.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <map>
#include <string>

#include "panels/directory_sizes.h"
#include "unit/panels/fake_archive.h"
#include "unit/panels/two_panels.h"

namespace {

std::map<std::string, uint64_t> kept;

class DirectoryCountTest : public TwoPanels {
 protected:
  ~DirectoryCountTest() override { KeepDirectorySize = nullptr; }

  uint64_t Count(const std::string& below = "") { return CountDirectory(Wide(scratch.Path(below)), count); }

  // An object whose name need not be UTF-8.
  void WriteRaw(const std::string& name, const std::string& content) {
    const int fd = open(scratch.Path(name).c_str(), O_CREAT | O_WRONLY, 0600);
    ASSERT_GE(fd, 0);
    EXPECT_EQ(write(fd, content.data(), content.size()), static_cast<ssize_t>(content.size()));
    close(fd);
  }

  DirectoryCount count;
};

}  // namespace

TEST_F(DirectoryCountTest, FilesOfAllLevelsAreAddedUp) {
  scratch.MakeDirectory("a");
  scratch.MakeDirectory("a/b");
  scratch.MakeDirectory("c");
  scratch.Write("one", "1");
  scratch.Write("a/.hidden", "1234");
  scratch.Write("a/b/three", "123");
  EXPECT_EQ(Count(), 8u);
  EXPECT_EQ(count.bytes, 8u);
  EXPECT_EQ(count.files, 3);
  EXPECT_EQ(count.directories, 4);
  EXPECT_STREQ(count.path.Text(), scratch.Path().c_str());
}

TEST_F(DirectoryCountTest, CountsGoOnFromOneDirectoryToTheNext) {
  scratch.MakeDirectory("a");
  scratch.MakeDirectory("b");
  scratch.Write("a/x", "12");
  scratch.Write("b/y", "123");
  EXPECT_EQ(Count("a"), 2u);
  EXPECT_EQ(Count("b"), 3u);
  EXPECT_EQ(count.bytes, 5u);
  EXPECT_EQ(count.directories, 2);
}

TEST_F(DirectoryCountTest, LinksToFilesAreFilesWithoutBytesAndThoseToDirectoriesAreNone) {
  scratch.MakeDirectory("a");
  scratch.MakeDirectory("other");
  scratch.Write("other/big", std::string(1000, 'x'));
  ASSERT_EQ(symlink("../other", scratch.Path("a/directory").c_str()), 0);
  ASSERT_EQ(symlink("../other/big", scratch.Path("a/file").c_str()), 0);
  ASSERT_EQ(symlink("..", scratch.Path("a/loop").c_str()), 0);
  ASSERT_EQ(symlink("nowhere", scratch.Path("a/dangling").c_str()), 0);
  EXPECT_EQ(Count("a"), 0u);
  EXPECT_EQ(count.files, 2);
  EXPECT_EQ(count.directories, 1);
}

TEST_F(DirectoryCountTest, NamesNeedNotBeUtf8) {
  ASSERT_EQ(mkdir(scratch.Path("\xFF\xFE").c_str(), 0700), 0);
  WriteRaw("\xFF\xFE/\xC3", "12345");
  EXPECT_EQ(Count(), 5u);
}

TEST_F(DirectoryCountTest, APipeIsCountedAndNotOpened) {
  ASSERT_EQ(mkfifo(scratch.Path("pipe").c_str(), 0600), 0);
  EXPECT_EQ(Count(), 0u);
  EXPECT_EQ(count.files, 1);
}

TEST_F(DirectoryCountTest, WhatIsNotThereCountsAsEmpty) {
  EXPECT_EQ(Count("missing"), 0u);
  scratch.Write("file", "123");
  EXPECT_EQ(Count("file"), 0u);
}

// Deeper than descriptors are kept, and than a path can tell.
TEST_F(DirectoryCountTest, DeepTreesAreCountedToTheirEnd) {
  constexpr int kDepth = 500;
  const std::string name(10, 'd');
  const int start = open(".", O_RDONLY | O_DIRECTORY);
  ASSERT_EQ(chdir(scratch.Path().c_str()), 0);
  for (int i = 0; i < kDepth; ++i) {
    ASSERT_EQ(mkdir(name.c_str(), 0700), 0);
    ASSERT_EQ(mkdir("beside", 0700), 0);
    ASSERT_EQ(chdir(name.c_str()), 0);
    const int fd = open("f", O_CREAT | O_WRONLY, 0600);
    EXPECT_EQ(write(fd, "ab", 2), 2);
    close(fd);
  }
  EXPECT_EQ(Count(), 2u * kDepth);
  EXPECT_EQ(count.directories, 1 + 2 * kDepth);
  for (int i = 0; i < kDepth; ++i) {
    EXPECT_EQ(unlink("f"), 0);
    ASSERT_EQ(chdir(".."), 0);
    EXPECT_EQ(rmdir(name.c_str()), 0);
    EXPECT_EQ(rmdir("beside"), 0);
  }
  EXPECT_EQ(fchdir(start), 0);
  close(start);
}

TEST_F(DirectoryCountTest, NoDescriptorStaysOpen) {
  scratch.MakeDirectory("a");
  scratch.MakeDirectory("a/b");
  const auto lowest = [] {
    const int fd = open("/", O_RDONLY);
    close(fd);
    return fd;
  };
  const int before = lowest();
  Count();
  EXPECT_EQ(lowest(), before);
}

TEST_F(DirectoryCountTest, WhoKeepsTreesHearsOfEachDirectory) {
  scratch.MakeDirectory("a");
  scratch.MakeDirectory("a/b");
  scratch.Write("a/one", "1");
  scratch.Write("a/b/two", "12");
  kept.clear();
  KeepDirectorySize = [](const Westring& path, uint64_t bytes) { kept[ToUtf8(path).Text()] = bytes; };
  Count("a");
  EXPECT_EQ(kept, (std::map<std::string, uint64_t>{{scratch.Path("a"), 3}, {scratch.Path("a/b"), 2}}));
}

TEST_F(DirectoryCountTest, AStopEndsItAndTellsNobody) {
  scratch.MakeDirectory("a");
  scratch.MakeDirectory("a/b");
  kept.clear();
  KeepDirectorySize = [](const Westring& path, uint64_t bytes) {
    kept[ToUtf8(path).Text()] = bytes;
    RequestBreak();
  };
  EXPECT_EQ(Count(), kCountStopped);
  EXPECT_EQ(kept, (std::map<std::string, uint64_t>{{scratch.Path("a/b"), 0}}));
}

TEST_F(DirectoryCountTest, AnArchiveIsCountedByItsOwnLists) {
  const FakeArchiveHook hook;
  FakeArchives[L"/x.zip"].directories = {
      {L"", {{L"..", kAttrDirectory}, {L"d", kAttrDirectory}, {L"f", 0, 7}}},
      {L"d",
       {{L"..", kAttrDirectory},
        {L"e", kAttrDirectory},
        {L"g", 0, 10},
        {L"l", kAttrLink, 50},
        {L"ld", kAttrDirectory | kAttrLink}}},
      {L"d/e", {{L"..", kAttrDirectory}, {L"h", 0, 100}}}};
  FakeLevel level(L"/x.zip");
  EXPECT_EQ(CountInArchive(level, L"d", count), 110u);
  EXPECT_EQ(count.files, 3);
  EXPECT_EQ(count.directories, 2);
  EXPECT_EQ(CountInArchive(level, L"", count), 117u);
  FakeArchives[L"/x.zip"].stopBehind = 1;
  EXPECT_EQ(CountInArchive(level, L"", count), kCountStopped);
}
