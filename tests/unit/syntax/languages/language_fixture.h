// Samples of languages with the colours that the shipped definitions give them.
//
// A sample is pairs of lines: the text, and below it a mark for the colour of each
// of its characters.
//
//   TEST_F(Languages, JsonColoursNames) {
//     EXPECT_TRUE(Coloured("a.json", R"(
//   {"size": 12}
//   oaaaaaao nno
//   )"));
//   }
//
// The state runs on from pair to pair, as in a file.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "syntax/highlighter.h"
#include "unit/scratch_directory.h"

struct ClassMark {
  const char* colourClass;
  char mark;
};

// Text in the default colour has a blank for a mark.
inline constexpr ClassMark kClassMarks[] = {
    {"keyword", 'k'},       {"type", 't'},     {"builtin", 'b'},       {"constant", 'C'}, {"string", 's'},
    {"character", 'h'},     {"escape", 'e'},   {"regex", 'x'},         {"number", 'n'},   {"comment", 'c'},
    {"documentation", 'd'}, {"symbol", 'o'},   {"interpolation", 'i'}, {"tag", 'g'},      {"attribute", 'a'},
    {"preprocessor", 'p'},  {"variable", 'v'}, {"label", 'l'},         {"heading", 'H'},  {"emphasis", 'm'},
    {"link", 'u'},          {"added", '+'},    {"removed", '-'},       {"changed", '~'},  {"error", '!'},
};

// What the program ships, as it stands in the source tree.
std::string ShippedSyntax();

class Languages : public testing::Test {
 protected:
  Languages();

  // Whether a file of that name is coloured as the marks of the sample say.
  testing::AssertionResult Coloured(const std::string& fileName, const std::string& sample);
  // The marks of the text's lines, the first line starting at the top level.
  std::vector<std::string> Marks(const std::string& fileName, const std::vector<std::string>& text);
  bool HasDefinition(const std::string& fileName);
  void LoadFor(const std::string& fileName, CSyntaxHighlighter& highlighter);

 private:
  Westring SyntaxFile() const { return Westring(scratch.Path("syntax.ini").c_str()); }

  ScratchDirectory scratch;
};
