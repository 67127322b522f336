// The command of a file, and what Enter does without a screen.
#include "shell/execute.h"

#include <sys/stat.h>

#include "config/values/associations.h"
#include "unit/shell/shell_fixture.h"

namespace {

class FileCommand : public ShellFixture {
 protected:
  FileCommand() { CopyText(panel.path, L"/some where"); }
  ~FileCommand() override { Associations.Clear(); }

  // Of a file with those rights; "none" if there is none.
  std::wstring CommandOf(const wchar_t* name, unsigned mode = S_IFREG | 0644, unsigned attributes = 0) {
    entry* const file = NewEntry(name);
    file->mode = static_cast<uint16_t>(mode);
    file->attributes = static_cast<uint16_t>(attributes);
    Westring command = L"none";
    const bool found = FindFileCommand(0, *file, command);
    FreeEntry(file);
    EXPECT_EQ(found, command != L"none");
    return command.Text();
  }
};

}  // namespace

TEST_F(FileCommand, OfAPlainFileThereIsNone) {
  EXPECT_EQ(CommandOf(L"file"), L"none");
  EXPECT_EQ(CommandOf(L"file", S_IFREG | 0666), L"none");
}

TEST_F(FileCommand, OfAProgramIsItsWholeQuotedPath) {
  EXPECT_EQ(CommandOf(L"run it", S_IFREG | 0755), L"/some\\ where/run\\ it");
  for (const unsigned bit : {0100u, 0010u, 0001u})
    EXPECT_EQ(CommandOf(L"run", S_IFREG | bit), L"/some\\ where/run");
}

TEST_F(FileCommand, ALinkThatLeadsNowhereIsNoProgram) {
  EXPECT_EQ(CommandOf(L"link", S_IFLNK | 0777, kAttrLink | kAttrDangling), L"none");
}

TEST_F(FileCommand, ATestWithMycmdRunsItOnTheFile) {
  Associations.Add(L"test", L"mycmd");
  EXPECT_EQ(CommandOf(L"test"), L"mycmd test");
  EXPECT_EQ(CommandOf(L"TEST"), L"mycmd TEST");
  EXPECT_EQ(CommandOf(L"tests"), L"none");
}

TEST_F(FileCommand, TheMacrosOfAnAssociationStandForTheFile) {
  Associations.Add(L"*.c", L"cc ! -o !x; echo !!");
  EXPECT_EQ(CommandOf(L"a b.c"), L"cc a\\ b.c -o a\\ b; echo !");
}

TEST_F(FileCommand, AnEmptyAssociationIsTheFileItself) {
  Associations.Add(L"*", L"");
  EXPECT_EQ(CommandOf(L"file"), L"file");
}

TEST_F(FileCommand, TheAttributesCountForTheAssociation) {
  Associations.Add(L"!*.txt", L"other");
  Associations.Add(L"*", L"text");
  EXPECT_EQ(CommandOf(L"a.txt", S_IFREG | 0755), L"text a.txt");
  EXPECT_EQ(CommandOf(L"a.c", S_IFREG | 0755), L"other a.c");
}

TEST_F(FileCommand, TheMacroCharacterInANameIsNoMacro) {
  EXPECT_EQ(CommandOf(L"wow!f", S_IFREG | 0755), L"/some\\ where/wow\\!f");
}

TEST_F(FileCommand, WithoutAnEntryEnterPaintsNothing) {
  EXPECT_EQ(ExecuteCommandLine(0, L"", false), kRedrawNothing);
}

TEST_F(FileCommand, ATreeLeadsThePanelBesideIt) {
  SetTree();
  Place(0, 2);
  panels[1].visible = false;  // its read is put off
  CopyText(panels[1].path, L"/other");
  panels[1].topIndex = 4;
  panels[1].cursorRow = 5;
  EXPECT_EQ(ExecuteCommandLine(0, L"", false), kRedrawLine);
  EXPECT_EQ(std::wstring(panels[1].path), L"/a/b");
  EXPECT_EQ(panels[1].topIndex, 0);
  EXPECT_EQ(panels[1].cursorRow, 0);
  EXPECT_TRUE(panels[1].readPending);
  EXPECT_EQ(std::wstring(panel.path), L"/some where");
}

TEST_F(FileCommand, CommandsOfATreeRunBesideIt) {
  SetTree();
  EXPECT_EQ(CommandSide(0), 1);
  EXPECT_EQ(CommandSide(1), 1);
  panels[1].panelType = kPanelInfo;
  EXPECT_EQ(CommandSide(1), 0);
}
