// The shipped definitions as a whole: nothing in them is without effect.
#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <sstream>

#include "config/values/colours.h"
#include "console/palette.h"
#include "unit/syntax/languages/language_fixture.h"

namespace {

constexpr char kNowhere[] = "never";   // context of what state changes alone open
constexpr char kPlain[] = "plain";     // the colour that text has anyway
constexpr size_t kLongestLine = 1023;  // bytes
constexpr double kReadable = 3.5;      // ratio of luminances

std::vector<std::string> Split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::istringstream in(text);
  for (std::string part; std::getline(in, part, separator);) parts.push_back(part);
  return parts;
}

// With continued lines in one piece.
std::vector<std::string> ShippedLines() {
  std::vector<std::string> lines;
  bool continued = false;
  for (const std::string& line : Split(ShippedSyntax(), '\n')) {
    if (continued)
      lines.back() += line;
    else
      lines.push_back(line);
    continued = lines.back().ends_with('\\');
    if (continued) lines.back().pop_back();
  }
  return lines;
}

struct ShippedSection {
  std::string header, name;
  std::vector<std::string> patterns;
};

std::vector<ShippedSection> ShippedSections() {
  std::vector<ShippedSection> sections;
  for (const std::string& line : ShippedLines()) {
    const size_t colon = line.find(':');
    if (line.starts_with('[') && line.ends_with(']') && colon != std::string::npos)
      sections.push_back(
          {line, line.substr(1, colon - 1), Split(line.substr(colon + 1, line.size() - colon - 2), ';')});
  }
  return sections;
}

// A name that the pattern is for.
std::string NameFor(const std::string& pattern) {
  std::string name;
  for (size_t i = 0; i < pattern.size(); ++i) {
    const bool isSet = pattern[i] == '[';
    if (isSet) ++i;
    name += pattern[i] == '*' || pattern[i] == '?' ? 'x' : pattern[i];
    if (isSet) i = pattern.find(']', i);
  }
  return name;
}

std::map<std::string, std::string> ShippedColours() {
  std::map<std::string, std::string> colours;
  bool inColours = false;
  for (const std::string& line : ShippedLines()) {
    if (line.starts_with('[')) inColours = line == "[Colour Classes]";
    const size_t colon = line.find(':');
    if (inColours && colon != std::string::npos) colours[line.substr(0, colon)] = line.substr(colon + 1);
  }
  return colours;
}

double Luminance(int paletteIndex) {
  const PaletteColour colour = PaletteEntry(paletteIndex);
  const auto linear = [](uint16_t level) { return std::pow(level / 65535.0, 2.2); };
  return 0.2126 * linear(colour.red) + 0.7152 * linear(colour.green) + 0.0722 * linear(colour.blue);
}

double Contrast(uint8_t attribute) {
  const double a = Luminance(Foreground(attribute)) + 0.05, b = Luminance(Background(attribute)) + 0.05;
  return std::max(a, b) / std::min(a, b);
}

// The names in contexts and targets that no element has.
std::set<std::string> UnknownStates(const CSyntaxDefinition& definition) {
  std::set<std::string> known{"", "*", kNowhere, "linecomment", "blockcomment", "string"}, unknown;
  for (int i = 0; i < definition.Elements.Count(); ++i)
    known.insert(definition.Elements.Peek(i)->Name.Text());
  const auto check = [&](const std::string& name) {
    if (!known.contains(name)) unknown.insert(name);
  };
  const auto checkAll = [&](const auto& items) {
    for (int i = 0; i < items.Count(); ++i)
      for (int k = 0; k < items.Peek(i)->Context.Count(); ++k) check(items.Peek(i)->Context.Peek(k)->Text());
  };
  checkAll(definition.WordLists);
  checkAll(definition.SymbolLists);
  checkAll(definition.Numbers);
  checkAll(definition.Elements);
  checkAll(definition.StateChanges);
  for (int i = 0; i < definition.StateChanges.Count(); ++i)
    check(definition.StateChanges.Peek(i)->TargetName.Text());
  return unknown;
}

}  // namespace

// With nothing but the section's header to read, as there are many patterns.
TEST_F(Languages, EveryPatternOfASectionFindsIt) {
  const std::vector<ShippedSection> sections = ShippedSections();
  ASSERT_GE(sections.size(), 18u);
  ScratchDirectory scratch;
  const Westring path(scratch.Path("headers.ini").c_str());
  for (const ShippedSection& section : sections) {
    scratch.Write("headers.ini", section.header + "\n");
    for (const std::string& pattern : section.patterns) {
      CSyntaxHighlighter highlighter;
      highlighter.Load(path, Westring(NameFor(pattern).c_str()));
      EXPECT_TRUE(highlighter.Active) << section.name << ": " << pattern;
    }
  }
}

TEST_F(Languages, FilesOfNoLanguageHaveNoDefinition) {
  EXPECT_FALSE(HasDefinition("a.txt"));
  EXPECT_FALSE(HasDefinition("README"));
}

TEST_F(Languages, NoLineIsCut) {
  for (const std::string& line : Split(ShippedSyntax(), '\n')) EXPECT_LE(line.size(), kLongestLine) << line;
}

TEST_F(Languages, EveryStateThatIsNamedExists) {
  for (const ShippedSection& section : ShippedSections()) {
    CSyntaxHighlighter highlighter;
    LoadFor(NameFor(section.patterns.front()), highlighter);
    for (const std::string& name : UnknownStates(highlighter.Definition))
      ADD_FAILURE() << section.name << " names the state " << name;
  }
}

TEST_F(Languages, EveryDefinitionLineHasAKeyAndAColourClass) {
  const std::set<std::string> coloured{"words",  "symbols", "linecomment", "blockcomment",
                                       "string", "number",  "state",       "statechange"};
  const std::set<std::string> plain{"wordchars", "escape"};
  const std::map<std::string, std::string> classes = ShippedColours();
  for (const std::string& line : ShippedLines()) {
    const size_t colon = line.find(':');
    if (line.starts_with('[') || colon == std::string::npos) continue;
    const std::string key = line.substr(0, line.find_first_of("(/:"));
    if (classes.contains(key) && classes.at(key) == line.substr(colon + 1)) continue;
    if (plain.contains(key)) continue;
    EXPECT_TRUE(coloured.contains(key)) << line;
    const std::string colour = line.substr(colon + 1, line.find(':', colon + 1) - colon - 1);
    EXPECT_TRUE(colour == kPlain || classes.contains(colour)) << line;
  }
}

TEST_F(Languages, ColourClassesAreReadableOnTheViewersBackground) {
  const uint8_t base = kDefaultColours[kColourFileViewer];
  for (const auto& [name, text] : ShippedColours()) {
    const uint8_t attribute = ParseColourText(text.c_str(), base);
    EXPECT_EQ(Background(attribute), Background(base)) << name;
    EXPECT_GE(Contrast(attribute), kReadable) << name;
    EXPECT_NE(attribute, base) << name;
  }
}

TEST_F(Languages, EveryColourClassHasAMark) {
  std::set<std::string> marked, shipped;
  std::set<char> marks;
  for (const ClassMark& row : kClassMarks) {
    marked.insert(row.colourClass);
    marks.insert(row.mark);
  }
  for (const auto& [name, text] : ShippedColours()) shipped.insert(name);
  EXPECT_EQ(marked, shipped);
  EXPECT_EQ(marks.size(), marked.size());
  EXPECT_FALSE(shipped.contains(kPlain));
}

TEST_F(Languages, ASampleWithAWrongMarkIsRefused) {
  EXPECT_FALSE(Coloured("a.json", "1\ns\n"));
  EXPECT_FALSE(Coloured("a.json", "1\nn\n2\n"));
  EXPECT_FALSE(Coloured("a.json", "1\nnn\n"));
  EXPECT_FALSE(Coloured("a.txt", "1\n\n"));
  EXPECT_TRUE(Coloured("a.json", "1\nn\n"));
}
