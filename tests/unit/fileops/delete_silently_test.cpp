// Deletions that succeed without a question, and so without a screen.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "fileops/delete_file.h"
#include "fileops/unspellable_names.h"
#include "unit/scratch_directory.h"

namespace {

class DeleteSilently : public testing::Test {
 protected:
  Westring Path(const std::string& name) const { return Westring(scratch.Path(name).c_str()); }
  int Delete(const std::string& name, int mode = kDeleteSilent) {
    return DeleteFile(operation, Path(name), mode);
  }

  ScratchDirectory scratch;
  FileOperation operation;
};

}  // namespace

TEST_F(DeleteSilently, AFileGoes) {
  scratch.Write("a", "");
  scratch.Write("b", "");
  EXPECT_EQ(Delete("a"), 1);
  EXPECT_FALSE(scratch.Exists("a"));
  EXPECT_TRUE(scratch.Exists("b"));
}

TEST_F(DeleteSilently, AMissingFileIsNoErrorWhereAnythingMayBeThere) {
  EXPECT_EQ(Delete("none", kDeleteAnyway), 0);
  scratch.Write("file", "");
  EXPECT_EQ(Delete("file/below", kDeleteAnyway), 0);
  EXPECT_TRUE(scratch.Exists("file"));
}

TEST_F(DeleteSilently, ALinkGoesAndItsTargetStays) {
  scratch.MakeDirectory("target");
  scratch.Write("target/file", "kept");
  ASSERT_EQ(symlink("target", scratch.Path("toDirectory").c_str()), 0);
  ASSERT_EQ(symlink("target/file", scratch.Path("toFile").c_str()), 0);
  EXPECT_EQ(Delete("toDirectory"), 1);
  EXPECT_EQ(Delete("toFile"), 1);
  EXPECT_FALSE(scratch.Exists("toDirectory"));
  EXPECT_FALSE(scratch.Exists("toFile"));
  EXPECT_EQ(scratch.Content("target/file"), "kept");
}

TEST_F(DeleteSilently, ALinkThatLeadsNowhereGoes) {
  scratch.Write("file", "");
  for (const char* target : {"nowhere", "link", "file/below"}) {
    ASSERT_EQ(symlink(target, scratch.Path("link").c_str()), 0);
    EXPECT_EQ(Delete("link"), 1) << target;
    EXPECT_FALSE(scratch.Exists("link")) << target;
  }
}

TEST_F(DeleteSilently, AnEmptyDirectoryGoes) {
  scratch.MakeDirectory("empty");
  EXPECT_EQ(DeleteDirectory(operation, Path("empty")), 1);
  EXPECT_FALSE(scratch.Exists("empty"));
  scratch.MakeDirectory("other");
  EXPECT_EQ(DeleteDirectory(operation, Path("none/../other/")), 1);
  EXPECT_FALSE(scratch.Exists("other"));
}

TEST_F(DeleteSilently, TheWayUpIsNoDirectoryToDelete) {
  ASSERT_EQ(chdir(scratch.Path().c_str()), 0);
  EXPECT_EQ(DeleteDirectory(operation, L".."), 0);
  EXPECT_TRUE(scratch.Exists(""));
  ASSERT_EQ(chdir("/"), 0);
}

TEST_F(DeleteSilently, ADirectorysDescriptionAndItsNodeGoWithIt) {
  static std::vector<std::string> removed;
  removed.clear();
  TheTreeHooks.removed = [](const Westring& path) { removed.push_back(ToUtf8(path).Text()); };
  scratch.MakeDirectory("empty");
  scratch.Write("descript.ion", "empty nothing in it\nother text\n");
  EXPECT_EQ(DeleteDirectory(operation, Path("empty")), 1);
  TheTreeHooks.removed = nullptr;
  EXPECT_EQ(scratch.Content("descript.ion"), "other text\n");
  EXPECT_EQ(removed, std::vector<std::string>{scratch.Path("empty")});
}

TEST_F(DeleteSilently, AFilesDescriptionGoesWithIt) {
  scratch.Write("a", "");
  scratch.Write("b c", "");
  scratch.Write("descript.ion", "a first\n\"b c\" second\nd third\n");
  EXPECT_EQ(Delete("b c"), 1);
  EXPECT_EQ(scratch.Content("descript.ion"), "a first\nd third\n");
  EXPECT_EQ(Delete("a", kDeleteAnyway), 1);
  EXPECT_EQ(scratch.Content("descript.ion"), "d third\n");
}

// Each directory is looked at anew.
TEST_F(DeleteSilently, DescriptionsAreFoundInEachDirectory) {
  scratch.MakeDirectory("one");
  scratch.MakeDirectory("two");
  for (const char* name : {"one/a", "two/a"}) scratch.Write(name, "");
  scratch.Write("two/descript.ion", "a text\nb text\n");
  EXPECT_EQ(Delete("one/a"), 1);
  EXPECT_EQ(Delete("two/a"), 1);
  EXPECT_EQ(scratch.Content("two/descript.ion"), "b text\n");
}

TEST_F(DeleteSilently, AttributesOfOtherSystemsAreTakenAndDoNothing) {
  scratch.Write("a", "");
  chmod(scratch.Path("a").c_str(), 0444);
  EXPECT_EQ(SetAttributes(Path("a"), 0), 0);
  struct stat status;
  ASSERT_EQ(stat(scratch.Path("a").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0444u);
}

// Byte E9 reads as the letter that UTF-8 spells C3 A9; C1 81 reads as "A".
TEST_F(DeleteSilently, NamesThatReadAsAnotherAreKnown) {
  scratch.Write("caf\xE9", "");
  scratch.Write("\xC1\x81", "");
  scratch.Write("gr\xC3\xBCn", "");
  scratch.Write("plain", "");
  UnspellableNames names(Path(""));
  EXPECT_TRUE(names.Has(L"caf\u00E9"));
  EXPECT_TRUE(names.Has(L"A"));
  EXPECT_FALSE(names.Has(L"gr\u00FCn"));
  EXPECT_FALSE(names.Has(L"plain"));
}
