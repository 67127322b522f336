// The loop of a dialog on a real console: its ends, its mouse and its keys.
#include <thread>

#include "support/dialog_probe.h"

namespace {

constexpr Key kHelpKey = FKey(1);

TEST_F(DialogTest, WithoutElementsEscapeEndsItThroughAnExitKeyOfItsOwn) {
  Keys("Esc");
  EXPECT_EQ(dialog->Run(), kEscape);
  ASSERT_EQ(dialog->Count(), 1);
  EXPECT_EQ(dialog->Element(0)->TypeId(), kTypeExitKey);
}

TEST_F(DialogTest, WithOnlyATextEscapeEndsItThroughAnExitKeyOfItsOwn) {
  dialog->AddStaticText(1, 1, "text");
  Keys("Esc");
  EXPECT_EQ(dialog->Run(), kEscape);
  ASSERT_EQ(dialog->Count(), 2);
  EXPECT_EQ(dialog->Element(1)->TypeId(), kTypeExitKey);
}

TEST_F(DialogTest, EnterOutsideAnyButtonGivesTheFirstButtonsCode) {
  AddProbe(true);
  dialog->AddButton(2, 5, true, 'y', "_Yes");
  dialog->AddButton(12, 5, false, 'n', "_No");
  Keys("Enter");
  EXPECT_EQ(dialog->Run(), 'y');
}

TEST_F(DialogTest, EnterWithoutAnyButtonGivesThirteen) {
  AddProbe(true);
  Keys("Enter");
  EXPECT_EQ(dialog->Run(), 13);
}

TEST_F(DialogTest, AnotherButtonCanBeTheDefaultButNothingElseCan) {
  AddProbe(true);
  dialog->AddButton(2, 5, true, 'y', "_Yes");
  const int no = dialog->AddButton(12, 5, false, 'n', "_No");
  dialog->SetDefaultButton(no);
  dialog->SetDefaultButton(0);
  dialog->SetDefaultButton(-1);
  dialog->SetDefaultButton(50);
  Keys("Enter");
  EXPECT_EQ(dialog->Run(), 'n');
}

TEST_F(DialogTest, TheReleaseOfTheRightButtonAcceptsAnywhere) {
  Probe* probe = AddProbe(true);
  probe->uses = true;
  dialog->AddButton(2, 5, true, 'y', "_Yes");
  Mouse(kEventPress, 2, 0, 0);
  Mouse(kEventRelease, 2, 0, 0);
  EXPECT_EQ(dialog->Run(), 'y');
}

TEST_F(DialogTest, AnExitKeyEndsItFromWhereverTheFocusIs) {
  AddProbe(true);
  dialog->AddExitKey(kHelpKey);
  Keys("F2 F1");
  EXPECT_EQ(dialog->Run(), static_cast<int>(kHelpKey));
}

TEST_F(DialogTest, ATimeLimitEndsItWithZero) {
  AddProbe(true);
  Silence();
  EXPECT_EQ(dialog->Run(1), 0);
}

TEST_F(DialogTest, ItRunsAgainAfterItsEnd) {
  AddProbe(true);
  Keys("Enter Esc");
  EXPECT_EQ(dialog->Run(), kEnter);
  EXPECT_EQ(dialog->Run(), kEscape);
}

TEST_F(DialogTest, AClickOnItsInsideOnNoElementDoesNothing) {
  AddProbe(true);
  Click(30, 8);
  Click(20, 5);  // its frame
  Click(59, 14);
  Keys("Enter");
  EXPECT_EQ(dialog->Run(), kEnter);
}

TEST_F(DialogTest, APressAndReleaseOutsideCancel) {
  AddProbe(true);
  Click(19, 5);
  EXPECT_EQ(dialog->Run(), kEscape);
}

TEST_F(DialogTest, ItsShadowIsOutside) {
  AddProbe(true);
  Click(60, 10);
  EXPECT_EQ(dialog->Run(), kEscape);
}

TEST_F(DialogTest, APressOutsideAndReleaseInsideDoNotCancel) {
  AddProbe(true);
  Mouse(kEventPress, 1, 0, 0);
  Mouse(kEventRelease, 1, 30, 8);
  Mouse(kEventRelease, 1, 0, 0);  // of no press outside
  Keys("Enter");
  EXPECT_EQ(dialog->Run(), kEnter);
}

TEST_F(DialogTest, APressInsideAndReleaseOutsideDoNotCancel) {
  AddProbe(true);
  Mouse(kEventPress, 1, 30, 8);
  Mouse(kEventRelease, 1, 0, 0);
  Keys("Enter");
  EXPECT_EQ(dialog->Run(), kEnter);
}

TEST_F(DialogTest, ATimeLimitBetweenPressAndReleaseOutsideIsNothing) {
  AddProbe(true);
  Mouse(kEventPress, 1, 0, 0);
  Silence();
  Mouse(kEventRelease, 1, 0, 0);
  EXPECT_EQ(dialog->Run(1), 0);
  EXPECT_EQ(dialog->Run(), kEscape);
}

TEST_F(DialogTest, AnythingBetweenPressAndReleaseOutsideKeepsItOpen) {
  AddProbe(true);
  Mouse(kEventPress, 1, 0, 0);
  Keys("x");
  Mouse(kEventRelease, 1, 0, 0);
  Mouse(kEventPress, 1, 0, 0);
  Mouse(kEventMotion, 1, 1, 0);
  Mouse(kEventRelease, 1, 1, 0);
  Keys("Enter");
  EXPECT_EQ(dialog->Run(), kEnter);
}

TEST_F(DialogTest, MousePlacesAreRelativeToTheInside) {
  Probe* probe = AddProbe(true);
  Mouse(kEventPress, 1, 21, 6);
  Mouse(kEventMotion, 1, 31, 4);
  Keys("Enter");
  dialog->Run();
  ASSERT_EQ(probe->events.size(), 3u);
  EXPECT_EQ(probe->events[0].type, kDialogLeftPress);
  EXPECT_EQ(probe->events[0].x, 0);
  EXPECT_EQ(probe->events[0].y, 0);
  EXPECT_EQ(probe->events[1].type, kDialogLeftDrag);
  EXPECT_EQ(probe->events[1].x, 10);
  EXPECT_EQ(probe->events[1].y, -2);
}

TEST_F(DialogTest, AMouseEventGoesToAllElementsUpToTheFirstThatUsesIt) {
  Probe* first = AddProbe(true);
  Probe* second = AddProbe(false);
  Probe* third = AddProbe(false);
  second->uses = true;
  Mouse(kEventDoubleClick, 1, 30, 8);
  Mouse(kEventRelease, 1, 30, 8);
  Then([&] {
    ASSERT_EQ(first->events.size(), 2u);
    EXPECT_EQ(first->events[0].type, kDialogLeftDouble);
    EXPECT_EQ(first->events[1].type, kDialogLeftRelease);
    EXPECT_EQ(second->events.size(), 2u);
    EXPECT_TRUE(third->events.empty());
  });
  Keys("Esc");
  dialog->Run();
}

TEST_F(DialogTest, WheelRightPressAndRightDragReachNobody) {
  Probe* probe = AddProbe(true);
  Mouse(kEventWheel, 1, 30, 8);
  Mouse(kEventPress, 2, 30, 8);
  Mouse(kEventMotion, 2, 30, 8);
  Mouse(kEventDoubleClick, 2, 30, 8);
  Mouse(kEventPress, 3, 30, 8);
  Keys("+Alt -Alt");
  Then([&] { EXPECT_TRUE(probe->events.empty()); });
  Keys("Esc");
  dialog->Run();
}

TEST_F(DialogTest, AKeyGoesToTheFocusedElementFirstAndOnlyToIt) {
  Probe* first = AddProbe(true);
  Probe* second = AddProbe(true);
  first->uses = true;
  Keys("Enter Esc Tab Down");
  Then([&] {
    EXPECT_EQ(first->events.size(), 4u);
    EXPECT_TRUE(second->events.empty());
    EXPECT_EQ(dialog->Focus(), 0);
    first->uses = false;
  });
  Keys("Esc");
  EXPECT_EQ(dialog->Run(), kEscape);
}

TEST_F(DialogTest, AnotherThreadSendsAnEventToAnElement) {
  Probe* probe = AddProbe(true);
  probe->uses = true;
  int result = 0, outOfRange = -1;
  std::thread worker([&] {
    DialogEvent grown;
    grown.type = kDialogListLength;
    grown.code = 7;
    result = dialog->SendEvent(0, grown);
    outOfRange = dialog->SendEvent(1, grown);
  });
  worker.join();
  EXPECT_EQ(result, 1);
  EXPECT_EQ(outOfRange, 0);
  ASSERT_EQ(probe->events.size(), 1u);
  EXPECT_EQ(probe->events[0].code, 7);
}

class HotLetterTest : public DialogTest {
 protected:
  HotLetterTest() {
    AddProbe(true);
    second = AddProbe(false);
    Estring label = "Over_Write";
    dialog->TakeHotLetter(1, label);
    EXPECT_STREQ(label.Text(), "OverWrite");
  }
  Probe* second;
};

TEST_F(HotLetterTest, AltAndTheLetterActivate) {
  Keys("Alt-w");
  Then([&] {
    EXPECT_EQ(second->activations, 1);
    EXPECT_EQ(dialog->Focus(), 1);
  });
  Keys("Esc");
  dialog->Run();
}

TEST_F(HotLetterTest, ThePlainLetterDoesNot) {
  Keys("w W Alt-x");
  Then([&] { EXPECT_EQ(second->activations, 0); });
  Keys("Esc");
  dialog->Run();
}

TEST_F(HotLetterTest, TheLetterOfAnExitCodeNeedsNoAltAndNoCase) {
  second->exitCode = 'q';
  Keys("q Q");
  Then([&] { EXPECT_EQ(second->activations, 2); });
  Keys("Esc");
  dialog->Run();
}

TEST_F(HotLetterTest, TheFirstElementOfTheLetterWins) {
  dialog->SetHotLetters("ww", 2);
  Keys("Down Alt-w");
  Then([&] {
    EXPECT_EQ(dialog->Focus(), 0);
    EXPECT_EQ(second->activations, 0);
  });
  Keys("Esc");
  dialog->Run();
}

TEST_F(HotLetterTest, LettersBehindTheLastElementAreIgnored) {
  dialog->SetHotLetters("abcdw", 5);
  Keys("Alt-w");
  Then([&] { EXPECT_EQ(second->activations, 0); });
  Keys("Esc");
  dialog->Run();
}

TEST_F(DialogTest, AMarkAtTheEndOfALabelOrOfAFullTableDoesNoHarm) {
  Estring label = "end_";
  dialog->TakeHotLetter(0, label);
  EXPECT_STREQ(label.Text(), "end");
  EXPECT_EQ(dialog->HotLetter(0), 0);
  label = "_a";
  dialog->TakeHotLetter(Dialog::kMaxElements, label);
  EXPECT_STREQ(label.Text(), "a");
  EXPECT_EQ(dialog->HotLetter(Dialog::kMaxElements), 0);
  dialog->SetHotLetters("", -5);
  EXPECT_EQ(dialog->HotLetter(-1), 0);
}

}  // namespace
