// Looking back at what scrolled off the console text.
#include <gtest/gtest.h>

#include <string>

#include "config/values/colours.h"
#include "console/scrollback.h"
#include "session/main_screen.h"
#include "shell/scrollback_viewer.h"
#include "support/console_fixture.h"

namespace {

// "row 0" and on have scrolled off; the screen itself holds what the test puts there.
class ScrollBackViewer : public ConsoleFixture {
 protected:
  ScrollBackViewer() {
    ScrollBack.Clear();
    Options::Colours[kColourCommandLine] = 0x07;
  }
  ~ScrollBackViewer() override { ScrollBack.Clear(); }

  void Fill(int count) {
    for (int i = 0; i < count; ++i) {
      const CellString row((L"row " + std::to_wstring(i)).c_str(), 0x07);
      ScrollBack.Append(row.Cells(), row.Length());
    }
  }
  std::string First() const { return Trimmed(0); }
  std::string Last() const { return Trimmed(kRows - 1); }

 private:
  std::string Trimmed(int y) const {
    std::string text = Row(y).String();
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
  }
};

constexpr int kOnScreen = 23;  // rows of console text, read with the rest

}  // namespace

TEST_F(ScrollBackViewer, OpensAtTheEndWithTheScreenItselfBehindTheRest) {
  Fill(100);
  Console->PutString(0, 22, L"the last line", 0x07);
  Then([&] {
    EXPECT_EQ(First(), "row 98");
    EXPECT_EQ(Last(), "the last line");
  });
  Keys("Esc");
  ShowScrollBack();
  EXPECT_EQ(ScrollBack.Count(), 100);
}

TEST_F(ScrollBackViewer, StepsByRowsAndStopsAtBothEnds) {
  Fill(100);
  const int end = 100 + kOnScreen - kRows;
  Keys("Down");
  Then([&] { EXPECT_EQ(First(), "row " + std::to_string(end)); });
  Keys("Up");
  Then([&] {
    EXPECT_EQ(First(), "row " + std::to_string(end - 1));
    EXPECT_EQ(Row(1).String().substr(0, 6), "row " + std::to_string(end));
  });
  Keys("Down");
  Then([&] { EXPECT_EQ(First(), "row " + std::to_string(end)); });
  Keys("Home");
  Then([&] {
    EXPECT_EQ(First(), "row 0");
    EXPECT_EQ(Last(), "row 24");
  });
  Keys("Up PgUp");
  Then([&] { EXPECT_EQ(First(), "row 0"); });
  Keys("Down");
  Then([&] {
    EXPECT_EQ(First(), "row 1");
    EXPECT_EQ(Last(), "row 25");
  });
  Keys("End");
  Then([&] { EXPECT_EQ(First(), "row " + std::to_string(end)); });
  Keys("Esc");
  ShowScrollBack();
}

TEST_F(ScrollBackViewer, APageLeavesTwoRowsOnTheScreen) {
  Fill(200);
  Keys("Home PgDn");
  Then([&] { EXPECT_EQ(First(), "row 23"); });
  Keys("PgDn PgUp");
  Then([&] { EXPECT_EQ(First(), "row 23"); });
  Keys("PgUp PgUp");
  Then([&] { EXPECT_EQ(First(), "row 0"); });
  Keys("End PgDn");
  Then([&] { EXPECT_EQ(First(), "row 198"); });
  Keys("Esc");
  ShowScrollBack();
}

TEST_F(ScrollBackViewer, AShortStoreStaysWhereItIsAndRowsPastItsEndAreBlank) {
  Fill(1);
  Console->PutString(0, 0, L"top of the screen", 0x07);
  Console->PutString(0, 23, L"command line", 0x07);
  Keys("Down Up PgDn PgUp Home End");
  Then([&] {
    EXPECT_EQ(First(), "row 0");
    EXPECT_EQ(Row(1).String().substr(0, 17), "top of the screen");
    EXPECT_EQ(Last(), "");
  });
  Keys("x F5 Esc");
  ShowScrollBack();
}

TEST_F(ScrollBackViewer, LeavesTheScreenAndTheSelectableRegionAsTheyWere) {
  Fill(50);
  Console->PutString(3, 4, L"text", 0x1E);
  Console->SetSelectableRegion(1, 2, 30, 4);
  const auto before = Snapshot();
  Then([] {
    CellRect region;
    Console->GetSelectableRegion(region);
    EXPECT_EQ(region, (CellRect{0, 0, kColumns - 1, kRows - 1}));
  });
  Keys("PgUp Esc");
  ShowScrollBack();
  EXPECT_EQ(ChangesSince(before), "");
  CellRect region;
  Console->GetSelectableRegion(region);
  EXPECT_EQ(region, (CellRect{1, 2, 30, 5}));
}

TEST_F(ScrollBackViewer, RowsOfAnotherWidthAreCutOrFilledWithBlanks) {
  const CellString wide(std::wstring(200, L'w').c_str(), 0x1E);
  ScrollBack.Append(wide.Cells(), wide.Length());
  Then([&] {
    EXPECT_EQ(First(), std::string(kColumns, 'w'));
    EXPECT_EQ(Attribute(kColumns - 1, 0), 0x1E);
    EXPECT_EQ(Attribute(0, kRows - 1), 0x07);
  });
  Keys("Esc");
  ShowScrollBack();
}

TEST(ScrollBackKey, TakesThePanelsOffAndBringsThemBack) {
  Session s({{"left/a", ""}});
  const std::string before = s.Screen();
  s.Keys("Ctrl-B");
  EXPECT_FALSE(IsShown(s, kLeftSide));
  s.Keys("Esc");
  EXPECT_EQ(s.Screen(), before);
}

TEST(ScrollBackKey, DoesNothingWithTheOptionOff) {
  Session s({}, {.settings = "ConsoleScrollback=off\n"});
  s.Keys("Ctrl-B");
  EXPECT_TRUE(IsShown(s, kLeftSide));
}
