// Where the rows of the screen are in the picture.
#include "console/picture_rows.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

class PictureRowsTest : public testing::Test {
 protected:
  PictureRowsTest() { rows.Reset(kRows); }

  std::vector<int> Places() const {
    std::vector<int> places;
    for (int row = 0; row < kRows; ++row) places.push_back(rows.At(row));
    return places;
  }

  static constexpr int kRows = 6;
  PictureRows rows;
};

using Numbers = std::vector<int>;

TEST_F(PictureRowsTest, BeginInOrder) {
  EXPECT_EQ(Places(), (Numbers{0, 1, 2, 3, 4, 5}));
  EXPECT_EQ(rows.Run(0, 5), 6);
}

TEST_F(PictureRowsTest, AScrollMovesTheRowsOfItsBlockOnly) {
  rows.Scroll(1, 4, 1);
  EXPECT_EQ(Places(), (Numbers{0, 2, 3, 4, 1, 5}));
  rows.Scroll(1, 4, -1);
  EXPECT_EQ(Places(), (Numbers{0, 1, 2, 3, 4, 5}));
}

TEST_F(PictureRowsTest, AScrollDownBySeveral) {
  rows.Scroll(1, 5, -2);
  EXPECT_EQ(Places(), (Numbers{0, 4, 5, 1, 2, 3}));
}

TEST_F(PictureRowsTest, AScrollThatLeavesNothingIsNone) {
  rows.Scroll(1, 3, 3);
  rows.Scroll(1, 3, -7);
  EXPECT_EQ(Places(), (Numbers{0, 1, 2, 3, 4, 5}));
}

TEST_F(PictureRowsTest, ARunEndsWhereThePictureDoesNotFollow) {
  rows.Scroll(1, 4, 1);  // 0 2 3 4 1 5
  EXPECT_EQ(rows.Run(0, 5), 1);
  EXPECT_EQ(rows.Run(1, 5), 3);
  EXPECT_EQ(rows.Run(1, 2), 2);
  EXPECT_EQ(rows.Run(4, 5), 1);
}

TEST_F(PictureRowsTest, ARunUpwardEndsLikewise) {
  rows.Scroll(1, 4, 1);  // 0 2 3 4 1 5
  EXPECT_EQ(rows.Run(3, 0, -1), 3);
  EXPECT_EQ(rows.Run(3, 2, -1), 2);
  EXPECT_EQ(rows.Run(5, 0, -1), 1);
}

}  // namespace
