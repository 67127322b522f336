// Dialogs on a real console: the loop, the focus, the mouse and the plain
// elements.
#include "dialogs/dialog.h"

#include <thread>
#include <vector>

#include "config/values/colours.h"
#include "support/console_fixture.h"

namespace {

constexpr uint8_t kColour = 0x70;
constexpr Key kHelpKey = FKey(1);

// An element that notes what happens to it.
class Probe : public DialogElement {
 public:
  Probe(Dialog& dialog, bool startGroup, std::vector<std::string>* log = nullptr)
      : DialogElement(dialog, dialog.Count(), 2, dialog.Count(), startGroup), log(log) {}
  ~Probe() override { Note("gone"); }

  int HandleEvent(const DialogEvent& event) override {
    events.push_back(event);
    return uses ? 1 : 0;
  }
  void Activate() override {
    ++activations;
    DialogElement::Activate();
  }
  void FocusChanged(bool hasFocus) override { Note(hasFocus ? "in" : "out"); }
  ElementType TypeId() const override { return kTypeStringField; }
  void Draw() override { ++draws; }
  void Commit() override { Note("commit"); }

  bool uses = false;
  int activations = 0, draws = 0;
  std::vector<DialogEvent> events;

 private:
  void Note(const char* what) {
    if (log != nullptr) log->push_back(std::string(what) + " " + std::to_string(index));
  }

  std::vector<std::string>* log;
};

// 40 by 10 cells at (20, 5); its inside starts at (21, 6).
class DialogTest : public ConsoleFixture {
 protected:
  DialogTest() : dialog(std::make_unique<Dialog>(-1, -3, 40, 10, kColour)) {}

  Probe* AddProbe(bool startGroup) {
    auto* probe = new Probe(*dialog, startGroup, &log);
    dialog->Add(probe);
    return probe;
  }

  std::vector<std::string> log;
  std::unique_ptr<Dialog> dialog;
};

using Log = std::vector<std::string>;

// ---- ends ------------------------------------------------------------------

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

// ---- clicks beside elements ------------------------------------------------

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

// ---- what elements are given -----------------------------------------------

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

// ---- letters ---------------------------------------------------------------

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

// ---- focus -----------------------------------------------------------------

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
  log.clear();
  dialog->SetFocus(1);
  dialog->SetFocus(-1);
  dialog->SetFocus(4);
  EXPECT_EQ(log, Log{});
}

// Holds the focus, or sends it elsewhere, and counts the changes.
class GuardedDialog : public Dialog {
 public:
  GuardedDialog() : Dialog(-1, -3, 40, 10, kColour) {}

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

// ---- elements as a whole ---------------------------------------------------

TEST_F(DialogTest, CommitAndDestructionGoInOrder) {
  AddProbe(true);
  AddProbe(true);
  dialog->CommitAll();
  EXPECT_EQ(log, (Log{"commit 0", "commit 1"}));
  log.clear();
  dialog.reset();
  EXPECT_EQ(log, (Log{"gone 0", "gone 1"}));
}

TEST_F(DialogTest, RedrawIsOfOneOrOfAll) {
  Probe* first = AddProbe(true);
  Probe* second = AddProbe(true);
  dialog->Redraw(1);
  EXPECT_EQ(first->draws, 0);
  EXPECT_EQ(second->draws, 1);
  dialog->Redraw(-1);
  EXPECT_EQ(first->draws, 1);
  EXPECT_EQ(second->draws, 2);
  dialog->Redraw(2);
  dialog->Redraw(-2);
  EXPECT_EQ(first->draws, 1);
  EXPECT_EQ(second->draws, 2);
}

TEST_F(DialogTest, AHundredElementsFitAndMoreAreDestroyed) {
  for (int i = 0; i < Dialog::kMaxElements; ++i) EXPECT_EQ(dialog->Add(new Probe(*dialog, true)), i);
  AddProbe(true);
  EXPECT_EQ(log, Log{"gone 100"});
  EXPECT_EQ(dialog->AddButton(1, 1, true, 'y', "_Yes"), -1);
  EXPECT_EQ(dialog->DefaultResult(), 0);
  EXPECT_EQ(dialog->AddOkCancel(-1, 3, true), -1);
  EXPECT_EQ(dialog->Count(), 100);
  EXPECT_EQ(dialog->Element(100), nullptr);
  Keys("Shift-Tab");
  Then([&] { EXPECT_EQ(dialog->Focus(), 99); });
  Keys("Esc");
  EXPECT_EQ(dialog->Run(), kEscape);
}

TEST_F(DialogTest, TheCursorIsHiddenFromTheStartAndAtTheEnd) {
  AddProbe(true);
  Console->SetCursorSize(15);
  Then([] { EXPECT_EQ(Console->CursorSize(), 0); });
  Keys("Esc");
  dialog->Run();
  Console->SetCursorSize(15);
  dialog.reset();
  EXPECT_EQ(Console->CursorSize(), 0);
}

TEST_F(DialogTest, ItsColoursAreItsOwnAndTwiceThatOfInputFields) {
  EXPECT_EQ(dialog->Colour(kDialogText), kColour);
  EXPECT_EQ(dialog->Colour(kDialogField), Options::Colours[kColourInputFields]);
  EXPECT_EQ(dialog->Colour(kDialogFocused), Options::Colours[kColourInputFields]);
  EXPECT_EQ(Attribute(20, 5), kColour);  // the frame
}

// ---- texts, buttons and bars -----------------------------------------------

TEST_F(DialogTest, TextsStandAtTheirPlaceOrInTheMiddle) {
  dialog->AddStaticText(2, 1, "left");
  dialog->AddStaticText(-1, 2, "middle", 0x4F);
  dialog->AddStaticText(2, 3, "\x84");  // a umlaut of the console's code page
  dialog->Redraw(-1);
  EXPECT_EQ(Text(21, 7, 8), "  left  ");
  EXPECT_EQ(Attribute(23, 7), kColour);
  EXPECT_EQ(Text(36, 8, 8), " middle ");  // 16 cells left of it
  EXPECT_EQ(Attribute(37, 8), 0x4F);
  EXPECT_EQ(Text(23, 9, 1), "\u00E4");
}

TEST_F(DialogTest, AButtonShowsItsLabelHotLetterAndFocus) {
  dialog->AddButton(2, 5, true, 'y', "_OK");
  dialog->AddButton(12, 5, false, 'n', "N_one");
  Then([&] {
    EXPECT_EQ(Text(23, 11, 18), "[ OK ]    [ None ]");
    EXPECT_EQ(Attribute(23, 11), 0x30);  // focused: brackets as the label
    EXPECT_EQ(Attribute(25, 11), 0x3E);
    EXPECT_EQ(Attribute(26, 11), 0x30);
    EXPECT_EQ(Attribute(35, 11), 0x70);
    EXPECT_EQ(Attribute(36, 11), 0x71);  // "o"
  });
  Keys("Right");
  Then([&] {
    EXPECT_EQ(Attribute(23, 11), 0x71);  // the default button shows what Enter does
    EXPECT_EQ(Attribute(24, 11), 0x70);
    EXPECT_EQ(Attribute(25, 11), 0x71);
    EXPECT_EQ(Attribute(28, 11), 0x71);
    EXPECT_EQ(Attribute(33, 11), 0x30);
    EXPECT_EQ(Attribute(36, 11), 0x3E);
  });
  Keys("Esc");
  dialog->Run();
}

TEST_F(DialogTest, EnterAndSpacePressTheFocusedButton) {
  dialog->AddOkCancel(-1, 5, true);
  Keys("Right Space Right Enter Left Enter");
  EXPECT_EQ(dialog->Run(), kEscape);
  EXPECT_EQ(dialog->Run(), kEnter);  // the focus was on Cancel
  EXPECT_EQ(dialog->Run(), kEscape);
}

TEST_F(DialogTest, TheReleaseOfTheMousePressesAButtonAndThePressFocusesIt) {
  dialog->AddButtons(2, 5, true, std::array<ButtonRow, 3>{{{'a', "One"}, {'b', "Two"}, {0, nullptr}}}.data());
  Mouse(kEventPress, 1, 38, 11);  // the last cell of the second
  Then([&] { EXPECT_EQ(dialog->Focus(), 1); });
  Mouse(kEventMotion, 1, 37, 11);
  Mouse(kEventDoubleClick, 1, 37, 11);
  Mouse(kEventRelease, 1, 39, 11);  // beside it
  Mouse(kEventRelease, 1, 38, 10);  // above it
  Mouse(kEventRelease, 1, 31, 11);  // between the two
  Mouse(kEventRelease, 1, 32, 11);
  EXPECT_EQ(dialog->Run(), 'b');
}

TEST_F(DialogTest, ARowOfButtonsIsCentredAndCountsFromTheBottom) {
  EXPECT_EQ(dialog->AddStaticText(0, 0, "text"), 0);
  EXPECT_EQ(dialog->AddOkCancel(-1, -2, true), 1);
  EXPECT_EQ(dialog->Element(1)->x, 10);  // (38 - 18) / 2
  EXPECT_EQ(dialog->Element(1)->y, 6);
  EXPECT_EQ(dialog->Element(2)->x, 18);
  EXPECT_EQ(dialog->Element(2)->y, 6);
  EXPECT_EQ(dialog->Element(2)->group, 1);
  const ButtonRow none[] = {{0, nullptr}};
  EXPECT_EQ(dialog->AddButtons(-1, -1, true, none), -1);
  EXPECT_EQ(dialog->Count(), 3);
}

TEST_F(DialogTest, ARowOfButtonsThatIsTooWideStartsAtTheLeft) {
  const ButtonRow wide[] = {{'a', "A button with a long label"}, {'b', "and another one"}, {0, nullptr}};
  EXPECT_EQ(dialog->Element(dialog->AddButtons(-1, 0, true, wide))->x, 0);
}

TEST_F(DialogTest, ABarIsFullUpToTheFractionAtItsDrawing) {
  float fraction = 0.5f;
  dialog->AddProgressIndicator(1, 2, 8, &fraction);
  dialog->Redraw(-1);
  EXPECT_EQ(Text(22, 8, 8), "\u2588\u2588\u2588\u2588\u2591\u2591\u2591\u2591");
  fraction = 7;
  EXPECT_EQ(Text(22, 8, 8), "\u2588\u2588\u2588\u2588\u2591\u2591\u2591\u2591");
  dialog->Redraw(-1);
  EXPECT_EQ(Text(22, 8, 9), "\u2588\u2588\u2588\u2588\u2588\u2588\u2588\u2588 ");
  EXPECT_FALSE(dialog->Element(0)->focusable);
}

}  // namespace
