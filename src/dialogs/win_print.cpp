// Writing into a window. Columns and rows are those of its inside; the console
// clips at the edges of the screen.
#include <algorithm>
#include <cstdlib>
#include <cwctype>

#include "console/console.h"
#include "dialogs/win.h"
#include "dialogs/win_geometry.h"

namespace {

Westring Decode(const char* bytes) { return Westring(bytes, Console->CodePage()); }

}  // namespace

void Win::Print(int x, int y, const Westring& text, uint8_t textAttribute) {
  Console->PutString(originX + x, originY + y, text.Text(), textAttribute);
  cursorX = x + Length(text);
  cursorY = y;
}

void Win::Print(int x, int y, const Westring& text) { Print(x, y, text, attribute); }

void Win::Print(const Westring& text) { Print(cursorX, cursorY, text, attribute); }

void Win::Print(const Westring& text, uint8_t textAttribute) { Print(cursorX, cursorY, text, textAttribute); }

void Win::PrintBytes(int x, int y, const char* bytes, uint8_t textAttribute) {
  Print(x, y, Decode(bytes), textAttribute);
}

void Win::PrintBytes(int x, int y, const char* bytes) { PrintBytes(x, y, bytes, attribute); }

void Win::PrintCentred(int y, const Westring& text, uint8_t textAttribute) {
  Print((InnerWidth() - Length(text)) / 2, y, text, textAttribute);
}

void Win::PrintCentred(int y, const Westring& text) { PrintCentred(y, text, attribute); }

void Win::PrintCentredBytes(int y, const char* bytes, uint8_t textAttribute) {
  PrintCentred(y, Decode(bytes), textAttribute);
}

void Win::PrintCells(int x, int y, const Cell* zeroEnded) {
  Console->PutCells(originX + x, originY + y, zeroEnded);
}

void Win::PrintCellString(int x, int y, CellString& line) {
  line.Terminate();
  PrintCells(x, y, line.Cells());
}

void Win::PrintWrapped(int x, int y, const Westring& text) {
  if (InnerWidth() < 1) return;
  const wchar_t* rest = text.Text();
  for (; *rest != 0; x = 0, ++y) {
    const int length = WrappedLength(rest, InnerWidth() - x);
    Print(x, y, Westring(rest, length));
    rest += length;
    while (iswspace(static_cast<wint_t>(*rest))) ++rest;
  }
}

void Win::PrintHighlighted(int x, int y, const char* bytes, const char* letters, uint8_t textAttribute) {
  Console->BeginUpdate();
  PrintBytes(x, y, bytes, textAttribute);
  for (; *letters != 0; ++letters) {
    const int place = FindLetter(bytes, *letters);
    if (place >= 0) {
      Console->SetAttributes(originX + x + place, originY + y, 1, HighlightAttribute(textAttribute));
    }
  }
  Console->EndUpdate();
}

void Win::GotoXY(int x, int y) {
  cursorX = x;
  cursorY = y;
  Console->SetCursor(originX + x, originY + y);
}

void Win::Scroll(int x, int y, int width, int height, int lines) {
  const auto scroll = lines > 0 ? &CConsole::ScrollUp : &CConsole::ScrollDown;
  if (lines != 0) (Console->*scroll)(originX + x, originY + y, width, height, std::abs(lines), attribute);
}

void Win::Clear() { Clear(0, 0); }

void Win::Clear(int topMargin, int bottomMargin) {
  const int height = InnerHeight() - topMargin - bottomMargin;
  if (height > 0) Console->FillBlank(originX, originY + topMargin, InnerWidth(), height, attribute);
}

void Win::ClearToEnd(uint8_t blankAttribute) {
  const int end = hasFrame ? InnerWidth() : InnerWidth() - 1;
  if (end > cursorX) {
    Console->PutRepeated(originX + cursorX, originY + cursorY, end - cursorX, {' ', blankAttribute});
  }
}
