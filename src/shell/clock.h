// The clock in the top right corner.
#pragma once

#include <ctime>

#include "foundation/strings.h"

void ShowClock();    // makes the window if the option is on, and paints
void RemoveClock();  // what it covers comes back
void UpdateClock();  // paints if it is shown; the idle hook of ReadKey

// The text for a moment: "13:05" or " 1:05p"; the colon blinks with the second.
Westring ClockText(time_t moment, int timeMode);
