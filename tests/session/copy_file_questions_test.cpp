// What a copy asks by itself: about errors of reading, about merging, and about
// what can't be copied at all.
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "fileops/copy_file.h"
#include "foundation/paths.h"
#include "support/console_fixture.h"
#include "support/faults.h"

namespace {

class CopyFileQuestions : public ConsoleFixture {
 protected:
  static Westring Wide(const std::string& path) { return Westring(path.c_str()); }

  int Copy(const std::string& from, const std::string& to, bool isMove = false) {
    return CopyFile(operation, Wide(own.Path(from)), Wide(own.Path(to)), false, isMove, nullptr, 0);
  }
  // Paths as they are, below the current directory.
  int CopyBare(const std::string& from, const std::string& to) {
    return CopyFile(operation, Wide(from), Wide(to), false, false, nullptr, 0);
  }

  // The box that the code under test asks with, then the answer.
  void Answer(const std::string& text, const std::string& keys) {
    Then([this, text] { EXPECT_NE(Screen().find(text), std::string::npos) << text; });
    Keys(keys);
  }

  // Reading fails from the n-th call on.
  FaultPlan Unreadable(int at, int times) const {
    return {.path = own.Path("source"), .at = at, .times = times, .code = EIO};
  }

  Sandbox own;
  FileOperation operation;
};

// ---- errors of reading ---------------------------------------------------------

TEST_F(CopyFileQuestions, TheThirdReadErrorInARowIsTold) {
  own.Write("source", "one");
  Fault fails(kCallRead, Unreadable(1, 3));
  Answer("Error reading disk", "s");
  EXPECT_EQ(Copy("source", "target"), EIO);
  EXPECT_EQ(fails.Calls(), 3);
  EXPECT_FALSE(own.Exists("target"));
}

TEST_F(CopyFileQuestions, RetryCountsReadErrorsFromNothing) {
  own.Write("source", "one");
  Fault fails(kCallRead, Unreadable(1, 6));
  Answer("Error reading disk", "r");
  Answer("Error reading disk", "r");
  EXPECT_EQ(Copy("source", "target"), 0);
  EXPECT_EQ(fails.Calls(), 6 + 2);
  EXPECT_EQ(own.Content("target"), "one");
}

TEST_F(CopyFileQuestions, EscAtAReadErrorStopsTheCommand) {
  own.Write("source", "one");
  Fault fails(kCallRead, Unreadable(2, 3));
  Answer("Error reading disk", "Esc");
  EXPECT_EQ(Copy("source", "target", true), kStopCommand);
  EXPECT_FALSE(own.Exists("target"));
  EXPECT_EQ(own.Content("source"), "one");
}

TEST_F(CopyFileQuestions, WhereTheKernelMeetsABadBlockTheReaderDecides) {
  const std::string bytes(100000, 'x');
  own.Write("source", bytes);
  Fault kernel(kCallKernelCopy, {.path = own.Path("source"), .times = kEveryCall, .code = EIO});
  Fault fails(kCallRead, Unreadable(2, 3));
  Answer("Error reading disk", "r");
  EXPECT_EQ(Copy("source", "target"), 0);
  EXPECT_EQ(own.Content("target"), bytes);
}

TEST_F(CopyFileQuestions, AnErrorOfTheDeviceWhileWritingIsTold) {
  own.Write("source", "one");
  Fault fails(kCallClose, {.path = own.Path("target"), .code = EIO});
  Answer("Error reading disk", "s");
  EXPECT_EQ(Copy("source", "target", true), EIO);
  EXPECT_FALSE(own.Exists("target"));
  EXPECT_EQ(own.Content("source"), "one");
}

TEST_F(CopyFileQuestions, RetryAfterAnErrorOfClosingCopiesAgain) {
  own.Write("source", "one");
  Fault fails(kCallClose, {.path = own.Path("target"), .code = EIO});
  Answer("Error reading disk", "r");
  EXPECT_EQ(Copy("source", "target", true), 0);
  EXPECT_EQ(own.Content("target"), "one");
  EXPECT_FALSE(own.Exists("source"));
}

// ---- directories ----------------------------------------------------------------

TEST_F(CopyFileQuestions, ADirectoryIsNotCopiedIntoItself) {
  own.Make({{"source/sub/", ""}, {"source/a", "one"}});
  ASSERT_EQ(symlink("source/sub", own.Path("other").c_str()), 0);
  for (const char* target :
       {"source", "source/new", "source/sub/new", "other/new", "other", "./source/../source/x"}) {
    Answer("Directory cannot be copied into itself", "Enter");
    EXPECT_EQ(Copy("source", target), kStopCommand) << target;
  }
  EXPECT_FALSE(own.Exists("source/new"));
  EXPECT_FALSE(own.Exists("source/sub/new"));
  EXPECT_FALSE(own.Exists("source/x"));
}

TEST_F(CopyFileQuestions, BareNamesAskBeforeMerging) {
  own.Make({{"source/a", "one"}, {"target/b", "two"}});
  ASSERT_EQ(chdir(own.Path().c_str()), 0);
  const std::string question = "Directory already exists, merge with source?";
  Answer(question, "s");
  EXPECT_EQ(CopyBare("source", "target"), kSkipped);
  Answer(question, "e");
  EXPECT_EQ(CopyBare("source", "target"), kSkipped);
  Answer(question, "Esc");
  EXPECT_EQ(CopyBare("source", "target"), kStopCommand);
  EXPECT_FALSE(own.Exists("target/a"));
  Answer(question, "Enter");
  EXPECT_EQ(CopyBare("source", "target"), 0);
  EXPECT_EQ(own.Content("target/a"), "one");
  EXPECT_FALSE(operation.mergeAll);
}

TEST_F(CopyFileQuestions, AllMergesTheRestWithoutAsking) {
  own.Make({{"one/a", "1"}, {"two/b", "2"}, {"target/", ""}});
  ASSERT_EQ(chdir(own.Path().c_str()), 0);
  Answer("Directory already exists", "a");
  EXPECT_EQ(CopyBare("one", "target"), 0);
  EXPECT_EQ(CopyBare("two", "target"), 0);
  EXPECT_EQ(own.Content("target/a"), "1");
  EXPECT_EQ(own.Content("target/b"), "2");
}

TEST_F(CopyFileQuestions, APathLongerThanTheSystemTakesIsInvalid) {
  own.Make({{"source/a", "one"}});
  Answer("Invalid Path", "Enter");
  EXPECT_EQ(Copy("source", std::string(kLongestPath, 't')), kStopCommand);
  EXPECT_EQ(own.Content("source/a"), "one");
}

// ---- names without a text ----------------------------------------------------------

TEST_F(CopyFileQuestions, NamesThatAreNoTextAreRefusedAndNoOtherFileTakesTheirPlace) {
  own.Make({{"source/\xC3\xA9", "valid"},
            {"source/\xE9", "invalid"},
            {"source/..\xC0\xAFx", "slash"},
            {"x", "other"}});
  Answer("Invalid or incomplete", "s");
  Answer("Invalid or incomplete", "s");
  EXPECT_EQ(Copy("source", "target"), kSkipped);
  EXPECT_EQ(own.Content("target/\xC3\xA9"), "valid");
  EXPECT_FALSE(own.Exists("target/\xE9"));
  EXPECT_FALSE(own.Exists("target/x"));
}

TEST_F(CopyFileQuestions, ADirectoryWithSuchANameIsNotEntered) {
  own.Make({{"source/\xFF/a", "one"}});
  Answer("Invalid or incomplete", "s");
  EXPECT_EQ(Copy("source", "target", true), kSkipped);
  EXPECT_EQ(own.Content("source/\xFF/a"), "one");
}

TEST_F(CopyFileQuestions, EscAtSuchANameStopsTheCommand) {
  own.Make({{"source/\xFF", "one"}});
  Answer("Invalid or incomplete", "Esc");
  EXPECT_EQ(Copy("source", "target"), kStopCommand);
}

TEST_F(CopyFileQuestions, RetryFindsANewNameGivenMeanwhile) {
  own.Make({{"source/\xFF", "one"}});
  Answer("Invalid or incomplete", "r");
  Then([&] { rename(own.Path("source/\xFF").c_str(), own.Path("source/good").c_str()); });
  Keys("r");
  EXPECT_EQ(Copy("source", "target"), 0);
  EXPECT_EQ(own.Content("source/good"), "one");
}

}  // namespace
