// Listings whose entries come from an archive, and sources that fail.
#include "panels/read_panel.h"
#include "unit/panels/fake_archive.h"
#include "unit/panels/two_panels.h"

namespace {

class ReadArchive : public TwoPanels {
 protected:
  // The left panel inside the archive a.zip of scratch.
  FakeArchive& Open(const std::string& interior = "") {
    const Westring path = Wide(scratch.Path("a.zip"));
    FakeArchives[path.Text()];
    Left().archive = OpenFakeArchive(path, nullptr);
    CopyText(Left().path, Wide(scratch.Path("a.zip") + interior).Text());
    return FakeArchives[path.Text()];
  }
  const FakeArchiveHook hook;
};

TEST_F(ReadArchive, ASourceThatGivesTheWayUpGetsNoSecondOne) {
  Open().directories[L""] = {{L"..", kAttrDirectory}, {L"b"}, {L"a"}};
  ReadPanel(Left());
  EXPECT_EQ(NamesOf(Left()), (Names{"..", "a", "b"}));
}

TEST_F(ReadArchive, ASourceWithoutTheWayUpGetsOne) {
  Open().directories[L""] = {{L"b"}, {L"a"}};
  ReadPanel(Left());
  EXPECT_EQ(NamesOf(Left()), (Names{"..", "a", "b"}));
}

TEST_F(ReadArchive, TheInteriorPathHasNoLeadingSlash) {
  Open("/docs/old").directories[L"docs/old"] = {{L"..", kAttrDirectory}, {L"inside"}};
  ReadPanel(Left());
  EXPECT_EQ(NamesOf(Left()), (Names{"..", "inside"}));
}

TEST_F(ReadArchive, InAnArchiveThereIsNoFileSystemAndNamesKeepTheirCase) {
  CopyText(Left().fileSystem, L"vfat");
  Options::CaseFilter = L"VFAT";
  Open().directories[L""] = {{L"..", kAttrDirectory}, {L"Docs", kAttrDirectory}, {L"Text"}};
  ReadPanel(Left());
  EXPECT_STREQ(Left().fileSystem, L"");
  EXPECT_EQ(NamesOf(Left()), (Names{"..", "Docs", "Text"}));
}

TEST_F(ReadArchive, AnArchiveWhoseFileIsGoneIsLeft) {
  Open().exists = false;
  ReadPanel(Left());
  EXPECT_EQ(Left().archive, nullptr);
  EXPECT_EQ(ClosedArchives, std::vector<std::wstring>{Wide(scratch.Path("a.zip")).Text()});
}

TEST_F(ReadArchive, APathOutsideTheArchiveLeavesIt) {
  Open();
  MakeFiles({"plain"});
  CopyText(Left().path, Wide(scratch.Path()).Text());
  ReadPanel(Left());
  EXPECT_EQ(Left().archive, nullptr);
  EXPECT_EQ(NamesOf(Left()), (Names{"..", "plain"}));
}

TEST_F(ReadArchive, APathThatOnlyBeginsLikeTheArchiveIsOutside) {
  Open();
  scratch.MakeDirectory("a.zipped");
  CopyText(Left().path, Wide(scratch.Path("a.zipped")).Text());
  ReadPanel(Left());
  EXPECT_EQ(Left().archive, nullptr);
}

TEST_F(ReadArchive, LeavingAnInnerArchiveKeepsTheOuterOne) {
  Open().directories[L""] = {{L"..", kAttrDirectory}, {L"b.zip"}};
  const Westring inner = Wide(scratch.Path("a.zip/b.zip"));
  FakeArchives[inner.Text()].exists = false;
  auto level = std::make_unique<FakeLevel>(inner);
  level->parent = std::move(Left().archive);
  Left().archive = std::move(level);
  ReadPanel(Left());
  ASSERT_NE(Left().archive, nullptr);
  EXPECT_STREQ(Left().archive->Path().Text(), Wide(scratch.Path("a.zip")).Text());
  EXPECT_EQ(NamesOf(Left()), (Names{"..", "b.zip"}));
}

TEST_F(ReadArchive, AReadThatIsStoppedShowsWhatItHas) {
  FakeArchive& archive = Open();
  archive.directories[L""] = {{L"..", kAttrDirectory}, {L"c"}, {L"a"}, {L"d"}, {L"b"}};
  archive.stopBehind = 4;
  ReadPanel(Left());
  EXPECT_EQ(NamesOf(Left()), (Names{"..", "a", "c"}));
  EXPECT_EQ(BreakState, 0);
}

TEST_F(ReadArchive, AnEmptySourceIsAnEmptyDirectory) {
  Open().openError = kNoMoreEntries;
  ReadPanel(Left());
  EXPECT_EQ(NamesOf(Left()), Names{".."});
  EXPECT_EQ(Left().readError, 0);
}

TEST_F(ReadArchive, ADriveThatIsNotReadyIsNotedWithoutAMessage) {
  Open().openError = kDriveNotReady;
  ReadPanel(Left());
  EXPECT_EQ(Left().count, 0);
  EXPECT_EQ(Left().readError, kDriveNotReady);
}

TEST_F(ReadArchive, ASourceThatTheUserStoppedLeavesNoError) {
  Open().openError = -1;
  ReadPanel(Left());
  EXPECT_EQ(Left().count, 0);
  EXPECT_EQ(Left().readError, 0);
}

TEST_F(ReadArchive, AfterAnErrorNothingIsTakenUntilTheDirectoryChanges) {
  FakeArchive& archive = Open();
  archive.directories[L""] = {{L"..", kAttrDirectory}, {L"a"}};
  archive.openError = kDriveNotReady;
  ReadPanel(Left());
  archive.openError = 0;
  ReadPanel(Left());
  EXPECT_EQ(NamesOf(Left()), Names{".."});
  EXPECT_EQ(Left().readError, kDriveNotReady);
  Enter(0, L"", false, -1, 0);
  EXPECT_EQ(NamesOf(Left()), (Names{"..", "a"}));
  EXPECT_EQ(Left().readError, 0);
}

}  // namespace
