// Files that are none, or not for us.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "session/viewer_screen.h"
#include "support/as_nobody.h"

namespace {

// Brings the panels back, whatever was told.
void ExpectPanels(Session& s) {
  EXPECT_TRUE(IsShown(s, kLeftSide));
  EXPECT_TRUE(s.Row(kBarRow).StartsWith("1Help   2Menu"));
}

SessionSetup Prepare(void (*prepare)(const std::string& left)) {
  return {.prepare = [prepare](const Sandbox& files) { prepare(files.Path("left")); }};
}

}  // namespace

TEST(ViewerOddFiles, AFileWithoutPermissionIsTold) {
  Session s({{"left/secret", "text"}});
  chmod(s.Path("left/secret").c_str(), 0);
  const AsNobody nobody(s.Path());
  s.Keys("Down F3");
  EXPECT_TRUE(s.FindRow("Permission denied"));
  EXPECT_TRUE(s.FindRow("secret"));
  s.Keys("Enter");
  ExpectPanels(s);
  EXPECT_EQ(s.Under(kLeftSide), "secret");
}

TEST(ViewerOddFiles, AFileThatVanishedIsTold) {
  Session s({{"left/file", "text"}});
  s.Keys("Down");
  ASSERT_EQ(remove(s.Path("left/file").c_str()), 0);
  s.Keys("F3");
  EXPECT_TRUE(s.FindRow("No such file or directory"));
  s.Keys("Esc");
  ExpectPanels(s);
}

TEST(ViewerOddFiles, ADirectoryNamedByTheUserIsTold) {
  Session s({{"left/dir/", ""}});
  s.Keys("Shift-F3 'dir' Enter");
  EXPECT_TRUE(s.FindRow("Is a directory"));
  s.Keys("Enter");
  ExpectPanels(s);
}

TEST(ViewerOddFiles, ALinkThatLeadsNowhereIsTold) {
  Session s({}, Prepare([](const std::string& left) {
              ASSERT_EQ(symlink("nowhere", (left + "/link").c_str()), 0);
            }));
  s.Keys("Down F3");
  EXPECT_TRUE(s.FindRow("No such file or directory"));
  s.Keys("Enter");
  ExpectPanels(s);
}

TEST(ViewerOddFiles, ALinkToAFileShowsTheFile) {
  Session s({{"right/file", "text\n"}}, Prepare([](const std::string& left) {
              ASSERT_EQ(symlink("../right/file", (left + "/link").c_str()), 0);
            }));
  s.Keys("Down F3");
  EXPECT_TRUE(s.Row(1).StartsWith("text "));
}

// Nobody may ever write to it.
TEST(ViewerOddFiles, APipeDoesNotKeepTheUserWaiting) {
  Session s({},
            Prepare([](const std::string& left) { ASSERT_EQ(mkfifo((left + "/pipe").c_str(), 0600), 0); }));
  s.Keys("Down F3 PgDn End Home F4 F4");
  s.Keys("Esc");
  ExpectPanels(s);
}

TEST(ViewerOddFiles, AFileThatKnowsNoSizeIsShownWhole) {
  Session s;
  s.Keys("Shift-F3 '/proc/self/limits' Enter");
  EXPECT_TRUE(s.Row(1).StartsWith("Limit "));
  EXPECT_TRUE(s.Row(2).StartsWith("Max cpu time "));
  s.Keys("F4 End");  // more rows than the screen has
  EXPECT_TRUE(s.Row(23).StartsWith("000"));
  EXPECT_EQ(s.Text(73, 0, 7).Trimmed(), "100.00%");
  s.Keys("Esc");
  ExpectPanels(s);
}

TEST(ViewerOddFiles, AFileThatIsReplacedWhileItIsOpenIsStillTheOldOne) {
  ViewerSession s(ManyLines(100));
  s.Write("left/other", "new\n");
  ASSERT_EQ(rename(s.Path("left/other").c_str(), s.Path("left/file").c_str()), 0);
  s.Keys("End");
  EXPECT_EQ(s.Bottom(), "Line 100");
  s.Keys("Esc F3");
  EXPECT_EQ(s.Top(), "new");
}

TEST(ViewerOddFiles, AFileThatIsEmptiedWhileItIsOpenDoesNoHarm) {
  ViewerSession s(ManyLines(100000));
  std::filesystem::resize_file(s.Path("left/file"), 0);
  s.Keys("PgDn End PgUp F4 PgDn F4 Home Down F7 'x' Enter Enter");
  EXPECT_TRUE(s.IsShown());
  s.Keys("Esc");
  ExpectPanels(s);
}

TEST(ViewerOddFiles, ALineWithoutEndIsGoneThroughBothWays) {
  ViewerSession s(std::string(3 << 20, 'x'), {.settings = "ViewerWrap=off\n"});
  EXPECT_TRUE(s.Row(3).StartsWith("xxxx"));
  EXPECT_EQ(s.Line(4), "");
  s.Keys("Alt-L '3' Enter");
  EXPECT_TRUE(s.Row(1).StartsWith("xxxx"));
  EXPECT_EQ(s.Line(2), "");
  s.Keys("Up Up Up");
  EXPECT_TRUE(s.Row(3).StartsWith("xxxx"));
  EXPECT_EQ(s.Line(4), "");
  s.Keys("Alt-L '4' Enter");
  EXPECT_TRUE(s.FindRow("Only 3 lines in this file"));
}
