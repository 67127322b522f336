// The tick of the cursor.
#pragma once

#include <atomic>
#include <functional>
#include <thread>

#include "foundation/sync.h"

// Ten ticks of 100 ms make one blink; the cursor shows for the first five.
class BlinkThread {
 public:
  // redraw is called on the thread whenever the cursor appears or disappears.
  void Start(std::function<void()> redraw);
  void Stop();  // and joins

  bool IsCursorPhase() const { return counter < kHiddenFrom; }
  // Begins a blink, so that the cursor stays solid while the user types. Any
  // thread may.
  void Restart() { counter = 0; }

 private:
  static constexpr int kTicks = 10, kHiddenFrom = 5;
  static constexpr uint32_t kTickMs = 100;

  void Run(const std::function<void()>& redraw);

  std::atomic<int> counter{0};
  Event stop;
  std::thread thread;
};
