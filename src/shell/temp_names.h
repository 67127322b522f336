// Names of temporary files, which carry the process's number.
#pragma once

#include "foundation/strings.h"

Westring TempDirectory();  // TMP, else TEMP, else "/tmp"

// A path that does not exist, in directory or, if that is empty, in the
// temporary directory.
void MakeTempName(Westring& name, const Westring& directory);

void RemoveTempFiles();  // all of this process
