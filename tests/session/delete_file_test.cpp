// Deleting one file or empty directory: the questions and every answer to them.
#include <fcntl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include "fileops/deletion_window.h"
#include "session/delete_fixture.h"

namespace {

class DeleteFileTest : public DeleteFixture {
 protected:
  int WidthOfBox(int row) const {
    int first = 0, last = kColumns - 1;
    while (first < kColumns && !Text(first, row, 1).Contains("╔")) ++first;
    while (last > first && !Text(last, row, 1).Contains("╗")) --last;
    return last - first + 1;
  }
};

using DeleteDirectoryTest = DeleteFixture;

constexpr char kReadOnlyFile[] = "File is Read Only, Delete anyway?";
constexpr char kReadOnlyDirectory[] = "Directory is Read Only, Delete anyway?";

}  // namespace

// ---- read-only files ---------------------------------------------------------

TEST_F(DeleteFileTest, OneWithoutWritePermissionIsAskedFor) {
  place.Make({{"a", ""}});
  SetMode("a", 0444);
  AsNobody nobody(place.Path());
  Then([this] {
    EXPECT_TRUE(Shows(kReadOnlyFile));
    EXPECT_TRUE(Shows(place.Path("a")));
    EXPECT_TRUE(Shows("[ OK ]  [ Cancel ]  [ Skip ]  [ All ]  [ None ]"));
  });
  Keys("Enter");
  EXPECT_EQ(Delete("a"), 1);
  EXPECT_FALSE(Exists("a"));
  EXPECT_EQ(operation.readOnlyMode, kReadOnlyAsk);
}

TEST_F(DeleteFileTest, EscStopsAndSkipGoesOn) {
  place.Make({{"a", ""}});
  SetMode("a", 0444);
  AsNobody nobody(place.Path());
  Expect(kReadOnlyFile, "Esc");
  EXPECT_EQ(Delete("a"), -1);
  Expect(kReadOnlyFile, "s");
  EXPECT_EQ(Delete("a"), 0);
  EXPECT_TRUE(Exists("a"));
  EXPECT_EQ(operation.readOnlyMode, kReadOnlyAsk);
}

TEST_F(DeleteFileTest, AllHoldsForTheWholeCommand) {
  place.Make({{"a", ""}, {"b", ""}, {"c", ""}});
  for (const char* name : {"a", "b", "c"}) SetMode(name, 0444);
  AsNobody nobody(place.Path());
  Expect(kReadOnlyFile, "a");
  for (const char* name : {"a", "b", "c"}) EXPECT_EQ(Delete(name, kDeleteBatch), 1);
  EXPECT_FALSE(Exists("c"));
}

TEST_F(DeleteFileTest, NoneSkipsAll) {
  place.Make({{"a", ""}, {"b", ""}, {"c", ""}});
  for (const char* name : {"a", "b"}) SetMode(name, 0444);
  AsNobody nobody(place.Path());
  Expect(kReadOnlyFile, "e");
  EXPECT_EQ(Delete("a", kDeleteBatch), 0);
  EXPECT_EQ(Delete("b", kDeleteBatch), 0);
  EXPECT_EQ(Delete("c", kDeleteBatch), 1);
  EXPECT_TRUE(Exists("a"));
  EXPECT_TRUE(Exists("b"));
}

TEST_F(DeleteFileTest, AnywayAsksNothing) {
  place.Make({{"a", ""}});
  SetMode("a", 0444);
  AsNobody nobody(place.Path());
  EXPECT_EQ(Delete("a", kDeleteAnyway), 1);
  EXPECT_FALSE(Exists("a"));
}

TEST_F(DeleteFileTest, SilentStillAsksForAReadOnlyFile) {
  place.Make({{"a", ""}});
  SetMode("a", 0444);
  AsNobody nobody(place.Path());
  Expect(kReadOnlyFile, "Enter");
  EXPECT_EQ(Delete("a", kDeleteSilent), 1);
}

// ---- errors ------------------------------------------------------------------

TEST_F(DeleteFileTest, InADirectoryThatIsNotWritableItIsDenied) {
  place.Make({{"dir/a", ""}, {"dir/b", ""}});
  SetMode("dir/b", 0444);
  SetMode("dir", 0555);
  AsNobody nobody(place.Path());
  for (const char* name : {"dir/a", "dir/b"}) {
    Then([this, name] {
      EXPECT_TRUE(Shows("Access Denied"));
      EXPECT_TRUE(Shows(place.Path(name)));
      EXPECT_TRUE(Shows("[ Retry ]  [ Skip ]  [ Cancel ]"));
    });
    Keys("s");
    EXPECT_EQ(Delete(name), 0);
    Expect("Access Denied", "Esc");
    EXPECT_EQ(Delete(name), -1);
    EXPECT_TRUE(Exists(name));
  }
  SetMode("dir", 0755);
}

TEST_F(DeleteFileTest, NoneIsNotAskedForDeniedFilesEither) {
  place.Make({{"dir/a", ""}});
  SetMode("dir", 0555);
  AsNobody nobody(place.Path());
  operation.readOnlyMode = kReadOnlyNone;
  EXPECT_EQ(Delete("dir/a"), 0);
  SetMode("dir", 0755);
}

TEST_F(DeleteFileTest, RetryGoesRound) {
  place.Make({{"dir/a", ""}});
  SetMode("dir", 0555);
  AsNobody nobody(place.Path());
  Expect("Access Denied", "r");
  Then([this] { SetMode("dir", 0755); });
  Expect("Access Denied", "r");
  EXPECT_EQ(Delete("dir/a"), 1);
  EXPECT_FALSE(Exists("dir/a"));
}

TEST_F(DeleteFileTest, AMissingFileIsToldWithoutAnotherTry) {
  Then([this] {
    EXPECT_TRUE(Shows("File not found"));
    EXPECT_TRUE(Shows("[ OK ]  [ Cancel ]"));
    EXPECT_FALSE(Shows("Retry"));
  });
  Keys("Enter");
  EXPECT_EQ(Delete("none"), 0);
  Expect("File not found", "Esc");
  EXPECT_EQ(Delete("none"), -1);
}

TEST_F(DeleteFileTest, AFileOnTheWayIsNoPath) {
  place.Make({{"file", ""}});
  Expect("Path not found", "Enter");
  EXPECT_EQ(Delete("file/below"), 0);
  EXPECT_TRUE(Exists("file"));
}

TEST_F(DeleteFileTest, ATooLongNameHasNoRetry) {
  const std::string name(300, 'x');
  Then([this] {
    EXPECT_TRUE(Shows("Name too long"));
    EXPECT_FALSE(Shows("Retry"));
  });
  Keys("Enter");
  EXPECT_EQ(Delete(name), 0);
}

TEST_F(DeleteFileTest, APathLongerThanTheSystemTakesIsTold) {
  std::string name = "a";
  while (name.size() < 5000) name += "/a";
  Expect("Name too long", "Enter");
  EXPECT_EQ(Delete(name), 0);
}

TEST_F(DeleteFileTest, ADirectoryIsNoFile) {
  place.Make({{"dir/a", ""}});
  Expect("Is a directory (21)", "s");
  EXPECT_EQ(Delete("dir"), 0);
  EXPECT_TRUE(Exists("dir/a"));
}

TEST_F(DeleteFileTest, OnAReadOnlyFileSystemAnotherTryIsOffered) {
  place.Make({{"disk/", ""}});
  const std::string disk = place.Path("disk");
  if (mount("tmpfs", disk.c_str(), "tmpfs", 0, "size=64k") != 0)
    GTEST_SKIP() << "nothing can be mounted here";
  place.Write("disk/a", "kept");
  if (mount("tmpfs", disk.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) == 0) {
    Then([this] {
      EXPECT_TRUE(Shows("Disk write protected, cannot write"));
      EXPECT_TRUE(Shows("[ Retry ]  [ Skip ]  [ Cancel ]"));
    });
    Keys("s");
    EXPECT_EQ(Delete("disk/a"), 0);
    EXPECT_EQ(place.Content("disk/a"), "kept");
    // A link to there is not there itself.
    ASSERT_EQ(symlink("disk/a", place.Path("link").c_str()), 0);
    EXPECT_EQ(Delete("link"), 1);
  }
  EXPECT_EQ(umount2(disk.c_str(), MNT_DETACH), 0);
}

// ---- the window --------------------------------------------------------------

TEST_F(DeleteFileTest, TheWindowOfOneFileGoesWithIt) {
  place.Make({{"a", ""}});
  const auto before = Snapshot();
  EXPECT_EQ(Delete("a"), 1);
  EXPECT_EQ(ChangesSince(before), "");
  EXPECT_EQ(operation.deletionWindow, nullptr);
}

TEST_F(DeleteFileTest, SilentShowsNoWindow) {
  place.Make({{"a", ""}, {"b", ""}});
  const auto before = Snapshot();
  EXPECT_EQ(Delete("a", kDeleteSilent), 1);
  EXPECT_EQ(Delete("b", kDeleteAnyway), 1);
  EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(DeleteFileTest, TheWindowOfABatchStaysUntilItIsClosed) {
  place.Make({{"a", ""}});
  const auto before = Snapshot();
  EXPECT_EQ(Delete("a", kDeleteBatch), 1);
  EXPECT_TRUE(Row(8).Contains("Deleting the file"));
  EXPECT_TRUE(Row(9).Contains(place.Path("a")));
  EXPECT_EQ(Attribute(40, 9), kDefaultColours[kColourMessages]);
  EXPECT_EQ(DeleteFile(operation, Westring(), kDeleteClose), 0);
  EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(DeleteFileTest, TheWindowIsAsWideAsTheLongestName) {
  const auto before = Snapshot();
  {
    DeletionWindow window;
    window.Show(L"/a");
    EXPECT_EQ(WidthOfBox(7), 22);
    EXPECT_EQ(Row(9).Trimmed(), "║         /a         ║");
    window.Show(L"/twenty-characters-abc");
    EXPECT_EQ(WidthOfBox(7), 26);
    EXPECT_EQ(Row(9).Trimmed(), "║ /twenty-characters-abc ║");
    window.Show(L"/b");
    EXPECT_EQ(WidthOfBox(7), 26);
    EXPECT_EQ(Row(9).Trimmed(), "║           /b           ║");
  }
  EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(DeleteFileTest, ANameIsCutToTheScreen) {
  const std::string name(100, 'x');
  place.Make({{name, ""}});
  Delete(name, kDeleteBatch);
  EXPECT_TRUE(Shows("..." + std::string(20, 'x')));
  EXPECT_EQ(WidthOfBox(7), kColumns - 10 + 4);
}

// ---- directories -------------------------------------------------------------

TEST_F(DeleteDirectoryTest, OneWithoutWritePermissionIsAskedForWhereItCannotBeRead) {
  place.Make({{"dir/", ""}});
  SetMode("dir", 0);
  AsNobody nobody(place.Path());
  Expect(kReadOnlyDirectory, "Enter");
  EXPECT_EQ(DeleteTreeAt("dir"), 1);
  EXPECT_FALSE(Exists("dir"));
}

TEST_F(DeleteDirectoryTest, TheAnswersMeanWhatTheyMeanForFiles) {
  place.Make({{"a/", ""}, {"b/", ""}});
  SetMode("a", 0);
  SetMode("b", 0);
  AsNobody nobody(place.Path());
  Expect(kReadOnlyDirectory, "Esc");
  EXPECT_EQ(DeleteTreeAt("a"), -1);
  Expect(kReadOnlyDirectory, "s");
  EXPECT_EQ(DeleteTreeAt("a"), 0);
  Expect(kReadOnlyDirectory, "e");
  EXPECT_EQ(DeleteTreeAt("a"), 0);
  EXPECT_EQ(DeleteTreeAt("b"), 0);
  operation.readOnlyMode = kReadOnlyAsk;
  Expect(kReadOnlyDirectory, "a");
  EXPECT_EQ(DeleteTreeAt("a"), 1);
  EXPECT_EQ(DeleteTreeAt("b"), 1);
}

TEST_F(DeleteDirectoryTest, AFailureAfterTheQuestionAsksAnewForTheNext) {
  place.Make({{"parent/dir/", ""}});
  SetMode("parent/dir", 0555);
  SetMode("parent", 0555);
  AsNobody nobody(place.Path());
  Expect(kReadOnlyDirectory, "a");
  Expect("Access Denied", "s");
  EXPECT_EQ(DeleteTreeAt("parent/dir"), 0);
  EXPECT_EQ(operation.readOnlyMode, kReadOnlyAsk);
  SetMode("parent", 0755);
}

TEST_F(DeleteDirectoryTest, WritableInADirectoryThatIsNotItIsDenied) {
  place.Make({{"parent/dir/", ""}});
  SetMode("parent", 0555);
  AsNobody nobody(place.Path());
  Expect("Access Denied", "s");
  EXPECT_EQ(DeleteTreeAt("parent/dir"), 0);
  EXPECT_TRUE(Exists("parent/dir"));
  SetMode("parent", 0755);
}

TEST_F(DeleteDirectoryTest, AFileOrALinkInItsPlaceStays) {
  place.Make({{"file", "kept"}, {"dir/a", "kept"}});
  ASSERT_EQ(symlink("dir", place.Path("link").c_str()), 0);
  Expect("Directory does not exist, cannot delete", "Enter");
  EXPECT_EQ(DeleteTreeAt("file"), 0);
  Expect("Directory does not exist, cannot delete", "Enter");
  EXPECT_EQ(DeleteTreeAt("link"), 0);
  EXPECT_EQ(place.Content("file"), "kept");
  EXPECT_EQ(place.Content("link/a"), "kept");
}

TEST_F(DeleteDirectoryTest, OneThatIsNotThereIsTold) {
  Expect("File not found", "Enter");
  EXPECT_EQ(DeleteTreeAt("none"), 0);
}

TEST_F(DeleteDirectoryTest, APathThatIsTooLongCountsAsNone) {
  const std::string name(5000, 'x');
  Expect("Directory does not exist, cannot delete", "Enter");
  EXPECT_EQ(DeleteTreeAt(name), 0);
}
