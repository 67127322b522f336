// One character cell of the screen and its attribute byte.
#pragma once

#include <cstdint>

// Five bytes with no gap: rows of cells are moved as raw bytes.
#pragma pack(push, 1)
struct Cell {
  int32_t character;  // Unicode code point
  uint8_t attribute;  // low nibble foreground, high nibble background
};
#pragma pack(pop)
static_assert(sizeof(Cell) == 5);

inline bool operator==(const Cell& a, const Cell& b) {
  return a.character == b.character && a.attribute == b.attribute;
}

constexpr uint8_t Foreground(uint8_t attribute) { return attribute & 15; }
constexpr uint8_t Background(uint8_t attribute) { return attribute >> 4; }
constexpr uint8_t MakeAttribute(int foreground, int background) {
  return static_cast<uint8_t>((background & 15) << 4 | (foreground & 15));
}
constexpr uint8_t SwapNibbles(uint8_t attribute) {
  return static_cast<uint8_t>(attribute << 4 | attribute >> 4);
}

// A rectangle of cells. Right and bottom are inclusive.
struct CellRect {
  int left = 0, top = 0, right = -1, bottom = -1;

  bool IsEmpty() const { return right < left || bottom < top; }
  bool operator==(const CellRect&) const = default;
  bool Contains(int x, int y) const { return x >= left && x <= right && y >= top && y <= bottom; }
};

// What is shown for a character handed in: 1 to 31 are the glyphs of the PC
// character set, 127 to 159 show as U+2302, all else is itself.
int32_t MapCharacter(int32_t character);
