// Launchers on the desktop for files of a panel.
#pragma once

#include "panels/panel.h"

// For the tagged entries, or the one under the cursor.
void MakeObjects(TPanel& panel);

// One launcher for the panel's entry of that name. 0 or errno.
int MakeDesktopFile(TPanel& panel, const Westring& name, const Westring& title, bool terminal);
