// The main loop.
#pragma once

#include "shell/shell.h"

// Runs until a command sets shell.quit.
void RunMainLoop(Shell& shell);
