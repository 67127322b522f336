// Sizes and counts that fit a field: whole with separators, or scaled by 1024.
#include "dialogs/number_format.h"

#include <algorithm>

#include "config/values/locale_format.h"

namespace {

constexpr int kMostSizeDigits = 18;
constexpr int kMostCountDigits = 11;
constexpr int kSizeUnits = 4;   // up to T
constexpr int kCountUnits = 2;  // up to M
constexpr wchar_t kUnits[] = L"KMGT";

// A separator takes every fourth place of a field.
int DigitsThatFit(int width, int most) { return std::clamp(width - width / 4, 0, most); }

uint64_t PowerOfTen(int exponent) {
  uint64_t power = 1;
  while (exponent-- > 0) power *= 10;
  return power;
}

// unit 0 is none.
Westring Grouped(uint64_t value, wchar_t unit) {
  wchar_t text[32];  // 20 digits, 6 separators, the unit and the end
  wchar_t* p = text + 31;
  *p = 0;
  if (unit != 0) *--p = unit;
  for (int digit = 0; digit == 0 || value != 0; ++digit, value /= 10) {
    if (digit > 0 && digit % 3 == 0) *--p = ThousandsSeparator;
    *--p = static_cast<wchar_t>(L'0' + value % 10);
  }
  return p;
}

// The first of units in which value is not over 10 to the power digits; the
// last one has to do for all that is larger.
Westring Scaled(uint64_t value, int digits, int units) {
  const uint64_t limit = PowerOfTen(digits);
  int unit = 1;
  while (unit < units && value >> (10 * unit) > limit) ++unit;
  return Grouped(value >> (10 * unit), kUnits[unit - 1]);
}

}  // namespace

Westring FormatSize(uint64_t value, int width) {
  const int digits = DigitsThatFit(width, kMostSizeDigits);
  if (value < PowerOfTen(digits)) return Grouped(value, 0);
  // The unit takes a place that only a multiple of four has to spare.
  return Scaled(value, width % 4 == 0 ? digits : std::max(digits - 1, 0), kSizeUnits);
}

Westring FormatCount(uint64_t value, int width) {
  const int digits = DigitsThatFit(width, kMostCountDigits);
  if (value < PowerOfTen(digits)) return Grouped(value, 0);
  return Scaled(value, digits, kCountUnits);
}
