// Regions of the text, and the pace of the steps.
#include "viewer/viewer_mouse.h"

#include <algorithm>

#include "config/values/options.h"
#include "console/console.h"
#include "dialogs/key_bar.h"

namespace {

constexpr int kWheelRows = 3;
constexpr int kSideStep = 4;  // and a step of a row is 1
constexpr int kPause = 200;   // milliseconds

// Without a pause between the steps nobody could stop where he wants to, and with
// the longest that an option can name nobody would live to see the second.
constexpr int kShortestDelay = 1, kLongestDelay = 3600000;

struct StepRow {
  int step;
  Key key;
};

constexpr StepRow kSteps[] = {
    {-2 * kSideStep, kCtrlLeft},
    {-kSideStep, kLeft},
    {-2, kPageUp},
    {-1, kUp},
    {1, kDown},
    {2, kPageDown},
    {kSideStep, kRight},
    {2 * kSideStep, kCtrlRight},
};

// -1, 0 or 1 for the third of length that place lies in.
int ThirdOf(int place, int length) { return std::clamp(place * 3 / std::max(length, 1), 0, 2) - 1; }

bool IsRelease(const TMouseEvent& mouse) {
  return mouse.kind == kMouseLeftRelease || mouse.kind == kMouseRightRelease;
}

bool IsPress(const TMouseEvent& mouse) {
  return mouse.kind == kMouseLeftPress || mouse.kind == kMouseLeftDouble || mouse.kind == kMouseRightPress;
}

bool IsRight(const TMouseEvent& mouse) {
  return mouse.kind == kMouseRightPress || mouse.kind == kMouseRightDrag;
}

int LastRow() { return ScreenRows - 1; }

}  // namespace

int StepAt(int x, int y, int columns, int rows) {
  const int third = ThirdOf(y, rows);
  return third != 0 ? third : kSideStep * ThirdOf(x, columns);
}

Key KeyOfStep(int step) {
  for (const StepRow& row : kSteps)
    if (row.step == step) return row.key;
  return 0;
}

void ViewerMouse::Handle(const TMouseEvent& mouse) {
  if (mouse.kind == kMouseWheel) {
    Stop();
    TurnWheel(mouse.delta);
  } else if (mouse.y == LastRow()) {
    Stop();
    HandleBar(mouse);
  } else if (IsRelease(mouse)) {
    Stop();
    barKey = 0;
  } else {
    HandleText(mouse);
  }
}

void ViewerMouse::HandleBar(const TMouseEvent& mouse) {
  const Key key = FKey(BarIndex(mouse.x, ScreenColumns) + 1);
  if (IsPress(mouse)) barKey = key;
  if (!IsRelease(mouse)) return;
  const bool isClicked = barKey == key;
  barKey = 0;
  if (isClicked) RunViewerKey(viewing, key);
}

// A drag inside of a region goes on at the pace that the press set.
void ViewerMouse::HandleText(const TMouseEvent& mouse) {
  const int wanted = StepAt(mouse.x, mouse.y, ScreenColumns, LastRow()) * (IsRight(mouse) ? 2 : 1);
  if (!IsPress(mouse) && wanted == step) return;
  step = wanted;
  pausesOnce = mouse.kind == kMouseRightPress;
  if (step != 0) Step();
}

void ViewerMouse::TurnWheel(int delta) {
  for (int i = 0; i < kWheelRows; ++i)
    if (!RunViewerKey(viewing, delta >= 0 ? kUp : kDown)) return;
}

int ViewerMouse::WaitTime() const {
  using std::chrono::ceil, std::chrono::milliseconds;
  return static_cast<int>(std::max<int64_t>(ceil<milliseconds>(due - Clock::now()).count(), 0));
}

void ViewerMouse::Repeat() {
  if (Clock::now() >= due) Step();
}

void ViewerMouse::Step() {
  if (!RunViewerKey(viewing, KeyOfStep(step))) return Stop();
  const int delay = std::clamp(Options::ScrollDelay, kShortestDelay, kLongestDelay);
  due = Clock::now() + std::chrono::milliseconds(delay + (pausesOnce ? kPause : 0));
  pausesOnce = false;
}
