// The fold table and what is built on it. All tables are made by the compiler,
// so a lookup needs no test for a first use.
#include "foundation/fold.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <climits>
#include <cstdint>
#include <cwctype>

#include "foundation/character_tables.h"

namespace {

// Elements from here on are not folded, even where the list has a pair.
constexpr uint32_t kFoldLimit = 0x8000;

using FoldTable = std::array<uint16_t, kFoldLimit>;
using WeightTable = std::array<uint8_t, kFoldLimit>;
using WordBits = std::array<uint8_t, 0x10000 / 8>;

constexpr FoldTable MakeFoldTable() {
  FoldTable table{};
  for (uint32_t i = 0; i < kFoldLimit; i++) table[i] = static_cast<uint16_t>(i);
  for (const auto* pair = kFoldPairs; (*pair)[0]; pair++) {
    if ((*pair)[1] < kFoldLimit) table[(*pair)[1]] = (*pair)[0];
  }
  return table;
}

constexpr FoldTable kFold = MakeFoldTable();

// Only the low byte counts: names that differ above it compare equal, and
// sorting must not promise an order between them.
constexpr uint8_t WeightOfFolded(uint32_t folded) {
  const auto low = static_cast<uint8_t>(folded);
  return low == '_' ? 1 : low;
}

constexpr WeightTable MakeWeightTable() {
  WeightTable table{};
  for (uint32_t i = 0; i < kFoldLimit; i++) table[i] = WeightOfFolded(kFold[i]);
  return table;
}

constexpr WeightTable kWeight = MakeWeightTable();

constexpr WordBits MakeWordBits() {
  WordBits bits{};
  for (const auto* range = kWordRanges; (*range)[0]; range++) {
    for (uint32_t ch = (*range)[0]; ch <= (*range)[1]; ch++) {
      bits[ch / 8] = static_cast<uint8_t>(bits[ch / 8] | 1 << ch % 8);
    }
  }
  return bits;
}

constexpr WordBits kWordBits = MakeWordBits();

inline wchar_t FoldElement(wchar_t ch) {
  const auto index = static_cast<uint32_t>(ch);
  return index < kFoldLimit ? kFold[index] : ch;
}

inline uint8_t Weight(wchar_t ch) {
  const auto index = static_cast<uint32_t>(ch);
  return index < kFoldLimit ? kWeight[index] : WeightOfFolded(index);
}

// Elements may be any 32-bit value, so the difference may pass an int.
int Difference(wchar_t a, wchar_t b) {
  return static_cast<int>(std::clamp<int64_t>(int64_t{a} - b, INT_MIN, INT_MAX));
}

}  // namespace

wchar_t FoldChar(wchar_t ch) { return FoldElement(ch); }

wchar_t LowerChar(wchar_t ch) {
  if (ch < 0) return ch;
  return ch <= 127 ? tolower(ch) : static_cast<wchar_t>(towlower(static_cast<wint_t>(ch)));
}

int CompareNoCase(const wchar_t* a, const wchar_t* b) {
  for (;; a++, b++) {
    const wchar_t left = FoldElement(*a);
    const wchar_t right = FoldElement(*b);
    if (left != right) return Difference(left, right);
    if (left == 0) return 0;
  }
}

int CompareNoCaseN(const wchar_t* a, const wchar_t* b, int n) {
  do {
    const wchar_t left = FoldElement(*a++);
    const wchar_t right = FoldElement(*b++);
    if (left != right) return Difference(left, right);
    if (left == 0) return 0;
  } while (--n > 0);
  return 0;
}

// An element whose low byte is 0 weighs as little as an end, so the elements
// themselves tell where a name ends.
int CompareFileNames(const wchar_t* a, const wchar_t* b) {
  for (;; a++, b++) {
    const int left = Weight(*a);
    const int right = Weight(*b);
    if (left != right) return left - right;
    if (*a == 0 || *b == 0) return 0;
  }
}

void FoldInPlace(wchar_t* text) {
  for (; *text; text++) *text = FoldElement(*text);
}

void LowerInPlace(wchar_t* text) {
  for (; *text; text++) *text = LowerChar(*text);
}

bool IsWordChar(wchar_t ch) {
  const auto index = static_cast<uint32_t>(ch);
  return index < 0x10000 && (kWordBits[index / 8] >> index % 8 & 1) != 0;
}
