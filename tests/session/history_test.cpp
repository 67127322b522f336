// Stepping through the commands of the run.
#include <gtest/gtest.h>

#include "console/console.h"
#include "session/main_screen.h"

namespace {

std::string LineOf(const Session& s) { return PromptRow(s).substr(PromptRow(s).find('>') + 1); }

// Commands that do no harm where they are run.
void RunThree(Session& s) { s.Keys("'echo one' Enter 'true two' Enter 'echo three' Enter"); }

}  // namespace

TEST(History, ACommandRunEmptiesTheLine) {
  Session s;
  s.Keys("'true' Enter");
  EXPECT_EQ(LineOf(s), "");
}

TEST(History, StepsBackAndForthThroughTheCommands) {
  Session s;
  RunThree(s);
  s.Keys("'half' Ctrl-e");
  EXPECT_EQ(LineOf(s), "echo three");
  s.Keys("Ctrl-Up");
  EXPECT_EQ(LineOf(s), "true two");
  s.Keys("Ctrl-x");
  EXPECT_EQ(LineOf(s), "echo three");
  s.Keys("Ctrl-Down");
  EXPECT_EQ(LineOf(s), "half");
  s.Keys("Ctrl-Down");
  EXPECT_EQ(LineOf(s), "echo one");
}

TEST(History, UpAndDownStepWithBothPanelsOff) {
  Session s;
  RunThree(s);
  s.Keys("Ctrl-o Up Up");
  EXPECT_EQ(LineOf(s), "true two");
  s.Keys("Down");
  EXPECT_EQ(LineOf(s), "echo three");
  EXPECT_EQ(s.Cursor().first, static_cast<int>(PromptRow(s).size()));
}

TEST(History, RunningACommandEndsTheBrowsing) {
  Session s;
  RunThree(s);
  s.Keys("Ctrl-e Ctrl-e Enter Ctrl-e");
  EXPECT_EQ(LineOf(s), "true two");
  s.Keys("Ctrl-e");
  EXPECT_EQ(LineOf(s), "echo three");
}

TEST(History, CtrlEnterBehindALetterFindsCommandsByTheirStart) {
  Session s({{"left/file", ""}});
  RunThree(s);
  s.Keys("Down 'eC' Ctrl-Enter");
  EXPECT_EQ(LineOf(s), "echo three");
  EXPECT_EQ(s.Cursor().first, static_cast<int>(s.Path("left").size()) + 1 + 2);
  s.Keys("Ctrl-Enter");
  EXPECT_EQ(LineOf(s), "echo one");
  s.Keys("Ctrl-Shift-Enter");
  EXPECT_EQ(LineOf(s), "echo three");
}

TEST(History, CtrlEnterBehindABlankInsertsTheFileName) {
  Session s({{"left/file", ""}});
  RunThree(s);
  s.Keys("Down 'echo ' Ctrl-Enter");
  EXPECT_EQ(LineOf(s), "echo file");
}

TEST(History, ASearchWithoutAMatchInsertsTheFileName) {
  Session s({{"left/file", ""}});
  RunThree(s);
  s.Keys("Down 'zz' Ctrl-Enter");
  EXPECT_EQ(LineOf(s), "zzfile");
}

TEST(History, ASearchWithoutAMatchCutsTheLineAtTheCursor) {
  Session s({}, {.arguments = {{"-l", "/", "-r", "/"}}});
  s.Keys("Ctrl-o 'zzz' Left Ctrl-Shift-Enter");
  EXPECT_EQ(PromptRow(s), "/>zz");
}
