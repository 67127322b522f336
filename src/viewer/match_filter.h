// A quick look for where a text may stand among bytes: goes from one place of its
// rarest byte to the next.
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
  bool MayBeAt(const uint8_t* place) const;

  bool isNowhere = false;
  std::vector<MatchPlace> anchors;  // the rarest first; none: a match may be anywhere
  int lowest = 0, highest = 0;
};
