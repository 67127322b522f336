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

  // Of a press that has just been handled.
  void ExpectWait(MouseKind kind, int milliseconds) {
    using std::chrono::steady_clock;
    const auto before = steady_clock::now();
    Press(kind);
    ASSERT_TRUE(mouse.IsRepeating()) << kind;
    const std::chrono::milliseconds left(mouse.WaitTime()), whole(milliseconds);
    EXPECT_LE(left, whole) << kind;
    EXPECT_GE(left + (steady_clock::now() - before), whole) << kind;
  }

  Viewing viewing{Show(NumberedLines(1000)), {}};
  ViewerMouse mouse{viewing};
};

}  // namespace

TEST_F(ViewerMousePace, AStepWaitsForTheDelay) {
  Options::ScrollDelay = 1000000;
  for (const MouseKind kind : {kMouseLeftPress, kMouseLeftDouble, kMouseRightDrag}) {
    mouse.Stop();
    ExpectWait(kind, Options::ScrollDelay);
  }
}

TEST_F(ViewerMousePace, ARightPressWaitsLongerForTheSecondStep) {
  Options::ScrollDelay = 1000000;
  ExpectWait(kMouseRightPress, Options::ScrollDelay + kPause);
}

TEST_F(ViewerMousePace, ItDoesSoOnlyOnce) {
  Options::ScrollDelay = 1;
  Press(kMouseRightPress);
  const int64_t top = viewer->TopOffset;
  while (viewer->TopOffset == top) mouse.Repeat();
  EXPECT_LE(mouse.WaitTime(), Options::ScrollDelay);
}
