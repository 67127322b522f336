// The focus of a dialog on a real console.
#include "support/dialog_probe.h"

namespace {

constexpr Key kHelpKey = FKey(1);

TEST_F(DialogTest, ArrowsWrapInsideAGroupAndStayThere) {
  AddProbe(true);
  AddProbe(true);
  AddProbe(false);
  AddProbe(false);
  AddProbe(true);
  Keys("Tab Up");
  Then([&] { EXPECT_EQ(dialog->Focus(), 3); });
  Keys("Left");
  Then([&] { EXPECT_EQ(dialog->Focus(), 2); });
  Keys("Down Right");
  Then([&] { EXPECT_EQ(dialog->Focus(), 1); });
  Keys("Esc");
  dialog->Run();
}

TEST_F(DialogTest, TabLandsOnTheFirstOfAStartedGroupWhateverWasFocusedLast) {
  AddProbe(true);
  AddProbe(true);
  AddProbe(false);
  Keys("Tab Down");
  Then([&] { EXPECT_EQ(dialog->Focus(), 2); });
  Keys("Tab Tab");
  Then([&] { EXPECT_EQ(dialog->Focus(), 1); });
  Keys("Esc");
  dialog->Run();
}

TEST_F(DialogTest, TabLandsOnTheLastUsedOfAGroupThatWasNotStarted) {
  AddProbe(false);
  AddProbe(false);
  AddProbe(true);
  Keys("Down Tab");
  Then([&] { EXPECT_EQ(dialog->Focus(), 2); });
  Keys("Tab");
  Then([&] { EXPECT_EQ(dialog->Focus(), 1); });
  Keys("Shift-Tab Shift-Tab");
  Then([&] { EXPECT_EQ(dialog->Focus(), 1); });
  Keys("Esc");
  dialog->Run();
}

TEST_F(DialogTest, TabGoesOnItsWayFromTheFirstOfAGroupIfThatTakesNoFocus) {
  AddProbe(true);
  AddProbe(true)->focusable = false;
  AddProbe(false);
  AddProbe(false);
  Keys("Tab");
  Then([&] { EXPECT_EQ(dialog->Focus(), 2); });
  Keys("Tab Shift-Tab");
  Then([&] { EXPECT_EQ(dialog->Focus(), 3); });
  Keys("Esc");
  dialog->Run();
}

TEST_F(DialogTest, TabInTheOnlyGroupGoesToTheFirstOfItIfThatWasStarted) {
  AddProbe(true);
  AddProbe(false);
  Keys("Down Tab");
  Then([&] { EXPECT_EQ(dialog->Focus(), 0); });
  Keys("Down Shift-Tab");
  Then([&] { EXPECT_EQ(dialog->Focus(), 0); });
  Keys("Esc");
  dialog->Run();
}

TEST_F(DialogTest, TabInTheOnlyGroupStaysIfThatWasNotStarted) {
  AddProbe(false);
  AddProbe(false);
  Keys("Down Tab");
  Then([&] { EXPECT_EQ(dialog->Focus(), 1); });
  Keys("Esc");
  dialog->Run();
}

TEST_F(DialogTest, TheFocusStartsOnTheFirstElementThatTakesIt) {
  dialog->AddStaticText(0, 0, "Name:");
  AddProbe(false);
  Then([&] { EXPECT_EQ(dialog->Focus(), 1); });
  Keys("Esc");
  dialog->Run();
}

TEST_F(DialogTest, TheFocusStartsInTheNextGroupIfTheFirstTakesNone) {
  dialog->AddStaticText(0, 0, "Name:");
  dialog->AddExitKey(kHelpKey);
  AddProbe(true);
  Then([&] { EXPECT_EQ(dialog->Focus(), 2); });
  Keys("Esc");
  dialog->Run();
}

TEST_F(DialogTest, TheFocusStartsOnTheMemberThatItsGroupNames) {
  AddProbe(true);
  AddProbe(false);
  dialog->Element(0)->groupCurrent = 1;
  Then([&] { EXPECT_EQ(dialog->Focus(), 1); });
  Keys("Esc");
  dialog->Run();
}

TEST_F(DialogTest, TheNewElementHearsFirstThenTheOldThenTheLastOfTheGroup) {
  AddProbe(true);
  AddProbe(true);
  AddProbe(false);
  AddProbe(false);
  dialog->Element(1)->groupCurrent = 2;
  dialog->SetFocus(3);
  EXPECT_EQ(log, (Log{"in 3", "out 0", "out 2"}));
  log.clear();
  dialog->SetFocus(1);
  EXPECT_EQ(log, (Log{"in 1", "out 3"}));
  dialog->SetFocus(0);
  log.clear();
  dialog->SetFocus(1);
  EXPECT_EQ(log, (Log{"in 1", "out 0"}));  // which was the last of its group itself
  log.clear();
  dialog->SetFocus(1);
  dialog->SetFocus(-1);
  dialog->SetFocus(4);
  EXPECT_EQ(log, Log{});
}

// Holds the focus, or sends it elsewhere, and counts the changes.
class GuardedDialog : public Dialog {
 public:
  GuardedDialog() : Dialog(-1, -3, 40, 10, 0x70) {}

  bool hold = false;
  int instead = -1;
  int changes = 0;

 protected:
  bool CanChangeFocus(int, int& to) override {
    if (instead >= 0) to = instead;
    return !hold;
  }
  void FocusChanged() override { ++changes; }
};

TEST_F(DialogTest, ADialogMayHoldTheFocusOrSendItElsewhere) {
  GuardedDialog guarded;
  for (int i = 0; i < 3; ++i) guarded.Add(new Probe(guarded, true));
  guarded.hold = true;
  guarded.SetFocus(1);
  EXPECT_EQ(guarded.Focus(), 0);
  EXPECT_EQ(guarded.changes, 0);
  guarded.hold = false;
  guarded.instead = 2;
  guarded.SetFocus(1);
  EXPECT_EQ(guarded.Focus(), 2);
  EXPECT_EQ(guarded.changes, 1);
  guarded.instead = 70;  // no element
  guarded.SetFocus(1);
  EXPECT_EQ(guarded.Focus(), 2);
  EXPECT_EQ(guarded.changes, 1);
}

}  // namespace
