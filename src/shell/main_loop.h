// The main loop.
#pragma once

#include "shell/shell.h"

// Percent of a cell that the cursor on the command line fills.
constexpr int kLineCursorSize = 15;

// Runs until a command sets shell.quit.
void RunMainLoop(Shell& shell);
