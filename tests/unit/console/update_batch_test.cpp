// Nested batches and their one rectangle.
#include "console/update_batch.h"

#include <gtest/gtest.h>

TEST(UpdateBatch, EndWithoutAWriteDrawsNothing) {
  UpdateBatch batch;
  batch.Begin();
  EXPECT_TRUE(batch.End().IsEmpty());
}

TEST(UpdateBatch, EndWithoutABeginDoesNothing) {
  UpdateBatch batch;
  EXPECT_TRUE(batch.End().IsEmpty());
  EXPECT_FALSE(batch.IsOpen());
  batch.Begin();
  EXPECT_TRUE(batch.IsOpen());
}

TEST(UpdateBatch, AllChangesAreOneRectangleAtTheOutermostEnd) {
  UpdateBatch batch;
  batch.Begin();
  batch.Add({1, 1, 2, 2});
  batch.Begin();
  batch.Add({5, 7, 5, 7});
  EXPECT_TRUE(batch.End().IsEmpty());
  EXPECT_EQ(batch.End(), (CellRect{1, 1, 5, 7}));
}

TEST(UpdateBatch, ASecondBeginKeepsWhatIsDirty) {
  UpdateBatch batch;
  batch.Begin();
  batch.Add({1, 1, 2, 2});
  batch.Begin();
  batch.End();
  EXPECT_EQ(batch.End(), (CellRect{1, 1, 2, 2}));
}

TEST(UpdateBatch, ANewBatchStartsClean) {
  UpdateBatch batch;
  batch.Begin();
  batch.Add({1, 1, 2, 2});
  batch.End();
  batch.Begin();
  EXPECT_TRUE(batch.End().IsEmpty());
}

TEST(UpdateBatch, WhatWasNotDrawnIsDirtyWhereAScrollMovedIt) {
  UpdateBatch batch;
  batch.Begin();
  batch.Add({2, 5, 3, 5});
  batch.AddScrolled({0, 0, 9, 9}, 2);
  EXPECT_EQ(batch.End(), (CellRect{2, 3, 3, 5}));
}

TEST(UpdateBatch, AScrollElsewhereAddsNothing) {
  UpdateBatch batch;
  batch.Begin();
  batch.Add({2, 5, 3, 5});
  batch.AddScrolled({0, 6, 9, 9}, 1);
  batch.AddScrolled({0, 5, 9, 9}, 1);  // row 5 leaves the block
  EXPECT_EQ(batch.End(), (CellRect{2, 5, 3, 5}));
}
