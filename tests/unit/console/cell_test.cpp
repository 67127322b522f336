// Characters as they are shown, attributes and the palette.
#include "console/cell.h"

#include <gtest/gtest.h>

#include "console/palette.h"

TEST(Cells, ControlCharactersShowThePcGlyphs) {
  EXPECT_EQ(MapCharacter(0x01), 0x263A);
  EXPECT_EQ(MapCharacter(0x07), 0x2022);
  EXPECT_EQ(MapCharacter(0x0B), 0x2642);
  EXPECT_EQ(MapCharacter(0x10), 0x25BA);
  EXPECT_EQ(MapCharacter(0x14), 0x00B6);
  EXPECT_EQ(MapCharacter(0x1A), 0x2192);
  EXPECT_EQ(MapCharacter(0x1F), 0x25BC);
}

TEST(Cells, CodesFrom127To159ShowTheHouse) {
  EXPECT_EQ(MapCharacter(126), 126);
  EXPECT_EQ(MapCharacter(127), 0x2302);
  EXPECT_EQ(MapCharacter(0x9B), 0x2302);
  EXPECT_EQ(MapCharacter(159), 0x2302);
  EXPECT_EQ(MapCharacter(160), 160);
}

TEST(Cells, OtherCharactersAreThemselves) {
  EXPECT_EQ(MapCharacter(' '), ' ');
  EXPECT_EQ(MapCharacter(0x1F600), 0x1F600);
  EXPECT_EQ(MapCharacter(-1), -1);
}

TEST(Cells, AnAttributeHoldsBackgroundOverForeground) {
  EXPECT_EQ(Foreground(0x4E), 0xE);
  EXPECT_EQ(Background(0xC3), 0xC);
  EXPECT_EQ(MakeAttribute(0xE, 0x9), 0x9E);
  EXPECT_EQ(SwapNibbles(0x1F), 0xF1);
}

TEST(Cells, ARectangleContainsItsInclusiveCorners) {
  const CellRect rect{2, 3, 4, 5};
  EXPECT_TRUE(rect.Contains(2, 3));
  EXPECT_TRUE(rect.Contains(4, 5));
  EXPECT_FALSE(rect.Contains(5, 5));
  EXPECT_FALSE(rect.Contains(4, 6));
  EXPECT_FALSE(CellRect{}.Contains(0, 0));
}

namespace {

void ExpectColour(int index, uint16_t red, uint16_t green, uint16_t blue) {
  const PaletteColour colour = PaletteEntry(index);
  EXPECT_EQ(colour.red, red) << index;
  EXPECT_EQ(colour.green, green) << index;
  EXPECT_EQ(colour.blue, blue) << index;
}

}  // namespace

TEST(Palette, BitsAreBlueGreenRedAndBright) {
  ExpectColour(0, 0, 0, 0);
  ExpectColour(1, 0, 0, 0x7FFF);
  ExpectColour(2, 0, 0x7FFF, 0);
  ExpectColour(4, 0x7FFF, 0, 0);
  ExpectColour(6, 0x7FFF, 0x7FFF, 0);
  ExpectColour(9, 0, 0, 0xFFFF);
  ExpectColour(14, 0xFFFF, 0xFFFF, 0);
  ExpectColour(15, 0xFFFF, 0xFFFF, 0xFFFF);
}

TEST(Palette, TheTwoGreysHaveLevelsOfTheirOwn) {
  ExpectColour(7, 0xC000, 0xC000, 0xC000);
  ExpectColour(8, 0x8000, 0x8000, 0x8000);
}

TEST(Palette, TheCursorIsWhiteOnBlackAndBlueAndBlackElsewhere) {
  EXPECT_TRUE(HasWhiteCursor(0x0F));
  EXPECT_TRUE(HasWhiteCursor(0x1F));
  EXPECT_FALSE(HasWhiteCursor(0x20));
  EXPECT_FALSE(HasWhiteCursor(0xF0));
}
