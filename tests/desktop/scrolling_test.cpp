// What the window shows of rows that have been scrolled.
#include <gtest/gtest.h>

#include "support/desktop.h"

namespace {

constexpr int kFirstRow = 1, kListRows = 19, kTextRows = 23;

std::string FileName(int i) { return (i < 10 ? "file0" : "file") + std::to_string(i); }

// The panel lists "..", a text of the letters in lines of their own, and fifty files.
FileList TextAndFiles() {
  std::string letters;
  for (char letter = 'a'; letter <= 'z'; ++letter) letters += {letter, '\n'};
  FileList files = {{"left/a_text", letters + letters}};
  for (int i = 0; i < 50; ++i) files.push_back({"left/" + FileName(i), ""});
  return files;
}

class Scrolling : public testing::Test {
 protected:
  bool ShowsTextFrom(char first) const {
    return d.Eventually([&] {
      for (int row = 0; row < kTextRows; ++row)
        if (d.Row(kFirstRow + row)[0] != 'a' + (first - 'a' + row) % 26) return false;
      return true;
    });
  }
  bool ListsFrom(int file) const {
    return d.Eventually([&] {
      for (int row = 0; row < kListRows; ++row)
        if (d.Row(kFirstRow + row).find(FileName(file + row) + " ") != 1) return false;
      return true;
    });
  }

  Desktop d{TextAndFiles()};
};

TEST_F(Scrolling, OverTheWholeWidthGoesBothWays) {
  d.Keys("Down F3 Down Down");
  EXPECT_TRUE(ShowsTextFrom('c'));
  d.Keys("Up");
  EXPECT_TRUE(ShowsTextFrom('b'));
  d.Keys("Up");
  EXPECT_TRUE(ShowsTextFrom('a'));
}

TEST_F(Scrolling, WhatWasCoveredComesBackAsItHadScrolled) {
  d.Keys("Down F3 Down Down Down");
  ASSERT_TRUE(ShowsTextFrom('d'));
  d.CoverForAMoment();
  EXPECT_TRUE(ShowsTextFrom('d'));
}

// Some rows of the list were the text's last ones by then.
TEST_F(Scrolling, OfOnePanelGoesBothWaysWhereTheWholeWidthHasScrolled) {
  d.Keys("Down F3 Down Down Down Down Down Down Down Down Down Down");
  ASSERT_TRUE(ShowsTextFrom('k'));
  d.Keys(
      "Esc Down Down Down Down Down Down Down Down Down Down Down Down Down Down Down Down Down Down Down");
  EXPECT_TRUE(ListsFrom(0));
  d.Keys("Down Down Down");
  EXPECT_TRUE(ListsFrom(3));
  d.Keys("Up Up Up Up Up Up Up Up Up Up Up Up Up Up Up Up Up Up Up Up");
  EXPECT_TRUE(ListsFrom(1));
}

}  // namespace
