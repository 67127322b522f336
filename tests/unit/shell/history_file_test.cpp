// Reading, adding to and replacing the history file.
#include "shell/history_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <unistd.h>

#include <chrono>
#include <climits>
#include <csignal>
#include <filesystem>

#include "unit/shell/history_fixture.h"

namespace {

class HistoryFile : public HistoryFixture {};

std::string Numbered(const std::string& text, int from, int to, const std::string& end = "\r\n") {
  std::string lines;
  for (int i = from; i <= to; ++i) lines += text + std::to_string(i) + end;
  return lines;
}

// No file grows over a size, as on a disk that has no more room.
class FullDisk {
 public:
  explicit FullDisk(rlim_t size) {
    if (getrlimit(RLIMIT_FSIZE, &old) != 0) abort();
    oldHandler = signal(SIGXFSZ, SIG_IGN);
    const rlimit full{size, old.rlim_max};
    if (setrlimit(RLIMIT_FSIZE, &full) != 0) abort();
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &old);
    signal(SIGXFSZ, oldHandler);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit old{};
  void (*oldHandler)(int) = nullptr;
};

}  // namespace

// ---- loading

TEST_F(HistoryFile, AMissingOneIsAnEmptyHistory) {
  EXPECT_EQ(Commands(), Strings{});
  EXPECT_EQ(told, Strings{});
  EXPECT_FALSE(home.Exists(".orvane")) << "reading makes nothing";
}

TEST_F(HistoryFile, CommandsAndEntriesGoToTheirHistories) {
  Load("one\r\n5\x19*.c\r\ntwo\r\n11\x19name\r\n5\x19*.h\r\n");
  EXPECT_EQ(Commands(), (Strings{"one", "two"}));
  EXPECT_EQ(Entries(5), (Strings{"*.c", "*.h"}));
  EXPECT_EQ(Entries(11), Strings{"name"});
  EXPECT_EQ(Entries(0), Strings{});
}

TEST_F(HistoryFile, TheLastUseDecidesThePosition) {
  Load(
      "one\n5\x19"
      "a\ntwo\n  one\n5\x19"
      "b\nthree\n5\x19"
      "a\ntwo\n");
  EXPECT_EQ(Commands(), (Strings{"one", "three", "two"}));
  EXPECT_EQ(Entries(5), (Strings{"b", "a"}));
}

TEST_F(HistoryFile, CommandsThatDifferInCaseAreTwo) {
  Load("ls A\nls a\n");
  EXPECT_EQ(Commands(), (Strings{"ls A", "ls a"}));
}

TEST_F(HistoryFile, LoadingTakesThePlaceOfWhatIsThere) {
  AddCommand(L"old", true);
  AddDialogHistory(L"old", kHistorySearch, true);
  Load("new\n");
  EXPECT_EQ(Commands(), Strings{"new"});
  EXPECT_EQ(Entries(kHistorySearch), Strings{});
}

TEST_F(HistoryFile, UpToMaxHistCommandsLeaveTheFileAsItIs) {
  Options::MaxHist = 3;
  const std::string content = "one\none\n99\x19odd\n\ntwo";
  Load(content);
  EXPECT_EQ(Commands(), (Strings{"one", "two"}));
  EXPECT_EQ(File(), content);
}

TEST_F(HistoryFile, OfMoreThanMaxHistTheOldestGoAlsoFromTheFile) {
  Options::MaxHist = 2;
  Load("one\n5\x19x\ntwo\nthree\n");
  EXPECT_EQ(Commands(), (Strings{"two", "three"}));
  EXPECT_EQ(File(), "two\r\nthree\r\n5\x19x\r\n");
}

TEST_F(HistoryFile, RepeatedCommandsCountForTheRewriting) {
  Options::MaxHist = 2;
  Load("one\ntwo\none\n");
  EXPECT_EQ(Commands(), (Strings{"two", "one"}));
  EXPECT_EQ(File(), "two\r\none\r\n");
}

TEST_F(HistoryFile, ARewrittenOneKeepsTheLast20OfEachDialogHistory) {
  Options::MaxHist = 1;
  Load(Numbered("3\x19"
                "a",
                1, 25) +
       Numbered("11\x19"
                "b",
                1, 21) +
       "0\x19"
       "c\none\ntwo\n");
  EXPECT_EQ(File(),
            "two\r\n0\x19"
            "c\r\n" +
                Numbered("3\x19"
                         "a",
                         6, 25) +
                Numbered("11\x19"
                         "b",
                         2, 21));
  EXPECT_EQ(Entries(3).size(), 25u) << "this run still has them all";
}

TEST_F(HistoryFile, EntriesAloneAreNeverTooMany) {
  Options::MaxHist = 0;
  const std::string content = Numbered(
      "3\x19"
      "a",
      1, 100);
  Load(content);
  EXPECT_EQ(File(), content);
  EXPECT_EQ(Entries(3).size(), 100u);
}

TEST_F(HistoryFile, AMaxHistOfZeroOrLessKeepsNoCommands) {
  for (const int most : {0, -1, INT_MIN}) {
    Options::MaxHist = most;
    Load("one\ntwo\n5\x19x\n");
    EXPECT_EQ(Commands(), Strings{}) << most;
    EXPECT_EQ(File(), "5\x19x\r\n") << most;
  }
}

TEST_F(HistoryFile, AHugeMaxHistKeepsThemAll) {
  Options::MaxHist = INT_MAX;
  const std::string content = Numbered("c", 1, 1000);
  Load(content);
  EXPECT_EQ(Commands().size(), 1000u);
  EXPECT_EQ(File(), content);
}

TEST_F(HistoryFile, ARewrittenCommandStaysACommand) {
  Options::MaxHist = 1;
  AddCommand(L"first");
  AddCommand(L"5\x19x");
  LoadHistory();
  ASSERT_EQ(Commands(), Strings{"5\x19x"});
  LoadHistory();
  EXPECT_EQ(Commands(), Strings{"5\x19x"});
  EXPECT_EQ(Entries(5), Strings{});
}

TEST_F(HistoryFile, AHundredThousandLinesLoadFast) {
  std::string content;
  for (int i = 0; i < 100'000; ++i) {
    content += "command number " + std::to_string(i % 50'000) + "\r\n";
    if (i % 2 != 0)
      content +=
          "5\x19"
          "entry " +
          std::to_string(i % 30'000) + "\r\n";
  }
  WriteFile(content);
  Options::MaxHist = 100'000;
  const auto start = std::chrono::steady_clock::now();
  LoadHistory();
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  EXPECT_EQ(CommandHistory.Count(), 50'000);
  EXPECT_EQ(DialogHistories[5].Count(), 15'000);
  // Comparing every line with those before takes minutes.
  EXPECT_LT(taken.count(), 10);
}

TEST_F(HistoryFile, DamageCostsTheDamagedLinesAlone) {
  std::string content = "one\n";
  for (int i = 1; i < 256; ++i) content += static_cast<char>(i);
  content += '\n' + std::string(10'000, 'x') + '\n' + std::string(3, '\0') + "two";
  Load(content);
  EXPECT_EQ(Commands().front(), "one");
  EXPECT_EQ(Commands().back(), "two");
  EXPECT_EQ(File(), content);
}

TEST_F(HistoryFile, OneThatIsNoPlainFileIsToldAndNeverWaitedFor) {
  home.MakeDirectory(".orvane");
  ASSERT_EQ(mkfifo(home.Path(kFile).c_str(), 0600), 0);
  LoadHistory();
  EXPECT_EQ(told, Strings{"Invalid argument|" + home.Path(kFile)});
  AddCommand(L"one");
  RemoveCommandFromFile(L"one");
  EXPECT_EQ(told.size(), 2u) << "the same error of appending is known, that of the removal is told";
  std::filesystem::remove(home.Path(kFile));
  home.MakeDirectory(kFile);
  LoadHistory();
  EXPECT_EQ(told.back(), "Is a directory|" + home.Path(kFile));
}

// ---- adding

TEST_F(HistoryFile, EachCommandIsAppendedAtOnce) {
  WriteFile("one\r\n");
  AddCommand(L"  two ");
  EXPECT_EQ(File(), "one\r\ntwo \r\n");
  AddCommand(L"one");
  EXPECT_EQ(File(), "one\r\ntwo \r\none\r\n");
  AddCommand(L"quiet", true);
  AddCommand(L"   ");
  EXPECT_EQ(File(), "one\r\ntwo \r\none\r\n");
}

TEST_F(HistoryFile, OnlyANewCommandIsNotLookedFor) {
  AddCommand(L"one", true);
  AddCommand(L"one", true, true);
  EXPECT_EQ(Commands(), (Strings{"one", "one"})) << "the caller's word is taken";
  AddCommand(L"one", true, false);
  EXPECT_EQ(Commands(), Strings{"one"});
}

TEST_F(HistoryFile, EntriesOfDialogsAreAppendedUnlessQuiet) {
  KeepDialogEntry = AppendDialogEntryToFile;
  AddDialogHistory(L"a", kHistorySearch);
  AddDialogHistory(L"a", kHistorySearch);
  AddDialogHistory(L"quiet", kHistorySearch, true);
  AddDialogHistory(L"a", kHistorySearch);
  AddDialogHistory(L"b", kHistorySaveAs);
  AddDialogHistory(L"no list", kNoHistory);
  EXPECT_EQ(File(),
            "5\x19"
            "a\r\n5\x19"
            "a\r\n11\x19"
            "b\r\n");
  EXPECT_EQ(Entries(kHistorySearch), (Strings{"quiet", "a"}));
}

TEST_F(HistoryFile, TheDirectoryAndTheFileAreMadeForTheOwnerAlone) {
  umask(0);
  AddCommand(L"one");
  umask(022);
  EXPECT_EQ(Mode(".orvane"), 0700u);
  EXPECT_EQ(Mode(kFile), 0600u);
  EXPECT_EQ(File(), "one\r\n");
}

TEST_F(HistoryFile, ALineThatAKillCutDoesNotSwallowTheNext) {
  WriteFile("one\r\ntw");
  AddCommand(L"three");
  EXPECT_EQ(File(), "one\r\ntw\r\nthree\r\n");
  for (const char* end : {"\r\n", "\n", "\r"}) {
    WriteFile(std::string("one") + end);
    AddCommand(L"two");
    EXPECT_EQ(File(), std::string("one") + end + "two\r\n");
  }
}

TEST_F(HistoryFile, ACommandTooLongForALineIsKeptForThisRunAlone) {
  const std::string longCommand(5000, 'x');
  AddCommand(L"one");
  AddCommand(longCommand.c_str());
  EXPECT_EQ(Commands(), (Strings{"one", longCommand}));
  EXPECT_EQ(File(), "one\r\n");
}

TEST_F(HistoryFile, AnErrorIsToldOnceUntilItHasGone) {
  home.Write(".orvane", "a file in the way");
  AddCommand(L"one");
  AddCommand(L"two");
  EXPECT_EQ(told, Strings{"Not a directory|" + home.Path(kFile)});
  EXPECT_EQ(Commands(), (Strings{"one", "two"}));
  std::filesystem::remove(home.Path(".orvane"));
  AddCommand(L"three");
  EXPECT_EQ(File(), "three\r\n");
  EXPECT_EQ(told.size(), 1u);
  std::filesystem::remove_all(home.Path(".orvane"));
  home.Write(".orvane", "again");
  AddCommand(L"four");
  EXPECT_EQ(told.size(), 2u);
}

TEST_F(HistoryFile, OnAFullDiskNoHalfLineStays) {
  WriteFile("one\r\n");
  {
    const FullDisk disk(10);
    AddCommand(L"a command that does not fit");
  }
  EXPECT_EQ(File(), "one\r\n");
  EXPECT_EQ(told, Strings{"No space left on device|" + home.Path(kFile)});
}

TEST_F(HistoryFile, OnAFullDiskTheOldFileIsNotReplaced) {
  const std::string old = Numbered("command ", 1, 9), last = "command 9";
  WriteFile(old);
  Options::MaxHist = 8;
  {
    const FullDisk disk(10);
    LoadHistory();
    EXPECT_EQ(told, Strings{}) << "a file that stays too long is no loss";
    RemoveCommandFromFile(last.c_str());
  }
  EXPECT_EQ(Commands().size(), 8u);
  EXPECT_EQ(File(), old);
  EXPECT_EQ(told, Strings{"No space left on device|" + home.Path(kFile)});
  EXPECT_FALSE(home.Exists(".orvane/orvane.!!!")) << "half a file is left beside it";
}

// ---- removing

TEST_F(HistoryFile, RemovingDropsEveryLineOfTheCommandAndKeepsTheOthers) {
  WriteFile("one\n  two\r\n5\x19two\r\n\ntwo\rTWO\n99\x19odd\n" + std::string(5000, 'x') + "\ntwo more");
  RemoveCommandFromFile(L"two");
  EXPECT_EQ(File(),
            "one\r\n5\x19two\r\n\r\nTWO\r\n99\x19odd\r\n" + std::string(5000, 'x') + "\r\ntwo more\r\n");
}

TEST_F(HistoryFile, ADialogsEntryIsNoCommandToRemove) {
  const std::string content = "5\x19two\none\n";
  WriteFile(content);
  RemoveCommandFromFile(L"5\x19two");
  EXPECT_EQ(File(), content);
}

TEST_F(HistoryFile, OddCommandsAreRemovedToo) {
  AddCommand(L"stays");
  for (const wchar_t* command : {L"5\x19x", L"a\nb", L"  blank", L"é"}) {
    AddCommand(command);
    RemoveCommandFromFile(*CommandHistory.Last());
    EXPECT_EQ(File(), "stays\r\n");
  }
}

TEST_F(HistoryFile, RemovingWhatIsNotThereWritesNothing) {
  RemoveCommandFromFile(L"one");
  EXPECT_FALSE(home.Exists(kFile));
  WriteFile("one\n");
  const auto node = [&] {
    struct stat status {};
    stat(home.Path(kFile).c_str(), &status);
    return status.st_ino;
  };
  const ino_t before = node();
  RemoveCommandFromFile(L"two");
  EXPECT_EQ(node(), before);
  EXPECT_EQ(told, Strings{});
}

TEST_F(HistoryFile, AReplacedFileKeepsItsModeAndALinkToIt) {
  home.MakeDirectory(".orvane");
  home.Write("elsewhere.hst", "one\ntwo\n");
  ASSERT_EQ(chmod(home.Path("elsewhere.hst").c_str(), 0640), 0);
  std::filesystem::create_symlink("../elsewhere.hst", home.Path(kFile));
  RemoveCommandFromFile(L"one");
  AddCommand(L"three");
  EXPECT_TRUE(std::filesystem::is_symlink(home.Path(kFile)));
  EXPECT_EQ(home.Content("elsewhere.hst"), "two\r\nthree\r\n");
  EXPECT_EQ(Mode("elsewhere.hst"), 0640u);
}
