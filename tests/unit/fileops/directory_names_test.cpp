// Names as a walk gets them.
#include "fileops/directory_names.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <set>

#include "unit/scratch_directory.h"

namespace {

Westring Wide(const std::string& text) { return Westring(text.c_str()); }

std::set<std::string> All(DirectoryNames& names) {
  std::set<std::string> all;
  while (const char* name = names.Next()) all.insert(name);
  return all;
}

TEST(DirectoryNames, AllButTheTwoDotsAreRead) {
  ScratchDirectory files;
  files.Write("a", "");
  files.Write("...", "");
  files.Write(".b", "");
  files.Write("\xE9", "");
  files.MakeDirectory("sub");
  DirectoryNames names;
  ASSERT_EQ(names.Read(Wide(files.Path())), 0);
  EXPECT_EQ(All(names), (std::set<std::string>{"a", "...", ".b", "\xE9", "sub"}));
  EXPECT_EQ(names.Next(), nullptr);
}

TEST(DirectoryNames, ReadingAgainStartsAgain) {
  ScratchDirectory files;
  files.Write("a", "");
  DirectoryNames names;
  ASSERT_EQ(names.Read(Wide(files.Path())), 0);
  files.Write("b", "");
  EXPECT_EQ(All(names), std::set<std::string>{"a"});
  ASSERT_EQ(names.Read(Wide(files.Path())), 0);
  EXPECT_EQ(All(names), (std::set<std::string>{"a", "b"}));
}

TEST(DirectoryNames, OnlyARealDirectoryIsRead) {
  ScratchDirectory files;
  files.Write("file", "");
  files.MakeDirectory("sub");
  std::filesystem::create_symlink("sub", files.Path("link"));
  DirectoryNames names;
  EXPECT_EQ(names.Read(Wide(files.Path("absent"))), ENOENT);
  EXPECT_EQ(names.Read(Wide(files.Path("file"))), ENOTDIR);
  EXPECT_NE(names.Read(Wide(files.Path("link"))), 0);
}

TEST(DirectoryNames, LooksTellLinksFromWhatTheyLeadTo) {
  ScratchDirectory files;
  files.MakeDirectory("sub");
  std::filesystem::create_symlink("sub", files.Path("link"));
  DirectoryNames names;
  ASSERT_EQ(names.Read(Wide(files.Path())), 0);
  struct stat status;
  ASSERT_TRUE(names.Look("link", status));
  EXPECT_TRUE(S_ISLNK(status.st_mode));
  EXPECT_TRUE(names.LooksLikeDirectory("link"));
  EXPECT_FALSE(names.Look("absent", status));
}

TEST(DirectoryNames, TextThatLeadsBackToTheNameIsGood) {
  Westring text;
  for (const char* name : {"plain", "a\\b", "new\nline", "\xC3\xA9", "\xE2\x82\xAC", "\xF0\x9F\x98\x80"})
    EXPECT_TRUE(DecodeName(name, text)) << name;
}

TEST(DirectoryNames, TextThatLeadsElsewhereIsNot) {
  Westring text;
  // A lone byte, a cut sequence, and spellings of "/", "." and zero that are too long.
  for (const char* name :
       {"\xE9", "a\xFFz", "\xC3", "\xE2\x82", "..\xC0\xAF..", "\xC0\xAE", "\xC0\x80", "\xE0\x80\xAF"})
    EXPECT_FALSE(DecodeName(name, text)) << name;
}

}  // namespace
