// The lines around a panel's list as cells: title, divider, bottom.
#pragma once

#include "console/cell_string.h"
#include "panels/panel.h"

// The frame's top line with the path, width cells of which the last
// clockWidth are left out: the clock stands there.
CellString BuildTitle(const TPanel& panel, bool active, int clockWidth, int width);

// Both with the frame's ends, for a list of inner columns.
CellString BuildDivider(int style, int inner);
CellString BuildBottomFrame(int style, int inner);

// The bottom of a panel without a list.
CellString BuildPlainBottomFrame(int inner);
