// Commands that open a dialog. Each returns what is to be painted.
#pragma once

#include "shell/shell.h"

int RunConfiguration(Shell& shell);
int RunColours(Shell& shell);
int RunConfirmations(Shell& shell);
int RunFilter(Shell& shell, int side);

int RunMounts(Shell& shell, int side, bool filterless);
int RunStoredPaths(Shell& shell);
int RunHistory(Shell& shell);           // of commands
int RunDirectoryHistory(Shell& shell);  // takes the active panel to the one chosen
int RunMakeObjects(Shell& shell);
int RunGuiWindow(Shell& shell);
int RunManual(Shell& shell);
