// The script that is left for whatever started the program.
#include "shell/exit_script.h"

#include <gtest/gtest.h>

#include <memory>

#include "foundation/code_pages.h"
#include "unit/scratch_directory.h"

namespace {

class ExitScript : public testing::Test {
 protected:
  std::string ScriptFor(const wchar_t* path) {
    WriteExitScript(files.Path("script").c_str(), path);
    return files.Content("script");
  }

  ScratchDirectory files;
};

class StubArchive : public ArchiveLevel {
 public:
  explicit StubArchive(const wchar_t* path) : ArchiveLevel(path) {}
  bool StillThere() const override { return true; }
  std::unique_ptr<EntrySource> Open(const Westring&) override { return nullptr; }
  bool Lookup(const Westring&, uint16_t&) override { return false; }
};

}  // namespace

TEST_F(ExitScript, FirstCharacterAndColonStandForADrive) {
  EXPECT_EQ(ScriptFor(L"/home/u"), "/:\r\ncd \"ome/u\"\r\n");
}

TEST_F(ExitScript, ShortPathsLeaveNothingForTheDirectory) {
  EXPECT_EQ(ScriptFor(L"/"), "/:\r\ncd \"\"\r\n");
  EXPECT_EQ(ScriptFor(L"/a"), "/:\r\ncd \"\"\r\n");
  EXPECT_EQ(ScriptFor(L"/ab"), "/:\r\ncd \"b\"\r\n");
}

TEST_F(ExitScript, ThePathIsInTheCodePageOfTheSystem) {
  const auto kept = DefaultCodePage;
  DefaultCodePage = 850;
  EXPECT_EQ(ScriptFor(L"/h\xE9t\xE9"), "/:\r\ncd \"\x82t\x82\"\r\n");
  DefaultCodePage = kept;
}

TEST_F(ExitScript, AnOldFileIsReplaced) {
  files.Write("script", std::string(500, 'x'));
  EXPECT_EQ(ScriptFor(L"/ab"), "/:\r\ncd \"b\"\r\n");
}

TEST_F(ExitScript, AFileThatCannotBeMadeIsPassedOver) {
  WriteExitScript(files.Path("none/script").c_str(), L"/ab");
  EXPECT_FALSE(files.Exists("none"));
}

TEST_F(ExitScript, APlainDirectoryIsWrittenAsItIs) {
  TPanel panel;
  CopyText(panel.path, L"/home/u");
  EXPECT_STREQ(ExitScriptPath(panel).Text(), L"/home/u");
}

TEST_F(ExitScript, InAnArchiveTheDirectoryThatHoldsItIsWritten) {
  TPanel panel;
  CopyText(panel.path, L"/home/u/a.zip/inner/dir");
  panel.archive = std::make_unique<StubArchive>(L"/home/u/a.zip");
  EXPECT_STREQ(ExitScriptPath(panel).Text(), L"/home/u");
}
