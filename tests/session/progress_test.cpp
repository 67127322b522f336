// Progress boxes on a real console. Ticks are made by the test, except in the
// last one, where the box comes by itself.
#include "dialogs/progress.h"

#include "config/values/colours.h"
#include "support/console_fixture.h"

namespace {

// Its own thread is ended first, long before it would tick.
template <class Progress>
class ByHand : public Progress {
 public:
  template <class... Arguments>
  explicit ByHand(Arguments... arguments) : Progress(arguments...) {
    this->Stop();
  }
  using Progress::Tick;
};

class ProgressTest : public ConsoleFixture {};

TEST_F(ProgressTest, AFilesBoxShowsTitleAndBar) {
  const auto before = Snapshot();
  int64_t position = 0, total = 200;
  {
    ByHand<FileReadProgress> progress(&position, &total, "Loading");
    EXPECT_EQ(ChangesSince(before), "");
    position = 50;
    progress.Tick();
    EXPECT_EQ(Text(20, 6, 1), "\u2554");
    EXPECT_EQ(Text(59, 10, 1), "\u255D");
    EXPECT_EQ(Text(21, 7, 38), "               Loading                ");
    std::string bar = " ";
    for (int i = 0; i < 36; ++i) bar += i < 9 ? "\u2588" : "\u2591";
    EXPECT_EQ(Text(21, 9, 38), bar + " ");
    EXPECT_EQ(Attribute(22, 9), Options::Colours[kColourMessages]);
    position = 200;
    progress.Tick();
    EXPECT_EQ(Text(57, 9, 2), "\u2588 ");
  }
  EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(ProgressTest, AFileOfNoKnownSizeHasNoBar) {
  int64_t position = 5, total = 0;
  ByHand<FileReadProgress> progress(&position, &total, "Loading");
  progress.Tick();
  EXPECT_EQ(Text(21, 9, 38), std::string(38, ' '));
}

TEST_F(ProgressTest, ADirectorysBoxTurnsAndCounts) {
  const auto before = Snapshot();
  int32_t count = 7;
  {
    ByHand<DirReadProgress> progress(&count);
    progress.Tick();
    EXPECT_EQ(Text(22, 6, 1), "\u2554");  // 35 by 6
    EXPECT_EQ(Text(56, 11, 1), "\u255D");
    EXPECT_EQ(Text(23, 8, 33), "    Reading directory: -         ");
    EXPECT_EQ(Text(23, 9, 33), "    Files: 7                     ");
    EXPECT_EQ(Attribute(27, 8), Options::Colours[kColourMessages]);
    count = 12345;
    for (const char* turn : {"\\", "|", "/", "-"}) {
      progress.Tick();
      EXPECT_EQ(Text(46, 8, 1), turn);
    }
    EXPECT_EQ(Text(23, 9, 33), "    Files: 12,345                ");
    count = 2000000000;
    progress.Tick();
    EXPECT_EQ(Text(23, 9, 33), "    Files: 1,953,125K            ");
    count = 3;
    progress.Tick();
    EXPECT_EQ(Text(23, 9, 33), "    Files: 3                     ");
  }
  EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(ProgressTest, LongWorkGetsItsBoxAndTheEndOfTheWorkTakesItAway) {
  const auto before = Snapshot();
  int32_t count = 7;
  {
    DirReadProgress progress(&count);
    Event work;
    // The bound is no measure: it only keeps a broken box from hanging the test.
    for (int i = 0; i < 6000 && !Row(9).Contains("Files: 7"); ++i) work.Wait(10);
    EXPECT_TRUE(Row(9).Contains("Files: 7"));
  }
  EXPECT_EQ(ChangesSince(before), "");
}

}  // namespace
