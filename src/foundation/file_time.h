// File times: a moment in the program's own form, calendar parts, and the FAT
// directory form.
#pragma once

#include <cstdint>
#include <ctime>

#include "foundation/strings.h"

// Compares as one 64-bit number on a little-endian machine.
struct FileTime {
  uint32_t nanoseconds = 0;
  uint32_t seconds = 0;  // since the epoch

  uint64_t Order() const { return uint64_t{seconds} << 32 | nanoseconds; }
  bool operator==(const FileTime&) const = default;

  // No date: drawing shows blanks.
  static constexpr FileTime None() { return {0xFFFFFFFFu, 0xFFFFFFFFu}; }
};

struct FileTimeParts {
  int32_t year = 0, month = 0 /* 1 to 12 */, day = 0, hour = 0, minute = 0, second = 0, nanoseconds = 0;
};

// The nearest moment that the form can hold, between 1970 and 2106.
FileTime FromTimespec(const timespec& moment);
FileTime Now();
FileTime FromParts(const FileTimeParts& parts);  // local time
FileTimeParts ToParts(const FileTime& time);     // local time
// The FAT form, local time. Moments outside 1980 to 2107 become the nearest inside.
FileTime FromDos(uint16_t date, uint16_t time);
void ToDos(const FileTime& moment, uint16_t& date, uint16_t& time);
// "%04d-%02d-%02d %2d:%02d:%02d", then ".%09d" without its trailing zeros
// where there are nanoseconds.
Estring Format(const FileTime& time);
double NowSeconds();  // CLOCK_REALTIME
