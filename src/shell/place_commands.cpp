// Commands that open the dialogs of mounts and stored directories.
#include "shell/dialog_commands.h"

int RunMounts(Shell&, int, bool) { return kRedrawNothing; }
int RunStoredPaths(Shell&) { return kRedrawNothing; }
