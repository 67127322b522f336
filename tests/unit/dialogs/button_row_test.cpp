#include "dialogs/button_row.h"

#include <gtest/gtest.h>

namespace {

TEST(ButtonRow, AButtonIsItsLabelBetweenBrackets) {
  EXPECT_EQ(ButtonCells("Cancel"), 10);
  EXPECT_EQ(ButtonCells(""), 4);
}

TEST(ButtonRow, TheMarkOfTheHotLetterTakesNoCell) { EXPECT_EQ(ButtonCells("_OK"), 6); }

TEST(ButtonRow, TwoBlanksSeparateButtons) {
  EXPECT_EQ(ButtonStep("Cancel"), 12);
  EXPECT_EQ(ButtonStep("_OK"), 8);
}

TEST(ButtonRow, NothingFollowsTheLastButton) {
  const ButtonRow okCancel[] = {{13, "_OK"}, {27, "Cancel"}, {0, nullptr}};
  EXPECT_EQ(ButtonRowCells(okCancel), 8 + 10);
}

TEST(ButtonRow, AnEmptyTableTakesNoCell) {
  const ButtonRow empty[] = {{0, nullptr}};
  EXPECT_EQ(ButtonRowCells(empty), 0);
}

}  // namespace
