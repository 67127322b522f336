// Tags: the panel's selection, and its two counters kept in step with it.
#pragma once

#include "panels/panel.h"

// mode 1 sets, -1 clears, 0 toggles. Repaints the entry if it is in view.
void Tag(TPanel& panel, int index, int mode);
