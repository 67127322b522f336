// The state of the main loop with two panel records in memory, without a screen.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <cwchar>
#include <string>
#include <utility>

#include "config/values/options.h"
#include "panels/columns.h"
#include "panels/draw_panel.h"
#include "panels/panel.h"
#include "shell/command_line.h"
#include "shell/shell.h"

class ShellFixture : public testing::Test {
 protected:
  ShellFixture() {
    Panels = panels;
    ActiveSide = 0;
    Options::CmdChar = '!';
    Options::BriefWordRight = true;
    SetList(kStyleFull, 5, 0);
  }
  ~ShellFixture() override { Panels = nullptr; }

  // A list of that many entries, "f000" and on, in the left panel.
  void SetList(int style, int rows, int count) {
    PanelRows = rows;
    panel.FreeEntries();
    panel.style = style;
    panel.visibleEntries = VisibleEntries(style, rows);
    panel.topIndex = panel.cursorRow = 0;
    while (panel.count < count) {
      wchar_t name[16];
      swprintf(name, 16, L"f%03d", panel.count);
      panel.entries[panel.count] = NewEntry(name);
      ++panel.count;
    }
    TakeCurrent();
  }

  // A tree of "/", "/a", "/a/b", "/c" and "/d" in the left panel.
  void SetTree() {
    SetList(kStyleTree, 5, 0);
    const std::pair<const wchar_t*, int> rows[] = {{L"/", 0}, {L"a", 1}, {L"b", 2}, {L"c", 1}, {L"d", 1}};
    for (const auto& [name, depth] : rows) {
      entry* const row = NewEntry(name);
      row->attributes = kAttrDirectory;
      row->sizeKnown = static_cast<uint8_t>(depth);
      panel.entries[panel.count++] = row;
    }
    TakeCurrent();
  }

  void Place(int top, int row) {
    panel.topIndex = top;
    panel.cursorRow = row;
    TakeCurrent();
  }

  // What the loop works out before it reads a key.
  void TakeCurrent() {
    shell.currentIndex = panel.CurrentIndex();
    shell.currentEntry = panel.Current();
  }

  // The command line with its cursor written as "|".
  void SetLine(const std::wstring& marked) {
    const size_t cursor = marked.find(L'|');
    SetCommandLine(shell, (marked.substr(0, cursor) + marked.substr(cursor + 1)).c_str());
    shell.commandCursor = static_cast<int>(cursor);
  }

  std::wstring Line() const {
    std::wstring line = shell.commandLine.Text();
    return line.insert(static_cast<size_t>(shell.commandCursor), L"|");
  }

  TPanel panels[2];
  TPanel& panel = panels[0];
  Shell shell;
};
