// A quick look for where a text may stand among bytes: some of its bytes, the
// rarest, are compared in many places at a time.
#pragma once

#include <cstdint>
#include <vector>

// The bytes that may stand at one place of a match.
struct MatchPlace {
  int offset;  // from the place that is looked for; negative in front of it
  std::vector<uint8_t> bytes;
};

class MatchFilter {
 public:
  // The places known of a match. Any of them may be left out; a place without
  // bytes says that there is no match.
  explicit MatchFilter(const std::vector<MatchPlace>& places);

  // The first and the last i of from to to - 1 where a match may be: to and
  // from - 1 if there is none. What lies from Lowest() to Highest() around all
  // of them is read.
  int First(const uint8_t* bytes, int from, int to) const;
  int Last(const uint8_t* bytes, int from, int to) const;

  int Lowest() const { return lowest; }    // 0 or below
  int Highest() const { return highest; }  // 0 or above

 private:
  static constexpr int kMostBytes = 4;  // a place with more does not sort out enough
  static constexpr int kMostAnchors = 4;

  struct Anchor {
    int offset = 0;
    uint8_t bytes[kMostBytes] = {};  // some of them twice, where there are less
  };

  void AddAnchor(const MatchPlace& place);
  bool MayBeAt(const uint8_t* place) const;
  template <int kBytes>
  int FirstWith(const uint8_t* bytes, int from, int to) const;
  template <int kBytes>
  int LastWith(const uint8_t* bytes, int from, int to) const;
  template <int kBytes>
  auto Candidates(const uint8_t* bytes, int count) const;
  template <int kBytes>
  bool ChunkMayHold(const uint8_t* chunk) const;

  bool isNowhere = false;
  int mostBytes = 1;  // of a place
  Anchor anchors[kMostAnchors];
  int anchorCount = 0;  // 0: a match may be anywhere
  int lowest = 0, highest = 0;
};
