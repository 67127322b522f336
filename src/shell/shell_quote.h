// Protection of text that a shell will read.
#pragma once

#include "foundation/strings.h"

// Text as one word of a command, whatever it holds: the shell's characters and
// the control characters get a backslash. Only a newline can't have one, since the
// shell would take both for a line that goes on: it stands in single quotes.
// The empty text stays empty.
Westring ShellQuote(const Westring& text);

// One level of that removed, also where a person has written the backslashes.
// Other quotes stay.
Westring Unquote(const Westring& text);
