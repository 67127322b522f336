// Dialog: its elements, their groups and the focus. The loop is in
// dialog_loop.cpp.
#include "dialogs/dialog.h"

#include <algorithm>
#include <cctype>
#include <vector>

#include "config/values/colours.h"
#include "console/console.h"
#include "dialogs/focus_order.h"

namespace {

constexpr int kDefaultCode = kEnter;  // what a dialog without buttons ends with

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

// ---- elements --------------------------------------------------------------

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

// ---- the dialog's life -----------------------------------------------------

Dialog::Dialog(int left, int top, int right, int bottom, uint8_t attribute)
    : Win(left, top, right, bottom, attribute, attribute),
      colours{attribute, Options::Colours[kColourInputFields], Options::Colours[kColourInputFields]} {}

Dialog::~Dialog() {
  for (int i = 0; i < count; ++i) delete elements[i];
  Console->SetCursorSize(0);
}

int Dialog::Add(DialogElement* element) {
  if (count == kMaxElements) {
    delete element;
    return -1;
  }
  elements[count] = element;
  return count++;
}

void Dialog::Redraw(int i) {
  if (IsElement(i)) elements[i]->Draw();
  if (i != -1) return;
  Console->BeginUpdate();
  std::for_each(elements, elements + count, [](DialogElement* element) { element->Draw(); });
  Console->EndUpdate();
}

void Dialog::CommitAll() {
  std::for_each(elements, elements + count, [](DialogElement* element) { element->Commit(); });
}

int Dialog::SendEvent(int i, const DialogEvent& event) {
  MutexLock guard(lock);
  return IsElement(i) ? elements[i]->HandleEvent(event) : 0;
}

// ---- defaults and hot letters ----------------------------------------------

void Dialog::SetDefaultButton(int i) {
  if (!IsElement(i) || elements[i]->TypeId() != kTypePushButton) return;
  defaultResult = static_cast<int32_t>(elements[i]->exitCode);
  Redraw(-1);
}

void Dialog::Accept() { result = defaultResult != 0 ? defaultResult : kDefaultCode; }

void Dialog::SetHotLetters(const char* letters, int n) {
  hotLetterCount = std::clamp(n, 0, kMaxElements);
  std::copy_n(letters, hotLetterCount, hotLetters);
}

void Dialog::TakeHotLetter(int i, Estring& label) {
  const int mark = Find(label, kHotMark);
  if (mark < 0) return;
  const auto letter = static_cast<unsigned char>(label[mark + 1]);
  label = ::Left(label, mark) + (label.Text() + mark + 1);
  if (i < 0 || i >= kMaxElements) return;
  // Letters between the old count and this one are 0, or left from a longer
  // table that SetHotLetters cut short.
  if (i > hotLetterCount) std::fill(hotLetters + hotLetterCount, hotLetters + i, '\0');
  hotLetters[i] = static_cast<char>(tolower(letter));
  hotLetterCount = std::max(hotLetterCount, i + 1);
}

// ---- focus -----------------------------------------------------------------

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
