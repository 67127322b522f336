// The question before a directory goes with all that it holds.
#pragma once

#include "foundation/strings.h"

enum class TreeAnswer { No, Yes, All };

// Asks in the way that Options::Confirmations wants it: by a word to be typed, or
// by buttons.
TreeAnswer AskForTree(const Westring& path);
