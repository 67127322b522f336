// Completing file names: the word before the cursor is read as a path of which
// the last part is only begun.
#include "shell/completion.h"

#include <algorithm>
#include <cwchar>
#include <vector>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "console/console.h"
#include "dialogs/list_box.h"
#include "foundation/environment.h"
#include "foundation/paths.h"
#include "panels/entry_source.h"
#include "panels/navigation.h"
#include "shell/command_line.h"
#include "shell/shell_quote.h"
#include "shell/spawn.h"

namespace {

constexpr wchar_t kTitle[] = L" File Names ";

// Where the word begins that ends at the cursor.
int WordBegin(const Westring& line, int cursor) {
  int begin = 0;
  for (int i = 0; i < cursor; ++i) {
    if (line[i] == L'\\')
      ++i;
    else if (wcschr(L" <>", line[i]))
      begin = i + 1;
  }
  return begin;
}

// What a part of the line stands for, without the protection from the shell and
// from macros.
Westring Plain(const Westring& typed) {
  const wchar_t once[] = {static_cast<unsigned char>(Options::CmdChar), 0};
  const wchar_t twice[] = {once[0], once[0], 0};
  Westring text = typed;
  if (once[0]) ReplaceAll(text, twice, once);
  return Unquote(text);
}

// The directory of a command's path; empty for one that is too long.
Westring DirectoryOf(const Westring& typed) {
  Westring path = Plain(typed);
  const bool hasVariable = (typed[0] == L'~' && typed[1] == L'/') || FindUnescaped(typed, L'$') >= 0;
  if (hasVariable) path = ExpandEnvironment(path);
  if (path.IsEmpty()) path = L".";
  const TPanel& panel = Panels[CommandSide(static_cast<int>(ActiveSide))];
  Westring directory;
  NormalisePath(path, RealDirectory(panel), directory);
  return directory;
}

using Names = std::vector<Westring>;

bool GoesBefore(const Westring& a, const Westring& b) {
  const int order = Compare(a.Text(), b.Text());
  return order != 0 ? order < 0 : wcscmp(a.Text(), b.Text()) < 0;
}

// The names that begin with head, in their order. Hidden ones where the panels
// show them, too, or where one has been begun.
Names NamesIn(const Westring& directory, const Westring& head) {
  Names names;
  const bool takesHidden = Options::Hidden || head[0] == L'.';
  const auto source = ScanDirectory(directory, L"*", takesHidden ? kScanAll : kScanAll & ~kScanHidden);
  const size_t length = wcslen(head.Text());
  entry* found = nullptr;
  for (int code = source->First(found); code == 0; code = source->Next(found)) {
    const OwnedEntry owner(found);
    const bool isDots = wcscmp(found->name, L".") == 0 || IsDotDot(*found);
    if (!isDots && wcsncmp(found->name, head.Text(), length) == 0) names.emplace_back(found->name);
  }
  std::sort(names.begin(), names.end(), GoesBefore);
  return names;
}

// The index, or -1 if the user leaves the list.
int Choose(const Names& names) {
  constexpr int kFrame = 2, kBesideBox = 4, kBelowBox = 5;
  WestringStore rows;
  int longest = Length(kTitle) + kFrame;
  for (const Westring& name : names) {
    rows.Add(name);
    longest = std::max(longest, Length(name));
  }
  const int width = std::min(longest + kFrame, ScreenColumns - kBesideBox);
  const int height = std::min(rows.Count(), ScreenRows - kBelowBox);
  int32_t row = 0;
  Dialog dialog(-1, -3, width, height + kFrame, Options::Colours[kColourMenu]);
  dialog.PrintCentred(-1, kTitle);
  dialog.AddListBoxWestring(0, 0, true, width - kFrame, height, &rows, &row, kListDefault);
  return dialog.Run() == kEnter ? row : -1;
}

// What was typed up to the name stays as it is: it may hold a "~" or a variable.
bool ReplaceWord(Shell& shell, int begin, const Westring& word) {
  const Westring behind = shell.commandLine.Text() + shell.commandCursor;
  if (begin + Length(word) + Length(behind) > kMaxInsertedLine) return false;
  shell.commandLine = Left(shell.commandLine, begin) + word + behind;
  shell.commandCursor = begin + Length(word);
  return true;
}

}  // namespace

int CompleteFileName(Shell& shell) {
  const int begin = WordBegin(shell.commandLine, shell.commandCursor);
  const Westring word(shell.commandLine.Text() + begin, std::max(shell.commandCursor - begin, 0));
  const int nameBegin = RFind(word, L'/') + 1;
  const Westring typedDirectory = Left(word, nameBegin);

  const Westring directory = DirectoryOf(typedDirectory);
  if (directory.IsEmpty()) return kRedrawNothing;
  const Names names = NamesIn(directory, Plain(word.Text() + nameBegin));
  if (names.empty()) return kRedrawNothing;
  const int chosen = names.size() == 1 ? 0 : Choose(names);
  if (chosen < 0) return kRedrawNothing;
  const Westring name = WithoutMacros(ShellQuote(names[static_cast<size_t>(chosen)]));
  return ReplaceWord(shell, begin, typedDirectory + name) ? kRedrawLine : kRedrawNothing;
}
