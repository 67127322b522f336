// Getting a command run: cd, vcd and set act on the program itself, all else
// goes to SpawnCommand.
#pragma once

#include "foundation/strings.h"

enum RunFlags {
  kRunPlain = 0,
  kRunTwoFeeds = 1,  // the output is followed by two line feeds, not by one
  kRunInPlace = 8,   // the panels stay on the screen, and the directory as it is
};

// What SpawnCommand returned; 0 for what was done inside; -1 for a failure that
// the user has been told.
int RunCommand(const Westring& command, int side, const Westring& prompt, int flags);

// Expands the macros and runs; once for each tagged entry where they ask for it.
void RunExpanded(const Westring& command, int side, const Westring& prompt, int mode);

// The command in the template of the option Background.
Westring ApplyBackgroundTemplate(const Westring& command);
