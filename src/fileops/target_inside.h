// Whether something is on its way into itself.
#pragma once

#include <sys/stat.h>

#include "foundation/strings.h"

// True where target is the directory itself or would be somewhere below it,
// however the path is spelled.
bool IsTargetInside(const Westring& target, const struct stat& directory);
