// Reading keys and mouse from the queue.
#include "console/input.h"

#include <gtest/gtest.h>

#include "console/event_translation.h"

namespace {

// Each test starts with no modifier held and no hook.
class Input : public testing::Test {
 protected:
  Input() { Forget(); }
  ~Input() override { Forget(); }

  void Forget() {
    CurrentModifiers = ReportedModifiers = 0;
    BreakState = 0;
    IdleHook = nullptr;
  }

  void Put(const TEvent& event) { queue.Put(new TEvent(event)); }
  Key Read(int timeoutMs = 0) { return ReadKeyFrom(queue, timedOut, &mouse, timeoutMs); }

  CEventQueue queue;
  bool timedOut = false;
  TMouseEvent mouse;
};

int idleCalls = 0;
CEventQueue* idleQueue = nullptr;

}  // namespace

TEST_F(Input, WithoutAnEventAPollReturnsNothingAndNoTimeOut) {
  timedOut = true;
  EXPECT_EQ(Read(0), 0u);
  EXPECT_FALSE(timedOut);
}

TEST_F(Input, AModifierIsReportedAndTheNextKeyStays) {
  Put({kEventKey, static_cast<int>(kModifierKey), kModShift, 50, 0, 0});
  Put({kEventKey, static_cast<int>(FKey(5)), kModShift, 71, 0, 0});
  EXPECT_EQ(Read(), kModifierKey);
  EXPECT_EQ(CurrentModifiers, kModShift);
  EXPECT_EQ(mouse.modifiers, kModShift);
  EXPECT_EQ(Read(), FKey(5));
}

TEST_F(Input, AMouseEventWithOtherModifiersCostsTwoReads) {
  Put({kEventPress, 1, kModCtrl, 0, 3, 4});
  Put({kEventKey, 'x', 0, 0, 0, 0});
  EXPECT_EQ(Read(), kMouseKey);
  EXPECT_EQ(CurrentModifiers, kModCtrl);
  EXPECT_EQ(ReportedModifiers, 0u);
  mouse.modifiers = 99;
  EXPECT_EQ(Read(), kModifierKey);
  EXPECT_EQ(mouse.modifiers, kModCtrl);
  EXPECT_TRUE(queue.IsPending());
  EXPECT_EQ(Read(), Key{'x'});
}

TEST_F(Input, CharactersAboveTheFirstPlaneAreOneKey) {
  Put({kEventKey, 0x1F600, 0, 0, 0, 0});
  EXPECT_EQ(Read(), 0x1F600u);
}

TEST_F(Input, ControlOnTheDigitRowIsRebuiltFromTheKeysPlace) {
  for (int place = 10; place <= 19; ++place) {
    const Key digit = static_cast<Key>((place - 9) % 10);
    Put({kEventKey, '&', kModCtrl, place, 0, 0});
    EXPECT_EQ(Read(), 0x40000 + digit);
    Put({kEventKey, '&', kModCtrl | kModShift, place, 0, 0});
    EXPECT_EQ(Read(), 0x60000 + digit);
  }
  Put({kEventKey, '&', kModShift, 10, 0, 0});
  EXPECT_EQ(Read(), Key{'&'});
}

TEST_F(Input, MouseEventsAreTranslated) {
  struct Row {
    int type, button, kind;
  };
  constexpr Row kRows[] = {
      {kEventPress, 1, 0},  {kEventPress, 2, 1},  {kEventRelease, 1, 5},     {kEventRelease, 2, 6},
      {kEventMotion, 1, 2}, {kEventMotion, 2, 3}, {kEventDoubleClick, 1, 4}, {kEventDoubleClick, 2, 1},
  };
  for (const Row& row : kRows) {
    Put({row.type, row.button, 0, 0, 7, 9});
    EXPECT_EQ(Read(), kMouseKey);
    EXPECT_EQ(mouse.kind, row.kind);
    EXPECT_EQ(mouse.x, 7);
    EXPECT_EQ(mouse.y, 9);
  }
}

TEST_F(Input, TheMiddleButtonAndAFreeMotionMeanNothing) {
  for (int type : {kEventPress, kEventRelease, kEventMotion, kEventDoubleClick}) {
    Put({type, 3, 0, 0, 0, 0});
    EXPECT_EQ(Read(), 0u);
  }
  Put({kEventMotion, 0, 0, 0, 0, 0});
  EXPECT_EQ(Read(), 0u);
}

TEST_F(Input, TheRestOfADroppedClickMeansNothingUpToItsRelease) {
  queue.DropRestOfClick();
  for (const EventType type : {kEventMotion, kEventWheel, kEventMotion, kEventRelease, kEventRelease}) {
    Put({type, 1, 0, 0, 0, 0});
  }
  Put({kEventKey, 1, 0, 0, 0, 0});
  EXPECT_EQ(Read(), 0u);
  EXPECT_EQ(Read(), kMouseKey);
  EXPECT_EQ(mouse.kind, kMouseWheel);
  EXPECT_EQ(Read(), 0u);
  EXPECT_EQ(Read(), 0u);
  EXPECT_EQ(Read(), kMouseKey);
  EXPECT_EQ(mouse.kind, kMouseLeftRelease);
  EXPECT_EQ(Read(), Key{1});
}

TEST_F(Input, ADroppedClickWhoseReleaseGotLostEndsWithTheNextPress) {
  queue.DropRestOfClick();
  for (const EventType type : {kEventPress, kEventMotion, kEventRelease}) {
    Put({type, 1, 0, 0, 0, 0});
    EXPECT_EQ(Read(), kMouseKey) << type;
  }
}

TEST_F(Input, ADroppedClickLeavesTheOtherButtonAndAllKeys) {
  queue.DropRestOfClick();
  for (const EventType type : {kEventPress, kEventMotion, kEventRelease}) {
    Put({type, 2, 0, 0, 0, 0});
    EXPECT_EQ(Read(), kMouseKey) << type;
  }
  Put({kEventKey, 1, 0, 0, 0, 0});
  EXPECT_EQ(Read(), Key{1});
  Put({kEventRelease, 1, 0, 0, 0, 0});
  EXPECT_EQ(Read(), 0u);
}

TEST_F(Input, TheWheelHasADelta) {
  Put({kEventWheel, -1, 0, 0, 2, 3});
  EXPECT_EQ(Read(), kMouseKey);
  EXPECT_EQ(mouse.kind, kMouseWheel);
  EXPECT_EQ(mouse.delta, -1);
  Put({kEventWheel, 1, 0, 0, 2, 3});
  EXPECT_EQ(Read(), kMouseKey);
  EXPECT_EQ(mouse.delta, 1);
}

TEST_F(Input, TheMouseMayBeOfNoInterest) {
  Put({kEventPress, 1, kModShift, 0, 2, 3});
  EXPECT_EQ(ReadKeyFrom(queue, timedOut, nullptr, 0), kMouseKey);
  EXPECT_EQ(ReadKeyFrom(queue, timedOut, nullptr, 0), kModifierKey);
}

TEST_F(Input, TheIdleHookRunsBeforeTheWait) {
  idleCalls = 0;
  IdleHook = [] { ++idleCalls; };
  Read(0);
  EXPECT_EQ(idleCalls, 1);
  CurrentModifiers = kModShift;  // is reported at once, without a wait
  EXPECT_EQ(Read(0), kModifierKey);
  EXPECT_EQ(idleCalls, 1);
}

TEST_F(Input, AWaitWithoutLimitEndsWithAnEvent) {
  idleQueue = &queue;
  IdleHook = [] { idleQueue->Put(new TEvent{kEventKey, 'k', 0, 0, 0, 0}); };
  EXPECT_EQ(Read(-1), Key{'k'});
}

TEST_F(Input, CheckEscapeTakesOneEventAndNotesItsModifiers) {
  EXPECT_FALSE(CheckEscapeIn(queue));
  Put({kEventKey, 'a', kModAlt, 0, 0, 0});
  Put({kEventKey, kEscape, 0, 0, 0, 0});
  EXPECT_FALSE(CheckEscapeIn(queue));
  EXPECT_EQ(CurrentModifiers, kModAlt);
  EXPECT_TRUE(CheckEscapeIn(queue));
  EXPECT_EQ(CurrentModifiers, 0u);
  EXPECT_FALSE(queue.IsPending());
}

TEST_F(Input, ABreakNeedsAnArmedOperation) {
  RequestBreak();
  EXPECT_EQ(BreakState, 0);
  {
    BreakScope scope;
    EXPECT_FALSE(scope.Stopped());
    RequestBreak();
    EXPECT_EQ(BreakState, 2);
    EXPECT_TRUE(scope.Stopped());
    RequestBreak();
    EXPECT_EQ(BreakState, 2);
  }
  EXPECT_EQ(BreakState, 0);
}

TEST_F(Input, ABreakInsideStopsWhatIsAroundIt) {
  BreakScope outer;
  {
    BreakScope inner;
    RequestBreak();
  }
  EXPECT_TRUE(outer.Stopped());
}

TEST_F(Input, ABreakOutsideStopsWhatComesNext) {
  BreakScope outer;
  RequestBreak();
  {
    BreakScope inner;
    EXPECT_TRUE(inner.Stopped());
  }
  EXPECT_TRUE(outer.Stopped());
}
