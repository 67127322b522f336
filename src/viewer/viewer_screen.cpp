// The screen of a text, made from the top line on.
#include <algorithm>

#include "config/values/colours.h"
#include "console/console.h"
#include "viewer/viewer.h"

namespace {

constexpr int32_t kMoreToTheRight = 0xBB;  // the right guillemet

}  // namespace

void CViewer::Repaint() {
  Console->BeginUpdate();
  if (HexMode)
    RepaintHex();
  else
    RepaintText();
  Console->EndUpdate();
}

// ---- lines as cells ---------------------------------------------------------

void CViewer::MakeLine(const wchar_t* text, CellString& cells) { Highlighter.RenderLine(text, cells); }

bool CViewer::ReadCells(CellString& cells, int mostCharacters) {
  const int64_t start = Position;
  int length;
  const wchar_t* const text = ReadLine(length, kLongestLine);
  if (text == nullptr || Position <= start) return false;
  if (length > mostCharacters && !Highlighter.Active)
    MakeLine(Westring(text, mostCharacters).Text(), cells);
  else
    MakeLine(text, cells);
  return true;
}

bool CViewer::LoadLine(int64_t offset, CellString& cells) {
  SyntaxSeek(offset);
  Position = offset;
  return ReadCells(cells);
}

// The line may be another one than TopWrapCol was made for.
void CViewer::LoadTopLine() {
  TopLine.SetLength(0);
  topExists = LoadLine(TopOffset, TopLine);
  NextAfterTop = Position;
  topLoaded = true;
  if (!IsWrapped())
    TopWrapCol = 0;
  else if (TopWrapCol >= TopLine.Length())
    TopWrapCol = LastRowStart(TopLine.Length());
}

void CViewer::NeedTopLine() {
  if (!topLoaded) LoadTopLine();
}

int CViewer::LastRowStart(int cells) const {
  return cells <= ScreenWidth ? 0 : (cells - 1) / ScreenWidth * ScreenWidth;
}

// ---- drawing ----------------------------------------------------------------

void CViewer::DrawTextRow(int row, const CellString& cells, int column) {
  const int rest = std::max(cells.Length() - column, 0);
  CellString line(ScreenWidth + 1);
  line.attribute = cells.attribute;
  if (rest > 0) line.Append(cells.Cells() + column, std::min(rest, ScreenWidth));
  line.SetLength(ScreenWidth);
  if (!IsWrapped() && rest > ScreenWidth) {
    line[ScreenWidth - 1] = {kMoreToTheRight, MakeAttribute(Foreground(Options::Colours[kColourTagged]),
                                                            Background(Options::Colours[kColourFileViewer]))};
  }
  screen->PrintCellString(0, row, line);
}

int CViewer::ShowLine(int& row, const CellString& cells, int wrapCol) {
  if (!IsWrapped()) {
    DrawTextRow(row++, cells, LeftCol);
    return cells.Length();
  }
  int column = wrapCol;
  do {
    DrawTextRow(row++, cells, column);
    column += ScreenWidth;
  } while (column < cells.Length() && row < ScreenHeight);
  return std::min(column, cells.Length());
}

// As ShowLine, with a note of the rows.
int CViewer::PlaceLine(int& row, int64_t offset, const CellString& cells, int wrapCol) {
  const int first = row;
  const int end = ShowLine(row, cells, wrapCol);
  for (int i = first; i < row; ++i) rowStarts[i] = {offset, wrapCol + (i - first) * ScreenWidth};
  return end;
}

void CViewer::SetBottom(int64_t offset, int shownCells, int64_t next) {
  BottomOffset = offset;
  BottomWrapCol = shownCells;
  NextAfterBottom = next;
}

void CViewer::RepaintText() {
  if (topLoaded)
    SyntaxSeek(NextAfterTop);
  else
    LoadTopLine();
  Position = NextAfterTop;
  BottomOffset = -1;
  rowStarts.assign(ScreenHeight, {});
  int row = 0;
  if (topExists) {
    const int end = PlaceLine(row, TopOffset, TopLine, TopWrapCol);
    if (row == ScreenHeight) {
      BottomLine = TopLine;
      SetBottom(TopOffset, end, NextAfterTop);
    }
  }
  while (topExists && row < ScreenHeight) {
    const int64_t offset = Position;
    // A character takes a cell or more; of the line at the bottom the length counts.
    const bool isCut = !IsWrapped() && row < ScreenHeight - 1;
    if (!ReadCells(BottomLine, isCut ? LeftCol + ScreenWidth + 1 : kLongestLine)) break;
    const int end = PlaceLine(row, offset, BottomLine, 0);
    if (row == ScreenHeight) SetBottom(offset, end, Position);
  }
  BlankRows = ScreenHeight - row;
  screen->Clear(row, 0);
  RememberState();
}
