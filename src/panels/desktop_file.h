// Launchers: the small files by which a desktop shows a program or a document.
#pragma once

#include "foundation/strings.h"

struct DesktopFile {
  Westring title;
  Westring target;  // full path of what it opens
  bool isExecutable = false;
  bool terminal = false;  // the program runs in a terminal
};

// What a file is called where nobody says it: its name up to the last ".", in lower
// case with an upper-case letter first.
Westring DefaultTitle(const Westring& fileName);

// The name of a title's file, 255 bytes at most. Characters that a name cannot hold
// become "_", and so does a dot in front, which would hide it.
Westring LauncherName(const Westring& title);

// The whole file, in UTF-8.
Estring LauncherText(const DesktopFile& launcher);

// Puts text at path, in the place of what is there: after an error or a crash that
// is still whole. 0 or errno.
int WriteLauncher(const Westring& path, const Estring& text);
