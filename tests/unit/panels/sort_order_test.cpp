#include "panels/sort_order.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <string>

#include "unit/panels/two_panels.h"

namespace {

struct Item {
  std::wstring name;
  int64_t size = 0;
  FileTime modified = {};
  SortGroup group = kGroupFile;
};

std::wstring Sorted(const std::vector<Item>& items, int key) {
  std::vector<entry*> list;
  for (const Item& item : items) {
    entry* const e = NewEntry(item.name.c_str());
    e->size = item.size;
    e->modified = item.modified;
    e->sortGroup = item.group;
    list.push_back(e);
  }
  SortEntryList(list.data(), static_cast<int>(list.size()), key);
  std::wstring names;
  for (entry* e : list) {
    names += (names.empty() ? L"" : L" ") + std::wstring(e->name);
    FreeEntry(e);
  }
  return names;
}

enum { kName, kExtension, kTime, kSize, kSource, kRName, kRExtension, kRTime, kRSize, kRSource };

TEST(CompareNames, IgnoresCase) {
  EXPECT_EQ(CompareNames(L"ReadMe", L"rEADmE"), 0);
  EXPECT_LT(CompareNames(L"a", L"B"), 0);
  EXPECT_GT(CompareNames(L"\u00E9", L"\u00C8"), 0);
}

TEST(CompareNames, AnUnderscoreSortsBeforeEveryOtherCharacter) {
  EXPECT_LT(CompareNames(L"a_b", L"a1b"), 0);
  EXPECT_LT(CompareNames(L"a_b", L"a b"), 0);
  EXPECT_LT(CompareNames(L"a_b", L"a!b"), 0);
}

TEST(CompareNames, TheEndOfANameSortsBeforeAnUnderscore) {
  EXPECT_LT(CompareNames(L"a", L"a_"), 0);
  EXPECT_LT(CompareNames(L"a", L"ab"), 0);
}

TEST(CompareNames, OnlyTheLowByteOfACharacterCounts) {
  EXPECT_EQ(CompareNames(L"x\u0141y", L"xAy"), 0);
  EXPECT_LT(CompareNames(L"\u0430", L"a"), 0) << "folds to U+0410, and 16 is below 65";
}

TEST(SortOrder, ByNameWithUnderscoresFirst) {
  EXPECT_EQ(Sorted({{L"b"}, {L"a1b"}, {L"A_b"}, {L"a"}}, kName), L"a A_b a1b b");
  EXPECT_EQ(Sorted({{L"b"}, {L"a1b"}, {L"A_b"}, {L"a"}}, kRName), L"b a1b A_b a");
}

TEST(SortOrder, ByExtensionANameWithoutADotComesFirst) {
  EXPECT_EQ(Sorted({{L"b.c"}, {L"a.h"}, {L"z"}, {L"a.c"}, {L"y."}}, kExtension), L"y. z a.c b.c a.h");
  EXPECT_EQ(Sorted({{L"b.c"}, {L"a.h"}, {L"z"}, {L"a.c"}}, kRExtension), L"a.h b.c a.c z");
}

TEST(SortOrder, TheExtensionIsBehindTheLastDotEvenALeadingOne) {
  EXPECT_EQ(Sorted({{L"x.tar.gz"}, {L"a.tar"}, {L"b.gz"}}, kExtension), L"b.gz x.tar.gz a.tar");
  EXPECT_EQ(Sorted({{L"a.quit"}, {L".profile"}, {L"b.opt"}}, kExtension), L"b.opt .profile a.quit");
}

TEST(SortOrder, ByTimeTheNewestFirstAndNanosecondsBreakTies) {
  const std::vector<Item> items = {{L"old", 0, {5, 100}},
                                   {L"new", 0, {0, 200}},
                                   {L"newer", 0, {1, 200}},
                                   {L"b", 0, {9, 50}},
                                   {L"a", 0, {9, 50}}};
  EXPECT_EQ(Sorted(items, kTime), L"newer new old a b");
  EXPECT_EQ(Sorted(items, kRTime), L"b a old new newer");
}

TEST(SortOrder, BySizeTheLargestFirstThenByName) {
  const std::vector<Item> items = {{L"b", 5}, {L"a", 5}, {L"huge", int64_t{1} << 40}, {L"none", 0}};
  EXPECT_EQ(Sorted(items, kSize), L"huge a b none");
  EXPECT_EQ(Sorted(items, kRSize), L"none b a huge");
}

TEST(SortOrder, UnsortedAndItsReverseKeepTheOrderOfTheSource) {
  EXPECT_EQ(Sorted({{L"c"}, {L"a"}, {L"b"}}, kSource), L"c a b");
  EXPECT_EQ(Sorted({{L"c"}, {L"a"}, {L"b"}}, kRSource), L"c a b");
}

TEST(SortOrder, GroupsKeepTheirPlacesAlsoInReverse) {
  const std::vector<Item> items = {{L"file", 3},
                                   {L".hidden", 9, {}, kGroupHidden},
                                   {L"d1", 1, {}, kGroupDirectory},
                                   {L"d2", 2, {}, kGroupDirectory},
                                   {L"..", 0, {}, kGroupUp},
                                   {L"a", 5}};
  EXPECT_EQ(Sorted(items, kName), L".. d1 d2 .hidden a file");
  EXPECT_EQ(Sorted(items, kRName), L".. d2 d1 .hidden file a");
  EXPECT_EQ(Sorted(items, kSize), L".. d2 d1 .hidden a file");
  EXPECT_EQ(Sorted(items, kRSize), L".. d1 d2 .hidden file a");
}

TEST(SortOrder, TheWayUpLeadsByEveryKeyThatSorts) {
  const std::vector<Item> items = {{L"_", 0, {9, 900}, kGroupDirectory},
                                   {L"z.z", 900, {9, 900}, kGroupFile},
                                   {L"..", 5, {0, 5}, kGroupUp},
                                   {L".a", 0, {0, 0}, kGroupHidden}};
  for (int key : {kName, kExtension, kTime, kSize, kRName, kRExtension, kRTime, kRSize})
    EXPECT_EQ(Sorted(items, key), L".. _ .a z.z") << key;
}

TEST(SortOrder, NamesThatDifferInCaseKeepTheOrderTheyCameIn) {
  EXPECT_EQ(Sorted({{L"README"}, {L"readme"}, {L"a"}}, kName), L"a README readme");
  EXPECT_EQ(Sorted({{L"readme"}, {L"README"}, {L"a"}}, kName), L"a readme README");
}

TEST(SortOrder, AKeyOutsideTheTableChangesNothing) {
  EXPECT_EQ(Sorted({{L"b"}, {L"a"}}, -1), L"b a");
  EXPECT_EQ(Sorted({{L"b"}, {L"a"}}, kSortKeys), L"b a");
}

TEST(SortOrder, LongListsComeOutInOrderWithNothingLost) {
  std::mt19937 random(7);
  std::vector<Item> items;
  std::multiset<std::wstring> before;
  for (int i = 0; i < 3000; ++i) {
    items.push_back({L"f" + std::to_wstring(random() % 2000)});
    before.insert(items.back().name);
  }
  std::wstring all = Sorted(items, kName) + L" ";
  std::multiset<std::wstring> after;
  std::wstring last;
  for (size_t at = 0, blank; (blank = all.find(L' ', at)) != std::wstring::npos; at = blank + 1) {
    const std::wstring name = all.substr(at, blank - at);
    EXPECT_LE(CompareNames(last.c_str(), name.c_str()), 0) << "the empty name comes before all";
    after.insert(last = name);
  }
  EXPECT_EQ(before, after);
}

// A character whose low byte is zero compares equal to the end of a name, so
// "equal" is not the same for all. The sort must survive it.
TEST(SortOrder, NamesWithoutAConsistentOrderAreOnlyMoved) {
  std::mt19937 random(3);
  const wchar_t alphabet[] = {0x100, 0x200, L'a', L'b', L'_'};
  std::vector<Item> items;
  std::vector<std::wstring> before;
  for (int i = 0; i < 2000; ++i) {
    std::wstring name;
    for (size_t n = 1 + random() % 4; n > 0; --n) name += alphabet[random() % 5];
    items.push_back({name});
    before.push_back(name);
  }
  for (int key = 0; key < kSortKeys; ++key) {
    std::wstring all = Sorted(items, key) + L" ";
    std::vector<std::wstring> after;
    for (size_t at = 0, blank; (blank = all.find(L' ', at)) != std::wstring::npos; at = blank + 1) {
      after.push_back(all.substr(at, blank - at));
    }
    std::sort(before.begin(), before.end());
    std::sort(after.begin(), after.end());
    EXPECT_EQ(before, after) << key;
  }
}

TEST(SortOrder, TheNamesOfTheKeysAreThoseOfTheSettings) {
  const Names names(kSortNames, kSortNames + kSortKeys);
  EXPECT_EQ(names, (Names{"name", "extension", "time", "size", "unsorted", "rname", "rextension", "rtime",
                          "rsize", "unsorted"}));
}

class SetSortTest : public TwoPanels {};

TEST_F(SetSortTest, KeepsTheCursorOnItsFile) {
  MakeFiles({"a", "b", "c"});
  scratch.Write("big", "123");
  TPanel& panel = Read();
  PositionOn(panel, L"big");
  SetSort(panel, kSize);
  EXPECT_EQ(NamesOf(panel), (Names{"..", "big", "a", "b", "c"}));
  EXPECT_EQ(Under(panel), "big");
  EXPECT_EQ(panel.sortKey, kSize);
}

TEST_F(SetSortTest, TheKeyGoesToTheOptionOfTheSide) {
  Options::LeftSort = Options::RightSort = kName;
  SetSort(Left(), kRTime);
  EXPECT_EQ(Options::LeftSort, kRTime);
  EXPECT_EQ(Options::RightSort, kName);
  SetSort(Right(), kSize);
  EXPECT_EQ(Options::LeftSort, kRTime);
  EXPECT_EQ(Options::RightSort, kSize);
}

TEST_F(SetSortTest, UnsortedReadsAgainAndKeepsTagsAndCursor) {
  MakeFiles({"a", "b", "c"});
  TPanel& panel = Read();
  SetSort(panel, kRName);
  EntryOf(panel, "b")->tagged = 1;
  PositionOn(panel, L"c");
  scratch.Write("new", "");
  SetSort(panel, kSource);
  EXPECT_NE(EntryOf(panel, "new"), nullptr);
  EXPECT_TRUE(EntryOf(panel, "b")->tagged);
  EXPECT_EQ(panel.taggedCount, 1);
  EXPECT_EQ(Under(panel), "c");
  EXPECT_STREQ(panel.entries[0]->name, L"..");
}

TEST_F(SetSortTest, ATreeOnlyKeepsTheKey) {
  MakeFiles({"a", "b"});
  TPanel& panel = Read();
  panel.style = kStyleTree;
  SetSort(panel, kRName);
  EXPECT_EQ(panel.sortKey, kRName);
  EXPECT_EQ(NamesOf(panel), (Names{"..", "a", "b"}));
}

TEST_F(SetSortTest, AnEmptyListTakesAnyKey) {
  for (int key = 0; key < kSortKeys; ++key) SetSort(Right(), key);
  EXPECT_EQ(Right().sortKey, kRSource);
}

}  // namespace
