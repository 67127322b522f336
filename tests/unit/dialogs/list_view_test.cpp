#include "dialogs/list_view.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

struct Place {
  int top, row;
  bool operator==(const Place&) const = default;
};

void PrintTo(const Place& place, std::ostream* out) { *out << place.top << "+" << place.row; }

Place Of(const ListView& view) { return {view.top, view.row}; }

Place After(ListView view, void (ListView::*move)()) {
  (view.*move)();
  return Of(view);
}

TEST(ListView, ShowScrollsNoFurtherThanItNeeds) {
  ListView view{100, 10, 20, 5};
  view.Show(29);
  EXPECT_EQ(Of(view), (Place{20, 9}));
  view.Show(30);
  EXPECT_EQ(Of(view), (Place{21, 9}));
  view.Show(21);
  EXPECT_EQ(Of(view), (Place{21, 0}));
  view.Show(20);
  EXPECT_EQ(Of(view), (Place{20, 0}));
}

TEST(ListView, ANewListPutsASelectionFarDownOnItsLastRow) {
  ListView view{100, 10};
  view.Show(9);
  EXPECT_EQ(Of(view), (Place{0, 9}));
  view = {100, 10};
  view.Show(57);
  EXPECT_EQ(Of(view), (Place{48, 9}));
}

TEST(ListView, UpAndDownMoveTheCursorAndScrollAtTheEdges) {
  EXPECT_EQ(After({100, 10, 20, 5}, &ListView::Up), (Place{20, 4}));
  EXPECT_EQ(After({100, 10, 20, 0}, &ListView::Up), (Place{19, 0}));
  EXPECT_EQ(After({100, 10, 20, 5}, &ListView::Down), (Place{20, 6}));
  EXPECT_EQ(After({100, 10, 20, 9}, &ListView::Down), (Place{21, 9}));
}

TEST(ListView, UpAndDownEndAtTheFirstAndLastItem) {
  EXPECT_EQ(After({5, 10, 0, 0}, &ListView::Up), (Place{0, 0}));
  EXPECT_EQ(After({5, 10, 0, 4}, &ListView::Down), (Place{0, 4}));
  EXPECT_EQ(After({100, 10, 90, 9}, &ListView::Down), (Place{90, 9}));
}

TEST(ListView, PageUpKeepsTheRowAsLongAsThereIsAWholePage) {
  EXPECT_EQ(After({100, 10, 20, 5}, &ListView::PageUp), (Place{10, 5}));
  EXPECT_EQ(After({100, 10, 10, 5}, &ListView::PageUp), (Place{0, 5}));
  EXPECT_EQ(After({100, 10, 9, 5}, &ListView::PageUp), (Place{0, 0}));
  EXPECT_EQ(After({100, 10, 0, 5}, &ListView::PageUp), (Place{0, 0}));
}

TEST(ListView, PageDownKeepsTheRowAsLongAsThereIsAnotherPage) {
  EXPECT_EQ(After({100, 10, 20, 5}, &ListView::PageDown), (Place{30, 5}));
  EXPECT_EQ(After({15, 10, 0, 3}, &ListView::PageDown), (Place{10, 3}));
  EXPECT_EQ(After({15, 10, 0, 7}, &ListView::PageDown), (Place{10, 4}));
  EXPECT_EQ(After({11, 10, 0, 7}, &ListView::PageDown), (Place{10, 0}));
}

TEST(ListView, PageDownOnTheLastPageGoesToTheLastItem) {
  EXPECT_EQ(After({5, 10, 0, 0}, &ListView::PageDown), (Place{0, 4}));
  EXPECT_EQ(After({10, 10, 0, 0}, &ListView::PageDown), (Place{0, 9}));
  EXPECT_EQ(After({15, 10, 10, 1}, &ListView::PageDown), (Place{10, 4}));
}

TEST(ListView, HomeAndEndGoToTheEnds) {
  EXPECT_EQ(After({100, 10, 20, 5}, &ListView::Home), (Place{0, 0}));
  EXPECT_EQ(After({100, 10, 20, 5}, &ListView::End), (Place{90, 9}));
  EXPECT_EQ(After({5, 10, 0, 1}, &ListView::End), (Place{0, 4}));
  EXPECT_EQ(After({15, 10, 10, 1}, &ListView::End), (Place{5, 9}));
}

TEST(ListView, ARowPastTheLastItemMeansThatItem) {
  ListView view{3, 6};
  view.PointAt(4);
  EXPECT_EQ(Of(view), (Place{0, 2}));
  EXPECT_FALSE(view.HasItemAt(3));
  EXPECT_TRUE(view.HasItemAt(2));
}

TEST(ListView, ScrollingStopsWhereTheLastItemIsInView) {
  ListView view{12, 10, 0, 9};
  EXPECT_TRUE(view.ScrollDown());
  EXPECT_TRUE(view.ScrollDown());
  EXPECT_FALSE(view.ScrollDown());
  EXPECT_EQ(Of(view), (Place{2, 9}));
  EXPECT_TRUE(view.ScrollUp());
  EXPECT_TRUE(view.ScrollUp());
  EXPECT_FALSE(view.ScrollUp());
  EXPECT_EQ(Of(view), (Place{0, 9}));
}

constexpr void (ListView::*kMoves[])() = {&ListView::Up,       &ListView::Down, &ListView::PageUp,
                                          &ListView::PageDown, &ListView::Home, &ListView::End};

TEST(ListView, NoMoveLeavesAnEmptyList) {
  for (const auto move : kMoves) EXPECT_EQ(After({0, 10}, move), (Place{0, 0}));
  ListView view{0, 10};
  EXPECT_FALSE(view.ScrollUp());
  EXPECT_FALSE(view.ScrollDown());
  view.PointAt(3);
  EXPECT_EQ(Of(view), (Place{0, 0}));
  EXPECT_EQ(view.ItemsInView(), 0);
}

// From every place of lists around the size of their window, each move ends on
// an item in view.
TEST(ListView, EveryMoveKeepsTheCursorOnAnItemInView) {
  for (int height = 1; height <= 4; ++height) {
    for (int count = 1; count <= 13; ++count) {
      for (int item = 0; item < count; ++item) {
        for (int row = 0; row < height && row <= item; ++row) {
          for (const auto move : kMoves) {
            ListView view{count, height, item - row, row};
            (view.*move)();
            EXPECT_TRUE(view.top >= 0 && view.HasItemAt(view.row))
                << count << " items in " << height << " rows, from " << item - row << "+" << row << " to "
                << view.top << "+" << view.row;
          }
        }
      }
    }
  }
}

TEST(ListView, AHugeListStaysInRange) {
  const int count = std::numeric_limits<int>::max();
  EXPECT_EQ(After({count, 10, count - 10, 9}, &ListView::PageDown), (Place{count - 10, 9}));
  EXPECT_EQ(After({count, 10, 0, 0}, &ListView::End), (Place{count - 10, 9}));
}

TEST(ListView, ASelectionOutsideMeansTheNearestItem) {
  EXPECT_EQ(NearestItem(7, 5), 4);
  EXPECT_EQ(NearestItem(5, 5), 4);
  EXPECT_EQ(NearestItem(4, 5), 4);
  EXPECT_EQ(NearestItem(-1, 5), 0);
  EXPECT_EQ(NearestItem(std::numeric_limits<int>::min(), 5), 0);
}

TEST(ListView, OfAnEmptyListNoneIsLeftAsItWasFound) {
  EXPECT_EQ(NearestItem(0, 0), 0);
  EXPECT_EQ(NearestItem(-1, 0), -1);
  EXPECT_EQ(NearestItem(5, 0), -1);
  EXPECT_EQ(NearestItem(-7, 0), -1);
}

}  // namespace
