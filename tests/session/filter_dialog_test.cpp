// The filter of a panel and its dialog.
#include <gtest/gtest.h>

#include "dialogs/dialog_history.h"
#include "session/main_screen.h"
#include "shell/menu_commands.h"

namespace {

using Strings = std::vector<std::string>;

// The inside of the dialog on a screen of 80 by 25.
constexpr int kInsideX = 3, kInsideY = 6;

const FileList kFiles = {{"left/a.c", ""},  {"left/b.txt", ""},  {"left/dir/", ""},
                         {"right/a.c", ""}, {"right/b.txt", ""}, {"right/dir/", ""}};

const Strings kAll = {"..", "dir", "a.c", "b.txt"};
const Strings kSources = {"..", "dir", "a.c"};

void Filter(Session& s, const std::string& keys, SessionSide side = kLeftSide) {
  s.Command(side == kLeftSide ? kMenuLeftFilter : kMenuRightFilter);
  s.Keys(keys);
}

bool IsOpen(const Session& s) { return s.FindRow("Filter for ").has_value(); }
std::string Field(const Session& s) { return s.Text(kInsideX + 1, kInsideY + 2, 72).Trimmed(); }

Strings History() {
  Strings texts;
  const WestringStore& store = DialogHistories[kHistoryFilter];
  for (int i = 0; i < store.Count(); ++i) texts.push_back(ToUtf8(*store.Peek(i)).Text());
  return texts;
}

// The store is the process's, and a test may run in one with others.
class FilterDialogTest : public testing::Test {
 protected:
  FilterDialogTest() { DialogHistories[kHistoryFilter].Clear(); }
};

}  // namespace

TEST_F(FilterDialogTest, StandsInTheUpperHalfWithLabelFieldAndButtons) {
  Session s(kFiles);
  Filter(s, "");
  EXPECT_EQ(s.Character(2, 5), U'╔');
  EXPECT_EQ(s.Character(77, 12), U'╝');
  EXPECT_TRUE(s.Row(kInsideY + 1).Contains("Filter for left panel"));
  EXPECT_EQ(s.Attribute(10, 6), 0x70);
  EXPECT_EQ(Field(s), "*");
  for (int x : {1, 72}) EXPECT_EQ(s.Attribute(kInsideX + x, kInsideY + 2), 0x30) << x;
  for (int x : {0, 73}) EXPECT_EQ(s.Attribute(kInsideX + x, kInsideY + 2), 0x70) << x;
  EXPECT_EQ(s.Character(kInsideX + 73, kInsideY + 2), U'↓');
  EXPECT_TRUE(s.FindRow("[ OK ]  [ Cancel ]"));
  s.Keys("Esc");
  Filter(s, "", kRightSide);
  EXPECT_TRUE(s.Row(kInsideY + 1).Contains("Filter for right panel"));
}

TEST_F(FilterDialogTest, EachSideHasItsOwnAndTheTitleTells) {
  Session s(kFiles);
  Filter(s, "'*.c' Enter");
  EXPECT_EQ(s.Names(kLeftSide), kSources);
  EXPECT_EQ(s.Names(kRightSide), kAll);
  EXPECT_TRUE(PanelRow(s, kLeftSide, 0).Contains("left? "));
  EXPECT_TRUE(PanelRow(s, kRightSide, 0).Contains("right "));
  EXPECT_FALSE(PanelRow(s, kLeftSide, 4).Contains("b.txt"));
  Filter(s, "'%size>0' Enter", kRightSide);
  EXPECT_EQ(s.Names(kLeftSide), kSources);
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "dir"}));
  Filter(s, "");
  EXPECT_EQ(Field(s), "*.c");
  s.Keys("'*' Enter");
  EXPECT_EQ(s.Names(kLeftSide), kAll);
}

TEST_F(FilterDialogTest, EscAndCancelLeaveAllAsItWas) {
  Session s(kFiles);
  s.Keys("Down Ins");
  const std::string before = s.Screen();
  Filter(s, "'*.c' Esc");
  EXPECT_EQ(s.Screen(), before);
  Filter(s, "'*.c' Tab Right Enter");
  EXPECT_EQ(s.Screen(), before);
  EXPECT_EQ(s.Names(kLeftSide), kAll);
  EXPECT_EQ(History(), Strings{});
  Filter(s, "");
  EXPECT_EQ(Field(s), "*");
}

TEST_F(FilterDialogTest, ASyntaxErrorIsToldAndTheDialogGoesOn) {
  Session s(kFiles);
  Filter(s, "'%size' Enter");
  EXPECT_TRUE(s.FindRow("Syntax error in expression"));
  EXPECT_EQ(s.Attribute(40, *s.FindRow("Syntax error in expression")), 0x4F);
  s.Keys("Enter");
  EXPECT_TRUE(IsOpen(s));
  EXPECT_EQ(Field(s), "%size");
  EXPECT_EQ(s.Names(kLeftSide), kAll);
  s.Keys("'=0' Enter");
  EXPECT_FALSE(IsOpen(s));
  EXPECT_EQ(s.Names(kLeftSide), kAll);
  EXPECT_EQ(History(), Strings{"%size=0"});
}

TEST_F(FilterDialogTest, ASyntaxErrorAndEscLeaveNothing) {
  Session s(kFiles);
  Filter(s, "'(*.c' Enter Enter Esc");
  EXPECT_FALSE(IsOpen(s));
  EXPECT_EQ(s.Names(kLeftSide), kAll);
  EXPECT_EQ(History(), Strings{});
}

TEST_F(FilterDialogTest, NoTextAtAllIsASyntaxError) {
  Session s(kFiles);
  Filter(s, "Del Enter");
  EXPECT_TRUE(s.FindRow("Syntax error in expression"));
  s.Keys("Enter '  ' Enter");
  EXPECT_TRUE(s.FindRow("Syntax error in expression"));
  s.Keys("Enter Esc");
  EXPECT_EQ(s.Names(kLeftSide), kAll);
}

TEST_F(FilterDialogTest, WhatWasAcceptedIsOfferedByTheHistory) {
  Session s(kFiles);
  Filter(s, "'*.c' Enter");
  Filter(s, "'*.txt' Enter", kRightSide);
  Filter(s, "'*.h' Esc");
  EXPECT_EQ(History(), (Strings{"*.c", "*.txt"}));
  Filter(s, "Alt-Down Up Enter Enter", kRightSide);
  EXPECT_EQ(s.Names(kRightSide), kSources);
}

TEST_F(FilterDialogTest, TagsAndTheCursorStayOverTheNextRead) {
  Session s(kFiles);
  s.Keys("Down Down Ins Up");
  ASSERT_EQ(s.Under(kLeftSide), "a.c");
  Filter(s, "'*.c' Enter");
  EXPECT_EQ(s.Under(kLeftSide), "a.c");
  EXPECT_EQ(s.Attribute(1, 3), 0x3E);  // tagged, under the cursor
}

TEST_F(FilterDialogTest, TheReadFollowsWhateverTheAnswer) {
  Session s(kFiles);
  s.Write("left/new", "");
  Filter(s, "Esc");
  EXPECT_EQ(s.Names(kLeftSide).back(), "new");
}

TEST_F(FilterDialogTest, AHiddenPanelShowsItsFilterWhenItComesBack) {
  Session s(kFiles);
  s.Keys("Ctrl-F2");
  Filter(s, "'*.c' Enter", kRightSide);
  EXPECT_FALSE(IsShown(s, kRightSide));
  EXPECT_EQ(s.Names(kRightSide), kAll);
  s.Keys("Ctrl-F2");
  EXPECT_EQ(s.Names(kRightSide), kSources);
  EXPECT_TRUE(PanelRow(s, kRightSide, 0).Contains("right? "));
}

TEST_F(FilterDialogTest, BothPanelsHiddenShowItTogether) {
  Session s(kFiles);
  s.Keys("Ctrl-O");
  Filter(s, "'*.c' Enter");
  s.Keys("Ctrl-O");
  EXPECT_EQ(s.Names(kLeftSide), kSources);
  EXPECT_FALSE(PanelRow(s, kLeftSide, 4).Contains("b.txt"));
}

TEST_F(FilterDialogTest, TheProcessStaysInTheActivePanel) {
  Session s(kFiles);
  Filter(s, "'*.c' Enter", kRightSide);
  EXPECT_TRUE(PromptRow(s).ends_with("/left>")) << PromptRow(s);
}

TEST_F(FilterDialogTest, BothAreSavedAndThereAfterTheNextStart) {
  std::string saved;
  {
    Session s(kFiles);
    Filter(s, "'*.c' Enter");
    Filter(s, "'*.txt|*.h' Enter", kRightSide);
    s.Keys("Shift-F9");
    saved = s.Content("home/.orvane/orvane.ini");
  }
  EXPECT_NE(saved.find("LeftFilter=*.c\r\n"), std::string::npos);
  EXPECT_NE(saved.find("RightFilter=*.txt|*.h\r\n"), std::string::npos);
  Session s(kFiles, {.settings = saved});
  EXPECT_EQ(s.Names(kLeftSide), kSources);
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "dir", "b.txt"}));
}
