// What a terminal changed between two paints: the picture catches up with the
// cells by one move and a few blocks.
#include "console/terminal_damage.h"

#include <gtest/gtest.h>

#include <random>

#include "console/cell_grid.h"

namespace {

constexpr int kColumns = 12, kRows = 8;

// Cells, and the picture of them as of the last paint.
class DamagedScreen {
 public:
  void Put(int x, int y, int length, wchar_t character) {
    damage.Changed(grid.PutRepeated(x, y, length, {character, 7}));
  }
  void Scroll(const CellRect& block, int lines) {
    grid.Scroll(block, lines, 7);
    damage.Scrolled(block, lines);
  }
  void Paint() {
    const TerminalDamage::Move& move = damage.OwedMove();
    if (move.lines != 0) picture.Scroll(move.block, move.lines, 0xEE);  // what is vacated is rubbish
    for (const CellRect& block : damage.Blocks()) {
      const int width = block.right - block.left + 1, height = block.bottom - block.top + 1;
      picture.RestoreBlock(block.left, block.top, width, height,
                           grid.SaveBlock(block.left, block.top, width, height).get());
      painted += width * height;
    }
    damage.Clear();
  }
  bool IsTrue() const {
    for (int y = 0; y < kRows; ++y)
      for (int x = 0; x < kColumns; ++x)
        if (!(grid.At(x, y) == picture.At(x, y))) return false;
    return true;
  }

  TerminalDamage damage{kColumns, kRows};
  int painted = 0;  // cells, by all paints

 private:
  CellGrid grid{kColumns, kRows}, picture{kColumns, kRows};
};

constexpr CellRect kAll{0, 0, kColumns - 1, kRows - 1};

}  // namespace

TEST(TerminalDamage, NothingChangedIsNothingToPaint) {
  DamagedScreen s;
  EXPECT_TRUE(s.damage.IsEmpty());
  s.Put(1, 1, 3, 'a');
  EXPECT_FALSE(s.damage.IsEmpty());
  s.Paint();
  EXPECT_TRUE(s.damage.IsEmpty());
  EXPECT_EQ(s.painted, 3);
}

TEST(TerminalDamage, RowsOfOneSpanAreOneBlock) {
  DamagedScreen s;
  for (int y = 2; y < 5; ++y) s.Put(1, y, 4, 'a');
  s.Put(1, 6, 4, 'a');
  const std::vector<CellRect> blocks = s.damage.Blocks();
  ASSERT_EQ(blocks.size(), 2u);
  EXPECT_EQ(blocks[0], (CellRect{1, 2, 4, 4}));
  EXPECT_EQ(blocks[1], (CellRect{1, 6, 4, 6}));
}

TEST(TerminalDamage, AScrollPaintsOnlyWhatCameIntoView) {
  DamagedScreen s;
  s.Put(0, kRows - 1, 5, 'a');
  s.Paint();
  s.painted = 0;
  s.Scroll(kAll, 1);
  s.Scroll(kAll, 1);
  EXPECT_EQ(s.damage.OwedMove().lines, 2);
  s.Paint();
  EXPECT_EQ(s.painted, 2 * kColumns);
  EXPECT_TRUE(s.IsTrue());
}

TEST(TerminalDamage, WhatWasNotYetPaintedMovesAlong) {
  DamagedScreen s;
  s.Put(2, 5, 3, 'a');
  s.Scroll(kAll, 3);
  s.Paint();
  EXPECT_TRUE(s.IsTrue());
}

TEST(TerminalDamage, AScreenfulScrolledAwayIsPaintedWhole) {
  DamagedScreen s;
  for (int i = 0; i < 3 * kRows; ++i) {
    s.Put(0, kRows - 1, 4, static_cast<wchar_t>('a' + i % 26));
    s.Scroll(kAll, 1);
  }
  s.Paint();
  EXPECT_EQ(s.painted, kColumns * kRows);
  EXPECT_TRUE(s.IsTrue());
}

TEST(TerminalDamage, CellsOutsideTheScreenAreLeftOut) {
  DamagedScreen s;
  s.damage.Changed({kColumns, 2, kColumns, 2});
  s.damage.Changed({-2, -2, -1, -1});
  EXPECT_TRUE(s.damage.Blocks().empty());
}

TEST(TerminalDamage, ThePictureIsTrueAfterAnyChanges) {
  std::mt19937 random(7);
  const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
  DamagedScreen s;
  for (int step = 0; step < 20000; ++step) {
    switch (below(4)) {
      case 0:
        s.Put(below(kColumns), below(kRows), 1 + below(6), static_cast<wchar_t>('a' + below(26)));
        break;
      case 1:
        s.Scroll(kAll, below(2) ? 1 : -1);
        break;
      case 2: {
        const int top = below(kRows), bottom = top + below(kRows - top), height = bottom - top + 1;
        const int lines = 1 + below(height);
        s.Scroll({0, top, kColumns - 1, bottom}, below(2) ? lines : -lines);
        break;
      }
      default:
        s.Paint();
        ASSERT_TRUE(s.IsTrue()) << "after step " << step;
    }
  }
}

TEST(TerminalDamage, AScreenOfAnotherSizeOwesNothingAndIsNotedInFull) {
  TerminalDamage damage(kColumns, kRows);
  damage.Changed(kAll);
  damage.Scrolled(kAll, 2);
  damage.SetSize(kColumns, kRows);
  EXPECT_FALSE(damage.IsEmpty());
  constexpr CellRect kLarger{0, 0, 2 * kColumns - 1, 3 * kRows - 1};
  damage.SetSize(2 * kColumns, 3 * kRows);
  EXPECT_TRUE(damage.IsEmpty());
  EXPECT_EQ(damage.OwedMove().lines, 0);
  damage.Changed(kLarger);
  EXPECT_EQ(damage.Blocks(), std::vector<CellRect>{kLarger});
  damage.Scrolled(kLarger, -1);
  damage.SetSize(2, 1);
  damage.Changed(kLarger);
  EXPECT_EQ(damage.Blocks(), (std::vector<CellRect>{{0, 0, 1, 0}}));
}
