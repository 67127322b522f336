// The macro language of commands: "!" and a letter, and "$NAME".
#pragma once

#include "foundation/strings.h"

enum MacroMode {
  kMacroPlain = 0,     // the entry under the cursor; name serves the repeat macro alone
  kMacroTemplate = 1,  // name is the file of every macro
  kMacroTrial = 2,     // asks what is to be asked; the other macros stay as written
};

constexpr int kMaxExpanded = 16384;  // characters with the terminator; what is longer fails

enum MacroResult {
  kMacroDone = 0,
  kMacroRepeat = 1,       // the text asks to be repeated for each tagged entry
  kMacroCancelled = -1,   // by the user
  kMacroNoName = -2,      // a file could not be had from its archive
  kMacroTooLong = -3,     // the user has been told
  kMacroNoListFile = -4,  // the user has been told
};

// Expands text in place. Below 0, text is as it was, every tag is where it was,
// and the user knows; there is nothing for the caller to say.
int ExpandMacros(Westring& text, const wchar_t* name, int side, int mode);

// Brings a file out of the archive that the panel of that side shows: its
// temporary name, or the empty string if that failed. Null where no archive can
// be read, and then a macro that needs it fails.
extern Westring (*ExtractForMacro)(int side, const Westring& name);
