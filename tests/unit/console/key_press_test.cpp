// What becomes of key presses and releases.
#include "console/key_press.h"

#include <gtest/gtest.h>

namespace {

constexpr uint32_t kSymShiftL = 0xFFE1, kSymControlR = 0xFFE4, kSymAltL = 0xFFE9, kSymMetaL = 0xFFE7;
constexpr uint32_t kLockMask = 2, kNumLockMask = 16;
constexpr uint32_t kHardwareA = 38;

void ExpectKey(const KeyPress& press, Key code, uint32_t modifiers) {
  const KeyDecision decision = DecideKey(press);
  EXPECT_EQ(decision.route, KeyRoute::Queue);
  EXPECT_EQ(decision.code, code);
  EXPECT_EQ(decision.modifiers, modifiers);
}

}  // namespace

TEST(KeyPresses, AModifiersPressSetsItsBitAndItsReleaseClearsIt) {
  ExpectKey({kSymShiftL, 0, 50, false}, kModifierKey, kModShift);
  ExpectKey({kSymShiftL, kModShift, 50, true}, kModifierKey, 0);
  ExpectKey({kSymControlR, kModShift, 105, false}, kModifierKey, kModShift | kModCtrl);
  ExpectKey({kSymAltL, kModAlt | kModShift, 64, true}, kModifierKey, kModShift);
}

TEST(KeyPresses, AltUnderShiftIsStillAlt) {
  ExpectKey({kSymMetaL, kModShift, 64, false}, kModifierKey, kModShift | kModAlt);
}

TEST(KeyPresses, ReleasesOfOtherKeysAreDropped) {
  EXPECT_EQ(DecideKey({'a', 0, kHardwareA, true}).route, KeyRoute::Drop);
  EXPECT_EQ(DecideKey({0xFFBE, 0, 67, true}).route, KeyRoute::Drop);
}

TEST(KeyPresses, BreakIsForTheRunningOperation) {
  EXPECT_EQ(DecideKey({0xFF6B, kModCtrl, 127, false}).route, KeyRoute::Break);
}

TEST(KeyPresses, LettersAreFoldedSoThatCapsLockMakesNoDifference) {
  ExpectKey({'Q', kModAlt | kLockMask, 24, false}, 0x10010, kModAlt);
  ExpectKey({'q', kModAlt, 24, false}, 0x10010, kModAlt);
  ExpectKey({'F', kModCtrl | kModShift, 41, false}, 0x20006, kModCtrl | kModShift);
}

TEST(KeyPresses, OtherLocksAreIgnored) {
  ExpectKey({0xFFBE, kNumLockMask | kLockMask, 67, false}, FKey(1), 0);
}

TEST(KeyPresses, TextGoesToTheInputMethod) {
  EXPECT_EQ(DecideKey({'a', 0, kHardwareA, false}).route, KeyRoute::InputMethod);
  EXPECT_EQ(DecideKey({'A', kModShift, kHardwareA, false}).route, KeyRoute::InputMethod);
  EXPECT_EQ(DecideKey({0xFE51, 0, 48, false}).route, KeyRoute::InputMethod);
}

TEST(KeyPresses, ControlOnTheDigitRowKeepsTheSymbolWhateverItIs) {
  ExpectKey({'1', kModCtrl, 10, false}, '1', kModCtrl);
  ExpectKey({'&', kModCtrl, 10, false}, '&', kModCtrl);  // a layout with symbols there
  ExpectKey({'-', kModCtrl, 15, false}, '-', kModCtrl);  // not the row of Ctrl-minus
  ExpectKey({'@', kModCtrl | kModShift, 11, false}, '@', kModCtrl | kModShift);
  ExpectKey({'-', kModCtrl, 20, false}, kCtrlMinus, kModCtrl);
}

TEST(KeyPresses, OnlyTheTenKeysOfTheRowAreControlDigits) {
  EXPECT_FALSE(IsControlDigit(9, kModCtrl));
  EXPECT_TRUE(IsControlDigit(10, kModCtrl));
  EXPECT_TRUE(IsControlDigit(19, kModCtrl | kModAlt));
  EXPECT_FALSE(IsControlDigit(20, kModCtrl));
  EXPECT_FALSE(IsControlDigit(10, kModShift));
}
