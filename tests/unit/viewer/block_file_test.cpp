// Blocks of a file: which are kept, when one is read again, and what files there
// are that can't be read.
#include "viewer/block_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <string>

#include "support/as_nobody.h"
#include "support/faults.h"
#include "unit/scratch_directory.h"

namespace {

constexpr int kBlock = CBlockFile::kBlockSize;

class BlockFile : public testing::Test {
 protected:
  // Block k is full of the byte k + 1.
  void OpenBlocks(int count) {
    std::string content;
    for (int k = 0; k < count; ++k) content += std::string(kBlock, static_cast<char>(k + 1));
    OpenOn(content);
  }
  void OpenOn(const std::string& content) {
    box.Write("file", content);
    ASSERT_EQ(file.Open(Westring(Path().c_str())), 0);
  }
  int Open(const std::string& path) { return file.Open(Westring(path.c_str())); }
  std::string Path() const { return box.Path("file"); }

  int BlockByte(int k) { return file.ByteAt(int64_t{k} * kBlock); }
  // On the disk only, where a block in memory does not see it.
  void Overwrite(int64_t offset, char byte) {
    std::fstream stream(Path(), std::ios::in | std::ios::out | std::ios::binary);
    stream.seekp(offset);
    stream.put(byte);
  }
  void Append(const std::string& text) { std::ofstream(Path(), std::ios::app | std::ios::binary) << text; }
  void Shorten(int64_t size) { ASSERT_EQ(truncate(Path().c_str(), size), 0); }

  ScratchDirectory box;
  CBlockFile file;
};

}  // namespace

// ---- which blocks are kept; far apart, so that none is read ahead

TEST_F(BlockFile, FourBlocksAreKept) {
  OpenBlocks(41);
  for (const int k : {0, 10, 20, 30}) EXPECT_EQ(BlockByte(k), k + 1);
  for (const int k : {0, 10, 20, 30}) Overwrite(int64_t{k} * kBlock, 99);
  for (const int k : {0, 10, 20, 30}) EXPECT_EQ(BlockByte(k), k + 1) << k;
}

TEST_F(BlockFile, TheFifthBlockTakesThePlaceOfTheOneNotUsedForLongest) {
  OpenBlocks(41);
  for (const int k : {0, 10, 20, 30, 0, 40}) EXPECT_EQ(BlockByte(k), k + 1);
  for (const int k : {0, 10, 20, 30, 40}) Overwrite(int64_t{k} * kBlock, 99);
  for (const int k : {0, 20, 30, 40}) EXPECT_EQ(BlockByte(k), k + 1) << k;
  EXPECT_EQ(BlockByte(10), 99);
}

TEST_F(BlockFile, AHitPutsABlockInFrontAndKeepsTheOrderOfTheOthers) {
  OpenBlocks(61);
  for (const int k : {0, 10, 20, 30, 10, 40, 50}) EXPECT_EQ(BlockByte(k), k + 1);  // 0 and 20 went
  for (const int k : {0, 10, 20, 30, 40, 50}) Overwrite(int64_t{k} * kBlock, 99);
  for (const int k : {10, 30, 40, 50}) EXPECT_EQ(BlockByte(k), k + 1) << k;
  EXPECT_EQ(BlockByte(0), 99);
  EXPECT_EQ(BlockByte(10), 99) << "used longest ago of all by then";
}

TEST_F(BlockFile, EveryByteIsFoundAtItsOffset) {
  std::string content;
  for (int i = 0; i < 5 * kBlock + 7; ++i) content += static_cast<char>(i * 7 + i / 251);
  OpenOn(content);
  for (size_t i = 0; i < content.size(); ++i)
    ASSERT_EQ(file.ByteAt(static_cast<int64_t>(i)), static_cast<uint8_t>(content[i])) << i;
  for (size_t i = content.size(); i-- > 0;)
    ASSERT_EQ(file.ByteAt(static_cast<int64_t>(i)), static_cast<uint8_t>(content[i])) << i;
}

TEST_F(BlockFile, NothingIsBeforeTheBeginningNorBehindTheEnd) {
  OpenOn("abc");
  EXPECT_EQ(file.ByteAt(-1), -1);
  EXPECT_EQ(file.ByteAt(-kBlock), -1);
  EXPECT_EQ(file.ByteAt(2), 'c');
  EXPECT_EQ(file.ByteAt(-1), -1);
  EXPECT_EQ(file.ByteAt(3), -1);
  EXPECT_EQ(file.ByteAt(int64_t{1} << 60), -1);
  EXPECT_EQ(file.ByteAt(INT64_MAX), -1);
  EXPECT_EQ(file.ByteAt(INT64_MIN), -1);
}

TEST_F(BlockFile, WithoutAFileThereIsNoByte) {
  const uint8_t* bytes = nullptr;
  EXPECT_EQ(file.ByteAt(0), -1);
  EXPECT_EQ(file.ByteAt(INT64_MAX), -1);
  EXPECT_EQ(file.ByteAt(-5), -1) << "the empty table must not look like a block before the beginning";
  EXPECT_EQ(file.BytesFrom(0, bytes), 0);
  EXPECT_EQ(file.BytesUpTo(0, bytes), 0);
  OpenOn("abc");
  EXPECT_EQ(file.ByteAt(0), 'a');
  file.Close();
  EXPECT_EQ(file.ByteAt(0), -1);
  EXPECT_EQ(file.FileSize, 0);
}

TEST_F(BlockFile, AnotherFileForgetsTheFormerOne) {
  OpenOn(std::string(3 * kBlock, 'a'));
  file.RereadTail = true;
  EXPECT_EQ(file.ByteAt(2 * kBlock), 'a');
  box.Write("other", "b");
  EXPECT_EQ(Open(box.Path("other")), 0);
  EXPECT_FALSE(file.RereadTail);
  EXPECT_EQ(file.FileSize, 1);
  EXPECT_EQ(file.ByteAt(0), 'b');
  EXPECT_EQ(file.ByteAt(2 * kBlock), -1);
}

TEST_F(BlockFile, RunsOfBytesMakeUpTheFileBothWays) {
  std::string content;
  for (int i = 0; i < 3 * kBlock + 100; ++i) content += static_cast<char>(i / 3);
  OpenOn(content);
  std::string forward, backward;
  const uint8_t* bytes = nullptr;
  while (const int n = file.BytesFrom(static_cast<int64_t>(forward.size()), bytes))
    forward.append(reinterpret_cast<const char*>(bytes), static_cast<size_t>(n));
  EXPECT_TRUE(forward == content);
  while (const int n = file.BytesUpTo(file.FileSize - 1 - static_cast<int64_t>(backward.size()), bytes))
    backward.insert(0, reinterpret_cast<const char*>(bytes), static_cast<size_t>(n));
  EXPECT_TRUE(backward == content);
}

TEST_F(BlockFile, ARunEndsWithItsBlockOrTheFile) {
  OpenOn(std::string(kBlock, 'a') + "bcd");
  const uint8_t* bytes = nullptr;
  EXPECT_EQ(file.BytesFrom(0, bytes), kBlock);
  EXPECT_EQ(file.BytesFrom(kBlock - 1, bytes), 1);
  EXPECT_EQ(file.BytesFrom(kBlock + 1, bytes), 2);
  EXPECT_EQ(bytes[0], 'c');
  EXPECT_EQ(file.BytesFrom(kBlock + 3, bytes), 0);
  EXPECT_EQ(file.BytesUpTo(kBlock + 1, bytes), 2);
  EXPECT_EQ(bytes[0], 'b');
  EXPECT_EQ(file.BytesUpTo(kBlock - 1, bytes), kBlock);
  EXPECT_EQ(file.BytesUpTo(-1, bytes), 0);
  EXPECT_EQ(file.BytesUpTo(kBlock + 3, bytes), 0);
}

// ---- files that grow and shrink

TEST_F(BlockFile, ABlockThatShowsMoreRaisesTheSize) {
  OpenOn("abc");
  EXPECT_EQ(file.FileSize, 3);
  Append("def");
  EXPECT_EQ(file.ByteAt(0), 'a');
  EXPECT_EQ(file.FileSize, 6);
  EXPECT_EQ(file.ByteAt(5), 'f');
}

TEST_F(BlockFile, ALookBehindTheEndDoesNotRaiseTheSize) {
  OpenOn("abc");
  file.RereadTail = true;
  for (const int64_t offset : {int64_t{kBlock}, 7 * int64_t{kBlock} + 5, int64_t{1} << 60}) {
    EXPECT_EQ(file.ByteAt(offset), -1);
    EXPECT_EQ(file.FileSize, 3) << offset;
  }
  Append(std::string(kBlock, 'd'));
  EXPECT_EQ(file.ByteAt(kBlock), 'd') << "and its block is looked at again";
  EXPECT_EQ(file.FileSize, kBlock + 3);
}

TEST_F(BlockFile, GrowthIsNotLookedForUnlessAsked) {
  OpenOn("abc");
  EXPECT_FALSE(file.RereadTail);
  EXPECT_EQ(file.ByteAt(0), 'a');
  Append("def");
  EXPECT_EQ(file.ByteAt(3), -1);
  EXPECT_EQ(file.FileSize, 3);
  file.RereadTail = true;
  EXPECT_EQ(file.ByteAt(3), 'd');
  EXPECT_EQ(file.FileSize, 6);
}

TEST_F(BlockFile, GrowthIsFoundInABlockThatWasNotUsedLast) {
  OpenOn(std::string(kBlock, 'a') + "bc");
  file.RereadTail = true;
  EXPECT_EQ(file.ByteAt(kBlock), 'b');
  EXPECT_EQ(file.ByteAt(0), 'a');
  Append("d");
  EXPECT_EQ(file.ByteAt(kBlock + 2), 'd');
  EXPECT_EQ(file.ByteAt(0), 'a');
}

TEST_F(BlockFile, GrowthBehindAFullBlockIsFound) {
  OpenOn(std::string(kBlock, 'a'));
  file.RereadTail = true;
  EXPECT_EQ(file.ByteAt(kBlock - 1), 'a');
  EXPECT_EQ(file.ByteAt(kBlock), -1);
  Append("b");
  EXPECT_EQ(file.ByteAt(kBlock), 'b');
  EXPECT_EQ(file.ByteAt(kBlock + 1), -1);
}

TEST_F(BlockFile, AShortBlockIsReadAgainWhenALaterOneShowsThatTheFileGrew) {
  OpenOn("abc");
  EXPECT_EQ(file.ByteAt(0), 'a');
  Append(std::string(kBlock, 'd'));
  EXPECT_EQ(file.ByteAt(kBlock), 'd');
  EXPECT_EQ(file.FileSize, kBlock + 3);
  EXPECT_EQ(file.ByteAt(3), 'd') << "not what lay in memory behind the old end";
}

TEST_F(BlockFile, TheSizeNeverFalls) {
  OpenOn("abcdef");
  file.RereadTail = true;
  EXPECT_EQ(file.ByteAt(5), 'f');
  Shorten(2);
  EXPECT_EQ(file.ByteAt(6), -1);
  EXPECT_EQ(file.FileSize, 6);
  EXPECT_EQ(file.ByteAt(1), 'b');
  EXPECT_EQ(file.ByteAt(2), -1) << "the tail was read again, and has it no more";
}

TEST_F(BlockFile, AShortenedFileEndsWhereItsDataEnd) {
  OpenBlocks(3);
  Shorten(kBlock + 10);
  const uint8_t* bytes = nullptr;
  EXPECT_EQ(file.ByteAt(kBlock + 9), 2);
  EXPECT_EQ(file.ByteAt(kBlock + 10), -1);
  EXPECT_EQ(BlockByte(2), -1);
  EXPECT_EQ(file.BytesFrom(kBlock, bytes), 10);
  EXPECT_EQ(file.FileSize, 3 * kBlock);
}

TEST_F(BlockFile, ARemovedFileIsReadOn) {
  OpenBlocks(3);
  ASSERT_EQ(unlink(Path().c_str()), 0);
  for (int k = 0; k < 3; ++k) EXPECT_EQ(BlockByte(k), k + 1);
}

// ---- reads that fail

TEST_F(BlockFile, ABlockThatCannotBeReadHasNoBytesAndTheOthersDo) {
  OpenBlocks(31);
  EXPECT_EQ(BlockByte(30), 31);  // the last one, so that none is read ahead
  const Fault broken(kCallRead, {.path = Path(), .code = EIO});
  EXPECT_EQ(BlockByte(10), -1);
  EXPECT_EQ(file.ByteAt(10 * kBlock + 77), -1);
  EXPECT_EQ(BlockByte(20), 21);
  EXPECT_EQ(file.FileSize, 31 * kBlock);
}

TEST_F(BlockFile, AnInterruptedReadGoesOn) {
  OpenBlocks(1);
  const Fault interrupted(kCallRead, {.path = Path(), .times = 3, .code = EINTR});
  EXPECT_EQ(BlockByte(0), 1);
  EXPECT_EQ(file.ByteAt(kBlock - 1), 1);
}

TEST_F(BlockFile, AFileThatFailsFromTheStartHasNoBytes) {
  OpenOn("abc");
  const Fault broken(kCallRead, {.path = Path(), .times = kEveryCall, .code = EIO});
  EXPECT_EQ(file.ByteAt(0), -1);
  EXPECT_EQ(file.ByteAt(0), -1);
  EXPECT_EQ(broken.Calls(), 1) << "a block that failed is not tried at every byte";
}

// ---- files of other kinds

TEST_F(BlockFile, WhatIsMissingOrForbiddenTellsTheSystemsError) {
  EXPECT_EQ(Open(box.Path("none")), ENOENT);
  EXPECT_EQ(file.Error(), ENOENT);
  box.Write("secret", "x");
  ASSERT_EQ(chmod(box.Path("secret").c_str(), 0), 0);
  const AsNobody user(box.Path());
  EXPECT_EQ(Open(box.Path("secret")), EACCES);
  EXPECT_EQ(file.Error(), EACCES);
  EXPECT_FALSE(file.IsOpen());
}

TEST_F(BlockFile, ADirectoryIsRefused) {
  EXPECT_EQ(Open(box.Path()), EISDIR);
  EXPECT_EQ(file.Error(), EISDIR);
  EXPECT_FALSE(file.IsOpen());
}

TEST_F(BlockFile, AFifoIsRefusedAtOnce) {
  ASSERT_EQ(mkfifo(box.Path("fifo").c_str(), 0600), 0);
  EXPECT_EQ(Open(box.Path("fifo")), EOPNOTSUPP);
  EXPECT_FALSE(file.IsOpen());
}

TEST_F(BlockFile, AFifoThatTookAFilesPlaceDoesNotHoldUp) {
  box.Write("file", "abc");
  const Fault swap(kCallOpen, {.path = Path(), .before = [this] {
                                 ASSERT_EQ(unlink(Path().c_str()), 0);
                                 ASSERT_EQ(mkfifo(Path().c_str(), 0600), 0);
                               }});
  EXPECT_EQ(Open(Path()), 0);
  EXPECT_EQ(file.ByteAt(0), -1);
}

TEST_F(BlockFile, DevicesAndSocketsAreRefused) {
  EXPECT_EQ(Open("/dev/null"), EOPNOTSUPP);
  EXPECT_EQ(Open("/dev/zero"), EOPNOTSUPP) << "it would have no end";
  const int fd = socket(AF_UNIX, SOCK_STREAM, 0);
  sockaddr_un address{AF_UNIX, {}};
  box.Path("socket").copy(address.sun_path, sizeof address.sun_path - 1);
  ASSERT_EQ(bind(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  EXPECT_EQ(Open(box.Path("socket")), EOPNOTSUPP);
  close(fd);
}

TEST_F(BlockFile, AFileThatTellsNoSizeIsReadAllTheSame) {
  for (const char* path : {"/proc/version", "/proc/filesystems", "/proc/kallsyms"}) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream) continue;
    std::string content(3 * kBlock, 0);
    stream.read(content.data(), 3 * kBlock);
    content.resize(static_cast<size_t>(stream.gcount()));
    ASSERT_FALSE(content.empty()) << path;
    ASSERT_EQ(Open(path), 0) << path;
    EXPECT_EQ(file.FileSize, 0) << path;
    for (size_t i = 0; i < content.size(); ++i)
      ASSERT_EQ(file.ByteAt(static_cast<int64_t>(i)), static_cast<uint8_t>(content[i])) << path << " " << i;
    EXPECT_GE(file.FileSize, static_cast<int64_t>(content.size())) << path;
  }
}

TEST_F(BlockFile, AnEmptyFileHasNoByte) {
  OpenOn("");
  EXPECT_EQ(file.ByteAt(0), -1);
  EXPECT_EQ(file.FileSize, 0);
  file.RereadTail = true;
  EXPECT_EQ(file.ByteAt(0), -1);
  Append("a");
  EXPECT_EQ(file.ByteAt(0), 'a');
}
