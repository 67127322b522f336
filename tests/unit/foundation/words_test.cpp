// Moves by words, as the keys of lines and fields make them.
#include <gtest/gtest.h>

#include "foundation/words.h"

TEST(WordStart, GoesToTheStartOfTheWordLeftOfTheCursor) {
  EXPECT_EQ(WordStart(L"copy file", 9), 5);
  EXPECT_EQ(WordStart(L"copy file", 7), 5);
  EXPECT_EQ(WordStart(L"copy file", 3), 0);
}

TEST(WordStart, PassesWhatIsNoWordFirst) {
  EXPECT_EQ(WordStart(L"copy   file", 7), 0);
  EXPECT_EQ(WordStart(L"copy file/.", 11), 5);
}

TEST(WordStart, FromTheStartOfAWordGoesToTheOneBefore) {
  EXPECT_EQ(WordStart(L"copy file", 5), 0);
  EXPECT_EQ(WordStart(L"a b", 2), 0);
}

TEST(WordStart, StaysAtTheStartOfTheLine) {
  EXPECT_EQ(WordStart(L"copy", 0), 0);
  EXPECT_EQ(WordStart(L"", 0), 0);
  EXPECT_EQ(WordStart(L"  a", 2), 0);
  EXPECT_EQ(WordStart(L"///", 3), 0);
}

TEST(WordStart, UnderscoresDigitsAndLettersOfAnyScriptAreWords) {
  EXPECT_EQ(WordStart(L"x \x444\x430_9", 6), 2);
}

TEST(WordEnd, BriefGoesBehindTheNextWord) {
  EXPECT_EQ(WordEnd(L"copy file", true), 4);
  EXPECT_EQ(WordEnd(L" file", true), 5);
  EXPECT_EQ(WordEnd(L"./file.c", true), 6);
}

TEST(WordEnd, OtherwiseGoesToTheStartOfTheNextWord) {
  EXPECT_EQ(WordEnd(L"copy file", false), 5);
  EXPECT_EQ(WordEnd(L"copy  ./file", false), 8);
  EXPECT_EQ(WordEnd(L"  ./file", false), 4);
}

// So a word that stands right of the cursor is passed whole.
TEST(WordEnd, OtherwiseStepsAtLeastOneCharacterFirst) {
  EXPECT_EQ(WordEnd(L"a b", false), 2);
  EXPECT_EQ(WordEnd(L"/b c", false), 3);
  EXPECT_EQ(WordEnd(L" file", false), 5);
  EXPECT_EQ(WordEnd(L"//b", false), 2);
}

TEST(WordEnd, EndsAtTheEndOfTheLine) {
  for (bool brief : {false, true}) {
    EXPECT_EQ(WordEnd(L"", brief), 0);
    EXPECT_EQ(WordEnd(L"copy", brief), 4);
    EXPECT_EQ(WordEnd(L"...", brief), 3);
  }
}

TEST(NextWord, GoesBehindTheNextWordOrToItsStart) {
  EXPECT_EQ(NextWord(L" file x", true), 5);
  EXPECT_EQ(NextWord(L"copy file", false), 5);
  EXPECT_EQ(NextWord(L"/file", false), 1);
  EXPECT_EQ(NextWord(L"//file", false), 2);
  EXPECT_EQ(NextWord(L"file", false), 4);
  EXPECT_EQ(NextWord(L"", false), 0);
}
