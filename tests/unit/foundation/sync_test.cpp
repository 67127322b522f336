// Event and Mutex.
#include "foundation/sync.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <thread>
#include <vector>

TEST(Event, WaitOfZeroOnlyAsks) {
  Event event;
  EXPECT_EQ(event.Wait(0), ETIMEDOUT);
  event.Set();
  EXPECT_EQ(event.Wait(0), 0);
}

TEST(Event, StaysSetUntilReset) {
  Event event;
  event.Set();
  EXPECT_EQ(event.Wait(kForever), 0);
  EXPECT_EQ(event.Wait(1000), 0);
  event.Reset();
  EXPECT_EQ(event.Wait(0), ETIMEDOUT);
}

TEST(Event, TimedWaitRunsOut) {
  Event event;
  timespec before{}, after{};
  clock_gettime(CLOCK_REALTIME, &before);
  EXPECT_EQ(event.Wait(5), ETIMEDOUT);
  clock_gettime(CLOCK_REALTIME, &after);
  const double passed =
      static_cast<double>(after.tv_sec - before.tv_sec) + (after.tv_nsec - before.tv_nsec) / 1e9;
  EXPECT_GE(passed, 0.005);
}

TEST(Event, SetWakesAWaitingThread) {
  for (const uint32_t limit : {kForever, 3600000u, kForever - 1}) {
    Event asked, answered;
    int result = -1;
    std::thread waiter([&] {
      answered.Set();
      result = asked.Wait(limit);
    });
    EXPECT_EQ(answered.Wait(kForever), 0);
    asked.Set();
    waiter.join();
    EXPECT_EQ(result, 0);
  }
}

TEST(Mutex, OwnerMayLockAgain) {
  Mutex mutex;
  EXPECT_EQ(mutex.Lock(), 0);
  EXPECT_EQ(mutex.Lock(0), 0);
  EXPECT_EQ(mutex.Lock(10), 0);
  int other = -1;
  const auto tryElsewhere = [&] {
    std::thread([&] {
      other = mutex.Lock(0);
      if (!other) mutex.Unlock();
    }).join();
  };
  mutex.Unlock();
  mutex.Unlock();
  tryElsewhere();
  EXPECT_EQ(other, EBUSY);
  mutex.Unlock();
  tryElsewhere();
  EXPECT_EQ(other, 0);
}

TEST(Mutex, TimedLockRunsOut) {
  Mutex mutex;
  const MutexLock lock(mutex);
  int result = -1;
  std::thread([&] { result = mutex.Lock(5); }).join();
  EXPECT_EQ(result, ETIMEDOUT);
}

TEST(Mutex, UnlockByAnotherThreadDoesNothing) {
  Mutex mutex;
  mutex.Lock();
  int result = -1;
  std::thread([&] {
    mutex.Unlock();
    result = mutex.Lock(0);
  }).join();
  EXPECT_EQ(result, EBUSY);
  mutex.Unlock();
  std::thread([&] {
    result = mutex.Lock(0);
    mutex.Unlock();
  }).join();
  EXPECT_EQ(result, 0);
}

TEST(Mutex, UnlockOfAFreeLockDoesNothing) {
  Mutex mutex;
  mutex.Unlock();
  mutex.Lock();
  mutex.Unlock();
  mutex.Unlock();
  int result = -1;
  std::thread([&] {
    result = mutex.Lock(0);
    mutex.Unlock();
  }).join();
  EXPECT_EQ(result, 0);
  EXPECT_EQ(mutex.Lock(0), 0);
  mutex.Unlock();
}

TEST(Mutex, LocksOutOtherThreads) {
  constexpr int kThreads = 4;
  constexpr int kRounds = 2000;
  Mutex mutex;
  int sum = 0;
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; i++) {
    threads.emplace_back([&] {
      for (int round = 0; round < kRounds; round++) {
        const MutexLock lock(mutex);
        sum++;
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(sum, kThreads * kRounds);
}
