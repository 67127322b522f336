// One expansion of a command's macros: the text so far, and what the rows of the
// macro table do with it. Start at Run().
#pragma once

#include <string>
#include <vector>

#include "foundation/strings.h"
#include "panels/panel.h"
#include "shell/macros.h"

// Asks the user; false if he cancelled.
using MacroQuestion = bool (*)(const Westring& title, Westring& answer);

// Text up to the length of a command. What goes beyond it is dropped, and the
// text knows that it is not whole.
class BoundedText {
 public:
  void Put(wchar_t character);
  void Put(const wchar_t* text, size_t length);
  void Put(const Westring& text) { Put(text.Text(), static_cast<size_t>(Length(text))); }
  void Clear() { text.clear(); }

  const wchar_t* Text() const { return text.c_str(); }
  bool IsEmpty() const { return text.empty(); }
  bool IsCut() const { return isCut; }

 private:
  std::wstring text;
  bool isCut = false;
};

class MacroExpansion {
 public:
  MacroExpansion(int side, int mode, const wchar_t* name, MacroQuestion question);
  MacroExpansion(const MacroExpansion&) = delete;
  MacroExpansion& operator=(const MacroExpansion&) = delete;

  // A MacroResult. Below 0 leaves text, tags and temporary files as they were.
  int Run(Westring& text);

  // ---- for the rows of the table

  int Mode() const { return mode; }
  int Side(bool other) const { return other ? side ^ 1 : side; }
  TPanel& Panel(bool other) const { return Panels[Side(other)]; }
  const Westring& RepeatName() const { return name; }
  // The file of the command: name in a template, otherwise the entry under the
  // cursor. Empty for an empty panel.
  Westring FileName() const;
  // Of the entry under the cursor of a panel; empty for an empty panel.
  Westring CursorName(bool other) const;

  // What a macro stands for: quoted when the next plain character comes.
  void Yield(const Westring& text) { yielded.Put(text); }
  void Put(const Westring& text);  // as it stands
  // An answer in the text of a trial, which will be expanded once more.
  void PutForLater(const Westring& answer);
  wchar_t Sign() const { return sign; }
  bool Ask(const Westring& title, Westring& answer) const { return question(title, answer); }

  // The unread text behind the macro.
  const wchar_t* Unread() const { return next; }
  void Skip(int characters) { next += characters; }

  // Tags that no macro before has taken. -1 for none from there on; without
  // from, behind those taken.
  int NextTagged(bool other) const { return NextTagged(other, taken[Side(other)]); }
  int NextTagged(bool other, int from) const;
  // The tags up to that one go when the whole line has come out well.
  void TakeTagsTo(bool other, int index) { taken[Side(other)] = index + 1; }

  // Makes a list file, which goes again if the line fails. Its name is listFile.
  int MakeListFile(const std::string& lines);

  Westring listFile;
  int listFileError = 0;  // errno

 private:
  int ExpandSigns(const wchar_t* text);
  int ExpandMacro();
  int ExpandDollars();
  void PutPlain(wchar_t character);
  void PutYielded();
  int LengthResult() const { return result.IsCut() || yielded.IsCut() ? kMacroTooLong : kMacroDone; }
  void ClearTakenTags() const;
  void RemoveListFiles() const;

  int side, mode;
  Westring name;
  MacroQuestion question;
  wchar_t sign;  // 0: there are no macros
  const wchar_t* next = nullptr;
  BoundedText result, yielded;
  bool repeats = false;
  bool behindMacro = false;  // in a trial: nothing plain stands behind the last one
  int taken[2] = {0, 0};     // a side's entries below have given their tags
  std::vector<Westring> listFiles;
};
