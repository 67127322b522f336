// What other programs have written to terminals, and short sequences, against
// what other terminals make of them. Where our terminal is meant to be different
// the table says by which rule, and the difference must be there. The samples
// lie beside the checkout, where there are any.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "terminal_fixture.h"

namespace {

std::string CorpusDirectory() {
  if (const char* given = getenv("ORVANE_CORPUS")) return std::string(given) + "/terminal/";
#ifdef ORVANE_SOURCE_DIR
  return ORVANE_SOURCE_DIR "/../shared/corpus/terminal/";
#else
  return "";
#endif
}

std::string Content(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

std::vector<std::string> Split(const std::string& text, char divider) {
  std::vector<std::string> fields;
  std::istringstream rest(text);
  for (std::string field; std::getline(rest, field, divider);) fields.push_back(field);
  return fields;
}

// The list behind a name of a JSON file whose lists hold no lists.
std::string JsonList(const std::string& json, const std::string& name) {
  const size_t at = json.find('"' + name + '"');
  if (at == std::string::npos) return "";
  const size_t open = json.find('[', at), close = json.find(']', open);
  return json.substr(open + 1, close - open - 1);
}

std::string FromHex(const std::string& hex) {
  std::string bytes;
  for (size_t i = 0; i + 1 < hex.size(); i += 2) {
    bytes += static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16));
  }
  return bytes;
}

constexpr int kColumns = 80, kRows = 25;

const std::map<std::string, std::string> kOtherRecordings = {
    {"nc-filter-quit", "entering the alternate screen puts the cursor into its corner"},
};

constexpr char kBehindLastColumn[] =
    "behind the last column the cursor stands one further, and steps back to it";
constexpr char kMovesFreely[] = "moving up and down knows the screen's edges alone";
constexpr char kBlankWhenEntered[] = "the alternate screen is blank each time it is entered";
constexpr char kFeedBelowRegion[] = "a line feed at or below the region's last row scrolls the region";
constexpr char kOneSidedReset[] = "a region without both ends goes back at its top alone";
constexpr char kRegionOnly[] = "setting the region leaves the cursor";
constexpr char kRegionOfOneRow[] = "a region may be of one row";
constexpr char kLinesAboveRegion[] = "lines above the region are inserted and deleted down to its end";
constexpr char kNotTheCursor[] = "erasing a line up to the cursor spares the cell under it";
constexpr char kReverseScrolls[] = "ESC M scrolls the region wherever the cursor is";
constexpr char kScrollOfNone[] = "scrolling up is by the number given, and no number is 0";

const std::map<std::string, std::string> kOtherCases = {
    {"BSTests.test_BS_CursorStartsInDoWrapPosition 1", kBehindLastColumn},
    {"CUDTests.test_CUD_StopsAtBottomMarginInScrollRegion 1", kMovesFreely},
    {"CUUTests.test_CUU_StopsAtTopMarginInScrollRegion 1", kMovesFreely},
    {"DECSETTests.test_DECSET_ALTBUF 4", kBlankWhenEntered},
    {"DECSTBMTests.test_DECSTBM_CursorBelowRegionAtBottomTriesToScroll 1", kFeedBelowRegion},
    {"DECSTBMTests.test_DECSTBM_DefaultRestores 2", kOneSidedReset},
    {"DECSTBMTests.test_DECSTBM_MovsCursorToOrigin 1", kRegionOnly},
    {"DECSTBMTests.test_DECSTBM_NewlineBelowRegion 1", kFeedBelowRegion},
    {"DECSTBMTests.test_DECSTBM_TopBelowBottom 1", kRegionOfOneRow},
    {"DECSTBMTests.test_DECSTBM_TopBelowBottom 2", kRegionOfOneRow},
    {"DLTests.test_DL_OutsideScrollRegion 1", kLinesAboveRegion},
    {"ELTests.test_EL_1 1", kNotTheCursor},
    {"LFTests.test_LF_StopsAtBottomLineWhenBegunBelowScrollRegion 1", kFeedBelowRegion},
    {"RITests.test_RI_Basic 1", kReverseScrolls},
    {"RITests.test_RI_Scrolls 1", kReverseScrolls},
    {"RITests.test_RI_Scrolls 2", kReverseScrolls},
    {"RITests.test_RI_ScrollsInTopBottomRegionStartingBelow 1", kReverseScrolls},
    {"RITests.test_RI_ScrollsInTopBottomRegionStartingWithin 1", kReverseScrolls},
    {"RITests.test_RI_StopsAtTopLineWhenBegunAboveScrollRegion 1", kReverseScrolls},
    {"SUTests.test_SU_DefaultParam 1", kScrollOfNone},
};

// ---- recordings --------------------------------------------------------------

// "6/-+b": colours 0 to 15 in the terminals' order, then flags.
uint8_t AttributeOf(const std::string& colours) {
  const size_t slash = colours.find('/');
  const std::string foreground = colours.substr(0, slash), background = colours.substr(slash + 1);
  TerminalColours attribute(0x07);
  const auto apply = [&](const std::string& colour, int base, int brightBase) {
    if (colour[0] == '-') return;
    const int index = std::stoi(colour);
    attribute.Apply(index < 8 ? base + index : brightBase + index - 8);
  };
  apply(foreground, 30, 90);
  apply(background, 40, 100);
  const size_t plus = background.find('+');
  for (const char flag : plus == std::string::npos ? "" : background.substr(plus + 1)) {
    if (flag == 'b') attribute.Apply(1);
    if (flag == 'u') attribute.Apply(4);
    if (flag == 'r') attribute.Apply(7);
  }
  return attribute.Attribute();
}

std::vector<uint8_t> ExpectedAttributes(const std::string& text) {
  std::vector<uint8_t> attributes(kColumns * kRows, 0x07);
  for (const std::string& line : Split(text, '\n')) {
    int row = 0, column = 0, length = 0;
    char colours[32];
    if (sscanf(line.c_str(), "%d %d %d %31s", &row, &column, &length, colours) != 4) continue;
    std::fill_n(attributes.begin() + row * kColumns + column, length, AttributeOf(colours));
  }
  return attributes;
}

}  // namespace

class TerminalCorpus : public TerminalTest {
 protected:
  TerminalCorpus() {
    columns = kColumns;
    rows = kRows;
    Options::Colours[kColourCommandLine] = 0x07;
  }

  // Cut or not; a cursor behind the last column counts as on it.
  void Run(const std::string& output, const std::string& name) {
    result = RunTerminal(output, columns, rows);
    EXPECT_TRUE(result.IsSane()) << name;
    EXPECT_TRUE(RunTerminal(output, columns, rows, [] { return 1; }) == result) << name;
    result.x = std::min(result.x, kColumns - 1);
  }

  // What a recording's screen should be and is not; empty if all is well.
  std::string Difference(const std::filesystem::path& recording) {
    const auto beside = [&](const char* extension) {
      return Content(std::filesystem::path(recording).replace_extension(extension));
    };
    const std::string json = beside(".json");
    std::vector<std::string> expected = Split(beside(".expected"), '\n');
    expected.resize(kRows);
    std::string difference;
    for (int y = 0; y < kRows; ++y) {
      if (Row(y) != expected[y]) difference += "row " + std::to_string(y) + ": " + Row(y) + "; ";
    }
    int row = 0, column = 0;
    sscanf(JsonList(json, "cursor_row_col_from0").c_str(), "%d , %d", &row, &column);
    if (result.y != row || result.x != column) difference += "cursor " + Cursor() + "; ";
    if (JsonList(json, "attr_agrees").find('"') == std::string::npos) return difference;
    ++coloured;
    return difference + ColourDifference(ExpectedAttributes(beside(".attr")));
  }

  // Of a blank only the background shows.
  std::string ColourDifference(const std::vector<uint8_t>& expected) const {
    for (size_t i = 0; i < expected.size(); ++i) {
      const Cell& cell = result.cells[i];
      const bool isSame = cell.character == ' ' ? Background(cell.attribute) == Background(expected[i])
                                                : cell.attribute == expected[i];
      if (!isSame) return "colours of cell " + std::to_string(i);
    }
    return "";
  }

  // "cur ROW COLUMN", where "-" is anything, or "rect TOP LEFT HEIGHT WIDTH" and
  // the text of each row in quotes.
  bool Holds(const std::string& check) const {
    std::istringstream in(check);
    std::string kind;
    in >> kind;
    if (kind == "cur") {
      std::string row, column;
      in >> row >> column;
      return (row == "-" || std::stoi(row) == result.y) && (column == "-" || std::stoi(column) == result.x);
    }
    int top = 0, left = 0, height = 0, width = 0;
    in >> top >> left >> height >> width;
    EXPECT_TRUE(kind == "rect" && in) << check;
    for (int y = top; y < top + height; ++y) {
      std::string before, text;
      std::getline(in, before, '"');
      std::getline(in, text, '"');
      if (TextOf(&result.At(left, y), width) != RTrim(Estring(text.c_str())).Text()) return false;
    }
    return true;
  }

  static void ExpectAsTold(const std::string& name, const std::string& difference,
                           const std::map<std::string, std::string>& onPurpose) {
    const auto told = onPurpose.find(name);
    if (told == onPurpose.end())
      EXPECT_EQ(difference, "") << name;
    else
      EXPECT_NE(difference, "") << name << " is to differ: " << told->second;
  }

  int coloured = 0;  // recordings whose colours were compared
};

TEST_F(TerminalCorpus, RecordingsEndOnTheScreenOfOtherTerminals) {
  const std::string directory = CorpusDirectory() + "recorded";
  if (!std::filesystem::is_directory(directory)) GTEST_SKIP() << "no samples";
  int checked = 0;
  for (const auto& entry : std::filesystem::directory_iterator(directory)) {
    if (entry.path().extension() != ".in") continue;
    const std::string name = entry.path().stem();
    Run(Content(entry.path()), name);
    ExpectAsTold(name, Difference(entry.path()), kOtherRecordings);
    ++checked;
  }
  EXPECT_GE(checked, 30);
  EXPECT_GE(coloured, 20);
  RecordProperty("recordings", checked);
  RecordProperty("coloured", coloured);
}

TEST_F(TerminalCorpus, ShortCasesComeToWhatOtherTerminalsAgreeOn) {
  std::ifstream file(CorpusDirectory() + "esctest-cases.tsv");
  if (!file) GTEST_SKIP() << "no samples";
  int checked = 0;
  for (std::string line; std::getline(file, line);) {
    const std::vector<std::string> fields = Split(line, '\t');
    if (line.starts_with('#') || fields.size() != 6 || fields[2] != "1") continue;
    if (Split(fields[3], ',').size() < 3) continue;
    const std::string name = fields[0] + ' ' + fields[1];
    Run(FromHex(fields[4]), name);
    std::string difference;
    for (const std::string& check : Split(fields[5], ';')) {
      if (!Holds(check)) difference += check + ';';
    }
    ExpectAsTold(name, difference, kOtherCases);
    ++checked;
  }
  EXPECT_GE(checked, 100);
  RecordProperty("cases", checked);
}
