// The viewer: one file on the whole screen, read only, as text or as bytes. The
// screen is made from offsets in the file; scrolling draws only what comes into
// view.
#pragma once

#include <memory>
#include <vector>

#include "config/values/options.h"
#include "console/input.h"
#include "dialogs/win.h"
#include "syntax/state_store.h"
#include "viewer/text_file.h"

struct HISTREC;

enum SearchMode {
  kSearchAgain = 0,     // asks nothing
  kSearchOn = 1,        // asks, and goes on from SearchPos
  kSearchFromHere = 2,  // asks, and begins at SearchPos
};

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

  // Takes all of it off the screen, or brings it back.
  void SetHidden(bool hide);
  // The top goes to the start of a line; nothing is drawn.
  void SetTop(int64_t offset);
  // The top line has to be made anew for the next repaint.
  void ForgetTop() { topLoaded = false; }
  // What the lines are made of has changed; the states of the highlighter stay.
  void ReadAnew();
  // codePage counts for kCodePageText only.
  void SetEncoding(int encoding, int codePage);
  // Colours by the definition for this file, or not at all; from the first line on.
  void SetHighlighting(bool on);

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
  void DrawStatus();
  void DrawKeyBar();

  // ---- moving (viewer_scroll.cpp); false where there is nowhere to go

  bool ScrollDown();
  bool ScrollUp();
  bool PageDown();
  bool PageUp();
  void GoHome();
  bool GoEnd();
  bool MoveSideways(int cells);  // and bytes in hex mode

  // ---- search (viewer_search.cpp)

  // The distance of the hit from its line's start, kSearchStopped or kSearchNone. A
  // mode that asks does so for SearchString, which text then has to be.
  int64_t Search(const Westring& text, int mode);

  Westring FullName;
  int64_t TopOffset = 0;      // of the line at the top
  int64_t BottomOffset = -1;  // of the line in the last row; -1 where the file ends above it
  int LeftCol = 0;            // cells; unwrapped text only
  bool HexMode = false;
  int64_t SearchPos = -1;  // -1 for not set
  CSyntaxHighlighter Highlighter;

 protected:
  // ---- for the parts of the viewer only

  // What a row of the screen begins with.
  struct ScreenRow {
    int64_t line = -1;  // offset; -1 below the end of the file
    int column = 0;     // the cell of the line
  };

  bool IsWrapped() const { return Options::ViewerWrap && !HexMode; }

  // viewer_lines.cpp
  int64_t LineEndBefore(int64_t offset);
  int64_t LineBegin(int64_t offset, int64_t end);
  int64_t BehindLineEnd(int64_t from, int64_t floor);
  int64_t PieceStart(int64_t begin, int64_t end);
  // The last line that reading forward finds before offset, which PrevLine passes by
  // where a zero ends a line of UTF-8.
  int64_t LineBefore(int64_t offset);

  // viewer_screen.cpp
  void LoadTopLine();
  void NeedTopLine();  // loads it unless it is there
  bool LoadLine(int64_t offset, CellString& cells);
  // The line from Position on; false at the end. Without colours, which depend on all
  // of it, no more than the first mostCharacters are made into cells.
  bool ReadCells(CellString& cells, int mostCharacters = kLongestLine);
  void MakeLine(const wchar_t* text, CellString& cells);
  int LastRowStart(int cells) const;
  // From the line's cell wrapCol on: in one row, or in all that it takes. The cell
  // that is the first below them.
  int ShowLine(int& row, const CellString& cells, int wrapCol);
  void DrawTextRow(int row, const CellString& cells, int column);
  int PlaceLine(int& row, int64_t offset, const CellString& cells, int wrapCol);
  void RepaintText();
  void SetBottom(int64_t offset, int shownCells, int64_t next);

  // viewer_hex.cpp
  void RepaintHex();
  void DrawHexRow(int row, int64_t offset);
  bool HasHexRow(int64_t offset);
  void FindHexBottom();
  bool ScrollHexDown();
  bool ScrollHexUp();

  // viewer_syntax.cpp: the highlighter to the state at offset
  void SyntaxSeek(int64_t offset);
  void RememberState();  // the highlighter's, as that of Position

  // viewer_scroll.cpp
  bool HasGrown();  // and what is known of the last line is forgotten
  bool ShowGrowth();
  bool ShowsEnd() const;
  bool ScrollTextDown();
  bool ScrollTextUp();
  void TakeTopFromRows();
  void TakeBottomFromRows();
  bool StepTopUp();  // one row, nothing drawn

  // viewer_position.cpp
  Westring PositionText();  // "%3d.%02d%%", how much lies above the last row
  int64_t ColumnAt(int64_t lineStart, int64_t delta);
  int RowOf(int64_t line, int column) const;  // -1 if it is not on the screen
  void MoveTextAside(int64_t column, int length);

  int ScreenWidth = 0, ScreenHeight = 0;  // cells of the text
  int TopWrapCol = 0;                     // the cell of the top line that the top row begins with
  int64_t NextAfterTop = 0;
  CellString TopLine, BottomLine;
  int BottomWrapCol = 0;  // cells of the bottom line that are on the screen
  int64_t NextAfterBottom = 0;
  int BlankRows = 0;
  CSyntaxStateStore StateStore;
  int64_t LongLineStart = 0, LongLinePos = 0;  // of one very long line
  std::unique_ptr<Win> screen, status;
  bool topLoaded = false;
  bool topExists = false;            // false where the file ends before the top
  std::vector<ScreenRow> rowStarts;  // of a text
  int64_t longLineEnd = 0;           // the line from LongLineStart has no end before it
  int longLineEncoding = kUnknownEncoding;
  bool seekBrokenOff = false;  // the highlighter's state is a guess

 private:
  void Reset();
  void TakeEncoding(const HISTREC* known);
  void Start(int64_t offset, const HISTREC* known);
  void KeepStatus();

  std::unique_ptr<Win> keyBar;
};
