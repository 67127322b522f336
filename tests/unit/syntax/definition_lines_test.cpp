// Each key of a definition, and how a line is taken apart.
#include "config/values/colours.h"
#include "unit/syntax/colouring.h"

namespace {

class DefinitionLines : public Colouring {
 protected:
  CSyntaxBlock& Block() { return dynamic_cast<CSyntaxBlock&>(*Definition().Elements.Last()); }
  CSyntaxLiteralString& String() {
    return dynamic_cast<CSyntaxLiteralString&>(*Definition().Elements.Last());
  }
  CSyntaxLineComment& Comment() { return dynamic_cast<CSyntaxLineComment&>(*Definition().Elements.Last()); }
  CSyntaxStateChange& Change() { return *Definition().StateChanges.Last(); }

  int Items() {
    return Definition().WordLists.Count() + Definition().SymbolLists.Count() + Definition().Numbers.Count() +
           Definition().Elements.Count() + Definition().StateChanges.Count();
  }
};

bool ValidInside(const CSyntaxContext& context, const char* name) {
  CSyntaxBlock block;
  block.Name = name;
  return context.ValidIn(&block);
}

// ---- a new definition ------------------------------------------------------

TEST_F(DefinitionLines, PlainTextHasTheViewersColour) {
  Options::Colours[kColourFileViewer] = 0x2E;
  const CSyntaxDefinition definition;
  Options::Colours[kColourFileViewer] = kDefaultColours[kColourFileViewer];
  EXPECT_EQ(definition.DefaultColour, 0x2E);
}

TEST_F(DefinitionLines, WordsAreOfLettersAndDigitsAtFirst) {
  for (int c = 0; c < 256; ++c) EXPECT_EQ(Definition().WordChars[c], c < 128 && isalnum(c) != 0) << c;
  EXPECT_EQ(Definition().DefaultEscape, 0);
}

// ---- taking apart ----------------------------------------------------------

TEST_F(DefinitionLines, ALineWithoutAColonIsIgnored) {
  Define({"number", "", "words red if"});
  EXPECT_EQ(Items(), 0);
}

TEST_F(DefinitionLines, AnUnknownKeyIsIgnored) {
  Define({"numbers:red", ":red:x", "string2:red:a:b", "#words:red:if"});
  EXPECT_EQ(Items(), 0);
}

TEST_F(DefinitionLines, KeysCountWithoutRegardToCase) {
  Define({"NUMBER:red", "LineComment:red:#"});
  EXPECT_EQ(Definition().Numbers.Count(), 1);
  EXPECT_EQ(Definition().Elements.Count(), 1);
}

TEST_F(DefinitionLines, BlanksAroundKeyAndColourDoNotCount) {
  auto named = new KeyedValue{"comment", "green"};
  ASSERT_EQ(Definition().ColourClasses.Insert(named), 0);
  Define({"linecomment (string) /i: comment :#"});
  EXPECT_EQ(Comment().Colour, 0x12);
  EXPECT_FALSE(Comment().CaseSensitive);
  EXPECT_TRUE(ValidInside(Comment().Context, "string"));
}

TEST_F(DefinitionLines, WithoutContextsAnItemIsOfTheTopLevel) {
  Define({"number:red"});
  EXPECT_TRUE(Definition().Numbers.First()->Context.ValidIn(nullptr));
  EXPECT_FALSE(ValidInside(Definition().Numbers.First()->Context, "string"));
}

TEST_F(DefinitionLines, ContextsStandInFrontOfTheOptions) {
  Define({"linecomment(tag,*)/i:red:#"});
  EXPECT_FALSE(Comment().CaseSensitive);
  EXPECT_TRUE(Comment().Context.Everywhere);
}

TEST_F(DefinitionLines, ContextsBehindTheOptionsAreNone) {
  Define({"linecomment/i(tag):red:#"});
  EXPECT_FALSE(Comment().CaseSensitive);
  EXPECT_FALSE(ValidInside(Comment().Context, "tag"));
  EXPECT_TRUE(Comment().Context.ValidIn(nullptr));
}

TEST_F(DefinitionLines, ContextsGoFromTheFirstParenthesisToTheEndOfTheKey) {
  Define({"number(a(b),c):red"});
  EXPECT_TRUE(ValidInside(Definition().Numbers.First()->Context, "a(b)"));
  EXPECT_TRUE(ValidInside(Definition().Numbers.First()->Context, "c"));
}

TEST_F(DefinitionLines, AParenthesisThatIsNotClosedMakesAnUnknownKey) {
  Define({"number(a:red", "number(a)b:red"});
  EXPECT_EQ(Items(), 0);
}

TEST_F(DefinitionLines, OptionsMayStandAnywhereInTheirText) {
  Define({"blockcomment/x-l,i:red:(:)"});
  EXPECT_TRUE(Block().EndsAtEol);
  EXPECT_FALSE(Block().CaseSensitive);
}

TEST_F(DefinitionLines, TheColourIsAClassOfThatNameOrWords) {
  ASSERT_EQ(Definition().ColourClasses.Insert(new KeyedValue{"red", "green"}), 0);
  Define({"number:RED", "number:bright red", "number:nothing", "number:"});
  EXPECT_EQ(Definition().Numbers.Peek(0)->Colour, 0x12);
  EXPECT_EQ(Definition().Numbers.Peek(1)->Colour, 0x1C);
  EXPECT_EQ(Definition().Numbers.Peek(2)->Colour, 0x1B);
  EXPECT_EQ(Definition().Numbers.Peek(3)->Colour, 0x1B);
}

TEST_F(DefinitionLines, ALongListOfContextsDropsTheLine) {
  const std::string contexts(5000, ',');
  const std::string line = "number(" + contexts + "):red";
  Define({line.c_str()});
  EXPECT_EQ(Items(), 0);
}

TEST_F(DefinitionLines, ItemsWithoutEndAreBounded) {
  for (int i = 0; i < kMostSyntaxItems + 10; ++i) Define({"number:red"});
  EXPECT_EQ(Items(), kMostSyntaxItems);
}

// ---- keys ------------------------------------------------------------------

TEST_F(DefinitionLines, WordcharsAddsEachByteOfTheColourField) {
  Define({"wordchars:_$\xC3", "wordchars:-:+"});
  for (const uint8_t c : {'_', '$', '-', 'a'}) EXPECT_TRUE(Definition().WordChars[c]) << c;
  EXPECT_TRUE(Definition().WordChars[0xC3]);
  EXPECT_FALSE(Definition().WordChars[':']);
  EXPECT_FALSE(Definition().WordChars['+']);
}

TEST_F(DefinitionLines, WordsAreSeparatedByBlanks) {
  Define({"words:red:while if  for"});
  SyntaxWordList& list = *Definition().WordLists.First();
  EXPECT_EQ(list.Count(), 3);
  EXPECT_TRUE(list.CaseSensitive);
  EXPECT_EQ(list.Colour, 0x14);
  EXPECT_TRUE(list.Holds(L"while", 5));
}

TEST_F(DefinitionLines, WordsMayHoldColons) {
  Define({"words:red:std::move public:"});
  EXPECT_TRUE(Definition().WordLists.First()->Holds(L"std::move", 9));
  EXPECT_TRUE(Definition().WordLists.First()->Holds(L"public:", 7));
}

TEST_F(DefinitionLines, WordsAreDecoded) {
  Define({"words:red:\xD0\xB4\xD0\xB0"});
  EXPECT_TRUE(Definition().WordLists.First()->Holds(L"\x434\x430", 2));
}

TEST_F(DefinitionLines, WordsThatIgnoreCaseTakeTwoSpellingsForOneWord) {
  Define({"words/i:red:BEGIN begin"});
  SyntaxWordList& list = *Definition().WordLists.First();
  EXPECT_EQ(list.Count(), 1);
  EXPECT_TRUE(list.Holds(L"bEgIn", 5));
}

TEST_F(DefinitionLines, SymbolsAreBytes) {
  Define({"symbols:red:+:\xC2\xB1"});
  SyntaxSymbolList& list = *Definition().SymbolLists.First();
  EXPECT_TRUE(list.Symbols['+']);
  EXPECT_TRUE(list.Symbols[':']);
  EXPECT_TRUE(list.Symbols[0xC2]);
  EXPECT_TRUE(list.Symbols[0xB1]);
  EXPECT_EQ(list.Symbols.count(), 4u);
}

TEST_F(DefinitionLines, LinecommentTakesAllThatFollows) {
  Define({"linecomment:red:::"});
  EXPECT_STREQ(Comment().Start.Text(), "::");
  EXPECT_STREQ(Comment().Name.Text(), "linecomment");
  EXPECT_TRUE(Comment().CaseSensitive);
  EXPECT_TRUE(Comment().EndsAtEol);
  int length = 0;
  EXPECT_TRUE(Comment().MatchStart(L":: x", nullptr, length));
}

TEST_F(DefinitionLines, BlockcommentHasStartAndEnd) {
  Define({"blockcomment:red:/*:*/"});
  EXPECT_STREQ(Block().Name.Text(), "blockcomment");
  EXPECT_STREQ(Block().Start.Text(), L"/*");
  EXPECT_STREQ(Block().End.Text(), L"*/");
  EXPECT_TRUE(Block().CaseSensitive);
  EXPECT_FALSE(Block().EndsAtEol);
}

TEST_F(DefinitionLines, BlockcommentMayHaveNoEnd) {
  Define({"blockcomment/l:red:;"});
  EXPECT_STREQ(Block().Start.Text(), L";");
  EXPECT_TRUE(Block().End.IsEmpty());
}

TEST_F(DefinitionLines, StateIsABlockWithAName) {
  Define({"state/il:red:Tag:<a:>"});
  EXPECT_STREQ(Block().Name.Text(), "Tag");
  EXPECT_STREQ(Block().Start.Text(), L"<a");
  EXPECT_STREQ(Block().End.Text(), L">");
  EXPECT_FALSE(Block().CaseSensitive);
  EXPECT_TRUE(Block().EndsAtEol);
}

TEST_F(DefinitionLines, AStateMayBeEnteredByChangesOnly) {
  Define({"state:red:body"});
  EXPECT_STREQ(Block().Name.Text(), "body");
  EXPECT_TRUE(Block().Start.IsEmpty());
}

TEST_F(DefinitionLines, StringTakesTheFirstCharacterOfEachField) {
  Define({"string:red:\xC2\xABx:\xC2\xBBy:^z"});
  EXPECT_STREQ(String().Name.Text(), "string");
  EXPECT_EQ(String().Open, L'\xAB');
  EXPECT_EQ(String().Close, L'\xBB');
  EXPECT_EQ(String().Escape, L'^');
  EXPECT_FALSE(String().EndsAtEol);
}

TEST_F(DefinitionLines, AStringWithoutASecondFieldIsNone) {
  Define({"string:red:\"", "string:red", "string:red:\":", "string:red::\""});
  EXPECT_EQ(Items(), 0);
}

TEST_F(DefinitionLines, EscapeHoldsForTheStringsBehindIt) {
  Define({"string:red:a:b", "escape:\\", "string:red:c:d", "string:red:e:f:^", "string:red:g:h:"});
  const auto escape = [this](int i) { return Definition().Elements.Peek(i)->Escape; };
  EXPECT_EQ(escape(0), 0);
  EXPECT_EQ(escape(1), L'\\');
  EXPECT_EQ(escape(2), L'^');
  EXPECT_EQ(escape(3), L'\\');
}

TEST_F(DefinitionLines, EscapeIsACharacterAndAnEmptyOneIsNone) {
  Define({"escape:\xC2\xA7z"});
  EXPECT_EQ(Definition().DefaultEscape, L'\xA7');
  Define({"escape:"});
  EXPECT_EQ(Definition().DefaultEscape, 0);
}

TEST_F(DefinitionLines, NumberNeedsNoMoreThanItsColour) {
  Define({"number:red", "number:green:anything"});
  EXPECT_EQ(Definition().Numbers.Peek(0)->Colour, 0x14);
  EXPECT_EQ(Definition().Numbers.Peek(1)->Colour, 0x12);
}

TEST_F(DefinitionLines, StatechangeHasTriggerActionAndTarget) {
  Define({"statechange:red:<%:push:code"});
  EXPECT_STREQ(Change().Trigger.Text(), L"<%");
  EXPECT_EQ(Change().Action, kSyntaxPush);
  EXPECT_STREQ(Change().TargetName.Text(), "code");
  EXPECT_EQ(Change().Target, nullptr);
  EXPECT_TRUE(Change().CaseSensitive);
}

TEST_F(DefinitionLines, StatechangeKnowsPushAndPopAndTakesAllElseForChange) {
  Define({"statechange/i:red:a:pop", "statechange:red:b:PUSH:x", "statechange:red:c:other:x",
          "statechange:red:d"});
  const auto action = [this](int i) { return Definition().StateChanges.Peek(i)->Action; };
  EXPECT_EQ(action(0), kSyntaxPop);
  EXPECT_EQ(action(1), kSyntaxPush);
  EXPECT_EQ(action(2), kSyntaxChange);
  EXPECT_EQ(action(3), kSyntaxChange);
  EXPECT_FALSE(Definition().StateChanges.First()->CaseSensitive);
}

TEST_F(DefinitionLines, InTheFieldsOfStatechangeABackslashMakesLiteral) {
  Define({"statechange:red:a\\:b\\\\\\c:pu\\sh:t\\:u:rest"});
  EXPECT_STREQ(Change().Trigger.Text(), L"a:b\\c");
  EXPECT_EQ(Change().Action, kSyntaxPush);
  EXPECT_STREQ(Change().TargetName.Text(), "t:u");
}

TEST_F(DefinitionLines, ABackslashAtTheEndOfStatechangeIsNothing) {
  Define({"statechange:red:a:push:x\\"});
  EXPECT_STREQ(Change().TargetName.Text(), "x");
}

TEST_F(DefinitionLines, ItemsKeepTheOrderOfTheFile) {
  Define({"string:red:a:b", "linecomment:red:#", "blockcomment:red:(:)", "state:red:x:<:>"});
  const auto name = [this](int i) { return std::string(Definition().Elements.Peek(i)->Name.Text()); };
  EXPECT_EQ(name(0) + " " + name(1) + " " + name(2) + " " + name(3), "string linecomment blockcomment x");
}

}  // namespace
