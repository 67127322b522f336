// Renaming without replacing, and what counts as one object.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include "fileops/copy_item.h"
#include "unit/scratch_directory.h"

namespace {

Westring Wide(const std::string& path) { return Westring(path.c_str()); }

int Rename(const ScratchDirectory& scratch, const std::string& from, const std::string& to) {
  return RenameObject(Wide(scratch.Path(from)), Wide(scratch.Path(to)));
}

bool IsSame(const ScratchDirectory& scratch, const std::string& a, const std::string& b) {
  return IsSameObject(Wide(scratch.Path(a)), Wide(scratch.Path(b)));
}

bool Exists(const std::string& path) {
  struct stat status;
  return lstat(path.c_str(), &status) == 0;
}

TEST(RenameObject, GivesTheNewName) {
  ScratchDirectory scratch;
  scratch.Write("a", "1");
  EXPECT_EQ(Rename(scratch, "a", "b"), 0);
  EXPECT_FALSE(Exists(scratch.Path("a")));
  EXPECT_TRUE(Exists(scratch.Path("b")));
}

TEST(RenameObject, RefusesATargetOfAnyKind) {
  ScratchDirectory scratch;
  scratch.Write("a", "1");
  scratch.Write("file", "2");
  scratch.MakeDirectory("dir");
  ASSERT_EQ(symlink("nothing", scratch.Path("dangling").c_str()), 0);
  for (const char* target : {"file", "dir", "dangling", "a"}) {
    EXPECT_EQ(Rename(scratch, "a", target), EEXIST) << target;
    EXPECT_TRUE(Exists(scratch.Path("a"))) << target;
  }
}

TEST(RenameObject, RefusesAnEmptyDirectoryInTheWayOfADirectory) {
  ScratchDirectory scratch;
  scratch.MakeDirectory("a");
  scratch.MakeDirectory("b");
  EXPECT_EQ(Rename(scratch, "a", "b"), EEXIST);
  EXPECT_TRUE(Exists(scratch.Path("a")));
}

TEST(RenameObject, TellsOfTheSourceBeforeTheTarget) {
  ScratchDirectory scratch;
  scratch.Write("b", "");
  EXPECT_EQ(Rename(scratch, "a", "b"), ENOENT);
}

TEST(RenameObject, MovesALinkAndNotWhatItLeadsTo) {
  ScratchDirectory scratch;
  scratch.Write("file", "1");
  ASSERT_EQ(symlink("file", scratch.Path("link").c_str()), 0);
  EXPECT_EQ(Rename(scratch, "link", "moved"), 0);
  EXPECT_TRUE(Exists(scratch.Path("file")));
  char text[16] = {};
  EXPECT_EQ(readlink(scratch.Path("moved").c_str(), text, sizeof text - 1), 4);
}

TEST(RenameObject, ADirectoryDoesNotGoIntoItself) {
  ScratchDirectory scratch;
  scratch.MakeDirectory("a");
  EXPECT_EQ(Rename(scratch, "a", "a/b"), EINVAL);
  EXPECT_TRUE(Exists(scratch.Path("a")));
  EXPECT_FALSE(Exists(scratch.Path("a/b")));
}

TEST(RenameObject, FailsWithTheErrorOfTheSystem) {
  ScratchDirectory scratch;
  scratch.Write("a", "");
  EXPECT_EQ(Rename(scratch, "a", "nowhere/b"), ENOENT);
  EXPECT_EQ(Rename(scratch, "a", std::string(256, 'x')), ENAMETOOLONG);
}

TEST(IsSameObject, ByTheSamePath) {
  ScratchDirectory scratch;
  scratch.Write("a", "");
  EXPECT_TRUE(IsSame(scratch, "a", "a"));
  EXPECT_TRUE(IsSame(scratch, "a", "./a"));
}

TEST(IsSameObject, ByAnotherNameOfTheSameFile) {
  ScratchDirectory scratch;
  scratch.Write("a", "");
  ASSERT_EQ(link(scratch.Path("a").c_str(), scratch.Path("b").c_str()), 0);
  EXPECT_TRUE(IsSame(scratch, "a", "b"));
}

TEST(IsSameObject, ThroughADirectoryThatIsALink) {
  ScratchDirectory scratch;
  scratch.MakeDirectory("dir");
  scratch.Write("dir/a", "");
  ASSERT_EQ(symlink("dir", scratch.Path("way").c_str()), 0);
  EXPECT_TRUE(IsSame(scratch, "dir/a", "way/a"));
}

TEST(IsSameObject, ALinkAndWhatItLeadsToInBothOrders) {
  ScratchDirectory scratch;
  scratch.Write("a", "");
  ASSERT_EQ(symlink("a", scratch.Path("link").c_str()), 0);
  EXPECT_TRUE(IsSame(scratch, "a", "link"));
  EXPECT_TRUE(IsSame(scratch, "link", "a"));
}

TEST(IsSameObject, TwoLinksToOneFileAreTwo) {
  ScratchDirectory scratch;
  scratch.Write("a", "");
  ASSERT_EQ(symlink("a", scratch.Path("one").c_str()), 0);
  ASSERT_EQ(symlink("a", scratch.Path("two").c_str()), 0);
  EXPECT_FALSE(IsSame(scratch, "one", "two"));
  EXPECT_TRUE(IsSame(scratch, "one", "one"));
}

TEST(IsSameObject, NotWithWhatIsNotThere) {
  ScratchDirectory scratch;
  scratch.Write("a", "");
  scratch.Write("b", "");
  EXPECT_FALSE(IsSame(scratch, "a", "b"));
  EXPECT_FALSE(IsSame(scratch, "a", "none"));
  EXPECT_FALSE(IsSame(scratch, "none", "none"));
}

}  // namespace
