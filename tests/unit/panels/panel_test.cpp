#include "panels/panel.h"

#include "unit/panels/fake_archive.h"
#include "unit/panels/two_panels.h"

namespace {

class PanelRecord : public TwoPanels {};

TEST_F(PanelRecord, StartsEmptyWithRoomForFourThousandEntries) {
  const TPanel panel;
  EXPECT_EQ(panel.capacity, 4096);
  EXPECT_EQ(panel.count, 0);
  EXPECT_EQ(panel.style, kStyleFull);
  EXPECT_EQ(panel.panelType, kPanelFiles);
  EXPECT_EQ(panel.sortKey, 0);
  EXPECT_EQ(panel.nameScrollEntry, -1);
  EXPECT_STREQ(panel.filter.Text(), L"*");
  EXPECT_STREQ(panel.previousPath, L"");
  EXPECT_EQ(panel.Current(), nullptr);
}

TEST_F(PanelRecord, KnowsItsSide) {
  EXPECT_EQ(Left().Side(), 0);
  EXPECT_EQ(Right().Side(), 1);
}

TEST_F(PanelRecord, OutsideTheListThereIsNoCurrentEntry) {
  MakeFiles({"a"});
  Read();
  Left().cursorRow = 1;
  EXPECT_EQ(Under(Left()), "a");
  Left().cursorRow = 2;
  EXPECT_EQ(Left().Current(), nullptr);
  Left().cursorRow = -1;
  EXPECT_EQ(Left().Current(), nullptr);
}

TEST_F(PanelRecord, TextIsCutToTheArraysOfTheRecord) {
  CopyText(Left().path, std::wstring(600, L'x').c_str());
  EXPECT_EQ(wcslen(Left().path), 511u);
  CopyText(Left().fileSystem, std::wstring(40, L'x').c_str());
  EXPECT_EQ(wcslen(Left().fileSystem), 29u);
  EXPECT_EQ(Left().volumeId, 0u);
}

TEST_F(PanelRecord, ASwapExchangesAllThatAListingIs) {
  MakeFiles({"a", "b", "c"});
  scratch.MakeDirectory("d");
  Read();
  PositionOn(Left(), L"b");
  Left().sortKey = 5;
  Left().style = kStyleBrief;
  Left().filter = L"*.c";
  Left().positions.Remember(L"/x", 4, L"name");
  CopyText(Left().previousPath, L"/previous");
  Left().switchedOff = true;
  CopyText(Right().path, Wide(scratch.Path("d")).Text());
  Enter(1, L"", false, -1, 0);
  entry** const leftEntries = Left().entries;

  SwapPanelRecords(Left(), Right());
  EXPECT_EQ(Right().entries, leftEntries);
  EXPECT_EQ(NamesOf(Right()), (Names{"..", "d", "a", "b", "c"}));
  EXPECT_EQ(Under(Right()), "b");
  EXPECT_EQ(PathOf(Right()), scratch.Path());
  EXPECT_STREQ(Right().lastPath, Right().path);
  EXPECT_STREQ(Right().previousPath, L"/previous");
  EXPECT_EQ(Right().sortKey, 5);
  EXPECT_EQ(Right().style, kStyleBrief);
  EXPECT_STREQ(Right().filter.Text(), L"*.c");
  EXPECT_TRUE(Right().switchedOff);
  EXPECT_EQ(Right().positions.Count(), 1);
  EXPECT_EQ(Right().subdirectories.Count(), 1);
  EXPECT_EQ(PathOf(Left()), scratch.Path("d"));
  EXPECT_EQ(NamesOf(Left()), Names{".."});
  EXPECT_EQ(Left().positions.Count(), 0);
  EXPECT_TRUE(Left().redrawPending);
  EXPECT_TRUE(Right().redrawPending);
}

TEST_F(PanelRecord, TwoSwapsLeaveAllAsItWas) {
  MakeFiles({"a"});
  Read();
  Left().linkTargets.Target(L"/nothing");
  Left().taggedCount = 1;
  SwapPanelRecords(Left(), Right());
  SwapPanelRecords(Left(), Right());
  EXPECT_EQ(NamesOf(Left()), (Names{"..", "a"}));
  EXPECT_EQ(Left().linkTargets.Count(), 1);
  EXPECT_EQ(Left().taggedCount, 1);
  EXPECT_EQ(Right().count, 0);
}

TEST_F(PanelRecord, ASwapTakesTheArchiveAlong) {
  const FakeArchiveHook hook;
  Left().archive = std::make_unique<FakeLevel>(L"/a.zip");
  const ArchiveLevel* const level = Left().archive.get();
  SwapPanelRecords(Left(), Right());
  EXPECT_EQ(Left().archive, nullptr);
  EXPECT_EQ(Right().archive.get(), level);
  EXPECT_TRUE(ClosedArchives.empty());
}

}  // namespace
