// Code pages: names, both ways through iconv, and what a page lacks.
#include "foundation/code_pages.h"

#include <gtest/gtest.h>

#include <clocale>
#include <memory>
#include <random>
#include <string>

TEST(CodePages, NamesOfThePages) {
  EXPECT_STREQ(CodePageName(878).Text(), "KOI8-R");
  EXPECT_STREQ(CodePageName(20866).Text(), "KOI8-R");
  EXPECT_STREQ(CodePageName(819).Text(), "ISO-8859-1");
  EXPECT_STREQ(CodePageName(850).Text(), "CP850");
  EXPECT_STREQ(CodePageName(1252).Text(), "CP1252");
  EXPECT_STREQ(CodePageName(0).Text(), "CP0");
}

TEST(CodePages, LatinOneMapsByteForByte) {
  std::string bytes;
  for (int byte = 1; byte < 256; byte++) bytes += static_cast<char>(byte);
  Westring text;
  EXPECT_TRUE(DecodeCodePage(bytes.c_str(), 819, text));
  ASSERT_EQ(Length(text), 255);
  EXPECT_EQ(text[0xE9 - 1], 0xE9);
  EXPECT_EQ(std::string(EncodeCodePage(text, 819).Text()), bytes);
}

TEST(CodePages, BothNumbersOfTheRussianPageAgree) {
  Westring first, second;
  EXPECT_TRUE(DecodeCodePage("\xC1\xC2\xD7", 878, first));
  EXPECT_TRUE(DecodeCodePage("\xC1\xC2\xD7", 20866, second));
  EXPECT_STREQ(first.Text(), L"\x430\x431\x432");
  EXPECT_STREQ(second.Text(), first.Text());
  EXPECT_STREQ(EncodeCodePage(first, 20866).Text(), "\xC1\xC2\xD7");
}

TEST(CodePages, UndefinedByteBecomesAHouse) {
  Westring text;
  EXPECT_FALSE(DecodeCodePage("a\x81z", 1252, text));
  EXPECT_STREQ(text.Text(), L"a\x2302z");
  EXPECT_FALSE(DecodeCodePage("\x81\x8D", 1252, text));
  EXPECT_STREQ(text.Text(), L"\x2302\x2302");
  EXPECT_TRUE(DecodeCodePage("a\x80", 1252, text));
  EXPECT_STREQ(text.Text(), L"a\x20AC");
}

TEST(CodePages, UnknownPageDecodesNothing) {
  Westring text(L"old");
  EXPECT_FALSE(DecodeCodePage("abc", 31999, text));
  EXPECT_STREQ(text.Text(), L"old");
  EXPECT_STREQ(Westring("abc", 31999).Text(), L"");
}

TEST(CodePages, UnknownPageEncodesToNothing) {
  EXPECT_STREQ(EncodeCodePage(L"abc", 31999).Text(), "");
  EXPECT_STREQ(EncodeCodePage(L"abc", -1).Text(), "");
}

TEST(CodePages, EmptyTextStaysEmpty) {
  EXPECT_STREQ(EncodeCodePage(L"", 850).Text(), "");
  Westring text(L"old");
  EXPECT_TRUE(DecodeCodePage("", 850, text));
  EXPECT_STREQ(text.Text(), L"");
  text = L"old";
  EXPECT_TRUE(DecodeCodePage(nullptr, 850, text));
  EXPECT_STREQ(text.Text(), L"");
}

TEST(CodePages, EncodingStopsAtACharacterThatThePageLacks) {
  EXPECT_STREQ(EncodeCodePage(L"ab\x20ACyz", 850).Text(), "ab");
  EXPECT_STREQ(EncodeCodePage(L"\x4E00yz", 850).Text(), "");
  const wchar_t text[] = {L'a', -1, L'b', 0};
  EXPECT_STREQ(EncodeCodePage(text, 819).Text(), "a");
}

TEST(CodePages, LongTextIsConvertedWhole) {
  const Westring text = Westring::Replicate(L'\xE9', 100000);
  const Estring bytes = EncodeCodePage(text, 850);
  EXPECT_EQ(std::string(bytes.Text()), std::string(100000, '\x82'));
  Westring back;
  EXPECT_TRUE(DecodeCodePage(bytes.Text(), 850, back));
  EXPECT_EQ(Length(back), 100000);
  EXPECT_EQ(back[99999], 0xE9);
}

TEST(CodePages, MultibyteResultIsCutAtTheLengthOfTheText) {
  // Two bytes a character in room for two bytes: the first one fits.
  EXPECT_STREQ(EncodeCodePage(L"\x3042\x3044", 932).Text(), "\x82\xA0");
  Westring text;
  DecodeCodePage("\x82\xA0", 932, text);
  EXPECT_STREQ(text.Text(), L"\x3042");
}

TEST(CodePages, LastLetterOfAComposingPageIsNotLost) {
  Westring text;
  EXPECT_TRUE(DecodeCodePage("abc", 1258, text));
  EXPECT_STREQ(text.Text(), L"abc");
  EXPECT_TRUE(DecodeCodePage("\xE0\xE1", 1255, text));
  EXPECT_STREQ(text.Text(), L"\x5D0\x5D1");
}

TEST(CodePages, AnyBytesOfAnyPageStayInBounds) {
  std::mt19937 random(3);
  for (const int page : {437, 850, 866, 874, 932, 936, 949, 950, 1200, 1251, 1255, 1258, 65001}) {
    for (int round = 0; round < 50; round++) {
      const size_t length = random() % 40;
      const auto bytes = std::make_unique<char[]>(length + 1);
      for (size_t i = 0; i < length; i++) bytes[i] = static_cast<char>(1 + random() % 255);
      Westring text;
      DecodeCodePage(bytes.get(), page, text);
      ASSERT_LE(static_cast<size_t>(Length(text)), length) << page;
      ASSERT_LE(Length(EncodeCodePage(text, page)), Length(text)) << page;
    }
  }
}

TEST(CodePages, SystemFormsUseTheDefaultPage) {
  EXPECT_EQ(DefaultCodePage, 850);
  EXPECT_STREQ(FromSystem("\x82").Text(), L"\xE9");
  EXPECT_STREQ(ToSystem(L"\xE9").Text(), "\x82");
  DefaultCodePage = 819;
  EXPECT_STREQ(FromSystem("\x82").Text(), L"\x82");
  EXPECT_STREQ(ToSystem(L"\xE9").Text(), "\xE9");
  DefaultCodePage = 850;
  EXPECT_STREQ(ToCodePage(L"\x430", 866).Text(), "\xA0");
  EXPECT_STREQ(Westring("\xA0", 866).Text(), L"\x430");
}

TEST(CaseTables, FollowTheLocaleAndLeaveZeroAlone) {
  const std::string before = setlocale(LC_CTYPE, nullptr);
  setlocale(LC_CTYPE, "C");
  BuildCaseTables();
  EXPECT_TRUE(CaseTablesReady);
  EXPECT_EQ(UpperTable[0x61], 'A');
  EXPECT_EQ(LowerTable[0x41], 'a');
  EXPECT_EQ(UpperTable[0x31], '1');
  EXPECT_EQ(UpperTable[0xE9], 0xE9);
  EXPECT_EQ(UpperTable[0], 0);
  EXPECT_EQ(LowerTable[255], 255);
  setlocale(LC_CTYPE, before.c_str());
}

TEST(EncodingNames, ModesHaveTheirNames) {
  const char* const names[] = {"UTF-32", "UTF-32", "UTF-16", "UTF-16", "UTF-8", "CP866", "", ""};
  for (int mode = 0; mode < 8; mode++) EXPECT_STREQ(EncodingName(mode, 866).Text(), names[mode]);
  EXPECT_STREQ(EncodingName(-1, 866).Text(), "");
  EXPECT_STREQ(EncodingName(5, 878).Text(), "CP878");
}
