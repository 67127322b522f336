// The help pages and the window that shows one.
#include "dialogs/help.h"

bool LoadHelp(const Westring&) { return false; }
void ShowHelp(int) {}
