// Commands that move in the active panel's list or take it elsewhere. Each
// returns what is to be painted.
#pragma once

#include "shell/shell.h"

int GoFirst(Shell& shell);
int GoLast(Shell& shell);
int GoRowUp(Shell& shell);
int GoRowDown(Shell& shell);
int PageUp(Shell& shell);
int PageDown(Shell& shell);
int GoLeft(Shell& shell);  // a column, or on the command line
int GoRight(Shell& shell);
int TagAndGoDown(Shell& shell);
int PreviousTagged(Shell& shell);  // in a tree the directory beside
int NextTagged(Shell& shell);

int GoToRoot(Shell& shell);
int GoToParent(Shell& shell);
int GoToHome(Shell& shell);
int GoToOtherPath(Shell& shell);
int GoToPrevious(Shell& shell);
int GoToLinkTarget(Shell& shell);
int OpenEntryAsArchive(Shell& shell);
int ReRead(Shell& shell);
int ReReadSide(int side);
int ToggleHidden(Shell& shell);
int ChangeSide(Shell& shell);

// The stored directory of a digit: go to it, or store the path in it.
int GoToStored(Shell& shell, int digit);
int StorePath(Shell& shell, int digit);

int InsertLeftPath(Shell& shell);
int InsertRightPath(Shell& shell);
int InsertName(Shell& shell);
int InsertFullPath(Shell& shell);    // with Shift to the clipboard
int CompleteOrInsert(Shell& shell);  // from the history, or the entry's name

// Takes the panel into the file of that name. Nothing happens if it is no archive.
void OpenAsArchive(int side, const Westring& name);
