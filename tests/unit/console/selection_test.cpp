// Selecting text with the mouse.
#include "console/selection.h"

#include <gtest/gtest.h>

namespace {

Selection SelectionIn(const CellRect& region) {
  Selection selection;
  selection.SetRegion(region);
  return selection;
}

}  // namespace

TEST(Selections, WithoutARegionTheMouseIsNotTheirs) {
  Selection selection;
  EXPECT_FALSE(selection.Press(0, 0));
  EXPECT_FALSE(selection.Drag(0, 0));
  selection.SetRegion({5, 5, 4, 9});  // of no width
  EXPECT_FALSE(selection.Press(5, 5));
}

TEST(Selections, APressAloneSelectsNothing) {
  Selection selection = SelectionIn({0, 0, 79, 22});
  EXPECT_TRUE(selection.Press(3, 4));
  EXPECT_FALSE(selection.IsActive());
  EXPECT_TRUE(selection.Selected().IsEmpty());
}

TEST(Selections, AMotionInThePressedCellSelectsIt) {
  Selection selection = SelectionIn({0, 0, 79, 22});
  selection.Press(3, 4);
  EXPECT_TRUE(selection.Drag(3, 4));
  EXPECT_EQ(selection.Selected(), (CellRect{3, 4, 3, 4}));
}

TEST(Selections, GrowAndShrinkAtTheCornerThatMoves) {
  Selection selection = SelectionIn({0, 0, 79, 22});
  selection.Press(10, 10);
  selection.Drag(15, 12);
  EXPECT_EQ(selection.Selected(), (CellRect{10, 10, 15, 12}));
  selection.Drag(12, 11);
  EXPECT_EQ(selection.Selected(), (CellRect{10, 10, 12, 11}));
}

TEST(Selections, GrowToTheLeftAndUp) {
  Selection selection = SelectionIn({0, 0, 79, 22});
  selection.Press(10, 10);
  selection.Drag(5, 7);
  EXPECT_EQ(selection.Selected(), (CellRect{5, 7, 10, 10}));
  selection.Drag(8, 9);
  EXPECT_EQ(selection.Selected(), (CellRect{8, 9, 10, 10}));
}

TEST(Selections, AJumpOverTheAnchorKeepsTheFarEdge) {
  Selection selection = SelectionIn({0, 0, 79, 22});
  selection.Press(10, 10);
  selection.Drag(15, 10);
  selection.Drag(5, 10);
  EXPECT_EQ(selection.Selected(), (CellRect{5, 10, 15, 10}));
  selection.Drag(7, 10);
  EXPECT_EQ(selection.Selected(), (CellRect{7, 10, 15, 10}));
}

TEST(Selections, OutsideTheRegionTheDragIsTheApplications) {
  Selection selection = SelectionIn({0, 0, 79, 22});
  selection.Press(10, 10);
  selection.Drag(12, 12);
  EXPECT_FALSE(selection.Drag(12, 23));
  EXPECT_FALSE(selection.Drag(80, 12));
  EXPECT_EQ(selection.Selected(), (CellRect{10, 10, 12, 12}));
}

TEST(Selections, ADragThatBeganOutsideSelectsNothing) {
  Selection selection = SelectionIn({0, 0, 79, 22});
  EXPECT_FALSE(selection.Press(10, 24));
  EXPECT_FALSE(selection.Drag(10, 22));
  EXPECT_FALSE(selection.IsActive());
}

TEST(Selections, ANewPressClearsTheOld) {
  Selection selection = SelectionIn({0, 0, 79, 22});
  selection.Press(10, 10);
  selection.Drag(12, 12);
  EXPECT_TRUE(selection.Press(1, 1));
  EXPECT_FALSE(selection.IsActive());
  selection.Drag(12, 12);
  selection.Clear();
  EXPECT_FALSE(selection.Drag(13, 13));
}

TEST(SelectedText, IsRightTrimmedRowsWithLineFeeds) {
  CellGrid grid(10, 4);
  grid.PutString(0, 0, L"xabc  x", 7);
  grid.PutString(0, 1, L"x  d", 7);
  grid.PutRepeated(2, 2, 1, {0, 7});
  grid.PutString(3, 2, L"e", 7);
  const Westring text = TextOfCells(grid, {1, 0, 5, 3});
  EXPECT_STREQ(text.Text(), L"abc\n  d\n  e\n\n");
}
