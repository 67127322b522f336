// The number that the text of a field stands for.
#include <gtest/gtest.h>

#include "dialogs/string_field.h"

TEST(FieldValue, IsTheNumberThatTheTextBeginsWith) {
  EXPECT_EQ(FieldValue(L"42"), 42);
  EXPECT_EQ(FieldValue(L"007"), 7);
  EXPECT_EQ(FieldValue(L" -12x"), -12);
}

TEST(FieldValue, IsZeroWithoutANumber) {
  EXPECT_EQ(FieldValue(L""), 0);
  EXPECT_EQ(FieldValue(L"x12"), 0);
  EXPECT_EQ(FieldValue(L"-"), 0);
}

TEST(FieldValue, IsHeldWithin32Bits) {
  EXPECT_EQ(FieldValue(L"2147483647"), 2147483647);
  EXPECT_EQ(FieldValue(L"2147483648"), 2147483647);
  EXPECT_EQ(FieldValue(L"4294967297"), 2147483647);
  EXPECT_EQ(FieldValue(L"-2147483648"), INT32_MIN);
  EXPECT_EQ(FieldValue(L"-2147483649"), INT32_MIN);
  EXPECT_EQ(FieldValue(Westring::Replicate(L'9', 1000)), 2147483647);
}
