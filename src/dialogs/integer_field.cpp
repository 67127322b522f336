// IntegerField: a field whose text is a number.
#include <algorithm>
#include <cwchar>
#include <limits>

#include "dialogs/string_field.h"

namespace {

constexpr int kMostDigits = 18;

Westring DigitsOf(int32_t value) { return Westring(Estring::FromLong(value)); }

bool IsRefused(const DialogEvent& event) {
  if (event.type != kDialogKey || event.code < ' ' || event.code > 255) return false;
  return event.code < '0' || event.code > '9';
}

}  // namespace

int32_t FieldValue(const Westring& digits) {
  using Limits = std::numeric_limits<int32_t>;
  const int64_t value = wcstoll(digits.Text(), nullptr, 10);
  return static_cast<int32_t>(std::clamp<int64_t>(value, Limits::min(), Limits::max()));
}

int Dialog::AddIntegerField(int x, int y, bool startGroup, int32_t* value, int width, bool keepTyped,
                            int history) {
  return Add(new IntegerField(*this, count, x, y, startGroup, value, width, keepTyped, history));
}

// A full field has the cursor behind its last digit, and all digits in view.
IntegerField::IntegerField(Dialog& dialog, int index, int x, int y, bool startGroup, int32_t* value,
                           int width, bool keepTyped, int history)
    : FieldDigits{DigitsOf(*value)},
      StringField(dialog, index, x, y, startGroup, &digits, width, std::clamp(width, 0, kMostDigits),
                  history),
      value(value),
      keepTyped(keepTyped) {
  cursorOverhang = 1;
}

// A number that is rewritten keeps the cursor where it was from the end, so that
// typing into an emptied field goes on behind the "0" that it shows.
void IntegerField::Draw() {
  const Westring shown = DigitsOf(*value);
  const bool rewrite = !keepTyped || FieldValue(digits) != *value;
  if (rewrite && wcscmp(digits.Text(), shown.Text()) != 0) {
    const int distance = Length(digits) - cursor;
    digits = shown;
    MoveFromEnd(distance);
  }
  StringField::Draw();
}

int IntegerField::HandleEvent(const DialogEvent& event) {
  if (IsRefused(event)) {
    quoteNext = false;
    return 0;
  }
  if (!Use(event)) return 0;
  *value = FieldValue(digits);
  Draw();
  return 1;
}
