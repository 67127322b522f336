// Paths as text, and the few questions to the system about them.
#include "foundation/paths.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string>

#include "unit/scratch_directory.h"

namespace {

std::string Normal(const char* path, const char* base = "/base/dir") {
  Westring result("unset");
  return NormalisePath(Westring(path), Westring(base), result) ? ToUtf8(result).Text() : "refused";
}

std::string Joined(const char* directory, const char* name) {
  return ToUtf8(JoinPath(Westring(directory), Westring(name))).Text();
}

std::string Short(const char* path, int width) { return ToUtf8(ShortenPath(Westring(path), width)).Text(); }

}  // namespace

TEST(NormalisePath, AbsolutePathStandsAlone) {
  EXPECT_EQ(Normal("/a/b"), "/a/b");
  EXPECT_EQ(Normal("/"), "/");
  EXPECT_EQ(Normal("/a/b/"), "/a/b");
}

TEST(NormalisePath, RelativePathStandsOnTheBase) {
  EXPECT_EQ(Normal("x"), "/base/dir/x");
  EXPECT_EQ(Normal("./x/."), "/base/dir/x");
  EXPECT_EQ(Normal("."), "/base/dir");
  EXPECT_EQ(Normal("x", "/"), "/x");
  EXPECT_EQ(Normal("x", "//host/share"), "//host/share/x");
}

TEST(NormalisePath, DotDotTakesADirectoryAwayAndStopsAtTheRoot) {
  EXPECT_EQ(Normal(".."), "/base");
  EXPECT_EQ(Normal("../../../../x"), "/x");
  EXPECT_EQ(Normal("/a/../b"), "/b");
  EXPECT_EQ(Normal("/.."), "/");
  EXPECT_EQ(Normal("/a/..."), "/a/...");
  EXPECT_EQ(Normal("/a/..b"), "/a/..b");
}

TEST(NormalisePath, DoubledSlashesGoExceptTwoInFront) {
  EXPECT_EQ(Normal("/a//b///c"), "/a/b/c");
  EXPECT_EQ(Normal("//host//share"), "//host/share");
  EXPECT_EQ(Normal("//"), "//");
  EXPECT_EQ(Normal("//a/.."), "//");
}

TEST(NormalisePath, RefusesAnEmptyOrTooLongPathAndLeavesTheResult) {
  Westring result("unset");
  EXPECT_FALSE(NormalisePath(Westring(), Westring("/"), result));
  const std::string longest = "/" + std::string(510, 'a');
  EXPECT_FALSE(NormalisePath(Westring((longest + "a").c_str()), Westring("/"), result));
  EXPECT_STREQ(result.Text(), L"unset");
  EXPECT_EQ(Normal(longest.c_str()), longest);
}

TEST(NormalisePath, OnlyTheLengthWhenDoneCounts) {
  std::string winding = "/a";
  for (int i = 0; i < 50000; ++i) winding += "/b/..";
  EXPECT_EQ(Normal(winding.c_str()), "/a");
}

TEST(NormalisePath, TheLengthThatIsTakenMayBeAnother) {
  const Westring path = L"/" + Westring::Replicate(L'x', kLongestPanelPath);
  Westring result;
  EXPECT_FALSE(NormalisePath(path, L"/", result));
  EXPECT_TRUE(NormalisePath(path, L"/", result, kLongestPanelPath + 1));
  EXPECT_FALSE(NormalisePath(path, L"/", result, kLongestPanelPath));
}

TEST(NormalisePath, ResultMayBeAnArgument) {
  Westring path("../x");
  ASSERT_TRUE(NormalisePath(path, Westring("/a/b"), path));
  EXPECT_STREQ(path.Text(), L"/a/x");
}

TEST(JoinPath, PutsExactlyOneSlashBetween) {
  EXPECT_EQ(Joined("/a", "b"), "/a/b");
  EXPECT_EQ(Joined("/a/", "b"), "/a/b");
  EXPECT_EQ(Joined("/a/", "/b"), "/a/b");
  EXPECT_EQ(Joined("/", "b"), "/b");
  EXPECT_EQ(Joined("", "b"), "/b");  // the root without its slash is empty
}

TEST(ShortenPath, PathThatFitsStays) {
  EXPECT_EQ(Short("/home/user", 10), "/home/user");
  EXPECT_EQ(Short("", 0), "");
}

TEST(ShortenPath, KeepsTheFirstDirectoryAndTheTail) {
  EXPECT_EQ(Short("/home/user/projects/x", 20), "/home/.../projects/x");
  EXPECT_EQ(Short("/a/bcdefghijk", 8), "/a/...jk");
}

TEST(ShortenPath, KeepsTwoDirectoriesOfANetworkPath) {
  EXPECT_EQ(Short("//host/share/one/two/three", 22), "//host/share/.../three");
}

TEST(ShortenPath, WithoutAUsableHeadTheEndIsCutWithAMark) {
  EXPECT_EQ(Short("relative/path", 8), "relativ\x10");
  EXPECT_EQ(Short("/longdirectoryname", 8), "/longdi\x10");
  EXPECT_EQ(Short("//host/longname", 10), "//host/lo\x10");
}

TEST(ShortenPath, TooNarrowForHeadAndDotsIsCutToo) {
  EXPECT_EQ(Short("/home/user/x", 9), "/home/us\x10");
  EXPECT_EQ(Short("/home/user/x", 10), "/home/...x");
  EXPECT_EQ(Short("/home/user/x", 1), "\x10");
  EXPECT_EQ(Short("/home/user/x", 0), "");
  EXPECT_EQ(Short("/home/user/x", -5), "");
}

TEST(ShortenPath, ResultNeverPassesTheWidth) {
  for (const char* path : {"/home/user/projects/file", "//host/share/dir/file", "plain-name-without-slash"})
    for (int width = 1; width < 30; ++width) {
      const int expected = std::min(width, static_cast<int>(std::string(path).size()));
      EXPECT_EQ(static_cast<int>(Short(path, width).size()), expected) << path << " in " << width;
    }
}

TEST(Paths, TellFilesFromDirectories) {
  ScratchDirectory box;
  box.Write("file", "x");
  box.MakeDirectory("d");
  const Westring file(box.Path("file").c_str()), directory(box.Path("d").c_str());
  EXPECT_TRUE(FileExists(file));
  EXPECT_FALSE(DirectoryExists(file));
  EXPECT_TRUE(FileExists(directory));
  EXPECT_TRUE(DirectoryExists(directory));
  EXPECT_FALSE(FileExists(Westring(box.Path("none").c_str())));
  EXPECT_FALSE(DirectoryExists(Westring()));
}

TEST(Paths, NameOutsideUtf8IsNotFoundAndHarmless) {
  ScratchDirectory box;
  box.Write("bad\xFFname", "x");
  EXPECT_FALSE(FileExists(Westring(box.Path("bad\xFFname").c_str())));
}

TEST(Paths, CurrentDirectoryIsTheProcesss) {
  ScratchDirectory box;
  const Westring before = CurrentDirectory();
  ASSERT_EQ(chdir(box.Path().c_str()), 0);
  EXPECT_EQ(std::string(ToUtf8(CurrentDirectory()).Text()), box.Path());
  ASSERT_EQ(chdir(ToUtf8(before).Text()), 0);
}

TEST(Paths, CurrentDirectoryThatHasGoneIsEmpty) {
  const Westring before = CurrentDirectory();
  {
    ScratchDirectory box;
    ASSERT_EQ(chdir(box.Path().c_str()), 0);
  }
  EXPECT_TRUE(CurrentDirectory().IsEmpty());
  ASSERT_EQ(chdir(ToUtf8(before).Text()), 0);
}

TEST(Paths, ProgramDirectoryHoldsThisProgram) {
  const Estring directory = ProgramDirectory();
  char program[4096] = "";
  ASSERT_GT(readlink("/proc/self/exe", program, sizeof program - 1), 0);
  EXPECT_EQ(std::string(program).substr(0, std::string(program).rfind('/')), directory.Text());
}

TEST(SystemError, IsTheSystemsTextWithoutTrailingBlanks) {
  EXPECT_STREQ(SystemError(ENOENT).Text(), "No such file or directory");
  const Estring unknown = SystemError(99999);
  ASSERT_FALSE(unknown.IsEmpty());
  EXPECT_NE(unknown[Length(unknown) - 1], ' ');
}
