// SGR parameters: a table of ranges, one handler each.
#include "console/terminal_colours.h"

#include "console/cell.h"

namespace {

constexpr uint8_t kBright = 8;           // of a palette index
constexpr uint8_t kBoldBit = 0x08;       // of an attribute: a bright foreground
constexpr uint8_t kUnderlineBit = 0x80;  // shown as a bright background

// ANSI counts red as 1 and blue as 4, the palette the other way round.
constexpr uint8_t kPaletteIndex[] = {0, 4, 2, 6, 1, 5, 3, 7};

}  // namespace

TerminalColours::TerminalColours(uint8_t defaultAttribute) : defaultAttribute(defaultAttribute) {
  Reset();
  Build();
}

void TerminalColours::Reset() {
  foreground = Foreground(defaultAttribute);
  background = Background(defaultAttribute);
  inverse = bold = underline = false;
}

// There is no end of bold but the reset.
void TerminalColours::Apply(int n) {
  struct Row {
    int first, last;
    void (*run)(TerminalColours&, int offset);
  };
  static constexpr Row kRows[] = {
      {0, 0, [](TerminalColours& c, int) { c.Reset(); }},
      {1, 1, [](TerminalColours& c, int) { c.bold = true; }},
      {4, 4, [](TerminalColours& c, int) { c.underline = true; }},
      {7, 7, [](TerminalColours& c, int) { c.inverse = true; }},
      {24, 24, [](TerminalColours& c, int) { c.underline = false; }},
      {27, 27, [](TerminalColours& c, int) { c.inverse = false; }},
      {30, 37, [](TerminalColours& c, int i) { c.foreground = kPaletteIndex[i]; }},
      {39, 39, [](TerminalColours& c, int) { c.foreground = Foreground(c.defaultAttribute); }},
      {40, 47, [](TerminalColours& c, int i) { c.background = kPaletteIndex[i]; }},
      {49, 49, [](TerminalColours& c, int) { c.background = Background(c.defaultAttribute); }},
      {90, 97, [](TerminalColours& c, int i) { c.foreground = kPaletteIndex[i] + kBright; }},
      {99, 99, [](TerminalColours& c, int) { c.foreground = Foreground(c.defaultAttribute); }},
      {100, 107, [](TerminalColours& c, int i) { c.background = kPaletteIndex[i] + kBright; }},
      {109, 109, [](TerminalColours& c, int) { c.background = Background(c.defaultAttribute); }},
  };
  for (const Row& row : kRows) {
    if (n < row.first || n > row.last) continue;
    row.run(*this, n - row.first);
    Build();
    return;
  }
}

void TerminalColours::Build() {
  attribute = MakeAttribute(foreground, background);
  if (inverse) attribute = SwapNibbles(attribute);
  if (bold) attribute |= kBoldBit;
  if (underline) attribute |= kUnderlineBit;
}
