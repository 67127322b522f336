// Commands on the user's files. Each returns what is to be painted.
#pragma once

#include "shell/shell.h"

int RunMakeDirectory(Shell& shell);
int RunDelete(Shell& shell);
int RunDeleteNamed(Shell& shell);
