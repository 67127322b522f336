// The measures of a prompt's box.
#include "dialogs/prompt_layout.h"

#include <algorithm>
#include <cwchar>

#include "console/key_codes.h"
#include "foundation/paths.h"

namespace {

constexpr int kBesideText = 8;  // columns of the screen that a line leaves free
constexpr int kMargin = 4;      // frame and a blank at both sides
constexpr int kRowsAround = 4;  // frame, detail and buttons

int WidestLine(int screenColumns) { return std::max(screenColumns - kBesideText, 1); }

// The last blank of a line that is too long, not behind column widest. Without
// one the line ends after its first character.
int BreakOf(const wchar_t* line, int widest) {
  int end = widest;
  while (end > 1 && line[end] != L' ') --end;
  return end;
}

// Takes the next line from the front of rest.
Westring NextLine(const wchar_t*& rest, int widest) {
  int length = static_cast<int>(wcscspn(rest, L"\n"));
  if (length > widest) length = BreakOf(rest, widest);
  const Westring line(rest, length);
  rest += length;
  if (*rest == L' ' || *rest == L'\n') ++rest;
  return line;
}

}  // namespace

std::vector<Westring> SplitPromptText(const Westring& text, int screenColumns) {
  const int widest = WidestLine(screenColumns);
  std::vector<Westring> lines;
  const wchar_t* rest = text.Text();
  do {
    lines.push_back(NextLine(rest, widest));
  } while (*rest != 0 && lines.size() < PromptLayout::kMostLines - 1);
  // The last line keeps what fits of all that is left.
  if (*rest != 0) lines.push_back(Left(Westring(rest, static_cast<int>(wcscspn(rest, L"\n"))), widest));
  return lines;
}

PromptLayout LayOutPrompt(const Westring& text, const Westring& detail, int buttonCells, int screenColumns) {
  PromptLayout layout;
  layout.lines = SplitPromptText(text, screenColumns);
  layout.detail = ShortenPath(detail, WidestLine(screenColumns));
  int widest = std::max(Length(layout.detail), buttonCells);
  for (const Westring& line : layout.lines) widest = std::max(widest, Length(line));
  layout.width = widest + widest % 2 + kMargin;
  layout.height = static_cast<int>(layout.lines.size()) + kRowsAround;
  return layout;
}

int PromptAnswer(int result) {
  if (result == kEnter) return 'y';
  return result < 0 ? ' ' : result;
}
