// What a key means.
#pragma once

#include "shell/shell.h"

// Acts on shell.key, or on shell.mouse where the key is kMouseKey, and sets
// shell.redrawLevel.
void DispatchKey(Shell& shell);

// Conditions under which a command does nothing.
enum CommandNeeds : unsigned {
  kPanelShown = 1,  // one panel at least is visible
  kFilesPanel = 2,  // the active panel lists files
  kNoArchive = 4,   // the active panel browses no archive
  kEndsSearch = 8,  // no condition: clears the quick-search text
};

struct CommandRow {
  Key key;  // key code or menu command
  unsigned needs;
  // Returns what is to be painted. Null: the operation is not there yet.
  int (*run)(Shell&);
};

// All rows, no key twice.
const CommandRow* CommandTable();
int CommandCount();
// The key's row, or null.
const CommandRow* FindCommand(Key key);
