// The window of a copy or move on a screen.
#include "fileops/copy_progress.h"

#include "foundation/file_time.h"
#include "support/console_fixture.h"

namespace {

// On 80 by 25: 44 columns in the middle, a quarter of the free rows down.
constexpr int kWindowX = 18, kWindowY = 4, kInside = 42;

class CopyWindow : public ConsoleFixture {
 protected:
  std::string InsideRow(int y) const { return Text(kWindowX + 1, kWindowY + 1 + y, kInside).Trimmed(); }
};

}  // namespace

TEST_F(CopyWindow, ShowsNamesCountAndBar) {
  CopyProgress progress(false);
  progress.state.total = 100;
  progress.state.done = 50;
  progress.ShowItem(L"/left/a", L"/right/a", 2, 7);
  progress.Start();
  progress.Stop();
  EXPECT_EQ(Text(kWindowX, kWindowY, 1).String(), "╔");
  EXPECT_EQ(Text(kWindowX + 43, kWindowY + 8, 1).String(), "╝");
  EXPECT_EQ(InsideRow(0), "Copying");
  EXPECT_EQ(InsideRow(1), "/left/a");
  EXPECT_EQ(InsideRow(2), "to");
  EXPECT_EQ(InsideRow(3), "/right/a");
  EXPECT_EQ(InsideRow(4), "(2 of 7)");
  EXPECT_EQ(Text(kWindowX + 2, kWindowY + 6, 19).String(), "███████████████████");
  EXPECT_EQ(Text(kWindowX + 21, kWindowY + 6, 1).String(), "░");
  EXPECT_EQ(InsideRow(6), "");
}

TEST_F(CopyWindow, OneItemHasNoCount) {
  CopyProgress progress(false);
  progress.ShowItem(L"/left/a", L"/right/a", 1, 1);
  progress.Start();
  progress.Stop();
  EXPECT_EQ(InsideRow(4), "");
}

TEST_F(CopyWindow, AMoveSaysSoInANarrowerWindow) {
  CopyProgress progress(true);
  progress.ShowItem(L"/a", L"/b", 1, 1);
  progress.Start();
  progress.Stop();
  EXPECT_EQ(Text(20, kWindowY, 1).String(), "╔");
  EXPECT_EQ(Text(59, kWindowY, 1).String(), "╗");
  EXPECT_TRUE(Row(kWindowY + 1).Contains("Moving"));
}

TEST_F(CopyWindow, TheNextNamesTakeThePlaceOfTheLast) {
  CopyProgress progress(false);
  progress.ShowItem(L"/left/a-long-name", L"/right/a", 1, 2);
  progress.Start();
  progress.ShowItem(L"/left/b", L"/right/b", 2, 2);
  progress.Stop();
  EXPECT_EQ(InsideRow(1), "/left/b");
  EXPECT_EQ(InsideRow(3), "/right/b");
  EXPECT_EQ(InsideRow(4), "(2 of 2)");
}

TEST_F(CopyWindow, GrowsForALongerNameAndStaysWide) {
  const Westring longName = L"/" + Westring::Replicate(L'n', 50);
  CopyProgress progress(false);
  progress.ShowItem(L"/a", L"/b", 1, 1);
  progress.ShowItem(longName, L"/b", 1, 1);
  progress.Start();
  progress.Stop();
  EXPECT_TRUE(Row(kWindowY + 2).Contains(ToUtf8(longName).Text()));
  EXPECT_EQ(Text(12, kWindowY, 1).String(), "╔");
  progress.ShowItem(L"/a", L"/b", 1, 1);
  progress.Start();
  progress.Stop();
  EXPECT_EQ(Text(12, kWindowY, 1).String(), "╔");
  EXPECT_TRUE(Row(kWindowY + 2).Contains("║                          /a "));
}

TEST_F(CopyWindow, CutsNamesToTheScreen) {
  const Westring longName = L"/dir/" + Westring::Replicate(L'x', 100) + L"/end";
  {
    CopyProgress copy(false);
    copy.ShowItem(longName, L"/b", 1, 1);
    copy.Start();
    copy.Stop();
    EXPECT_TRUE(Row(kWindowY + 2).Contains("/dir/..."));
  }
  CopyProgress move(true);
  move.ShowItem(longName, L"/b", 1, 1);
  move.Start();
  move.Stop();
  EXPECT_TRUE(Row(kWindowY + 2).Contains("║ " + std::string(66, 'x') + "/end ║"));
}

TEST_F(CopyWindow, TellsTheRateOfWhatHasAStart) {
  CopyProgress progress(false);
  progress.state.total = progress.state.done = 1000;
  progress.state.startTime = NowSeconds() - 10;
  progress.ShowItem(L"/a", L"/b", 1, 1);
  progress.Start();
  progress.Stop();
  EXPECT_TRUE(Row(kWindowY + 7).Contains("Time: 0:10  BPS:"));
  EXPECT_TRUE(Row(kWindowY + 7).Contains("ETA: 0:00"));
}

TEST_F(CopyWindow, LeavesTheScreenAsItWas) {
  const auto before = Snapshot();
  {
    CopyProgress progress(false);
    progress.ShowItem(L"/a", L"/b", 1, 1);
    for (int i = 0; i < 50; ++i) {
      progress.Start();
      progress.Start();
      progress.Stop();
      progress.Stop();
    }
    progress.Start();
    EXPECT_NE(ChangesSince(before), "");
  }
  EXPECT_EQ(ChangesSince(before), "");
}
