// The built program on a display, as its user has it: window, colours, title
// and close button.
#include <gtest/gtest.h>

#include "support/desktop.h"

namespace {

constexpr int kBlack = 0;
constexpr int kBlue = 1, kGreen = 2;  // palette indices of panel and cursor bar on a directory
constexpr int kFirstEntryRow = 1;
constexpr char kQuestion[] = "Are you sure you want to exit Orvane ?";

bool IsBlank(const std::string& row) { return row.find_first_not_of(' ') == std::string::npos; }

}  // namespace

TEST(Window, ShowsBothDirectoriesInThePanelsColours) {
  Desktop d({{"left/apple.txt", "1"}, {"right/pear.txt", "2"}});
  EXPECT_TRUE(d.EventuallyShows("apple.txt"));
  EXPECT_TRUE(d.EventuallyShows("pear.txt"));
  EXPECT_EQ(d.Background(5, 10), kBlue);
  EXPECT_EQ(d.Background(5, kFirstEntryRow), kGreen) << "the cursor bar";
  EXPECT_EQ(d.Background(45, kFirstEntryRow), kBlue) << "the other panel has no cursor bar";
}

TEST(Window, TitleIsThePathOfTheActivePanel) {
  Desktop d;
  EXPECT_EQ(d.Title(), "Orvane: " + d.Path("left"));
  d.Keys("Tab");
  EXPECT_TRUE(d.Eventually([&] { return d.Title() == "Orvane: " + d.Path("right"); }));
}

TEST(Window, TitleIsTheCommandWhileItRuns) {
  Desktop d;
  d.Keys("'echo up; read line' Enter");
  EXPECT_TRUE(d.EventuallyShows("\nup "));  // until the child is there, keys are the program's own
  EXPECT_EQ(d.Title(), "Orvane: echo up; read line");
  d.Keys("Enter");
  EXPECT_TRUE(d.Eventually([&] { return d.Title() == "Orvane: " + d.Path("left"); }));
}

TEST(Window, CloseButtonAsksAndEscStays) {
  Desktop d;
  d.CloseWindow();
  ASSERT_TRUE(d.EventuallyShows(kQuestion));
  d.Keys("Esc");
  EXPECT_TRUE(d.Eventually([&] { return d.Screen().find(kQuestion) == std::string::npos; }));
  d.Keys("'still here'");
  EXPECT_TRUE(d.EventuallyShows(">still here"));
}

TEST(Window, CloseButtonAndEnterEndTheProgram) {
  Desktop d;
  d.CloseWindow();
  ASSERT_TRUE(d.EventuallyShows(kQuestion));
  d.Keys("Enter");
  EXPECT_EQ(d.ExitCode(), 0);
  EXPECT_FALSE(d.HasWindow());
}

TEST(Window, GrowsToFiftyRowsAndComesBack) {
  Desktop d({{"left/apple.txt", "1"}});
  d.Keys("Alt-F9");
  EXPECT_TRUE(d.Eventually([&] { return d.Rows() == 50 && d.Row(49).starts_with("1Help"); }));
  d.Keys("Alt-F9");
  EXPECT_TRUE(d.Eventually([&] { return d.Rows() == 25 && d.Row(24).starts_with("1Help"); }));
  EXPECT_TRUE(d.EventuallyShows("apple.txt"));
}

TEST(Window, IsBlackBelowAScreenThatIsLowerThanItself) {
  Desktop d;
  d.Keys("Alt-F9");
  ASSERT_TRUE(d.Eventually([&] { return d.Rows() == 50 && d.Row(49).starts_with("1Help"); }));
  d.KeepWindowSize();
  d.Keys("Alt-F9");
  EXPECT_TRUE(d.Eventually([&] {
    bool isBlack = true;
    for (int row = 25; row < 50; ++row)
      isBlack = isBlack && d.Background(3, row) == kBlack && IsBlank(d.Row(row));
    return isBlack && d.Row(24).starts_with("1Help");
  }));
  EXPECT_EQ(d.Rows(), 50);
}
