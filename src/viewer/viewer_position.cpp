// Where in the file the screen is: the status line, and going to a place that was
// found.
#include <algorithm>

#include "config/values/colours.h"
#include "console/console.h"
#include "dialogs/key_bar.h"
#include "foundation/code_pages.h"
#include "foundation/paths.h"
#include "viewer/search_settings.h"
#include "viewer/viewer.h"

namespace {

constexpr int kRowsAbove = 4;  // a place that is gone to, at most
constexpr int kSideStep = 4;   // cells
constexpr int kHexCharacters = 64;

// A name that is too long for its place is not cut: the next field takes the rest.
Westring PadTo(const Westring& text, int width) { return Length(text) < width ? LJust(text, width) : text; }

}  // namespace

// ---- the status line and the key bar ----------------------------------------

// Integers, so the share of the last line is as coarse as its characters are wide.
Westring CViewer::PositionText() {
  int whole = 100, hundredths = 0;
  if (FileSize > 0 && BottomOffset >= 0) {
    int64_t shown = BottomOffset;
    if (HexMode)
      shown = NextAfterBottom;
    else if (BottomLine.Length() > 0)
      shown += (NextAfterBottom - BottomOffset) / BottomLine.Length() * BottomWrapCol;
    const auto product = static_cast<__int128>(shown);
    whole = static_cast<int>(product * 100 / FileSize);
    hundredths = static_cast<int>(product * 10000 / FileSize % 100);
  }
  return Westring(Estring::Format("%3d.%02d%%", whole, hundredths));
}

void CViewer::DrawStatus() {
  const int width = status->InnerWidth();
  Westring line = L"View: " + ShortenPath(FullName, std::max(width - 20, 0));
  line = PadTo(line, width - 15) + Westring(EncodingName(Encoding, CodePage));
  line = LJust(line, std::max(width - 7, 0)) + PositionText();
  status->Print(0, 0, LJust(line, width), Options::Colours[kColourMenu]);
}

void CViewer::DrawKeyBar() {
  const char* const labels[kBarKeys] = {"1Help",   Options::ViewerWrap ? "2UnWrap" : "2Wrap",
                                        "3",       HexMode ? "4ASCII" : "4Hex",
                                        "5",       "6",
                                        "7Search", "8Home",
                                        "9End",    "10Quit"};
  PaintKeyBar(labels);
}

// ---- going to a found place -------------------------------------------------

void CViewer::ShowAt(int64_t lineStart, int64_t delta, int length) {
  if (length < 0) length = ::Length(SearchString);
  SetTop(lineStart);
  int64_t column = HexMode ? std::clamp<int64_t>(delta, 0, kHexRow - 1) : ColumnAt(lineStart, delta);
  const int wrapCol = IsWrapped() ? static_cast<int>(column / ScreenWidth * ScreenWidth) : 0;
  TopWrapCol = wrapCol;
  column -= wrapCol;

  // With less than a row of bytes above it the place would get out of step.
  const int most = std::min(kRowsAbove, ScreenHeight - 1);
  for (int i = 0; i < most && (!HexMode || TopOffset >= kHexRow) && StepTopUp(); ++i) {
  }
  if (!HexMode && !IsWrapped()) MoveTextAside(column, length);
  Repaint();
  int row = RowOf(lineStart, wrapCol);
  if (row < 0) {  // lines that are not the same both ways
    SetTop(lineStart);
    TopWrapCol = wrapCol;
    Repaint();
    row = 0;
  }
  const int x = static_cast<int>(HexMode ? kHexCharacters + column : column - LeftCol);
  const int end = HexMode ? kHexCharacters + kHexRow : ScreenWidth;
  Console->SetAttributes(screen->OriginX() + x, screen->OriginY() + row, std::clamp(end - x, 0, length),
                         Options::Colours[kColourHighlight]);
  if (SearchPos >= 0) SearchPos += delta;
}

// A line has an end in this too: what is told of it may be wrong.
int64_t CViewer::ColumnAt(int64_t lineStart, int64_t delta) {
  int64_t column = 0;
  Position = std::max(lineStart, DataStart);
  const int64_t end = lineStart + std::min<int64_t>(delta, int64_t{kLongestLine} * 4);
  while (Position < end) {
    const int character = GetChar();
    if (character < 0) break;
    column = character == '\t' ? (column / Options::TabWidth + 1) * Options::TabWidth : column + 1;
  }
  return column;
}

int CViewer::RowOf(int64_t line, int column) const {
  if (HexMode) return static_cast<int>((line - TopOffset) / kHexRow);
  for (int i = 0; i < ScreenHeight; ++i)
    if (rowStarts[i].line == line && rowStarts[i].column == column) return i;
  return -1;
}

void CViewer::MoveTextAside(int64_t column, int length) {
  const auto stepsFor = [](int64_t cells) { return static_cast<int>((cells + kSideStep - 1) / kSideStep); };
  const int64_t beyond = column + length - (int64_t{LeftCol} + ScreenWidth);
  if (beyond > 0) LeftCol += stepsFor(beyond) * kSideStep;
  if (column < LeftCol) LeftCol = std::max(LeftCol - stepsFor(LeftCol - column) * kSideStep, 0);
}
