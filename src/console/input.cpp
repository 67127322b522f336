// Reading the keyboard and mouse of the one console.
#include "console/input.h"

#include <atomic>

#include "console/console.h"
#include "console/event_translation.h"

int BreakState = 0;

// Also called from the GUI thread, by the Break key.
void RequestBreak() {
  int armed = 1;
  std::atomic_ref(BreakState).compare_exchange_strong(armed, 2);
}

bool BreakScope::Stopped() {
  if (std::atomic_ref(BreakState).load() == 2) return true;
  return Console != nullptr && Console->Events().TakeEscape();
}

bool KeyPending() { return Console->EventPending(); }

Key ReadKey(bool& timedOut, TMouseEvent* mouse, int timeoutMs) {
  return ReadKeyFrom(Console->Events(), timedOut, mouse, timeoutMs);
}

bool CheckEscape() { return CheckEscapeIn(Console->Events()); }
