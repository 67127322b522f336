// Check boxes of two and of three states, and radio buttons.
#include "dialogs/choice_boxes.h"

#include "console/console.h"

namespace {

constexpr int kBoxCells = 3;           // "[X]", "(*)"
constexpr int kCheckLabelGap = 2;      // between a check box and its label
constexpr int kRadioLabelOffset = 4;   // from the button's first cell
constexpr int kCursorSize = 15;        // percent
constexpr wchar_t kPartlyMark = 0xB7;  // a dot in the middle
constexpr wchar_t kRadioMark = 0x2022;

// The three cells of a box, with the cursor on its mark while it has the focus.
void DrawBox(const DialogElement& element, wchar_t open, wchar_t mark, wchar_t close) {
  const wchar_t box[] = {open, mark, close, 0};
  element.dialog.Print(element.x, element.y, box, element.dialog.Colour(kDialogText));
  if (!element.HasFocus()) return;
  element.dialog.GotoXY(element.x + 1, element.y);
  Console->SetCursorSize(kCursorSize);
}

void DrawLabel(const DialogElement& element, int x, const Estring& label) {
  const char letters[] = {element.dialog.HotLetter(element.index), 0};
  element.dialog.PrintHighlighted(x, element.y, label.Text(), letters, element.dialog.Colour(kDialogText));
}

// The element that has the focus now shows the cursor again, if it has one,
// before the dialog waits.
void HideCursor() { Console->SetCursorSize(0); }

}  // namespace

CheckBox::CheckBox(Dialog& dialog, int index, int x, int y, bool startGroup, uint8_t* value,
                   const char* label, bool labelRight)
    : DialogElement(dialog, index, x, y, startGroup), value(value), label(label), labelRight(labelRight) {
  dialog.TakeHotLetter(index, this->label);
}

wchar_t CheckBox::Mark() const { return *value != 0 ? L'X' : L' '; }

void CheckBox::Toggle() { *value = *value == 0; }

void CheckBox::Turn(bool on) { *value = on; }

int CheckBox::LabelX() const {
  return labelRight ? x + kBoxCells + kCheckLabelGap : x - kCheckLabelGap - Length(label);
}

bool CheckBox::IsOnBox(int column) const { return column >= x && column < x + kBoxCells; }

bool CheckBox::IsOnLabel(int column) const { return column >= LabelX() && column < LabelX() + Length(label); }

void CheckBox::Draw() {
  DrawLabel(*this, LabelX(), label);
  DrawBox(*this, L'[', Mark(), L']');
}

void CheckBox::FocusChanged(bool hasFocus) {
  if (!hasFocus) HideCursor();
  Draw();
}

void CheckBox::Activate() {
  dialog.SetFocus(index);
  HandleKey(' ');
}

void CheckBox::HandleKey(Key key) {
  if (key == ' ') {
    Toggle();
  } else if (key == kInsert || key == kDelete) {
    Turn(key == kInsert);
  } else {
    return;
  }
  Draw();
}

// A key stays unused even if it changed the box: the dialog may know it as well.
int CheckBox::HandleEvent(const DialogEvent& event) {
  if (event.type == kDialogKey) {
    HandleKey(static_cast<Key>(event.code));
    return 0;
  }
  if (event.y != y || (!IsOnBox(event.x) && !IsOnLabel(event.x))) return 0;
  if (event.type == kDialogLeftPress) {
    dialog.SetFocus(index);
    return 1;
  }
  if (event.type == kDialogLeftRelease) {
    Toggle();
    Draw();
    return 1;
  }
  return 0;
}

wchar_t CheckBox3S::Mark() const { return *value == 0 ? L' ' : *value == 1 ? kPartlyMark : L'X'; }

void CheckBox3S::Toggle() { *value = static_cast<uint8_t>((*value + 1) % 3); }

// With three states there is no plain "on": Insert goes one further, and Delete
// leaves the box as it is.
void CheckBox3S::Turn(bool on) {
  if (on) Toggle();
}

RadioButton::RadioButton(Dialog& dialog, int index, int x, int y, bool startGroup, int32_t* value,
                         int32_t myValue, const char* label)
    : DialogElement(dialog, index, x, y, startGroup), value(value), myValue(myValue), label(label) {
  dialog.TakeHotLetter(index, this->label);
  if (dialog.Element(index) != this) return;  // the dialog is full
  // The focus enters the group at the selected button. It would change the
  // choice if Tab led to the first one.
  DialogElement& head = *dialog.Element(group);
  head.tabToFirst = false;
  if (*value == myValue) head.groupCurrent = index;
}

void RadioButton::Draw() {
  DrawLabel(*this, x + kRadioLabelOffset, label);
  DrawBox(*this, L'(', *value == myValue ? kRadioMark : L' ', L')');
}

void RadioButton::FocusChanged(bool hasFocus) {
  if (hasFocus) {
    *value = myValue;
  } else {
    HideCursor();
  }
  Draw();
}

int RadioButton::HandleEvent(const DialogEvent& event) {
  const bool isHere = event.y == y && event.x >= x && event.x < x + kBoxCells;
  if (event.type != kDialogLeftPress || !isHere) return 0;
  dialog.SetFocus(index);
  return 1;
}

int Dialog::AddCheckBox(int x, int y, bool startGroup, bool* value, const char* label, bool labelRight) {
  static_assert(sizeof(bool) == sizeof(uint8_t));
  auto* byte = reinterpret_cast<uint8_t*>(value);  // only 0 and 1 are written to it
  return Add(new CheckBox(*this, count, x, y, startGroup, byte, label, labelRight));
}

int Dialog::AddCheckBox3S(int x, int y, bool startGroup, uint8_t* value, const char* label, bool labelRight) {
  return Add(new CheckBox3S(*this, count, x, y, startGroup, value, label, labelRight));
}

int Dialog::AddRadioButton(int x, int y, bool startGroup, int32_t* value, int32_t myValue,
                           const char* label) {
  return Add(new RadioButton(*this, count, x, y, startGroup, value, myValue, label));
}
