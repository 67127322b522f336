#include "dialogs/focus_order.h"

#include <gtest/gtest.h>

namespace {

// A field with its text, three radio buttons, two buttons, and an exit key.
class FocusOrder : public testing::Test {
 protected:
  FocusPlace places[7] = {
      {0, 1, false, false},                                            // text of ...
      {0, 0, true, false},                                             // ... the field
      {2, 3, true, true},   {2, 0, true, false}, {2, 0, true, false},  // radio buttons, the second is set
      {5, 5, true, true},                                              // button
      {6, 6, false, true},                                             // exit key
  };
};

TEST_F(FocusOrder, ArrowsWrapInsideTheGroup) {
  EXPECT_EQ(NextInGroup(places, 2, +1), 3);
  EXPECT_EQ(NextInGroup(places, 4, +1), 2);
  EXPECT_EQ(NextInGroup(places, 2, -1), 4);
}

TEST_F(FocusOrder, ArrowsPassOverWhatTakesNoFocus) {
  EXPECT_EQ(NextInGroup(places, 0, +1), 1);
  EXPECT_EQ(NextInGroup(places, 1, +1), 1);
  EXPECT_EQ(NextInGroup(places, 5, -1), 5);
}

TEST_F(FocusOrder, TabLandsOnTheFirstOfAGroupThatWantsIt) { EXPECT_EQ(NextGroup(places, 1, +1), 2); }

TEST_F(FocusOrder, TabLandsOnTheLastUsedOfAnyOtherGroup) {
  places[2].tabToFirst = false;
  EXPECT_EQ(NextGroup(places, 1, +1), 3);
  EXPECT_EQ(NextGroup(places, 5, -1), 3);
}

TEST_F(FocusOrder, TabLeavesTheWholeGroup) {
  EXPECT_EQ(NextGroup(places, 2, +1), 5);
  EXPECT_EQ(NextGroup(places, 4, -1), 1);
}

TEST_F(FocusOrder, TabPassesOverGroupsThatTakeNoFocusAndWraps) {
  EXPECT_EQ(NextGroup(places, 5, +1), 1);
  EXPECT_EQ(NextGroup(places, 1, -1), 5);
}

TEST_F(FocusOrder, TheTargetOfTabMayBeAPlaceWithoutFocus) {
  places[0].tabToFirst = true;
  EXPECT_EQ(NextGroup(places, 5, +1), 0);
}

TEST_F(FocusOrder, WithoutAnotherGroupTabGoesToTheFirstOfItsOwnIfThatWantsIt) {
  FocusPlace two[] = {{0, 1, true, true}, {0, 0, true, false}};
  EXPECT_EQ(NextGroup(two, 1, +1), 0);
  EXPECT_EQ(NextGroup(two, 1, -1), 0);
  EXPECT_EQ(NextGroup(two, 0, +1), 0);
  two[0].tabToFirst = false;
  EXPECT_EQ(NextGroup(two, 1, +1), 1);
}

TEST_F(FocusOrder, AnElementAloneKeepsTheFocus) {
  const FocusPlace one[] = {{0, 0, false, true}};
  EXPECT_EQ(NextInGroup(one, 0, +1), 0);
  EXPECT_EQ(NextInGroup(one, 0, -1), 0);
  EXPECT_EQ(NextGroup(one, 0, +1), 0);
}

}  // namespace
