// What all elements of a dialog have in common.
#include "dialogs/dialog.h"

DialogElement::DialogElement(Dialog& owner, int index, int x, int y, bool startGroup)
    : dialog(owner), index(index), x(x), y(y), groupCurrent(index), tabToFirst(startGroup) {
  const bool fits = owner.count < Dialog::kMaxElements;
  if (fits && (startGroup || index == 0)) owner.currentGroup = index;
  group = owner.currentGroup;
  if (fits) owner.elements[owner.count] = this;
}

int DialogElement::HandleEvent(const DialogEvent&) { return 0; }

void DialogElement::Activate() { dialog.SetFocus(index); }

void DialogElement::FocusChanged(bool) { Draw(); }

bool DialogElement::HasFocus() const { return dialog.Focus() == index; }
