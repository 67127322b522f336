// Commands of the quick search. Each returns what is to be painted.
#pragma once

#include "shell/shell.h"

int StartSearch(Shell& shell, Key character);
// Alt-Up and Alt-Down: the search goes on, or without one to the next tagged entry.
int SearchOrTaggedUp(Shell& shell);
int SearchOrTaggedDown(Shell& shell);
int CompleteOrGoRight(Shell& shell);  // on the command line
int DropSearchCharacter(Shell& shell);
