// Commands that lead to the desktop around the program.
#include "shell/dialog_commands.h"

int RunMakeObjects(Shell&) { return kRedrawNothing; }
int RunGuiWindow(Shell&) { return kRedrawNothing; }
