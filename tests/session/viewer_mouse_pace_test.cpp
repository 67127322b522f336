// How long the mouse waits from one step to the next.
#include <gtest/gtest.h>

#include <chrono>

#include "viewer/viewer_mouse.h"
#include "viewer_fixture.h"

namespace {

constexpr int kPause = 200;  // milliseconds

class ViewerMousePace : public ViewerTest {
 protected:
  void Press(MouseKind kind) {
    TMouseEvent press;
    press.kind = kind;
    press.x = 40;
    press.y = 20;
    mouse.Handle(press);
  }

  Viewing viewing{Show(NumberedLines(1000)), {}};
  ViewerMouse mouse{viewing};
};

}  // namespace

TEST_F(ViewerMousePace, AStepWaitsForTheDelay) {
  Options::ScrollDelay = 1000000;
  for (const MouseKind kind : {kMouseLeftPress, kMouseLeftDouble, kMouseRightDrag}) {
    mouse.Stop();
    Press(kind);
    ASSERT_TRUE(mouse.IsRepeating()) << kind;
    EXPECT_LE(mouse.WaitTime(), Options::ScrollDelay) << kind;
  }
}

TEST_F(ViewerMousePace, ARightPressWaitsLongerForTheSecondStep) {
  using std::chrono::steady_clock, std::chrono::milliseconds;
  Options::ScrollDelay = 1000000;
  const auto before = steady_clock::now();
  Press(kMouseRightPress);
  const milliseconds left(mouse.WaitTime());
  const auto passed = steady_clock::now() - before;
  EXPECT_LE(left.count(), Options::ScrollDelay + kPause);
  EXPECT_GE(left + passed, milliseconds(Options::ScrollDelay + kPause));
}

TEST_F(ViewerMousePace, ItDoesSoOnlyOnce) {
  Options::ScrollDelay = 1;
  Press(kMouseRightPress);
  const int64_t top = viewer->TopOffset;
  while (viewer->TopOffset == top) mouse.Repeat();
  EXPECT_LE(mouse.WaitTime(), Options::ScrollDelay);
}
