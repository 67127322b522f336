// The focus of a dialog on its way between elements and groups.
#include <vector>

#include "dialogs/dialog.h"
#include "dialogs/focus_order.h"

namespace {

std::vector<FocusPlace> Places(const Dialog& dialog) {
  std::vector<FocusPlace> places;
  places.reserve(dialog.Count());
  for (int i = 0; i < dialog.Count(); ++i) {
    const DialogElement& element = *dialog.Element(i);
    places.push_back({element.group, element.groupCurrent, element.focusable, element.tabToFirst});
  }
  return places;
}

}  // namespace

bool Dialog::CanChangeFocus(int, int&) { return true; }

void Dialog::SetFocus(int i) {
  if (!IsElement(i) || i == focus) return;
  const int groupLast = GroupHead(i).groupCurrent;
  int target = i;
  if (!CanChangeFocus(focus, target) || !IsElement(target) || target == focus) return;
  const int old = focus;
  focus = target;
  GroupHead(target).groupCurrent = target;
  elements[target]->FocusChanged(true);
  elements[old]->FocusChanged(false);
  if (groupLast != old && groupLast != target && IsElement(groupLast))
    elements[groupLast]->FocusChanged(false);
  FocusChanged();
}

void Dialog::Move(int step) { SetFocus(NextInGroup(Places(*this), focus, step)); }

void Dialog::MoveGroup(int step) {
  SetFocus(NextGroup(Places(*this), focus, step));
  if (!elements[focus]->focusable) Move(step);
}

// Brings the focus to where the group of its element has it, and from an
// element that cannot take it to one that can.
void Dialog::SettleFocus() {
  SetFocus(GroupHead(focus).groupCurrent);
  if (!elements[focus]->focusable) Move(+1);
  if (!elements[focus]->focusable) MoveGroup(+1);
}
