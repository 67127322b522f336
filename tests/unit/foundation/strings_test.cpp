// The buffer of the strings: where a text lies, how it grows, and what UTF-8
// makes of bytes that are none.
#include "foundation/strings.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

constexpr char kTwenty[] = "abcdefghijklmnopqrst";
constexpr char kTwentyOne[] = "abcdefghijklmnopqrstu";

std::vector<long> Elements(const Westring& s) {
  const wchar_t* const text = s.Text();
  return std::vector<long>(text, text + Length(s));
}

}  // namespace

// ---- the buffer ------------------------------------------------------------

TEST(Strings, ObjectHoldsPointerCapacityAndTwentyOneElements) {
  EXPECT_EQ(Estring().Capacity(), 21);
  EXPECT_EQ(Westring().Capacity(), 21);
  EXPECT_EQ(sizeof(Estring), 40u);
  EXPECT_EQ(sizeof(Westring), 96u);
  EXPECT_STREQ(Estring().Text(), "");
  EXPECT_STREQ(Westring().Text(), L"");
}

TEST(Strings, TwentyCharactersStayInlineAndTwentyOneTakeExactlyTwentyTwo) {
  const Estring inlined(kTwenty);
  EXPECT_TRUE(inlined.IsInline());
  EXPECT_EQ(inlined.Capacity(), 21);
  const Estring heaped(kTwentyOne);
  EXPECT_FALSE(heaped.IsInline());
  EXPECT_EQ(heaped.Capacity(), 22);
  EXPECT_STREQ(heaped.Text(), kTwentyOne);
  const Westring wide(L"abcdefghijklmnopqrstu");
  EXPECT_FALSE(wide.IsInline());
  EXPECT_EQ(wide.Capacity(), 22);
}

TEST(Strings, ReservedLengthOfTwentyStaysInline) {
  EXPECT_TRUE(Estring::Reserved(20).IsInline());
  EXPECT_EQ(Estring::Reserved(20).Capacity(), 21);
  EXPECT_EQ(Estring::Reserved(21).Capacity(), 22);
  EXPECT_FALSE(Estring::Reserved(21).IsInline());
  EXPECT_TRUE(Westring::Reserved(20).IsInline());
  EXPECT_EQ(Westring::Reserved(100).Capacity(), 101);
  EXPECT_TRUE(Westring::Reserved(100).IsEmpty());
  EXPECT_EQ(Estring::Reserved(-5).Capacity(), 21);
}

TEST(Strings, AppendingToTwentyInlineCharactersGrowsToTwentySeven) {
  Estring s(kTwenty);
  s += 'u';
  EXPECT_EQ(s.Capacity(), 27);
  EXPECT_STREQ(s.Text(), kTwentyOne);
  Westring w(L"abcdefghijklmnopqrst");
  w += L"u";
  EXPECT_EQ(w.Capacity(), 27);
  EXPECT_STREQ(w.Text(), L"abcdefghijklmnopqrstu");
}

TEST(Strings, EveryAppendGrowsByAQuarterOfTheNewLength) {
  Estring s;
  std::string expected;
  int capacity = 21;
  for (int i = 1; i <= 1000; i++) {
    s += static_cast<char>('a' + i % 26);
    expected += static_cast<char>('a' + i % 26);
    if (capacity <= i) capacity = i + i / 4 + 1;
    ASSERT_EQ(s.Capacity(), capacity) << "after " << i;
  }
  EXPECT_STREQ(s.Text(), expected.c_str());
}

TEST(Strings, GrowKeepsTheTextAndTellsWhetherTheBufferMoved) {
  Estring s("abc");
  EXPECT_FALSE(s.Grow(20));
  EXPECT_TRUE(s.Grow(21));
  EXPECT_EQ(s.Capacity(), 27);
  EXPECT_STREQ(s.Text(), "abc");
  EXPECT_FALSE(s.Grow(26));
  EXPECT_FALSE(s.Grow(-1));
  EXPECT_TRUE(s.Grow(100));
  EXPECT_EQ(s.Capacity(), 126);
}

TEST(Strings, ReserveForgetsTheTextAndAllocatesNoMargin) {
  Estring s("abc");
  s.Reserve(2);
  EXPECT_TRUE(s.IsEmpty());
  EXPECT_TRUE(s.IsInline());
  s.Reserve(50);
  EXPECT_EQ(s.Capacity(), 51);
  s.Reserve(50);
  EXPECT_EQ(s.Capacity(), 51);
  s.Reserve(51);
  EXPECT_EQ(s.Capacity(), 52);
}

TEST(Strings, AssignmentAllocatesExactlyAndNeverShrinks) {
  Estring s;
  s = Estring::Replicate('x', 40).Text();
  EXPECT_EQ(s.Capacity(), 41);
  s = "short";
  EXPECT_EQ(s.Capacity(), 41);
  EXPECT_STREQ(s.Text(), "short");
  s = Estring("moved");
  EXPECT_EQ(s.Capacity(), 41);
  s = Estring::Replicate('x', 30);
  EXPECT_EQ(s.Capacity(), 41);
  s = Estring::Replicate('x', 41);
  EXPECT_EQ(s.Capacity(), 42);
}

TEST(Strings, CopyTakesTheCharactersAndNotTheCapacity) {
  Estring s = Estring::Reserved(500);
  s = "abc";
  const Estring copy(s);
  EXPECT_TRUE(copy.IsInline());
  EXPECT_STREQ(copy.Text(), "abc");
  EXPECT_NE(copy.Text(), s.Text());
}

TEST(Strings, MovedFromStringIsEmptyAndUsable) {
  Westring longText = Westring::Replicate(L'x', 50);
  const wchar_t* const buffer = longText.Text();
  const Westring taken(std::move(longText));
  EXPECT_EQ(taken.Text(), buffer);
  EXPECT_TRUE(longText.IsEmpty());
  EXPECT_TRUE(longText.IsInline());
  EXPECT_EQ(longText.Capacity(), 21);
  Westring shortText(L"abc");
  Westring target(L"before");
  target = std::move(shortText);
  EXPECT_STREQ(target.Text(), L"abc");
  EXPECT_TRUE(shortText.IsEmpty());
  shortText += L"new";
  EXPECT_STREQ(shortText.Text(), L"new");
}

// What lets a growing std::vector move its strings and not copy them.
TEST(Strings, MovingNeverAllocates) {
  EXPECT_TRUE(std::is_nothrow_move_constructible_v<Estring>);
  EXPECT_TRUE(std::is_nothrow_move_assignable_v<Estring>);
  std::vector<Westring> strings(1, Westring::Replicate(L'x', 50));
  const wchar_t* const buffer = strings[0].Text();
  strings.reserve(strings.capacity() + 1);
  EXPECT_EQ(strings[0].Text(), buffer);
}

TEST(Strings, WildIndexReachesTheLastElement) {
  Estring s;
  EXPECT_EQ(&s[1000], s.Text() + 20);
  s[1000] = 'x';
  EXPECT_EQ(s.Capacity(), 21);
  EXPECT_TRUE(s.IsEmpty());
  const Westring w;
  EXPECT_EQ(&w[21], w.Text() + 20);
  EXPECT_EQ(&w[20], w.Text() + 20);
  EXPECT_EQ(w[1000], 0);
  const Estring heaped(kTwentyOne);
  EXPECT_EQ(&heaped[22], heaped.Text() + 21);
}

TEST(Strings, ZeroWrittenIntoTheTextShortensIt) {
  Westring s(L"abcdef");
  s.Text()[3] = 0;
  EXPECT_EQ(Length(s), 3);
  s += L"x";
  EXPECT_STREQ(s.Text(), L"abcx");
}

TEST(Strings, StringMayBeAppendedToItself) {
  Estring s("abcdefghijkl");
  s += s.Text();
  EXPECT_STREQ(s.Text(), "abcdefghijklabcdefghijkl");
  EXPECT_EQ(s.Capacity(), 24 + 6 + 1);
  s += s;
  EXPECT_EQ(Length(s), 48);
  s += s.Text() + 40;
  EXPECT_EQ(Length(s), 56);
  EXPECT_STREQ(s.Text() + 48, "efghijkl");
}

TEST(Strings, StringMayBeAssignedFromItsOwnText) {
  Estring s = Estring::Replicate('-', 30) + "tail";
  s = s.Text() + 28;
  EXPECT_STREQ(s.Text(), "--tail");
  Westring w(L"abc");
  w = *&w;
  EXPECT_STREQ(w.Text(), L"abc");
}

TEST(Strings, NullPointersAreEmptyTexts) {
  EXPECT_STREQ(Estring(static_cast<const char*>(nullptr)).Text(), "");
  EXPECT_STREQ(Westring(static_cast<const wchar_t*>(nullptr)).Text(), L"");
  EXPECT_STREQ(Westring(static_cast<const char*>(nullptr)).Text(), L"");
  Estring s("abc");
  s += static_cast<const char*>(nullptr);
  EXPECT_STREQ(s.Text(), "abc");
  s = static_cast<const char*>(nullptr);
  EXPECT_STREQ(s.Text(), "");
}

TEST(Strings, CountedAssignmentTakesExactlyThatManyElements) {
  Westring s;
  s.Assign(L"abcdef", 3);
  EXPECT_STREQ(s.Text(), L"abc");
  s.Assign(L"ab\0cd", 5);
  EXPECT_EQ(Length(s), 2);
  EXPECT_EQ(s.Text()[4], L'd');
  EXPECT_EQ(s.Text()[5], 0);
  EXPECT_STREQ(Westring(L"abcdef", 2).Text(), L"ab");
  EXPECT_STREQ(Westring(L"abcdef", -2).Text(), L"");
}

// ---- ways to make one ------------------------------------------------------

TEST(Strings, NumbersBecomeDecimalText) {
  EXPECT_STREQ(Estring::FromLong(0).Text(), "0");
  EXPECT_STREQ(Estring::FromLong(-9223372036854775807L - 1).Text(), "-9223372036854775808");
}

TEST(Strings, ReplicateCountsANegativeNumberAsZero) {
  EXPECT_STREQ(Estring::Replicate('x', 3).Text(), "xxx");
  EXPECT_STREQ(Estring::Replicate('x', -3).Text(), "");
  EXPECT_STREQ(Westring::Replicate(L'\x2500', 2).Text(), L"\x2500\x2500");
  EXPECT_STREQ(Westring::Replicate(L'x', -1).Text(), L"");
}

TEST(Strings, FormatCutsAtOneThousandAndTwentyThree) {
  EXPECT_STREQ(Estring::Format("%d-%s", 7, "x").Text(), "7-x");
  EXPECT_EQ(Length(Estring::Format("%1023d", 1)), 1023);
  EXPECT_EQ(Length(Estring::Format("%1024d", 1)), 1023);
  EXPECT_EQ(Length(Estring::Format("%5000d", 1)), 1023);
}

TEST(Strings, FieldLosesTrailingWhiteSpaceOnly) {
  EXPECT_STREQ(Estring::FromField("  ab \t rest", 6).Text(), "  ab");
  EXPECT_STREQ(Estring::FromField("abcdef", 3).Text(), "abc");
  EXPECT_STREQ(Estring::FromField("ab\0\0\0\0", 6).Text(), "ab");
  EXPECT_STREQ(Estring::FromField("     ", 5).Text(), "");
  EXPECT_STREQ(Estring::FromField("abc", 0).Text(), "");
}

TEST(Strings, TabsFallOneShortOfTheStop) {
  EXPECT_STREQ(Estring::ExpandTabs("\tx", 8).Text(), "       x");
  EXPECT_STREQ(Estring::ExpandTabs("abcdefg\tx", 8).Text(), "abcdefgx");
  EXPECT_STREQ(Estring::ExpandTabs("abc\tx", 8).Text(), "abc    x");
  EXPECT_STREQ(Estring::ExpandTabs("\t\tx", 8).Text(), "       x");
  EXPECT_STREQ(Estring::ExpandTabs("abcdefgh\tx", 8).Text(), "abcdefgh       x");
  EXPECT_STREQ(Estring::ExpandTabs("a\tb", 1).Text(), "ab");
  EXPECT_STREQ(Estring::ExpandTabs("a\tb", 0).Text(), "ab");
  EXPECT_STREQ(Estring::ExpandTabs(nullptr, 8).Text(), "");
}

TEST(Strings, BytesWidenWithoutDecoding) {
  EXPECT_EQ(Elements(Westring(Estring("a\xC3\xA9\xFF"))), (std::vector<long>{'a', 0xC3, 0xA9, 0xFF}));
}

TEST(Strings, AppendedByteIsSignExtended) {
  Westring s(L"a");
  s += 'b';
  s += static_cast<char>(0x80);
  EXPECT_EQ(Elements(s), (std::vector<long>{'a', 'b', -128}));
}

TEST(Strings, NarrowFormKeepsTheLowEightBits) {
  EXPECT_STREQ(ToNarrow(Westring(L"a\x1E9\x2563")).Text(), "a\xE9\x63");
}

// ---- UTF-8 -----------------------------------------------------------------

namespace {

struct DecodeRow {
  const char* bytes;
  std::vector<long> elements;
  bool valid;
};

}  // namespace

TEST(Utf8, DecodingKeepsInvalidBytesAsCodePoints) {
  const DecodeRow rows[] = {
      {"", {}, true},
      {"aZ\x7F", {'a', 'Z', 0x7F}, true},
      {"\xC3\xA9", {0xE9}, true},
      {"\xE2\x82\xAC", {0x20AC}, true},
      {"\xF0\x9F\x98\x80", {0x1F600}, true},
      {"\xF7\xBF\xBF\xBF", {0x1FFFFF}, true},
      {"\xC3\x28", {0xC3, 0x28}, false},
      {"\xC3", {0xC3}, false},
      {"\xE2\x82", {0xE2, 0x82}, false},
      {"\xE2\x82x", {0xE2, 0x82, 'x'}, false},
      {"\xF0\x9F\x98", {0xF0, 0x9F, 0x98}, false},
      {"\xF0\x9F\xC3\xA9", {0xF0, 0x9F, 0xE9}, false},
      {"\x80"
       "a",
       {0x80, 'a'},
       false},
      {"\xF8\x88\x80\x80\x80", {0xF8, 0x88, 0x80, 0x80, 0x80}, false},
      {"\xFE\xFF", {0xFE, 0xFF}, false},
      {"\xC0\x80", {-1}, false},
      {"\xE0\x80\x80x", {-1, 'x'}, false},
      {"\xF0\x80\x80\x80", {-1}, false},
      {"\xC1\x81", {0x41}, true},
      {"\xED\xA0\x80", {0xD800}, true},
  };
  for (const DecodeRow& row : rows) {
    Westring s(L"old");
    EXPECT_EQ(s.FromUtf8(row.bytes), row.valid) << Elements(s).size();
    EXPECT_EQ(Elements(s), row.elements);
    EXPECT_EQ(Elements(Westring(row.bytes)), row.elements);
  }
}

TEST(Utf8, TwentyCodePointsOfManyBytesStayInline) {
  std::string bytes;
  for (int i = 0; i < 20; i++) bytes += "\xE2\x82\xAC";
  EXPECT_TRUE(Westring(bytes.c_str()).IsInline());
  bytes += "x";
  EXPECT_EQ(Westring(bytes.c_str()).Capacity(), 27);
}

TEST(Utf8, EncodingUsesOneToFourBytes) {
  EXPECT_STREQ(ToUtf8(Westring(L"\x7F")).Text(), "\x7F");
  EXPECT_STREQ(ToUtf8(Westring(L"\x80\x7FF")).Text(), "\xC2\x80\xDF\xBF");
  EXPECT_STREQ(ToUtf8(Westring(L"\x800\xFFFF")).Text(), "\xE0\xA0\x80\xEF\xBF\xBF");
  EXPECT_STREQ(ToUtf8(Westring(L"\x10000\x10FFFF")).Text(), "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF");
  EXPECT_STREQ(ToUtf8(static_cast<const wchar_t*>(nullptr)).Text(), "");
}

TEST(Utf8, NegativeElementsLeaveAsTheirLowEightBits) {
  EXPECT_STREQ(ToUtf8(Westring("\xC0\x80")).Text(), "\xFF");
  const wchar_t text[] = {-128, L'a', 0};
  EXPECT_STREQ(ToUtf8(text).Text(),
               "\x80"
               "a");
}

TEST(Utf8, InvalidByteDoesNotSurviveTheRoundTrip) {
  EXPECT_STREQ(ToUtf8(Westring("a\xFFz")).Text(), "a\xC3\xBFz");
}

TEST(Utf8, EncodingReservesAQuarterMoreThanTheLength) {
  EXPECT_TRUE(ToUtf8(Westring::Replicate(L'x', 16)).IsInline());
  EXPECT_EQ(ToUtf8(Westring::Replicate(L'x', 40)).Capacity(), 51);
  // Room for four bytes is made ahead of each element: 28, 36, 47, 62.
  EXPECT_EQ(ToUtf8(Westring::Replicate(L'\x20AC', 16)).Capacity(), 62);
}

TEST(Utf8, ValidTextSurvivesTheRoundTrip) {
  std::mt19937 random(20240229);
  for (int round = 0; round < 2000; round++) {
    const int bits = std::uniform_int_distribution<int>(3, 20)(random);
    Westring text;
    const int length = std::uniform_int_distribution<int>(0, 60)(random);
    for (int i = 0; i < length; i++) {
      text += static_cast<wchar_t>(1 + random() % (1u << bits));
    }
    Westring back;
    ASSERT_TRUE(back.FromUtf8(ToUtf8(text).Text()));
    ASSERT_EQ(Elements(back), Elements(text));
  }
}

// Every byte string decodes to something that keeps its ASCII bytes, needs no
// more elements than bytes, and is not changed by going round once more.
TEST(Utf8, AnyBytesDecodeWithinTheirBounds) {
  constexpr unsigned char kLikely[] = {0x41, 0x80, 0xBF, 0xC0, 0xC3, 0xE0,
                                       0xE2, 0xED, 0xF0, 0xF4, 0xF8, 0xFF};
  std::mt19937 random(42);
  for (int round = 0; round < 20000; round++) {
    const size_t length = random() % 24;
    // On the heap and of the exact size, so that a read behind the end shows.
    const auto bytes = std::make_unique<char[]>(length + 1);
    for (size_t i = 0; i < length; i++) {
      const unsigned char byte = random() % 2 ? kLikely[random() % sizeof kLikely] : 1 + random() % 255;
      bytes[i] = static_cast<char>(byte);
    }
    Westring text;
    const bool valid = text.FromUtf8(bytes.get());
    ASSERT_LE(static_cast<size_t>(Length(text)), length);
    bool replaced = false;
    for (const long element : Elements(text)) {
      ASSERT_TRUE(element == -1 || (element > 0 && element <= 0x1FFFFF)) << element;
      replaced = replaced || element == -1;
    }
    if (replaced) {
      EXPECT_FALSE(valid);
    } else {
      Westring again;
      ASSERT_TRUE(again.FromUtf8(ToUtf8(text).Text()));
      ASSERT_EQ(Elements(again), Elements(text));
    }
  }
}
