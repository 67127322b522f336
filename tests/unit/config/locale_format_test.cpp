#include "config/values/locale_format.h"

#include <gtest/gtest.h>

#include <clocale>

namespace {

struct DateRow {
  const char* format;
  int order;
  char separator;
};

class DateFormats : public testing::TestWithParam<DateRow> {};

TEST_P(DateFormats, GiveOrderAndSeparator) {
  const DateLayout layout = ReadDateLayout(GetParam().format);
  EXPECT_EQ(layout.order, GetParam().order) << GetParam().format;
  EXPECT_EQ(layout.separator, GetParam().separator) << GetParam().format;
}

INSTANTIATE_TEST_SUITE_P(OfManyLocales, DateFormats,
                         testing::Values(DateRow{"%m/%d/%y", kDateMonthFirst, '/'},    // C
                                         DateRow{"%m/%d/%Y", kDateMonthFirst, '/'},    // United States
                                         DateRow{"%d.%m.%Y", kDateDayFirst, '.'},      // Germany
                                         DateRow{"%d/%m/%y", kDateDayFirst, '/'},      // France
                                         DateRow{"%d-%m-%Y", kDateDayFirst, '-'},      // Netherlands
                                         DateRow{"%Y-%m-%d", kDateYearFirst, '-'},     // Sweden
                                         DateRow{"%d %b %Y", kDateYearFirst, ' '},     // another word
                                         DateRow{"%M.%D.%Y", kDateMonthFirst, '.'},    // case does not count
                                         DateRow{"%1d.%2m.%y", kDateDayFirst, '.'}));  // nor do digits

TEST(LocaleFormat, TheFirstSeparatorWins) { EXPECT_EQ(ReadDateLayout("%d. %m/%Y").separator, '.'); }

TEST(LocaleFormat, WithoutASeparatorASlashStands) {
  EXPECT_EQ(ReadDateLayout("%Y%m%d").separator, '/');
  EXPECT_EQ(ReadDateLayout("").separator, '/');
  EXPECT_EQ(ReadDateLayout("").order, kDateYearFirst);
}

TEST(LocaleFormat, ASeparatorThatIsNoSingleByteIsASlash) {
  const DateLayout layout = ReadDateLayout("%Y\u5E74%m\u6708%d\u65E5");
  EXPECT_EQ(layout.order, kDateYearFirst);
  EXPECT_EQ(layout.separator, '/');
}

TEST(LocaleFormat, ALongFormatIsReadToItsEnd) {
  EXPECT_EQ(ReadDateLayout("%m/%d/%y, %H:%M:%S and the name of the day %A").order, kDateYearFirst);
}

TEST(LocaleFormat, TheDateFormatPrintsThreeNumbers) {
  EXPECT_STREQ(DateFormatWith('.').Text(), "%02d.%02d.%02d");
}

TEST(LocaleFormat, APercentSignAsSeparatorIsDoubled) {
  EXPECT_STREQ(DateFormatWith('%').Text(), "%02d%%%02d%%%02d");
}

TEST(LocaleFormat, TheThousandsSeparatorIsTheFirstCharacterOrAComma) {
  EXPECT_EQ(ReadThousandsSeparator("."), L'.');
  EXPECT_EQ(ReadThousandsSeparator("\u202F"), L'\u202F');
  EXPECT_EQ(ReadThousandsSeparator("'x"), L'\'');
  EXPECT_EQ(ReadThousandsSeparator(""), L',');
}

TEST(LocaleFormat, AllFollowTheLocaleInForce) {
  ASSERT_NE(setlocale(LC_ALL, "C"), nullptr);
  ThousandsSeparator = L'x';
  DateFormat = "x";
  DateOrder = kDateYearFirst;
  DateSeparator = 'x';
  ReadLocaleFormats();
  EXPECT_EQ(ThousandsSeparator, L',');
  EXPECT_STREQ(DateFormat.Text(), "%02d/%02d/%02d");
  EXPECT_EQ(DateOrder, kDateMonthFirst);
  EXPECT_EQ(DateSeparator, '/');
}

}  // namespace
