// The program's arguments: options by a table, the settings file by position.
#include "shell/arguments.h"

#include <cctype>

#include "config/values/options.h"
#include "foundation/paths.h"

namespace {

const char kUsage[] =
    "Usage:\torvane [ini_file] [-v|-e file_name] [-l|-r directory]\n"
    "\t-v: invoke internal viewer\n"
    "\t-e: invoke internal editor\n"
    "\t-l: specify left panel's directory\n"
    "\t-r: specify right panel's directory";

const char kNoFile[] = "No file specified";

struct OptionLetter {
  char letter;
  Westring& (*target)(Arguments&);
  const char* missing;  // printed where the value is not there; null: passed over
};

const OptionLetter kLetters[] = {
    {'v', [](Arguments& a) -> Westring& { return a.viewFile; }, kNoFile},
    {'e', [](Arguments& a) -> Westring& { return a.editFile; }, kNoFile},
    {'l', [](Arguments& a) -> Westring& { return a.startDirectory[0]; }, nullptr},
    {'r', [](Arguments& a) -> Westring& { return a.startDirectory[1]; }, nullptr},
    {'x', [](Arguments& a) -> Westring& { return a.exitScript; }, nullptr},
};

const OptionLetter* FindLetter(char letter) {
  for (const OptionLetter& row : kLetters)
    if (row.letter == letter) return &row;
  return nullptr;
}

// Relative to where the program was started, not to where its panels go.
Westring Absolute(const char* text) {
  const Westring path(text);
  Westring absolute;
  return NormalisePath(path, CurrentDirectory(), absolute) ? absolute : path;
}

void TakePositional(const char* text) {
  const Westring path = Absolute(text);
  if (!DirectoryExists(path)) IniFileArgument = path;
}

}  // namespace

Arguments ReadArguments(int argc, char** argv) {
  Arguments result;
  IniFileArgument = L"";
  for (int i = 1; i < argc; ++i) {
    const char* text = argv[i];
    if (text[0] != '-' && text[0] != '\\') {
      TakePositional(text);
      continue;
    }
    const OptionLetter* row = FindLetter(static_cast<char>(tolower(static_cast<unsigned char>(text[1]))));
    if (!row) {
      result.usageError = kUsage;
      return result;
    }
    if (i + 1 < argc) {
      row->target(result) = Absolute(argv[++i]);
    } else if (row->missing) {
      result.usageError = row->missing;
      return result;
    }
  }
  return result;
}
