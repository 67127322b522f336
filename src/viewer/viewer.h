// The viewer: one file on the whole screen, read only, as text or as bytes. The
// screen is made from offsets in the file; scrolling draws only what comes into
// view.
#pragma once

#include <memory>

#include "console/input.h"
#include "dialogs/win.h"
#include "syntax/state_store.h"
#include "viewer/text_file.h"

class CViewer : public CTextFile {
 public:
  // Characters that a line is cut at.
  static constexpr int kLongestLine = 1048576;
  static constexpr int kHexRow = 16;  // bytes in a row

  CViewer();
  ~CViewer();

  // Shows the file until the user leaves; offset is where to start, negative for
  // where it was left. The key that ended it: Escape, Alt-Up or Alt-Down.
  Key Run(const Westring& path, int64_t offset);

  // ---- lines (viewer_lines.cpp); all are offsets in bytes

  int64_t NextLine(int64_t offset);
  int64_t PrevLine(int64_t offset);
  // The start of the line that offset is in.
  int64_t LineStart(int64_t offset);

  // ---- the screen (viewer_screen.cpp, viewer_hex.cpp)

  void Repaint();
  // To the line that holds lineStart + delta, with length cells of it marked; -1
  // for the length of SearchString.
  void ShowAt(int64_t lineStart, int64_t delta, int length);
  Westring PositionText();  // "%3d.%02d%%", how much lies above the last row
  void DrawStatus();
  void DrawKeyBar();

  // ---- moving (viewer_scroll.cpp); false where there is nowhere to go

  bool ScrollDown();
  bool ScrollUp();
  bool PageDown();
  bool PageUp();
  void GoHome();
  bool GoEnd();
  void MoveSideways(int cells);  // and bytes in hex mode

  // ---- search (viewer_search.cpp)

  // mode 0 asks nothing; 1 asks and steps on from SearchPos; 2 asks and starts
  // there. The distance of the hit from its line's start, kSearchStopped or
  // kSearchNone.
  int64_t Search(const Westring& text, int mode);

  Westring FullName;
  int ScreenWidth = 0, ScreenHeight = 0;  // cells of the text
  int64_t TopOffset = 0;                  // of the line at the top
  int TopWrapCol = 0;                     // the cell of it that the top row begins with
  int64_t NextAfterTop = 0;
  CellString TopLine, BottomLine;
  int64_t BottomOffset = -1;  // of the line in the last row; -1 where the file ends above it
  int BottomWrapCol = 0;      // cells of it that are on the screen
  int64_t NextAfterBottom = 0;
  int BlankRows = 0;
  int LeftCol = 0;  // cells; unwrapped text only
  bool HexMode = false;
  int64_t SearchPos = -1;  // -1 for not set
  CSyntaxHighlighter Highlighter;
  CSyntaxStateStore StateStore;
  int64_t LongLineStart = 0, LongLinePos = 0;  // of one very long line

 protected:
  // ---- for the parts of the viewer only

  void LoadTopLine();
  void MakeLine(const wchar_t* text, CellString& cells);
  int ShowLine(int& row, const CellString& cells, int wrapCol);
  void RepaintText();
  void RepaintHex();
  void DrawHexRow(int row, int64_t offset);
  void SyntaxSeek(int64_t offset);
  bool StepTopUp();  // one row, nothing drawn

  Westring path;
  std::unique_ptr<Win> screen, status;
  bool topLoaded = false;
};
