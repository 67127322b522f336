// Starting other programs.
#pragma once

#include <vector>

#include "foundation/strings.h"

// The program's path as found by way of PATH and PathAppend; a name with "/" is
// taken as it is. False, with fullPath untouched, if there is none.
bool FindProgram(const Westring& name, Westring& fullPath);

// A command as the user's shell will be called for it, with the environment that
// goes along: made before a fork, because in the child, of a process with several
// threads, nothing may be allocated any more.
class ShellCall {
 public:
  explicit ShellCall(const Westring& command);
  ShellCall(const ShellCall&) = delete;
  ShellCall& operator=(const ShellCall&) = delete;

  // In a child: becomes the shell. Where there is none, the process ends with a
  // failure.
  [[noreturn]] void Execute() const;

 private:
  Estring* Find(const char* name);
  void Set(const char* name, const Estring& value);

  std::vector<Estring> variables;  // "NAME=value"
  std::vector<char*> environment;  // into variables, ended by null
  Estring command, shell;
  bool hasShell = false;
};

// In a child: closes all descriptors but the three of input and output.
void CloseInherited();

// In a child: gives it our environment and becomes the shell that runs command.
[[noreturn]] void ExecShell(const Westring& command);

// Runs command through the shell apart from us, in a session of its own and
// without a terminal. False, with errno set, if no process could be made.
bool StartDetached(const Westring& command);
