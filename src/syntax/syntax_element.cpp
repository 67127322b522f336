// Where comments, strings and states begin and end. The first character is
// looked at first: at most places of a text nothing begins.
#include "syntax/syntax_element.h"

#include <cwchar>

#include "foundation/fold.h"

namespace {

bool StandsAtAnyCase(const wchar_t* text, const wchar_t* word) {
  for (; *word; ++word, ++text)
    if (*text != *word && LowerChar(*text) != LowerChar(*word)) return false;
  return true;
}

bool StandsAtExactly(const wchar_t* text, const wchar_t* word) {
  for (; *word; ++word, ++text)
    if (*text != *word) return false;
  return true;
}

bool TakeLength(bool matches, const Westring& word, int& length) {
  if (matches) length = Length(word);
  return matches;
}

}  // namespace

bool StandsAt(const wchar_t* text, const Westring& word, bool caseSensitive) {
  if (word.IsEmpty()) return false;
  return caseSensitive ? StandsAtExactly(text, word.Text()) : StandsAtAnyCase(text, word.Text());
}

void CSyntaxLineComment::SetStart(const Estring& text) {
  Start = text;
  start = Westring(text.Text());
}

bool CSyntaxLineComment::MatchStart(const wchar_t* text, const CSyntaxElement* current, int& length) const {
  return TakeLength(StandsAt(text, start, CaseSensitive) && ValidIn(current), start, length);
}

bool CSyntaxBlock::MatchStart(const wchar_t* text, const CSyntaxElement* current, int& length) const {
  return TakeLength(StandsAt(text, Start, CaseSensitive) && ValidIn(current), Start, length);
}

bool CSyntaxBlock::MatchEnd(const wchar_t* text, int& length) const {
  return TakeLength(StandsAt(text, End, CaseSensitive), End, length);
}

bool CSyntaxLiteralString::MatchStart(const wchar_t* text, const CSyntaxElement* current, int& length) const {
  if (*text == 0 || *text != Open || !ValidIn(current)) return false;
  length = 1;
  return true;
}

bool CSyntaxLiteralString::MatchEnd(const wchar_t* text, int& length) const {
  if (*text == 0 || *text != Close) return false;
  length = 1;
  return true;
}
