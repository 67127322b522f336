// Programs of the desktop: its file browser, and its web browser for the manual.
#pragma once

#include "foundation/strings.h"

// The directory in the file browser. Nothing where none is installed.
void OpenGuiWindow(const Westring& path);

// The manual in a web browser. False where none is installed.
bool OpenManual();
