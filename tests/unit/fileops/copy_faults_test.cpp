// Copies that fail at a certain call: what is told, and what is on the disk then.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include "unit/fileops/copy_fixture.h"

namespace {

// Large enough for many reads and writes, and for three steps of the kernel.
constexpr size_t kSize = (8 << 20) + 100;

class CopyFaultsTest : public CopyFixture {
 protected:
  CopyFaultsTest() { WriteSource(); }

  // With a mode that no file is made with.
  void WriteSource() {
    files.Write("source", bytes);
    chmod(files.Path("source").c_str(), 0755);
  }

  void ExpectOnlyTheSource(const std::string& what) {
    EXPECT_FALSE(files.Exists("target")) << what;
    EXPECT_TRUE(Content("source") == bytes) << what;
  }
  const std::string bytes = Bytes(kSize);
  FaultPlan NoKernelPlan() const { return {.path = files.Path(), .times = kEveryCall, .code = EXDEV}; }
};

TEST_F(CopyFaultsTest, WhereTheKernelFailsTheBufferGoesOn) {
  for (const int code : {EXDEV, EINVAL, ENOSYS, EIO, ENOSPC, EOPNOTSUPP, ETXTBSY}) {
    for (int at = 1; at <= 3; ++at) {
      Fault fails(kCallKernelCopy, About("source", at, code));
      Fault reads(kCallRead, {.path = files.Path("source")});
      EXPECT_EQ(Replace(), 0) << code << " at " << at;
      EXPECT_EQ(fails.Calls(), at);
      EXPECT_EQ(reads.Calls() > 100, at < 3) << "what the kernel has carried is not read again";
      EXPECT_TRUE(Content("target") == bytes) << code << " at " << at;
    }
  }
}

TEST_F(CopyFaultsTest, AReadErrorAtAnyCallLeavesNoTarget) {
  const Fault noKernel(kCallKernelCopy, NoKernelPlan());
  for (const int at : {1, 2, 100, 258}) {
    Fault fails(kCallRead, About("source", at, ESTALE));
    EXPECT_EQ(Copy(), ESTALE);
    EXPECT_EQ(fails.Calls(), at);
    ExpectOnlyTheSource("read " + std::to_string(at));
    Fault failsAgain(kCallRead, About("source", at, ESTALE));
    EXPECT_EQ(Move(), ESTALE);
    ExpectOnlyTheSource("move, read " + std::to_string(at));
  }
}

TEST_F(CopyFaultsTest, TwoReadErrorsInARowAreNoMatter) {
  const Fault noKernel(kCallKernelCopy, NoKernelPlan());
  Fault early(kCallRead, {.path = files.Path("source"), .at = 1, .times = 2, .code = EIO});
  Fault late(kCallRead, {.path = files.Path("source"), .at = 50, .times = 2, .code = EIO});
  EXPECT_EQ(Copy(), 0);
  EXPECT_TRUE(Content("target") == bytes);
}

TEST_F(CopyFaultsTest, AWriteErrorAtAnyCallLeavesNoTarget) {
  const Fault noKernel(kCallKernelCopy, NoKernelPlan());
  for (const int at : {1, 2, 100, 257}) {
    Fault fails(kCallWrite, About("target", at, ENOSPC));
    EXPECT_EQ(Copy(), ENOSPC);
    EXPECT_EQ(fails.Calls(), at);
    ExpectOnlyTheSource("write " + std::to_string(at));
    Fault failsAgain(kCallWrite, About("target", at, EDQUOT));
    EXPECT_EQ(Move(), EDQUOT);
    ExpectOnlyTheSource("move, write " + std::to_string(at));
  }
}

TEST_F(CopyFaultsTest, AnErrorOfClosingLeavesNoTarget) {
  for (const int code : {ENOSPC, EDQUOT}) {
    Fault fails(kCallClose, About("target", 1, code));
    EXPECT_EQ(Copy(), code);
    ExpectOnlyTheSource("close");
    Fault failsAgain(kCallClose, About("target", 1, code));
    EXPECT_EQ(Move(), code);
    ExpectOnlyTheSource("move, close");
  }
}

TEST_F(CopyFaultsTest, AnErrorOfSettingModeOrTimeLeavesNoTarget) {
  for (const FaultCall call : {kCallSetMode, kCallSetTime}) {
    Fault fails(call, About("target", 1, EROFS));
    EXPECT_EQ(Copy(), EROFS);
    ExpectOnlyTheSource("stamp");
    Fault failsAgain(call, About("target", 1, EROFS));
    EXPECT_EQ(Move(), EROFS);
    ExpectOnlyTheSource("move, stamp");
  }
}

TEST_F(CopyFaultsTest, AFileSystemThatKeepsNoModeOrTimeTakesCopies) {
  for (const int code : {EPERM, ENOTSUP, ENOSYS}) {
    Fault mode(kCallSetMode, About("target", 1, code)), time(kCallSetTime, About("target", 1, code));
    EXPECT_EQ(Replace(), 0) << code;
    EXPECT_TRUE(Content("target") == bytes);
  }
}

TEST_F(CopyFaultsTest, AMoveThatWouldLoseTheTimeKeepsTheSource) {
  Fault time(kCallSetTime, About("target", 1, EPERM));
  EXPECT_EQ(Move(), EPERM);
  ExpectOnlyTheSource("time");
  Fault mode(kCallSetMode, About("target", 1, EPERM));
  EXPECT_EQ(Move(), 0);
  EXPECT_FALSE(files.Exists("source"));
}

TEST_F(CopyFaultsTest, ATargetThatCannotBeOpenedIsTold) {
  for (const int code : {EROFS, ENOSPC, EMFILE}) {
    Fault fails(kCallOpen, About("target", 1, code));
    EXPECT_EQ(Copy(), code);
    ExpectOnlyTheSource("open");
  }
}

TEST_F(CopyFaultsTest, ASourceThatOpensTheSecondTimeIsOpenForWriting) {
  for (const int code : {EACCES, EAGAIN}) {
    Fault fails(kCallOpen, About("source", 1, code));
    EXPECT_EQ(Copy(), kSourceOpen);
    EXPECT_EQ(fails.Calls(), 2);
    EXPECT_FALSE(files.Exists("target"));
  }
  Fault both(kCallOpen, {.path = files.Path("source"), .times = 2, .code = EAGAIN});
  EXPECT_EQ(Copy(), EAGAIN);
}

TEST_F(CopyFaultsTest, ToldToTakeItItOpensOnce) {
  Fault fails(kCallOpen, About("source", 1, EACCES));
  EXPECT_EQ(Copy("source", "target", false, kTakeOpenFile), EACCES);
  EXPECT_EQ(fails.Calls(), 1);
  EXPECT_EQ(Copy("source", "target", false, kTakeOpenFile), 0);
}

// A limit on sizes is how a full disk can be had without one; its signal would
// end the program.
TEST_F(CopyFaultsTest, ALimitOnSizesEndsTheCopyAndNotTheProgram) {
  files.MakeDirectory("sub");
  rlimit before;
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const rlimit limit{100000, before.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
  const int copied = Copy(), moved = Move("source", "sub/target");
  setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_EQ(copied, EFBIG);
  EXPECT_EQ(moved, EFBIG);
  EXPECT_FALSE(files.Exists("sub/target"));
  ExpectOnlyTheSource("limit");
}

// The end of the program at any call leaves the one or the other whole. The
// child's copy of the fault ends it; the parent looks at what is left.
TEST_F(CopyFaultsTest, AKillAtAnyCallLeavesTheSourceOrTheTargetWhole) {
  const Fault noKernel(kCallKernelCopy, NoKernelPlan());
  for (const FaultCall call :
       {kCallOpen, kCallRead, kCallWrite, kCallSetTime, kCallSetMode, kCallClose, kCallUnlink}) {
    int ends = 0;
    for (int at = 1, killed = 1; killed; at = at < 4 ? at + 1 : at * 4, ends += killed) {
      const pid_t child = fork();
      ASSERT_GE(child, 0);
      if (child == 0) {
        Fault kill(call, {.path = files.Path(), .at = at, .before = [] { _exit(1); }});
        _exit(Move() == 0 ? 0 : 2);
      }
      int status = 0;
      ASSERT_EQ(waitpid(child, &status, 0), child);
      ASSERT_TRUE(WIFEXITED(status));
      killed = WEXITSTATUS(status);
      ASSERT_LT(killed, 2);
      const bool sourceIsWhole = Content("source") == bytes, targetIsWhole = Content("target") == bytes;
      EXPECT_TRUE(sourceIsWhole || targetIsWhole) << "call " << call << " at " << at;
      EXPECT_TRUE(killed || !files.Exists("source"));
      WriteSource();
      unlink(files.Path("target").c_str());
    }
    EXPECT_GT(ends, 0) << "no such call as " << call;
  }
}

TEST_F(CopyFaultsTest, ForceThatFailsLeavesNoHalfOfTheNewContents) {
  files.Write("target", "old");
  Fault fails(kCallClose, About("target", 1, ENOSPC));
  EXPECT_EQ(Replace(), ENOSPC);
  ExpectOnlyTheSource("replace");
}

}  // namespace
