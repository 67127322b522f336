// Two stages: a mark at the beginning, which is certain, and a look at the first
// 32 KB. Text of wide units has blanks and line feeds, and avoids the ranges that
// a wrong byte order or no text at all soon falls into.
#include "viewer/encoding_detection.h"

#include <algorithm>
#include <iterator>

#include "viewer/text_file.h"

namespace {

constexpr int kLookedAt = 32768;
constexpr int kMostMarkBytes = 4;

struct Mark {
  int length;
  uint8_t bytes[kMostMarkBytes];
};

// By encoding. The longer mark comes before the one that it begins with.
constexpr Mark kMarks[] = {
    {4, {0xFF, 0xFE, 0x00, 0x00}}, {4, {0x00, 0x00, 0xFE, 0xFF}}, {2, {0xFF, 0xFE}}, {2, {0xFE, 0xFF}},
    {3, {0xEF, 0xBB, 0xBF}},
};

// ---- UTF-8

bool IsContinuation(int byte) { return byte >= 0 && (byte & 0xC0) == 0x80; }

int Continuations(int lead) {
  if ((lead & 0xE0) == 0xC0) return 1;
  if ((lead & 0xF0) == 0xE0) return 2;
  return (lead & 0xF8) == 0xF0 ? 3 : 0;
}

// kUtf8, kCodePageText, or kUnknownEncoding for nothing but ASCII.
int GuessByBytes(CBlockFile& file) {
  int guess = kUnknownEncoding;
  for (int64_t offset = 0; offset < kLookedAt; ++offset) {
    const int byte = file.ByteAt(offset);
    if (byte < 0) break;
    if (byte > 0 && byte < 0x80) continue;
    const int more = Continuations(byte);
    if (more == 0) return kCodePageText;
    for (int i = 0; i < more; ++i)
      if (!IsContinuation(file.ByteAt(++offset))) return kCodePageText;
    guess = kUtf8;
  }
  return guess;
}

// ---- wide units

// One byte order's chance of being right.
struct Reading {
  void See32(uint32_t word) {
    if (word > 0x10FFFF) rejected = true;
    if (word == ' ' || word == '\n') sawBlank = sawLineFeed = true;
  }
  void See16(uint32_t unit);
  bool IsConfirmed() const { return !rejected && sawBlank && sawLineFeed; }

  bool rejected = false, sawBlank = false, sawLineFeed = false;
};

struct Range {
  uint32_t first, last;
};

// Nothing that texts are made of, as units of UTF-16.
constexpr Range kNoText[] = {
    {0x0000, 0x0000}, {0x07FB, 0x0900}, {0x1A20, 0x1AFF}, {0x1C80, 0x1CFF}, {0x2B55, 0x2BFF},
    {0xA698, 0xA6FF}, {0xA78D, 0xA7FA}, {0xA960, 0xA9FF}, {0xAA60, 0xABFF}, {0xD7A4, 0xF8FF},
};

void Reading::See16(uint32_t unit) {
  const auto holds = [unit](const Range& range) { return unit >= range.first && unit <= range.last; };
  if (std::any_of(std::begin(kNoText), std::end(kNoText), holds)) rejected = true;
  if (unit == ' ') sawBlank = true;
  if (unit == '\n') sawLineFeed = true;
}

// littleEncoding, the one after it for the other byte order, or kUnknownEncoding.
int GuessByUnits(CBlockFile& file, int width, void (Reading::*see)(uint32_t), int littleEncoding) {
  Reading little, big;
  for (int64_t offset = 0; offset < kLookedAt; offset += width) {
    uint32_t littleUnit = 0, bigUnit = 0;
    bool isWhole = true;
    for (int i = 0; i < width; ++i) {
      const int byte = file.ByteAt(offset + i);
      isWhole = isWhole && byte >= 0;
      littleUnit |= static_cast<uint32_t>(byte & 0xFF) << 8 * i;
      bigUnit = bigUnit << 8 | static_cast<uint32_t>(byte & 0xFF);
    }
    if (!isWhole) break;
    (little.*see)(littleUnit);
    (big.*see)(bigUnit);
    if (little.rejected && big.rejected) break;
  }
  if (little.IsConfirmed()) return littleEncoding;
  return big.IsConfirmed() ? littleEncoding + 1 : kUnknownEncoding;
}

}  // namespace

// What lies past the end reads as 0xFF, so the byte FE alone is a mark.
DetectedMark FindMark(CBlockFile& file) {
  uint8_t begin[kMostMarkBytes];
  for (int i = 0; i < kMostMarkBytes; ++i) begin[i] = static_cast<uint8_t>(file.ByteAt(i));
  for (int encoding = 0; encoding < static_cast<int>(std::size(kMarks)); ++encoding) {
    const Mark& mark = kMarks[encoding];
    if (std::equal(mark.bytes, mark.bytes + mark.length, begin)) return {encoding, mark.length};
  }
  return {kUnknownEncoding, 0};
}

int GuessEncoding(CBlockFile& file) {
  const int byBytes = GuessByBytes(file);
  if (byBytes == kUtf8) return kUtf8;
  int guess = GuessByUnits(file, 4, &Reading::See32, kUtf32Little);
  if (guess == kUnknownEncoding) guess = GuessByUnits(file, 2, &Reading::See16, kUtf16Little);
  if (guess != kUnknownEncoding) return guess;
  return byBytes == kCodePageText ? kCodePageText : kUtf8;
}
