// The locale's ways of writing numbers and dates.
#include "config/values/locale_format.h"

#include <langinfo.h>

wchar_t ThousandsSeparator = L',';
Estring DateFormat = "%02d/%02d/%02d";
int DateOrder = kDateMonthFirst;
char DateSeparator = '/';

namespace {

constexpr char kUsualSeparator = '/';

// The locale must not decide here: a byte of a UTF-8 sequence is no letter.
bool IsLetter(char ch) { return (ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z'); }
bool IsDigit(char ch) { return ch >= '0' && ch <= '9'; }
bool IsPrintable(char ch) { return ch >= ' ' && ch <= '~'; }

int OrderOf(const Estring& letters) {
  if (letters == "mdy") return kDateMonthFirst;
  return letters == "dmy" ? kDateDayFirst : kDateYearFirst;
}

}  // namespace

DateLayout ReadDateLayout(const char* format) {
  Estring letters;
  char separator = 0;
  for (; *format != 0; ++format) {
    if (IsLetter(*format)) {
      letters += *format;
    } else if (separator == 0 && !IsDigit(*format) && *format != '%') {
      separator = *format;
    }
  }
  return {OrderOf(letters), IsPrintable(separator) ? separator : kUsualSeparator};
}

// The result is a printf format, in which "%" has to be doubled.
Estring DateFormatWith(char separator) {
  Estring between;
  if (separator == '%') between += '%';
  between += separator;
  return "%02d" + between + "%02d" + between + "%02d";
}

wchar_t ReadThousandsSeparator(const char* utf8) {
  const Westring text(utf8);
  return text.IsEmpty() ? L',' : text[0];
}

void ReadLocaleFormats() {
  ThousandsSeparator = ReadThousandsSeparator(nl_langinfo(THOUSEP));
  const DateLayout layout = ReadDateLayout(nl_langinfo(D_FMT));
  DateOrder = layout.order;
  DateSeparator = layout.separator;
  DateFormat = DateFormatWith(layout.separator);
}
