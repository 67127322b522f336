// Moves by words within a line.
#include "foundation/words.h"

#include "foundation/fold.h"

int WordStart(const Westring& line, int cursor) {
  int i = cursor;
  if (i > 0) --i;
  while (i > 0 && !IsWordChar(line[i])) --i;
  while (i > 0 && IsWordChar(line[i - 1])) --i;
  return i;
}

int NextWord(const wchar_t* text, bool brief) {
  int i = 0;
  while (text[i] && IsWordChar(text[i]) != brief) ++i;
  while (text[i] && IsWordChar(text[i]) == brief) ++i;
  return i;
}

int WordEnd(const wchar_t* text, bool brief) {
  const int step = *text && !brief ? 1 : 0;
  return step + NextWord(text + step, brief);
}
