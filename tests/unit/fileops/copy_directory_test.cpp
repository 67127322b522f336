// Directories with all they hold, as far as nothing is asked.
#include <fcntl.h>

#include <set>

#include "unit/fileops/copy_fixture.h"

namespace {

class CopyDirectoryTest : public CopyFixture {
 protected:
  void Make(std::initializer_list<std::pair<const char*, const char*>> list) {
    for (const auto& [name, content] : list) {
      const std::string path = name;
      files.MakeDirectory(path.substr(0, path.rfind('/')));
      if (path.back() != '/') files.Write(path, content);
    }
  }

  std::set<std::string> Names(const std::string& name) const {
    std::set<std::string> names;
    for (const auto& found : std::filesystem::directory_iterator(files.Path(name)))
      names.insert(found.path().filename().string());
    return names;
  }
};

using StringSet = std::set<std::string>;

TEST_F(CopyDirectoryTest, AllThatItHoldsArrives) {
  Make(
      {{"source/a", "one"}, {"source/.hidden", "two"}, {"source/sub/empty/", ""}, {"source/sub/b", "three"}});
  ASSERT_EQ(symlink("../a", files.Path("source/sub/link").c_str()), 0);
  EXPECT_EQ(Copy(), 0);
  EXPECT_EQ(files.Content("target/a"), "one");
  EXPECT_EQ(files.Content("target/.hidden"), "two");
  EXPECT_EQ(files.Content("target/sub/b"), "three");
  EXPECT_TRUE(S_ISDIR(Status("target/sub/empty").st_mode));
  EXPECT_TRUE(S_ISLNK(Status("target/sub/link").st_mode));
  EXPECT_EQ(files.Content("source/a"), "one");
}

TEST_F(CopyDirectoryTest, ADirectoryKeepsItsModeAndNotItsTime) {
  Make({{"source/", ""}});
  chmod(files.Path("source").c_str(), 0750);
  const timespec times[2] = {{0, UTIME_OMIT}, {1000, 0}};
  utimensat(AT_FDCWD, files.Path("source").c_str(), times, 0);
  EXPECT_EQ(Copy(), 0);
  EXPECT_EQ(Mode("target"), 0750u);
  EXPECT_NE(Status("target").st_mtim.tv_sec, 1000);
}

TEST_F(CopyDirectoryTest, AnExistingDirectoryIsMerged) {
  Make({{"source/a", "new"}, {"target/b", "old"}});
  EXPECT_EQ(Copy(), 0);
  EXPECT_EQ(Names("target"), (StringSet{"a", "b"}));
}

TEST_F(CopyDirectoryTest, AFileInItsWayIsTold) {
  Make({{"source/a", "new"}});
  files.Write("target", "old");
  EXPECT_EQ(Copy(), EEXIST);
  EXPECT_EQ(files.Content("target"), "old");
}

TEST_F(CopyDirectoryTest, ANameThatContinuesTheSourcesIsNoPlaceInIt) {
  Make({{"source/a", "one"}});
  EXPECT_EQ(Copy("source", "source2"), 0);
  EXPECT_EQ(Copy("source", "Source"), 0);
  EXPECT_EQ(files.Content("source2/a"), "one");
  EXPECT_EQ(files.Content("Source/a"), "one");
}

TEST_F(CopyDirectoryTest, TwoHundredLevelsAreCopiedAndMoved) {
  for (const std::string name : {"/d", "/a directory"}) {
    std::string deep;
    for (int i = 0; i < 200; ++i) deep += name;
    files.MakeDirectory("s" + deep);
    files.Write("s" + deep + "/file", "bottom");
    EXPECT_EQ(Copy("s", "t"), 0);
    EXPECT_EQ(files.Content("t" + deep + "/file"), "bottom");
    Fault otherDevice(kCallRename, {.path = files.Path("s"), .times = kEveryCall, .code = EXDEV});
    EXPECT_EQ(Move("s", "m"), 0);
    EXPECT_EQ(files.Content("m" + deep + "/file"), "bottom");
    EXPECT_FALSE(files.Exists("s"));
  }
}

TEST_F(CopyDirectoryTest, NamesOfAllKindsArrive) {
  const StringSet names = {"a\\b",
                           "new\nline",
                           "\ttab",
                           " blank ",
                           "\"quoted\"",
                           "'",
                           "*?[x]{a,b}",
                           "-rf",
                           "~",
                           "...",
                           "..x",
                           "%d",
                           "\x01\x1f\x7f",
                           "\xC3\xA9",
                           "e\xCC\x81",
                           "C:",
                           "\xF0\x9F\x98\x80"};
  files.MakeDirectory("source");
  for (const std::string& name : names) files.Write("source/" + name, name);
  EXPECT_EQ(Copy(), 0);
  EXPECT_EQ(Names("target"), names);
  for (const std::string& name : names) EXPECT_EQ(files.Content("target/" + name), name);
}

TEST_F(CopyDirectoryTest, TheCaseFilterLowersNamesOfFilesOnly) {
  Make({{"source/FILE.TXT", "one"}, {"source/SUB/Deep", "two"}});
  ASSERT_EQ(symlink("SUB", files.Path("source/LINK").c_str()), 0);
  operation.caseFilterOn = true;
  EXPECT_EQ(Copy(), 0);
  EXPECT_EQ(Names("target"), (StringSet{"file.txt", "SUB", "LINK"}));
  EXPECT_EQ(Names("target/SUB"), (StringSet{"deep"}));
}

TEST_F(CopyDirectoryTest, OneThatMayNotBeReadMakesNothing) {
  Make({{"own/source/a", "one"}});
  chmod(files.Path().c_str(), 0755);
  chmod(files.Path("own/source").c_str(), 0);
  {
    const AsNobody nobody(files.Path("own"));
    EXPECT_EQ(Copy("own/source", "own/target"), EACCES);
    chmod(files.Path("own/source").c_str(), 0700);
  }
  EXPECT_FALSE(files.Exists("own/target"));
}

// ---- a directory that changes while it is walked ------------------------------

TEST_F(CopyDirectoryTest, FilesThatVanishMeanwhileAreNoConcern) {
  Make({{"source/a", "one"}, {"source/b", "two"}, {"source/c", "three"}});
  Fault vanish(kCallOpen, Before("target/", 1, [&] {
                 for (const char* name : {"source/a", "source/b", "source/c"})
                   unlink(files.Path(name).c_str());
               }));
  EXPECT_EQ(Copy(), 0);
  EXPECT_EQ(Names("target").size(), 1u);
}

TEST_F(CopyDirectoryTest, FilesThatAppearDuringAMoveAreNotDeleted) {
  Make({{"source/a", "one"}, {"target/", ""}});
  Fault appears(kCallRename, Before("source/a", 1, [&] { files.Write("source/late", "two"); }));
  EXPECT_EQ(Move(), ENOTEMPTY);
  EXPECT_EQ(appears.Calls(), 1);
  EXPECT_EQ(files.Content("source/late"), "two");
  EXPECT_EQ(files.Content("target/a"), "one");
}

// ---- moving -------------------------------------------------------------------

TEST_F(CopyDirectoryTest, AMovedTreeLeavesItsOldPlace) {
  Make({{"source/a", "one"}, {"source/sub/b", "two"}, {"source/sub/empty/", ""}});
  EXPECT_EQ(Move(), 0);
  EXPECT_FALSE(files.Exists("source"));
  EXPECT_EQ(files.Content("target/sub/b"), "two");
  EXPECT_TRUE(files.Exists("target/sub/empty"));
}

TEST_F(CopyDirectoryTest, ATreeMovesToAnotherFileSystemAsWell) {
  Make({{"source/a", "one"}, {"source/sub/b", "two"}, {"source/sub/empty/", ""}});
  Fault otherDevice(kCallRename, {.path = files.Path("source"), .times = kEveryCall, .code = EXDEV});
  EXPECT_EQ(Move(), 0);
  EXPECT_GT(otherDevice.Calls(), 0);
  EXPECT_FALSE(files.Exists("source"));
  EXPECT_EQ(files.Content("target/a"), "one");
  EXPECT_EQ(files.Content("target/sub/b"), "two");
  EXPECT_TRUE(files.Exists("target/sub/empty"));
}

TEST_F(CopyDirectoryTest, ADirectoryNamedLikeTheDescriptionsKeepsTheSourceOfAMove) {
  Make({{"source/a", "one"}, {"source/descript.ion/inside", "kept"}});
  EXPECT_EQ(Move(), ENOTEMPTY);
  EXPECT_EQ(files.Content("target/a"), "one");
  EXPECT_EQ(files.Content("source/descript.ion/inside"), "kept");
}

TEST_F(CopyDirectoryTest, SkippedItemsKeepTheSourceOfAMove) {
  Make({{"source/a", "one"}, {"source/b", "two"}, {"target/b", "other"}});
  operation.overwriteMode = kOverwriteNever;
  EXPECT_EQ(Move(), kSkipped);
  EXPECT_EQ(Names("source"), StringSet{"b"});
  EXPECT_EQ(files.Content("target/a"), "one");
  EXPECT_EQ(files.Content("target/b"), "other");
}

// ---- descriptions --------------------------------------------------------------

TEST_F(CopyDirectoryTest, DescriptionsGoWithTheirFiles) {
  Make({{"source/a", "1"}, {"source/b c", "2"}, {"source/Descript.Ion", "a First file\n"}, {"target/", ""}});
  rename(files.Path("source/Descript.Ion").c_str(), files.Path("source/descript.ion").c_str());
  files.Write("source/descript.ion", "a First file\n\"b c\" Second\nabsent Nobody\n");
  EXPECT_EQ(Copy(), 0);
  EXPECT_EQ(Names("target"), (StringSet{"a", "b c", "descript.ion"}));
  const std::string lines = files.Content("target/descript.ion");
  EXPECT_NE(lines.find("a First file\n"), std::string::npos);
  EXPECT_NE(lines.find("\"b c\" Second\n"), std::string::npos);
  EXPECT_EQ(lines.find("Nobody"), std::string::npos);
}

TEST_F(CopyDirectoryTest, TheDirectorysOwnDescriptionIsCopied) {
  Make({{"source/a", "1"}, {"other/", ""}});
  files.Write("descript.ion", "source The sources\n");
  EXPECT_EQ(Copy("source", "other/copy"), 0);
  EXPECT_EQ(files.Content("other/descript.ion"), "copy The sources\n");
}

TEST_F(CopyDirectoryTest, MovedFilesTakeTheirLinesAlongAndTheEmptyFileGoes) {
  Make({{"source/a", "1"}, {"source/sub/b", "2"}});
  files.Write("source/descript.ion", "a First\nsub Second\n");
  Fault otherDevice(kCallRename, {.path = files.Path("source"), .times = kEveryCall, .code = EXDEV});
  EXPECT_EQ(Move(), 0);
  EXPECT_FALSE(files.Exists("source"));
  const std::string lines = files.Content("target/descript.ion");
  EXPECT_NE(lines.find("a First\n"), std::string::npos);
  EXPECT_NE(lines.find("sub Second\n"), std::string::npos);
}

}  // namespace
