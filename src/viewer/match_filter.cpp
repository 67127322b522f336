// The rarest bytes of a match; see match_filter.h.
#include "viewer/match_filter.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <iterator>

namespace {

using Lanes = uint8_t __attribute__((vector_size(16)));
constexpr int kLanes = sizeof(Lanes);
constexpr int kChunk = 4 * kLanes;  // compared between two decisions
constexpr int kQuickAnchors = 2;    // those that decide about a chunk

// How often a byte is met in texts, roughly: only the order counts.
int Commonness(uint8_t byte) {
  constexpr char kCommonLetters[] = "etaoinsrhld";
  if (byte == 0) return 80;     // every second byte of much UTF-16
  if (byte >= 0xC0) return 60;  // leads a letter in half of the alphabets
  if (byte == ' ') return 40;
  if (byte >= 0x80) return 6;
  if (strchr(kCommonLetters, byte)) return 20;
  if (byte >= 'a' && byte <= 'z') return 8;
  return 3;
}

int Commonness(const MatchPlace& place) {
  int sum = 0;
  for (const uint8_t byte : place.bytes) sum += Commonness(byte);
  return sum;
}

template <int kBytes>
auto Among(const uint8_t* bytes, const uint8_t* wanted) {
  Lanes lanes;
  memcpy(&lanes, bytes, sizeof lanes);
  auto found = lanes == wanted[0];
  for (int i = 1; i < kBytes; ++i) found |= lanes == wanted[i];
  return found;
}

// The first and the last of the lanes that are set; -1 if none is.
using Halves = uint64_t[2];

int FirstLane(const Halves& halves) {
  static_assert(std::endian::native == std::endian::little);
  if (halves[0] != 0) return std::countr_zero(halves[0]) / 8;
  return halves[1] != 0 ? 8 + std::countr_zero(halves[1]) / 8 : -1;
}

int LastLane(const Halves& halves) {
  if (halves[1] != 0) return 15 - std::countl_zero(halves[1]) / 8;
  return halves[0] != 0 ? 7 - std::countl_zero(halves[0]) / 8 : -1;
}

}  // namespace

MatchFilter::MatchFilter(const std::vector<MatchPlace>& places) {
  std::vector<const MatchPlace*> useful;
  for (const MatchPlace& place : places) {
    isNowhere = isNowhere || place.bytes.empty();
    if (place.bytes.size() <= kMostBytes) useful.push_back(&place);
  }
  if (isNowhere || useful.empty()) return;
  std::stable_sort(useful.begin(), useful.end(),
                   [](const MatchPlace* a, const MatchPlace* b) { return Commonness(*a) < Commonness(*b); });
  // Next to the rarest, one that differs is worth more: the rarest may come in
  // long runs.
  const auto second = std::find_if(useful.begin(), useful.end(),
                                   [&](const MatchPlace* place) { return place->bytes != useful[0]->bytes; });
  if (second != useful.end()) std::rotate(useful.begin() + 1, second, second + 1);
  while (useful.size() < kQuickAnchors) useful.push_back(useful[0]);
  if (useful.size() > kMostAnchors) useful.resize(kMostAnchors);
  for (const MatchPlace* place : useful) AddAnchor(*place);
}

void MatchFilter::AddAnchor(const MatchPlace& place) {
  Anchor& anchor = anchors[anchorCount++];
  anchor.offset = place.offset;
  for (int i = 0; i < kMostBytes; ++i) anchor.bytes[i] = place.bytes[i % place.bytes.size()];
  mostBytes = std::max(mostBytes, static_cast<int>(place.bytes.size()));
  lowest = std::min(lowest, place.offset);
  highest = std::max(highest, place.offset);
}

bool MatchFilter::MayBeAt(const uint8_t* place) const {
  for (int i = 0; i < anchorCount; ++i) {
    const Anchor& anchor = anchors[i];
    const uint8_t* end = std::end(anchor.bytes);
    if (std::find(anchor.bytes, end, place[anchor.offset]) == end) return false;
  }
  return true;
}

// The lanes in which the first count anchors have their bytes.
template <int kBytes>
auto MatchFilter::Candidates(const uint8_t* bytes, int count) const {
  auto found = Among<kBytes>(bytes + anchors[0].offset, anchors[0].bytes);
  for (int i = 1; i < count; ++i) found &= Among<kBytes>(bytes + anchors[i].offset, anchors[i].bytes);
  return found;
}

template <int kBytes>
bool MatchFilter::ChunkMayHold(const uint8_t* chunk) const {
  auto any = Candidates<kBytes>(chunk, kQuickAnchors);
  for (int i = kLanes; i < kChunk; i += kLanes) any |= Candidates<kBytes>(chunk + i, kQuickAnchors);
  Halves halves;
  memcpy(halves, &any, sizeof halves);
  return (halves[0] | halves[1]) != 0;
}

template <int kBytes>
int MatchFilter::FirstWith(const uint8_t* bytes, int from, int to) const {
  int i = from;
  for (; to - i >= kChunk; i += kChunk) {
    if (!ChunkMayHold<kBytes>(bytes + i)) continue;
    for (int lanes = i; lanes < i + kChunk; lanes += kLanes) {
      const auto found = Candidates<kBytes>(bytes + lanes, anchorCount);
      Halves halves;
      memcpy(halves, &found, sizeof halves);
      if (const int lane = FirstLane(halves); lane >= 0) return lanes + lane;
    }
  }
  while (i < to && !MayBeAt(bytes + i)) ++i;
  return i;
}

template <int kBytes>
int MatchFilter::LastWith(const uint8_t* bytes, int from, int to) const {
  int end = to;
  for (; end - from >= kChunk; end -= kChunk) {
    if (!ChunkMayHold<kBytes>(bytes + end - kChunk)) continue;
    for (int lanes = end - kLanes; lanes >= end - kChunk; lanes -= kLanes) {
      const auto found = Candidates<kBytes>(bytes + lanes, anchorCount);
      Halves halves;
      memcpy(halves, &found, sizeof halves);
      if (const int lane = LastLane(halves); lane >= 0) return lanes + lane;
    }
  }
  while (end > from && !MayBeAt(bytes + end - 1)) --end;
  return end - 1;
}

int MatchFilter::First(const uint8_t* bytes, int from, int to) const {
  if (from >= to || isNowhere) return std::max(from, to);
  if (anchorCount == 0) return from;
  if (mostBytes == 1) return FirstWith<1>(bytes, from, to);
  if (mostBytes == 2) return FirstWith<2>(bytes, from, to);
  return FirstWith<kMostBytes>(bytes, from, to);
}

int MatchFilter::Last(const uint8_t* bytes, int from, int to) const {
  if (from >= to || isNowhere) return from - 1;
  if (anchorCount == 0) return to - 1;
  if (mostBytes == 1) return LastWith<1>(bytes, from, to);
  if (mostBytes == 2) return LastWith<2>(bytes, from, to);
  return LastWith<kMostBytes>(bytes, from, to);
}
