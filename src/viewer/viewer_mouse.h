// The mouse in the viewer: the wheel, the key bar, and presses on the text, which
// scroll for as long as nothing else happens.
#pragma once

#include <chrono>

#include "console/input.h"
#include "viewer/viewer_keys.h"

// What a press at a cell of the rows above the key bar means: -1 and 1 a row up and
// down, -4 and 4 to the left and right, 0 nothing.
int StepAt(int x, int y, int columns, int rows);

// The key that a step stands for, twice as far where it is doubled; 0 for none.
Key KeyOfStep(int step);

class ViewerMouse {
 public:
  explicit ViewerMouse(Viewing& shown) : viewing(shown) {}

  void Handle(const TMouseEvent& mouse);

  bool IsRepeating() const { return step != 0; }
  int WaitTime() const;  // milliseconds until the next step
  void Repeat();         // nothing before its time
  void Stop() { step = 0; }

 private:
  using Clock = std::chrono::steady_clock;

  void HandleBar(const TMouseEvent& mouse);
  void HandleText(const TMouseEvent& mouse);
  void TurnWheel(int delta);
  void Step();

  Viewing& viewing;
  Key barKey = 0;  // under the press
  int step = 0;
  bool pausesOnce = false;  // before the second step
  Clock::time_point due;
};
