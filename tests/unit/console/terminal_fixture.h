// A terminal whose result must not depend on how its input is cut.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "foundation/strings.h"
#include "support/cells.h"
#include "support/terminal_run.h"

class TerminalTest : public testing::Test {
 protected:
  static constexpr uint8_t kAttribute = 0x17;
  static constexpr Cell kBlank{' ', 7};  // as the grid is made

  TerminalTest() {
    Options::Colours[kColourCommandLine] = kAttribute;
    Options::ConsoleScrollback = true;
  }
  ~TerminalTest() override {
    Options::Colours[kColourCommandLine] = oldColour;
    Options::ConsoleScrollback = oldScrollback;
  }

  // Runs the output in one go, and once for each place where it can be cut in
  // two, and byte by byte. The first result is what the other members tell of.
  void Show(const std::string& output) {
    result = RunTerminal(output, columns, rows);
    EXPECT_TRUE(result.IsSane());
    EXPECT_TRUE(RunTerminal(output, columns, rows, [] { return 1; }) == result) << "byte by byte";
    for (size_t i = 1; i < output.size(); ++i) {
      ASSERT_TRUE(RunTerminal(output, columns, rows, [&] { return i; }) == result) << "in pieces of " << i;
      bool isFirst = true;
      const auto inTwo = [&] { return std::exchange(isFirst, false) ? i : output.size(); };
      ASSERT_TRUE(RunTerminal(output, columns, rows, inTwo) == result) << "cut at " << i;
    }
  }

  static std::string TextOf(const Cell* cells, int n) {
    Westring text;
    for (int i = 0; i < n; ++i) text += static_cast<wchar_t>(cells[i].character);
    return RTrim(ToUtf8(text)).Text();
  }
  // A row of the screen, without the blanks at its end.
  std::string Row(int y) const { return TextOf(&result.At(0, y), columns); }
  std::string KeptRow(int i) const { return TextOf(&result.kept[static_cast<size_t>(i) * columns], columns); }
  int KeptRows() const { return result.KeptRows(); }
  int32_t Character(int x, int y) const { return CharacterOf(result.At(x, y)); }
  uint8_t Attribute(int x, int y) const { return result.At(x, y).attribute; }
  // All rows, each ended by "|"; those at the end that are blank are left out.
  std::string Rows() const {
    std::string text;
    int last = rows - 1;
    while (last >= 0 && Row(last).empty()) --last;
    for (int y = 0; y <= last; ++y) text += Row(y) + "|";
    return text;
  }
  std::string Cursor() const { return std::to_string(result.x) + "," + std::to_string(result.y); }

  int columns = 20, rows = 6;
  TerminalResult result;

 private:
  const uint8_t oldColour = Options::Colours[kColourCommandLine];
  const bool oldScrollback = Options::ConsoleScrollback;
};

// Six rows "a" to "f", the cursor at home.
inline const std::string kLetters = "a\r\nb\r\nc\r\nd\r\ne\r\nf\033[H";
