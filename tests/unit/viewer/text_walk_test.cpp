// Random bytes in every encoding: each step backward against the way forward.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "unit/viewer/text_bytes.h"
#include "viewer/text_file.h"

namespace {

struct Step {
  int64_t start, end;
  int character;
};

std::vector<Step> WalkForward(CTextFile& text) {
  std::vector<Step> steps;
  text.Position = text.DataStart;
  for (;;) {
    const int64_t start = text.Position;
    const int character = text.GetChar();
    if (character < 0) return steps;
    steps.push_back({start, text.Position, character});
  }
}

bool IsFollowing(CTextFile& text, int64_t offset) { return (text.ByteAt(offset) & 0xC0) == 0x80; }

// A step back is the mirror of the one forward but for bytes of UTF-8 that were
// taken for following ones, or not, against their form.
bool HasMirror(CTextFile& text, const Step& step) {
  if (text.Encoding != kUtf8) return true;
  if (IsFollowing(text, step.start)) return false;
  for (int64_t i = step.start + 1; i < step.end; ++i)
    if (!IsFollowing(text, i)) return false;
  return true;
}

// Some bytes at random, some a text would have, over a border of blocks or not.
std::string RandomBytes(std::mt19937& random) {
  const size_t size = random() % 4 ? random() % 300 : CBlockFile::kBlockSize - 50 + random() % 100;
  const unsigned wild = random() % 3;
  std::string bytes;
  while (bytes.size() < size) {
    if (random() % 3 < wild)
      bytes += static_cast<char>(random());
    else if (random() % 8 == 0)
      bytes += "\r\n\0 "[random() % 4];
    else
      bytes += Utf8Bytes(random() % 2 ? random() % 128 : random() % 0x110000);
  }
  return bytes;
}

class EveryEncoding : public testing::TestWithParam<int> {};

// Lines or pieces one after the other, each beginning where the last one ended.
void ExpectLinesToCover(OpenText& text, int most) {
  text.Position = text.DataStart;
  std::vector<std::wstring> lines;
  for (;;) {
    const int64_t start = text.Position;
    const std::wstring line = text.Line(most);
    if (line == kNoLine && text.Position >= text.FileSize) break;
    ASSERT_GT(text.Position, start);
    if (most > 0) {
      ASSERT_LE(line.size(), static_cast<size_t>(most));
    }
    lines.push_back(line);
  }
  EXPECT_GE(text.Position, text.FileSize);
}

}  // namespace

TEST_P(EveryEncoding, EachStepBackwardIsTheOneForward) {
  std::mt19937 random(static_cast<unsigned>(GetParam()) + 1);
  int64_t mirrored = 0, all = 0;
  for (int round = 0; round < 120; ++round) {
    OpenText text(RandomBytes(random), GetParam());
    text.Encoding = GetParam();  // whatever mark there is by chance
    text.KeepNul = random() % 2;
    const std::vector<Step> steps = WalkForward(text);
    EXPECT_EQ(text.Position, std::max(text.DataStart, text.FileSize));
    for (size_t i = steps.size(); i-- > 0;) {
      text.Position = steps[i].end;
      const int character = text.PrevChar();
      ASSERT_LT(text.Position, steps[i].end);
      ++all;
      if (!HasMirror(text, steps[i])) continue;
      ++mirrored;
      ASSERT_EQ(text.Position, steps[i].start);
      ASSERT_EQ(character, steps[i].character);
    }
  }
  EXPECT_GT(mirrored, all / 2) << "of " << all;
}

TEST_P(EveryEncoding, TheWalkBackwardEnds) {
  std::mt19937 random(static_cast<unsigned>(GetParam()) + 77);
  for (int round = 0; round < 40; ++round) {
    OpenText text(RandomBytes(random), GetParam());
    text.Encoding = GetParam();
    text.Position = text.FileSize + static_cast<int64_t>(random() % 3);
    int64_t before = text.Position;
    while (text.PrevChar() >= 0) {
      ASSERT_LT(text.Position, before);
      before = text.Position;
    }
    EXPECT_LT(text.Position, 0);
  }
}

TEST_P(EveryEncoding, LinesAndPiecesCoverTheText) {
  std::mt19937 random(static_cast<unsigned>(GetParam()) + 333);
  for (int round = 0; round < 60; ++round) {
    OpenText text(RandomBytes(random), GetParam());
    text.Encoding = GetParam();
    text.KeepNul = random() % 2;
    for (const int most : {0, 1, 7}) ExpectLinesToCover(text, most);
  }
}

TEST_P(EveryEncoding, PiecesTogetherAreTheLine) {
  std::mt19937 random(static_cast<unsigned>(GetParam()) + 5);
  for (int round = 0; round < 30; ++round) {
    std::u32string characters;
    for (int i = 0; i < 500; ++i) characters += static_cast<char32_t>(32 + random() % 90);
    OpenText text(Encoded(characters, GetParam()), GetParam());
    const int most = 1 + static_cast<int>(random() % 60);
    std::wstring together;
    for (const std::wstring& piece : text.Lines(most)) together += piece;
    EXPECT_EQ(together, std::wstring(characters.begin(), characters.end())) << most;
  }
}

INSTANTIATE_TEST_SUITE_P(Text, EveryEncoding, testing::Range(0, kUnknownEncoding + 1));
