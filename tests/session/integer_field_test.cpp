// The field for a number.
#include "session/field_fixture.h"

namespace {

TEST_F(FieldTest, ShowsItsNumberFromTheStart) {
  AddNumber(-25);
  PressAndSee("", [&] {
    EXPECT_EQ(ConsoleFixture::Text(kX - 1, kY, 6), " -25  ");
    EXPECT_EQ(Attribute(kX + 3, kY), Options::Colours[kColourInputFields]);
    EXPECT_EQ(Attribute(kX + 4, kY), kColour);
    EXPECT_EQ(CursorColumn(), 0);
  });
  EXPECT_EQ(value, -25);
}

TEST_F(FieldTest, ANumberChangesAsItIsTyped) {
  AddNumber(80);
  Keys("1");
  Then([&] { EXPECT_EQ(value, 1); });
  Keys("2");
  Then([&] { EXPECT_EQ(value, 12); });
  Press("Backspace");
  EXPECT_EQ(value, 1);
}

TEST_F(FieldTest, ANumberRefusesCharactersThatAreNoDigits) {
  AddNumber(80);
  dialog->AddExitKey('y');
  Keys("- + a ~ Space 5 y");
  EXPECT_EQ(dialog->Run(), 'y');  // refused, so it is the dialog's
  EXPECT_EQ(value, 5);            // and the digit still the first key
}

TEST_F(FieldTest, ANumberRefusesCtrlBackspaceAndWhatCtrlQWouldInsert) {
  AddNumber(80);
  Press("End Ctrl-Backspace Ctrl-Q x");
  EXPECT_EQ(value, 80);
}

TEST_F(FieldTest, ANumberHasNoMoreDigitsThanItIsWide) {
  AddNumber(0, 4);
  PressAndSee("1 2 3 4 5", [&] {
    EXPECT_EQ(ConsoleFixture::Text(kX, kY, 5), "1234 ");
    EXPECT_EQ(CursorColumn(), 4);  // behind the last, which stays in view
  });
  EXPECT_EQ(value, 1234);
}

TEST_F(FieldTest, ThirtyDigitsAreHeldWithin32Bits) {
  AddNumber(0, 30, true);
  PressAndSee("'123456789012345678901234567890'",
              [&] { EXPECT_EQ(ConsoleFixture::Text(kX, kY, 19), "123456789012345678 "); });
  EXPECT_EQ(value, 2147483647);
}

TEST_F(FieldTest, ANumberOverTheLimitIsRewrittenAsTheLimit) {
  AddNumber(0, 30);
  PressAndSee("'99999999999'", [&] { EXPECT_EQ(ConsoleFixture::Text(kX, kY, 11), "2147483647 "); });
  EXPECT_EQ(value, 2147483647);
}

TEST_F(FieldTest, LeadingZerosVanishUnlessTheyAreKept) {
  AddNumber(5);
  PressAndSee("0 0 7", [&] { EXPECT_EQ(ConsoleFixture::Text(kX, kY, 4), "7   "); });
  EXPECT_EQ(value, 7);
  Renew();
  AddNumber(5, 4, true);
  PressAndSee("0 0 7", [&] { EXPECT_EQ(ConsoleFixture::Text(kX, kY, 4), "007 "); });
  EXPECT_EQ(value, 7);
}

TEST_F(FieldTest, AnEmptiedNumberShowsZeroAndTypingGoesOnBehindIt) {
  AddNumber(80);
  Keys("End Backspace Backspace");
  Then([&] {
    EXPECT_EQ(value, 0);
    EXPECT_EQ(ConsoleFixture::Text(kX, kY, 4), "0   ");
  });
  Press("'25'");
  EXPECT_EQ(value, 25);
}

TEST_F(FieldTest, ANumberThatItsOwnerChangesIsShown) {
  for (const bool keepTyped : {false, true}) {
    Renew();
    const int field = AddNumber(80, 4, keepTyped);
    Keys("0 7");
    Then([&] {
      value = 123;
      dialog->Redraw(field);
      EXPECT_EQ(ConsoleFixture::Text(kX, kY, 4), "123 ");
    });
    Press("");
    EXPECT_EQ(value, 123);
  }
}

TEST_F(FieldTest, ANumberWiderThanItsFieldStaysUntilItIsTyped) {
  AddNumber(123456, 3);
  Keys("Right");
  Then([&] { EXPECT_EQ(ConsoleFixture::Text(kX, kY, 3), "123"); });
  Keys("9");  // no room for it
  Then([&] { EXPECT_EQ(value, 123456); });
  Press("Del Del Del Del 9");
  EXPECT_EQ(value, 196);
}

TEST_F(FieldTest, TheEndOfAWiderNumberShowsItsLastDigitWithRoomBehindIt) {
  AddNumber(123456, 3);
  PressAndSee("End", [&] {
    EXPECT_EQ(ConsoleFixture::Text(kX, kY, 3), "6  ");
    EXPECT_EQ(CursorColumn(), 1);
  });
}

TEST_F(FieldTest, ASelectedNumberIsReplacedInAFullField) {
  AddNumber(1234, 4);
  Press("Home Shift-End 5");
  EXPECT_EQ(value, 5);
}

TEST_F(FieldTest, APastedNumberCountsAsFarAsItIsOne) {
  CopyToClipboard(L"-12x");
  AddNumber(80);
  PressAndSee("Ctrl-V", [&] { EXPECT_EQ(ConsoleFixture::Text(kX, kY, 4), "-12 "); });
  EXPECT_EQ(value, -12);
  Renew();
  CopyToClipboard(L"x12");
  AddNumber(80);
  PressAndSee("Ctrl-V", [&] { EXPECT_EQ(ConsoleFixture::Text(kX, kY, 4), "0   "); });
  EXPECT_EQ(value, 0);
}

TEST_F(FieldTest, TheNumbersFieldTellsItsType) {
  EXPECT_EQ(dialog->Element(AddNumber(1))->TypeId(), kTypeIntegerField);
  EXPECT_EQ(dialog->Element(AddField(L""))->TypeId(), kTypeStringField);
}

}  // namespace
