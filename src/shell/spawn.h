// Running a command: apart from us, on a pseudo-terminal, or inside the program.
#pragma once

#include "foundation/strings.h"

// Returns the child's exit code; 0 for a detached start or a built-in; -1 if
// there is no terminal to be had or the child was ended by a signal.
int SpawnCommand(const Westring& command, int flags);

// True if the dynamic loader lists libX11 for the program: it will open a window
// of its own.
bool LinksX11(const Westring& path);

// What a command line asks for.
struct CommandWords {
  bool forceTerminal = false;  // "#" in front
  bool background = false;     // "&" behind
  Westring command;            // for the shell, without those two
  Westring program;            // its first word
  Westring arguments;          // what follows it
};
CommandWords SplitCommand(const Westring& text);

// Index of the first character that no backslash escapes, or -1.
int FindUnescaped(const Westring& text, wchar_t character);
// One level of escapes removed: backslashes, and ShellQuote's way with a newline.
Westring Unescape(const Westring& text);
// Without the blanks around it. One that is escaped at its end belongs to a name.
Westring TrimCommand(const Westring& text);

// The commands "$view" and "$edit"; null where there is no viewer or editor yet.
struct BuiltInCommands {
  void (*view)(const Westring& file) = nullptr;
  void (*edit)(const Westring& file) = nullptr;
};
extern BuiltInCommands TheBuiltIns;
