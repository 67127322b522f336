// Moving through a text by rows and pages, to its ends, and sideways.
#include <unistd.h>

#include "viewer_fixture.h"

namespace {

class ViewerScroll : public ViewerTest {
 protected:
  // A foreign character that only moving can bring to another row.
  void Mark(int row) { Console->PutString(30, row + 1, L"?", 0x4E); }
  bool IsMarked(int row) const { return Text(30, row + 1, 1) == "?"; }

  // The offset of a line of NumberedLines.
  static int64_t At(int line) { return static_cast<int64_t>(NumberedLines(line - 1).size()); }
};

TEST_F(ViewerScroll, DownMovesTheRowsAndDrawsTheLast) {
  Show(NumberedLines(100));
  Mark(10);
  const uint64_t drawn = Console->DrawCount();
  EXPECT_TRUE(viewer->ScrollDown());
  EXPECT_LE(Console->DrawCount() - drawn, 2u);  // the row that is blank, and with its text
  EXPECT_TRUE(IsMarked(9));
  EXPECT_EQ(Line(0), "2");
  EXPECT_EQ(Line(22), "24");
  EXPECT_EQ(viewer->TopOffset, At(2));
  EXPECT_EQ(viewer->BottomOffset, At(24));
}

TEST_F(ViewerScroll, UpMovesTheRowsAndDrawsTheFirst) {
  Show(NumberedLines(100));
  viewer->SetTop(At(50));
  viewer->Repaint();
  Mark(10);
  const uint64_t drawn = Console->DrawCount();
  EXPECT_TRUE(viewer->ScrollUp());
  EXPECT_LE(Console->DrawCount() - drawn, 2u);
  EXPECT_TRUE(IsMarked(11));
  EXPECT_EQ(Line(0), "49");
  EXPECT_EQ(viewer->BottomOffset, At(71));
  Console->PutString(30, 12, L" ", LineAttribute(0, 0));
  EXPECT_TRUE(IsAsRepainted());
}

TEST_F(ViewerScroll, WrappedRowsMoveOneByOne) {
  ShowWrapped(std::string(200, 'a') + "\n" + NumberedLines(100));
  Mark(10);
  for (const int column : {80, 160, 0}) {
    EXPECT_TRUE(viewer->ScrollDown());
    EXPECT_EQ(viewer->TopWrapCol, column);
  }
  EXPECT_TRUE(IsMarked(7));
  EXPECT_EQ(viewer->TopOffset, 201);
  for (const int column : {160, 80, 0}) {
    EXPECT_TRUE(viewer->ScrollUp());
    EXPECT_EQ(viewer->TopWrapCol, column);
    EXPECT_EQ(viewer->TopOffset, 0);
  }
  EXPECT_TRUE(IsMarked(10));
  EXPECT_FALSE(viewer->ScrollUp());
}

TEST_F(ViewerScroll, ALineOfWholeRowsHasNoEmptyLastRow) {
  ShowWrapped(std::string(160, 'a') + "\n" + NumberedLines(100));
  viewer->SetTop(161);
  viewer->Repaint();
  EXPECT_TRUE(viewer->ScrollUp());
  EXPECT_EQ(viewer->TopWrapCol, 80);
  EXPECT_TRUE(IsAsRepainted());
}

TEST_F(ViewerScroll, TheRestOfALongBottomLineComesRowByRow) {
  ShowWrapped(NumberedLines(21) + std::string(300, 'x') + "\nend\n");
  EXPECT_EQ(viewer->BottomWrapCol, 160);
  EXPECT_TRUE(viewer->ScrollDown());
  EXPECT_EQ(viewer->BottomWrapCol, 240);
  EXPECT_EQ(viewer->TopOffset, At(2));
  EXPECT_TRUE(viewer->ScrollDown());
  EXPECT_EQ(viewer->BottomWrapCol, 300);
  EXPECT_TRUE(viewer->ScrollDown());
  EXPECT_EQ(Line(22), "end");
  EXPECT_FALSE(viewer->ScrollDown());
  EXPECT_TRUE(IsAsRepainted());
}

TEST_F(ViewerScroll, ScrollingForgetsThePlaceOfTheSearchAndStandingStillDoesNot) {
  Show(NumberedLines(30));
  viewer->SearchPos = 5;
  EXPECT_FALSE(viewer->ScrollUp());
  EXPECT_FALSE(viewer->PageUp());
  EXPECT_EQ(viewer->SearchPos, 5);
  viewer->ScrollDown();
  EXPECT_EQ(viewer->SearchPos, -1);
  viewer->SearchPos = 5;
  viewer->ScrollUp();
  EXPECT_EQ(viewer->SearchPos, -1);
  viewer->SearchPos = 5;
  viewer->PageDown();
  EXPECT_EQ(viewer->SearchPos, -1);
  viewer->SearchPos = 5;
  viewer->PageUp();
  EXPECT_EQ(viewer->SearchPos, -1);
  viewer->SearchPos = 5;
  viewer->GoEnd();
  EXPECT_EQ(viewer->SearchPos, -1);
  viewer->SearchPos = 5;
  viewer->GoHome();
  EXPECT_EQ(viewer->SearchPos, -1);
}

TEST_F(ViewerScroll, InAnEmptyFileNothingMoves) {
  Show("");
  for (const bool hex : {false, true}) {
    viewer->HexMode = hex;
    viewer->Repaint();
    const std::vector<Cell> before = Cells();
    EXPECT_FALSE(viewer->ScrollDown());
    EXPECT_FALSE(viewer->ScrollUp());
    EXPECT_FALSE(viewer->PageDown());
    EXPECT_FALSE(viewer->PageUp());
    EXPECT_FALSE(viewer->GoEnd());
    viewer->GoHome();
    viewer->MoveSideways(-4);
    EXPECT_EQ(viewer->TopOffset, 0);
    EXPECT_EQ(viewer->BlankRows, kHeight);
    EXPECT_TRUE(Cells() == before);
  }
}

TEST_F(ViewerScroll, DownAtTheEndOfATextThatFitsDoesNothing) {
  Show(NumberedLines(10));
  EXPECT_FALSE(viewer->ScrollDown());
  EXPECT_FALSE(viewer->PageDown());
  EXPECT_EQ(viewer->TopOffset, 0);
}

// ---- pages

TEST_F(ViewerScroll, TheLastRowOfAPageIsTheFirstOfTheNext) {
  Show(NumberedLines(100));
  EXPECT_TRUE(viewer->PageDown());
  EXPECT_EQ(Line(0), "23");
  EXPECT_EQ(Line(22), "45");
  EXPECT_TRUE(IsAsRepainted());
  EXPECT_TRUE(viewer->PageUp());
  EXPECT_EQ(Line(0), "1");
  EXPECT_TRUE(IsAsRepainted());
}

TEST_F(ViewerScroll, APageOfAWrappedLineGoesOnInIt) {
  ShowWrapped(std::string(80 * 50, 'x') + "\nend\n");
  EXPECT_TRUE(viewer->PageDown());
  EXPECT_EQ(viewer->TopWrapCol, 80 * 22);
  EXPECT_EQ(viewer->TopOffset, 0);
  EXPECT_TRUE(viewer->PageUp());
  EXPECT_EQ(viewer->TopWrapCol, 0);
}

TEST_F(ViewerScroll, APageEndsInTheRowOfTheLastCellsShown) {
  ShowWrapped(NumberedLines(21) + std::string(100, 'x') + "\n" + NumberedLines(50));
  EXPECT_EQ(viewer->BottomWrapCol, 100);
  viewer->PageDown();
  EXPECT_EQ(viewer->TopWrapCol, 80);
  ShowWrapped(NumberedLines(21) + std::string(160, 'x') + "\n" + NumberedLines(50));
  viewer->PageDown();
  EXPECT_EQ(viewer->TopWrapCol, 80);
  ShowWrapped(NumberedLines(22) + std::string(80, 'x') + "\n" + NumberedLines(50));
  viewer->PageDown();
  EXPECT_EQ(viewer->TopWrapCol, 0);
}

TEST_F(ViewerScroll, PagesDownEndWhereTheEndIsShown) {
  Show(NumberedLines(kHeight));
  EXPECT_FALSE(viewer->PageDown());
  EXPECT_EQ(viewer->TopOffset, 0);
  Show(NumberedLines(kHeight + 1));
  EXPECT_TRUE(viewer->PageDown());
  EXPECT_EQ(Line(0), "23");
  EXPECT_EQ(Line(1), "24");
  EXPECT_EQ(viewer->BlankRows, kHeight - 2);
  EXPECT_FALSE(viewer->PageDown());
}

TEST_F(ViewerScroll, PagesUpEndAtTheBeginning) {
  Show("\xEF\xBB\xBF" + NumberedLines(30));
  viewer->PageDown();
  EXPECT_TRUE(viewer->PageUp());
  EXPECT_EQ(viewer->TopOffset, 3);
  EXPECT_FALSE(viewer->PageUp());
  EXPECT_FALSE(viewer->ScrollUp());
  EXPECT_EQ(viewer->TopOffset, 3);
}

TEST_F(ViewerScroll, PagesOfOneRowGoOnToo) {
  ResizeScreen(80, 3);
  Show(NumberedLines(5));
  ASSERT_EQ(viewer->ScreenHeight, 1);
  EXPECT_TRUE(viewer->PageDown());
  EXPECT_EQ(Line(0), "2");
  EXPECT_TRUE(viewer->PageUp());
  EXPECT_EQ(Line(0), "1");
  EXPECT_TRUE(viewer->GoEnd());
  EXPECT_EQ(Line(0), "5");
}

// ---- the ends

TEST_F(ViewerScroll, TheEndHasTheLastLineInTheLastRow) {
  Show(NumberedLines(100));
  EXPECT_TRUE(viewer->GoEnd());
  EXPECT_EQ(Line(22), "100");
  EXPECT_EQ(Line(0), "78");
  EXPECT_EQ(viewer->BlankRows, 0);
  EXPECT_TRUE(IsAsRepainted());
  EXPECT_FALSE(viewer->GoEnd());
}

TEST_F(ViewerScroll, WrappedTheEndCountsRows) {
  ShowWrapped(NumberedLines(50) + std::string(80 * 10 + 5, 'x') + "\n");
  EXPECT_TRUE(viewer->GoEnd());
  EXPECT_EQ(Line(22), "xxxxx");
  EXPECT_EQ(Line(0), "39");
  ShowWrapped(std::string(80 * 40, 'x'));
  EXPECT_TRUE(viewer->GoEnd());
  EXPECT_EQ(viewer->TopWrapCol, 80 * (40 - kHeight));
  EXPECT_TRUE(IsAsRepainted());
}

TEST_F(ViewerScroll, HomeGoesBehindTheMarkAndToTheLeft) {
  Show("\xEF\xBB\xBF" + NumberedLines(100));
  viewer->GoEnd();
  viewer->LeftCol = 8;
  viewer->GoHome();
  EXPECT_EQ(viewer->TopOffset, 3);
  EXPECT_EQ(viewer->LeftCol, 0);
  EXPECT_EQ(Line(0), "1");
}

TEST_F(ViewerScroll, TheEndOfUnitsCutInTheMiddleIsThatOfTheLastWholeOne) {
  Show(InUnits(NumberedLines(100), kUtf16Little) + "x", kUtf16Little);
  EXPECT_TRUE(viewer->GoEnd());
  EXPECT_EQ(Line(22), "100");
  EXPECT_EQ(Line(21), "99");
}

TEST_F(ViewerScroll, TheEndOfTenGigabytesIsThere) {
  texts.Write("text", "first\n");
  ASSERT_EQ(truncate(texts.Path("text").c_str(), 10LL << 30), 0);
  Options::ViewerWrap = true;
  ShowFile(texts.Path("text"));
  EXPECT_EQ(Line(0), "first");
  EXPECT_TRUE(viewer->GoEnd());
  EXPECT_EQ(viewer->NextAfterBottom, 10LL << 30);
  EXPECT_TRUE(viewer->ScrollUp());
  EXPECT_TRUE(IsAsRepainted());
  viewer->GoHome();
  EXPECT_EQ(Line(0), "first");
}

// ---- growing files

TEST_F(ViewerScroll, PageDownFindsWhatCameBelowTheEnd) {
  Show("one\n");
  EXPECT_FALSE(viewer->PageDown());
  AppendToFile("two\n");
  EXPECT_TRUE(viewer->PageDown());
  EXPECT_EQ(Line(0), "one");
  EXPECT_EQ(Line(1), "two");
  EXPECT_FALSE(viewer->PageDown());
}

TEST_F(ViewerScroll, PageDownAtTheVeryEndFindsWhatCame) {
  Show(NumberedLines(kHeight));
  EXPECT_FALSE(viewer->PageDown());
  AppendToFile("new\n");
  EXPECT_TRUE(viewer->PageDown());
  EXPECT_EQ(Line(0), "23");
  EXPECT_EQ(Line(1), "new");
}

TEST_F(ViewerScroll, DownFindsWhatCame) {
  Show(NumberedLines(kHeight));
  EXPECT_FALSE(viewer->ScrollDown());
  AppendToFile("new\n");
  EXPECT_TRUE(viewer->ScrollDown());
  EXPECT_EQ(Line(22), "new");
  EXPECT_EQ(Line(0), "2");
  EXPECT_TRUE(IsAsRepainted());
}

TEST_F(ViewerScroll, ALineThatHadNoEndGoesOn) {
  Show(NumberedLines(kHeight - 1) + "begun");
  AppendToFile(" and done\nnew\n");
  EXPECT_TRUE(viewer->ScrollDown());
  EXPECT_EQ(Line(21), "begun and done");
  EXPECT_EQ(Line(22), "new");
  EXPECT_TRUE(IsAsRepainted());

  Show("begun");
  AppendToFile(" and done\n");
  EXPECT_TRUE(viewer->ScrollDown());
  EXPECT_EQ(Line(0), "begun and done");
}

TEST_F(ViewerScroll, EndFollowsTheFile) {
  Show(NumberedLines(10));
  EXPECT_FALSE(viewer->GoEnd());
  AppendToFile(NumberedLines(20000));
  EXPECT_TRUE(viewer->GoEnd());
  EXPECT_EQ(Line(22), "20000");
  EXPECT_EQ(viewer->NextAfterBottom, viewer->FileSize);
  AppendToFile("more");
  EXPECT_TRUE(viewer->GoEnd());
  EXPECT_EQ(Line(22), "more");
}

TEST_F(ViewerScroll, TheEndOfAFileThatHasShrunkIsInTheLastRow) {
  Show(NumberedLines(100));
  ASSERT_EQ(truncate(texts.Path("text").c_str(), At(51)), 0);
  EXPECT_TRUE(viewer->GoEnd());
  EXPECT_EQ(Line(0), "28");
  EXPECT_EQ(Line(22), "50");
}

TEST_F(ViewerScroll, WhatShrankEndsWhereItsDataEnd) {
  Show(NumberedLines(50000));
  const int64_t size = viewer->FileSize;
  viewer->GoEnd();
  ASSERT_EQ(truncate(texts.Path("text").c_str(), 4), 0);
  EXPECT_EQ(viewer->FileSize, size);
  viewer->SetTop(At(30000));
  viewer->Repaint();
  EXPECT_EQ(viewer->BlankRows, kHeight);
  EXPECT_FALSE(viewer->ScrollDown());
  viewer->PageUp();
  viewer->GoEnd();
  viewer->GoHome();
  EXPECT_EQ(viewer->FileSize, size);
}

// ---- sideways

TEST_F(ViewerScroll, SidewaysIsForUnwrappedTextAndNeverBelowZero) {
  Show(std::string(200, 'x') + "\n");
  viewer->MoveSideways(-4);
  EXPECT_EQ(viewer->LeftCol, 0);
  viewer->MoveSideways(4);
  EXPECT_EQ(viewer->LeftCol, 4);
  viewer->MoveSideways(40);
  EXPECT_EQ(viewer->LeftCol, 44);
  viewer->MoveSideways(-80);
  EXPECT_EQ(viewer->LeftCol, 0);
  Options::ViewerWrap = true;
  viewer->MoveSideways(4);
  EXPECT_EQ(viewer->LeftCol, 0);
}

TEST_F(ViewerScroll, SidewaysHasAnEnd) {
  Show("x\n");
  for (int i = 0; i < 5; ++i) viewer->MoveSideways(INT32_MAX / 2);
  EXPECT_GT(viewer->LeftCol, 0);
  EXPECT_EQ(Line(0), "");
  EXPECT_FALSE(viewer->ScrollDown());
}

// ---- any sequence of steps

class ViewerRandomSteps : public ViewerScroll {
 protected:
  void Walk(unsigned seed, int steps) {
    static constexpr int kRows[] = {0, 0, 0, 1, 1, 1, 2, 3, 4, 5, 6, 7};
    unsigned state = seed;
    const auto random = [&state] { return (state = state * 1664525u + 1013904223u) >> 16; };
    for (int i = 0; i < steps; ++i) {
      const int step = kRows[random() % std::size(kRows)];
      for (unsigned times = random() % 4 + 1; times > 0; --times) Step(step);
      ASSERT_TRUE(IsAsRepainted()) << "after step " << step << ", number " << i << " of seed " << seed;
    }
  }

  void Step(int step) {
    switch (step) {
      case 0:
        viewer->ScrollDown();
        break;
      case 1:
        viewer->ScrollUp();
        break;
      case 2:
        viewer->PageDown();
        break;
      case 3:
        viewer->PageUp();
        break;
      case 4:
        viewer->GoEnd();
        break;
      case 5:
        viewer->GoHome();
        break;
      case 6:
        viewer->MoveSideways(4);
        break;
      default:
        viewer->MoveSideways(-4);
        break;
    }
  }

  static std::string Mixed(unsigned seed, int size) {
    static const char* const kPieces[] = {"\n", "\r", "\r\n",         "\n\r", "word ",
                                          "\t", "x",  "\xE2\x82\xAC", "\x80", "\xE2"};
    std::string text;
    unsigned state = seed;
    while (static_cast<int>(text.size()) < size) {
      state = state * 1664525u + 1013904223u;
      const unsigned kind = (state >> 16) % 12;
      if (kind == 10)
        text += std::string((state >> 8) % 300, 'y');
      else if (kind == 11)
        text += '\0';
      else
        text += kPieces[kind];
    }
    return text;
  }
};

TEST_F(ViewerRandomSteps, LeaveWhatARepaintDraws) {
  for (int encoding = 0; encoding <= 5; ++encoding) {
    for (const bool wrap : {false, true}) {
      Options::ViewerWrap = wrap;
      Show(Mixed(encoding + 1, 6000), encoding);
      Walk(encoding + 10, 40);
      if (HasFatalFailure()) FAIL() << "encoding " << encoding << (wrap ? ", wrapped" : "");
    }
  }
}

TEST_F(ViewerRandomSteps, LeaveWhatARepaintDrawsOfBytes) {
  Show(Mixed(7, 3001), kCodePageText);
  viewer->HexMode = true;
  viewer->Repaint();
  Walk(5, 80);
}

TEST_F(ViewerRandomSteps, LeaveWhatARepaintDrawsOnScreensOfAnySize) {
  for (const int width : {80, 97, 161, 250}) {
    viewer.reset();
    ResizeScreen(width, 10 + width % 7);
    for (const bool wrap : {false, true}) {
      Options::ViewerWrap = wrap;
      Show(Mixed(width, 8000), kUtf8);
      Walk(width, 25);
      if (HasFatalFailure()) FAIL() << "width " << width << (wrap ? ", wrapped" : "");
    }
  }
}

TEST_F(ViewerRandomSteps, LeaveWhatARepaintDrawsOfAGrowingFile) {
  for (const bool wrap : {false, true}) {
    Options::ViewerWrap = wrap;
    Show("one", kCodePageText);
    for (unsigned i = 0; i < 20; ++i) {
      AppendToFile(Mixed(i, 100));
      Step(i % 3 * 2);  // one that looks for growth
      Walk(i, 4);
      if (HasFatalFailure()) return;
    }
  }
}

}  // namespace
