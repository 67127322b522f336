// Rows as they are drawn: text, runs of colour and stretches.
#include "console/row_text.h"

#include <gtest/gtest.h>

namespace {

std::vector<Cell> CellsOf(const wchar_t* text, std::initializer_list<int> attributes) {
  std::vector<Cell> cells;
  for (int attribute : attributes) cells.push_back({*text++, static_cast<uint8_t>(attribute)});
  return cells;
}

RowText RowTextOf(const std::vector<Cell>& cells) {
  RowText row;
  BuildRowText(cells.data(), static_cast<int>(cells.size()), row);
  return row;
}

std::vector<Stretch> StretchesOf(const wchar_t* text) {
  std::vector<Cell> cells;
  for (; *text != 0; ++text) cells.push_back({*text, 7});
  std::vector<Stretch> stretches;
  SplitRow(cells.data(), static_cast<int>(cells.size()), [](int32_t c) { return c < 128; }, stretches);
  return stretches;
}

void ExpectStretch(const Stretch& stretch, int first, int end, bool isRegular) {
  EXPECT_EQ(stretch.first, first);
  EXPECT_EQ(stretch.end, end);
  EXPECT_EQ(stretch.isRegular, isRegular);
}

}  // namespace

TEST(RowTexts, RunsCountBytesOfUtf8) {
  const RowText row = RowTextOf(CellsOf(L"a\x7F\x80\x7FF\x800\xFFFF\x10000z", {1, 2, 3, 4, 5, 6, 9, 8}));
  constexpr int kStarts[] = {0, 1, 2, 4, 6, 9, 12, 16};
  ASSERT_EQ(row.runs.size(), 8u);
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(row.runs[i].firstByte, kStarts[i]);
    EXPECT_EQ(row.runs[i].firstCell, i);
    EXPECT_EQ(row.runs[i].endCell, i + 1);
  }
  EXPECT_EQ(row.runs[7].endByte, 17);
  EXPECT_EQ(row.utf8, "a\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80z");
}

TEST(RowTexts, BlanksOfAnotherForegroundStayInTheRun) {
  const RowText row = RowTextOf(CellsOf(L"a  b", {0x17, 0x1F, 0x12, 0x17}));
  ASSERT_EQ(row.runs.size(), 1u);
  EXPECT_EQ(row.runs[0].endCell, 4);
  EXPECT_EQ(row.runs[0].attribute, 0x17);
}

TEST(RowTexts, BlanksOfAnotherBackgroundStartARun) {
  const RowText row = RowTextOf(CellsOf(L"a  b", {0x17, 0x27, 0x27, 0x27}));
  ASSERT_EQ(row.runs.size(), 2u);
  EXPECT_EQ(row.runs[1].firstCell, 1);
  EXPECT_EQ(row.runs[1].attribute, 0x27);
}

TEST(RowTexts, ACharacterBehindABlankOfItsBackgroundStartsARunByItsForeground) {
  const RowText row = RowTextOf(CellsOf(L" b", {0x17, 0x1F}));
  ASSERT_EQ(row.runs.size(), 2u);
  EXPECT_EQ(row.runs[1].attribute, 0x1F);
}

TEST(RowTexts, AnEmptyRowHasNoRuns) { EXPECT_TRUE(RowTextOf({}).runs.empty()); }

TEST(ShownCharacters, ValuesThatAreNoCharacterAreReplaced) {
  constexpr int32_t kValues[] = {-1, INT32_MIN, 0xD800, 0xDFFF, 0x110000, INT32_MAX,
                                 1,  31,        127,    159,    0x2028,   0x2029};
  for (int32_t value : kValues) {
    EXPECT_EQ(ShownCharacter(value), kReplacement) << value;
  }
}

TEST(ShownCharacters, ZeroIsABlankAndTheSoftHyphenVisible) {
  EXPECT_EQ(ShownCharacter(0), ' ');
  EXPECT_EQ(ShownCharacter(0xAD), '-');
}

TEST(ShownCharacters, CharactersAreThemselves) {
  for (int32_t value : {0x20, 0x7E, 0xA0, 0x2500, 0xD7FF, 0xE000, 0x10FFFF}) {
    EXPECT_EQ(ShownCharacter(value), value);
  }
}

TEST(RowStretches, AllRegularIsOne) {
  const auto stretches = StretchesOf(L"ab cd");
  ASSERT_EQ(stretches.size(), 1u);
  ExpectStretch(stretches[0], 0, 5, true);
}

TEST(RowStretches, BlanksAroundBelongToNone) {
  EXPECT_TRUE(StretchesOf(L"    ").empty());
  const auto stretches = StretchesOf(L"  ab   ");
  ASSERT_EQ(stretches.size(), 1u);
  ExpectStretch(stretches[0], 2, 4, true);
}

TEST(RowStretches, IrregularCharactersStandAlone) {
  const auto stretches = StretchesOf(L"ab\x4E2D\x6587 c");
  ASSERT_EQ(stretches.size(), 4u);
  ExpectStretch(stretches[0], 0, 2, true);
  ExpectStretch(stretches[1], 2, 3, false);
  ExpectStretch(stretches[2], 3, 4, false);
  ExpectStretch(stretches[3], 5, 6, true);
}
