// The file of the command and dialog histories.
#pragma once

#include "foundation/strings.h"

void LoadHistory();

// One line at the end of the file, which is whole at every moment.
void AppendCommandToFile(const Westring& text);
void AppendDialogEntryToFile(const Westring& text, int kind);

// Drops every line that is this command.
void RemoveCommandFromFile(const Westring& text);
