// Lists on a real console: what they show, their keys and the caller's
// selection.
#include <limits>

#include "support/list_fixture.h"

namespace {

using Rows = std::vector<int>;

// ---- what it shows

TEST_F(ListTest, ItsRowsArePaddedToItsWidthAndBlankPastTheLastItem) {
  Fill(2);
  AddList(10, 3);
  Then([&] {
    EXPECT_EQ(ListRow(0), "item 0    ");
    EXPECT_EQ(ListRow(1), "item 1    ");
    EXPECT_EQ(ListRow(2), "          ");
    EXPECT_EQ(Attribute(kX + 9, kY), Options::Colours[kColourMenuHighlight]);
    EXPECT_EQ(Attribute(kX + 9, kY + 1), Options::Colours[kColourMenu]);
    EXPECT_EQ(Attribute(kX + 9, kY + 2), Options::Colours[kColourMenu]);
  });
  Keys("Esc");
  Options::Colours[kColourMenu] = 0x2F;  // not that of the dialog
  EXPECT_EQ(dialog->Run(), kEscape);
  EXPECT_EQ(Attribute(kX + 10, kY), kColour);
  EXPECT_EQ(Attribute(kX, kY + 3), kColour);
  Options::Colours[kColourMenu] = kDefaultColours[kColourMenu];
}

TEST_F(ListTest, AnItemLongerThanTheListKeepsItsHead) {
  items.Add(L"0123456789");
  AddList(4, 2);
  dialog->Redraw(-1);
  EXPECT_EQ(Text(kX - 1, kY, 6), " 0123 ");
}

TEST_F(ListTest, TheCursorIsHighlightedOnlyWithTheFocus) {
  Fill(3);
  selection = 1;
  AddList(10, 3);
  AddProbe(true);
  Then([&] { EXPECT_EQ(BarRow(), 1); });
  Keys("Tab");
  Then([&] { EXPECT_EQ(BarRow(), -1); });
  Keys("Tab");
  Then([&] { EXPECT_EQ(BarRow(), 1); });
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListTest, BytesAreShownInTheConsolesCodePage) {
  const char* const strings[] = {"\x84 one", nullptr, "two"};
  TObjectStore<Estring> store;
  store.Append(new Estring("\x81"));
  int32_t second = 0;
  dialog->AddListBoxString(2, 1, true, 6, 3, strings, 3, &selection, kListDefault);
  dialog->AddListBoxEstring(12, 1, true, 6, 1, &store, &second, kListDefault);
  dialog->Redraw(-1);
  EXPECT_EQ(Text(kX, kY, 6), "\u00E4 one ");
  EXPECT_EQ(Text(kX, kY + 1, 6), "      ");
  EXPECT_EQ(Text(kX, kY + 2, 6), "two   ");
  EXPECT_EQ(Text(kX + 10, kY, 6), "\u00FC     ");
}

TEST_F(ListTest, AStepPaintsTheTwoRowsItConcernsAndAScrollPaintsAll) {
  Fill(4);
  AddList(10, 3);
  Then([&] { list->TakeDrawn(); });
  Keys("Down");
  Then([&] { EXPECT_EQ(list->TakeDrawn(), (Rows{0, 1, 1})); });  // and once more at the loop's head
  Keys("Down");
  Then([&] { EXPECT_EQ(list->TakeDrawn(), (Rows{1, 2, 2})); });
  Keys("Down");
  Then([&] { EXPECT_EQ(list->TakeDrawn(), (Rows{0, 1, 2, 2})); });
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListTest, AMillionItemsCostNoMoreThanTheRowsInView) {
  items.Add(L"the only one");
  AddList(10, 8);
  EXPECT_EQ(dialog->SendEvent(0, {kDialogListLength, 1000000}), 1);
  for (const char* key : {"Down", "End", "Up", "PgUp", "PgDn", "Home", "PgDn", "Left"}) {
    Then([&] { list->asked = 0; });
    Keys(key);
    Then([&, key] { EXPECT_LE(list->asked, 10) << key; });
  }
  Keys("End Esc");
  dialog->Run();
  EXPECT_EQ(selection, 999999);
}

// ---- the caller's selection

TEST_F(ListTest, ASelectionPastTheEndIsPutOnTheLastItemAtOnce) {
  Fill(5);
  selection = 5;
  AddList(10, 3);
  EXPECT_EQ(selection, 4);
  EXPECT_EQ(list->Top(), 2);
  EXPECT_EQ(list->Row(), 2);
}

TEST_F(ListTest, ANegativeSelectionBecomesTheFirstItemWhenDrawn) {
  Fill(5);
  selection = std::numeric_limits<int32_t>::min();
  AddList(10, 3);
  dialog->Redraw(-1);
  EXPECT_EQ(selection, 0);
  EXPECT_EQ(list->Row(), 0);
}

TEST_F(ListTest, ASelectionThatTheCallerMovesIsBroughtIntoView) {
  Fill(20);
  AddList(10, 5);
  const auto select = [&](int item) {
    selection = item;
    dialog->Redraw(-1);
    return std::to_string(list->Top()) + "+" + std::to_string(list->Row());
  };
  EXPECT_EQ(select(4), "0+4");
  EXPECT_EQ(select(10), "6+4");
  EXPECT_EQ(ListRow(4), "item 10   ");
  EXPECT_EQ(select(7), "6+1");
  EXPECT_EQ(select(3), "3+0");
  EXPECT_EQ(select(99), "15+4");
  EXPECT_EQ(selection, 19);
}

TEST_F(ListTest, TheSelectionFollowsTheCursor) {
  Fill(20);
  AddList(10, 5);
  const auto expect = [&](int item) { Then([&, item] { EXPECT_EQ(selection, item); }); };
  Keys("Up");
  expect(0);
  Keys("Down Down");
  expect(2);
  Keys("PgDn");
  expect(7);
  Keys("PgUp");
  expect(2);
  Keys("End");
  expect(19);
  Keys("Down");
  expect(19);
  Keys("Up");
  expect(18);
  Keys("Home");
  expect(0);
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListTest, PageDownOnFiveItemsInATallListGoesToTheLast) {
  Fill(5);
  AddList(10, 8);
  Keys("PgDn");
  Then([&] {
    EXPECT_EQ(selection, 4);
    EXPECT_EQ(BarRow(), 4);
    EXPECT_EQ(list->Top(), 0);
  });
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListTest, PageDownToAShortPageShowsItFromItsTop) {
  Fill(7);
  selection = 4;
  AddList(10, 5);
  Keys("PgDn");
  Then([&] {
    EXPECT_EQ(selection, 6);
    EXPECT_EQ(ListRow(0), "item 5    ");
    EXPECT_EQ(ListRow(1), "item 6    ");
    EXPECT_EQ(ListRow(2), "          ");
    EXPECT_EQ(BarRow(), 1);
  });
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListTest, AnEmptyListDrawsBlanksAndLeavesTheSelectionAsFound) {
  for (const int32_t found : {0, -1}) {
    selection = found;
    AddList(10, 3);
    EveryKeyThenEscape();
    dialog->Run();
    EXPECT_EQ(selection, found);
    for (int row = 0; row < 3; ++row) EXPECT_EQ(ListRow(row), "          ");
    dialog = std::make_unique<Dialog>(-1, -3, 40, 10, kColour);
  }
}

// ---- the ends of the dialog

TEST_F(ListTest, EnterGivesTheDefaultOrThirteen) {
  Fill(3);
  AddList(10, 3);
  Keys("Down Enter");
  EXPECT_EQ(dialog->Run(), 13);
  EXPECT_EQ(selection, 1);
  dialog->AddButton(2, 6, true, 'y', "_Yes");
  Keys("Enter");
  EXPECT_EQ(dialog->Run(), 'y');
}

TEST_F(ListTest, EnterGivesTheListsOwnCodeIfItHasOne) {
  Fill(3);
  AddList(10, 3, 77);
  dialog->AddButton(2, 6, true, 'y', "_Yes");
  Keys("F5 Enter");
  EXPECT_EQ(dialog->Run(), 77);
}

TEST_F(ListTest, InAListOfAnyKeyEachOneWithoutUseEndsTheDialog) {
  Fill(3);
  AddList(10, 3, kListAnyKey);
  dialog->AddButton(2, 6, true, 'y', "_Yes");
  const struct {
    const char* key;
    Key result;
  } kEnds[] = {{"F5", FKey(5)}, {"Tab", kTab},    {"i", 'i'},     {"Esc", kEscape},
               {"Left", kLeft}, {"Del", kDelete}, {"Enter", 'y'}, {"Backspace", kBackspace}};
  for (const auto& end : kEnds) {
    Keys(end.key);
    EXPECT_EQ(dialog->Run(), static_cast<int>(end.result)) << end.key;
  }
  Keys("Up Down PgUp PgDn Home End F5");
  EXPECT_EQ(dialog->Run(), static_cast<int>(FKey(5)));
  EXPECT_EQ(selection, 2);
  EXPECT_FALSE(list->HasSearchBox());
}

TEST_F(ListTest, OnlyMinusOneMeansAnyKeyAndAllBelowOneMeansTheDefault) {
  Fill(3);
  AddList(10, 3, -2);
  dialog->AddButton(2, 6, true, 'y', "_Yes");
  Keys("F5 Enter");
  EXPECT_EQ(dialog->Run(), 'y');
}

TEST_F(ListTest, OtherKeysGoOnToTheDialog) {
  Fill(3);
  AddList(10, 3);
  dialog->Add(new Probe(*dialog, false));
  dialog->Add(new Probe(*dialog, true));
  Keys("Right");
  Then([&] { EXPECT_EQ(dialog->Focus(), 1); });
  Keys("Left");
  Then([&] { EXPECT_EQ(dialog->Focus(), 0); });
  Keys("Up");  // a key of the list, on the first item too
  Then([&] { EXPECT_EQ(dialog->Focus(), 0); });
  Keys("Tab");
  Then([&] { EXPECT_EQ(dialog->Focus(), 2); });
  Keys("Esc");
  EXPECT_EQ(dialog->Run(), kEscape);
}

// ---- nothing of this may crash

TEST_F(ListTest, ListsOfOddSizesBehave) {
  const struct { int width, height; } kSizes[] = {{0, 3}, {1, 3}, {10, 1}, {0, 0}, {-5, -5}, {200, 60}};
  Fill(5);
  for (const auto& size : kSizes) {
    selection = 2;
    AddList(size.width, size.height);
    Keys("Down End PgUp PgDn Home PgDn 'item 3'");
    Then([&] { EXPECT_EQ(selection, 3) << size.width << "x" << size.height; });
    EveryKeyThenEscape();
    while (dialog->Run() != kEscape) continue;
    dialog = std::make_unique<Dialog>(-1, -3, 40, 10, kColour);
  }
}

TEST_F(ListTest, WideAndControlCharactersTakeACellEach) {
  const wchar_t odd[] = {L'a', 9, 10, 0x4E2D, 0x1F600, 0x301, 0x7F, static_cast<wchar_t>(-1), L'z', 0};
  items.Add(odd);
  items.Add(Westring::Replicate(0x4E2D, 100));
  AddList(10, 2);
  EveryKeyThenEscape();
  while (dialog->Run() != kEscape) continue;
  EXPECT_EQ(Text(kX, kY, 1), "a");
  EXPECT_EQ(Text(kX + 8, kY, 2), "z ");
  EXPECT_EQ(Text(kX + 9, kY + 1, 2), "\u4E2D ");
}

}  // namespace
