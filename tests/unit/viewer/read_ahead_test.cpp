// Reading ahead: what is asked of the thread, and that it does it.
#include "viewer/read_ahead.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <condition_variable>
#include <fstream>
#include <mutex>
#include <string>
#include <thread>

#include "support/faults.h"
#include "unit/scratch_directory.h"
#include "viewer/block_file.h"

namespace {

constexpr int kBlock = CBlockFile::kBlockSize;

// A device that takes its time, and tells who waits for it.
class SlowDevice {
 public:
  explicit SlowDevice(const std::string& path)
      : fault(kCallRead, {.path = path, .times = kEveryCall, .before = [this] { Read(); }}) {}

  int OwnReads() { return Count(own); }
  int OtherReads() { return Count(others); }
  void WaitForOtherReads(int count) {
    std::unique_lock lock(mutex);
    ASSERT_TRUE(changed.wait_for(lock, std::chrono::seconds(30), [&] { return others >= count; }));
  }

 private:
  void Read() {
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(1);
    while (std::chrono::steady_clock::now() < end) continue;
    const std::lock_guard lock(mutex);
    ++(std::this_thread::get_id() == owner ? own : others);
    changed.notify_all();
  }
  int Count(const int& count) {
    const std::lock_guard lock(mutex);
    return count;
  }

  const std::thread::id owner = std::this_thread::get_id();
  std::mutex mutex;
  std::condition_variable changed;
  int own = 0, others = 0;
  Fault fault;
};

class ReadAheadTest : public testing::Test {
 protected:
  ReadAheadTest() {
    std::string content;
    for (int k = 0; k < 12; ++k) content += std::string(kBlock, static_cast<char>('a' + k));
    content += "tail";
    box.Write("file", content);
    fd = open(Path().c_str(), O_RDONLY);
  }
  ~ReadAheadTest() override { close(fd); }
  std::string Path() const { return box.Path("file"); }
  void OpenFile() { ASSERT_EQ(file.Open(Westring(Path().c_str())), 0); }
  int BlockByte(int k) { return file.ByteAt(int64_t{k} * kBlock + 5); }

  ScratchDirectory box;
  int fd;
  CBlockFile file;
};

}  // namespace

TEST(ReadingDirection, TheFirstBlockIsFollowedByTheNext) {
  EXPECT_EQ(NextBlockOffset(-1, 0, kBlock), kBlock);
  EXPECT_EQ(NextBlockOffset(-1, 5 * kBlock, kBlock), 6 * kBlock);
}

TEST(ReadingDirection, IsKeptUpwards) {
  EXPECT_EQ(NextBlockOffset(0, kBlock, kBlock), 2 * kBlock);
  EXPECT_EQ(NextBlockOffset(7 * kBlock, 8 * kBlock, kBlock), 9 * kBlock);
}

TEST(ReadingDirection, IsKeptDownwardsToTheBeginning) {
  EXPECT_EQ(NextBlockOffset(8 * kBlock, 7 * kBlock, kBlock), 6 * kBlock);
  EXPECT_EQ(NextBlockOffset(2 * kBlock, kBlock, kBlock), 0);
  EXPECT_EQ(NextBlockOffset(kBlock, 0, kBlock), -1);
}

TEST(ReadingDirection, AJumpHasNone) {
  EXPECT_EQ(NextBlockOffset(0, 2 * kBlock, kBlock), -1);
  EXPECT_EQ(NextBlockOffset(5 * kBlock, 3 * kBlock, kBlock), -1);
  EXPECT_EQ(NextBlockOffset(kBlock, kBlock, kBlock), -1);
}

TEST(ReadingDirection, EndsWithTheOffsetsThatThereAre) {
  constexpr int64_t kLast = INT64_MAX - (kBlock - 1);
  EXPECT_EQ(NextBlockOffset(kLast - kBlock, kLast, kBlock), -1);
  EXPECT_EQ(NextBlockOffset(-1, kLast, kBlock), -1);
  EXPECT_EQ(NextBlockOffset(kLast, kLast - kBlock, kBlock), kLast - 2 * kBlock);
  EXPECT_EQ(NextBlockOffset(kLast, 0, kBlock), -1);
}

TEST_F(ReadAheadTest, WhatWasAskedForIsGivenForAnotherBuffer) {
  SlowDevice device(Path());
  ReadAhead ahead(fd, kBlock);
  ahead.Request(3 * kBlock);
  device.WaitForOtherReads(1);
  BlockBytes bytes(new uint8_t[kBlock]);
  const uint8_t* const given = bytes.get();
  BlockRead read;
  ASSERT_TRUE(ahead.Take(3 * kBlock, bytes, read));
  EXPECT_EQ(read.count, kBlock);
  EXPECT_TRUE(read.wasLong);
  EXPECT_NE(bytes.get(), given) << "nothing is copied";
  EXPECT_EQ(bytes[0], 'd');
  EXPECT_EQ(bytes[kBlock - 1], 'd');
  EXPECT_EQ(device.OwnReads(), 0);
}

TEST_F(ReadAheadTest, ABlockIsGivenOnce) {
  SlowDevice device(Path());
  ReadAhead ahead(fd, kBlock);
  ahead.Request(0);
  device.WaitForOtherReads(1);
  BlockBytes bytes(new uint8_t[kBlock]);
  BlockRead read;
  EXPECT_TRUE(ahead.Take(0, bytes, read));
  EXPECT_FALSE(ahead.Take(0, bytes, read));
}

TEST_F(ReadAheadTest, AnotherBlockIsNotGivenAndSpoilsNothing) {
  SlowDevice device(Path());
  ReadAhead ahead(fd, kBlock);
  ahead.Request(kBlock);
  device.WaitForOtherReads(1);
  BlockBytes bytes(new uint8_t[kBlock]);
  BlockRead read;
  EXPECT_FALSE(ahead.Take(2 * kBlock, bytes, read));
  EXPECT_TRUE(ahead.Take(kBlock, bytes, read));
  EXPECT_EQ(bytes[0], 'b');
}

TEST_F(ReadAheadTest, TheLastBlockIsShortAndBehindItThereIsNone) {
  SlowDevice device(Path());
  ReadAhead ahead(fd, kBlock);
  BlockBytes bytes(new uint8_t[kBlock]);
  BlockRead read;
  ahead.Request(12 * kBlock);
  device.WaitForOtherReads(1);
  EXPECT_TRUE(ahead.Take(12 * kBlock, bytes, read));
  EXPECT_EQ(read.count, 4);
  const int before = device.OtherReads();
  ahead.Request(13 * kBlock);
  device.WaitForOtherReads(before + 1);
  EXPECT_FALSE(ahead.Take(13 * kBlock, bytes, read));
}

TEST_F(ReadAheadTest, EndsWithARequestOpen) {
  for (int i = 0; i < 50; ++i) {
    ReadAhead ahead(fd, kBlock);
    if (i % 2) ahead.Request(i % 12 * kBlock);
  }
}

TEST_F(ReadAheadTest, ReadingUpTheNextBlockComesFromTheThread) {
  SlowDevice device(Path());
  OpenFile();
  for (int k = 0; k < 4; ++k) {
    EXPECT_EQ(BlockByte(k), 'a' + k);
    device.WaitForOtherReads(k + 1);
  }
  EXPECT_EQ(device.OwnReads(), 1);
}

TEST_F(ReadAheadTest, ReadingDownTheNextBlockComesFromTheThread) {
  SlowDevice device(Path());
  OpenFile();
  EXPECT_EQ(BlockByte(9), 'j');  // alone in the table, so the next one up is asked for
  device.WaitForOtherReads(1);
  for (int k = 8; k > 4; --k) {
    EXPECT_EQ(BlockByte(k), 'a' + k);
    device.WaitForOtherReads(10 - k);
  }
  EXPECT_EQ(device.OwnReads(), 2) << "9 and 8, before the direction was known";
}

TEST_F(ReadAheadTest, WhatWasReadBeforeTheFileGrewIsReadAgain) {
  SlowDevice device(Path());
  OpenFile();
  EXPECT_EQ(BlockByte(11), 'l');
  device.WaitForOtherReads(1);  // of the tail, which is asked for
  EXPECT_EQ(BlockByte(5), 'f') << "waits for the end of that";
  std::ofstream(Path(), std::ios::app | std::ios::binary) << std::string(3 * kBlock, 'z');
  EXPECT_EQ(BlockByte(14), 'z');  // which shows that it grew
  EXPECT_EQ(BlockByte(12), 'z');
  EXPECT_EQ(file.ByteAt(12 * kBlock + 3), 'l') << "the tail ends with one";
}

TEST_F(ReadAheadTest, AnyOrderOfBlocksReadsRight) {
  SlowDevice device(Path());
  OpenFile();
  for (const int k : {0, 1, 2, 1, 0, 5, 6, 7, 6, 5, 4, 3, 2, 11, 10, 9, 0, 1, 0, 1, 2, 3})
    ASSERT_EQ(BlockByte(k), 'a' + k) << k;
}

TEST_F(ReadAheadTest, ClosingAndOpeningWhileTheThreadReads) {
  SlowDevice device(Path());
  for (int i = 0; i < 10; ++i) {
    OpenFile();
    EXPECT_EQ(BlockByte(i), 'a' + i);
    if (i % 2) file.Close();
  }
}
