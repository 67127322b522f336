// The program's arguments.
#pragma once

#include "foundation/strings.h"

struct Arguments {
  Westring viewFile, editFile;
  Westring startDirectory[2];        // -l, -r
  Westring exitScript;               // -x
  const char* usageError = nullptr;  // what to print before giving up
};

// Sets IniFileArgument as well. Paths are made absolute against the current
// directory.
Arguments ReadArguments(int argc, char** argv);
