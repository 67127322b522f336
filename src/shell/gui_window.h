// A directory in the desktop's own file browser.
#pragma once

#include "foundation/strings.h"

// Nothing where no file browser is installed.
void OpenGuiWindow(const Westring& path);
