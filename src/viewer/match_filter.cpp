// The two rarest bytes of a match; see match_filter.h.
#include "viewer/match_filter.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

using Lanes = uint8_t __attribute__((vector_size(16)));
constexpr int kLanes = sizeof(Lanes);
constexpr int kChunk = 4 * kLanes;  // compared between two decisions

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

}  // namespace

MatchFilter::MatchFilter(const std::vector<MatchPlace>& places) {
  const MatchPlace* best = nullptr;
  const MatchPlace* second = nullptr;
  for (const MatchPlace& place : places) {
    if (place.bytes.empty()) {
      kind = Kind::Nowhere;
      return;
    }
    if (static_cast<int>(place.bytes.size()) > kMostBytes) continue;
    if (!best || Commonness(place) < Commonness(*best)) best = &place;
  }
  if (!best) return;
  // One that differs is worth more: the best byte may come in long runs.
  for (const MatchPlace& place : places) {
    if (static_cast<int>(place.bytes.size()) > kMostBytes || place.bytes == best->bytes) continue;
    if (!second || Commonness(place) < Commonness(*second)) second = &place;
  }
  if (!second) second = best;
  SetAnchor(anchors[0], *best);
  SetAnchor(anchors[1], *second);
  const auto most = std::max(best->bytes.size(), second->bytes.size());
  kind = most == 1 ? Kind::OneByte : most == 2 ? Kind::TwoBytes : Kind::MoreBytes;
}

void MatchFilter::SetAnchor(Anchor& anchor, const MatchPlace& place) {
  anchor.offset = place.offset;
  for (int i = 0; i < kMostBytes; ++i) anchor.bytes[i] = place.bytes[i % place.bytes.size()];
  lowest = std::min(lowest, place.offset);
  highest = std::max(highest, place.offset);
}

bool MatchFilter::MayBeAt(const uint8_t* place) const {
  if (kind == Kind::Anywhere) return true;
  for (const Anchor& anchor : anchors) {
    const uint8_t* end = std::end(anchor.bytes);
    if (std::find(anchor.bytes, end, place[anchor.offset]) == end) return false;
  }
  return true;
}

template <int kBytes>
bool MatchFilter::MayBeWithin(const uint8_t* chunk) const {
  const auto both = [&](const uint8_t* at) {
    return Among<kBytes>(at + anchors[0].offset, anchors[0].bytes) &
           Among<kBytes>(at + anchors[1].offset, anchors[1].bytes);
  };
  auto any = both(chunk);
  for (int i = kLanes; i < kChunk; i += kLanes) any |= both(chunk + i);
  uint64_t halves[2];
  memcpy(halves, &any, sizeof halves);
  return (halves[0] | halves[1]) != 0;
}

bool MatchFilter::ChunkMayHold(const uint8_t* chunk) const {
  switch (kind) {
    case Kind::OneByte:
      return MayBeWithin<1>(chunk);
    case Kind::TwoBytes:
      return MayBeWithin<2>(chunk);
    case Kind::MoreBytes:
      return MayBeWithin<kMostBytes>(chunk);
    default:
      return true;
  }
}

int MatchFilter::First(const uint8_t* bytes, int from, int to) const {
  if (kind == Kind::Nowhere) return to;
  for (int i = from; i < to;) {
    const int end = std::min(i + kChunk, to);
    if (end - i < kChunk || ChunkMayHold(bytes + i)) {
      for (; i < end; ++i)
        if (MayBeAt(bytes + i)) return i;
    }
    i = end;
  }
  return std::max(from, to);
}

int MatchFilter::Last(const uint8_t* bytes, int from, int to) const {
  if (kind == Kind::Nowhere) return from - 1;
  for (int i = to; i > from;) {
    const int begin = std::max(i - kChunk, from);
    if (i - begin < kChunk || ChunkMayHold(bytes + begin)) {
      for (; i > begin; --i)
        if (MayBeAt(bytes + i - 1)) return i - 1;
    }
    i = begin;
  }
  return from - 1;
}
