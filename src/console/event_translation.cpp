// Reading keys and mouse from a queue. Start at ReadKeyFrom().
#include "console/event_translation.h"

#include <memory>

#include "console/key_press.h"

uint32_t CurrentModifiers = 0;
uint32_t ReportedModifiers = 0;
void (*IdleHook)() = nullptr;

namespace {

struct MouseRow {
  EventType type;
  int button;
  MouseKind kind;
};

constexpr MouseRow kMouseTable[] = {
    {kEventPress, 1, kMouseLeftPress},        {kEventPress, 2, kMouseRightPress},
    {kEventRelease, 1, kMouseLeftRelease},    {kEventRelease, 2, kMouseRightRelease},
    {kEventMotion, 1, kMouseLeftDrag},        {kEventMotion, 2, kMouseRightDrag},
    {kEventDoubleClick, 1, kMouseLeftDouble}, {kEventDoubleClick, 2, kMouseRightPress},
};

int KindOfMouse(const TEvent& event) {
  if (event.type == kEventWheel) return kMouseWheel;
  for (const MouseRow& row : kMouseTable) {
    if (row.type == event.type && row.button == event.code) return row.kind;
  }
  return -1;
}

constexpr uint32_t kIdlePeriodMs = 1000;

void RunIdleHook() {
  if (IdleHook != nullptr) IdleHook();
}

// Without a limit the wait comes up once a second for the idle hook.
bool WaitForEvent(CEventQueue& queue, TEvent& event, int timeoutMs) {
  RunIdleHook();
  if (timeoutMs >= 0) return TakeEvent(queue, event, static_cast<uint32_t>(timeoutMs));
  while (!TakeEvent(queue, event, kIdlePeriodMs)) RunIdleHook();
  return true;
}

}  // namespace

Key KeyOfEvent(const TEvent& event) {
  if (!IsControlDigit(event.keycode, event.modifiers)) return static_cast<Key>(event.code);
  const int digit = (event.keycode - 9) % 10;  // the row is 1 to 9, then 0
  return (event.modifiers & kModShift) != 0 ? CtrlShiftDigit(digit) : CtrlDigit(digit);
}

bool TranslateMouse(const TEvent& event, TMouseEvent& mouse) {
  const int kind = KindOfMouse(event);
  if (kind < 0) return false;
  mouse.kind = kind;
  mouse.x = event.x;
  mouse.y = event.y;
  mouse.modifiers = static_cast<uint16_t>(event.modifiers);
  mouse.delta = static_cast<int16_t>(event.type == kEventWheel ? event.code : 0);
  return true;
}

bool TakeEvent(CEventQueue& queue, TEvent& event, uint32_t timeoutMs) {
  const std::unique_ptr<TEvent> taken(queue.Get(timeoutMs));
  if (taken == nullptr || queue.IsRestOfClick(*taken)) return false;
  event = *taken;
  return true;
}

Key ReadKeyFrom(CEventQueue& queue, bool& timedOut, TMouseEvent* mouse, int timeoutMs) {
  timedOut = false;
  TMouseEvent unwanted;
  TMouseEvent& target = mouse != nullptr ? *mouse : unwanted;
  if (CurrentModifiers != ReportedModifiers) {
    ReportedModifiers = CurrentModifiers;
    target.modifiers = static_cast<uint16_t>(CurrentModifiers);
    return kModifierKey;
  }

  TEvent event;
  if (!WaitForEvent(queue, event, timeoutMs)) return 0;
  CurrentModifiers = static_cast<uint32_t>(event.modifiers);
  if (event.type != kEventKey) return TranslateMouse(event, target) ? kMouseKey : 0;
  target.modifiers = static_cast<uint16_t>(event.modifiers);
  ReportedModifiers = CurrentModifiers;
  return KeyOfEvent(event);
}

bool CheckEscapeIn(CEventQueue& queue) {
  TEvent event;
  if (!TakeEvent(queue, event, 0)) return false;
  CurrentModifiers = static_cast<uint32_t>(event.modifiers);
  return event.type == kEventKey && event.code == kEscape;
}
