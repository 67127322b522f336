// Colours in words, on top of the colour of plain text.
#include <gtest/gtest.h>

#include "syntax/syntax_definition.h"

namespace {

constexpr uint8_t kBase = 0x1B;  // bright cyan on blue

TEST(ColourText, AnEmptyOneKeepsTheBase) { EXPECT_EQ(ParseColourText("", kBase), kBase); }

TEST(ColourText, AColourReplacesTheForegroundWithItsBright) {
  EXPECT_EQ(ParseColourText("red", kBase), 0x14);
}

TEST(ColourText, AllColoursHaveTheirValues) {
  constexpr const char* kNames[] = {"black", "blue", "green", "cyan", "red", "magenta", "yellow", "white"};
  for (int i = 0; i < 8; ++i) EXPECT_EQ(ParseColourText(kNames[i], kBase), 0x10 + i) << kNames[i];
}

TEST(ColourText, BrightBelongsToTheForeground) { EXPECT_EQ(ParseColourText("bright red", kBase), 0x1C); }

TEST(ColourText, BrightMayFollowTheColour) { EXPECT_EQ(ParseColourText("red bright", kBase), 0x1C); }

TEST(ColourText, BrightAloneKeepsTheForeground) { EXPECT_EQ(ParseColourText("bright", 0x13), 0x1B); }

TEST(ColourText, OnClearsTheBackgroundAndKeepsTheForeground) {
  EXPECT_EQ(ParseColourText("on red", kBase), 0x4B);
  EXPECT_EQ(ParseColourText("on", kBase), 0x0B);
}

TEST(ColourText, BrightBehindOnBelongsToTheBackground) {
  EXPECT_EQ(ParseColourText("yellow on bright white", kBase), 0xF6);
}

TEST(ColourText, WordsCountByThreeLettersOfAnyCase) {
  EXPECT_EQ(ParseColourText("BRIlliant Yelp ON Greg", kBase), 0x2E);
}

TEST(ColourText, UnknownWordsDoNothing) { EXPECT_EQ(ParseColourText("pink one r", kBase), kBase); }

TEST(ColourText, TabsAndSeveralBlanksSeparate) {
  EXPECT_EQ(ParseColourText("  red \t on  green ", kBase), 0x24);
}

}  // namespace
