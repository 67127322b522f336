// Commands that act on the program itself, and the template of commands that run
// apart, without a screen.
#include "shell/run_command.h"

#include <gtest/gtest.h>

#include "config/values/options.h"
#include "foundation/environment.h"
#include "panels/panel.h"
#include "shell/change_commands.h"
#include "unit/scratch_directory.h"

namespace {

std::string InTemplate(const wchar_t* background, const wchar_t* command, char sign = '!') {
  Options::Background = background;
  Options::CmdChar = sign;
  const std::string result = ToUtf8(ApplyBackgroundTemplate(command)).Text();
  Options::CmdChar = '!';
  return result;
}

// Hidden panels, whose reads are put off.
class OwnCommands : public testing::Test {
 protected:
  OwnCommands() {
    Panels = panels;
    ActiveSide = 0;
    for (TPanel& panel : panels) {
      panel.visible = false;
      CopyText(panel.path, Westring(files.Path().c_str()).Text());
      CopyText(panel.lastPath, panel.path);
    }
    files.MakeDirectory("a/b");
    files.MakeDirectory("c d");
    before = std::filesystem::current_path();
  }
  ~OwnCommands() override {
    std::filesystem::current_path(before);
    Variables.Load();
    Panels = nullptr;
  }

  static int Call(const wchar_t* command, int side = 0) { return RunCommand(command, side, L"", kRunPlain); }
  std::string Path(int side) const { return ToUtf8(panels[side].path).Text(); }

  TPanel panels[2];
  ScratchDirectory files;
  std::filesystem::path before;
};

}  // namespace

TEST(BackgroundTemplate, TheCommandTakesThePlaceOfEachSign) {
  EXPECT_EQ(InTemplate(L"term -x ! &", L"ls -l"), "term -x ls -l &");
  EXPECT_EQ(InTemplate(L"!;!", L"a"), "a;a");
  EXPECT_EQ(InTemplate(L"!", L"wow!"), "wow!");
}

TEST(BackgroundTemplate, WithoutASignTheCommandFollows) {
  EXPECT_EQ(InTemplate(L"term -x", L"ls -l"), "term -x ls -l");
  EXPECT_EQ(InTemplate(L"", L"ls"), " ls");
}

TEST(BackgroundTemplate, TheSignIsTheMacroCharacter) {
  EXPECT_EQ(InTemplate(L"term %", L"ls", '%'), "term ls");
  EXPECT_EQ(InTemplate(L"term !", L"ls", '%'), "term ! ls");
  EXPECT_EQ(InTemplate(L"term", L"ls", '\0'), "term ls");
}

TEST_F(OwnCommands, CdMovesThePanelOfItsSide) {
  panels[1].topIndex = 3;
  panels[1].cursorRow = 2;
  panels[1].panelType = kPanelInfo;
  EXPECT_EQ(Call(L"cd a/b", 1), 0);
  EXPECT_EQ(Path(1), files.Path("a/b"));
  EXPECT_EQ(Path(0), files.Path());
  EXPECT_EQ(panels[1].topIndex, 0);
  EXPECT_EQ(panels[1].cursorRow, 0);
  EXPECT_EQ(panels[1].panelType, kPanelFiles);
  EXPECT_TRUE(panels[1].readPending);
  EXPECT_EQ(std::filesystem::current_path(), files.Path("a/b"));
}

TEST_F(OwnCommands, CdTellsItsTargetAndLeavesTheReadToItsCaller) {
  Westring target;
  EXPECT_EQ(RunCd(L"cd   c\\ d", 0, target), 0);
  EXPECT_EQ(ToUtf8(target).Text(), files.Path("c d"));
  EXPECT_EQ(Path(0), files.Path("c d"));
  EXPECT_FALSE(panels[0].readPending);
}

TEST_F(OwnCommands, CdSkipsTheBlanksInFrontAndNotThoseOfTheName) {
  files.MakeDirectory("\xE3\x80\x80wide\xE3\x80\x80");
  EXPECT_EQ(Call(L"cd   \x3000wide\x3000"), 0);
  EXPECT_EQ(Path(0), files.Path("\xE3\x80\x80wide\xE3\x80\x80"));
}

namespace {

// A tree that knows of one directory by another name.
class KnownToTheTree {
 public:
  KnownToTheTree(TPanel& panel, const std::string& path) {
    panel.tree = reinterpret_cast<Tree*>(this);  // nobody looks into it
    known = path;
    ThePanelHooks.findInTree = [](const TPanel&, const Westring& typed, Westring& found) {
      if (typed != L"b/elsewhere") return false;
      found = Westring(known.c_str());
      return true;
    };
  }
  ~KnownToTheTree() { ThePanelHooks.findInTree = nullptr; }

 private:
  static inline std::string known;
};

}  // namespace

TEST_F(OwnCommands, CdToWhatIsNotThereGoesWhereTheTreeOfThePanelLeads) {
  const KnownToTheTree tree(panels[0], files.Path("a/b"));
  Westring target;
  EXPECT_EQ(RunCd(L"cd b\\\\elsewhere", 0, target), 0);
  EXPECT_EQ(ToUtf8(target).Text(), files.Path("a/b"));
  EXPECT_EQ(Path(0), files.Path("a/b"));
}

TEST_F(OwnCommands, CdAsksTheTreeOnlyForWhatIsNotThere) {
  const KnownToTheTree tree(panels[0], files.Path("a/b"));
  files.MakeDirectory("b/elsewhere");
  Westring target;
  EXPECT_EQ(RunCd(L"cd b/elsewhere", 0, target), 0);
  EXPECT_EQ(Path(0), files.Path("b/elsewhere"));
}

TEST_F(OwnCommands, SetSplitsAtTheFirstEqualsSign) {
  EXPECT_EQ(Call(L"set NAME=a=b "), 0);
  EXPECT_STREQ(Variables.Get("NAME"), "a=b");
  EXPECT_EQ(Call(L"set NAME="), 0);
  EXPECT_STREQ(Variables.Get("NAME"), "");
  EXPECT_EQ(Call(L"set \x4E16=\xE9"), 0);
  EXPECT_STREQ(Variables.Get("\xE4\xB8\x96"), "\xC3\xA9");
}
