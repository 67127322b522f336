// The clock in the top right corner: a one-row window over the right panel's
// title, which DrawTitle leaves room for.
#include "shell/clock.h"

#include <memory>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "console/console.h"
#include "dialogs/win.h"

namespace {
std::unique_ptr<Win> ClockWindow;
}

Westring ClockText(time_t moment, int timeMode) {
  tm parts{};
  localtime_r(&moment, &parts);
  const char separator = parts.tm_sec % 2 ? ' ' : ':';
  if (timeMode == 24) return Westring(Estring::Format("%2d%c%02d", parts.tm_hour, separator, parts.tm_min));
  const int hour = parts.tm_hour % 12 ? parts.tm_hour % 12 : 12;
  return Westring(
      Estring::Format("%2d%c%02d%c", hour, separator, parts.tm_min, parts.tm_hour < 12 ? 'a' : 'p'));
}

void ShowClock() {
  if (!Options::Clock) return;
  if (!ClockWindow) {
    const int left = ScreenColumns - 6 + (Options::TimeMode == 24 ? 1 : 0);
    ClockWindow = std::make_unique<Win>(left, 0, ScreenColumns - 1, 0, Options::Colours[kColourClock]);
  }
  UpdateClock();
}

void RemoveClock() { ClockWindow.reset(); }

void UpdateClock() {
  if (!Options::Clock || !ClockWindow) return;
  ClockWindow->Print(0, 0, ClockText(time(nullptr), Options::TimeMode), Options::Colours[kColourClock]);
}
