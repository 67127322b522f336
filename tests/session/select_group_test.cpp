// Tagging by expression and all at once, by real keys.
#include <gtest/gtest.h>

#include "dialogs/dialog_history.h"
#include "panels/panel.h"
#include "session/main_screen.h"
#include "shell/menu_commands.h"

namespace {

using Strings = std::vector<std::string>;

constexpr int kFirstX = 23, kTop = 6, kLastX = 56, kBottom = 15;  // of the dialog on 80 columns
constexpr int kInsideX = kFirstX + 1, kInsideY = kTop + 1;

const FileList kFiles = {{"left/a.c", "1"},
                         {"left/b.txt", std::string(2000, 'x')},
                         {"left/descript.ion", "d"},
                         {"left/dir.c/", ""},
                         {"right/r.c", ""}};

std::string Title(const Session& s) { return s.Text(kInsideX + 1, kInsideY + 1, 30).Trimmed(); }
std::string Field(const Session& s) { return s.Text(kInsideX + 1, kInsideY + 2, 30).Trimmed(); }
bool IsOpen(const Session& s) { return s.FindRow("lect the files").has_value(); }

// The tagged names; the counters have to agree with them.
Strings Tagged(const Session&, SessionSide side = kLeftSide) {
  Strings names;
  uint64_t bytes = 0;
  const TPanel& panel = Panels[side];
  for (int i = 0; i < panel.count; ++i) {
    if (!panel.entries[i]->tagged) continue;
    names.push_back(ToUtf8(panel.entries[i]->name).Text());
    bytes += static_cast<uint64_t>(panel.entries[i]->size);
  }
  EXPECT_EQ(panel.taggedCount, static_cast<int>(names.size()));
  EXPECT_EQ(panel.taggedBytes, bytes);
  return names;
}

// The expression and the history are the process's, and a test may run in one
// with others.
class SelectGroupTest : public testing::Test {
 protected:
  SelectGroupTest() { DialogHistories[kHistorySelectGroup].Clear(); }
  Session s{kFiles};
};

}  // namespace

TEST_F(SelectGroupTest, StandsInTheMiddleWithTitleFieldAndLabel) {
  s.Keys("Grey+");
  EXPECT_EQ(s.Character(kFirstX, kTop), U'╔');
  EXPECT_EQ(s.Character(kLastX, kBottom), U'╝');
  EXPECT_EQ(s.Attribute(kInsideX, kInsideY), 0x70);
  EXPECT_EQ(Title(s), "Select the files");
  for (int x : {1, 30}) EXPECT_EQ(s.Attribute(kInsideX + x, kInsideY + 2), 0x30) << x;
  for (int x : {0, 31}) EXPECT_EQ(s.Attribute(kInsideX + x, kInsideY + 2), 0x70) << x;
  EXPECT_EQ(s.Text(kInsideX + 19, kInsideY + 3, 12), " Alt-D=Dirs ");
  s.Keys("Esc Grey-");
  EXPECT_EQ(Title(s), "Unselect the files/directories");
  s.Keys("Esc");
}

TEST_F(SelectGroupTest, AltDTurnsTheDirectoriesOnAndOffInTheTitle) {
  s.Keys("Grey+ Alt-d");
  EXPECT_EQ(Title(s), "Select the files/directories");
  s.Keys("Alt-d");
  EXPECT_EQ(Title(s), "Select the files");
  s.Keys("'*.c' Alt-d Enter");
  EXPECT_EQ(Tagged(s), (Strings{"dir.c", "a.c"}));
  s.Keys("Grey- Alt-d Enter");
  EXPECT_EQ(Tagged(s), Strings{"dir.c"});
}

TEST_F(SelectGroupTest, ByOptionDirectoriesAreTakenFromTheStart) {
  s.Command(kMenuTagDirs);
  s.Keys("Grey+");
  EXPECT_EQ(Title(s), "Select the files/directories");
  s.Keys("Esc");
  s.Command(kMenuTagDirs);
}

TEST_F(SelectGroupTest, SelectsByNameAndUnselectsWithDirectories) {
  s.Keys("Grey+ '*' Enter");
  EXPECT_EQ(Tagged(s), (Strings{"a.c", "b.txt"})) << "neither directories nor the descriptions";
  s.Keys("Down Ins");
  EXPECT_EQ(Tagged(s), (Strings{"dir.c", "a.c", "b.txt"}));
  s.Keys("Grey- '*.c' Enter");
  EXPECT_EQ(Tagged(s), Strings{"b.txt"});
}

TEST_F(SelectGroupTest, SelectsBySize) {
  s.Keys("Grey+ '%size>1k' Enter");
  EXPECT_EQ(Tagged(s), Strings{"b.txt"});
  EXPECT_TRUE(s.Row(21).Contains("2,000 bytes in 1 selected file") ||
              s.Row(21).Contains("2000 bytes in 1 selected file"));
}

TEST_F(SelectGroupTest, TheExpressionIsOneForBothCommandsAndPanels) {
  s.Keys("Grey+ '*.c' Enter Tab Grey-");
  EXPECT_EQ(Field(s), "*.c");
  s.Keys("Esc Grey+ Enter");
  EXPECT_EQ(Tagged(s, kRightSide), Strings{"r.c"});
  EXPECT_EQ(Tagged(s), Strings{"a.c"});
}

TEST_F(SelectGroupTest, EscChangesNothing) {
  s.Keys("Grey+ '*.c' Enter Grey+ '*.txt' Esc");
  EXPECT_EQ(Tagged(s), Strings{"a.c"});
  s.Keys("Grey-");
  EXPECT_EQ(Field(s), "*.c");
  s.Keys("Esc");
  EXPECT_EQ(DialogHistories[kHistorySelectGroup].Count(), 1);
}

TEST_F(SelectGroupTest, ASyntaxErrorIsToldAndTheDialogGoesOn) {
  s.Keys("Grey+ '%size' Enter");
  ASSERT_TRUE(s.FindRow("Syntax error in search expression"));
  EXPECT_EQ(s.Attribute(40, *s.FindRow("Syntax error in search expression")), 0x4F);
  EXPECT_TRUE(s.Row(*s.FindRow("Syntax error in search expression") + 1).Contains("%size"));
  s.Keys("Enter");
  EXPECT_TRUE(IsOpen(s));
  EXPECT_EQ(Field(s), "%size");
  EXPECT_EQ(Tagged(s), Strings{});
  s.Keys("'<5' Enter");
  EXPECT_EQ(Tagged(s), Strings{"a.c"});
}

TEST_F(SelectGroupTest, CtrlTAndCtrlYAskAlsoWithBothPanelsOff) {
  s.Keys("Ctrl-O Grey+");
  EXPECT_FALSE(IsOpen(s));
  s.Keys("Ctrl-T");
  EXPECT_EQ(Title(s), "Select the files");
  s.Keys("'*.c' Enter Ctrl-O");
  EXPECT_EQ(Tagged(s), Strings{"a.c"});
  s.Keys("Ctrl-Y");
  EXPECT_EQ(Title(s), "Unselect the files/directories");
  s.Keys("Enter");
  EXPECT_EQ(Tagged(s), Strings{});
}

TEST_F(SelectGroupTest, MenusDoTheSame) {
  s.Command(kMenuSelectGroup);
  s.Keys("'*.c' Enter");
  EXPECT_EQ(Tagged(s), Strings{"a.c"});
  s.Command(kMenuInvert);
  EXPECT_EQ(Tagged(s), Strings{"b.txt"});
  s.Command(kMenuUnselectGroup);
  s.Keys("'*' Enter");
  EXPECT_EQ(Tagged(s), Strings{});
}

TEST_F(SelectGroupTest, APlainPlusIsACharacter) {
  s.Keys("+");
  EXPECT_TRUE(PromptRow(s).ends_with(">+"));
  EXPECT_FALSE(IsOpen(s));
}

TEST_F(SelectGroupTest, TheGreyStarInvertsAndIsPaintedAtOnce) {
  s.Keys("Grey*");
  EXPECT_EQ(Tagged(s), (Strings{"a.c", "b.txt"}));
  EXPECT_EQ(s.Attribute(1, 3), 0x1E);
  EXPECT_TRUE(s.Row(21).Contains("in 2 selected files"));
  s.Keys("Grey*");
  EXPECT_EQ(s.Attribute(1, 3), 0x1B);
  EXPECT_FALSE(s.Row(21).Contains("selected"));
  EXPECT_TRUE(PromptRow(s).ends_with(">"));
}

TEST_F(SelectGroupTest, CtrlWithTheGreyKeysTagsAllAndNone) {
  s.Keys("Ctrl-Grey+");
  EXPECT_EQ(Tagged(s), (Strings{"a.c", "b.txt"}));
  s.Keys("Ctrl-Shift-Grey+");
  EXPECT_EQ(Tagged(s), (Strings{"dir.c", "a.c", "b.txt"}));
  EXPECT_EQ(s.Attribute(1, 2), 0x1E);
  s.Keys("Ctrl-Grey-");
  EXPECT_EQ(Tagged(s), Strings{}) << "directories too, whatever the option";
  EXPECT_NE(s.Attribute(1, 2), 0x1E);
}

TEST_F(SelectGroupTest, AltGreyPlusGivesBackWhatWasWorkedOn) {
  s.Keys("Ctrl-Grey+ F5");  // to the right panel
  s.Keys("Enter");
  ASSERT_TRUE(s.Exists("right/a.c"));
  ASSERT_EQ(Tagged(s), Strings{});
  s.Keys("Down Ins Alt-Grey+");
  EXPECT_EQ(Tagged(s), (Strings{"a.c", "b.txt"}));
  EXPECT_EQ(s.Attribute(1, 3), 0x3E) << "tagged, under the cursor";
  EXPECT_EQ(s.Attribute(1, 4), 0x1E);
  EXPECT_NE(s.Attribute(1, 2), 0x1E);
}
