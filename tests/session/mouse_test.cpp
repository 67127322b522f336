// The mouse in the panels.
#include <gtest/gtest.h>

#include "console/console.h"
#include "session/main_screen.h"

namespace {

using Strings = std::vector<std::string>;

const FileList kFiles = {{"left/a", ""},  {"left/b", ""},  {"left/c", ""}, {"left/d/", ""},
                         {"right/x", ""}, {"right/y", ""}, {"right/z", ""}};

constexpr int kDivider = 20;  // the first row below a list of 25 rows

// Sixty entries in the left list of nineteen rows.
Session Sixty(const std::string& settings = "ScrollDelay=0\n") {
  return Session(NumberedFiles("left", 59), {.settings = settings});
}

// A press that is not waited for: a scroll goes on until the next event.
void PressAndHold(int button, int x, int y) {
  auto* event = new TEvent;
  event->type = kEventPress;
  event->code = button;
  event->x = x;
  event->y = y;
  Console->Events().Put(event);
}

Strings Tagged(const Session& s, int rows) {
  Strings names;
  for (int y = 1; y <= rows; ++y) {
    const int attribute = s.Attribute(1, y);
    if (attribute == 0x1E || attribute == 0x3E) names.push_back(s.Text(1, y, 12).Trimmed());
  }
  return names;
}

}  // namespace

TEST(Mouse, AClickMovesTheCursorOfItsPanel) {
  Session s(kFiles);
  s.Click(5, 4);
  EXPECT_EQ(s.Under(kLeftSide), "b");
  EXPECT_EQ(BarRow(s, kLeftSide), 4);
  s.Click(5, 19);  // below the last entry
  EXPECT_EQ(s.Under(kLeftSide), "b");
}

TEST(Mouse, AClickInTheOtherPanelActivatesIt) {
  Session s(kFiles);
  s.Click(45, 3);
  EXPECT_EQ(s.Active(), kRightSide);
  EXPECT_EQ(s.Under(kRightSide), "y");
  EXPECT_EQ(BarRow(s, kLeftSide), -1);
  EXPECT_EQ(BarRow(s, kRightSide), 3);
  EXPECT_EQ(PromptRow(s), s.Path("right") + ">");
  s.Click(39, 2);  // the frame belongs to the left panel
  EXPECT_EQ(s.Active(), kLeftSide);
  EXPECT_EQ(s.Under(kLeftSide), "d");
}

TEST(Mouse, AClickOnAHiddenPanelDoesNothing) {
  Session s(kFiles);
  s.Keys("Ctrl-F2");
  s.Click(45, 3);
  EXPECT_EQ(s.Active(), kLeftSide);
  s.Keys("Ctrl-F1");
  s.Click(5, 3);
  s.Mouse(kMouseLeftDouble, 5, 3);
  EXPECT_FALSE(IsShown(s, kLeftSide));
}

TEST(Mouse, AClickOnAnInfoPanelOnlyActivatesIt) {
  Session s(kFiles);
  s.Keys("Ctrl-L");
  s.Click(45, 3);
  EXPECT_EQ(s.Active(), kRightSide);
  EXPECT_EQ(s.Under(kRightSide), "..");
}

TEST(Mouse, InBriefEachColumnHasItsSlots) {
  Session s = Sixty("LeftStyle=brief\n");
  s.Click(13, 2);
  EXPECT_EQ(s.Under(kLeftSide), "f000");
  s.Click(14, 2);
  EXPECT_EQ(s.Under(kLeftSide), "f019");
  s.Click(26, 19);
  EXPECT_EQ(s.Under(kLeftSide), "f036");
  s.Click(27, 1);
  EXPECT_EQ(s.Under(kLeftSide), "f037");
  s.Click(39, 1);  // the frame
  EXPECT_EQ(s.Under(kLeftSide), "f037");
}

TEST(Mouse, InBriefOfTheRightPanelToo) {
  FileList files = NumberedFiles("right", 50);
  Session s(files, {.settings = "RightStyle=briefwide\n"});
  s.Click(59, 3);
  EXPECT_EQ(s.Under(kRightSide), "f001");
  s.Click(60, 3);
  EXPECT_EQ(s.Under(kRightSide), "f020");
}

TEST(Mouse, ADoubleClickEntersADirectory) {
  Session s(kFiles);
  s.Click(5, 2);
  s.Mouse(kMouseLeftDouble, 5, 2);
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/d"));
  EXPECT_EQ(PromptRow(s), s.Path("left/d") + ">");
}

TEST(Mouse, ADoubleClickLeavesTheCommandLineAlone) {
  Session s(kFiles);
  s.Keys("'text'");
  s.Mouse(kMouseLeftDouble, 5, 2);
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/d"));
  EXPECT_EQ(PromptRow(s), s.Path("left/d") + ">text");
}

TEST(Mouse, ALeftDragTakesTheCursorAlong) {
  Session s(kFiles);
  s.Mouse(kMouseLeftPress, 5, 2);
  s.Mouse(kMouseLeftDrag, 5, 4);
  EXPECT_EQ(s.Under(kLeftSide), "b");
  s.Mouse(kMouseLeftDrag, 45, 2);
  EXPECT_EQ(s.Active(), kRightSide);
  EXPECT_EQ(s.Under(kRightSide), "x");
}

TEST(Mouse, TheRightButtonTogglesATag) {
  Session s(kFiles);
  s.RightClick(5, 4);
  EXPECT_EQ(Tagged(s, 5), Strings{"b"});
  EXPECT_EQ(s.Under(kLeftSide), "b");
  s.RightClick(5, 4);
  EXPECT_EQ(Tagged(s, 5), Strings{});
}

TEST(Mouse, ARightDragTagsWhatItPasses) {
  Session s(NumberedFiles("left", 10));
  s.Mouse(kMouseRightPress, 5, 3);
  s.Mouse(kMouseRightDrag, 5, 6);
  EXPECT_EQ(Tagged(s, 11), (Strings{"f001", "f002", "f003", "f004"}));
  s.Mouse(kMouseRightDrag, 5, 5);
  s.Mouse(kMouseRightDrag, 5, 2);
  EXPECT_EQ(Tagged(s, 11), (Strings{"f000", "f001", "f002", "f003", "f004"}));
}

TEST(Mouse, ARightDragFromATaggedEntryClearsTags) {
  Session s(NumberedFiles("left", 10));
  s.Keys("Down Ins Ins Ins Ins Ins");
  s.Mouse(kMouseRightPress, 5, 4);
  s.Mouse(kMouseRightDrag, 5, 2);
  EXPECT_EQ(Tagged(s, 11), (Strings{"f003", "f004"}));
}

TEST(Mouse, TheWheelMovesThreeRows) {
  Session s = Sixty();
  s.Mouse(kMouseWheel, 5, 5, 0, -1);
  EXPECT_EQ(s.Under(kLeftSide), "f002");
  EXPECT_EQ(BarRow(s, kLeftSide), 4);
  s.Mouse(kMouseWheel, 45, 24, 0, 1);  // wherever the pointer is
  EXPECT_EQ(s.Under(kLeftSide), "..");
  s.Mouse(kMouseWheel, 5, 5, 0, 1);
  EXPECT_EQ(s.Under(kLeftSide), "..");
}

TEST(Mouse, ThreeRowsBelowTheListScrollToItsEnd) {
  for (int y = kDivider; y < kDivider + 3; ++y) {
    Session s = Sixty();
    s.Mouse(kMouseLeftPress, 5, y);
    EXPECT_EQ(s.Under(kLeftSide), "f058") << y;
    EXPECT_EQ(BarRow(s, kLeftSide), 19);
  }
}

TEST(Mouse, TheTitleRowScrollsToTheStart) {
  Session s = Sixty();
  s.Keys("End");
  s.Mouse(kMouseLeftPress, 5, 0);
  EXPECT_EQ(s.Under(kLeftSide), "..");
  EXPECT_EQ(BarRow(s, kLeftSide), 1);
}

TEST(Mouse, TheCommandLineScrollsNothing) {
  Session s = Sixty();
  s.Mouse(kMouseLeftPress, 5, 23);
  EXPECT_EQ(s.Under(kLeftSide), "..");
}

TEST(Mouse, ReleasingTheButtonEndsTheScrolling) {
  Session s = Sixty("ScrollDelay=400\n");
  s.Click(5, 19);
  PressAndHold(1, 5, kDivider);
  s.Mouse(kMouseLeftRelease, 5, kDivider);
  EXPECT_EQ(s.Under(kLeftSide), "f018");
  EXPECT_EQ(BarRow(s, kLeftSide), 19);
}

TEST(Mouse, ReleasingTheOtherButtonDoesNot) {
  Session s = Sixty("ScrollDelay=1\n");
  s.Click(5, 19);
  PressAndHold(1, 5, kDivider);
  s.Mouse(kMouseRightRelease, 5, kDivider);
  EXPECT_EQ(s.Under(kLeftSide), "f058");
}

TEST(Mouse, MovingBackIntoTheListEndsTheScrolling) {
  Session s = Sixty("ScrollDelay=400\n");
  s.Click(5, 19);
  PressAndHold(1, 5, kDivider);
  s.Mouse(kMouseLeftDrag, 5, 10);
  EXPECT_EQ(s.Under(kLeftSide), "f018");
}

TEST(Mouse, MovingToTheOtherEndEndsTheScrolling) {
  Session s = Sixty("ScrollDelay=400\n");
  s.Click(5, 19);
  PressAndHold(1, 5, kDivider);
  s.Mouse(kMouseLeftDrag, 5, 0);
  EXPECT_EQ(s.Under(kLeftSide), "f018");
}

TEST(Mouse, MovingAmongTheRowsBelowGoesOnScrolling) {
  Session s = Sixty("ScrollDelay=1\n");
  s.Click(5, 19);
  PressAndHold(1, 5, kDivider);
  s.Mouse(kMouseLeftDrag, 5, kDivider + 2);
  EXPECT_EQ(s.Under(kLeftSide), "f058");
}

TEST(Mouse, ARightDragBelowTheListTagsOnItsWay) {
  Session s(NumberedFiles("left", 30), {.settings = "ScrollDelay=0\n"});
  s.Keys("End Home PgDn Up");
  s.Mouse(kMouseRightPress, 5, 18);
  s.Mouse(kMouseRightDrag, 5, kDivider);
  EXPECT_EQ(s.Under(kLeftSide), "f029");
  EXPECT_TRUE(PanelRow(s, kLeftSide, 21).Contains("selected files"));
  EXPECT_EQ(Tagged(s, 19).back(), "f029");
}

TEST(Mouse, ARightPressBelowTheListDoesNothing) {
  Session s = Sixty();
  s.Mouse(kMouseRightPress, 5, kDivider);
  EXPECT_EQ(s.Under(kLeftSide), "..");
}

TEST(Mouse, APressAtTheEndOfTheOtherListActivatesIt) {
  Session s(kFiles, {.settings = "ScrollDelay=0\n"});
  s.Mouse(kMouseLeftPress, 45, kDivider);
  EXPECT_EQ(s.Active(), kRightSide);
  EXPECT_EQ(s.Under(kRightSide), "z");
}

TEST(Mouse, ATagDragGoesOnWhereItEntersTheOtherPanel) {
  Session s(kFiles);
  s.Mouse(kMouseRightPress, 5, 2);
  s.Mouse(kMouseRightDrag, 45, 4);
  EXPECT_EQ(s.Active(), kRightSide);
  EXPECT_EQ(s.Attribute(41, 3), 0x1E);  // from the row after the one left behind
  EXPECT_EQ(s.Attribute(41, 4), 0x3E);
  EXPECT_EQ(s.Attribute(41, 2), 0x1B);
}
