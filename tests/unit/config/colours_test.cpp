// The colour table and colours in words.
#include "config/values/colours.h"

#include <gtest/gtest.h>

namespace {
constexpr uint8_t kPanel = 0x1B;
}

TEST(Colours, TableHasTheEighteenNamesAndDefaultsInTheOrderOfTheFile) {
  const struct {
    const char* name;
    int attribute;
  } rows[] = {
      {"Panel", 0x1B},       {"Highlight", 0x30},      {"Tagged", 0x1E},         {"Highlight-Tagged", 0x3E},
      {"Directories", 0x1A}, {"Directory High", 0x20}, {"Command Line", 0x07},   {"Messages", 0x70},
      {"Errors", 0x4F},      {"Input Fields", 0x30},   {"Screen Saver", 0x03},   {"Menu", 0x3F},
      {"Menu Bar", 0x30},    {"Menu Highlight", 0x0F}, {"Menu Quick Key", 0x0E}, {"Disabled Menu", 0x07},
      {"File Viewer", 0x1B}, {"Clock", 0x30}};
  ASSERT_EQ(std::size(rows), static_cast<size_t>(kColourCount));
  for (int i = 0; i < kColourCount; ++i) {
    EXPECT_STREQ(kColourNames[i], rows[i].name);
    EXPECT_EQ(kDefaultColours[i], rows[i].attribute) << rows[i].name;
  }
}

TEST(Colours, AnEmptyTextKeepsTheAttribute) {
  EXPECT_EQ(ApplyColourText(kPanel, L""), kPanel);
  EXPECT_EQ(ApplyColourText(kPanel, L"   "), kPanel);
}

TEST(Colours, AColourNameReplacesTheWholeOldForeground) {
  EXPECT_EQ(ApplyColourText(kPanel, L"red"), 0x14);
  EXPECT_EQ(ApplyColourText(kPanel, L"black"), 0x10);
  EXPECT_EQ(ApplyColourText(0xFF, L"black"), 0xF0);
}

TEST(Colours, BrightCountsBeforeAndBehindTheColour) {
  EXPECT_EQ(ApplyColourText(0x17, L"bright red"), 0x1C);
  EXPECT_EQ(ApplyColourText(kPanel, L"bright red"), 0x1C);
  EXPECT_EQ(ApplyColourText(kPanel, L"red bright"), 0x1C);
  EXPECT_EQ(ApplyColourText(kPanel, L"bright yellow"), 0x1E);
}

TEST(Colours, BrightAloneBrightensTheOldForeground) {
  EXPECT_EQ(ApplyColourText(0x17, L"bright"), 0x1F);
  EXPECT_EQ(ApplyColourText(0x17, L"bright on red"), 0x4F);
}

TEST(Colours, OnTurnsToTheBackgroundAndKeepsTheForeground) {
  EXPECT_EQ(ApplyColourText(0x4B, L"on blue"), 0x1B);
  EXPECT_EQ(ApplyColourText(0xFB, L"on"), 0x0B);
  EXPECT_EQ(ApplyColourText(kPanel, L"white on bright black"), 0x87);
  EXPECT_EQ(ApplyColourText(kPanel, L"yellow on red bright"), 0xC6);
  EXPECT_EQ(ApplyColourText(0x80, L"bright yellow on blue"), 0x1E);
}

TEST(Colours, ASecondNameAddsItsBits) {
  EXPECT_EQ(ApplyColourText(kPanel, L"red blue"), 0x15);
  EXPECT_EQ(ApplyColourText(kPanel, L"on red green"), 0x6B);
}

TEST(Colours, WordsCountByThreeLettersInAnyCase) {
  EXPECT_EQ(ApplyColourText(kPanel, L"BRIllant YELlowish  ON cyanide"), 0x3E);
  const struct {
    const wchar_t* word;
    int value;
  } words[] = {{L"bla", 0}, {L"blu", 1}, {L"gre", 2}, {L"cya", 3},
               {L"red", 4}, {L"mag", 5}, {L"yel", 6}, {L"whi", 7}};
  for (const auto& w : words) EXPECT_EQ(ApplyColourText(0x1F, w.word), 0x10 + w.value) << w.word;
}

TEST(Colours, UnknownWordsArePassedOver) {
  EXPECT_EQ(ApplyColourText(kPanel, L"one re bl pink onto \x1F600"), kPanel);
  EXPECT_EQ(ApplyColourText(kPanel, L"dark red"), 0x14);
}
