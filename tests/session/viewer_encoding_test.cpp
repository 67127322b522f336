// The keys for encoding and code page.
#include <gtest/gtest.h>

#include "config/values/options.h"
#include "session/viewer_screen.h"
#include "viewer/code_page_list.h"
#include "viewer/file_status.h"

namespace {

// What was chosen outlives a viewer, and here also a session.
class ViewerEncoding : public testing::Test {
 protected:
  ViewerEncoding() { TranslateCursor = LastCodePage = 0; }
  ~ViewerEncoding() override { TranslateCursor = LastCodePage = 0; }
};

// "aea" in the Cyrillic of page 866, and something else in any other page.
constexpr char kBytes[] = "\xA0\xA5\xA0\n";
constexpr char kIn866[] = "\xD0\xB0\xD0\xB5\xD0\xB0";  // UTF-8
constexpr char kIn1251[] = "\xC2\xA0\xD2\x90\xC2\xA0";

}  // namespace

TEST_F(ViewerEncoding, TheStatusLineNamesIt) {
  EXPECT_EQ(ViewerSession("text\n").Encoding(), "UTF-8");
  EXPECT_EQ(ViewerSession(kBytes).Encoding(), "CP819");
  EXPECT_EQ(ViewerSession(kBytes, {.settings = "TextCodePage=866\n"}).Encoding(), "CP866");
}

TEST_F(ViewerEncoding, AltEChoosesIt) {
  ViewerSession s(std::string("a\0b\0\n\0 \0", 8));
  ASSERT_EQ(s.Encoding(), "UTF-16");
  s.Keys("Alt-E");
  EXPECT_TRUE(s.FindRow(" Select File Encoding "));
  s.Keys("Up Up Enter");
  EXPECT_FALSE(s.FindRow("File Encoding"));  // the text is painted where the box was
  EXPECT_EQ(s.Encoding(), "CP819");
  EXPECT_EQ(s.Top(), "a b");
}

TEST_F(ViewerEncoding, EscInTheDialogKeepsIt) {
  ViewerSession s(kBytes);
  const std::string before = s.Screen();
  s.Keys("Alt-E Down Down Esc");
  EXPECT_EQ(s.Screen(), before);
}

TEST_F(ViewerEncoding, AZeroInForcedUtf8EndsTheLine) {
  ViewerSession s(std::string("one\0two\n", 8));
  ASSERT_EQ(s.Encoding(), "CP819");
  EXPECT_EQ(s.Top(), "one two");
  s.Keys("Alt-E Down Enter");
  EXPECT_EQ(s.Encoding(), "UTF-8");
  EXPECT_EQ(s.Top(), "one");
  EXPECT_EQ(s.Line(2), "two");
}

TEST_F(ViewerEncoding, AWrongOneIsShownAndLeftAgain) {
  ViewerSession s(ManyLines(1000));
  s.Keys("Alt-L '500' Enter Alt-E Down Down Enter");  // UTF-32
  EXPECT_EQ(s.Encoding(), "UTF-32");
  s.Keys("Down PgDn Up PgUp End Home PgDn F4 F4 Left Right Alt-L '2' Enter Enter Alt-O '7' Enter");
  s.Keys("Alt-E Up Up Enter Home");
  EXPECT_EQ(s.Encoding(), "UTF-8");
  EXPECT_EQ(s.Top(), "Line 1");
  EXPECT_EQ(s.Bottom(), "Line 23");
}

TEST_F(ViewerEncoding, AltCAsksForPagesAndTakesTheFirst) {
  ViewerSession s(kBytes);
  s.Keys("Alt-C");
  EXPECT_TRUE(s.FindRow(" Code Page Translation "));
  s.Keys("'866,1251' Enter");
  EXPECT_EQ(s.Encoding(), "CP866");
  EXPECT_EQ(s.Top(), kIn866);
  EXPECT_STREQ(Options::TranslateCP.Text(), "866,1251");
}

TEST_F(ViewerEncoding, EscInItChangesNothing) {
  ViewerSession s(kBytes, {.settings = "TranslateCP=866\n"});
  const std::string before = s.Screen();
  s.Keys("Alt-C '1251' Esc");
  EXPECT_EQ(s.Screen(), before);
  EXPECT_STREQ(Options::TranslateCP.Text(), "866");
}

TEST_F(ViewerEncoding, AltTStepsThroughThePagesAndAroundTheirEnd) {
  ViewerSession s(kBytes, {.settings = "TranslateCP=866,1251\n"});
  s.Keys("Alt-T");
  EXPECT_EQ(s.Encoding(), "CP866");
  EXPECT_EQ(s.Top(), kIn866);
  s.Keys("Alt-T");
  EXPECT_EQ(s.Encoding(), "CP1251");
  EXPECT_EQ(s.Top(), kIn1251);
  s.Keys("Alt-T");
  EXPECT_EQ(s.Encoding(), "CP866");
}

TEST_F(ViewerEncoding, TheUsualPageOfTheListIsTheUsualPage) {
  ViewerSession s(kBytes, {.settings = "TranslateCP=866,819\n"});
  s.Keys("Alt-T Alt-T");
  EXPECT_EQ(s.Encoding(), "CP819");
  EXPECT_EQ(LastCodePage, 0);
}

TEST_F(ViewerEncoding, AnImpossiblePageIsToldAndTheUsualOneTaken) {
  ViewerSession s(kBytes, {.settings = "TranslateCP=866,99999\n"});
  s.Keys("Alt-T Alt-T");
  EXPECT_TRUE(s.FindRow("Invalid code page"));
  s.Keys("Enter");
  EXPECT_EQ(s.Encoding(), "CP819");
  EXPECT_TRUE(s.IsShown());
}

TEST_F(ViewerEncoding, AltTIsForCodePagesOnly) {
  ViewerSession s("text\n", {.settings = "TranslateCP=866\n"});
  const std::string before = s.Screen();
  s.Keys("Alt-T");
  EXPECT_EQ(s.Screen(), before);
  EXPECT_EQ(LastCodePage, 0);
}

TEST_F(ViewerEncoding, AltCTurnsAnyTextIntoOneOfACodePage) {
  ViewerSession s(std::string(kIn866) + "\n");
  ASSERT_EQ(s.Encoding(), "UTF-8");
  s.Keys("Alt-C '866' Enter");
  EXPECT_EQ(s.Encoding(), "CP866");
  EXPECT_NE(s.Top(), kIn866);
}

TEST_F(ViewerEncoding, ThePageChosenLastIsThatOfTheNextFile) {
  Session s({{"left/a", kBytes}, {"left/b", kBytes}}, {.settings = "TranslateCP=866\n"});
  s.Keys("Down F3 Alt-T Esc Down F3");
  EXPECT_TRUE(s.Row(0).Contains("CP866"));
}
