// The viewer as the rest of the program calls it.
#pragma once

#include "console/key_codes.h"
#include "panels/panel.h"

// From the entry under the cursor through the files of the panel, on which the
// cursor is put at the end.
void View(TPanel& panel);

// One file; offset -1 for the place where it was left.
void ViewFile(const Westring& path, int64_t offset);

// Extracts a member of the panel's archive to a file of its own for the time of
// the viewing; an empty path where that failed. Null until archives can be read.
extern bool (*ExtractForView)(TPanel& panel, const entry& e, Westring& path);

// Shift-F4: goes on in the editor. Null where there is none.
extern void (*EditInsteadOfViewing)(const Westring& path, int64_t offset);
