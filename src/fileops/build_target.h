// The target of one name, from what the user typed as the destination.
#pragma once

#include "foundation/strings.h"

// spec is absolute; its last component may be a pattern, in which "*" stands for
// the rest of a part of the name and "?" for a character. source is the source's
// path.
void BuildTarget(const Westring& source, const Westring& spec, Westring& out);
// The same where "*" and "?" in spec belong to a name.
void BuildLiteralTarget(const Westring& source, const Westring& spec, Westring& out);

// True where the last component of spec holds "*" or "?".
bool IsTargetPattern(const Westring& spec);
