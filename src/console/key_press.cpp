// The road of a key from the toolkit to the program.
#include "console/key_press.h"

namespace {

constexpr uint32_t kSymBreak = 0xFF6B;

struct ModifierKey {
  uint32_t symbol;
  uint32_t bit;
};

// Alt is also reported as Meta while Shift is held.
constexpr ModifierKey kModifierKeys[] = {
    {0xFFE1, kModShift}, {0xFFE2, kModShift}, {0xFFE3, kModCtrl}, {0xFFE4, kModCtrl},
    {0xFFE9, kModAlt},   {0xFFEA, kModAlt},   {0xFFE7, kModAlt},  {0xFFE8, kModAlt},
};

// The modifier that a key itself stands for, or 0.
uint32_t ModifierOf(uint32_t keyval) {
  for (const ModifierKey& row : kModifierKeys) {
    if (row.symbol == keyval) return row.bit;
  }
  return 0;
}

// Caps Lock and Shift make no other key of a letter.
uint32_t FoldLetter(uint32_t keyval) { return keyval >= 'A' && keyval <= 'Z' ? keyval - 'A' + 'a' : keyval; }

}  // namespace

bool IsControlDigit(uint32_t hardware, uint32_t modifiers) {
  return (modifiers & kModCtrl) != 0 && hardware >= 10 && hardware <= 19;
}

KeyDecision DecideKey(const KeyPress& press) {
  if (press.keyval == kSymBreak) return {KeyRoute::Break, 0, 0};
  const uint32_t own = ModifierOf(press.keyval);
  if (press.release && own == 0) return {};

  // A modifier's own bit is missing at its press and still there at its
  // release; flipping it gives the state after the change.
  const uint32_t modifiers = (press.state ^ own) & kModMask;
  const uint32_t keyval = FoldLetter(press.keyval);
  const Key code = IsControlDigit(press.hardware, modifiers) ? keyval : FindKeyRow(keyval, modifiers);
  return {code != 0 ? KeyRoute::Queue : KeyRoute::InputMethod, code, modifiers};
}
