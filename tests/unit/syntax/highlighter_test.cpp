// The order in which a line's characters are taken, and what is put out.
#include "unit/syntax/colouring.h"

namespace {

using Highlighter = Colouring;

// ---- output ----------------------------------------------------------------

TEST_F(Highlighter, NotActiveAllIsPlain) {
  Define({"linecomment:red:#", "number:green", "state:yellow:x:a:b"});
  highlighter.Active = false;
  EXPECT_EQ(Marks(L"a 1 # x"), ".......");
  EXPECT_EQ(highlighter.Top(), nullptr);
  EXPECT_EQ(Shown(L"a\tb\a\b"), L"a       b  ");
}

TEST_F(Highlighter, ALineReplacesTheCells) {
  cells.Append(L"old", 7);
  EXPECT_EQ(Shown(L"new"), L"new");
  EXPECT_EQ(cells.attribute, Definition().DefaultColour);
  EXPECT_EQ(Shown(L""), L"");
}

TEST_F(Highlighter, TabsGoToTheNextStopOfTheCells) {
  Options::TabWidth = 4;
  EXPECT_EQ(Shown(L"\ta\tbcd\tefgh\ti"), L"    a   bcd efgh    i");
}

TEST_F(Highlighter, AnUnsetTabWidthGivesOneBlank) {
  Options::TabWidth = 0;
  EXPECT_EQ(Shown(L"a\tb"), L"a b");
}

TEST_F(Highlighter, BellAndBackspaceAreBlanks) {
  EXPECT_EQ(Shown(L"a\a\b\x1"
                  L"b\x107\x109"),
            L"a  \x1"
            L"b\x107\x109");
}

TEST_F(Highlighter, BlanksOfATabHaveTheColourOfTheTab) {
  Options::TabWidth = 4;
  Define({"linecomment:red:#"});
  EXPECT_EQ(Marks(L"a\t#\tx"), "....rrrrr");
}

TEST_F(Highlighter, ATabInAnOpeningTextStaysATab) {
  Define({"linecomment:red:#\t"});
  EXPECT_EQ(Shown(L"a#\tb\tc"), L"a#\tb    c");
}

// ---- elements --------------------------------------------------------------

TEST_F(Highlighter, OpeningAndClosingTextsHaveTheElementsColour) {
  Define({"blockcomment:red:/*:*/"});
  EXPECT_EQ(Marks(L"a /* b */ c"), "..rrrrrrr..");
}

TEST_F(Highlighter, ABlockRunsOnOverLines) {
  Define({"blockcomment:red:/*:*/"});
  EXPECT_EQ(Marks(L"a /*"), "..rr");
  EXPECT_EQ(Marks(L"b"), "r");
  EXPECT_EQ(Marks(L""), "");
  EXPECT_EQ(Marks(L"c */ d"), "rrrr..");
}

TEST_F(Highlighter, ALineCommentEndsWithItsLine) {
  Define({"linecomment:red://"});
  EXPECT_EQ(Marks(L"a // b"), "..rrrr");
  EXPECT_EQ(Marks(L"c"), ".");
}

TEST_F(Highlighter, OnlyABlockWithThatOptionEndsWithTheLine) {
  Define({"blockcomment/l:red:<:>", "blockcomment:green:(:)"});
  EXPECT_EQ(Marks(L"a<b"), ".rr");
  EXPECT_EQ(Marks(L"a(b"), ".gg");
  EXPECT_EQ(Marks(L"a)b"), "gg.");
}

TEST_F(Highlighter, AtTheEndOfALineAllThatEndThereGo) {
  Define({"blockcomment:blue:[:]", "state(blockcomment)/l:red:one:<:>", "state(one)/l:green:two:(:)"});
  EXPECT_EQ(Marks(L"[<(x"), "brgg");
  EXPECT_EQ(Marks(L"y"), "b");
  EXPECT_EQ(highlighter.Count(), 1);
}

TEST_F(Highlighter, WhatEndsWithTheLineStaysBelowWhatDoesNot) {
  Define({"state/l:red:one:<:>", "state(one):green:two:(:)"});
  EXPECT_EQ(Marks(L"<(x"), "rgg");
  EXPECT_EQ(Marks(L"y)z"), "ggr");
  EXPECT_EQ(Marks(L"y"), ".");
}

TEST_F(Highlighter, AnUnclosedStringRunsOnIntoTheNextLine) {
  Define({"string:red:\":\""});
  EXPECT_EQ(Marks(L"\"a"), "rr");
  EXPECT_EQ(Marks(L"b\"c"), "rr.");
}

TEST_F(Highlighter, TheFirstElementThatMatchesWins) {
  Define({"linecomment:red:--", "linecomment:green:-"});
  EXPECT_EQ(Marks(L"--x"), "rrr");
  EXPECT_EQ(Marks(L"-x"), "gg");
  highlighter.Definition.Clear();
  Define({"linecomment:green:-", "linecomment:red:--"});
  EXPECT_EQ(Marks(L"--x"), "ggg");
}

TEST_F(Highlighter, TheEndIsLookedForBeforeAnotherStart) {
  Define({"string(*):red:':'"});
  EXPECT_EQ(Marks(L"'a'b"), "rrr.");
}

TEST_F(Highlighter, ElementsNestWhereTheirContextsLetThem) {
  Define({"blockcomment(,blockcomment):red:(*:*)"});
  EXPECT_EQ(Marks(L"(* a (* b *) c *) d"), "rrrrrrrrrrrrrrrrr..");
}

TEST_F(Highlighter, ElementsComeBeforeStateChangesAndThoseBeforeWords) {
  Define({"words:red:rem end", "statechange:green:rem:push:", "linecomment:yellow:rem "});
  EXPECT_EQ(Marks(L"rem x"), "yyyyy");
  EXPECT_EQ(Marks(L"rem"), "ggg");
  EXPECT_EQ(Marks(L"end"), "rrr");
}

TEST_F(Highlighter, NoElementBeginsInsideOfAWord) {
  Define({"linecomment:red:rem"});
  EXPECT_EQ(Marks(L"theorem"), ".......");
  EXPECT_EQ(Marks(L"a rem"), "..rrr");
  EXPECT_EQ(Marks(L"remark"), "rrrrrr");
}

TEST_F(Highlighter, ACommentsStartInsideOfAStringIsText) {
  Define({"linecomment:red://", "string:green:\":\""});
  EXPECT_EQ(Marks(L"\"a//b\" // c"), "gggggg.rrrr");
}

TEST_F(Highlighter, ACommentThatSaysSoBeginsInsideOfAString) {
  Define({"linecomment(,string):red://", "string:green:\":\""});
  EXPECT_EQ(Marks(L"\"a//b\""), "ggrrrr");
}

// ---- escapes ---------------------------------------------------------------

TEST_F(Highlighter, AnEscapedQuoteDoesNotClose) {
  Define({"string:red:\":\":\\"});
  EXPECT_EQ(Marks(L"\"a\\\"b\"c"), "rrrrrr.");
  EXPECT_EQ(Marks(L"\"\\\\\"c"), "rrrr.");
}

TEST_F(Highlighter, AnEscapeAtTheEndOfTheLineEscapesNothing) {
  Define({"string:red:\":\":\\"});
  EXPECT_EQ(Marks(L"\"a\\"), "rrr");
  EXPECT_EQ(Marks(L"\"c"), "r.");
}

TEST_F(Highlighter, OutsideOfItsStringAnEscapeIsACharacter) {
  Define({"string:red:\":\":\\"});
  EXPECT_EQ(Marks(L"\\\"a\"b"), ".rrr.");
}

TEST_F(Highlighter, BothEscapedCharactersHaveTheColourOfTheEscape) {
  Define({"string:red:\":\":\\", "symbols(string):green:\\"});
  EXPECT_EQ(Marks(L"\"a\\nb\""), "rrggrr");
}

TEST_F(Highlighter, AnEscapedTabStaysATab) {
  Define({"string:red:\":\":\\"});
  EXPECT_EQ(Shown(L"\"\\\tb"), L"\"\\\tb");
}

TEST_F(Highlighter, AQuoteThatEscapesItselfClosesFirst) {
  Define({"string:red:':':'"});
  EXPECT_EQ(Marks(L"'a''b'c"), "rrrrrr.");
}

// ---- words and numbers -----------------------------------------------------

TEST_F(Highlighter, AWordHasTheColourOfTheFirstListThatHoldsIt) {
  Define({"words:red:if", "words:green:if else"});
  EXPECT_EQ(Marks(L"if else x"), "rr.gggg..");
}

TEST_F(Highlighter, OnlyWholeWordsAreLookedUp) {
  Define({"words:red:if"});
  EXPECT_EQ(Marks(L"iff if1 xif if"), "............rr");
}

TEST_F(Highlighter, WordCharactersDecideWhereAWordEnds) {
  Define({"words:red:if a-b"});
  EXPECT_EQ(Marks(L"if_x a-b"), "rr......");
  Define({"wordchars:_-"});
  EXPECT_EQ(Marks(L"if_x a-b"), ".....rrr");
}

TEST_F(Highlighter, WithoutCaseAnySpellingOfAWordCounts) {
  Define({"words/i:red:BEGIN"});
  EXPECT_EQ(Marks(L"begin Begin"), "rrrrr.rrrrr");
}

TEST_F(Highlighter, AWordCharacterCountsByItsLowByte) {
  Define({"words:red:\xD0\xB4\xD1\x8F"});  // U+0434 U+044F: low bytes '4' and 'O'
  EXPECT_EQ(Marks(L"\x434\x44F"), "rr");
  EXPECT_EQ(Marks(L"\x434\x44F"
                  L"x"),
            "...");
  EXPECT_EQ(Marks(L"4O"), "..");
}

TEST_F(Highlighter, AWordListOfAStateCountsWhileThatIsOnTop) {
  Define({"state:red:tag:<:>", "state(tag):yellow:inner:(:)", "words(tag):green:a"});
  EXPECT_EQ(Marks(L"a <a (a) a> a"), "..rgryyyrgr..");
}

TEST_F(Highlighter, AWordThatBeginsWithADigitIsANumber) {
  Define({"number:red", "words:green:12ab"});
  EXPECT_EQ(Marks(L"12ab 0x1F 3.5"), "rrrr.rrrr.r.r");
}

TEST_F(Highlighter, DigitsInsideOfAWordMakeNoNumber) {
  Define({"number:red"});
  EXPECT_EQ(Marks(L"a1 b22c"), ".......");
}

TEST_F(Highlighter, TheLastValidNumberWins) {
  Define({"number:red", "number(*):green", "number(string):yellow", "string:blue:':'"});
  EXPECT_EQ(Marks(L"1 '2'"), "g.byb");
}

TEST_F(Highlighter, NumbersAndWordsElsewhereHaveTheColourOfTheElement) {
  Define({"number:red", "words:red:if", "symbols:red:+", "blockcomment:green:(:)"});
  EXPECT_EQ(Marks(L"(1 if +)"), "gggggggg");
}

// ---- symbols ---------------------------------------------------------------

TEST_F(Highlighter, TheLastValidSymbolListWins) {
  Define({"symbols:red:+-", "symbols:green:-*", "symbols(string):yellow:-"});
  EXPECT_EQ(Marks(L"+-*/"), "rgg.");
}

TEST_F(Highlighter, ASymbolCountsByItsLowByte) {
  Define({"symbols:red:+"});
  EXPECT_EQ(Marks(L"+\x12B\x12C"), "rr.");
}

TEST_F(Highlighter, WordCharactersAreNoSymbols) {
  Define({"symbols:red:a+"});
  EXPECT_EQ(Marks(L"a+"), ".r");
}

// ---- size ------------------------------------------------------------------

TEST_F(Highlighter, AMillionCharactersInOneLineArePainted) {
  Define({"linecomment:red://", "blockcomment:green:/*:*/", "string:yellow:':':\\", "words:blue:if",
          "statechange:cyan:{:push:blockcomment"});
  constexpr size_t kLength = 1 << 20;
  const std::wstring word(kLength, L'i'), slashes = [] {
    std::wstring text;
    while (text.size() < kLength) text += L"/ *'\\''";
    return text;
  }();
  highlighter.RenderLine(word.c_str(), cells);
  EXPECT_EQ(cells.Length(), static_cast<int>(word.size()));
  highlighter.RenderLine(slashes.c_str(), cells);
  EXPECT_EQ(cells.Length(), static_cast<int>(slashes.size()));
}

}  // namespace
