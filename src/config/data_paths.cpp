// Where the program's files are; see data_paths.h. Their names begin with that
// of the program, or of the settings file on the command line.
#include "config/data_paths.h"

#include <sys/stat.h>

#include "config/values/options.h"
#include "foundation/environment.h"
#include "foundation/paths.h"

namespace {

enum class Place { Settings, Shared, Documents };

struct DataFileRow {
  Place place;
  const wchar_t* front;  // of the name
  const wchar_t* back;   // behind the base name
  bool dot;              // the base name keeps its dot
};

// In the order of DataFile.
constexpr DataFileRow kDataFiles[] = {
    {Place::Shared, L"", L"ovd", true},           {Place::Documents, L"manual/", L"html", true},
    {Place::Settings, L"", L"mnu", true},         {Place::Settings, L"", L"ini", true},
    {Place::Settings, L"", L"hst", true},         {Place::Settings, L"", L"log", true},
    {Place::Settings, L"", L"syntax.ini", false},
};

// Up to the last slash, and behind it. A backslash is part of a name here: both
// paths come from the system.
Westring DirectoryPart(const Westring& path) { return Left(path, RFind(path, L'/') + 1); }
Westring FilePart(const Westring& path) { return Mid(path, RFind(path, L'/') + 1); }

// The name up to its last dot, which a name without one gets.
Westring BaseName() {
  Westring name = FilePart(IniFileArgument.IsEmpty() ? ProgramPath : IniFileArgument);
  if (name.IsEmpty()) name = L"orvane";
  const int dot = RFind(name, L'.');
  if (dot >= 0) return Left(name, dot + 1);
  name += L'.';
  return name;
}

Westring DirectoryOf(Place place) {
  switch (place) {
    case Place::Shared:
      return Westring(ORVANE_SHARE_DIR);
    case Place::Documents:
      return Westring(ORVANE_DOC_DIR);
    case Place::Settings:
      break;
  }
  return SettingsDirectory();
}

}  // namespace

Westring SettingsDirectory() {
  if (!IniFileArgument.IsEmpty()) return DirectoryPart(IniFileArgument);
  return JoinPath(Westring(HomeDirectory().Text()), L".orvane/");
}

void MakeSettingsDirectory() {
  if (IniFileArgument.IsEmpty()) mkdir(ToUtf8(SettingsDirectory()).Text(), 0700);
}

Westring DataFilePath(DataFile kind, bool shared) {
  const DataFileRow& row = kDataFiles[kind];
  const Westring base = BaseName();
  const Westring directory = DirectoryOf(kind == kSyntaxFile && shared ? Place::Shared : row.place);
  return directory + row.front + (row.dot ? base : DropRight(base, 1)) + row.back;
}

Westring IconPath(const wchar_t* name) { return Westring(ORVANE_ICON_DIR) + name; }
