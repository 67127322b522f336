// Parts, search, replacement, comparison and fields of the strings.
#include <gtest/gtest.h>

#include <clocale>
#include <random>
#include <string>
#include <vector>

#include "foundation/strings.h"

// ---- parts and padding -----------------------------------------------------

TEST(StringParts, LeftAndRightClampTheirCounts) {
  EXPECT_STREQ(Left(Estring("abc"), 2).Text(), "ab");
  EXPECT_STREQ(Left(Estring("abc"), -1).Text(), "");
  EXPECT_STREQ(Left(Westring(L"abc"), 5).Text(), L"abc");
  EXPECT_STREQ(Right(Estring("abc"), 2).Text(), "bc");
  EXPECT_STREQ(Right(Estring("abc"), 5).Text(), "abc");
  EXPECT_STREQ(Right(Westring(L"abc"), 5).Text(), L"abc");
  EXPECT_STREQ(Right(Westring(L"abc"), 0).Text(), L"");
  EXPECT_STREQ(Right(Westring(L"abc"), -2).Text(), L"");
}

TEST(StringParts, MidTakesAllForACountOfZeroOrPastTheEnd) {
  EXPECT_STREQ(Mid(Estring("abcd"), 10, 2).Text(), "");
  EXPECT_STREQ(Mid(Estring("abcd"), 1, 0).Text(), "bcd");
  EXPECT_STREQ(Mid(Estring("abcd"), 1, 9).Text(), "bcd");
  EXPECT_STREQ(Mid(Estring("abcd"), 1, 2).Text(), "bc");
  EXPECT_STREQ(Mid(Westring(L"abcd"), 1).Text(), L"bcd");
  EXPECT_STREQ(Mid(Westring(L"abcd"), 4, 0).Text(), L"");
  EXPECT_STREQ(Mid(Westring(L"abcd"), -3, 2).Text(), L"ab");
  EXPECT_STREQ(Mid(Westring(L"abcd"), 1, -2).Text(), L"");
  EXPECT_STREQ(Mid(Westring(L"abcd"), 3, 0x7FFFFFFF).Text(), L"d");
}

TEST(StringParts, DropRightEmptiesAShortText) {
  EXPECT_STREQ(DropRight(Estring("abc"), 1).Text(), "ab");
  EXPECT_STREQ(DropRight(Estring("abc"), 3).Text(), "");
  EXPECT_STREQ(DropRight(Westring(L"abc"), 9).Text(), L"");
  EXPECT_STREQ(DropRight(Westring(L"abc"), 0).Text(), L"abc");
}

TEST(StringParts, TrimTakesWhiteSpaceFromItsEnds) {
  const Estring s(" \t a b \r\n");
  EXPECT_STREQ(LTrim(s).Text(), "a b \r\n");
  EXPECT_STREQ(RTrim(s).Text(), " \t a b");
  EXPECT_STREQ(Trim(s).Text(), "a b");
  EXPECT_STREQ(Trim(Estring(" \t ")).Text(), "");
  EXPECT_STREQ(Trim(Westring(L" \v\fa b ")).Text(), L"a b");
  EXPECT_STREQ(LTrim(Westring(L" a ")).Text(), L"a ");
  EXPECT_STREQ(RTrim(Westring(L" a ")).Text(), L" a");
  // A byte above 127 is no white space and no bad index into the class table.
  EXPECT_STREQ(Trim(Estring(" \xFF\x80 ")).Text(), "\xFF\x80");
}

TEST(StringParts, JustifyingKeepsTheHeadOrTheTail) {
  EXPECT_STREQ(LJust(Estring("ab"), 4).Text(), "ab  ");
  EXPECT_STREQ(RJust(Estring("ab"), 4, '.').Text(), "..ab");
  EXPECT_STREQ(LJust(Westring(L"abcdef"), 3).Text(), L"abc");
  EXPECT_STREQ(RJust(Westring(L"abcdef"), 3).Text(), L"def");
  EXPECT_STREQ(LJust(Westring(L"ab"), 4, L'\x2500').Text(), L"ab\x2500\x2500");
  EXPECT_STREQ(RJust(Westring(L"ab"), 0).Text(), L"");
  EXPECT_STREQ(LJust(Estring("ab"), -3).Text(), "");
}

TEST(StringParts, TrailingSlashStaysInAShortTextWhoseSecondCharacterIsASlash) {
  constexpr const char* kRows[][2] = {
      {"", ""},      {"/", ""},     {"//", "//"},    {"///", "///"},  {"a/", "a/"},      {"a//", "a//"},
      {"ab/", "ab"}, {"/a/", "/a"}, {"//a/", "//a"}, {"a///", "a//"}, {"//ab/", "//ab"}, {"abc", "abc"},
  };
  for (const auto& [text, expected] : kRows) {
    EXPECT_STREQ(RemoveTrailingSlash(Estring(text)).Text(), expected);
    EXPECT_STREQ(ToUtf8(RemoveTrailingSlash(Westring(text))).Text(), expected);
  }
}

TEST(StringParts, AddedSlashLeavesAnEmptyTextEmpty) {
  EXPECT_STREQ(AddTrailingSlash(Estring("")).Text(), "");
  EXPECT_STREQ(AddTrailingSlash(Estring("a")).Text(), "a/");
  EXPECT_STREQ(AddTrailingSlash(Westring(L"a/")).Text(), L"a/");
  EXPECT_STREQ(AddTrailingSlash(Westring(L"/")).Text(), L"/");
}

TEST(StringParts, PathPartEndsBeforeTheLastSeparator) {
  EXPECT_STREQ(PathPart(L"C:/x").Text(), L"C:/");
  EXPECT_STREQ(PathPart(L"C:\\x").Text(), L"C:\\");
  EXPECT_STREQ(PathPart(L"/x").Text(), L"");
  EXPECT_STREQ(PathPart(L"a/b").Text(), L"a");
  EXPECT_STREQ(PathPart(L"a/b\\c").Text(), L"a/b");
  EXPECT_STREQ(PathPart(L"a:b/c").Text(), L"a:b");
  EXPECT_STREQ(PathPart(L"name").Text(), L"");
  EXPECT_STREQ(PathPart(L"/a/b/").Text(), L"/a/b");
}

TEST(StringParts, NamePartIsBehindTheLastSeparator) {
  EXPECT_STREQ(NamePart(L"/a/b.txt").Text(), L"b.txt");
  EXPECT_STREQ(NamePart(L"a\\b").Text(), L"b");
  EXPECT_STREQ(NamePart(L"name").Text(), L"name");
  EXPECT_STREQ(NamePart(L"a/").Text(), L"");
  EXPECT_STREQ(NamePart(L"").Text(), L"");
}

TEST(StringParts, LowerFollowsTheLocaleAndFoldDoesNot) {
  const std::string before = setlocale(LC_CTYPE, nullptr);
  setlocale(LC_CTYPE, "C");
  EXPECT_STREQ(Lower(L"ABC\xC9").Text(), L"abc\xC9");
  EXPECT_STREQ(Fold(L"abc\xE9").Text(), L"ABC\xC9");
  if (setlocale(LC_CTYPE, "C.UTF-8")) {
    EXPECT_STREQ(Lower(L"ABC\xC9").Text(), L"abc\xE9");
  }
  setlocale(LC_CTYPE, before.c_str());
}

// ---- search ----------------------------------------------------------------

TEST(StringSearch, CharactersAreFoundFromBothEnds) {
  EXPECT_EQ(Find(Estring("abca"), 'a'), 0);
  EXPECT_EQ(RFind(Estring("abca"), 'a'), 3);
  EXPECT_EQ(Find(Estring("abca"), 'x'), -1);
  EXPECT_EQ(RFind(Westring(L"abca"), L'b'), 1);
  EXPECT_EQ(Find(Westring(L"abca"), L'c'), 2);
  EXPECT_EQ(Find(Westring(L""), L'c'), -1);
}

TEST(StringSearch, ZeroIsNeverFound) {
  EXPECT_EQ(Find(Estring("abc"), '\0'), -1);
  EXPECT_EQ(RFind(Estring("abc"), '\0'), -1);
  EXPECT_EQ(Find(Westring(L"abc"), L'\0'), -1);
  EXPECT_EQ(RFind(Westring(L"abc"), L'\0'), -1);
}

TEST(StringSearch, QuotedCharactersAreNoMatch) {
  EXPECT_EQ(FindUnquoted(Estring("a\"b,c\",d"), ','), 6);
  EXPECT_EQ(FindUnquoted(Westring(L"a\"b,c\",d"), L','), 6);
  EXPECT_EQ(FindUnquoted(Estring("a\"b,c"), ','), -1);
  EXPECT_EQ(FindUnquoted(Estring("\"a\""), '"'), -1);
  EXPECT_EQ(FindUnquoted(Estring(""), ','), -1);
  EXPECT_EQ(FindUnquoted(Westring(L""), L','), -1);
  EXPECT_EQ(FindUnquoted(Estring("'a,b',\"c"), ',', '\''), 5);
  EXPECT_EQ(FindUnquoted(Estring("'\",',x"), '"', '\''), -1);
}

TEST(StringSearch, NthIsCountedFromOne) {
  EXPECT_EQ(FindNth(L"a/b/c/", L'/', 1), 1);
  EXPECT_EQ(FindNth(L"a/b/c/", L'/', 3), 5);
  EXPECT_EQ(FindNth(L"a/b/c/", L'/', 4), -1);
  EXPECT_EQ(FindNth(L"a/b/c/", L'/', 0), -1);
  EXPECT_EQ(FindNth(L"a/b/c/", L'/', -1), -1);
}

TEST(StringSearch, TextIsFoundAtOrBehindTheStart) {
  const Westring s(L"abcabc");
  EXPECT_EQ(Find(s, L"abc"), 0);
  EXPECT_EQ(Find(s, L"abc", 1), 3);
  EXPECT_EQ(Find(s, L"abc", 3), 3);
  EXPECT_EQ(Find(s, L"abc", 4), -1);
  EXPECT_EQ(Find(s, L"c", 6), -1);
  EXPECT_EQ(Find(s, L"c", 7), -1);
  EXPECT_EQ(Find(s, L"a", 100000), -1);
  EXPECT_EQ(Find(s, L"abc", -5), 0);
  EXPECT_EQ(Find(s, L"", 6), 6);
  EXPECT_EQ(Find(s, L"ABC"), -1);
}

TEST(StringSearch, CaselessSearchFoldsBothSides) {
  EXPECT_EQ(FindNoCase(L"xx\xE9t\xC9", L"\xC9T\xE9"), 2);
  EXPECT_EQ(FindNoCase(L"abc", L"BD"), -1);
  EXPECT_EQ(FindNoCase(L"abc", L"C"), 2);
}

// ---- replacement -----------------------------------------------------------

TEST(StringReplacement, FirstPlaceOnly) {
  Westring s(L"one two one");
  EXPECT_TRUE(ReplaceFirst(s, L"one", L"three"));
  EXPECT_STREQ(s.Text(), L"three two one");
  EXPECT_FALSE(ReplaceFirst(s, L"four", L"five"));
  EXPECT_STREQ(s.Text(), L"three two one");
}

TEST(StringReplacement, InsertedTextIsNotSearchedAgain) {
  Westring s(L"aaa");
  EXPECT_TRUE(ReplaceAll(s, L"a", L"aa"));
  EXPECT_STREQ(s.Text(), L"aaaaaa");
  EXPECT_TRUE(ReplaceAll(s, L"aa", L""));
  EXPECT_STREQ(s.Text(), L"");
  EXPECT_FALSE(ReplaceAll(s, L"aa", L"b"));
}

TEST(StringReplacement, EqualReplacementStillCounts) {
  Westring s(L"aXa");
  EXPECT_TRUE(ReplaceAll(s, L"a", L"a"));
  EXPECT_STREQ(s.Text(), L"aXa");
}

TEST(StringReplacement, EmptyTextHasNoPlace) {
  Westring s(L"abc");
  EXPECT_FALSE(ReplaceAll(s, L"", L"x"));
  EXPECT_FALSE(ReplaceFirst(s, L"", L"x"));
  EXPECT_STREQ(s.Text(), L"abc");
}

TEST(StringReplacement, ArgumentsMayPointIntoTheText) {
  Westring s(L"abab");
  EXPECT_TRUE(ReplaceAll(s, s.Text() + 3, s.Text()));
  EXPECT_STREQ(s.Text(), L"aababaabab");
}

// ---- concatenation and comparison ------------------------------------------

TEST(StringConcatenation, TakesStringsAndPointersOnEitherSide) {
  const Estring a("a");
  EXPECT_STREQ((a + Estring("b")).Text(), "ab");
  EXPECT_STREQ((a + "b").Text(), "ab");
  EXPECT_STREQ(("b" + a).Text(), "ba");
  const Westring w(L"w");
  EXPECT_STREQ((w + w).Text(), L"ww");
  EXPECT_STREQ((w + L"x").Text(), L"wx");
  EXPECT_STREQ((L"x" + w).Text(), L"xw");
  EXPECT_STREQ((a + static_cast<const char*>(nullptr)).Text(), "a");
}

TEST(StringComparison, OperatorsIgnoreCase) {
  EXPECT_TRUE(Estring("ABC") == "abc");
  EXPECT_TRUE(Estring("ABC") == Estring("aBc"));
  EXPECT_FALSE(Estring("ABC") != "abc");
  EXPECT_TRUE(Estring("abc") < "ABD");
  EXPECT_TRUE(Estring("ABD") > Estring("abc"));
  EXPECT_TRUE(Estring("abc") <= "ABC");
  EXPECT_TRUE(Estring("abc") >= Estring("ABC"));
  EXPECT_FALSE(Estring("abc") < "ABC");
  EXPECT_TRUE(Westring(L"ABC") == L"abc");
  EXPECT_TRUE(Westring(L"ABC") == Westring(L"abc"));
  EXPECT_TRUE(Westring(L"ABC") != L"abd");
}

TEST(StringComparison, UnderscoreComesAheadOfTheLetters) {
  // The comparison is one of lower-case forms, and "_" lies between the cases.
  EXPECT_TRUE(Estring("_") < "A");
  EXPECT_TRUE(Estring("_") < "a");
}

// ---- fields ----------------------------------------------------------------

namespace {

std::vector<std::string> Fields(const char* text) {
  std::vector<std::string> fields;
  for (Estring rest(text); !rest.IsEmpty();) fields.push_back(NextField(rest).Text());
  return fields;
}

struct FieldRow {
  const char* text;
  std::vector<std::string> fields;
};

}  // namespace

TEST(Fields, QuotesGroupAndBackslashesEscape) {
  const FieldRow rows[] = {
      {"", {}},
      {"a", {"a"}},
      {"a,b", {"a", "b"}},
      {"a,\"b,c\",d", {"a", "b,c", "d"}},
      {",x", {"", "x"}},
      {",,", {"", ""}},
      {"a,", {"a"}},
      {" a , b ", {" a ", " b "}},
      {"\"a\"\"b\",c", {"a\"b", "c"}},
      {"\"\",x", {"", "x"}},
      {"\"\"\"\"", {"\""}},
      {"\"a\"b\"c,d\"", {"abc,d"}},
      {"\"open,end", {"open,end"}},
      {"a\\,b,c", {"a,b", "c"}},
      {"\\\"a,b", {"\"a", "b"}},
      {"\"a\\\"b\"", {"a\"b"}},
      {"\\65\\066\\67x", {"ABCx"}},
      {"\\0655", {"A5"}},
      {"\\300,x", {",", "x"}},
      {"\\321", {"A"}},
      {"\\1,x", {"\1", "x"}},
      {"\\44x", {",x"}},
      {"\\n", {"n"}},
      {"\\\\", {"\\"}},
      {"a\nb,c\n", {"ab", "c"}},
      {"\"a\nb\"", {"ab"}},
      {"a\\", {"a"}},
      {"a\\\nb", {"a\nb"}},
      {"a\\0b\\256c", {"abc"}},
  };
  for (const FieldRow& row : rows) EXPECT_EQ(Fields(row.text), row.fields) << row.text;
}

TEST(Fields, RestIsWhatLiesBehindTheComma) {
  Estring text("one,\"two,\",three");
  EXPECT_STREQ(NextField(text).Text(), "one");
  EXPECT_STREQ(text.Text(), "\"two,\",three");
  EXPECT_STREQ(NextField(text).Text(), "two,");
  EXPECT_STREQ(text.Text(), "three");
  EXPECT_STREQ(NextField(text).Text(), "three");
  EXPECT_STREQ(text.Text(), "");
  EXPECT_STREQ(NextField(text).Text(), "");
}

TEST(Fields, EveryCallUsesUpSomeText) {
  constexpr char kAlphabet[] = "a,\"\\1\n";
  std::mt19937 random(7);
  for (int round = 0; round < 5000; round++) {
    Estring text;
    for (size_t i = random() % 40; i > 0; i--) text += kAlphabet[random() % (sizeof kAlphabet - 1)];
    while (!text.IsEmpty()) {
      const int before = Length(text);
      const Estring field = NextField(text);
      ASSERT_LT(Length(text), before);
      ASSERT_LE(Length(field), before);
    }
  }
}
