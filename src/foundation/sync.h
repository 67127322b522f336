// The two synchronisation helpers of the program.
#pragma once

#include <pthread.h>

#include <atomic>
#include <cstdint>

// Wait without limit.
constexpr uint32_t kForever = 0xFFFFFFFFu;

// A flag that threads can wait for. It stays set after a successful wait.
class Event {
 public:
  Event();
  ~Event();
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  // 0 when signaled, ETIMEDOUT when the time ran out (at once for 0 ms), or
  // another error of pthread_cond_timedwait.
  int Wait(uint32_t ms);
  void Set();
  void Reset();  // takes no lock

 private:
  pthread_cond_t condition;
  pthread_mutex_t mutex;
  std::atomic<bool> signaled = false;  // Reset clears it outside the mutex
};

// A recursive lock that knows its owner.
class Mutex {
 public:
  Mutex();
  ~Mutex();
  Mutex(const Mutex&) = delete;
  Mutex& operator=(const Mutex&) = delete;

  // 0 ms tries, kForever waits without limit. Returns 0 or the error.
  int Lock(uint32_t ms = kForever);
  // Does nothing unless the caller owns the lock.
  void Unlock();

 private:
  pthread_mutex_t mutex;
  // Unlock asks both before it knows that it holds the lock.
  std::atomic<int> count = 0;
  std::atomic<pthread_t> owner{};
};

// Holds a Mutex for a scope.
class MutexLock {
 public:
  explicit MutexLock(Mutex& m) : mutex(m) { mutex.Lock(); }
  ~MutexLock() { mutex.Unlock(); }
  MutexLock(const MutexLock&) = delete;
  MutexLock& operator=(const MutexLock&) = delete;

 private:
  Mutex& mutex;
};
