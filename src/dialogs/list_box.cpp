// What a list shows and how it keeps to the caller's selection and to a count
// that changes under it. Keys, mouse and search have files of their own.
#include "dialogs/list_box.h"

#include <algorithm>

#include "config/values/colours.h"
#include "console/console.h"

namespace {

constexpr int kMostItems = 1 << 30;  // so that sums of rows and indices stay in range

}  // namespace

ListBoxBase::ListBoxBase(Dialog& dialog, int index, int x, int y, bool startGroup, int width, int height,
                         int count, int32_t* selection, int exitMode)
    : DialogElement(dialog, index, x, y, startGroup),
      width(std::max(width, 0)),
      height(std::max(height, 1)),
      count(std::clamp(count, 0, kMostItems)),
      selection(selection),
      exitMode(exitMode) {
  if (*selection >= this->count) *selection = NearestItem(*selection, this->count);
  ListView view = View();
  view.Show(std::max(*selection, 0));
  SetView(view);
}

ListBoxBase::~ListBoxBase() = default;

int ListBoxBase::HandleEvent(const DialogEvent& event) {
  if (event.type == kDialogListLength) return SetCount(event.code);
  if (event.type == kDialogListRepaint) return DrawAllNextTime();
  if (event.type == kDialogKey) return HandleKey(static_cast<Key>(event.code));
  return HandleMouse(event);
}

// A search belongs to the keys typed in a row: it does not wait for the focus.
void ListBoxBase::FocusChanged(bool hasFocus) {
  if (!hasFocus) EndSearch();
  Draw();
}

void ListBoxBase::Draw() {
  Settle();
  Console->BeginUpdate();
  if (top != lastTop) {
    for (int i = 0; i < height; ++i) DrawRow(i);
  } else {
    if (row != lastRow) DrawRow(lastRow);
    DrawRow(row);
  }
  Console->EndUpdate();
  lastTop = top;
  lastRow = row;
}

void ListBoxBase::DrawRow(int shownRow) {
  const bool highlighted = shownRow == row && HasFocus();
  DrawItem(shownRow, top + shownRow, Options::Colours[highlighted ? kColourMenuHighlight : kColourMenu]);
}

void ListBoxBase::DrawItem(int shownRow, int index, uint8_t attribute) {
  const Westring text = index < count ? GetItemText(index) : Westring();
  dialog.Print(x, y + shownRow, LJust(text, width), attribute);
}

void ListBoxBase::SetView(const ListView& view) {
  top = view.top;
  row = view.row;
}

void ListBoxBase::Settle() {
  *selection = NearestItem(*selection, count);
  ListView view = View();
  view.Show(std::max(*selection, 0));
  SetView(view);
}

void ListBoxBase::TakeSelection() {
  if (count > 0) *selection = View().Index();
  Draw();
}

// Comes from a worker, as the next one does: no drawing. Growth out of sight
// costs nothing.
int ListBoxBase::SetCount(int newCount) {
  const int before = View().ItemsInView();
  count = std::clamp(newCount, 0, kMostItems);
  if (View().ItemsInView() != before) DrawAllNextTime();
  return 1;
}

int ListBoxBase::DrawAllNextTime() {
  lastTop = -1;
  return 1;
}
