// The sixteen colours of the screen.
#pragma once

#include <cstdint>

struct PaletteColour {
  uint16_t red = 0, green = 0, blue = 0;
};

// index 0 to 15: bit 0 blue, bit 1 green, bit 2 red, bit 3 bright.
constexpr PaletteColour PaletteEntry(int index) {
  if (index == 7) return {0xC000, 0xC000, 0xC000};
  if (index == 8) return {0x8000, 0x8000, 0x8000};
  const uint16_t level = (index & 8) != 0 ? 0xFFFF : 0x7FFF;
  const auto channel = [&](int bit) { return static_cast<uint16_t>((index & bit) != 0 ? level : 0); };
  return {channel(4), channel(2), channel(1)};
}

// The cursor on a cell of this attribute is white, otherwise black.
constexpr bool HasWhiteCursor(uint8_t attribute) { return attribute >> 4 <= 1; }
