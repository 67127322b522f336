// Stepping through the user's code pages.
#include "viewer/code_page_list.h"

#include "config/values/options.h"
#include "dialogs/dialog_history.h"
#include "support/console_fixture.h"

namespace {

constexpr int kX = 25, kY = 7;  // the inside of the dialog on a screen of 80 by 25

class CodePageListTest : public ConsoleFixture {
 protected:
  CodePageListTest() {
    DialogHistories[kHistoryCodePages].Clear();
    SetList("");
    Options::TextCodePage = 0;
    LastCodePage = 0;
  }
  ~CodePageListTest() override {
    SetList("");
    Options::TextCodePage = 0;
    LastCodePage = 0;
  }

  static void SetList(const char* list) {
    Options::TranslateCP = list;
    TranslateCursor = 0;
  }

  static int Next() {
    int page = -1;
    NextCodePage(page);
    return page;
  }

  // A step that tells of an error, which is acknowledged.
  int NextIsInvalid() {
    Then([this] { EXPECT_NE(Screen().find("Invalid code page"), std::string::npos); });
    Keys("Enter");
    return Next();
  }
};

}  // namespace

TEST_F(CodePageListTest, StepsThroughTheListAndAroundItsEnd) {
  SetList("866,1251,437");
  EXPECT_EQ(Next(), 866);
  EXPECT_EQ(TranslateCursor, 4);
  EXPECT_EQ(Next(), 1251);
  EXPECT_EQ(Next(), 437);
  EXPECT_EQ(TranslateCursor, 0);
  EXPECT_EQ(Next(), 866);
}

TEST_F(CodePageListTest, AListOfOneGivesItAgain) {
  SetList("866");
  EXPECT_EQ(Next(), 866);
  EXPECT_EQ(Next(), 866);
}

TEST_F(CodePageListTest, BlanksBehindTheLastCommaAreItsEnd) {
  SetList("866, 1251 ,  ");
  EXPECT_EQ(Next(), 866);
  EXPECT_EQ(Next(), 1251);
  EXPECT_EQ(TranslateCursor, 0);
  EXPECT_EQ(Next(), 866);
}

TEST_F(CodePageListTest, WhatIsNoNumberIsTheUsualPage) {
  SetList("866,,abc,1251");
  EXPECT_EQ(Next(), 866);
  EXPECT_EQ(Next(), 0);
  EXPECT_EQ(Next(), 0);
  EXPECT_EQ(Next(), 1251);
  SetList("");
  EXPECT_EQ(Next(), 0);
  EXPECT_EQ(TranslateCursor, 0);
}

TEST_F(CodePageListTest, TheUsualPageIsToldAsNone) {
  SetList("819,866");
  EXPECT_EQ(Next(), 0);
  EXPECT_EQ(Next(), 866);
  Options::TextCodePage = 866;
  EXPECT_EQ(Next(), 819);
  EXPECT_EQ(Next(), 0);
}

TEST_F(CodePageListTest, AnImpossiblePageIsReportedAndIsTheUsualOne) {
  SetList("31999,866,-5,99999999999999999999,1200,866");
  EXPECT_EQ(NextIsInvalid(), 0);
  EXPECT_EQ(Next(), 866);
  EXPECT_EQ(NextIsInvalid(), 0);
  EXPECT_EQ(NextIsInvalid(), 0);
  EXPECT_EQ(NextIsInvalid(), 0);  // one of two bytes a character
  EXPECT_EQ(Next(), 866);
}

// The settings may bring a shorter list.
TEST_F(CodePageListTest, ACursorBehindTheListGoesBackToItsStart) {
  SetList("866");
  TranslateCursor = 100;
  EXPECT_EQ(Next(), 0);
  EXPECT_EQ(Next(), 866);
}

TEST_F(CodePageListTest, AStepGivesThePageToGoOnWith) {
  SetList("866,819,1251");
  EXPECT_EQ(StepCodePage(), 866);
  EXPECT_EQ(LastCodePage, 866);
  EXPECT_EQ(StepCodePage(), 819);
  EXPECT_EQ(LastCodePage, 0);
  EXPECT_EQ(StepCodePage(), 1251);
}

// ---- the dialog

TEST_F(CodePageListTest, TheDialogHasItsThingsInTheirPlaces) {
  SetList("866,1251");
  Then([this] {
    EXPECT_TRUE(Text(24, 6, 32) == "╔═══ Code Page Translation ════╗");
    EXPECT_TRUE(Text(24, 10, 32).EndsWith("╝"));
    EXPECT_TRUE(Text(kX, kY + 1, 30) == " Code Page List: 866,1251    ↓");
    EXPECT_EQ(Attribute(kX + 17, kY + 1), 0x30);
    EXPECT_EQ(Attribute(kX + 28, kY + 1), 0x30);
  });
  Keys("Esc");
  EXPECT_EQ(CodePageDialog(), -1);
}

TEST_F(CodePageListTest, EnterStoresTheListAndBeginsIt) {
  SetList("866,1251");
  EXPECT_EQ(Next(), 866);
  Keys("'437,866' Enter");
  EXPECT_EQ(CodePageDialog(), 0);
  EXPECT_STREQ(Options::TranslateCP.Text(), "437,866");
  EXPECT_EQ(TranslateCursor, 0);
  EXPECT_EQ(DialogHistories[kHistoryCodePages].Count(), 1);
}

TEST_F(CodePageListTest, EscLeavesListAndCursor) {
  SetList("866,1251");
  EXPECT_EQ(Next(), 866);
  const auto before = Snapshot();
  Keys("'437' Esc");
  EXPECT_EQ(CodePageDialog(), -1);
  EXPECT_STREQ(Options::TranslateCP.Text(), "866,1251");
  EXPECT_EQ(TranslateCursor, 4);
  EXPECT_EQ(DialogHistories[kHistoryCodePages].Count(), 0);
  EXPECT_EQ(ChangesSince(before), "");
}
