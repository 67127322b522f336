// Files with holes: what is a hole stays one, and the size is right to the byte.
#include <fcntl.h>

#include "unit/fileops/copy_fixture.h"

namespace {

constexpr off_t kMega = 1 << 20;

class CopySparseTest : public CopyFixture {
 protected:
  struct Piece {
    off_t offset;
    std::string data;
  };

  void Make(off_t size, const std::vector<Piece>& pieces) {
    const int fd = open(files.Path("source").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    ASSERT_GE(fd, 0);
    for (const Piece& piece : pieces)
      ASSERT_EQ(pwrite(fd, piece.data.data(), piece.data.size(), piece.offset),
                static_cast<ssize_t>(piece.data.size()));
    const bool sized = ftruncate(fd, size) == 0;
    close(fd);
    if (!sized) GTEST_SKIP() << "no file of this size here";
    if (Blocks("source") * 512 >= size) GTEST_SKIP() << "no holes here";
  }

  blkcnt_t Blocks(const std::string& name) const { return Status(name).st_blocks; }

  void ExpectSameWithHoles() {
    EXPECT_EQ(Status("target").st_size, Status("source").st_size);
    EXPECT_TRUE(Content("target") == Content("source"));
    EXPECT_LE(Blocks("target"), Blocks("source") + 64);
  }
};

TEST_F(CopySparseTest, HolesBeforeBetweenAndBehindDataStayHoles) {
  Make(16 * kMega + 3, {{4 * kMega, Bytes(100000)}, {10 * kMega + 5, "middle"}});
  if (IsSkipped()) return;
  EXPECT_EQ(Copy(), 0);
  ExpectSameWithHoles();
}

TEST_F(CopySparseTest, DataUpToTheLastByteEndsThere) {
  Make(8 * kMega, {{0, "start"}, {8 * kMega - 7, "the end"}});
  if (IsSkipped()) return;
  EXPECT_EQ(Copy(), 0);
  ExpectSameWithHoles();
}

TEST_F(CopySparseTest, AFileThatIsNothingButAHoleKeepsItsSize) {
  for (const off_t size : {off_t{1}, off_t{4097}, 16 * kMega}) {
    Make(size, {});
    if (IsSkipped()) return;
    EXPECT_EQ(Replace(), 0);
    ExpectSameWithHoles();
  }
}

TEST_F(CopySparseTest, TwentyGigabytesOfHoleAreCopiedAtOnce) {
  constexpr off_t kSize = 20 * 1024 * kMega;
  Make(kSize, {{kSize / 2, "needle"}});
  if (IsSkipped()) return;
  Fault reads(kCallRead, {.path = files.Path("source")}),
      kernel(kCallKernelCopy, {.path = files.Path("source")});
  EXPECT_EQ(Copy(), 0);
  EXPECT_LT(reads.Calls() + kernel.Calls(), 10);
  EXPECT_EQ(Status("target").st_size, kSize);
  EXPECT_LT(Blocks("target"), 1000);
  char found[7] = {};
  const int fd = open(files.Path("target").c_str(), O_RDONLY);
  EXPECT_EQ(pread(fd, found, 6, kSize / 2), 6);
  close(fd);
  EXPECT_STREQ(found, "needle");
}

TEST_F(CopySparseTest, TheBufferKeepsHolesAsWell) {
  Make(16 * kMega + 3, {{4 * kMega, Bytes(100000)}, {10 * kMega + 5, "middle"}});
  if (IsSkipped()) return;
  Fault noKernel(kCallKernelCopy, {.path = files.Path(), .times = kEveryCall, .code = EXDEV});
  EXPECT_EQ(Copy(), 0);
  EXPECT_EQ(noKernel.Calls(), 1) << "one refusal is enough for a file";
  ExpectSameWithHoles();
}

TEST_F(CopySparseTest, WhereHolesAreNotToldAllBytesArrive) {
  Make(8 * kMega + 3, {{kMega, Bytes(100000)}});
  if (IsSkipped()) return;
  Fault noHoles(kCallSeek, About("source", 1, EINVAL));
  EXPECT_EQ(Copy(), 0);
  EXPECT_TRUE(Content("target") == Content("source"));
}

TEST_F(CopySparseTest, WhatIsAddedBehindTheLastHoleArrives) {
  Make(10 * kMega, {{0, "start"}});
  if (IsSkipped()) return;
  Fault grows(kCallRead, Before("source", 1, [&] {
                const int fd = open(files.Path("source").c_str(), O_WRONLY | O_APPEND);
                EXPECT_EQ(write(fd, "more", 4), 4);
                close(fd);
              }));
  EXPECT_EQ(Copy(), 0);
  EXPECT_EQ(Status("target").st_size, 10 * kMega + 4);
  ExpectSameWithHoles();
}

TEST_F(CopySparseTest, WhatIsAddedWhileTheLastHoleIsLookedForArrives) {
  Make(10 * kMega, {{0, "start"}});
  if (IsSkipped()) return;
  // Between the answer that there is no more data and the look at the size.
  Fault grows(kCallSeek, {.path = files.Path("source"), .at = 3, .code = ENXIO, .before = [&] {
                            const int fd = open(files.Path("source").c_str(), O_WRONLY | O_APPEND);
                            EXPECT_EQ(write(fd, "more", 4), 4);
                            close(fd);
                          }});
  EXPECT_EQ(Copy(), 0);
  EXPECT_GE(grows.Calls(), 3);
  EXPECT_EQ(Status("target").st_size, 10 * kMega + 4);
  ExpectSameWithHoles();
}

TEST_F(CopySparseTest, ASizeThatCannotBeSetLeavesNoTarget) {
  Make(10 * kMega, {{0, "start"}});
  if (IsSkipped()) return;
  Fault fails(kCallTruncate, About("target", 1, ENOSPC));
  EXPECT_EQ(Move(), ENOSPC);
  EXPECT_FALSE(files.Exists("target"));
  EXPECT_TRUE(files.Exists("source"));
}

}  // namespace
