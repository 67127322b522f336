#include "fileops/copy_progress.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "config/values/locale_format.h"

namespace {

constexpr int64_t kMost = std::numeric_limits<int64_t>::max();

std::string Bar(int64_t done, int64_t total, int width) {
  const Westring bar = ProgressBar(done, total, width);
  std::string signs;
  for (int i = 0; i < Length(bar); ++i) signs += bar[i] == 0x2588 ? '#' : bar[i] == 0x2591 ? '.' : '_';
  return signs;
}

std::string Rate(int64_t done, int64_t total, double elapsed) {
  return RateLine(done, total, elapsed).Text();
}

TEST(ProgressBar, FillsTheShareThatIsDone) {
  EXPECT_EQ(Bar(0, 100, 10), "..........");
  EXPECT_EQ(Bar(50, 100, 10), "#####.....");
  EXPECT_EQ(Bar(100, 100, 10), "##########");
}

TEST(ProgressBar, CutsAPartOfACell) {
  EXPECT_EQ(Bar(19, 100, 10), "#.........");
  EXPECT_EQ(Bar(99, 100, 10), "#########.");
}

TEST(ProgressBar, IsFullAtMost) { EXPECT_EQ(Bar(300, 100, 10), "##########"); }

TEST(ProgressBar, IsBlankWithoutATotal) {
  EXPECT_EQ(Bar(0, 0, 5), "_____");
  EXPECT_EQ(Bar(7, 0, 5), "_____");
}

TEST(ProgressBar, StaysWithinItsWidthForAnyNumbers) {
  EXPECT_EQ(Bar(kMost / 2, kMost, 10), "####......");
  EXPECT_EQ(Bar(kMost, kMost, 10), "##########");
  EXPECT_EQ(Bar(-5, 100, 4), "....");
  EXPECT_EQ(Bar(5, -100, 4), "____");
  EXPECT_EQ(Bar(5, 10, 0), "");
  EXPECT_EQ(Bar(5, 10, -3), "");
}

TEST(RateLine, IsEmptyUntilThereIsARate) {
  EXPECT_EQ(Rate(0, 100, 5), "");
  EXPECT_EQ(Rate(-1, 100, 5), "");
  EXPECT_EQ(Rate(50, 100, 0), "");
  EXPECT_EQ(Rate(50, 100, -1), "");
  EXPECT_EQ(Rate(50, 100, std::nan("")), "");
}

TEST(RateLine, TellsTimeRateAndTimeLeft) {
  EXPECT_EQ(Rate(1000, 3000, 10), "Time: 0:10  BPS:     100  ETA: 0:20");
}

TEST(RateLine, CountsMinutesBeyondTheHour) {
  EXPECT_EQ(Rate(3661, 7322, 3661), "Time: 61:01  BPS:       1  ETA: 61:01");
}

TEST(RateLine, CutsAllToWholeNumbers) {
  EXPECT_EQ(Rate(299, 598, 59.99), "Time: 0:59  BPS:       4  ETA: 0:59");
}

TEST(RateLine, TakesTheThousandsSeparatorOfTheLocale) {
  const wchar_t separator = ThousandsSeparator;
  ThousandsSeparator = L',';
  EXPECT_EQ(Rate(123456, 123456, 1), "Time: 0:01  BPS: 123,456  ETA: 0:00");
  ThousandsSeparator = separator;
}

TEST(RateLine, ScalesARateThatIsTooLongForItsField) {
  const wchar_t separator = ThousandsSeparator;
  ThousandsSeparator = L',';
  EXPECT_EQ(Rate(1024000, 1024000, 1), "Time: 0:01  BPS:  1,000K  ETA: 0:00");
  EXPECT_EQ(Rate(int64_t{5} << 40, int64_t{5} << 40, 1), "Time: 0:01  BPS: 5,242,880M  ETA: 0:00");
  ThousandsSeparator = separator;
}

TEST(RateLine, AFileThatGrewLeavesNoTime) {
  EXPECT_EQ(Rate(300, 100, 3), "Time: 0:03  BPS:     100  ETA: 0:00");
}

TEST(RateLine, HoldsAnyNumbers) {
  EXPECT_NE(Rate(1, kMost, 1e300), "");
  EXPECT_NE(Rate(kMost, kMost, 1e-300), "");
  EXPECT_NE(Rate(kMost, kMost, std::numeric_limits<double>::infinity()), "");
}

}  // namespace
