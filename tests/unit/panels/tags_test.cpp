#include "panels/tags.h"

#include "unit/panels/two_panels.h"

namespace {

class Tags : public TwoPanels {
 protected:
  Tags() {
    scratch.Write("five", "12345");
    scratch.Write("three", "123");
    Read();
  }
  void TagNamed(const std::string& name, int mode) {
    for (int i = 0; i < Left().count; ++i) {
      if (Narrow(Left().entries[i]->name) == name) Tag(Left(), i, mode);
    }
  }
};

TEST_F(Tags, SettingCountsTheEntryAndItsBytes) {
  TagNamed("five", 1);
  TagNamed("three", 1);
  EXPECT_EQ(Left().taggedCount, 2);
  EXPECT_EQ(Left().taggedBytes, 8u);
}

TEST_F(Tags, SettingTwiceAndClearingTwiceCountOnce) {
  TagNamed("five", 1);
  TagNamed("five", 1);
  EXPECT_EQ(Left().taggedCount, 1);
  EXPECT_EQ(Left().taggedBytes, 5u);
  TagNamed("five", -1);
  TagNamed("five", -1);
  EXPECT_EQ(Left().taggedCount, 0);
  EXPECT_EQ(Left().taggedBytes, 0u);
}

TEST_F(Tags, TogglingTurnsTheTagOver) {
  TagNamed("five", 0);
  EXPECT_TRUE(EntryOf(Left(), "five")->tagged);
  TagNamed("five", 0);
  EXPECT_FALSE(EntryOf(Left(), "five")->tagged);
  EXPECT_EQ(Left().taggedBytes, 0u);
}

TEST_F(Tags, TheWayUpIsNeverTagged) {
  for (int mode : {-1, 0, 1}) TagNamed("..", mode);
  EXPECT_FALSE(EntryOf(Left(), "..")->tagged);
  EXPECT_EQ(Left().taggedCount, 0);
}

TEST_F(Tags, NothingIsTaggedInTreesAndInfo) {
  Left().style = kStyleTree;
  TagNamed("five", 1);
  Left().style = kStyleFull;
  Left().panelType = kPanelInfo;
  TagNamed("five", 1);
  EXPECT_EQ(Left().taggedCount, 0);
}

TEST_F(Tags, AnIndexOutsideTheListIsIgnored) {
  Tag(Left(), -1, 1);
  Tag(Left(), Left().count, 1);
  EXPECT_EQ(Left().taggedCount, 0);
}

TEST_F(Tags, ADirectoryCountsWithTheSizeThatItShows) {
  scratch.MakeDirectory("counted");
  Read();
  EntryOf(Left(), "counted")->size = 1000;
  TagNamed("counted", 1);
  EXPECT_EQ(Left().taggedBytes, 1000u);
}

}  // namespace
