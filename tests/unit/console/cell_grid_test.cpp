// Writing to the screen: clipping, mapping and finding what changed.
#include "console/cell_grid.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "support/cells.h"

namespace {

std::wstring RowOf(const CellGrid& grid, int y) {
  std::wstring text;
  for (int x = 0; x < grid.Columns(); ++x) text += static_cast<wchar_t>(grid.At(x, y).character);
  return text;
}

CellGrid LetteredGrid(int rows) {
  CellGrid grid(4, rows);
  for (int y = 0; y < rows; ++y) grid.PutRepeated(0, y, 4, {'a' + y, 7});
  return grid;
}

std::wstring FirstColumn(const CellGrid& grid) {
  std::wstring text;
  for (int y = 0; y < grid.Rows(); ++y) text += static_cast<wchar_t>(grid.At(0, y).character);
  return text;
}

}  // namespace

TEST(CellGrid, StartsBlankInAttributeSeven) {
  const CellGrid grid(3, 2);
  for (int y = 0; y < 2; ++y) {
    for (int x = 0; x < 3; ++x) EXPECT_EQ(grid.At(x, y), (Cell{' ', 7}));
  }
}

TEST(CellGrid, AWriteAtOrBeyondTheLastColumnChangesNothing) {
  CellGrid grid(10, 2);
  EXPECT_TRUE(grid.PutString(10, 0, L"abc", 7).IsEmpty());
  EXPECT_TRUE(grid.PutString(INT_MAX, 0, L"abc", 7).IsEmpty());
  EXPECT_TRUE(grid.PutRepeated(11, 0, 5, {'x', 7}).IsEmpty());
  EXPECT_TRUE(grid.SetAttributes(10, 0, 5, 1).IsEmpty());
  EXPECT_EQ(RowOf(grid, 0), std::wstring(10, L' '));
  EXPECT_EQ(RowOf(grid, 1), std::wstring(10, L' '));
}

TEST(CellGrid, TextStopsAtTheRightEdge) {
  CellGrid grid(10, 2);
  EXPECT_EQ(grid.PutString(7, 0, L"abcdef", 7), (CellRect{7, 0, 9, 0}));
  EXPECT_EQ(RowOf(grid, 0), L"       abc");
  EXPECT_EQ(RowOf(grid, 1), std::wstring(10, L' '));
}

TEST(CellGrid, WritesOutsideOnAnySideAreCut) {
  CellGrid grid(5, 2);
  EXPECT_EQ(grid.PutString(-2, 0, L"abcd", 7), (CellRect{0, 0, 1, 0}));
  EXPECT_EQ(RowOf(grid, 0), L"cd   ");
  EXPECT_TRUE(grid.PutString(0, -1, L"x", 7).IsEmpty());
  EXPECT_TRUE(grid.PutString(0, 2, L"x", 7).IsEmpty());
  EXPECT_TRUE(grid.PutString(-9, 0, L"abcd", 7).IsEmpty());
  EXPECT_EQ(grid.PutRepeated(-5, 1, INT_MAX, {'z', 7}), (CellRect{0, 1, 4, 1}));
  EXPECT_EQ(grid.FillBlank(-100, -100, INT_MAX, INT_MAX, 0x1F), (CellRect{0, 0, 4, 1}));
}

TEST(CellGrid, EqualCellsAreNoChange) {
  CellGrid grid(10, 1);
  EXPECT_FALSE(grid.PutString(0, 0, L"hello", 7).IsEmpty());
  EXPECT_TRUE(grid.PutString(0, 0, L"hello", 7).IsEmpty());
  EXPECT_EQ(grid.PutString(0, 0, L"hexlo", 7), (CellRect{2, 0, 2, 0}));
  EXPECT_EQ(grid.PutString(0, 0, L"hexlo", 8), (CellRect{0, 0, 4, 0}));
  EXPECT_TRUE(grid.FillBlank(5, 0, 5, 1, 7).IsEmpty());
}

TEST(CellGrid, ControlCharactersAreMappedOnTheWayIn) {
  CellGrid grid(4, 3);
  grid.PutString(0, 0, L"\x01\x9B\x7F", 7);
  EXPECT_EQ(RowOf(grid, 0), L"\x263A\x2302\x2302 ");
  const Cell cells[] = {{0x1F, 3}, {0x80, 4}, {0, 0}, {'x', 7}};
  grid.PutCells(0, 1, cells);
  EXPECT_EQ(RowOf(grid, 1), L"\x25BC\x2302  ");
  EXPECT_EQ(grid.At(1, 1).attribute, 4);
}

TEST(CellGrid, RepeatedCellsKeepZeroAndTheCodesAbove126) {
  CellGrid grid(4, 1);
  grid.PutRepeated(0, 0, 1, {0, 7});
  grid.PutRepeated(1, 0, 1, {0x9B, 7});
  grid.PutRepeated(2, 0, 2, {0x10, 7});
  EXPECT_EQ(CharacterOf(grid.At(0, 0)), 0);
  EXPECT_EQ(CharacterOf(grid.At(1, 0)), 0x9B);
  EXPECT_EQ(CharacterOf(grid.At(3, 0)), 0x25BA);
}

TEST(CellGrid, AttributesChangeAndCharactersStay) {
  CellGrid grid(5, 1);
  grid.PutString(0, 0, L"abc", 7);
  EXPECT_EQ(grid.SetAttributes(1, 0, 2, 0x1F), (CellRect{1, 0, 2, 0}));
  EXPECT_EQ(RowOf(grid, 0), L"abc  ");
  EXPECT_EQ(grid.At(0, 0).attribute, 7);
  EXPECT_EQ(grid.At(2, 0).attribute, 0x1F);
}

TEST(CellGrid, AChangeOfSeveralRowsIsOneRectangle) {
  CellGrid grid(10, 5);
  EXPECT_EQ(grid.FillBlank(2, 1, 3, 3, 0x1F), (CellRect{2, 1, 4, 3}));
  grid.FillBlank(3, 2, 1, 1, 7);
  EXPECT_EQ(grid.FillBlank(2, 1, 3, 3, 0x1F), (CellRect{3, 2, 3, 2}));
}

TEST(CellGrid, ASavedBlockComesBackAsItWas) {
  CellGrid grid(6, 4);
  grid.PutString(1, 1, L"ab", 3);
  grid.PutString(1, 2, L"cd", 4);
  const auto saved = grid.SaveBlock(1, 1, 2, 2);
  EXPECT_EQ(saved[1], (Cell{'b', 3}));
  EXPECT_EQ(saved[2], (Cell{'c', 4}));
  grid.FillBlank(0, 0, 6, 4, 0x70);
  EXPECT_EQ(grid.RestoreBlock(1, 1, 2, 2, saved.get()), (CellRect{1, 1, 2, 2}));
  EXPECT_EQ(RowOf(grid, 2), L" cd   ");
  EXPECT_TRUE(grid.RestoreBlock(1, 1, 2, 2, saved.get()).IsEmpty());
}

TEST(CellGrid, ABlockThatHangsOverTheEdgeKeepsItsShape) {
  CellGrid grid(4, 3);
  grid.PutString(2, 1, L"xy", 3);
  const auto saved = grid.SaveBlock(2, 1, 4, 5);
  EXPECT_EQ(saved[1], (Cell{'y', 3}));
  EXPECT_EQ(saved[2], (Cell{' ', 7}));
  EXPECT_EQ(saved[4], (Cell{' ', 7}));
  grid.Reset(4, 2);
  EXPECT_EQ(grid.RestoreBlock(2, 1, 4, 5, saved.get()), (CellRect{2, 1, 3, 1}));
  EXPECT_EQ(RowOf(grid, 1), L"  xy");
}

TEST(CellGrid, ReadingAppendsTheRowsOfABlock) {
  CellGrid grid(5, 2);
  grid.PutString(0, 0, L"abcde", 7);
  grid.PutString(0, 1, L"fghij", 7);
  CellString line(L">", 7);
  grid.ReadRow(line, 3, 0, 9, 9);
  ASSERT_EQ(line.Length(), 5);
  EXPECT_EQ(CharacterOf(line[2]), 'e');
  EXPECT_EQ(CharacterOf(line[3]), 'i');
}

TEST(CellGrid, ScrollUpMovesRowsAndBlanksTheLast) {
  CellGrid grid = LetteredGrid(5);
  grid.Scroll(grid.Bounds(), 2, 0x1F);
  EXPECT_EQ(FirstColumn(grid), L"cde  ");
  EXPECT_EQ(grid.At(3, 3), (Cell{' ', 0x1F}));
}

TEST(CellGrid, ScrollDownMovesRowsAndBlanksTheFirst) {
  CellGrid grid = LetteredGrid(5);
  grid.Scroll(grid.Bounds(), -2, 0x1F);
  EXPECT_EQ(FirstColumn(grid), L"  abc");
  EXPECT_EQ(grid.At(0, 1), (Cell{' ', 0x1F}));
}

TEST(CellGrid, ScrollStaysInsideItsBlock) {
  CellGrid grid = LetteredGrid(5);
  grid.Scroll({0, 1, 1, 3}, 1, 7);
  EXPECT_EQ(FirstColumn(grid), L"acd e");
  EXPECT_EQ(RowOf(grid, 1), L"ccbb");
}

TEST(CellGrid, ScrollByTheWholeHeightBlanksAll) {
  CellGrid grid = LetteredGrid(3);
  grid.Scroll(grid.Bounds(), 3, 7);
  EXPECT_EQ(FirstColumn(grid), L"   ");
  grid = LetteredGrid(3);
  grid.Scroll(grid.Bounds(), -3, 7);
  EXPECT_EQ(FirstColumn(grid), L"   ");
}

TEST(CellRects, UnionIgnoresEmptyOnes) {
  EXPECT_EQ(Union({}, {1, 2, 3, 4}), (CellRect{1, 2, 3, 4}));
  EXPECT_EQ(Union({1, 2, 3, 4}, {}), (CellRect{1, 2, 3, 4}));
  EXPECT_EQ(Union({1, 2, 3, 4}, {0, 3, 2, 9}), (CellRect{0, 2, 3, 9}));
}

TEST(CellRects, IntersectionOfStrangersIsEmpty) {
  EXPECT_EQ(Intersection({0, 0, 5, 5}, {3, 4, 9, 9}), (CellRect{3, 4, 5, 5}));
  EXPECT_TRUE(Intersection({0, 0, 2, 2}, {3, 0, 4, 2}).IsEmpty());
}

TEST(CellRects, PartsOfAScrollFillTheBlock) {
  const CellRect block{1, 2, 8, 9};
  EXPECT_EQ(ScrollSource(block, 3), (CellRect{1, 5, 8, 9}));
  EXPECT_EQ(ScrollTarget(block, 3), (CellRect{1, 2, 8, 6}));
  EXPECT_EQ(ScrollVacated(block, 3), (CellRect{1, 7, 8, 9}));
  EXPECT_EQ(ScrollVacated(block, -3), (CellRect{1, 2, 8, 4}));
  EXPECT_EQ(ScrollVacated(block, 8), block);
}
