// cd and vcd: commands that take a panel elsewhere.
#pragma once

#include "foundation/strings.h"

// Takes the panel of that side to the directory of a "cd" command; the caller
// reads it. Returns 0, or -1 if the user has been told why it failed. target is
// the directory's path.
int RunCd(const Westring& command, int side, Westring& target);

// Runs the outside program that lets the user choose a directory, and takes the
// panel there; its read is owed.
void RunVcd(const Westring& command, int side, const Westring& prompt);
