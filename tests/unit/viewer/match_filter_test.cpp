// Looking for where the rarest bytes of a match stand.
#include "viewer/match_filter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace {

const uint8_t* Bytes(const std::string& text) { return reinterpret_cast<const uint8_t*>(text.data()); }

}  // namespace

TEST(MatchFilter, FindsTheFirstAndTheLastPlaceOfARange) {
  const MatchFilter filter({{0, {'a'}}, {1, {'b', 'B'}}});
  const std::string text = "-ab-aB-ab-";
  EXPECT_EQ(filter.First(Bytes(text), 0, 9), 1);
  EXPECT_EQ(filter.First(Bytes(text), 2, 9), 4);
  EXPECT_EQ(filter.First(Bytes(text), 5, 7), 7);
  EXPECT_EQ(filter.Last(Bytes(text), 0, 9), 7);
  EXPECT_EQ(filter.Last(Bytes(text), 0, 7), 4);
  EXPECT_EQ(filter.Last(Bytes(text), 2, 4), 1);
  EXPECT_EQ(filter.First(Bytes(text), 5, 5), 5);
  EXPECT_EQ(filter.Last(Bytes(text), 5, 5), 4);
}

TEST(MatchFilter, APlaceWithoutBytesIsNowhere) {
  const MatchFilter filter({{0, {'a'}}, {1, {}}});
  const std::string text(100, 'a');
  EXPECT_EQ(filter.First(Bytes(text), 0, 99), 99);
  EXPECT_EQ(filter.Last(Bytes(text), 3, 99), 2);
}

TEST(MatchFilter, WithoutAPlaceWorthLookingAtAMatchMayBeAnywhere) {
  const MatchFilter filter({{0, {1, 2, 3, 4, 5}}});
  const std::string text(100, 'x');
  EXPECT_EQ(filter.First(Bytes(text), 7, 99), 7);
  EXPECT_EQ(filter.Last(Bytes(text), 7, 99), 98);
  EXPECT_EQ(filter.Lowest(), 0);
  EXPECT_EQ(filter.Highest(), 0);
}

TEST(MatchFilter, LooksAtTheRarestBytes) {
  const MatchFilter filter({{-1, {'t'}}, {0, {'e'}}, {1, {'Z'}}, {2, {'Z'}}, {3, {' '}}, {-4, {'q'}}});
  EXPECT_EQ(filter.Lowest(), -4);
  EXPECT_EQ(filter.Highest(), 2);
}

// Any place up to the end of the range is found, wherever the range begins.
TEST(MatchFilter, AgreesWithLookingAtEachPlace) {
  std::mt19937 random(7);
  const MatchFilter filters[] = {
      MatchFilter({{-3, {'a'}}, {2, {'b'}}}),
      MatchFilter({{-3, {'a', 'b'}}, {2, {'b', 'c'}}}),
      MatchFilter({{-3, {'a', 'b', 'd'}}, {2, {'a', 'b', 'c', 'e'}}}),
  };
  const char* const allowed[][2] = {{"a", "b"}, {"ab", "bc"}, {"abd", "abce"}};
  for (int round = 0; round < 300; ++round) {
    std::string text(6 + random() % 4000, ' ');
    const unsigned letters = random() % 2 == 0 ? 32 : 6000;  // of so many, six are not skipped
    for (char& ch : text) ch = static_cast<char>("abcdef-"[std::min<size_t>(random() % letters, 6)]);
    const int size = static_cast<int>(text.size());
    const int from = 3 + static_cast<int>(random() % 20) % (size - 5), to = size - 2;
    for (int kind = 0; kind < 3; ++kind) {
      const auto isPlace = [&](int i) {
        return std::string(allowed[kind][0]).find(text[i - 3]) != std::string::npos &&
               std::string(allowed[kind][1]).find(text[i + 2]) != std::string::npos;
      };
      int first = from, last = to - 1;
      while (first < to && !isPlace(first)) ++first;
      while (last >= from && !isPlace(last)) --last;
      ASSERT_EQ(filters[kind].First(Bytes(text), from, to), first) << text;
      ASSERT_EQ(filters[kind].Last(Bytes(text), from, to), last) << text;
    }
  }
}
