// The status line, the key bar, and going to a place that was found.
#include "viewer_fixture.h"

namespace {

class ViewerPosition : public ViewerTest {
 protected:
  std::string Position() { return ToUtf8(viewer->PositionText()).Text(); }

  // The cells of a row in the colour of a place that was found: "x-end".
  std::string Marked(int row) const {
    std::string marked;
    for (int x = 0; x < ScreenColumns; ++x) {
      if (LineAttribute(x, row) != kMark) continue;
      int end = x;
      while (end < ScreenColumns && LineAttribute(end, row) == kMark) ++end;
      marked += std::to_string(x) + "-" + std::to_string(end) + " ";
      x = end;
    }
    return marked;
  }

  void SetColours() { Options::Colours[kColourHighlight] = kMark; }

  static constexpr uint8_t kMark = 0x4D;
};

TEST_F(ViewerPosition, BeforeTheEndItIsAHundred) {
  Show("");
  EXPECT_EQ(Position(), "100.00%");
  Show(NumberedLines(10));
  EXPECT_EQ(Position(), "100.00%");
}

TEST_F(ViewerPosition, ItIsTheShareOfTheFileAboveTheBottom) {
  // The last row is of ten characters in eleven bytes, which is one byte each.
  std::string text;
  for (int i = 0; i < 100; ++i) text += "0123456789\n";
  Show(text);
  EXPECT_EQ(viewer->BottomOffset, 22 * 11);
  EXPECT_EQ(Position(), " 22.90%");  // 252 of 1100
  viewer->GoEnd();
  EXPECT_EQ(Position(), " 99.90%");  // 1099
}

TEST_F(ViewerPosition, TheShareOfALineIsOfWholeBytesACharacter) {
  // Ten cells in 31 bytes are three each.
  std::string line;
  for (int i = 0; i < 10; ++i) line += "\xE2\x82\xAC";
  std::string text;
  for (int i = 0; i < 50; ++i) text += line + "\n";
  Show(text);
  EXPECT_EQ(Position(), " 45.93%");  // 22 * 31 + 30 = 712 of 1550
  // A tab makes the cells more than the bytes.
  text.clear();
  for (int i = 0; i < 50; ++i) text += "\tx\n";
  Show(text);
  EXPECT_EQ(Position(), " 44.00%");  // 22 * 3 of 150
}

TEST_F(ViewerPosition, AnEmptyBottomLineHasNoShare) {
  Show(std::string(100, '\n'));
  EXPECT_EQ(Position(), " 22.00%");
}

TEST_F(ViewerPosition, WrappedOnlyWhatIsShownOfTheLineCounts) {
  ShowWrapped(std::string(80 * 100 - 1, 'x') + "\n");
  EXPECT_EQ(Position(), " 23.00%");  // 8000 / 7999 * 1840
  viewer->ScrollDown();
  EXPECT_EQ(Position(), " 24.00%");
}

TEST_F(ViewerPosition, OfBytesTheLastRowCounts) {
  Show(std::string(1600, 'x'));
  viewer->HexMode = true;
  viewer->Repaint();
  EXPECT_EQ(Position(), " 23.00%");
  viewer->GoEnd();
  EXPECT_EQ(Position(), "100.00%");
}

TEST_F(ViewerPosition, AFileOfAnySizeHasOne) {
  Show(std::string(1600, 'x'));
  viewer->HexMode = true;
  viewer->FileSize = INT64_MAX;
  viewer->BottomOffset = INT64_MAX / 2 - 16;
  viewer->NextAfterBottom = INT64_MAX / 2;
  EXPECT_EQ(Position(), " 49.99%");
}

TEST_F(ViewerPosition, TheStatusLineHasItsFieldsAtTheirPlaces) {
  Options::Colours[kColourMenu] = 0x2B;
  Show(NumberedLines(100));
  viewer->FullName = L"/home/user/text";
  viewer->DrawStatus();
  EXPECT_EQ(Row(0), std::string("View: /home/user/text") + std::string(44, ' ') + "UTF-8    20.20%");
  for (const int x : {0, 40, 79}) EXPECT_EQ(Attribute(x, 0), 0x2B);
  viewer->Encoding = kCodePageText;
  viewer->CodePage = 20866;
  viewer->DrawStatus();
  EXPECT_EQ(Text(65, 0, 15), "CP20866  20.20%");
}

TEST_F(ViewerPosition, ALongPathIsShortened) {
  Show("");
  viewer->FullName = L"/home";
  for (int i = 0; i < 20; ++i) viewer->FullName += L"/directory";
  viewer->DrawStatus();
  EXPECT_TRUE(Row(0).StartsWith("View: /home/...")) << Row(0).String();
  EXPECT_TRUE(Row(0).Contains("directory")) << Row(0).String();
  EXPECT_EQ(Text(73, 0, 7), "100.00%");
  EXPECT_TRUE(Text(60, 0, 13).Contains("UTF-8"));
}

TEST_F(ViewerPosition, TheStatusLineFitsAnyWidth) {
  ResizeScreen(250, 25);
  Show("");
  viewer->DrawStatus();
  EXPECT_EQ(Text(235, 0, 5), "UTF-8");
  EXPECT_EQ(Text(243, 0, 7), "100.00%");
}

TEST_F(ViewerPosition, TheKeyBarTellsWhatTheKeysWouldDo) {
  Show("");
  viewer->DrawKeyBar();
  EXPECT_EQ(Row(24), "1Help   2Wrap   3       4Hex    5       6       7Search 8Home   9End    10Quit  ");
  Options::ViewerWrap = true;
  viewer->HexMode = true;
  viewer->DrawKeyBar();
  EXPECT_EQ(Row(24), "1Help   2UnWrap 3       4ASCII  5       6       7Search 8Home   9End    10Quit  ");
}

// ---- going to a found place

TEST_F(ViewerPosition, AFoundPlaceHasFourRowsAboveIt) {
  SetColours();
  Show(NumberedLines(100));
  const auto line50 = static_cast<int64_t>(NumberedLines(49).size());
  viewer->SearchPos = line50;
  viewer->ShowAt(line50, 1, 1);
  EXPECT_EQ(Line(0), "46");
  EXPECT_EQ(Line(4), "50");
  EXPECT_EQ(Marked(4), "1-2 ");
  EXPECT_EQ(viewer->SearchPos, line50 + 1);
  for (int row = 0; row < kHeight; ++row) EXPECT_TRUE(row == 4 || Marked(row).empty());
}

TEST_F(ViewerPosition, NearTheBeginningThereAreFewerRows) {
  SetColours();
  Show("\xEF\xBB\xBF" + NumberedLines(100));
  viewer->ShowAt(5, 0, 1);
  EXPECT_EQ(viewer->TopOffset, 3);
  EXPECT_EQ(Marked(1), "0-1 ");
  EXPECT_EQ(viewer->SearchPos, -1);
}

TEST_F(ViewerPosition, ColumnsFollowTheTabs) {
  SetColours();
  Show("a\tb\tfound\n");
  viewer->ShowAt(0, 4, 5);
  EXPECT_EQ(Marked(0), "16-21 ");
  Options::TabWidth = 3;
  viewer->ShowAt(0, 4, 5);
  EXPECT_EQ(Marked(0), "6-11 ");
}

TEST_F(ViewerPosition, ColumnsAreCharacters) {
  SetColours();
  Show(
      "\xE2\x82\xAC\xE2\x82\xAC"
      "found\n");
  viewer->ShowAt(0, 6, 5);
  EXPECT_EQ(Marked(0), "2-7 ");
}

TEST_F(ViewerPosition, WithoutALengthItIsThatOfTheSearchString) {
  SetColours();
  SearchString = L"abc";
  Show("xxabcxx\n");
  viewer->ShowAt(0, 2, -1);
  EXPECT_EQ(Marked(0), "2-5 ");
}

TEST_F(ViewerPosition, PastTheRightEdgeLeftColMovesByFours) {
  SetColours();
  Show(std::string(100, 'x') + "found" + std::string(100, 'y') + "\n");
  viewer->ShowAt(0, 75, 5);
  EXPECT_EQ(viewer->LeftCol, 0);
  viewer->ShowAt(0, 76, 5);
  EXPECT_EQ(viewer->LeftCol, 4);
  viewer->ShowAt(0, 100, 5);
  EXPECT_EQ(viewer->LeftCol, 28);
  EXPECT_EQ(Marked(0), "72-77 ");
  EXPECT_EQ(Text(72, 1, 5), "found");
}

TEST_F(ViewerPosition, LeftOfTheScreenLeftColGoesBackByFours) {
  SetColours();
  Show(std::string(300, 'x') + "\n");
  viewer->LeftCol = 100;
  viewer->ShowAt(0, 50, 3);
  EXPECT_EQ(viewer->LeftCol, 48);
  EXPECT_EQ(Marked(0), "2-5 ");
  viewer->ShowAt(0, 1, 3);
  EXPECT_EQ(viewer->LeftCol, 0);
}

TEST_F(ViewerPosition, WrappedThePlaceIsInARowOfItsLine) {
  SetColours();
  ShowWrapped(std::string(1000, 'x') + "\n");
  viewer->ShowAt(0, 810, 3);
  EXPECT_EQ(viewer->TopWrapCol, 480);
  EXPECT_EQ(Marked(4), "10-13 ");
  viewer->ShowAt(0, 170, 3);
  EXPECT_EQ(viewer->TopWrapCol, 0);
  EXPECT_EQ(Marked(2), "10-13 ");
}

TEST_F(ViewerPosition, WrappedTheRowsAboveAreTheLastOfTheLineBefore) {
  SetColours();
  ShowWrapped(std::string(500, 'x') + "\nfound\n");
  viewer->ShowAt(501, 0, 5);
  EXPECT_EQ(viewer->TopOffset, 0);
  EXPECT_EQ(viewer->TopWrapCol, 240);
  EXPECT_EQ(Marked(4), "0-5 ");
}

TEST_F(ViewerPosition, AMarkEndsAtTheRightEdge) {
  SetColours();
  ShowWrapped(std::string(78, 'x') + "found\n");
  viewer->ShowAt(0, 78, 5);
  EXPECT_EQ(Marked(0), "78-80 ");
  EXPECT_EQ(Marked(1), "");
}

TEST_F(ViewerPosition, OfBytesTheMarkIsAmongTheCharacters) {
  SetColours();
  Show(std::string(200, '\t') + "found" + std::string(200, 'x'));
  viewer->HexMode = true;
  viewer->SearchPos = 200;
  viewer->ShowAt(200, 0, 5);
  EXPECT_EQ(viewer->TopOffset, 200 - 64);
  EXPECT_EQ(Marked(4), "64-69 ");
  EXPECT_EQ(Text(64, 5, 5), "found");
  EXPECT_EQ(viewer->SearchPos, 200);
}

TEST_F(ViewerPosition, OfBytesThePlaceStaysInStepNearTheBeginning) {
  SetColours();
  Show(std::string(20, '\t') + "found" + std::string(400, 'x'));
  viewer->HexMode = true;
  viewer->ShowAt(20, 0, 5);
  EXPECT_EQ(viewer->TopOffset, 4);
  EXPECT_EQ(Marked(1), "64-69 ");
  EXPECT_EQ(Text(64, 2, 5), "found");
  viewer->ShowAt(0, 12, 5);
  EXPECT_EQ(viewer->TopOffset, 0);
  EXPECT_EQ(Marked(0), "76-80 ");
}

TEST_F(ViewerPosition, AFalseDistanceIsBounded) {
  Show(std::string(300, '\t') + "\nend\n");
  viewer->ShowAt(0, INT64_MAX, 5);
  viewer->ShowAt(0, -7, 5);
  EXPECT_EQ(viewer->FileSize, 305);
  ShowWrapped(std::string(300, '\t') + "\nend\n");
  viewer->ShowAt(0, INT64_MAX, 5);
  EXPECT_LE(viewer->TopWrapCol, 2400);
}

TEST_F(ViewerPosition, ASmallScreenHasThePlaceOnIt) {
  SetColours();
  ResizeScreen(80, 5);
  Show(NumberedLines(100));
  ASSERT_EQ(viewer->ScreenHeight, 3);
  viewer->ShowAt(static_cast<int64_t>(NumberedLines(49).size()), 0, 2);
  EXPECT_EQ(Line(2), "50");
  EXPECT_EQ(Marked(2), "0-2 ");
}

}  // namespace
