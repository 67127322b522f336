// How the outside archive programs are called, a record a format.
#pragma once

#include "foundation/strings.h"

struct ArchiverRecord {
  const char* name;  // of the section: "ZIP"
  Estring extract;
  Estring extractListfileSwitch;
  Estring compress;
  Estring compressListfileSwitch;
  Estring deleteCommand;  // empty: deleting is not possible
  Estring compressDirSpec;
  Estring extractDirSpec;
  bool unixPaths;  // "\" in a prepared path is turned to "/"
};

constexpr int kArchiverCount = 10;
extern ArchiverRecord Archivers[kArchiverCount];
void SetArchiverDefaults();
