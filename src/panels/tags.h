// Tags: the panel's selection, and its two counters kept in step with it.
#pragma once

#include "panels/panel.h"

// mode 1 sets, -1 clears, 0 toggles. Repaints the entry if it is in view.
void Tag(TPanel& panel, int index, int mode);

// The same for all entries; nothing on a hidden panel. Directories take part by
// option, which shift turns over for this once; clearing always reaches them.
void TagAll(TPanel& panel, int mode, bool shift);

// Tags what the last operation has worked on, and nothing else.
void RestoreSelection(TPanel& panel);
