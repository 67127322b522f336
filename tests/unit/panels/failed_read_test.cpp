// Reads that the user hears of. This file answers the prompts of all unit tests
// of the panels.
#include <sys/stat.h>
#include <sys/wait.h>

#include <cerrno>
#include <cstring>

#include "dialogs/prompt.h"
#include "unit/panels/fake_archive.h"
#include "unit/panels/recorded_prompts.h"
#include "unit/panels/two_panels.h"

std::vector<RecordedPrompt> RecordedPrompts;

int Prompt(const Westring& text, const Westring& detail, int) {
  RecordedPrompts.push_back({ToUtf8(text).Text(), ToUtf8(detail).Text()});
  return 27;
}

int PromptForFile(StdFile*, const Westring& text, const Westring& detail, int flags) {
  return Prompt(text, detail, flags);
}

namespace {

constexpr uid_t kNobody = 65534;

RecordedPrompt Told(int error, const std::string& path) {
  return {std::string(strerror(error)) + " (" + std::to_string(error) + ")", path};
}

class FailedRead : public TwoPanels {
 protected:
  FailedRead() { RecordedPrompts.clear(); }
};

TEST_F(FailedRead, APathThatIsNoDirectoryIsToldAndThePanelGoesUp) {
  MakeFiles({"a", "file"});
  Read("file");
  EXPECT_EQ(RecordedPrompts, std::vector<RecordedPrompt>{Told(ENOTDIR, scratch.Path("file"))});
  EXPECT_EQ(PathOf(Left()), scratch.Path());
  EXPECT_STREQ(Left().lastPath, Left().path);
  EXPECT_EQ(NamesOf(Left()), (Names{"..", "a", "file"}));
  EXPECT_EQ(Under(Left()), "file");
  EXPECT_EQ(Left().readError, 0);
}

TEST_F(FailedRead, ANameThatIsTooLongIsToldAndThePanelGoesUp) {
  const std::string name(300, 'x');
  Read(name);
  EXPECT_EQ(RecordedPrompts, std::vector<RecordedPrompt>{Told(ENAMETOOLONG, scratch.Path(name))});
  EXPECT_EQ(PathOf(Left()), scratch.Path());
}

TEST_F(FailedRead, EveryLevelThatCannotBeReadIsToldOnTheWayUp) {
  MakeFiles({"file"});
  Read("file/below/it");
  EXPECT_EQ(RecordedPrompts, (std::vector<RecordedPrompt>{Told(ENOTDIR, scratch.Path("file/below/it")),
                                                          Told(ENOTDIR, scratch.Path("file/below")),
                                                          Told(ENOTDIR, scratch.Path("file"))}));
  EXPECT_EQ(PathOf(Left()), scratch.Path());
  EXPECT_EQ(Under(Left()), "file");
}

TEST_F(FailedRead, AReReadThatHasToGoUpTakesThePanelThereForGood) {
  scratch.MakeDirectory("d");
  Read("d");
  ASSERT_EQ(rmdir(scratch.Path("d").c_str()), 0);
  MakeFiles({"d"});
  ReadPanel(Left());
  EXPECT_EQ(RecordedPrompts.size(), 1u);
  EXPECT_EQ(PathOf(Left()), scratch.Path());
  EXPECT_STREQ(Left().lastPath, Left().path);
  EXPECT_EQ(std::filesystem::current_path(), scratch.Path());
  ReadPanel(Left());
  EXPECT_EQ(RecordedPrompts.size(), 1u);
  EXPECT_EQ(Under(Left()), "d");
}

TEST_F(FailedRead, OtherErrorsAreToldAndNoted) {
  const FakeArchiveHook hook;
  const Westring path = Wide(scratch.Path("a.zip"));
  FakeArchives[path.Text()].openError = EIO;
  Left().archive = OpenFakeArchive(path, nullptr);
  Read("a.zip");
  EXPECT_EQ(RecordedPrompts, std::vector<RecordedPrompt>{Told(EIO, scratch.Path("a.zip"))});
  EXPECT_EQ(Left().readError, EIO);
  EXPECT_EQ(PathOf(Left()), scratch.Path("a.zip"));
  EXPECT_EQ(Left().count, 0);
}

TEST_F(FailedRead, AtTheRootThereIsNoWayUpAndTheErrorIsNoted) {
  const FakeArchiveHook hook;
  FakeArchives[L"/"].openError = EACCES;
  Left().archive = OpenFakeArchive(L"/", nullptr);
  CopyText(Left().path, L"/");
  ReadPanel(Left());
  EXPECT_EQ(RecordedPrompts, std::vector<RecordedPrompt>{Told(EACCES, "/")});
  EXPECT_EQ(Left().readError, EACCES);
  EXPECT_EQ(PathOf(Left()), "/");
}

// In a process of nobody's; the checks travel back as its exit code.
TEST_F(FailedRead, AnUnreadableDirectoryBelowAnUnreadableOneLeadsToTheFirstReadableOne) {
  if (getuid() != 0) GTEST_SKIP() << "needs root to become nobody";
  scratch.MakeDirectory("open/closed/deeper");
  chmod(scratch.Path().c_str(), 0755);
  chmod(scratch.Path("open/closed").c_str(), 0700);
  const pid_t child = fork();
  if (child == 0) {
    if (setegid(kNobody) != 0 || seteuid(kNobody) != 0) _exit(100);
    Read("open/closed/deeper");
    if (RecordedPrompts != std::vector<RecordedPrompt>{Told(EACCES, scratch.Path("open/closed/deeper")),
                                                       Told(EACCES, scratch.Path("open/closed"))}) {
      _exit(1);
    }
    if (PathOf(Left()) != scratch.Path("open") || Under(Left()) != "closed") _exit(2);
    Enter(0, L"closed", false, -1, 0);
    if (RecordedPrompts.size() != 3 || PathOf(Left()) != scratch.Path("open")) _exit(3);
    if (Under(Left()) != "closed" || std::filesystem::current_path() != scratch.Path("open")) _exit(4);
    _exit(0);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 0);
}

TEST_F(FailedRead, ADirectoryWhosePathWouldBeTooLongIsNotEntered) {
  std::string path = scratch.Path();
  while (path.size() < 505) path += "/" + std::string(std::min<size_t>(504 - path.size(), 200), 'd');
  ASSERT_EQ(path.size(), 505u);
  std::filesystem::create_directories(path + "/12345");
  std::filesystem::create_directories(path + "/123456");
  Read(path.substr(scratch.Path().size() + 1));
  PositionOn(Left(), L"123456");
  const int historyBefore = DirectoryHistory.Count();
  Enter(0, Left().Current()->name, false, -1, 0);
  EXPECT_EQ(RecordedPrompts, std::vector<RecordedPrompt>{Told(ENAMETOOLONG, path + "/123456")});
  EXPECT_EQ(PathOf(Left()), path);
  EXPECT_EQ(Under(Left()), "123456");
  EXPECT_EQ(DirectoryHistory.Count(), historyBefore);
  EXPECT_FALSE(ChangeDirectory(Left(), L"123456"));
  EXPECT_EQ(PathOf(Left()), path);

  Enter(0, L"12345", false, -1, 0);
  EXPECT_EQ(PathOf(Left()), path + "/12345");
  EXPECT_EQ(RecordedPrompts.size(), 1u);
}

}  // namespace
