// The rarest bytes of a match; see match_filter.h.
#include "viewer/match_filter.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr size_t kMostBytes = 4;    // a place with more does not sort out enough
constexpr size_t kMostAnchors = 4;  // looked at before the whole match is

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

// What the library is asked to look through at a time. A caller may come back
// soon, and a form of a letter that is nowhere near would be looked for again.
constexpr int kWindow = 1024;

// The nearest place of any of some bytes within a window, in one direction. Each
// byte is looked for again only where its place has been passed.
class NearestByte {
 public:
  NearestByte(const std::vector<uint8_t>& wanted, const uint8_t* bytes) : wanted(wanted), bytes(bytes) {}

  // The first i of from to to - 1, or to; from may only rise.
  int First(int from, int to) {
    int nearest = to;
    for (size_t k = 0; k < wanted.size(); ++k) {
      if (!isKnown[k] || places[k] < from)
        Keep(k, memchr(bytes + from, wanted[k], static_cast<size_t>(to - from)), to);
      nearest = std::min(nearest, places[k]);
    }
    return nearest;
  }

  // The last i of from to to - 1, or from - 1; to may only fall.
  int Last(int from, int to) {
    int nearest = from - 1;
    for (size_t k = 0; k < wanted.size(); ++k) {
      if (!isKnown[k] || places[k] >= to)
        Keep(k, memrchr(bytes + from, wanted[k], static_cast<size_t>(to - from)), from - 1);
      nearest = std::max(nearest, places[k]);
    }
    return nearest;
  }

 private:
  void Keep(size_t k, const void* found, int otherwise) {
    isKnown[k] = true;
    places[k] = found ? static_cast<int>(static_cast<const uint8_t*>(found) - bytes) : otherwise;
  }

  const std::vector<uint8_t>& wanted;
  const uint8_t* const bytes;
  bool isKnown[kMostBytes] = {};
  int places[kMostBytes] = {};
};

}  // namespace

MatchFilter::MatchFilter(const std::vector<MatchPlace>& places) {
  for (const MatchPlace& place : places) {
    isNowhere = isNowhere || place.bytes.empty();
    if (place.bytes.size() <= kMostBytes) anchors.push_back(place);
  }
  std::stable_sort(anchors.begin(), anchors.end(),
                   [](const MatchPlace& a, const MatchPlace& b) { return Commonness(a) < Commonness(b); });
  if (anchors.size() > kMostAnchors) anchors.resize(kMostAnchors);
  for (const MatchPlace& anchor : anchors) {
    lowest = std::min(lowest, anchor.offset);
    highest = std::max(highest, anchor.offset);
  }
}

bool MatchFilter::MayBeAt(const uint8_t* place) const {
  return std::all_of(anchors.begin(), anchors.end(), [place](const MatchPlace& anchor) {
    return std::find(anchor.bytes.begin(), anchor.bytes.end(), place[anchor.offset]) != anchor.bytes.end();
  });
}

int MatchFilter::First(const uint8_t* bytes, int from, int to) const {
  if (from >= to || isNowhere) return std::max(from, to);
  if (anchors.empty()) return from;
  for (int i = from; i < to;) {
    const int end = std::min(to, i + kWindow);
    NearestByte rarest(anchors[0].bytes, bytes + anchors[0].offset);
    for (i = rarest.First(i, end); i < end; i = rarest.First(i + 1, end))
      if (MayBeAt(bytes + i)) return i;
  }
  return to;
}

int MatchFilter::Last(const uint8_t* bytes, int from, int to) const {
  if (from >= to || isNowhere) return from - 1;
  if (anchors.empty()) return to - 1;
  for (int end = to; end > from;) {
    const int begin = std::max(from, end - kWindow);
    NearestByte rarest(anchors[0].bytes, bytes + anchors[0].offset);
    while ((end = rarest.Last(begin, end)) >= begin)
      if (MayBeAt(bytes + end)) return end;
    end = begin;
  }
  return from - 1;
}
