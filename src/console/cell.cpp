// The picture of a character code on the screen.
#include "console/cell.h"

namespace {

// What the PC character set shows at positions 1 to 31.
constexpr int32_t kControlGlyphs[] = {
    0x263A, 0x263B, 0x2665, 0x2666, 0x2663, 0x2660, 0x2022, 0x25D8, 0x25CB, 0x25D9, 0x2642,
    0x2640, 0x266A, 0x266B, 0x263C, 0x25BA, 0x25C4, 0x2195, 0x203C, 0x00B6, 0x00A7, 0x25AC,
    0x21A8, 0x2191, 0x2193, 0x2192, 0x2190, 0x221F, 0x2194, 0x25B2, 0x25BC,
};
static_assert(sizeof(kControlGlyphs) / sizeof(kControlGlyphs[0]) == 31);

constexpr int32_t kHouse = 0x2302;  // the PC character set's glyph of code 127

}  // namespace

int32_t MapCharacter(int32_t character) {
  if (character >= 1 && character <= 31) return kControlGlyphs[character - 1];
  if (character >= 127 && character <= 159) return kHouse;
  return character;
}
