// The question of a command's macro.
#pragma once

#include "foundation/strings.h"

// False if the user cancelled. The title is cut to what the screen holds.
bool AskForMacro(const Westring& title, Westring& answer);
