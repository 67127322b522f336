// Parts, padding, search, replacement, concatenation and comparison of the two
// string classes, and the fields of comma-separated lists.
#include <strings.h>

#include <algorithm>
#include <cctype>
#include <climits>
#include <cstring>
#include <cwchar>
#include <cwctype>
#include <string>
#include <utility>

#include "foundation/fold.h"
#include "foundation/strings.h"

namespace {

bool IsSpace(char ch) { return isspace(static_cast<unsigned char>(ch)) != 0; }
bool IsSpace(wchar_t ch) { return iswspace(static_cast<wint_t>(ch)) != 0; }

template <class String>
using ElementOf = std::remove_cvref_t<decltype(*std::declval<String>().Text())>;

template <class String>
String Slice(const String& s, int start, int count) {
  String part;
  part.Assign(s.Text() + start, count);
  return part;
}

template <class String>
String LeftOf(const String& s, int n) {
  return Slice(s, 0, std::clamp(n, 0, Length(s)));
}

template <class String>
String RightOf(const String& s, int n) {
  const int length = Length(s);
  const int count = std::clamp(n, 0, length);
  return Slice(s, length - count, count);
}

template <class String>
String MidOf(const String& s, int start, int count) {
  const int length = Length(s);
  const int from = std::clamp(start, 0, length);
  const int rest = length - from;
  return Slice(s, from, count == 0 ? rest : std::clamp(count, 0, rest));
}

template <class String>
String DropRightOf(const String& s, int n) {
  const int length = Length(s);
  return Slice(s, 0, length - std::clamp(n, 0, length));
}

template <class String>
String TrimOf(const String& s, bool left, bool right) {
  const auto* const text = s.Text();
  int start = 0;
  int end = Length(s);
  while (left && start < end && IsSpace(text[start])) start++;
  while (right && end > start && IsSpace(text[end - 1])) end--;
  return Slice(s, start, end - start);
}

// Exactly width elements; the text goes to the left or to the right.
template <class String>
String JustOf(const String& s, int width, ElementOf<String> fill, bool left) {
  const int length = Length(s);
  if (length >= width) return left ? LeftOf(s, width) : RightOf(s, width);
  const String padding = String::Replicate(fill, width - length);
  return left ? s + padding : padding + s;
}

template <class String>
String WithoutTrailingSlash(const String& s) {
  const int length = Length(s);
  const auto* const text = s.Text();
  if (length == 0 || text[length - 1] != '/') return s;
  if (length <= 3 && text[1] == '/') return s;
  return Slice(s, 0, length - 1);
}

template <class String>
String WithTrailingSlash(const String& s) {
  const int length = Length(s);
  String result = s;
  if (length > 0 && s.Text()[length - 1] != '/') result += ElementOf<String>('/');
  return result;
}

template <class String>
String Joined(const String& head, const ElementOf<String>* tail) {
  using Traits = std::char_traits<ElementOf<String>>;
  const size_t length = Length(head) + (tail ? Traits::length(tail) : 0);
  String result = String::Reserved(static_cast<int>(std::min<size_t>(length, INT_MAX - 1)));
  result = head;
  result += tail;
  return result;
}

// A found place as an index. The terminator is no part of a text.
template <class Char>
int IndexOf(const Char* place, const Char* text, Char ch) {
  return place && ch != 0 ? static_cast<int>(place - text) : -1;
}

template <class Char>
int UnquotedIndex(const Char* text, Char ch, Char quote) {
  bool quoted = false;
  for (int i = 0; text[i]; i++) {
    if (text[i] == quote) {
      quoted = !quoted;
    } else if (!quoted && text[i] == ch) {
      return i;
    }
  }
  return -1;
}

int LastSeparator(const Westring& s) {
  int i = Length(s) - 1;
  while (i >= 0 && s.Text()[i] != L'/' && s.Text()[i] != L'\\') i--;
  return i;
}

// Replaces the first place or all. The result is built apart, so from and to
// may point into s. An empty from has no place.
bool Replace(Westring& s, const wchar_t* from, const wchar_t* to, bool all) {
  if (!from || !*from) return false;
  const size_t step = wcslen(from);
  const wchar_t* rest = s.Text();
  std::wstring built;
  while (const wchar_t* const place = wcsstr(rest, from)) {
    built.append(rest, place);
    if (to) built += to;
    rest = place + step;
    if (!all) break;
  }
  if (rest == s.Text()) return false;
  built += rest;
  s = built.c_str();
  return true;
}

}  // namespace

// ---- parts and padding -----------------------------------------------------

Estring Left(const Estring& s, int n) { return LeftOf(s, n); }
Westring Left(const Westring& s, int n) { return LeftOf(s, n); }
Estring Right(const Estring& s, int n) { return RightOf(s, n); }
Westring Right(const Westring& s, int n) { return RightOf(s, n); }
Estring Mid(const Estring& s, int start, int count) { return MidOf(s, start, count); }
Westring Mid(const Westring& s, int start, int count) { return MidOf(s, start, count); }
Estring DropRight(const Estring& s, int n) { return DropRightOf(s, n); }
Westring DropRight(const Westring& s, int n) { return DropRightOf(s, n); }
Estring LTrim(const Estring& s) { return TrimOf(s, true, false); }
Westring LTrim(const Westring& s) { return TrimOf(s, true, false); }
Estring RTrim(const Estring& s) { return TrimOf(s, false, true); }
Westring RTrim(const Westring& s) { return TrimOf(s, false, true); }
Estring Trim(const Estring& s) { return TrimOf(s, true, true); }
Westring Trim(const Westring& s) { return TrimOf(s, true, true); }
Estring LJust(const Estring& s, int width, char fill) { return JustOf(s, width, fill, true); }
Westring LJust(const Westring& s, int width, wchar_t fill) { return JustOf(s, width, fill, true); }
Estring RJust(const Estring& s, int width, char fill) { return JustOf(s, width, fill, false); }
Westring RJust(const Westring& s, int width, wchar_t fill) { return JustOf(s, width, fill, false); }

Estring RemoveTrailingSlash(const Estring& s) { return WithoutTrailingSlash(s); }
Westring RemoveTrailingSlash(const Westring& s) { return WithoutTrailingSlash(s); }
Estring AddTrailingSlash(const Estring& s) { return WithTrailingSlash(s); }
Westring AddTrailingSlash(const Westring& s) { return WithTrailingSlash(s); }

Westring Lower(const Westring& s) {
  Westring result = s;
  for (wchar_t* at = result.Text(); *at; at++) *at = static_cast<wchar_t>(towlower(static_cast<wint_t>(*at)));
  return result;
}

Westring Fold(const Westring& s) {
  Westring result = s;
  FoldInPlace(result.Text());
  return result;
}

Westring PathPart(const Westring& s) {
  const int i = LastSeparator(s);
  if (i < 0) return Westring();
  const bool driveRoot = i == 2 && s.Text()[1] == L':';
  return Left(s, driveRoot ? 3 : i);
}

Westring NamePart(const Westring& s) { return Mid(s, LastSeparator(s) + 1); }

// ---- search ----------------------------------------------------------------

int Find(const Estring& s, char ch) { return IndexOf(strchr(s.Text(), ch), s.Text(), ch); }
int Find(const Westring& s, wchar_t ch) { return IndexOf(wcschr(s.Text(), ch), s.Text(), ch); }
int RFind(const Estring& s, char ch) { return IndexOf(strrchr(s.Text(), ch), s.Text(), ch); }
int RFind(const Westring& s, wchar_t ch) { return IndexOf(wcsrchr(s.Text(), ch), s.Text(), ch); }
int FindUnquoted(const Estring& s, char ch, char quote) { return UnquotedIndex(s.Text(), ch, quote); }
int FindUnquoted(const Westring& s, wchar_t ch) { return UnquotedIndex(s.Text(), ch, L'"'); }

int FindNth(const Westring& s, wchar_t ch, int n) {
  if (n <= 0) return -1;
  for (int i = 0; s.Text()[i]; i++) {
    if (s.Text()[i] == ch && --n == 0) return i;
  }
  return -1;
}

int Find(const Westring& s, const wchar_t* text, int from) {
  const int start = std::max(from, 0);
  if (!text || start > Length(s)) return -1;
  const wchar_t* const place = wcsstr(s.Text() + start, text);
  return place ? static_cast<int>(place - s.Text()) : -1;
}

int FindNoCase(const Westring& s, const wchar_t* text) {
  return text ? Find(Fold(s), Fold(Westring(text)).Text()) : -1;
}

bool ReplaceFirst(Westring& s, const wchar_t* from, const wchar_t* to) { return Replace(s, from, to, false); }
bool ReplaceAll(Westring& s, const wchar_t* from, const wchar_t* to) { return Replace(s, from, to, true); }

// ---- concatenation ---------------------------------------------------------

Estring operator+(const Estring& a, const Estring& b) { return Joined(a, b.Text()); }
Estring operator+(const Estring& a, const char* b) { return Joined(a, b); }
Estring operator+(const char* a, const Estring& b) { return Joined(Estring(a), b.Text()); }
Westring operator+(const Westring& a, const Westring& b) { return Joined(a, b.Text()); }
Westring operator+(const Westring& a, const wchar_t* b) { return Joined(a, b); }
Westring operator+(const wchar_t* a, const Westring& b) { return Joined(Westring(a), b.Text()); }

// ---- comparison ------------------------------------------------------------

int Compare(const char* a, const char* b) { return strcasecmp(a ? a : "", b ? b : ""); }
int Compare(const wchar_t* a, const wchar_t* b) { return wcscasecmp(a ? a : L"", b ? b : L""); }

// ---- fields ----------------------------------------------------------------

namespace {

bool IsDigit(char ch) { return ch >= '0' && ch <= '9'; }

// The character that a "\" in front of text stands for; text goes on behind it.
// Zero if the text ends here.
char EscapedCharacter(const char*& text) {
  if (!IsDigit(*text)) return *text ? *text++ : '\0';
  int value = 0;
  for (int digits = 0; digits < 3 && IsDigit(*text); digits++) value = value * 10 + (*text++ - '0');
  return static_cast<char>(value);
}

}  // namespace

Estring NextField(Estring& text) {
  std::string field;
  const char* in = text.Text();
  const char* behindClosingQuote = nullptr;
  bool quoted = false;
  while (*in && (quoted || *in != ',')) {
    const char ch = *in++;
    char out = ch;
    if (ch == '"') {
      out = !quoted && in - 1 == behindClosingQuote ? '"' : '\0';
      if (quoted) behindClosingQuote = in;
      quoted = !quoted;
    } else if (ch == '\\') {
      out = EscapedCharacter(in);
    } else if (ch == '\n') {
      out = '\0';
    }
    // A field holds no zero, not even from "\0".
    if (out) field += out;
  }
  if (*in == ',') in++;
  text = in;  // the tail of its own buffer
  return Estring(field.c_str());
}
