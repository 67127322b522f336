// What a Break does to a search.
#include <atomic>
#include <thread>

#include "console/input.h"
#include "unit/viewer/searched_text.h"

namespace {

constexpr uint64_t kVeryLarge = uint64_t{1} << 40;  // many minutes of searching

// Presses Break again and again, which counts only while something has armed it.
class Breaker {
 public:
  Breaker() : thread([this] { Press(); }) {}
  ~Breaker() {
    isOver = true;
    thread.join();
  }

 private:
  void Press() {
    while (!isOver) {
      RequestBreak();
      std::this_thread::yield();
    }
  }

  std::atomic<bool> isOver{false};
  std::thread thread;
};

}  // namespace

TEST(SearchBreak, ABreakEndsASearchUnderWay) {
  SearchedText zeros(kVeryLarge);
  const Breaker breaker;
  for (const bool reverse : {false, true}) {
    const auto start = static_cast<int64_t>(reverse ? kVeryLarge - 1 : 0);
    EXPECT_EQ(zeros.SearchBytes(L"abc", start, reverse, true, false, 819), kSearchStopped);
    EXPECT_EQ(zeros.Search(L"abc", start, false, false, reverse), kSearchStopped);
    const Westring pattern = Westring::Replicate(L'a', 200);
    EXPECT_EQ(zeros.SearchBytes(pattern, start, reverse, false, false, 819), kSearchStopped);
  }
}

TEST(SearchBreak, TheStateIsPutBack) {
  SearchedText text("abc");
  EXPECT_EQ(text.FindBytes(L"b"), 1);
  EXPECT_EQ(BreakState, 0);
  EXPECT_EQ(text.FindBytes(L"x"), kSearchNone);
  EXPECT_EQ(BreakState, 0);
  EXPECT_EQ(text.Find(L"b"), 1);
  EXPECT_EQ(BreakState, 0);
}

TEST(SearchBreak, ABreakOfWhatSearchesCountsInTheSearch) {
  SearchedText text("abc");
  const BreakScope outer;
  EXPECT_EQ(text.FindBytes(L"b"), 1);
  RequestBreak();
  EXPECT_EQ(text.FindBytes(L"b"), kSearchStopped);
  EXPECT_EQ(text.Find(L"b"), kSearchStopped);
  EXPECT_EQ(BreakState, 2);
}
