// Commands that show a file. Each returns what is to be painted.
#pragma once

#include "shell/shell.h"

// The entry under the cursor; of a directory its size. The second one asks no
// association and takes the alternate viewer.
int ViewEntry(Shell& shell);
int ViewEntryElsewhere(Shell& shell);
int ViewNamed(Shell& shell);  // a file that the user names

// What a command line and an argument of the program ask for.
void ViewPath(const Westring& path);
