#include "panels/entry.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cwchar>

namespace {

TEST(Entry, ABlockIsTheHeadAndFourBytesForEachCharacter) {
  EXPECT_EQ(EntryBytes(0), sizeof(entry));
  EXPECT_EQ(EntryBytes(2), 64u);
  EXPECT_EQ(EntryBytes(255), sizeof(entry) + 255 * 4);
}

TEST(Entry, TheHeadEndsWithTheElementOfTheTerminator) {
  EXPECT_EQ(offsetof(entry, name) + sizeof(wchar_t), sizeof(entry));
}

TEST(Entry, ANewOneIsAllZeroButForItsNameAndItsLinkOutsideTheTree) {
  entry* const e = NewEntry(L"a name of more than a few characters");
  EXPECT_STREQ(e->name, L"a name of more than a few characters");
  EXPECT_EQ(e->size, 0);
  EXPECT_EQ(e->attributes, 0);
  EXPECT_EQ(e->mode, 0);
  EXPECT_EQ(e->modified, FileTime());
  EXPECT_EQ(e->tagged + e->processed + e->sizeKnown + e->sortGroup, 0);
  EXPECT_EQ(e->treeLink, -1);
  EXPECT_EQ(e->treeNode, nullptr);
  FreeEntry(e);
}

TEST(Entry, RoomForANameComesEmpty) {
  entry* const e = NewEntry(40);
  for (int i = 0; i <= 40; ++i) EXPECT_EQ(e->name[i], 0) << i;
  FreeEntry(e);
}

TEST(Entry, OnlyExactlyTwoDotsLeadUp) {
  const auto leadsUp = [](const wchar_t* name) {
    entry* const e = NewEntry(name);
    const bool result = IsDotDot(*e);
    FreeEntry(e);
    return result;
  };
  EXPECT_TRUE(leadsUp(L".."));
  EXPECT_FALSE(leadsUp(L"."));
  EXPECT_FALSE(leadsUp(L"..."));
  EXPECT_FALSE(leadsUp(L"..foo"));
  EXPECT_FALSE(leadsUp(L""));
}

TEST(Entry, SystemFilesAreKnownByTheirExactNames) {
  EXPECT_TRUE(IsSystemFile(L"descript.ion"));
  EXPECT_TRUE(IsSystemFile(L"EA DATA. SF"));
  EXPECT_TRUE(IsSystemFile(L"WP ROOT. SF"));
  EXPECT_FALSE(IsSystemFile(L"DESCRIPT.ION"));
  EXPECT_FALSE(IsSystemFile(L"ea data. sf"));
  EXPECT_FALSE(IsSystemFile(L"descript.ion2"));
}

}  // namespace
