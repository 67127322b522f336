// Looking back at the console text that has scrolled off.
#pragma once

#include "shell/shell.h"

// Over the whole screen until Esc. What stands on the screen is read with the
// rest, so the panels have to be off it.
void ShowScrollBack();

// The key: with the panels taken off the screen; nothing where the option
// ConsoleScrollback is off.
int RunScrollBack(Shell& shell);
