// Lines of a definition, and the colours that they give to a text.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "config/values/options.h"
#include "syntax/highlighter.h"

class Colouring : public testing::Test {
 protected:
  Colouring() {
    Options::TabWidth = 8;
    highlighter.Active = true;
  }

  CSyntaxDefinition& Definition() { return highlighter.Definition; }

  void Define(std::initializer_list<const char*> lines) {
    for (const char* line : lines) AddDefinitionLine(Definition(), line);
  }

  // The next line, with a letter for the colour of each cell: the first one of
  // the colour's name, or a point for the default.
  std::string Marks(const wchar_t* text) {
    highlighter.RenderLine(text, cells);
    std::string marks;
    for (int i = 0; i < cells.Length(); ++i) marks += MarkOf(cells[i].attribute);
    return marks;
  }

  std::wstring Shown(const wchar_t* text) {
    highlighter.RenderLine(text, cells);
    std::wstring shown;
    for (int i = 0; i < cells.Length(); ++i) shown += static_cast<wchar_t>(cells[i].character);
    return shown;
  }

  static char MarkOf(uint8_t attribute) {
    constexpr uint8_t kDefault = 0x1B, kOnDefault = 0x10;
    constexpr char kMarks[] = "kbgcrmyw";
    if (attribute == kDefault) return '.';
    return attribute >= kOnDefault && attribute < kOnDefault + 8 ? kMarks[attribute - kOnDefault] : '?';
  }

  CSyntaxHighlighter highlighter;
  CellString cells;
};
