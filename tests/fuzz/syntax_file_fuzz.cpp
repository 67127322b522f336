// Any syntax files: a load ends, and what it made colours any text.
//
// Zero bytes separate the files, which can include each other by their numbers.
#include <string_view>

#include "syntax/highlighter.h"
#include "unit/scratch_directory.h"

namespace {

constexpr int kFiles = 4;

// Files without a piece become empty. What is left is the text to colour.
std::string_view WriteFiles(ScratchDirectory& scratch, std::string_view input) {
  scratch.Write("syntax.ini", "[a:*]\n!include 0\n");
  for (int i = 0; i < kFiles; ++i) {
    const size_t length = std::min(input.find('\0'), input.size());
    scratch.Write(std::to_string(i), std::string(input.substr(0, length)));
    input.remove_prefix(std::min(length + 1, input.size()));
  }
  return input;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static ScratchDirectory scratch;
  const std::string_view text =
      WriteFiles(scratch, std::string_view(reinterpret_cast<const char*>(data), size));
  CSyntaxHighlighter highlighter;
  const auto silent = [](const Westring&, const Westring&, int) { return 0; };
  const Westring path(scratch.Path("syntax.ini").c_str());
  highlighter.Active = highlighter.Definition.Load(path, L"a.c", silent);
  highlighter.Definition.Load(path, L"a.c", silent);
  CellString cells;
  highlighter.RenderLine(Westring(std::string(text).c_str()).Text(), cells);
  return 0;
}
