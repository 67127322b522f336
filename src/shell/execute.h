// Enter: runs the command line, or acts on the entry under the cursor.
#pragma once

#include "foundation/strings.h"
#include "panels/entry.h"

// With separate the command goes through the template of commands that run apart.
// Returns what is to be painted.
int ExecuteCommandLine(int side, const Westring& text, bool separate);

// The command that Enter runs on a file of that side's panel: that of its
// association, or the file itself if it is a program. False if there is none, or
// if its macros came to nothing.
bool FindFileCommand(int side, const entry& file, Westring& command);
