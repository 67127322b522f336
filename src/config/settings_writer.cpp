// Writing the settings file; start at SaveSettings(). Every value is one line
// that reads back to the same value; what the format can't hold, a line end or
// more than a line's length, is made to fit, so that no other line suffers.
#include <cerrno>
#include <cstring>

#include "config/data_paths.h"
#include "config/environment_additions.h"
#include "config/option_text.h"
#include "config/replacement_file.h"
#include "config/settings_file.h"
#include "config/settings_sections.h"
#include "config/values/options.h"
#include "console/console.h"

namespace {

// Cut in front of a character, not inside its bytes.
Estring CutToLine(const Estring& text) {
  int length = Length(text);
  if (length <= kLongestSettingsLine) return text;
  length = kLongestSettingsLine;
  for (int back = 0; back < 3 && (text[length] & 0xC0) == 0x80; ++back) length--;
  return Left(text, length);
}

// Remembers the first error; what follows one is not written.
class LineWriter {
 public:
  explicit LineWriter(StdFile& target) : file(target) {}

  void Line(const Estring& text) {
    Estring line = CutToLine(text);
    for (char* p = line.Text(); *p; ++p)
      if (*p == '\n' || *p == '\r') *p = ' ';
    if (error == 0) error = file.Write(line.Text(), strlen(line.Text()));
    if (error == 0) error = file.Write("\r\n", 2);
  }
  void Blank() { Line(""); }
  void Value(const Estring& key, const Estring& value) { Line(key + "=" + value); }

  int Error() const { return error; }

 private:
  StdFile& file;
  int error = 0;
};

// The first ":" ends a test in the file, so one inside becomes the wildcard for
// any one character.
Estring TestText(const Westring& test) {
  Westring text = Trim(test);
  ReplaceAll(text, L":", L"?");
  return ToUtf8(text);
}

void WritePairs(LineWriter& out) {
  for (int i = 0; i < kAssociationStoreCount; ++i) {
    out.Line(kSectionHeads[kSectionAssociations + i]);
    for (int n = 0; const Association* pair = kAssociationStores[i]->Peek(n); ++n) {
      const Estring test = TestText(pair->test);
      if (!test.IsEmpty()) out.Line(test + ": " + ToUtf8(pair->value));
    }
    out.Blank();
  }
}

void WriteEnvironment(LineWriter& out) {
  out.Line(kSectionHeads[kSectionEnvironment]);
  for (int i = 0; const EnvironmentAddition* addition = EnvironmentAdditions.Peek(i); ++i)
    out.Value(addition->name, WrittenValue(*addition));
  out.Blank();
}

void WriteArchivers(LineWriter& out) {
  for (int i = 0; i < kArchiverCount; ++i) {
    out.Line(kSectionHeads[i]);
    for (const ArchiverKey& key : kArchiverKeys) out.Value(key.name, Archivers[i].*key.field);
    out.Blank();
  }
}

void WriteOptions(LineWriter& out) {
  out.Line(kSectionHeads[kSectionGeneral]);
  for (int i = 0; i < kOptionCount; ++i)
    if (kOptionTable[i].store) out.Value(kOptionTable[i].key, OptionText(kOptionTable[i]));
  out.Blank();
  for (int i = 0; i < kStoredDirectories; ++i)
    if (!StoredDirectories[i].IsEmpty()) out.Value(Estring::Format("d%d", i), ToUtf8(StoredDirectories[i]));
}

int WriteSettings(StdFile& file) {
  LineWriter out(file);
  WritePairs(out);
  WriteEnvironment(out);
  WriteArchivers(out);
  WriteOptions(out);
  return out.Error();
}

bool Failed(const Westring& path, int code) {
  ShowSettingsError(path, code);
  return false;
}

}  // namespace

bool SaveSettings() {
  // What the user edited in the file since the start must not be lost.
  if (!ReadSettings(true)) return false;
  if (Options::Lines != 0) Options::Lines = ScreenRows;

  const Westring path = IniFileArgument.IsEmpty() ? DataFilePath(kSettingsFile) : IniFileArgument;
  MakeSettingsDirectory();
  ReplacementFile replacement;
  if (const int code = replacement.Open(path)) return Failed(replacement.ScratchPath(), code);
  if (TheSettingsHooks.collectPanelState) TheSettingsHooks.collectPanelState();
  int code = WriteSettings(replacement.File());
  if (code == 0) code = replacement.Commit();
  return code == 0 ? true : Failed(path, code);
}
