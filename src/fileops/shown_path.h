// Paths as boxes and windows of file operations show them.
#pragma once

#include "console/console.h"
#include "foundation/paths.h"

// What is left of the screen for a path in a window.
inline int ShownPathWidth() { return ScreenColumns - 10; }

inline Westring ShownPath(const Westring& path) { return ShortenPath(path, ShownPathWidth()); }
