// The rows that scrolled off.
#include "console/scrollback.h"

#include <gtest/gtest.h>
#include <malloc.h>
#include <sys/resource.h>

#include <cstdlib>
#include <random>

#include "support/cells.h"

namespace {

std::vector<Cell> RowOf(int n, int32_t character) { return std::vector<Cell>(n, Cell{character, 7}); }

void Append(CScrollBackBuffer& buffer, const std::vector<Cell>& row) {
  buffer.Append(row.data(), static_cast<int>(row.size()));
}

std::vector<Cell> RowIn(const CScrollBackBuffer& buffer, int i) {
  int length = 0;
  const Cell* cells = buffer.Row(i, length);
  return std::vector<Cell>(cells, cells + length);
}

int64_t NoMemory() { return 0; }

size_t BytesInUse() {
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

}  // namespace

TEST(ScrollBackBuffer, StartsEmpty) {
  CScrollBackBuffer buffer;
  EXPECT_EQ(buffer.Count(), 0);
  buffer.RemoveLast(3);
  buffer.Clear();
  EXPECT_EQ(buffer.Count(), 0);
}

TEST(ScrollBackBuffer, OwnsItsRows) {
  CScrollBackBuffer buffer;
  std::vector<Cell> row = RowOf(3, 'a');
  Append(buffer, row);
  row[0].character = 'x';
  EXPECT_TRUE(RowIn(buffer, 0) == RowOf(3, 'a'));
}

TEST(ScrollBackBuffer, KeepsRowsOfAnyLength) {
  CScrollBackBuffer buffer;
  for (int i = 0; i < 5000; ++i) Append(buffer, RowOf(i % 300, i));
  ASSERT_EQ(buffer.Count(), 5000);
  for (int i = 0; i < 5000; ++i) ASSERT_TRUE(RowIn(buffer, i) == RowOf(i % 300, i)) << i;
}

TEST(ScrollBackBuffer, ARowOfNoCellsOrLessIsEmpty) {
  CScrollBackBuffer buffer;
  const Cell cell{'a', 7};
  buffer.Append(&cell, 0);
  buffer.Append(&cell, -5);
  buffer.Append(nullptr, 0);
  ASSERT_EQ(buffer.Count(), 3);
  EXPECT_TRUE(RowIn(buffer, 1).empty());
}

TEST(ScrollBackBuffer, RemovesFromTheEnd) {
  for (const int removed : {0, 1, 1023, 1024, 1025, 2048, 2999, 3000, 5000}) {
    CScrollBackBuffer buffer;
    for (int i = 0; i < 3000; ++i) Append(buffer, RowOf(4, i));
    buffer.RemoveLast(removed);
    const int left = std::max(3000 - removed, 0);
    ASSERT_EQ(buffer.Count(), left);
    if (left > 0) {
      EXPECT_TRUE(RowIn(buffer, left - 1) == RowOf(4, left - 1)) << removed;
    }
    Append(buffer, RowOf(5, 'z'));
    EXPECT_TRUE(RowIn(buffer, left) == RowOf(5, 'z')) << removed;
  }
}

TEST(ScrollBackBuffer, ANegativeNumberRemovesNothing) {
  CScrollBackBuffer buffer;
  Append(buffer, RowOf(4, 'a'));
  buffer.RemoveLast(-1);
  EXPECT_EQ(buffer.Count(), 1);
}

TEST(ScrollBackBuffer, IsAsAPlainListOfRowsUnderAnyUse) {
  std::mt19937 random(1);
  CScrollBackBuffer buffer;
  std::vector<std::vector<Cell>> rows;
  for (int step = 0; step < 20000; ++step) {
    if (random() % 100 < 97) {
      rows.push_back(RowOf(static_cast<int>(random() % 90), step));
      Append(buffer, rows.back());
    } else {
      const size_t removed = std::min<size_t>(random() % 60, rows.size());
      rows.resize(rows.size() - removed);
      buffer.RemoveLast(static_cast<int>(removed));
    }
    if (rows.empty()) continue;
    const size_t any = random() % rows.size();
    ASSERT_TRUE(RowIn(buffer, static_cast<int>(any)) == rows[any]) << step;
  }
  EXPECT_EQ(buffer.Count(), static_cast<int>(rows.size()));
}

TEST(ScrollBackBuffer, TheOldestRowsMakeRoomWhereMemoryIsShort) {
  CScrollBackBuffer buffer(NoMemory);
  for (int i = 0; i < 10000; ++i) {
    Append(buffer, RowOf(8, i));
    ASSERT_GE(buffer.Count(), std::min(i + 1, 1024));  // or there were nothing to look back at
    ASSERT_TRUE(RowIn(buffer, buffer.Count() - 1) == RowOf(8, i)) << i;
  }
  EXPECT_LE(buffer.Count(), 2 * 1024);
  for (int i = 0; i < buffer.Count(); ++i)
    EXPECT_TRUE(RowIn(buffer, i) == RowOf(8, 10000 - buffer.Count() + i)) << i;
  buffer.RemoveLast(3);
  EXPECT_TRUE(RowIn(buffer, buffer.Count() - 1) == RowOf(8, 9996));
}

TEST(ScrollBackBuffer, WhatIsThereStaysWhenMemoryGetsShort) {
  static int64_t left;
  left = INT64_MAX;
  CScrollBackBuffer buffer([] { return left; });
  for (int i = 0; i < 5 * 1024; ++i) Append(buffer, RowOf(8, i));
  EXPECT_EQ(buffer.Count(), 5 * 1024);
  left = 0;
  for (int i = 5 * 1024; i < 9 * 1024; ++i) Append(buffer, RowOf(8, i));
  EXPECT_EQ(buffer.Count(), 5 * 1024);
  EXPECT_TRUE(RowIn(buffer, 0) == RowOf(8, 4 * 1024));
  left = INT64_MAX;
  for (int i = 0; i < 1024; ++i) Append(buffer, RowOf(8, i));
  EXPECT_EQ(buffer.Count(), 6 * 1024);
}

// 800 megabytes of rows where less than 512 may be had. Not in this process: its
// limit would hold for all tests that follow.
TEST(ScrollBackBuffer, AFloodDoesNotEndAProcessOfLittleMemory) {
  if (BytesInUse() == 0) GTEST_SKIP() << "the allocator takes all addresses there are";
  const auto flood = [] {
    const rlimit limit{rlim_t{512} << 20, rlim_t{512} << 20};
    setrlimit(RLIMIT_AS, &limit);
    CScrollBackBuffer buffer;
    const std::vector<Cell> row = RowOf(200, 'a');
    for (int i = 0; i < 800000; ++i) Append(buffer, row);
    const bool isKept = buffer.Count() > 100000;
    std::exit(isKept ? 0 : 1);
  };
  EXPECT_EXIT(flood(), testing::ExitedWithCode(0), "");
}

TEST(ScrollBackBuffer, CostsLittleMoreThanItsCells) {
  constexpr int kRows = 200000, kColumns = 80;
  const size_t before = BytesInUse();
  if (before == 0) GTEST_SKIP() << "the allocator keeps no account";
  const std::vector<Cell> row = RowOf(kColumns, 'a');
  CScrollBackBuffer buffer;
  for (int i = 0; i < kRows; ++i) Append(buffer, row);
  const auto used = static_cast<double>(BytesInUse() - before);
  EXPECT_LE(used, 1.05 * 5 * kColumns * kRows);
  EXPECT_GE(used, 1.00 * 5 * kColumns * kRows);  // or it is not counted
}

TEST(ScrollBackBuffer, RowsOfChangingLengthCostLittleMoreToo) {
  const size_t before = BytesInUse();
  if (before == 0) GTEST_SKIP() << "the allocator keeps no account";
  CScrollBackBuffer buffer;
  double cells = 0;
  for (int i = 0; i < 50000; ++i) {
    const std::vector<Cell> row = RowOf(i / 100 % 2 == 0 ? 80 : 132, 'a');
    Append(buffer, row);
    cells += static_cast<double>(row.size());
  }
  EXPECT_LE(static_cast<double>(BytesInUse() - before), 1.05 * 5 * cells);
}
