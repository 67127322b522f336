// What becomes of a press or release of a key, before any of it is done.
#pragma once

#include "console/key_codes.h"

// A key event as the toolkit reports it.
struct KeyPress {
  uint32_t keyval = 0;     // key symbol
  uint32_t state = 0;      // modifiers as they were before the event
  uint32_t hardware = 0;   // hardware key code
  bool release = false;
};

enum class KeyRoute {
  Drop,
  Break,        // ask the running operation to stop
  InputMethod,  // text, perhaps; its input method decides
  Queue,        // a key of the program
};

struct KeyDecision {
  KeyRoute route = KeyRoute::Drop;
  Key code = 0;
  uint32_t modifiers = 0;  // Modifier bits as they are after the event
};

KeyDecision DecideKey(const KeyPress& press);

// True for the digit keys of the top row with Control. The key's place counts
// and not its symbol, so that they work on every layout.
bool IsControlDigit(uint32_t hardware, uint32_t modifiers);
