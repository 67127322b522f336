// Changes of state by triggers, and the stack of what is open.
#include "unit/syntax/colouring.h"

namespace {

class HighlighterStates : public Colouring {
 protected:
  std::string Open() const {
    std::string names;
    for (int i = 0; i < highlighter.Count(); ++i)
      names += std::string(names.empty() ? "" : " ") + highlighter.Peek(i)->Name.Text();
    return names;
  }
};

// ---- changes of state ------------------------------------------------------

TEST_F(HighlighterStates, PushOpensTheTarget) {
  Define({"state:red:code", "statechange:green:<%:push:code"});
  EXPECT_EQ(Marks(L"a<%b"), ".ggr");
  EXPECT_EQ(Open(), "code");
}

TEST_F(HighlighterStates, PopGoesBack) {
  Define({"state:red:code", "statechange:green:<%:push:code", "statechange(code):yellow:%>:pop"});
  EXPECT_EQ(Marks(L"<%b%>c"), "ggryy.");
  EXPECT_EQ(Open(), "");
}

TEST_F(HighlighterStates, PopOfNothingIsNoHarm) {
  Define({"statechange:green:x:pop"});
  EXPECT_EQ(Marks(L"x y"), "g..");
}

TEST_F(HighlighterStates, ChangeReplacesTheTop) {
  Define({"state:red:one:(:)", "state:blue:two", "statechange(one):green:,:change:two"});
  EXPECT_EQ(Marks(L"(a,b"), "rrgb");
  EXPECT_EQ(Open(), "two");
}

TEST_F(HighlighterStates, ChangeWithNothingOpenPushes) {
  Define({"state:blue:two", "statechange:green:,:change:two"});
  EXPECT_EQ(Marks(L",b"), "gb");
  EXPECT_EQ(Open(), "two");
}

TEST_F(HighlighterStates, PushAndPopAtTheSamePlaceRestoreTheColours) {
  Define({"state:red:one:<:>", "state:blue:two", "statechange(one):green:(:push:two",
          "statechange(two):green:):pop"});
  EXPECT_EQ(Marks(L"<a()b>c"), "rrggrr.");
}

TEST_F(HighlighterStates, AMissingTargetMakesPushNothingAndChangeAPop) {
  Define({"state:red:one:<:>", "statechange(*):green:+:push:none", "statechange(*):yellow:-:change:none",
          "statechange(*):blue:*:push"});
  EXPECT_EQ(Marks(L"<a+*b-c"), "rrgbry.");
}

TEST_F(HighlighterStates, PopKeepsAwayFromItsTarget) {
  Define({"state:red:one:<:>", "statechange(one):green:-:pop:one"});
  EXPECT_EQ(Marks(L"<a-b"), "rrg.");
}

TEST_F(HighlighterStates, TheTargetIsTheFirstOfThatNameInAnyCase) {
  Define({"statechange:green:(:push:CODE", "state:red:code", "state:blue:Code"});
  EXPECT_EQ(Marks(L"(a"), "gr");
}

TEST_F(HighlighterStates, TargetsMayBeCommentsAndStrings) {
  Define({"string:red:':'", "linecomment:yellow:#", "statechange:green:q:push:string",
          "statechange:blue:c:push:linecomment"});
  EXPECT_EQ(Marks(L"q x'c x"), "grrrbyy");
  EXPECT_EQ(Open(), "");
}

TEST_F(HighlighterStates, ATargetDefinedLaterIsFoundAtTheFirstUse) {
  Define({"statechange:green:(:push:code"});
  Define({"state:red:code"});
  EXPECT_EQ(Definition().StateChanges.First()->Target, nullptr);
  EXPECT_EQ(Marks(L"(a"), "gr");
  EXPECT_EQ(Definition().StateChanges.First()->Target, Definition().Elements.First());
}

TEST_F(HighlighterStates, TheFirstChangeThatIsValidAndStandsThereWins) {
  Define({"state:red:code", "statechange(code):yellow:x:pop", "statechange:green:x:push:code",
          "statechange:blue:x:push:code"});
  EXPECT_EQ(Marks(L"x x"), "gry");
}

TEST_F(HighlighterStates, TriggersFollowTheCaseOption) {
  Define({"state:red:code", "statechange/i:green:BEGIN:push:code", "statechange(code):yellow:End:pop"});
  EXPECT_EQ(Marks(L"begin end End"), "gggggrrrrryyy");
}

TEST_F(HighlighterStates, AnEmptyTriggerStandsNowhere) {
  Define({"state:red:code", "statechange::: push:code", "statechange:green::push:code"});
  EXPECT_EQ(Marks(L"a b"), "...");
}

// ---- the stack -------------------------------------------------------------

TEST_F(HighlighterStates, ClearLeavesEverything) {
  Define({"blockcomment:red:(:)"});
  Marks(L"(");
  highlighter.Clear();
  EXPECT_EQ(highlighter.Top(), nullptr);
  EXPECT_EQ(Marks(L"a"), ".");
}

TEST_F(HighlighterStates, ACopyOfTheStackGoesOnFromThere) {
  Define({"blockcomment(,blockcomment):red:(:)"});
  Marks(L"((");
  CContextStack kept;
  kept.CopyStack(highlighter);
  EXPECT_EQ(Marks(L"))a"), "rr.");
  highlighter.CopyStack(kept);
  EXPECT_EQ(Marks(L"))a"), "rr.");
  EXPECT_EQ(kept.Count(), 2);
}

TEST_F(HighlighterStates, AStackIsItsOwnCopy) {
  Define({"blockcomment:red:(:)"});
  Marks(L"(");
  highlighter.CopyStack(highlighter);
  EXPECT_EQ(highlighter.Count(), 1);
}

TEST_F(HighlighterStates, StacksAreEqualByTheirElements) {
  CSyntaxBlock one, two;
  CContextStack a, b;
  EXPECT_TRUE(a == b);
  a.Push(&one);
  EXPECT_FALSE(a == b);
  b.Push(&two);
  EXPECT_FALSE(a == b);
  b.Pop();
  b.Push(&one);
  EXPECT_TRUE(a == b);
}

TEST_F(HighlighterStates, PopTakesTheTop) {
  CSyntaxBlock one, two;
  CContextStack stack;
  stack.Push(&one);
  stack.Push(&two);
  EXPECT_EQ(stack.Top(), &two);
  stack.Pop();
  EXPECT_EQ(stack.Top(), &one);
  stack.Pop();
  stack.Pop();
  EXPECT_EQ(stack.Top(), nullptr);
}

TEST_F(HighlighterStates, ATextThatOpensWithoutEndIsBounded) {
  Define({"blockcomment(*):red:(:)"});
  const std::wstring text(2 * CContextStack::kDeepest, L'(');
  EXPECT_EQ(Marks(text.c_str()), std::string(text.size(), 'r'));
  EXPECT_EQ(highlighter.Count(), CContextStack::kDeepest);
}

// ---- over many lines -------------------------------------------------------

TEST_F(HighlighterStates, ACommentOf2500LinesIsKnownInItsMiddle) {
  Define({"blockcomment:red:/*:*/"});
  Marks(L"/*");
  for (int line = 2; line < 2500; ++line) {
    ASSERT_EQ(Marks(L"x"), "r") << line;
  }
  EXPECT_EQ(Marks(L"*/ x"), "rr..");
}

// What the editor does for a screen that begins more than 1000 lines below.
TEST_F(HighlighterStates, ACommentThatOpenedBeforeTheFirstLineIsNotKnown) {
  Define({"blockcomment:red:/*:*/"});
  highlighter.Clear();
  for (int line = 500; line < 1500; ++line) Marks(L"x");
  EXPECT_EQ(Marks(L"x"), ".");
}

}  // namespace
