// File times; see file_time.h. The calendar is the C library's, in local time.
#include "foundation/file_time.h"

#include <sys/time.h>

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

constexpr uint32_t kLastSecond = 0xFFFFFFFEu;  // the one above means no date
constexpr uint32_t kNanosecondsPerSecond = 1000000000u;

// FAT dates count from this year in seven bits.
constexpr int kFirstDosYear = 1980, kLastDosYear = kFirstDosYear + 127;

// Keeps the calendar's arithmetic inside an int, whatever the parts say.
int Bounded(int32_t value) { return std::clamp<int32_t>(value, -1000000, 1000000); }

}  // namespace

FileTime FromTimespec(const timespec& moment) {
  if (moment.tv_sec < 0) return {0, 0};
  if (moment.tv_sec > static_cast<time_t>(kLastSecond)) return {0, kLastSecond};
  return {static_cast<uint32_t>(moment.tv_nsec), static_cast<uint32_t>(moment.tv_sec)};
}

FileTime Now() {
  timeval now{};
  gettimeofday(&now, nullptr);
  return FromTimespec({now.tv_sec, now.tv_usec * 1000});
}

FileTime FromParts(const FileTimeParts& parts) {
  struct tm calendar {};
  calendar.tm_year = Bounded(parts.year) - 1900;
  calendar.tm_mon = Bounded(parts.month) - 1;
  calendar.tm_mday = Bounded(parts.day);
  calendar.tm_hour = Bounded(parts.hour);
  calendar.tm_min = Bounded(parts.minute);
  calendar.tm_sec = Bounded(parts.second);
  calendar.tm_isdst = -1;
  return FromTimespec({mktime(&calendar), parts.nanoseconds});
}

FileTimeParts ToParts(const FileTime& time) {
  const time_t seconds = static_cast<time_t>(time.seconds);
  struct tm calendar {};
  localtime_r(&seconds, &calendar);
  return {calendar.tm_year + 1900,
          calendar.tm_mon + 1,
          calendar.tm_mday,
          calendar.tm_hour,
          calendar.tm_min,
          calendar.tm_sec,
          static_cast<int32_t>(time.nanoseconds)};
}

FileTime FromDos(uint16_t date, uint16_t time) {
  FileTimeParts parts;
  parts.day = date & 31;
  parts.month = date >> 5 & 15;
  parts.year = kFirstDosYear + (date >> 9);
  parts.second = (time & 31) * 2;
  parts.minute = time >> 5 & 63;
  parts.hour = time >> 11;
  return FromParts(parts);
}

void ToDos(const FileTime& moment, uint16_t& date, uint16_t& time) {
  FileTimeParts parts = ToParts(moment);
  // What the format can't say becomes the nearest that it can.
  if (parts.year < kFirstDosYear) parts = {kFirstDosYear, 1, 1, 0, 0, 0, 0};
  if (parts.year > kLastDosYear) parts = {kLastDosYear, 12, 31, 23, 59, 58, 0};
  date = static_cast<uint16_t>(parts.day | parts.month << 5 | (parts.year - kFirstDosYear) << 9);
  time = static_cast<uint16_t>(parts.second / 2 | parts.minute << 5 | parts.hour << 11);
}

Estring Format(const FileTime& time) {
  const FileTimeParts parts = ToParts(time);
  char text[80];
  int length = snprintf(text, sizeof text, "%04d-%02d-%02d %2d:%02d:%02d", parts.year, parts.month, parts.day,
                        parts.hour, parts.minute, parts.second);
  if (time.nanoseconds > 0 && time.nanoseconds < kNanosecondsPerSecond) {
    length += snprintf(text + length, sizeof text - static_cast<size_t>(length), ".%09d", parts.nanoseconds);
    while (text[length - 1] == '0') text[--length] = 0;
  }
  return Estring(text);
}

double NowSeconds() {
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}
