// Starting other programs.
#pragma once

#include "foundation/strings.h"

// The program's path as found by way of PATH and PathAppend; a name with "/" is
// taken as it is. False if there is none.
bool FindProgram(const Westring& name, Westring& fullPath);

// In a child: gives it our environment and becomes the shell that runs command.
[[noreturn]] void ExecShell(const Westring& command);

// Runs command through the shell apart from us, without a terminal. False if no
// process could be made.
bool StartDetached(const Westring& command);
