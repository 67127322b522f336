// The function-key bar on screens that have no room for it.
#include <gtest/gtest.h>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "shell/key_bar.h"
#include "support/cells.h"

TEST(NarrowKeyBar, BelowTenColumnsThereIsNone) {
  Options::Colours[kColourMenuBar] = 0x30;
  for (int columns = 1; columns < kBarKeys; ++columns) {
    const CellString row = BuildKeyBar(BarLabels(0), columns);
    EXPECT_EQ(row.Length(), 0) << columns;
    EXPECT_EQ(row.attribute, 0x30) << columns;
  }
}

TEST(NarrowKeyBar, FromTenColumnsOnEachKeyHasAtLeastItsDigit) {
  for (int columns = kBarKeys; columns < 2 * kBarKeys; ++columns) {
    const CellString row = BuildKeyBar(BarLabels(0), columns);
    ASSERT_EQ(row.Length(), kBarKeys) << columns;
    for (int i = 0; i < kBarKeys - 1; ++i) EXPECT_EQ(CharacterOf(row[i]), '1' + i);
  }
}
