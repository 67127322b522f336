// Bytes on the viewer's screen.
#include <fcntl.h>
#include <unistd.h>

#include "viewer_fixture.h"

namespace {

class ViewerHex : public ViewerTest {
 protected:
  OpenViewer& ShowHex(const std::string& content, int encoding = kUnknownEncoding) {
    Show(content, encoding);
    return TurnToHex();
  }

  OpenViewer& TurnToHex(int64_t top = 0) {
    viewer->HexMode = true;
    viewer->SetTop(top);
    viewer->Repaint();
    return *viewer;
  }
};

const char* const kFirstRow =
    "00000000 41 42 43 44 │ 45 46 47 48 │ 49 4A 4B 4C │ 4D 4E 4F 50  ABCDEFGHIJKLMNOP";

TEST_F(ViewerHex, ARowIsOffsetBytesAndCharacters) {
  ShowHex("ABCDEFGHIJKLMNOPQRS");
  EXPECT_EQ(Line(0), kFirstRow);
  EXPECT_EQ(Text(64, 1, 16), "ABCDEFGHIJKLMNOP");
  EXPECT_EQ(Line(1), "00000010 51 52 53                                               QRS");
  EXPECT_EQ(Line(2), "");
}

TEST_F(ViewerHex, TheSeparatorStandsBehindTheFourthByteEvenIfItIsTheLast) {
  ShowHex("ABCD");
  EXPECT_TRUE(Line(0).StartsWith("00000000 41 42 43 44 │"));
  ShowHex("ABC");
  EXPECT_FALSE(Line(0).Contains("│"));
}

TEST_F(ViewerHex, RowsAreInTheColourOfTheViewerToTheEdge) {
  Options::Colours[kColourFileViewer] = 0x35;
  ResizeScreen(100, 25);
  ShowHex("ABC");
  EXPECT_EQ(LineAttribute(0, 0), 0x35);
  EXPECT_EQ(LineAttribute(99, 0), 0x35);
  EXPECT_EQ(LineAttribute(99, 5), 0x35);
}

TEST_F(ViewerHex, CharactersAreThoseOfThePageAndZeroIsADot) {
  Show(std::string("\0\xE1\xF7"
                   "A",
                   4),
       kCodePageText);
  viewer->CodePage = 866;
  TurnToHex();
  EXPECT_EQ(Text(64, 1, 4), ".сўA");
}

TEST_F(ViewerHex, AnUnknownPageShowsTheBytesThemselves) {
  Show(
      "\xE1"
      "A",
      kCodePageText);
  viewer->CodePage = 31999;
  TurnToHex();
  EXPECT_EQ(Text(64, 1, 2), "áA");
}

TEST_F(ViewerHex, AByteThatThePageLacksLeavesItsNeighboursTheirCharacters) {
  Show("\x93\x81\xC0", kCodePageText);
  viewer->CodePage = 1252;
  TurnToHex();
  EXPECT_EQ(Text(64, 1, 3), "“⌂À");
}

TEST_F(ViewerHex, RowsBelowTheEndAreBlankAndCounted) {
  ShowHex(std::string(16 * 20 + 1, 'x'));
  EXPECT_EQ(viewer->BlankRows, 2);
  EXPECT_EQ(viewer->BottomOffset, -1);
  EXPECT_EQ(Line(21), "");
  ShowHex(std::string(16 * 22 + 3, 'x'));
  EXPECT_EQ(viewer->BlankRows, 0);
  EXPECT_EQ(viewer->BottomOffset, 16 * 22);
  EXPECT_EQ(viewer->NextAfterBottom, 16 * 22 + 3);
  ShowHex("");
  EXPECT_EQ(viewer->BlankRows, kHeight);
}

TEST_F(ViewerHex, RowsBeginWhereTheTopDoes) {
  Show("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ");
  TurnToHex(3);
  EXPECT_TRUE(Line(0).StartsWith("00000003 33"));
  EXPECT_TRUE(Line(1).StartsWith("00000013 4A"));
}

TEST_F(ViewerHex, OffsetsOfMoreDigitsPushTheBytesToTheRight) {
  texts.Write("text", "");
  const std::string file = texts.Path("text");
  const int64_t top = 0x123456780;
  const int descriptor = open(file.c_str(), O_WRONLY);
  ASSERT_EQ(pwrite(descriptor, "ABCDEFGHIJKLMNOP", 16, top), 16);
  close(descriptor);
  Options::ViewerWrap = true;  // rows of one line, not of a megabyte each
  ShowFile(file);
  TurnToHex(top);
  EXPECT_EQ(Line(0), "123456780 41 42 43 44 │ 45 46 47 48 │ 49 4A 4B 4C │ 4D 4E 4F 50 ABCDEFGHIJKLMNOP");
  EXPECT_EQ(Text(64, 1, 16), "ABCDEFGHIJKLMNOP");
}

TEST_F(ViewerHex, BytesThatHaveNoRoomAreCutBeforeTheCharacters) {
  texts.Write("text", "");
  const std::string file = texts.Path("text");
  const int64_t top = 0x10000000000;
  ASSERT_EQ(truncate(file.c_str(), top + 16), 0);
  Options::ViewerWrap = true;  // rows of one line, not of a megabyte each
  ShowFile(file);
  TurnToHex(top);
  EXPECT_EQ(Line(0), "10000000000 00 00 00 00 │ 00 00 00 00 │ 00 00 00 00 │ 00 00 00 0................");
}

TEST_F(ViewerHex, ScrollingByARowMovesTheOthers) {
  ShowHex(std::string(16 * 40, 'x'));
  Console->PutString(30, 11, L"?", 0x4E);
  EXPECT_TRUE(viewer->ScrollDown());
  EXPECT_EQ(viewer->TopOffset, 16);
  EXPECT_EQ(Text(30, 10, 1), "?");
  EXPECT_TRUE(viewer->ScrollUp());
  EXPECT_EQ(Text(30, 11, 1), "?");
  EXPECT_EQ(viewer->TopOffset, 0);
}

TEST_F(ViewerHex, ScrollingDownEndsWithTheFile) {
  ShowHex(std::string(16 * 23 + 1, 'x'));
  EXPECT_TRUE(viewer->ScrollDown());
  EXPECT_TRUE(IsAsRepainted());
  EXPECT_EQ(viewer->NextAfterBottom, viewer->FileSize);
  EXPECT_FALSE(viewer->ScrollDown());
  EXPECT_EQ(viewer->TopOffset, 16);
}

TEST_F(ViewerHex, AStepUpOfLessThanARowRepaintsAll) {
  Show(std::string(16 * 40, 'x'));
  TurnToHex(20);
  EXPECT_TRUE(viewer->ScrollUp());
  EXPECT_EQ(viewer->TopOffset, 4);
  EXPECT_TRUE(IsAsRepainted());
  EXPECT_TRUE(viewer->ScrollUp());
  EXPECT_EQ(viewer->TopOffset, 0);
  EXPECT_TRUE(Line(0).StartsWith("00000000 78"));
  EXPECT_TRUE(IsAsRepainted());
  EXPECT_FALSE(viewer->ScrollUp());
}

TEST_F(ViewerHex, ARowThatGrewPutsTheNextOnesInStep) {
  ShowHex(std::string(16 * 22 + 3, 'x'));
  AppendToFile(std::string(100, 'y'));
  ASSERT_GE(viewer->ByteAt(viewer->FileSize), 0);
  EXPECT_TRUE(viewer->ScrollDown());
  EXPECT_TRUE(IsAsRepainted());
}

TEST_F(ViewerHex, SidewaysGoesByBytesWithinTheFile) {
  Show(std::string(100, 'x'));
  TurnToHex();
  viewer->SearchPos = 5;
  viewer->MoveSideways(-1);
  EXPECT_EQ(viewer->TopOffset, 0);
  EXPECT_EQ(viewer->SearchPos, 5);
  viewer->MoveSideways(1);
  EXPECT_EQ(viewer->TopOffset, 1);
  EXPECT_EQ(viewer->SearchPos, -1);
  EXPECT_TRUE(Line(0).StartsWith("00000001 "));
  viewer->MoveSideways(40);
  EXPECT_EQ(viewer->TopOffset, 41);
  viewer->MoveSideways(90);
  EXPECT_EQ(viewer->TopOffset, 100);
  EXPECT_EQ(viewer->BlankRows, kHeight);
  viewer->MoveSideways(-40);
  EXPECT_EQ(viewer->TopOffset, 60);
}

TEST_F(ViewerHex, PagesHaveOneRowInCommon) {
  ShowHex(std::string(16 * 100, 'x'));
  EXPECT_TRUE(viewer->PageDown());
  EXPECT_EQ(viewer->TopOffset, 16 * 22);
  EXPECT_TRUE(viewer->PageUp());
  EXPECT_EQ(viewer->TopOffset, 0);
  EXPECT_FALSE(viewer->PageUp());
}

TEST_F(ViewerHex, TheEndIsAScreenOfWholeRowsBeforeIt) {
  ShowHex(std::string(1000, 'x'));
  EXPECT_TRUE(viewer->GoEnd());
  EXPECT_EQ(viewer->TopOffset, 1000 - 16 * kHeight);
  EXPECT_EQ(viewer->NextAfterBottom, 1000);
  EXPECT_FALSE(viewer->GoEnd());
  EXPECT_FALSE(viewer->PageDown());
}

TEST_F(ViewerHex, HomeShowsTheMarkToo) {
  Show("\xEF\xBB\xBFone\n");
  TurnToHex(5);
  viewer->GoHome();
  EXPECT_TRUE(Line(0).StartsWith("00000000 EF BB BF 6F │"));
}

TEST_F(ViewerHex, WhatWasCutOffTheFileIsBlank) {
  ShowHex(std::string(200000, 'x'));
  ASSERT_EQ(truncate(texts.Path("text").c_str(), 20), 0);
  viewer->SetTop(131072);
  viewer->Repaint();
  EXPECT_EQ(viewer->BlankRows, kHeight);
  EXPECT_EQ(Line(0), "");
  EXPECT_FALSE(viewer->ScrollDown());
}

}  // namespace
