// One file or link: what arrives, and what is never touched.
#include "fileops/copy_file.h"

#include <fcntl.h>
#include <sys/resource.h>

#include <climits>

#include "console/input.h"
#include "fileops/copy_progress.h"
#include "unit/fileops/copy_fixture.h"

namespace {

class CopyFileTest : public CopyFixture {};

TEST_F(CopyFileTest, ContentsModeAndTimeArrive) {
  files.Write("source", "one\ntwo");
  chmod(files.Path("source").c_str(), 04751);
  const timespec times[2] = {{1000, 5}, {1234567890, 123456789}};
  utimensat(AT_FDCWD, files.Path("source").c_str(), times, 0);
  EXPECT_EQ(Copy(), 0);
  EXPECT_EQ(files.Content("target"), "one\ntwo");
  EXPECT_EQ(Mode("target"), 04751u);
  EXPECT_EQ(Status("target").st_mtim.tv_sec, 1234567890);
  EXPECT_EQ(Status("target").st_mtim.tv_nsec, 123456789);
  EXPECT_NE(Status("target").st_atim.tv_sec, 1000);
  EXPECT_EQ(files.Content("source"), "one\ntwo");
}

TEST_F(CopyFileTest, DatesBeforeTheEpochArriveToo) {
  files.Write("source", "old");
  const timespec times[2] = {{0, UTIME_OMIT}, {-86400, 7}};
  utimensat(AT_FDCWD, files.Path("source").c_str(), times, 0);
  EXPECT_EQ(Copy(), 0);
  EXPECT_EQ(Status("target").st_mtim.tv_sec, -86400);
}

TEST_F(CopyFileTest, AllBytesOfAnySizeArrive) {
  for (const size_t size : {0, 1, 32767, 32768, 32769, 65536, (4 << 20) - 1, (4 << 20) + 1, 9 << 20}) {
    files.Write("source", Bytes(size));
    EXPECT_EQ(Replace(), 0) << size;
    EXPECT_TRUE(Content("target") == Bytes(size)) << size;
  }
}

TEST_F(CopyFileTest, ASourceThatNobodyMayReadIsNeverOpenToOthers) {
  files.Write("source", "secret");
  chmod(files.Path("source").c_str(), 0600);
  mode_t meanwhile = 0;
  Fault look(kCallWrite, Before("target", 1, [&] { meanwhile = Mode("target"); }));
  EXPECT_EQ(Copy(), 0);
  EXPECT_EQ(meanwhile, 0600u);
  EXPECT_EQ(Mode("target"), 0600u);
}

TEST_F(CopyFileTest, AMissingSourceMakesNothing) {
  EXPECT_EQ(Copy(), ENOENT);
  EXPECT_FALSE(files.Exists("target"));
}

TEST_F(CopyFileTest, AMissingTargetDirectoryIsTold) {
  files.Write("source", "one");
  EXPECT_EQ(Copy("source", "absent/target"), ENOENT);
  EXPECT_EQ(Copy("source", "source/target"), ENOTDIR);
}

TEST_F(CopyFileTest, NamesAndPathsThatAreTooLongAreTold) {
  files.Write("source", "one");
  EXPECT_EQ(Copy("source", std::string(256, 'n')), ENAMETOOLONG);
  std::string deep = "t";
  while (deep.size() < PATH_MAX) deep += "/../" + std::string(200, 'd');
  EXPECT_EQ(Copy("source", deep), ENAMETOOLONG);
  EXPECT_EQ(Copy(deep, "target"), ENAMETOOLONG);
  EXPECT_FALSE(files.Exists("target"));
}

TEST_F(CopyFileTest, ANameMayHoldEveryByteOfText) {
  std::string name = "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";
  for (char byte = 1; byte < 127; ++byte)
    if (byte != '/') name += byte;
  files.Write(name, "one");
  files.MakeDirectory("right");
  EXPECT_EQ(Copy(name, "right/" + name), 0);
  EXPECT_EQ(files.Content("right/" + name), "one");
}

// ---- what is there already ----------------------------------------------------

TEST_F(CopyFileTest, AnExistingTargetStaysWithoutForce) {
  files.Write("source", "new");
  files.Write("target", "old");
  EXPECT_EQ(Copy(), EACCES);
  EXPECT_EQ(files.Content("target"), "old");
}

TEST_F(CopyFileTest, ATargetThatAppearsMeanwhileStaysWithoutForce) {
  files.Write("source", "new");
  Fault appears(kCallOpen, Before("target", 1, [&] { files.Write("target", "somebody's"); }));
  EXPECT_EQ(Copy(), EACCES);
  EXPECT_EQ(appears.Calls(), 1);
  EXPECT_EQ(files.Content("target"), "somebody's");
}

TEST_F(CopyFileTest, ForceReplacesContentsAndMode) {
  files.Write("source", "new");
  files.Write("target", "much longer than the new text");
  chmod(files.Path("target").c_str(), 0600);
  EXPECT_EQ(Replace(), 0);
  EXPECT_EQ(files.Content("target"), "new");
  EXPECT_EQ(Mode("target"), 0644u);
}

// Who replaces somebody's program does not run as him.
TEST_F(CopyFileTest, ForceLeavesNoSpecialBitOfTheReplacedFile) {
  files.Write("source", "new");
  files.Write("target", "old");
  for (const mode_t special : {S_ISUID, S_ISGID, S_ISVTX}) {
    chmod(files.Path("target").c_str(), special | 0644);
    ASSERT_EQ(Mode("target"), special | 0644u);
    EXPECT_EQ(Replace(), 0);
    EXPECT_EQ(Mode("target"), 0644u);
  }
}

TEST_F(CopyFileTest, AFileIsNeverCopiedOntoItself) {
  files.Write("source", "mine");
  files.MakeDirectory("sub");
  ASSERT_EQ(link(files.Path("source").c_str(), files.Path("hard").c_str()), 0);
  ASSERT_EQ(symlink("source", files.Path("soft").c_str()), 0);
  ASSERT_EQ(symlink(files.Path().c_str(), files.Path("here").c_str()), 0);
  for (const char* other : {"source", "hard", "soft", "./source", "sub/../source", "here/source"}) {
    EXPECT_EQ(Replace("source", other), EEXIST) << other;
    EXPECT_EQ(Copy("source", other), EEXIST) << other;
    EXPECT_EQ(files.Content("source"), "mine") << other;
  }
}

TEST_F(CopyFileTest, NothingIsWrittenThroughALink) {
  files.Write("source", "new");
  files.Write("other", "old");
  ASSERT_EQ(symlink("other", files.Path("target").c_str()), 0);
  ASSERT_EQ(symlink("absent", files.Path("dangling").c_str()), 0);
  EXPECT_EQ(Replace(), EEXIST);
  EXPECT_EQ(Copy("source", "dangling"), EEXIST);
  EXPECT_EQ(Replace("source", "dangling"), EEXIST);
  EXPECT_EQ(files.Content("other"), "old");
  EXPECT_FALSE(files.Exists("absent"));
}

TEST_F(CopyFileTest, ADirectoryInTheWayIsTold) {
  files.Write("source", "new");
  files.MakeDirectory("target");
  EXPECT_EQ(Copy(), EACCES);
  EXPECT_EQ(Replace(), EISDIR);
  EXPECT_TRUE(files.Exists("target"));
}

// ---- rights --------------------------------------------------------------------

TEST_F(CopyFileTest, WhatMayNotBeReadOrMadeIsDenied) {
  files.Write("source", "one");
  files.MakeDirectory("own");
  files.MakeDirectory("closed");
  chmod(files.Path().c_str(), 0755);
  chmod(files.Path("source").c_str(), 0600);
  if (getuid() != 0) GTEST_SKIP() << "needs a file of somebody else";
  {
    const AsNobody nobody(files.Path("own"));
    EXPECT_EQ(Copy("source", "own/target"), EACCES);
    EXPECT_EQ(Copy("/../../../../../etc/passwd", "closed/target"), EACCES);
  }
  EXPECT_FALSE(files.Exists("own/target"));
  EXPECT_FALSE(files.Exists("closed/target"));
}

TEST_F(CopyFileTest, AReadOnlyTargetIsNotEmptiedByForce) {
  files.MakeDirectory("own");
  chmod(files.Path().c_str(), 0755);
  const AsNobody nobody(files.Path("own"));
  files.Write("own/source", "new");
  files.Write("own/target", "old");
  chmod(files.Path("own/target").c_str(), 0444);
  EXPECT_EQ(Replace("own/source", "own/target"), EACCES);
  EXPECT_EQ(files.Content("own/target"), "old");
}

// ---- links ---------------------------------------------------------------------

TEST_F(CopyFileTest, ALinkIsCopiedAsALinkWithTheSameText) {
  files.MakeDirectory("directory");
  for (const std::string text : {"directory", "/absent/any\xE9where", "source"}) {
    ASSERT_EQ(symlink(text.c_str(), files.Path("source").c_str()), 0);
    EXPECT_EQ(Copy(), 0) << text;
    char copied[PATH_MAX] = {};
    EXPECT_GT(readlink(files.Path("target").c_str(), copied, sizeof copied - 1), 0) << text;
    EXPECT_EQ(copied, text);
    unlink(files.Path("source").c_str());
    unlink(files.Path("target").c_str());
  }
}

TEST_F(CopyFileTest, ALinkReplacesNothing) {
  ASSERT_EQ(symlink("anywhere", files.Path("source").c_str()), 0);
  files.Write("target", "old");
  EXPECT_EQ(Copy(), EEXIST);
  EXPECT_EQ(Replace(), EEXIST);
  EXPECT_EQ(Move(), EEXIST);
  EXPECT_EQ(files.Content("target"), "old");
  EXPECT_TRUE(files.Exists("source"));
}

TEST_F(CopyFileTest, AMovedLinkLeavesItsOldPlace) {
  files.Write("file", "one");
  ASSERT_EQ(symlink("file", files.Path("source").c_str()), 0);
  EXPECT_EQ(Move(), 0);
  EXPECT_FALSE(files.Exists("source"));
  EXPECT_EQ(files.Content("target"), "one");
  EXPECT_TRUE(S_ISLNK(Status("target").st_mode));
}

TEST_F(CopyFileTest, WhatTakesAMovedLinksPlaceStays) {
  ASSERT_EQ(symlink("anywhere", files.Path("source").c_str()), 0);
  Fault changes(kCallMakeLink, Before("target", 1, [&] {
                  unlink(files.Path("source").c_str());
                  files.Write("source", "somebody's");
                }));
  EXPECT_EQ(Move(), 0);
  EXPECT_EQ(files.Content("source"), "somebody's");
}

TEST_F(CopyFileTest, ALinkThatCannotBeReadIsTold) {
  ASSERT_EQ(symlink("anywhere", files.Path("source").c_str()), 0);
  Fault fails(kCallReadLink, About("source", 1, ESTALE));
  EXPECT_EQ(Copy(), ESTALE);
  EXPECT_FALSE(files.Exists("target"));
}

// ---- moving --------------------------------------------------------------------

TEST_F(CopyFileTest, AMovedFileLeavesItsOldPlace) {
  files.Write("source", Bytes(100000));
  EXPECT_EQ(Move(), 0);
  EXPECT_FALSE(files.Exists("source"));
  EXPECT_TRUE(Content("target") == Bytes(100000));
}

TEST_F(CopyFileTest, TheSourceGoesAfterTheTargetIsStampedAndClosed) {
  files.Write("source", "one");
  bool closed = false;
  Fault close(kCallClose, Before("target", 1, [&] {
                closed = true;
                EXPECT_TRUE(files.Exists("source"));
                EXPECT_EQ(Status("target").st_mtim.tv_nsec, Status("source").st_mtim.tv_nsec);
              }));
  Fault removed(kCallUnlink, Before("source", 1, [&] { EXPECT_TRUE(closed); }));
  EXPECT_EQ(Move(), 0);
  EXPECT_EQ(removed.Calls(), 1);
}

// ---- a source that changes -------------------------------------------------------

TEST_F(CopyFileTest, WhatIsAddedDuringTheCopyArrives) {
  for (const size_t size : {5, 40000, 5 << 20}) {
    files.Write("source", Bytes(size));
    const auto add = [&] {
      const int fd = open(files.Path("source").c_str(), O_WRONLY | O_APPEND);
      EXPECT_EQ(write(fd, "more", 4), 4);
      close(fd);
    };
    Fault grows(kCallWrite, Before("target", 1, add));
    Fault growsByKernel(kCallKernelCopy, Before("source", 1, add));
    EXPECT_EQ(Replace(), 0);
    EXPECT_TRUE(Content("target") == Content("source")) << size;
    EXPECT_GT(Content("target").size(), size);
  }
}

TEST_F(CopyFileTest, ASourceThatShrinksEndsTheCopyWhereItEnds) {
  files.Write("source", Bytes(10 << 20));
  Fault shrinks(kCallKernelCopy,
                Before("source", 2, [&] { EXPECT_EQ(truncate(files.Path("source").c_str(), 5 << 20), 0); }));
  EXPECT_EQ(Copy(), 0);
  EXPECT_TRUE(Content("target") == Bytes(10 << 20).substr(0, 5 << 20));
}

TEST_F(CopyFileTest, ASourceThatVanishesDuringTheMoveHasArrived) {
  files.Write("source", Bytes(50000));
  Fault vanishes(kCallSetTime, Before("target", 1, [&] { unlink(files.Path("source").c_str()); }));
  EXPECT_EQ(Move(), 0);
  EXPECT_TRUE(Content("target") == Bytes(50000));
}

TEST_F(CopyFileTest, ASourceThatWasWrittenBehindTheCopyIsNotDeleted) {
  files.Write("source", "first");
  Fault changes(kCallSetTime, Before("target", 1, [&] { files.Write("source", "second, longer"); }));
  EXPECT_EQ(Move(), EBUSY);
  EXPECT_EQ(files.Content("source"), "second, longer");
  EXPECT_FALSE(files.Exists("target"));
}

TEST_F(CopyFileTest, ASourceThatWasWrittenDuringTheCopyIsNotDeleted) {
  files.Write("source", Bytes(100000));
  const timespec old[2] = {{1000, 0}, {1000, 0}};
  utimensat(AT_FDCWD, files.Path("source").c_str(), old, 0);
  Fault noKernel(kCallKernelCopy, {.path = files.Path(), .times = kEveryCall, .code = EXDEV});
  Fault changes(kCallRead, Before("source", 2, [&] {
                  const int fd = open(files.Path("source").c_str(), O_WRONLY);
                  EXPECT_EQ(pwrite(fd, "changed", 7, 0), 7);
                  close(fd);
                }));
  EXPECT_EQ(Move(), EBUSY);
  EXPECT_EQ(Content("source").substr(0, 7), "changed");
  EXPECT_FALSE(files.Exists("target"));
}

TEST_F(CopyFileTest, ASourceThatAnotherFileReplacedIsNotDeleted) {
  files.Write("source", "first");
  files.Write("other", "other");
  Fault changes(kCallSetTime, Before("target", 1, [&] {
                  rename(files.Path("other").c_str(), files.Path("source").c_str());
                }));
  EXPECT_EQ(Move(), EBUSY);
  EXPECT_EQ(files.Content("source"), "other");
}

TEST_F(CopyFileTest, ATargetThatLostItsNameKeepsTheSource) {
  files.Write("source", "one");
  Fault taken(kCallSetTime, Before("target", 1, [&] {
                unlink(files.Path("target").c_str());
                files.Write("target", "somebody's");
              }));
  EXPECT_EQ(Move(), EBUSY);
  EXPECT_EQ(files.Content("source"), "one");
  EXPECT_EQ(files.Content("target"), "somebody's");
}

// ---- stopping and counting -------------------------------------------------------

TEST_F(CopyFileTest, ACancelRemovesThePartialTargetAndReachesTheCommand) {
  files.Write("source", Bytes(200000));
  BreakScope command;
  Fault noKernel(kCallKernelCopy, {.path = files.Path(), .times = kEveryCall, .code = EXDEV});
  Fault cancel(kCallRead, Before("source", 2, [] { RequestBreak(); }));
  EXPECT_EQ(Copy(), kStopCommand);
  EXPECT_EQ(cancel.Calls(), 2);
  EXPECT_FALSE(files.Exists("target"));
  EXPECT_TRUE(command.Stopped());
  EXPECT_EQ(Copy(), kStopCommand) << "nothing starts behind a cancel";
}

TEST_F(CopyFileTest, ACancelStopsTheKernelAfterOneStep) {
  files.Write("source", Bytes(20 << 20));
  Fault cancel(kCallKernelCopy, Before("source", 2, [] { RequestBreak(); }));
  EXPECT_EQ(Copy(), kStopCommand);
  EXPECT_EQ(cancel.Calls(), 2);
  EXPECT_FALSE(files.Exists("target"));
}

TEST_F(CopyFileTest, ACancelBehindTheLastByteIsForTheNextFile) {
  files.Write("source", "one");
  BreakScope command;
  Fault cancel(kCallSetTime, Before("target", 1, [] { RequestBreak(); }));
  EXPECT_EQ(Copy(), 0);
  EXPECT_EQ(files.Content("target"), "one");
  EXPECT_TRUE(command.Stopped());
}

TEST_F(CopyFileTest, BytesAreCountedAndThoseOfAFailureAreNot) {
  CopyProgress progress(false);
  operation.progress = &progress;
  progress.state.done = 10;
  files.Write("source", Bytes(5 << 20));
  EXPECT_EQ(Copy(), 0);
  EXPECT_EQ(progress.state.done, 10 + (5 << 20));
  EXPECT_TRUE(progress.state.dirty);
  Fault fails(kCallSetTime, About("other", 1, EDQUOT));
  EXPECT_EQ(Copy("source", "other"), EDQUOT);
  EXPECT_EQ(progress.state.done, 10 + (5 << 20));
  operation.progress = nullptr;
}

// ---- the cost of a small file -----------------------------------------------------

TEST_F(CopyFileTest, ASmallFileTakesFewCalls) {
  files.Write("source", Bytes(16384));
  Descriptions none;
  ASSERT_NE(none.Open(Wide(""), false, false), 0);
  Fault opens(kCallOpen, {.path = files.Path()}), reads(kCallRead, {.path = files.Path()}),
      writes(kCallWrite, {.path = files.Path()}), seeks(kCallSeek, {.path = files.Path()}),
      kernel(kCallKernelCopy, {.path = files.Path()}), cuts(kCallTruncate, {.path = files.Path()}),
      modes(kCallSetMode, {.path = files.Path()});
  EXPECT_EQ(CopyFile(operation, Wide("source"), Wide("target"), false, false, &none, 0), 0);
  EXPECT_EQ(opens.Calls(), 2);
  EXPECT_EQ(reads.Calls(), 2);
  EXPECT_EQ(writes.Calls(), 1);
  EXPECT_EQ(seeks.Calls() + kernel.Calls() + cuts.Calls() + modes.Calls(), 0);
}

}  // namespace
