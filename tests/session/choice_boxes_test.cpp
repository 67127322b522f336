// Check boxes and radio buttons on a real console.
#include "dialogs/choice_boxes.h"

#include <utility>

#include "support/dialog_probe.h"

namespace {

using Place = std::pair<int, int>;

// Columns and rows of the screen: the inside of the dialog starts at (21, 6).
class ChoiceBoxTest : public DialogTest {
 protected:
  // Where the cursor blinks; {-1, -1} while it is hidden.
  static Place Cursor() {
    int x = 0, y = 0;
    Console->GetCursor(x, y);
    return Console->CursorSize() == 15 ? Place{x, y} : Place{-1, -1};
  }
  static constexpr Place kHidden{-1, -1};

  void RunThrough(const std::string& keys) {
    Keys(keys + " Esc");
    EXPECT_EQ(dialog->Run(), kEscape);
  }

  bool on = false, other = false;
  uint8_t three = 0;
  int32_t choice = 0;
};

class CheckBoxTest : public ChoiceBoxTest {};
class CheckBox3STest : public ChoiceBoxTest {};
class RadioButtonTest : public ChoiceBoxTest {};

// ---- two states

TEST_F(CheckBoxTest, TheLabelStandsTwoCellsBehindTheBoxOrInFrontOfIt) {
  other = true;
  dialog->AddCheckBox(2, 1, true, &on, "_Right", true);
  dialog->AddCheckBox(12, 2, true, &other, "Le_ft", false);
  dialog->Redraw(-1);
  EXPECT_EQ(Text(21, 7, 14), "  [ ]  Right  ");
  EXPECT_EQ(Text(21, 8, 18), "      Left  [X]   ");
  EXPECT_EQ(dialog->Element(0)->TypeId(), kTypeCheckBox);
}

TEST_F(CheckBoxTest, ItIsInTheDialogsTextColourWithItsHotLetterHighlighted) {
  dialog->SetColour(kDialogText, 0x2F);
  dialog->AddCheckBox(2, 1, true, &on, "La_bel", true);
  dialog->Redraw(-1);
  EXPECT_EQ(Attribute(23, 7), 0x2F);
  EXPECT_EQ(Attribute(28, 7), 0x2F);
  EXPECT_EQ(Attribute(30, 7), 0x2E);
  EXPECT_EQ(Attribute(31, 7), 0x2F);
  EXPECT_EQ(Attribute(26, 7), kColour);  // the gap between them
}

TEST_F(CheckBoxTest, SpaceTogglesAndTheMarkFollows) {
  dialog->AddCheckBox(2, 1, true, &on, "Label", true);
  Keys("Space");
  Then([&] {
    EXPECT_TRUE(on);
    EXPECT_EQ(Text(23, 7, 3), "[X]");
  });
  Keys("Space");
  Then([&] {
    EXPECT_FALSE(on);
    EXPECT_EQ(Text(23, 7, 3), "[ ]");
  });
  RunThrough("");
}

TEST_F(CheckBoxTest, InsertSetsAndDeleteClears) {
  dialog->AddCheckBox(2, 1, true, &on, "Label", true);
  Keys("Ins Ins");
  Then([&] { EXPECT_TRUE(on); });
  Keys("Del Del");
  Then([&] { EXPECT_FALSE(on); });
  RunThrough("");
}

TEST_F(CheckBoxTest, ItsKeysStayUnusedSoThatTheDialogSeesThem) {
  dialog->AddCheckBox(2, 1, true, &on, "Label", true);
  dialog->AddExitKey(' ');
  Keys("Space");
  EXPECT_EQ(dialog->Run(), ' ');
  EXPECT_TRUE(on);
  DialogEvent key;
  key.type = kDialogKey;
  for (Key code : {Key{' '}, Key{kInsert}, Key{kDelete}}) {
    key.code = static_cast<int32_t>(code);
    EXPECT_EQ(dialog->Element(0)->HandleEvent(key), 0);
  }
}

TEST_F(CheckBoxTest, TheCursorStandsOnTheMarkOnlyWithTheFocus) {
  dialog->AddCheckBox(2, 1, true, &on, "One", true);
  dialog->AddCheckBox(2, 2, false, &other, "Two", true);
  dialog->AddOkCancel(-1, 5, true);
  Then([&] { EXPECT_EQ(Cursor(), Place(24, 7)); });
  Keys("Down");
  Then([&] { EXPECT_EQ(Cursor(), Place(24, 8)); });
  Keys("Tab");
  Then([&] { EXPECT_EQ(Cursor(), kHidden); });
  Keys("Shift-Tab");
  Then([&] { EXPECT_EQ(Cursor(), Place(24, 7)); });
  RunThrough("");
}

TEST_F(CheckBoxTest, RedrawingOthersLeavesTheCursorAlone) {
  dialog->AddCheckBox(2, 1, true, &on, "One", true);
  dialog->AddCheckBox(2, 2, false, &other, "Two", true);
  dialog->Redraw(-1);
  EXPECT_EQ(Cursor(), Place(24, 7));
}

TEST_F(CheckBoxTest, ItsHotLetterFocusesAndToggles) {
  dialog->AddOkCancel(-1, 5, true);
  const int box = dialog->AddCheckBox(2, 1, true, &on, "La_bel", true);
  Keys("Alt-b");
  Then([&] {
    EXPECT_EQ(dialog->Focus(), box);
    EXPECT_TRUE(on);
    EXPECT_EQ(Text(23, 7, 3), "[X]");
  });
  Keys("Alt-b");
  Then([&] { EXPECT_FALSE(on); });
  RunThrough("");
}

TEST_F(CheckBoxTest, ThePressFocusesAndTheReleaseToggles) {
  dialog->AddOkCancel(-1, 5, true);
  const int box = dialog->AddCheckBox(2, 1, true, &on, "Label", true);
  Mouse(kEventPress, 1, 25, 7);
  Then([&] {
    EXPECT_EQ(dialog->Focus(), box);
    EXPECT_FALSE(on);
  });
  Mouse(kEventMotion, 1, 24, 7);
  Mouse(kEventRelease, 1, 23, 7);
  Then([&] {
    EXPECT_TRUE(on);
    EXPECT_EQ(Text(23, 7, 3), "[X]");
  });
  RunThrough("");
}

TEST_F(CheckBoxTest, TheMouseWorksOnTheLabelOfEitherSide) {
  dialog->AddCheckBox(2, 1, true, &on, "Right", true);
  dialog->AddCheckBox(12, 2, true, &other, "Left", false);
  Click(28, 7);
  Then([&] { EXPECT_TRUE(on); });
  Click(32, 7);
  Then([&] { EXPECT_FALSE(on); });
  Click(27, 8);
  Then([&] { EXPECT_TRUE(other); });
  Click(30, 8);
  Then([&] { EXPECT_FALSE(other); });
  RunThrough("");
}

TEST_F(CheckBoxTest, BesideBoxAndLabelTheMouseDoesNothing) {
  dialog->AddCheckBox(2, 1, true, &on, "Right", true);
  dialog->AddCheckBox(12, 2, true, &other, "Left", false);
  for (auto [x, y] : {Place(22, 7), Place(26, 7), Place(27, 7), Place(33, 7), Place(23, 6), Place(26, 8),
                      Place(31, 8), Place(32, 8), Place(36, 8), Place(33, 9)}) {
    Click(x, y);
    Then([&, x = x, y = y] {
      EXPECT_FALSE(on || other) << x << "," << y;
      EXPECT_EQ(dialog->Focus(), 0) << x << "," << y;
    });
  }
  RunThrough("");
}

TEST_F(CheckBoxTest, ADoubleClickIsNotForIt) {
  dialog->AddCheckBox(2, 1, true, &on, "Label", true);
  Mouse(kEventDoubleClick, 1, 24, 7);
  RunThrough("");
  EXPECT_FALSE(on);
}

// ---- three states

TEST_F(CheckBox3STest, SpaceGoesRoundItsThreeMarks) {
  dialog->AddCheckBox3S(2, 1, true, &three, "_Label", true);
  EXPECT_EQ(dialog->Element(0)->TypeId(), kTypeCheckBox3S);
  Then([&] { EXPECT_EQ(Text(23, 7, 10), "[ ]  Label"); });
  Keys("Space");
  Then([&] {
    EXPECT_EQ(three, 1);
    EXPECT_EQ(Text(23, 7, 3), "[\u00B7]");
  });
  Keys("Space");
  Then([&] {
    EXPECT_EQ(three, 2);
    EXPECT_EQ(Text(23, 7, 3), "[X]");
  });
  Keys("Space");
  Then([&] {
    EXPECT_EQ(three, 0);
    EXPECT_EQ(Text(23, 7, 3), "[ ]");
  });
  RunThrough("");
}

TEST_F(CheckBox3STest, InsertGoesOneOnAndDeleteKeepsTheState) {
  dialog->AddCheckBox3S(2, 1, true, &three, "Label", true);
  for (int state : {1, 2, 0}) {
    Keys("Ins");
    Then([&, state] { EXPECT_EQ(three, state); });
    Keys("Del");
    Then([&, state] { EXPECT_EQ(three, state); });
  }
  RunThrough("");
}

TEST_F(CheckBox3STest, TheReleaseOfTheMouseGoesOneOn) {
  three = 2;
  dialog->AddCheckBox3S(12, 1, true, &three, "Label", false);
  Mouse(kEventPress, 1, 33, 7);
  Then([&] { EXPECT_EQ(three, 2); });
  Mouse(kEventRelease, 1, 33, 7);
  Then([&] { EXPECT_EQ(three, 0); });
  Click(26, 7);  // on the label
  Then([&] { EXPECT_EQ(three, 1); });
  RunThrough("");
}

TEST_F(CheckBox3STest, ItsHotLetterGoesOneOn) {
  three = 1;
  dialog->AddOkCancel(-1, 5, true);
  dialog->AddCheckBox3S(2, 1, true, &three, "_Label", true);
  Keys("Alt-l");
  Then([&] {
    EXPECT_EQ(three, 2);
    EXPECT_EQ(Cursor(), Place(24, 7));
  });
  RunThrough("");
}

// ---- radio buttons

// Three in a group, and two buttons.
class RadioGroupTest : public ChoiceBoxTest {
 protected:
  void Build() {
    dialog->AddRadioButton(2, 1, true, &choice, 10, "_Ten");
    dialog->AddRadioButton(2, 2, false, &choice, 20, "T_wenty");
    dialog->AddRadioButton(2, 3, false, &choice, 30, "Th_irty");
    dialog->AddOkCancel(-1, 5, true);
  }

  std::string Marks() const {
    return Text(24, 7, 1).String() + Text(24, 8, 1).String() + Text(24, 9, 1).String();
  }
};

TEST_F(RadioGroupTest, TheOneOfTheValueHasTheMark) {
  choice = 20;
  Build();
  dialog->Redraw(-1);
  EXPECT_EQ(Text(23, 7, 10), "( ) Ten   ");
  EXPECT_EQ(Text(23, 8, 11), "(\u2022) Twenty ");
  EXPECT_EQ(Text(23, 9, 11), "( ) Thirty ");
  EXPECT_EQ(Attribute(27, 7), 0x71);
  EXPECT_EQ(Attribute(28, 7), 0x70);
  EXPECT_EQ(Attribute(28, 8), 0x71);
  EXPECT_EQ(dialog->Element(0)->TypeId(), kTypeRadioButton);
}

TEST_F(RadioGroupTest, TheFocusEntersTheGroupAtTheSelectedOne) {
  choice = 30;
  Build();
  Then([&] {
    EXPECT_EQ(dialog->Focus(), 2);
    EXPECT_EQ(choice, 30);
    EXPECT_EQ(Cursor(), Place(24, 9));
  });
  RunThrough("");
}

TEST_F(RadioGroupTest, MovingWithTheArrowsSelectsAndStaysInTheGroup) {
  choice = 10;
  Build();
  Keys("Down");
  Then([&] {
    EXPECT_EQ(choice, 20);
    EXPECT_EQ(Marks(), " \u2022 ");
    EXPECT_EQ(Cursor(), Place(24, 8));
  });
  Keys("Up Up");
  Then([&] {
    EXPECT_EQ(choice, 30);
    EXPECT_EQ(Marks(), "  \u2022");
  });
  Keys("Right");
  Then([&] { EXPECT_EQ(choice, 10); });
  Keys("Tab");
  Then([&] {
    EXPECT_EQ(choice, 10);
    EXPECT_EQ(Cursor(), kHidden);
  });
  RunThrough("");
}

TEST_F(RadioGroupTest, NoKeyButMovingChangesTheValue) {
  choice = 10;
  Build();
  Keys("Down Space Ins Del");
  Then([&] { EXPECT_EQ(choice, 20); });
  RunThrough("");
}

TEST_F(RadioGroupTest, APressOnItsThreeCellsSelectsAndOneOnTheLabelDoesNot) {
  choice = 10;
  Build();
  for (auto [x, y] : {Place(22, 8), Place(26, 8), Place(27, 8), Place(30, 8)}) Click(x, y);
  Then([&] { EXPECT_EQ(choice, 10); });
  Mouse(kEventPress, 1, 25, 8);
  Then([&] {
    EXPECT_EQ(choice, 20);
    EXPECT_EQ(Marks(), " \u2022 ");
  });
  Mouse(kEventRelease, 1, 25, 8);
  Mouse(kEventRelease, 1, 23, 9);  // without its press
  Then([&] { EXPECT_EQ(choice, 20); });
  Mouse(kEventPress, 1, 23, 9);
  Then([&] { EXPECT_EQ(choice, 30); });
  RunThrough("");
}

TEST_F(RadioGroupTest, AHotLetterSelectsFromAnotherGroup) {
  choice = 10;
  Build();
  Keys("Tab Alt-i");
  Then([&] {
    EXPECT_EQ(dialog->Focus(), 2);
    EXPECT_EQ(choice, 30);
    EXPECT_EQ(Marks(), "  \u2022");  // the one that was selected has lost its mark
  });
  RunThrough("");
}

TEST_F(RadioGroupTest, TabLeadsToTheSelectedOneAndKeepsTheChoice) {
  choice = 30;
  Build();
  Keys("Tab Tab");
  Then([&] {
    EXPECT_EQ(dialog->Focus(), 2);
    EXPECT_EQ(choice, 30);
  });
  Keys("Up Tab Shift-Tab");
  Then([&] {
    EXPECT_EQ(dialog->Focus(), 1);
    EXPECT_EQ(choice, 20);
  });
  RunThrough("");
}

TEST_F(RadioButtonTest, OneThatAFullDialogRefusesTouchesNoGroup) {
  for (int i = 0; i < Dialog::kMaxElements; ++i) dialog->Add(new Probe(*dialog, i == 0));
  choice = 5;
  EXPECT_EQ(dialog->AddRadioButton(2, 1, false, &choice, 5, "Five"), -1);
  EXPECT_EQ(dialog->Element(0)->groupCurrent, 0);
}

}  // namespace
