// The mouse in lists.
#include <chrono>

#include "config/values/options.h"
#include "support/list_fixture.h"

namespace {

class ListMouseTest : public ListTest {
 protected:
  ListMouseTest() { Options::ScrollDelay = 0; }

  void ExpectItem(int item) {
    Then([this, item] { EXPECT_EQ(selection, item); });
  }

  // A release that comes while item is drawn for the first time.
  void ReleaseWhenDrawn(int item) {
    list->whenDrawn = [this, item](int index) {
      if (index != item) return;
      list->whenDrawn = nullptr;
      auto* release = new TEvent;
      release->type = kEventRelease;
      release->code = 1;
      Console->Events().Put(release);
    };
  }
};

TEST_F(ListMouseTest, EachEventOnARowPutsTheCursorThere) {
  Fill(8);
  AddList(10, 5);
  Mouse(kEventPress, 1, kX, kY + 2);
  ExpectItem(2);
  Mouse(kEventMotion, 1, kX + 9, kY + 3);
  ExpectItem(3);
  Mouse(kEventRelease, 1, kX, kY + 4);
  ExpectItem(4);
  Mouse(kEventDoubleClick, 1, kX, kY);
  EXPECT_EQ(dialog->Run(), 13);
  EXPECT_EQ(selection, 0);
}

TEST_F(ListMouseTest, AClickBelowTheLastItemTakesThatItem) {
  Fill(3);
  AddList(10, 6);
  Click(kX, kY + 4);
  Then([&] {
    EXPECT_EQ(selection, 2);
    EXPECT_EQ(BarRow(), 2);
  });
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListMouseTest, AnEventOnARowTakesTheFocus) {
  Fill(3);
  AddProbe(true);
  AddList(10, 3);
  for (const EventType type : {kEventPress, kEventMotion, kEventRelease}) {
    Mouse(type, 1, kX, kY + 1);
    Then([&] { EXPECT_EQ(dialog->Focus(), 1); });
    Keys("Tab");
  }
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListMouseTest, CellsBesideItAreNotItsOwn) {
  Fill(3);
  AddList(10, 3);
  Click(kX - 1, kY + 1);
  Click(kX + 10, kY + 1);
  Click(kX, kY + 4);
  Click(kX, kY - 2 + 8);
  ExpectItem(0);
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListMouseTest, ADoubleClickGivesTheListsOwnCode) {
  Fill(3);
  AddList(10, 3, 77);
  Mouse(kEventDoubleClick, 1, kX, kY + 1);
  EXPECT_EQ(dialog->Run(), 77);
  EXPECT_EQ(selection, 1);
}

TEST_F(ListMouseTest, ADoubleClickGivesTheDefaultWithoutOne) {
  Fill(3);
  AddList(10, 3);
  dialog->AddButton(2, 6, true, 'y', "_Yes");
  Mouse(kEventDoubleClick, 1, kX, kY + 1);
  EXPECT_EQ(dialog->Run(), 'y');
}

TEST_F(ListMouseTest, ADoubleClickBelowTheLastItemEndsNothing) {
  Fill(2);
  AddList(10, 4, 77);
  Mouse(kEventDoubleClick, 1, kX, kY + 2);
  ExpectItem(1);
  Keys("Esc");
  EXPECT_EQ(dialog->Run(), kEscape);
}

TEST_F(ListMouseTest, InAListOfAnyKeyTheReleaseOnAnItemAccepts) {
  Fill(2);
  AddList(10, 4, kListAnyKey);
  dialog->AddButton(2, 6, true, 'y', "_Yes");
  Click(kX, kY + 2);  // below the items
  ExpectItem(1);
  Mouse(kEventPress, 1, kX, kY);
  ExpectItem(0);
  Mouse(kEventRelease, 1, kX, kY);
  EXPECT_EQ(dialog->Run(), 'y');
}

// The release that belongs to the double click must not accept the next one.
TEST_F(ListMouseTest, InAListOfAnyKeyADoubleClickAcceptsOnce) {
  Fill(2);
  AddList(10, 4, kListAnyKey);
  dialog->AddButton(2, 6, true, 'y', "_Yes");
  Mouse(kEventDoubleClick, 1, kX, kY + 1);
  EXPECT_EQ(dialog->Run(), 'y');
  Mouse(kEventRelease, 1, kX, kY);
  ExpectItem(1);
  Keys("Esc");
  EXPECT_EQ(dialog->Run(), kEscape);
}

TEST_F(ListMouseTest, InOtherListsTheReleaseEndsNothing) {
  Fill(2);
  AddList(10, 4, 77);
  Click(kX, kY + 1);
  ExpectItem(1);
  Keys("Esc");
  EXPECT_EQ(dialog->Run(), kEscape);
}

TEST_F(ListMouseTest, APressUnderTheListScrollsToItsEnd) {
  Fill(30);
  AddList(10, 5);
  Mouse(kEventPress, 1, kX, kY + 5);
  Then([&] {
    EXPECT_EQ(selection, 29);
    EXPECT_EQ(ListRow(0), "item 25   ");
    EXPECT_EQ(BarRow(), 4);
  });
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListMouseTest, APressAboveTheListScrollsToItsStart) {
  Fill(30);
  selection = 29;
  AddList(10, 5);
  Mouse(kEventMotion, 1, kX, kY - 1);
  Then([&] {
    EXPECT_EQ(selection, 0);
    EXPECT_EQ(ListRow(4), "item 4    ");
    EXPECT_EQ(BarRow(), 0);
  });
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListMouseTest, UnderAShortListTheCursorGoesToItsLastItem) {
  Fill(3);
  AddList(10, 5);
  Mouse(kEventPress, 1, kX, kY + 5);
  ExpectItem(2);
  Mouse(kEventPress, 1, kX, kY - 1);
  ExpectItem(0);
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListMouseTest, ScrollingEndsWithTheNextEvent) {
  Fill(100);
  AddList(10, 5);
  ReleaseWhenDrawn(12);
  Mouse(kEventPress, 1, kX, kY + 5);
  Then([&] {
    EXPECT_EQ(selection, 12);
    EXPECT_EQ(ListRow(4), "item 12   ");
    EXPECT_EQ(BarRow(), 4);
  });
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListMouseTest, EachStepOfTheScrollingIsDrawn) {
  Fill(12);
  AddList(10, 5);
  std::vector<int> last;
  list->whenDrawn = [&](int index) {
    if (list->drawn.back() == 4 && (last.empty() || last.back() != index)) last.push_back(index);
  };
  Mouse(kEventPress, 1, kX, kY + 5);
  Keys("Esc");
  dialog->Run();
  EXPECT_EQ(last, (std::vector<int>{4, 5, 6, 7, 8, 9, 10, 11}));
}

TEST_F(ListMouseTest, TheDelayPassesBetweenTheStepsOfTheScrolling) {
  using std::chrono::steady_clock;
  Options::ScrollDelay = 20;
  Fill(8);
  AddList(10, 5);
  const auto start = steady_clock::now();
  Mouse(kEventPress, 1, kX, kY + 5);
  ExpectItem(7);
  Then([&] { EXPECT_GE(steady_clock::now() - start, std::chrono::milliseconds(60)); });
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListMouseTest, ALongDelayDoesNotHoldUpTheRelease) {
  Options::ScrollDelay = 1000000000;
  Fill(100);
  AddList(10, 5);
  ReleaseWhenDrawn(5);
  Mouse(kEventPress, 1, kX, kY + 5);
  ExpectItem(5);
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListMouseTest, AReleaseBesideTheListScrollsNothing) {
  Fill(30);
  AddList(10, 5);
  Mouse(kEventPress, 1, kX, kY + 3);
  Mouse(kEventRelease, 1, kX, kY + 5);
  ExpectItem(3);
  Keys("Esc");
  dialog->Run();
}

TEST_F(ListMouseTest, TheWheelIsNotForLists) {
  Fill(30);
  AddList(10, 5);
  Mouse(kEventWheel, -1, kX, kY + 1);
  ExpectItem(0);
  Keys("Esc");
  dialog->Run();
}

}  // namespace
