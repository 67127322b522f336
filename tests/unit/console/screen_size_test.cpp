// Screens that the display can't hold are cut.
#include "console/screen_size.h"

#include <gtest/gtest.h>

namespace {

void ExpectSize(ScreenSize size, int columns, int rows) {
  EXPECT_EQ(size.columns, columns);
  EXPECT_EQ(size.rows, rows);
}

}  // namespace

TEST(ScreenSizes, OrdinaryOnesStay) {
  ExpectSize(BoundScreen({80, 25}, 10, 20), 80, 25);
  ExpectSize(BoundScreen({240, 80}, 10, 20), 240, 80);
}

TEST(ScreenSizes, NoSideIsLongerThanAWindowMayBe) {
  ExpectSize(BoundScreen({80, 9999}, 10, 20), 80, 1638);
  ExpectSize(BoundScreen({9999, 25}, 10, 20), 3276, 25);
}

TEST(ScreenSizes, ThePictureHasALimitOfItsOwn) {
  const ScreenSize size = BoundScreen({9999, 9999}, 10, 20);
  EXPECT_EQ(size.columns, 3276);
  EXPECT_LE(size.columns * 10 * size.rows * 20, 32 * 1024 * 1024);
  EXPECT_GT(size.columns * 10 * (size.rows + 1) * 20, 32 * 1024 * 1024);
}

TEST(ScreenSizes, OneCellAlwaysRemains) {
  ExpectSize(BoundScreen({0, -5}, 10, 20), 1, 1);
  ExpectSize(BoundScreen({10, 10}, 40000, 70000), 1, 1);
}
