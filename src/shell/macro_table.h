// The macros of commands, a row each.
#pragma once

class MacroExpansion;

struct MacroRow {
  const wchar_t* letters;               // behind the macro character
  int (*expand)(MacroExpansion& line);  // a MacroResult
  // In a trial; null for what stays as it is written.
  int (*tryOut)(MacroExpansion& line) = nullptr;
  bool repeats = false;  // the command is for each tagged entry
};

// The row for what follows a macro character: the longest that fits, and where no
// letter is known the row of the file's name, which takes none.
const MacroRow& FindMacro(const wchar_t* text, wchar_t sign);
