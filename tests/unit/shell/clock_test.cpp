// The text of the clock.
#include "shell/clock.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace {

std::string TextAt(int hour, int minute, int second, int timeMode) {
  setenv("TZ", "UTC", 1);
  tzset();
  return ToUtf8(ClockText(hour * 3600 + minute * 60 + second, timeMode)).Text();
}

}  // namespace

TEST(Clock, TwentyFourHoursShowTheHourInTwoPlaces) {
  EXPECT_EQ(TextAt(0, 0, 0, 24), " 0:00");
  EXPECT_EQ(TextAt(9, 5, 0, 24), " 9:05");
  EXPECT_EQ(TextAt(13, 59, 0, 24), "13:59");
  EXPECT_EQ(TextAt(23, 7, 0, 24), "23:07");
}

TEST(Clock, TwelveHoursCallMidnightAndNoonTwelve) {
  EXPECT_EQ(TextAt(0, 0, 0, 12), "12:00a");
  EXPECT_EQ(TextAt(12, 0, 0, 12), "12:00p");
}

TEST(Clock, EveryHourIsShownInBothModes) {
  for (int hour = 0; hour < 24; ++hour) {
    char expected[16];
    snprintf(expected, sizeof expected, "%2d:30", hour);
    EXPECT_EQ(TextAt(hour, 30, 0, 24), expected);
    const int half = hour == 0 || hour == 12 ? 12 : hour % 12;
    snprintf(expected, sizeof expected, "%2d:30%c", half, hour < 12 ? 'a' : 'p');
    EXPECT_EQ(TextAt(hour, 30, 0, 12), expected);
  }
}

TEST(Clock, TheColonIsThereInEvenSecondsOnly) {
  EXPECT_EQ(TextAt(13, 5, 58, 24), "13:05");
  EXPECT_EQ(TextAt(13, 5, 59, 24), "13 05");
  EXPECT_EQ(TextAt(13, 5, 1, 12), " 1 05p");
}

TEST(Clock, TheTimeIsLocal) {
  setenv("TZ", "XXX-3", 1);
  tzset();
  EXPECT_EQ(std::string(ToUtf8(ClockText(0, 24)).Text()), " 3:00");
}
