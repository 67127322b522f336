// Shift-F8: a file that the user names.
#include <gtest/gtest.h>
#include <unistd.h>

#include "session/copy_screen.h"

namespace {

const FileList kFiles = {{"left/a", ""}, {"left/dir/inside", ""}, {"left/sub/", ""}, {"right/other", ""}};

}  // namespace

TEST(DeleteNamed, TheBoxOffersTheEntryUnderTheCursor) {
  Session s(kFiles);
  s.Keys("End Shift-F8");
  EXPECT_EQ(s.Character(3, 6), U'╔');
  EXPECT_EQ(s.Character(76, 14), U'╝');
  EXPECT_EQ(s.Text(5, 8, 16), "Delete the file:");
  EXPECT_EQ(s.Text(5, 10, 70).Trimmed(), "a");
  EXPECT_NE(s.Attribute(74, 10), s.Attribute(75, 10));  // the field is 70 wide
  EXPECT_TRUE(s.Row(12).Contains("[ OK ]  [ Cancel ]"));
}

TEST(DeleteNamed, EscEndsIt) {
  Session s(kFiles);
  s.Keys("End");
  const std::string before = s.Screen();
  s.Keys("Shift-F8 Esc");
  EXPECT_EQ(s.Screen(), before);
  s.Keys("Shift-F8 Enter Esc");
  EXPECT_EQ(s.Screen(), before);
  EXPECT_TRUE(s.Exists("left/a"));
}

TEST(DeleteNamed, AFileIsAskedForAsByF8) {
  Session s(kFiles);
  s.Keys("Shift-F8 '../right/other' Enter");
  const auto row = s.FindRow("Do you wish to delete");
  ASSERT_TRUE(row);
  EXPECT_TRUE(s.Row(*row + 1).Contains(s.Path("right/other")));
  EXPECT_FALSE(Shows(s, "Read Only"));
  s.Keys("Enter");
  EXPECT_FALSE(s.Exists("right/other"));
  EXPECT_EQ(s.Names(kRightSide), Strings{".."});
}

TEST(DeleteNamed, TagsDoNotCount) {
  Session s(kFiles);
  s.Keys("Down Ins Ins Shift-F8 'a' Enter Enter");
  EXPECT_FALSE(s.Exists("left/a"));
  EXPECT_TRUE(s.Exists("left/dir/inside"));
  EXPECT_TRUE(s.Exists("left/sub"));
  EXPECT_EQ(Panels[0].taggedCount, 2);
}

TEST(DeleteNamed, ADirectoryHasItsQuestions) {
  Session s(kFiles);
  s.Keys("Shift-F8 'dir' Enter");
  EXPECT_TRUE(Shows(s, "Delete Read Only: (•) Ask"));
  s.Keys("Enter");
  EXPECT_TRUE(Shows(s, "Delete tree?"));
  s.Keys("'YES' Enter");
  EXPECT_FALSE(s.Exists("left/dir"));
}

TEST(DeleteNamed, AFileThatIsNotThereIsTold) {
  Session s(kFiles);
  s.Keys("Shift-F8 'none' Enter");
  EXPECT_TRUE(Shows(s, "File not found"));
  EXPECT_TRUE(Shows(s, s.Path("left/none")));
  s.Keys("Enter");
  EXPECT_TRUE(s.Row(24).StartsWith("1Help"));
}

TEST(DeleteNamed, TheDirectoriesThatThePanelStandsInStay) {
  Session s(kFiles, {.settings = "Confirmations=7\n"});
  for (const char* name : {"'.'", "'..'", "'/'", "'../left'", "'dir/..'"}) {
    s.Keys(std::string("Shift-F8 ") + name + " Enter");
    EXPECT_TRUE(s.Exists("left/a")) << name;
    EXPECT_TRUE(s.Row(24).StartsWith("1Help")) << name;
  }
}

TEST(DeleteNamed, ALinkGoesAndItsTargetStays) {
  Session s(kFiles, {.settings = "Confirmations=7\n", .prepare = [](const Sandbox& files) {
                       ASSERT_EQ(symlink("../right", files.Path("left/link").c_str()), 0);
                     }});
  s.Keys("Shift-F8 'link' Enter");
  EXPECT_FALSE(s.Exists("left/link"));
  EXPECT_TRUE(s.Exists("right/other"));
}

// A name is no command: nothing in it is expanded.
TEST(DeleteNamed, ADollarIsPartOfTheName) {
  Session s({{"left/$HOME", ""}, {"home/kept", ""}}, {.settings = "Confirmations=7\n"});
  s.Keys("End Shift-F8 Enter");
  EXPECT_FALSE(s.Exists("left/$HOME"));
  EXPECT_TRUE(s.Exists("home/kept"));
}

TEST(DeleteNamed, ANameThatIsNoTextIsRefused) {
  Session s({{"left/caf\xE9", "raw"}, {"left/caf\xC3\xA9", "text"}}, {.settings = "Confirmations=7\n"});
  s.Keys("End Shift-F8 Enter");
  EXPECT_TRUE(Shows(s, "(84)"));
  s.Keys("s");
  EXPECT_TRUE(s.Exists("left/caf\xE9"));
  EXPECT_TRUE(s.Exists("left/caf\xC3\xA9"));
}

TEST(DeleteNamed, FromAnInformationPanelItNamesAFileOfTheOther) {
  Session s(kFiles, {.settings = "Confirmations=7\n"});
  s.Keys("End Ctrl-L Tab Shift-F8");
  EXPECT_EQ(s.Text(5, 10, 70).Trimmed(), "");
  s.Keys("'a' Enter");
  EXPECT_FALSE(s.Exists("left/a"));
}
