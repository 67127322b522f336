// Bytes as a command with macros, two panels and answers, and what has to hold for
// whatever they are. Breaking it ends the process.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <string>
#include <vector>

#include "config/values/options.h"
#include "panels/panel.h"
#include "shell/macro_expansion.h"
#include "shell/macros.h"
#include "shell/shell_quote.h"
#include "shell/temp_names.h"

class AnyMacros {
 public:
  AnyMacros(const uint8_t* bytes, size_t size) : next(bytes), end(bytes + size) {
    Panels = panels;
    Options::CmdChar = Byte() % 4 ? '!' : static_cast<char>(Byte());
    mode = Byte() % 3;
    side = Byte() % 2;
    name = Text();
    for (TPanel& panel : panels) Fill(panel);
    answer = Text();
    line = Rest();
  }
  ~AnyMacros() { Panels = nullptr; }
  AnyMacros(const AnyMacros&) = delete;
  AnyMacros& operator=(const AnyMacros&) = delete;

  void Check() {
    current = this;
    CheckQuoting(name);
    CheckQuoting(line);
    const std::wstring tagsBefore = Tags();
    Westring text = line.c_str();
    const int result = Expand(text, mode);
    Require(result >= kMacroNoListFile && result <= kMacroRepeat, "a result is known");
    Require(Length(text) < kMaxExpanded || result < 0, "a result fits");
    if (result < 0) Require(text.Text() == line, "a failed line stays as it was");
    if (result < 0 || mode != kMacroPlain) Require(Tags() == tagsBefore, "tags stay");
    if (result >= 0 && mode == kMacroTrial) {
      questions = 0;
      Expand(text, kMacroPlain);
      Require(questions == 0, "a trial leaves nothing to ask");
    }
    CheckCounters();
    RemoveTempFiles();
  }

 private:
  static void Require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
  }

  int Byte() { return next < end ? *next++ : 0; }

  // Characters of one byte, and of three behind a byte 255; to a zero byte.
  std::wstring Text() {
    std::wstring text;
    while (const int byte = Byte()) text += static_cast<wchar_t>(byte == 255 ? Byte() << 8 | 1 : byte);
    return text;
  }
  std::wstring Rest() {
    std::wstring text;
    for (; next < end; ++next) text += *next ? static_cast<wchar_t>(*next) : L'!';
    return text;
  }

  void Fill(TPanel& panel) {
    CopyText(panel.path, Text().c_str());
    CopyText(panel.lastPath, panel.path);
    for (int left = Byte() % 8; left > 0; --left) {
      entry* const e = NewEntry(Text().c_str());
      e->size = 1;
      e->tagged = Byte() % 2;
      panel.entries[panel.count++] = e;
      panel.taggedCount += e->tagged;
      panel.taggedBytes += e->tagged;
    }
    panel.cursorRow = Byte() % 9;
  }

  int Expand(Westring& text, int how) const {
    MacroExpansion expansion(side, how, name.c_str(), [](const Westring&, Westring& given) {
      ++current->questions;
      given = current->answer.c_str();
      return current->questions < 40;
    });
    return expansion.Run(text);
  }

  std::wstring Tags() const {
    std::wstring tags;
    for (const TPanel& panel : panels)
      for (int i = 0; i < panel.count; ++i) tags += panel.entries[i]->tagged ? L'1' : L'0';
    return tags;
  }

  void CheckCounters() const {
    for (const TPanel& panel : panels) {
      int tagged = 0;
      for (int i = 0; i < panel.count; ++i) tagged += panel.entries[i]->tagged;
      Require(panel.taggedCount == tagged && panel.taggedBytes == static_cast<uint64_t>(tagged),
              "tags are counted");
    }
  }

  static void CheckQuoting(const std::wstring& text) {
    Require(Unquote(ShellQuote(text.c_str())).Text() == text, "quoting can be undone");
  }

  static inline AnyMacros* current = nullptr;
  const uint8_t* next;
  const uint8_t* end;
  TPanel panels[2];
  int mode, side, questions = 0;
  std::wstring name, answer, line;
};
