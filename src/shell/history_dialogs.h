// The lists of earlier commands and directories.
#pragma once

#include "shell/shell.h"

// The path chosen; empty if none was.
void DirectoryHistoryDialog(Westring& path);

// Lets the user run, take over, search and remove commands. Returns 2 if one was
// run, 1 if the command line has changed, otherwise 0.
int HistoryDialog(int side, Westring& commandLine, int& cursor);
