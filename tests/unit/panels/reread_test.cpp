// What a re-read keeps: marks, the cursor, and its place in the list.
#include "panels/read_panel.h"
#include "unit/panels/two_panels.h"

namespace {

class ReRead : public TwoPanels {
 protected:
  void TagNamed(const std::string& name) {
    EntryOf(Left(), name)->tagged = 1;
    ++Left().taggedCount;
    Left().taggedBytes += static_cast<uint64_t>(EntryOf(Left(), name)->size);
  }
};

TEST_F(ReRead, TagsAndProcessedMarksOutliveAReRead) {
  scratch.Write("a", "12345");
  scratch.Write("b", "123");
  MakeFiles({"c"});
  Read();
  TagNamed("a");
  EntryOf(Left(), "b")->processed = 1;
  scratch.Write("a", "1234567");
  ReadPanel(Left());
  EXPECT_TRUE(EntryOf(Left(), "a")->tagged);
  EXPECT_TRUE(EntryOf(Left(), "b")->processed);
  EXPECT_FALSE(EntryOf(Left(), "b")->tagged);
  EXPECT_FALSE(EntryOf(Left(), "c")->tagged + EntryOf(Left(), "c")->processed);
  EXPECT_EQ(Left().taggedCount, 1);
  EXPECT_EQ(Left().taggedBytes, 7u) << "the size as it is now";
}

TEST_F(ReRead, ATagIsForTheExactName) {
  MakeFiles({"a"});
  Read();
  TagNamed("a");
  std::filesystem::rename(scratch.Path("a"), scratch.Path("A"));
  ReadPanel(Left());
  EXPECT_FALSE(EntryOf(Left(), "A")->tagged);
  EXPECT_EQ(Left().taggedCount, 0);
  EXPECT_EQ(Left().taggedBytes, 0u);
}

TEST_F(ReRead, AnotherDirectoryKeepsNoTags) {
  scratch.MakeDirectory("d");
  MakeFiles({"a", "d/a"});
  Read();
  TagNamed("a");
  Read("d");
  EXPECT_FALSE(EntryOf(Left(), "a")->tagged);
  EXPECT_EQ(Left().taggedCount, 0);
}

TEST_F(ReRead, TagsOfNamesThatAreNoUtf8OutliveAReRead) {
  scratch.Write("bad\xff", "1");
  scratch.Write("bad\xc3\xbf", "22");  // decodes to the same name
  scratch.Write("line\nbreak", "333");
  Read();
  for (int i = 1; i < Left().count; ++i) {
    Left().entries[i]->tagged = 1;
    ++Left().taggedCount;
  }
  ReadPanel(Left());
  ReadPanel(Left());
  EXPECT_EQ(Left().taggedCount, 3);
  EXPECT_EQ(Left().taggedBytes, 6u);
  for (int i = 1; i < Left().count; ++i) EXPECT_TRUE(Left().entries[i]->tagged) << i;
}

TEST_F(ReRead, OneTagOfTwoNamesThatLookTheSameStaysOne) {
  scratch.Write("bad\xff", "1");
  scratch.Write("bad\xc3\xbf", "1");
  Read();
  Left().entries[1]->tagged = 1;
  ReadPanel(Left());
  EXPECT_EQ(Left().taggedCount, 1);
  EXPECT_EQ(Left().taggedBytes, 1u);
}

TEST_F(ReRead, TheCursorStaysOnItsFile) {
  MakeFiles({"b", "c", "d"});
  Read();
  PositionOn(Left(), L"c");
  MakeFiles({"a", "bb"});
  ReadPanel(Left());
  EXPECT_EQ(Under(Left()), "c");
}

TEST_F(ReRead, WithItsFileGoneTheCursorStaysInItsSlot) {
  MakeFiles({"a", "b", "c"});
  Read();
  PositionOn(Left(), L"b");
  unlink(scratch.Path("b").c_str());
  ReadPanel(Left());
  EXPECT_EQ(Under(Left()), "c");
  unlink(scratch.Path("c").c_str());
  ReadPanel(Left());
  EXPECT_EQ(Under(Left()), "a") << "pulled up to the end";
}

TEST_F(ReRead, AListThatShrinksBelowItsTopStartsFromTheTop) {
  for (int i = 10; i < 50; ++i) scratch.Write("f" + std::to_string(i), "");
  Read();
  PositionOn(Left(), L"f49");
  EXPECT_EQ(Left().topIndex, 31);
  for (int i = 12; i < 50; ++i) unlink(scratch.Path("f" + std::to_string(i)).c_str());
  ReadPanel(Left());
  EXPECT_EQ(Left().topIndex, 0);
  EXPECT_EQ(Under(Left()), "f11");
}

TEST_F(ReRead, AnotherDirectoryStartsAtItsTop) {
  scratch.MakeDirectory("d");
  for (int i = 10; i < 50; ++i) scratch.Write("f" + std::to_string(i), "");
  Read();
  PositionOn(Left(), L"f49");
  Read("d");
  EXPECT_EQ(Left().topIndex, 0);
  EXPECT_EQ(Left().cursorRow, 0);
}

TEST_F(ReRead, TheLinkCacheIsEmptiedByEveryRead) {
  ASSERT_EQ(symlink("x", scratch.Path("link").c_str()), 0);
  Read();
  Left().linkTargets.Target(Wide(scratch.Path("link")));
  EXPECT_EQ(Left().linkTargets.Count(), 1);
  ReadPanel(Left());
  EXPECT_EQ(Left().linkTargets.Count(), 0);
}

class PositionOnTest : public TwoPanels {
 protected:
  PositionOnTest() {
    for (int i = 10; i < 50; ++i) scratch.Write("f" + std::to_string(i), "");
    Read();
  }
};

TEST_F(PositionOnTest, ANameInViewMovesOnlyTheCursor) {
  PositionOn(Left(), L"f14");
  EXPECT_EQ(Left().topIndex, 0);
  EXPECT_EQ(Left().cursorRow, 5);
}

TEST_F(PositionOnTest, ANameBelowComesIntoTheLastSlot) {
  PositionOn(Left(), L"f30");
  EXPECT_EQ(Under(Left()), "f30");
  EXPECT_EQ(Left().cursorRow, kRowsOfTwoPanels - 1);
}

TEST_F(PositionOnTest, ANameAboveComesIntoTheFirstSlot) {
  PositionOn(Left(), L"f49");
  PositionOn(Left(), L"f20");
  EXPECT_EQ(Under(Left()), "f20");
  EXPECT_EQ(Left().cursorRow, 0);
}

TEST_F(PositionOnTest, TheNameIsTheExactOne) {
  PositionOn(Left(), L"f14");
  PositionOn(Left(), L"F20");
  EXPECT_EQ(Under(Left()), "f14");
}

TEST_F(PositionOnTest, WithoutTheNameTheNumbersStayButInView) {
  Left().topIndex = 5;
  Left().cursorRow = kRowsOfTwoPanels + 3;
  PositionOn(Left(), L"nothing");
  EXPECT_EQ(Left().topIndex, 9);
  EXPECT_EQ(Left().cursorRow, kRowsOfTwoPanels - 1);
  Left().cursorRow = -2;
  PositionOn(Left(), L"nothing");
  EXPECT_EQ(Left().topIndex, 7);
  EXPECT_EQ(Left().cursorRow, 0);
}

}  // namespace
