// The help pages: a file of numbered pages, read whole at the start, and the
// window that shows one.
#pragma once

#include "dialogs/dialog.h"
#include "foundation/strings.h"

enum HelpPage {
  kHelpOnHelp = 0,
  kHelpMain = 1,
  kHelpConfiguration = 4,
  kHelpHistory = 5,
  kHelpConfirmations = 6,
  kHelpMenus = 100,  // to 103, by menu; both panel menus have the first
};

// False if the file can't be read; ShowHelp then says so.
bool LoadHelp(const Westring& file);

// Shows a page until the user leaves it; the last page for one that is missing.
void ShowHelp(int number);

// Runs a dialog with a key or button for F1: that shows the page, and the dialog
// goes on as it was. Returns any other result.
int RunWithHelp(Dialog& dialog, int page);
