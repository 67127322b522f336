// Names of temporary files, which carry the process's number.
#pragma once

#include "foundation/strings.h"

Westring TempDirectory();  // TMP, else TEMP, else "/tmp"

// A path at which there is nothing, in directory or, if that is empty, in the
// temporary directory. Nothing is made; whoever makes the file sees to it that
// it is a new one.
void MakeTempName(Westring& name, const Westring& directory);

// All files of this process in the temporary directory.
void RemoveTempFiles();
