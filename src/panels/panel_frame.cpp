// The frame of a panel and where the columns' lines meet it.
#include "panels/panel_frame.h"

#include <algorithm>
#include <cwchar>

#include "config/values/colours.h"
#include "foundation/paths.h"
#include "panels/columns.h"

namespace {

constexpr wchar_t kAcross = 0x2550, kThinAcross = 0x2500;
constexpr wchar_t kTopLeft = 0x2554, kTopRight = 0x2557, kBottomLeft = 0x255A, kBottomRight = 0x255D;
constexpr wchar_t kDividerLeft = 0x255F, kDividerRight = 0x2562;
constexpr wchar_t kTopJunction = 0x2564, kBottomJunction = 0x2567;
constexpr wchar_t kJunctionUp = 0x2534, kJunctionDown = 0x252C, kJunctionBoth = 0x253C;

CellString Line(wchar_t left, wchar_t across, wchar_t right, int inner) {
  const uint8_t colour = Options::Colours[kColourPanel];
  CellString line(inner + 3);  // and the end that printing appends
  line.attribute = colour;
  line.Append(left);
  for (int i = 0; i < inner; ++i) line.Append(across);
  line.Append(right);
  return line;
}

// Puts junction on the line at each of a style's column borders.
void MarkBorders(CellString& line, int style, wchar_t junction) {
  int borders[kMaxColumns];
  const int count = ColumnBorders(style, borders);
  const int inner = line.Length() - 2;
  for (int i = 0; i < count; ++i)
    if (borders[i] < inner) line[borders[i] + 1].character = junction;
}

Westring TitleText(const TPanel& panel, int room) {
  if (!panel.IsFiles()) return L" INFO ";
  if (panel.IsTree()) return L" TREE ";
  Westring path = panel.path;
  if (wcscmp(panel.filter.Text(), L"*") != 0) path += L'?';
  return L" " + ShortenPath(path, room) + L" ";
}

uint8_t TitleColour(const TPanel& panel, bool active) {
  if (active) return Options::Colours[panel.archive ? kColourHighlightTagged : kColourHighlight];
  return Options::Colours[panel.archive ? kColourTagged : kColourPanel];
}

int TitleStart(int length, int clockWidth, int width) {
  const int centred = width / 2 - (length + 1) / 2;
  const int lastFree = width - 1 - clockWidth;
  return std::max(std::min(centred, lastFree - length + 1), 0);
}

}  // namespace

CellString BuildTitle(const TPanel& panel, bool active, int clockWidth, int width) {
  CellString line = Line(kTopLeft, kAcross, kTopRight, std::max(width - 2, 0));
  if (panel.IsFiles()) MarkBorders(line, panel.style, kTopJunction);
  const Westring text = TitleText(panel, width - 4 - clockWidth);
  const int length = Length(text);
  const int start = TitleStart(length, clockWidth, width);
  const uint8_t colour = TitleColour(panel, active);
  for (int i = 0; i < length && start + i < line.Length(); ++i) line[start + i] = Cell{text[i], colour};
  line.SetLength(std::max(width - clockWidth, 0));
  return line;
}

CellString BuildDivider(int style, int inner) {
  CellString line = Line(kDividerLeft, kThinAcross, kDividerRight, inner);
  MarkBorders(line, style, kJunctionUp);
  if (style == kStyleFull) return line;
  int borders[kMaxColumns];
  const int count = ColumnBorders(kStyleFull, borders);  // the status line's columns
  for (int i = 0; i < count && borders[i] < inner; ++i) {
    Cell& cell = line[borders[i] + 1];
    cell.character = cell.character == kJunctionUp ? kJunctionBoth : kJunctionDown;
  }
  return line;
}

CellString BuildBottomFrame(int style, int inner) {
  CellString line = BuildPlainBottomFrame(inner);
  // The full style's status line is a bare name, the tree's a path.
  if (style != kStyleFull && ColumnCount(style) > 0) MarkBorders(line, kStyleFull, kBottomJunction);
  return line;
}

CellString BuildPlainBottomFrame(int inner) { return Line(kBottomLeft, kAcross, kBottomRight, inner); }
