// The dialog of the colours and the screen after it.
#include <gtest/gtest.h>

#include <algorithm>

#include "config/values/colours.h"
#include "session/main_screen.h"
#include "shell/menu_commands.h"

namespace {

constexpr char kSettings[] = "home/.orvane/orvane.ini";

// The inside of the dialog on a screen of 80 by 25.
constexpr int kInsideX = 25, kInsideY = 2;

void Recolour(Session& s, const std::string& keys) {
  s.Command(kMenuColours);
  s.Keys(keys);
}

std::string Downs(int count) {
  std::string keys;
  for (int i = 0; i < count; ++i) keys += "Down ";
  return keys;
}

// The attributes of all cells.
std::vector<int> Attributes(const Session& s) {
  std::vector<int> attributes;
  for (int y = 0; y < s.Rows(); ++y)
    for (int x = 0; x < s.Columns(); ++x) attributes.push_back(s.Attribute(x, y));
  return attributes;
}

bool Contains(const std::vector<int>& attributes, int attribute) {
  return std::find(attributes.begin(), attributes.end(), attribute) != attributes.end();
}

std::vector<int> Bytes() { return {Options::Colours, Options::Colours + kColourCount}; }

}  // namespace

TEST(ColourDialog, ListsTheNamesAboveTheHints) {
  Session s;
  Recolour(s, "");
  EXPECT_EQ(s.Character(24, 1), U'╔');
  EXPECT_EQ(s.Character(55, 21), U'╝');
  EXPECT_TRUE(s.Row(1).Contains("═ Orvane Colours ═"));
  EXPECT_TRUE(s.Row(kInsideY + 1).Contains(">Panel               <")) << s.Screen();
  EXPECT_EQ(s.Attribute(kInsideX + 5, kInsideY + 1), 0x1B);
  EXPECT_TRUE(s.Row(kInsideY + 2).Contains("Highlight"));
  EXPECT_EQ(s.Attribute(kInsideX + 5, kInsideY + 2), 0x30);
  EXPECT_TRUE(s.Row(kInsideY + 15).Contains("  F=Foreground B=Background  "));
  EXPECT_TRUE(s.Row(kInsideY + 16).Contains("  Shift-F/B=Change Backwards  "));
  EXPECT_TRUE(s.Row(kInsideY + 18).Contains("[ OK ]  [ Cancel ]"));
  s.Keys("End");
  EXPECT_TRUE(s.Row(kInsideY + 13).Contains(">Clock               <")) << s.Screen();
}

TEST(ColourDialog, OkColoursTheWholeScreenAnew) {
  Session s({{"left/a", ""}}, {.settings = "Clock=on\n"});
  // panel 0x1B to 0x2C, highlight, command line, menu bar, clock
  Recolour(s, "f b " + Downs(1) + "b " + Downs(5) + "f F F " + Downs(6) + "f b " + Downs(5) + "F F Enter");
  EXPECT_EQ(Options::Colours[kColourPanel], 0x2C);
  EXPECT_EQ(Options::Colours[kColourHighlight], 0x40);
  EXPECT_EQ(Options::Colours[kColourCommandLine], 0x06);
  EXPECT_EQ(Options::Colours[kColourMenuBar], 0x41);
  EXPECT_EQ(Options::Colours[kColourClock], 0x3E);
  for (int x : {0, 39, 40, 79}) EXPECT_EQ(s.Attribute(x, 10), 0x2C) << x;
  EXPECT_EQ(s.Attribute(20, 5), 0x2C);
  EXPECT_EQ(s.Attribute(20, BottomRow(s, kLeftSide)), 0x2C);
  EXPECT_EQ(s.Attribute(1, 1), 0x20);  // directories under the cursor have their own
  EXPECT_EQ(s.Attribute(79, 0), 0x3E);
  EXPECT_EQ(s.Attribute(0, 23), 0x06);
  EXPECT_EQ(s.Attribute(79, 23), 0x06);
  EXPECT_EQ(s.Attribute(0, 24), 0x06);
  EXPECT_EQ(s.Attribute(1, 24), 0x41);
  const std::vector<int> now = Attributes(s);
  for (int old : {0x1B, 0x30}) EXPECT_FALSE(Contains(now, old)) << old;
}

TEST(ColourDialog, CancelAndEscGiveTheColoursBack) {
  Session s({{"left/a", ""}}, {.settings = "Clock=on\n"});
  const std::vector<int> bytes = Bytes(), screen = Attributes(s);
  Recolour(s, "f b " + Downs(6) + "f " + Downs(11) + "b Esc");
  EXPECT_EQ(Bytes(), bytes);
  EXPECT_EQ(Attributes(s), screen);
  Recolour(s, "f b " + Downs(6) + "f " + Downs(11) + "b Tab Right Enter");
  EXPECT_EQ(Bytes(), bytes);
  EXPECT_EQ(Attributes(s), screen);
}

TEST(ColourDialog, TheMenuQuickKeyHasNoBackground) {
  Session s;
  Recolour(s, Downs(kColourMenuQuickKey) + "b b f Enter");
  EXPECT_EQ(Options::Colours[kColourMenuQuickKey], 0x0F);
}

TEST(ColourDialog, CancelLeavesEvenThatBackground) {
  Session s({}, {.settings = "Colours=27 48 30 62 26 32 7 112 79 48 3 63 48 15 62 7 27 48\n"});
  Recolour(s, "Esc");
  EXPECT_EQ(Options::Colours[kColourMenuQuickKey], 62);
  Recolour(s, "Enter");
  EXPECT_EQ(Options::Colours[kColourMenuQuickKey], 14);
}

TEST(ColourDialog, PanelsThatAreOffComeBackInTheNewColours) {
  Session s({{"left/a", ""}});
  s.Keys("Ctrl-F2");
  Recolour(s, "f b Enter");
  EXPECT_FALSE(IsShown(s, kRightSide));
  s.Keys("Ctrl-F2");
  EXPECT_EQ(s.Attribute(60, 5), 0x2C);
  EXPECT_EQ(s.Attribute(79, 10), 0x2C);
  s.Keys("Ctrl-O");
  Recolour(s, "F B Enter");
  s.Keys("Ctrl-O");
  const std::vector<int> now = Attributes(s);
  EXPECT_TRUE(Contains(now, 0x1B));
  EXPECT_FALSE(Contains(now, 0x2C));
}

TEST(ColourDialog, TheConsoleTextUnderThePanelsStays) {
  Session s;
  s.Keys("Ctrl-O");
  const std::string before = s.Screen();
  s.Keys("Ctrl-O");
  Recolour(s, "f Enter");
  s.Keys("Ctrl-O");
  EXPECT_EQ(s.Screen(), before);
}

TEST(ColourDialog, TheColoursAreSavedAndThereAfterTheNextStart) {
  std::string saved;
  {
    Session s;
    Recolour(s, "f b " + Downs(17) + "F Enter Shift-F9");
    saved = s.Content(kSettings);
  }
  EXPECT_NE(saved.find("Colours=44 48 30 62 26 32 7 112 79 48 3 63 48 15 14 7 27 63 \r\n"),
            std::string::npos);
  Session s({}, {.settings = saved});
  EXPECT_EQ(s.Attribute(39, 10), 0x2C);
}
