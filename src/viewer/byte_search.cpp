// Search in the bytes of a code page, which decodes nothing: CTextFile::SearchBytes.
//
// Rules of the skips. Last tells the last position of a byte in the pattern, the
// first one in a search backward. The byte at pos tells how far a match can be
// off: a byte that the pattern lacks lets pos move on by the whole length.
// Positions above 127 count as lacking, so a long pattern may be missed where
// pos comes upon one of its later bytes only. Up to kWholeSkip bytes nothing is
// missed: there the skips find what looking at every place finds, and this is
// done instead, many places at a time.
#include <algorithm>
#include <vector>

#include "console/input.h"
#include "foundation/code_pages.h"
#include "foundation/fold.h"
#include "viewer/match_filter.h"
#include "viewer/text_file.h"

namespace {

constexpr int kBytes = 256;
constexpr int kHighestPosition = 127;
constexpr int kWholeSkip = kHighestPosition + 1;
constexpr unsigned kStepsBetweenBreaks = 4096;

// A byte without a character of its own, or whose upper case the page lacks,
// stays as it is. Byte 0 ends a string, so it never goes through the page.
uint8_t FoldByte(int byte, int codePage) {
  const char text[] = {static_cast<char>(byte), 0};
  Westring character;
  if (byte == 0 || !DecodeCodePage(text, codePage, character)) return static_cast<uint8_t>(byte);
  const Estring upper = EncodeCodePage(Fold(character), codePage);
  return static_cast<uint8_t>(upper.IsEmpty() ? byte : upper[0]);
}

bool IsWordByte(int byte) {
  return byte == '_' || (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') ||
         (byte >= 'a' && byte <= 'z') || (byte >= 128 && byte <= 254);
}

// What is searched for, as the bytes of a page.
class BytePattern {
 public:
  BytePattern(const Westring& text, int codePage, bool caseSensitive)
      : pattern(EncodeCodePage(caseSensitive ? text : Fold(text), codePage)), length(::Length(pattern)) {
    for (int byte = 0; byte < kBytes; ++byte)
      fold[byte] = caseSensitive ? static_cast<uint8_t>(byte) : FoldByte(byte, codePage);
  }

  int Length() const { return length; }
  uint8_t operator[](int i) const { return static_cast<uint8_t>(pattern[i]); }
  uint8_t Folded(int byte) const { return fold[byte]; }

  bool StandsAt(const uint8_t* bytes) const {
    int i = 0;
    while (i < length && fold[bytes[i]] == (*this)[i]) ++i;
    return i == length;
  }

  std::vector<MatchPlace> Places() const {
    std::vector<MatchPlace> places;
    for (int i = 0; i < length; ++i) {
      places.push_back({i, {}});
      for (int byte = 0; byte < kBytes; ++byte)
        if (fold[byte] == (*this)[i]) places.back().bytes.push_back(static_cast<uint8_t>(byte));
    }
    return places;
  }

 private:
  const Estring pattern;
  const int length;
  uint8_t fold[kBytes];
};

class ByteSearch {
 public:
  ByteSearch(CBlockFile& file, const BytePattern& pattern, bool wholeWord)
      : file(file), pattern(pattern), length(pattern.Length()), wholeWord(wholeWord) {}

  int64_t Run(int64_t start, bool reverse) {
    if (length > kWholeSkip) return BySkips(start, reverse);
    const MatchFilter filter(pattern.Places());
    return reverse ? Backward(start, filter) : Forward(start, filter);
  }

 private:
  int64_t BySkips(int64_t start, bool reverse);
  int64_t Forward(int64_t start, const MatchFilter& filter);
  int64_t Backward(int64_t start, const MatchFilter& filter);

  bool StandsAt(int64_t offset);
  bool IsWanted(int64_t offset);  // for a place where the pattern stands
  int FirstIn(const uint8_t* bytes, int n, const MatchFilter& filter) const;
  int LastIn(const uint8_t* bytes, int n, const MatchFilter& filter) const;
  int ReadSeam(int64_t offset, int n);

  CBlockFile& file;
  const BytePattern& pattern;
  const int length;
  const bool wholeWord;
  BreakScope breaks;
  uint8_t seam[2 * kWholeSkip];  // bytes on both sides of a block's end
};

bool ByteSearch::StandsAt(int64_t offset) {
  if (offset < 0) return false;
  for (int i = 0; i < length; ++i) {
    const int byte = file.ByteAt(offset + i);
    if (byte < 0 || pattern.Folded(byte) != pattern[i]) return false;
  }
  return true;
}

bool ByteSearch::IsWanted(int64_t offset) {
  if (!wholeWord) return true;
  if (offset > 0 && IsWordByte(file.ByteAt(offset - 1))) return false;
  return !IsWordByte(file.ByteAt(offset + length));
}

int64_t ByteSearch::BySkips(int64_t start, bool reverse) {
  int last[kBytes];
  std::fill_n(last, kBytes, -1);
  for (int i = 0; i < length; ++i) {
    const int k = reverse ? length - 1 - i : i;
    last[pattern[k]] = k <= kHighestPosition ? k : -1;
  }
  const int direction = reverse ? -1 : 1;
  int64_t pos = start + (length - 1) * direction;
  for (unsigned steps = 0; pos >= 0; ++steps) {
    if (steps % kStepsBetweenBreaks == 0 && breaks.Stopped()) return kSearchStopped;
    const int byte = file.ByteAt(pos);
    if (byte < 0) break;
    const int k = last[pattern.Folded(byte)];
    if (k < 0) {
      pos += length * direction;
      continue;
    }
    const int64_t candidate = pos - k;
    if (StandsAt(candidate) && IsWanted(candidate)) return candidate;
    pos = reverse ? candidate - 1 : candidate + length;
  }
  return kSearchNone;
}

int ByteSearch::FirstIn(const uint8_t* bytes, int n, const MatchFilter& filter) const {
  const int end = n - length + 1;
  int i = filter.First(bytes, 0, end);
  while (i < end && !pattern.StandsAt(bytes + i)) i = filter.First(bytes, i + 1, end);
  return i < end ? i : -1;
}

int ByteSearch::LastIn(const uint8_t* bytes, int n, const MatchFilter& filter) const {
  int i = filter.Last(bytes, 0, n - length + 1);
  while (i >= 0 && !pattern.StandsAt(bytes + i)) i = filter.Last(bytes, 0, i);
  return i;
}

// Up to n bytes from offset on, and how many they are.
int ByteSearch::ReadSeam(int64_t offset, int n) {
  int got = 0;
  while (got < n) {
    const uint8_t* bytes;
    const int more = std::min(file.BytesFrom(offset + got, bytes), n - got);
    if (more <= 0) break;
    std::copy_n(bytes, more, seam + got);
    got += more;
  }
  return got;
}

int64_t ByteSearch::Forward(int64_t start, const MatchFilter& filter) {
  if (start + length - 1 < 0) return kSearchNone;
  int64_t at = std::max<int64_t>(start, 0);
  while (!breaks.Stopped()) {
    const uint8_t* bytes;
    int n = file.BytesFrom(at, bytes);
    if (n < length) {
      n = ReadSeam(at, 2 * (length - 1));
      bytes = seam;
    }
    if (n < length) return kSearchNone;
    const int hit = FirstIn(bytes, n, filter);
    if (hit < 0) {
      at += n - length + 1;
      continue;
    }
    if (IsWanted(at + hit)) return at + hit;
    at += hit + 1;
  }
  return kSearchStopped;
}

int64_t ByteSearch::Backward(int64_t start, const MatchFilter& filter) {
  const int64_t pos = start - length + 1;
  if (pos < 0 || file.ByteAt(pos) < 0) return kSearchNone;
  int64_t end = std::min(start + 1, file.FileSize);  // matches end here or in front of it
  while (!breaks.Stopped()) {
    if (end < length) return kSearchNone;
    const uint8_t* bytes;
    int n = file.BytesUpTo(end - 1, bytes);
    if (n < length) {
      const int around = static_cast<int>(std::min<int64_t>(end, 2 * (length - 1)));
      n = ReadSeam(end - around, around) == around ? around : 0;
      bytes = seam;
    }
    if (n < length) return kSearchNone;
    const int hit = LastIn(bytes, n, filter);
    if (hit < 0) {
      end -= n - length + 1;
      continue;
    }
    const int64_t offset = end - n + hit;
    if (IsWanted(offset)) return offset;
    end = offset + length - 1;
  }
  return kSearchStopped;
}

}  // namespace

int64_t CTextFile::SearchBytes(const Westring& text, int64_t start, bool reverse, bool caseSensitive,
                               bool wholeWord, int codePage) {
  if (text.IsEmpty()) return kSearchStopped;
  const BytePattern pattern(text, codePage, caseSensitive);
  const int length = pattern.Length();
  if (length == 0) return kSearchNone;
  // Farther out there is nothing, and sums would not fit.
  const int64_t from = std::clamp<int64_t>(start, -length, FileSize + length);
  return ByteSearch(*this, pattern, wholeWord).Run(from, reverse);
}
