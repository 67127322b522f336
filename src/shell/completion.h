// Completing file names on the command line.
#pragma once

#include "shell/shell.h"

// The word before the cursor becomes a name that begins with it; of several the
// user chooses.
int CompleteFileName(Shell& shell);
