// A terminal on the console's window: it writes the cells as output comes, and
// paints and rings when told to.
#pragma once

#include <atomic>

#include "console/terminal.h"
#include "console/terminal_damage.h"

class CConsoleWindow;

class AttachedTerminal : public TerminalScreen {
 public:
  AttachedTerminal(CConsoleWindow& window, int masterFd);

  void Write(const char* bytes, int n);
  // From the GUI thread.
  void SendKey(Key code);
  // Also rings, once, if a bell has come since the last time.
  void Paint();
  // True from a key that sends something to the next paint of anything.
  bool OwesEcho() const { return owesEcho; }

  CellGrid& Grid() override;
  void GetCursor(int& x, int& y) const override;
  void SetCursor(int x, int y) override;
  int CursorSize() const override;
  void SetCursorSize(int percent) override;
  void Beep() override { owesBell = true; }
  void Changed(const CellRect& block) override { damage.Changed(block); }
  void Scrolled(const CellRect& block, int lines) override;

 private:
  void TakeSize();
  void NoteCursorCell();

  CConsoleWindow& window;
  TerminalDamage damage;
  CTerminal terminal;
  std::atomic<bool> owesEcho{false};
  bool owesBell = false;
};
