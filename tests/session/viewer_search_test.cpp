// Searching in the viewer with its keys.
#include <gtest/gtest.h>

#include <optional>

#include "session/viewer_screen.h"
#include "support/faults.h"
#include "viewer/code_page_list.h"
#include "viewer/search_settings.h"

namespace {

// What is searched for outlives a viewer, and here also a session.
class ViewerSearch : public testing::Test {
 protected:
  ViewerSearch() {
    SearchString = L"";
    LastCodePage = 0;
    CaseSensitive = Reverse = WholeWord = false;
  }

  // Lines with a "needle" at every hundredth.
  static std::string Haystack() {
    std::string text;
    for (int i = 1; i <= 1000; ++i) {
      text += "Line " + std::to_string(i);
      text += i % 100 == 0 ? " needle\n" : "\n";
    }
    return text;
  }

  // The line with the mark in it.
  static std::string MarkedLine(const ViewerSession& s) {
    const int y = s.Mark().first;
    return y < 0 ? "" : s.Line(y);
  }
};

}  // namespace

TEST_F(ViewerSearch, F7AsksAndShowsTheHitBelowFourRows) {
  ViewerSession s(Haystack());
  s.Keys("F7");
  EXPECT_TRUE(s.FindRow("Search for:"));
  s.Keys("'needle' Enter");
  EXPECT_EQ(s.Marked(), "needle");
  EXPECT_EQ(MarkedLine(s), "Line 100 needle");
  EXPECT_EQ(s.Mark().first, kFirstTextRow + 4);
}

TEST_F(ViewerSearch, ShiftF7GoesOnBehindTheHit) {
  ViewerSession s(Haystack());
  s.Keys("F7 'needle' Enter Shift-F7");
  EXPECT_EQ(MarkedLine(s), "Line 200 needle");
  s.Keys("Shift-F7");
  EXPECT_EQ(MarkedLine(s), "Line 300 needle");
}

TEST_F(ViewerSearch, TwoHitsInALineAreTwo) {
  ViewerSession s("aa needle bb needle cc\n" + ManyLines(100));
  s.Keys("F7 'needle' Enter");
  EXPECT_EQ(s.Mark().second, 3);
  s.Keys("Shift-F7");
  EXPECT_EQ(s.Mark().second, 13);
  s.Keys("Alt-F7");
  EXPECT_EQ(s.Mark().second, 3);
}

TEST_F(ViewerSearch, AltF7GoesTheOtherWayOnce) {
  ViewerSession s(Haystack());
  s.Keys("F7 'needle' Enter Shift-F7 Shift-F7");
  ASSERT_EQ(MarkedLine(s), "Line 300 needle");
  s.Keys("Alt-F7");
  EXPECT_EQ(MarkedLine(s), "Line 200 needle");
  EXPECT_FALSE(Reverse);
  s.Keys("Shift-F7");
  EXPECT_EQ(MarkedLine(s), "Line 300 needle");
}

TEST_F(ViewerSearch, TheSlashSearchesForwardAndTheQuestionMarkBackward) {
  ViewerSession s(Haystack());
  s.Keys("Alt-L '550' Enter / 'needle' Enter");
  EXPECT_EQ(MarkedLine(s), "Line 600 needle");
  EXPECT_FALSE(Reverse);
  s.Keys("Alt-L '550' Enter ? 'needle' Enter");
  EXPECT_EQ(MarkedLine(s), "Line 500 needle");
  EXPECT_TRUE(Reverse);
  s.Keys("Alt-L '550' Enter F7 Enter");  // as it was set last
  EXPECT_EQ(MarkedLine(s), "Line 500 needle");
}

TEST_F(ViewerSearch, BackwardItBeginsInTheLastRow) {
  ViewerSession s(Haystack());
  s.Keys("Alt-L '500' Enter ? 'Line' Enter");
  EXPECT_EQ(MarkedLine(s), "Line 521");
}

TEST_F(ViewerSearch, BackwardFromTheEndAHitAtTheVeryBeginningIsFound) {
  ViewerSession s("needle\n" + ManyLines(100));
  s.Keys("End ? 'needle' Enter");
  EXPECT_EQ(MarkedLine(s), "needle");
  EXPECT_EQ(s.Mark().first, kFirstTextRow);
}

TEST_F(ViewerSearch, AHitAtTheTopIsFoundAtOnceAndLeftNext) {
  ViewerSession s("needle\n" + Haystack());
  s.Keys("F7 'needle' Enter");
  EXPECT_EQ(MarkedLine(s), "needle");
  s.Keys("Shift-F7");
  EXPECT_EQ(MarkedLine(s), "Line 100 needle");
}

TEST_F(ViewerSearch, WhatIsNotThereIsToldAndTheScreenStays) {
  for (const char* key : {"F7", "?"}) {
    ViewerSession s(Haystack());
    s.Keys("Alt-L '550' Enter");
    const std::string before = s.Screen();
    s.Keys(std::string(key) + " 'nothing' Enter");
    EXPECT_TRUE(s.FindRow("String not found")) << key;
    s.Keys("Enter");
    EXPECT_EQ(s.Screen(), before) << key;
  }
}

TEST_F(ViewerSearch, EscInTheDialogLeavesAllAsItWas) {
  ViewerSession s(Haystack());
  s.Keys("Alt-L '550' Enter");
  const std::string before = s.Screen();
  for (const char* key : {"F7", "/", "?"}) {
    s.Keys(std::string(key) + " 'needle' Esc");
    EXPECT_EQ(s.Screen(), before) << key;
    EXPECT_TRUE(SearchString.IsEmpty());
  }
  s.Keys("/ 'needle' Enter");
  EXPECT_EQ(MarkedLine(s), "Line 600 needle");
}

// Where a search begins is set before the question, and by the direction of then.
TEST_F(ViewerSearch, ASearchThatWasNotBegunHasItsStartSet) {
  ViewerSession s(Haystack());
  s.Keys("Alt-L '500' Enter F7 Esc ? 'Line' Enter");
  EXPECT_EQ(MarkedLine(s), "Line 499");
}

TEST_F(ViewerSearch, NothingIsSearchedForWhereNothingWasTyped) {
  ViewerSession s(Haystack());
  const std::string before = s.Screen();
  s.Keys("Shift-F7 Alt-F7 F7 Enter");
  EXPECT_EQ(s.Screen(), before);
}

TEST_F(ViewerSearch, ScrollingBeginsItAnewOnTheScreen) {
  ViewerSession s(Haystack());
  s.Keys("F7 'needle' Enter End Shift-F7");
  EXPECT_EQ(MarkedLine(s), "Line 1000 needle");
}

TEST_F(ViewerSearch, CaseAndWholeWordsCountWhereTheyAreAskedFor) {
  ViewerSession s("x Needle\ny needles\nz needle\n");
  s.Keys("F7 'needle' Enter");
  EXPECT_EQ(MarkedLine(s), "x Needle");
  CaseSensitive = true;
  s.Keys("Home F7 Enter");
  EXPECT_EQ(MarkedLine(s), "y needles");
  WholeWord = true;
  s.Keys("Home F7 Enter");
  EXPECT_EQ(MarkedLine(s), "z needle");
}

TEST_F(ViewerSearch, BytesOfACodePageAreSearchedToo) {
  ViewerSession s("\xE4rger\n" + ManyLines(100) + "\xC4rger\n");
  EXPECT_EQ(s.Encoding(), "CP819");
  s.Keys("Down F7 '\xC3\xA4RGER' Enter");
  EXPECT_EQ(s.Marked(), "\xC3\x84rger");
}

TEST_F(ViewerSearch, InHexModeTheCharactersAreMarked) {
  ViewerSession s(std::string(1000, '.') + "needle" + std::string(1000, '.'));
  s.Keys("F4 F7 'needle' Enter");
  EXPECT_EQ(s.Mark().second, 64);
  EXPECT_EQ(s.Marked(), "needle");
}

TEST_F(ViewerSearch, WhatWasSearchedForOutlivesTheViewer) {
  ViewerSession s(Haystack());
  s.Keys("F7 'needle' Enter Esc F3 Home Shift-F7");
  EXPECT_EQ(MarkedLine(s), "Line 100 needle");
}

TEST_F(ViewerSearch, InWrappedTextTheHitsRowIsShown) {
  ViewerSession s(std::string(3000, '.') + "needle" + std::string(3000, '.') + "\n",
                  {.settings = "ViewerWrap=on\n"});
  s.Keys("F7 'needle' Enter");
  EXPECT_EQ(s.Marked(), "needle");
  EXPECT_EQ(s.Mark(), std::make_pair(kFirstTextRow + 4, 3000 % 80));
}

TEST_F(ViewerSearch, InUnwrappedTextTheHitIsMovedIntoView) {
  ViewerSession s(std::string(3000, '.') + "needle" + std::string(3000, '.') + "\n",
                  {.settings = "ViewerWrap=off\n"});
  s.Keys("F7 'needle' Enter");
  EXPECT_EQ(s.Marked(), "needle");
  EXPECT_EQ(s.Mark().second, 72);  // 3006 - 80 = 2926, in steps of four 2928
  s.Keys("Home Shift-F7");
  EXPECT_EQ(s.Marked(), "needle");
}

TEST_F(ViewerSearch, ANoteStandsThereWhileItRuns) {
  ViewerSession s(ManyLines(100000));
  std::optional<int> row;
  bool isFramed = false;
  {
    const Fault look(kCallRead, {.path = s.Path("left/file"), .times = kEveryCall, .before = [&] {
                                   if (row || !(row = s.FindRow("║ Searching... ║"))) return;
                                   isFramed =
                                       s.Character(32, *row - 3) == U'╔' && s.Character(47, *row + 3) == U'╝';
                                 }});
    s.Keys("F7 'nothing' Enter");
  }
  EXPECT_TRUE(row);
  EXPECT_TRUE(isFramed);
  EXPECT_FALSE(s.FindRow("Searching"));
  EXPECT_TRUE(s.FindRow("String not found"));
}

TEST_F(ViewerSearch, EscBreaksItOffAndNothingIsSaid) {
  for (const char* text : {"\xE4\n", "\n"}) {  // bytes of a code page, and UTF-8
    ViewerSession s(text + ManyLines(1000000));
    const std::string before = s.Screen();
    s.KeysTypedAhead("F7 'nothing' Enter Esc");
    EXPECT_EQ(s.Screen(), before);
  }
}
