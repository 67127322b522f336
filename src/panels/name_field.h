// The name of an entry as a field of cells: with a link's target, cut or
// scrolled to its width, and with the flag character.
#pragma once

#include "console/cell_string.h"
#include "panels/panel.h"

// The arrow between a link and its target.
constexpr wchar_t kLinkArrow = 0x00BB;
// Stands for what was cut off; the console shows it as a triangle.
constexpr wchar_t kCutMark = 16;

// The name alone, or " » target" behind it for a link.
CellString NameWithTarget(TPanel& panel, const entry& e, uint8_t colour, uint8_t arrowColour);

// Exactly width cells in colour. scroll as for BuildEntryRow.
CellString BuildNameField(TPanel& panel, const entry& e, int width, uint8_t colour, int32_t* scroll);

// Exactly width cells: cut, or filled with blanks in the row's attribute.
void FitCells(CellString& row, int width);
