// The box in which the user names the file for a command.
#pragma once

#include "foundation/strings.h"

// label: what the command does to the file, in ASCII. name: offered, and what was
// entered, at most 512 characters. False where the user does not go on.
bool AskForFile(const char* label, Westring& name);
