// A row of cells in the form in which it is drawn: stretches of text, each
// with runs of one colouring.
#pragma once

#include <string>
#include <vector>

#include "console/cell.h"

// What is drawn for any value a cell may hold: a blank for 0, kReplacement for
// values that are no character or none that has a picture.
constexpr int32_t kReplacement = 0xFFFD;
int32_t ShownCharacter(int32_t character);

// Cells that are drawn in the colours of one attribute. A run holds any number
// of blanks of other foregrounds, which can't be seen.
struct AttributeRun {
  int firstCell = 0, endCell = 0;  // the end is exclusive
  int firstByte = 0, endByte = 0;  // in the UTF-8 text
  uint8_t attribute = 0;
};

struct RowText {
  std::string utf8;
  std::vector<AttributeRun> runs;
};

// Characters must be valid code points above 0. The buffers of out are reused.
void BuildRowText(const Cell* cells, int count, RowText& out);

// Bytes that a code point takes in UTF-8.
int Utf8Length(int32_t codePoint);

// Cells that are drawn together. The end is exclusive.
struct Stretch {
  int first = 0, end = 0;
  bool isRegular = true;  // false: one cell that has to be fitted into its place
};

// Splits a row so that every irregular character stands alone. Blanks around
// the stretches belong to none. isRegular(character) is asked for all but
// blanks.
template <class IsRegular>
void SplitRow(const Cell* cells, int count, IsRegular isRegular, std::vector<Stretch>& out) {
  out.clear();
  bool extends = false;  // the last stretch may take further cells
  for (int i = 0; i < count; ++i) {
    if (cells[i].character == ' ') continue;
    const bool regular = isRegular(cells[i].character);
    if (!regular || !extends) out.push_back({i, i, regular});
    out.back().end = i + 1;
    extends = regular;
  }
}
