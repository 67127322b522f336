// Counts the ticks.
#include "console/blink_thread.h"

#include <utility>

void BlinkThread::Start(std::function<void()> redraw) {
  thread = std::thread([this, redraw = std::move(redraw)] { Run(redraw); });
}

void BlinkThread::Stop() {
  stop.Set();
  thread.join();
}

void BlinkThread::Run(const std::function<void()>& redraw) {
  do {
    int tick = counter;
    if (tick == 0 || tick == kHiddenFrom) redraw();
    counter.compare_exchange_strong(tick, (tick + 1) % kTicks);  // unless restarted meanwhile
  } while (stop.Wait(kTickMs) != 0);
}
