// The rows that scrolled off the console text.
#pragma once

#include "console/cell_string.h"
#include "foundation/collections.h"

// Grows for as long as the process runs.
class CScrollBackBuffer : public TObjectStore<CellString> {};

extern CScrollBackBuffer ScrollBack;
