// How the locale writes numbers and dates; filled at start.
#pragma once

#include "foundation/strings.h"

enum { kDateMonthFirst = 0, kDateDayFirst = 1, kDateYearFirst = 2 };

extern wchar_t ThousandsSeparator;  // ',' before the locale is known
extern Estring DateFormat;          // printf format of three numbers, "%02d/%02d/%02d"
extern int DateOrder;
extern char DateSeparator;

// Reads them from the locale in force.
void ReadLocaleFormats();

struct DateLayout {
  int order;
  char separator;
};

// What a strftime format of a date tells: the order of its letters, and the
// first character that is no letter, digit or "%". "/" where there is none, or
// one that is not a printable character of ASCII.
DateLayout ReadDateLayout(const char* format);
Estring DateFormatWith(char separator);
// The first character of the text, a comma if it is empty.
wchar_t ReadThousandsSeparator(const char* utf8);
