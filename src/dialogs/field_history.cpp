// The list under a field, from which it takes what was entered before.
#include <algorithm>

#include "console/console.h"
#include "dialogs/list_box.h"
#include "dialogs/string_field.h"

namespace {

constexpr int kListRows = 6;
constexpr int kFrame = 1;  // cells on each side
constexpr int kBoxRows = kListRows + 2 * kFrame;

// The box hangs under the field's row; without room there it stands on it, and
// without room there either it covers it.
int TopOfBox(int fieldRow) {
  if (fieldRow + kBoxRows < ScreenRows) return fieldRow + 1;
  if (fieldRow >= kBoxRows) return fieldRow - kBoxRows;
  return std::max(ScreenRows - kBoxRows, 0);
}

}  // namespace

void StringField::OpenHistory() {
  WestringStore& items = DialogHistories[history];
  const int left = std::max(dialog.OriginX() + x - kFrame, 0);
  const int top = TopOfBox(dialog.OriginY() + y);
  Dialog box(left, top, left + width + 2 * kFrame - 1, top + kBoxRows - 1, dialog.Colour(kDialogText));
  for (DialogColour which : {kDialogText, kDialogField, kDialogFocused}) {
    box.SetColour(which, dialog.Colour(which));
  }
  int32_t selection = std::max(items.Count() - 1, 0);
  box.AddListBoxWestring(0, 0, true, width, kListRows, &items, &selection, kListDefault);
  if (box.Run() != kEnter || items.Count() == 0) return;
  Replace({0, End()}, ::Left(*items.Peek(selection), maxLength));
}
