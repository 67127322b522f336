// The text of one entry as cells: computed here, put on the screen elsewhere.
#pragma once

#include "console/cell_string.h"
#include "panels/entry_fields.h"
#include "panels/panel.h"

constexpr int kNoForcedColour = -1;

// The row of an entry in a style (kStyleFull for the status line), as wide as a
// panel's inside; in brief and briefwide only the field of its column.
// forcedColour overrides the entry's own colour; scroll, where not null, is the
// sideways scroll of a long name, lowered to where the name ends. An index
// outside the listing gives blanks.
CellString BuildEntryRow(TPanel& panel, int index, int style, int forcedColour, int32_t* scroll);

// Row y of the list as it stands on the screen, without the bar: an entry, in
// brief and briefwide one in each column, or blanks behind the last one.
CellString BuildListRow(TPanel& panel, int y);

// The colour that an entry has by its tag, its kind and the colour rules.
uint8_t EntryColour(const entry& e);
