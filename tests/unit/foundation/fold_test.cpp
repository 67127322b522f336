// Folding, the comparisons built on it, and word characters.
#include "foundation/fold.h"

#include <gtest/gtest.h>

#include <climits>
#include <clocale>
#include <iterator>
#include <string>

#include "foundation/character_tables.h"
#include "foundation/strings.h"

namespace {

int Sign(int value) { return (value > 0) - (value < 0); }

}  // namespace

TEST(Fold, ListHasNineHundredAndNinetyThreePairsAndAZeroAtItsEnd) {
  constexpr size_t kRows = std::size(kFoldPairs);
  EXPECT_EQ(kRows, 993u + 1);
  EXPECT_EQ(kFoldPairs[kRows - 1][0], 0);
  for (size_t i = 1; i < kRows - 1; i++) EXPECT_LT(kFoldPairs[i - 1][1], kFoldPairs[i][1]);
}

TEST(Fold, MapsToUpperCase) {
  EXPECT_EQ(FoldChar(L'a'), L'A');
  EXPECT_EQ(FoldChar(L'A'), L'A');
  EXPECT_EQ(FoldChar(L'1'), L'1');
  EXPECT_EQ(FoldChar(0), 0);
  EXPECT_EQ(FoldChar(0xE9), 0xC9);
  EXPECT_EQ(FoldChar(0xFF), 0x178);
  EXPECT_EQ(FoldChar(0xDF), 0xDF);
  EXPECT_EQ(FoldChar(0x3C9), 0x3A9);
  EXPECT_EQ(FoldChar(0x3C2), 0x3A3);
  EXPECT_EQ(FoldChar(0x44F), 0x42F);
  EXPECT_EQ(FoldChar(0x561), 0x531);
  EXPECT_EQ(FoldChar(0x24D0), 0x24B6);
  EXPECT_EQ(FoldChar(0x2D00), 0x10A0);
}

TEST(Fold, GreekWithIotaMapsToItsTitleCase) {
  EXPECT_EQ(FoldChar(0x1F80), 0x1F88);
  EXPECT_EQ(FoldChar(0x1FB3), 0x1FBC);
  EXPECT_EQ(FoldChar(0x1FF3), 0x1FFC);
}

TEST(Fold, DigraphsMapToTheirUpperCase) {
  EXPECT_EQ(FoldChar(0x1C6), 0x1C4);
  EXPECT_EQ(FoldChar(0x1C5), 0x1C4);
}

TEST(Fold, OtherFamiliesStayAsTheyAre) {
  EXPECT_EQ(FoldChar(0x2170), 0x2170);  // Roman numeral
  EXPECT_EQ(FoldChar(0x2C30), 0x2C30);  // Glagolitic
  EXPECT_EQ(FoldChar(0x2C81), 0x2C81);  // Coptic
  EXPECT_EQ(FoldChar(0x345), 0x345);    // combining iota
}

TEST(Fold, NothingAboveTheLimitIsFolded) {
  EXPECT_EQ(FoldChar(0x7FFF), 0x7FFF);
  EXPECT_EQ(FoldChar(0x8000), 0x8000);
  EXPECT_EQ(FoldChar(0xA641), 0xA641);
  EXPECT_EQ(FoldChar(0xFF41), 0xFF41);
  EXPECT_EQ(FoldChar(0x10428), 0x10428);
  EXPECT_EQ(FoldChar(-1), -1);
  EXPECT_EQ(FoldChar(INT_MIN), INT_MIN);
}

TEST(Fold, EveryPairBelowTheLimitIsApplied) {
  for (const auto& [upper, lower] : kFoldPairs) {
    EXPECT_EQ(FoldChar(lower), lower <= 0x7FFF ? upper : lower);
  }
}

TEST(Fold, InPlaceStopsAtTheZero) {
  wchar_t text[] = L"a\xE9\0z";
  FoldInPlace(text);
  EXPECT_STREQ(text, L"A\xC9");
  EXPECT_EQ(text[3], L'z');
}

TEST(LowerCase, AboveAsciiTheLocaleDecides) {
  const std::string before = setlocale(LC_CTYPE, nullptr);
  setlocale(LC_CTYPE, "C");
  EXPECT_EQ(LowerChar(L'A'), L'a');
  EXPECT_EQ(LowerChar(L'_'), L'_');
  EXPECT_EQ(LowerChar(0xC9), 0xC9);
  EXPECT_EQ(LowerChar(-1), -1);
  EXPECT_EQ(LowerChar(-1000), -1000);
  if (setlocale(LC_CTYPE, "C.UTF-8")) {
    EXPECT_EQ(LowerChar(0xC9), 0xE9);
    EXPECT_EQ(LowerChar(0x10400), 0x10428);
    wchar_t text[] = L"A\xC9\0Z";
    LowerInPlace(text);
    EXPECT_STREQ(text, L"a\xE9");
    EXPECT_EQ(text[3], L'Z');
  }
  setlocale(LC_CTYPE, before.c_str());
}

TEST(CompareNoCase, ResultIsTheDifferenceOfTheFirstUnequalPair) {
  EXPECT_EQ(CompareNoCase(L"abc", L"ABC"), 0);
  EXPECT_EQ(CompareNoCase(L"\xE9", L"\xC9"), 0);
  EXPECT_EQ(CompareNoCase(L"abC", L"aba"), 2);
  EXPECT_EQ(CompareNoCase(L"ab", L"abc"), -'C');
  EXPECT_EQ(CompareNoCase(L"abc", L"ab"), 'C');
  EXPECT_EQ(CompareNoCase(L"a_", L"aa"), '_' - 'A');
  EXPECT_EQ(CompareNoCase(L"", L""), 0);
}

TEST(CompareNoCase, WildElementsKeepTheirSign) {
  const wchar_t low[] = {INT_MIN, 0};
  const wchar_t high[] = {INT_MAX, 0};
  EXPECT_EQ(Sign(CompareNoCase(low, high)), -1);
  EXPECT_EQ(Sign(CompareNoCase(high, low)), 1);
}

TEST(CompareNoCaseN, ZeroStillComparesTheFirstPair) {
  EXPECT_EQ(CompareNoCaseN(L"a", L"b", 0), -1);
  EXPECT_EQ(CompareNoCaseN(L"ab", L"ac", 0), 0);
  EXPECT_EQ(CompareNoCaseN(L"ab", L"ac", 1), 0);
  EXPECT_EQ(CompareNoCaseN(L"ab", L"ac", 2), -1);
  EXPECT_EQ(CompareNoCaseN(L"ab", L"AB", 100), 0);
  EXPECT_EQ(CompareNoCaseN(L"a", L"ab", 100), -'B');
  EXPECT_EQ(CompareNoCaseN(L"a", L"b", -7), -1);
}

TEST(CompareFileNames, UnderscoreSortsBeforeEveryOtherCharacter) {
  EXPECT_LT(CompareFileNames(L"a_b", L"a1b"), 0);
  EXPECT_LT(CompareFileNames(L"a_b", L"a b"), 0);
  EXPECT_LT(CompareFileNames(L"_", L"\x02"), 0);
  EXPECT_EQ(CompareFileNames(L"_", L"A"), 1 - 'A');
  EXPECT_EQ(CompareFileNames(L"_", L"\x01"), 0);
}

TEST(CompareFileNames, EndOfNameSortsBeforeAnUnderscore) {
  EXPECT_EQ(CompareFileNames(L"a", L"a_"), -1);
  EXPECT_EQ(CompareFileNames(L"a_", L"a"), 1);
  EXPECT_LT(CompareFileNames(L"", L"a"), 0);
  EXPECT_EQ(CompareFileNames(L"", L""), 0);
}

TEST(CompareFileNames, ResultIsTheDifferenceOfTheLowBytesOfTheFoldedElements) {
  EXPECT_EQ(CompareFileNames(L"Abc", L"aBC"), 0);
  EXPECT_EQ(CompareFileNames(L"b", L"A"), 1);
  EXPECT_EQ(CompareFileNames(L"\x141", L"A"), 0);
  EXPECT_EQ(CompareFileNames(L"\x142", L"a"), 0);   // both fold to a low byte of 0x41
  EXPECT_EQ(CompareFileNames(L"\xFF41", L"A"), 0);  // above the fold table: 0x41 as it stands
  EXPECT_EQ(CompareFileNames(L"\xFF61", L"a"), 'a' - 'A');
  EXPECT_EQ(CompareFileNames(L"\xFF", L"\x78"), 0x78 - 0x58);
  EXPECT_EQ(CompareFileNames(L"\x1F600z",
                             L"\x10000"
                             L"a"),
            'Z' - 'A');
}

TEST(CompareFileNames, LowByteOfAnUnderscoreWeighsAsOne) {
  EXPECT_EQ(CompareFileNames(L"\x45F", L"\x40F"), 0);
  EXPECT_EQ(CompareFileNames(L"\x95F", L"_"), 0);
  EXPECT_EQ(CompareFileNames(L"\x1005F", L"_"), 0);
}

TEST(CompareFileNames, ElementWithALowByteOfZeroIsNoEnd) {
  EXPECT_LT(CompareFileNames(L"\x100"
                             L"a",
                             L"\x100"
                             L"b"),
            0);
  EXPECT_EQ(CompareFileNames(L"\x100"
                             L"a",
                             L""),
            0);
  EXPECT_EQ(CompareFileNames(L"",
                             L"\x100"
                             L"a"),
            0);
}

TEST(WordCharacters, FirstRowsAreAsGiven) {
  constexpr unsigned kRows[][2] = {{0x30, 0x39}, {0x41, 0x5A}, {0x5F, 0x5F}, {0x61, 0x7A}, {0xAF, 0xAF},
                                   {0xB5, 0xB5}, {0xC0, 0xD6}, {0xD8, 0xF6}, {0xF8, 0x2C6}};
  for (unsigned ch = 0; ch <= 0x2C7; ch++) {
    bool expected = false;
    for (const auto& row : kRows) expected = expected || (ch >= row[0] && ch <= row[1]);
    EXPECT_EQ(IsWordChar(static_cast<wchar_t>(ch)), expected) << ch;
  }
}

TEST(WordCharacters, LettersOfTheBasicPlaneOnly) {
  EXPECT_TRUE(IsWordChar(0x3B1));
  EXPECT_TRUE(IsWordChar(0x44F));
  EXPECT_TRUE(IsWordChar(0x5D0));
  EXPECT_TRUE(IsWordChar(0x4E00));
  EXPECT_TRUE(IsWordChar(0x9FFF));
  EXPECT_TRUE(IsWordChar(0xAC00));
  EXPECT_TRUE(IsWordChar(0xFF21));
  EXPECT_FALSE(IsWordChar(0x2013));
  EXPECT_FALSE(IsWordChar(0x2500));
  EXPECT_FALSE(IsWordChar(0x3000));
  EXPECT_FALSE(IsWordChar(0xFFFF));
  EXPECT_FALSE(IsWordChar(0x10400));
  EXPECT_FALSE(IsWordChar(0x10041));
  EXPECT_FALSE(IsWordChar(-1));
  EXPECT_FALSE(IsWordChar(INT_MIN));
}

TEST(WordCharacters, RangesAscendAndEndInAZero) {
  constexpr size_t kRows = std::size(kWordRanges);
  EXPECT_EQ(kWordRanges[kRows - 1][0], 0);
  for (size_t i = 0; i < kRows - 1; i++) {
    EXPECT_LE(kWordRanges[i][0], kWordRanges[i][1]);
    EXPECT_TRUE(i == 0 || kWordRanges[i][0] > kWordRanges[i - 1][1]) << i;
  }
}
