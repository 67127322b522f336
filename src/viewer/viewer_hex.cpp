// The screen of bytes: sixteen a row, their offset before and their characters
// behind them.
#include <algorithm>

#include "foundation/code_pages.h"
#include "viewer/viewer.h"

namespace {

constexpr int kCharacterColumn = 64;  // cells
constexpr wchar_t kSeparator = 0x2502;

Estring HexNumber(const char* format, int64_t value) {
  return Estring::Format(format, static_cast<unsigned long>(value));
}

Westring HexPart(int64_t offset, const char* bytes, int n) {
  Westring text(HexNumber("%08lX ", offset));
  for (int i = 0; i < n; ++i) {
    text += Westring(HexNumber("%02lX ", static_cast<uint8_t>(bytes[i])));
    if (i % 4 == 3 && i < CViewer::kHexRow - 1) {
      text += kSeparator;
      text += L' ';
    }
  }
  return LJust(text, kCharacterColumn);
}

// A page that is not known shows the bytes as they are. One that is known may lack
// some of them; the others keep their characters.
Westring Characters(const char* bytes, int page) {
  Westring text;
  DecodeCodePage(bytes, page, text);
  return text.IsEmpty() ? Westring(Estring(bytes)) : text;
}

}  // namespace

bool CViewer::HasHexRow(int64_t offset) { return offset < FileSize && ByteAt(offset) >= 0; }

void CViewer::DrawHexRow(int row, int64_t offset) {
  char bytes[kHexRow + 1] = {}, shown[kHexRow + 1] = {};
  int n = 0;
  for (; n < kHexRow && offset + n < FileSize; ++n) {
    const int byte = ByteAt(offset + n);
    if (byte < 0) break;
    bytes[n] = static_cast<char>(byte);
    shown[n] = byte != 0 ? bytes[n] : '.';
  }
  Westring text = n > 0 ? HexPart(offset, bytes, n) + Characters(shown, CodePage) : Westring();
  screen->Print(0, row, LJust(text, ScreenWidth));
}

void CViewer::RepaintHex() {
  for (int row = 0; row < ScreenHeight; ++row) DrawHexRow(row, TopOffset + int64_t{row} * kHexRow);
  ForgetTop();
  TopWrapCol = 0;
  NextAfterTop = NextLine(TopOffset);
  FindHexBottom();
}

void CViewer::FindHexBottom() {
  const int64_t last = TopOffset + int64_t{ScreenHeight - 1} * kHexRow;
  BlankRows = 0;
  while (BlankRows < ScreenHeight && !HasHexRow(last - int64_t{BlankRows} * kHexRow)) ++BlankRows;
  BottomOffset = BlankRows == 0 ? last : -1;
  NextAfterBottom = NextLine(last);
}

// A last row that was not full before the file grew leaves the rows behind it out of
// step.
bool CViewer::ScrollHexDown() {
  const int64_t next = NextAfterBottom;
  if (BottomOffset < 0 || !HasHexRow(next)) return false;
  const bool inStep = next - BottomOffset == kHexRow;
  TopOffset += kHexRow;
  if (!inStep) {
    Repaint();
    return true;
  }
  screen->Scroll(0, 0, ScreenWidth, ScreenHeight, 1);
  DrawHexRow(ScreenHeight - 1, next);
  FindHexBottom();
  return true;
}

bool CViewer::ScrollHexUp() {
  const int64_t before = TopOffset;
  if (!StepTopUp()) return false;
  if (before - TopOffset != kHexRow) {
    Repaint();
    return true;
  }
  screen->Scroll(0, 0, ScreenWidth, ScreenHeight, -1);
  DrawHexRow(0, TopOffset);
  FindHexBottom();
  return true;
}
