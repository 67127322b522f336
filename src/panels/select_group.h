// Tagging by expression.
#pragma once

#include "panels/panel.h"

// Asks for an expression and tags (mode 1) or untags (mode -1) what it is true
// for. shift swaps for this once whether directories are tagged.
void SelectGroup(TPanel& panel, int mode, bool shift);
