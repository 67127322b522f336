// The slot of a list under the mouse.
#include <gtest/gtest.h>

#include "panels/columns.h"
#include "panels/panel.h"
#include "shell/mouse.h"

namespace {

constexpr int kRows = 7;

int SlotAt(int style, int c, int y, int columns) { return SlotUnder(style, c, y, columns / 2, kRows); }

}  // namespace

TEST(SlotUnder, RowsOutsideTheListHaveNoSlot) {
  for (int style = kStyleBrief; style <= kStyleTree; ++style) {
    EXPECT_EQ(SlotAt(style, 5, 0, 80), -1);
    EXPECT_EQ(SlotAt(style, 5, kRows + 1, 80), -1);
    EXPECT_EQ(SlotAt(style, 5, 1, 80), 0);
    EXPECT_EQ(SlotAt(style, 5, kRows, 80), kRows - 1);
  }
}

TEST(SlotUnder, StylesWithOneNameColumnTakeTheRowAcrossThePanel) {
  for (int style : {kStyleFull, kStyleWide, kStyleUnix, kStyleTree})
    for (int c = 0; c < 40; ++c) EXPECT_EQ(SlotAt(style, c, 3, 80), 2);
}

TEST(SlotUnder, FrameAndSeparatorsOfBriefBelongToTheColumnOnTheirLeft) {
  EXPECT_EQ(SlotAt(kStyleBrief, 0, 1, 80), 0);
  EXPECT_EQ(SlotAt(kStyleBrief, 13, 1, 80), 0);
  EXPECT_EQ(SlotAt(kStyleBrief, 26, 1, 80), kRows);
  EXPECT_EQ(SlotAt(kStyleBrief, 39, 1, 80), 2 * kRows);
}

TEST(SlotUnder, BriefWideIsDividedInTheMiddle) {
  EXPECT_EQ(SlotAt(kStyleBriefWide, 0, 2, 80), 1);
  EXPECT_EQ(SlotAt(kStyleBriefWide, 19, 2, 80), 1);
  EXPECT_EQ(SlotAt(kStyleBriefWide, 20, 2, 80), 1 + kRows);
  EXPECT_EQ(SlotAt(kStyleBriefWide, 39, 2, 80), 1 + kRows);
}

// The division by three meets the drawn borders at every width, but for one
// cell: at some widths the last one of the middle column counts with the next.
TEST(SlotUnder, EveryCellOfANameFindsTheSlotThatIsDrawnThere) {
  for (int columns = 80; columns <= 250; ++columns) {
    const int half = columns / 2;
    ComputeColumns(half - 2);
    for (int style = kStyleBrief; style <= kStyleUnix; ++style) {
      for (int column = 0; column < NameColumns(style); ++column) {
        int x, y;
        SlotPosition(style, kRows, column * kRows + 3, x, y);
        const int width = NameWidth(style, column);
        const bool isMiddle = style == kStyleBrief && column == 1;
        for (int i = 0; i < width - (isMiddle ? 1 : 0); ++i) {
          EXPECT_EQ(SlotUnder(style, 1 + x + i, 1 + y, half, kRows), column * kRows + 3)
              << columns << " columns, style " << style << ", cell " << x + i;
        }
      }
    }
  }
}
