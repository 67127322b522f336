// The panels' windows over the console text, without the rest of the program.
#include "shell/screen.h"

#include "config/values/options.h"
#include "shell/clock.h"
#include "support/console_fixture.h"
#include "support/hand_made_panels.h"

namespace {

// Two panels of ten rows, and text in every row of the console.
class ScreenTest : public ConsoleFixture, protected HandMadePanels {
 protected:
  ScreenTest() {
    SetSize(38, 10);
    Add(L"left entry");
    for (int y = 0; y < kRows; ++y)
      Console->PutString(0, y, Westring::Replicate(L'a' + y, kColumns).Text(), 0x07);
    text = Snapshot();
  }

  ~ScreenTest() override {
    RemoveClock();
    for (TPanel& p : panels) p.window.reset();
    Options::Clock = false;
  }

  ScreenText RowText(int y) const { return ConsoleFixture::Row(y); }

  void MakeWindows() {
    for (int side = 0; side < 2; ++side) MakePanelWindow(panels[side], side);
  }

  std::unique_ptr<Cell[]> text;
};

TEST_F(ScreenTest, WithoutPanelsTheConsoleTextComesIntoViewAndTheClockIsGone) {
  MakeWindows();
  Options::Clock = true;
  ShowClock();
  ASSERT_NE(ChangesSince(text), "");
  ShowPanels(false);
  EXPECT_EQ(ChangesSince(text), "");
}

TEST_F(ScreenTest, ThePanelsComeBackCellByCell) {
  MakeWindows();
  const auto panelsOnScreen = Snapshot();
  Options::Clock = true;
  ShowClock();
  ShowPanels(false);
  EXPECT_FALSE(ShowPanels(true));
  EXPECT_EQ(ChangesSince(panelsOnScreen), "");
  EXPECT_FALSE(ShowPanels(true));
  EXPECT_EQ(ChangesSince(panelsOnScreen), "");
}

TEST_F(ScreenTest, ConsoleTextWrittenMeanwhileStandsUnderThePanels) {
  MakeWindows();
  const auto panelsOnScreen = Snapshot();
  ShowPanels(false);
  Console->PutString(0, 3, L"written by a command", 0x07);
  ShowPanels(true);
  EXPECT_EQ(ChangesSince(panelsOnScreen), "");
  ShowPanels(false);
  EXPECT_TRUE(RowText(3).StartsWith("written by a command"));
}

TEST_F(ScreenTest, APanelThatIsSwitchedOffStaysOff) {
  MakeWindows();
  HidePanel(panels[1]);
  const auto leftAlone = Snapshot();
  ShowPanels(false);
  ShowPanels(true);
  EXPECT_EQ(ChangesSince(leftAlone), "");
}

TEST_F(ScreenTest, AStalePanelIsPaintedAnew) {
  MakeWindows();
  ShowPanels(false);
  panel.redrawPending = true;
  EXPECT_TRUE(ShowPanels(true));
  EXPECT_FALSE(panel.redrawPending);
  EXPECT_TRUE(Text(1, 1, 13) == "left entry   ");
}

TEST_F(ScreenTest, LeavingItBlanksTheLastTwoRowsAndShowsTheCursorThere) {
  Options::Colours[kColourCommandLine] = 0x1A;
  Console->SetCursorSize(0);
  LeaveScreen();
  for (int y = kRows - 2; y < kRows; ++y) {
    EXPECT_EQ(RowText(y).Trimmed(), "");
    EXPECT_EQ(Attribute(0, y), 0x1A);
    EXPECT_EQ(Attribute(kColumns - 1, y), 0x1A);
  }
  EXPECT_TRUE(RowText(kRows - 3).StartsWith("wwww"));
  EXPECT_EQ(Attribute(0, kRows - 3), 0x07);
  int x = -1, y = -1;
  Console->GetCursor(x, y);
  EXPECT_EQ(x, 0);
  EXPECT_EQ(y, kRows - 1);
  EXPECT_EQ(Console->CursorSize(), 15);
}

}  // namespace
