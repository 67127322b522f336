// One expansion of a command's macros: first the macro characters, then the "$".
#include "shell/macro_expansion.h"

#include <unistd.h>

#include <algorithm>
#include <cwchar>
#include <cwctype>

#include "config/values/options.h"
#include "foundation/environment.h"
#include "panels/tags.h"
#include "panels/tree_row.h"
#include "shell/list_file.h"
#include "shell/macro_table.h"
#include "shell/shell_quote.h"

namespace {

constexpr size_t kMostCharacters = kMaxExpanded - 1;

// Up to white space, "$" or "/".
int VariableLength(const wchar_t* text) {
  const wchar_t* end = text;
  while (*end && !iswspace(static_cast<wint_t>(*end)) && *end != L'$' && *end != L'/') ++end;
  return static_cast<int>(end - text);
}

const char* VariableValue(const wchar_t* name, int length) {
  return length > 0 ? Variables.Get(ToUtf8(Fold(Westring(name, length))).Text()) : nullptr;
}

// An operation would leave the same: no tag, but the memory of one. A list that
// is not on the screen has nothing to repaint.
void TakeTag(TPanel& panel, int index) {
  entry& e = *panel.entries[index];
  e.processed = 1;
  Tag(panel, index, -1);
  if (!e.tagged) return;
  e.tagged = 0;
  --panel.taggedCount;
  panel.taggedBytes -= static_cast<uint64_t>(e.size);
}

}  // namespace

void BoundedText::Put(wchar_t character) { Put(&character, 1); }

void BoundedText::Put(const wchar_t* added, size_t length) {
  const size_t room = kMostCharacters - text.size();
  if (length > room) isCut = true;
  text.append(added, std::min(length, room));
}

MacroExpansion::MacroExpansion(int panelSide, int macroMode, const wchar_t* fileName, MacroQuestion ask)
    : side(panelSide),
      mode(macroMode),
      name(fileName),
      question(ask),
      sign(static_cast<unsigned char>(Options::CmdChar)) {}

int MacroExpansion::Run(Westring& text) {
  int code = ExpandSigns(text.Text());
  // What a trial gives is expanded once more, and a value is no command's text.
  if (code == kMacroDone && mode != kMacroTrial) code = ExpandDollars();
  if (code != kMacroDone) {
    RemoveListFiles();
    return code;
  }
  text = result.Text();
  ClearTakenTags();
  return repeats ? kMacroRepeat : kMacroDone;
}

int MacroExpansion::ExpandSigns(const wchar_t* text) {
  bool hasMacro = false;
  for (next = text; *next;) {
    if (*next != sign) {
      PutPlain(*next++);
    } else {
      hasMacro = true;
      if (const int code = ExpandMacro(); code != kMacroDone) return code;
    }
    if (const int code = LengthResult(); code != kMacroDone) return code;
  }
  if (mode == kMacroTemplate && !hasMacro) {
    if (*text) PutPlain(L' ');
    if (const int code = FindMacro(L"", sign).expand(*this); code != kMacroDone) return code;
  }
  PutYielded();
  return LengthResult();
}

int MacroExpansion::ExpandMacro() {
  const wchar_t* const start = next++;
  const MacroRow& row = FindMacro(next, sign);
  next += wcslen(row.letters);
  repeats |= row.repeats;
  if (mode != kMacroTrial) return row.expand(*this);
  if (row.tryOut) return row.tryOut(*this);
  result.Put(start, static_cast<size_t>(next - start));
  behindMacro = true;
  return kMacroDone;
}

// A name that holds a "$" is no variable's: it comes quoted, and so does one that
// the user took onto the line. Hence a "$" behind a backslash stays.
int MacroExpansion::ExpandDollars() {
  const Westring text = result.Text();
  result.Clear();
  bool isEscaped = false;
  for (const wchar_t* p = text.Text(); *p;) {
    const int length = *p == L'$' && !isEscaped ? VariableLength(p + 1) : 0;
    if (const char* value = VariableValue(p + 1, length)) {
      result.Put(value);
      p += 1 + length;
      if (*p == L'$') ++p;
      continue;
    }
    isEscaped = *p == L'\\' && !isEscaped;
    result.Put(*p++);
  }
  return LengthResult();
}

Westring MacroExpansion::FileName() const { return mode == kMacroTemplate ? name : CursorName(false); }

Westring MacroExpansion::CursorName(bool other) const {
  const TPanel& panel = Panel(other);
  const entry* const current = panel.Current();
  if (!current) return Westring();
  return panel.IsTree() ? TreeRowPath(panel, panel.CurrentIndex()) : Westring(current->name);
}

void MacroExpansion::Put(const Westring& text) {
  PutYielded();
  result.Put(text);
}

// Its macro characters must not be taken for macros, nor its first letters for
// those of the macro in front of it.
void MacroExpansion::PutForLater(const Westring& answer) {
  if (behindMacro) {
    result.Put(sign);
    result.Put(L'n');
  }
  const Westring quoted = ShellQuote(answer);
  for (const wchar_t* p = quoted.Text(); *p; ++p) {
    PutPlain(*p);
    if (*p == sign) PutPlain(*p);
  }
}

int MacroExpansion::NextTagged(bool other, int from) const {
  const TPanel& panel = Panel(other);
  for (int i = from; i < panel.count; ++i)
    if (panel.entries[i]->tagged) return i;
  return -1;
}

int MacroExpansion::MakeListFile(const std::string& lines) {
  listFileError = WriteListFile(lines, listFile);
  if (listFileError != 0) return kMacroNoListFile;
  listFiles.push_back(listFile);
  return kMacroDone;
}

void MacroExpansion::PutPlain(wchar_t character) {
  PutYielded();
  result.Put(character);
  behindMacro = false;
}

void MacroExpansion::PutYielded() {
  if (yielded.IsEmpty()) return;
  result.Put(ShellQuote(yielded.Text()));
  yielded.Clear();
}

// The list may have been read anew while the user was asked.
void MacroExpansion::ClearTakenTags() const {
  for (const int i : {0, 1}) {
    TPanel& panel = Panels[i];
    const int end = std::min(taken[i], panel.count);
    for (int index = 0; index < end; ++index)
      if (panel.entries[index]->tagged) TakeTag(panel, index);
  }
}

void MacroExpansion::RemoveListFiles() const {
  for (const Westring& path : listFiles) unlink(ToUtf8(path).Text());
}
