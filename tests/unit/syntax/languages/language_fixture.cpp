// Samples are rendered with a colour of its own for each class, as the shipped
// colours are fewer than the classes.
#include "unit/syntax/languages/language_fixture.h"

#include <strings.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

#include "config/settings_file.h"
#include "config/values/colours.h"
#include "config/values/options.h"

namespace {

constexpr const char* kColourWords[] = {"black", "blue",    "green",  "cyan",
                                        "red",   "magenta", "yellow", "white"};
constexpr char kUnknownMark = '?';

// Attribute and mark of the classes, all different and none the default's.
struct ClassColour {
  std::string text;
  char mark;
};

std::map<std::string, ClassColour> ClassColours() {
  std::map<std::string, ClassColour> colours;
  int number = 0;
  for (const ClassMark& row : kClassMarks) {
    const std::string text = std::string(kColourWords[number % 8]) + " on " + kColourWords[2 + number / 8];
    colours[row.colourClass] = {text, row.mark};
    ++number;
  }
  return colours;
}

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

std::string ContentOf(const char* name) {
  std::ifstream file(std::string(ORVANE_SOURCE_DIR "/data/") + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

bool IsColourSection(const std::string& line) { return strcasecmp(line.c_str(), "[Colour Classes]") == 0; }

// The shipped definitions with the classes' colours replaced.
std::string WithColours(const std::string& syntax, const std::map<std::string, ClassColour>& colours) {
  std::string result = "[Colour Classes]\n";
  for (const auto& [name, colour] : colours) result += name + ":" + colour.text + "\n";
  bool inColours = false;
  for (const std::string& line : LinesOf(syntax)) {
    if (line.starts_with('[')) inColours = IsColourSection(line);
    if (!inColours) result += line + "\n";
  }
  return result;
}

std::map<uint8_t, char> MarksByAttribute(uint8_t base) {
  std::map<uint8_t, char> marks{{base, ' '}};
  for (const auto& [name, colour] : ClassColours())
    marks[ParseColourText(colour.text.c_str(), base)] = colour.mark;
  return marks;
}

std::string TrimmedRight(const std::string& line) { return line.substr(0, line.find_last_not_of(' ') + 1); }

// Text and marks line by line, as a sample has them.
std::string SideBySide(const std::vector<std::string>& text, const std::vector<std::string>& marks) {
  std::string result;
  for (size_t i = 0; i < text.size(); ++i) result += text[i] + "\n" + marks[i] + "\n";
  return result;
}

}  // namespace

std::string ShippedSyntax() { return ContentOf("syntax.ini"); }

Languages::Languages() {
  SetDefaultOptions();
  scratch.Write("syntax.ini", WithColours(ShippedSyntax(), ClassColours()));
}

testing::AssertionResult Languages::Coloured(const std::string& fileName, const std::string& sample) {
  std::vector<std::string> lines = LinesOf(sample);
  if (!lines.empty() && lines.front().empty()) lines.erase(lines.begin());
  if (lines.empty() || lines.size() % 2 != 0)
    return testing::AssertionFailure() << "A sample is pairs of lines, this one has " << lines.size();
  std::vector<std::string> text, expected;
  for (size_t i = 0; i < lines.size(); i += 2) {
    text.push_back(lines[i]);
    expected.push_back(TrimmedRight(lines[i + 1]));
  }
  if (!HasDefinition(fileName)) return testing::AssertionFailure() << "No definition for " << fileName;
  const std::vector<std::string> marks = Marks(fileName, text);
  if (marks == expected) return testing::AssertionSuccess();
  const size_t wrong = std::mismatch(marks.begin(), marks.end(), expected.begin()).first - marks.begin();
  return testing::AssertionFailure() << "Coloured so, first differing in line " << wrong + 1 << ":\n"
                                     << SideBySide(text, marks) << "where expected was:\n"
                                     << expected[wrong];
}

std::vector<std::string> Languages::Marks(const std::string& fileName, const std::vector<std::string>& text) {
  CSyntaxHighlighter highlighter;
  LoadFor(fileName, highlighter);
  const std::map<uint8_t, char> known = MarksByAttribute(Options::Colours[kColourFileViewer]);
  std::vector<std::string> marks;
  for (const std::string& line : text) {
    CellString cells;
    highlighter.RenderLine(Westring(line.c_str()).Text(), cells);
    std::string row;
    for (int i = 0; i < cells.Length(); ++i) {
      const auto mark = known.find(cells[i].attribute);
      row += mark == known.end() ? kUnknownMark : mark->second;
    }
    marks.push_back(TrimmedRight(row));
  }
  return marks;
}

bool Languages::HasDefinition(const std::string& fileName) {
  CSyntaxHighlighter highlighter;
  LoadFor(fileName, highlighter);
  return highlighter.Active;
}

void Languages::LoadFor(const std::string& fileName, CSyntaxHighlighter& highlighter) {
  highlighter.Load(SyntaxFile(), Westring(fileName.c_str()));
}
