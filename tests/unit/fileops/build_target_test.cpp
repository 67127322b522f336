#include "fileops/build_target.h"

#include <gtest/gtest.h>

#include <string>

#include "unit/scratch_directory.h"

namespace {

std::string Target(const std::string& source, const std::string& spec) {
  Westring out;
  BuildTarget(Westring(source.c_str()), Westring(spec.c_str()), out);
  return ToUtf8(out).Text();
}

TEST(BuildTarget, APathThatIsNoDirectoryIsTheTarget) {
  EXPECT_EQ(Target("/nowhere/a.txt", "/nowhere/b.txt"), "/nowhere/b.txt");
}

TEST(BuildTarget, AnExistingDirectoryGetsTheName) {
  ScratchDirectory scratch;
  scratch.MakeDirectory("dir");
  EXPECT_EQ(Target("/nowhere/a.txt", scratch.Path("dir")), scratch.Path("dir/a.txt"));
}

TEST(BuildTarget, AnExistingFileIsTheTarget) {
  ScratchDirectory scratch;
  scratch.Write("file", "");
  EXPECT_EQ(Target("/nowhere/a.txt", scratch.Path("file")), scratch.Path("file"));
}

TEST(BuildTarget, AClosingSlashMeansADirectoryWhateverIsThere) {
  EXPECT_EQ(Target("/nowhere/a.txt", "/nowhere/dir/"), "/nowhere/dir/a.txt");
}

TEST(BuildTarget, AClosingSlashMakesADirectoryOfTheSourcesName) {
  EXPECT_EQ(Target("/nowhere/x", "/nowhere/x/"), "/nowhere/x/x");
}

TEST(BuildTarget, TheRootHoldsNames) { EXPECT_EQ(Target("/nowhere/a.txt", "/"), "/a.txt"); }

TEST(BuildTarget, ADirectoryIsItsOwnTarget) {
  ScratchDirectory scratch;
  scratch.MakeDirectory("x");
  EXPECT_EQ(Target(scratch.Path("x"), scratch.Path("x")), scratch.Path("x"));
}

TEST(BuildTarget, ADirectoryOfTheSourcesNameIsTheTarget) {
  ScratchDirectory scratch;
  scratch.MakeDirectory("x");
  EXPECT_EQ(Target("/nowhere/x", scratch.Path("x")), scratch.Path("x"));
}

TEST(BuildTarget, ADirectoryOfTheSourcesNameInOtherCaseGetsTheName) {
  ScratchDirectory scratch;
  scratch.MakeDirectory("X");
  EXPECT_EQ(Target("/nowhere/x", scratch.Path("X")), scratch.Path("X/x"));
}

TEST(BuildTarget, AStarStandsForTheRestOfAPartOfTheName) {
  EXPECT_EQ(Target("/a/a.txt", "/b/*.bak"), "/b/a.bak");
  EXPECT_EQ(Target("/a/long.tar.gz", "/b/*.*"), "/b/long.tar");
  EXPECT_EQ(Target("/a/name", "/b/new-*"), "/b/new-name");
}

TEST(BuildTarget, StarsOnBothSidesOfAPointKeepTheName) {
  EXPECT_EQ(Target("/a/a.txt", "/b/*.*"), "/b/a.txt");
  EXPECT_EQ(Target("/a/.profile", "/b/*.*"), "/b/.profile");
}

TEST(BuildTarget, AQuestionMarkStandsForACharacterIfOneIsLeft) {
  EXPECT_EQ(Target("/a/abc.txt", "/b/??"), "/b/ab");
  EXPECT_EQ(Target("/a/a", "/b/???"), "/b/a");
}

TEST(BuildTarget, APointMovesBehindTheSourcesNextPoint) {
  EXPECT_EQ(Target("/a/abc.txt", "/b/?.?"), "/b/a.t");
}

TEST(BuildTarget, OtherCharactersTakeNothingOfTheSource) { EXPECT_EQ(Target("/a/abc", "/b/xy?"), "/b/xya"); }

TEST(BuildTarget, APatternCountsInTheLastComponentOnly) {
  EXPECT_EQ(Target("/a/abc", "/b*/c"), "/b*/c");
  EXPECT_EQ(Target("/a/abc", "/b*/c*"), "/b*/cabc");
}

TEST(BuildTarget, ASlashBehindAPatternIsDropped) { EXPECT_EQ(Target("/a/a.txt", "/b/*.bak/"), "/b/a.bak"); }

TEST(BuildTarget, APatternThatIsADirectoryIsAPattern) {
  ScratchDirectory scratch;
  scratch.MakeDirectory("*");
  EXPECT_EQ(Target("/a/abc", scratch.Path("*")), scratch.Path("abc"));
}

TEST(BuildTarget, APatternThatLeavesNoNameKeepsTheName) {
  EXPECT_EQ(Target("/a/.profile", "/b/*"), "/b/.profile");
  EXPECT_EQ(Target("/a/.x", "/b/*."), "/b/.x");
}

TEST(TargetPattern, IsOneInTheLastComponent) {
  for (const wchar_t* spec : {L"/a/*", L"/a/?", L"/a/x*y", L"*", L"/a/*/"})
    EXPECT_TRUE(IsTargetPattern(spec));
  for (const wchar_t* spec : {L"/a/b", L"/*/b", L"/", L"", L"/a/"}) EXPECT_FALSE(IsTargetPattern(spec));
}

}  // namespace
