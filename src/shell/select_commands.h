// Commands that tag more than one entry, and that count directories. Each returns
// what is to be painted.
#pragma once

#include "shell/shell.h"

// In a tree they open and close the directory under the cursor.
int RunSelect(Shell& shell);
int RunUnselect(Shell& shell);
// By expression in whatever the active panel shows.
int RunSelectAnywhere(Shell& shell);
int RunUnselectAnywhere(Shell& shell);
int InvertTags(Shell& shell);
// In a tree they open and close all below the directory under the cursor.
int TagAllEntries(Shell& shell);
int ClearAllTags(Shell& shell);
int RestoreTags(Shell& shell);
int CountSizes(Shell& shell);
