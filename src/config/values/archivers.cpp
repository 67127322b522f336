// The archive programs that are called when the settings file names no others.
#include "config/values/archivers.h"

ArchiverRecord Archivers[kArchiverCount];

namespace {

struct DefaultRow {
  const char* name;
  const char* extract;
  const char* extractListfileSwitch;
  const char* compress;
  const char* compressListfileSwitch;
  const char* deleteCommand;
  const char* compressDirSpec;
  const char* extractDirSpec;
  bool unixPaths;
};

constexpr DefaultRow kDefaults[kArchiverCount] = {
    {"ZIP", "unzip --z", "", "zip -r", "-@ < ", "zip -d", "! !\\*", "!\\*", false},
    {"RAR", "rar x -std", "@", "rar a -std -r", "@", "rar d -std -r", "!\\*", "!\\*", false},
    {"LHARC", "lha x /s", "", "lha a /s /e", "", "lha d /s", "!\\*", "!\\*", false},
    {"ARJ", "arj x", "!", "arj a -r", "!", "arj d", "!\\*.*", "!\\*.*", false},
    {"ACE", "unace x", "@", "unace a -r", "@", "unace d", "!", "!", false},
    {"HA", "ha x", "", "ha ar", "", "ha d", "!\\*", "!\\*", false},
    {"GZIP", "gzip -dc %a > %f", "", "gzip -c %f > %a", "", "", "", "", false},
    {"TAR", "tar -xf", "--files-from=", "tar -rf", "--files-from=", "tar --delete -f", "!", "!", true},
    {"7ZIP", "7z x", "@", "7z a", "@", "7z d", "!", "!", false},
    {"BZIP2", "bzip2 -dc %a > %f", "", "bzip2 -c %f > %a", "", "", "", "", false},
};

}  // namespace

void SetArchiverDefaults() {
  for (int i = 0; i < kArchiverCount; ++i) {
    const DefaultRow& row = kDefaults[i];
    Archivers[i] = {row.name,
                    row.extract,
                    row.extractListfileSwitch,
                    row.compress,
                    row.compressListfileSwitch,
                    row.deleteCommand,
                    row.compressDirSpec,
                    row.extractDirSpec,
                    row.unixPaths};
  }
}
