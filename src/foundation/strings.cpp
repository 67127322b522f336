// The buffer of the two string classes with its growth rules, construction,
// and the way from code points to UTF-8 and back.
#include "foundation/strings.h"

#include <algorithm>
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <cwchar>
#include <functional>
#include <limits>
#include <string>

#include "foundation/code_pages.h"

namespace {

// The longest text whose capacity, terminator included, still is an int.
constexpr int kMaxLength = std::numeric_limits<int32_t>::max() - 1;

template <class Char>
int ScanLength(const Char* text) {
  return static_cast<int>(std::min<size_t>(std::char_traits<Char>::length(text), kMaxLength));
}

}  // namespace

// ---- TextBuffer ------------------------------------------------------------

template <class Char>
void TextBuffer<Char>::Replace(int64_t elements) {
  Char* const fresh = new Char[elements];
  if (!IsInline()) delete[] p;
  p = fresh;
  capacity = static_cast<int32_t>(elements);
  p[capacity - 1] = 0;
}

template <class Char>
void TextBuffer<Char>::Reserve(int n) {
  if (capacity <= n) Replace(std::min(n, kMaxLength) + 1);
  p[0] = 0;
}

template <class Char>
void TextBuffer<Char>::Enlarge(int n) {
  const int64_t wanted = int64_t{n} + n / 4 + 1;
  const auto grown = static_cast<int32_t>(std::min<int64_t>(wanted, kMaxLength + 1));
  Char* const fresh = new Char[grown];
  std::char_traits<Char>::copy(fresh, p, capacity);
  if (!IsInline()) delete[] p;
  p = fresh;
  capacity = grown;
  p[capacity - 1] = 0;
}

template <class Char>
void TextBuffer<Char>::AssignText(const Char* text) {
  AssignText(text, text ? ScanLength(text) : 0);
}

// A text inside this buffer fits it, so such a text is moved within it and
// never read after a release.
template <class Char>
void TextBuffer<Char>::AssignText(const Char* text, int n) {
  const int length = text ? std::clamp(n, 0, kMaxLength) : 0;
  if (capacity <= length) Replace(int64_t{length} + 1);
  if (length > 0) std::char_traits<Char>::move(p, text, length);
  p[length] = 0;
}

// The text may be this string's own; then it is found again after a growth.
template <class Char>
void TextBuffer<Char>::AppendText(const Char* text) {
  if (!text) return;
  const int old = ScanLength(p);
  const int added = std::min(ScanLength(text), kMaxLength - old);
  const bool own = std::greater_equal<>()(text, p) && std::less<>()(text, p + capacity);
  const ptrdiff_t offset = own ? text - p : 0;
  if (Grow(old + added) && own) text = p + offset;
  std::char_traits<Char>::move(p + old, text, added);
  p[old + added] = 0;
}

template <class Char>
void TextBuffer<Char>::AppendElement(Char ch) {
  const int old = ScanLength(p);
  if (old == kMaxLength) return;
  Grow(old + 1);
  p[old] = ch;
  p[old + 1] = 0;
}

// A larger heap buffer changes hands. Any other text is copied, so that no
// buffer shrinks; it fits, so that nothing is allocated.
template <class Char>
void TextBuffer<Char>::Take(TextBuffer& other) noexcept {
  if (this == &other) return;
  if (other.IsInline() || other.capacity <= capacity) {
    AssignText(other.p);
  } else {
    if (!IsInline()) delete[] p;
    p = other.p;
    capacity = other.capacity;
    other.p = other.inlineBuffer;
    other.capacity = kInlineElements;
  }
  other.p[0] = 0;
}

template class TextBuffer<char>;
template class TextBuffer<wchar_t>;

// ---- Estring ---------------------------------------------------------------

Estring& Estring::operator=(const char* text) {
  AssignText(text);
  return *this;
}

Estring& Estring::operator=(const Estring& other) {
  AssignText(other.p);
  return *this;
}

Estring& Estring::operator=(Estring&& other) noexcept {
  Take(other);
  return *this;
}

Estring& Estring::operator+=(char ch) {
  AppendElement(ch);
  return *this;
}

Estring& Estring::operator+=(const char* text) {
  AppendText(text);
  return *this;
}

Estring& Estring::operator+=(const Estring& text) {
  AppendText(text.p);
  return *this;
}

Estring Estring::Reserved(int n) {
  Estring s;
  s.Reserve(n);
  return s;
}

Estring Estring::FromLong(long value) { return Format("%ld", value); }

Estring Estring::Replicate(char ch, int n) {
  const int length = std::clamp(n, 0, kMaxLength);
  Estring s = Reserved(length);
  memset(s.p, ch, length);
  s.p[length] = 0;
  return s;
}

Estring Estring::Format(const char* format, ...) {
  char text[1024];
  va_list arguments;
  va_start(arguments, format);
  const int length = vsnprintf(text, sizeof text, format, arguments);
  va_end(arguments);
  return length < 0 ? Estring() : Estring(text);
}

Estring Estring::FromField(const char* buffer, int n) {
  Estring s;
  s.AssignText(buffer, n);
  return RTrim(s);
}

// The column leaves out the tab itself, so a tab fills up to one short of the
// next stop.
Estring Estring::ExpandTabs(const char* text, int tabSize) {
  Estring s;
  if (!text) return s;
  const int size = std::max(tabSize, 1);
  int column = 0;
  for (; *text; text++) {
    const bool tab = *text == '\t';
    const int width = std::min(tab ? size - 1 - column % size : 1, kMaxLength - column);
    s.Grow(column + width);
    memset(s.p + column, tab ? ' ' : *text, width);
    column += width;
  }
  s.p[column] = 0;
  return s;
}

// ---- Westring --------------------------------------------------------------

Westring::Westring(const char* utf8) { FromUtf8(utf8); }

Westring::Westring(const Estring& bytes) {
  const int length = Length(bytes);
  Reserve(length);
  for (int i = 0; i <= length; i++) p[i] = static_cast<unsigned char>(bytes.Text()[i]);
}

Westring::Westring(const char* bytes, int codePage) { DecodeCodePage(bytes, codePage, *this); }

Westring& Westring::operator=(const wchar_t* text) {
  AssignText(text);
  return *this;
}

Westring& Westring::operator=(const Westring& other) {
  AssignText(other.p);
  return *this;
}

Westring& Westring::operator=(Westring&& other) noexcept {
  Take(other);
  return *this;
}

Westring& Westring::operator+=(wchar_t ch) {
  AppendElement(ch);
  return *this;
}

Westring& Westring::operator+=(char ch) {
  AppendElement(static_cast<signed char>(ch));
  return *this;
}

Westring& Westring::operator+=(const wchar_t* text) {
  AppendText(text);
  return *this;
}

Westring& Westring::operator+=(const Westring& text) {
  AppendText(text.p);
  return *this;
}

Westring Westring::Reserved(int n) {
  Westring s;
  s.Reserve(n);
  return s;
}

Westring Westring::Replicate(wchar_t ch, int n) {
  const int length = std::clamp(n, 0, kMaxLength);
  Westring s = Reserved(length);
  wmemset(s.p, ch, length);
  s.p[length] = 0;
  return s;
}

// ---- length ----------------------------------------------------------------

int Length(const Estring& s) { return ScanLength(s.Text()); }
int Length(const Westring& s) { return ScanLength(s.Text()); }

// ---- UTF-8 -----------------------------------------------------------------

namespace {

bool IsContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

// How many bytes follow the lead byte; -1 if it is none.
int ContinuationCount(unsigned char lead) {
  if ((lead & 0xE0) == 0xC0) return 1;
  if ((lead & 0xF0) == 0xE0) return 2;
  if ((lead & 0xF8) == 0xF0) return 3;
  return -1;
}

struct DecodedUnit {
  wchar_t element;
  int bytes;
  bool valid;
};

// One unit from a byte of 0x80 or more. The terminator is no continuation, so
// no byte behind it is read.
DecodedUnit DecodeUnit(const unsigned char* bytes) {
  const DecodedUnit invalid{static_cast<wchar_t>(bytes[0]), 1, false};
  const int following = ContinuationCount(bytes[0]);
  if (following < 0) return invalid;
  uint32_t value = bytes[0] & (0x3F >> following);
  for (int i = 1; i <= following; i++) {
    if (!IsContinuation(bytes[i])) return invalid;
    value = value << 6 | (bytes[i] & 0x3F);
  }
  if (value == 0) return {-1, following + 1, false};
  return {static_cast<wchar_t>(value), following + 1, true};
}

// Negative elements are bytes that never were text: they go out as they are.
int EncodeUnit(wchar_t element, char* out) {
  const auto tail = [element](int shift) { return static_cast<char>(0x80 | (element >> shift & 0x3F)); };
  if (element < 0x80) {
    out[0] = static_cast<char>(element);
    return 1;
  }
  if (element < 0x800) {
    out[0] = static_cast<char>(0xC0 | element >> 6);
    out[1] = tail(0);
    return 2;
  }
  if (element < 0x10000) {
    out[0] = static_cast<char>(0xE0 | element >> 12);
    out[1] = tail(6);
    out[2] = tail(0);
    return 3;
  }
  out[0] = static_cast<char>(0xF0 | (element >> 18 & 7));
  out[1] = tail(12);
  out[2] = tail(6);
  out[3] = tail(0);
  return 4;
}

}  // namespace

bool Westring::FromUtf8(const char* utf8) {
  bool valid = true;
  int length = 0;
  auto bytes = reinterpret_cast<const unsigned char*>(utf8 ? utf8 : "");
  while (*bytes && length < kMaxLength) {
    const DecodedUnit unit = *bytes < 0x80 ? DecodedUnit{*bytes, 1, true} : DecodeUnit(bytes);
    Grow(length + 1);
    p[length++] = unit.element;
    bytes += unit.bytes;
    valid = valid && unit.valid;
  }
  p[length] = 0;
  return valid;
}

Estring ToUtf8(const wchar_t* text) {
  constexpr int kMaxUnit = 4;
  if (!text) return Estring();
  const int elements = ScanLength(text);
  const int64_t reserved = int64_t{elements} + elements / 4;
  Estring result = Estring::Reserved(static_cast<int>(std::min<int64_t>(reserved, kMaxLength)));
  int length = 0;
  for (; *text && length <= kMaxLength - kMaxUnit; text++) {
    result.Grow(length + kMaxUnit);
    length += EncodeUnit(*text, result.Text() + length);
  }
  result.Text()[length] = 0;
  return result;
}

Estring ToUtf8(const Westring& s) { return ToUtf8(s.Text()); }

Estring ToNarrow(const Westring& s) {
  const int length = Length(s);
  Estring result = Estring::Reserved(length);
  for (int i = 0; i <= length; i++) result.Text()[i] = static_cast<char>(s.Text()[i]);
  return result;
}
