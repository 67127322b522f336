// The line under a panel's list, as cells.
#pragma once

#include "console/cell_string.h"
#include "panels/panel.h"

// Exactly width cells: a read error, the quick search, the tags, or what
// stands under the cursor.
CellString BuildStatusLine(TPanel& panel, int width);
