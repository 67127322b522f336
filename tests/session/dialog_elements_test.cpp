// Elements of a dialog on a real console: all together, and the plain ones.
#include <array>

#include "config/values/colours.h"
#include "support/dialog_probe.h"

namespace {

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

TEST_F(DialogTest, AColourThatIsSetIsThatOfItsButtons) {
  dialog->SetColour(kDialogText, 0x2F);
  dialog->SetColour(kDialogFocused, 0x4F);
  dialog->AddButtons(2, 5, true, std::array<ButtonRow, 3>{{{'a', "One"}, {'b', "Two"}, {0, nullptr}}}.data());
  dialog->Redraw(-1);
  EXPECT_EQ(Attribute(25, 11), 0x4F);
  EXPECT_EQ(Attribute(34, 11), 0x2F);
  EXPECT_EQ(dialog->Colour(kDialogField), Options::Colours[kColourInputFields]);
}

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
