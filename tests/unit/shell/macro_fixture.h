// Two panels in memory and the expansion of commands on them; a question is
// answered by what the test has told beforehand.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "config/values/options.h"
#include "foundation/environment.h"
#include "panels/panel.h"
#include "shell/macro_expansion.h"
#include "shell/macros.h"
#include "unit/scratch_directory.h"

class MacroFixture : public testing::Test {
 protected:
  MacroFixture() {
    Panels = panels;
    ActiveSide = 0;
    Options::CmdChar = '!';
    Variables.Set("TMP", temporary.Path().c_str());
    ExtractForMacro = nullptr;
    answers.clear();
    titles.clear();
    const wchar_t* const paths[] = {L"/home/left", L"/home/right"};
    for (int side : {0, 1}) {
      CopyText(panels[side].path, paths[side]);
      CopyText(panels[side].lastPath, paths[side]);
    }
  }
  ~MacroFixture() override {
    EXPECT_TRUE(answers.empty()) << "not every answer was asked for";
    Variables.Load();
    Panels = nullptr;
    ExtractForMacro = nullptr;
  }

  entry& Add(int side, const std::wstring& name, bool tagged = false) {
    TPanel& panel = panels[side];
    entry* const e = NewEntry(name.c_str());
    e->size = 10;
    e->tagged = tagged;
    panel.entries[panel.count++] = e;
    panel.taggedCount += tagged;
    panel.taggedBytes += tagged ? 10 : 0;
    return *e;
  }

  void AddTagged(int side, std::initializer_list<const wchar_t*> names) {
    for (const wchar_t* name : names) Add(side, name, true);
  }

  void PutCursorOn(int side, int index) {
    panels[side].topIndex = 0;
    panels[side].cursorRow = index;
  }

  // The text that comes out; code and changed tell the rest.
  std::wstring Expand(const std::wstring& text, int mode = kMacroPlain, const wchar_t* name = nullptr) {
    Westring line = text.c_str();
    MacroExpansion expansion(0, mode, name, TakeAnswer);
    code = expansion.Run(line);
    return line.Text();
  }
  std::wstring ExpandFor(const wchar_t* name, const std::wstring& text) {
    return Expand(text, kMacroTemplate, name);
  }
  std::wstring Try(const std::wstring& text) { return Expand(text, kMacroTrial); }

  std::wstring Tagged(int side) const {
    std::wstring names;
    for (int i = 0; i < panels[side].count; ++i)
      if (panels[side].entries[i]->tagged) names += std::wstring(panels[side].entries[i]->name) + L" ";
    return names;
  }

  std::string Temporary(int number) const {
    return "Orvane#" + std::to_string(static_cast<unsigned>(getpid()) & 0xFFFF) + "." +
           std::to_string(number);
  }

  TPanel panels[2];
  int code = 0;
  ScratchDirectory temporary;
  static inline std::deque<std::optional<std::wstring>> answers;  // none: Esc
  static inline std::vector<std::wstring> titles;

 private:
  static bool TakeAnswer(const Westring& title, Westring& answer) {
    titles.push_back(title.Text());
    if (answers.empty()) {
      ADD_FAILURE() << "a question that no answer was told for";
      return false;
    }
    const std::optional<std::wstring> next = answers.front();
    answers.pop_front();
    if (next) answer = next->c_str();
    return next.has_value();
  }
};

// A level of an archive, for panels that have to show one.
class NoArchive : public ArchiveLevel {
 public:
  NoArchive() : ArchiveLevel(L"/home/left/a.zip") {}
  bool StillThere() const override { return true; }
  std::unique_ptr<EntrySource> Open(const Westring&) override { return nullptr; }
  bool Lookup(const Westring&, uint16_t&) override { return false; }
};
