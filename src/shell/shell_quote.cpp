// Protection of text that a shell will read.
#include "shell/shell_quote.h"

#include <cwchar>

namespace {
const wchar_t kSpecial[] = L" !$~`[]{}()\\'\"<>&|";
}

Westring ShellQuote(const Westring& text) {
  Westring result;
  for (const wchar_t* p = text.Text(); *p; ++p) {
    if (wcschr(kSpecial, *p)) result += L'\\';
    result += *p;
  }
  return result;
}

Westring Unquote(const Westring& text) {
  Westring result;
  for (const wchar_t* p = text.Text(); *p; ++p) {
    if (*p == L'\\' && p[1]) ++p;
    result += *p;
  }
  return result;
}
