#include "panels/mounts.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "unit/scratch_directory.h"

namespace {

class Mounts : public testing::Test {
 protected:
  bool Read(const std::string& table, bool all = true) {
    scratch.Write("mtab", table);
    return ReadMountTable(scratch.Path("mtab").c_str(), list, all);
  }
  std::wstring Held(const wchar_t* path) {
    const TMountPoint* const mount = FindMountIn(list, path);
    return mount ? mount->mountPoint.Text() : L"none";
  }

  ScratchDirectory scratch;
  CMountPointList list;
};

TEST_F(Mounts, AreReadInTheOrderOfTheTable) {
  ASSERT_TRUE(Read("/dev/sda1 / ext4 rw 0 0\n/dev/sdb1\t/data\txfs rw 0 0\nproc /proc proc rw\n"));
  ASSERT_EQ(list.Count(), 3);
  EXPECT_STREQ(list.Peek(0)->device.Text(), L"/dev/sda1");
  EXPECT_STREQ(list.Peek(1)->mountPoint.Text(), L"/data");
  EXPECT_STREQ(list.Peek(1)->fileSystem.Text(), L"xfs");
  EXPECT_STREQ(list.Peek(2)->fileSystem.Text(), L"proc");
}

TEST_F(Mounts, ATableThatIsMissingIsToldWithTheReason) {
  Read("d /a e\n");
  errno = 0;
  EXPECT_FALSE(ReadMountTable(scratch.Path("nothing").c_str(), list, true));
  EXPECT_EQ(errno, ENOENT);
  EXPECT_EQ(list.Count(), 0);
}

TEST_F(Mounts, ATableThatOpensAndCannotBeReadIsToldAsWell) {
  errno = 0;
  EXPECT_FALSE(ReadMountTable(scratch.Path().c_str(), list, true));
  EXPECT_EQ(errno, EISDIR);
  EXPECT_EQ(list.Count(), 0);
}

TEST_F(Mounts, AnEmptyTableIsNoFailure) {
  EXPECT_TRUE(Read(""));
  EXPECT_EQ(list.Count(), 0);
}

TEST_F(Mounts, EscapedCharactersOfFieldsAreDecoded) {
  Read("/dev/sdb1 /media/My\\040USB\\011\\012\\134x ext4 rw 0 0\n");
  EXPECT_STREQ(list.Peek(0)->mountPoint.Text(), L"/media/My USB\t\n\\x");
}

TEST_F(Mounts, WhatOnlyLooksLikeAnEscapeStays) {
  Read("d /a\\04 e\nd /a\\480 e\nd /a\\777 e\nd /b\\ e\n");
  EXPECT_STREQ(list.Peek(0)->mountPoint.Text(), L"/a\\04");
  EXPECT_STREQ(list.Peek(1)->mountPoint.Text(), L"/a\\480");
  EXPECT_STREQ(list.Peek(2)->mountPoint.Text(), L"/a\\777");
  EXPECT_STREQ(list.Peek(3)->mountPoint.Text(), L"/b\\");
}

TEST_F(Mounts, LinesWithoutThreeFieldsAreSkipped) {
  Read("\n   \nonly two\n/dev/sda1 / ext4 rw 0 0\nlast\n");
  EXPECT_EQ(list.Count(), 1);
}

TEST_F(Mounts, TheRestOfALongLineIsNoMountOfItsOwn) {
  for (const size_t length : {900u, 1005u, 1006u, 1007u, 1008u, 3000u, 5000u}) {
    Read("overlay /merged overlay lower=" + std::string(length, 'x') + " a b\n/dev/sda1 /data ext4 rw 0 0\n");
    ASSERT_EQ(list.Count(), 2) << length;
    EXPECT_STREQ(list.Peek(0)->mountPoint.Text(), L"/merged");
    EXPECT_STREQ(list.Peek(1)->mountPoint.Text(), L"/data");
  }
}

TEST_F(Mounts, WithoutAllTheFileSystemsWithoutBlocksAreLeftOut) {
  const std::string table = "/dev/sda1 / ext4 rw 0 0\nt / tmpfs rw 0 0\nproc /proc proc rw 0 0\n";
  Read(table, true);
  EXPECT_EQ(list.Count(), 3);
  Read(table, false);
  ASSERT_EQ(list.Count(), 1);
  EXPECT_STREQ(list.Peek(0)->fileSystem.Text(), L"ext4");
}

TEST_F(Mounts, AMountThatIsGoneHasNoBlocks) {
  Read("d " + scratch.Path("gone") + " ext4 rw 0 0\n", false);
  EXPECT_EQ(list.Count(), 0);
}

TEST_F(Mounts, OnlyTheWholeNameOfTmpfsIsLeftOut) {
  Read("d / tmpfs2 rw 0 0\nd / TMPFS rw 0 0\n", false);
  EXPECT_EQ(list.Count(), 2);
}

TEST_F(Mounts, TheLongestMountPointThatHoldsThePathWins) {
  Read("a / ext4 rw\nb /home xfs rw\nc /home/u/data ext4 rw\nd /ho btrfs rw\n");
  EXPECT_EQ(Held(L"/home/u/data/x"), L"/home/u/data");
  EXPECT_EQ(Held(L"/home/u/data"), L"/home/u/data");
  EXPECT_EQ(Held(L"/home/u/database"), L"/home");
  EXPECT_EQ(Held(L"/homes"), L"/");
  EXPECT_EQ(Held(L"/"), L"/");
}

TEST_F(Mounts, OfTwoMountsOnOnePointTheFirstCounts) {
  Read("a /data ext4 rw\nb /data xfs rw\n");
  EXPECT_STREQ(FindMountIn(list, L"/data/x")->fileSystem.Text(), L"ext4");
}

TEST_F(Mounts, APathThatNothingHoldsHasNone) {
  Read("b /home xfs rw\n");
  EXPECT_EQ(Held(L"/var"), L"none");
}

TEST_F(Mounts, TheMachinesOwnTableHoldsProc) {
  Westring fileSystem, mountPoint;
  if (!FindMount(L"/proc/self", fileSystem, mountPoint)) GTEST_SKIP() << "no mount table here";
  EXPECT_STREQ(fileSystem.Text(), L"proc");
  EXPECT_STREQ(mountPoint.Text(), L"/proc");
}

}  // namespace
