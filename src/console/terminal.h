// CTerminal: what a child process writes, as a compact subset of xterm, on the
// cells of the screen; and keys as such a terminal sends them.
//
// Write is a state machine that remembers everything between calls, so it does
// not matter where the stream is cut. terminal.cpp has text and control bytes,
// terminal_csi.cpp the sequences of ESC [, terminal_colours.cpp the attribute.
#pragma once

#include <atomic>
#include <memory>
#include <vector>

#include "console/cell_grid.h"
#include "console/key_codes.h"
#include "console/terminal_colours.h"
#include "foundation/strings.h"

// What a terminal shows its output on. Cells are written straight into Grid();
// what is to be painted is told afterwards.
class TerminalScreen {
 public:
  virtual ~TerminalScreen() = default;
  virtual CellGrid& Grid() = 0;
  virtual void GetCursor(int& x, int& y) const = 0;
  virtual void SetCursor(int x, int y) = 0;
  virtual int CursorSize() const = 0;  // percent
  virtual void SetCursorSize(int percent) = 0;
  virtual void Beep() = 0;
  virtual void Changed(const CellRect& block) = 0;              // these cells
  virtual void Scrolled(const CellRect& block, int lines) = 0;  // as Grid().Scroll was called
};

// A sequence behind ESC [ while it comes in.
struct CsiSequence {
  char prefix = 0;              // "?" or ">"
  bool isForeign = false;       // holds what no sequence of ours does
  bool isFull = false;          // further parameters are left out
  std::vector<int> parameters;  // a missing one is 0; none at all is empty

  void Begin();
  void TakeDigit(char digit);
  void NextParameter();
  int First(int missing) const { return parameters.empty() ? missing : parameters[0]; }
};

class CTerminal {
 public:
  // The screen outlives the terminal. The descriptor stays the caller's, but is
  // made non-blocking, for reading too: whoever reads from it polls first.
  CTerminal(TerminalScreen& screen, int masterFd);
  ~CTerminal();  // leaves the alternate screen, for where it was entered
  CTerminal(const CTerminal&) = delete;
  CTerminal& operator=(const CTerminal&) = delete;

  // n bytes of output. Zero bytes are dropped.
  void Write(const char* bytes, int n);
  // From the GUI thread. Never waits: a key that the child has no room for is
  // lost, though never a part of one.
  void SendKey(Key code);
  // Adds row y of the screen to ScrollBack.
  void SaveScreenRow(int y);

 private:
  friend struct CsiTable;

  enum class State { Text, Escape, Charset, Title, Csi };

  bool SendRest();

  // Parsing. TakeText returns the first byte that it did not take.
  const char* TakeText(const char* from, const char* to);
  void TakeControl(char byte);
  void TakeEscape(char byte);
  void TakeCharset(char byte);
  void TakeTitle(char byte);
  void TakeCsi(char byte);
  void EndCsi(char final);

  // Text at the cursor.
  void PutRun(const char* text, int n);
  void PutUtf8(const char* text, int n);
  void PutGraphics(const char* text, int n);
  void PutPending();
  template <class Char>
  void PutText(const Char* text, int n);
  void PutRepeated(wchar_t character, int n);
  void InsertBlanks(int n);
  void DeleteCharacters(int n);

  // Rows.
  void TakeSize();
  void LineFeed();
  void WrapLine();
  void ScrollUp(int lines);
  void ScrollDown(int lines);
  void Scroll(const CellRect& block, int lines);
  void Blank(int left, int top, int right, int bottom);  // inclusive; may be empty
  CellRect Region() const { return {0, scrollTop, columns - 1, scrollBottom}; }

  void EnterAlternateScreen();
  void LeaveAlternateScreen();
  void SaveCursor();
  void RestoreCursor();

  TerminalScreen& screen;
  CellGrid& grid;
  int masterFd;
  int columns, rows;
  int x = 0, y = 0;  // x may be columns: the next character wraps
  int savedX = 0, savedY = 0;
  int cursorSize = 0;
  TerminalColours colours;
  int scrollTop = 0, scrollBottom;  // 0-based, inclusive
  bool insertMode = false;
  bool graphicsCharset = false;
  bool applicationKeypad = false;
  std::atomic<bool> applicationCursor{false};  // read by the GUI thread
  Estring unsentRest;                          // of the last key; the GUI thread's
  wchar_t lastCharacter = 0;
  std::unique_ptr<Cell[]> mainScreen;  // while the alternate screen is shown
  int mainColumns = 0, mainRows = 0;   // its size
  int mainX = 0, mainY = 0;            // where it had the cursor

  State state = State::Text;
  Estring pending;  // a character of several bytes, so far; empty in the graphics set
  CsiSequence csi;
  int titleBytes = 0;        // taken so far
  bool titleEscape = false;  // the last of them was an escape
};

// The bytes that a key sends; empty for a key that sends nothing.
Estring KeySequence(Key code, bool applicationCursor);
bool SendsBytes(Key code);
