// The hand-over of events between the two threads.
#include "console/event_queue.h"

#include <chrono>

#include "console/key_codes.h"

namespace {

constexpr int kLeftButton = 1;

bool IsEscape(const TEvent& event) { return event.type == kEventKey && event.code == kEscape; }

}  // namespace

void CEventQueue::Put(TEvent* event) {
  {
    MutexLock lock(mutex);
    drained.Reset();
    Append(event);
  }
  arrived.Set();
}

void CEventQueue::Put(const std::vector<TEvent>& events) {
  {
    MutexLock lock(mutex);
    drained.Reset();
    for (const TEvent& event : events) Append(new TEvent(event));
  }
  arrived.Set();
}

TEvent* CEventQueue::Get(uint32_t timeoutMs) {
  if (TEvent* event = Take()) return event;
  if (timeoutMs == 0) return nullptr;
  while (true) {
    BeginWait();
    const int error = arrived.Wait(timeoutMs);
    EndWait();
    if (error != 0) return nullptr;
    // Only after this may the store be looked at: an event that comes later
    // sets the flag again. A flag left over from an event that a poll took
    // costs one more turn.
    arrived.Reset();
    if (TEvent* event = Take()) return event;
  }
}

TEvent* CEventQueue::Take() {
  MutexLock lock(mutex);
  First();
  return Detach();
}

void CEventQueue::DropRestOfClick() { dropsClick = true; }

// The release may have been lost to a terminal, so that a press ends it too.
bool CEventQueue::IsRestOfClick(const TEvent& event) {
  if (!dropsClick || event.code != kLeftButton) return false;
  if (event.type == kEventPress || event.type == kEventRelease) dropsClick = false;
  return event.type == kEventMotion || event.type == kEventRelease;
}

void CEventQueue::BeginWait() {
  MutexLock lock(mutex);
  readerWaits = true;
  if (Count() == 0) drained.Set();
}

void CEventQueue::EndWait() {
  MutexLock lock(mutex);
  readerWaits = false;
  drained.Reset();
}

bool CEventQueue::IsPending() {
  MutexLock lock(mutex);
  return Count() > 0;
}

bool CEventQueue::TakeEscape() {
  MutexLock lock(mutex);
  int escape = 0;
  while (escape < Count() && !IsEscape(*Peek(escape))) ++escape;
  if (escape >= Count()) return false;
  First();
  for (int i = 0; i <= escape; ++i) Remove();
  return true;
}

bool CEventQueue::WaitUntilDrained(uint32_t timeoutMs) {
  using Clock = std::chrono::steady_clock;
  const auto start = Clock::now();
  uint32_t left = timeoutMs;
  while (drained.Wait(left) == 0) {
    {
      MutexLock lock(mutex);
      if (readerWaits && Count() == 0) return true;
    }
    if (timeoutMs == kForever) continue;
    const auto spent = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count();
    left = spent < timeoutMs ? static_cast<uint32_t>(timeoutMs - spent) : 0;
  }
  return false;
}
