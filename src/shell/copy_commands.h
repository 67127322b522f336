// Commands that copy and move. Each returns what is to be painted.
#pragma once

#include "shell/shell.h"

int RunCopy(Shell& shell);
int RunMove(Shell& shell);
int RunCopyHere(Shell& shell);  // the entry under the cursor alone, to another name
int RunMoveHere(Shell& shell);

// The choice of the copy dialog among the directories that were left.
bool ChooseFromDirectoryHistory(Westring& path);
