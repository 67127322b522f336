#include "panels/navigation.h"

#include "unit/panels/fake_archive.h"
#include "unit/panels/two_panels.h"

namespace {

class Navigation : public TwoPanels {
 protected:
  Names History() {
    Names paths;
    for (int i = 0; i < DirectoryHistory.Count(); ++i)
      paths.push_back(Narrow(DirectoryHistory.Peek(i)->Text()));
    return paths;
  }
  void Down(const wchar_t* name) { Enter(0, name, false, -1, 0); }
  void Up() { Enter(0, L"..", false, -1, 0); }
  // What the main loop does when it turns round.
  void Settle() {
    Left().lastTop = Left().topIndex;
    Left().lastCursor = Left().cursorRow;
  }
};

// ---- down and up -----------------------------------------------------------

TEST_F(Navigation, EachLevelComesBackAsItWasLeft) {
  scratch.MakeDirectory("m10/n10");
  for (int i = 10; i < 50; ++i) {
    scratch.MakeDirectory("m" + std::to_string(i));
    scratch.MakeDirectory("m10/n" + std::to_string(i));
  }
  scratch.MakeDirectory("m30/n35");
  for (int i = 10; i < 50; ++i) scratch.MakeDirectory("m30/n" + std::to_string(i));
  Read();
  Left().topIndex = 20;
  PositionOn(Left(), L"m30");
  const int top = Left().topIndex, cursor = Left().cursorRow;
  ASSERT_EQ(Under(Left()), "m30");
  Down(L"m30");
  EXPECT_EQ(PathOf(Left()), scratch.Path("m30"));
  EXPECT_EQ(Left().CurrentIndex(), 0);
  Left().topIndex = 22;
  PositionOn(Left(), L"n25");
  const int innerTop = Left().topIndex, innerCursor = Left().cursorRow;
  Down(L"n25");
  EXPECT_EQ(PathOf(Left()), scratch.Path("m30/n25"));

  for (int round = 0; round < 2; ++round) {
    Up();
    EXPECT_EQ(Under(Left()), "n25");
    EXPECT_EQ(Left().topIndex, innerTop);
    EXPECT_EQ(Left().cursorRow, innerCursor);
    Up();
    EXPECT_EQ(Under(Left()), "m30");
    EXPECT_EQ(Left().topIndex, top);
    EXPECT_EQ(Left().cursorRow, cursor);
    Down(L"m30");
    PositionOn(Left(), L"n25");
    Left().topIndex = innerTop;
    Left().cursorRow = innerCursor;
    Down(L"n25");
  }
}

TEST_F(Navigation, GoingUpFromAPlaceNeverEnteredFindsItsDirectory) {
  for (int i = 10; i < 50; ++i) scratch.MakeDirectory("m" + std::to_string(i));
  Read("m12");
  Up();
  EXPECT_EQ(Left().topIndex, 0);
  EXPECT_EQ(Under(Left()), "m12");
  Read("m40");
  Up();
  EXPECT_EQ(Under(Left()), "m40");
  EXPECT_EQ(Left().cursorRow, kRowsOfTwoPanels - 1);
}

TEST_F(Navigation, GoingUpStandsOnTheDirectoryLeftNotOnTheOneRemembered) {
  for (int i = 10; i < 50; ++i) scratch.MakeDirectory("m" + std::to_string(i));
  Read();
  PositionOn(Left(), L"m45");
  Down(L"m45");
  Read("m12");
  Up();
  EXPECT_EQ(Under(Left()), "m12");
}

TEST_F(Navigation, GoingUpFromADirectoryThatIsGoneStartsAtTheTop) {
  scratch.MakeDirectory("a");
  scratch.MakeDirectory("gone");
  Read("gone");
  ASSERT_EQ(rmdir(scratch.Path("gone").c_str()), 0);
  Up();
  EXPECT_EQ(Left().CurrentIndex(), 0);
}

TEST_F(Navigation, ARememberedPlacePastTheEndOfAShorterListIsForgotten) {
  for (int i = 10; i < 50; ++i) scratch.MakeDirectory("m" + std::to_string(i));
  Read();
  Left().topIndex = 30;
  PositionOn(Left(), L"m45");
  Down(L"m45");
  for (int i = 11; i < 50; ++i) rmdir(scratch.Path("m" + std::to_string(i)).c_str());
  Up();
  EXPECT_EQ(NamesOf(Left()), (Names{"..", "m10"}));
  EXPECT_EQ(Left().topIndex, 0);
  EXPECT_EQ(Under(Left()), "..");
}

TEST_F(Navigation, TheRootHasNothingAboveIt) {
  CopyText(Left().path, L"/");
  Down(L"");
  const int count = Left().count;
  Up();
  EXPECT_EQ(PathOf(Left()), "/");
  EXPECT_EQ(Left().count, count);
}

TEST_F(Navigation, ADirectoryBelowTheRootHasOneSlash) {
  CopyText(Left().path, L"/");
  Down(L"");
  Down(L"proc");
  EXPECT_EQ(PathOf(Left()), "/proc");
  Up();
  EXPECT_EQ(PathOf(Left()), "/");
  EXPECT_EQ(Under(Left()), "proc");
}

TEST_F(Navigation, FromNowhereTheWayUpLeadsToTheRoot) {
  CopyText(Left().path, L"");
  ReadPanel(Left());
  Up();
  EXPECT_EQ(PathOf(Left()), "/");
}

TEST_F(Navigation, TheNameMayBeAnEntrysOwn) {
  scratch.MakeDirectory("a directory with a rather long name/b");
  Read();
  PositionOn(Left(), L"a directory with a rather long name");
  Enter(0, Left().Current()->name, false, -1, 0);
  EXPECT_EQ(NamesOf(Left()), (Names{"..", "b"}));
  const Westring remembered = Wide(scratch.Path());
  EXPECT_STREQ(Left().positions.Find(&remembered)->name.Text(), L"a directory with a rather long name");
}

TEST_F(Navigation, EveryStepEndsAQuickSearchAndClearsAnError) {
  Read();
  CopyText(Left().quickSearch, L"abc");
  Left().readError = 5;
  Enter(0, L"", true, -1, 0);
  EXPECT_STREQ(Left().quickSearch, L"");
  EXPECT_EQ(Left().readError, 0);
}

TEST_F(Navigation, TheProcessFollows) {
  scratch.MakeDirectory("d");
  Read();
  Down(L"d");
  EXPECT_EQ(std::filesystem::current_path(), scratch.Path("d"));
  Up();
  EXPECT_EQ(std::filesystem::current_path(), scratch.Path());
}

// ---- tags and position -----------------------------------------------------

TEST_F(Navigation, AReReadKeepsTagsIfToldTo) {
  scratch.Write("a", "123");
  Read();
  for (const bool keeps : {true, false}) {
    EntryOf(Left(), "a")->tagged = 1;
    Left().taggedCount = 1;
    Enter(0, L"", keeps, -1, 0);
    EXPECT_EQ(EntryOf(Left(), "a")->tagged, keeps);
    EXPECT_EQ(Left().taggedCount, keeps);
    EXPECT_EQ(Left().taggedBytes, keeps ? 3u : 0u);
  }
}

TEST_F(Navigation, AGivenPlaceReplacesTheCursors) {
  for (int i = 10; i < 50; ++i) scratch.Write("f" + std::to_string(i), "");
  Read();
  Enter(0, L"", true, 7, 3);
  EXPECT_EQ(Left().topIndex, 7);
  EXPECT_EQ(Left().cursorRow, 3);
}

TEST_F(Navigation, AGivenPlacePastTheEndIsPulledOntoTheList) {
  MakeFiles({"a", "b"});
  Read();
  Enter(0, L"", true, 100, 50);
  EXPECT_NE(Left().Current(), nullptr);
  Enter(0, L"", true, 1, 50);
  EXPECT_EQ(Under(Left()), "b");
}

// ---- where the panel has been ----------------------------------------------

TEST_F(Navigation, TheDirectoryLeftIsThePreviousOneWithItsPlace) {
  scratch.MakeDirectory("d");
  for (int i = 10; i < 50; ++i) scratch.Write("f" + std::to_string(i), "");
  Read();
  PositionOn(Left(), L"f40");
  Settle();
  const int top = Left().topIndex, cursor = Left().cursorRow;
  Down(L"d");
  EXPECT_EQ(Narrow(Left().previousPath), scratch.Path());
  EXPECT_EQ(Left().previousTop, top);
  EXPECT_EQ(Left().previousCursor, cursor);
}

TEST_F(Navigation, AReReadLeavesThePreviousDirectoryAlone) {
  scratch.MakeDirectory("d");
  Read();
  Down(L"d");
  Enter(0, L"", true, -1, 0);
  EXPECT_EQ(Narrow(Left().previousPath), scratch.Path());
  EXPECT_EQ(History().back(), scratch.Path());
}

TEST_F(Navigation, TheHistoryHoldsEachDirectoryOnceTheNewestLast) {
  scratch.MakeDirectory("a");
  scratch.MakeDirectory("b");
  Read();
  DirectoryHistory.Clear();
  Down(L"a");
  Up();
  Down(L"b");
  EXPECT_EQ(History(), (Names{scratch.Path("a"), scratch.Path()}));
  Up();
  Down(L"a");
  EXPECT_EQ(History(), (Names{scratch.Path("a"), scratch.Path("b"), scratch.Path()}));
}

TEST(DirectoryHistoryTest, HoldsTheNewestHundred) {
  DirectoryHistory.Clear();
  for (int i = 0; i < 150; ++i) AddDirectoryHistory(Westring(("/d" + std::to_string(i)).c_str()));
  EXPECT_EQ(DirectoryHistory.Count(), kMaxDirectoryHistory);
  EXPECT_STREQ(DirectoryHistory.Peek(0)->Text(), L"/d50");
  EXPECT_STREQ(DirectoryHistory.Peek(99)->Text(), L"/d149");
}

TEST(DirectoryHistoryTest, PathsThatDifferInCaseAreTwo) {
  DirectoryHistory.Clear();
  for (const wchar_t* path : {L"/a", L"/A", L"/a", L""}) AddDirectoryHistory(path);
  ASSERT_EQ(DirectoryHistory.Count(), 2);
  EXPECT_STREQ(DirectoryHistory.Peek(0)->Text(), L"/A");
  EXPECT_STREQ(DirectoryHistory.Peek(1)->Text(), L"/a");
}

// ---- archives --------------------------------------------------------------

class ArchiveNavigation : public Navigation {
 protected:
  ArchiveNavigation() {
    MakeFiles({"a.zip", "z"});
    FakeArchives[Wide(scratch.Path("a.zip")).Text()].directories = {
        {L"", {{L"..", kAttrDirectory}, {L"docs", kAttrDirectory}, {L"b.zip"}}},
        {L"docs", {{L"..", kAttrDirectory}, {L"text"}}}};
    FakeArchives[Wide(scratch.Path("a.zip/b.zip")).Text()].directories = {
        {L"", {{L"..", kAttrDirectory}, {L"x"}}}};
    Read();
  }
  void Open(const wchar_t* name) {
    const Westring path = Westring(Left().path) + L"/" + name;
    auto level = OpenArchive(path, Left().archive.get());
    level->parent = std::move(Left().archive);
    Left().archive = std::move(level);
    Down(name);
  }
  const FakeArchiveHook hook;
};

TEST_F(ArchiveNavigation, AfterLeavingAnArchiveTheCursorStandsOnItsFile) {
  PositionOn(Left(), L"z");
  Open(L"a.zip");
  EXPECT_EQ(NamesOf(Left()), (Names{"..", "docs", "b.zip"}));
  Up();
  EXPECT_EQ(Left().archive, nullptr);
  EXPECT_EQ(Under(Left()), "a.zip");
}

TEST_F(ArchiveNavigation, StepsInsideGoThroughTheInteriorDirectories) {
  Open(L"a.zip");
  Down(L"docs");
  EXPECT_EQ(NamesOf(Left()), (Names{"..", "text"}));
  Up();
  EXPECT_EQ(Under(Left()), "docs");
  EXPECT_NE(Left().archive, nullptr);
}

TEST_F(ArchiveNavigation, TheProcessStaysAtTheOutermostArchive) {
  Open(L"a.zip");
  Open(L"b.zip");
  EXPECT_EQ(NamesOf(Left()), (Names{"..", "x"}));
  EXPECT_STREQ(RealDirectory(Left()).Text(), Wide(scratch.Path()).Text());
  EXPECT_EQ(std::filesystem::current_path(), scratch.Path());
  Up();
  EXPECT_EQ(Under(Left()), "b.zip");
  EXPECT_EQ(PathOf(Left()), scratch.Path("a.zip"));
}

TEST_F(ArchiveNavigation, AnArchiveAtTheRootLivesInTheRoot) {
  Left().archive = std::make_unique<FakeLevel>(L"/a.zip");
  EXPECT_STREQ(RealDirectory(Left()).Text(), L"/");
}

}  // namespace
