// One step of the quick search at a time, and completion. The panels have no
// window here, so nothing is read from the keyboard.
#include "panels/quick_search.h"

#include "support/hand_made_panels.h"

namespace {

class QuickSearchTest : public PanelRecords {
 protected:
  QuickSearchTest() {
    Options::StickyAlt = false;
    for (const wchar_t* name : {L"..", L"Bar", L"bare", L"foo", L"Barn", L"baz"}) Add(name);
  }

  // Types each character with Alt.
  void Type(const wchar_t* text) {
    for (; *text; ++text) Search(static_cast<Key>(*text), 1);
  }
  void Search(Key character, int direction) {
    Key left = 0;
    EXPECT_EQ(QuickSearch(character, panel, &left, nullptr, direction), 0);
    EXPECT_EQ(left, 0u);
  }
  void Up() { Search(0, -1); }
  void Down() { Search(0, 1); }

  void Place(const wchar_t* name) {
    for (int i = 0; i < panel.count; ++i)
      if (std::wstring(panel.entries[i]->name) == name) panel.cursorRow = i - panel.topIndex;
  }
  std::wstring Under() const { return panel.Current()->name; }
  std::wstring Text() const { return panel.quickSearch; }
};

}  // namespace

TEST_F(QuickSearchTest, TheCursorFollowsThePrefix) {
  Type(L"b");
  EXPECT_EQ(Under(), L"Bar");
  Type(L"az");
  EXPECT_EQ(Under(), L"baz");
  EXPECT_EQ(Text(), L"baz");
}

TEST_F(QuickSearchTest, ACharacterSearchesFromTheCursorOnAndAroundTheEnd) {
  Place(L"bare");
  Type(L"b");
  EXPECT_EQ(Under(), L"bare");
  panel.quickSearch[0] = 0;
  Place(L"baz");
  Type(L"f");
  EXPECT_EQ(Under(), L"foo");
  Place(L"baz");
  Type(L".");
  EXPECT_EQ(Under(), L"..");
}

TEST_F(QuickSearchTest, WhatMatchesNothingKeepsTextAndCursor) {
  Type(L"bar");
  Type(L"x");
  EXPECT_EQ(Text(), L"bar");
  EXPECT_EQ(Under(), L"Bar");
  Type(L"n");
  EXPECT_EQ(Text(), L"barn");
  EXPECT_EQ(Under(), L"Barn");
}

TEST_F(QuickSearchTest, CaseDoesNotCountButWholeCharactersDo) {
  Add(L"\u0410bc");  // its low byte is 16
  Add(L"\u0141");    // and of this one that of "A"
  Type(L"\u0430");
  EXPECT_EQ(Under(), L"\u0410bc");
  panel.quickSearch[0] = 0;
  Type(L"a");
  EXPECT_EQ(Under(), L"\u0410bc");
  EXPECT_EQ(Text(), L"");
}

TEST_F(QuickSearchTest, ATextThatIsNotTheEntrysIsDroppedFirst) {
  Type(L"bar");
  Place(L"foo");
  Type(L"f");
  EXPECT_EQ(Text(), L"f");
  EXPECT_EQ(Under(), L"foo");
}

TEST_F(QuickSearchTest, DownGoesToTheNextMatchAndAroundTheEnd) {
  Type(L"bar");
  Down();
  EXPECT_EQ(Under(), L"bare");
  Down();
  EXPECT_EQ(Under(), L"Barn");
  Down();
  EXPECT_EQ(Under(), L"Bar");
  EXPECT_EQ(Text(), L"bar");
}

TEST_F(QuickSearchTest, TheOnlyMatchStaysUnderTheCursor) {
  Type(L"foo");
  Down();
  EXPECT_EQ(Under(), L"foo");
  Up();
  EXPECT_EQ(Under(), L"foo");
}

TEST_F(QuickSearchTest, UpGoesToTheMatchBeforeAndStopsAtTheFirst) {
  Type(L"bar");
  Place(L"Barn");
  Up();
  EXPECT_EQ(Under(), L"bare");
  Up();
  EXPECT_EQ(Under(), L"Bar");
  Up();
  EXPECT_EQ(Under(), L"Bar");
}

TEST_F(QuickSearchTest, ACharacterTypedBackwardSeesTheWholeList) {
  Place(L"bare");
  Search('f', -1);
  EXPECT_EQ(Under(), L"foo");
  Search('x', -1);
  EXPECT_EQ(Text(), L"f");
  EXPECT_EQ(Under(), L"foo");
}

TEST_F(QuickSearchTest, FarMatchesComeIntoView) {
  AddMany(30);
  Type(L"f02");
  EXPECT_EQ(Under(), L"f020");
  EXPECT_LT(panel.cursorRow, panel.visibleEntries);
  EXPECT_GE(panel.cursorRow, 0);
}

TEST_F(QuickSearchTest, NothingIsSearchedWhereNoListIsShown) {
  panel.visible = false;
  Type(L"b");
  panel.visible = true;
  panel.panelType = kPanelInfo;
  Type(L"b");
  EXPECT_EQ(Text(), L"");
  EXPECT_EQ(panel.CurrentIndex(), 0);
}

TEST_F(QuickSearchTest, AnEmptyPanelSearchesNothing) {
  Key left = 0;
  for (bool sticky : {false, true}) {
    Options::StickyAlt = sticky;
    EXPECT_EQ(QuickSearch('a', panels[1], &left, nullptr, 1), 0);
    EXPECT_EQ(QuickSearch(0, panels[1], &left, nullptr, -1), 0);
  }
  Options::StickyAlt = false;
  CompleteSearch(panels[1]);
  EXPECT_STREQ(panels[1].quickSearch, L"");
}

TEST_F(QuickSearchTest, TheTextEndsWhereItsPlaceIsFull) {
  const std::wstring longName(600, L'q');
  Add(longName.c_str());
  Type(longName.c_str());
  EXPECT_EQ(Text(), longName.substr(0, kPathSize - 1));
  CompleteSearch(panel);
  EXPECT_EQ(Text(), longName.substr(0, kPathSize - 1));
}

TEST_F(QuickSearchTest, CompletionTakesWhatAllMatchesShare) {
  Type(L"b");
  CompleteSearch(panel);
  EXPECT_EQ(Text(), L"Ba") << "with the letters of the entry under the cursor";
  Type(L"R");
  CompleteSearch(panel);
  EXPECT_EQ(Text(), L"Bar") << "Bar itself is all that Bar, bare and Barn share";
  EXPECT_EQ(Under(), L"Bar");
}

TEST_F(QuickSearchTest, CompletionOfTheOnlyMatchIsItsName) {
  Type(L"f");
  CompleteSearch(panel);
  EXPECT_EQ(Text(), L"foo");
}

TEST_F(QuickSearchTest, CompletionNeverShortensTheText) {
  Type(L"BARE");
  CompleteSearch(panel);
  EXPECT_EQ(Text(), L"bare");
  Place(L"foo");
  CompleteSearch(panel);
  EXPECT_EQ(Text(), L"bare") << "the entry under the cursor does not begin with it";
}

TEST_F(QuickSearchTest, CompletionOfNoTextIsWhatAllNamesShare) {
  CompleteSearch(panel);
  EXPECT_EQ(Text(), L"");
}
