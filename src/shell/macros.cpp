// Expanding a command's macros, and telling what went wrong.
#include "shell/macros.h"

#include "dialogs/prompt.h"
#include "panels/navigation.h"
#include "shell/macro_expansion.h"
#include "shell/macro_prompt.h"

Westring (*ExtractForMacro)(int side, const Westring& name) = nullptr;

int ExpandMacros(Westring& text, const wchar_t* name, int side, int mode) {
  MacroExpansion expansion(side, mode, name, AskForMacro);
  const int result = expansion.Run(text);
  if (result == kMacroTooLong) Prompt(L"The command is too long", text, kPromptOk);
  if (result == kMacroNoListFile) ShowPathError(expansion.listFileError, expansion.listFile);
  return result;
}
