// Moving in a panel's list: rows, pages, columns, tags, and long names.
#include <gtest/gtest.h>

#include "session/main_screen.h"

namespace {

// ".." and f000 to f058: sixty entries in lists of nineteen rows.
Session Sixty(const std::string& settings = "") {
  return Session(NumberedFiles("left", 59), {.settings = settings});
}

using Place = std::pair<std::string, int>;

// The name under the cursor and the row of the bar.
Place At(const Session& s) { return {s.Under(kLeftSide), BarRow(s, kLeftSide)}; }

Place After(Session& s, const std::string& keys) {
  s.Keys(keys);
  return At(s);
}

}  // namespace

TEST(Rows, UpAndDownStopAtTheEndsOfTheList) {
  Session s({{"left/a", ""}, {"left/b", ""}});
  EXPECT_EQ(After(s, "Up"), Place("..", 1));
  EXPECT_EQ(After(s, "Down Down"), Place("b", 3));
  EXPECT_EQ(After(s, "Down"), Place("b", 3));
}

TEST(Rows, TheListScrollsByARowAtItsBorders) {
  Session s = Sixty();
  s.Keys("PgDn End Home");
  for (int i = 0; i < 18; ++i) s.Keys("Down");
  EXPECT_EQ(At(s), Place("f017", 19));
  EXPECT_EQ(After(s, "Down"), Place("f018", 19));
  EXPECT_TRUE(s.Row(1).StartsWith("║f000 "));
  EXPECT_TRUE(s.Row(18).StartsWith("║f017 "));
  for (int i = 0; i < 18; ++i) s.Keys("Up");
  EXPECT_EQ(At(s), Place("f000", 1));
  EXPECT_EQ(After(s, "Up"), Place("..", 1));
  EXPECT_TRUE(s.Row(2).StartsWith("║f000 "));
}

TEST(Rows, HomeAndEndGoToTheFirstAndLastEntry) {
  Session s = Sixty();
  EXPECT_EQ(After(s, "End"), Place("f058", 19));
  EXPECT_EQ(After(s, "Home"), Place("..", 1));
}

TEST(Pages, PgDnGoesToTheFirstSlotOfEachPageAndToTheLastEntry) {
  Session s = Sixty();
  EXPECT_EQ(After(s, "Down PgDn"), Place("f018", 1));
  EXPECT_EQ(After(s, "PgDn"), Place("f037", 1));
  EXPECT_EQ(After(s, "PgDn"), Place("f040", 1));
  EXPECT_EQ(After(s, "PgDn"), Place("f058", 19));
  EXPECT_EQ(After(s, "PgDn"), Place("f058", 19));
}

TEST(Pages, PgUpGoesToTheLastSlotOfEachPageAndToTheFirstEntry) {
  Session s = Sixty();
  s.Keys("End");
  EXPECT_EQ(After(s, "PgUp"), Place("f039", 19));
  EXPECT_EQ(After(s, "PgUp"), Place("f020", 19));
  EXPECT_EQ(After(s, "PgUp"), Place("f017", 19));
  EXPECT_EQ(After(s, "PgUp"), Place("..", 1));
  EXPECT_EQ(After(s, "PgUp"), Place("..", 1));
}

TEST(Pages, ACursorOnAnEntryOfBothPagesStaysOnIt) {
  Session s = Sixty();
  s.Keys("PgDn PgDn Down Down Down Down Down");
  ASSERT_EQ(At(s), Place("f042", 6));
  EXPECT_EQ(After(s, "PgDn"), Place("f042", 3));
}

TEST(Pages, AListThatFitsHasOnePage) {
  Session s(NumberedFiles("left", 18));
  EXPECT_EQ(After(s, "PgDn"), Place("f017", 19));
  EXPECT_EQ(After(s, "PgUp"), Place("..", 1));
}

TEST(Pages, AListOfOneEntryHasOne) {
  Session s;
  EXPECT_EQ(After(s, "PgDn"), Place("..", 1));
  EXPECT_EQ(After(s, "PgUp"), Place("..", 1));
  EXPECT_EQ(After(s, "Ins"), Place("..", 1));
}

TEST(Columns, RightAndLeftGoByColumnsInBrief) {
  Session s = Sixty("LeftStyle=brief\n");
  s.Keys("Down Right");
  EXPECT_EQ(s.Under(kLeftSide), "f019");
  EXPECT_EQ(s.Attribute(14, 2), 0x30);
  s.Keys("Right");
  EXPECT_EQ(s.Under(kLeftSide), "f038");
  EXPECT_EQ(s.Attribute(27, 2), 0x30);
  s.Keys("Right");
  EXPECT_EQ(s.Under(kLeftSide), "f057");
  s.Keys("Left Left Left");
  EXPECT_EQ(s.Under(kLeftSide), "f000");
  s.Keys("Left");
  EXPECT_EQ(s.Under(kLeftSide), "..");
}

TEST(Columns, RightInTheLastColumnScrollsTheList) {
  Session s(NumberedFiles("left", 120), {.settings = "LeftStyle=brief\n"});
  s.Keys("Right Right Right");
  EXPECT_EQ(s.Under(kLeftSide), "f056");
  EXPECT_TRUE(s.Row(1).StartsWith("║f018        │f037        │f056        ║"));
  EXPECT_EQ(s.Attribute(27, 1), 0x30);
  s.Keys("Left Left Left");
  EXPECT_EQ(s.Under(kLeftSide), "..");
  EXPECT_TRUE(s.Row(1).StartsWith("║..          │f018        │f037        ║"));
}

TEST(Columns, BriefWideHasTwo) {
  Session s = Sixty("LeftStyle=briefwide\n");
  s.Keys("Right");
  EXPECT_EQ(s.Under(kLeftSide), "f018");
  s.Keys("Right");
  EXPECT_EQ(s.Under(kLeftSide), "f037");
  EXPECT_TRUE(s.Row(1).StartsWith("║f018 "));
  s.Keys("Right");
  EXPECT_EQ(s.Under(kLeftSide), "f056");
  s.Keys("Right");
  EXPECT_EQ(s.Under(kLeftSide), "f058");
}

TEST(Columns, ColumnKeysLeaveTheCommandLineAlone) {
  Session s = Sixty("LeftStyle=brief\n");
  s.Keys("'ab' Left x");
  EXPECT_EQ(PromptRow(s), s.Path("left") + ">abx");
}

TEST(LongNames, SidewaysKeysOnAnEmptyLineScrollTheNameUnderTheCursor) {
  Session s({{"left/a-name-that-is-longer-than-its-column", ""}, {"left/b", ""}});
  s.Keys("Down Right Right");
  EXPECT_TRUE(s.Row(2).StartsWith("║name-that-is"));
  s.Keys("Ctrl-D");
  EXPECT_TRUE(s.Row(2).StartsWith("║ame-that-is-"));
  s.Keys("Left Ctrl-S Alt-Left Left");
  EXPECT_TRUE(s.Row(2).StartsWith("║a-name-that-"));
}

TEST(LongNames, ScrollingStopsAtTheEndOfTheName) {
  Session s({{"left/a-name-a-bit-long", ""}});
  s.Keys("Down");
  for (int i = 0; i < 20; ++i) s.Keys("Right");
  EXPECT_TRUE(s.Row(2).StartsWith("║me-a-bit-long│"));
  s.Keys("Left");
  EXPECT_TRUE(s.Row(2).StartsWith("║ame-a-bit-lo►│"));
}

TEST(LongNames, AnotherEntryUnderTheCursorEndsTheScrolling) {
  Session s({{"left/a-name-that-is-longer-than-its-column", ""}, {"left/b", ""}});
  s.Keys("Down Right Right Down");
  EXPECT_TRUE(s.Row(2).StartsWith("║a-name-that-"));
  s.Keys("Up");
  EXPECT_TRUE(s.Row(2).StartsWith("║a-name-that-"));
}

TEST(LongNames, WithTextOnTheLineSidewaysKeysMoveInIt) {
  Session s({{"left/a-name-that-is-longer-than-its-column", ""}});
  s.Keys("Down x Right Right Left y");
  EXPECT_TRUE(s.Row(2).StartsWith("║a-name-that-"));
  EXPECT_EQ(PromptRow(s), s.Path("left") + ">yx");
}

TEST(Tags, InsTagsAndGoesDown) {
  Session s({{"left/a", ""}, {"left/b", "22"}, {"left/c", "333"}});
  s.Keys("Ins Ins Ins");
  EXPECT_EQ(s.Under(kLeftSide), "c");
  EXPECT_EQ(s.Attribute(1, 1), 0x1A);  // ".." is never tagged
  EXPECT_EQ(s.Attribute(1, 2), 0x1E);
  EXPECT_EQ(s.Attribute(1, 3), 0x1E);
  EXPECT_TRUE(PanelRow(s, kLeftSide, 21).Contains("2 bytes in 2 selected files"));
  s.Keys("Ins");
  EXPECT_EQ(s.Attribute(1, 4), 0x3E);  // no further down
  s.Keys("Ins");
  EXPECT_EQ(s.Attribute(1, 4), 0x30);
}

TEST(Tags, AltUpAndAltDownGoFromTagToTag) {
  Session s = Sixty();
  s.Keys("Down Down Ins PgDn PgDn Ins Home Alt-Down");
  EXPECT_EQ(s.Under(kLeftSide), "f001");
  s.Keys("Alt-Down");
  EXPECT_EQ(s.Under(kLeftSide), "f037");
  s.Keys("Alt-Down");
  EXPECT_EQ(s.Under(kLeftSide), "f037");
  s.Keys("End Alt-Up");
  EXPECT_EQ(s.Under(kLeftSide), "f037");
  s.Keys("Alt-Up Alt-Up");
  EXPECT_EQ(s.Under(kLeftSide), "f001");
}

TEST(Tags, WithoutTagsAltDownStays) {
  Session s = Sixty();
  s.Keys("Down Alt-Down Alt-Up");
  EXPECT_EQ(At(s), Place("f000", 2));
}
