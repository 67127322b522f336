// The histories of fields: the list under a field, and how it fills.
#include "session/field_fixture.h"

namespace {

std::vector<std::string> History(int kind) {
  std::vector<std::string> items;
  for (int i = 0; i < DialogHistories[kind].Count(); ++i) {
    items.push_back(ToUtf8(*DialogHistories[kind].Peek(i)).Text());
  }
  return items;
}

using Strings = std::vector<std::string>;

class FieldHistoryTest : public FieldTest {
 protected:
  FieldHistoryTest() {
    for (const wchar_t* item : {L"one", L"two", L"three"}) AddDialogHistory(item, kHistorySearch);
  }

  int AddSearch(const wchar_t* content, int maxLength = -1) {
    return AddField(content, maxLength, kHistorySearch);
  }
};

// ---- how it fills

TEST_F(FieldHistoryTest, FillsAtTheEndOfItsDialog) {
  AddSearch(L"four");
  Keys("Enter");
  dialog->Run();
  EXPECT_EQ(History(kHistorySearch).size(), 3U);
  dialog.reset();
  EXPECT_EQ(History(kHistorySearch), (Strings{"one", "two", "three", "four"}));
}

TEST_F(FieldHistoryTest, ACancelledDialogAddsNothing) {
  AddSearch(L"four");
  Press("");
  dialog.reset();
  EXPECT_EQ(History(kHistorySearch), (Strings{"one", "two", "three"}));
}

TEST_F(FieldHistoryTest, CommitFillsItWhileTheDialogStands) {
  AddSearch(L"one");
  dialog->CommitAll();
  EXPECT_EQ(History(kHistorySearch), (Strings{"two", "three", "one"}));
}

TEST_F(FieldHistoryTest, AnEmptyFieldAndOneWithoutHistoryAddNothing) {
  AddSearch(L"");
  Westring other = L"other";
  dialog->AddStringField(2, 2, true, &other, 10, -1, kNoHistory);
  dialog->CommitAll();
  dialog.reset();
  EXPECT_EQ(History(kHistorySearch).size(), 3U);
}

TEST_F(FieldHistoryTest, ANumberGoesToItsHistoryToo) {
  value = 7;
  dialog->AddIntegerField(2, 1, true, &value, 4, false, kHistorySearch);
  Keys("4 2 Enter");
  dialog->Run();
  dialog.reset();
  EXPECT_EQ(History(kHistorySearch).back(), "42");
}

// ---- the arrow and the list

TEST_F(FieldHistoryTest, AnArrowStandsBehindTheField) {
  AddSearch(L"");
  PressAndSee("", [&] {
    EXPECT_EQ(ConsoleFixture::Text(kArrow, kY, 2), "\u2193 ");
    EXPECT_EQ(Attribute(kArrow, kY), kColour);
  });
}

TEST_F(FieldHistoryTest, AltDownOpensTheListUnderTheField) {
  AddSearch(L"text");
  Keys("Alt-Down");
  Then([&] {
    EXPECT_EQ(ConsoleFixture::Text(kX, kY, 10), "text      ");
    EXPECT_EQ(ConsoleFixture::Text(kX - 1, kY + 1, 12), "\u2554══════════\u2557");
    EXPECT_EQ(ConsoleFixture::Text(kX - 1, kY + 2, 12), "\u2551one       \u2551");
    EXPECT_EQ(ConsoleFixture::Text(kX - 1, kY + 4, 12), "\u2551three     \u2551");
    EXPECT_EQ(ConsoleFixture::Text(kX - 1, kY + 7, 12), "\u2551          \u2551");
    EXPECT_EQ(ConsoleFixture::Text(kX - 1, kY + 8, 12), "\u255A══════════\u255D");
    EXPECT_EQ(Attribute(kX - 1, kY + 1), kColour);
    EXPECT_EQ(Attribute(kX, kY + 4), Options::Colours[kColourMenuHighlight]);  // the newest
    EXPECT_EQ(Attribute(kX, kY + 3), Options::Colours[kColourMenu]);
  });
  Keys("Esc");
  Press("");
  EXPECT_EQ(Text(), "text");
}

TEST_F(FieldHistoryTest, TheChosenTextReplacesThatOfTheField) {
  AddSearch(L"text");
  Keys("Alt-Down Up Enter");
  Then([&] {
    EXPECT_EQ(Shown(), "two       ");
    EXPECT_EQ(CursorColumn(), 3);
  });
  Press("x");
  EXPECT_EQ(Text(), "twox");
}

TEST_F(FieldHistoryTest, TheListTakesTheColoursOfItsDialog) {
  AddSearch(L"");
  dialog->SetColour(kDialogText, 0x2F);
  Keys("Alt-Down");
  Then([&] { EXPECT_EQ(Attribute(kX - 1, kY + 1), 0x2F); });
  Keys("Esc");
  Press("");
}

TEST_F(FieldHistoryTest, AnEmptyListOpensAndChangesNothing) {
  AddField(L"text", -1, kHistoryLink);
  Keys("Alt-Down");
  Then([&] { EXPECT_EQ(ConsoleFixture::Text(kX - 1, kY + 2, 12), "\u2551          \u2551"); });
  Keys("Enter");
  Press("");
  EXPECT_EQ(Text(), "text");
}

TEST_F(FieldHistoryTest, WithoutAHistoryAltDownIsUsedAndDoesNothing) {
  AddField(L"text");
  dialog->AddExitKey(kAltDown);
  Keys("Alt-Down");
  Press("");
  EXPECT_EQ(Text(), "text");
}

TEST_F(FieldHistoryTest, AChosenTextIsHeldWithinTheField) {
  AddSearch(L"ab", 2);
  Keys("Alt-Down Enter");
  Press("");
  EXPECT_EQ(Text(), "th");
}

TEST_F(FieldHistoryTest, AChosenNumberIsTheValue) {
  AddDialogHistory(L"42", kHistorySearch);
  value = 7;
  dialog->AddIntegerField(2, 1, true, &value, 4, false, kHistorySearch);
  Keys("Alt-Down Enter");
  PressAndSee("", [&] { EXPECT_EQ(ConsoleFixture::Text(kX, kY, 5), "42  \u2193"); });
  EXPECT_EQ(value, 42);
}

TEST_F(FieldHistoryTest, TheMouseOnTheArrowOpensTheList) {
  AddProbe(true);
  AddSearch(L"text");
  Click(kArrow, kY);
  Then([&] {
    EXPECT_EQ(ConsoleFixture::Text(kX - 1, kY + 2, 12), "\u2551one       \u2551");
    EXPECT_EQ(dialog->Focus(), 1);
  });
  Keys("Home Enter");
  Press("");
  EXPECT_EQ(Text(), "one");
}

TEST_F(FieldHistoryTest, AClickBesideTheListCancelsTheListAlone) {
  AddSearch(L"text");
  Keys("Alt-Down");
  Click(1, 1);
  PressAndSee("", [&] { EXPECT_EQ(ConsoleFixture::Text(kX - 1, kY + 2, 12), "            "); });
  EXPECT_EQ(Text(), "text");
}

TEST_F(FieldHistoryTest, AnyOtherEventOfTheButtonOnTheArrowOpensTheListToo) {
  for (const EventType type : {kEventMotion, kEventRelease, kEventDoubleClick}) {
    Renew();
    AddSearch(L"text");
    Mouse(type, 1, kArrow, kY);
    Keys("Home Enter");
    Press("");
    EXPECT_EQ(Text(), "one") << type;
  }
}

// The button stands where the first item of the list will be.
TEST_F(FieldHistoryTest, ADoubleClickInTheListPressesNothingBelowIt) {
  constexpr int kItemX = kX + 2, kItemY = kY + 2;
  AddSearch(L"text");
  dialog->AddButton(2, 3, true, 'y', "_Yes");
  Keys("Alt-Down");
  Click(kItemX, kItemY);
  Mouse(kEventPress, 1, kItemX, kItemY);
  Mouse(kEventDoubleClick, 1, kItemX, kItemY);
  Mouse(kEventMotion, 1, kItemX, kItemY);
  Mouse(kEventRelease, 1, kItemX, kItemY);
  Then([&] {
    EXPECT_EQ(dialog->Result(), 0);
    EXPECT_EQ(Text(), "one");
  });
  Click(kItemX, kItemY);  // the next click is the button's
  EXPECT_EQ(dialog->Run(), 'y');
}

TEST_F(FieldHistoryTest, NearTheBottomOfTheScreenTheListStandsAboveTheField) {
  dialog = std::make_unique<Dialog>(20, 15, 59, 24, kColour);
  AddSearch(L"text");  // in row 17
  Keys("Alt-Down");
  Then([&] {
    EXPECT_EQ(ConsoleFixture::Text(kX - 1, 9, 12), "\u2554══════════\u2557");
    EXPECT_EQ(ConsoleFixture::Text(kX, 17, 10), "text      ");
  });
  Keys("Esc");
  Press("");
}

}  // namespace
