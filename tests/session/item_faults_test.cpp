// Copying and moving one item where the system or another program gets in the way.
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "fileops/copy_item.h"
#include "support/as_nobody.h"
#include "support/console_fixture.h"
#include "support/faults.h"

namespace {

class ItemFaults : public ConsoleFixture {
 protected:
  static Westring Wide(const std::string& path) { return Westring(path.c_str()); }

  int Copy(const std::string& from = "source", const std::string& to = "target") {
    return CopyItem(operation, Wide(own.Path(from)), Wide(own.Path(to)), 1, 1, nullptr);
  }
  int Move(const std::string& from = "source", const std::string& to = "target") {
    return MoveItem(operation, Wide(own.Path(from)), Wide(own.Path(to)), 1, 1, nullptr);
  }

  // The box that the code under test asks with, then the answer.
  void Answer(const std::string& text, const std::string& keys) {
    Then([this, text] { EXPECT_NE(Screen().find(text), std::string::npos) << text; });
    Keys(keys);
  }

  FaultPlan AtSource(int code, int times = 1) const {
    return {.path = own.Path("source"), .times = times, .code = code};
  }

  // Somebody makes the target when the call comes.
  FaultPlan TargetAppears(int code) {
    return {.path = own.Path("source"), .code = code, .before = [this] { own.Write("target", "other's"); }};
  }

  Sandbox own;
  FileOperation operation;
};

class OpenForWriting : public ItemFaults {
 protected:
  OpenForWriting() { own.Write("source", "one"); }

  Fault held{kCallOpen, AtSource(EACCES)};  // to the program that has it open
};

constexpr char kOpenQuestion[] = "File is open for writing, copy anyway?";

}  // namespace

// ---- renaming without the system's help --------------------------------------

TEST_F(ItemFaults, WhereTheSystemCannotRefuseATargetTheNewNameIsGivenAllTheSame) {
  for (const int code : {EINVAL, ENOSYS}) {
    own.Write("source", "one");
    Fault fault(kCallRename, AtSource(code));
    EXPECT_EQ(Move(), 0);
    EXPECT_EQ(fault.Calls(), 2);
    EXPECT_FALSE(own.Exists("source"));
    EXPECT_EQ(own.Content("target"), "one");
    unlink(own.Path("target").c_str());
  }
}

TEST_F(ItemFaults, ADirectoryToo) {
  own.Make({{"source/a", "one"}});
  Fault fault(kCallRename, AtSource(EINVAL));
  EXPECT_EQ(Move(), 0);
  EXPECT_EQ(own.Content("target/a"), "one");
  EXPECT_FALSE(own.Exists("source"));
}

TEST_F(ItemFaults, ATargetThatAppearsIsNotReplaced) {
  for (const int code : {0, EINVAL}) {
    own.Write("source", "one");
    Fault fault(kCallRename, TargetAppears(code));
    Answer("File already exists, Overwrite?", "s");
    EXPECT_EQ(Move(), EEXIST);
    EXPECT_EQ(own.Content("source"), "one");
    EXPECT_EQ(own.Content("target"), "other's");
    unlink(own.Path("target").c_str());
  }
}

TEST_F(ItemFaults, AFailedRenameLeavesNoPlaceholder) {
  own.Make({{"source", "one"}, {"directory/a", "two"}});
  Fault file(kCallRename, AtSource(EINVAL, 2));
  EXPECT_EQ(RenameObject(Wide(own.Path("source")), Wide(own.Path("target"))), EINVAL);
  EXPECT_FALSE(own.Exists("target"));
  Fault directory(kCallRename, {.path = own.Path("directory"), .times = 2, .code = EINVAL});
  EXPECT_EQ(RenameObject(Wide(own.Path("directory")), Wide(own.Path("target"))), EINVAL);
  EXPECT_FALSE(own.Exists("target"));
  EXPECT_EQ(own.Content("directory/a"), "two");
}

TEST_F(ItemFaults, WhatSomebodyWritesToThePlaceholderStays) {
  own.Write("source", "one");
  Fault late(kCallRename,
             {.path = own.Path("source"), .code = EIO, .before = [this] { own.Write("target", "other's"); }});
  Fault first(kCallRename, AtSource(EINVAL));
  EXPECT_EQ(RenameObject(Wide(own.Path("source")), Wide(own.Path("target"))), EIO);
  EXPECT_EQ(own.Content("target"), "other's");
  EXPECT_EQ(own.Content("source"), "one");
}

// ---- another file system -----------------------------------------------------

TEST_F(ItemFaults, AcrossFileSystemsAFileIsCopiedAndItsSourceGoes) {
  own.Write("source", "one");
  Fault fault(kCallRename, AtSource(EXDEV, kEveryCall));
  EXPECT_EQ(Move(), 0);
  EXPECT_EQ(own.Content("target"), "one");
  EXPECT_FALSE(own.Exists("source"));
}

TEST_F(ItemFaults, ASecondErrorAboutFileSystemsIsTold) {
  own.Make({{"source/a", "one"}});
  Fault rename(kCallRename, AtSource(EXDEV, kEveryCall));
  Fault make(kCallMakeDirectory, {.path = own.Path("target"), .times = 1, .code = EXDEV});
  Answer("(18)", "s");
  EXPECT_EQ(Move(), EXDEV);
  EXPECT_EQ(own.Content("source/a"), "one");
}

TEST_F(ItemFaults, ATargetThatAppearsDuringACopyIsAskedAbout) {
  own.Write("source", "one");
  Fault rename(kCallRename, TargetAppears(EXDEV));
  Answer("File already exists, Overwrite?", "s");
  EXPECT_EQ(Move(), EACCES);
  EXPECT_EQ(own.Content("target"), "other's");
  EXPECT_EQ(own.Content("source"), "one");
}

// ---- a source that another program has open ------------------------------------

TEST_F(OpenForWriting, OkTakesIt) {
  Answer(kOpenQuestion, "Enter");
  EXPECT_EQ(Copy(), 0);
  EXPECT_EQ(own.Content("target"), "one");
  EXPECT_EQ(operation.openFilesMode, kOpenFilesAsk);
}

TEST_F(OpenForWriting, AllTakesItAndAllThatFollow) {
  Answer(kOpenQuestion, "a");
  EXPECT_EQ(Copy(), 0);
  EXPECT_EQ(operation.openFilesMode, kOpenFilesAlways);
  own.Write("next", "two");
  EXPECT_EQ(Copy("next", "after"), 0);
}

TEST_F(OpenForWriting, NoneLeavesItAndAsksNoMore) {
  Answer(kOpenQuestion, "e");
  EXPECT_GT(Copy(), 0);
  EXPECT_FALSE(own.Exists("target"));
  Fault again(kCallOpen, AtSource(EACCES));
  EXPECT_GT(Copy(), 0);
  EXPECT_FALSE(own.Exists("target"));
}

TEST_F(OpenForWriting, SkipLeavesItAndAsksAgain) {
  Answer(kOpenQuestion, "s");
  EXPECT_GT(Copy(), 0);
  EXPECT_FALSE(own.Exists("target"));
  EXPECT_EQ(operation.openFilesMode, kOpenFilesAsk);
}

TEST_F(OpenForWriting, EscStopsTheCommand) {
  Answer(kOpenQuestion, "Esc");
  EXPECT_EQ(Copy(), kStopCommand);
  EXPECT_FALSE(own.Exists("target"));
}

// ---- errors ------------------------------------------------------------------

TEST_F(ItemFaults, RetryTriesOnceMore) {
  own.Make({{"source/a", "one"}});
  Fault fault(kCallMakeDirectory, {.path = own.Path("target"), .times = 2, .code = EROFS});
  Answer("Disk write protected, cannot write", "r");
  Answer("Disk write protected, cannot write", "r");
  EXPECT_EQ(Copy(), 0);
  EXPECT_EQ(own.Content("target/a"), "one");
}

TEST_F(ItemFaults, SkipEndsTheItemWithItsError) {
  own.Make({{"source/a", "one"}});
  Fault fault(kCallMakeDirectory, {.path = own.Path("target"), .code = EROFS});
  Answer("Disk write protected, cannot write", "s");
  EXPECT_EQ(Copy(), EROFS);
}

TEST_F(ItemFaults, EscAtAnErrorStopsTheCommand) {
  own.Write("source", "one");
  Fault fault(kCallRename, AtSource(EROFS));
  Answer("Disk write protected, cannot write", "Esc");
  EXPECT_EQ(Move(), kStopCommand);
  EXPECT_EQ(own.Content("source"), "one");
}

TEST_F(ItemFaults, AMergedDirectoryThatCannotBeRemovedForLackOfRightsIsMoved) {
  own.Make({{"locked/source/a", "one"}, {"target/", ""}});
  AsNobody nobody(own.Path());
  ASSERT_EQ(chmod(own.Path("locked").c_str(), 0500), 0);
  EXPECT_EQ(Move("locked/source"), 0);
  EXPECT_EQ(own.Content("target/a"), "one");
  EXPECT_TRUE(own.Exists("locked/source"));
  chmod(own.Path("locked").c_str(), 0700);
}

// ---- nothing goes for nothing ------------------------------------------------

TEST_F(ItemFaults, ATargetStaysWhereTheSourceCannotBeRead) {
  own.Make({{"source", "new"}, {"target", "old"}});
  AsNobody nobody(own.Path());
  ASSERT_EQ(chmod(own.Path("source").c_str(), 0), 0);
  Answer("Access Denied", "s");
  EXPECT_EQ(Copy(), EACCES);
  operation.overwriteMode = kOverwriteAlways;
  Answer("Access Denied", "s");
  EXPECT_EQ(Copy(), EACCES);
  EXPECT_EQ(own.Content("target"), "old");
}

TEST_F(ItemFaults, ATargetStaysWhereTheSourceCannotLeaveItsDirectory) {
  own.Make({{"locked/source", "new"}, {"target", "old"}});
  AsNobody nobody(own.Path());
  ASSERT_EQ(chmod(own.Path("locked").c_str(), 0500), 0);
  operation.overwriteMode = kOverwriteAlways;
  Answer("Access Denied", "s");
  EXPECT_EQ(Move("locked/source"), EACCES);
  EXPECT_EQ(own.Content("target"), "old");
  EXPECT_EQ(own.Content("locked/source"), "new");
  chmod(own.Path("locked").c_str(), 0700);
}

TEST_F(ItemFaults, ARenameNeedsNoBytesOfTheSource) {
  own.Make({{"source", "new"}, {"target", "old"}});
  AsNobody nobody(own.Path());
  ASSERT_EQ(chmod(own.Path("source").c_str(), 0), 0);
  Answer("File already exists, Overwrite?", "Enter");
  EXPECT_EQ(Move(), 0);
  EXPECT_FALSE(own.Exists("source"));
  ASSERT_EQ(chmod(own.Path("target").c_str(), 0600), 0);
  EXPECT_EQ(own.Content("target"), "new");
}

TEST_F(ItemFaults, ATargetStaysWhereTheSourceBelongsToAnother) {
  if (geteuid() != 0) GTEST_SKIP() << "needs two users";
  own.Make({{"mine/target", "old"}, {"everybody/", ""}});
  AsNobody nobody(own.Path());
  const uid_t user = geteuid();
  ASSERT_EQ(seteuid(0), 0);
  own.Write("everybody/source", "new");
  ASSERT_EQ(chown(own.Path("everybody").c_str(), 0, 0), 0);
  ASSERT_EQ(chmod(own.Path("everybody").c_str(), 01777), 0);
  ASSERT_EQ(seteuid(user), 0);
  operation.overwriteMode = kOverwriteAlways;
  Answer("Access Denied", "s");
  EXPECT_EQ(Move("everybody/source", "mine/target"), EACCES);
  EXPECT_EQ(own.Content("mine/target"), "old");
}

TEST_F(ItemFaults, ASourceThatBecomesTheTargetDuringTheQuestionStays) {
  for (const bool isMove : {false, true}) {
    own.Write("source", "new");
    own.Write("target", "old");
    Then([this] { ASSERT_EQ(rename(own.Path("source").c_str(), own.Path("target").c_str()), 0); });
    Keys("Enter");
    Answer("File not found", "Enter");
    EXPECT_EQ(isMove ? Move() : Copy(), ENOENT);
    EXPECT_EQ(own.Content("target"), "new");
  }
}

TEST_F(ItemFaults, ATargetThatBecomesTheSourceDuringTheQuestionStays) {
  own.Make({{"source", "new"}, {"target", "old"}});
  Then([this] {
    ASSERT_EQ(unlink(own.Path("target").c_str()), 0);
    ASSERT_EQ(link(own.Path("source").c_str(), own.Path("target").c_str()), 0);
  });
  Keys("Enter");
  Answer("File cannot overwrite itself", "Enter");
  EXPECT_GT(Copy(), 0);
  EXPECT_TRUE(own.Exists("target"));
}

TEST_F(ItemFaults, ASourceThatHasGoneIsNoOlderFile) {
  own.Write("target", "old");
  operation.overwriteMode = kOverwriteIfOlder;
  Answer("File not found", "Enter");
  EXPECT_EQ(Copy(), ENOENT);
  EXPECT_EQ(own.Content("target"), "old");
}

TEST_F(ItemFaults, WhatElseHasTheContentsOfATargetKeepsThem) {
  own.Make({{"from/log.1", "newest"}, {"from/log.2", "older"}, {"to/", ""}});
  ASSERT_EQ(link(own.Path("from/log.2").c_str(), own.Path("to/log.1").c_str()), 0);
  operation.overwriteMode = kOverwriteAlways;
  EXPECT_EQ(Copy("from", "to"), 0);
  EXPECT_EQ(own.Content("from/log.2"), "older");
  EXPECT_EQ(own.Content("to/log.1"), "newest");
  EXPECT_EQ(own.Content("to/log.2"), "older");
}

TEST_F(ItemFaults, ADirectoryThatTakesNoNamesIsDenied) {
  own.Make({{"source", "new"}, {"locked/", ""}});
  AsNobody nobody(own.Path());
  ASSERT_EQ(chmod(own.Path("locked").c_str(), 0500), 0);
  Answer("Access Denied", "s");
  EXPECT_EQ(Copy("source", "locked/target"), EACCES);
  Answer("Access Denied", "s");
  EXPECT_EQ(Move("source", "locked/target"), EACCES);
  EXPECT_EQ(own.Content("source"), "new");
}

// ---- cancel ------------------------------------------------------------------

TEST_F(ItemFaults, ACancelDuringARenameEndsTheCommandBehindIt) {
  own.Write("source", "one");
  Fault fault(kCallRename, {.path = own.Path("source"), .before = RequestBreak});
  EXPECT_EQ(Move(), kMovedThenStop);
  EXPECT_EQ(own.Content("target"), "one");
}

// The name that moved has, but not the directory around it.
TEST_F(ItemFaults, ACancelDuringAMergeDoesNotTellThatTheDirectoryHasMoved) {
  own.Make({{"source/a", "one"}, {"target/", ""}});
  Fault fault(kCallRename, {.path = own.Path("source/a"), .before = RequestBreak});
  EXPECT_EQ(Move(), kStopCommand);
  EXPECT_EQ(own.Content("target/a"), "one");
  EXPECT_TRUE(own.Exists("source"));
}

TEST_F(ItemFaults, ACancelThatComesTooLateForAnItemIsForThoseThatFollow) {
  own.Write("source", "one");
  BreakScope outer;
  Fault fault(kCallSetTime, {.path = own.Path("target"), .before = RequestBreak});
  EXPECT_EQ(Copy(), 0);
  EXPECT_TRUE(outer.Stopped());
}
