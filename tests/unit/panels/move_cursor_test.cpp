// Where the cursor and the list's top go. The panels have no window here.
#include "panels/draw_panel.h"
#include "support/hand_made_panels.h"

namespace {

// Twenty entries of which five are in view.
class MoveCursorTest : public PanelRecords {
 protected:
  MoveCursorTest() { AddMany(20); }

  void At(int top, int row) {
    panel.topIndex = top;
    panel.cursorRow = row;
  }
  void Expect(int top, int row) {
    EXPECT_EQ(panel.topIndex, top);
    EXPECT_EQ(panel.cursorRow, row);
  }
  void Move(int delta) { MoveCursor(panel, delta); }
};

}  // namespace

TEST_F(MoveCursorTest, InsideTheWindowTheTopStays) {
  Move(4);
  Expect(0, 4);
  Move(-3);
  Expect(0, 1);
}

TEST_F(MoveCursorTest, OneBeyondTheWindowScrollsByOne) {
  At(0, 4);
  Move(1);
  Expect(1, 4);
  At(3, 0);
  Move(-1);
  Expect(2, 0);
}

TEST_F(MoveCursorTest, FartherScrollsSoThatTheCursorIsAtTheEdge) {
  At(0, 3);
  Move(7);
  Expect(6, 4);
  At(10, 2);
  Move(-6);
  Expect(6, 0);
}

TEST_F(MoveCursorTest, TheEndsOfTheListStopIt) {
  At(0, 3);
  Move(100);
  Expect(15, 4);
  Move(1);
  Expect(15, 4);
  Move(-100);
  Expect(0, 0);
  Move(-1);
  Expect(0, 0);
}

TEST_F(MoveCursorTest, AnyDeltaIsSafe) {
  Move(INT32_MAX);
  Expect(15, 4);
  Move(INT32_MIN);
  Expect(0, 0);
  At(INT32_MAX - 5, 3);
  Move(1);
  EXPECT_EQ(panel.CurrentIndex(), 19);
  panel.visibleEntries = 0;
  Move(-1);
  EXPECT_EQ(panel.CurrentIndex(), 18);
}

TEST_F(MoveCursorTest, BriefWalksDownItsColumnsBeforeItScrolls) {
  SetStyle(kStyleBrief);
  At(0, 4);
  Move(1);
  Expect(0, 5);
  At(0, 14);
  Move(1);
  Expect(1, 14);
  Move(5);
  Expect(5, 14);
}

TEST_F(MoveCursorTest, EmptyListKeepsTheCursorAtItsTop) {
  panel.FreeEntries();
  Move(1);
  Expect(0, 0);
  Move(-1);
  Expect(0, 0);
}

TEST_F(MoveCursorTest, HiddenAndInfoPanelsStay) {
  panel.visible = false;
  Move(1);
  Expect(0, 0);
  panel.visible = true;
  panel.panelType = kPanelInfo;
  Move(1);
  Expect(0, 0);
}

TEST_F(MoveCursorTest, RedrawOfAHiddenPanelOnlyWorksOutWhatFits) {
  panel.visible = false;
  panel.redrawPending = true;
  panel.style = kStyleBrief;
  DrawPanel(panel);
  EXPECT_EQ(panel.visibleEntries, 15);
  EXPECT_TRUE(panel.redrawPending);
}
