#include "panels/expression.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

bool Matches(const std::wstring& expression, const wchar_t* name = L"test") {
  const int result = MatchName(expression.c_str(), name);
  EXPECT_NE(result, -1) << "a syntax error in " << std::string(expression.begin(), expression.end());
  return result != 0;
}

bool IsError(const std::wstring& expression) { return MatchName(expression.c_str(), L"test") == -1; }

std::wstring Repeated(const std::wstring& text, int times) {
  std::wstring all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

TEST(Expression, AStarMatchesEveryName) {
  EXPECT_TRUE(Matches(L"*", L"anything"));
  EXPECT_TRUE(Matches(L"*", L""));
  EXPECT_TRUE(Matches(L" * ", L"anything"));
}

TEST(Expression, EitherPatternOfAnOrWillDo) {
  for (const wchar_t* name : {L"a.c", L"a.h", L"A.C"}) EXPECT_TRUE(Matches(L"*.c | *.h", name));
  EXPECT_FALSE(Matches(L"*.c | *.h", L"a.o"));
  EXPECT_TRUE(Matches(L"*.c|*.h", L"a.h"));
}

TEST(Expression, AnAndBindsTighterThanAnOr) {
  EXPECT_TRUE(Matches(L"a* | b* & c*", L"a"));
  EXPECT_TRUE(Matches(L"b* & c* | a*", L"a"));
  EXPECT_FALSE(Matches(L"(a* | b*) & c*", L"a"));
  EXPECT_FALSE(Matches(L"a* | b* & c*", L"b"));
}

TEST(Expression, ANotAppliesToTheNextFactorOnly) {
  EXPECT_FALSE(Matches(L"!*.o", L"a.o"));
  EXPECT_TRUE(Matches(L"!*.o", L"a.c"));
  EXPECT_TRUE(Matches(L"!a* | a*", L"a"));
  EXPECT_FALSE(Matches(L"!(a* | b*)", L"a"));
  EXPECT_TRUE(Matches(L"! ! a*", L"a"));
  EXPECT_FALSE(Matches(L"!b & b", L"c"));
}

TEST(Expression, APatternMayHoldBlanks) {
  EXPECT_TRUE(Matches(L"a b.txt", L"a b.txt"));
  EXPECT_FALSE(Matches(L"a b.txt", L"ab.txt"));
  EXPECT_TRUE(Matches(L"  a b.txt  ", L"a b.txt"));
  EXPECT_TRUE(Matches(L"a b.txt | c", L"a b.txt"));
}

TEST(Expression, WithinQuotesOperatorsAreCharacters) {
  EXPECT_TRUE(Matches(L"\"a|b\"", L"a|b"));
  EXPECT_FALSE(Matches(L"a|b", L"a|b"));
  EXPECT_TRUE(Matches(L"\"a&b)\" & a*", L"a&b)"));
  EXPECT_TRUE(Matches(L"a\"|\"b", L"a|b"));
  EXPECT_TRUE(Matches(L"\"%size\"", L"%size"));
  EXPECT_TRUE(Matches(L"\"!a\"", L"!a"));
}

TEST(Expression, AQuoteThatDoesNotCloseRunsToTheEnd) {
  EXPECT_TRUE(Matches(L"\"a|b", L"a|b"));
  EXPECT_TRUE(Matches(L"x | \"a|b", L"a|b"));
}

TEST(Expression, TrailingBlanksAreDroppedAlsoInQuotes) {
  EXPECT_TRUE(Matches(L"\"a \"", L"a"));
  EXPECT_TRUE(Matches(L"\"a\" ", L"a"));
  EXPECT_TRUE(IsError(L"\" \""));
}

TEST(Expression, APatternKnowsSetsAndAlternatives) {
  EXPECT_TRUE(Matches(L"*.{txt,doc}", L"A.DOC"));
  EXPECT_TRUE(Matches(L"[a-c]*", L"Bx"));
  EXPECT_FALSE(Matches(L"[^a-c]*", L"Bx"));
}

TEST(Expression, ABracketWithoutItsEndIsAnError) {
  EXPECT_TRUE(IsError(L"(a"));
  EXPECT_TRUE(IsError(L"("));
  EXPECT_TRUE(IsError(L"((a)"));
}

TEST(Expression, WhatFollowsTheOutermostExpressionIsIgnored) {
  EXPECT_TRUE(Matches(L"a*)", L"a"));
  EXPECT_TRUE(Matches(L"a*) & b & (", L"a"));
  EXPECT_TRUE(Matches(L"(a*) b", L"a"));
}

TEST(Expression, EmptyPatternsAreErrors) {
  for (const wchar_t* text :
       {L"", L"  ", L"&", L"|", L"a |", L"| a", L"a & ", L"a && b", L"()", L"!", L"\"\"", L")"}) {
    EXPECT_TRUE(IsError(text)) << std::string(text, text + wcslen(text));
  }
}

TEST(Expression, AnErrorAnywhereIsTheResultOfAll) {
  EXPECT_TRUE(IsError(L"a* | (b"));
  EXPECT_TRUE(IsError(L"test | %nonsense=1"));
}

TEST(Expression, AHundredOpenValuesAreAllowedAndOneMoreIsAnError) {
  const auto nested = [](int open) {
    return Repeated(L"x|(", open - 1) + L"test" + Repeated(L")", open - 1);
  };
  EXPECT_TRUE(Matches(nested(100)));
  EXPECT_TRUE(IsError(nested(101)));
  EXPECT_TRUE(IsError(nested(150)));
}

TEST(Expression, LongRowsOfOperatorsNeedNoStack) {
  EXPECT_TRUE(Matches(Repeated(L"x|", 100000) + L"test"));
  EXPECT_TRUE(Matches(Repeated(L"test&", 100000) + L"test"));
  EXPECT_TRUE(Matches(Repeated(L"!", 100000) + L"test"));
  EXPECT_FALSE(Matches(Repeated(L"!", 100001) + L"test"));
}

TEST(Expression, BracketsNestDeepButNotWithoutEnd) {
  EXPECT_TRUE(Matches(Repeated(L"(", 500) + L"test" + Repeated(L")", 500)));
  EXPECT_TRUE(IsError(Repeated(L"(", 100000)));
  EXPECT_TRUE(IsError(Repeated(L"!(", 100000) + L"test"));
}

TEST(Expression, AnyTextEndsWithAResult) {
  std::mt19937 random(11);
  const std::vector<std::wstring> pieces = {
      L"(",     L")",         L"!",     L"&",      L"|", L"\"",     L" ",           L"%",         L"a",
      L"*",     L"?",         L"[a-",   L"{b,",    L"}", L"=",      L"<=",          L">",         L"10k",
      L"%size", L"%date>1/2", L"%age<", L"%perm=", L"/", L"\x20ac", L"%owner=root", L"%attrib!=d"};
  int errors = 0;
  for (int round = 0; round < 20000; ++round) {
    std::wstring text;
    for (size_t n = random() % 12; n > 0; --n) text += pieces[random() % pieces.size()];
    const int result = MatchName(text.c_str(), L"test");
    ASSERT_TRUE(result == -1 || result == 0 || result == 1) << result;
    errors += result == -1;
  }
  EXPECT_GT(errors, 0);
  EXPECT_LT(errors, 20000);
}

TEST(Expression, RandomCharactersEndWithAResult) {
  std::mt19937 random(12);
  for (int round = 0; round < 20000; ++round) {
    std::wstring text;
    for (size_t n = random() % 40; n > 0; --n)
      text += static_cast<wchar_t>(1 + random() % (round % 2 ? 127 : 70000));
    const int result = MatchName(text.c_str(), L"test");
    ASSERT_TRUE(result >= -1 && result <= 1) << result;
  }
}

class RuleLists : public testing::Test {
 protected:
  std::wstring Text(const wchar_t* name) {
    Westring text(L"none");
    return TestRuleList(rules, name, text) ? text.Text() : L"none";
  }
  AssociationSet rules;
};

TEST_F(RuleLists, TheFirstRuleThatMatchesGivesItsText) {
  rules.Add(L"*.c", L"source");
  rules.Add(L"a*", L"first");
  rules.Add(L"*", L"rest");
  EXPECT_EQ(Text(L"a.c"), L"source");
  EXPECT_EQ(Text(L"a.h"), L"first");
  EXPECT_EQ(Text(L"b"), L"rest");
}

TEST_F(RuleLists, ARuleWithASyntaxErrorMatches) {
  rules.Add(L"*.c", L"source");
  rules.Add(L"(", L"broken");
  EXPECT_EQ(Text(L"a.c"), L"source");
  EXPECT_EQ(Text(L"b"), L"broken");
}

TEST_F(RuleLists, WithoutAMatchTheTextStays) {
  rules.Add(L"*.c", L"source");
  Westring text(L"before");
  EXPECT_FALSE(TestRuleList(rules, L"b", text));
  EXPECT_STREQ(text.Text(), L"before");
}

TEST_F(RuleLists, AnEntryIsTestedWithAllItHas) {
  rules.Add(L"%size>100", L"large");
  entry* const e = NewEntry(L"a");
  e->size = 101;
  Westring text;
  EXPECT_TRUE(TestRuleList(rules, *e, text));
  EXPECT_STREQ(text.Text(), L"large");
  FreeEntry(e);
  EXPECT_EQ(Text(L"a"), L"none");
}

}  // namespace
