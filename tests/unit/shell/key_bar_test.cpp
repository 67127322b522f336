// The function-key bar: labels, cells, and the keys under the mouse.
#include "shell/key_bar.h"

#include <gtest/gtest.h>

#include <string>

#include "config/values/colours.h"

namespace {

constexpr uint8_t kLabel = 0x30, kGap = 0x07;
constexpr uint32_t kNone = 0;
constexpr int kWidths[] = {80, 100, 132, 250};

class KeyBar : public testing::Test {
 protected:
  KeyBar() {
    for (int i = 0; i < kColourCount; ++i) Options::Colours[i] = kDefaultColours[i];
  }
};

std::string TextOf(const CellString& row) {
  std::string text;
  for (int i = 0; i < row.Length(); ++i) text += static_cast<char>(row[i].character);
  return text;
}

std::string LabelsFor(uint32_t modifiers) {
  std::string text;
  for (int i = 0; i < kBarKeys; ++i) text += std::string(i ? " " : "") + BarLabels(modifiers)[i];
  return text;
}

Key KeyAt(int x, int columns, uint32_t modifiers = 0, int kind = kMouseLeftPress) {
  TMouseEvent mouse;
  mouse.kind = kind;
  mouse.x = x;
  mouse.modifiers = static_cast<uint16_t>(modifiers);
  return BarKey(mouse, columns);
}

}  // namespace

TEST_F(KeyBar, EachStateOfTheModifiersHasItsLabels) {
  EXPECT_EQ(LabelsFor(kNone), "1Help 2Menu 3View 4Edit 5Copy 6RenMov 7Mkdir 8Delete 9PullDn 10Quit");
  EXPECT_EQ(LabelsFor(kModAlt), "1Left 2Right 3View.. 4Edit.. 5DStore 6Object 7Find 8Histry 9EGA Ln 10Tree");
  EXPECT_EQ(LabelsFor(kModCtrl), "1Left 2Right 3Name 4Exten 5Time 6Size 7Unsort 8Revers 9 10");
  EXPECT_EQ(LabelsFor(kModAlt | kModCtrl), "1 2 3 4 5 6 7 8 9 10");
  EXPECT_EQ(LabelsFor(kModShift),
            "1Manual 2MnMenu 3View.. 4Edit.. 5Copy 6Rename 7MkArch 8DelOne 9SavSet 10MenuRe");
  EXPECT_EQ(LabelsFor(kModAlt | kModShift), "1Brief 2Full 3Wide 4BriefW 5Unix 6 7FindRC 8DirHst 9ColChg 10");
  EXPECT_EQ(LabelsFor(kModCtrl | kModShift), "1 2 3 4 5SymLnk 6 7 8 9 10");
  EXPECT_EQ(LabelsFor(kModAlt | kModCtrl | kModShift), "1 2 3 4 5 6 7 8 9 10");
}

TEST_F(KeyBar, LabelsStandInCellsOfATenthOfTheScreen) {
  const CellString row = BuildKeyBar(BarLabels(kNone), 80);
  EXPECT_EQ(TextOf(row), "1Help   2Menu   3View   4Edit   5Copy   6RenMov 7Mkdir  8Delete 9PullDn 10Quit  ");
}

TEST_F(KeyBar, TheRowIsAsLongAsTenWholeCells) {
  for (int columns : kWidths) {
    const int cell = columns / 10;
    const std::string text = TextOf(BuildKeyBar(BarLabels(kModShift), columns));
    EXPECT_EQ(static_cast<int>(text.size()), cell * 10) << columns;
    for (int i = 0; i < kBarKeys; ++i) {
      std::string label = BarLabels(kModShift)[i];
      label.resize(static_cast<size_t>(cell), ' ');
      EXPECT_EQ(text.substr(static_cast<size_t>(i * cell), static_cast<size_t>(cell)), label) << columns;
    }
  }
}

TEST_F(KeyBar, DigitsAndTheGapsBeforeThemAreInTheColourOfTheCommandLine) {
  for (int columns : kWidths) {
    const CellString row = BuildKeyBar(BarLabels(kNone), columns);
    const int cell = columns / 10;
    for (int x = 0; x < row.Length(); ++x) {
      const bool digit = x % cell == 0;
      const bool gap = x % cell == cell - 1 && x / cell < 9;
      const bool secondDigitOfTen = x == 9 * cell + 1;
      EXPECT_EQ(row[x].attribute, digit || gap || secondDigitOfTen ? kGap : kLabel) << columns << ' ' << x;
    }
  }
}

TEST_F(KeyBar, ACellOfTheBarBeginsOneColumnLeftOfItsDigit) {
  EXPECT_EQ(KeyAt(0, 80), FKey(1));
  EXPECT_EQ(KeyAt(6, 80), FKey(1));
  EXPECT_EQ(KeyAt(7, 80), FKey(2));
  EXPECT_EQ(KeyAt(8, 80), FKey(2));
  EXPECT_EQ(KeyAt(70, 80), FKey(9));
  EXPECT_EQ(KeyAt(71, 80), FKey(10));
}

TEST_F(KeyBar, EveryColumnUnderALabelGivesItsKey) {
  for (int columns : kWidths) {
    const int cell = columns / 10;
    for (int x = 0; x < columns; ++x) {
      const int number = std::min((x + 1) / cell, 9) + 1;
      EXPECT_EQ(KeyAt(x, columns), FKey(number)) << columns << ' ' << x;
    }
  }
}

TEST_F(KeyBar, WhatIsRightOfTheTenthCellBelongsToIt) {
  EXPECT_EQ(KeyAt(79, 80), FKey(10));
  EXPECT_EQ(KeyAt(131, 132), FKey(10));
  EXPECT_EQ(KeyAt(88, 89), FKey(10));
}

TEST_F(KeyBar, ModifiersGiveTheKeysTheyGiveOnTheKeyboard) {
  EXPECT_EQ(KeyAt(8, 80, kModAlt), AltFKey(2));
  EXPECT_EQ(KeyAt(8, 80, kModShift), ShiftFKey(2));
  EXPECT_EQ(KeyAt(8, 80, kModCtrl), CtrlFKey(2));
}

TEST_F(KeyBar, AltGoesBeforeShiftAndShiftBeforeCtrl) {
  EXPECT_EQ(KeyAt(8, 80, kModAlt | kModShift | kModCtrl), AltFKey(2));
  EXPECT_EQ(KeyAt(8, 80, kModShift | kModCtrl), ShiftFKey(2));
}

TEST_F(KeyBar, TheRightButtonGivesTheAltKey) {
  EXPECT_EQ(KeyAt(8, 80, 0, kMouseRightPress), AltFKey(2));
  EXPECT_EQ(KeyAt(8, 80, kModShift, kMouseRightRelease), AltFKey(2));
  EXPECT_EQ(KeyAt(8, 80, 0, kMouseLeftRelease), FKey(2));
}
