// Searching a list by typing, and the box that shows what was typed.
#include <array>

#include "support/list_fixture.h"

namespace {

class ListSearchTest : public ListTest {
 protected:
  void Fill(std::initializer_list<const wchar_t*> texts) {
    for (const wchar_t* text : texts) items.Add(text);
  }

  void ExpectItem(int item) {
    Then([this, item] { EXPECT_EQ(selection, item); });
  }

  // The cell of the frame where a box of one cell stands.
  std::string BoxCell() const { return Text(kRightFrame - 1, kBottomFrame, 1).String(); }
};

TEST_F(ListSearchTest, FindsTheItemThatStartsWithTheTextInAnyCasePastTheEnd) {
  Fill({L"Abacus", L"apple", L"zoo", L"Berry"});
  selection = 2;
  AddList(10, 3);
  Keys("'ab'");
  ExpectItem(0);
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListSearchTest, BeginsWithTheItemUnderTheCursor) {
  Fill({L"a1", L"b1", L"A2", L"a3"});
  selection = 2;
  AddList(10, 3);
  Keys("a");
  ExpectItem(2);
  Keys("3");
  ExpectItem(3);
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListSearchTest, ScrollsTheMatchIntoView) {
  Fill({L"a", L"b", L"c", L"d", L"e"});
  AddList(10, 2);
  Keys("e");
  Then([&] {
    EXPECT_EQ(ListRow(1), "e         ");
    EXPECT_EQ(BarRow(), 1);
  });
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListSearchTest, AKeyWithoutMatchIsDroppedAndTheSearchGoesOn) {
  Fill({L"one", L"two", L"twin"});
  AddList(10, 3);
  Keys("'tx'");
  ExpectItem(1);
  Keys("'wi'");
  ExpectItem(2);
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListSearchTest, AKeyWithoutMatchAsksForEachItemOnce) {
  for (int i = 0; i < 1000; ++i) items.Add(L"item");
  AddList(10, 3);
  Then([&] { list->asked = 0; });
  Keys("x");
  Then([&] { EXPECT_LE(list->asked, 1000 + 2); });  // and for the cursor's row, which is drawn
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListSearchTest, AKeyWithoutMatchIsLeftToTheDialog) {
  Fill({L"one", L"two"});
  AddList(10, 3);
  dialog->AddButton(2, 6, true, 'y', "_Yes");
  Keys("'oy'");
  EXPECT_EQ(dialog->Run(), 'y');
}

TEST_F(ListSearchTest, AKeyThatMatchesAnItemReachesNoButton) {
  Fill({L"one", L"yes"});
  AddList(10, 3);
  dialog->AddButton(2, 6, true, 'y', "_Yes");
  Keys("y");
  ExpectItem(1);
  Keys("Esc");
  EXPECT_EQ(dialog->Run(), kEscape);
}

TEST_F(ListSearchTest, AnyOtherKeyOfTheListStartsItAnew) {
  Fill({L"ab", L"b", L"c"});
  AddList(10, 3);
  Keys("a Down b");  // not "ab"
  ExpectItem(1);
  Keys("Home");
  Then([&] { EXPECT_FALSE(list->HasSearchBox()); });
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListSearchTest, BlanksAndCharactersBeyondLatinAreSearchedToo) {
  Fill({L"a", L"a b", L"\x4E2D\x6587", L"\xE4"});
  AddList(10, 4);
  Keys("'a b' Home '\u4E2D\u6587' Home '\u00E4'");
  ExpectItem(3);
  Keys("Home '\u4E2D'");
  ExpectItem(2);
  Keys("Home 'a '");
  ExpectItem(1);
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListSearchTest, ItsBoxStandsAtTheBottomRightWhileThereIsAText) {
  Fill({L"one", L"two"});
  AddList(10, 3);
  dialog->SetColour(kDialogField, 0x4F);
  const auto before = Snapshot();
  Keys("x");
  Then([&] { EXPECT_EQ(BoxCell(), "\u2550"); });
  Keys("o");
  Then([&] {
    EXPECT_EQ(BoxCell(), "o");
    EXPECT_EQ(Attribute(kRightFrame - 1, kBottomFrame), 0x4F);
  });
  Keys("n");
  Then([&] {
    EXPECT_EQ(Text(kRightFrame - 2, kBottomFrame, 3), "\u2550n\u255D");  // as wide as it began
  });
  Keys("Up");
  Then([&] {
    EXPECT_EQ(Text(kRightFrame - 2, kBottomFrame, 3), "\u2550\u2550\u255D");
    EXPECT_EQ(Attribute(kRightFrame - 1, kBottomFrame), kColour);
  });
  Keys("o Esc");
  dialog->Run();
  dialog = nullptr;
  EXPECT_EQ(Row(kBottomFrame).Trimmed(), "");
}

TEST_F(ListSearchTest, TheBoxAndTheTextGoWithTheFocus) {
  Fill({L"ab", L"b"});
  AddList(10, 3);
  AddProbe(true);
  Keys("a Tab");
  Then([&] { EXPECT_EQ(BoxCell(), "\u2550"); });
  Keys("Tab b");
  ExpectItem(1);
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListSearchTest, AClickEndsIt) {
  Fill({L"ab", L"b"});
  AddList(10, 3);
  Keys("a");
  Click(kX, kY);
  Then([&] { EXPECT_EQ(BoxCell(), "\u2550"); });
  Keys("b");
  ExpectItem(1);
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListSearchTest, ATextFromOutsideIsSearchedAsIfTyped) {
  Fill({L"one", L"tin", L"two", L"twofold"});
  AddList(10, 4);
  ListSearch(*dialog, 0, L"two");
  EXPECT_EQ(selection, 2);
  EXPECT_EQ(Text(kRightFrame - 4, kBottomFrame, 5), "\u2550two\u255D");
  Keys("f");
  ExpectItem(3);
  Then([&] { EXPECT_EQ(Text(kRightFrame - 4, kBottomFrame, 5), "\u2550wof\u255D"); });
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListSearchTest, OfATextFromOutsideWithoutMatchTheLastCharacterIsDropped) {
  Fill({L"one", L"tin", L"two"});
  AddList(10, 4);
  ListSearch(*dialog, 0, L"tx");
  EXPECT_EQ(selection, 0);
  EXPECT_EQ(BoxCell(), "t");
  Keys("w");
  ExpectItem(2);
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListSearchTest, ALongTextFromOutsideFitsTheDialog) {
  items.Add(Westring::Replicate(L'x', 300));
  items.Add(Westring::Replicate(L'y', 300));
  AddList(10, 2);
  ListSearch(*dialog, 0, Westring::Replicate(L'y', 200));
  EXPECT_EQ(selection, 1);
  EXPECT_EQ(Text(20, kBottomFrame, 4), "\u255Ayyy");
  EXPECT_EQ(Text(57, kBottomFrame, 4), "yy\u255D ");
}

TEST_F(ListSearchTest, ATextFromOutsideIsForListsAlone) {
  Fill({L"one", L"two"});
  const char* const strings[] = {"one", "two"};
  uint8_t attributes[] = {0x70, 0x71};
  int32_t colour = 0;
  AddProbe(true);
  dialog->AddColourSelector(2, 1, true, 10, 2, strings, attributes, 2, &colour, kListDefault);
  AddList(10, 3);
  for (const int i : {-1, 0, 1, 3, 99, 100}) ListSearch(*dialog, i, L"t");
  ListSearch(*dialog, 2, L"");
  EXPECT_EQ(colour, 0);
  EXPECT_EQ(selection, 0);
  EXPECT_EQ(static_cast<Probe*>(dialog->Element(0))->events.size(), 0u);
  ListSearch(*dialog, 2, L"t");
  EXPECT_EQ(selection, 1);
}

TEST_F(ListSearchTest, AListOfAnyKeyIsNotSearched) {
  Fill({L"one", L"two"});
  AddList(10, 3, kListAnyKey);
  Keys("t");
  EXPECT_EQ(dialog->Run(), 't');
  EXPECT_EQ(selection, 0);
}

TEST_F(ListSearchTest, StringsAreSearchedInTheConsolesCodePage) {
  const char* const strings[] = {"one", "\x84pfel"};
  dialog->AddListBoxString(2, 1, true, 6, 2, strings, 2, &selection, kListDefault);
  Keys("'\u00E4p'");
  ExpectItem(1);
  Keys("Esc");
  dialog->Run();
}

}  // namespace
