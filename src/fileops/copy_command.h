// F5 and F6: from the panels and the dialog to the items.
#pragma once

#include "panels/panel.h"

constexpr int kCommandMove = 1;
constexpr int kCommandHere = 2;  // the default destination is the bare name, in the same directory

// Copies or moves the tagged entries of source, or the one under the cursor.
// target, where not null, takes the dialog's place.
void CopyOrMove(TPanel& source, TPanel& other, int flags, const Westring* target);

// The destination dialog's call of the directory tree; unset where there is
// none. Fills path and returns true where the user chose one.
extern bool (*ChooseInTree)(Westring& path);
