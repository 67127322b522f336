// Where the program's files are.
#pragma once

#include "foundation/strings.h"

enum DataFile {
  kHelpFile = 0,
  kManualFile = 1,
  kMenuFile = 2,
  kSettingsFile = 3,
  kHistoryFile = 4,
  kLogFile = 5,
  kSyntaxFile = 6,
};

// shared picks the syntax file under the shared directory; otherwise the
// user's own. Only that kind looks at it.
Westring DataFilePath(DataFile kind, bool shared = false);

// A file of the icon theme; name stands below the theme's directory.
Westring IconPath(const wchar_t* name);

// The directory of the user's settings, with its closing slash.
Westring SettingsDirectory();

// Makes the user's own one, for a first file in it. One that can't be made shows
// in the open that follows; that of a file of the command line is not made.
void MakeSettingsDirectory();
