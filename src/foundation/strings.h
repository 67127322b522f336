// The two value strings of the program: Estring (bytes) and Westring (Unicode
// code points). Both keep up to 20 elements inside the object, own their
// buffer alone, end in a zero and find their length by scanning, so a caller
// may shorten one by writing a zero through Text().
// Comparison operators ignore case; use strcmp or wcscmp on Text() for an
// exact test.
#pragma once

#include <cstdint>

// What both strings share: the buffer and its two growth rules.
template <class Char>
class TextBuffer {
 public:
  static constexpr int kInlineElements = 21;

  // The characters, never null. Writing is allowed within Capacity().
  const Char* Text() const { return p; }
  Char* Text() { return p; }

  // Elements that Text() can hold, the terminating zero included.
  int Capacity() const { return capacity; }
  bool IsInline() const { return p == inlineBuffer; }
  bool IsEmpty() const { return *p == 0; }

  // An index at or past Capacity() reaches the last element of the buffer, so
  // a wild index stays inside. A negative index is not checked.
  Char& operator[](int i) { return p[i >= capacity ? capacity - 1 : i]; }
  const Char& operator[](int i) const { return p[i >= capacity ? capacity - 1 : i]; }

  // Makes room for n elements and the terminator and forgets the old text;
  // allocates exactly n + 1. The text is empty afterwards.
  void Reserve(int n);

  // Makes room for element index n with n / 4 to spare and keeps the text.
  // True if the buffer moved, so that pointers into it must be taken anew.
  bool Grow(int n) {
    if (capacity > n) return false;
    Enlarge(n);
    return true;
  }

 protected:
  // The last element is what a wild index reads, so it has a value as well.
  TextBuffer() : p(inlineBuffer), capacity(kInlineElements) {
    inlineBuffer[0] = 0;
    inlineBuffer[kInlineElements - 1] = 0;
  }
  TextBuffer(const TextBuffer&) = delete;
  TextBuffer& operator=(const TextBuffer&) = delete;
  ~TextBuffer() {
    if (!IsInline()) delete[] p;
  }

  void AssignText(const Char* text);         // null gives the empty string
  void AssignText(const Char* text, int n);  // exactly n elements
  void AppendText(const Char* text);
  void AppendElement(Char ch);
  void Take(TextBuffer& other) noexcept;  // leaves other empty

  Char* p;
  int32_t capacity;
  Char inlineBuffer[kInlineElements];

 private:
  void Replace(int64_t elements);  // a new buffer with nothing in it
  void Enlarge(int n);
};

extern template class TextBuffer<char>;
extern template class TextBuffer<wchar_t>;

class Estring : public TextBuffer<char> {
 public:
  Estring() = default;
  Estring(const char* text) { AssignText(text); }
  Estring(const Estring& other) : TextBuffer() { AssignText(other.p); }
  Estring(Estring&& other) noexcept : TextBuffer() { Take(other); }

  Estring& operator=(const char* text);
  Estring& operator=(const Estring& other);
  Estring& operator=(Estring&& other) noexcept;
  void Assign(const char* text, int n) { AssignText(text, n); }

  static Estring Reserved(int n);            // empty, room for n characters
  static Estring FromLong(long value);       // decimal
  static Estring Replicate(char ch, int n);  // a negative n counts as 0
  // printf formatting, cut at 1023 characters.
  static Estring Format(const char* format, ...) __attribute__((format(printf, 1, 2)));
  // A fixed-width field: n bytes, then trailing white space removed.
  static Estring FromField(const char* buffer, int n);
  // Tabs become tabSize - 1 - column % tabSize blanks, where column counts
  // every other character and the blanks but not the tab itself.
  static Estring ExpandTabs(const char* text, int tabSize);

  Estring& operator+=(char ch);
  Estring& operator+=(const char* text);  // null is ignored
  Estring& operator+=(const Estring& text);
};

class Westring : public TextBuffer<wchar_t> {
 public:
  Westring() = default;
  Westring(const wchar_t* text) { AssignText(text); }
  Westring(const wchar_t* text, int n) { AssignText(text, n); }
  Westring(const char* utf8);                 // see FromUtf8
  explicit Westring(const Estring& bytes);    // each byte is a code point 0 to 255
  Westring(const char* bytes, int codePage);  // see code_pages.h
  Westring(const Westring& other) : TextBuffer() { AssignText(other.p); }
  Westring(Westring&& other) noexcept : TextBuffer() { Take(other); }

  Westring& operator=(const wchar_t* text);
  Westring& operator=(const Westring& other);
  Westring& operator=(Westring&& other) noexcept;
  void Assign(const wchar_t* text, int n) { AssignText(text, n); }

  static Westring Reserved(int n);
  static Westring Replicate(wchar_t ch, int n);

  // Decodes UTF-8 into this string. An invalid byte is stored as a code point
  // 0x80 to 0xFF, a sequence that decodes to 0 as the element -1. Overlong
  // forms and surrogates are not checked. Returns true if all was valid.
  bool FromUtf8(const char* utf8);

  Westring& operator+=(wchar_t ch);
  Westring& operator+=(char ch);  // sign-extended; for ASCII
  Westring& operator+=(const wchar_t* text);
  Westring& operator+=(const Westring& text);
};

// ---- length, conversion ----------------------------------------------------

int Length(const Estring& s);
int Length(const Westring& s);

Estring ToUtf8(const Westring& s);  // what every system call with a path takes
Estring ToUtf8(const wchar_t* text);
Estring ToNarrow(const Westring& s);  // each element cut to 8 bits

// ---- parts and padding: all return a new string ----------------------------

Estring Left(const Estring& s, int n);
Westring Left(const Westring& s, int n);
Estring Right(const Estring& s, int n);
Westring Right(const Westring& s, int n);
// A count of 0, or past the end, takes all from start.
Estring Mid(const Estring& s, int start, int count = 0);
Westring Mid(const Westring& s, int start, int count = 0);
Estring DropRight(const Estring& s, int n);
Westring DropRight(const Westring& s, int n);
Estring LTrim(const Estring& s);
Westring LTrim(const Westring& s);
Estring RTrim(const Estring& s);
Westring RTrim(const Westring& s);
Estring Trim(const Estring& s);
Westring Trim(const Westring& s);
// Exactly width characters; a longer text keeps its head (LJust) or its tail (RJust).
Estring LJust(const Estring& s, int width, char fill = ' ');
Westring LJust(const Westring& s, int width, wchar_t fill = L' ');
Estring RJust(const Estring& s, int width, char fill = ' ');
Westring RJust(const Westring& s, int width, wchar_t fill = L' ');

// Drops one closing "/", except from a text of up to three characters whose
// second is "/", so "//" and "a/" stay. "/" becomes the empty string.
Estring RemoveTrailingSlash(const Estring& s);
Westring RemoveTrailingSlash(const Westring& s);
// Adds "/" unless there is one; the empty string stays empty.
Estring AddTrailingSlash(const Estring& s);
Westring AddTrailingSlash(const Westring& s);

Westring Lower(const Westring& s);     // towlower
Westring Fold(const Westring& s);      // fold table, to upper case
Westring PathPart(const Westring& s);  // before the last "/" or "\"; "C:/" for "C:/x"
Westring NamePart(const Westring& s);  // behind the last "/" or "\"

// ---- search: an index, or -1 -----------------------------------------------

int Find(const Estring& s, char ch);
int Find(const Westring& s, wchar_t ch);
int RFind(const Estring& s, char ch);
int RFind(const Westring& s, wchar_t ch);
// The first ch outside double quotes; a quote is never a match itself.
int FindUnquoted(const Estring& s, char ch, char quote = '"');
int FindUnquoted(const Westring& s, wchar_t ch);
int FindNth(const Westring& s, wchar_t ch, int n);  // n from 1
int Find(const Westring& s, const wchar_t* text, int from = 0);
int FindNoCase(const Westring& s, const wchar_t* text);

// Replace in place. ReplaceAll goes on behind each inserted text.
bool ReplaceFirst(Westring& s, const wchar_t* from, const wchar_t* to);
bool ReplaceAll(Westring& s, const wchar_t* from, const wchar_t* to);

// ---- concatenation ---------------------------------------------------------

Estring operator+(const Estring& a, const Estring& b);
Estring operator+(const Estring& a, const char* b);
Estring operator+(const char* a, const Estring& b);
Westring operator+(const Westring& a, const Westring& b);
Westring operator+(const Westring& a, const wchar_t* b);
Westring operator+(const wchar_t* a, const Westring& b);

// ---- comparison, without regard to case ------------------------------------

int Compare(const char* a, const char* b);  // strcasecmp
inline bool operator==(const Estring& a, const char* b) { return Compare(a.Text(), b) == 0; }
inline bool operator!=(const Estring& a, const char* b) { return Compare(a.Text(), b) != 0; }
inline bool operator<(const Estring& a, const char* b) { return Compare(a.Text(), b) < 0; }
inline bool operator<=(const Estring& a, const char* b) { return Compare(a.Text(), b) <= 0; }
inline bool operator>(const Estring& a, const char* b) { return Compare(a.Text(), b) > 0; }
inline bool operator>=(const Estring& a, const char* b) { return Compare(a.Text(), b) >= 0; }
inline bool operator==(const Estring& a, const Estring& b) { return a == b.Text(); }
inline bool operator!=(const Estring& a, const Estring& b) { return a != b.Text(); }
inline bool operator<(const Estring& a, const Estring& b) { return a < b.Text(); }
inline bool operator<=(const Estring& a, const Estring& b) { return a <= b.Text(); }
inline bool operator>(const Estring& a, const Estring& b) { return a > b.Text(); }
inline bool operator>=(const Estring& a, const Estring& b) { return a >= b.Text(); }

int Compare(const wchar_t* a, const wchar_t* b);  // wcscasecmp
inline bool operator==(const Westring& a, const wchar_t* b) { return Compare(a.Text(), b) == 0; }
inline bool operator!=(const Westring& a, const wchar_t* b) { return Compare(a.Text(), b) != 0; }
inline bool operator==(const Westring& a, const Westring& b) { return a == b.Text(); }
inline bool operator!=(const Westring& a, const Westring& b) { return a != b.Text(); }

// Removes the first comma-separated field, with its comma, from text and
// returns it. Quotes group, a doubled quote is one quote, "\" escapes a
// character or 1 to 3 decimal digits, newlines vanish.
Estring NextField(Estring& text);
