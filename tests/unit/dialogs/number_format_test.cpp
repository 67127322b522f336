#include "dialogs/number_format.h"

#include <gtest/gtest.h>

#include "config/values/locale_format.h"

namespace {

struct NumberFormat : testing::Test {
  ~NumberFormat() override { ThousandsSeparator = L','; }
};

std::string Size(uint64_t value, int width) { return ToUtf8(FormatSize(value, width)).Text(); }
std::string Count(uint64_t value, int width) { return ToUtf8(FormatCount(value, width)).Text(); }

TEST_F(NumberFormat, SeparatorsStandAfterEachThreeDigitsFromTheRight) {
  EXPECT_EQ(Size(0, 10), "0");
  EXPECT_EQ(Size(999, 10), "999");
  EXPECT_EQ(Size(1000, 10), "1,000");
  EXPECT_EQ(Size(1234567, 12), "1,234,567");
}

TEST_F(NumberFormat, TheSeparatorIsThatOfTheLocale) {
  ThousandsSeparator = 0x202F;
  EXPECT_EQ(Size(1234567, 12), "1\u202F234\u202F567");
}

TEST_F(NumberFormat, AQuarterOfTheWidthIsLeftToSeparators) {
  EXPECT_EQ(Size(99999999, 10), "99,999,999");  // 10 - 10 / 4 digits
  EXPECT_EQ(Size(100000000, 10), "97,656K");
  EXPECT_EQ(Size(999999, 7), "999,999");
  EXPECT_EQ(Size(1000000, 7), "976K");
}

TEST_F(NumberFormat, TheUnitTakesADigitUnlessTheWidthIsAMultipleOfFour) {
  const uint64_t value = 1000000000ull << 10;  // 10 to the 9th, in K
  EXPECT_EQ(Size(value, 12), "1,000,000,000K");
  EXPECT_EQ(Size(value + 1024, 12), "976,562M");
  // Width 10 has 8 digits, and 7 in front of a unit.
  EXPECT_EQ(Size(10000000ull << 10, 10), "10,000,000K");
  EXPECT_EQ(Size(10000001ull << 10, 10), "9,765M");
}

TEST_F(NumberFormat, SizesGoOnToGAndTAndNoFurther) {
  EXPECT_EQ(Size(1000ull << 30, 5), "1,000G");  // 3 digits in front of a unit
  EXPECT_EQ(Size(1001ull << 30, 5), "0T");
  EXPECT_EQ(Size(5ull << 40, 5), "5T");
  EXPECT_EQ(Size(~0ull, 5), "16,777,215T");
}

TEST_F(NumberFormat, ASizeHasAtMostEighteenDigits) {
  EXPECT_EQ(Size(999999999999999999ull, 40), "999,999,999,999,999,999");
  EXPECT_EQ(Size(1000000000000000000ull, 40), "976,562,500,000,000K");
}

TEST_F(NumberFormat, CountsHaveAtMostElevenDigits) {
  EXPECT_EQ(Count(99999999999ull, 40), "99,999,999,999");
  EXPECT_EQ(Count(100000000000ull, 40), "97,656,250K");
}

TEST_F(NumberFormat, CountsKnowOnlyKAndM) {
  EXPECT_EQ(Count(3ull << 40, 7), "3,145,728M");
  EXPECT_EQ(Count(~0ull, 3), "17,592,186,044,415M");
}

TEST_F(NumberFormat, TheLimitOfACountStaysBeforeAUnit) {
  EXPECT_EQ(Count(500000ull << 10, 7), "500,000K");
  EXPECT_EQ(Size(500000ull << 10, 7), "488M");
}

TEST_F(NumberFormat, AWidthOfNothingStillGivesANumber) {
  EXPECT_EQ(Size(0, 0), "0");
  EXPECT_EQ(Size(2048, 0), "0M");
  EXPECT_EQ(Size(5, -3), "0K");
  EXPECT_EQ(Count(5, -3), "0K");
}

}  // namespace
