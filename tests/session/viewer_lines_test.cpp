// Where the viewer finds the beginnings of lines, forward and backward.
#include <fcntl.h>
#include <unistd.h>

#include <random>

#include "viewer_fixture.h"

namespace {

constexpr int64_t kPiece = CViewer::kLongestLine;

class ViewerLines : public ViewerTest {
 protected:
  std::vector<int64_t> Forward() {
    std::vector<int64_t> starts;
    for (int64_t at = viewer->DataStart; starts.empty() || at > starts.back(); at = viewer->NextLine(at))
      starts.push_back(at);
    return starts;
  }

  // From the end to the beginning, in the order of the file.
  std::vector<int64_t> Backward() {
    std::vector<int64_t> starts = {viewer->FileSize};
    while (starts.back() > viewer->DataStart) starts.push_back(viewer->PrevLine(starts.back()));
    std::reverse(starts.begin(), starts.end());
    return starts;
  }

  // The rule, a character at a time.
  int64_t PrevLineByCharacters(int64_t offset) {
    const auto isEnd = [](int c) { return c == '\r' || c == '\n'; };
    CViewer& v = *viewer;
    if (offset <= v.DataStart) return v.DataStart;
    v.Position = offset;
    const auto back = [&] {
      const int c = v.PrevChar();
      v.Position = std::max(v.Position, v.DataStart);
      return c;
    };
    const int last = back();
    if (isEnd(last) && v.Position > v.DataStart) {
      const int64_t end = v.Position;
      const int before = back();
      if (!isEnd(before) || before == last) v.Position = end;
    }
    const int64_t lineEnd = v.Position;
    while (v.Position > v.DataStart)
      if (isEnd(back())) {
        v.GetChar();  // a damaged one may take the line's end too
        break;
      }
    return std::min(v.Position, lineEnd);
  }
};

TEST_F(ViewerLines, BackwardIsForwardReversedForEveryLineEnd) {
  for (const char* const end : {"\n", "\r", "\r\n", "\n\r"}) {
    std::string text;
    for (int i = 0; i < 3000; ++i) text += std::string(i % 13, 'a') + "x" + end;
    for (const int encoding : {4, 5, 0, 1, 2, 3}) {
      Show(encoding < 4 ? InUnits(text, encoding) : text, encoding);
      const std::vector<int64_t> forward = Forward();
      EXPECT_EQ(forward.size(), 3001u) << encoding;
      EXPECT_EQ(Backward(), forward) << encoding;
    }
  }
}

TEST_F(ViewerLines, EmptyLinesAreLines) {
  Show("a\n\n\nb");
  EXPECT_EQ(Forward(), (std::vector<int64_t>{0, 2, 3, 4, 5}));
  EXPECT_EQ(Backward(), (std::vector<int64_t>{0, 2, 3, 4, 5}));
}

TEST_F(ViewerLines, CrLfAndLfCrAreOneLineEndBackward) {
  Show("a\r\nb\n\rc");
  EXPECT_EQ(viewer->PrevLine(6), 3);
  EXPECT_EQ(viewer->PrevLine(3), 0);
  EXPECT_EQ(viewer->PrevLine(7), 6);
}

TEST_F(ViewerLines, FromInsideOfALinePrevLineFindsItsStart) {
  Show("one\ntwo\nthree");
  EXPECT_EQ(viewer->PrevLine(6), 4);
  EXPECT_EQ(viewer->PrevLine(5), 4);
  EXPECT_EQ(viewer->PrevLine(13), 8);
}

TEST_F(ViewerLines, ALineEndAtTheBeginningGivesTheBeginning) {
  Show("\nab\n");
  EXPECT_EQ(viewer->PrevLine(1), 0);
  EXPECT_EQ(viewer->PrevLine(4), 1);
  EXPECT_EQ(viewer->PrevLine(0), 0);
  EXPECT_EQ(viewer->PrevLine(-5), 0);
}

TEST_F(ViewerLines, BackwardNothingGoesBelowAMark) {
  for (const std::string& text : {std::string("\xEF\xBB\xBF") + "\nabc\n", "\xFF\xFE" + InUnits("\nabc\n", 2),
                                  "\xFE\xFF" + InUnits("\nabc\n", 3)}) {
    Show(text);
    EXPECT_GE(viewer->DataStart, 2);
    for (int64_t at = 0; at <= viewer->FileSize; ++at) EXPECT_GE(viewer->PrevLine(at), viewer->DataStart);
    EXPECT_EQ(Backward(), Forward());
  }
}

TEST_F(ViewerLines, LineStartKeepsAStartAndFindsThatOfTheMiddle) {
  Show("one\r\ntwo\r\n\r\nthree");
  const int64_t expected[] = {0, 0, 0, 0, 0, 5, 5, 5, 5, 5, 10, 10, 12, 12, 12};
  for (int64_t at = 0; at < 15; ++at) {
    if (at == 11) continue;  // inside of an empty line's end: a line end by itself
    EXPECT_EQ(viewer->LineStart(at), expected[at]) << at;
  }
}

TEST_F(ViewerLines, InHexModeLinesAreSixteenBytes) {
  Show(std::string(100, 'x'));
  viewer->HexMode = true;
  EXPECT_EQ(viewer->NextLine(0), 16);
  EXPECT_EQ(viewer->NextLine(5), 21);
  EXPECT_EQ(viewer->NextLine(90), 100);
  EXPECT_EQ(viewer->NextLine(100), 100);
  EXPECT_EQ(viewer->NextLine(INT64_MAX), 100);
  EXPECT_EQ(viewer->PrevLine(100), 84);
  EXPECT_EQ(viewer->PrevLine(16), 0);
  EXPECT_EQ(viewer->PrevLine(15), 0);
}

TEST_F(ViewerLines, ThreeMegabytesWithoutALineEndAreThreeLinesBothWays) {
  Show(std::string(3 * kPiece, 'x'));
  const std::vector<int64_t> pieces = {0, kPiece, 2 * kPiece, 3 * kPiece};
  EXPECT_EQ(Forward(), pieces);
  EXPECT_EQ(Backward(), pieces);
}

TEST_F(ViewerLines, PiecesAreCountedFromTheStartOfTheLine) {
  for (const char* const end : {"\n", "\r\n"}) {
    Show("ten bytes" + std::string("\n") + std::string(3 * kPiece, 'x') + end + "last");
    const int64_t next = 10 + 3 * kPiece + static_cast<int64_t>(strlen(end));
    const std::vector<int64_t> pieces = {0, 10, 10 + kPiece, 10 + 2 * kPiece, next, next + 4};
    EXPECT_EQ(Forward(), pieces);
    EXPECT_EQ(Backward(), pieces);
  }
}

TEST_F(ViewerLines, ALineOfExactlyTheLongestIsOne) {
  Show(std::string(kPiece, 'x') + "\n" + std::string(kPiece + 1, 'y') + "\n");
  const std::vector<int64_t> pieces = {0, kPiece + 1, 2 * kPiece + 1, 2 * kPiece + 3};
  EXPECT_EQ(Forward(), pieces);
  EXPECT_EQ(Backward(), pieces);
}

TEST_F(ViewerLines, PiecesOfWideUnitsAreTheSameBothWays) {
  Show(InUnits("a\n" + std::string(2 * kPiece + 7, 'x'), kUtf16Big), kUtf16Big);
  const std::vector<int64_t> pieces = {0, 4, 4 + 2 * kPiece, 4 + 4 * kPiece, 4 + 4 * kPiece + 14};
  EXPECT_EQ(Forward(), pieces);
  EXPECT_EQ(Backward(), pieces);
}

TEST_F(ViewerLines, APieceOfUtf8BeginsWithAWholeCharacter) {
  std::string text = "x";
  while (text.size() < 3 * kPiece) text += "\xE2\x82\xAC";
  Show(text);
  ASSERT_EQ(viewer->Encoding, kUtf8);
  int64_t last = viewer->FileSize;
  for (const int64_t at : {viewer->PrevLine(last), viewer->PrevLine(2 * kPiece - 1)}) {
    EXPECT_NE(viewer->ByteAt(at) & 0xC0, 0x80);
    EXPECT_LT(at, last);
    last = at;
  }
}

TEST_F(ViewerLines, ALongLineIsRememberedAndSearchedOnce) {
  Show("first\n" + std::string(5 * kPiece, 'x'));
  EXPECT_EQ(viewer->LongLinePos, 0);
  EXPECT_EQ(viewer->PrevLine(viewer->FileSize), 6 + 4 * kPiece);
  EXPECT_EQ(viewer->LongLineStart, 6);
  EXPECT_EQ(viewer->LongLinePos, viewer->FileSize);

  viewer->LongLineStart = 26;  // so what follows is told from memory
  EXPECT_EQ(viewer->PrevLine(26 + 3 * kPiece), 26 + 2 * kPiece);
  EXPECT_EQ(viewer->PrevLine(27), 26);
  EXPECT_EQ(viewer->PrevLine(26), 6);
}

TEST_F(ViewerLines, AShorterLineIsNotRemembered) {
  Show("first\n" + std::string(kPiece, 'x') + "\n");
  EXPECT_EQ(viewer->PrevLine(viewer->FileSize), 6);
  EXPECT_EQ(viewer->LongLinePos, 0);
}

TEST_F(ViewerLines, WhatIsRememberedHoldsInItsEncodingOnly) {
  Show(std::string(2 * kPiece, 'x') + "\n" + std::string(10, 'y'), kUtf8);
  EXPECT_EQ(viewer->PrevLine(2 * kPiece + 1), kPiece);
  EXPECT_EQ(viewer->LongLinePos, 2 * kPiece + 1);
  viewer->LongLineStart = 5;
  viewer->Encoding = kCodePageText;
  EXPECT_EQ(viewer->PrevLine(kPiece), 0);
}

TEST_F(ViewerLines, ALongLineThatGrewIsSearchedInItsNewPartOnly) {
  Show("first\n" + std::string(2 * kPiece, 'x'));
  viewer->PrevLine(viewer->FileSize);
  AppendToFile(std::string(kPiece, 'y'));
  while (viewer->ByteAt(viewer->FileSize) >= 0) {
  }
  EXPECT_EQ(viewer->PrevLine(viewer->FileSize), 6 + 2 * kPiece);
  EXPECT_EQ(viewer->LongLineStart, 6);
  AppendToFile("\nend");
  while (viewer->ByteAt(viewer->FileSize) >= 0) {
  }
  EXPECT_EQ(viewer->PrevLine(viewer->FileSize), 6 + 3 * kPiece + 1);
}

TEST_F(ViewerLines, TheLineEndOfAnOverlongSequenceCounts) {
  for (const std::string& end :
       {std::string("\xC0\x8A"), std::string("\xE0\x80\x8D"), std::string("\xC0\x4A")}) {
    Show("abc" + end + "def", kUtf8);
    const int64_t second = 3 + static_cast<int64_t>(end.size());
    EXPECT_EQ(viewer->NextLine(0), second);
    EXPECT_EQ(viewer->PrevLine(second + 2), second);
  }
}

TEST_F(ViewerLines, SearchingBlocksFindsWhatSteppingByCharactersFinds) {
  std::mt19937 random(8);
  const unsigned char bytes[] = {0, 'a', 'a', 'b', 0x80, 0x8A, 0xC0, 0xC3, 0xE0, 0xE2, 0xF0, 0xFF};
  for (int encoding = 0; encoding <= 5; ++encoding) {
    for (const int rarity : {4, 40, 20000}) {
      std::string text(40001, 0);
      for (char& c : text)
        c = static_cast<char>(random() % rarity == 0 ? (random() % 2 ? '\n' : '\r')
                                                     : bytes[random() % sizeof(bytes)]);
      if (encoding < 4)
        for (size_t i = 0; i + 4 < text.size() && rarity < 20000; i += 40)
          text.replace(i, 4, InUnits("\n\n", encoding).substr(0, 4));
      Show(text, encoding);
      for (int i = 0; i < 25; ++i) {
        const int64_t at = static_cast<int64_t>(random() % (text.size() + 1));
        ASSERT_EQ(viewer->PrevLine(at), PrevLineByCharacters(at))
            << at << " in encoding " << encoding << ", one line end in " << rarity;
      }
    }
  }
}

TEST_F(ViewerLines, BackwardStepsAlwaysComeToTheBeginning) {
  std::mt19937 random(3);
  for (int encoding = 0; encoding <= 5; ++encoding) {
    for (const size_t size : {1u, 2u, 3u, 1001u}) {
      std::string text(size, 0);
      for (char& c : text) c = "\r\n\0a\xE2\xFF"[random() % 6];
      Show(text, encoding);
      int64_t at = viewer->FileSize;
      while (at > viewer->DataStart) {
        const int64_t before = viewer->PrevLine(at);
        ASSERT_LT(before, at) << encoding;
        at = before;
      }
      EXPECT_EQ(at, viewer->DataStart);
    }
  }
}

TEST_F(ViewerLines, TheEndOfASparseFileOfTenGigabytesIsFoundWithoutReadingIt) {
  texts.Write("text", "first\n");
  const int64_t size = 10LL << 30;
  ASSERT_EQ(truncate(texts.Path("text").c_str(), size), 0);
  Options::ViewerWrap = true;  // rows of one line, not of a megabyte each
  ShowFile(texts.Path("text"), kCodePageText);
  EXPECT_EQ(viewer->PrevLine(size), 6 + (size - 6) / kPiece * kPiece);
  EXPECT_EQ(viewer->LongLineStart, 6);

  ShowFile(texts.Path("text"), kUtf16Little);
  EXPECT_EQ(viewer->PrevLine(size), (size - 1) / (2 * kPiece) * (2 * kPiece));
}

TEST_F(ViewerLines, LinesBetweenTheHolesAreFound) {
  texts.Write("text", "");
  const std::string file = texts.Path("text");
  const int descriptor = open(file.c_str(), O_WRONLY);
  const int64_t middle = 5LL << 30, size = 9LL << 30;
  ASSERT_EQ(pwrite(descriptor, "one\ntwo", 7, middle), 7);
  ASSERT_EQ(ftruncate(descriptor, size), 0);
  close(descriptor);
  Options::ViewerWrap = true;  // rows of one line, not of a megabyte each
  ShowFile(file, kCodePageText);
  viewer->PrevLine(size);
  EXPECT_EQ(viewer->LongLineStart, middle + 4);
  EXPECT_EQ(viewer->PrevLine(middle + 4) % kPiece, 0);
  EXPECT_EQ(viewer->LongLineStart, 0);
}

TEST_F(ViewerLines, ALineOfZerosInUtf8IsFoundFromItsMiddle) {
  Show(std::string("abc\0def\nghi", 11), kUtf8);
  EXPECT_EQ(viewer->NextLine(0), 4);
  EXPECT_EQ(viewer->PrevLine(8), 0);  // a zero is no line end backward
  EXPECT_EQ(viewer->LineStart(6), 4);
  EXPECT_EQ(viewer->LineStart(8), 8);
}

TEST_F(ViewerLines, EscapeBreaksOffALongWayBackAndTheLineBeginsThere) {
  Options::ViewerWrap = true;
  Show(std::string(20 * kPiece, 'x'), kCodePageText);
  TEvent escape;
  escape.type = kEventKey;
  escape.code = kEscape;
  Console->Events().Put(new TEvent(escape));
  EXPECT_GT(viewer->PrevLine(viewer->FileSize), 0);
  EXPECT_GT(viewer->LongLineStart, 0);
  EXPECT_LT(viewer->LongLineStart, 4 * kPiece);
  EXPECT_FALSE(Console->EventPending());
}

TEST_F(ViewerLines, WhatWasCutOffTheFileIsPassedOver) {
  Show(NumberedLines(20000));
  const int64_t size = viewer->FileSize;
  ASSERT_EQ(truncate(texts.Path("text").c_str(), 4), 0);
  EXPECT_EQ(viewer->FileSize, size);
  const int64_t line = viewer->PrevLine(size);
  EXPECT_LT(line, size);
  EXPECT_GE(line, 0);
}

}  // namespace
