// Protection of text that a shell will read.
#pragma once

#include "foundation/strings.h"

// A backslash before each character that means something to the shell.
Westring ShellQuote(const Westring& text);
// One level of those backslashes removed.
Westring Unquote(const Westring& text);
