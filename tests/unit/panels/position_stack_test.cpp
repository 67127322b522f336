#include "panels/position_stack.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "unit/scratch_directory.h"

namespace {

TEST(PositionStack, AKnownPathIsUpdatedAndNotKeptTwice) {
  CPosStack stack;
  stack.Remember(L"/a", 3, L"old");
  stack.Remember(L"/a", 7, L"new");
  EXPECT_EQ(stack.Count(), 1);
  const Westring path(L"/a");
  EXPECT_EQ(stack.Find(&path)->top, 7);
  EXPECT_STREQ(stack.Find(&path)->name.Text(), L"new");
}

TEST(PositionStack, PathsThatDifferOnlyInCaseAreTwo) {
  CPosStack stack;
  stack.Remember(L"/a", 1, L"");
  stack.Remember(L"/A", 2, L"");
  EXPECT_EQ(stack.Count(), 2);
  const Westring path(L"/A");
  EXPECT_EQ(stack.Find(&path)->top, 2);
}

TEST(PositionStack, ACopyHasItemsOfItsOwn) {
  CPosStack stack;
  stack.Remember(L"/b", 2, L"two");
  stack.Remember(L"/a", 1, L"one");
  CPosStack copy(stack);
  stack.Remember(L"/a", 9, L"nine");
  const Westring path(L"/a");
  EXPECT_EQ(copy.Count(), 2);
  EXPECT_EQ(copy.Find(&path)->top, 1);
  EXPECT_STREQ(copy.Find(&path)->name.Text(), L"one");
  copy = *&copy;
  EXPECT_EQ(copy.Count(), 2);
}

TEST(LinkTargetCache, ALinkIsReadOnceUntilTheCacheIsEmptied) {
  ScratchDirectory scratch;
  ASSERT_EQ(symlink("first", scratch.Path("link").c_str()), 0);
  const Westring link(scratch.Path("link").c_str());
  CLinkTargetCache cache;
  EXPECT_STREQ(cache.Target(link).Text(), L"first");

  unlink(scratch.Path("link").c_str());
  ASSERT_EQ(symlink("second", scratch.Path("link").c_str()), 0);
  EXPECT_STREQ(cache.Target(link).Text(), L"first");
  cache.Clear();
  EXPECT_STREQ(cache.Target(link).Text(), L"second");
}

TEST(LinkTargetCache, WhatCannotBeReadStaysEmpty) {
  ScratchDirectory scratch;
  CLinkTargetCache cache;
  const Westring link(scratch.Path("link").c_str());
  EXPECT_STREQ(cache.Target(link).Text(), L"");
  ASSERT_EQ(symlink("target", scratch.Path("link").c_str()), 0);
  EXPECT_STREQ(cache.Target(link).Text(), L"");
  EXPECT_EQ(cache.Count(), 1);
}

TEST(LinkTargetCache, ALongTargetComesWhole) {
  ScratchDirectory scratch;
  const std::string target(4000, 'x');
  ASSERT_EQ(symlink(target.c_str(), scratch.Path("link").c_str()), 0);
  CLinkTargetCache cache;
  EXPECT_EQ(Length(cache.Target(scratch.Path("link").c_str())), 4000);
}

}  // namespace
