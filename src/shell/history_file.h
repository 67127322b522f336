// The file of the command and dialog histories. Every copy of the program that
// runs adds its lines to the same file; a kill at any moment leaves it whole.
#pragma once

#include "foundation/strings.h"

// Takes both histories from the file. One with more commands than MaxHist is
// replaced by a file of the newest ones, without those that came again, and the
// last 20 entries of each dialog history.
void LoadHistory();

// One line at the end of the file. The user is told of an error, once until it
// has gone. A text of more than 4096 bytes is kept for this run alone.
void AppendCommandToFile(const Westring& text);
void AppendDialogEntryToFile(const Westring& text, int kind);

// Drops every line that is this command; all other lines stay. The user is told
// if that fails.
void RemoveCommandFromFile(const Westring& text);
