// The field for a line of text: its face and its keys.
#include "session/field_fixture.h"

namespace {

const std::wstring kThirty = L"abcdefghijklmnopqrstuvwxyz0123";

// ---- the face

TEST_F(FieldTest, ShowsItsTextFromTheStartPaddedInTheColourOfFields) {
  AddField(L"one");
  PressAndSee("", [&] {
    EXPECT_EQ(Shown(), "one       ");
    EXPECT_EQ(Selected(), "..........");
    EXPECT_EQ(Attribute(kX - 1, kY), kColour);
    EXPECT_EQ(Attribute(kArrow, kY), kColour);
    EXPECT_EQ(ConsoleFixture::Text(kArrow, kY, 1), " ");  // no history, no arrow
    EXPECT_EQ(CursorColumn(), 0);
  });
}

TEST_F(FieldTest, EndShowsTheLastNineCharactersAndTheCursor) {
  AddField(kThirty.c_str());
  Then([&] { EXPECT_EQ(Shown(), "abcdefghij"); });
  PressAndSee("End", [&] {
    EXPECT_EQ(Shown(), "vwxyz0123 ");
    EXPECT_EQ(CursorColumn(), 9);
  });
}

TEST_F(FieldTest, ScrollsByOneWhenTheCursorLeavesItsEdges) {
  AddField(kThirty.c_str());
  for (int i = 0; i < 9; ++i) Keys("Right");
  Then([&] { EXPECT_EQ(Shown(), "abcdefghij"); });
  Keys("Right");
  Then([&] {
    EXPECT_EQ(Shown(), "bcdefghijk");
    EXPECT_EQ(CursorColumn(), 9);
  });
  for (int i = 0; i < 9; ++i) Keys("Left");
  Then([&] {
    EXPECT_EQ(Shown(), "bcdefghijk");
    EXPECT_EQ(CursorColumn(), 0);
  });
  PressAndSee("Left", [&] { EXPECT_EQ(Shown(), "abcdefghij"); });
}

TEST_F(FieldTest, DeletingAtTheEndOfAScrolledTextShowsItsTail) {
  AddField(L"abcdefghijkl");
  Keys("End Left Left Left Left Left Left Left Left Left");  // as far as nothing scrolls
  Then([&] { EXPECT_EQ(Shown(), "defghijkl "); });
  PressAndSee("Shift-End Del", [&] {
    EXPECT_EQ(Text(), "abc");
    EXPECT_EQ(Shown(), "abc       ");
    EXPECT_EQ(CursorColumn(), 3);
  });
}

TEST_F(FieldTest, FollowsATextThatItsOwnerShortensOrLengthens) {
  AddField(kThirty.c_str());
  Keys("End Shift-Left Shift-Left Shift-Left");
  Then([&] {
    text = L"xy";
    dialog->Redraw(0);
    EXPECT_EQ(Shown(), "xy        ");
    EXPECT_EQ(CursorColumn(), 2);
    EXPECT_EQ(Selected(), "..........");
    text = L"xyz";
  });
  Press("a");
  EXPECT_EQ(Text(), "xyaz");
}

TEST_F(FieldTest, ASelectedTextThatItsOwnerShortensStaysScrolledUntilAKey) {
  AddField(kThirty.c_str());
  Keys("Right Right Shift-End");
  Then([&] {
    text = L"abcde";
    dialog->Redraw(0);
    EXPECT_EQ(Shown(), "          ");
  });
  PressAndSee("End", [&] { EXPECT_EQ(Shown(), "abcde     "); });
}

TEST_F(FieldTest, AKeyFindsATextThatItsOwnerEmptiedUnseen) {
  AddField(kThirty.c_str());
  Keys("End Shift-Left");
  Then([&] { text = L""; });
  Press("Backspace a");
  EXPECT_EQ(Text(), "a");
}

TEST_F(FieldTest, OfOneCellShowsTheCharacterUnderTheCursor) {
  text = L"abc";
  dialog->AddStringField(2, 1, true, &text, 1, -1, kNoHistory);
  Keys("Right");
  Then([&] {
    EXPECT_EQ(ConsoleFixture::Text(kX, kY, 2), "b ");
    EXPECT_EQ(CursorColumn(), 0);
  });
  PressAndSee("End", [&] {
    EXPECT_EQ(ConsoleFixture::Text(kX, kY, 2), "  ");
    EXPECT_EQ(CursorColumn(), 0);
  });
}

TEST_F(FieldTest, OfNoWidthHasOneCell) {
  dialog->AddStringField(2, 1, true, &text, 0, -1, kNoHistory);
  dialog->AddIntegerField(2, 2, true, &value, -5, false, kNoHistory);
  PressAndSee("a b End Home Tab End", [&] {
    EXPECT_EQ(ConsoleFixture::Text(kX - 1, kY, 3), " a ");
    EXPECT_EQ(ConsoleFixture::Text(kX - 1, kY + 1, 3), " 0 ");
  });
}

TEST_F(FieldTest, TheCursorShowsWhileTheFieldHasTheFocus) {
  AddField(L"one");
  AddProbe(true);
  Keys("Right Tab");
  Then([] { EXPECT_EQ(Console->CursorSize(), 0); });
  PressAndSee("Tab", [] { EXPECT_EQ(CursorColumn(), 1); });
}

TEST_F(FieldTest, DrawnWithoutTheFocusItLeavesTheCursorWhereItIs) {
  AddProbe(true);
  const int field = AddField(L"one");
  Then([&] {
    Console->SetCursor(3, 4);
    dialog->Redraw(field);
    int x, y;
    Console->GetCursor(x, y);
    EXPECT_EQ(x, 3);
    EXPECT_EQ(y, 4);
  });
  Press("");
}

TEST_F(FieldTest, DrawnAgainUnchangedItCostsNothing) {
  const int field = AddField(kThirty.c_str(), -1, kHistorySearch);
  Keys("End Shift-Left");
  Then([&] {
    const uint64_t before = Console->DrawCount();
    dialog->Redraw(field);
    EXPECT_EQ(Console->DrawCount(), before);
  });
  Press("");
}

// ---- the first key

TEST_F(FieldTest, AFirstCharacterReplacesTheText) {
  AddField(L"xyz");
  Press("a");
  EXPECT_EQ(Text(), "a");
}

TEST_F(FieldTest, ASecondCharacterIsAdded) {
  AddField(L"xyz");
  Press("a b");
  EXPECT_EQ(Text(), "ab");
}

TEST_F(FieldTest, ACursorKeyFirstTurnsToEditing) {
  for (const char* key : {"Home", "Left", "Shift-Home", "Ctrl-Left"}) {
    Renew();
    AddField(L"xyz");
    Press(std::string(key) + " a");
    EXPECT_EQ(Text(), "axyz") << key;
  }
}

TEST_F(FieldTest, AnyOtherUsedKeyFirstTurnsToEditing) {
  for (const char* key : {"Ctrl-C", "Ctrl-Ins", "Ctrl-X", "Alt-Down", "Shift-Ins", "Backspace"}) {
    Renew();
    AddField(L"xyz");
    Press(std::string(key) + " a");
    EXPECT_EQ(Text(), "axyz") << key;
  }
}

TEST_F(FieldTest, AKeyOfTheDialogLeavesTheFirstCharacterTheFirst) {
  AddField(L"xyz");
  AddProbe(true);
  Press("F5 Tab Tab Up a");
  EXPECT_EQ(Text(), "a");
}

TEST_F(FieldTest, TheFirstCharacterReplacesAFullText) {
  AddField(L"xyz", 3);
  Press("a");
  EXPECT_EQ(Text(), "a");
}

// ---- moving

TEST_F(FieldTest, MovesByCharactersToTheEndsAndNoFurther) {
  AddField(L"ab");
  Press("Left Right 1 Right Right Right 2 Home 3 End 4 Left Left 5");
  EXPECT_EQ(Text(), "3a1b524");
}

TEST_F(FieldTest, MovesByWordsToTheirStartOnTheLeft) {
  AddField(L"copy the/file");
  Press("End Ctrl-Left 1 Ctrl-Left Ctrl-Left 2 Ctrl-Left Ctrl-Left 3");
  EXPECT_EQ(Text(), "3copy 2the/1file");
}

TEST_F(FieldTest, MovesByWordsToTheirEndOnTheRight) {
  AddField(L"copy the/file ");
  Press("Ctrl-Right 1 Ctrl-Right 2 Ctrl-Right 3 Ctrl-Right 4");
  EXPECT_EQ(Text(), "copy1 the2/file3 4");
}

TEST_F(FieldTest, MovesByWordsToTheirStartOnTheRightIfSet) {
  Options::BriefWordRight = false;
  AddField(L"copy the/file ");
  Press("Ctrl-Right 1 Ctrl-Left Ctrl-Right 2 Ctrl-Right 3");
  EXPECT_EQ(Text(), "copy 1the/2file 3");
  text = L"/etc/x";
  Press("Home Ctrl-Right 1 Ctrl-Right 2");
  EXPECT_EQ(Text(), "/1etc/2x");
}

// ---- editing

TEST_F(FieldTest, TypesAtTheCursor) {
  AddField(L"");
  Press("'a c' Left b");
  EXPECT_EQ(Text(), "a bc");
}

TEST_F(FieldTest, TakesCharactersOfTheWholeSixteenBits) {
  AddField(L"");
  TEvent event;
  event.type = kEventKey;
  for (const int32_t code : {0xE9, 0x444, 0xFFFD}) {
    event.code = code;
    Put(event);
  }
  Press("");
  EXPECT_EQ(text, L"\xE9\x444\xFFFD");
}

TEST_F(FieldTest, BackspaceAndDeleteTakeOneCharacter) {
  AddField(L"abcd");
  Press("Home Backspace Del Right Backspace End Del");
  EXPECT_EQ(Text(), "cd");
}

TEST_F(FieldTest, CtrlBackspaceDeletesToTheStartOfTheWord) {
  AddField(L"copy the/file");
  Press("End Left Ctrl-Backspace Ctrl-Backspace");
  EXPECT_EQ(Text(), "copy e");
}

TEST_F(FieldTest, CtrlDeleteDeletesAsFarAsCtrlRightGoes) {
  AddField(L"copy the/file");
  Press("Home Ctrl-Del");
  EXPECT_EQ(Text(), " the/file");
  Options::BriefWordRight = false;
  Press("Home Right Ctrl-Del");
  EXPECT_EQ(Text(), " file");
}

TEST_F(FieldTest, TypingAtTheMostCharactersDoesNothing) {
  AddField(L"abc", 4);
  Press("End d e Home f");
  EXPECT_EQ(Text(), "abcd");
}

TEST_F(FieldTest, ATooLongTextStaysButDoesNotGrow) {
  AddField(L"abcdef", 3);
  Press("End x Backspace y Backspace Backspace Backspace z");
  EXPECT_EQ(Text(), "abz");
}

TEST_F(FieldTest, WithoutALimitTakesWhatAFieldMayHold) {
  text = Westring::Replicate(L'a', StringField::kMaxText - 1);
  dialog->AddStringField(2, 1, true, &text, kWidth, -1, kNoHistory);
  Press("End b c");
  EXPECT_EQ(Length(text), 32767);
  EXPECT_EQ(text[32766], L'b');
}

// ---- the next key as it is

TEST_F(FieldTest, CtrlQInsertsTheNextKeyAsItIs) {
  AddField(L"");
  Press("Ctrl-Q Enter Ctrl-Q Esc Ctrl-Q Ctrl-Q Ctrl-Q Ctrl-C Ctrl-Q Ctrl-Backspace Ctrl-Q a b");
  EXPECT_EQ(text,
            L"\r\x1B\x11\x03\x7F"
            L"ab");
}

TEST_F(FieldTest, CtrlQHoldsForOneKey) {
  AddField(L"ab");
  Press("Ctrl-Q x Ctrl-Q Left Ctrl-V");  // a key without a character moves as ever
  EXPECT_EQ(Text(), "xab");
}

TEST_F(FieldTest, CtrlQEndsTheSelectionSoThatNothingIsReplaced) {
  AddField(L"ab");
  Press("Home Shift-Right Ctrl-Q x");
  EXPECT_EQ(Text(), "axb");
}

TEST_F(FieldTest, CtrlQFirstTurnsToEditing) {
  AddField(L"xyz");
  Press("Ctrl-Q Tab");
  EXPECT_EQ(Text(), "\txyz");
}

TEST_F(FieldTest, ControlCharactersShowAsGlyphs) {
  AddField(L"");
  PressAndSee("Ctrl-Q Enter Ctrl-Q Ctrl-J a", [&] { EXPECT_EQ(Shown(), "\u266A\u25D9a       "); });
}

// ---- the selection

TEST_F(FieldTest, ShiftedMovesSelectFromWhereTheCursorWas) {
  AddField(L"one two");
  Keys("Right Shift-Right Shift-Right");
  Then([&] { EXPECT_EQ(Selected(), ".##......."); });
  Keys("Shift-Left Shift-Left Shift-Left");
  Then([&] { EXPECT_EQ(Selected(), "#........."); });
  Keys("Shift-End");
  Then([&] { EXPECT_EQ(Selected(), ".######..."); });
  Keys("Shift-Home");
  Then([&] { EXPECT_EQ(Selected(), "#........."); });
  Keys("End Ctrl-Shift-Left");
  Then([&] { EXPECT_EQ(Selected(), "....###..."); });
  PressAndSee("Home Ctrl-Shift-Right", [&] { EXPECT_EQ(Selected(), "###......."); });
}

TEST_F(FieldTest, TheSelectionScrollsWithTheText) {
  AddField(kThirty.c_str());
  Keys("End Left Shift-Left Shift-Left");
  Then([&] { EXPECT_EQ(Selected(), "......##.."); });
  PressAndSee("Shift-Home", [&] { EXPECT_EQ(Selected(), "##########"); });
}

TEST_F(FieldTest, AnyOtherKeyEndsTheSelection) {
  for (const char* key : {"Left", "Home", "Ctrl-Right", "F5", "Alt-Down", "Up"}) {
    Renew();
    AddField(L"one two");
    Keys("Home Shift-Right Shift-Right");
    Then([&] { EXPECT_EQ(Selected(), "##........"); });
    PressAndSee(key, [&] { EXPECT_EQ(Selected(), "..........") << key; });
  }
}

TEST_F(FieldTest, TheCopyKeysAndShiftedKeysWithoutUseLeaveTheSelection) {
  for (const char* key : {"Ctrl-C", "Ctrl-Ins", "Shift-Up", "Shift-F5"}) {
    Renew();
    AddField(L"one two");
    PressAndSee(std::string("Home Shift-Right Shift-Right ") + key,
                [&] { EXPECT_EQ(Selected(), "##........") << key; });
  }
}

TEST_F(FieldTest, LosesTheSelectionWithTheFocus) {
  AddField(L"one two");
  AddProbe(true);
  Keys("Home Shift-End");
  Then([&] { dialog->SetFocus(1); });
  Keys("F5");
  Then([&] { EXPECT_EQ(Selected(), ".........."); });
  Keys("Tab");
  PressAndSee("Shift-Right", [&] { EXPECT_EQ(Selected(), ".........."); });  // it is at the end
}

TEST_F(FieldTest, DeleteAndBackspaceTakeTheSelection) {
  AddField(L"one two three");
  Press("Home Shift-Right Shift-Right Shift-Right Shift-Right Del End Ctrl-Shift-Left Backspace");
  EXPECT_EQ(Text(), "two ");
}

TEST_F(FieldTest, AnEmptySelectionIsNone) {
  AddField(L"abc");
  Press("End Shift-Left Shift-Right Backspace Shift-Left Shift-Right x");
  EXPECT_EQ(Text(), "abx");
}

TEST_F(FieldTest, ACharacterReplacesTheSelection) {
  AddField(L"one two", 7);
  PressAndSee("End Ctrl-Shift-Left x", [&] {
    EXPECT_EQ(Text(), "one x");
    EXPECT_EQ(CursorColumn(), 5);
    EXPECT_EQ(Selected(), "..........");
  });
}

// ---- keys of the dialog

TEST_F(FieldTest, EnterEndsTheDialogWithItsDefaultResult) {
  AddField(L"one");
  dialog->AddButton(2, 4, true, 'y', "_Yes");
  Keys("Enter");
  EXPECT_EQ(dialog->Run(), 'y');
  EXPECT_EQ(Text(), "one");
}

TEST_F(FieldTest, KeysWithoutAUseAreTheDialogs) {
  AddField(L"one");
  dialog->AddExitKey(FKey(5));
  Keys("Ctrl-A Ctrl-Up Grey+ Ctrl-Ins Ins F5");
  EXPECT_EQ(dialog->Run(), static_cast<int>(FKey(5)));
  EXPECT_EQ(Text(), "one");
}

TEST_F(FieldTest, EventsOfListsAreNotForFields) {
  const int field = AddField(L"one");
  for (const int32_t type : {kDialogListLength, kDialogListRepaint, kDialogWheel}) {
    DialogEvent event;
    event.type = type;
    event.x = 3;
    event.y = 1;
    EXPECT_EQ(dialog->SendEvent(field, event), 0);
  }
}

}  // namespace
