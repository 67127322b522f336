// Quick search by real keys.
#include <gtest/gtest.h>

#include "session/main_screen.h"

namespace {

constexpr int kStatusRow = 21, kInner = 38, kLabelWidth = 8;

const FileList kFiles = {{"left/Apple", ""}, {"left/abacus", ""}, {"left/abbot", ""}, {"left/Abby/", ""},
                         {"left/b", ""},     {"left/berry", ""},  {"left/zoo", ""}};
const char kPlain[] = "StickyAlt=off\n";

std::string Status(const Session& s) { return s.Text(1, kStatusRow, kInner).Trimmed(); }

// The list is "..", Abby, abacus, abbot, Apple, b, berry, zoo.
class Sticky : public testing::Test {
 protected:
  Session s{kFiles};
};

class Plain : public testing::Test {
 protected:
  Session s{kFiles, {.settings = kPlain}};
};

}  // namespace

TEST_F(Sticky, GoesOnWithoutAltAndTheNextKeyActsBehindIt) {
  s.Keys("Alt-a b");
  EXPECT_EQ(s.Under(kLeftSide), "Abby");
  EXPECT_EQ(Status(s), "Search: ab");
  EXPECT_EQ(PromptRow(s), s.PanelPath(kLeftSide) + ">");
  s.Keys("Down");
  EXPECT_EQ(s.Under(kLeftSide), "abacus");
  EXPECT_NE(Status(s).substr(0, 6), "Search");
  s.Keys("x");
  EXPECT_TRUE(PromptRow(s).ends_with(">x"));
}

TEST_F(Sticky, ACharacterWithAltEndsItAndBeginsAnother) {
  s.Keys("Alt-a Alt-b");
  EXPECT_EQ(Status(s), "Search: b");
  EXPECT_EQ(s.Under(kLeftSide), "b");
}

TEST_F(Sticky, ABlankIsACharacterOfIt) {
  s.Write("left/a b", "");
  s.Keys("Ctrl-R Alt-a Space");
  EXPECT_EQ(Status(s), "Search: a");
  EXPECT_EQ(s.Under(kLeftSide), "a b");
  EXPECT_EQ(PromptRow(s), s.PanelPath(kLeftSide) + ">");
}

TEST_F(Sticky, TheBarIsShownAndTheTextCursorStandsBehindTheText) {
  s.Keys("Alt-a");
  EXPECT_EQ(BarRow(s, kLeftSide), 2);
  EXPECT_EQ(s.Cursor(), std::make_pair(1 + kLabelWidth + 1, kStatusRow));
  s.Keys("b");
  EXPECT_EQ(s.Cursor(), std::make_pair(1 + kLabelWidth + 2, kStatusRow));
  s.Keys("Esc");
  EXPECT_EQ(s.Cursor().second, s.Rows() - 2);
}

TEST(StickySearch, TheTextCursorOfALongTextStandsAtTheListsBorder) {
  const std::string name(60, 'q');
  Session s({{"left/" + name, ""}});
  s.Keys("Alt-q Shift-Tab");
  EXPECT_EQ(Status(s), "Search: " + std::string(kInner - kLabelWidth, 'q'));
  EXPECT_EQ(s.Cursor(), std::make_pair(1 + kInner, kStatusRow));
}

TEST_F(Sticky, TheKeyBarFollowsTheModifiersDuringIt) {
  const std::string plain = s.Row(s.Rows() - 1).String();
  s.Keys("+Alt Alt-a");
  EXPECT_NE(s.Row(s.Rows() - 1).String(), plain);
  s.Keys("-Alt");
  EXPECT_EQ(s.Row(s.Rows() - 1).String(), plain);
  EXPECT_EQ(Status(s), "Search: a");
  s.Keys("Down +Alt -Alt");
  EXPECT_EQ(s.Row(s.Rows() - 1).String(), plain);
}

TEST_F(Sticky, EscEndsItAndDoesNothingElse) {
  s.Keys("l s Alt-a b Esc");
  EXPECT_EQ(s.Under(kLeftSide), "Abby");
  EXPECT_TRUE(PromptRow(s).ends_with(">ls"));
  EXPECT_NE(Status(s).substr(0, 6), "Search");
}

TEST_F(Sticky, AltWithUpAndDownGoesThroughTheMatches) {
  s.Keys("Alt-a b Alt-Down");
  EXPECT_EQ(s.Under(kLeftSide), "abacus");
  s.Keys("Alt-Down");
  EXPECT_EQ(s.Under(kLeftSide), "abbot");
  s.Keys("Alt-Down");
  EXPECT_EQ(s.Under(kLeftSide), "Abby");
  s.Keys("Alt-Down Alt-Down Alt-Up");
  EXPECT_EQ(s.Under(kLeftSide), "abacus");
  EXPECT_EQ(Status(s), "Search: ab");
}

TEST_F(Sticky, BackspaceTakesTheLastCharacterWithAltAndWithout) {
  s.Keys("Alt-a b Backspace");
  EXPECT_EQ(Status(s), "Search: a");
  s.Keys("p Alt-Backspace");
  EXPECT_EQ(Status(s), "Search: a");
  EXPECT_EQ(s.Under(kLeftSide), "Apple");
  s.Keys("Backspace Backspace z");
  EXPECT_EQ(s.Under(kLeftSide), "zoo");
}

TEST_F(Sticky, ShiftTabCompletes) {
  s.Keys("Alt-b e Shift-Tab");
  EXPECT_EQ(Status(s), "Search: berry");
  EXPECT_EQ(s.Active(), kLeftSide);
}

TEST_F(Sticky, WhatMatchesNothingIsNotTaken) {
  s.Keys("Alt-a b x");
  EXPECT_EQ(Status(s), "Search: ab");
  EXPECT_EQ(s.Under(kLeftSide), "Abby");
}

TEST_F(Sticky, LettingAltGoDoesNotEndIt) {
  s.Keys("+Alt Alt-a -Alt b +Shift -Shift b o");
  EXPECT_EQ(s.Under(kLeftSide), "abbot");
}

TEST_F(Sticky, EnterActsOnWhatWasFound) {
  s.Keys("Alt-a b Enter");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/Abby"));
}

TEST_F(Sticky, AMouseClickIsActedOnAfterIt) {
  s.Keys("Alt-z");
  ASSERT_EQ(s.Under(kLeftSide), "zoo");
  s.Click(5, 3);
  EXPECT_EQ(s.Under(kLeftSide), "abacus");
  EXPECT_NE(Status(s).substr(0, 6), "Search");
}

TEST_F(Sticky, AKeyOfTheDigitsIsActedOnAfterIt) {
  s.Keys("Tab Ctrl-Shift-0 Tab Alt-z Ctrl-0");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("right"));
}

TEST_F(Plain, EachCharacterNeedsAlt) {
  s.Keys("Alt-a Alt-b");
  EXPECT_EQ(Status(s), "Search: ab");
  EXPECT_EQ(s.Under(kLeftSide), "Abby");
  s.Keys("x");
  EXPECT_EQ(Status(s), "Search: ab");
  EXPECT_TRUE(PromptRow(s).ends_with(">x"));
}

TEST_F(Plain, AltBackspaceAndRightChangeTheText) {
  s.Keys("Alt-b Alt-e Alt-Backspace");
  EXPECT_EQ(Status(s), "Search: b");
  s.Keys("Alt-e Right");
  EXPECT_EQ(Status(s), "Search: berry");
  s.Keys("Esc");
  EXPECT_NE(Status(s).substr(0, 6), "Search");
}

TEST_F(Plain, AltUpAndDownGoThroughTheMatches) {
  s.Keys("Alt-a Alt-Down Alt-Down");
  EXPECT_EQ(s.Under(kLeftSide), "abbot");
  s.Keys("Alt-Up");
  EXPECT_EQ(s.Under(kLeftSide), "abacus");
}

TEST_F(Plain, MovingTheCursorEndsIt) {
  s.Keys("Alt-a Down Alt-b");
  EXPECT_EQ(Status(s), "Search: b");
  EXPECT_EQ(s.Under(kLeftSide), "b");
}

TEST_F(Plain, ShiftedCharactersAreFound) {
  s.Write("left/#x", "");
  s.Write("left/_y", "");
  s.Keys("Ctrl-R Alt-Shift-#");
  EXPECT_EQ(s.Under(kLeftSide), "#x");
  s.Keys("Home Alt-Shift-_");
  EXPECT_EQ(s.Under(kLeftSide), "_y");
}

TEST(PlainSearch, EscEndsItAlsoWhereItSwitchesThePanels) {
  Session s(kFiles, {.settings = "StickyAlt=off\nEscPanelSwitch=on\n"});
  s.Keys("Alt-a Esc Esc");
  ASSERT_TRUE(IsShown(s, kLeftSide));
  EXPECT_NE(Status(s).substr(0, 6), "Search");
}
