// Any definition and any text: the cells show the text, and colours depend on
// nothing but the stack at the start of a line.
//
// Up to the first zero byte are lines of a definition, behind it lines of text.
#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "config/values/options.h"
#include "syntax/state_store.h"

namespace {

void Require(bool holds, const char* what) {
  if (holds) return;
  fprintf(stderr, "not so: %s\n", what);
  abort();
}

bool AreEqual(const CellString& a, const CellString& b) {
  return a.Length() == b.Length() && CellsEqual(a.Cells(), b.Cells(), a.Length());
}

// Each tab stands for at least one cell, all else for one.
bool ShowsAll(const CellString& cells, const Westring& text) {
  const bool hasTabs = Find(text, L'\t') >= 0;
  return hasTabs ? cells.Length() >= Length(text) : cells.Length() == Length(text);
}

void ColourLine(CSyntaxHighlighter& highlighter, const Westring& text) {
  CSyntaxStateStore store;
  store.Remember(1, highlighter);
  CellString first, second;
  highlighter.RenderLine(text.Text(), first);
  Require(ShowsAll(first, text), "all of the text is shown");
  Require(highlighter.Count() <= CContextStack::kDeepest, "the stack is bounded");
  CContextStack behind;
  behind.CopyStack(highlighter);
  highlighter.CopyStack(store.Find(1)->State);
  highlighter.RenderLine(text.Text(), second);
  Require(AreEqual(first, second) && behind == highlighter, "from the same stack it is the same");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Options::TabWidth = 1 + static_cast<int>(size % 8);
  const std::string input(reinterpret_cast<const char*>(data), size);
  CSyntaxHighlighter highlighter;
  highlighter.Active = true;
  std::istringstream definition(input.c_str());
  for (std::string line; std::getline(definition, line);)
    AddDefinitionLine(highlighter.Definition, line.c_str());
  std::istringstream text(input.substr(std::min(input.find('\0') + 1, input.size())));
  for (std::string line; std::getline(text, line);) ColourLine(highlighter, Westring(line.c_str()));
  return 0;
}
