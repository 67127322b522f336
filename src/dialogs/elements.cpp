// The plain elements: what they show and what they do.
#include "dialogs/elements.h"

#include <algorithm>

StaticText::StaticText(Dialog& dialog, int index, int x, int y, const char* text, uint8_t attribute)
    : DialogElement(dialog, index, x, y, false),
      text(text),
      attribute(attribute != 0 ? attribute : dialog.Attribute()) {
  focusable = false;
}

void StaticText::Draw() {
  if (x < 0) {
    dialog.PrintCentredBytes(y, text, attribute);
  } else {
    dialog.PrintBytes(x, y, text, attribute);
  }
}

PushButton::PushButton(Dialog& dialog, int index, int x, int y, bool startGroup, Key code, const char* label)
    : DialogElement(dialog, index, x, y, startGroup), code(code), label(label) {
  exitCode = code;
  dialog.TakeHotLetter(index, this->label);
}

// The brackets of the default button stand out while another element has the
// focus: they tell what Enter does.
void PushButton::Draw() {
  const bool focused = HasFocus();
  const bool isDefault = static_cast<int32_t>(code) == dialog.DefaultResult();
  Estring letters;
  if (dialog.HotLetter(index) != 0) letters += dialog.HotLetter(index);
  if (isDefault && !focused) letters += "[]";
  dialog.PrintHighlighted(x, y, Face().Text(), letters.Text(),
                          dialog.Colour(focused ? kDialogFocused : kDialogText));
}

void PushButton::Activate() { dialog.SetResult(static_cast<int>(code)); }

int PushButton::HandleKey(Key key) {
  if (key != kEnter && key != ' ') return 0;
  Activate();
  return 1;
}

int PushButton::HandleEvent(const DialogEvent& event) {
  if (event.type == kDialogKey) return HandleKey(static_cast<Key>(event.code));
  const bool isMouse = event.type >= kDialogLeftPress && event.type <= kDialogLeftDrag;
  const bool isHere = event.y == y && event.x >= x && event.x < x + Length(Face());
  if (!isMouse || !isHere) return 0;
  if (event.type == kDialogLeftPress) dialog.SetFocus(index);
  if (event.type == kDialogLeftRelease) Activate();
  return 1;
}

ExitKey::ExitKey(Dialog& dialog, int index, Key code) : DialogElement(dialog, index, 0, 0, true), code(code) {
  exitCode = code;
  focusable = false;
}

void ExitKey::Activate() { dialog.SetResult(static_cast<int>(code)); }

ProgressIndicator::ProgressIndicator(Dialog& dialog, int index, int x, int y, const float* fraction,
                                     int width)
    : DialogElement(dialog, index, x, y, false), fraction(fraction), width(width) {
  focusable = false;
}

int FilledCells(float fraction, int width) {
  if (!(fraction > 0)) return 0;  // also what is no number
  return fraction < 1 ? std::min(static_cast<int>(static_cast<float>(width) * fraction), width) : width;
}

void ProgressIndicator::Draw() {
  constexpr wchar_t kFull = 0x2588, kEmpty = 0x2591;
  const int filled = FilledCells(*fraction, width);
  dialog.Print(x, y, Westring::Replicate(kFull, filled) + Westring::Replicate(kEmpty, width - filled));
}
