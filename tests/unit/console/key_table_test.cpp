// The numbers of the keys.
#include <gtest/gtest.h>

#include <string>

#include "console/key_codes.h"

namespace {

// Columns of the tests' tables, in the order of the modifiers below.
constexpr uint32_t kMasks[] = {0, kModShift, kModCtrl, kModAlt, kModCtrl | kModShift, kModAlt | kModShift};

struct Expected {
  const char* name;
  uint32_t symbol;
  Key codes[6];  // 0: no row
};

void ExpectRow(const Expected& row) {
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(FindKeyRow(row.symbol, kMasks[i]), row.codes[i]) << row.name << " column " << i;
  }
}

// Codes in a row from first have the characters of the text.
void ExpectAliases(Key first, const std::string& characters) {
  for (size_t i = 0; i < characters.size(); ++i) {
    EXPECT_EQ(AliasKey(first + static_cast<Key>(i)), static_cast<Key>(characters[i]));
  }
}

constexpr uint32_t kF1 = 0xFFBE;

}  // namespace

TEST(KeyTable, FunctionKeysOneToTen) {
  for (uint32_t i = 0; i < 10; ++i) {
    ExpectRow({"F", kF1 + i, {0x1003B + i, 0x30054 + i, 0x1005E + i, 0x10068 + i, 0x3005E + i, 0x30068 + i}});
  }
}

TEST(KeyTable, FunctionKeysElevenAndTwelveHaveCodesOfTheirOwn) {
  ExpectRow({"F11", kF1 + 10, {0x10085, 0x30087, 0x10089, 0x1008B, 0x30089, 0x3008B}});
  ExpectRow({"F12", kF1 + 11, {0x10086, 0x30088, 0x1008A, 0x1008C, 0x3008A, 0x3008C}});
}

TEST(KeyTable, MovementAndEditingKeys) {
  constexpr Expected kRows[] = {
      {"Home", 0xFF50, {0x10047, 0x30047, 0x10077, 0x10097, 0x30077, 0}},
      {"Left", 0xFF51, {0x1004B, 0x3004B, 0x10073, 0x1009B, 0x30073, 0}},
      {"Up", 0xFF52, {0x10048, 0x30048, 0x1008D, 0x10098, 0, 0}},
      {"Right", 0xFF53, {0x1004D, 0x3004D, 0x10074, 0x1009D, 0x30074, 0}},
      {"Down", 0xFF54, {0x10050, 0x30050, 0x10091, 0x100A0, 0, 0}},
      {"PageUp", 0xFF55, {0x10049, 0x30049, 0x10084, 0, 0x30084, 0}},
      {"PageDown", 0xFF56, {0x10051, 0x30051, 0x10076, 0, 0x30076, 0}},
      {"End", 0xFF57, {0x1004F, 0x3004F, 0x10075, 0, 0x30075, 0}},
      {"Insert", 0xFF63, {0x10052, 0x30052, 0x10092, 0, 0x30092, 0}},
      {"Delete", 0xFFFF, {0x10053, 0x30053, 0x10093, 0, 0, 0}},
      {"Enter", 0xFF0D, {13, 13, 10, 0x1001C, 0x3001C, 0}},
      {"Backspace", 0xFF08, {0x10101, 0, 127, 0x1000E, 0, 0x3000E}},
      {"Tab", 0xFF09, {9, 0, 0x10094, 0, 0, 0}},
      {"ISO_Left_Tab", 0xFE20, {0, 0x3000F, 0, 0, 0, 0}},
      {"Escape", 0xFF1B, {27, 0, 0, 0, 0, 0}},
      {"keypad Enter", 0xFF8D, {13, 0, 0, 0, 0, 0}},
  };
  for (const Expected& row : kRows) ExpectRow(row);
}

TEST(KeyTable, GreyKeysOfTheKeypad) {
  ExpectRow({"+", 0xFFAB, {0x40002B, 0, 0x10090, 0x1004E, 0x30090, 0}});
  ExpectRow({"-", 0xFFAD, {0x40002D, 0, 0x1008E, 0x1004A, 0x3008E, 0}});
  ExpectRow({"*", 0xFFAA, {0x40002A, 0, 0, 0, 0, 0}});
}

TEST(KeyTable, KeypadKeysMoveAndCountWithControlInBothForms) {
  // The cursor form of each digit, and its plain code.
  constexpr uint32_t kForms[] = {0xFF9E, 0xFF9C, 0xFF99, 0xFF9B, 0xFF96,
                                 0xFF9D, 0xFF98, 0xFF95, 0xFF97, 0xFF9A};
  constexpr Key kPlain[] = {0x10052, 0x1004F, 0x10050, 0x10051, 0x1004B,
                            0,       0x1004D, 0x10047, 0x10048, 0x10049};
  for (uint32_t d = 0; d < 10; ++d) {
    const Key shiftInsert = d == 0 ? 0x30052 : 0;
    ExpectRow({"cursor form", kForms[d], {kPlain[d], 0, 0x40030 + d, 0, 0x60030 + d, 0}});
    ExpectRow({"digit", 0xFFB0 + d, {0, shiftInsert, 0x40030 + d, 0, 0x60030 + d, 0}});
  }
}

TEST(KeyTable, KeypadDeleteAndDecimal) {
  ExpectRow({"keypad Delete", 0xFF9F, {0x10053, 0, 0x10093, 0, 0, 0}});
  ExpectRow({"keypad decimal", 0xFFAE, {0, 0x30053, 0, 0, 0, 0}});
}

TEST(KeyTable, AltLettersAreScanCodes) {
  constexpr Key kCodes[] = {
      0x1001E, 0x10030, 0x1002E, 0x10020, 0x10012, 0x10021, 0x10022, 0x10023, 0x10017,  // a to i
      0x10024, 0x10025, 0x10026, 0x10032, 0x10031, 0x10018, 0x10019, 0x10010, 0x10013,  // j to r
      0x1001F, 0x10014, 0x10016, 0x1002F, 0x10011, 0x1002D, 0x10015, 0x1002C,           // s to z
  };
  for (uint32_t i = 0; i < 26; ++i) {
    EXPECT_EQ(FindKeyRow('a' + i, kModAlt), kCodes[i]) << static_cast<char>('a' + i);
  }
}

TEST(KeyTable, ControlLettersAreControlCodesButForIAndM) {
  for (uint32_t i = 0; i < 26; ++i) {
    Key expected = 1 + i;
    if (i == 'i' - 'a') expected = 0x10102;
    if (i == 'm' - 'a') expected = 0x10103;
    EXPECT_EQ(FindKeyRow('a' + i, kModCtrl), expected) << static_cast<char>('a' + i);
  }
}

TEST(KeyTable, ControlShiftLettersAreFew) {
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    Key expected = 0;
    if (letter == 'f') expected = 0x20006;
    if (letter == 'j') expected = 0x2000A;
    if (letter == 'm') expected = 0x30103;
    EXPECT_EQ(FindKeyRow(static_cast<uint32_t>(letter), kModCtrl | kModShift), expected) << letter;
  }
}

TEST(KeyTable, OtherCharacters) {
  constexpr Expected kRows[] = {
      {"1", '1', {0, 0, 0, 0x10078, 0, 0}},        {"9", '9', {0, 0, 0, 0x10080, 0, 0}},
      {"0", '0', {0, 0, 0, 0x10081, 0, 0}},        {"-", '-', {0, 0, 31, 0x10082, 0, 0}},
      {"=", '=', {0, 0, 0, 0x10083, 0, 0}},        {"\\", '\\', {0, 0, 28, 0x1002B, 0, 0}},
      {".", '.', {0, 0, 0, 0x10034, 0, 0}},        {",", ',', {0, 0, 0, 0x10033, 0, 0}},
      {"[", '[', {0, 0, 27, 0x1001A, 0, 0}},       {"]", ']', {0, 0, 29, 0x1001B, 0, 0}},
      {";", ';', {0, 0, 0, 0x10027, 0, 0}},        {"'", '\'', {0, 0, 0, 0x10028, 0x2001C, 0x10028}},
      {"#", '#', {0, 0, 28, 0x3007A, 0, 0x3007A}}, {"space", ' ', {0, 0, 32, 0, 0, 0}},
      {"|", '|', {0, 0, 0, 0, 0x2001C, 0}},        {"!", '!', {0, 0, 0, 0, 0, 0x30078}},
      {"@", '@', {0, 0, 0, 0, 0, 0x30079}},        {"$", '$', {0, 0, 0, 0, 0, 0x3007B}},
      {"%", '%', {0, 0, 0, 0, 0, 0x3007C}},        {"^", '^', {0, 0, 0, 0, 0, 0x3007D}},
      {"&", '&', {0, 0, 0, 0, 0, 0x3007E}},        {"*", '*', {0, 0, 0, 0, 0, 0}},
      {"(", '(', {0, 0, 0, 0, 0, 0x30080}},        {")", ')', {0, 0, 0, 0, 0, 0x30081}},
      {"_", '_', {0, 0, 0, 0, 0, 0x30082}},        {"+", '+', {0, 0, 0, 0, 0, 0x30083}},
      {"{", '{', {0, 0, 0, 0, 0, 0x3001A}},        {"}", '}', {0, 0, 0, 0, 0, 0x3001B}},
      {":", ':', {0, 0, 0, 0, 0, 0x30027}},        {"\"", '"', {0, 0, 0, 0, 0, 0x30028}},
      {"~", '~', {0, 0, 0, 0, 0, 0x10029}},        {"`", '`', {0, 0, 0, 0, 0, 0}},
  };
  for (const Expected& row : kRows) ExpectRow(row);
  for (uint32_t d = 1; d <= 9; ++d) EXPECT_EQ(FindKeyRow('0' + d, kModAlt), 0x10077 + d);
}

TEST(KeyTable, ModifierKeysAreTheSameWithAnyModifier) {
  for (uint32_t symbol : {0xFFE1, 0xFFE2, 0xFFE3, 0xFFE4, 0xFFE9, 0xFFEA}) {
    for (uint32_t mask : {0u, 1u, 4u, 5u, 8u, 9u, 12u, 13u}) {
      EXPECT_EQ(FindKeyRow(symbol, mask), kModifierKey);
    }
  }
}

TEST(KeyTable, ControlWithAltIsNoKey) {
  EXPECT_EQ(FindKeyRow('a', kModCtrl | kModAlt), 0u);
  EXPECT_EQ(FindKeyRow(kF1, kModMask), 0u);
}

TEST(KeyTable, TextBelongsToTheInputMethod) {
  EXPECT_EQ(FindKeyRow('a', 0), 0u);
  EXPECT_EQ(FindKeyRow('a', kModShift), 0u);
  EXPECT_EQ(FindKeyRow(' ', 0), 0u);
  EXPECT_EQ(FindKeyRow(0xFE51, 0), 0u);  // a dead accent
}

TEST(KeyCodes, NamesStandForTheNumbersOfTheTable) {
  EXPECT_EQ(FKey(10), 0x10044u);
  EXPECT_EQ(ShiftFKey(10), 0x3005Du);
  EXPECT_EQ(AltShiftFKey(1), 0x30068u);
  EXPECT_EQ(CtrlLetter('z'), 26u);
  EXPECT_EQ(CtrlShiftDigit(3), 0x60003u);
  EXPECT_EQ(CtrlShiftPadDigit(3), 0x60033u);
}

TEST(AliasKeys, LettersComeInScanOrder) {
  ExpectAliases(0x10010, "qwertyuiop[]");
  ExpectAliases(0x1001E, "asdfghjkl;'`");
  ExpectAliases(0x1002B, "\\zxcvbnm,.");
}

TEST(AliasKeys, DigitsAndShiftedSymbols) {
  ExpectAliases(0x10078, "1234567890-=");
  ExpectAliases(0x30078, "!@#$%^&");
  ExpectAliases(0x30080, "()_+");
  ExpectAliases(0x3001A, "{}");
  ExpectAliases(0x30028, "\"");
}

TEST(AliasKeys, TheGraveAccentWinsItsCodeFromTheTilde) { EXPECT_EQ(AliasKey(0x10029), Key{'`'}); }

TEST(AliasKeys, AnyOtherCodeStaysItself) {
  EXPECT_EQ(AliasKey('x'), Key{'x'});
  EXPECT_EQ(AliasKey(kHome), kHome);
  EXPECT_EQ(AliasKey(0x3007F), 0x3007Fu);
  EXPECT_EQ(AliasKey(0x30027), 0x30027u);
}
