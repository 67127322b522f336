// Which text is what it seems; see sure_text.h.
//
// UTF-8 is looked at in chunks: each byte must be a continuation where the three
// bytes in front of it ask for one, and none elsewhere. Only where a chunk fails
// are the characters looked at one after the other.
#include "viewer/sure_text.h"

#include <cstring>

namespace {

using Lanes = uint8_t __attribute__((vector_size(16)));
using Mask = int8_t __attribute__((vector_size(16)));
constexpr int kLanes = sizeof(Lanes);
constexpr int kChunk = 4 * kLanes;
constexpr int kLookBack = 3;  // bytes in front of a chunk that tell about it

bool IsContinuation(uint8_t byte) { return (byte & 0xC0) == 0x80; }

// Whether a character goes on behind what ends here.
bool GoesOn(const uint8_t* end) { return end[-1] >= 0xC0 || end[-2] >= 0xE0 || end[-3] >= 0xF0; }

// Bytes of the character that a lead byte begins, 0 for no lead byte.
int LeadLength(uint8_t lead) {
  if (lead < 0x80) return 1;
  if (lead < 0xC2 || lead >= 0xF8) return 0;
  return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

Lanes Load(const uint8_t* bytes) {
  Lanes lanes;
  memcpy(&lanes, bytes, sizeof lanes);
  return lanes;
}

bool Any(const Mask& mask) {
  uint64_t halves[2];
  memcpy(halves, &mask, sizeof halves);
  return (halves[0] | halves[1]) != 0;
}

bool IsAscii(const uint8_t* chunk) {
  Lanes all = Load(chunk);
  for (int i = kLanes; i < kChunk; i += kLanes) all |= Load(chunk + i);
  return !Any(all >= 0x80);
}

}  // namespace

bool SureText::Except(const Exception& exception) {
  for (const Exception& known : exceptions)
    if (known.first == exception.first && known.second == exception.second) return true;
  if (exceptions.size() >= kMostExceptions) return false;
  exceptions.push_back(exception);
  return true;
}

bool SureText::IsBoundary(int distance, uint8_t byte) const {
  return unit == 0 ? !IsContinuation(byte) : distance % unit == 0;
}

// 0 where no sure character stands.
int SureText::CharacterLength(const uint8_t* bytes, int n) const {
  const int length = LeadLength(bytes[0]);
  if (length <= 1) return length;
  if (length > n) return 0;
  for (int i = 1; i < length; ++i)
    if (!IsContinuation(bytes[i])) return 0;
  if (bytes[0] == 0xE0 && bytes[1] < 0xA0) return 0;
  if (bytes[0] == 0xF0 && bytes[1] < 0x90) return 0;
  for (const Exception& exception : exceptions)
    if (bytes[0] == exception.first && bytes[1] == exception.second) return 0;
  return length;
}

// Reads kLookBack bytes in front of the chunk.
bool SureText::IsSureChunk(const uint8_t* chunk) const {
  if (IsAscii(chunk) && !GoesOn(chunk)) return true;
  Mask wrong{};
  for (const uint8_t* at = chunk; at < chunk + kChunk; at += kLanes) {
    const Lanes byte = Load(at), before = Load(at - 1);
    const auto goesOn = (before >= 0xC0) | (Load(at - 2) >= 0xE0) | (Load(at - 3) >= 0xF0);
    wrong |= ((byte & 0xC0) == 0x80) ^ goesOn;
    wrong |= (byte >= 0xF8) | ((byte & 0xFE) == 0xC0);
    wrong |= ((before == 0xE0) & (byte < 0xA0)) | ((before == 0xF0) & (byte < 0x90));
    for (const Exception& exception : exceptions)
      wrong |= (before == exception.first) & (byte == exception.second);
  }
  return !Any(wrong);
}

int SureText::Length(const uint8_t* bytes, int n) const {
  if (unit != 0) return n - n % unit;
  int i = 0;
  int nextChunk = kLookBack;  // one that failed is not tried again
  while (i < n) {
    const int begin = i;
    while (i >= nextChunk && n - i >= kChunk) {
      if (IsSureChunk(bytes + i))
        i += kChunk;
      else
        nextChunk = i + kChunk;
    }
    // A chunk may end within a character, which is looked at again.
    while (i > begin && GoesOn(bytes + i)) --i;
    const int length = i < n ? CharacterLength(bytes + i, n - i) : 0;
    if (length == 0) break;
    i += length;
  }
  return i;
}

int SureText::LengthBack(const uint8_t* bytes, int n) const {
  if (unit != 0) return n - n % unit;
  int i = n;
  int nextChunk = n;
  while (i > 0) {
    const int end = i;
    while (i <= nextChunk && i >= kChunk + kLookBack && !GoesOn(bytes + i)) {
      if (IsSureChunk(bytes + i - kChunk))
        i -= kChunk;
      else
        nextChunk = i - kChunk;
    }
    // A chunk may begin within a character, which is looked at again.
    while (i < end && IsContinuation(bytes[i])) ++i;
    int begin = i - 1;
    while (begin > 0 && i - begin < 4 && IsContinuation(bytes[begin])) --begin;
    if (CharacterLength(bytes + begin, i - begin) != i - begin) break;
    i = begin;
  }
  return n - i;
}
