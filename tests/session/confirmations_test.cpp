// The Confirmations dialog and the questions that it switches.
#include <gtest/gtest.h>

#include "config/values/options.h"
#include "session/main_screen.h"
#include "shell/menu_commands.h"

namespace {

// The inside of the dialog on a screen of 80 by 25.
constexpr int kInsideX = 19, kInsideY = 6;

void Confirm(Session& s, const std::string& keys) {
  s.Command(kMenuConfirmations);
  s.Keys(keys);
}

bool IsOpen(const Session& s) { return s.FindRow(" Confirmations ").has_value(); }

// "X" for each box that is on.
std::string Boxes(const Session& s) {
  std::string marks;
  for (int i = 0; i < 5; ++i) marks += s.Text(kInsideX + 2, kInsideY + 1 + 2 * i, 1).String();
  return marks;
}

}  // namespace

TEST(Confirmations, ShowTheFiveQuestionsInTheOrderOfTheirBits) {
  Session s({}, {.settings = "Confirmations=10\n"});
  Confirm(s, "");
  EXPECT_EQ(s.Character(18, 5), U'╔');
  EXPECT_EQ(s.Character(61, 18), U'╝');
  EXPECT_TRUE(s.Row(5).Contains("═ Confirmations ═"));
  const char* labels[] = {"[X]  Delete File/Empty Directory", "[ ]  Delete Tagged Files",
                          "[X]  Delete Non-empty Directory", "[ ]  Quit Orvane",
                          "[X]  \"YES\" prompt for Non-Empty Directory"};
  for (int i = 0; i < 5; ++i) EXPECT_TRUE(s.Row(kInsideY + 1 + 2 * i).Contains(labels[i])) << i;
  EXPECT_TRUE(s.Row(kInsideY + 11).Contains("[ OK ]  [ Cancel ]  [ Help ]"));
}

TEST(Confirmations, ABoxThatIsOnIsABitThatIsClear) {
  Session s;
  for (int i = 0; i < 5; ++i) {
    Options::Confirmations = 0;
    std::string keys;
    for (int down = 0; down < i; ++down) keys += "Down ";
    Confirm(s, keys + "Space Enter");
    EXPECT_EQ(Options::Confirmations, 1 << i);
    Confirm(s, keys + "Space Enter");
    EXPECT_EQ(Options::Confirmations, 0);
  }
}

TEST(Confirmations, HigherBitsAreKept) {
  Session s({}, {.settings = "Confirmations=-1\n"});
  Confirm(s, "Space Down Space Down Space Down Space Down Space Enter");
  EXPECT_EQ(Options::Confirmations, ~31);
  Confirm(s, "Space Enter");
  EXPECT_EQ(Options::Confirmations, ~31 | 1);
}

TEST(Confirmations, EscAndCancelKeepThem) {
  Session s({}, {.settings = "Confirmations=5\n"});
  Confirm(s, "Space Down Space Esc");
  EXPECT_FALSE(IsOpen(s));
  EXPECT_EQ(Options::Confirmations, 5);
  Confirm(s, "Space Tab Right Enter");
  EXPECT_FALSE(IsOpen(s));
  EXPECT_EQ(Options::Confirmations, 5);
  Confirm(s, "");
  EXPECT_EQ(Boxes(s), " X XX");
}

TEST(Confirmations, HotLettersSwitchThem) {
  Session s;
  Confirm(s, "Alt-d Alt-t Alt-n Alt-q Alt-y");
  EXPECT_EQ(Boxes(s), "     ");
  s.Keys("Alt-t Alt-o");
  EXPECT_FALSE(IsOpen(s));
  EXPECT_EQ(Options::Confirmations, 31 & ~2);
}

TEST(Confirmations, F1ShowsHelpAndComesBackToTheDialogAsItWas) {
  Session s;
  Confirm(s, "Down Space");
  const std::string screen = s.Screen();
  s.Keys("F1");
  EXPECT_NE(s.Screen(), screen);
  s.Keys("Esc");
  EXPECT_EQ(s.Screen(), screen);
  s.Keys("Enter");
  EXPECT_EQ(Options::Confirmations, 2);
}

TEST(Confirmations, WithoutThatOfQuittingF10EndsTheProgram) {
  Session s;
  Confirm(s, "Alt-q Esc");
  s.Keys("F10");
  EXPECT_TRUE(s.FindRow("Are you sure you want to exit Orvane ?"));
  s.Keys("Esc");
  Confirm(s, "Alt-q Enter");
  s.Keys("F10");
  EXPECT_TRUE(s.HasEnded());
}

TEST(Confirmations, SwitchedOnAgainTheQuestionIsAsked) {
  Session s({}, {.settings = "Confirmations=8\n"});
  Confirm(s, "Alt-q Enter");
  s.Keys("F10");
  EXPECT_TRUE(s.FindRow("Are you sure you want to exit Orvane ?"));
}

TEST(Confirmations, AreSaved) {
  Session s;
  Confirm(s, "Alt-t Alt-q Enter");
  s.Keys("Shift-F9");
  EXPECT_NE(s.Content("home/.orvane/orvane.ini").find("Confirmations=10\r\n"), std::string::npos);
}
