// The numbers of the keys: plain characters are themselves, extended keys are
// 0x10000 plus the PC scan code, with Shift and Control forms beside them.
#pragma once

#include <cstdint>

using Key = uint32_t;

// Toolkit modifier bits as they stand in events.
enum Modifier : uint32_t { kModShift = 1, kModCtrl = 4, kModAlt = 8, kModMask = 13 };

// Results of ReadKey that are no key.
constexpr Key kModifierKey = 0x10100;
constexpr Key kMouseKey = 0x200000;

constexpr Key CtrlLetter(char letter) { return static_cast<Key>(letter - 'a' + 1); }  // not i, m
constexpr Key CtrlDigit(int d) { return 0x40000u + static_cast<Key>(d); }             // top row
constexpr Key CtrlPadDigit(int d) { return 0x40030u + static_cast<Key>(d); }
constexpr Key CtrlShiftDigit(int d) { return 0x60000u + static_cast<Key>(d); }
constexpr Key CtrlShiftPadDigit(int d) { return 0x60030u + static_cast<Key>(d); }

// Function keys 1 to 10; F11 and F12 have codes of their own.
constexpr Key FKey(int n) { return 0x1003Au + static_cast<Key>(n); }
constexpr Key ShiftFKey(int n) { return 0x30053u + static_cast<Key>(n); }
constexpr Key CtrlFKey(int n) { return 0x1005Du + static_cast<Key>(n); }
constexpr Key AltFKey(int n) { return 0x10067u + static_cast<Key>(n); }
constexpr Key CtrlShiftFKey(int n) { return 0x3005Du + static_cast<Key>(n); }
constexpr Key AltShiftFKey(int n) { return 0x30067u + static_cast<Key>(n); }

enum : Key {
  kTab = 9,
  kCtrlEnter = 10,  // also Ctrl-J
  kEnter = 13,
  kEscape = 27,  // also Ctrl-[
  kCtrlBackslash = 28,
  kCtrlRightBracket = 29,
  kCtrlMinus = 31,
  kCtrlBackspace = 127,
  kCtrlShiftF = 0x20006,
  kCtrlShiftJ = 0x2000A,
  kCtrlShiftBackslash = 0x2001C,  // also Ctrl-Shift-'

  kHome = 0x10047, kShiftHome = 0x30047, kCtrlHome = 0x10077, kAltHome = 0x10097, kCtrlShiftHome = 0x30077,
  kUp = 0x10048, kShiftUp = 0x30048, kCtrlUp = 0x1008D, kAltUp = 0x10098,
  kPageUp = 0x10049, kShiftPageUp = 0x30049, kCtrlPageUp = 0x10084, kCtrlShiftPageUp = 0x30084,
  kLeft = 0x1004B, kShiftLeft = 0x3004B, kCtrlLeft = 0x10073, kAltLeft = 0x1009B, kCtrlShiftLeft = 0x30073,
  kRight = 0x1004D, kShiftRight = 0x3004D, kCtrlRight = 0x10074, kAltRight = 0x1009D,
  kCtrlShiftRight = 0x30074,
  kEnd = 0x1004F, kShiftEnd = 0x3004F, kCtrlEnd = 0x10075, kCtrlShiftEnd = 0x30075,
  kDown = 0x10050, kShiftDown = 0x30050, kCtrlDown = 0x10091, kAltDown = 0x100A0,
  kPageDown = 0x10051, kShiftPageDown = 0x30051, kCtrlPageDown = 0x10076, kCtrlShiftPageDown = 0x30076,
  kInsert = 0x10052, kShiftInsert = 0x30052, kCtrlInsert = 0x10092, kCtrlShiftInsert = 0x30092,
  kDelete = 0x10053, kShiftDelete = 0x30053, kCtrlDelete = 0x10093,

  kF11 = 0x10085, kF12 = 0x10086,

  kBackspace = 0x10101,
  kCtrlI = 0x10102,
  kCtrlM = 0x10103,
  kCtrlShiftM = 0x30103,
  kAltEnter = 0x1001C,
  kCtrlShiftEnter = 0x3001C,
  kAltBackspace = 0x1000E,
  kAltShiftBackspace = 0x3000E,
  kShiftTab = 0x3000F,
  kCtrlTab = 0x10094,
  kAltD = 0x10020,
  kAltBackslash = 0x1002B,

  kGreyPlus = 0x40002B, kCtrlGreyPlus = 0x10090, kAltGreyPlus = 0x1004E, kCtrlShiftGreyPlus = 0x30090,
  kGreyMinus = 0x40002D, kCtrlGreyMinus = 0x1008E, kAltGreyMinus = 0x1004A, kCtrlShiftGreyMinus = 0x3008E,
  kGreyStar = 0x40002A,
};

// The table row that a key press matches: keyval is the toolkit's key symbol
// with letters folded to lower case, modifiers its state masked with kModMask.
// 0 if there is none and the key belongs to the input method.
Key FindKeyRow(uint32_t keyval, uint32_t modifiers);

// The character of an Alt or Alt-Shift key code, or the code itself.
Key AliasKey(Key code);
