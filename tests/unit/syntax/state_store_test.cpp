// Checkpoints of the colouring.
#include "syntax/state_store.h"

#include <gtest/gtest.h>

namespace {

class StateStore : public testing::Test {
 protected:
  // A stack of so many elements.
  void Remember(int64_t position, int depth) {
    CContextStack stack;
    for (int i = 0; i < depth; ++i) stack.Push(&block);
    store.Remember(position, stack);
  }
  int DepthAt(int64_t position) { return store.Find(position)->State.Count(); }

  CSyntaxBlock block;
  CSyntaxStateStore store;
};

TEST_F(StateStore, BeginsWithAnEmptyStackAtTheStart) {
  ASSERT_EQ(store.Count(), 1);
  EXPECT_EQ(store.Find(0)->Position, 0);
  EXPECT_EQ(DepthAt(1000), 0);
}

TEST_F(StateStore, FindsTheLastOneAtOrBeforeAPosition) {
  Remember(100, 1);
  Remember(50, 2);
  EXPECT_EQ(store.Find(49)->Position, 0);
  EXPECT_EQ(store.Find(50)->Position, 50);
  EXPECT_EQ(store.Find(99)->Position, 50);
  EXPECT_EQ(store.Find(100)->Position, 100);
  EXPECT_EQ(store.Find(int64_t{1} << 40)->Position, 100);
  EXPECT_EQ(DepthAt(60), 2);
}

TEST_F(StateStore, FindsNothingBeforeTheStart) { EXPECT_EQ(store.Find(-1), nullptr); }

TEST_F(StateStore, AClearedOneHasNothingUntilReset) {
  store.Clear();
  EXPECT_EQ(store.Find(10), nullptr);
  store.Reset();
  EXPECT_NE(store.Find(10), nullptr);
}

TEST_F(StateStore, WhatIsKnownOfAPositionStays) {
  Remember(100, 1);
  Remember(100, 2);
  Remember(0, 3);
  EXPECT_EQ(store.Count(), 2);
  EXPECT_EQ(DepthAt(100), 1);
  EXPECT_EQ(DepthAt(0), 0);
}

TEST_F(StateStore, KeepsACopy) {
  CContextStack stack;
  stack.Push(&block);
  store.Remember(10, stack);
  stack.Clear();
  EXPECT_EQ(DepthAt(10), 1);
}

TEST_F(StateStore, PositionsAreOf64Bits) {
  constexpr int64_t kFar = int64_t{1} << 32;
  Remember(kFar, 1);
  Remember(kFar + 1, 2);
  EXPECT_EQ(store.Find(1)->Position, 0);
  EXPECT_EQ(DepthAt(kFar), 1);
  EXPECT_EQ(DepthAt(kFar + 1), 2);
}

TEST_F(StateStore, ResetForgetsAll) {
  Remember(10, 1);
  store.Reset();
  EXPECT_EQ(store.Count(), 1);
  EXPECT_EQ(store.Find(10)->Position, 0);
}

TEST_F(StateStore, ManyLinesKeepEvenlySpacedCheckpoints) {
  constexpr int64_t kLines = 300000, kLineBytes = 40;
  for (int64_t line = 1; line <= kLines; ++line) Remember(line * kLineBytes, static_cast<int>(line % 3));
  EXPECT_LT(store.Count(), 60000);
  EXPECT_EQ(store.Find(1)->Position, 0);
  for (int64_t line = 1; line <= kLines; line += 997) {
    const TPositionSyntaxState* found = store.Find(line * kLineBytes);
    ASSERT_NE(found, nullptr);
    EXPECT_LT(line * kLineBytes - found->Position, kLines * kLineBytes / 500) << line;
    EXPECT_EQ(found->State.Count(), found->Position / kLineBytes % 3) << line;
  }
}

TEST_F(StateStore, DeepStacksCountForTheirSize) {
  for (int64_t line = 1; line <= 5000; ++line) Remember(line, CContextStack::kDeepest);
  EXPECT_LT(store.Count(), 1100);
  EXPECT_EQ(DepthAt(5000), CContextStack::kDeepest);
  store.Reset();
  for (int64_t line = 1; line <= 5000; ++line) Remember(line, 0);
  EXPECT_EQ(store.Count(), 5001);
}

}  // namespace
