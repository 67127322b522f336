// Moving through the file. By a row only the new row is drawn; the notes of what the
// rows begin with move along with them.
#include <algorithm>

#include "viewer/viewer.h"

namespace {

constexpr int kMostGrowth = 4096;              // blocks that one look takes of what has no size
constexpr int kMostColumns = 1024 * 1024 * 8;  // of a line of tabs

}  // namespace

// ---- growth -----------------------------------------------------------------

bool CViewer::HasGrown() {
  const int64_t known = FileSize;
  if (ByteAt(FileSize) < 0) return false;
  FileSize = std::max(FileSize, Size());
  ForgetTop();
  return FileSize > known;
}

bool CViewer::ShowGrowth() {
  if (!HasGrown()) return false;
  Repaint();
  return true;
}

bool CViewer::ShowsEnd() const {
  if (BottomOffset < 0) return true;
  return NextAfterBottom >= FileSize && (!IsWrapped() || BottomWrapCol >= BottomLine.Length());
}

// ---- by a row ---------------------------------------------------------------

bool CViewer::ScrollDown() {
  if (!(HexMode ? ScrollHexDown() : ScrollTextDown())) return false;
  SearchPos = -1;
  return true;
}

bool CViewer::ScrollUp() {
  if (!(HexMode ? ScrollHexUp() : ScrollTextUp())) return false;
  SearchPos = -1;
  return true;
}

bool CViewer::ScrollTextDown() {
  if (BottomOffset < 0) return ShowGrowth();
  if (ShowsEnd()) {
    // The last line may have been cut off by what was the end.
    if (!ShowGrowth()) return false;
    if (BottomOffset < 0) return true;
  }

  const bool hasUnseen = IsWrapped() && BottomWrapCol < BottomLine.Length();
  const int64_t line = hasUnseen ? BottomOffset : NextAfterBottom;
  const int column = hasUnseen ? BottomWrapCol : 0;
  if (!hasUnseen) {
    if (!LoadLine(line, BottomLine)) return false;
    SetBottom(line, 0, Position);
  }
  BottomWrapCol = IsWrapped() ? std::min(column + ScreenWidth, BottomLine.Length()) : BottomLine.Length();
  rowStarts.erase(rowStarts.begin());
  rowStarts.push_back({line, column});
  TakeTopFromRows();
  screen->Scroll(0, 0, ScreenWidth, ScreenHeight, 1);
  DrawTextRow(ScreenHeight - 1, BottomLine, IsWrapped() ? column : LeftCol);
  return true;
}

void CViewer::TakeTopFromRows() {
  const ScreenRow& top = rowStarts.front();
  TopWrapCol = top.column;
  if (top.line == TopOffset) return;
  TopOffset = top.line;
  ForgetTop();
}

bool CViewer::ScrollTextUp() {
  const int64_t before = TopOffset;
  if (!StepTopUp()) return false;
  NeedTopLine();
  if (TopOffset != before && NextAfterTop != before) {  // lines that are not the same both ways
    Repaint();
    return true;
  }
  screen->Scroll(0, 0, ScreenWidth, ScreenHeight, -1);
  DrawTextRow(0, TopLine, IsWrapped() ? TopWrapCol : LeftCol);
  rowStarts.pop_back();
  rowStarts.insert(rowStarts.begin(), {TopOffset, TopWrapCol});
  TakeBottomFromRows();
  return true;
}

void CViewer::TakeBottomFromRows() {
  const ScreenRow& bottom = rowStarts.back();
  BlankRows = static_cast<int>(
      std::count_if(rowStarts.begin(), rowStarts.end(), [](const ScreenRow& row) { return row.line < 0; }));
  if (bottom.line < 0) return;
  if (bottom.line != BottomOffset) {
    LoadLine(bottom.line, BottomLine);
    SetBottom(bottom.line, 0, Position);
  }
  BottomWrapCol =
      IsWrapped() ? std::min(bottom.column + ScreenWidth, BottomLine.Length()) : BottomLine.Length();
}

bool CViewer::StepTopUp() {
  if (HexMode) {
    const int64_t step = std::min<int64_t>(TopOffset, kHexRow);
    TopOffset -= step;
    return step > 0;
  }
  if (IsWrapped() && TopWrapCol > 0) {
    TopWrapCol = std::max(TopWrapCol - ScreenWidth, 0);
    return true;
  }
  const int64_t line = LineBefore(TopOffset);
  if (line >= TopOffset) return false;
  SetTop(line);
  if (!IsWrapped()) return true;
  LoadTopLine();
  TopWrapCol = LastRowStart(TopLine.Length());
  return true;
}

// ---- by a page --------------------------------------------------------------

bool CViewer::PageDown() {
  if (BottomOffset < 0) return ShowGrowth();
  const bool isAtEnd = ShowsEnd();
  if (isAtEnd && !HasGrown()) return false;
  if (ScreenHeight < 2) return ScrollDown();
  SearchPos = -1;
  TopOffset = BottomOffset;
  TopWrapCol = IsWrapped() ? LastRowStart(BottomWrapCol) : 0;
  if (isAtEnd || HexMode) {
    ForgetTop();
  } else {
    TopLine = BottomLine;
    NextAfterTop = NextAfterBottom;
    topLoaded = true;
  }
  Repaint();
  return true;
}

// One row of the old page stays.
bool CViewer::PageUp() {
  bool hasMoved = false;
  for (int i = std::max(ScreenHeight - 1, 1); i > 0 && StepTopUp(); --i) hasMoved = true;
  if (!hasMoved) return false;
  SearchPos = -1;
  Repaint();
  return true;
}

void CViewer::GoHome() {
  SetTop(HexMode ? 0 : DataStart);
  LeftCol = 0;
  SearchPos = -1;
  Repaint();
}

bool CViewer::GoEnd() {
  int grown = 0;
  while (grown < kMostGrowth && HasGrown()) ++grown;
  if (grown == 0 && ShowsEnd()) return false;
  const int unit = HexMode ? 1 : BytesPerUnit();
  SearchPos = -1;
  SetTop(DataStart + std::max<int64_t>(FileSize - DataStart, 0) / unit * unit);
  for (int i = 0; i < ScreenHeight && StepTopUp(); ++i) {
  }
  Repaint();
  return true;
}

// ---- sideways ---------------------------------------------------------------

bool CViewer::MoveSideways(int cells) {
  if (HexMode) {
    const int64_t top = std::clamp<int64_t>(TopOffset + cells, 0, FileSize);
    if (top == TopOffset) return false;
    SetTop(top);
    SearchPos = -1;
  } else {
    const int left = IsWrapped() ? LeftCol : std::clamp(LeftCol + cells, 0, kMostColumns);
    if (left == LeftCol) return false;
    LeftCol = left;
  }
  Repaint();
  return true;
}
