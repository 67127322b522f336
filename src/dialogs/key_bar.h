// The function-key bar in the bottom row.
#pragma once

#include "console/cell_string.h"

constexpr int kBarKeys = 10;

CellString BuildKeyBar(const char* const* labels, int columns);
void PaintKeyBar(const char* const* labels);

// The label under a column, from 0 on.
int BarIndex(int x, int columns);
