// The first word of a command line. The shell reads the line itself; we only
// have to know which program it begins with.
#include <algorithm>

#include "shell/spawn.h"

int FindUnescaped(const Westring& text, wchar_t character) {
  for (int i = 0; text[i] != 0; ++i) {
    if (text[i] == character) return i;
    if (text[i] == L'\\' && text[i + 1] != 0) ++i;
  }
  return -1;
}

Westring Unescape(const Westring& text) {
  Westring plain;
  for (const wchar_t* p = text.Text(); *p; ++p) {
    if (*p == L'\\' && p[1]) ++p;
    plain += *p;
  }
  return plain;
}

namespace {

// Of two places, -1 for none, the first one.
int FirstOf(int a, int b) { return a < 0 || b < 0 ? std::max(a, b) : std::min(a, b); }

// Of the character at index i, which may be the end.
bool IsEscaped(const Westring& text, int i) {
  int first = i;
  while (first > 0 && text[first - 1] == L'\\') --first;
  return (i - first) % 2 != 0;
}

// A file's name may end in a blank, which is escaped.
Westring WithoutBlanksBehind(const Westring& text) {
  const Westring cut = RTrim(text);
  const int length = Length(cut);
  return IsEscaped(cut, length) ? Left(text, length + 1) : cut;
}

bool EndsInAmpersand(const Westring& text) {
  const int last = Length(text) - 1;
  return last >= 0 && text[last] == L'&' && !IsEscaped(text, last);
}

}  // namespace

CommandWords SplitCommand(const Westring& text) {
  CommandWords words;
  words.command = text;
  if (text[0] == L'#') {
    words.forceTerminal = true;
    words.command = Mid(text, 1);
  } else if (EndsInAmpersand(text)) {
    words.background = true;
    words.command = WithoutBlanksBehind(DropRight(text, 1));
  }
  words.program = Unescape(words.command);
  const int split = FirstOf(FindUnescaped(words.command, L' '), FindUnescaped(words.command, L'|'));
  if (split > 0) {
    words.program = Unescape(Left(words.command, split));
    words.arguments = Trim(Mid(words.command, split + 1));
  }
  return words;
}
