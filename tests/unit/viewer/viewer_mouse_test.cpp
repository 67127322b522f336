// What a press means, by its place.
#include "viewer/viewer_mouse.h"

#include <gtest/gtest.h>

namespace {

constexpr int kColumns = 80, kRows = 24;

TEST(ViewerSteps, TheUpperAndTheLowerThirdAreRows) {
  for (int x = 0; x < kColumns; ++x) {
    for (int y = 0; y < 8; ++y) EXPECT_EQ(StepAt(x, y, kColumns, kRows), -1) << x << "," << y;
    for (int y = 16; y < 24; ++y) EXPECT_EQ(StepAt(x, y, kColumns, kRows), 1) << x << "," << y;
  }
}

TEST(ViewerSteps, TheMiddleThirdIsColumns) {
  for (int y = 8; y < 16; ++y) {
    for (int x = 0; x < 27; ++x) EXPECT_EQ(StepAt(x, y, kColumns, kRows), -4) << x;
    for (int x = 27; x < 54; ++x) EXPECT_EQ(StepAt(x, y, kColumns, kRows), 0) << x;
    for (int x = 54; x < 80; ++x) EXPECT_EQ(StepAt(x, y, kColumns, kRows), 4) << x;
  }
}

TEST(ViewerSteps, PlacesOutsideOfTheScreenAreTheNearestInside) {
  EXPECT_EQ(StepAt(0, -5, kColumns, kRows), -1);
  EXPECT_EQ(StepAt(0, 1000, kColumns, kRows), 1);
  EXPECT_EQ(StepAt(-5, 12, kColumns, kRows), -4);
  EXPECT_EQ(StepAt(0, 0, 0, 0), -1);
}

TEST(ViewerSteps, EachHasItsKey) {
  EXPECT_EQ(KeyOfStep(-8), Key{kCtrlLeft});
  EXPECT_EQ(KeyOfStep(-4), Key{kLeft});
  EXPECT_EQ(KeyOfStep(-2), Key{kPageUp});
  EXPECT_EQ(KeyOfStep(-1), Key{kUp});
  EXPECT_EQ(KeyOfStep(0), Key{0});
  EXPECT_EQ(KeyOfStep(1), Key{kDown});
  EXPECT_EQ(KeyOfStep(2), Key{kPageDown});
  EXPECT_EQ(KeyOfStep(4), Key{kRight});
  EXPECT_EQ(KeyOfStep(8), Key{kCtrlRight});
}

}  // namespace
