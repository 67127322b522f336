// Size, date, time, permissions, owner and group.
#include "panels/entry_fields.h"

#include <grp.h>
#include <pwd.h>
#include <unistd.h>

#include "support/hand_made_panels.h"

namespace {

class EntryFields : public PanelRecords {
 protected:
  std::wstring Size(int64_t size, int width) {
    e.size = size;
    return SizeText(e, width).Text();
  }
  std::wstring Mark(const wchar_t* name, unsigned attributes, int width) {
    return SizeText(Add(name, 0, attributes | kAttrDirectory), width).Text();
  }
  entry& e = Add(L"a");
};

using std::wstring;

}  // namespace

TEST_F(EntryFields, SizeIsRightJustified) {
  EXPECT_EQ(Size(0, 8), L"       0");
  EXPECT_EQ(Size(99999999, 8), L"99999999");
}

TEST_F(EntryFields, LargerSizesAreInKAndThenInM) {
  EXPECT_EQ(Size(100000000, 8), L"  97656K");
  EXPECT_EQ(Size(10000000000, 8), L"9765625K");
  EXPECT_EQ(Size(10239999999, 8), L"9999999K");
  EXPECT_EQ(Size(10240000000, 8), L"   9765M");
  EXPECT_EQ(Size(10000000, 7), L"  9765K");
}

TEST_F(EntryFields, WidthTenTakesEverySizeInPlainDigits) {
  EXPECT_EQ(Size(9999999999, 10), L"9999999999");
  EXPECT_EQ(Size(10000000000, 10), L"10000000000");
  EXPECT_EQ(Size(INT64_MAX, 10), L"9223372036854775807");
  EXPECT_EQ(Size(7, 10), L"         7");
  EXPECT_EQ(Size(999999999, 9), L"999999999");
  EXPECT_EQ(Size(1000000000, 9), L"  976562K");
}

TEST_F(EntryFields, TooManyMegabytesForTheFieldTakeALargerUnit) {
  EXPECT_EQ(Size(int64_t{999999} << 20, 7), L"999999M");
  EXPECT_EQ(Size(int64_t{1} << 40, 7), L"  1024G");
  EXPECT_EQ(Size(int64_t{1} << 50, 7), L"  1024T");
  EXPECT_EQ(Size(INT64_MAX, 7), L"  8191P");
}

TEST_F(EntryFields, NegativeSizeShowsNothing) { EXPECT_EQ(Size(-1, 8), L"        "); }

TEST_F(EntryFields, SeparatorsComeWithTheOption) {
  Options::ThousandSep = true;
  EXPECT_EQ(Size(999999, 8), L" 999,999");
  EXPECT_EQ(Size(1000000, 8), L"    976K");
  EXPECT_EQ(Size(-1, 8), L"        ");
}

TEST_F(EntryFields, SeparatedSizesAtALimitNeverLoseTheirHead) {
  Options::ThousandSep = true;
  EXPECT_EQ(Size(int64_t{999999} << 10, 8), L"999,999K");
  EXPECT_EQ(Size(int64_t{1000000} << 10, 8), L"    976M");  // 1,000,000K is two too long
  EXPECT_EQ(Size(int64_t{99999} << 10, 7), L"99,999K");
  EXPECT_EQ(Size(int64_t{100000} << 10, 7), L"    97M");
}

TEST_F(EntryFields, DirectoriesShowMarksBetweenTriangles) {
  EXPECT_EQ(Mark(L"..", 0, 8), L"\x10UP-DIR\x11");
  EXPECT_EQ(Mark(L"..", 0, 9), L" \x10UP-DIR\x11");
  EXPECT_EQ(Mark(L"..", 0, 10), L"\x10 UP-DIR \x11");
  EXPECT_EQ(Mark(L"d", 0, 8), L"\x10SUBDIR\x11");
  EXPECT_EQ(Mark(L"d", 0, 10), L"\x10 SUBDIR \x11");
  EXPECT_EQ(Mark(L"d", kAttrLink, 8), L"\x10 LINK \x11");
  EXPECT_EQ(Mark(L"d", kAttrLink, 10), L"\x10  LINK  \x11");
  EXPECT_EQ(Mark(L"..", kAttrLink, 8), L"\x10UP-DIR\x11");
  EXPECT_EQ(Mark(L"...", 0, 8), L"\x10SUBDIR\x11");
}

// As in unix on 80 columns.
TEST_F(EntryFields, MarksLoseTheirFirstTriangleInSevenColumns) {
  EXPECT_EQ(Mark(L"..", 0, 7), L"UP-DIR\x11");
  EXPECT_EQ(Mark(L"d", 0, 7), L"SUBDIR\x11");
  EXPECT_EQ(Mark(L"d", kAttrLink, 7), L" LINK \x11");
}

TEST_F(EntryFields, CountedDirectoryShowsItsSize) {
  entry& d = Add(L"d", 4711, kAttrDirectory);
  d.sizeKnown = 1;
  EXPECT_EQ(wstring(SizeText(d, 8).Text()), L"    4711");
}

TEST_F(EntryFields, FieldsOfNoWidthAreEmpty) {
  for (int width : {0, -1, -100}) {
    EXPECT_EQ(Size(12, width), L"");
    EXPECT_TRUE(DateText(e.modified, width).IsEmpty());
    EXPECT_TRUE(TimeText(e.modified, width).IsEmpty());
    EXPECT_TRUE(OwnerText(e, width).IsEmpty());
  }
}

TEST_F(EntryFields, DateFollowsTheOrderOfTheLocale) {
  EXPECT_EQ(wstring(DateText(e.modified, 8).Text()), L"03/05/24");
  DateOrder = kDateDayFirst;
  DateFormat = "%02d.%02d.%02d";
  EXPECT_EQ(wstring(DateText(e.modified, 8).Text()), L"05.03.24");
  DateOrder = kDateYearFirst;
  EXPECT_EQ(wstring(DateText(e.modified, 8).Text()), L"24.03.05");
}

TEST_F(EntryFields, DateIsThatOfTheTimeZone) {
  setenv("TZ", "TST-10", 1);
  tzset();
  EXPECT_EQ(wstring(DateText(e.modified, 8).Text()), L"03/06/24");
  EXPECT_EQ(wstring(TimeText(e.modified, 6).Text()), L"  0:07");
}

TEST_F(EntryFields, TheFirstAndTheLastDateAreShown) {
  EXPECT_EQ(wstring(DateText({0, 0}, 8).Text()), L"01/01/70");
  EXPECT_EQ(wstring(DateText({0, 0xFFFFFFFFu}, 8).Text()), L"02/07/06");
}

TEST_F(EntryFields, NoDateIsBlank) {
  EXPECT_EQ(wstring(DateText(FileTime::None(), 8).Text()), L"        ");
  EXPECT_EQ(wstring(TimeText(FileTime::None(), 6).Text()), L"      ");
}

TEST_F(EntryFields, TwentyFourHoursHaveNoLetter) {
  EXPECT_EQ(wstring(TimeText(At(2024, 3, 5, 0, 5), 6).Text()), L"  0:05");
  EXPECT_EQ(wstring(TimeText(At(2024, 3, 5, 23, 59), 6).Text()), L" 23:59");
}

TEST_F(EntryFields, TwelveHoursTurnAtMidnightAndNoon) {
  Options::TimeMode = 12;
  const struct {
    int hour;
    const wchar_t* text;
  } rows[] = {{0, L"12:30a"},  {1, L" 1:30a"},  {11, L"11:30a"},
              {12, L"12:30p"}, {13, L" 1:30p"}, {23, L"11:30p"}};
  for (const auto& row : rows)
    EXPECT_EQ(wstring(TimeText(At(2024, 3, 5, row.hour, 30), 6).Text()), row.text) << row.hour;
}

TEST_F(EntryFields, PermissionsAreThreeTriples) {
  EXPECT_EQ(wstring(PermissionText(0100644).Text()), L"rw-r--r--");
  EXPECT_EQ(wstring(PermissionText(0040755).Text()), L"rwxr-xr-x");
  EXPECT_EQ(wstring(PermissionText(0).Text()), L"---------");
}

TEST_F(EntryFields, SpecialBitsTakeTheThirdPlaceOfTheirTriple) {
  EXPECT_EQ(wstring(PermissionText(07777).Text()), L"rwsrwsrwt");
  EXPECT_EQ(wstring(PermissionText(07000).Text()), L"--S--S--T");
  EXPECT_EQ(wstring(PermissionText(04711).Text()), L"rws--x--x");
  EXPECT_EQ(wstring(PermissionText(02070).Text()), L"---rws---");
  EXPECT_EQ(wstring(PermissionText(01777).Text()), L"rwxrwxrwt");
}

TEST_F(EntryFields, OwnerAndGroupAreNamesLeftAlignedAndCut) {
  const passwd* const root = getpwuid(0);
  const group* const roots = getgrgid(0);
  ASSERT_TRUE(root && roots);
  const wstring user = Westring(root->pw_name).Text(), theGroup = Westring(roots->gr_name).Text();
  EXPECT_EQ(wstring(OwnerText(e, 10).Text()), (user + wstring(10, L' ')).substr(0, 10));
  EXPECT_EQ(wstring(GroupText(e, 3).Text()), theGroup.substr(0, 3));
}

TEST_F(EntryFields, IdsWithoutANameShowTheirNumber) {
  unsigned id = 64001;
  while (getpwuid(id) || getgrgid(id)) ++id;
  e.uid = e.gid = static_cast<uint16_t>(id);
  const wstring number = std::to_wstring(id);
  EXPECT_EQ(wstring(OwnerText(e, 10).Text()), number + wstring(10 - number.size(), L' '));
  EXPECT_EQ(wstring(GroupText(e, 3).Text()), number.substr(0, 3));
}

// Numbers that fall into the same slot of the memory take turns.
TEST_F(EntryFields, RememberedNamesAreThoseOfTheirNumber) {
  unsigned id = 64000;
  while (getpwuid(id) || getpwuid(id + 64)) ++id;
  for (int round = 0; round < 2; ++round)
    for (unsigned number : {id, id + 64, 0u}) {
      e.uid = static_cast<uint16_t>(number);
      const passwd* const user = getpwuid(number);
      const wstring name = user ? wstring(Westring(user->pw_name).Text()) : std::to_wstring(number);
      EXPECT_EQ(wstring(OwnerText(e, 20).Text()), name + wstring(20 - name.size(), L' '));
    }
}
