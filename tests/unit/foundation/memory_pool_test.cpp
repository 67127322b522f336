// The bump allocator.
#include "foundation/memory_pool.h"

#include <gtest/gtest.h>

#include <cstring>

TEST(MemoryPool, AllocationsFollowEachOtherWithoutAlignment) {
  MemoryPool pool;
  EXPECT_EQ(pool.Count(), 1);
  auto* const first = static_cast<char*>(pool.Alloc(3));
  EXPECT_EQ(pool.Alloc(5), first + 3);
  EXPECT_EQ(pool.Alloc(0), first + 8);
  EXPECT_EQ(pool.Alloc(1), first + 8);
  EXPECT_EQ(first, pool.Peek(0)->base);
}

TEST(MemoryPool, BlockIsUsedToItsLastByte) {
  MemoryPool pool;
  auto* const first = static_cast<char*>(pool.Alloc(0x10000));
  memset(first, 'x', 0x10000);
  EXPECT_EQ(pool.Count(), 1);
  EXPECT_NE(pool.Alloc(1), nullptr);
  EXPECT_EQ(pool.Count(), 2);
  EXPECT_EQ(pool.Peek(1)->size, 0x10000);
}

TEST(MemoryPool, LargeRequestGetsABlockOfItsOwnSize) {
  MemoryPool pool;
  pool.Alloc(1);
  EXPECT_NE(pool.Alloc(0x20000), nullptr);
  ASSERT_EQ(pool.Count(), 2);
  EXPECT_EQ(pool.Peek(1)->size, 0x20000);
  auto* const small = static_cast<char*>(pool.Alloc(4));
  ASSERT_EQ(pool.Count(), 3);
  EXPECT_EQ(pool.Peek(2)->size, 0x10000);
  EXPECT_EQ(small, pool.Peek(2)->base);
}

TEST(MemoryPool, NothingGoesBackToAnEarlierBlock) {
  MemoryPool pool;
  pool.Alloc(10);
  pool.Alloc(0xFFFF);
  ASSERT_EQ(pool.Count(), 2);
  EXPECT_EQ(pool.Alloc(1), pool.Peek(1)->base + 0xFFFF);
  void* const next = pool.Alloc(1);
  ASSERT_EQ(pool.Count(), 3);
  EXPECT_EQ(next, pool.Peek(2)->base);
}

TEST(MemoryPool, ResetLeavesOneFreshBlock) {
  MemoryPool pool;
  pool.Alloc(100);
  pool.Alloc(0x20000);
  pool.Reset();
  ASSERT_EQ(pool.Count(), 1);
  EXPECT_EQ(pool.Peek(0)->size, 0x10000);
  EXPECT_EQ(pool.Alloc(1), pool.Peek(0)->base);
}

TEST(MemoryPool, NegativeSizeGivesNothing) {
  MemoryPool pool;
  auto* const first = static_cast<char*>(pool.Alloc(8));
  EXPECT_EQ(pool.Alloc(-4), nullptr);
  EXPECT_EQ(pool.Alloc(1), first + 8);
}
