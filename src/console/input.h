// The application's reading of keyboard and mouse.
#pragma once

#include <cstdint>

#include "console/key_codes.h"

enum MouseKind : int32_t {
  kMouseLeftPress = 0,
  kMouseRightPress = 1,  // also a right double click
  kMouseLeftDrag = 2,
  kMouseRightDrag = 3,
  kMouseLeftDouble = 4,
  kMouseLeftRelease = 5,
  kMouseRightRelease = 6,
  kMouseWheel = 7,
};

struct TMouseEvent {
  int32_t kind = 0;
  int32_t x = 0, y = 0;  // cells
  uint16_t modifiers = 0;
  int16_t delta = 0;  // wheel: +1 up, -1 down
};

// Modifiers as of the last event read, and as of the last key returned.
extern uint32_t CurrentModifiers;
extern uint32_t ReportedModifiers;

// 0 off, 1 armed, 2 the user asked to stop. Code that runs long arms it and
// puts it back after; BreakScope does both.
extern int BreakState;
void RequestBreak();  // 1 becomes 2

class BreakScope {
 public:
  BreakScope();
  ~BreakScope();
  BreakScope(const BreakScope&) = delete;
  BreakScope& operator=(const BreakScope&) = delete;
  // True once Break was pressed or Escape is among the waiting keys. Costs no
  // system call while nothing is queued.
  bool Stopped();

 private:
  bool outermost;
};

// Called by ReadKey before it waits and after each second without an event;
// null for none.
extern void (*IdleHook)();

bool KeyPending();

// The next key code; kModifierKey when the modifiers changed; kMouseKey with
// mouse filled in; 0 when timeoutMs ran out or the event means nothing. A
// negative timeoutMs waits without limit. timedOut is only ever cleared.
Key ReadKey(bool& timedOut, TMouseEvent* mouse, int timeoutMs);

// Takes one event, if there is one, and tells whether it was Escape. Any other
// event it takes is lost.
bool CheckEscape();
