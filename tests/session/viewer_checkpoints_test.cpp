// The colours of any place of a file, and the checkpoints that it takes.
#include "viewer_fixture.h"

namespace {

class ViewerCheckpoints : public ViewerTest {
 protected:
  static constexpr uint8_t kPlain = 0x17, kComment = 0x12;

  OpenViewer& ShowColoured(const std::string& content) {
    Options::Colours[kColourFileViewer] = kPlain;
    Show(content);
    texts.Write("syntax.ini", "[Test:*]\nblockcomment:green:/*:*/\n");
    viewer->Highlighter.Load(Westring(texts.Path("syntax.ini").c_str()), L"text");
    EXPECT_TRUE(viewer->Highlighter.Active);
    viewer->ForgetTop();
    return *viewer;
  }

  std::vector<int64_t> Checkpoints() const {
    std::vector<int64_t> positions;
    for (int64_t i = 0; i < viewer->StateStore.Count(); ++i)
      positions.push_back(viewer->StateStore.Peek(i)->Position);
    return positions;
  }

  // Lines of 64 bytes with their number.
  static std::string Lines(int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
      std::string line = std::to_string(i);
      line.resize(63, '.');
      text += line + "\n";
    }
    return text;
  }

  uint8_t Colour(int row) const { return LineAttribute(0, row); }
};

TEST_F(ViewerCheckpoints, ARepaintLeavesOneBehindTheScreen) {
  ShowColoured(Lines(100));
  viewer->Repaint();
  EXPECT_EQ(Checkpoints(), (std::vector<int64_t>{0, 64 * kHeight}));
}

TEST_F(ViewerCheckpoints, WithoutHighlightingThereAreNone) {
  ShowColoured("/*\n" + Lines(100));
  viewer->Highlighter.Active = false;
  viewer->Repaint();
  viewer->SyntaxSeek(6000);
  EXPECT_EQ(Checkpoints(), (std::vector<int64_t>{0}));
  EXPECT_EQ(Colour(0), kPlain);
}

TEST_F(ViewerCheckpoints, ASeekLeavesOneAtEachLineFromFourKilobytesOn) {
  ShowColoured(Lines(200));
  viewer->SyntaxSeek(4096 - 64);
  EXPECT_EQ(Checkpoints(), (std::vector<int64_t>{0}));
  viewer->SyntaxSeek(4096 + 3 * 64);
  EXPECT_EQ(Checkpoints(), (std::vector<int64_t>{0, 4096, 4160, 4224, 4288}));
}

TEST_F(ViewerCheckpoints, TheDistanceIsFromTheEntryFound) {
  ShowColoured(Lines(400));
  viewer->SyntaxSeek(4160);
  viewer->SyntaxSeek(4160 + 4096);
  EXPECT_EQ(Checkpoints(), (std::vector<int64_t>{0, 4096, 4160, 8256}));
}

TEST_F(ViewerCheckpoints, ASeekEndsAtTheEndOfTheFile) {
  ShowColoured("/* open\n");
  viewer->SyntaxSeek(INT64_MAX);
  EXPECT_EQ(viewer->Highlighter.Count(), 1);
}

TEST_F(ViewerCheckpoints, AnEmptyStoreStopsTheSeek) {
  ShowColoured("/* open\n" + Lines(10));
  viewer->StateStore.Clear();
  viewer->SyntaxSeek(100);
  EXPECT_EQ(viewer->Highlighter.Count(), 0);
}

TEST_F(ViewerCheckpoints, ACommentOpenedThousandsOfLinesAboveIsKnown) {
  ShowColoured("/* open\n" + Lines(3000) + "*/ closed\n" + Lines(10));
  viewer->SetTop(8 + 64 * 1500);
  viewer->Repaint();
  for (int row = 0; row < kHeight; ++row) EXPECT_EQ(Colour(row), kComment);
  viewer->GoEnd();
  EXPECT_EQ(Colour(kHeight - 1), kPlain);
  EXPECT_EQ(Colour(0), kComment);
  viewer->GoHome();
  EXPECT_EQ(Colour(0), kComment);
}

TEST_F(ViewerCheckpoints, ColoursStandBehindAMark) {
  ShowColoured("\xEF\xBB\xBF/* open\n*/ closed\nlast\n");
  viewer->Repaint();
  EXPECT_EQ(Colour(0), kComment);
  EXPECT_EQ(Colour(1), kComment);
  EXPECT_EQ(Colour(2), kPlain);
  viewer->ForgetTop();
  viewer->Repaint();
  EXPECT_EQ(Colour(0), kComment);
  EXPECT_EQ(Colour(2), kPlain);
}

TEST_F(ViewerCheckpoints, ATopLineThatStaysLeavesItsStateToTheNext) {
  ShowColoured("/* open\n*/ closed\n" + Lines(100));
  viewer->Repaint();
  viewer->Repaint();
  EXPECT_EQ(Colour(1), kComment);
  EXPECT_EQ(Colour(2), kPlain);
  viewer->MoveSideways(4);
  EXPECT_EQ(Colour(2), kPlain);
}

TEST_F(ViewerCheckpoints, AnUnfinishedLineLeavesNone) {
  ShowColoured("/* open\nunfinished");
  viewer->Repaint();
  EXPECT_EQ(Checkpoints(), (std::vector<int64_t>{0}));
}

TEST_F(ViewerCheckpoints, ASeekThatIsBrokenOffLeavesNoWrongColours) {
  constexpr int kLine = 1024, kLines = 17 << 10, kMostUnasked = 16 << 10;
  const std::string line = std::string(kLine - 1, 'x') + "\n";
  std::string text;
  for (int i = 0; i < kLines; ++i) text += i == kLines - 100 ? "/*" + line.substr(2) : line;
  ShowColoured(text);
  TEvent escape;
  escape.type = kEventKey;
  escape.code = kEscape;
  Console->Events().Put(new TEvent(escape));
  viewer->SetTop((kLines - 50) * kLine);
  viewer->Repaint();
  EXPECT_FALSE(Console->EventPending());
  EXPECT_EQ(Colour(0), kPlain);  // the comment begins behind the break
  EXPECT_LE(Checkpoints().back(), (kMostUnasked + 1) * kLine);
  viewer->ScrollUp();
  viewer->Repaint();
  for (int row = 0; row < kHeight; ++row) EXPECT_EQ(Colour(row), kComment);
}

TEST_F(ViewerCheckpoints, AnotherEncodingOrTabWidthKeepsThem) {
  ShowColoured(Lines(200));
  viewer->SyntaxSeek(4096 + 64);
  const std::vector<int64_t> before = Checkpoints();
  ASSERT_EQ(before.size(), 3u);
  const auto areKept = [&] {
    const std::vector<int64_t> now = Checkpoints();
    return std::includes(now.begin(), now.end(), before.begin(), before.end());
  };
  viewer->SetEncoding(kCodePageText, 866);
  viewer->ReadAnew();
  EXPECT_TRUE(areKept());
  Options::TabWidth = 4;
  viewer->ReadAnew();
  EXPECT_TRUE(areKept());
}

TEST_F(ViewerCheckpoints, TogglingTheColoursDropsThem) {
  ShowColoured(Lines(200));
  viewer->SyntaxSeek(4096 + 64);
  viewer->SetHighlighting(false);
  EXPECT_EQ(Checkpoints(), (std::vector<int64_t>{0}));
}

TEST_F(ViewerCheckpoints, AnyStepsLeaveTheColoursOfARepaint) {
  std::string text;
  for (int i = 0; i < 300; ++i) {
    if (i % 7 == 3) text += "/* a comment\n";
    text += std::to_string(i) + std::string(i % 5 * 40, '.') + "\n";
    if (i % 11 == 5) text += "*/ code\n";
  }
  for (const bool wrap : {false, true}) {
    Options::ViewerWrap = wrap;
    ShowColoured(text);
    viewer->Repaint();
    const auto step = [&](auto move) {
      for (int i = 0; i < 9; ++i) {
        move();
        ASSERT_TRUE(IsAsRepainted());
      }
    };
    step([&] { viewer->ScrollDown(); });
    step([&] { viewer->PageDown(); });
    step([&] { viewer->ScrollUp(); });
    step([&] { viewer->ScrollDown(); });
    step([&] { viewer->PageUp(); });
    viewer->GoEnd();
    step([&] { viewer->ScrollUp(); });
    step([&] { viewer->PageUp(); });
    step([&] { viewer->ScrollDown(); });
  }
}

TEST_F(ViewerCheckpoints, ThePaddingOfARowHasTheDefaultColourAndRowsBelowTheEndTheViewers) {
  ShowColoured("x\n");
  viewer->Highlighter.Definition.DefaultColour = 0x5F;
  viewer->Repaint();
  EXPECT_EQ(LineAttribute(79, 0), 0x5F);
  EXPECT_EQ(LineAttribute(79, 1), kPlain);
}

}  // namespace
