// The keys of a field: what moves its cursor and what edits its text.
#include <algorithm>
#include <utility>

#include "config/values/options.h"
#include "dialogs/string_field.h"
#include "dialogs/text_clipboard.h"
#include "foundation/words.h"

namespace {

constexpr Key kShiftBit = 0x20000;      // of a shifted key's code
constexpr Key kLastCharacter = 0xFFFF;  // codes up to here are characters

}  // namespace

bool StringField::UseKey(Key key) {
  const bool quoted = std::exchange(quoteNext, false);
  const bool isCharacter = key <= kLastCharacter;
  const bool isCommand = !quoted || !isCharacter;
  if (isCommand && (UseMove(key) || UseEdit(key))) return true;
  if (isCharacter && (quoted || key >= ' ')) {
    Insert(Westring::Replicate(static_cast<wchar_t>(key), 1));
    return true;
  }
  // A key of the dialog.
  if ((key & kShiftBit) == 0) hasSelection = false;
  return false;
}

bool StringField::UseMove(Key key) {
  struct Row {
    Key key;  // without Shift; with it the key selects
    int (StringField::*place)() const;
  };
  static constexpr Row kRows[] = {
      {kHome, &StringField::Start},         {kEnd, &StringField::End},
      {kLeft, &StringField::CharacterLeft}, {kRight, &StringField::CharacterRight},
      {kCtrlLeft, &StringField::WordLeft},  {kCtrlRight, &StringField::WordRight},
  };
  for (const Row& row : kRows) {
    if (row.key != (key & ~kShiftBit)) continue;
    MoveTo((this->*row.place)(), (key & kShiftBit) != 0);
    return true;
  }
  return false;
}

bool StringField::UseEdit(Key key) {
  enum After { kDeselect, kKeepSelection };
  struct Row {
    Key key;
    void (StringField::*run)();
    After after;
  };
  static constexpr Row kRows[] = {
      {kBackspace, &StringField::DeleteLeft, kDeselect},
      {kCtrlBackspace, &StringField::DeleteWordLeft, kDeselect},
      {kDelete, &StringField::DeleteRight, kDeselect},
      {kCtrlDelete, &StringField::DeleteWordRight, kDeselect},
      {CtrlLetter('q'), &StringField::QuoteNext, kDeselect},
      {CtrlLetter('c'), &StringField::Copy, kKeepSelection},
      {kCtrlInsert, &StringField::Copy, kKeepSelection},
      {CtrlLetter('x'), &StringField::Cut, kDeselect},
      {kShiftDelete, &StringField::Cut, kDeselect},
      {CtrlLetter('v'), &StringField::Paste, kDeselect},
      {kShiftInsert, &StringField::Paste, kDeselect},
      {kAltDown, &StringField::ShowHistory, kDeselect},
  };
  for (const Row& row : kRows) {
    if (row.key != key) continue;
    (this->*row.run)();
    if (row.after == kDeselect) hasSelection = false;
    return true;
  }
  return false;
}

int StringField::CharacterLeft() const { return std::max(cursor - 1, 0); }

int StringField::CharacterRight() const { return std::min(cursor + 1, End()); }

int StringField::WordLeft() const { return WordStart(*text, cursor); }

int StringField::WordRight() const {
  return cursor + NextWord(text->Text() + cursor, Options::BriefWordRight);
}

void StringField::Replace(Range range, const Westring& with) {
  *text = ::Left(*text, range.from) + with + (text->Text() + range.to);
  cursor = range.from + Length(with);
  hasSelection = false;
}

void StringField::DeleteOr(Range range) {
  const Range selected = Selection();
  Replace(selected.IsEmpty() ? range : selected, L"");
}

void StringField::Insert(const Westring& inserted) {
  const Range replaced = firstKey ? Range{0, End()} : Selection();
  const int kept = End() - (replaced.to - replaced.from);
  if (kept + Length(inserted) <= maxLength) Replace(replaced, inserted);
  hasSelection = false;
}

void StringField::Copy() {
  const Range selected = Selection();
  if (!selected.IsEmpty()) {
    CopyToClipboard(Westring(text->Text() + selected.from, selected.to - selected.from));
  }
}

void StringField::Cut() {
  Copy();
  Replace(Selection(), L"");
}

// An empty clipboard is no reason to lose the text at the first key.
void StringField::Paste() {
  const Westring pasted = PasteFromClipboard();
  if (!pasted.IsEmpty()) Insert(pasted);
}

void StringField::ShowHistory() {
  if (HasHistory()) OpenHistory();
}
