// Reading the settings file; start at ReadSettings(). A bad line never stops
// the rest; the user is told of it, until he has had enough.
#include <sys/stat.h>

#include <cerrno>
#include <cstring>

#include "config/data_paths.h"
#include "config/environment_additions.h"
#include "config/option_text.h"
#include "config/settings_file.h"
#include "config/settings_lines.h"
#include "config/settings_sections.h"
#include "config/values/options.h"
#include "console/console.h"
#include "foundation/paths.h"
#include "foundation/wildcards.h"
#include "panels/expression.h"

SettingsHooks TheSettingsHooks;

namespace {

constexpr int kGreatestMouseSpeed = 1000, kDefaultMouseSpeed = 8;
constexpr int kMostRows = 250, kDefaultRows = 25;
constexpr int kGreatestTab = 8;

// Nobody's settings are that large; a wrong file named on the command line is.
constexpr int64_t kLargestSettingsFile = 16 << 20;

// Goes on through all reads of this run.
int lineCounter = 0;

// Set by Esc on a complaint; holds until the file has been read.
bool complaintsSilenced = false;

void Complain(const Westring& text, const Westring& detail) {
  if (complaintsSilenced) return;
  complaintsSilenced = TheSettingsHooks.ask(text, detail, kPromptOk) == kEscape;
}

// ---- one line --------------------------------------------------------------

int FindHead(const char* text) {
  for (int i = 0; i < kSectionCount; ++i)
    if (strcmp(text, kSectionHeads[i]) == 0) return i;
  return -1;
}

bool IsArchiverSection(int section) { return section >= 0 && section < kArchiverCount; }
bool IsPairSection(int section) {
  return section >= kSectionAssociations && section < kSectionAssociations + kAssociationStoreCount;
}

const char* SeparatorsOf(int section) {
  if (IsArchiverSection(section) || section == kSectionEnvironment) return "=";
  return IsPairSection(section) ? ":" : "=:";
}

void TakePair(const Estring& test, const Estring& value, int section) {
  const Westring expression(test.Text()), text(value.Text());
  if (HasSyntaxError(expression)) {
    Complain(L"Syntax error in association", expression + L": " + text);
    return;
  }
  const int store = IsPairSection(section) ? section - kSectionAssociations : 0;
  kAssociationStores[store]->Add(expression, text);
}

void TakeArchiverValue(const Estring& key, const Estring& value, int section) {
  for (const ArchiverKey& row : kArchiverKeys)
    if (key == row.name) Archivers[section].*row.field = value;
}

const OptionRow* FindOption(const Estring& key) {
  for (int i = 0; i < kOptionCount; ++i)
    if (key == kOptionTable[i].key) return &kOptionTable[i];
  return nullptr;
}

void TakeOption(const Estring& key, const Estring& value) {
  if (const OptionRow* row = FindOption(key)) {
    if (row->store) SetOption(*row, value.Text());
  } else if (WildMatch("d[0-9]", key.Text())) {
    StoredDirectories[key[1] - '0'] = Westring(value.Text());
  } else {
    const Estring line = Estring::FromLong(lineCounter);
    Complain(L"Bad directive (" + Westring(key.Text()) + L") in orvane.ini, line " + Westring(line.Text()),
             Westring());
  }
}

// ---- the file --------------------------------------------------------------

Westring PathToRead() {
  if (!IniFileArgument.IsEmpty() && FileExists(IniFileArgument)) return IniFileArgument;
  return DataFilePath(kSettingsFile);
}

// Only plain files: a pipe may never give a line, and a device never end.
int OpenPlainFile(StdFile& file, const Westring& path) {
  struct stat status;
  if (stat(ToUtf8(path).Text(), &status) != 0) return errno;
  if (S_ISDIR(status.st_mode)) return EISDIR;
  if (!S_ISREG(status.st_mode)) return EINVAL;
  if (status.st_size > kLargestSettingsFile) return EFBIG;
  return file.Open(path, kOpenRead);
}

void EmptyStores() {
  for (AssociationSet* store : kAssociationStores) store->Clear();
  RemoveEnvironmentAdditions();
}

// 0, or the error that ended the read.
int ReadLines(StdFile& file, bool reload) {
  int section = kSectionGeneral;
  SettingsLines lines(file);
  while (lines.Next()) ReadSettingsLine(lines.Text(), section, reload);
  return file.Error() == -1 ? 0 : file.Error();
}

// ---- what holds after a full read ------------------------------------------

bool HasDefault(const char* key) {
  const OptionRow* row = FindOption(key);
  return OptionText(*row) == row->defaultText;
}

// The console was made with the default font.
void TakeScreenSize() {
  const int rows = ScreenRows, columns = ScreenColumns;
  if (Options::Lines > 0) ScreenRows = Options::Lines;
  if (Options::Columns > 0) ScreenColumns = Options::Columns;
  if (ScreenRows > kMostRows) ScreenRows = kDefaultRows;
  const bool sizeChanged = ScreenRows != rows || ScreenColumns != columns;
  const bool fontChanged = !HasDefault("FontFamily") || !HasDefault("FontSize");
  if ((sizeChanged || fontChanged) && TheSettingsHooks.applyScreenSize)
    TheSettingsHooks.applyScreenSize(ScreenRows, ScreenColumns);
}

void BoundOptions() {
  if (Options::MouSpeed <= 0 || Options::MouSpeed > kGreatestMouseSpeed)
    Options::MouSpeed = kDefaultMouseSpeed;
  TakeScreenSize();
  if (Options::TabWidth < 1 || Options::TabWidth > kGreatestTab) Options::TabWidth = kGreatestTab;
}

}  // namespace

void SetDefaultOptions() {
  for (int i = 0; i < kOptionCount; ++i)
    if (kOptionTable[i].store) SetOption(kOptionTable[i], kOptionTable[i].defaultText);
  for (Westring& path : StoredDirectories) path = L"";
}

void ReadSettingsLine(const char* line, int& section, bool reload) {
  lineCounter++;
  const Estring text = Trim(Estring(line));
  if (const int head = FindHead(text.Text()); head >= 0) {
    section = head;
    return;
  }
  const char* separator = strpbrk(text.Text(), SeparatorsOf(section));
  if (!separator) return;
  const int index = static_cast<int>(separator - text.Text());
  const Estring key = Trim(Left(text, index)), value = Trim(Mid(text, index + 1));
  if (*separator == ':') {
    // The head of an archiver that this version does not know.
    if (strncmp(text.Text(), "[Archiver", 9) != 0) TakePair(key, value, section);
  } else if (IsArchiverSection(section)) {
    TakeArchiverValue(key, value, section);
  } else if (section == kSectionEnvironment) {
    AddToEnvironment(key, value);
  } else if (!reload) {
    TakeOption(key, value);
  }
}

void ShowSettingsError(const Westring& path, int code) {
  TheSettingsHooks.ask(Westring(SystemError(code).Text()), path, kPromptOk);
}

bool ReadSettings(bool reload) {
  if (!reload) {
    SetDefaultOptions();
    SetArchiverDefaults();
  }
  const Westring path = PathToRead();
  StdFile file;
  int code = OpenPlainFile(file, path);
  if (code == 0 || code == ENOENT || !reload) EmptyStores();
  if (code == 0) code = ReadLines(file, reload);
  const bool readable = code == 0 || code == ENOENT;
  complaintsSilenced = false;
  if (!readable) ShowSettingsError(path, code);
  if (!reload) BoundOptions();
  return readable;
}

void LoadSettings(bool reload) { ReadSettings(reload); }
