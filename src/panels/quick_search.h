// Quick search: the cursor follows what is typed with Alt.
#pragma once

#include "console/input.h"
#include "panels/panel.h"

// A first character, or 0 to search on in direction (1, or -1). Without
// StickyAlt one step is made; with it the search reads keys itself and ends with
// the first that is none of its own, which goes to outKey. event takes what a
// mouse did. The key that is left to act on, or 0.
int QuickSearch(Key firstKey, TPanel& panel, Key* outKey, TMouseEvent* event, int direction);

// Takes the last character off the search text.
void ShortenSearch(TPanel& panel);

// Extends the search text by what all names that begin with it share.
void CompleteSearch(TPanel& panel);
