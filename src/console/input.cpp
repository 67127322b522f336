// Reading the keyboard and mouse of the one console.
#include "console/input.h"

#include <atomic>

#include "console/console.h"
#include "console/event_translation.h"

int BreakState = 0;

namespace {

// The Break key is handled in the GUI thread.
std::atomic_ref<int> SharedBreakState() { return std::atomic_ref(BreakState); }

}  // namespace

void RequestBreak() {
  int armed = 1;
  SharedBreakState().compare_exchange_strong(armed, 2);
}

// Inside another scope nothing changes: a Break at any moment stops all of them.
BreakScope::BreakScope() {
  int off = 0;
  outermost = SharedBreakState().compare_exchange_strong(off, 1);
}

BreakScope::~BreakScope() {
  if (outermost) SharedBreakState() = 0;
}

bool BreakScope::Stopped() {
  if (SharedBreakState() == 2) return true;
  return Console != nullptr && Console->Events().TakeEscape();
}

bool KeyPending() { return Console->EventPending(); }

Key ReadKey(bool& timedOut, TMouseEvent* mouse, int timeoutMs) {
  return ReadKeyFrom(Console->Events(), timedOut, mouse, timeoutMs);
}

bool CheckEscape() { return CheckEscapeIn(Console->Events()); }
