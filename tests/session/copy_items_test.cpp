// Copying: the answers to every question, and what is on disk and tagged after.
#include <sys/stat.h>
#include <unistd.h>

#include "session/copy_screen.h"

namespace {

constexpr char kExists[] = "File already exists, Overwrite?";

// Three files; the other panel has two of them.
const FileList kClash = {{"left/a.txt", "new a"},
                         {"left/b.txt", "new b"},
                         {"left/c.txt", "new c"},
                         {"right/a.txt", "old a"},
                         {"right/b.txt", "old b"}};

// The first of the targets is older than its source, the second is newer.
void OneOlderOneNewer(const Sandbox& sandbox) {
  SetTime(sandbox.Path("left/a.txt"), 2000);
  SetTime(sandbox.Path("left/b.txt"), 2000);
  SetTime(sandbox.Path("right/a.txt"), 1000);
  SetTime(sandbox.Path("right/b.txt"), 3000);
}

class CopyClash : public testing::Test {
 protected:
  CopyClash() { TagNames(s, {"a.txt", "b.txt", "c.txt"}); }

  std::string Right() const {
    return s.Content("right/a.txt") + "," + s.Content("right/b.txt") + "," + s.Content("right/c.txt");
  }

  Session s{kClash, {.prepare = OneOlderOneNewer}};
};

}  // namespace

TEST(CopyItems, GoToTheOtherPanelAndBothPanelsShowIt) {
  Session s({{"left/a.txt", "one"}});
  GoTo(s, "a.txt");
  s.Keys("F5 Enter");
  EXPECT_EQ(s.Content("right/a.txt"), "one");
  EXPECT_EQ(s.Content("left/a.txt"), "one");
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "a.txt"}));
  EXPECT_TRUE(s.Row(24).StartsWith("1Help"));
}

TEST(CopyItems, OfADirectoryBringAllItHolds) {
  Session s({{"left/dir/sub/a.txt", "one"}, {"left/dir/b.txt", "two"}, {"left/dir/empty/", ""}});
  GoTo(s, "dir");
  s.Keys("F5 Enter");
  EXPECT_EQ(s.Content("right/dir/sub/a.txt"), "one");
  EXPECT_EQ(s.Content("right/dir/b.txt"), "two");
  EXPECT_TRUE(s.Exists("right/dir/empty"));
}

TEST(CopyItems, OfALinkAreALink) {
  Session s({{"left/a.txt", "one"}}, {.prepare = [](const Sandbox& box) {
              ASSERT_EQ(symlink("a.txt", box.Path("left/link").c_str()), 0);
            }});
  GoTo(s, "link");
  s.Keys("F5 Enter");
  char text[16] = {};
  ASSERT_EQ(readlink(s.Path("right/link").c_str(), text, sizeof text - 1), 5);
  EXPECT_STREQ(text, "a.txt");
}

// ---- the question about an existing file -------------------------------------

TEST_F(CopyClash, OkReplacesThatFileAndTheNextIsAsked) {
  s.Keys("F5 Enter");
  EXPECT_TRUE(Shows(s, kExists));
  EXPECT_TRUE(Shows(s, "[ OK ]  [ Cancel ]  [ Skip ]  [ All ]  [ None ]  [ All Older ]"));
  EXPECT_TRUE(Shows(s, s.Path("right/a.txt")));
  s.Keys("Enter");
  EXPECT_TRUE(Shows(s, s.Path("right/b.txt")));
  s.Keys("s");
  EXPECT_EQ(Right(), "new a,old b,new c");
  EXPECT_EQ(Tagged(kLeftSide), Strings{"b.txt"});
}

TEST_F(CopyClash, SkipKeepsFileAndTag) {
  s.Keys("F5 Enter s s");
  EXPECT_EQ(Right(), "old a,old b,new c");
  EXPECT_EQ(Tagged(kLeftSide), (Strings{"a.txt", "b.txt"}));
}

TEST_F(CopyClash, AllAsksNoMore) {
  s.Keys("F5 Enter a");
  EXPECT_EQ(Right(), "new a,new b,new c");
  EXPECT_TRUE(Tagged(kLeftSide).empty());
}

TEST_F(CopyClash, NoneKeepsAllThatExists) {
  s.Keys("F5 Enter e");
  EXPECT_EQ(Right(), "old a,old b,new c");
  EXPECT_EQ(Tagged(kLeftSide), (Strings{"a.txt", "b.txt"}));
}

TEST_F(CopyClash, AllOlderReplacesOnlyWhatIsOlder) {
  s.Keys("F5 Enter d");
  EXPECT_EQ(Right(), "new a,old b,new c");
  EXPECT_TRUE(Tagged(kLeftSide).empty());
}

TEST_F(CopyClash, EscStopsTheCommand) {
  s.Keys("F5 Enter Esc");
  EXPECT_EQ(Right(), "old a,old b,");
  EXPECT_EQ(Tagged(kLeftSide), (Strings{"a.txt", "b.txt", "c.txt"}));
  EXPECT_TRUE(s.Row(24).StartsWith("1Help"));
}

TEST_F(CopyClash, EscAtTheSecondLeavesTheFirstDone) {
  s.Keys("F5 Enter Enter Esc");
  EXPECT_EQ(Right(), "new a,old b,");
  EXPECT_EQ(Tagged(kLeftSide), (Strings{"b.txt", "c.txt"}));
  EXPECT_EQ(Processed(kLeftSide), Strings{"a.txt"});
}

// ---- the modes of the dialog -------------------------------------------------

TEST_F(CopyClash, AlwaysAsksNothing) {
  s.Keys("F5 Alt-a Enter");
  EXPECT_EQ(Right(), "new a,new b,new c");
  EXPECT_TRUE(Tagged(kLeftSide).empty());
}

TEST_F(CopyClash, NeverAsksNothingAndKeepsTheTags) {
  s.Keys("F5 Alt-e Enter");
  EXPECT_EQ(Right(), "old a,old b,new c");
  EXPECT_EQ(Tagged(kLeftSide), (Strings{"a.txt", "b.txt"}));
}

TEST_F(CopyClash, IfOlderReplacesWhatIsOlder) {
  s.Keys("F5 Alt-l Enter");
  EXPECT_EQ(Right(), "new a,old b,new c");
  EXPECT_TRUE(Tagged(kLeftSide).empty());
}

TEST_F(CopyClash, IfOlderKeepsWhatIsOfTheSameAge) {
  SetTime(s.Path("right/a.txt"), 2000);
  SetTime(s.Path("right/b.txt"), 1999);
  s.Keys("F5 Alt-l Enter");
  EXPECT_EQ(Right(), "old a,new b,new c");
  EXPECT_TRUE(Tagged(kLeftSide).empty());
}

TEST_F(CopyClash, AnAnswerHoldsForOneCommandOnly) {
  s.Keys("F5 Enter e F5 Enter");
  EXPECT_TRUE(Shows(s, kExists));
  s.Keys("Esc");
}

// ---- onto itself -------------------------------------------------------------

TEST(CopyItems, AFileDoesNotOverwriteItself) {
  Session s({{"left/a.txt", "one"}});
  GoTo(s, "a.txt");
  s.Keys("Shift-F5 Enter");
  EXPECT_TRUE(Shows(s, "File cannot overwrite itself"));
  s.Keys("Enter");
  EXPECT_EQ(s.Content("left/a.txt"), "one");
}

TEST(CopyItems, AFileDoesNotOverwriteItselfByAnotherNameOrWay) {
  for (const char* mode : {"", "Alt-a"}) {
    Session s({{"left/a.txt", "one"}, {"right/", ""}}, {.prepare = [](const Sandbox& box) {
                ASSERT_EQ(link(box.Path("left/a.txt").c_str(), box.Path("right/a.txt").c_str()), 0);
                ASSERT_EQ(symlink("left", box.Path("way").c_str()), 0);
              }});
    TagNames(s, {"a.txt"});
    s.Keys(std::string("F5 ") + mode + " Enter");
    EXPECT_TRUE(Shows(s, "File cannot overwrite itself")) << mode;
    s.Keys("Enter F5 '../way/' Enter");
    EXPECT_TRUE(Shows(s, "File cannot overwrite itself")) << mode;
    s.Keys("Enter");
    EXPECT_EQ(s.Content("left/a.txt"), "one");
    EXPECT_EQ(Tagged(kLeftSide), Strings{"a.txt"});
  }
}

TEST(CopyItems, ALinkDoesNotReplaceWhatItLeadsTo) {
  Session s({{"left/a.txt", "one"}, {"right/", ""}}, {.prepare = [](const Sandbox& box) {
              ASSERT_EQ(symlink("../right/a.txt", box.Path("left/link").c_str()), 0);
              ASSERT_EQ(rename(box.Path("left/a.txt").c_str(), box.Path("right/a.txt").c_str()), 0);
            }});
  GoTo(s, "link");
  s.Keys("F5 '../right/a.txt' Enter");
  EXPECT_TRUE(Shows(s, "File cannot overwrite itself"));
  s.Keys("Enter F6 '../right/a.txt' Enter");
  EXPECT_TRUE(Shows(s, "File exists (17)"));
  s.Keys("s");
  EXPECT_EQ(s.Content("right/a.txt"), "one");
}

TEST(CopyItems, OfSeveralFilesEscAtTheMessageStops) {
  Session s({{"left/a.txt", "one"}, {"left/b.txt", "two"}});
  TagNames(s, {"a.txt", "b.txt"});
  s.Keys("F5 '.' Enter");
  EXPECT_TRUE(Shows(s, s.Path("left/a.txt")));
  s.Keys("Enter");
  EXPECT_TRUE(Shows(s, s.Path("left/b.txt")));
  s.Keys("Esc");
  EXPECT_EQ(Tagged(kLeftSide), (Strings{"a.txt", "b.txt"}));
}

TEST(CopyItems, ADirectoryDoesNotGoIntoItself) {
  Session s({{"left/dir/a.txt", "one"}});
  GoTo(s, "dir");
  s.Keys("F5 'dir/sub' Enter");
  EXPECT_TRUE(Shows(s, "Directory cannot be copied into itself"));
  s.Keys("Enter");
  EXPECT_FALSE(s.Exists("left/dir/sub"));
}

// ---- links and kinds in the way ----------------------------------------------

TEST(CopyItems, ALinkInTheWayGoesAndNotWhatItLeadsTo) {
  for (const char* mode : {"Enter Enter", "Alt-a Enter"}) {
    Session s({{"left/a.txt", "new"}, {"precious", "old"}, {"right/", ""}},
              {.prepare = [](const Sandbox& box) {
                ASSERT_EQ(symlink("../precious", box.Path("right/a.txt").c_str()), 0);
              }});
    TagNames(s, {"a.txt"});
    s.Keys(std::string("F5 ") + mode);
    EXPECT_EQ(s.Content("precious"), "old") << mode;
    EXPECT_EQ(s.Content("right/a.txt"), "new") << mode;
  }
}

TEST(CopyItems, ALinkInTheWayThatLeadsNowhereIsAskedAbout) {
  Session s({{"left/a.txt", "new"}, {"right/", ""}}, {.prepare = [](const Sandbox& box) {
              ASSERT_EQ(symlink("../made", box.Path("right/a.txt").c_str()), 0);
            }});
  GoTo(s, "a.txt");
  s.Keys("F5 Enter");
  EXPECT_TRUE(Shows(s, kExists));
  s.Keys("Enter");
  EXPECT_FALSE(s.Exists("made"));
  EXPECT_EQ(s.Content("right/a.txt"), "new");
}

TEST(CopyItems, ADirectoryInTheWayOfAFileStays) {
  Session s({{"left/a", "new"}, {"right/a/inside", "old"}});
  TagNames(s, {"a"});
  s.Keys("F5 '../right/*' Enter");
  EXPECT_TRUE(Shows(s, "Access Denied"));
  s.Keys("s");
  EXPECT_EQ(s.Content("right/a/inside"), "old");
  EXPECT_EQ(Tagged(kLeftSide), Strings{"a"});
}

TEST(CopyItems, AFileInTheWayOfADirectoryIsAskedAbout) {
  Session s({{"left/a/inside", "new"}, {"right/a", "old"}});
  GoTo(s, "a");
  s.Keys("F5 Enter");
  EXPECT_TRUE(Shows(s, kExists));
  s.Keys("Enter");
  EXPECT_EQ(s.Content("right/a/inside"), "new");
}

TEST(CopyItems, TreesAreMergedAndTheirFilesAskedAbout) {
  Session s({{"left/dir/a", "new"}, {"left/dir/b", "new"}, {"right/dir/a", "old"}, {"right/dir/z", "old"}});
  TagNames(s, {"dir"});
  s.Keys("F5 Enter");
  EXPECT_TRUE(Shows(s, kExists));
  s.Keys("s");
  EXPECT_EQ(s.Content("right/dir/a"), "old");
  EXPECT_EQ(s.Content("right/dir/b"), "new");
  EXPECT_EQ(s.Content("right/dir/z"), "old");
  EXPECT_EQ(Tagged(kLeftSide), Strings{"dir"});
}

// ---- tags, errors, cancel ----------------------------------------------------

TEST(CopyItems, WhatIsDoneIsRememberedInPlaceOfItsTag) {
  Session s({{"left/a", "1"}, {"left/b", "2"}, {"left/c", "3"}, {"right/b", "old"}});
  TagNames(s, {"a", "b"});
  s.Keys("F5 Enter s");
  EXPECT_EQ(Tagged(kLeftSide), Strings{"b"});
  EXPECT_EQ(Processed(kLeftSide), Strings{"a"});
  EXPECT_EQ(Panels[kLeftSide].taggedCount, 1);
  EXPECT_EQ(Panels[kLeftSide].taggedBytes, 1u);
  TagNames(s, {"c"});
  s.Keys("F5 Enter s");
  EXPECT_EQ(Processed(kLeftSide), Strings{"c"});
}

TEST(CopyItems, OneFileAloneLeavesThatMemoryAsItWas) {
  Session s({{"left/a", "1"}, {"left/b", "2"}});
  TagNames(s, {"a"});
  s.Keys("F5 Enter");
  GoTo(s, "b");
  s.Keys("F5 Enter");
  EXPECT_EQ(Processed(kLeftSide), Strings{"a"});
}

TEST(CopyItems, AFileThatHasGoneKeepsNobodyFromTheNext) {
  Session s({{"left/a", "1"}, {"left/b", "2"}});
  TagNames(s, {"a", "b"});
  ASSERT_EQ(unlink(s.Path("left/a").c_str()), 0);
  s.Keys("F5 Enter");
  EXPECT_TRUE(Shows(s, "File not found"));
  s.Keys("Enter");
  EXPECT_EQ(s.Content("right/b"), "2");
  EXPECT_TRUE(Tagged(kLeftSide).empty());  // the listing no longer has the other one
}

TEST(CopyItems, ATooLongNameIsTold) {
  Session s({{"left/a", "1"}});
  GoTo(s, "a");
  s.Keys("F5 '" + std::string(256, 'n') + "' Enter");
  EXPECT_TRUE(Shows(s, "Name too long"));
  s.Keys("Enter");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "a"}));
}

TEST(CopyItems, ANameThatIsNoTextIsRefused) {
  Session s({{"left/ok", "1"}}, {.prepare = [](const Sandbox& box) {
              Sandbox& writable = const_cast<Sandbox&>(box);
              writable.Write("left/\xE9", "latin");
              writable.Write("left/\xC3\xA9", "other");
            }});
  s.Keys("End Ins Up");
  const Strings tagged = Tagged(kLeftSide);
  ASSERT_EQ(tagged.size(), 1u);
  s.Keys("End F5 Enter");
  EXPECT_TRUE(Shows(s, "(84)")) << s.Screen();
  s.Keys("s");
  EXPECT_EQ(s.Names(kRightSide), Strings{".."});
  EXPECT_EQ(Tagged(kLeftSide).size(), 1u);
}

// Bytes that are a longer spelling of a letter or of a slash.
TEST(CopyItems, ANameThatOnlyReadsAsAnotherIsRefused) {
  for (const std::string name : {"\xC1\xA1", "sub\xC0\xAFx"}) {
    Session s({{"left/" + name, "false"}, {"left/sub/x", "true"}});
    s.Keys("End F6 Enter");
    EXPECT_TRUE(Shows(s, "(84)")) << s.Screen();
    s.Keys("r");
    EXPECT_TRUE(Shows(s, "(84)")) << s.Screen();
    s.Keys("s");
    EXPECT_EQ(s.Content("left/sub/x"), "true");
    EXPECT_EQ(s.Content("left/" + name), "false");
    EXPECT_EQ(s.Names(kRightSide), Strings{".."});
  }
}

TEST(CopyItems, AnotherTryTakesAFileOnceItsLikeHasGone) {
  Session s({{"left/\xC3\xA9", "true"}, {"left/\xE9", "false"}});
  s.Keys("End F5 Enter");
  EXPECT_TRUE(Shows(s, "(84)"));
  ASSERT_EQ(unlink(s.Path("left/\xE9").c_str()), 0);
  s.Keys("r");
  EXPECT_EQ(s.Content("right/\xC3\xA9"), "true");
}

TEST(CopyItems, EscInALargeSetKeepsTheRestTagged) {
  FileList files = NumberedFiles("left", 200);
  Session s(files);
  TagNames(s, {"f000", "f001", "f002", "f003", "f004", "f005"});
  s.KeysTypedAhead("F5 Enter Esc");
  const size_t left = Tagged(kLeftSide).size();
  EXPECT_GE(left, 5u);
  EXPECT_EQ(s.Names(kRightSide).size(), 1 + 6 - left);
  EXPECT_EQ(Processed(kLeftSide).size(), 6 - left);
  EXPECT_TRUE(s.Row(24).StartsWith("1Help"));
}

TEST(CopyItems, EscWhileDirectoriesAreCountedCopiesNothing) {
  Session s({{"left/dir/a", "1"}, {"left/b", "2"}});
  TagNames(s, {"b", "dir"});
  s.KeysTypedAhead("F5 Enter Esc");
  EXPECT_EQ(s.Names(kRightSide), Strings{".."});
  EXPECT_EQ(Tagged(kLeftSide), (Strings{"dir", "b"}));
}

TEST(CopyItems, AListThatIsSortedAnewByTheCountLeadsToNoOtherEntry) {
  Session s({{"left/small/", ""}, {"left/big/a", "12345"}, {"left/tiny/", ""}});
  s.Keys("Ctrl-F6");
  GoTo(s, "big");
  s.Keys("F5 Enter");
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "big"}));
  GoTo(s, "tiny");
  s.Keys("F5 Enter");
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "big", "tiny"}));
}

TEST(CopyItems, FromTheRightGoToTheLeft) {
  Session s({{"right/a.txt", "one"}});
  s.Keys("Tab Down F5 Enter");
  EXPECT_EQ(s.Content("left/a.txt"), "one");
}

TEST(CopyItems, StartFromTheMenuToo) {
  Session s({{"left/a.txt", "one"}});
  GoTo(s, "a.txt");
  s.Command(FKey(5));
  s.Keys("Enter");
  EXPECT_EQ(s.Content("right/a.txt"), "one");
}
