// Commands that open the dialogs of the settings.
#include "shell/dialog_commands.h"

int RunConfiguration(Shell&) { return kRedrawNothing; }
int RunColours(Shell&) { return kRedrawNothing; }
int RunConfirmations(Shell&) { return kRedrawNothing; }
int RunFilter(Shell&, int) { return kRedrawNothing; }
