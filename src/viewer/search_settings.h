// What is searched for and how; viewer and editor share it for the life of the
// program.
#pragma once

#include "foundation/strings.h"

extern Westring SearchString;
extern bool CaseSensitive;
extern bool Reverse;
extern bool WholeWord;

// Asks for all four. False for Esc, which changes nothing.
bool SearchDialog();
