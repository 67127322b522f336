// The window that shows one page of help, in which the user moves up and down.
#pragma once

#include <vector>

#include "console/input.h"
#include "dialogs/win.h"
#include "foundation/strings.h"

class HelpWindow : public Win {
 public:
  explicit HelpWindow(std::vector<Westring> lines);

  // Reads keys and mouse until F1, or Escape, which a click beside the window
  // counts as; returns which.
  Key Run();

 private:
  int TextRows() const { return InnerHeight() - 1; }
  int Zone(int screenY) const;  // -1 in the upper third, 1 in the lower one, 0 between them
  void DrawPage();
  bool ScrollBy(int count);  // false if the text stays where it is
  void HandleKey(Key key);
  bool HandleMouse(const TMouseEvent& mouse);  // true for a click beside the window

  std::vector<Westring> lines;
  int topLine = 0;
  int heldLines = 0;  // of a step with the button that is held; 0 for none
  int step = 0;       // lines to go each time ScrollDelay has passed; negative up
  bool pressedOutside = false;
};
