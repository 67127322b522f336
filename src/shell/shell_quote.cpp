// Protection of text that a shell will read.
#include "shell/shell_quote.h"

#include <cwchar>

namespace {

constexpr wchar_t kQuotedNewline[] = L"'\n'";
constexpr int kQuotedNewlineLength = 3;

// What divides, expands, redirects and quotes; in the second row what does so only
// at some places of a line or for some shells.
constexpr wchar_t kSpecial[] =
    L" !$~`[]{}()\\'\"<>&|"
    L";*?#=^";

constexpr wchar_t kDelete = 127;

bool IsControl(wchar_t c) { return (c > 0 && c < L' ') || c == kDelete; }

}  // namespace

Westring ShellQuote(const Westring& text) {
  Westring result = Westring::Reserved(kQuotedNewlineLength * Length(text));
  wchar_t* out = result.Text();
  for (const wchar_t* p = text.Text(); *p; ++p) {
    if (*p == L'\n') {
      out = wmemcpy(out, kQuotedNewline, kQuotedNewlineLength) + kQuotedNewlineLength;
      continue;
    }
    if (IsControl(*p) || wcschr(kSpecial, *p)) *out++ = L'\\';
    *out++ = *p;
  }
  *out = 0;
  return result;
}

Westring Unquote(const Westring& text) {
  Westring result = Westring::Reserved(Length(text));
  wchar_t* out = result.Text();
  for (const wchar_t* p = text.Text(); *p;) {
    if (wcsncmp(p, kQuotedNewline, kQuotedNewlineLength) == 0) {
      *out++ = L'\n';
      p += kQuotedNewlineLength;
    } else {
      if (*p == L'\\' && p[1]) ++p;
      *out++ = *p++;
    }
  }
  *out = 0;
  return result;
}
