// The mouse in a list: on its rows, and on the rows next to it, where a button
// held down scrolls.
#include <algorithm>
#include <chrono>
#include <thread>

#include "config/values/options.h"
#include "console/input.h"
#include "dialogs/list_box.h"

namespace {

// Waits, but not past the next event: a large delay must not hold up a release.
void PauseBetweenSteps(int milliseconds) {
  constexpr int kSlice = 10;
  for (; milliseconds > 0 && !KeyPending(); milliseconds -= kSlice) {
    std::this_thread::sleep_for(std::chrono::milliseconds(std::min(milliseconds, kSlice)));
  }
}

}  // namespace

int ListBoxBase::HandleMouse(const DialogEvent& event) {
  const bool isMouse = event.type >= kDialogLeftPress && event.type <= kDialogLeftDrag;
  if (!isMouse || event.x < x || event.x >= x + width) return 0;
  const auto type = static_cast<DialogEventType>(event.type);
  const int shownRow = event.y - y;
  if (shownRow == -1) return ScrollFrom(type, 0, &ListView::ScrollUp);
  if (shownRow == height) return ScrollFrom(type, height - 1, &ListView::ScrollDown);
  return shownRow >= 0 && shownRow < height ? MouseOnRow(type, shownRow) : 0;
}

ListView ListBoxBase::PointAt(int shownRow) {
  EndSearch();
  dialog.SetFocus(index);
  Settle();
  ListView view = View();
  view.PointAt(shownRow);
  SetView(view);
  TakeSelection();
  return view;
}

int ListBoxBase::MouseOnRow(DialogEventType type, int shownRow) {
  const ListView view = PointAt(shownRow);
  if (!view.HasItemAt(shownRow)) return 1;
  if (type == kDialogLeftDouble) Confirm();
  if (type == kDialogLeftRelease && exitMode == kListAnyKey) dialog.Accept();
  return 1;
}

// Goes on while the button stays down, that is until the next event. A release
// belongs to whatever else is there.
int ListBoxBase::ScrollFrom(DialogEventType type, int shownRow, bool (ListView::*scroll)()) {
  if (type == kDialogLeftRelease) return 0;
  ListView view = PointAt(shownRow);
  while (!KeyPending() && (view.*scroll)()) {
    SetView(view);
    TakeSelection();
    PauseBetweenSteps(Options::ScrollDelay);
  }
  return 1;
}
