// SGR parameters and the attribute they make.
#include "console/terminal_colours.h"

#include "terminal_fixture.h"

class TerminalColoursTest : public TerminalTest {
 protected:
  static int After(std::initializer_list<int> parameters) {
    TerminalColours colours(kAttribute);
    for (const int parameter : parameters) colours.Apply(parameter);
    return colours.Attribute();
  }
};

TEST_F(TerminalColoursTest, StartInTheDefaultAttribute) { EXPECT_EQ(After({}), 0x17); }

TEST_F(TerminalColoursTest, ForegroundsAreInTheOrderOfThePalette) {
  const int expected[] = {0x10, 0x14, 0x12, 0x16, 0x11, 0x15, 0x13, 0x17};
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(After({30 + i}), expected[i]) << i;
    EXPECT_EQ(After({90 + i}), expected[i] + 8) << i;
  }
}

TEST_F(TerminalColoursTest, BackgroundsAreInTheOrderOfThePalette) {
  const int expected[] = {0x07, 0x47, 0x27, 0x67, 0x17, 0x57, 0x37, 0x77};
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(After({40 + i}), expected[i]) << i;
    EXPECT_EQ(After({100 + i}), expected[i] + 0x80) << i;
  }
}

TEST_F(TerminalColoursTest, DefaultsAreThoseOfTheCommandLine) {
  EXPECT_EQ(After({31, 42, 39}), 0x27);
  EXPECT_EQ(After({31, 42, 99}), 0x27);
  EXPECT_EQ(After({31, 42, 49}), 0x14);
  EXPECT_EQ(After({31, 42, 109}), 0x14);
}

TEST_F(TerminalColoursTest, InverseSwapsAndEnds) {
  EXPECT_EQ(After({7}), 0x71);
  EXPECT_EQ(After({7, 7}), 0x71);
  EXPECT_EQ(After({7, 31}), 0x41);
  EXPECT_EQ(After({7, 27}), 0x17);
}

TEST_F(TerminalColoursTest, BoldIsABrightForegroundAlsoOfInverse) {
  EXPECT_EQ(After({1, 31}), 0x1C);
  EXPECT_EQ(After({7, 1, 31}), 0x49);
  EXPECT_EQ(After({1, 22, 21}), 0x1F);  // nothing but a reset ends it
  EXPECT_EQ(After({1, 0}), 0x17);
  EXPECT_EQ(After({1, 91}), 0x1C);
}

TEST_F(TerminalColoursTest, UnderlineIsABrightBackgroundAndEnds) {
  EXPECT_EQ(After({4}), 0x97);
  EXPECT_EQ(After({4, 7}), 0xF1);
  EXPECT_EQ(After({4, 24}), 0x17);
  EXPECT_EQ(After({4, 101}), 0xC7);
}

TEST_F(TerminalColoursTest, ResetTakesAllBack) { EXPECT_EQ(After({1, 4, 7, 31, 42, 0}), 0x17); }

TEST_F(TerminalColoursTest, OtherParametersAreIgnored) {
  const std::vector<int> known = {0, 1, 4, 7, 24, 27, 39, 49, 99, 109};
  for (int n = 0; n < 300; ++n) {
    const bool isColour =
        (n >= 30 && n <= 37) || (n >= 40 && n <= 47) || (n >= 90 && n <= 97) || (n >= 100 && n <= 107);
    if (isColour || std::count(known.begin(), known.end(), n) > 0) continue;
    EXPECT_EQ(After({1, 4, 31, 42, n}), 0xAC) << n;
  }
}

TEST_F(TerminalColoursTest, OfASequenceApplyInTheirOrder) {
  Show("\033[1;31mx\033[my\033[31;0;32mz\033[0m.");
  EXPECT_EQ(Attribute(0, 0), 0x1C);
  EXPECT_EQ(Attribute(1, 0), 0x17);
  EXPECT_EQ(Attribute(2, 0), 0x12);
  EXPECT_EQ(Attribute(3, 0), 0x17);
}

TEST_F(TerminalColoursTest, ParametersOfLargePalettesStandForThemselves) {
  Show("\033[38;5;1mx");  // 38 and 5 mean nothing, 1 is bold
  EXPECT_EQ(Attribute(0, 0), 0x1F);
}
