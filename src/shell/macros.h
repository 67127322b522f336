// The macro language of commands: "!" and a letter, and "$NAME".
#pragma once

#include "foundation/strings.h"

enum MacroMode {
  kMacroPlain = 0,     // the entry under the cursor; name serves the repeat macro alone
  kMacroTemplate = 1,  // name is the file of every macro
  kMacroTrial = 2,     // asks what is to be asked; the other macros stay as written
};

constexpr int kMaxExpanded = 16384;  // characters with the terminator; what is longer fails

// Expands text in place. Below 0: the user cancelled, a name could not be had, or
// the result is too long; 1: the text asks to be repeated for each tagged entry;
// otherwise 0.
int ExpandMacros(Westring& text, const wchar_t* name, int side, int mode);
