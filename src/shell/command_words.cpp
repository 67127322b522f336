// The first word of a command line. The shell reads the line itself; we only
// have to know which program it begins with.
#include <algorithm>
#include <cwchar>

#include "shell/shell_quote.h"
#include "shell/spawn.h"

int FindUnescaped(const Westring& text, wchar_t character) {
  for (int i = 0; text[i] != 0; ++i) {
    if (text[i] == character) return i;
    if (text[i] == L'\\' && text[i + 1] != 0) ++i;
  }
  return -1;
}

// Most words with escapes in them are names that ShellQuote has protected.
Westring Unescape(const Westring& text) { return Unquote(text); }

namespace {

// Around a command these say nothing. ShellQuote protects them all; a wider blank
// is a letter to the shell, and to us.
constexpr wchar_t kBlanks[] = L" \t\n\v\f\r";

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
  int end = Length(text);
  while (end > 0 && wcschr(kBlanks, text[end - 1]) && !IsEscaped(text, end - 1)) --end;
  return Left(text, end);
}

bool EndsInAmpersand(const Westring& text) {
  const int last = Length(text) - 1;
  return last >= 0 && text[last] == L'&' && !IsEscaped(text, last);
}

}  // namespace

Westring TrimCommand(const Westring& text) {
  return WithoutBlanksBehind(text.Text() + wcsspn(text.Text(), kBlanks));
}

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
    words.arguments = TrimCommand(Mid(words.command, split + 1));
  }
  return words;
}
