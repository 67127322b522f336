// Environments: names without case, inheritance, the block for children, and
// the expansion of texts.
#include "foundation/environment.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "foundation/paths.h"

namespace {

std::vector<std::string> Entries(Environment& environment) {
  std::vector<std::string> entries;
  for (const char* p = environment.Block(); *p; p += entries.back().size() + 1) entries.push_back(p);
  return entries;
}

std::string Expanded(const char* text) { return ToUtf8(ExpandEnvironment(Westring(text))).Text(); }

// Variables as they were, when a test ends.
class ExpandEnvironmentTest : public testing::Test {
 protected:
  ~ExpandEnvironmentTest() override { Variables.Load(); }
};

}  // namespace

TEST(Environment, NamesIgnoreCaseAndKeepTheirFirstSpelling) {
  Environment set;
  set.Set("Path", "/a");
  EXPECT_STREQ(set.Get("PATH"), "/a");
  set.Set("PATH", "/b");
  EXPECT_STREQ(set.Get("path"), "/b");
  EXPECT_EQ(set.Count(), 1);
  EXPECT_STREQ(set.Peek(0)->key.Text(), "Path");
}

TEST(Environment, NullValueRemovesTheName) {
  Environment set;
  set.Set("A", "1");
  set.Set("a", nullptr);
  EXPECT_EQ(set.Get("A"), nullptr);
  EXPECT_EQ(set.Count(), 0);
}

TEST(Environment, RemovingAMissingNameLeavesTheParents) {
  Environment parent;
  parent.Set("A", "1");
  Environment set(&parent);
  set.Set("A", nullptr);
  EXPECT_STREQ(set.Get("A"), "1");
}

TEST(Environment, OwnValueHidesTheParents) {
  Environment parent;
  parent.Set("A", "1");
  Environment set(&parent);
  EXPECT_STREQ(set.Get("A"), "1");
  set.Set("A", "2");
  EXPECT_STREQ(set.Get("A"), "2");
  EXPECT_STREQ(parent.Get("A"), "1");
  EXPECT_EQ(set.Get("B"), nullptr);
}

TEST(Environment, SetTakesItsOwnValue) {
  Environment set;
  set.Set("A", "a value that is longer than the inline part of a string");
  set.Set("A", set.Get("A"));
  EXPECT_STREQ(set.Get("A"), "a value that is longer than the inline part of a string");
  set.Set("A", set.Get("A") + 2);
  EXPECT_STREQ(set.Get("A"), "value that is longer than the inline part of a string");
}

TEST(Environment, EmptyNameIsNotTaken) {
  Environment set;
  set.Set("", "x");
  set.Set(nullptr, "x");
  EXPECT_EQ(set.Count(), 0);
}

TEST(Environment, CopyTakesTheParentsFirstThenItsOwn) {
  Environment grandparent, parent(&grandparent), set(&parent), copy;
  grandparent.Set("A", "1");
  grandparent.Set("B", "1");
  parent.Set("B", "2");
  parent.Set("C", "2");
  set.Set("C", "3");
  set.CopyTo(copy);
  EXPECT_STREQ(copy.Get("A"), "1");
  EXPECT_STREQ(copy.Get("B"), "2");
  EXPECT_STREQ(copy.Get("C"), "3");
  EXPECT_EQ(copy.Count(), 3);
}

TEST(EnvironmentBlock, HoldsSortedNamesAndLeavesEmptyValuesOut) {
  Environment set;
  set.Set("b", "2");
  set.Set("A", "1");
  set.Set("EMPTY", "");
  set.Set("PATH", "/bin");
  const std::string directory = ProgramDirectory().Text();
  EXPECT_EQ(Entries(set), (std::vector<std::string>{"A=1", "b=2", "PATH=/bin:" + directory}));
}

TEST(EnvironmentBlock, DoesNotChangeTheSetItself) {
  Environment set;
  set.Set("PATH", "/bin");
  set.Block();
  set.Block();
  EXPECT_STREQ(set.Get("PATH"), "/bin");
  EXPECT_EQ(Entries(set).size(), 1u);
}

TEST(EnvironmentBlock, WithoutAPathHasNoEmptyPartInIt) {
  Environment set;
  EXPECT_EQ(Entries(set), std::vector<std::string>{std::string("PATH=") + ProgramDirectory().Text()});
}

TEST(EnvironmentBlock, HoldsThePartsOfTheParent) {
  Environment parent, set(&parent);
  parent.Set("A", "1");
  parent.Set("PATH", "/p");
  set.Set("PATH", "/own");
  const std::string directory = ProgramDirectory().Text();
  EXPECT_EQ(Entries(set), (std::vector<std::string>{"A=1", "PATH=/own:" + directory}));
}

TEST(ProcessEnvironment, SplitsAtTheFirstEqualsSign) {
  setenv("ORVANE_TEST_VARIABLE", "a=b=c", 1);
  ProcessEnvironment process;
  EXPECT_STREQ(process.Get("ORVANE_TEST_VARIABLE"), "a=b=c");
  unsetenv("ORVANE_TEST_VARIABLE");
}

TEST(ProcessEnvironment, LoadForgetsWhatWasSet) {
  ProcessEnvironment process;
  process.Set("ORVANE_TEST_VARIABLE", "x");
  process.Load();
  EXPECT_EQ(process.Get("ORVANE_TEST_VARIABLE"), nullptr);
}

TEST(ProcessEnvironment, PassesOverEntriesWithoutAnEqualsSign) {
  char broken[] = "BROKEN", good[] = "GOOD=1";
  char* entries[] = {broken, good, nullptr};
  char** before = environ;
  environ = entries;
  ProcessEnvironment process;
  environ = before;
  EXPECT_EQ(process.Count(), 1);
  EXPECT_STREQ(process.Get("GOOD"), "1");
}

TEST(HomeDirectoryOf, AnAccountWithoutHomeVariableIsThatOfItsEntry) {
  const char* old = getenv("HOME");
  const std::string before = old ? old : "";
  setenv("HOME", "/somewhere", 1);
  EXPECT_STREQ(HomeDirectory().Text(), "/somewhere");
  unsetenv("HOME");
  const std::string unset = HomeDirectory().Text();
  setenv("HOME", "", 1);
  EXPECT_EQ(unset, HomeDirectory().Text());
  EXPECT_TRUE(unset.empty() || unset[0] == '/') << unset;
  if (old)
    setenv("HOME", before.c_str(), 1);
  else
    unsetenv("HOME");
}

TEST_F(ExpandEnvironmentTest, LeadingTildeAndSlashAreTheHome) {
  Variables.Set("HOME", "/home/me");
  EXPECT_EQ(Expanded("~/x"), "/home/me/x");
  EXPECT_EQ(Expanded("~/"), "/home/me/");
  EXPECT_EQ(Expanded("~"), "~");
  EXPECT_EQ(Expanded("~x/"), "~x/");
  EXPECT_EQ(Expanded("/~/x"), "/~/x");
}

TEST_F(ExpandEnvironmentTest, WithoutAHomeVariableTheTildeIsTheAccounts) {
  Variables.Set("HOME", nullptr);
  EXPECT_EQ(Expanded("~/x"), std::string(HomeDirectory().Text()) + "/x");
  Variables.Set("HOME", "");
  EXPECT_EQ(Expanded("~/x"), std::string(HomeDirectory().Text()) + "/x");
}

TEST_F(ExpandEnvironmentTest, NamesBecomeTheirValues) {
  Variables.Set("ONE", "1");
  Variables.Set("LONG_NAME2", "two");
  EXPECT_EQ(Expanded("a/$ONE/b"), "a/1/b");
  EXPECT_EQ(Expanded("$LONG_NAME2"), "two");
  EXPECT_EQ(Expanded("$one.$ONE"), "1.1");
  EXPECT_EQ(Expanded("no variable"), "no variable");
}

TEST_F(ExpandEnvironmentTest, UnknownNameVanishes) {
  EXPECT_EQ(Expanded("$NOSUCH/x"), "/x");
  Variables.Set("ONE", "1");
  EXPECT_EQ(Expanded("$NOSUCH$ONE"), "1");  // the second dollar is a name's own
}

TEST_F(ExpandEnvironmentTest, ClosingDollarGoesWithAValue) {
  Variables.Set("ONE", "1");
  Variables.Set("EMPTY", "");
  EXPECT_EQ(Expanded("$ONE$x"), "1x");
  EXPECT_EQ(Expanded("$EMPTY$x"), "x");
}

TEST_F(ExpandEnvironmentTest, LoneDollarStays) {
  EXPECT_EQ(Expanded("$"), "$");
  EXPECT_EQ(Expanded("a$ b"), "a$ b");
  EXPECT_EQ(Expanded("$/$-"), "$/$-");
}

TEST_F(ExpandEnvironmentTest, ValueIsNotExpandedAgain) {
  Variables.Set("ONE", "$TWO");
  Variables.Set("TWO", "2");
  EXPECT_EQ(Expanded("$ONE"), "$TWO");
}
