#include "dialogs/elements.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

TEST(ProgressIndicatorBar, IsFilledByTheFractionCutTowardsZero) {
  EXPECT_EQ(FilledCells(0.0f, 36), 0);
  EXPECT_EQ(FilledCells(0.5f, 36), 18);
  EXPECT_EQ(FilledCells(0.49f, 10), 4);
  EXPECT_EQ(FilledCells(1.0f, 36), 36);
}

TEST(ProgressIndicatorBar, IsFullForMoreThanAll) {
  EXPECT_EQ(FilledCells(1.5f, 36), 36);
  EXPECT_EQ(FilledCells(std::numeric_limits<float>::infinity(), 36), 36);
}

TEST(ProgressIndicatorBar, IsEmptyForWhatIsNoShare) {
  EXPECT_EQ(FilledCells(-0.5f, 36), 0);
  EXPECT_EQ(FilledCells(std::numeric_limits<float>::quiet_NaN(), 36), 0);
}

}  // namespace
