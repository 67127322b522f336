// Where the syntax file is.
#include "config/data_paths.h"
#include "foundation/paths.h"
#include "syntax/syntax_definition.h"

Westring FindSyntaxFile() {
  const Westring own = DataFilePath(kSyntaxFile);
  return FileExists(own) ? own : DataFilePath(kSyntaxFile, true);
}
