// Walking through the files of a panel.
#include <gtest/gtest.h>

#include <fstream>

#include "session/viewer_screen.h"
#include "support/faults.h"

namespace {

const FileList kFiles = {
    {"left/dir1/", ""}, {"left/a", "first\n"}, {"left/b", "second\n"}, {"left/c", "third\n"}};

bool Shows(const Session& s, const std::string& text) { return s.Row(kFirstTextRow).StartsWith(text); }

// The note is seen as it comes, and costs no time.
class NoteSeen {
 public:
  explicit NoteSeen(const Session& s)
      : sleep(kCallSleep, {.times = kEveryCall, .code = EINTR, .before = [this, &s] { Look(s); }}) {}

  int Times() const { return times; }
  bool IsRight() const { return isRight; }

 private:
  void Look(const Session& s) {
    ++times;
    const auto row = s.FindRow("║ No more files  ║");
    isRight = row && s.Character(31, *row - 2) == U'╔' && s.Character(48, *row + 2) == U'╝';
  }

  int times = 0;
  bool isRight = false;
  Fault sleep;
};

}  // namespace

TEST(ViewerWalk, AltDownAndAltUpGoToTheNextFileAndBack) {
  Session s(kFiles);
  s.Keys("Down Down F3");
  EXPECT_TRUE(Shows(s, "first"));
  s.Keys("Alt-Down");
  EXPECT_TRUE(Shows(s, "second"));
  EXPECT_TRUE(s.Row(0).StartsWith("View: " + s.Path("left/b")));
  s.Keys("Alt-Down Alt-Up");
  EXPECT_TRUE(Shows(s, "second"));
}

TEST(ViewerWalk, EscLeavesTheCursorOnTheFileShown) {
  Session s(kFiles);
  s.Keys("Down Down F3 Alt-Down Alt-Down Esc");
  EXPECT_EQ(s.Under(kLeftSide), "c");
  s.Keys("F3 Alt-Up F10");
  EXPECT_EQ(s.Under(kLeftSide), "b");
  EXPECT_TRUE(s.Row(kBarRow).StartsWith("1Help   2Menu"));
  EXPECT_EQ(BarRow(s, kLeftSide), 4);
}

TEST(ViewerWalk, PastTheEndsTheFileStaysAndItIsTold) {
  Session s(kFiles);
  s.Keys("Down Down F3");
  {
    const NoteSeen note(s);
    s.Keys("Alt-Up");  // two directories are above it
    EXPECT_EQ(note.Times(), 1);
    EXPECT_TRUE(note.IsRight());
  }
  EXPECT_TRUE(Shows(s, "first"));
  EXPECT_FALSE(s.FindRow("No more files"));
  s.Keys("Alt-Down Alt-Down");
  {
    const NoteSeen note(s);
    s.Keys("Alt-Down");
    EXPECT_EQ(note.Times(), 1);
    EXPECT_TRUE(note.IsRight());
  }
  EXPECT_TRUE(Shows(s, "third"));
  s.Keys("Esc");
  EXPECT_EQ(s.Under(kLeftSide), "c");
}

TEST(ViewerWalk, TheFileThatIsViewedAgainIsWhereItWasLeft) {
  Session s({{"left/only", ManyLines(100)}});
  s.Keys("Down F3 PgDn");
  const NoteSeen note(s);
  s.Keys("Alt-Down");
  EXPECT_TRUE(Shows(s, "Line 23 "));
  EXPECT_EQ(note.Times(), 1);
}

TEST(ViewerWalk, ALongListScrollsToTheFileShown) {
  FileList files;
  for (int i = 0; i < 60; ++i) {
    char name[16];
    std::snprintf(name, sizeof name, "f%03d", i);
    files.emplace_back(std::string("left/") + name, std::string(name) + "\n");
  }
  Session s(files);
  s.Keys("Down F3");
  for (int i = 0; i < 50; ++i) s.Keys("Alt-Down");
  EXPECT_TRUE(Shows(s, "f050"));
  s.Keys("Esc");
  EXPECT_EQ(s.Under(kLeftSide), "f050");
  EXPECT_TRUE(PanelRow(s, kLeftSide, BarRow(s, kLeftSide)).Contains("f050"));
}

TEST(ViewerWalk, TheEntryTakesTheSizeThatTheFileHasNow) {
  Session s(kFiles);
  s.Keys("Down Down Ins Up F3");
  std::ofstream(s.Path("left/a"), std::ios::app) << std::string(994, '.');
  s.Keys("Esc");
  EXPECT_EQ(Panels[0].Current()->size, 1000);
  EXPECT_EQ(Panels[0].taggedBytes, 1000u);
  EXPECT_TRUE(PanelRow(s, kLeftSide, BarRow(s, kLeftSide)).Contains("1000"));
}

TEST(ViewerWalk, AFileThatIsGoneKeepsItsEntry) {
  Session s(kFiles);
  s.Keys("Down Down F3");
  ASSERT_EQ(remove(s.Path("left/a").c_str()), 0);
  s.Keys("Alt-Down Alt-Up");
  EXPECT_TRUE(s.FindRow("No such file or directory"));
  s.Keys("Enter");
  EXPECT_EQ(s.Under(kLeftSide), "a");
  EXPECT_EQ(Panels[0].Current()->size, 6);
}

TEST(ViewerWalk, TheRightPanelsFilesAreWalkedThere) {
  Session s({{"right/a", "first\n"}, {"right/b", "second\n"}});
  s.Keys("Tab Down F3 Alt-Down Esc");
  EXPECT_EQ(s.Under(kRightSide), "b");
  EXPECT_EQ(s.Active(), kRightSide);
}
