// The cursor's tick.
#include "console/blink_thread.h"

#include <gtest/gtest.h>

TEST(BlinkThreads, ShowTheCursorFirstAndHideItHalfASecondLater) {
  BlinkThread blink;
  Event shown, hidden;
  blink.Start([&] { (blink.IsCursorPhase() ? shown : hidden).Set(); });
  EXPECT_EQ(shown.Wait(kForever), 0);
  EXPECT_EQ(hidden.Wait(kForever), 0);
  shown.Reset();
  blink.Restart();
  EXPECT_EQ(shown.Wait(kForever), 0);
  blink.Stop();
}
