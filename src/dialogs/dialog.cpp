// Dialog: its life, its elements as a whole and their hot letters. The loop is
// in dialog_loop.cpp, the focus in dialog_focus.cpp.
#include "dialogs/dialog.h"

#include <algorithm>
#include <cctype>

#include "config/values/colours.h"
#include "console/console.h"

namespace {

constexpr int kDefaultCode = kEnter;  // what a dialog without buttons ends with

}  // namespace

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
