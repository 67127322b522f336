// Lines: what ends them, pieces of long ones, and the characters of code pages.
#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>
#include <string>
#include <vector>

#include "unit/viewer/text_bytes.h"
#include "viewer/text_file.h"

namespace {

using namespace std::string_literals;
using Lines = std::vector<std::wstring>;

constexpr int kBlock = CBlockFile::kBlockSize;

Lines LinesOf(const std::string& bytes) { return OpenText(bytes, kCodePageText).Lines(); }

// A line from its byte on; what a code page makes of bytes.
std::wstring InPage(const std::string& bytes, int page) {
  OpenText text(bytes, kCodePageText);
  text.CodePage = page;
  return text.Line();
}

}  // namespace

// ---- line ends

TEST(LineEnds, OneOfEachKindInAnyOrderIsOneEnd) {
  const Lines expected{L"a", L"b"};
  for (const std::u32string& end : {U"\r"s, U"\n"s, U"\0"s, U"\r\n"s, U"\n\r"s, U"\0\n"s, U"\n\0"s, U"\0\r"s,
                                    U"\r\0"s, U"\r\n\0"s, U"\n\r\0"s, U"\0\r\n"s, U"\r\0\n"s})
    for (int encoding = 0; encoding <= kUnknownEncoding; ++encoding) {
      OpenText text(Encoded(U"a" + end + U"b", encoding), encoding);
      EXPECT_EQ(text.Lines(), expected) << encoding;
    }
}

TEST(LineEnds, ASecondOneOfAKindEndsTheNextLine) {
  const Lines expected{L"a", L"", L"b"};
  for (const std::u32string& end : {U"\r\r"s, U"\n\n"s, U"\0\0"s, U"\r\n\r"s, U"\r\n\r\n"s, U"\n\r\r\n"s,
                                    U"\r\n\n"s, U"\n\0\n"s, U"\r\0\n\r"s})
    for (int encoding = 0; encoding <= kUnknownEncoding; ++encoding) {
      OpenText text(Encoded(U"a" + end + U"b", encoding), encoding);
      EXPECT_EQ(text.Lines(), expected) << encoding;
    }
}

TEST(LineEnds, ThePositionIsBehindTheGroup) {
  OpenText text("ab\r\ncd\n\nef", kCodePageText);
  for (const int64_t behind : {4, 7, 8, 10}) {
    text.Line();
    EXPECT_EQ(text.Position, behind);
  }
}

TEST(LineEnds, AGroupAtTheEndOfTheFileLeavesThePositionThere) {
  for (int encoding = 0; encoding <= kUnknownEncoding; ++encoding) {
    OpenText text(Encoded(U"ab\r\n", encoding), encoding);
    EXPECT_EQ(text.Line(), L"ab");
    EXPECT_EQ(text.Position, text.FileSize);
    EXPECT_TRUE(text.EndedInTerminator);
    EXPECT_EQ(text.Line(), kNoLine);
    EXPECT_TRUE(text.EndedInTerminator) << "told of the line read last";
  }
}

TEST(LineEnds, WhatIsCutOffBehindTheLastGroupBelongsToTheEnd) {
  OpenText text("ab\n\xC3", kUtf8);
  EXPECT_EQ(text.Line(), L"ab");
  EXPECT_EQ(text.Position, text.FileSize);
  EXPECT_TRUE(text.EndedInTerminator);
}

TEST(LineEnds, AnEmptyFileHasNoLine) {
  OpenText text("");
  EXPECT_EQ(text.Line(), kNoLine);
  EXPECT_FALSE(text.EndedInTerminator);
  EXPECT_EQ(text.LineEndStyle, kLineEndLf);
}

TEST(LineEnds, ALineEndAloneIsOneEmptyLine) {
  EXPECT_EQ(LinesOf("\n"), (Lines{L""}));
  EXPECT_EQ(LinesOf("\r\n"), (Lines{L""}));
  EXPECT_EQ(LinesOf("\n\n"), (Lines{L"", L""}));
}

TEST(LineEnds, TheLastLineMayHaveNone) {
  OpenText text("a\nb", kUtf8);
  EXPECT_EQ(text.Line(), L"a");
  EXPECT_TRUE(text.EndedInTerminator);
  EXPECT_EQ(text.Line(), L"b");
  EXPECT_FALSE(text.EndedInTerminator);
  EXPECT_EQ(text.Line(), kNoLine);
  EXPECT_FALSE(text.EndedInTerminator);
}

TEST(LineEnds, AZeroIsABlankUnlessKeptButEndsALineOfUtf8) {
  for (int encoding = 0; encoding <= kUnknownEncoding; ++encoding) {
    OpenText text(Encoded(U"a\0b"s, encoding), encoding);
    text.KeepNul = false;
    const Lines expected = encoding == kUtf8 ? Lines{L"a", L"b"} : Lines{L"a b"};
    EXPECT_EQ(text.Lines(), expected) << encoding;
  }
}

TEST(LineEnds, ZerosThatAreBlanksAreReadInRunsAsOneByOne) {
  const std::string hole(2 * kBlock, 0);
  for (const int encoding : {kCodePageText, kUnknownEncoding}) {
    OpenText text("a" + hole + "b\r\0\n"s + hole, encoding);
    text.KeepNul = false;
    EXPECT_EQ(text.Line(), L"a" + std::wstring(2 * kBlock, L' ') + L"b");
    EXPECT_EQ(text.Position, 2 * kBlock + 3) << "a blank is no part of a line end";
    EXPECT_EQ(text.Line(), L" ");
    EXPECT_EQ(text.Line(kBlock), std::wstring(kBlock, L' '));
    EXPECT_EQ(text.Line(), std::wstring(kBlock, L' '));
    text.KeepNul = true;
    text.Position = 0;
    EXPECT_EQ(text.Line(), L"a");
    EXPECT_EQ(text.Position, 2);
  }
}

TEST(LineEnds, ForcedUtf8EndsLinesAtTheZerosThatTheDetectionStumbledOver) {
  OpenText text("caf\xC3\xA9\0bar\n"s);
  EXPECT_EQ(text.Encoding, kCodePageText);
  text.Encoding = kUtf8;
  EXPECT_EQ(text.Lines(), (Lines{L"caf\u00E9", L"bar"}));
}

TEST(LineEnds, AGroupAcrossTheBorderOfBlocksIsOne) {
  for (int before = kBlock - 3; before <= kBlock + 1; ++before) {
    const std::string filler(static_cast<size_t>(before), 'x');
    OpenText text(filler + "\r\nend", kCodePageText);
    EXPECT_EQ(text.Line().size(), filler.size());
    EXPECT_EQ(text.Position, before + 2);
    EXPECT_EQ(text.Line(), L"end");
  }
}

TEST(LineEnds, OtherControlCharactersAndSeparatorsEndNoLine) {
  OpenText text(Encoded(U"a\t\v\f\x1A\x1B\u0085\u2028z\n", kUtf8), kUtf8);
  EXPECT_EQ(text.Line(), L"a\t\v\f\x1A\x1B\u0085\u2028z");
}

// ---- the style of line ends

TEST(LineEndStyle, IsThatOfTheFirstEndWithALineFeed) {
  const struct {
    const char* bytes;
    int style;
  } rows[] = {{"a\nb\r\n", kLineEndLf},      {"a\r\nb\n", kLineEndCrLf},  {"a\n\rb", kLineEndCrLf},
              {"a\rb\r\nc\n", kLineEndCrLf}, {"a\rb\nc\r\n", kLineEndLf}, {"a\n", kLineEndLf}};
  for (const auto& row : rows) {
    OpenText text(row.bytes, kCodePageText);
    EXPECT_EQ(text.LineEndStyle, kLineEndUnknown);
    text.Lines();
    EXPECT_EQ(text.LineEndStyle, row.style) << row.bytes;
  }
}

TEST(LineEndStyle, IsUnknownUntilTheEndOfAFileWithoutLineFeeds) {
  OpenText text("a\rb\r", kCodePageText);
  text.Line();
  text.Line();
  EXPECT_EQ(text.LineEndStyle, kLineEndUnknown);
  text.Line();
  EXPECT_EQ(text.LineEndStyle, kLineEndLf);
}

// ---- pieces

TEST(LinePieces, ALineHasAtMostSoManyCharacters) {
  const Lines expected{L"abc", L"def", L"g", L"hij", L"k"};
  for (int encoding = 0; encoding <= kUnknownEncoding; ++encoding) {
    OpenText text(Encoded(U"abcdefg\nhijk", encoding), encoding);
    EXPECT_EQ(text.Lines(3), expected) << encoding;
    EXPECT_EQ(text.Position, text.FileSize);
  }
}

TEST(LinePieces, ThePositionIsBehindThePiece) {
  OpenText text("abcdef", kCodePageText);
  text.Line(4);
  EXPECT_EQ(text.Position, 4);
  EXPECT_TRUE(text.EndedInTerminator) << "it is not the end of the file that ended it";
}

TEST(LinePieces, APieceBeginsWithAWholeCharacter) {
  for (const int encoding : {kUtf32Little, kUtf32Big, kUtf16Little, kUtf16Big, kUtf8}) {
    OpenText text(Encoded(U"\u00E9\u20AC\u0416\u3042", encoding), encoding);
    EXPECT_EQ(text.Lines(1), (Lines{L"\u00E9", L"\u20AC", L"\u0416", L"\u3042"})) << encoding;
    EXPECT_EQ(text.InvalidCount, 0);
  }
}

TEST(LinePieces, ALineOfJustSoManyCharactersTakesItsEndAlong) {
  OpenText text("abc\r\ndef", kCodePageText);
  EXPECT_EQ(text.Line(3), L"abc");
  EXPECT_EQ(text.Position, 5);
  EXPECT_EQ(text.Line(3), L"def");
  EXPECT_FALSE(text.EndedInTerminator);
}

TEST(LinePieces, NoLimitBelowOne) {
  for (const int most : {0, -1, -1000}) {
    OpenText text(std::string(200000, 'x') + "\n", kUtf8);
    EXPECT_EQ(text.Line(most).size(), 200000U);
  }
}

TEST(LinePieces, ALineOf3MbIsThreePieces) {
  constexpr int kLimit = 1048576;
  OpenText text(std::string(3 * kLimit, 'x'), kCodePageText);
  for (int piece = 1; piece <= 3; ++piece) {
    EXPECT_EQ(text.Line(kLimit).size(), static_cast<size_t>(kLimit));
    EXPECT_EQ(text.Position, piece * kLimit);
  }
  EXPECT_EQ(text.Line(kLimit), kNoLine);
}

TEST(LinePieces, ALineOf3MbFitsTheBufferWhole) {
  std::u32string characters;
  for (int i = 0; i < 3 << 20; ++i) characters += static_cast<char32_t>(U'\u0400' + i % 200);
  OpenText text(Encoded(characters, kUtf8) + "\nend", kUtf8);
  const std::wstring line = text.Line();
  ASSERT_EQ(line.size(), characters.size());
  for (size_t i = 0; i < line.size(); ++i) ASSERT_EQ(static_cast<char32_t>(line[i]), characters[i]) << i;
  EXPECT_EQ(text.Line(), L"end");
}

TEST(LinePieces, TheBufferGrowsAtItsVeryBorder) {
  for (const int length : {65534, 65535, 65536, 65537, 131071, 131072}) {
    for (const int encoding : {kUtf16Big, kUtf8, kCodePageText}) {
      std::u32string characters(static_cast<size_t>(length - 1), U'a');
      OpenText text(Encoded(characters + U"z\nend", encoding), encoding);
      const std::wstring line = text.Line();
      ASSERT_EQ(line.size(), static_cast<size_t>(length)) << encoding;
      EXPECT_EQ(line.back(), L'z');
      EXPECT_EQ(text.Line(), L"end");
    }
  }
}

// ---- where reading begins

TEST(ReadLine, BeginsBehindTheMark) {
  OpenText text(
      "\xEF\xBB\xBF"
      "ab\ncd");
  text.Position = 0;
  EXPECT_EQ(text.Line(), L"ab");
  text.Position = -7;
  EXPECT_EQ(text.Line(), L"ab");
  text.Position = 4;
  EXPECT_EQ(text.Line(), L"b");
}

TEST(ReadLine, SeesWhatAGrowingFileGot) {
  OpenText text("one\n", kUtf8);
  text.RereadTail = true;
  EXPECT_EQ(text.Line(), L"one");
  EXPECT_EQ(text.Line(), kNoLine);
  std::ofstream(text.box.Path("text"), std::ios::app) << "two\n";
  EXPECT_EQ(text.Line(), L"two");
  EXPECT_EQ(text.Line(), kNoLine);
}

TEST(ReadLine, EndsWhereAShortenedFileEnds) {
  OpenText text(std::string(kBlock, 'a') + std::string(kBlock, 'b'), kUtf8);
  ASSERT_EQ(truncate(text.box.Path("text").c_str(), kBlock + 5), 0);
  text.Close();
  ASSERT_EQ(text.Open(text.Path()), 0);
  ASSERT_EQ(truncate(text.box.Path("text").c_str(), 7), 0);
  EXPECT_EQ(text.Line(), std::wstring(kBlock, L'a')) << "still in memory";
  EXPECT_EQ(text.Line(), kNoLine);
  EXPECT_FALSE(text.EndedInTerminator);
}

TEST(ReadLine, ReadsFilesOfTheSystemThatTellNoSize) {
  std::ifstream stream("/proc/version");
  std::string expected;
  if (!std::getline(stream, expected)) GTEST_SKIP() << "no such file here";
  CTextFile text;
  ASSERT_EQ(text.Open(L"/proc/version"), 0);
  int length = 0;
  const wchar_t* const line = text.ReadLine(length, 0);
  ASSERT_NE(line, nullptr);
  EXPECT_EQ(std::wstring(line), std::wstring(expected.begin(), expected.end()));
}

// ---- what is counted

TEST(InvalidCount, CountsEachBadByteOnceHoweverItIsCut) {
  OpenText text(
      "ab\xFF"
      "c\n\xFE"
      "d\n",
      kUtf8);
  EXPECT_EQ(text.Lines(), (Lines{L"ab\x7F"
                                 L"c",
                                 L"~d"}));
  EXPECT_EQ(text.InvalidCount, 2);
  OpenText pieces(
      "ab\xFF"
      "c",
      kUtf8);
  EXPECT_EQ(pieces.Lines(2), (Lines{L"ab",
                                    L"\x7F"
                                    L"c"}));
  EXPECT_EQ(pieces.InvalidCount, 1);
}

// ---- code pages

TEST(CodePageLines, BytesGoThroughThePage) {
  EXPECT_EQ(InPage("\xC1\xC2z", 878), L"\u0430\u0431z");
  EXPECT_EQ(InPage("\xE0\xA5", 866), L"\u0440\u0435");
  EXPECT_EQ(InPage("\x82\x99", 850), L"\u00E9\u00D6");
  EXPECT_EQ(InPage("\x80\xE9\xFF", 819), L"\u0080\u00E9\u00FF");
}

TEST(CodePageLines, AByteThatThePageLacksIsAHouseAndTheOthersAreRight) {
  EXPECT_EQ(InPage("\x80\x81\x93", 1252), L"\u20AC\u2302\u201C");
}

TEST(CodePageLines, AnUnknownPageShowsTheBytes) {
  for (const int page : {0, -1, 31999}) EXPECT_EQ(InPage("a\xE9\xFF", page), L"a\u00E9\u00FF") << page;
}

TEST(CodePageLines, APageOfPairsStaysByteForByte) {
  EXPECT_EQ(InPage("ab\xB1z", 932), L"ab\uFF71z");
  EXPECT_EQ(InPage("a\xCC\xE1", 1258).size(), 3U) << "a combining mark is a character of its own";
}

TEST(CodePageLines, AnotherPageCountsFromTheNextLineOn) {
  OpenText text("\xE9\n\xE9\n\xE9\n", kCodePageText);
  text.CodePage = 819;
  EXPECT_EQ(text.Line(), L"\u00E9");
  text.CodePage = 866;
  EXPECT_EQ(text.Line(), L"\u0449");
  text.CodePage = 819;
  EXPECT_EQ(text.Line(), L"\u00E9");
}

TEST(CodePageLines, CharactersReadAloneAreBytes) {
  OpenText text("\xE9", kCodePageText);
  text.CodePage = 866;
  EXPECT_EQ(text.GetChar(), 0xE9);
}

TEST(CodePageLines, LineEndsAreThoseOfTheBytes) {
  // 0x25 is a line feed in that page, and the byte 10 is none.
  EXPECT_EQ(InPage("\xC1\x25\xC2\n\xC3", 500), L"A\nB");
}
