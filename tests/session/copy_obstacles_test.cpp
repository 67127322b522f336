// Copying and moving against all that can get in the way: what is told, what is
// on disk after, and which tags remain.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <iterator>

#include "session/copy_screen.h"
#include "support/as_nobody.h"
#include "support/faults.h"
#include "support/small_disk.h"

namespace {

namespace fs = std::filesystem;

const Strings kNone;
constexpr size_t kLarge = 100'000;  // some buffers' worth

std::string ContentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

Strings NamesIn(const std::string& path) {
  Strings names;
  for (const auto& found : fs::directory_iterator(path)) names.push_back(found.path().filename());
  std::sort(names.begin(), names.end());
  return names;
}

void Append(const std::string& path, const std::string& text) {
  std::ofstream(path, std::ios::app | std::ios::binary) << text;
}

// Three files, the one in the middle large, all tagged.
class Obstacles : public testing::Test {
 protected:
  Obstacles() { TagNames(s, {"a", "b", "c"}); }

  std::string Left(const std::string& name) const { return s.Path("left/" + name); }
  std::string Right(const std::string& name) const { return s.Path("right/" + name); }

  // All moves are copies, and no copy is the kernel's.
  FaultPlan Everywhere(int code) const { return {.path = s.Path(), .times = kEveryCall, .code = code}; }

  // The box tells text about path. The middle file is skipped: the others are
  // through, and it has its tag and all its bytes, and no target.
  void ExpectToldAndSkipped(const std::string& text, const std::string& path) {
    EXPECT_TRUE(Shows(s, text)) << s.Screen();
    EXPECT_TRUE(Shows(s, path)) << s.Screen();
    s.Keys("s");
    EXPECT_TRUE(s.Row(24).StartsWith("1Help"));
    EXPECT_EQ(NamesIn(s.Path("right")), (Strings{"a", "c"}));
    EXPECT_EQ(s.Content("right/a"), "one");
    EXPECT_EQ(s.Content("right/c"), "three");
    EXPECT_EQ(s.Content("left/b"), large);
    EXPECT_EQ(Tagged(kLeftSide), Strings{"b"});
    fs::remove(Right("a"));
    fs::remove(Right("c"));
  }

  const std::string large = std::string(kLarge, 'b');
  Session s{{{"left/a", "one"}, {"left/b", large}, {"left/c", "three"}, {"right/", ""}}};
};

// The same with a disk as the destination.
class ObstaclesOfADisk : public testing::Test {
 protected:
  void SetUp() override {
    if (!disk.IsThere()) GTEST_SKIP() << "needs the right to mount";
    s.emplace(FileList{{"left/a", "one"}, {"left/b", large}, {"left/c", "three"}});
    TagNames(*s, {"a", "b", "c"});
  }

  void Send(const std::string& key) { s->Keys(key + " '" + disk.Path() + "/' Enter"); }
  bool IsTold(const std::string& text, const std::string& name) const {
    return Shows(*s, text) && Shows(*s, s->Path("left/" + name));
  }

  const SmallDisk disk{64};
  const std::string large = std::string(kLarge, 'b');
  std::optional<Session> s;
};

}  // namespace

// ---- the disk ----------------------------------------------------------------

TEST_F(ObstaclesOfADisk, WithoutRoomACopyKeepsItsTagAndLeavesNoPart) {
  Send("F5");
  EXPECT_TRUE(IsTold("No room for", "b")) << s->Screen();
  s->Keys("s");
  EXPECT_EQ(NamesIn(disk.Path()), (Strings{"a", "c"}));
  EXPECT_EQ(ContentOf(disk.Path("c")), "three");
  EXPECT_EQ(Tagged(kLeftSide), Strings{"b"});
}

TEST_F(ObstaclesOfADisk, WithoutRoomAMoveKeepsItsSource) {
  Send("F6");
  EXPECT_TRUE(IsTold("No room for", "b")) << s->Screen();
  s->Keys("s");
  EXPECT_EQ(NamesIn(disk.Path()), (Strings{"a", "c"}));
  EXPECT_EQ(s->Names(kLeftSide), (Strings{"..", "b"}));
  EXPECT_EQ(s->Content("left/b"), large);
  EXPECT_EQ(Tagged(kLeftSide), Strings{"b"});
}

TEST_F(ObstaclesOfADisk, RetryGoesOnOnceThereIsRoom) {
  Append(disk.Path("filler"), std::string(40'000, 'f'));
  s->Write("left/b", std::string(30'000, 'b'));
  Send("F6");
  EXPECT_TRUE(IsTold("No room for", "b")) << s->Screen();
  fs::remove(disk.Path("filler"));
  s->Keys("r");
  EXPECT_EQ(NamesIn(disk.Path()), (Strings{"a", "b", "c"}));
  EXPECT_EQ(ContentOf(disk.Path("b")), std::string(30'000, 'b'));
  EXPECT_EQ(s->Names(kLeftSide), Strings{".."});
}

TEST_F(ObstaclesOfADisk, EscWithoutRoomKeepsTheRestTagged) {
  Send("F5");
  s->Keys("Esc");
  EXPECT_EQ(NamesIn(disk.Path()), Strings{"a"});
  EXPECT_EQ(Tagged(kLeftSide), (Strings{"b", "c"}));
}

TEST_F(ObstaclesOfADisk, ADiskThatMayOnlyBeReadTakesNothing) {
  ASSERT_TRUE(disk.Protect());
  for (const char* key : {"F5", "F6"}) {
    Send(key);
    for (const char* name : {"a", "b", "c"}) {
      EXPECT_TRUE(IsTold("Disk write protected, cannot write", name)) << s->Screen();
      s->Keys("s");
    }
    EXPECT_EQ(NamesIn(disk.Path()), kNone);
    EXPECT_EQ(s->Names(kLeftSide), (Strings{"..", "a", "b", "c"}));
    EXPECT_EQ(Tagged(kLeftSide), (Strings{"a", "b", "c"}));
  }
}

// ---- errors at a certain call ------------------------------------------------

TEST_F(Obstacles, AReadErrorAtAnyCallIsTold) {
  const Fault noKernel(kCallKernelCopy, Everywhere(EXDEV)), otherDevice(kCallRename, Everywhere(EXDEV));
  Fault fails(kCallRead, {.path = Left("b"), .at = 3, .times = 3, .code = EIO});
  s.Keys("F5 Enter");
  EXPECT_EQ(fails.Calls(), 5);
  ExpectToldAndSkipped("Error reading disk", Left("b"));
}

TEST_F(Obstacles, AReadErrorOfAMoveKeepsTheSource) {
  const Fault noKernel(kCallKernelCopy, Everywhere(EXDEV)), otherDevice(kCallRename, Everywhere(EXDEV));
  Fault fails(kCallRead, {.path = Left("b"), .at = 2, .times = 3, .code = EIO});
  s.Keys("F6 Enter");
  ExpectToldAndSkipped("Error reading disk", Left("b"));
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "b"}));
}

TEST_F(Obstacles, AWriteErrorAtAnyCallIsTold) {
  const Fault noKernel(kCallKernelCopy, Everywhere(EXDEV)), otherDevice(kCallRename, Everywhere(EXDEV));
  for (const char* key : {"F5", "F6"}) {
    for (const int at : {1, 3}) {
      s.Write("left/a", "one");
      s.Write("left/c", "three");
      s.Keys("Ctrl-r Ctrl-Grey+");
      Fault fails(kCallWrite, {.path = Right("b"), .at = at, .code = EDQUOT});
      s.Keys(std::string(key) + " Enter");
      EXPECT_EQ(fails.Calls(), at);
      ExpectToldAndSkipped("Disk quota exceeded (122)", Left("b"));
    }
  }
}

TEST_F(Obstacles, AnErrorOfClosingIsTold) {
  Fault fails(kCallClose, {.path = Right("b"), .code = ENOSPC});
  s.Keys("F5 Enter");
  ExpectToldAndSkipped("No room for", Left("b"));
}

// ---- rights ------------------------------------------------------------------

TEST_F(Obstacles, ASourceThatMayNotBeReadIsDenied) {
  const AsNobody nobody(s.Path());
  ASSERT_EQ(chmod(Left("b").c_str(), 0), 0);
  s.Keys("F5 Enter");
  EXPECT_TRUE(Shows(s, "Access Denied"));
  EXPECT_TRUE(Shows(s, Left("b")));
  s.Keys("s");
  ASSERT_EQ(chmod(Left("b").c_str(), 0600), 0);
  EXPECT_EQ(NamesIn(s.Path("right")), (Strings{"a", "c"}));
  EXPECT_EQ(Tagged(kLeftSide), Strings{"b"});
}

TEST_F(Obstacles, ATargetThatMayNotBeWrittenIsReplacedOnlyByAnswers) {
  const AsNobody nobody(s.Path());
  s.Write("right/b", "old");
  ASSERT_EQ(chmod(Right("b").c_str(), 0444), 0);
  s.Keys("F5 Alt-a Enter");
  EXPECT_TRUE(Shows(s, "File is Read Only, Delete anyway?"));
  EXPECT_TRUE(Shows(s, Right("b")));
  s.Keys("s");
  EXPECT_EQ(s.Content("right/b"), "old");
  EXPECT_EQ(s.Content("right/c"), "three");
  EXPECT_EQ(Tagged(kLeftSide), Strings{"b"});
  s.Keys("F5 Alt-a Enter Enter");
  EXPECT_EQ(s.Content("right/b"), large);
  EXPECT_EQ(Tagged(kLeftSide), kNone);
}

TEST_F(Obstacles, ADirectoryThatTakesNoNamesIsDenied) {
  const AsNobody nobody(s.Path());
  ASSERT_EQ(chmod(s.Path("right").c_str(), 0555), 0);
  for (const char* key : {"F5", "F6"}) {
    s.Keys(std::string(key) + " Enter");
    for (const char* name : {"a", "b", "c"}) {
      EXPECT_TRUE(Shows(s, "Access Denied"));
      EXPECT_TRUE(Shows(s, Left(name)));
      s.Keys("s");
    }
    EXPECT_EQ(s.Names(kRightSide), Strings{".."});
    EXPECT_EQ(Tagged(kLeftSide), (Strings{"a", "b", "c"}));
  }
}

TEST_F(Obstacles, ADirectoryThatGivesNoNamesAwayKeepsWhatWouldMove) {
  const AsNobody nobody(s.Path());
  ASSERT_EQ(chmod(s.Path("left").c_str(), 0555), 0);
  s.Keys("F6 Enter");
  for (const char* name : {"a", "b", "c"}) {
    EXPECT_TRUE(Shows(s, "Access Denied"));
    EXPECT_TRUE(Shows(s, Left(name)));
    s.Keys("s");
  }
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "a", "b", "c"}));
  EXPECT_EQ(s.Names(kRightSide), Strings{".."});
  EXPECT_EQ(Tagged(kLeftSide), (Strings{"a", "b", "c"}));
}

// ---- names -------------------------------------------------------------------

TEST_F(Obstacles, ANameThatGetsTooLongIsToldAboutTheTarget) {
  const std::string longer(255, 'n');
  for (const char* key : {"F5", "F6"}) {
    s.Keys(std::string(key) + " '../right/*" + longer + "' Enter");
    for (int i = 0; i < 3; ++i) {
      EXPECT_TRUE(Shows(s, "Name too long")) << s.Screen();
      EXPECT_TRUE(Shows(s, "nnn"));
      EXPECT_FALSE(Shows(s, "[ Retry ]"));
      s.Keys("Enter");
    }
    EXPECT_EQ(s.Names(kRightSide), Strings{".."});
    EXPECT_EQ(Tagged(kLeftSide), (Strings{"a", "b", "c"}));
  }
}

TEST(CopyObstacles, EveryByteThatANameCanHoldIsCopiedOrRefused) {
  constexpr int kBytes = 256, kFirstBeyondText = 128;
  FileList files;
  std::string answers;
  for (int byte = 1; byte < kBytes; ++byte) {
    if (byte == '/') continue;
    const std::string name = "x" + std::string(1, static_cast<char>(byte)) + "y";
    files.emplace_back("left/dir/" + name, name);
    if (byte >= kFirstBeyondText) answers += " s";
  }
  Session s(files);
  TagNames(s, {"dir"});
  s.Keys("F5 Enter");
  EXPECT_TRUE(Shows(s, "Invalid or incomplete multibyte or wide character (84)"));
  s.Keys(answers);
  EXPECT_TRUE(s.Row(24).StartsWith("1Help")) << s.Screen();
  const Strings copied = NamesIn(s.Path("right/dir"));
  EXPECT_EQ(copied.size(), kFirstBeyondText - 2u);
  for (const std::string& name : copied) EXPECT_EQ(s.Content("right/dir/" + name), name);
  EXPECT_EQ(Tagged(kLeftSide), Strings{"dir"});
}

// ---- kinds in the way --------------------------------------------------------

TEST(CopyObstacles, AFileInTheWayOfADirectoryStaysAtSkip) {
  for (const char* key : {"F5", "F6"}) {
    Session s({{"left/a/inside", "new"}, {"right/a", "old"}});
    TagNames(s, {"a"});
    s.Keys(std::string(key) + " Enter");
    EXPECT_TRUE(Shows(s, "File already exists, Overwrite?"));
    EXPECT_TRUE(Shows(s, s.Path("right/a")));
    s.Keys("s");
    EXPECT_EQ(s.Content("right/a"), "old");
    EXPECT_EQ(s.Content("left/a/inside"), "new");
    EXPECT_EQ(Tagged(kLeftSide), Strings{"a"});
  }
}

TEST(CopyObstacles, ADirectoryInTheWayOfAFileInATreeStays) {
  for (const char* key : {"F5", "F6"}) {
    Session s({{"left/dir/a", "new"}, {"left/dir/b", "new"}, {"right/dir/a/inside", "old"}});
    TagNames(s, {"dir"});
    s.Keys(std::string(key) + " Alt-a Enter");
    EXPECT_TRUE(Shows(s, s.Path("left/dir/a"))) << s.Screen();
    s.Keys("s");
    EXPECT_TRUE(s.Row(24).StartsWith("1Help")) << s.Screen();
    EXPECT_EQ(s.Content("right/dir/a/inside"), "old");
    EXPECT_EQ(s.Content("right/dir/b"), "new");
    EXPECT_EQ(s.Content("left/dir/a"), "new");
    EXPECT_EQ(Tagged(kLeftSide), Strings{"dir"});
  }
}

// ---- what changes meanwhile --------------------------------------------------

TEST_F(Obstacles, ASourceThatVanishesIsNotFound) {
  Fault vanishes(kCallOpen, {.path = Left("b"), .before = [&] { fs::remove(Left("b")); }});
  s.Keys("F5 Enter");
  EXPECT_TRUE(Shows(s, "File not found"));
  EXPECT_TRUE(Shows(s, Left("b")));
  s.Keys("Enter");
  EXPECT_EQ(NamesIn(s.Path("right")), (Strings{"a", "c"}));
  EXPECT_EQ(Tagged(kLeftSide), kNone);  // the list no longer has it
}

TEST_F(Obstacles, ASourceThatVanishesDuringItsCopyHasArrived) {
  Fault vanishes(kCallSetTime, {.path = Right("b"), .before = [&] { fs::remove(Left("b")); }});
  s.Keys("F5 Enter");
  EXPECT_EQ(s.Content("right/b"), large);
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "a", "c"}));
  EXPECT_EQ(Tagged(kLeftSide), kNone);
}

TEST_F(Obstacles, ASourceThatGrowsIsCopiedToItsNewEnd) {
  Fault grows(kCallKernelCopy, {.path = Left("b"), .before = [&] { Append(Left("b"), "more"); }});
  s.Keys("F5 Enter");
  EXPECT_EQ(s.Content("right/b"), large + "more");
  EXPECT_EQ(Tagged(kLeftSide), kNone);
}

TEST_F(Obstacles, ASourceThatGrowsBehindItsMoveStays) {
  const Fault otherDevice(kCallRename, Everywhere(EXDEV));
  Fault grows(kCallSetTime, {.path = Right("b"), .before = [&] { Append(Left("b"), "more"); }});
  s.Keys("F6 Enter");
  EXPECT_TRUE(Shows(s, "Device or resource busy (16)"));
  EXPECT_TRUE(Shows(s, Left("b")));
  s.Keys("s");
  EXPECT_EQ(s.Content("left/b"), large + "more");
  EXPECT_EQ(NamesIn(s.Path("right")), (Strings{"a", "c"}));
  EXPECT_EQ(Tagged(kLeftSide), Strings{"b"});
  s.Keys("F6 Enter");
  EXPECT_EQ(s.Content("right/b"), large + "more");
  EXPECT_EQ(s.Names(kLeftSide), Strings{".."});
}

TEST(CopyObstacles, ADirectoryThatLosesItsFilesMeanwhileIsCopiedWithTheRest) {
  Session s({{"left/dir/a", "1"}, {"left/dir/b", "2"}, {"left/dir/c", "3"}, {"right/", ""}});
  TagNames(s, {"dir"});
  Fault vanish(kCallMakeDirectory, {.path = s.Path("right/dir"), .before = [&] {
                                      fs::remove(s.Path("left/dir/a"));
                                      fs::remove(s.Path("left/dir/c"));
                                    }});
  s.Keys("F5 Enter");
  EXPECT_EQ(vanish.Calls(), 1);
  EXPECT_EQ(NamesIn(s.Path("right/dir")), Strings{"b"});
  EXPECT_EQ(Tagged(kLeftSide), kNone);
}

TEST(CopyObstacles, ADirectoryThatGetsAFileDuringItsMoveStaysWithIt) {
  Session s({{"left/dir/a", "1"}, {"right/", ""}});
  TagNames(s, {"dir"});
  const Fault otherDevice(kCallRename, {.path = s.Path("left"), .times = kEveryCall, .code = EXDEV});
  Fault appears(kCallMakeDirectory,
                {.path = s.Path("right/dir"), .before = [&] { s.Write("left/dir/late", "late"); }});
  s.Keys("F6 Enter");
  EXPECT_TRUE(Shows(s, "Directory not empty (39)")) << s.Screen();
  EXPECT_TRUE(Shows(s, s.Path("left/dir")));
  s.Keys("s");
  EXPECT_EQ(s.Content("left/dir/late"), "late");
  EXPECT_FALSE(s.Exists("left/dir/a"));
  EXPECT_EQ(s.Content("right/dir/a"), "1");
  EXPECT_EQ(Tagged(kLeftSide), Strings{"dir"});
}

// ---- much --------------------------------------------------------------------

// Who wants to see more of them says how many.
TEST(CopyObstacles, ManySmallFilesAreCopiedAndMoved) {
  const char* const wanted = std::getenv("ORVANE_TEST_FILES");
  const size_t count = wanted ? std::strtoul(wanted, nullptr, 10) : 500;
  FileList files;
  for (size_t i = 0; i < count; ++i) {
    const std::string name = "f" + std::to_string(i);
    files.emplace_back("left/" + name, name);
    files.emplace_back("left/dir/" + name, name);
  }
  Session s(files);
  const auto expectAll = [&](const std::string& place) {
    size_t right = 0;
    for (size_t i = 0; i < count; ++i) {
      const std::string name = "f" + std::to_string(i);
      right += s.Content(place + "/" + name) == name;
      right += s.Content(place + "/dir/" + name) == name;
    }
    EXPECT_EQ(right, 2 * count) << place;
  };
  TagNames(s, {"dir"});
  s.Keys("Ctrl-Grey+ F5 Enter");
  EXPECT_EQ(Tagged(kLeftSide), kNone);
  EXPECT_EQ(Processed(kLeftSide).size(), count + 1);
  expectAll("left");
  expectAll("right");
  const Fault otherDevice(kCallRename, {.path = s.Path("left"), .times = kEveryCall, .code = EXDEV});
  TagNames(s, {"dir"});
  s.Keys("Ctrl-Grey+ F6 Alt-a Enter");
  EXPECT_EQ(s.Names(kLeftSide), Strings{".."});
  expectAll("right");
}

TEST(CopyObstacles, TwoHundredLevelsAreCopiedAndMoved) {
  std::string deep = "top";
  for (int i = 0; i < 200; ++i) deep += "/a directory";
  Session s({{"left/" + deep + "/file", "bottom"}, {"right/", ""}});
  TagNames(s, {"top"});
  s.Keys("F5 Enter");
  EXPECT_EQ(s.Content("right/" + deep + "/file"), "bottom") << s.Screen();
  EXPECT_EQ(Tagged(kLeftSide), kNone);
  fs::remove_all(s.Path("right/top"));
  const Fault otherDevice(kCallRename, {.path = s.Path("left"), .times = kEveryCall, .code = EXDEV});
  TagNames(s, {"top"});
  s.Keys("F6 Enter");
  EXPECT_EQ(s.Content("right/" + deep + "/file"), "bottom") << s.Screen();
  EXPECT_EQ(s.Names(kLeftSide), Strings{".."});
}

TEST(CopyObstacles, TwentyGigabytesOfHoleAreCopiedAndMoved) {
  constexpr off_t kSize = off_t{20} << 30;
  Session s({{"left/big", "start"}, {"right/", ""}});
  if (truncate(s.Path("left/big").c_str(), kSize) != 0) GTEST_SKIP() << "no file of this size here";
  s.Keys("Ctrl-r");
  TagNames(s, {"big"});
  struct stat status;
  s.Keys("F5 Enter");
  ASSERT_EQ(stat(s.Path("right/big").c_str(), &status), 0);
  EXPECT_EQ(status.st_size, kSize);
  EXPECT_LT(status.st_blocks, 1000);
  EXPECT_EQ(Tagged(kLeftSide), kNone);
  fs::remove(s.Path("right/big"));
  const Fault otherDevice(kCallRename, {.path = s.Path("left"), .times = kEveryCall, .code = EXDEV});
  TagNames(s, {"big"});
  s.Keys("F6 Enter");
  ASSERT_EQ(stat(s.Path("right/big").c_str(), &status), 0);
  EXPECT_EQ(status.st_size, kSize);
  EXPECT_EQ(s.Names(kLeftSide), Strings{".."});
}
