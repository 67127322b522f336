// Search in the bytes of a code page.
#include "foundation/code_pages.h"
#include "unit/viewer/searched_text.h"

namespace {

constexpr int kBlock = CBlockFile::kBlockSize;

std::string Repeated(const std::string& text, int n) {
  std::string all;
  while (n-- > 0) all += text;
  return all;
}

}  // namespace

// ---- the pattern

TEST(ByteSearch, NoTextIsNoSearch) { EXPECT_EQ(SearchedText("abc").FindBytes(L""), kSearchStopped); }

TEST(ByteSearch, ATextThatThePageLacksIsNotFound) {
  SearchedText text("abc ????");
  EXPECT_EQ(text.FindBytes(L"где"), kSearchNone);
  EXPECT_EQ(text.FindBytesAnyCase(L"где"), kSearchNone);
}

TEST(ByteSearch, OfATextThatThePageLacksInPartTheBeginningIsFound) {
  EXPECT_EQ(SearchedText("xabc").FindBytes(L"abж"), 1);
}

TEST(ByteSearch, NothingIsFoundInAPageThatDoesNotExist) {
  SearchedText text("abc");
  EXPECT_EQ(text.SearchBytes(L"abc", 0, false, true, false, 31999), kSearchNone);
  EXPECT_EQ(text.SearchBytes(L"abc", 0, true, false, true, -1), kSearchNone);
}

TEST(ByteSearch, TheTextIsFoundAsTheBytesOfItsPage) {
  SearchedText text("\xE3\xE4\xE5 \xAA\xAB\xAC \xA3\xA4\xA5");
  EXPECT_EQ(text.SearchBytes(L"где", 0, false, true, false, 1251), 0);
  EXPECT_EQ(text.SearchBytes(L"где", 0, false, true, false, 866), 8);
  EXPECT_EQ(text.SearchBytes(L"клм", 0, false, true, false, 866), 4);
}

// ---- case

TEST(ByteSearch, CaseCountsOnlyWhereItIsAskedFor) {
  SearchedText text("one ONE One");
  EXPECT_EQ(text.FindBytes(L"One"), 8);
  EXPECT_EQ(text.FindBytesAnyCase(L"oNE"), 0);
  EXPECT_EQ(text.SearchBytes(L"oNE", 10, true, false, false, 819), 8);
}

TEST(ByteSearch, CaseIsThatOfTheLettersOfThePage) {
  EXPECT_EQ(SearchedText("-\xCF\xD0\xC8\xE2\xE5\xF2").FindBytesAnyCase(L"приВЕТ", 1251), 1);
  EXPECT_EQ(SearchedText("-\x82").FindBytesAnyCase(L"É", 437), 1);  // e with an acute
  EXPECT_EQ(SearchedText("-\xC9").FindBytesAnyCase(L"é", 819), 1);
}

TEST(ByteSearch, ALetterWhoseUpperCaseThePageLacksIsFoundByItsCaseOnly) {
  SearchedText text("\xFF");
  EXPECT_EQ(text.FindBytes(L"ÿ"), 0);
  EXPECT_EQ(text.FindBytesAnyCase(L"ÿ"), kSearchNone);
}

// All bytes but the one looked for, so each of them could be taken for it.
TEST(ByteSearch, NoOtherByteIsTakenForALetter) {
  std::string others;
  for (int byte = 0; byte < 256; ++byte)
    if (byte != 'q' && byte != 'Q') others += static_cast<char>(byte);
  EXPECT_EQ(SearchedText(others).FindBytesAnyCase(L"q"), kSearchNone);
  EXPECT_EQ(SearchedText(others + "q").FindBytesAnyCase(L"Q"), 254);
}

TEST(ByteSearch, ZerosAreBytesLikeOthers) {
  SearchedText text(std::string("\0\0a\0ab\0", 7));
  EXPECT_EQ(text.FindBytes(L"ab"), 4);
  EXPECT_EQ(text.FindBytesAnyCase(L"AB"), 4);
  EXPECT_EQ(text.FindByteWord(L"ab"), 4);
  EXPECT_EQ(text.FindBytesBack(L"a", 3), 2);
}

// ---- forward

TEST(ByteSearch, TheFirstHitFromTheStartOnCounts) {
  SearchedText text("ab ab ab");
  EXPECT_EQ(text.FindBytes(L"ab", 0), 0);
  EXPECT_EQ(text.FindBytes(L"ab", 1), 3);
  EXPECT_EQ(text.FindBytes(L"ab", 6), 6);
  EXPECT_EQ(text.FindBytes(L"ab", 7), kSearchNone);
}

TEST(ByteSearch, AHitMayBeginWithinABeginningOfTheText) {
  EXPECT_EQ(SearchedText("aaab").FindBytes(L"aab"), 1);
  EXPECT_EQ(SearchedText("ababac").FindBytes(L"abac"), 2);
}

TEST(ByteSearch, NothingIsFoundBesideTheFile) {
  SearchedText text("abc");
  EXPECT_EQ(text.FindBytes(L"abcd"), kSearchNone);
  EXPECT_EQ(text.FindBytes(L"c", 3), kSearchNone);
  EXPECT_EQ(text.FindBytes(L"a", 1000), kSearchNone);
  EXPECT_EQ(text.FindBytes(L"a", INT64_MAX), kSearchNone);
  EXPECT_EQ(text.FindBytes(L"a", INT64_MIN), kSearchNone);
  EXPECT_EQ(text.FindBytesBack(L"a", INT64_MAX), kSearchNone);
  EXPECT_EQ(text.FindBytesBack(L"a", INT64_MIN), kSearchNone);
  EXPECT_EQ(SearchedText("").FindBytes(L"a"), kSearchNone);
  EXPECT_EQ(SearchedText("").FindBytesBack(L"a", 0), kSearchNone);
}

// The first byte looked at is the one where a hit at the start would end.
TEST(ByteSearch, AStartInFrontOfTheFileReachesIntoItOrNot) {
  SearchedText text("abc");
  EXPECT_EQ(text.FindBytes(L"abc", -2), 0);
  EXPECT_EQ(text.FindBytes(L"abc", -3), kSearchNone);
}

// ---- backward

TEST(ByteSearch, BackwardTheLastHitThatEndsAtTheStartOrBeforeCounts) {
  SearchedText text("ab ab ab");
  EXPECT_EQ(text.FindBytesBack(L"ab", 7), 6);
  EXPECT_EQ(text.FindBytesBack(L"ab", 6), 3);
  EXPECT_EQ(text.FindBytesBack(L"ab", 4), 3);
  EXPECT_EQ(text.FindBytesBack(L"ab", 3), 0);
  EXPECT_EQ(text.FindBytesBack(L"ab", 1), 0);
  EXPECT_EQ(text.FindBytesBack(L"ab", 0), kSearchNone);
}

TEST(ByteSearch, BackwardFromTheEndReachesOffsetZero) {
  const std::string rest(100, '-');
  SearchedText text("ab" + rest);
  EXPECT_EQ(text.FindBytesBack(L"ab", text.FileSize), 0);
  EXPECT_EQ(text.FindBytesBack(L"ab", text.FileSize - 1), 0);
  SearchedText large("ab" + Repeated(rest, 500));
  EXPECT_EQ(large.FindBytesBack(L"ab", large.FileSize), 0);
}

TEST(ByteSearch, BackwardAHitMayEndWithinAnEndOfTheText) {
  EXPECT_EQ(SearchedText("baaa").FindBytesBack(L"baa", 3), 0);
  EXPECT_EQ(SearchedText("cababa").FindBytesBack(L"cab", 5), 0);
}

// The byte at which the search begins has to be there.
TEST(ByteSearch, BackwardFromBehindTheFileFindsWhatBeginsWithinIt) {
  SearchedText text("abc");
  EXPECT_EQ(text.FindBytesBack(L"c", 3), kSearchNone);
  EXPECT_EQ(text.FindBytesBack(L"bc", 3), 1);
  EXPECT_EQ(text.FindBytesBack(L"bc", 4), kSearchNone);
}

// ---- whole words

TEST(ByteSearch, AWordMayStandAtBothEdgesOfTheFile) {
  SearchedText text("ab ab");
  EXPECT_EQ(text.FindByteWord(L"ab", 0), 0);
  EXPECT_EQ(text.FindByteWord(L"ab", 1), 3);
  EXPECT_EQ(SearchedText("ab").FindByteWord(L"ab"), 0);
  EXPECT_EQ(text.SearchBytes(L"ab", 5, true, true, true, 819), 3);
  EXPECT_EQ(text.SearchBytes(L"ab", 3, true, true, true, 819), 0);
}

TEST(ByteSearch, LettersDigitsUnderscoreAndMostHighBytesMakeWords) {
  constexpr int kRecord = 6;
  std::string records;
  for (int byte = 0; byte < 256; ++byte) {
    const char neighbour = static_cast<char>(byte);
    records += {neighbour, '=', '\n', '=', neighbour, '\n'};
  }
  SearchedText text(records);
  for (int byte = 0; byte < 256; ++byte) {
    const bool isWord = isalnum(byte) || byte == '_' || (byte >= 128 && byte <= 254);
    const int behind = byte * kRecord + 1, before = byte * kRecord + 3;
    EXPECT_EQ(text.FindByteWord(L"=", behind) == behind, !isWord) << byte;
    EXPECT_EQ(text.FindByteWord(L"=", before) == before, !isWord) << byte;
  }
}

TEST(ByteSearch, AfterAPartOfAWordTheSearchGoesOnWithTheNextByte) {
  EXPECT_EQ(SearchedText("ab ab a").FindByteWord(L"ab a"), 3);
  EXPECT_EQ(SearchedText("a ba ba").SearchBytes(L"a ba", 6, true, true, true, 819), 0);
  EXPECT_EQ(SearchedText("xab ab").FindByteWord(L"ab"), 4);
  EXPECT_EQ(SearchedText("ab abx").SearchBytes(L"ab", 5, true, true, true, 819), 0);
}

TEST(ByteSearch, AWordIsToldByWhatStandsBeforeTheStart) {
  EXPECT_EQ(SearchedText("foobar bar").FindByteWord(L"bar", 3), 7);
}

// ---- blocks

TEST(ByteSearch, HitsAcrossTheEndOfABlockAreFoundBothWays) {
  for (int offset = kBlock - 4; offset <= kBlock + 1; ++offset) {
    SearchedText text(std::string(offset, '-') + "abc" + std::string(2 * kBlock, '-'));
    EXPECT_EQ(text.FindBytes(L"abc"), offset);
    EXPECT_EQ(text.FindByteWord(L"abc"), offset);
    EXPECT_EQ(text.FindBytesBack(L"abc", text.FileSize - 1), offset);
    EXPECT_EQ(text.FindBytes(L"abc", offset), offset);
    EXPECT_EQ(text.FindBytesBack(L"abc", offset + 2), offset);
    EXPECT_EQ(text.FindBytes(L"abc", offset + 1), kSearchNone);
    EXPECT_EQ(text.FindBytesBack(L"abc", offset + 1), kSearchNone);
  }
}

TEST(ByteSearch, ABlockThatCannotBeReadEndsItBothWays) {
  const std::string bytes = "ab" + std::string(4 * kBlock - 4, '-') + "ab";
  const int64_t last = 4 * kBlock - 2;
  SearchedText whole(bytes), damaged(bytes);
  EXPECT_EQ(whole.FindBytes(L"ab", 1), last);
  EXPECT_EQ(whole.FindBytesBack(L"ab", last), 0);
  damaged.LoseBlock(2);
  EXPECT_EQ(damaged.FindBytes(L"ab", 1), kSearchNone);
  EXPECT_EQ(damaged.FindBytesBack(L"ab", last), kSearchNone);
}

// ---- long texts

// The skips know the positions up to 127; a byte whose last one is above counts
// as one that the text lacks.
TEST(ByteSearch, ALongTextIsFoundByItsEarlyBytes) {
  const Westring pattern = Westring(L"a") + Westring::Replicate(L'b', 199);
  const std::string bytes = "a" + std::string(199, 'b');
  EXPECT_EQ(SearchedText(std::string(199, '-') + bytes).FindBytes(pattern), 199);
  EXPECT_EQ(SearchedText(bytes).FindBytes(pattern), kSearchNone);
  EXPECT_EQ(SearchedText(std::string(200, '-') + bytes).FindBytes(pattern), kSearchNone);
}

TEST(ByteSearch, BackwardALongTextIsFoundByTheFirstOfEachByte) {
  const Westring pattern = Westring::Replicate(L'a', 150) + Westring::Replicate(L'b', 50);
  const std::string bytes = std::string(150, 'a') + std::string(50, 'b');
  SearchedText found(std::string(10, '-') + bytes + std::string(30, '-'));
  EXPECT_EQ(found.FindBytesBack(pattern, found.FileSize - 1), 10);  // comes upon an a first
  SearchedText missed(std::string(300, '-') + bytes + std::string(300, '-'));
  EXPECT_EQ(missed.FindBytesBack(pattern, 300 + 150 + 199), kSearchNone);  // upon a b, then past all
}

TEST(ByteSearch, ATextOf128BytesIsFoundAnywhere) {
  const Westring pattern = Westring(L"a") + Westring::Replicate(L'b', 127);
  const std::string bytes = "a" + std::string(127, 'b');
  for (int offset : {0, 1, 127, 128, 200}) {
    SearchedText text(std::string(offset, '-') + bytes + std::string(300, '-'));
    EXPECT_EQ(text.FindBytes(pattern), offset);
    EXPECT_EQ(text.FindBytesBack(pattern, text.FileSize), offset);
  }
}
