// Where items apply, and where elements begin and end.
#include <gtest/gtest.h>

#include "syntax/syntax_definition.h"

namespace {

// ---- contexts --------------------------------------------------------------

class SyntaxContext : public testing::Test {
 protected:
  void Set(const char* list) {
    const Estring text(list);
    context.Set(&text);
  }
  bool ValidInside(const char* name) const {
    CSyntaxBlock block;
    block.Name = name;
    return context.ValidIn(&block);
  }
  bool ValidAtTop() const { return context.ValidIn(nullptr); }

  CSyntaxContext context;
};

TEST_F(SyntaxContext, NoListMeansTheTopLevelOnly) {
  context.Set(nullptr);
  EXPECT_TRUE(ValidAtTop());
  EXPECT_FALSE(ValidInside("string"));
}

TEST_F(SyntaxContext, AListWithoutAnEmptyNameLeavesTheTopLevel) {
  Set("string");
  EXPECT_FALSE(ValidAtTop());
  EXPECT_TRUE(ValidInside("string"));
  EXPECT_FALSE(ValidInside("blockcomment"));
}

TEST_F(SyntaxContext, AnEmptyNameAnywhereIsTheTopLevel) {
  for (const char* list : {",string", "string,", "string,,tag", "string,\"\"", "\"\",string"}) {
    Set(list);
    EXPECT_TRUE(ValidAtTop()) << list;
    EXPECT_TRUE(ValidInside("string")) << list;
  }
}

TEST_F(SyntaxContext, AnEmptyListIsOneEmptyName) {
  Set("");
  EXPECT_TRUE(ValidAtTop());
  EXPECT_FALSE(ValidInside("string"));
}

TEST_F(SyntaxContext, AStarMeansEverywhere) {
  Set("string,*");
  EXPECT_TRUE(context.Everywhere);
  EXPECT_FALSE(context.TopLevel);
  EXPECT_TRUE(ValidAtTop());
  EXPECT_TRUE(ValidInside("anything"));
}

TEST_F(SyntaxContext, NamesCountWithoutRegardToCase) {
  Set("String");
  EXPECT_TRUE(ValidInside("sTRING"));
}

TEST_F(SyntaxContext, NamesMayBeQuotedAndEscaped) {
  Set("\"a,b\",\\099d,\\*");
  EXPECT_TRUE(ValidInside("a,b"));
  EXPECT_TRUE(ValidInside("cd"));
  EXPECT_TRUE(context.Everywhere);
}

TEST_F(SyntaxContext, AnotherListReplacesTheFirst) {
  Set("*,one");
  Set("two");
  EXPECT_FALSE(ValidInside("one"));
  EXPECT_TRUE(ValidInside("two"));
  context.Set(nullptr);
  EXPECT_FALSE(ValidInside("two"));
}

// ---- comparing -------------------------------------------------------------

TEST(StandsAt, ComparesToTheEndOfTheWord) {
  EXPECT_TRUE(StandsAt(L"/* x", L"/*", true));
  EXPECT_FALSE(StandsAt(L"/", L"/*", true));
  EXPECT_FALSE(StandsAt(L"", L"/*", true));
}

TEST(StandsAt, AnEmptyWordStandsNowhere) {
  EXPECT_FALSE(StandsAt(L"abc", L"", true));
  EXPECT_FALSE(StandsAt(L"", L"", false));
}

TEST(StandsAt, CaseCountsAsAsked) {
  EXPECT_FALSE(StandsAt(L"REM x", L"rem", true));
  EXPECT_TRUE(StandsAt(L"REM x", L"rem", false));
  EXPECT_TRUE(StandsAt(L"rem x", L"REM", false));
  EXPECT_FALSE(StandsAt(L"re", L"REM", false));
}

// ---- elements --------------------------------------------------------------

TEST(LineComment, BeginsWithItsTextAndNeverEndsByOne) {
  CSyntaxLineComment comment;
  comment.SetStart("//");
  int length = 0;
  EXPECT_TRUE(comment.MatchStart(L"// x", nullptr, length));
  EXPECT_EQ(length, 2);
  EXPECT_FALSE(comment.MatchStart(L"/ x", nullptr, length));
  EXPECT_FALSE(comment.MatchEnd(L"//", length));
  EXPECT_TRUE(comment.EndsAtEol);
}

TEST(LineComment, TheStartIsCharactersAndNotBytes) {
  CSyntaxLineComment comment;
  comment.SetStart("\xC2\xA7");
  int length = 0;
  EXPECT_TRUE(comment.MatchStart(L"\xA7 x", nullptr, length));
  EXPECT_EQ(length, 1);
}

TEST(LineComment, CaseCountsUnlessSwitchedOff) {
  CSyntaxLineComment comment;
  comment.SetStart("rem ");
  int length = 0;
  EXPECT_FALSE(comment.MatchStart(L"REM x", nullptr, length));
  comment.CaseSensitive = false;
  EXPECT_TRUE(comment.MatchStart(L"REM x", nullptr, length));
  EXPECT_EQ(length, 4);
}

TEST(Block, BeginsAndEndsWithItsTexts) {
  CSyntaxBlock block;
  block.Start = L"<!--";
  block.End = L"-->";
  int length = 0;
  EXPECT_TRUE(block.MatchStart(L"<!-- x", nullptr, length));
  EXPECT_EQ(length, 4);
  EXPECT_TRUE(block.MatchEnd(L"-->", length));
  EXPECT_EQ(length, 3);
  EXPECT_FALSE(block.MatchEnd(L"--", length));
}

TEST(Block, BothTextsFollowTheCaseOption) {
  CSyntaxBlock block;
  block.Start = L"begin";
  block.End = L"END";
  int length = 0;
  EXPECT_FALSE(block.MatchStart(L"BEGIN", nullptr, length));
  EXPECT_FALSE(block.MatchEnd(L"end", length));
  block.CaseSensitive = false;
  EXPECT_TRUE(block.MatchStart(L"BEGIN", nullptr, length));
  EXPECT_TRUE(block.MatchEnd(L"end", length));
}

TEST(Block, WithoutAnEndNothingEndsIt) {
  CSyntaxBlock block;
  block.Start = L"x";
  int length = 0;
  EXPECT_FALSE(block.MatchEnd(L"", length));
  EXPECT_FALSE(block.MatchEnd(L"x", length));
}

TEST(Block, WithoutAStartNothingBeginsIt) {
  CSyntaxBlock block;
  block.End = L"x";
  int length = 0;
  EXPECT_FALSE(block.MatchStart(L"", nullptr, length));
  EXPECT_FALSE(block.MatchStart(L"x", nullptr, length));
}

TEST(LiteralString, BeginsAndEndsWithOneCharacter) {
  CSyntaxLiteralString string;
  string.Open = L'<';
  string.Close = L'>';
  int length = 0;
  EXPECT_TRUE(string.MatchStart(L"<a>", nullptr, length));
  EXPECT_EQ(length, 1);
  EXPECT_FALSE(string.MatchEnd(L"<", length));
  EXPECT_TRUE(string.MatchEnd(L">>", length));
  EXPECT_EQ(length, 1);
}

TEST(LiteralString, NothingMatchesTheEndOfTheText) {
  const CSyntaxLiteralString string;
  int length = 0;
  EXPECT_FALSE(string.MatchStart(L"", nullptr, length));
  EXPECT_FALSE(string.MatchEnd(L"", length));
}

TEST(Elements, BeginOnlyWhereTheirContextSays) {
  CSyntaxBlock inside;
  inside.Name = "tag";
  const Estring list("tag");
  CSyntaxLineComment comment;
  CSyntaxBlock block;
  CSyntaxLiteralString string;
  comment.SetStart("x");
  block.Start = L"x";
  string.Open = L'x';
  int length = 0;
  for (CSyntaxElement* element : std::initializer_list<CSyntaxElement*>{&comment, &block, &string}) {
    EXPECT_TRUE(element->MatchStart(L"x", nullptr, length));
    EXPECT_FALSE(element->MatchStart(L"x", &inside, length));
    element->Context.Set(&list);
    EXPECT_FALSE(element->MatchStart(L"x", nullptr, length));
    EXPECT_TRUE(element->MatchStart(L"x", &inside, length));
  }
}

// ---- where anything may begin ----------------------------------------------

TEST(StartIndex, HasItemsWhereTheyMayBeginInTheirOrder) {
  CSyntaxDefinition definition;
  for (const char* line :
       {"linecomment:red:#", "blockcomment/i:red:rem:x", "string:red:R:r", "string:red:#:#"})
    AddDefinitionLine(definition, line);
  definition.IndexStarts();
  const auto& elements = definition.Elements;
  EXPECT_EQ(definition.ElementsAt('#'), (std::vector{elements.Peek(0), elements.Peek(3)}));
  EXPECT_EQ(definition.ElementsAt('r'), (std::vector{elements.Peek(1)}));
  EXPECT_EQ(definition.ElementsAt('R'), (std::vector{elements.Peek(1), elements.Peek(2)}));
  EXPECT_TRUE(definition.ElementsAt('x').empty());
  definition.Clear();
  EXPECT_TRUE(definition.ElementsAt('#').empty());
}

TEST(StartIndex, BeyondAsciiAreItemsOfSuchCharactersAndThoseWithoutCase) {
  EXPECT_TRUE(MayBeginAt({0xE9, true}, SyntaxStartOf(0xE9)));
  EXPECT_TRUE(MayBeginAt({'k', false}, SyntaxStartOf(0x212A)));
  EXPECT_FALSE(MayBeginAt({'k', true}, SyntaxStartOf(0x212A)));
  EXPECT_TRUE(MayBeginAt({0x212A, false}, SyntaxStartOf(0xE9)));
  EXPECT_FALSE(MayBeginAt({0, false}, SyntaxStartOf(-1)));
}

// ---- words -----------------------------------------------------------------

TEST(WordCollection, HoldsWordsInPlace) {
  WordCollection words;
  words.AddWords(L"  while if\tfor if ");
  EXPECT_EQ(words.Count(), 3);
  EXPECT_TRUE(words.Holds(L"if (x)", 2));
  EXPECT_FALSE(words.Holds(L"if (x)", 1));
  EXPECT_FALSE(words.Holds(L"ifx", 3));
  EXPECT_TRUE(words.Holds(L"while", 5));
  EXPECT_FALSE(words.Holds(L"IF", 2));
}

TEST(WordCollection, FindsEveryWordOfALongList) {
  WordCollection words;
  std::wstring list;
  for (int i = 0; i < 1000; ++i) list += std::to_wstring(i * 7919 % 1000) + L" ";
  words.AddWords(list.c_str());
  ASSERT_EQ(words.Count(), 1000);
  for (int i = 0; i < 1000; ++i) {
    const std::wstring word = std::to_wstring(i);
    EXPECT_TRUE(words.Holds(word.c_str(), static_cast<int>(word.size()))) << i;
  }
  EXPECT_FALSE(words.Holds(L"1000", 4));
}

TEST(WordCollection, WithoutCaseOneSpellingStandsForAll) {
  WordCollection words;
  words.CaseSensitive = false;
  words.AddWords(L"BEGIN begin End");
  EXPECT_EQ(words.Count(), 2);
  EXPECT_TRUE(words.Holds(L"Begin", 5));
  EXPECT_TRUE(words.Holds(L"END", 3));
}

TEST(WordCollection, WithCaseEachSpellingIsAWord) {
  WordCollection words;
  words.AddWords(L"BEGIN begin");
  EXPECT_EQ(words.Count(), 2);
  EXPECT_FALSE(words.Holds(L"Begin", 5));
}

TEST(WordCollection, WholeCharactersCompare) {
  WordCollection words;
  words.AddWords(L"\x441\x442");
  EXPECT_TRUE(words.Holds(L"\x441\x442", 2));
  EXPECT_FALSE(words.Holds(L"AB", 2));  // the same low bytes
}

TEST(WordCollection, TheLookUpOfTheBaseGoesByTheSameOrder) {
  WordCollection words;
  words.AddWords(L"beta Alpha gamma alpha");
  const Westring alpha(L"alpha"), upper(L"ALPHA");
  EXPECT_NE(words.Find(&alpha), nullptr);
  EXPECT_EQ(words.Find(&upper), nullptr);
}

}  // namespace
