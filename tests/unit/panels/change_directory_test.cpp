#include "unit/panels/fake_archive.h"
#include "unit/panels/two_panels.h"

namespace {

class ChangeDirectoryTest : public TwoPanels {
 protected:
  bool Change(const std::string& target) { return ChangeDirectory(Left(), Wide(target)); }
};

TEST_F(ChangeDirectoryTest, GoesToAnyDirectoryWithoutReading) {
  scratch.MakeDirectory("a/b");
  Read();
  EXPECT_TRUE(Change(scratch.Path("a/b")));
  EXPECT_EQ(PathOf(Left()), scratch.Path("a/b"));
  EXPECT_EQ(Narrow(Left().lastPath), scratch.Path());
  EXPECT_TRUE(Change("/"));
  EXPECT_EQ(PathOf(Left()), "/");
  EXPECT_TRUE(Change(scratch.Path("a")));
}

TEST_F(ChangeDirectoryTest, RelativeTargetsStartAtThePanelsPath) {
  scratch.MakeDirectory("a/b");
  scratch.MakeDirectory("c");
  Read("a/b");
  EXPECT_TRUE(Change(".."));
  EXPECT_EQ(PathOf(Left()), scratch.Path("a"));
  EXPECT_TRUE(Change("b/../../c/."));
  EXPECT_EQ(PathOf(Left()), scratch.Path("c"));
  EXPECT_TRUE(Change("."));
  EXPECT_EQ(PathOf(Left()), scratch.Path("c"));
}

TEST_F(ChangeDirectoryTest, AFileThatIsNoArchiveFailsAndThePanelStays) {
  MakeFiles({"file"});
  scratch.MakeDirectory("a");
  Read("a");
  EXPECT_FALSE(Change(scratch.Path("file")));
  EXPECT_FALSE(Change(scratch.Path("file/below")));
  EXPECT_FALSE(Change(scratch.Path("nothing")));
  EXPECT_FALSE(Change(""));
  EXPECT_EQ(PathOf(Left()), scratch.Path("a"));
}

TEST_F(ChangeDirectoryTest, LinksToDirectoriesAreDirectories) {
  scratch.MakeDirectory("real");
  ASSERT_EQ(symlink("real", scratch.Path("link").c_str()), 0);
  ASSERT_EQ(symlink("loop", scratch.Path("loop").c_str()), 0);
  EXPECT_TRUE(Change(scratch.Path("link")));
  EXPECT_EQ(PathOf(Left()), scratch.Path("link"));
  EXPECT_FALSE(Change(scratch.Path("loop")));
}

TEST_F(ChangeDirectoryTest, ANeighbourWithALongerNameIsNoStem) {
  scratch.MakeDirectory("ab");
  scratch.MakeDirectory("a");
  Read("ab");
  EXPECT_TRUE(Change(scratch.Path("a")));
  EXPECT_FALSE(Change(scratch.Path("abc")));
}

TEST_F(ChangeDirectoryTest, APathOfTwoSlashesKeepsThem) {
  scratch.MakeDirectory("a");
  EXPECT_TRUE(Change("/" + scratch.Path("a")));
  EXPECT_EQ(PathOf(Left()), "/" + scratch.Path("a"));
  EXPECT_FALSE(Change("//no-such-host"));
  EXPECT_TRUE(Change("/" + scratch.Path()));
  EXPECT_EQ(PathOf(Left()), "/" + scratch.Path());
}

TEST_F(ChangeDirectoryTest, FromNowhereEveryDirectoryCanBeReached) {
  CopyText(Left().path, L"");
  EXPECT_TRUE(Change(scratch.Path()));
  EXPECT_EQ(PathOf(Left()), scratch.Path());
}

TEST_F(ChangeDirectoryTest, APathThatIsTooLongFails) {
  Read();
  EXPECT_FALSE(Change(std::string(600, 'x')));
  EXPECT_EQ(PathOf(Left()), scratch.Path());
}

// ---- archives --------------------------------------------------------------

// outer.zip holds docs/deep and inner.zip; inner.zip holds in.
class ChangeThroughArchives : public ChangeDirectoryTest {
 protected:
  ChangeThroughArchives() {
    MakeFiles({"outer.zip", "plain"});
    scratch.MakeDirectory("d");
    FakeArchives[Key("outer.zip")].directories = {
        {L"", {{L"docs", kAttrDirectory}, {L"inner.zip"}, {L"broken.zip"}}},
        {L"docs", {{L"deep", kAttrDirectory}, {L"text"}}}};
    FakeArchives[Key("outer.zip/inner.zip")].directories = {{L"", {{L"in", kAttrDirectory}}}};
    Read();
  }
  std::wstring Key(const std::string& below) { return Wide(scratch.Path(below)).Text(); }
  bool ChangeBelow(const std::string& below) { return Change(scratch.Path(below)); }
  // Paths of the levels, the innermost first.
  std::vector<std::wstring> Levels() {
    std::vector<std::wstring> paths;
    for (const ArchiveLevel* level = Left().archive.get(); level; level = level->parent.get()) {
      paths.push_back(level->Path().Text());
    }
    return paths;
  }
  using Paths = std::vector<std::wstring>;
  const FakeArchiveHook hook;
};

TEST_F(ChangeThroughArchives, AnArchiveOnTheWayIsOpened) {
  EXPECT_TRUE(ChangeBelow("outer.zip"));
  EXPECT_EQ(Levels(), Paths{Key("outer.zip")});
  EXPECT_EQ(PathOf(Left()), scratch.Path("outer.zip"));
}

TEST_F(ChangeThroughArchives, TheWalkGoesOnInsideAndIntoNestedOnes) {
  EXPECT_TRUE(ChangeBelow("outer.zip/inner.zip/in"));
  EXPECT_EQ(Levels(), (Paths{Key("outer.zip/inner.zip"), Key("outer.zip")}));
  EXPECT_EQ(PathOf(Left()), scratch.Path("outer.zip/inner.zip/in"));
}

TEST_F(ChangeThroughArchives, WithinAnArchiveItIsNotOpenedAnew) {
  ASSERT_TRUE(ChangeBelow("outer.zip/docs/deep"));
  const ArchiveLevel* const level = Left().archive.get();
  EXPECT_TRUE(ChangeBelow("outer.zip/docs"));
  EXPECT_TRUE(ChangeBelow("outer.zip"));
  EXPECT_TRUE(Change("docs/deep"));
  EXPECT_EQ(Left().archive.get(), level);
  EXPECT_EQ(ClosedArchives, Paths{});
}

TEST_F(ChangeThroughArchives, TargetsOutsideLeaveTheArchives) {
  ASSERT_TRUE(ChangeBelow("outer.zip/inner.zip/in"));
  EXPECT_TRUE(ChangeBelow("outer.zip/docs"));
  EXPECT_EQ(Levels(), Paths{Key("outer.zip")});
  EXPECT_TRUE(ChangeBelow("d"));
  EXPECT_EQ(Levels(), Paths{});
  EXPECT_EQ(ClosedArchives, (Paths{Key("outer.zip/inner.zip"), Key("outer.zip")}));
}

TEST_F(ChangeThroughArchives, ANestedFileThatIsNoArchiveFailsAndOpensNothing) {
  EXPECT_FALSE(ChangeBelow("outer.zip/broken.zip"));
  EXPECT_FALSE(ChangeBelow("outer.zip/docs/text"));
  EXPECT_FALSE(ChangeBelow("outer.zip/nothing"));
  EXPECT_EQ(Levels(), Paths{});
  EXPECT_EQ(PathOf(Left()), scratch.Path());
}

TEST_F(ChangeThroughArchives, AFailedWalkPutsThePanelBackIntoItsArchives) {
  ASSERT_TRUE(ChangeBelow("outer.zip/inner.zip/in"));
  EXPECT_FALSE(ChangeBelow("plain"));
  EXPECT_EQ(Levels(), (Paths{Key("outer.zip/inner.zip"), Key("outer.zip")}));
  EXPECT_EQ(PathOf(Left()), scratch.Path("outer.zip/inner.zip/in"));
  EXPECT_FALSE(ChangeBelow("outer.zip/broken.zip"));
  EXPECT_EQ(Levels(), (Paths{Key("outer.zip/inner.zip"), Key("outer.zip")}));
  EXPECT_EQ(PathOf(Left()), scratch.Path("outer.zip/inner.zip/in"));
  EXPECT_FALSE(Left().readPending);
}

TEST_F(ChangeThroughArchives, AnArchiveThatDoesNotOpenAgainLeavesThePanelBesideIt) {
  ASSERT_TRUE(ChangeBelow("outer.zip/inner.zip/in"));
  OpenArchive = [](const Westring& path, ArchiveLevel* parent) {
    return parent ? nullptr : OpenFakeArchive(path, parent);
  };
  EXPECT_FALSE(ChangeBelow("plain"));
  EXPECT_EQ(Levels(), Paths{Key("outer.zip")});
  EXPECT_EQ(PathOf(Left()), scratch.Path("outer.zip"));
  EXPECT_TRUE(Left().readPending) << "the listing is that of the path before";
}

TEST_F(ChangeThroughArchives, AnArchiveWhoseFileIsGoneIsLeft) {
  ASSERT_TRUE(ChangeBelow("outer.zip/docs"));
  FakeArchives[Key("outer.zip")].exists = false;
  unlink(scratch.Path("outer.zip").c_str());
  EXPECT_FALSE(ChangeBelow("outer.zip/docs/deep"));
  EXPECT_EQ(Levels(), Paths{});
  EXPECT_TRUE(ChangeBelow("d"));
  EXPECT_EQ(PathOf(Left()), scratch.Path("d"));
}

TEST_F(ChangeThroughArchives, WithoutAnyFormatFilesAreNoArchives) {
  OpenArchive = nullptr;
  EXPECT_FALSE(ChangeBelow("outer.zip"));
}

}  // namespace
