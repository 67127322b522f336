// Moving in a list by pages and columns.
#include "shell/panel_commands.h"
#include "unit/shell/shell_fixture.h"

namespace {

class ListMoves : public ShellFixture {
 protected:
  // topIndex and cursorRow.
  using Position = std::pair<int, int>;
  Position At() const { return {panel.topIndex, panel.cursorRow}; }
  Position After(int (*move)(Shell&)) {
    TakeCurrent();
    move(shell);
    return At();
  }
};

}  // namespace

TEST_F(ListMoves, PageDownShowsTheNextPageWithTheCursorInItsFirstSlot) {
  SetList(kStyleFull, 5, 20);
  Place(0, 3);
  EXPECT_EQ(After(PageDown), Position(5, 0));
  EXPECT_EQ(After(PageDown), Position(10, 0));
}

TEST_F(ListMoves, TheLastPageIsAFullOne) {
  SetList(kStyleFull, 5, 13);
  Place(5, 0);
  EXPECT_EQ(After(PageDown), Position(8, 0));
  Place(5, 4);
  EXPECT_EQ(After(PageDown), Position(8, 1));  // still on its entry
}

TEST_F(ListMoves, PageDownOnTheLastPageGoesToTheLastEntry) {
  SetList(kStyleFull, 5, 13);
  Place(8, 1);
  EXPECT_EQ(After(PageDown), Position(8, 4));
  EXPECT_EQ(After(PageDown), Position(8, 4));
}

TEST_F(ListMoves, AListThatJustFillsThePanelHasNoNextPage) {
  SetList(kStyleFull, 5, 5);
  EXPECT_EQ(After(PageDown), Position(0, 4));
  SetList(kStyleFull, 5, 6);
  EXPECT_EQ(After(PageDown), Position(1, 0));
}

TEST_F(ListMoves, PageUpShowsThePageBeforeWithTheCursorInItsLastSlot) {
  SetList(kStyleFull, 5, 20);
  Place(12, 2);
  EXPECT_EQ(After(PageUp), Position(7, 4));
  EXPECT_EQ(After(PageUp), Position(2, 4));
}

TEST_F(ListMoves, PageUpStopsAtTheFirstPage) {
  SetList(kStyleFull, 5, 20);
  Place(2, 0);
  EXPECT_EQ(After(PageUp), Position(0, 2));  // still on its entry
  EXPECT_EQ(After(PageUp), Position(0, 0));
  EXPECT_EQ(After(PageUp), Position(0, 0));
}

TEST_F(ListMoves, PagesOfBriefCountAllThreeColumns) {
  SetList(kStyleBrief, 5, 40);
  Place(0, 7);
  EXPECT_EQ(After(PageDown), Position(15, 0));
  EXPECT_EQ(After(PageDown), Position(25, 0));
  EXPECT_EQ(After(PageUp), Position(10, 14));
}

TEST_F(ListMoves, NoPageHoldsForAnEmptyHiddenOrInfoPanel) {
  EXPECT_EQ(After(PageDown), Position(0, 0));
  EXPECT_EQ(After(PageUp), Position(0, 0));
  SetList(kStyleFull, 5, 20);
  panel.visible = false;
  EXPECT_EQ(After(PageDown), Position(0, 0));
  panel.visible = true;
  panel.panelType = kPanelInfo;
  EXPECT_EQ(After(PageDown), Position(0, 0));
}

TEST_F(ListMoves, RightGoesAColumnFurtherWithinThePage) {
  SetList(kStyleBrief, 5, 40);
  Place(0, 2);
  EXPECT_EQ(After(GoRight), Position(0, 7));
  EXPECT_EQ(After(GoRight), Position(0, 12));
}

TEST_F(ListMoves, RightInTheLastColumnScrollsByOne) {
  SetList(kStyleBrief, 5, 40);
  Place(0, 12);
  EXPECT_EQ(After(GoRight), Position(5, 12));
}

TEST_F(ListMoves, RightNearTheEndGoesToTheLastEntry) {
  SetList(kStyleBrief, 5, 18);
  Place(3, 12);
  EXPECT_EQ(After(GoRight), Position(3, 14));
  SetList(kStyleBrief, 5, 8);
  Place(0, 4);
  EXPECT_EQ(After(GoRight), Position(0, 7));
}

TEST_F(ListMoves, LeftInTheFirstColumnScrollsByOne) {
  SetList(kStyleBrief, 5, 40);
  Place(10, 2);
  EXPECT_EQ(After(GoLeft), Position(5, 2));
  Place(10, 7);
  EXPECT_EQ(After(GoLeft), Position(10, 2));
}

TEST_F(ListMoves, LeftNearTheStartGoesToTheFirstEntry) {
  SetList(kStyleBrief, 5, 40);
  Place(0, 3);
  EXPECT_EQ(After(GoLeft), Position(0, 0));
  Place(3, 1);
  EXPECT_EQ(After(GoLeft), Position(0, 0));
}

TEST_F(ListMoves, BriefWideMovesByColumnsToo) {
  SetList(kStyleBriefWide, 5, 40);
  EXPECT_EQ(After(GoRight), Position(0, 5));
  EXPECT_EQ(After(GoRight), Position(5, 5));
  EXPECT_EQ(After(GoLeft), Position(5, 0));
  EXPECT_EQ(After(GoLeft), Position(0, 0));
}

TEST_F(ListMoves, OtherStylesMoveOnTheCommandLine) {
  for (int style : {kStyleFull, kStyleWide, kStyleUnix}) {
    SetList(style, 5, 40);
    SetLine(L"a|b");
    EXPECT_EQ(After(GoRight), Position(0, 0));
    EXPECT_EQ(Line(), L"ab|");
    GoLeft(shell);
    EXPECT_EQ(Line(), L"a|b");
  }
}

TEST_F(ListMoves, MovingByAColumnEndsAQuickSearch) {
  SetList(kStyleBrief, 5, 40);
  for (auto move : {GoLeft, GoRight}) {
    CopyText(panel.quickSearch, L"f0");
    move(shell);
    EXPECT_STREQ(panel.quickSearch, L"");
  }
}

TEST_F(ListMoves, HomeAndEndGoToTheEndsOfTheList) {
  SetList(kStyleFull, 5, 20);
  Place(4, 2);
  EXPECT_EQ(After(GoLast), Position(15, 4));
  EXPECT_EQ(After(GoFirst), Position(0, 0));
  SetList(kStyleFull, 5, 0);
  EXPECT_EQ(After(GoLast), Position(0, 0));
}

TEST_F(ListMoves, TaggedEntriesAreFoundInBothDirections) {
  SetList(kStyleFull, 5, 20);
  for (int i : {3, 11}) panel.entries[i]->tagged = 1;
  EXPECT_EQ(After(NextTagged), Position(0, 3));
  EXPECT_EQ(After(NextTagged), Position(7, 4));
  EXPECT_EQ(After(NextTagged), Position(7, 4));
  EXPECT_EQ(After(PreviousTagged), Position(3, 0));
  EXPECT_EQ(After(PreviousTagged), Position(3, 0));
}

TEST_F(ListMoves, InATreeTheDirectoriesBesideAreFoundInstead) {
  SetTree();
  EXPECT_EQ(After(NextTagged), Position(0, 0));  // the root stands alone
  Place(0, 1);
  EXPECT_EQ(After(NextTagged), Position(0, 3));  // past what is below /a
  EXPECT_EQ(After(NextTagged), Position(0, 4));
  EXPECT_EQ(After(NextTagged), Position(0, 4));
  EXPECT_EQ(After(PreviousTagged), Position(0, 3));
  Place(0, 2);
  EXPECT_EQ(After(NextTagged), Position(0, 2));  // /c is above /a/b
  EXPECT_EQ(After(PreviousTagged), Position(0, 2));
}

TEST_F(ListMoves, InsertTagsAndGoesDown) {
  SetList(kStyleFull, 5, 3);
  EXPECT_EQ(After(TagAndGoDown), Position(0, 1));
  EXPECT_TRUE(panel.entries[0]->tagged);
  EXPECT_EQ(panel.taggedCount, 1);
  Place(0, 2);
  EXPECT_EQ(After(TagAndGoDown), Position(0, 2));
  EXPECT_EQ(panel.taggedCount, 2);
  EXPECT_EQ(After(TagAndGoDown), Position(0, 2));
  EXPECT_EQ(panel.taggedCount, 1);
}
