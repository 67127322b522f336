// Which encoding a text is taken for, at the borders of every rule.
#include "viewer/encoding_detection.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>

#include "support/faults.h"
#include "unit/viewer/text_bytes.h"

namespace {

using namespace std::string_literals;

constexpr int kLookedAt = 32768;

int Detected(const std::string& content) { return OpenText(content).Encoding; }

std::string Blanks(int n) { return std::string(static_cast<size_t>(n), ' '); }

// Units of a text around one unit that may be out of place.
std::string Utf16With(uint32_t unit, bool highFirst) {
  return UnitBytes(' ', 2, highFirst) + UnitBytes(unit, 2, highFirst) + UnitBytes('\n', 2, highFirst);
}

}  // namespace

// ---- marks

TEST(EncodingMark, EachIsFoundWithItsLength) {
  const struct {
    std::string mark;
    int encoding;
  } rows[] = {{"\xFF\xFE\0\0"s, kUtf32Little},
              {"\0\0\xFE\xFF"s, kUtf32Big},
              {"\xFF\xFE"s, kUtf16Little},
              {"\xFE\xFF"s, kUtf16Big},
              {"\xEF\xBB\xBF"s, kUtf8}};
  for (const auto& row : rows) {
    OpenText text(row.mark + "abcdefgh");
    EXPECT_EQ(text.Encoding, row.encoding);
    EXPECT_TRUE(text.HasBOM);
    EXPECT_EQ(text.DataStart, static_cast<int64_t>(row.mark.size()));
    EXPECT_EQ(text.Position, text.DataStart);
    EXPECT_EQ(text.BigEndian(), row.encoding == kUtf32Big || row.encoding == kUtf16Big);
    EXPECT_EQ(Detected(row.mark), row.encoding) << "the mark alone";
  }
}

TEST(EncodingMark, TheLongerOneWins) {
  EXPECT_EQ(Detected("\xFF\xFE\0\0a\0\0\0"s), kUtf32Little);
  EXPECT_EQ(Detected("\xFF\xFE\0a"s), kUtf16Little);
}

TEST(EncodingMark, AnIncompleteOneIsNone) {
  for (const std::string& content : {"\xEF\xBB"s, "\xEF\xBB "s, "\0\0\xFE "s, "\xFF"s}) {
    OpenText text(content);
    EXPECT_FALSE(text.HasBOM);
    EXPECT_EQ(text.DataStart, 0);
    EXPECT_EQ(text.Position, 0);
  }
}

TEST(EncodingMark, BytesBehindTheEndCountAsFF) {
  OpenText text("\xFE"s);
  EXPECT_EQ(text.Encoding, kUtf16Big);
  EXPECT_EQ(text.DataStart, 2);
  EXPECT_EQ(text.GetChar(), -1);
  EXPECT_EQ(text.Line(), kNoLine);
  EXPECT_EQ(Detected("\0\0\xFE"s), kUtf32Big);
  EXPECT_EQ(Detected("\xFF\xFE"s), kUtf16Little) << "and not the longer mark";
}

TEST(EncodingMark, OnlyTheBeginningCounts) { EXPECT_EQ(Detected("a\xFF\xFE\0\0"s), kCodePageText); }

TEST(EncodingMark, StandsAboveAPresetEncodingAndTheBytesDoNot) {
  ScratchDirectory box;
  box.Write("marked", "\xEF\xBB\xBFx");
  box.Write("plain", "\xC3\xA9");
  CTextFile text;
  text.Encoding = kCodePageText;
  EXPECT_EQ(text.Open(box.Path("plain").c_str()), 0);
  EXPECT_EQ(text.Encoding, kCodePageText);
  EXPECT_EQ(text.Position, 0);
  EXPECT_EQ(text.Open(box.Path("marked").c_str()), 0);
  EXPECT_EQ(text.Encoding, kUtf8);
  EXPECT_EQ(text.Position, 3);
}

// ---- UTF-8

TEST(EncodingGuess, PlainAsciiIsUtf8) {
  EXPECT_EQ(Detected(""), kUtf8);
  EXPECT_EQ(Detected("a"), kUtf8);
  EXPECT_EQ(Detected("some text\nof two lines\n"), kUtf8);
  EXPECT_EQ(Detected("\x01\x7F"), kUtf8);
}

TEST(EncodingGuess, SequencesOfEveryLengthAreUtf8) {
  EXPECT_EQ(Detected("\xC3\xA9"), kUtf8);
  EXPECT_EQ(Detected("a\xE2\x82\xACz"), kUtf8);
  EXPECT_EQ(Detected("\xF0\x9F\x98\x80"), kUtf8);
  EXPECT_EQ(Detected("\xC0\x80"), kUtf8) << "the form alone counts";
  EXPECT_EQ(Detected("\xF7\xBF\xBF\xBF"), kUtf8);
}

TEST(EncodingGuess, AWrongByteInASequenceIsACodePage) {
  for (const char* const bytes :
       {"\xC3z", "\xC3\xC3", "\xE2\x82z", "\xE2z\x82", "\xF0\x9F\x98z", "\xF0\x9Fz\x80"})
    EXPECT_EQ(Detected(bytes), kCodePageText) << bytes;
  EXPECT_EQ(Detected("\xC3\xA9 \xC3z \xC3\xA9"), kCodePageText) << "good ones do not outweigh it";
}

TEST(EncodingGuess, TheEndInsideOfASequenceIsACodePage) {
  for (const char* const bytes : {"\xC3", "a\xE2\x82", "\xF0\x9F\x98", "\xC3\xA9\xC3"})
    EXPECT_EQ(Detected(bytes), kCodePageText) << bytes;
}

TEST(EncodingGuess, ABytePastAsciiThatLeadsNothingIsACodePage) {
  for (const char* const bytes : {"\x80", "\xBF", "\xF8", "\xFB\x80\x80\x80\x80", "\xFF", "\xC3\xA9\xA9"})
    EXPECT_EQ(Detected(bytes), kCodePageText) << bytes;
}

TEST(EncodingGuess, ANulIsACodePageEvenBehindGoodSequences) {
  EXPECT_EQ(Detected("abc\0def"s), kCodePageText);
  EXPECT_EQ(Detected("\xC3\xA9 \0"s), kCodePageText);
}

TEST(EncodingGuess, ASequenceBeyondTheFirst32KbIsNotLookedAt) {
  EXPECT_EQ(Detected(Blanks(kLookedAt - 1) + "\xE9"), kCodePageText);
  EXPECT_EQ(Detected(Blanks(kLookedAt) + "\xE9"), kUtf8);
  EXPECT_EQ(Detected(Blanks(kLookedAt - 1) + "\0"s), kCodePageText);
  EXPECT_EQ(Detected(Blanks(kLookedAt) + "\0"s), kUtf8);
}

TEST(EncodingGuess, ASequenceThatBeginsWithinIsReadToItsEnd) {
  EXPECT_EQ(Detected(Blanks(kLookedAt - 1) + "\xE2\x82\xAC"), kUtf8);
  EXPECT_EQ(Detected(Blanks(kLookedAt - 1) + "\xE2\x82z"), kCodePageText);
  EXPECT_EQ(Detected(Blanks(kLookedAt - 1) + "\xE2\x82\xAC\xE9"), kUtf8);
}

// ---- UTF-32

TEST(EncodingGuess, WideWordsWithABlankOrALineFeedAreUtf32) {
  for (const int encoding : {kUtf32Little, kUtf32Big})
    for (const char32_t* const text : {U"a b", U"a\nb", U"\x10FFFF ", U"\u0416 \u0416"})
      EXPECT_EQ(Detected(Encoded(text, encoding)), encoding);
}

TEST(EncodingGuess, WideWordsWithNeitherAreNotUtf32) {
  EXPECT_EQ(Detected(Encoded(U"abc", kUtf32Little)), kCodePageText);
  EXPECT_EQ(Detected(Encoded(U"abc", kUtf32Big)), kCodePageText);
}

TEST(EncodingGuess, AWordAboveTheLastCharacterRejectsForGood) {
  for (const int encoding : {kUtf32Little, kUtf32Big}) {
    const std::string bad = UnitBytes(0x110000, 4, encoding == kUtf32Big);
    EXPECT_EQ(Detected(bad + Encoded(U"a b", encoding)), kCodePageText);
    EXPECT_EQ(Detected(Encoded(U"a b", encoding) + bad), kCodePageText);
  }
}

TEST(EncodingGuess, AZeroWordIsAllowedInUtf32) {
  EXPECT_EQ(Detected(UnitBytes(0, 4, false) + Encoded(U"a b", kUtf32Little)), kUtf32Little);
}

TEST(EncodingGuess, WordsOfAnIncompleteEndDoNotCount) {
  EXPECT_EQ(Detected(Encoded(U"a b", kUtf32Little) + "\xFF\xFF\xFF"), kUtf32Little);
  EXPECT_EQ(Detected(Encoded(U"ab", kUtf32Little) + " \0\0"s), kCodePageText);
}

TEST(EncodingGuess, WordsBeyondTheFirst32KbAreNotLookedAt) {
  const std::u32string filler(kLookedAt / 4 - 1, U'a');
  EXPECT_EQ(Detected(Encoded(filler + U" ", kUtf32Little)), kUtf32Little);
  EXPECT_EQ(Detected(Encoded(filler + U"a ", kUtf32Little)), kCodePageText);
  EXPECT_EQ(Detected(Encoded(U" " + filler, kUtf32Big) + "\xFF\xFF\xFF\xFF"), kUtf32Big);
}

TEST(EncodingGuess, LittleWordsComeFirst) {
  EXPECT_EQ(Detected(UnitBytes(' ', 4, false) + UnitBytes(0, 4, false)), kUtf32Little);
  EXPECT_EQ(Detected(UnitBytes('\n', 4, true) + UnitBytes(0, 4, true)), kUtf32Big);
}

// ---- UTF-16

TEST(EncodingGuess, MostlyAsciiUnitsAreFoundByTheirBlanksAndLineFeeds) {
  for (const int encoding : {kUtf16Little, kUtf16Big}) {
    EXPECT_EQ(Detected(Encoded(U"some text\nand more\n", encoding)), encoding);
    EXPECT_EQ(Detected(Encoded(U"\n\u0416 ", encoding)), encoding);
    EXPECT_EQ(Detected(Encoded(U"some text and more", encoding)), kCodePageText) << "no line feed";
    EXPECT_EQ(Detected(Encoded(U"some\ntext\n", encoding)), kCodePageText) << "no blank";
  }
}

TEST(EncodingGuess, EveryRangeOfNoTextRejectsFromItsFirstToItsLastUnit) {
  const struct {
    uint32_t first, last;
  } ranges[] = {{0x07FB, 0x0900}, {0x1A20, 0x1AFF}, {0x1C80, 0x1CFF}, {0x2B55, 0x2BFF}, {0xA698, 0xA6FF},
                {0xA78D, 0xA7FA}, {0xA960, 0xA9FF}, {0xAA60, 0xABFF}, {0xD7A4, 0xF8FF}};
  for (const bool highFirst : {false, true}) {
    const int encoding = highFirst ? kUtf16Big : kUtf16Little;
    for (const auto& range : ranges) {
      EXPECT_EQ(Detected(Utf16With(range.first - 1, highFirst)), encoding) << std::hex << range.first;
      EXPECT_NE(Detected(Utf16With(range.first, highFirst)), encoding) << std::hex << range.first;
      EXPECT_NE(Detected(Utf16With(range.last, highFirst)), encoding) << std::hex << range.last;
      EXPECT_EQ(Detected(Utf16With(range.last + 1, highFirst)), encoding) << std::hex << range.last;
    }
    EXPECT_NE(Detected(Utf16With(0, highFirst)), encoding);
    EXPECT_EQ(Detected(Utf16With(1, highFirst)), encoding);
    EXPECT_EQ(Detected(Utf16With(0xFFFF, highFirst)), encoding);
  }
}

TEST(EncodingGuess, UnitsBeyondTheFirst32KbAreNotLookedAt) {
  const std::u32string filler = U" " + std::u32string(kLookedAt / 2 - 2, U'a');
  EXPECT_EQ(Detected(Encoded(filler + U"\n", kUtf16Little)), kUtf16Little);
  EXPECT_EQ(Detected(Encoded(filler + U"a\n", kUtf16Little)), kCodePageText);
  EXPECT_EQ(Detected(Encoded(filler + U"\n", kUtf16Big) + "\0\0"s), kUtf16Big);
}

TEST(EncodingGuess, AUnitOfAnIncompleteEndDoesNotCount) {
  EXPECT_EQ(Detected(Encoded(U"a b\n", kUtf16Little) + "\n"), kUtf16Little);
  EXPECT_EQ(Detected(Encoded(U"a b", kUtf16Little) + "\n"), kCodePageText);
}

TEST(EncodingGuess, WideTextOfBytesThatLookLikeUtf8IsUtf8) {
  // No NUL and only good sequences: the first test has the say.
  EXPECT_EQ(Detected("\xC3\xA9 \n\xC3\xA9"), kUtf8);
}

TEST(EncodingGuess, CodePageTextIsNeitherOfTheWideOnes) {
  EXPECT_EQ(Detected("caf\xE9 \n and so on\n"), kCodePageText);
}

TEST(EncodingGuess, WithoutAFileThereIsNone) {
  CTextFile text;
  EXPECT_NE(text.Open(L"/no/such/file"), 0);
  EXPECT_EQ(text.Encoding, kUnknownEncoding);
  EXPECT_EQ(text.Position, 0);
  EXPECT_FALSE(text.HasBOM);
}

TEST(EncodingGuess, AFileThatCannotBeReadIsTakenForEmpty) {
  ScratchDirectory box;
  box.Write("text", "caf\xE9");
  const Fault broken(kCallRead, {.path = box.Path("text"), .times = kEveryCall, .code = EIO});
  CTextFile text;
  ASSERT_EQ(text.Open(box.Path("text").c_str()), 0);
  EXPECT_EQ(text.Encoding, kUtf8);
  EXPECT_EQ(text.GetChar(), -1);
}
