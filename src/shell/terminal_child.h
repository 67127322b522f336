// A child process on the console: a pseudo-terminal between its output and the
// cells, and between the user's keys and its input.
#pragma once

#include "foundation/strings.h"

// Runs command through the shell and returns when it has ended: its exit code,
// -1 if a signal ended it or there is no terminal to be had. Keys go to the child
// meanwhile.
int RunOnTerminal(const Westring& command);

// Tells the user why, by errno, no process could be made.
void TellForkFailed();
