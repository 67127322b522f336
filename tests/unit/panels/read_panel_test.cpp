#include "panels/read_panel.h"

#include <sys/wait.h>

#include <algorithm>

#include "unit/panels/two_panels.h"

namespace {

class ReadPanelTest : public TwoPanels {};

TEST_F(ReadPanelTest, ADirectoryWithNothingInItShowsTheWayUp) {
  Read();
  EXPECT_EQ(NamesOf(Left()), Names{".."});
  EXPECT_EQ(Left().entries[0]->sortGroup, kGroupUp);
  EXPECT_TRUE(Left().entries[0]->IsDirectory());
}

TEST_F(ReadPanelTest, TheRootShowsNoWayUp) {
  CopyText(Left().path, L"/");
  ReadPanel(Left());
  EXPECT_GT(Left().count, 0);
  EXPECT_EQ(EntryOf(Left(), ".."), nullptr);
  EXPECT_EQ(EntryOf(Left(), "."), nullptr);
}

// In a process whose root the empty directory is; the count is its exit code.
TEST_F(ReadPanelTest, AnEmptyRootIsAnEmptyList) {
  if (getuid() != 0) GTEST_SKIP() << "only root can change the root";
  const pid_t child = fork();
  if (child == 0) {
    if (chroot(scratch.Path().c_str()) != 0 || chdir("/") != 0) _exit(100);
    CopyText(Left().path, L"/");
    ReadPanel(Left());
    _exit(Left().count);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 0);
}

TEST_F(ReadPanelTest, DirectoriesComeBeforeHiddenFilesAndThoseBeforeTheRest) {
  MakeFiles({"b", "a", ".rc", "..foo"});
  scratch.MakeDirectory("z");
  scratch.MakeDirectory(".d");
  EXPECT_EQ(NamesOf(Read()), (Names{"..", ".d", "z", "..foo", ".rc", "a", "b"}));
}

TEST_F(ReadPanelTest, HiddenEntriesAreLeftOutWhenTheyAreOff) {
  MakeFiles({"a", ".rc", "..foo"});
  scratch.MakeDirectory(".d");
  Options::Hidden = false;
  EXPECT_EQ(NamesOf(Read()), (Names{"..", "a"}));
}

TEST_F(ReadPanelTest, AFilterIsForFilesOnly) {
  MakeFiles({"a.c", "b.h", "c.o", ".x.c"});
  scratch.MakeDirectory("d.o");
  Left().filter = L"*.c | *.h";
  EXPECT_EQ(NamesOf(Read()), (Names{"..", "d.o", ".x.c", "a.c", "b.h"}));
}

TEST_F(ReadPanelTest, AFilterWithASyntaxErrorShowsEverything) {
  MakeFiles({"a.c", "b.h"});
  Left().filter = L"(*.c";
  EXPECT_EQ(NamesOf(Read()), (Names{"..", "a.c", "b.h"}));
}

TEST_F(ReadPanelTest, AFilterThatMatchesAllIsAsGoodAsNone) {
  MakeFiles({"a", "b"});
  Left().filter = L"* | x";
  EXPECT_EQ(NamesOf(Read()), (Names{"..", "a", "b"}));
}

TEST_F(ReadPanelTest, ALinkToADirectorySortsAsOne) {
  scratch.MakeDirectory("real");
  MakeFiles({"a"});
  ASSERT_EQ(symlink("real", scratch.Path("zlink").c_str()), 0);
  EXPECT_EQ(NamesOf(Read()), (Names{"..", "real", "zlink", "a"}));
  EXPECT_TRUE(EntryOf(Left(), "zlink")->IsLink());
  EXPECT_EQ(EntryOf(Left(), "zlink")->sortGroup, kGroupDirectory);
}

TEST_F(ReadPanelTest, NamesThatDifferOnlyInCaseAreTwo) {
  MakeFiles({"readme", "README"});
  EXPECT_EQ(Read().count, 3);
}

TEST_F(ReadPanelTest, MoreEntriesThanTheArrayHoldsDoubleIt) {
  for (int i = 0; i < 4100; ++i) scratch.Write("f" + std::to_string(i), "");
  EXPECT_EQ(Left().capacity, 4096);
  EXPECT_EQ(Read().count, 4101);
  EXPECT_EQ(Left().capacity, 8192);
  EXPECT_NE(EntryOf(Left(), "f0"), nullptr);
  EXPECT_NE(EntryOf(Left(), "f4099"), nullptr);
}

TEST_F(ReadPanelTest, UnsortedTheWayUpStillComesFirst) {
  for (int i = 0; i < 50; ++i) scratch.Write("f" + std::to_string(i), "");
  Left().sortKey = 4;
  Read();
  EXPECT_STREQ(Left().entries[0]->name, L"..");
  EXPECT_EQ(Left().count, 51);
}

TEST_F(ReadPanelTest, AllRealSubdirectoriesAreKnownShownOrNot) {
  scratch.MakeDirectory("a");
  scratch.MakeDirectory(".b");
  MakeFiles({"file"});
  ASSERT_EQ(symlink("a", scratch.Path("link").c_str()), 0);
  Options::Hidden = false;
  Read();
  Left().subdirectories.FinishLoad();
  ASSERT_EQ(Left().subdirectories.Count(), 2);
  EXPECT_STREQ(Left().subdirectories.Peek(0)->Text(), L".b");
  EXPECT_STREQ(Left().subdirectories.Peek(1)->Text(), L"a");
  Read("a");
  EXPECT_EQ(Left().subdirectories.Count(), 0);
}

TEST_F(ReadPanelTest, TheFileSystemAndItsMountPointAreKnown) {
  CopyText(Left().path, L"/proc/self");
  ReadPanel(Left());
  if (!*Left().fileSystem) GTEST_SKIP() << "no mount table here";
  EXPECT_STREQ(Left().fileSystem, L"proc");
  EXPECT_STREQ(Left().mountPoint.Text(), L"/proc");
}

TEST_F(ReadPanelTest, TheCaseFilterShowsDirectoriesUpperAndFilesLower) {
  scratch.MakeDirectory("MixedDir");
  scratch.MakeDirectory("\xc3\xa4rger");
  MakeFiles({"MixedFile.Txt"});
  Read();
  if (!*Left().fileSystem) GTEST_SKIP() << "no mount table here";
  Options::CaseFilter = Westring(L"vfat,") + Fold(Left().fileSystem);
  Read();
  EXPECT_NE(EntryOf(Left(), "MIXEDDIR"), nullptr);
  EXPECT_NE(EntryOf(Left(), "mixedfile.txt"), nullptr);
  EXPECT_NE(EntryOf(Left(), "\xc3\x84RGER"), nullptr);
  Options::CaseFilter = L"no such type";
  Read();
  EXPECT_NE(EntryOf(Left(), "MixedDir"), nullptr);
  EXPECT_NE(EntryOf(Left(), "MixedFile.Txt"), nullptr);
}

TEST_F(ReadPanelTest, ADirectoryThatIsGoneIsAnEmptyOne) {
  scratch.MakeDirectory("gone");
  MakeFiles({"gone/a"});
  Read("gone");
  std::filesystem::remove_all(scratch.Path("gone"));
  ReadPanel(Left());
  EXPECT_EQ(NamesOf(Left()), Names{".."});
  EXPECT_EQ(PathOf(Left()), scratch.Path("gone"));
  EXPECT_EQ(Left().readError, 0);
}

TEST_F(ReadPanelTest, APathOfNothingIsAnEmptyDirectory) {
  CopyText(Left().path, L"");
  ReadPanel(Left());
  EXPECT_EQ(NamesOf(Left()), Names{".."});
}

TEST_F(ReadPanelTest, ThePathMayBeAsLongAsTheRecordHolds) {
  std::string path = scratch.Path();
  while (path.size() < 511) {
    path += "/";
    path += std::string(std::min<size_t>(511 - path.size(), 200), 'd');
  }
  ASSERT_EQ(path.size(), 511u);
  std::filesystem::create_directories(path);
  const std::filesystem::path old = std::filesystem::current_path();
  std::filesystem::current_path(path);
  ASSERT_TRUE(std::ofstream("file").good());
  std::filesystem::current_path(old);
  Read(path.substr(scratch.Path().size() + 1));
  EXPECT_EQ(PathOf(Left()), path);
  EXPECT_EQ(NamesOf(Left()), (Names{"..", "file"}));
}

// ---- when nothing is read --------------------------------------------------

TEST_F(ReadPanelTest, AHiddenPanelOnlyOwesItsRead) {
  MakeFiles({"a"});
  Read();
  Left().visible = false;
  MakeFiles({"b"});
  Left().redrawPending = false;
  ReadPanel(Left());
  EXPECT_TRUE(Left().readPending);
  EXPECT_FALSE(Left().redrawPending);
  EXPECT_EQ(NamesOf(Left()), (Names{"..", "a"}));
  Left().visible = true;
  ReadPanel(Left());
  EXPECT_FALSE(Left().readPending);
  EXPECT_TRUE(Left().redrawPending);
  EXPECT_EQ(NamesOf(Left()), (Names{"..", "a", "b"}));
}

TEST_F(ReadPanelTest, AnInfoPanelOnlyOwesItsRead) {
  Left().panelType = kPanelInfo;
  ReadPanel(Left());
  EXPECT_TRUE(Left().readPending);
  EXPECT_EQ(Left().count, 0);
}

TEST_F(ReadPanelTest, AHiddenPanelDoesNotKeepTheNamesOfADirectoryThatItHasLeft) {
  scratch.MakeDirectory("d");
  MakeFiles({"a", "d/a", "d/b"});
  Read();
  EntryOf(Left(), "a")->tagged = 1;
  Left().taggedCount = 1;
  PositionOn(Left(), L"a");
  Left().visible = false;
  Read("d");
  EXPECT_EQ(Left().count, 0);
  EXPECT_EQ(Left().taggedCount, 0);
  EXPECT_EQ(Left().Current(), nullptr);
  Left().visible = true;
  ReadPanel(Left());
  EXPECT_EQ(NamesOf(Left()), (Names{"..", "a", "b"}));
  EXPECT_FALSE(EntryOf(Left(), "a")->tagged);
  EXPECT_EQ(Under(Left()), "..");
}

TEST_F(ReadPanelTest, BothPanelsAreReadButForHiddenAndInfoOnes) {
  MakeFiles({"a"});
  ReadBothPanels();
  EXPECT_EQ(Left().count, 2);
  EXPECT_EQ(Right().count, 2);

  MakeFiles({"b"});
  Left().visible = false;
  ReadBothPanels();
  EXPECT_EQ(Left().count, 2);
  EXPECT_TRUE(Left().readPending);
  EXPECT_EQ(Right().count, 3);
}

TEST_F(ReadPanelTest, AnInfoPanelBesideAVisibleOneOwesNothing) {
  Left().panelType = kPanelInfo;
  ReadBothPanels();
  EXPECT_FALSE(Left().readPending);
  Right().visible = false;
  ReadBothPanels();
  EXPECT_TRUE(Left().readPending);
}

TEST_F(ReadPanelTest, ATreePanelIsHandedOver) {
  static TPanel* handedOver;
  handedOver = nullptr;
  ThePanelHooks.readTree = [](TPanel& panel) { handedOver = &panel; };
  Left().style = kStyleTree;
  ReadPanel(Left());
  ThePanelHooks.readTree = nullptr;
  EXPECT_EQ(handedOver, &Left());
  EXPECT_EQ(Left().count, 0);
  EXPECT_TRUE(Left().redrawPending);
}

}  // namespace
