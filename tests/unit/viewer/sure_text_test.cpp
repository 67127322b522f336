// Which text is what it seems.
#include "viewer/sure_text.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

const uint8_t* Bytes(const std::string& text) { return reinterpret_cast<const uint8_t*>(text.data()); }
int Size(const std::string& text) { return static_cast<int>(text.size()); }

int Length(const std::string& text) { return SureText(0).Length(Bytes(text), Size(text)); }
int LengthBack(const std::string& text) { return SureText(0).LengthBack(Bytes(text), Size(text)); }

const std::string kLong(200, 'a');

// One character of any length, sometimes none: the pieces of texts of chance.
const char* const kPieces[] = {"a", "b",    "é",    "ж",        "中",   "€",
                               "😀", "\xC3", "\x80", "\xE4\xB8", "\xF8", "\xC0\x80"};

// The same, one character after the other.
int CharacterAt(const std::string& text, size_t i) {
  const auto byte = [&](size_t at) { return at < text.size() ? static_cast<uint8_t>(text[at]) : 0; };
  const int first = byte(i);
  const int length = first < 0x80 ? 1 : first < 0xC0 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  if (length == 0 || first >= 0xF8) return 0;
  uint32_t ch = static_cast<uint32_t>(first) & (0xFF >> (length == 1 ? 1 : length + 1));
  for (int k = 1; k < length; ++k) {
    if ((byte(i + static_cast<size_t>(k)) & 0xC0) != 0x80) return 0;
    ch = ch << 6 | (byte(i + static_cast<size_t>(k)) & 0x3Fu);
  }
  constexpr uint32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
  return ch < kLeast[length] ? 0 : length;
}

}  // namespace

TEST(SureText, WholeCharactersInTheirShortestFormAreSure) {
  for (const char* piece : {"a", "\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xEF\xBF\xBF",
                            "\xF0\x90\x80\x80", "\xF7\xBF\xBF\xBF", "\xED\xA0\x80"}) {
    for (const std::string& text :
         {std::string(piece), kLong + piece + kLong, piece + kLong, kLong + piece}) {
      EXPECT_EQ(Length(text), Size(text));
      EXPECT_EQ(LengthBack(text), Size(text));
    }
  }
}

TEST(SureText, OtherBytesEndIt) {
  for (const char* piece :
       {"\x80", "\xBF", "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xF8", "\xFF",
        "\xF8\x88\x80\x80", "\xC3", "\xE4\xB8", "\xF0\x9F\x98", "\xC3\x28", "\xE4\x28\xB8"}) {
    EXPECT_EQ(Length(kLong + piece + kLong), 200) << piece;
    EXPECT_EQ(Length(kLong + piece), 200) << piece;
    const std::string text = kLong + piece + kLong;
    const int behind = LengthBack(text);
    EXPECT_GE(behind, 200) << piece;  // a part of the piece may be text
    EXPECT_LT(behind, 200 + Size(piece)) << piece;
  }
  EXPECT_EQ(LengthBack(kLong + "\xE4\xB8"), 0);  // what is cut off is at the end
}

TEST(SureText, ExceptedFormsEndItToo) {
  SureText sure(0);
  EXPECT_TRUE(sure.Except({0xC5, 0xBF}));
  EXPECT_TRUE(sure.Except({0xE1, 0xB2}));
  const std::string text = kLong + "ſ" + kLong;
  EXPECT_EQ(sure.Length(Bytes(text), Size(text)), 200);
  EXPECT_EQ(sure.LengthBack(Bytes(text), Size(text)), 200);
  EXPECT_EQ(sure.Length(Bytes("žſ"), 4), 2);
  EXPECT_EQ(sure.LengthBack(Bytes("\u1C83ž"), 5), 2);
}

TEST(SureText, ThereIsRoomForFourExceptions) {
  SureText sure(0);
  for (uint8_t second = 0x80; second < 0x84; ++second) EXPECT_TRUE(sure.Except({0xC5, second}));
  EXPECT_FALSE(sure.Except({0xC5, 0x84}));
  EXPECT_TRUE(sure.Except({0xC5, 0x80}));  // is one of them
}

TEST(SureText, OfWideUnitsOnlyWholeOnesAre) {
  EXPECT_EQ(SureText(2).Length(Bytes("abc"), 3), 2);
  EXPECT_EQ(SureText(4).LengthBack(Bytes("abcdefg"), 7), 4);
  EXPECT_EQ(SureText(1).Length(Bytes("\xFF\x80"), 2), 2);
  EXPECT_TRUE(SureText(2).IsBoundary(4, 0x80));
  EXPECT_FALSE(SureText(2).IsBoundary(3, 'a'));
  EXPECT_TRUE(SureText(0).IsBoundary(3, 0xC3));
  EXPECT_FALSE(SureText(0).IsBoundary(4, 0x80));
}

TEST(SureText, AgreesWithLookingAtEachCharacter) {
  std::mt19937 random(11);
  for (int round = 0; round < 2000; ++round) {
    std::string text;
    const unsigned share = random() % 40;  // of pieces that are no characters
    for (unsigned n = random() % 250; n > 0; --n)
      text += kPieces[random() % 1000 < share ? 7 + random() % 5 : random() % 7];
    const auto size = text.size();
    size_t end = 0;
    while (end < size && CharacterAt(text, end) != 0) end += static_cast<size_t>(CharacterAt(text, end));
    ASSERT_EQ(Length(text), static_cast<int>(end)) << round;
    size_t begin = size;
    for (bool goesOn = true; goesOn;) {
      goesOn = false;
      for (size_t length = 1; length <= 4 && length <= begin && !goesOn; ++length) {
        if (CharacterAt(text.substr(0, begin), begin - length) != static_cast<int>(length)) continue;
        begin -= length;
        goesOn = true;
      }
    }
    ASSERT_EQ(LengthBack(text), static_cast<int>(size - begin)) << round;
  }
}
