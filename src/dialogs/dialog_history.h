// What the user entered in the fields of dialogs, one list for each kind of
// field, offered by the fields themselves.
#pragma once

#include "foundation/collections.h"

// The numbers stand in the history file.
enum HistoryKind {
  kHistoryReplaceInFiles = 3,
  kHistorySelectGroup = 4,
  kHistorySearch = 5,
  kHistoryReplace = 6,
  kHistoryFilter = 7,
  kHistoryCodePages = 8,
  kHistoryArchive = 9,
  kHistoryLink = 10,
  kHistorySaveAs = 11,
  kHistoryKinds = 12,
  kNoHistory = 13,
};

extern WestringStore DialogHistories[kHistoryKinds];  // the newest last

// Puts text at the end of a list; equal ones go, letter by letter.
void AddToHistory(WestringStore& history, const Westring& text);

// The same for the list of a kind; unless quiet, KeepDialogEntry gets it, too. A
// kind without a list, no text, or the newest of the list does nothing.
void AddDialogHistory(const Westring& text, int kind, bool quiet = false);

// Keeps what was entered beyond this run. The room above fills it.
extern void (*KeepDialogEntry)(const Westring& text, int kind);
