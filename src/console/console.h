// CConsole: the grid of character cells in its window, as a blocking text
// screen. Everything above it writes cells and reads events; nothing above it
// knows a widget. All calls come from the application thread.
#pragma once

#include <cstdint>
#include <memory>

#include "console/cell.h"
#include "console/cell_string.h"
#include "console/event_queue.h"
#include "foundation/strings.h"

class CConsoleWindow;  // the toolkit's half, console_window.h

class CConsole {
 public:
  // 80 by 25 in "DejaVu Sans Mono" 12; starts the GUI thread and returns.
  CConsole();
  // Asks the toolkit to quit and joins the GUI thread.
  ~CConsole();
  CConsole(const CConsole&) = delete;
  CConsole& operator=(const CConsole&) = delete;

  // An empty family and a size of 0 stay as they were. The screen is blank
  // afterwards; the caller repaints. Sizes are bounded so that the window can
  // be made.
  void Resize(int columns, int rows, const Estring& fontFamily, int fontSize);
  void GetSize(int& columns, int& rows) const;
  int FontSize() const;
  const Estring& FontFamily() const;

  void GetCursor(int& x, int& y) const;
  void SetCursor(int x, int y);
  int CursorSize() const;
  void SetCursorSize(int percent);  // of the cell, from the bottom; 0 hides

  // Writing. Clipped to the screen; cells that stay as they are cost nothing.
  void PutString(int x, int y, const wchar_t* text, uint8_t attribute);
  void PutCells(int x, int y, const Cell* zeroEnded);
  void PutRepeated(int x, int y, int count, Cell cell);
  void SetAttributes(int x, int y, int count, uint8_t attribute);
  void FillBlank(int x, int y, int width, int height, uint8_t attribute);
  // The cells of a block, row after row, as a new array that is the caller's.
  std::unique_ptr<Cell[]> SaveBlock(int x, int y, int width, int height) const;
  void RestoreBlock(int x, int y, int width, int height, const Cell* cells);
  void ReadRow(CellString& target, int x, int y, int width, int height) const;  // appends

  // Both draw at once and only what came into view.
  void ScrollUp(int x, int y, int width, int height, int lines, uint8_t attribute);
  void ScrollDown(int x, int y, int width, int height, int lines, uint8_t attribute);

  // Between the outermost pair nothing is drawn; the end draws one rectangle.
  void BeginUpdate();
  void EndUpdate();

  // UTF-8 text at the cursor. Goes to the terminal while one is attached;
  // otherwise a teletype with tab, CR, BS, LF and scrolling.
  void WriteText(const char* bytes);
  // A stretch of a child's output. The cells are right when this returns; the
  // pixels follow with PaintTerminal, so that a flood is not painted line by line.
  // Without a terminal nothing happens.
  void WriteTerminal(const char* bytes, int n);
  void PaintTerminal();
  // True from a key that sent the child something to the next paint of its output.
  bool TerminalOwesEcho() const;

  // From here on keys and text go to the master side of a pseudo-terminal, and
  // what its child writes is to be handed to WriteTerminal. The descriptor stays
  // the caller's.
  void AttachTerminal(int masterFd);
  void DetachTerminal();
  void SetDefaultAttribute(uint8_t attribute);  // of WriteText

  void SetTitle(const Westring& text);
  void SetTitle(const char* bytes);        // in the code page
  void SetIconList(WestringStore& paths);  // files that can't be read are passed over
  void SetIconFromFile(const Westring& path);
  void Beep();

  bool GetClipboardText(Westring& text);
  void SetClipboardText(const Westring& text);
  void SetClipboardText(const char* bytes);  // in the code page

  // The region in which a mouse drag selects text; a width of 0 for none.
  void SetSelectableRegion(int left, int top, int width, int height);
  void SetSelectableRegion(const CellRect& region);
  void GetSelectableRegion(CellRect& region) const;

  bool GetEvent(TEvent& event, uint32_t timeoutMs);
  bool EventPending();
  CEventQueue& Events();

  void SetCodePage(int page);  // 0 is ignored
  int CodePage() const;

  // Blocks drawn so far by calls of this class; tells whether a repaint cost
  // anything. The blinking cursor and the selection do not count.
  uint64_t DrawCount() const;

 private:
  std::unique_ptr<CConsoleWindow> window;
};

// The one console, made by the program's start.
extern CConsole* Console;

// Its size as last read back.
extern int ScreenRows, ScreenColumns;
