// Filling a panel from the file system or an archive.
#pragma once

#include "panels/panel.h"

// Reads panel.path; a re-read keeps tags and the file under the cursor.
void ReadPanel(TPanel& panel);

// The panel's file system is one of those whose names are all upper case: it shows
// files in lower case, and makes directories in upper case.
bool HasCaseFilter(const TPanel& panel);

// Hidden panels only note that a read is owed.
void ReadBothPanels();

// Moves the cursor to the entry with exactly that name and brings it into
// view. Not found: the numbers stay, clamped.
void PositionOn(TPanel& panel, const wchar_t* name);
