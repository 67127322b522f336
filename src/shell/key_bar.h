// The function-key bar in the bottom row.
#pragma once

#include <cstdint>

#include "console/cell_string.h"
#include "console/input.h"

constexpr int kBarKeys = 10;

// The ten labels for the modifiers held.
const char* const* BarLabels(uint32_t modifiers);

CellString BuildKeyBar(const char* const* labels, int columns);
void PaintKeyBar(const char* const* labels);

// The function key under a mouse event on the bar.
Key BarKey(const TMouseEvent& mouse, int columns);
