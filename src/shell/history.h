// The command history and stepping through it on the command line.
#pragma once

#include "foundation/collections.h"
#include "shell/shell.h"

extern WestringStore CommandHistory;  // oldest first

// Without leading blanks, at the end; equal ones go. Unless quiet, the file gets
// it at once. isNew: there is no equal one, which saves looking for it.
void AddCommand(const Westring& text, bool quiet = false, bool isNew = false);

int PreviousCommand(Shell& shell);
int NextCommand(Shell& shell);

// Puts into the line the next command (towards older ones, or back) that
// begins with what stands left of the cursor. False if the line stays.
bool SearchByPrefix(Shell& shell, bool older);
