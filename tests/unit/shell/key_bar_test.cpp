// The function-key bar: labels, cells, and the keys under the mouse.
#include "shell/key_bar.h"

#include <gtest/gtest.h>

#include <string>

#include "config/values/colours.h"

namespace {

constexpr uint8_t kLabel = 0x30, kGap = 0x07;
constexpr uint32_t kNone = 0;

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

// One character a column: "#" for the colour of the command line.
std::string GapsOf(int columns) {
  const CellString row = BuildKeyBar(BarLabels(kNone), columns);
  std::string gaps;
  for (int x = 0; x < row.Length(); ++x)
    gaps += row[x].attribute == kGap ? '#' : row[x].attribute == kLabel ? '.' : '?';
  return gaps;
}

// One character a column: the digit of its key, 0 for F10.
std::string KeysUnder(int columns) {
  std::string keys;
  for (int x = 0; x < columns; ++x) {
    const int number = static_cast<int>(KeyAt(x, columns) - FKey(1)) + 1;
    keys += number >= 1 && number <= 10 ? static_cast<char>('0' + number % 10) : '?';
  }
  return keys;
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
  EXPECT_EQ(TextOf(BuildKeyBar(BarLabels(kModShift), 80)),
            "1Manual 2MnMenu 3View.. 4Edit.. 5Copy   6Rename 7MkArch 8DelOne 9SavSet 10MenuRe");
  EXPECT_EQ(TextOf(BuildKeyBar(BarLabels(kModShift), 89)).size(), 80u);
  EXPECT_EQ(TextOf(BuildKeyBar(BarLabels(kModShift), 100)),
            "1Manual   2MnMenu   3View..   4Edit..   5Copy     "
            "6Rename   7MkArch   8DelOne   9SavSet   10MenuRe  ");
  EXPECT_EQ(TextOf(BuildKeyBar(BarLabels(kModShift), 132)),
            "1Manual      2MnMenu      3View..      4Edit..      5Copy        "
            "6Rename      7MkArch      8DelOne      9SavSet      10MenuRe     ");
}

TEST_F(KeyBar, DigitsAndTheGapsBeforeThemAreInTheColourOfTheCommandLine) {
  EXPECT_EQ(GapsOf(80), "#......##......##......##......##......##......##......##......##......###......");
  EXPECT_EQ(GapsOf(100),
            "#........##........##........##........##........#"
            "#........##........##........##........###........");
  EXPECT_EQ(GapsOf(132),
            "#...........##...........##...........##...........##...........#"
            "#...........##...........##...........##...........###...........");
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
  const std::string keys80 =
      "11111112222222233333333444444445555555566666666777777778888888899999999000000000";
  EXPECT_EQ(KeysUnder(80), keys80);
  EXPECT_EQ(KeysUnder(89), keys80 + "000000000");
  EXPECT_EQ(KeysUnder(100),
            "1111111112222222222333333333344444444445555555555"
            "666666666677777777778888888888999999999900000000000");
  EXPECT_EQ(KeysUnder(132),
            "1111111111112222222222222333333333333344444444444445555555555555"
            "66666666666667777777777777888888888888899999999999990000000000000000");
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
