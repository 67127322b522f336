// The queue between the GUI thread and the application.
#include "console/event_queue.h"

#include <gtest/gtest.h>

#include <memory>
#include <thread>
#include <vector>

#include "console/key_codes.h"

namespace {

TEvent* KeyEvent(int code) { return new TEvent{kEventKey, code, 0, 0, 0, 0}; }

int TakeCode(CEventQueue& queue) {
  const std::unique_ptr<TEvent> event(queue.Get(0));
  return event != nullptr ? event->code : -1;
}

}  // namespace

TEST(EventQueue, GivesEventsInTheirOrder) {
  CEventQueue queue;
  queue.Put(KeyEvent('a'));
  queue.Put(KeyEvent('b'));
  queue.Put(KeyEvent('c'));
  EXPECT_EQ(TakeCode(queue), 'a');
  EXPECT_EQ(TakeCode(queue), 'b');
  EXPECT_EQ(TakeCode(queue), 'c');
}

TEST(EventQueue, WhoTakesTheFirstOfSeveralFindsTheOthersWaiting) {
  CEventQueue queue;
  int first = 0;
  bool foundOthers = false;
  std::thread taker([&] {
    first = std::unique_ptr<TEvent>(queue.Get(kForever))->code;
    foundOthers = queue.TakeEscape();
  });
  while (!queue.WaitUntilDrained(kForever)) {
  }
  queue.Put(std::vector<TEvent>{{kEventKey, 'a'}, {kEventKey, 'b'}, {kEventKey, kEscape}});
  taker.join();
  EXPECT_EQ(first, 'a');
  EXPECT_TRUE(foundOthers);
  EXPECT_FALSE(queue.IsPending());
}

TEST(EventQueue, APollOfAnEmptyQueueReturnsAtOnce) {
  CEventQueue queue;
  EXPECT_EQ(queue.Get(0), nullptr);
  EXPECT_FALSE(queue.IsPending());
}

TEST(EventQueue, EventsLeftOverAreReleasedWithIt) {
  CEventQueue queue;
  queue.Put(KeyEvent('a'));
  EXPECT_TRUE(queue.IsPending());
}

TEST(EventQueue, AWaitEndsWithItsTime) {
  CEventQueue queue;
  EXPECT_EQ(queue.Get(1), nullptr);
}

TEST(EventQueue, AFlagLeftByAPollIsNoEvent) {
  CEventQueue queue;
  queue.Put(KeyEvent('a'));
  EXPECT_EQ(TakeCode(queue), 'a');
  EXPECT_EQ(queue.Get(1), nullptr);
}

TEST(EventQueue, AWaitingReaderGetsWhatAnotherThreadPuts) {
  constexpr int kEvents = 20000;
  CEventQueue queue;
  std::thread writer([&] {
    for (int i = 0; i < kEvents; ++i) queue.Put(KeyEvent(i));
  });
  for (int i = 0; i < kEvents; ++i) {
    const std::unique_ptr<TEvent> event(queue.Get(kForever));
    ASSERT_NE(event, nullptr);
    ASSERT_EQ(event->code, i);
  }
  writer.join();
  EXPECT_FALSE(queue.IsPending());
}

TEST(EventQueue, EscapeIsTakenWithAllBeforeItAndNothingBehind) {
  CEventQueue queue;
  queue.Put(KeyEvent('a'));
  queue.Put(KeyEvent(kEscape));
  queue.Put(KeyEvent('b'));
  queue.Put(KeyEvent(kEscape));
  EXPECT_TRUE(queue.TakeEscape());
  EXPECT_EQ(TakeCode(queue), 'b');
  EXPECT_TRUE(queue.TakeEscape());
  EXPECT_FALSE(queue.IsPending());
}

TEST(EventQueue, WithoutEscapeEverythingStays) {
  CEventQueue queue;
  EXPECT_FALSE(queue.TakeEscape());
  queue.Put(KeyEvent('a'));
  queue.Put(new TEvent{kEventMotion, kEscape, 0, 0, 0, 0});
  EXPECT_FALSE(queue.TakeEscape());
  EXPECT_EQ(TakeCode(queue), 'a');
  EXPECT_EQ(TakeCode(queue), kEscape);
}

TEST(EventQueue, IsNotDrainedWhileNobodyReads) {
  CEventQueue queue;
  EXPECT_FALSE(queue.WaitUntilDrained(0));
  EXPECT_EQ(queue.Get(0), nullptr);
  EXPECT_FALSE(queue.WaitUntilDrained(1));
}

TEST(EventQueue, IsDrainedOnceTheReaderHasActedOnAll) {
  constexpr int kRounds = 500;
  CEventQueue queue;
  int acted = 0;
  std::thread reader([&] {
    while (true) {
      const std::unique_ptr<TEvent> event(queue.Get(kForever));
      if (event->code == 0) return;
      ++acted;
    }
  });
  for (int round = 1; round <= kRounds; ++round) {
    queue.Put(KeyEvent('a'));
    queue.Put(KeyEvent('b'));
    ASSERT_TRUE(queue.WaitUntilDrained(kForever));
    ASSERT_EQ(acted, 2 * round);
  }
  queue.Put(KeyEvent(0));
  reader.join();
  EXPECT_FALSE(queue.WaitUntilDrained(0));
}

TEST(EventQueue, AReaderThatWaitsInShortTurnsIsDrainedToo) {
  CEventQueue queue;
  std::thread reader([&] {
    std::unique_ptr<TEvent> event;
    while (event == nullptr) event.reset(queue.Get(1));
  });
  EXPECT_TRUE(queue.WaitUntilDrained(kForever));
  queue.Put(KeyEvent('a'));
  reader.join();
}
