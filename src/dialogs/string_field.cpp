// StringField: its life, its face and its mouse. The keys are in
// string_field_keys.cpp, the list of its history in field_history.cpp.
#include "dialogs/string_field.h"

#include <algorithm>

#include "console/console.h"

namespace {

constexpr int kCursorSize = 15;  // percent of the cell
constexpr wchar_t kHistoryArrow = 0x2193;

}  // namespace

int Dialog::AddStringField(int x, int y, bool startGroup, Westring* text, int width, int maxLength,
                           int history) {
  return Add(new StringField(*this, count, x, y, startGroup, text, width, maxLength, history));
}

StringField::StringField(Dialog& dialog, int index, int x, int y, bool startGroup, Westring* text, int width,
                         int maxLength, int history)
    : DialogElement(dialog, index, x, y, startGroup),
      text(text),
      width(std::max(width, 1)),
      maxLength(maxLength < 0 ? kMaxText : maxLength),
      history(history) {}

StringField::~StringField() {
  if (dialog.Result() != kEscape) StringField::Commit();
}

void StringField::Commit() { AddDialogHistory(*text, history); }

// ---- the face

// The owner may have changed the text since the last event.
void StringField::HoldWithinText() {
  const int length = Length(*text);
  cursor = std::clamp(cursor, 0, length);
  selectionStart = std::min(selectionStart, length);
  selectionEnd = std::min(selectionEnd, length);
}

void StringField::ScrollToCursor() {
  scrollLeft = std::min(scrollLeft, cursor);
  const bool isPastField = cursor - scrollLeft >= width + cursorOverhang;
  // Otherwise deleting at the end would leave a field that seems empty.
  const bool hidesAll = Selection().IsEmpty() && cursor == scrollLeft && cursor == Length(*text);
  if (isPastField || hidesAll) scrollLeft = std::clamp(cursor - width + 1 + cursorOverhang, 0, cursor);
}

void StringField::Draw() {
  HoldWithinText();
  ScrollToCursor();
  if (!HasFocus()) hasSelection = false;
  DrawText();
  if (HasHistory()) {
    dialog.Print(x + width, y, Westring::Replicate(kHistoryArrow, 1), dialog.Colour(kDialogText));
  }
  if (HasFocus()) dialog.GotoXY(x + cursor - scrollLeft, y);
  Console->SetCursorSize(HasFocus() ? kCursorSize : 0);
}

void StringField::DrawText() {
  CellString line(width);
  line.attribute = dialog.Colour(kDialogField);
  line.Append(text->Text() + scrollLeft, line.attribute, width);
  line.SetLength(width);
  const Range selected = Selection();
  const int end = std::min(selected.to - scrollLeft, width);
  for (int i = std::max(selected.from - scrollLeft, 0); i < end; ++i) {
    line[i].attribute = SwapNibbles(line.attribute);
  }
  dialog.PrintCellString(x, y, line);
}

// ---- events

int StringField::HandleEvent(const DialogEvent& event) {
  if (!Use(event)) return 0;
  Draw();
  return 1;
}

bool StringField::Use(const DialogEvent& event) {
  HoldWithinText();
  const bool isMouse = event.type >= kDialogLeftPress && event.type <= kDialogLeftDrag;
  if (event.type != kDialogKey && !isMouse) return false;
  const bool used = isMouse ? UseMouse(event) : UseKey(static_cast<Key>(event.code));
  if (used) firstKey = false;
  return used;
}

bool StringField::UseMouse(const DialogEvent& event) {
  const int cell = event.x - x;
  const bool isOnArrow = HasHistory() && event.y == y && cell == width;
  const bool isOnField = event.y == y && cell >= 0 && cell < width;
  const bool extends = event.type == kDialogLeftDrag || event.type == kDialogLeftRelease;
  if (!isOnField || !extends) hasSelection = false;
  if (isOnArrow) {
    dialog.SetFocus(index);
    OpenHistory();
  }
  if (!isOnField) return isOnArrow;
  // Where the user saw it; taking the focus may scroll.
  const int place = std::min(Length(*text), scrollLeft + cell);
  if (event.type == kDialogLeftPress) dialog.SetFocus(index);
  if (event.type != kDialogLeftDouble) MoveTo(place, extends);
  return true;
}

void StringField::MoveTo(int place, bool extendsSelection) {
  if (!hasSelection) selectionStart = cursor;
  hasSelection = extendsSelection;
  cursor = selectionEnd = place;
}

void StringField::MoveFromEnd(int distance) { cursor = std::max(Length(*text) - distance, 0); }

StringField::Range StringField::Selection() const {
  if (!hasSelection) return {cursor, cursor};
  return {std::min(selectionStart, selectionEnd), std::max(selectionStart, selectionEnd)};
}
