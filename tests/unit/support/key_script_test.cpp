// The key scripts of the tests themselves.
#include "support/key_script.h"

#include <gtest/gtest.h>

#include "console/key_codes.h"

TEST(KeyScript, NamedKeyIsItsSymbolAndHardwareCode) {
  const auto strokes = ParseKeys("Down");
  ASSERT_EQ(strokes.size(), 1u);
  EXPECT_EQ(strokes[0].kind, KeyStroke::kKey);
  EXPECT_EQ(strokes[0].keyval, 0xFF54u);
  EXPECT_EQ(strokes[0].keycode, 116u);
}

TEST(KeyScript, ModifiersStandInFrontInAnyOrder) {
  EXPECT_EQ(ParseKeys("Alt-Shift-F9")[0].modifiers, uint32_t{kModAlt | kModShift});
  EXPECT_EQ(ParseKeys("Shift-Alt-F9")[0].modifiers, uint32_t{kModAlt | kModShift});
}

TEST(KeyScript, LoneCharacterIsTypedAndWithModifiersAKey) {
  EXPECT_EQ(ParseKeys("x")[0].kind, KeyStroke::kText);
  const KeyStroke chord = ParseKeys("Ctrl-O")[0];
  EXPECT_EQ(chord.kind, KeyStroke::kKey);
  EXPECT_EQ(chord.keyval, uint32_t{'o'});
}

TEST(KeyScript, DigitRowHasTheHardwareCodesTenToNineteen) {
  EXPECT_EQ(ParseKeys("Ctrl-1")[0].keycode, 10u);
  EXPECT_EQ(ParseKeys("Ctrl-0")[0].keycode, 19u);
  EXPECT_EQ(ParseKeys("Ctrl-Shift-!")[0].keycode, 10u);
}

TEST(KeyScript, MinusIsAKeyToo) {
  EXPECT_EQ(ParseKeys("-")[0].text, U'-');
  EXPECT_EQ(ParseKeys("Ctrl--")[0].keyval, uint32_t{'-'});
  EXPECT_EQ(ParseKeys("Ctrl-Grey-")[0].keyval, 0xFFADu);
}

TEST(KeyScript, QuotedTextKeepsBlanksAndDoubledQuotes) {
  const auto strokes = ParseKeys("'a ''b' Enter");
  ASSERT_EQ(strokes.size(), 5u);
  EXPECT_EQ(strokes[1].text, U' ');
  EXPECT_EQ(strokes[2].text, U'\'');
  EXPECT_EQ(strokes[3].text, U'b');
  EXPECT_EQ(strokes[4].keyval, 0xFF0Du);
}

TEST(KeyScript, TextIsReadAsUtf8) {
  const auto strokes = ParseKeys("'\xC3\xA4\xF0\x9F\x98\x80'");
  ASSERT_EQ(strokes.size(), 2u);
  EXPECT_EQ(strokes[0].text, U'\u00E4');
  EXPECT_EQ(strokes[1].text, U'\U0001F600');
}

TEST(KeyScript, ModifierIsHeldAndReleased) {
  const auto strokes = ParseKeys("+Ctrl F1 -Ctrl");
  ASSERT_EQ(strokes.size(), 3u);
  EXPECT_EQ(strokes[0].kind, KeyStroke::kHold);
  EXPECT_EQ(strokes[2].kind, KeyStroke::kRelease);
  EXPECT_EQ(strokes[2].modifiers, uint32_t{kModCtrl});
}

TEST(KeyScriptDeathTest, UnknownNameEndsTheTest) { EXPECT_DEATH(ParseKeys("Dwon"), "No such key"); }
