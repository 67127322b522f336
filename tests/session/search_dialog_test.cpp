// The dialog that asks for what is searched for.
#include "viewer/search_settings.h"

#include "dialogs/dialog_history.h"
#include "support/console_fixture.h"

namespace {

constexpr int kX = 8, kY = 7;  // the inside on a screen of 80 by 25

class SearchDialogTest : public ConsoleFixture {
 protected:
  SearchDialogTest() {
    DialogHistories[kHistorySearch].Clear();
    Set(L"", false, false, false);
  }
  ~SearchDialogTest() override { Set(L"", false, false, false); }

  static void Set(const Westring& text, bool caseSensitive, bool reverse, bool wholeWord) {
    SearchString = text;
    CaseSensitive = caseSensitive;
    Reverse = reverse;
    WholeWord = wholeWord;
  }

  bool Ask(const std::string& keys) {
    Keys(keys);
    return SearchDialog();
  }

  std::string Field() const { return Text(kX + 1, kY + 1, 40).Trimmed(); }
  std::string Searched() const { return ToUtf8(SearchString).Text(); }
};

}  // namespace

TEST_F(SearchDialogTest, HasItsThingsInTheirPlaces) {
  Set(L"text", false, true, false);
  Then([this] {
    EXPECT_TRUE(Text(7, 6, 65).StartsWith("╔"));
    EXPECT_TRUE(Text(7, 12, 65).EndsWith("╝"));
    EXPECT_TRUE(Text(kX, kY, 20).StartsWith(" Search for:"));
    EXPECT_EQ(Attribute(kX + 1, kY), 0x71);  // the letter that leads to the field
    EXPECT_EQ(Field(), "text");
    EXPECT_EQ(Attribute(kX + 1, kY + 1), 0x30);
    EXPECT_EQ(Attribute(kX + 40, kY + 1), 0x30);
    EXPECT_TRUE(Text(kX + 41, kY + 1, 1) == "↓");
    EXPECT_TRUE(Text(kX + 10, kY + 4, 16) == "[ OK ]  [ Cancel");
    EXPECT_TRUE(Text(kX + 43, kY + 1, 20) == "[ ]  Case Sensitive ");
    EXPECT_TRUE(Text(kX + 43, kY + 2, 20) == "[X]  Reverse        ");
    EXPECT_TRUE(Text(kX + 43, kY + 3, 20) == "[ ]  Whole Word     ");
  });
  EXPECT_FALSE(Ask("Esc"));
}

TEST_F(SearchDialogTest, EnterTakesTextAndSwitches) {
  EXPECT_TRUE(Ask("'abc' Tab Tab Space Down Space Down Space Enter"));
  EXPECT_EQ(Searched(), "abc");
  EXPECT_TRUE(CaseSensitive && Reverse && WholeWord);
  EXPECT_TRUE(Ask("Tab Tab Space Enter"));
  EXPECT_EQ(Searched(), "abc");
  EXPECT_FALSE(CaseSensitive);
  EXPECT_TRUE(Reverse && WholeWord);
}

TEST_F(SearchDialogTest, EscAndCancelLeaveAllAsItWas) {
  Set(L"old", true, false, true);
  const auto before = Snapshot();
  EXPECT_FALSE(Ask("'new' Tab Tab Space Down Space Down Space Esc"));
  EXPECT_FALSE(Ask("'new' Tab Right Enter"));
  EXPECT_EQ(Searched(), "old");
  EXPECT_TRUE(CaseSensitive && !Reverse && WholeWord);
  EXPECT_EQ(DialogHistories[kHistorySearch].Count(), 0);
  EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(SearchDialogTest, AltAndALetterLeadToTheFieldAndAccept) {
  EXPECT_TRUE(Ask("'ab' Tab Tab Alt-s Right 'c' Alt-o"));
  EXPECT_EQ(Searched(), "abc");
}

TEST_F(SearchDialogTest, WhatWasAcceptedIsOfferedByTheHistory) {
  EXPECT_TRUE(Ask("'one' Enter"));
  EXPECT_TRUE(Ask("'two' Enter"));
  EXPECT_TRUE(Ask("Alt-Down Up Enter Enter"));
  EXPECT_EQ(Searched(), "one");
}

TEST_F(SearchDialogTest, NoTextIsAccepted) {
  Set(L"old", false, false, false);
  EXPECT_TRUE(Ask("Del Right Backspace Backspace Backspace Enter"));
}
