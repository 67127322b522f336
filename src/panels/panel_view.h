// What the drawing routines share: whether a panel can be drawn now, and rows
// that stay inside its frame.
#pragma once

#include "console/cell_string.h"
#include "panels/panel.h"

// Shown, with a window that is not hidden.
bool IsOnScreen(const TPanel& panel);
// IsOnScreen with a list of files in it.
bool ShowsList(const TPanel& panel);

// Cells inside the frame, clipped at its right side. PutRow ends the row.
void PutRow(TPanel& panel, int x, int y, CellString& row);

// Row y of the list, without the bar.
void PutListRow(TPanel& panel, int y);

// The entry in its slot, if it is in view. Colour and scroll as for
// BuildEntryRow.
void PutEntry(TPanel& panel, int index, int forcedColour, int32_t* scroll);
