#include "dialogs/prompt_layout.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Lines = std::vector<std::string>;

Lines Split(const std::wstring& text, int columns = 80) {
  Lines lines;
  for (const Westring& line : SplitPromptText(text.c_str(), columns)) lines.push_back(ToUtf8(line).Text());
  return lines;
}

std::wstring Words(int letters, int count) {
  std::wstring text;
  for (int i = 0; i < count; ++i) text += (i > 0 ? L" " : L"") + std::wstring(letters, L'x');
  return text;
}

TEST(PromptLayout, TwoHundredCharactersTakeThreeLinesOnEightyColumns) {
  std::wstring text = Words(9, 20) + L"x";  // words of nine
  ASSERT_EQ(text.size(), 200u);
  const Lines lines = Split(text);
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[0].size(), 69u);
  EXPECT_EQ(lines[1].size(), 69u);
  EXPECT_EQ(lines[2].size(), 60u);
}

TEST(PromptLayout, ALineOfSevenLessThanTheScreenIsSplitAndOneShorterIsNot) {
  EXPECT_EQ(Split(std::wstring(68, L'a') + L" bcd").size(), 1u);  // 72
  EXPECT_EQ(Split(std::wstring(68, L'a') + L" bcde"), (Lines{std::string(68, 'a'), "bcde"}));
}

TEST(PromptLayout, TheBlankMayStandEightColumnsBeforeTheEndOfTheScreenButNoLater) {
  EXPECT_EQ(Split(std::wstring(72, L'a') + L" b"), (Lines{std::string(72, 'a'), "b"}));
  EXPECT_EQ(Split(L"aa " + std::wstring(70, L'b') + L" c"), (Lines{"aa", std::string(70, 'b') + " c"}));
}

TEST(PromptLayout, OnlyTheBlankOfTheBreakIsDropped) {
  EXPECT_EQ(Split(std::wstring(60, L'a') + L"  " + std::wstring(20, L'b')),
            (Lines{std::string(60, 'a') + " ", std::string(20, 'b')}));
}

TEST(PromptLayout, WithoutABlankALineEndsAfterItsFirstCharacter) {
  EXPECT_EQ(Split(L"ab" + std::wstring(72, L'c')), (Lines{"a", "b", std::string(72, 'c')}));
}

TEST(PromptLayout, TheTenthLineIsTheLastAndKeepsWhatFits) {
  const Lines lines = Split(std::wstring(300, L'a'));
  ASSERT_EQ(lines.size(), 10u);
  EXPECT_EQ(lines[8], "a");
  EXPECT_EQ(lines[9], std::string(72, 'a'));
}

TEST(PromptLayout, LineFeedsBreakLines) {
  EXPECT_EQ(Split(L"one\ntwo\n\nfour\n"), (Lines{"one", "two", "", "four"}));
}

TEST(PromptLayout, MoreThanTenLineFeedsLoseTheRest) {
  const Lines lines = Split(L"1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11");
  ASSERT_EQ(lines.size(), 10u);
  EXPECT_EQ(lines[9], "10");
}

TEST(PromptLayout, NoTextIsOneEmptyLine) { EXPECT_EQ(Split(L""), Lines{""}); }

TEST(PromptLayout, AScreenTooNarrowForAnyTextStillEnds) {
  for (int columns = -5; columns < 12; ++columns) EXPECT_LE(Split(L"some words here", columns).size(), 10u);
}

TEST(PromptLayout, TheBoxIsAsWideAsItsWidestPartMadeEven) {
  const auto Width = [](const wchar_t* text, const wchar_t* detail, int buttons) {
    return LayOutPrompt(text, detail, buttons, 80).width;
  };
  EXPECT_EQ(Width(L"ab", L"", 8), 12);
  EXPECT_EQ(Width(L"123456789", L"", 8), 14);
  EXPECT_EQ(Width(L"ab", L"12345678901", 8), 16);
  EXPECT_EQ(Width(L"ab", L"", 61), 66);
}

TEST(PromptLayout, TheBoxHasARowForEachLineAndFourMore) {
  EXPECT_EQ(LayOutPrompt(L"a", L"", 8, 80).height, 5);
  EXPECT_EQ(LayOutPrompt(L"a\nb\nc", L"d", 8, 80).height, 7);
}

TEST(PromptLayout, ALongDetailIsShortenedAndNotSplit) {
  std::wstring path = L"/home";
  while (path.size() < 1000) path += L"/directory";
  const PromptLayout layout = LayOutPrompt(L"a", path.c_str(), 8, 80);
  EXPECT_EQ(Length(layout.detail), 72);
  EXPECT_EQ(layout.width, 76);
  EXPECT_EQ(layout.height, 5);
}

TEST(PromptAnswer, EnterIsYesNegativeIsABlankAndAllElseStands) {
  EXPECT_EQ(PromptAnswer(13), 'y');
  EXPECT_EQ(PromptAnswer(-1), ' ');
  EXPECT_EQ(PromptAnswer('a'), 'a');
  EXPECT_EQ(PromptAnswer(27), 27);
}

}  // namespace
