// What a worker tells a list while its dialog runs.
#include <atomic>
#include <iterator>
#include <limits>
#include <thread>

#include "support/list_fixture.h"

namespace {

using Rows = std::vector<int>;

DialogEvent LengthIs(int count) { return {kDialogListLength, count}; }
const DialogEvent kRepaint{kDialogListRepaint};

TEST_F(ListTest, GrowingBehindAFullViewPaintsNothing) {
  Fill(5);
  AddList(10, 5);
  Fill(20);
  Then([&] {
    list->TakeDrawn();
    EXPECT_EQ(dialog->SendEvent(0, LengthIs(25)), 1);
  });
  Keys("F5");
  Then([&] {
    EXPECT_EQ(list->TakeDrawn(), Rows{0});  // the cursor's, as at every turn
    EXPECT_EQ(list->Count(), 25);
  });
  Keys("End");
  Then([&] { EXPECT_EQ(selection, 24); });
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListTest, GrowingInViewPaintsAllAtTheNextTurn) {
  Fill(3);
  AddList(10, 5);
  Fill(1);
  Then([&] {
    list->TakeDrawn();
    dialog->SendEvent(0, LengthIs(4));
    EXPECT_EQ(list->TakeDrawn(), Rows{});
  });
  Keys("F5");
  Then([&] {
    EXPECT_EQ(list->TakeDrawn(), (Rows{0, 1, 2, 3, 4}));
    EXPECT_EQ(ListRow(3), "item 0    ");
  });
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListTest, ShrinkingTakesTheCursorToTheLastItem) {
  Fill(100);
  selection = 57;
  AddList(10, 5);
  Then([&] { dialog->SendEvent(0, LengthIs(20)); });
  Keys("F5");
  Then([&] {
    EXPECT_EQ(selection, 19);
    EXPECT_EQ(BarRow(), 0);
    EXPECT_EQ(ListRow(0), "item 19   ");
    EXPECT_EQ(ListRow(1), "          ");
  });
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListTest, AKeyRightAfterShrinkingMovesFromTheLastItem) {
  Fill(100);
  for (const char* key : {"Down", "PgDn", "End", "x"}) {
    selection = 57;
    AddList(10, 5);
    Then([&] { dialog->SendEvent(0, LengthIs(20)); });
    Keys(key);
    Then([&, key] { EXPECT_EQ(selection, 19) << key; });
    Keys("Esc");
    dialog->Run();
    dialog = std::make_unique<Dialog>(-1, -3, 40, 10, kColour);
  }
}

TEST_F(ListTest, EnterRightAfterShrinkingLeavesAnItemThatIsThere) {
  Fill(100);
  selection = 57;
  AddList(10, 5);
  Then([&] { dialog->SendEvent(0, LengthIs(20)); });
  Keys("Enter");
  EXPECT_EQ(dialog->Run(), kEnter);
  EXPECT_EQ(selection, 19);
}

TEST_F(ListTest, AListThatBecomesEmptyHasNoSelection) {
  Fill(10);
  selection = 7;
  AddList(10, 5);
  Then([&] { dialog->SendEvent(0, LengthIs(0)); });
  EveryKeyThenEscape();
  dialog->Run();
  EXPECT_EQ(selection, -1);
  for (int row = 0; row < 5; ++row) EXPECT_EQ(ListRow(row), "          ");
}

TEST_F(ListTest, ALengthThatCannotBeIsBounded) {
  Fill(3);
  AddList(10, 5);
  for (const int length : {-1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
    dialog->SendEvent(0, LengthIs(length));
    EXPECT_GE(list->Count(), 0);
    Keys("End PgDn Down Up PgUp End Esc");
    EXPECT_EQ(dialog->Run(), kEscape);
  }
  EXPECT_EQ(selection, list->Count() - 1);
}

TEST_F(ListTest, AnEventForNoElementIsNotUsed) {
  Fill(3);
  AddList(10, 5);
  EXPECT_EQ(dialog->SendEvent(1, LengthIs(9)), 0);
  EXPECT_EQ(dialog->SendEvent(-1, LengthIs(9)), 0);
  EXPECT_EQ(list->Count(), 3);
}

TEST_F(ListTest, ARepaintPaintsAllAtTheNextTurn) {
  Fill(5);
  AddList(10, 5);
  Then([&] {
    *items.Peek(3) = L"changed";
    list->TakeDrawn();
    EXPECT_EQ(dialog->SendEvent(0, kRepaint), 1);
    EXPECT_EQ(list->TakeDrawn(), Rows{});
  });
  Keys("F5");
  Then([&] {
    EXPECT_EQ(list->TakeDrawn(), (Rows{0, 1, 2, 3, 4}));
    EXPECT_EQ(ListRow(3), "changed   ");
  });
  Keys("Esc");
  dialog->Run();
}

// A dialog that looks after its worker runs with a time limit, again and again.
TEST_F(ListTest, EachTimeLimitedRunDrawsWhatHasChangedBehindTheFocusToo) {
  Fill(3);
  AddProbe(true);
  AddList(10, 5);
  Silence();
  EXPECT_EQ(dialog->Run(1), 0);
  *items.Peek(2) = L"changed";
  dialog->SendEvent(1, kRepaint);
  Silence();
  EXPECT_EQ(dialog->Run(1), 0);
  EXPECT_EQ(ListRow(2), "changed   ");
  Fill(1);
  dialog->SendEvent(1, LengthIs(4));
  Silence();
  EXPECT_EQ(dialog->Run(1), 0);
  EXPECT_EQ(ListRow(3), "item 0    ");
  EXPECT_EQ(BarRow(), -1);
}

// Each event comes while the key of its number is at work or right after it.
// The counter orders nothing, so that the thread sanitizer sees every access
// that only luck keeps apart.
TEST_F(ListTest, AThousandEventsAndAThousandKeysDoNotGetInEachOthersWay) {
  constexpr int kMany = 1000;
  constexpr const char* kTyped[] = {"Down", "Down", "PgDn", "Up", "x"};
  Fill(kMany);
  AddList(10, 5);
  dialog->SendEvent(0, LengthIs(1));
  const auto application = std::this_thread::get_id();
  bool drawnElsewhere = false;
  list->whenDrawn = [&](int) { drawnElsewhere |= std::this_thread::get_id() != application; };
  std::atomic<int> keys = 0;
  std::thread worker;
  Then([&] {
    worker = std::thread([&] {
      for (int i = 1; i <= kMany; ++i) {
        while (keys.load(std::memory_order_relaxed) < i) std::this_thread::yield();
        dialog->SendEvent(0, i % 10 == 9 ? kRepaint : LengthIs(i));
      }
    });
  });
  for (int i = 0; i < kMany; ++i) {
    Then([&] { keys.fetch_add(1, std::memory_order_relaxed); });
    Keys(kTyped[i % std::size(kTyped)]);
  }
  Then([&] { worker.join(); });
  Keys("End");
  Then([&] { EXPECT_EQ(ListRow(4), "item 999  "); });
  Keys("Esc");
  EXPECT_EQ(dialog->Run(), kEscape);
  EXPECT_EQ(list->Count(), kMany);
  EXPECT_EQ(selection, kMany - 1);
  EXPECT_FALSE(drawnElsewhere);
}

}  // namespace
