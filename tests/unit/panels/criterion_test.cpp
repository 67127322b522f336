// The criteria of filter expressions, through the expressions.
#include <grp.h>
#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

#include "config/values/locale_format.h"
#include "panels/expression.h"

namespace {

// The evaluator asks for the groups once, so they are made before any test. A
// user who may not set them has some already.
constexpr gid_t kMembersGroup = 54322;
[[maybe_unused]] const int groupsMade = setgroups(1, &kMembersGroup);

class Criterion : public testing::Test {
 protected:
  Criterion() { SetZone("UTC"); }
  ~Criterion() override {
    FreeEntry(e);
    DateOrder = kDateMonthFirst;
    DateSeparator = '/';
    SetZone("UTC");
  }

  static void SetZone(const char* zone) {
    setenv("TZ", zone, 1);
    tzset();
  }
  // A moment of the local calendar.
  void Modified(int year, int month, int day, int hour = 12, int minute = 0) {
    tm parts{};
    parts.tm_year = year - 1900;
    parts.tm_mon = month - 1;
    parts.tm_mday = day;
    parts.tm_hour = hour;
    parts.tm_min = minute;
    parts.tm_isdst = -1;
    e->modified.seconds = static_cast<uint32_t>(mktime(&parts));
  }
  void ModifiedBefore(int64_t seconds) {
    e->modified.seconds = static_cast<uint32_t>(time(nullptr) - seconds);
  }

  bool Holds(const std::wstring& expression) {
    const int result = MatchEntry(expression.c_str(), *e);
    EXPECT_NE(result, -1) << std::string(expression.begin(), expression.end());
    return result == 1;
  }
  bool IsError(const wchar_t* expression) { return MatchEntry(expression, *e) == -1; }

  entry* e = NewEntry(L"test");
};

TEST_F(Criterion, SizesHaveUnitsOfBinaryThousands) {
  e->size = 100 * 1024;
  EXPECT_TRUE(Holds(L"%size=100k"));
  EXPECT_TRUE(Holds(L"%size=100K"));
  EXPECT_FALSE(Holds(L"%size>100k"));
  e->size = 3 << 20;
  EXPECT_TRUE(Holds(L"%size=3M"));
  e->size = int64_t{5} << 30;
  EXPECT_TRUE(Holds(L"%size=5g"));
}

TEST_F(Criterion, OnlyTheLastCharacterIsAUnit) {
  e->size = 11;
  EXPECT_TRUE(Holds(L"%size>10x"));
  EXPECT_FALSE(Holds(L"%size>11x"));
  EXPECT_TRUE(Holds(L"%size>10kb"));
  EXPECT_TRUE(Holds(L"%size=11t"));
}

TEST_F(Criterion, HugeNumbersStayHuge) {
  e->size = int64_t{1} << 50;
  EXPECT_TRUE(Holds(L"%size<9223372036854775807g"));
  EXPECT_TRUE(Holds(L"%size<99999999999999999999999999"));
}

TEST_F(Criterion, OperatorsCompareNumbers) {
  e->size = 10;
  for (const wchar_t* text : {L"%size=10", L"%size==10", L"%size<=10", L"%size>=10", L"%size!=9", L"%size<11",
                              L"%size<=11", L"%size>9", L"%size>=9", L"%size => 10", L"%size=<10"}) {
    EXPECT_TRUE(Holds(text)) << std::string(text, text + wcslen(text));
  }
  for (const wchar_t* text : {L"%size=9", L"%size==9", L"%size<=9", L"%size>=11", L"%size!=10", L"%size<10",
                              L"%size>10", L"%size=>9", L"%size=<11"}) {
    EXPECT_FALSE(Holds(text)) << std::string(text, text + wcslen(text));
  }
}

TEST_F(Criterion, OperatorsThatAreNoneAreErrors) {
  for (const wchar_t* text :
       {L"%size", L"%size ", L"%size>", L"%size 10", L"%size!10", L"%size~10", L"%size<>10", L"%size > & a",
        L"%", L"%=1", L"%sizes>1", L"%siz>1", L"%size10"}) {
    EXPECT_TRUE(IsError(text)) << std::string(text, text + wcslen(text));
  }
}

TEST_F(Criterion, AnUnknownOperatorWithAnEqualSignHoldsOnEqualNumbers) {
  e->size = 10;
  EXPECT_TRUE(Holds(L"%size~=10"));
  EXPECT_TRUE(IsError(L"%size~=11"));
}

TEST_F(Criterion, BlanksMayStandBetweenAllParts) {
  e->size = 10;
  EXPECT_TRUE(Holds(L"  %size  >=  10  &  test "));
  EXPECT_TRUE(Holds(L"!%size > 10"));
  EXPECT_TRUE(Holds(L"( %SIZE>9 )&%Size<11"));
}

TEST_F(Criterion, TheSyntaxCheckComparesWithZeroes) {
  EXPECT_EQ(MatchName(L"%size>0", L"test"), 0);
  EXPECT_EQ(MatchName(L"%size=0", L"test"), 1);
  EXPECT_EQ(MatchName(L"%size>100k & %age<7d", L"test"), 0);
}

TEST_F(Criterion, AgesHaveUnitsOfTime) {
  ModifiedBefore(3 * 86400);
  EXPECT_TRUE(Holds(L"%age<7d"));
  EXPECT_FALSE(Holds(L"%age<2D"));
  EXPECT_TRUE(Holds(L"%age>71h"));
  EXPECT_FALSE(Holds(L"%age>73H"));
  EXPECT_TRUE(Holds(L"%age>4319m"));
  EXPECT_FALSE(Holds(L"%age>4330m"));
  EXPECT_TRUE(Holds(L"%age>259100"));
  EXPECT_FALSE(Holds(L"%age>260000s"));
}

TEST_F(Criterion, AFileOfTheFutureHasANegativeAge) {
  ModifiedBefore(-86400);
  EXPECT_TRUE(Holds(L"%age<0"));
}

TEST_F(Criterion, AttributesAreMaskedByTheLetters) {
  e->attributes = kAttrDirectory | kAttrLink;
  EXPECT_TRUE(Holds(L"%attrib=d"));
  EXPECT_TRUE(Holds(L"%attrib=D"));
  EXPECT_TRUE(Holds(L"!%attrib=h"));
  EXPECT_FALSE(Holds(L"%attrib=dh"));
  e->attributes |= kAttrHidden;
  EXPECT_TRUE(Holds(L"%attrib=dh"));
  EXPECT_FALSE(Holds(L"%attrib=rd"));
  EXPECT_TRUE(Holds(L"%attrib=z")) << "no letter, no bit: nothing equals nothing";
  EXPECT_TRUE(Holds(L"%attrib!=rd"));
  EXPECT_FALSE(Holds(L"%attrib>0")) << "without letters both sides are zero";
}

TEST_F(Criterion, PermissionsAreThoseOfTheUsersClass) {
  const gid_t strange = 54321;
  e->uid = static_cast<uint16_t>(geteuid());
  e->gid = strange;
  e->mode = 0704;
  EXPECT_TRUE(Holds(L"%perm=rw"));
  EXPECT_TRUE(Holds(L"%perm=RWX"));
  e->mode = 0477;
  EXPECT_TRUE(Holds(L"%perm=r"));
  EXPECT_FALSE(Holds(L"%perm=rw"));

  e->uid = static_cast<uint16_t>(geteuid() + 1);
  e->mode = 0475;
  EXPECT_TRUE(Holds(L"%perm=rx")) << "the bits for others";
  EXPECT_FALSE(Holds(L"%perm=w"));
}

TEST_F(Criterion, PermissionsOfAGroupAreForItsMembers) {
  e->uid = static_cast<uint16_t>(geteuid() + 1);
  e->mode = 0475;
  std::vector<gid_t> groups(64);
  if (getgroups(64, groups.data()) < 1) GTEST_SKIP() << "the process has no groups";
  e->gid = static_cast<uint16_t>(groups[0]);
  EXPECT_TRUE(Holds(L"%perm=rwx"));
  e->uid = static_cast<uint16_t>(geteuid());
  EXPECT_FALSE(Holds(L"%perm=w")) << "the owner's bits go before the group's";
}

TEST_F(Criterion, OwnersAndGroupsGoByTheirNames) {
  const passwd* const user = getpwuid(0);
  const group* const root = getgrgid(0);
  if (!user || !root) GTEST_SKIP() << "no names for number 0";
  EXPECT_TRUE(Holds(L"%owner=" + std::wstring(Westring(user->pw_name).Text())));
  EXPECT_TRUE(Holds(L"%group=" + std::wstring(Westring(root->gr_name).Text())));
  e->uid = e->gid = 1;
  EXPECT_FALSE(Holds(L"%owner=" + std::wstring(Westring(user->pw_name).Text())));
  EXPECT_FALSE(Holds(L"%group=" + std::wstring(Westring(root->gr_name).Text())));
}

TEST_F(Criterion, AUserWhoDoesNotExistOwnsNothing) {
  EXPECT_FALSE(Holds(L"%owner=nosuchuser"));
  EXPECT_FALSE(Holds(L"%group=nosuchgroup"));
  EXPECT_TRUE(Holds(L"%owner>nosuchuser")) << "0 is above -1";
  EXPECT_FALSE(Holds(L"%owner=nosuchuser | %owner=nosuchother"));
}

TEST_F(Criterion, DatesAreReadInTheOrderOfTheLocale) {
  Modified(1999, 1, 2);
  EXPECT_TRUE(Holds(L"%date=1/2/99"));
  EXPECT_TRUE(Holds(L"%date>=1/2/99"));
  EXPECT_FALSE(Holds(L"%date=2/1/99"));
  DateOrder = kDateDayFirst;
  EXPECT_TRUE(Holds(L"%date=2/1/99"));
  DateOrder = kDateYearFirst;
  EXPECT_TRUE(Holds(L"%date=99/1/2"));
}

TEST_F(Criterion, DatesAreSplitAtTheSeparatorOfTheLocale) {
  Modified(1999, 1, 2);
  DateSeparator = '.';
  DateOrder = kDateDayFirst;
  EXPECT_TRUE(Holds(L"%date=2.1.1999"));
  EXPECT_TRUE(Holds(L"%date=02.01.99 & test"));
  DateSeparator = '-';
  DateOrder = kDateYearFirst;
  EXPECT_TRUE(Holds(L"%date=1999-01-02"));
}

TEST_F(Criterion, ShortYearsBelowSeventyOneAreOfThisCentury) {
  Modified(2003, 1, 2);
  EXPECT_TRUE(Holds(L"%date=1/2/03"));
  EXPECT_TRUE(Holds(L"%date=1/2/2003"));
  Modified(2070, 1, 2);
  EXPECT_TRUE(Holds(L"%date=1/2/70"));
  Modified(1971, 1, 2);
  EXPECT_TRUE(Holds(L"%date=1/2/71"));
}

TEST_F(Criterion, AllHoursOfADayAreThatDay) {
  for (const int hour : {0, 1, 12, 23}) {
    Modified(2024, 5, 17, hour, 59);
    EXPECT_TRUE(Holds(L"%date=5/17/2024")) << hour;
    EXPECT_TRUE(Holds(L"%date<5/18/2024")) << hour;
    EXPECT_TRUE(Holds(L"%date>5/16/2024")) << hour;
  }
}

TEST_F(Criterion, DaysHoldInEveryZoneAndAcrossChangesOfClocks) {
  // The last one goes forward at midnight, so that day has none.
  for (const char* zone : {"UTC", "CET-1CEST,M3.5.0,M10.5.0/3", "PST8PDT,M3.2.0,M11.1.0", "<+14>-14",
                           "<-12>12", "<-03>3<-02>,M10.3.0/0,M2.3.0/0"}) {
    SetZone(zone);
    for (int day = 1; day <= 28; ++day) {
      for (const int month : {2, 3, 10, 11}) {
        for (const int hour : {0, 2, 3, 23}) {
          Modified(2023, month, day, hour, 30);
          const std::wstring date = std::to_wstring(month) + L"/" + std::to_wstring(day) + L"/2023";
          EXPECT_TRUE(Holds(L"%date=" + date)) << zone << " " << month << "/" << day << " " << hour;
        }
      }
    }
  }
}

TEST_F(Criterion, DatesOfAnyShapeAreNumbersOfSomeKind) {
  for (const wchar_t* text : {L"%date=1", L"%date=1/2", L"%date=//", L"%date=x", L"%date=1/2/3/4/5",
                              L"%date=99999999999999999999/1/1", L"%date=1/2/99999999999999999999"}) {
    EXPECT_FALSE(IsError(text)) << std::string(text, text + wcslen(text));
  }
  EXPECT_TRUE(IsError(L"%date="));
}

}  // namespace
