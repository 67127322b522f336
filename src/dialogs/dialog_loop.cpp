// The modal loop: reading events and giving them to the elements.
#include <iterator>

#include "console/console.h"
#include "console/input.h"
#include "dialogs/dialog.h"
#include "foundation/fold.h"

namespace {

constexpr Key kLastByte = 255;         // exit codes up to here match in either case
constexpr Key kExtendedKey = 0x10000;  // the bit of Alt keys

constexpr DialogEventType kDropped = DialogEventType(0);

// By MouseKind.
constexpr DialogEventType kMouseEvents[] = {
    kDialogLeftPress,  kDialogRightPress,  kDialogLeftDrag,     kDropped,
    kDialogLeftDouble, kDialogLeftRelease, kDialogRightRelease, kDialogWheel,
};

DialogEventType TypeOfMouse(const TMouseEvent& mouse) {
  const bool known = mouse.kind >= 0 && mouse.kind < static_cast<int32_t>(std::size(kMouseEvents));
  return known ? kMouseEvents[mouse.kind] : kDropped;
}

// A dialog of mere texts could not be left by a key of its own.
bool HasControls(const Dialog& dialog) {
  for (int i = 0; i < dialog.Count(); ++i) {
    if (dialog.Element(i)->focusable || dialog.Element(i)->exitCode != 0) return true;
  }
  return false;
}

int FindExitCode(const Dialog& dialog, Key key) {
  for (int i = 0; i < dialog.Count(); ++i) {
    if (dialog.Element(i)->exitCode == key) return i;
  }
  return -1;
}

int FindHotLetter(const Dialog& dialog, Key character) {
  for (int i = 0; i < dialog.Count(); ++i) {
    if (static_cast<unsigned char>(dialog.HotLetter(i)) == character) return i;
  }
  return -1;
}

// The element that key activates wherever the focus is, or -1.
int FindActivated(const Dialog& dialog, Key key) {
  int found = FindExitCode(dialog, key);
  if (found < 0 && key <= kLastByte) found = FindExitCode(dialog, static_cast<Key>(LowerChar(key)));
  if (found < 0 && (key & kExtendedKey) != 0) found = FindHotLetter(dialog, AliasKey(key));
  return found;
}

}  // namespace

void GetDialogEvent(DialogEvent& event, int timeoutMs) {
  const bool limited = timeoutMs >= 0;
  while (true) {
    bool timedOut = false;
    TMouseEvent mouse;
    const Key key = ReadKey(timedOut, &mouse, timeoutMs);
    if (key == kModifierKey || (key == 0 && !limited)) continue;
    event = {};
    event.modifiers = mouse.modifiers;
    event.type = kDialogKey;
    event.code = static_cast<int32_t>(key);
    if (key == 0) event.type = kDialogTimeOut;
    if ((key & kMouseKey) != 0) {
      event.type = TypeOfMouse(mouse);
      event.code = event.type == kDialogWheel ? mouse.delta : 0;
      event.x = mouse.x;
      event.y = mouse.y;
    }
    if (event.type != kDropped) return;
  }
}

int Dialog::Run(int timeoutMs) {
  result = 0;
  Console->SetCursorSize(0);
  if (!HasControls(*this)) AddExitKey(kEscape);
  {
    MutexLock guard(lock);
    Redraw(-1);
  }
  while (result == 0) {
    {
      MutexLock guard(lock);
      SettleFocus();
      elements[focus]->Draw();
    }
    DialogEvent event;
    GetDialogEvent(event, timeoutMs);
    if (event.type == kDialogTimeOut) return 0;
    event.x -= originX;
    event.y -= originY;
    MutexLock guard(lock);
    Handle(event);
    // The release is still to come. It must not press what the dialog had
    // covered, nor what the next one brings under the pointer.
    if (result != 0 && event.type == kDialogLeftDouble) Console->Events().DropRestOfClick();
  }
  return result;
}

void Dialog::Handle(const DialogEvent& event) {
  const bool wasPressedOutside = pressedOutside;
  pressedOutside = false;
  if (event.type == kDialogRightRelease) {
    Accept();
  } else if (event.type == kDialogKey) {
    HandleKey(event);
  } else if (event.type >= kDialogLeftPress && event.type <= kDialogLeftDrag) {
    HandleMouse(event, wasPressedOutside);
  }
}

void Dialog::HandleKey(const DialogEvent& event) {
  const Key key = static_cast<Key>(event.code);
  if (elements[focus]->HandleEvent(event) != 0 || HandleLoopKey(key)) return;
  const int activated = FindActivated(*this, key);
  if (activated >= 0) elements[activated]->Activate();
}

bool Dialog::HandleLoopKey(Key key) {
  struct LoopKey {
    Key key;
    void (*run)(Dialog&);
  };
  static constexpr LoopKey kLoopKeys[] = {
      {kTab, [](Dialog& d) { d.MoveGroup(+1); }},        //
      {kEnter, [](Dialog& d) { d.Accept(); }},           //
      {kEscape, [](Dialog& d) { d.result = kEscape; }},  //
      {kUp, [](Dialog& d) { d.Move(-1); }},              //
      {kLeft, [](Dialog& d) { d.Move(-1); }},            //
      {kDown, [](Dialog& d) { d.Move(+1); }},            //
      {kRight, [](Dialog& d) { d.Move(+1); }},           //
      {kShiftTab, [](Dialog& d) { d.MoveGroup(-1); }},
  };
  for (const LoopKey& row : kLoopKeys) {
    if (row.key != key) continue;
    row.run(*this);
    return true;
  }
  return false;
}

// A click beside the window cancels: the press and the release both outside,
// and nothing between them.
void Dialog::HandleMouse(const DialogEvent& event, bool wasPressedOutside) {
  for (int i = 0; i < count; ++i) {
    if (elements[i]->HandleEvent(event) != 0) return;
  }
  const CellRect window{left, top, right, bottom};
  if (window.Contains(event.x + originX, event.y + originY)) return;
  pressedOutside = event.type == kDialogLeftPress;
  if (event.type == kDialogLeftRelease && wasPressedOutside) result = kEscape;
}
