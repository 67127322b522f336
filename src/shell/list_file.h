// List files: the names of a command's files, for programs that read them.
#pragma once

#include <string>

#include "foundation/strings.h"

// Makes a new temporary file of the lines, which only this user may read. 0, or
// errno with nothing left behind; path is the file's either way.
int WriteListFile(const std::string& lines, Westring& path);

// A name as a line of such a file.
std::string ListFileLine(const Westring& name);
