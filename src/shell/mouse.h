// The mouse on the main screen.
#pragma once

#include "shell/shell.h"

// Acts on shell.mouse. Leaves the key that the event stands for in shell.key,
// or 0 where it is done with, and sets what is to be painted.
void DispatchMouse(Shell& shell);

// The slot of the list under a cell of the panel, c columns and y rows from its
// outer corner; -1 where there is none.
int SlotUnder(int style, int c, int y, int half, int rows);
