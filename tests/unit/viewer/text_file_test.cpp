// Characters of a text, forward and backward, in every encoding.
#include "viewer/text_file.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>
#include <string>
#include <vector>

#include "config/values/options.h"
#include "support/faults.h"
#include "unit/viewer/text_bytes.h"

namespace {

using namespace std::string_literals;

constexpr int kWide[] = {kUtf32Little, kUtf32Big, kUtf16Little, kUtf16Big};
constexpr int kBlock = CBlockFile::kBlockSize;

std::vector<int> Forward(CTextFile& text) {
  std::vector<int> characters;
  for (int c = text.GetChar(); c >= 0; c = text.GetChar()) characters.push_back(c);
  return characters;
}

// From Position to the beginning, in the order of the text.
std::vector<int> Backward(CTextFile& text) {
  std::vector<int> characters;
  for (int c = text.PrevChar(); c >= 0; c = text.PrevChar()) characters.insert(characters.begin(), c);
  return characters;
}

using Characters = std::vector<int>;

}  // namespace

// ---- forward

TEST(GetChar, ReadsTheSameTextInEveryEncoding) {
  const std::u32string characters = U"A \u00E9z";
  const Characters expected{'A', ' ', 0xE9, 'z'};
  for (int encoding = 0; encoding <= kUnknownEncoding; ++encoding) {
    OpenText text(Encoded(characters, encoding), encoding);
    EXPECT_EQ(Forward(text), expected) << encoding;
    EXPECT_EQ(text.Position, text.FileSize);
    EXPECT_EQ(Backward(text), expected) << encoding;
    EXPECT_LT(text.Position, 0);
  }
}

TEST(GetChar, Utf8HasSequencesOfUpToFourBytes) {
  OpenText text("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80", kUtf8);
  EXPECT_EQ(Forward(text), (Characters{'a', 0xE9, 0x20AC, 0x1F600}));
  EXPECT_EQ(text.InvalidCount, 0);
  EXPECT_EQ(Backward(text), (Characters{'a', 0xE9, 0x20AC, 0x1F600}));
}

TEST(GetChar, FollowingBytesGiveTheirLowBitsWhateverTheirForm) {
  OpenText text(
      "\xC3"
      "A\xE1\xFF\x01\xF7\xFF\xFF\xFF",
      kUtf8);
  EXPECT_EQ(Forward(text), (Characters{0xC1, 0x1FC1, 0x1FFFFF}));
  EXPECT_EQ(text.InvalidCount, 0);
}

TEST(GetChar, AByteThatLeadsNothingCountsAndLosesItsTopBit) {
  OpenText text("\x80\xBF\xE1\x80\x80\xF8\xFF", kUtf8);
  EXPECT_EQ(Forward(text), (Characters{0, 0x3F, 0x1000, 0x78, 0x7F}));
  EXPECT_EQ(text.InvalidCount, 4);
}

TEST(GetChar, TheEndInsideOfASequenceEndsTheText) {
  for (const char* const bytes : {"a\xC3", "a\xE2\x82", "a\xF0\x9F\x98"}) {
    OpenText text(bytes, kUtf8);
    EXPECT_EQ(text.GetChar(), 'a');
    EXPECT_EQ(text.GetChar(), -1);
    EXPECT_EQ(text.Position, text.FileSize);
    EXPECT_EQ(text.GetChar(), -1);
    EXPECT_EQ(text.Position, text.FileSize) << "asking again goes nowhere";
    EXPECT_EQ(text.PrevChar(), 'a') << "what is cut off is no character backward either";
    EXPECT_EQ(text.Position, 0);
  }
}

TEST(GetChar, TheEndInsideOfAUnitEndsTheText) {
  for (const int encoding : kWide) {
    const std::string whole = Encoded(U"ab", encoding);
    for (size_t cut = 1; cut < whole.size() / 2; ++cut) {
      OpenText text(whole.substr(0, whole.size() - cut), encoding);
      EXPECT_EQ(text.GetChar(), 'a');
      EXPECT_EQ(text.GetChar(), -1);
      EXPECT_EQ(text.Position, text.FileSize);
      EXPECT_EQ(text.PrevChar(), 'a');
      EXPECT_EQ(text.Position, 0);
    }
  }
}

TEST(GetChar, HalvesOfAPairStayTwoCharacters) {
  for (const int encoding : {kUtf16Little, kUtf16Big}) {
    const bool highFirst = encoding == kUtf16Big;
    OpenText text(UnitBytes(0xD83D, 2, highFirst) + UnitBytes(0xDE00, 2, highFirst), encoding);
    EXPECT_EQ(Forward(text), (Characters{0xD83D, 0xDE00}));
  }
}

TEST(GetChar, AZeroIsABlankUnlessKeptAndInUtf8Always) {
  for (int encoding = 0; encoding <= kUnknownEncoding; ++encoding) {
    OpenText text(Encoded(U"a"s + U'\0' + U'b', encoding), encoding);
    EXPECT_TRUE(text.KeepNul);
    EXPECT_EQ(Forward(text), (Characters{'a', 0, 'b'})) << encoding;
    text.KeepNul = false;
    EXPECT_EQ(Backward(text), (Characters{'a', encoding == kUtf8 ? 0 : ' ', 'b'})) << encoding;
  }
}

TEST(GetChar, AWordBeyondAnIntIsNotTakenForTheEnd) {
  for (const int encoding : {kUtf32Little, kUtf32Big}) {
    OpenText text("\xFF\xFF\xFF\xFF"s + Encoded(U"a", encoding), encoding);
    EXPECT_EQ(Forward(text), (Characters{0xFFFD, 'a'}));
    EXPECT_EQ(Backward(text), (Characters{0xFFFD, 'a'}));
  }
  OpenText text("\xFF\xFF\xFF\x7F", kUtf32Little);
  EXPECT_EQ(text.GetChar(), 0x7FFFFFFF);
}

TEST(GetChar, CrossesTheBordersOfBlocks) {
  for (int encoding = 0; encoding <= kUnknownEncoding; ++encoding) {
    // A lone byte in front puts the units across the border.
    const std::string filler(encoding < kUtf8 ? 1 : kBlock - 1, 'x');
    std::u32string characters;
    for (int i = 0; i < kBlock; ++i) characters += static_cast<char32_t>(0xA1 + i % 90);
    OpenText text(filler + Encoded(characters, encoding), encoding);
    text.Position = text.DataStart = static_cast<int64_t>(filler.size());
    for (const char32_t expected : characters) ASSERT_EQ(text.GetChar(), static_cast<int>(expected));
    for (size_t i = characters.size(); i-- > 0;)
      ASSERT_EQ(text.PrevChar(), static_cast<int>(characters[i])) << encoding << " " << i;
  }
}

// ---- backward

TEST(PrevChar, AtTheBeginningThePositionTurnsNegative) {
  OpenText text("abcdefgh", kCodePageText);
  text.Position = 0;
  EXPECT_EQ(text.PrevChar(), -1);
  EXPECT_EQ(text.Position, -1);
  text.Encoding = kUtf8;
  text.Position = 0;
  EXPECT_EQ(text.PrevChar(), -1);
  EXPECT_EQ(text.Position, -1);
  text.Encoding = kUtf32Big;
  text.Position = 0;
  EXPECT_EQ(text.PrevChar(), -1);
  EXPECT_EQ(text.Position, -4);
  EXPECT_EQ(text.GetChar(), -1);
}

TEST(PrevChar, StepsOverFollowingBytesToTheLead) {
  OpenText text("x\xE2\x82\xACy", kUtf8);
  for (const int64_t inside : {4, 3, 2}) {
    text.Position = inside;
    EXPECT_EQ(text.PrevChar(), 0x20AC) << inside;
    EXPECT_EQ(text.Position, 1);
  }
  EXPECT_EQ(text.PrevChar(), 'x');
}

TEST(PrevChar, FollowingBytesWithoutALeadEndAtTheBeginning) {
  OpenText text("\x80\x81\x82", kUtf8);
  text.Position = 3;
  EXPECT_EQ(text.PrevChar(), -1);
  EXPECT_EQ(text.Position, -1);
}

TEST(PrevChar, GoesOnInFrontOfTheData) {
  OpenText text(
      "\xEF\xBB\xBF"
      "a");
  EXPECT_EQ(text.GetChar(), 'a');
  EXPECT_EQ(text.PrevChar(), 'a');
  EXPECT_EQ(text.Position, text.DataStart);
  EXPECT_EQ(text.PrevChar(), 0xFEFF);
  EXPECT_EQ(text.Position, 0);
}

TEST(PrevChar, FromInsideOfAUnitFindsTheTextAgain) {
  for (const int encoding : kWide) {
    OpenText text(Encoded(U"abc", encoding), encoding);
    const int width = text.BytesPerUnit();
    for (int inside = 1; inside < width; ++inside) {
      text.Position = 2 * width + inside;
      EXPECT_EQ(text.PrevChar(), 'c');
      EXPECT_EQ(text.PrevChar(), 'b');
    }
  }
}

TEST(PrevChar, UnitsAreCountedFromTheMark) {
  OpenText text("\xEF\xBB\xBF" + Encoded(U"ab", kUtf16Little), kUtf16Little);
  text.Position = text.FileSize;
  EXPECT_EQ(text.DataStart, 3);
  EXPECT_EQ(text.PrevChar(), 'b');
  EXPECT_EQ(text.PrevChar(), 'a');
  EXPECT_EQ(text.Position, 3);
}

TEST(PrevChar, BehindTheEndOfAShortenedFileBeginsWithItsLastCharacter) {
  OpenText text("");
  std::ofstream(text.box.Path("text")) << "abc";
  ASSERT_EQ(truncate(text.box.Path("text").c_str(), int64_t{10} << 30), 0);
  ASSERT_EQ(text.Open(text.Path()), 0);
  ASSERT_EQ(truncate(text.box.Path("text").c_str(), 2), 0);
  text.Encoding = kCodePageText;
  text.Position = text.FileSize;
  EXPECT_EQ(text.PrevChar(), 'b') << "and does not walk through what was lost";
  EXPECT_EQ(text.Position, 1);
}

TEST(PrevChar, StepsOverABlockThatCannotBeRead) {
  OpenText text("", kCodePageText);
  text.box.Write("text", std::string(3 * kBlock, 'a'));
  text.Open(text.Path());
  text.Encoding = kCodePageText;
  text.Position = 3 * kBlock;
  EXPECT_EQ(text.PrevChar(), 'a');
  text.Position = 2 * kBlock;
  const Fault broken(kCallRead, {.path = text.box.Path("text"), .times = kEveryCall, .code = EIO});
  text.Close();
  ASSERT_EQ(text.Open(text.Path()), 0);
  text.Position = 2 * kBlock;
  EXPECT_EQ(text.PrevChar(), -1);
  EXPECT_LT(text.Position, 2 * kBlock);
  EXPECT_GE(text.Position, 0);
}

// ---- opening

TEST(TextFile, OpeningStartsAnew) {
  OpenText text("a\r\n\xFF", kUtf8);
  text.Lines();
  EXPECT_EQ(text.InvalidCount, 1);
  EXPECT_EQ(text.LineEndStyle, kLineEndCrLf);
  text.box.Write("text",
                 "\xEF\xBB\xBF"
                 "b");
  ASSERT_EQ(text.Open(text.Path()), 0);
  EXPECT_EQ(text.InvalidCount, 0);
  EXPECT_EQ(text.LineEndStyle, kLineEndUnknown);
  EXPECT_FALSE(text.EndedInTerminator);
  EXPECT_EQ(text.Position, 3);
  text.box.Write("text", "c");
  ASSERT_EQ(text.Open(text.Path()), 0);
  EXPECT_FALSE(text.HasBOM);
  EXPECT_EQ(text.DataStart, 0);
}

TEST(TextFile, TheCodePageIsTheOneForTexts) {
  const auto before = Options::TextCodePage;
  Options::TextCodePage = 0;
  EXPECT_EQ(CTextFile().CodePage, 819);
  Options::TextCodePage = 866;
  EXPECT_EQ(CTextFile().CodePage, 866);
  Options::TextCodePage = before;
}

TEST(TextFile, AUnitHasTheBytesOfItsEncoding) {
  CTextFile text;
  constexpr int kWidths[] = {4, 4, 2, 2, 1, 1, 1};
  for (int encoding = 0; encoding <= kUnknownEncoding; ++encoding) {
    text.Encoding = encoding;
    EXPECT_EQ(text.BytesPerUnit(), kWidths[encoding]);
  }
}

TEST(TextFile, WithoutAFileThereIsNothing) {
  CTextFile text;
  int length = 7;
  EXPECT_EQ(text.GetChar(), -1);
  EXPECT_EQ(text.ReadLine(length, 0), nullptr);
  EXPECT_EQ(length, 0);
  text.Position = 100;
  EXPECT_EQ(text.PrevChar(), -1);
}
