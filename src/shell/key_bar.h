// The main screen's function-key bar.
#pragma once

#include <cstdint>

#include "console/input.h"
#include "dialogs/key_bar.h"

// The ten labels for the modifiers held.
const char* const* BarLabels(uint32_t modifiers);

// The function key under a mouse event on the bar.
Key BarKey(const TMouseEvent& mouse, int columns);
