// The mouse in the viewer.
#include <gtest/gtest.h>

#include "config/values/options.h"
#include "session/viewer_screen.h"

namespace {

// A step is taken at once, and no second one before the test is over.
constexpr char kSlow[] = "ScrollDelay=1000000\nViewerWrap=off\n";

std::string WideLines(int count) {
  std::string text;
  for (int i = 1; i <= count; ++i) text += "Line " + std::to_string(i) + std::string(300, '.') + "\n";
  return text;
}

int TopNumber(const ViewerSession& s) {
  const std::string top = s.Top();
  return top.starts_with("Line ") ? std::stoi(top.substr(5)) : -1;
}

}  // namespace

TEST(ViewerMouse, TheWheelGoesByThreeRows) {
  ViewerSession s(ManyLines(100));
  s.Mouse(kMouseWheel, 40, 10, 0, -1);
  EXPECT_EQ(s.Top(), "Line 4");
  s.Mouse(kMouseWheel, 40, 10, 0, -1);
  s.Mouse(kMouseWheel, 40, 10, 0, 1);
  EXPECT_EQ(s.Top(), "Line 4");
}

TEST(ViewerMouse, TheWheelStopsAtTheEnds) {
  ViewerSession s(ManyLines(25));
  s.Mouse(kMouseWheel, 40, 10, 0, -1);
  EXPECT_EQ(s.Bottom(), "Line 25");
  s.Mouse(kMouseWheel, 40, 10, 0, 1);
  EXPECT_EQ(s.Top(), "Line 1");
}

TEST(ViewerMouse, APressIsAStepByItsRegion) {
  ViewerSession s(WideLines(200), {.settings = kSlow});
  s.Click(40, 20);
  EXPECT_EQ(TopNumber(s), 2);
  s.Click(40, 2);
  EXPECT_EQ(TopNumber(s), 1);
  s.Click(70, 12);
  EXPECT_TRUE(s.Row(1).StartsWith(" 1..."));
  s.Click(10, 12);
  EXPECT_EQ(TopNumber(s), 1);
  const std::string before = s.Screen();
  s.Click(40, 12);
  EXPECT_EQ(s.Screen(), before);
}

TEST(ViewerMouse, TheRightButtonDoublesTheStep) {
  ViewerSession s(WideLines(200), {.settings = kSlow});
  s.RightClick(40, 20);
  EXPECT_EQ(TopNumber(s), 23);
  s.RightClick(40, 2);
  EXPECT_EQ(TopNumber(s), 1);
  s.RightClick(70, 12);
  EXPECT_TRUE(s.Row(1).StartsWith("......"));
  s.RightClick(10, 12);
  EXPECT_EQ(TopNumber(s), 1);
}

TEST(ViewerMouse, ADoubleClickIsAStepToo) {
  ViewerSession s(WideLines(200), {.settings = kSlow});
  s.Mouse(kMouseLeftDouble, 40, 20);
  EXPECT_EQ(TopNumber(s), 2);
}

TEST(ViewerMouse, AHeldButtonGoesOnUntilItIsLetGo) {
  ViewerSession s(WideLines(100000), {.settings = "ScrollDelay=1\n"});
  s.Mouse(kMouseLeftPress, 40, 20);
  s.WaitFor([&] { return TopNumber(s) > 5; });
  s.Mouse(kMouseLeftRelease, 40, 20);
  const std::string before = s.Screen();
  s.Keys("+Shift -Shift");
  EXPECT_EQ(s.Screen(), before);
}

TEST(ViewerMouse, AKeyEndsIt) {
  ViewerSession s(WideLines(100000), {.settings = "ScrollDelay=1\n"});
  s.Mouse(kMouseRightPress, 40, 20);
  s.WaitFor([&] { return TopNumber(s) > 40; });
  s.Keys("Home");
  EXPECT_EQ(TopNumber(s), 1);
  s.Keys("+Shift -Shift");
  EXPECT_EQ(TopNumber(s), 1);
}

TEST(ViewerMouse, ADragIntoAnotherRegionChangesTheStep) {
  ViewerSession s(WideLines(200), {.settings = kSlow});
  s.Mouse(kMouseLeftPress, 40, 12);
  EXPECT_EQ(TopNumber(s), 1);
  s.Mouse(kMouseLeftDrag, 40, 20);
  EXPECT_EQ(TopNumber(s), 2);
  s.Mouse(kMouseLeftDrag, 41, 21);  // the same region
  EXPECT_EQ(TopNumber(s), 2);
  s.Mouse(kMouseLeftDrag, 40, 2);
  EXPECT_EQ(TopNumber(s), 1);
}

TEST(ViewerMouse, AScrollThatCanGoNoFurtherEndsByItself) {
  ViewerSession s(ManyLines(60), {.settings = "ScrollDelay=0\n"});
  s.Mouse(kMouseLeftPress, 40, 20);
  s.WaitFor([&] { return s.Bottom() == "Line 60"; });
  s.Mouse(kMouseLeftPress, 40, 2);
  s.WaitFor([&] { return s.Top() == "Line 1"; });
  s.Mouse(kMouseLeftRelease, 40, 2);
  EXPECT_EQ(s.Top(), "Line 1");
}

TEST(ViewerMouse, WithoutADelayItStillCanBeStopped) {
  for (const char* delay : {"ScrollDelay=0\nViewerWrap=off\n", "ScrollDelay=-5\nViewerWrap=off\n"}) {
    ViewerSession s(WideLines(1000), {.settings = delay});
    s.Mouse(kMouseLeftPress, 70, 12);
    s.WaitFor([&] { return s.Row(1).StartsWith("......"); });
    s.Mouse(kMouseLeftRelease, 70, 12);
    const std::string before = s.Screen();
    s.Keys("+Shift -Shift");
    EXPECT_EQ(s.Screen(), before);
    s.Keys("Esc");
    EXPECT_FALSE(s.IsShown());
  }
}

TEST(ViewerMouse, AClickOnTheKeyBarIsItsKey) {
  ViewerSession s(ManyLines(100));
  s.Click(60, kBarRow);
  EXPECT_EQ(s.Top(), "Line 1");
  s.Click(66, kBarRow);  // "9End"
  EXPECT_EQ(s.Bottom(), "Line 100");
  s.Click(57, kBarRow);  // "8Home"
  EXPECT_EQ(s.Top(), "Line 1");
  s.Click(25, kBarRow);  // "4Hex"
  EXPECT_TRUE(s.Row(1).StartsWith("00000000 "));
  s.Click(79, kBarRow);  // "10Quit"
  EXPECT_FALSE(s.IsShown());
}

TEST(ViewerMouse, OneColumnBeforeALabelBelongsToIt) {
  ViewerSession s(ManyLines(100));
  s.Click(63, kBarRow);
  EXPECT_EQ(s.Bottom(), "Line 100");
  s.Click(62, kBarRow);
  EXPECT_EQ(s.Top(), "Line 1");
}

TEST(ViewerMouse, AReleaseElsewhereIsNoClick) {
  ViewerSession s(ManyLines(100));
  const std::string before = s.Screen();
  s.Mouse(kMouseLeftPress, 66, kBarRow);
  EXPECT_EQ(s.Screen(), before);
  s.Mouse(kMouseLeftRelease, 79, kBarRow);
  EXPECT_EQ(s.Screen(), before);
  s.Mouse(kMouseLeftPress, 66, kBarRow);
  s.Mouse(kMouseLeftRelease, 66, 12);
  s.Mouse(kMouseLeftRelease, 66, kBarRow);
  EXPECT_EQ(s.Screen(), before);
}

TEST(ViewerMouse, ButtonsScrollAlsoWhereThePanelsAreOff) {
  Session s({{"left/file", ManyLines(100)}}, {.settings = kSlow});
  s.Keys("'$view file' Enter");
  ASSERT_TRUE(s.Row(1).StartsWith("Line 1 "));
  s.Click(40, 20);
  EXPECT_TRUE(s.Row(1).StartsWith("Line 2 "));
}
