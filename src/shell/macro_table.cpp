// The macros of commands, a row each: what stands behind the macro character, and
// what it stands for. Start at kMacros.
#include "shell/macro_table.h"

#include <cwchar>
#include <string>

#include "foundation/paths.h"
#include "shell/list_file.h"
#include "shell/macro_expansion.h"
#include "shell/shell_quote.h"

namespace {

// A list of names on the command line is no longer than this.
constexpr int kMostListed = 1000;

bool IsAbsolute(const Westring& path) { return path[0] == L'/'; }

// Also for what is longer than a panel's path may be.
Westring Absolute(const Westring& path, const TPanel& panel) {
  Westring result;
  if (path.IsEmpty() || NormalisePath(path, panel.lastPath, result)) return result;
  return IsAbsolute(path) ? path : JoinPath(panel.lastPath, path);
}

// The dots of directories are no concern of the file's.
Westring WithoutExtension(const Westring& path) {
  const int dot = RFind(path, L'.');
  return dot > RFind(path, L'/') ? Left(path, dot) : path;
}

// From a panel that shows an archive: name becomes that of the temporary file.
int Extract(MacroExpansion& line, bool other, Westring& name) {
  if (!line.Panel(other).archive) return kMacroDone;
  name = ExtractForMacro ? ExtractForMacro(line.Side(other), name) : Westring();
  return name.IsEmpty() ? kMacroNoName : kMacroDone;
}

// ---- the file

int File(MacroExpansion& line) {
  Westring name = line.FileName();
  const int code = Extract(line, false, name);
  line.Yield(name);
  return code;
}

int WithPath(MacroExpansion& line, bool other, Westring name) {
  const bool isOutside = Find(name, L'/') >= 0;
  const int code = isOutside || name.IsEmpty() ? kMacroDone : Extract(line, other, name);
  line.Yield(Absolute(name, line.Panel(other)));
  return code;
}

int FileWithPath(MacroExpansion& line) { return WithPath(line, false, line.FileName()); }
int OtherWithPath(MacroExpansion& line) { return WithPath(line, true, line.CursorName(true)); }

int FileWithoutExtension(MacroExpansion& line) {
  line.Yield(WithoutExtension(line.FileName()));
  return kMacroDone;
}

int RepeatName(MacroExpansion& line) {
  line.Yield(line.RepeatName());
  return kMacroDone;
}

int RepeatWithoutExtension(MacroExpansion& line) {
  line.Yield(WithoutExtension(line.RepeatName()));
  return kMacroDone;
}

// ---- lists

Westring Listed(const TPanel& panel, const Westring& name, bool withPath) {
  return ShellQuote(withPath && !name.IsEmpty() && !IsAbsolute(name) ? JoinPath(panel.path, name) : name);
}

// False if there are no tags, or the command is not about them.
bool ListTagged(MacroExpansion& line, bool other, bool withPath) {
  const TPanel& panel = line.Panel(other);
  int index = line.Mode() == kMacroPlain ? line.NextTagged(other) : -1;
  if (index < 0) return false;
  for (int length = 0; index >= 0; index = line.NextTagged(other, index + 1)) {
    const Westring item = Listed(panel, panel.entries[index]->name, withPath) + L" ";
    length += Length(item);
    if (length > kMostListed) break;
    line.Put(item);
    line.TakeTagsTo(other, index);
  }
  return true;
}

int ListOrFile(MacroExpansion& line, bool withPath) {
  if (!ListTagged(line, false, withPath)) line.Put(Listed(line.Panel(false), line.FileName(), withPath));
  return kMacroDone;
}

int List(MacroExpansion& line) { return ListOrFile(line, false); }
int ListWithPath(MacroExpansion& line) { return ListOrFile(line, true); }

int OtherList(MacroExpansion& line) {
  ListTagged(line, true, true);
  return kMacroDone;
}

int ListFile(MacroExpansion& line) {
  std::string lines;
  for (int i = line.NextTagged(false); i >= 0; i = line.NextTagged(false, i + 1))
    lines += ListFileLine(line.Panel(false).entries[i]->name);
  if (lines.empty()) lines = ListFileLine(line.FileName());
  const int code = line.MakeListFile(lines);
  line.Yield(line.listFile);
  return code;
}

// ---- directories

int Directory(MacroExpansion& line) {
  line.Yield(line.Panel(false).lastPath);
  return kMacroDone;
}

int OtherDirectory(MacroExpansion& line) {
  line.Yield(line.Panel(true).lastPath);
  return kMacroDone;
}

int DirectoryWithSlash(MacroExpansion& line) {
  line.Yield(AddTrailingSlash(Westring(line.Panel(false).lastPath)));
  return kMacroDone;
}

int OtherDirectoryWithSlash(MacroExpansion& line) {
  line.Yield(AddTrailingSlash(Westring(line.Panel(true).lastPath)));
  return kMacroDone;
}

// ---- questions

// A quote that is never closed begins no title.
Westring TakeTitle(MacroExpansion& line) {
  const wchar_t* const text = line.Unread();
  const wchar_t* const end = *text == L'"' ? wcschr(text + 1, L'"') : nullptr;
  if (!end) return L"?";
  line.Skip(static_cast<int>(end + 1 - text));
  const Westring title(text + 1, static_cast<int>(end - text) - 1);
  return title.IsEmpty() ? L"?" : title;
}

int Answer(MacroExpansion& line) {
  Westring answer;
  if (!line.Ask(TakeTitle(line), answer)) return kMacroCancelled;
  line.Yield(answer);
  return kMacroDone;
}

int AnswerForLater(MacroExpansion& line) {
  Westring answer;
  if (!line.Ask(TakeTitle(line), answer)) return kMacroCancelled;
  line.PutForLater(answer);
  return kMacroDone;
}

// ---- the rest

int Nothing(MacroExpansion&) { return kMacroDone; }

int PutSign(MacroExpansion& line) {
  line.Put(Westring::Replicate(line.Sign(), 1));
  return kMacroDone;
}

constexpr bool kRepeats = true;

// The macro character itself, whichever it is; letters has its length.
constexpr MacroRow kDoubledSign = {L"!", PutSign};

// Before the row that it begins with stands each longer one.
constexpr MacroRow kMacros[] = {
    {L"@", ListFile},
    {L"f", FileWithPath},
    {L"F", OtherWithPath},
    {L"lf", ListWithPath},
    {L"l", List},
    {L"Lf", OtherList},
    {L"L", OtherList},
    {L"p", Directory},
    {L"P", OtherDirectory},
    {L"s", DirectoryWithSlash},
    {L"S", OtherDirectoryWithSlash},
    {L"tx", RepeatWithoutExtension, nullptr, kRepeats},
    {L"t", RepeatName, nullptr, kRepeats},
    {L"x", FileWithoutExtension},
    {L"i", Answer, AnswerForLater},
    {L"n", Nothing},
};

constexpr MacroRow kPlainSign = {L"", File};

}  // namespace

const MacroRow& FindMacro(const wchar_t* text, wchar_t sign) {
  if (*text && *text == sign) return kDoubledSign;
  for (const MacroRow& row : kMacros)
    if (wcsncmp(text, row.letters, wcslen(row.letters)) == 0) return row;
  return kPlainSign;
}
