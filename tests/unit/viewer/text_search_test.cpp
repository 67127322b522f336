// Search by characters.
#include "unit/viewer/searched_text.h"

namespace {

constexpr int kBlock = CBlockFile::kBlockSize;

// The text as units of a width, which must take its characters.
std::string Units(const std::u32string& text, int width, bool highFirst) {
  std::string bytes;
  for (const char32_t ch : text)
    for (int i = 0; i < width; ++i)
      bytes += static_cast<char>(ch >> 8 * (highFirst ? width - 1 - i : i) & 0xFF);
  return bytes;
}

}  // namespace

// ---- what is searched

TEST(TextSearch, NoTextIsNoSearch) { EXPECT_EQ(SearchedText("abc").Find(L""), kSearchStopped); }

TEST(TextSearch, AnUnknownEncodingIsNoSearch) {
  CTextFile closed;
  EXPECT_EQ(closed.Search(L"a", 0, true, false, false), kSearchStopped);
}

TEST(TextSearch, TheEncodingIsDetectedWhereItIsNotKnown) {
  SearchedText text(Units(U"one two\nthree", 2, false));
  text.Encoding = kUnknownEncoding;
  EXPECT_EQ(text.Find(L"two"), 8);
  EXPECT_EQ(text.Encoding, kUtf16Little);
}

TEST(TextSearch, TheHitIsAnOffsetInBytesInEveryEncoding) {
  EXPECT_EQ(SearchedText("жжtwo").Find(L"two"), 4);
  EXPECT_EQ(SearchedText(Units(U"жжtwo", 2, false), kUtf16Little).Find(L"two"), 4);
  EXPECT_EQ(SearchedText(Units(U"жжtwo", 2, true), kUtf16Big).Find(L"two"), 4);
  EXPECT_EQ(SearchedText(Units(U"жжtwo", 4, false), kUtf32Little).Find(L"two"), 8);
  EXPECT_EQ(SearchedText(Units(U"жжtwo", 4, true), kUtf32Big).Find(L"two"), 8);
  EXPECT_EQ(SearchedText("\xE6two", kCodePageText).Find(L"two"), 1);
}

TEST(TextSearch, BackwardTheHitIsTheStartOfTheTextToo) {
  EXPECT_EQ(SearchedText("жжtwoж").FindBack(L"two", 9), 4);
  EXPECT_EQ(SearchedText(Units(U"жtwoж", 2, false), kUtf16Little).FindBack(L"two", 10), 2);
  EXPECT_EQ(SearchedText(Units(U"жtwoж", 2, true), kUtf16Big).FindBack(L"two", 10), 2);
  EXPECT_EQ(SearchedText(Units(U"жtwoж", 4, false), kUtf32Little).FindBack(L"two", 20), 4);
  EXPECT_EQ(SearchedText(Units(U"жtwoж", 4, true), kUtf32Big).FindBack(L"two", 20), 4);
  EXPECT_EQ(SearchedText("\xE6two\xE6", kCodePageText).FindBack(L"two", 5), 1);
}

// The other order of bytes and the places between two units hold the same bytes.
TEST(TextSearch, OnlyWholeUnitsAreCharacters) {
  SearchedText text(Units(U"ⱡⱡ,a", 2, false), kUtf16Little);  // 61 2C 61 2C 2C 00 61 00
  EXPECT_EQ(text.Find(L","), 4);
  EXPECT_EQ(text.Find(L"\u612C"), kSearchNone);
  EXPECT_EQ(text.Find(L"a"), 6);
}

TEST(TextSearch, ANegativeStartIsTheStartOfTheText) {
  SearchedText text("\xEF\xBB\xBFone one");
  EXPECT_EQ(text.Find(L"one", -1), 3);
  EXPECT_EQ(text.FindWord(L"one", -1), 3);
}

TEST(TextSearch, TheFirstHitFromTheStartOnCounts) {
  SearchedText text("ab ab ab");
  EXPECT_EQ(text.Find(L"ab", 0), 0);
  EXPECT_EQ(text.Find(L"ab", 1), 3);
  EXPECT_EQ(text.Find(L"ab", 7), kSearchNone);
  EXPECT_EQ(text.Find(L"ab", 1000), kSearchNone);
}

TEST(TextSearch, BackwardTheLastHitThatEndsInFrontOfTheStartCounts) {
  SearchedText text("ab ab ab");
  EXPECT_EQ(text.FindBack(L"ab", 8), 6);
  EXPECT_EQ(text.FindBack(L"ab", 7), 3);
  EXPECT_EQ(text.FindBack(L"ab", 2), 0);
  EXPECT_EQ(text.FindBack(L"ab", 1), kSearchNone);
  EXPECT_EQ(text.FindBack(L"ab", 0), kSearchNone);
}

TEST(TextSearch, BackwardFromTheEndReachesOffsetZero) {
  SearchedText text("ab" + std::string(3 * kBlock, '-'));
  EXPECT_EQ(text.FindBack(L"ab", text.FileSize), 0);
}

TEST(TextSearch, AHitMayBeginWithinABeginningOfTheText) {
  EXPECT_EQ(SearchedText("aaab").Find(L"aab"), 1);
  EXPECT_EQ(SearchedText("ababac").Find(L"abac"), 2);
  EXPECT_EQ(SearchedText("baaa").FindBack(L"baa", 4), 0);
  EXPECT_EQ(SearchedText("cababa").FindBack(L"cab", 6), 0);
}

// ---- case

TEST(TextSearch, CaseCountsOnlyWhereItIsAskedFor) {
  SearchedText text("привет ПРИВЕТ");
  EXPECT_EQ(text.Find(L"ПРИВЕТ"), 13);
  EXPECT_EQ(text.FindAnyCase(L"Привет"), 0);
  EXPECT_EQ(text.Search(L"приВЕТ", text.FileSize, false, false, true), 13);
}

TEST(TextSearch, ALetterMayBeLongerThanItsUpperCase) {
  EXPECT_EQ(SearchedText("3 ſets").FindAnyCase(L"sets"), 2);
  EXPECT_EQ(SearchedText("baſ").Search(L"BAS", 4, false, false, true), 0);
  EXPECT_EQ(SearchedText("kıt").FindAnyCase(L"KIT"), 0);
}

// ---- whole words

TEST(TextSearch, AWordMayStandAtBothEdgesOfTheFile) {
  SearchedText text("ab ab");
  EXPECT_EQ(text.FindWord(L"ab", 0), 0);
  EXPECT_EQ(text.FindWord(L"ab", 1), 3);
  EXPECT_EQ(text.FindWordBack(L"ab", 5), 3);
  EXPECT_EQ(text.FindWordBack(L"ab", 4), 0);
  EXPECT_EQ(SearchedText("ab").FindWord(L"ab"), 0);
}

TEST(TextSearch, LettersOfAllAlphabetsMakeWords) {
  for (const char* letter : {"b", "_", "7", "ж", "é", "ᴀ", "中"}) {
    EXPECT_EQ(SearchedText(std::string(letter) + "a a").FindWord(L"a"), 2 + std::string(letter).size());
    EXPECT_EQ(SearchedText(std::string("a") + letter + " a").FindWord(L"a"), 2 + std::string(letter).size());
    EXPECT_EQ(SearchedText(std::string("a a") + letter).FindWordBack(L"a", 3), 0) << letter;
  }
  for (const char* other : {" ", "-", "×", "→", "😀"})
    EXPECT_EQ(SearchedText(std::string(other) + "a" + other).FindWord(L"a"), std::string(other).size());
}

TEST(TextSearch, AWordIsToldByWhatStandsBeyondTheStart) {
  EXPECT_EQ(SearchedText("foobar bar").FindWord(L"bar", 3), 7);
  EXPECT_EQ(SearchedText("foo foobar").FindWordBack(L"foo", 7), 0);
}

// The characters of the match are used up, other than in a mere beginning.
TEST(TextSearch, AfterAPartOfAWordTheSearchGoesOnBehindIt) {
  EXPECT_EQ(SearchedText("ab ab a").FindWord(L"ab a"), kSearchNone);
  EXPECT_EQ(SearchedText("ab ab a ab a").FindWord(L"ab a"), 8);
  EXPECT_EQ(SearchedText("abx ab").FindWord(L"ab"), 4);
}

TEST(TextSearch, TheEndOfTheFileEndsAWord) {
  EXPECT_EQ(SearchedText("a ab").FindWord(L"ab"), 2);
  EXPECT_EQ(SearchedText("a ab\xD0").FindWord(L"ab"), 2);  // and a character that is cut off
}

// ---- bytes that are no UTF-8

TEST(TextSearch, AStrayByteIsFoundAsTheCharacterOfItsLowBits) {
  EXPECT_EQ(SearchedText("ab\xBA-").Find(L":"), 2);
  EXPECT_EQ(SearchedText("ab\xFA-").Find(L"z"), 2);
  EXPECT_EQ(SearchedText("ab\xFA-").FindAnyCase(L"BZ-"), 1);
  EXPECT_EQ(SearchedText("ab\xFA-").FindBack(L"z-", 4), 2);
}

TEST(TextSearch, ALeadByteTakesTheNextOnesWhateverTheyAre) {
  SearchedText text(
      "\xC3"
      "b\xE2"
      "abc");
  EXPECT_EQ(text.Find(L"b"), kSearchNone);
  EXPECT_EQ(text.Find(L"â"), 0);
  EXPECT_EQ(text.Find(L"c"), 5);
  EXPECT_EQ(text.Find(L"a", 3), 3);  // a start within
}

TEST(TextSearch, CharactersLongerThanTheyHaveToBeAreFound) {
  EXPECT_EQ(SearchedText("--\xC1\x81--").Find(L"A"), 2);
  EXPECT_EQ(SearchedText("--\xE0\x81\x81--").Find(L"A"), 2);
  EXPECT_EQ(SearchedText("--\xF0\x80\x81\x81--").FindAnyCase(L"a-"), 2);
  EXPECT_EQ(SearchedText("--\xF0\x80\x81\x81--").FindBack(L"-A-", 8), 1);
}

TEST(TextSearch, ACharacterThatTheFileEndsInKeepsNoSearchFromTheRest) {
  SearchedText text("ab\xE4\xB8");
  EXPECT_EQ(text.FindBack(L"ab", 4), 0);
  EXPECT_EQ(text.Find(L"b"), 1);
  EXPECT_EQ(text.Find(L"c"), kSearchNone);
}

// ---- wide units

TEST(TextSearch, CharactersBeyondAUnitAreNotFoundInIt) {
  const Westring smile = L"\U0001F600";
  EXPECT_EQ(SearchedText("-😀").Find(smile), 1);
  EXPECT_EQ(SearchedText(Units(U"-😀", 4, true), kUtf32Big).Find(smile), 4);
  EXPECT_EQ(SearchedText(Units({U'-', 0xD83D, 0xDE00}, 2, true), kUtf16Big).Find(smile), kSearchNone);
  EXPECT_EQ(SearchedText(Units({U'-', 0xD83D, 0xDE00}, 2, true), kUtf16Big).Find(L"\xDE00"), 4);
  EXPECT_EQ(SearchedText("-\xE6", kCodePageText).Find(L"ж"), kSearchNone);
}

TEST(TextSearch, AZeroIsABlankUnlessItIsKept) {
  SearchedText text(Units({'a', 0, 'b', ' '}, 2, false), kUtf16Little);
  EXPECT_EQ(text.Find(L" "), 6);
  text.KeepNul = false;
  EXPECT_EQ(text.Find(L" "), 2);
  EXPECT_EQ(text.Find(L"a b"), 0);
  EXPECT_EQ(text.FindBack(L"a b", 6), 0);
}

TEST(TextSearch, AnOddByteAtTheEndIsNoCharacter) {
  SearchedText text(Units(U"ab", 2, false) + "c", kUtf16Little);
  EXPECT_EQ(text.Find(L"b"), 2);
  EXPECT_EQ(text.Find(L"c"), kSearchNone);
  EXPECT_EQ(text.FindBack(L"ab", 5), 0);
}

// ---- blocks

TEST(TextSearch, HitsAcrossTheEndOfABlockAreFoundBothWays) {
  for (int offset = kBlock - 8; offset <= kBlock + 2; ++offset) {
    SearchedText text(std::string(offset, '-') + "aжбc" + std::string(2 * kBlock, '-'));
    EXPECT_EQ(text.Find(L"aжбc"), offset);
    EXPECT_EQ(text.FindAnyCase(L"жБ"), offset + 1);
    EXPECT_EQ(text.FindWord(L"aжбc"), offset);
    EXPECT_EQ(text.FindBack(L"aжбc", text.FileSize), offset);
    EXPECT_EQ(text.FindBack(L"aжбc", offset + 6), offset);
    EXPECT_EQ(text.FindBack(L"aжбc", offset + 5), kSearchNone);
  }
}

TEST(TextSearch, ABlockThatCannotBeReadEndsItBothWays) {
  const std::string bytes = "ab" + std::string(4 * kBlock - 4, '-') + "ab";
  const int64_t last = 4 * kBlock - 2;
  SearchedText whole(bytes), damaged(bytes);
  EXPECT_EQ(whole.Find(L"ab", 1), last);
  EXPECT_EQ(whole.FindBack(L"ab", last), 0);
  damaged.LoseBlock(2);
  EXPECT_EQ(damaged.Find(L"ab", 1), kSearchNone);
  EXPECT_EQ(damaged.FindBack(L"ab", last), kSearchNone);
}
