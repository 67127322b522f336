// Real keys, buttons and the desktop's clipboard.
#include <gtest/gtest.h>

#include "support/desktop.h"

namespace {

constexpr int kBlue = 1, kCyan = 3;  // palette indices of panel and cursor bar on a file
constexpr unsigned kLeftButton = 1, kMiddleButton = 2, kRightButton = 3, kWheelDown = 5;
const FileList kFiveFiles = {{"left/a", ""}, {"left/b", ""}, {"left/c", ""}, {"left/d", ""}, {"left/e", ""}};

}  // namespace

TEST(Input, ArrowKeysMoveTheCursorBar) {
  Desktop d(kFiveFiles);
  d.Keys("Down Down");
  EXPECT_TRUE(d.Eventually([&] { return d.Background(5, 3) == kCyan && d.Background(5, 1) == kBlue; }));
}

TEST(Input, TypedTextStandsOnTheCommandLine) {
  Desktop d;
  d.Keys("'Echo \"x\" | wc -l' Backspace");
  EXPECT_TRUE(d.EventuallyShows(d.Path("left") + ">Echo \"x\" | wc - "));
}

TEST(Input, HeldModifierChangesTheFunctionKeys) {
  Desktop d;
  d.Keys("+Alt");
  EXPECT_TRUE(d.Eventually([&] { return d.Row(24).starts_with("1Left   2Right"); }));
  d.Keys("-Alt");
  EXPECT_TRUE(d.Eventually([&] { return d.Row(24).starts_with("1Help   2Menu"); }));
}

TEST(Input, ClickPutsTheCursorBarOnTheEntryUnderThePointer) {
  Desktop d(kFiveFiles);
  d.Click(kLeftButton, 5, 4);
  EXPECT_TRUE(d.Eventually([&] { return d.Background(5, 4) == kCyan; }));
}

TEST(Input, DoubleClickGoesIntoTheDirectory) {
  Desktop d({{"left/inner/deep.txt", ""}});
  d.Click(kLeftButton, 5, 2);
  d.Click(kLeftButton, 5, 2);
  EXPECT_TRUE(d.EventuallyShows("deep.txt"));
  EXPECT_TRUE(d.Eventually([&] { return d.Title() == "Orvane: " + d.Path("left/inner"); }));
}

TEST(Input, WheelMovesTheCursorBarThreeRows) {
  Desktop d(kFiveFiles);
  d.Click(kWheelDown, 5, 10);
  EXPECT_TRUE(d.Eventually([&] { return d.Background(5, 4) == kCyan; }));
}

TEST(Input, FunctionKeyIsClickedInTheBottomRow) {
  Desktop d;
  d.Click(kLeftButton, 76, 24);
  EXPECT_TRUE(d.EventuallyShows("Are you sure you want to exit Orvane ?"));
}

TEST(Input, RightButtonTagsTheEntryUnderThePointer) {
  Desktop d({{"left/a", "12345"}, {"left/b", "1"}});
  d.Click(kRightButton, 5, 2);
  EXPECT_TRUE(d.EventuallyShows("5 bytes in 1 selected file"));
}

TEST(Input, CommandLineIsCopiedToTheDesktopsClipboard) {
  Desktop d;
  d.Keys("'for another program' Ctrl-Ins");
  EXPECT_TRUE(d.Eventually([&] { return d.Clipboard() == "for another program"; }));
}

TEST(Input, TextOfAnotherProgramIsPasted) {
  Desktop d;
  d.SetClipboard("from another program");
  d.Keys("Shift-Ins");
  EXPECT_TRUE(d.EventuallyShows(">from another program"));
}

TEST(Input, DragOverTheConsoleTextCopiesIt) {
  Desktop d;
  d.Keys("Ctrl-O");
  ASSERT_TRUE(d.Eventually([&] { return d.Background(5, 10) == 0; })) << "the panels are off";
  d.Keys("'select me'");
  ASSERT_TRUE(d.EventuallyShows(">select me"));
  d.MovePointer(0, 20);
  d.Press(kLeftButton);
  d.MovePointer(3, 21);
  d.Release(kLeftButton);
  // Blank rows: each gives its line end and nothing else.
  EXPECT_TRUE(d.Eventually([&] { return d.Clipboard() == "\n\n"; })) << d.Clipboard();
}

TEST(Input, ClickOnTheConsoleTextCopiesNothing) {
  Desktop d;
  d.Keys("Ctrl-O");
  ASSERT_TRUE(d.Eventually([&] { return d.Background(5, 10) == 0; })) << "the panels are off";
  d.SetClipboard("kept");
  d.Click(kLeftButton, 3, 20);
  d.Keys("'behind the click'");
  ASSERT_TRUE(d.EventuallyShows(">behind the click"));
  EXPECT_EQ(d.Clipboard(), "kept");
}

TEST(Input, DragOverTheScrollbackCopiesWhatHasScrolledOff) {
  Desktop d;
  d.Keys("Ctrl-O 'seq 1001 1100; echo done > ../home/done' Enter");
  ASSERT_TRUE(
      d.Eventually([&] { return d.Content("home/done") == "done\n" && d.Row(21).starts_with("1100 "); }));
  d.Keys("Ctrl-B Up Up");
  ASSERT_TRUE(d.Eventually([&] { return d.Row(24).starts_with("1099 "); })) << d.Screen();
  d.Keys("PgUp");
  ASSERT_TRUE(d.Eventually([&] { return d.Row(24).starts_with("1076 "); })) << "two rows stay on the screen";
  d.MovePointer(2, 23);
  d.Press(kLeftButton);
  d.MovePointer(40, 24);
  d.Release(kLeftButton);
  EXPECT_TRUE(d.Eventually([&] { return d.Clipboard() == "75\n76\n"; })) << d.Clipboard();
  d.Keys("Esc");
  EXPECT_TRUE(d.Eventually([&] { return d.Row(21).starts_with("1100 "); }));
}

TEST(Input, MiddleButtonMeansNothing) {
  Desktop d(kFiveFiles);
  d.Click(kMiddleButton, 5, 4);
  d.Keys("Down");
  EXPECT_TRUE(d.Eventually([&] { return d.Background(5, 2) == kCyan; }));
}
