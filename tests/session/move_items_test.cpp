// Moving and renaming: the answers to every question, and what is on disk after.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>

#include "session/copy_screen.h"

namespace {

constexpr char kExists[] = "File already exists, Overwrite?";

const FileList kClash = {{"left/a.txt", "new a"},
                         {"left/b.txt", "new b"},
                         {"left/c.txt", "new c"},
                         {"right/a.txt", "old a"},
                         {"right/b.txt", "old b"}};

class MoveClash : public testing::Test {
 protected:
  MoveClash() { TagNames(s, {"a.txt", "b.txt", "c.txt"}); }

  std::string Right() const {
    return s.Content("right/a.txt") + "," + s.Content("right/b.txt") + "," + s.Content("right/c.txt");
  }

  Session s{kClash};
};

// The left panel against a directory of another file system.
class MoveAcross : public testing::Test {
 protected:
  void SetUp() override {
    if (!other.IsOther()) GTEST_SKIP() << "needs two file systems";
  }
  std::string Destination() const { return "'" + other.Path() + "/'"; }

  OtherFileSystem other{"/tmp"};
};

}  // namespace

TEST(MoveItems, LeaveTheOnePanelForTheOther) {
  Session s({{"left/a.txt", "one"}, {"left/dir/b", "two"}});
  TagNames(s, {"a.txt", "dir"});
  s.Keys("F6 Enter");
  EXPECT_EQ(s.Names(kLeftSide), Strings{".."});
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "dir", "a.txt"}));
  EXPECT_EQ(s.Content("right/dir/b"), "two");
}

TEST(MoveItems, RenamingLeavesTheCursorOnTheNewName) {
  Session s({{"left/a", ""}, {"left/b", ""}, {"left/c", ""}, {"left/d", ""}});
  GoTo(s, "a");
  s.Keys("Shift-F6 'cc' Enter");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "b", "c", "cc", "d"}));
  EXPECT_EQ(s.Under(kLeftSide), "cc");
  s.Keys("F6 F6 'zz' Enter");
  EXPECT_EQ(s.Under(kLeftSide), "zz");
  EXPECT_EQ(BarRow(s, kLeftSide), 5);
}

TEST(MoveItems, AMoveElsewhereLeavesTheCursorInItsPlace) {
  Session s({{"left/a", ""}, {"left/b", ""}, {"left/c", ""}, {"right/", ""}});
  GoTo(s, "b");
  s.Keys("F6 Enter");
  EXPECT_EQ(s.Under(kLeftSide), "c");
}

TEST(MoveItems, RenameByAPattern) {
  Session s({{"left/a.txt", "one"}});
  GoTo(s, "a.txt");
  s.Keys("Shift-F6 '*.bak' Enter");
  EXPECT_EQ(s.Content("left/a.bak"), "one");
  EXPECT_EQ(s.Under(kLeftSide), "a.bak");
}

TEST(MoveItems, OntoThemselvesAreAnError) {
  Session s({{"left/a.txt", "one"}});
  GoTo(s, "a.txt");
  s.Keys("Shift-F6 Enter");
  EXPECT_TRUE(Shows(s, "File exists (17)"));
  s.Keys("s");
  EXPECT_EQ(s.Content("left/a.txt"), "one");
}

TEST(MoveItems, ADirectoryDoesNotGoIntoItself) {
  Session s({{"left/dir/a", "one"}});
  GoTo(s, "dir");
  s.Keys("F6 'dir/sub' Enter");
  EXPECT_TRUE(Shows(s, "Invalid argument (22)"));
  s.Keys("s");
  EXPECT_EQ(s.Content("left/dir/a"), "one");
  EXPECT_FALSE(s.Exists("left/dir/sub"));
}

// ---- the question about an existing file -------------------------------------

TEST_F(MoveClash, OkReplacesThatFileAndTheNextIsAsked) {
  s.Keys("F6 Enter");
  EXPECT_TRUE(Shows(s, kExists));
  EXPECT_TRUE(Shows(s, "[ OK ]  [ Cancel ]  [ Skip ]  [ All ]  [ None ] "));
  EXPECT_FALSE(Shows(s, "All Older"));
  s.Keys("Enter");
  EXPECT_TRUE(Shows(s, s.Path("right/b.txt")));
  s.Keys("s");
  EXPECT_EQ(Right(), "new a,old b,new c");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "b.txt"}));
  EXPECT_EQ(Tagged(kLeftSide), Strings{"b.txt"});
}

TEST_F(MoveClash, SkipKeepsBothFilesAndTheTag) {
  s.Keys("F6 Enter s s");
  EXPECT_EQ(Right(), "old a,old b,new c");
  EXPECT_EQ(s.Content("left/a.txt"), "new a");
  EXPECT_EQ(Tagged(kLeftSide), (Strings{"a.txt", "b.txt"}));
}

TEST_F(MoveClash, AllAsksNoMore) {
  s.Keys("F6 Enter a");
  EXPECT_EQ(Right(), "new a,new b,new c");
  EXPECT_EQ(s.Names(kLeftSide), Strings{".."});
}

TEST_F(MoveClash, NoneKeepsAllThatExists) {
  s.Keys("F6 Enter e");
  EXPECT_EQ(Right(), "old a,old b,new c");
  EXPECT_EQ(Tagged(kLeftSide), (Strings{"a.txt", "b.txt"}));
}

TEST_F(MoveClash, EscStopsTheCommand) {
  s.Keys("F6 Enter Esc");
  EXPECT_EQ(Right(), "old a,old b,");
  EXPECT_EQ(Tagged(kLeftSide), (Strings{"a.txt", "b.txt", "c.txt"}));
}

TEST_F(MoveClash, AlwaysAsksNothing) {
  s.Keys("F6 Alt-a Enter");
  EXPECT_EQ(Right(), "new a,new b,new c");
}

TEST_F(MoveClash, NeverAsksNothing) {
  s.Keys("F6 Alt-e Enter");
  EXPECT_EQ(Right(), "old a,old b,new c");
  EXPECT_EQ(s.Content("left/a.txt"), "new a");
}

TEST_F(MoveClash, IfOlderAsks) {
  SetTime(s.Path("right/a.txt"), 1000);
  s.Keys("F6 Alt-l Enter");
  EXPECT_TRUE(Shows(s, kExists));
  s.Keys("Esc");
  EXPECT_EQ(Right(), "old a,old b,");
}

// ---- kinds in the way --------------------------------------------------------

TEST(MoveItems, ALinkInTheWayGoesAndNotWhatItLeadsTo) {
  Session s({{"left/a.txt", "new"}, {"precious", "old"}, {"right/", ""}}, {.prepare = [](const Sandbox& box) {
              ASSERT_EQ(symlink("../precious", box.Path("right/a.txt").c_str()), 0);
            }});
  GoTo(s, "a.txt");
  s.Keys("F6 Enter");
  EXPECT_TRUE(Shows(s, kExists));
  s.Keys("Enter");
  EXPECT_EQ(s.Content("precious"), "old");
  EXPECT_EQ(s.Content("right/a.txt"), "new");
}

TEST(MoveItems, ADirectoryInTheWayOfAFileStays) {
  Session s({{"left/a", "new"}, {"right/a/inside", "old"}});
  TagNames(s, {"a"});
  s.Keys("F6 '../right/*' Enter");
  EXPECT_TRUE(Shows(s, "File exists (17)"));
  s.Keys("s");
  EXPECT_EQ(s.Content("right/a/inside"), "old");
  EXPECT_EQ(s.Content("left/a"), "new");
}

TEST(MoveItems, DirectoriesAreMerged) {
  Session s({{"left/dir/a", "new"}, {"left/dir/sub/b", "new"}, {"right/dir/sub/z", "old"}});
  GoTo(s, "dir");
  s.Keys("F6 Enter");
  EXPECT_FALSE(s.Exists("left/dir"));
  EXPECT_EQ(s.Content("right/dir/a"), "new");
  EXPECT_EQ(s.Content("right/dir/sub/b"), "new");
  EXPECT_EQ(s.Content("right/dir/sub/z"), "old");
}

TEST(MoveItems, ADirectoryIsNotMergedIntoOneInside) {
  Session s({{"left/dir/a", "one"}, {"left/dir/dir/", ""}, {"right/", ""}},
            {.prepare = [](const Sandbox& box) {
              ASSERT_EQ(symlink("../left/dir/dir", box.Path("right/dir").c_str()), 0);
            }});
  GoTo(s, "dir");
  for (const char* destination : {"dir/dir", "../right/dir"}) {
    s.Keys(std::string("F6 '") + destination + "' Enter");
    EXPECT_TRUE(Shows(s, "Invalid argument (22)")) << destination;
    s.Keys("s");
    EXPECT_EQ(s.Content("left/dir/a"), "one") << destination;
    EXPECT_FALSE(s.Exists("left/dir/dir/a")) << destination;
  }
}

TEST(MoveItems, AMergeKeepsWhatWasSkippedAndItsDirectories) {
  Session s({{"left/dir/sub/a", "new"}, {"left/dir/b", "new"}, {"right/dir/sub/a", "old"}});
  TagNames(s, {"dir"});
  s.Keys("F6 Enter");
  EXPECT_TRUE(Shows(s, kExists));
  s.Keys("s");
  EXPECT_TRUE(s.Row(24).StartsWith("1Help"));
  EXPECT_EQ(s.Content("left/dir/sub/a"), "new");
  EXPECT_EQ(s.Content("right/dir/sub/a"), "old");
  EXPECT_FALSE(s.Exists("left/dir/b"));
  EXPECT_EQ(Tagged(kLeftSide), Strings{"dir"});
}

TEST(MoveItems, EscInAMergeStopsTheCommand) {
  Session s({{"left/dir/a", "new"}, {"left/x", "x"}, {"right/dir/a", "old"}});
  TagNames(s, {"dir", "x"});
  s.Keys("F6 Enter Esc");
  EXPECT_EQ(s.Content("left/dir/a"), "new");
  EXPECT_EQ(s.Content("right/dir/a"), "old");
  EXPECT_EQ(Tagged(kLeftSide), (Strings{"dir", "x"}));
}

TEST(MoveItems, AMergeRefusesANameThatIsNoText) {
  Session s({{"left/dir/ok", "1"}, {"right/dir/", ""}}, {.prepare = [](const Sandbox& box) {
              const_cast<Sandbox&>(box).Write("left/dir/\xE9", "latin");
            }});
  TagNames(s, {"dir"});
  s.Keys("F6 Enter r");
  EXPECT_TRUE(Shows(s, "(84)"));
  s.Keys("s");
  EXPECT_EQ(s.Content("right/dir/ok"), "1");
  EXPECT_EQ(s.Content("left/dir/\xE9"), "latin");
}

TEST(MoveItems, IntoAPipeAreWrittenWithoutAQuestion) {
  Session s({{"left/a", "through"}, {"right/", ""}}, {.prepare = [](const Sandbox& box) {
              ASSERT_EQ(mkfifo(box.Path("right/pipe").c_str(), 0600), 0);
            }});
  const int reader = open(s.Path("right/pipe").c_str(), O_RDONLY | O_NONBLOCK);
  ASSERT_GE(reader, 0);
  GoTo(s, "a");
  s.Keys("F6 '../right/pipe' Enter");
  EXPECT_FALSE(Shows(s, kExists));
  char text[16] = {};
  EXPECT_EQ(read(reader, text, sizeof text - 1), 7);
  EXPECT_STREQ(text, "through");
  close(reader);
  EXPECT_FALSE(s.Exists("left/a"));
  EXPECT_TRUE(s.Exists("right/pipe"));
}

// ---- to another file system --------------------------------------------------

TEST_F(MoveAcross, AllThatArrivedLeavesTheSource) {
  Session s({{"left/dir/sub/a", "one"}, {"left/dir/empty/", ""}, {"left/b", "two"}});
  TagNames(s, {"dir", "b"});
  s.Keys("F6 " + Destination() + " Enter");
  EXPECT_EQ(s.Names(kLeftSide), Strings{".."});
  EXPECT_TRUE(other.Exists("dir/sub/a"));
  EXPECT_TRUE(other.Exists("dir/empty"));
  EXPECT_TRUE(other.Exists("b"));
}

TEST_F(MoveAcross, ALinkStaysALink) {
  Session s({{"left/a", "one"}}, {.prepare = [](const Sandbox& box) {
              ASSERT_EQ(symlink("a", box.Path("left/link").c_str()), 0);
            }});
  GoTo(s, "link");
  s.Keys("F6 " + Destination() + " Enter");
  EXPECT_TRUE(std::filesystem::is_symlink(other.Path("link")));
  EXPECT_FALSE(s.Exists("left/link"));
  EXPECT_TRUE(s.Exists("left/a"));
}

TEST_F(MoveAcross, WhatWasSkippedStaysWithItsDirectories) {
  Session s({{"left/dir/a", "new"}, {"left/dir/b", "new"}});
  std::filesystem::create_directories(other.Path("dir"));
  std::ofstream(other.Path("dir/a")) << "old";
  TagNames(s, {"dir"});
  s.Keys("F6 " + Destination() + " Enter");
  EXPECT_TRUE(Shows(s, kExists));
  s.Keys("s");
  EXPECT_EQ(s.Content("left/dir/a"), "new");
  EXPECT_FALSE(s.Exists("left/dir/b"));
  EXPECT_TRUE(other.Exists("dir/b"));
  EXPECT_EQ(Tagged(kLeftSide), Strings{"dir"});
}

TEST_F(MoveAcross, OkReplacesTheFileThere) {
  Session s({{"left/a", "new"}});
  std::ofstream(other.Path("a")) << "old!";
  GoTo(s, "a");
  s.Keys("F6 " + Destination() + " Enter Enter");
  EXPECT_FALSE(s.Exists("left/a"));
  EXPECT_EQ(std::filesystem::file_size(other.Path("a")), 3u);
}
