// Windows on a real console: what they cover, draw and give back.
#include "dialogs/win.h"

#include "config/values/options.h"
#include "support/console_fixture.h"

namespace {

class WinTest : public ConsoleFixture {
 protected:
  WinTest() {
    Options::Shadows = true;
    for (int y = 0; y < kRows; ++y) {
      Console->PutString(0, y, Westring::Replicate(L'a' + y, kColumns).Text(), 0x1E);
    }
    before = Snapshot();
  }

  std::unique_ptr<Cell[]> before;
};

// ---- life ------------------------------------------------------------------

TEST_F(WinTest, AFrameSurroundsABlankInside) {
  Win win(10, 5, 14, 7, 0x17, 0x1F);
  EXPECT_EQ(Text(9, 5, 7), "f\u2554\u2550\u2550\u2550\u2557f");
  EXPECT_EQ(Text(9, 6, 6), "g\u2551   \u2551");
  EXPECT_EQ(Text(9, 7, 6), "h\u255A\u2550\u2550\u2550\u255D");
  EXPECT_EQ(Attribute(10, 5), 0x1F);
  EXPECT_EQ(Attribute(14, 7), 0x1F);
  EXPECT_EQ(Attribute(11, 6), 0x17);
  EXPECT_EQ(win.OriginX(), 11);
  EXPECT_EQ(win.OriginY(), 6);
  EXPECT_EQ(win.InnerWidth(), 3);
  EXPECT_EQ(win.InnerHeight(), 1);
}

TEST_F(WinTest, WithoutAFrameAllOfItIsInsideAndThereIsNoShadow) {
  Win win(10, 5, 14, 7, 0x17);
  EXPECT_EQ(Text(9, 5, 7), "f     f");
  EXPECT_EQ(win.OriginX(), 10);
  EXPECT_EQ(win.InnerWidth(), 5);
  EXPECT_EQ(win.InnerHeight(), 3);
  EXPECT_FALSE(win.HasShadow());
  EXPECT_EQ(Attribute(15, 6), 0x1E);
}

TEST_F(WinTest, ANegativeAttributeLeavesTheInsideAlone) {
  Win win(10, 5, 14, 7, -1, 0x1F);
  EXPECT_EQ(Text(10, 6, 5), "\u2551ggg\u2551");
  EXPECT_EQ(Attribute(11, 6), 0x1E);
  EXPECT_EQ(win.Attribute(), 0);
}

TEST_F(WinTest, AShadowFallsOnTheRowBelowAndTwoColumns) {
  Win win(10, 5, 14, 7, 0x17, 0x1F);
  EXPECT_TRUE(win.HasShadow());
  EXPECT_EQ(Attribute(11, 8), 0x1E);
  for (int x = 12; x <= 16; ++x) EXPECT_EQ(Attribute(x, 8), 0x06) << x;
  EXPECT_EQ(Attribute(17, 8), 0x1E);
  EXPECT_EQ(Attribute(15, 5), 0x1E);
  for (int y = 6; y <= 7; ++y) EXPECT_EQ(Attribute(15, y), 0x06) << y;
  for (int y = 6; y <= 7; ++y) EXPECT_EQ(Attribute(16, y), 0x06) << y;
  EXPECT_EQ(Attribute(17, 6), 0x1E);
  EXPECT_EQ(Text(12, 8, 5), "iiiii");
  EXPECT_EQ(Text(15, 6, 2), "gg");
}

TEST_F(WinTest, NoShadowIsThrownWhereThereIsNoRoomOrNoWishForOne) {
  EXPECT_FALSE(Win(70, 5, 79, 10, 0x17, 0x1F).HasShadow());
  EXPECT_FALSE(Win(70, 5, 78, 10, 0x17, 0x1F).HasShadow());
  EXPECT_TRUE(Win(70, 5, 77, 10, 0x17, 0x1F).HasShadow());
  EXPECT_FALSE(Win(10, 5, 20, 24, 0x17, 0x1F).HasShadow());
  EXPECT_TRUE(Win(10, 5, 20, 23, 0x17, 0x1F).HasShadow());
  EXPECT_FALSE(Win(10, 5, 20, 10, 0x17, 0x1F, true).HasShadow());
  Options::Shadows = false;
  EXPECT_FALSE(Win(10, 5, 20, 10, 0x17, 0x1F).HasShadow());
  EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(WinTest, AWindowOfFiveRowsAtMinusThreeStandsInRowsSixToTen) {
  const Win win(-1, -3, 40, 5, 0x17, 0x1F);
  EXPECT_EQ(win.Top(), 6);
  EXPECT_EQ(win.Bottom(), 10);
  EXPECT_EQ(win.Left(), 20);
  EXPECT_EQ(win.Right(), 59);
}

TEST_F(WinTest, ItsEndPutsBackWhatItAndItsShadowCovered) {
  { Win win(-1, -2, 30, 9, 0x17, 0x1F); }
  EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(WinTest, WindowsThatAreTooLargeOrPartlyOffTheScreenLeaveNoTrace) {
  { Win win(-1, -3, 200, 60, 0x17, 0x1F); }
  { Win win(70, 20, 95, 40, 0x17, 0x1F); }
  { Win win(90, 30, 95, 40, 0x17, 0x1F); }
  { Win win(5, 5, 4, 4, 0x17, 0x1F); }
  { Win win(-1, -1, 0, 0, 0x17, 0x1F); }
  EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(WinTest, WhatLeavesTheScreenIsCutAtItsEdges) {
  Win win(60, 20, 100, 40, 0x17, 0x1F);
  win.Print(300, 2, L"far right");
  win.Print(0, 100, L"far below");
  win.Print(-200, 0, L"far left");
  win.PrintHighlighted(100, 100, "text", "te", 0x17);
  win.GotoXY(70, 70);
  win.ClearToEnd(0x17);
  EXPECT_EQ(Text(55, 21, 25), "vvvvv\u2551                   ");
  win.Print(0, 0, Westring::Replicate(L'x', 500));
  EXPECT_EQ(Text(60, 21, 20), "\u2551xxxxxxxxxxxxxxxxxxx");
  win.PrintWrapped(40, 1, L"starts behind the edge and goes on below the end of the screen and the window");
  EXPECT_EQ(Text(60, 23, 20), "\u2551starts behind the e");
  win.Scroll(0, 0, 300, 300, 2);
  EXPECT_EQ(Text(60, 21, 20), "\u2551starts behind the e");
  win.Scroll(0, 0, 300, 300, -300);
  EXPECT_EQ(Text(60, 21, 20), "\u2551                   ");
  EXPECT_EQ(Row(19), std::string(kColumns, 't'));
}

TEST_F(WinTest, HidingGivesTheScreenBackAndShowingTheContents) {
  Win win(10, 5, 30, 10, 0x17, 0x1F);
  win.Print(0, 0, L"contents");
  const auto shown = Snapshot();
  win.SetHidden(true);
  EXPECT_TRUE(win.IsHidden());
  EXPECT_EQ(ChangesSince(before), "");
  win.SetHidden(true);
  EXPECT_EQ(ChangesSince(before), "");
  win.SetHidden(false);
  EXPECT_EQ(ChangesSince(shown), "");
}

TEST_F(WinTest, ShownAgainItCoversWhatIsThereThen) {
  {
    Win win(10, 5, 30, 10, 0x17, 0x1F);
    win.SetHidden(true);
    Console->PutString(12, 7, L"new", 0x1E);
    before = Snapshot();
    win.SetHidden(false);
  }
  EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(WinTest, TheEndOfAHiddenWindowLeavesTheScreenAlone) {
  {
    Win win(10, 5, 30, 10, 0x17, 0x1F);
    win.SetHidden(true);
    Console->PutString(12, 7, L"new", 0x1E);
    before = Snapshot();
  }
  EXPECT_EQ(ChangesSince(before), "");
}

// ---- writing: a window with a frame whose inside is 20 by 6 at (11, 6) -----

class WritingTest : public WinTest {
 protected:
  WritingTest() : win(10, 5, 31, 12, 0x17, 0x1F) {}
  Win win;
};

TEST_F(WritingTest, ATextLeavesTheCursorAtItsEnd) {
  win.Print(2, 1, L"one", 0x2F);
  win.Print(L"two");
  win.Print(L"three", 0x4F);
  EXPECT_EQ(Text(11, 7, 15), "  onetwothree  ");
  EXPECT_EQ(Attribute(13, 7), 0x2F);
  EXPECT_EQ(Attribute(16, 7), 0x17);
  EXPECT_EQ(Attribute(19, 7), 0x4F);
}

TEST_F(WritingTest, BytesAreOfTheConsolesCodePage) {
  win.PrintBytes(0, 0, "\x84 \xDB");
  win.Print(L"|");
  EXPECT_EQ(Text(11, 6, 4), "\u00E4 \u2588|");
}

TEST_F(WritingTest, ACentredTextHasTheSmallerRestOnItsLeft) {
  win.PrintCentred(0, L"abc");
  win.PrintCentred(1, L"abcd", 0x2F);
  win.PrintCentredBytes(2, "\x84", 0x2F);
  EXPECT_EQ(Text(11, 6, 20), "        abc         ");
  EXPECT_EQ(Text(11, 7, 20), "        abcd        ");
  EXPECT_EQ(Text(11, 8, 20), "         \u00E4          ");
  EXPECT_EQ(Attribute(19, 7), 0x2F);
}

TEST_F(WritingTest, CellsBringTheirOwnAttributes) {
  const Cell cells[] = {{'x', 0x21}, {'y', 0x43}, {0, 0}};
  win.PrintCells(1, 1, cells);
  EXPECT_EQ(Text(11, 7, 4), " xy ");
  EXPECT_EQ(Attribute(13, 7), 0x43);
  CellString line(L"full", 0x65);
  for (int i = line.Length(); i < CellString::kInlineCells; ++i) line.Append(L'.');
  win.PrintCellString(0, 2, line);
  EXPECT_EQ(Text(11, 8, 21), "full................\u2551");
}

TEST_F(WritingTest, WrappedTextGoesOnAtTheLeftOfTheNextRow) {
  win.PrintWrapped(5, 1, L"some words   that do not fit on a row");
  EXPECT_EQ(Text(11, 7, 20), "     some words     ");
  EXPECT_EQ(Text(11, 8, 20), "that do not fit on a");
  EXPECT_EQ(Text(11, 9, 20), "row                 ");
}

TEST_F(WritingTest, WrappedTextWithoutBlanksIsCutAtTheWidth) {
  win.PrintWrapped(0, 0, L"abcdefghijklmnopqrstuvwxyz");
  EXPECT_EQ(Text(11, 6, 20), "abcdefghijklmnopqrst");
  EXPECT_EQ(Text(11, 7, 20), "uvwxyz              ");
}

TEST_F(WritingTest, HighlightedLettersAreTheFirstOfTheirKindCapitalsFirst) {
  win.PrintHighlighted(1, 1, "sort Sizes", "sz", 0x17);
  EXPECT_EQ(Text(12, 7, 10), "sort Sizes");
  for (int i = 0; i < 10; ++i) EXPECT_EQ(Attribute(12 + i, 7), i == 5 || i == 7 ? 0x1E : 0x17) << i;
}

TEST_F(WritingTest, GotoMovesBothCursors) {
  win.GotoXY(3, 2);
  int x = 0, y = 0;
  Console->GetCursor(x, y);
  EXPECT_EQ(x, 14);
  EXPECT_EQ(y, 8);
  win.Print(L"here");
  EXPECT_EQ(Text(14, 8, 4), "here");
}

TEST_F(WritingTest, ScrollingMovesUpForPositiveAndDownForNegativeLines) {
  for (int y = 0; y < 4; ++y) win.Print(0, y, Westring::Replicate(L'0' + y, 4), 0x4F);
  win.Scroll(0, 0, 4, 4, 1);
  EXPECT_EQ(Text(11, 6, 4), "1111");
  EXPECT_EQ(Text(11, 8, 4), "3333");
  EXPECT_EQ(Text(11, 9, 4), "    ");
  EXPECT_EQ(Attribute(11, 9), 0x17);
  win.Scroll(0, 0, 4, 4, -2);
  EXPECT_EQ(Text(11, 6, 4), "    ");
  EXPECT_EQ(Text(11, 8, 4), "1111");
  EXPECT_EQ(Text(11, 9, 4), "2222");
  win.Scroll(0, 0, 4, 4, 0);
  EXPECT_EQ(Text(11, 9, 4), "2222");
}

TEST_F(WritingTest, ClearingKeepsTheMarginsAndTheFrame) {
  for (int y = 0; y < 6; ++y) win.Print(0, y, Westring::Replicate(L'0' + y, 20), 0x4F);
  win.Clear(1, 2);
  EXPECT_EQ(Text(11, 6, 20), std::string(20, '0'));
  EXPECT_EQ(Text(10, 7, 22), "\u2551                    \u2551");
  EXPECT_EQ(Text(11, 9, 20), std::string(20, ' '));
  EXPECT_EQ(Text(11, 10, 20), std::string(20, '4'));
  EXPECT_EQ(Attribute(11, 7), 0x17);
  win.Clear(4, 4);
  EXPECT_EQ(Text(11, 10, 20), std::string(20, '4'));
  win.Clear();
  EXPECT_EQ(Text(10, 6, 22), "\u2551                    \u2551");
  EXPECT_EQ(Text(10, 11, 22), "\u2551                    \u2551");
  EXPECT_EQ(Text(10, 12, 2), "\u255A\u2550");
}

TEST_F(WritingTest, ClearToEndGoesToTheFrame) {
  win.Print(0, 0, Westring::Replicate(L'x', 20));
  win.GotoXY(5, 0);
  win.ClearToEnd(0x2F);
  EXPECT_EQ(Text(11, 6, 21), "xxxxx               \u2551");
  EXPECT_EQ(Attribute(16, 6), 0x2F);
}

TEST_F(WinTest, ClearToEndKeepsTheLastCellWithoutAFrame) {
  Win win(10, 5, 19, 5, 0x17);
  win.Print(0, 0, L"xxxxxxxxxx");
  win.GotoXY(5, 0);
  win.ClearToEnd(0x17);
  EXPECT_EQ(Text(10, 5, 10), "xxxxx    x");
  win.GotoXY(9, 0);
  win.ClearToEnd(0x17);
  EXPECT_EQ(Text(10, 5, 10), "xxxxx    x");
}

}  // namespace
