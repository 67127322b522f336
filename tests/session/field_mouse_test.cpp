// The mouse on a field.
#include "session/field_fixture.h"

namespace {

TEST_F(FieldTest, APressTakesTheFocusAndPutsTheCursorOnItsCell) {
  AddProbe(true);
  AddField(L"one two");
  Click(kX + 4, kY);
  Then([&] {
    EXPECT_EQ(dialog->Focus(), 1);
    EXPECT_EQ(CursorColumn(), 4);
    EXPECT_EQ(Selected(), "..........");
  });
  Press("x");
  EXPECT_EQ(Text(), "one xtwo");  // the click was the first event
}

TEST_F(FieldTest, APressBehindTheTextPutsTheCursorAtItsEnd) {
  AddField(L"one");
  Click(kX + 9, kY);
  PressAndSee("", [] { EXPECT_EQ(CursorColumn(), 3); });
}

TEST_F(FieldTest, APressOnAScrolledTextGoesByWhatIsInView) {
  AddField(L"abcdefghijklmnopqrstuvwxyz");
  Keys("End");
  Then([&] { EXPECT_EQ(Shown(), "rstuvwxyz "); });
  Click(kX + 2, kY);
  Press("-");
  EXPECT_EQ(Text(), "abcdefghijklmnopqrs-tuvwxyz");
}

TEST_F(FieldTest, DraggingSelectsFromThePressToTheRelease) {
  AddField(L"one two");
  Mouse(kEventPress, 1, kX + 1, kY);
  Mouse(kEventMotion, 1, kX + 3, kY);
  Then([&] { EXPECT_EQ(Selected(), ".##......."); });
  Mouse(kEventMotion, 1, kX, kY);
  Then([&] { EXPECT_EQ(Selected(), "#........."); });
  Mouse(kEventRelease, 1, kX + 6, kY);
  Then([&] {
    EXPECT_EQ(Selected(), ".#####....");
    EXPECT_EQ(CursorColumn(), 6);
  });
  Press("x");
  EXPECT_EQ(Text(), "oxo");
}

TEST_F(FieldTest, APressAndADoubleClickEndTheSelection) {
  AddField(L"one two");
  Keys("Home Shift-End");
  Mouse(kEventPress, 1, kX + 2, kY);
  Then([&] { EXPECT_EQ(Selected(), ".........."); });
  Keys("Shift-End");
  Then([&] { EXPECT_EQ(Selected(), "..#####..."); });
  Mouse(kEventDoubleClick, 1, kX + 1, kY);
  PressAndSee("", [&] {
    EXPECT_EQ(Selected(), "..........");
    EXPECT_EQ(CursorColumn(), 7);  // where it was
  });
}

TEST_F(FieldTest, TheMouseBesideItEndsTheSelectionAndIsNotUsed) {
  const std::pair<int, int> places[] = {{kX - 1, kY}, {kArrow, kY}, {kX, kY - 1}, {kX, kY + 1}};
  for (const auto& [x, y] : places) {
    Renew();
    AddField(L"one two");
    Probe* behind = AddProbe(true);
    Keys("Home Shift-Right");
    Then([&] { EXPECT_EQ(Selected(), "#........."); });
    Mouse(kEventPress, 1, x, y);
    PressAndSee("", [&] { EXPECT_EQ(Selected(), ".........."); });
    EXPECT_EQ(behind->events.size(), 1U) << x << "," << y;
    EXPECT_EQ(Text(), "one two");
  }
}

TEST_F(FieldTest, TheMouseOnItIsUsed) {
  AddField(L"one two");
  Probe* behind = AddProbe(true);
  for (const EventType type : {kEventPress, kEventMotion, kEventRelease, kEventDoubleClick}) {
    Mouse(type, 1, kX, kY);
    Mouse(type, 1, kX + kWidth - 1, kY);
  }
  Press("");
  EXPECT_TRUE(behind->events.empty());
}

TEST_F(FieldTest, AReleaseBesideItIsTheFirstEventOfNoField) {
  AddField(L"one");
  Mouse(kEventRelease, 1, kX, kY + 3);
  Press("x");
  EXPECT_EQ(Text(), "x");
}

}  // namespace
