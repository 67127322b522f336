// File times, in zones that the tests set themselves.
#include "foundation/file_time.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>

namespace {

// The zone of the process for the length of a test.
class Zone {
 public:
  explicit Zone(const char* name) {
    const char* old = getenv("TZ");
    had = old != nullptr;
    if (had) before = old;
    setenv("TZ", name, 1);
    tzset();
  }
  ~Zone() {
    if (had)
      setenv("TZ", before.c_str(), 1);
    else
      unsetenv("TZ");
    tzset();
  }

 private:
  bool had;
  std::string before;
};

// Rules written out, so that no file of zones is needed: clocks go forward on the
// last Sunday of March at 2, back on the last Sunday of October at 3.
constexpr char kCentralEurope[] = "CET-1CEST,M3.5.0,M10.5.0/3";
constexpr char kKathmandu[] = "<+0545>-5:45";

constexpr uint32_t kJuly = 1751373296u;  // 2025-07-01 12:34:56 UTC

void ExpectParts(const FileTimeParts& parts, int year, int month, int day, int hour, int minute, int second) {
  EXPECT_EQ(parts.year, year);
  EXPECT_EQ(parts.month, month);
  EXPECT_EQ(parts.day, day);
  EXPECT_EQ(parts.hour, hour);
  EXPECT_EQ(parts.minute, minute);
  EXPECT_EQ(parts.second, second);
}

}  // namespace

TEST(FileTime, ComparesAsOneNumberWithSecondsAbove) {
  EXPECT_EQ(sizeof(FileTime), 8u);
  const FileTime earlier{999999999, 5}, later{0, 6};
  EXPECT_LT(earlier.Order(), later.Order());
  uint64_t raw;
  memcpy(&raw, &later, sizeof raw);
  EXPECT_EQ(raw, later.Order());
}

TEST(FileTime, NowIsTheSystemsTime) {
  const time_t before = time(nullptr);
  const FileTime now = Now();
  EXPECT_GE(now.seconds, static_cast<uint32_t>(before));
  EXPECT_LE(now.seconds, static_cast<uint32_t>(time(nullptr)));
  EXPECT_LT(now.nanoseconds, 1000000000u);
  EXPECT_NEAR(NowSeconds(), static_cast<double>(now.seconds), 60.0);
}

TEST(FileTime, PartsAreLocalTime) {
  {
    Zone zone("UTC0");
    ExpectParts(ToParts({0, kJuly}), 2025, 7, 1, 12, 34, 56);
  }
  {
    Zone zone(kKathmandu);
    ExpectParts(ToParts({0, kJuly}), 2025, 7, 1, 18, 19, 56);
  }
  Zone zone(kCentralEurope);
  ExpectParts(ToParts({7, kJuly}), 2025, 7, 1, 14, 34, 56);  // summer
  EXPECT_EQ(ToParts({7, kJuly}).nanoseconds, 7);
}

TEST(FileTime, PartsAndBackGiveTheSameMomentInEveryZone) {
  for (const char* name : {"UTC0", kCentralEurope, kKathmandu, "EST5EDT,M3.2.0,M11.1.0", "<+14>-14"}) {
    Zone zone(name);
    for (uint32_t seconds = 1000; seconds < 4000000000u; seconds += 7654321) {
      const FileTime time{seconds % 1000, seconds};
      EXPECT_EQ(FromParts(ToParts(time)), time) << name << " " << seconds;
    }
  }
}

TEST(FileTime, HourThatIsSkippedInSpringLandsBesideTheGap) {
  Zone zone(kCentralEurope);
  const FileTime gap = FromParts({2025, 3, 30, 2, 30, 0, 0});
  const FileTime before = FromParts({2025, 3, 30, 1, 30, 0, 0});
  const FileTime after = FromParts({2025, 3, 30, 3, 30, 0, 0});
  EXPECT_EQ(after.seconds - before.seconds, 3600u);
  EXPECT_GE(gap.seconds, before.seconds);
  EXPECT_LE(gap.seconds, after.seconds);
}

TEST(FileTime, HourThatComesTwiceInAutumnIsOneOfTheTwo) {
  Zone zone(kCentralEurope);
  const FileTime twice = FromParts({2025, 10, 26, 2, 30, 0, 0});
  EXPECT_TRUE(twice.seconds == 1761438600u || twice.seconds == 1761442200u) << twice.seconds;
  ExpectParts(ToParts(twice), 2025, 10, 26, 2, 30, 0);
}

TEST(FileTime, MomentsOutsideTheFormBecomeTheNearest) {
  EXPECT_EQ(FromTimespec({-1, 5}), (FileTime{0, 0}));
  EXPECT_EQ(FromTimespec({0x100000000, 0}), (FileTime{0, 0xFFFFFFFEu}));
  EXPECT_EQ(FromTimespec({12, 34}), (FileTime{34, 12}));
  Zone zone("UTC0");
  EXPECT_EQ(FromParts({1960, 1, 1, 0, 0, 0, 0}).seconds, 0u);
  EXPECT_EQ(FromParts({2200, 1, 1, 0, 0, 0, 0}).seconds, 0xFFFFFFFEu);
  const int32_t wild = INT32_MIN;
  EXPECT_EQ(FromParts({wild, wild, wild, wild, wild, wild, 0}).seconds, 0u);
}

TEST(DosTime, FieldsStandInTheirBits) {
  Zone zone("UTC0");
  uint16_t date = 0, time = 0;
  ToDos({0, kJuly}, date, time);
  EXPECT_EQ(date, 45 << 9 | 7 << 5 | 1);
  EXPECT_EQ(time, 12 << 11 | 34 << 5 | 28);
  EXPECT_EQ(FromDos(date, time).seconds, kJuly);
}

TEST(DosTime, OddSecondIsHalvedDown) {
  Zone zone("UTC0");
  uint16_t date = 0, time = 0;
  ToDos(FromParts({2025, 7, 1, 12, 0, 59, 0}), date, time);
  EXPECT_EQ(time & 31, 29);
}

TEST(DosTime, IsLocal) {
  Zone zone(kCentralEurope);
  uint16_t date = 0, time = 0;
  ToDos({0, kJuly}, date, time);
  EXPECT_EQ(time >> 11, 14);
  EXPECT_EQ(FromDos(date, time).seconds, kJuly);
}

TEST(DosTime, YearsBefore1980BecomeItsFirstDay) {
  Zone zone("UTC0");
  uint16_t date = 0, time = 0;
  ToDos({0, 86400}, date, time);
  EXPECT_EQ(date, 1 << 5 | 1);
  EXPECT_EQ(time, 0);
}

TEST(FormatTime, PadsTheHourWithABlank) {
  Zone zone("UTC0");
  EXPECT_STREQ(Format(FromParts({2025, 7, 1, 12, 34, 56, 0})).Text(), "2025-07-01 12:34:56");
  EXPECT_STREQ(Format(FromParts({2025, 7, 1, 3, 4, 5, 0})).Text(), "2025-07-01  3:04:05");
}

TEST(FormatTime, FractionLosesItsTrailingZeros) {
  Zone zone("UTC0");
  EXPECT_STREQ(Format({120000000, kJuly}).Text(), "2025-07-01 12:34:56.12");
  EXPECT_STREQ(Format({1, kJuly}).Text(), "2025-07-01 12:34:56.000000001");
  EXPECT_STREQ(Format({100000000, kJuly}).Text(), "2025-07-01 12:34:56.1");
}

TEST(FormatTime, NoDateHasNoFraction) {
  Zone zone("UTC0");
  EXPECT_STREQ(Format(FileTime::None()).Text(), "2106-02-07  6:28:15");
}
