#include "dialogs/win_geometry.h"

#include <gtest/gtest.h>

namespace {

constexpr int kColumns = 80, kRows = 25;

CellRect Place(int left, int top, int right, int bottom) {
  return PlaceWindow(left, top, right, bottom, kColumns, kRows);
}

std::tuple<int, int, int, int> Corners(const CellRect& rect) {
  return {rect.left, rect.top, rect.right, rect.bottom};
}

using Corner = std::tuple<int, int, int, int>;

TEST(WinGeometry, CornersStandAsTheyAre) { EXPECT_EQ(Corners(Place(3, 4, 20, 10)), Corner(3, 4, 20, 10)); }

TEST(WinGeometry, ATopOfMinusThreePutsFiveRowsAtRowSix) {
  EXPECT_EQ(Corners(Place(-1, -3, 40, 5)), Corner(20, 6, 59, 10));
}

TEST(WinGeometry, ATopOfMinusTwoIsTheMiddleAndMinusOneTheBottom) {
  EXPECT_EQ(Corners(Place(0, -2, 9, 5)), Corner(0, 10, 9, 14));
  EXPECT_EQ(Corners(Place(0, -1, 9, 5)), Corner(0, 20, 9, 24));
}

TEST(WinGeometry, OnlyTheNegativeSideIsPlaced) {
  EXPECT_EQ(Corners(Place(-1, 2, 10, 8)), Corner(35, 2, 44, 8));
  EXPECT_EQ(Corners(Place(7, -2, 10, 5)), Corner(7, 10, 10, 14));
}

TEST(WinGeometry, AnOddRestOfColumnsLeavesTheSmallerPartOnTheLeft) {
  EXPECT_EQ(Corners(Place(-1, 0, 41, 5)), Corner(19, 0, 59, 5));
}

TEST(WinGeometry, AWindowLargerThanTheScreenStartsAtItsEdge) {
  EXPECT_EQ(Corners(Place(-1, -3, 100, 40)), Corner(0, 0, 99, 39));
}

TEST(WinGeometry, AWindowWithoutASizeIsACell) {
  EXPECT_EQ(Corners(Place(5, 5, 3, 4)), Corner(5, 5, 5, 5));
  EXPECT_EQ(Corners(Place(-1, -2, 0, -9)), Corner(40, 17, 40, 17));
}

TEST(WinGeometry, AShadowNeedsARowBelowAndTwoColumns) {
  EXPECT_TRUE(HasRoomForShadow({10, 10, kColumns - 3, kRows - 2}, kColumns, kRows));
  EXPECT_FALSE(HasRoomForShadow({10, 10, kColumns - 2, kRows - 2}, kColumns, kRows));
  EXPECT_FALSE(HasRoomForShadow({10, 10, kColumns - 1, kRows - 2}, kColumns, kRows));
  EXPECT_FALSE(HasRoomForShadow({10, 10, kColumns - 3, kRows - 1}, kColumns, kRows));
}

TEST(WinGeometry, AShadowDarkensBrightColoursAndMakesAllOthersGrey) {
  EXPECT_EQ(ShadowAttribute(0x1E), 0x06);
  EXPECT_EQ(ShadowAttribute(0x48), 0x00);
  EXPECT_EQ(ShadowAttribute(0x17), 0x08);
  EXPECT_EQ(ShadowAttribute(0x70), 0x08);
}

TEST(WinGeometry, AHighlightKeepsTheBackground) {
  EXPECT_EQ(HighlightAttribute(0x4F), 0x4E);
  EXPECT_EQ(HighlightAttribute(0x3E), 0x3F);
  EXPECT_EQ(HighlightAttribute(0x70), 0x71);
  EXPECT_EQ(HighlightAttribute(0x71), 0x70);
  EXPECT_EQ(HighlightAttribute(0x7E), 0x7F);
}

TEST(WinGeometry, ALetterIsSoughtAsACapitalFirst) {
  EXPECT_EQ(FindLetter("son of Sam", 's'), 7);
  EXPECT_EQ(FindLetter("[ Skip ]", 's'), 2);
  EXPECT_EQ(FindLetter("[ None ]", 'e'), 5);
  EXPECT_EQ(FindLetter("[ None ]", '['), 0);
  EXPECT_EQ(FindLetter("[ None ]", 'x'), -1);
  EXPECT_EQ(FindLetter("[ None ]", 0), -1);
}

TEST(WinGeometry, ALineIsBrokenAtTheLastBlankThatItsWidthReaches) {
  EXPECT_EQ(WrappedLength(L"one two three", 9), 7);
  EXPECT_EQ(WrappedLength(L"one two three", 7), 7);  // the blank behind the width counts
  EXPECT_EQ(WrappedLength(L"one two three", 6), 3);
}

TEST(WinGeometry, ALineWithoutABlankIsCutAtItsWidth) { EXPECT_EQ(WrappedLength(L"abcdefghij", 4), 4); }

TEST(WinGeometry, ATextOfOneMoreThanTheWidthIsNotBroken) {
  EXPECT_EQ(WrappedLength(L"abcd", 4), 4);
  EXPECT_EQ(WrappedLength(L"ab cd", 4), 5);
  EXPECT_EQ(WrappedLength(L"ab cde", 4), 2);
}

TEST(WinGeometry, AWidthOfNothingTakesNothingOfALongText) {
  EXPECT_EQ(WrappedLength(L"abc", 0), 0);
  EXPECT_EQ(WrappedLength(L"abc", -7), 0);
}

}  // namespace
