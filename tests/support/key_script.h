// Keys as a person says them: "Down F5 Esc 'text' Ctrl-O Alt-F1 Shift-Tab Grey+".
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// One step of a script.
struct KeyStroke {
  enum Kind { kKey, kText, kHold, kRelease };
  Kind kind = kKey;
  uint32_t modifiers = 0;  // Modifier bits held for a key, or those of a hold or release
  uint32_t keyval = 0;     // key symbol as the toolkit has it, letters in lower case
  uint32_t keycode = 0;    // hardware key code of a PC keyboard with US layout
  char32_t text = 0;       // the character of a kText
};

// The steps of a script, its words separated by blanks:
//   Down F5 Esc Enter x     a named key, or a character that is typed
//   Ctrl-O Alt-Shift-F9     a key with modifiers; a character is taken as it stands, "Alt-Shift-!"
//   Grey+ Pad7 PadEnter     the keypad
//   'some text'             typed text; a quote in it is doubled
//   +Ctrl -Ctrl             a modifier held from here on, and let go
// A word that is none of these ends the test program with a message: the
// script is wrong, not the program.
std::vector<KeyStroke> ParseKeys(const std::string& script);

// The key of a modifier bit, for whoever has to press it.
struct ModifierKey {
  uint32_t modifier, keyval, keycode;
};
inline constexpr ModifierKey kModifierKeys[] = {{1, 0xFFE1, 50}, {4, 0xFFE3, 37}, {8, 0xFFE9, 64}};
