#include "panels/panel_path.h"

#include <gtest/gtest.h>

namespace {

TEST(PanelPath, TheRootHasTwoForms) {
  EXPECT_TRUE(IsRootPath(L"/"));
  EXPECT_TRUE(IsRootPath(L"//"));
  EXPECT_FALSE(IsRootPath(L"/a"));
  EXPECT_FALSE(IsRootPath(L""));
}

TEST(PanelPath, ADirectoryHoldsItselfAndWhatIsBelowIt) {
  EXPECT_TRUE(IsPathInside(L"/a", L"/a"));
  EXPECT_TRUE(IsPathInside(L"/a/b", L"/a"));
  EXPECT_TRUE(IsPathInside(L"/a", L"/"));
  EXPECT_TRUE(IsPathInside(L"/", L"/"));
  EXPECT_FALSE(IsPathInside(L"/ab", L"/a"));
  EXPECT_FALSE(IsPathInside(L"/", L"/a"));
  EXPECT_FALSE(IsPathInside(L"/A/b", L"/a"));
  EXPECT_FALSE(IsPathInside(L"/a", L""));
}

TEST(PanelPath, TheParentOfATopDirectoryIsTheRoot) {
  EXPECT_STREQ(ParentPath(L"/a/b").Text(), L"/a");
  EXPECT_STREQ(ParentPath(L"/a").Text(), L"/");
  EXPECT_STREQ(ParentPath(L"/").Text(), L"/");
  EXPECT_STREQ(ParentPath(L"//host").Text(), L"/");
  EXPECT_STREQ(ParentPath(L"//host/a").Text(), L"//host");
  EXPECT_STREQ(ParentPath(L"").Text(), L"/");
}

TEST(PanelPath, ABackslashIsPartOfAName) {
  EXPECT_STREQ(ParentPath(L"/a/b\\c").Text(), L"/a");
  EXPECT_STREQ(LastComponent(L"/a/b\\c"), L"b\\c");
}

}  // namespace
