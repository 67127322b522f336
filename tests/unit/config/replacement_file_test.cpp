// Replacing a file at once: names, links, modes and what is in the way.
#include "config/replacement_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include "unit/scratch_directory.h"

namespace {

class ReplacementFileTest : public testing::Test {
 protected:
  ReplacementFileTest() { umask(022); }

  Westring Path(const std::string& name) const { return Westring(box.Path(name).c_str()); }
  // Replaces name; the name of the scratch file, or what failed.
  std::string Replace(const std::string& name, const std::string& content) {
    ReplacementFile replacement;
    if (const int code = replacement.Open(Path(name))) return "open " + std::to_string(code);
    const std::string scratch = ToUtf8(replacement.ScratchPath()).Text();
    replacement.File().Write(content.data(), content.size());
    if (const int code = replacement.Commit()) return "commit " + std::to_string(code);
    return scratch.substr(box.Path().size() + 1);
  }
  struct stat Status(const std::string& name) const {
    struct stat status {};
    lstat(box.Path(name).c_str(), &status);
    return status;
  }
  mode_t Mode(const std::string& name) const { return Status(name).st_mode & 07777; }

  ScratchDirectory box;
};

}  // namespace

TEST_F(ReplacementFileTest, ScratchNameEndsInThreeExclamationMarks) {
  EXPECT_EQ(Replace("orvane.ini", "x"), "orvane.!!!");
  EXPECT_EQ(Replace("abc", "x"), "!!!");
  EXPECT_EQ(Replace("a\xC3\xA4\xE4\xB8\xAD\xC3\xB6", "x"), "a!!!");  // characters, not bytes
  for (const char* name : {"orvane.ini", "abc", "a\xC3\xA4\xE4\xB8\xAD\xC3\xB6"})
    EXPECT_EQ(box.Content(name), "x");
  EXPECT_FALSE(box.Exists("!!!"));
}

TEST_F(ReplacementFileTest, ShortNameAndScratchsOwnNameAreKeptWhole) {
  EXPECT_EQ(Replace("ab", "x"), "ab!!!");
  EXPECT_EQ(Replace("\xC3\xA4\xC3\xB6", "x"), "\xC3\xA4\xC3\xB6!!!");
  EXPECT_EQ(Replace("!!!", "x"), "!!!!!!");
  EXPECT_EQ(Replace("own.!!!", "x"), "own.!!!!!!");
  EXPECT_EQ(box.Content("own.!!!"), "x");
  box.MakeDirectory("directory");
  EXPECT_EQ(Replace("directory/a", "x"), "directory/a!!!");
}

TEST_F(ReplacementFileTest, OldFileStaysUntilCommit) {
  box.Write("f.ini", "old");
  {
    ReplacementFile replacement;
    ASSERT_EQ(replacement.Open(Path("f.ini")), 0);
    replacement.File().Write("new", 3);
    replacement.File().Flush();
    EXPECT_EQ(box.Content("f.ini"), "old");
    EXPECT_EQ(box.Content("f.!!!"), "new");
  }
  EXPECT_EQ(box.Content("f.ini"), "old");
  EXPECT_FALSE(box.Exists("f.!!!"));
  EXPECT_EQ(Replace("f.ini", "new"), "f.!!!");
  EXPECT_EQ(box.Content("f.ini"), "new");
  EXPECT_FALSE(box.Exists("f.!!!"));
}

TEST_F(ReplacementFileTest, ModeOfTheOldFileIsKept) {
  box.Write("f.ini", "old");
  for (const mode_t mode : {0600, 0640, 0444, 0755}) {
    ASSERT_EQ(chmod(box.Path("f.ini").c_str(), mode), 0);
    EXPECT_EQ(Replace("f.ini", "new"), "f.!!!");
    EXPECT_EQ(Mode("f.ini"), mode);
  }
  EXPECT_EQ(Replace("new.ini", "new"), "new.!!!");
  EXPECT_EQ(Mode("new.ini"), 0644u);
}

TEST_F(ReplacementFileTest, ModeHoldsBeforeAnythingIsWritten) {
  box.Write("f.ini", "old");
  ASSERT_EQ(chmod(box.Path("f.ini").c_str(), 0600), 0);
  ReplacementFile replacement;
  ASSERT_EQ(replacement.Open(Path("f.ini")), 0);
  EXPECT_EQ(Mode("f.!!!"), 0600u);
}

TEST_F(ReplacementFileTest, LinksStay) {
  box.MakeDirectory("real");
  box.Write("real/target.ini", "old");
  ASSERT_EQ(symlink("middle", box.Path("f.ini").c_str()), 0);
  ASSERT_EQ(symlink((box.Path("real") + "/target.ini").c_str(), box.Path("middle").c_str()), 0);
  EXPECT_EQ(Replace("f.ini", "new"), "real/target.!!!");
  EXPECT_TRUE(S_ISLNK(Status("f.ini").st_mode));
  EXPECT_TRUE(S_ISLNK(Status("middle").st_mode));
  EXPECT_EQ(box.Content("real/target.ini"), "new");
}

TEST_F(ReplacementFileTest, DanglingLinkGetsItsTarget) {
  box.MakeDirectory("real");
  ASSERT_EQ(symlink("real/target.ini", box.Path("f.ini").c_str()), 0);
  EXPECT_EQ(Replace("f.ini", "new"), "real/target.!!!");
  EXPECT_TRUE(S_ISLNK(Status("f.ini").st_mode));
  EXPECT_EQ(box.Content("f.ini"), "new");
}

TEST_F(ReplacementFileTest, LinkToItselfIsAnError) {
  ASSERT_EQ(symlink("f.ini", box.Path("f.ini").c_str()), 0);
  EXPECT_EQ(Replace("f.ini", "new"), "open " + std::to_string(ELOOP));
}

TEST_F(ReplacementFileTest, OnlyPlainFilesAreReplaced) {
  box.MakeDirectory("d.ini");
  ASSERT_EQ(mkfifo(box.Path("p.ini").c_str(), 0600), 0);
  EXPECT_EQ(Replace("d.ini", "x"), "open " + std::to_string(EISDIR));
  EXPECT_EQ(Replace("p.ini", "x"), "open " + std::to_string(EINVAL));
  EXPECT_FALSE(box.Exists("d.!!!"));
  EXPECT_TRUE(S_ISFIFO(Status("p.ini").st_mode));
}

TEST_F(ReplacementFileTest, LeftoverOfACrashIsInNobodysWay) {
  box.Write("f.!!!", "a longer text from a save that was killed");
  ASSERT_EQ(chmod(box.Path("f.!!!").c_str(), 0400), 0);
  EXPECT_EQ(Replace("f.ini", "new"), "f.!!!");
  EXPECT_EQ(box.Content("f.ini"), "new");
}

TEST_F(ReplacementFileTest, LinkOrPipeInTheScratchsPlaceIsRemovedNotWritten) {
  box.Write("victim", "precious");
  ASSERT_EQ(symlink("victim", box.Path("f.!!!").c_str()), 0);
  EXPECT_EQ(Replace("f.ini", "new"), "f.!!!");
  EXPECT_EQ(box.Content("victim"), "precious");
  EXPECT_TRUE(S_ISREG(Status("f.ini").st_mode));
  ASSERT_EQ(mkfifo(box.Path("f.!!!").c_str(), 0600), 0);
  EXPECT_EQ(Replace("f.ini", "newer"), "f.!!!");
  EXPECT_EQ(box.Content("f.ini"), "newer");
}

TEST_F(ReplacementFileTest, FailedCommitLeavesTheOldFile) {
  box.Write("f.ini", "old");
  ReplacementFile replacement;
  ASSERT_EQ(replacement.Open(Path("f.ini")), 0);
  replacement.File().Write("new", 3);
  // The scratch file is gone, as if another program had cleaned up.
  ASSERT_EQ(unlink(box.Path("f.!!!").c_str()), 0);
  EXPECT_EQ(replacement.Commit(), ENOENT);
  EXPECT_EQ(box.Content("f.ini"), "old");
}

TEST_F(ReplacementFileTest, ContentStaysInTheScratchFileIfTheOldOneCannotBeReplaced) {
  {
    ReplacementFile replacement;
    ASSERT_EQ(replacement.Open(Path("f.ini")), 0);
    replacement.File().Write("new", 3);
    box.MakeDirectory("f.ini");  // by another program, in the meantime
    EXPECT_EQ(replacement.Commit(), EISDIR);
  }
  EXPECT_EQ(box.Content("f.!!!"), "new");
}
