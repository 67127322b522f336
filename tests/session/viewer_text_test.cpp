// A text on the viewer's screen.
#include "viewer_fixture.h"

namespace {

class ViewerText : public ViewerTest {
 protected:
  static constexpr int32_t kGuillemet = 187;

  int32_t Character(int x, int row) const { return Console->SaveBlock(x, row + 1, 1, 1)[0].character; }
};

TEST_F(ViewerText, RowsShowTheLinesInTheColourOfTheViewer) {
  Options::Colours[kColourFileViewer] = 0x35;
  Show("one\ntwo\n");
  EXPECT_EQ(Line(0), "one");
  EXPECT_EQ(Line(1), "two");
  EXPECT_EQ(LineAttribute(0, 0), 0x35);
  EXPECT_EQ(LineAttribute(79, 0), 0x35);
  EXPECT_EQ(LineAttribute(40, 10), 0x35);
}

TEST_F(ViewerText, RowsBelowTheEndAreBlankAndCounted) {
  Show(NumberedLines(20));
  EXPECT_EQ(viewer->BlankRows, 3);
  EXPECT_EQ(viewer->BottomOffset, -1);
  EXPECT_EQ(Line(19), "20");
  for (int row = 20; row < kHeight; ++row) EXPECT_EQ(Line(row), "");
}

TEST_F(ViewerText, TheLineInTheLastRowIsKnown) {
  Show(NumberedLines(22) + "bottom\nbelow\n");
  EXPECT_EQ(viewer->BlankRows, 0);
  EXPECT_EQ(Line(22), "bottom");
  const int64_t bottom = static_cast<int64_t>(NumberedLines(22).size());
  EXPECT_EQ(viewer->BottomOffset, bottom);
  EXPECT_EQ(viewer->NextAfterBottom, bottom + 7);
  EXPECT_EQ(viewer->BottomLine.Length(), 6);
  EXPECT_EQ(viewer->BottomWrapCol, 6);
  EXPECT_EQ(viewer->NextAfterTop, 2);
}

TEST_F(ViewerText, AnEmptyFileIsBlankRows) {
  Show("");
  EXPECT_EQ(viewer->BlankRows, kHeight);
  EXPECT_EQ(viewer->BottomOffset, -1);
  for (int row = 0; row < kHeight; ++row) EXPECT_EQ(Line(row), "");
}

TEST_F(ViewerText, AMarkIsNotShown) {
  Show("\xEF\xBB\xBFone\n");
  EXPECT_EQ(viewer->TopOffset, 3);
  EXPECT_EQ(Line(0), "one");
}

TEST_F(ViewerText, TabsGoToTheNextStop) {
  Show("a\tb\t\tc\n");
  EXPECT_EQ(Line(0), "a       b               c");
  Options::TabWidth = 3;
  viewer->ForgetTop();
  viewer->Repaint();
  EXPECT_EQ(Line(0), "a  b     c");
}

TEST_F(ViewerText, ALineThatGoesOnToTheRightSaysSo) {
  Options::Colours[kColourFileViewer] = 0x35;
  Options::Colours[kColourTagged] = 0x1E;
  Show(std::string(80, 'a') + "\n" + std::string(81, 'b') + "\n");
  EXPECT_EQ(Character(79, 0), 'a');
  EXPECT_EQ(Character(79, 1), kGuillemet);
  EXPECT_EQ(Character(78, 1), 'b');
  EXPECT_EQ(LineAttribute(79, 0), 0x35);
  EXPECT_EQ(LineAttribute(79, 1), 0x3E);
}

TEST_F(ViewerText, MovedSidewaysItGoesOnAtLeftCol) {
  Show("0123456789" + std::string(78, 'x') + "\nab\n");
  viewer->LeftCol = 8;
  viewer->Repaint();
  EXPECT_TRUE(Line(0).StartsWith("89xx"));
  EXPECT_EQ(Character(79, 0), 'x');
  EXPECT_EQ(Line(1), "");
  viewer->LeftCol = 4;
  viewer->Repaint();
  EXPECT_EQ(Character(79, 0), kGuillemet);
}

TEST_F(ViewerText, WrappedALineTakesTheRowsItNeeds) {
  ShowWrapped(std::string(80, 'a') + "\n" + std::string(81, 'b') + "\n\nend\n");
  EXPECT_EQ(Character(79, 0), 'a');
  EXPECT_EQ(Character(79, 1), 'b');
  EXPECT_EQ(Line(2), "b");
  EXPECT_EQ(Line(3), "");
  EXPECT_EQ(Line(4), "end");
  EXPECT_EQ(viewer->BlankRows, kHeight - 5);
}

TEST_F(ViewerText, WrappedTheLastLineMayBeShownInPart) {
  ShowWrapped(NumberedLines(21) + std::string(200, 'x') + "\nend\n");
  EXPECT_EQ(viewer->BottomWrapCol, 160);
  EXPECT_EQ(viewer->BottomLine.Length(), 200);
  EXPECT_EQ(Character(79, 22), 'x');
}

TEST_F(ViewerText, ALineThatFillsTheScreenIsTopAndBottom) {
  ShowWrapped(std::string(80 * 30, 'x') + "\nend\n");
  EXPECT_EQ(viewer->BottomOffset, 0);
  EXPECT_EQ(viewer->BottomWrapCol, 80 * kHeight);
  EXPECT_EQ(viewer->NextAfterBottom, 80 * 30 + 1);
  viewer->TopWrapCol = 160;
  viewer->Repaint();
  EXPECT_EQ(viewer->BottomWrapCol, 80 * (kHeight + 2));
}

TEST_F(ViewerText, WrappedNothingIsMovedSideways) {
  ShowWrapped("0123456789\n");
  viewer->LeftCol = 4;
  viewer->Repaint();
  EXPECT_EQ(Line(0), "0123456789");
}

TEST_F(ViewerText, AnUnwrappedTopLineBeginsAtItsFirstCell) {
  ShowWrapped(std::string(200, 'x') + "\n");
  viewer->ScrollDown();
  viewer->TopWrapCol = 80;
  Options::ViewerWrap = false;
  viewer->ForgetTop();
  viewer->Repaint();
  EXPECT_EQ(viewer->TopWrapCol, 0);
}

TEST_F(ViewerText, AWideCharacterIsOneCell) {
  Show("\xE6\xBC\xA2\xE5\xAD\x97|\n");
  EXPECT_EQ(Character(0, 0), 0x6F22);
  EXPECT_EQ(Character(1, 0), 0x5B57);
  EXPECT_EQ(Character(2, 0), '|');
}

TEST_F(ViewerText, ControlCharactersHaveTheirGlyphsAndBellAndBackspaceNone) {
  Show(std::string("\x01|\x07|\x08|\x1F\n"), kCodePageText);
  EXPECT_EQ(Character(0, 0), 0x263A);
  EXPECT_EQ(Character(2, 0), ' ');
  EXPECT_EQ(Character(4, 0), ' ');
  EXPECT_EQ(Character(6, 0), 0x25BC);
}

TEST_F(ViewerText, ZerosAreBlanksInACodePageAndEndLinesOfUtf8) {
  Show(std::string("a\0b\n", 4));
  EXPECT_EQ(viewer->Encoding, kCodePageText);
  EXPECT_EQ(Line(0), "a b");
  Show(std::string("a\0b\n", 4), kUtf8);
  EXPECT_EQ(Line(0), "a");
  EXPECT_EQ(Line(1), "b");
}

TEST_F(ViewerText, AnyWidthShowsItsCells) {
  for (const int width : {80, 132, 250}) {
    viewer.reset();
    ResizeScreen(width, 30);
    Show(std::string(width, 'a') + "\n" + std::string(width + 1, 'b') + "\n");
    EXPECT_EQ(viewer->ScreenWidth, width);
    EXPECT_EQ(viewer->ScreenHeight, 28);
    EXPECT_EQ(Character(width - 1, 0), 'a');
    EXPECT_EQ(Character(width - 1, 1), kGuillemet);
  }
}

TEST_F(ViewerText, ALineOfThreeMegabytesIsThreeRows) {
  Show(std::string(3 << 20, 'x') + "\nend\n");
  for (int row = 0; row < 3; ++row) EXPECT_EQ(Character(79, row), kGuillemet) << row;
  EXPECT_EQ(Line(3), "end");
}

TEST_F(ViewerText, ARepaintThatChangesNothingDrawsNothing) {
  Show(NumberedLines(100));
  const uint64_t drawn = Console->DrawCount();
  viewer->Repaint();
  EXPECT_EQ(Console->DrawCount(), drawn);
}

}  // namespace
