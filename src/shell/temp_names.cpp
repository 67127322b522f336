// Names of temporary files: "Orvane#1234.0", with the low half of the process's
// number and a counter.
#include "shell/temp_names.h"

#include <sys/stat.h>
#include <unistd.h>

#include <climits>

#include "foundation/environment.h"
#include "foundation/paths.h"
#include "panels/entry_source.h"

namespace {

// A link that leads nowhere is there, too: to write through it would make its
// target.
bool IsTaken(const Westring& path) {
  struct stat status;
  return lstat(ToUtf8(path).Text(), &status) == 0;
}

}  // namespace

Westring TempDirectory() {
  for (const char* name : {"TMP", "TEMP"})
    if (const char* value = Variables.Get(name); value && *value) return value;
  return L"/tmp";
}

void MakeTempName(Westring& name, const Westring& directory) {
  const Westring place = directory.IsEmpty() ? TempDirectory() : directory;
  const unsigned process = static_cast<unsigned>(getpid()) & 0xFFFF;
  int counter = 0;
  do {
    name = JoinPath(place, Estring::Format("Orvane#%u.%d", process, counter).Text());
  } while (IsTaken(name) && counter++ < INT_MAX);
}

// The mask is that of the names alone, so that the directory may hold any
// character.
void RemoveTempFiles() {
  Westring path;
  MakeTempName(path, L"");
  const int slash = RFind(path, L'/'), dot = RFind(path, L'.');
  const Westring directory = Left(path, slash + 1);
  const Westring mask = Mid(path, slash + 1, dot - slash - 1) + L".*";

  const auto source = ScanDirectory(directory, mask.Text(), kScanAll);
  entry* found = nullptr;
  for (int code = source->First(found); code == 0; code = source->Next(found)) {
    const OwnedEntry owner(found);
    unlink(ToUtf8(JoinPath(directory, found->name)).Text());
  }
}
