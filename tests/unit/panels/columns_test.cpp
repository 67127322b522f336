// Column widths and the places of slots.
#include "panels/columns.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "panels/panel.h"

namespace {

std::vector<int> Widths(int style) {
  std::vector<int> widths;
  for (int i = 0; i < ColumnCount(style); ++i) widths.push_back(ColumnTable[style][i].width);
  return widths;
}

std::vector<int> Borders(int style) {
  int borders[kMaxColumns];
  const int count = ColumnBorders(style, borders);
  return std::vector<int>(borders, borders + count);
}

int Sum(const std::vector<int>& widths) {
  int sum = static_cast<int>(widths.size()) - 1;
  for (int w : widths) sum += w;
  return sum;
}

using Ints = std::vector<int>;

}  // namespace

TEST(Columns, EightyScreenColumnsLeaveMostStylesAtTheirMinimums) {
  ComputeColumns(38);
  EXPECT_EQ(Widths(kStyleBrief), (Ints{12, 12, 12}));
  EXPECT_EQ(Widths(kStyleFull), (Ints{13, 8, 8, 6}));
  EXPECT_EQ(Widths(kStyleWide), (Ints{8, 29}));
  EXPECT_EQ(Widths(kStyleUnix), (Ints{12, 7, 9, 3, 3}));
}

// 13 free: 5 and 5 by width, then 2 and 1, where the second takes what is left.
TEST(Columns, RoomIsSharedByWidthInPassesRoundedUp) {
  ComputeColumns(38);
  EXPECT_EQ(Widths(kStyleBriefWide), (Ints{19, 18}));
}

// 10 free: 3, 2 and none for date and time, which are as wide as they get; then
// the name takes what is left in passes of its own.
TEST(Columns, ColumnsAtTheirMaximumLeaveTheirPartToTheOthers) {
  ComputeColumns(48);
  EXPECT_EQ(Widths(kStyleFull), (Ints{21, 10, 8, 6}));
  EXPECT_EQ(Widths(kStyleBrief), (Ints{16, 15, 15}));
}

// 26 free in unix: 5, 3, 0, 2, 2 of it, then 14: 4, 0, 0, 2, 2, then 6 and 2.
TEST(Columns, OwnerAndGroupGrowToTen) {
  ComputeColumns(64);
  EXPECT_EQ(Widths(kStyleUnix), (Ints{24, 10, 9, 9, 8}));
  ComputeColumns(123);
  EXPECT_EQ(Widths(kStyleUnix), (Ints{80, 10, 9, 10, 10}));
}

TEST(Columns, MinimumsStayWhereThePanelIsNarrower) {
  ComputeColumns(20);
  EXPECT_EQ(Widths(kStyleFull), (Ints{13, 8, 8, 6}));
  EXPECT_EQ(Widths(kStyleUnix), (Ints{12, 7, 9, 3, 3}));
  ComputeColumns(0);
  EXPECT_EQ(Widths(kStyleBrief), (Ints{12, 12, 12}));
}

TEST(Columns, WidthsGoBackDownWithTheScreen) {
  ComputeColumns(123);
  ComputeColumns(38);
  EXPECT_EQ(Widths(kStyleFull), (Ints{13, 8, 8, 6}));
}

TEST(Columns, EveryStyleFillsThePanelUpToItsMaximums) {
  for (int inner = 38; inner <= 400; ++inner) {
    ComputeColumns(inner);
    for (int style = 0; style < kColumnStyles; ++style) {
      int most = ColumnCount(style) - 1;
      for (int i = 0; i < ColumnCount(style); ++i) {
        const Column& c = ColumnTable[style][i];
        EXPECT_GE(c.width, c.minimum);
        EXPECT_LE(c.width, c.maximum);
        most += c.maximum;
      }
      EXPECT_EQ(Sum(Widths(style)), std::min(inner, most)) << "style " << style << " in " << inner;
    }
  }
}

TEST(Columns, NameFieldIsTheSecondColumnOfWide) {
  ComputeColumns(48);
  EXPECT_EQ(NameWidth(kStyleWide), ColumnTable[kStyleWide][1].width);
  EXPECT_EQ(NameWidth(kStyleFull), 21);
  EXPECT_EQ(NameWidth(kStyleBrief, 0), 16);
  EXPECT_EQ(NameWidth(kStyleBrief, 2), 15);
  EXPECT_EQ(NameWidth(kStyleTree), 48);
}

TEST(Columns, WildColumnsAndStylesStayInTheTable) {
  ComputeColumns(48);
  EXPECT_EQ(NameWidth(kStyleBrief, 99), 15);
  EXPECT_EQ(NameWidth(kStyleBrief, -1), 16);
  EXPECT_EQ(ColumnCount(-1), 0);
  EXPECT_EQ(ColumnCount(99), 0);
  EXPECT_EQ(NameWidth(99), 48);
}

TEST(Columns, BordersAreTheCellsBetweenColumns) {
  ComputeColumns(38);
  EXPECT_EQ(Borders(kStyleFull), (Ints{13, 22, 31}));
  EXPECT_EQ(Borders(kStyleBrief), (Ints{12, 25}));
  EXPECT_EQ(Borders(kStyleTree), Ints{});
  ComputeColumns(22);
  EXPECT_EQ(Borders(kStyleFull), Ints{13});
}

TEST(Columns, SlotsRunDownAColumnAndOnIntoTheNext) {
  ComputeColumns(48);
  int x, y;
  SlotPosition(kStyleBrief, 19, 18, x, y);
  EXPECT_EQ(x, 0);
  EXPECT_EQ(y, 18);
  SlotPosition(kStyleBrief, 19, 19, x, y);
  EXPECT_EQ(x, 17);
  EXPECT_EQ(y, 0);
  SlotPosition(kStyleBrief, 19, 40, x, y);
  EXPECT_EQ(x, 33);
  EXPECT_EQ(y, 2);
  SlotPosition(kStyleBriefWide, 19, 20, x, y);
  EXPECT_EQ(x, NameWidth(kStyleBriefWide) + 1);
  EXPECT_EQ(y, 1);
  SlotPosition(kStyleFull, 19, 7, x, y);
  EXPECT_EQ(x, 0);
  EXPECT_EQ(y, 7);
}

TEST(Columns, BriefShowsThreeAndBriefwideTwoColumnsOfEntries) {
  EXPECT_EQ(VisibleEntries(kStyleBrief, 19), 57);
  EXPECT_EQ(VisibleEntries(kStyleBriefWide, 19), 38);
  for (int style : {kStyleFull, kStyleWide, kStyleUnix, kStyleTree}) EXPECT_EQ(VisibleEntries(style, 19), 19);
}
