// The menus in the program: how they come up, and the commands that have no
// other key.
#include <gtest/gtest.h>

#include "session/main_screen.h"

namespace {

using Strings = std::vector<std::string>;

const FileList kFiles = {{"left/a.txt", "1"},  {"left/b.c", "333"},  {"left/c", "22"},
                         {"right/a.txt", "1"}, {"right/b.c", "333"}, {"right/c", "22"}};

constexpr char kBar[] = "    Left    Files    Commands    Options    Right  ";
constexpr char kQuestion[] = "Are you sure you want to exit Orvane ?";

bool MenuIsUp(const Session& s) { return s.Row(0).StartsWith(kBar); }

// The highlighted title.
std::string Title(const Session& s) {
  std::string title;
  for (int x = 0; x < s.Columns(); ++x)
    if (s.Attribute(x, 0) == 0x0F) title += s.Text(x, 0, 1).String();
  return ScreenText(title).Trimmed();
}

// The whole row of an item, with its mark.
std::string ItemRow(const Session& s, const std::string& item) {
  const auto row = s.FindRow(item);
  if (!row) return "(none)";
  const std::string text = s.Row(*row).String();
  const size_t at = text.find(item);
  const std::string mark = "√";
  const bool marked = at >= mark.size() && text.compare(at - mark.size(), mark.size(), mark) == 0;
  return (marked ? mark : "") + item;
}

// The styles of the two panels by the columns of their frames.
bool IsBrief(const Session& s, SessionSide side) { return s.Character(FirstColumn(s, side) + 13, 1) == U'│'; }
bool IsFull(const Session& s, SessionSide side) { return s.Character(FirstColumn(s, side) + 23, 1) == U'│'; }
bool IsWide(const Session& s, SessionSide side) { return s.Character(FirstColumn(s, side) + 9, 1) == U'│'; }
bool IsBriefWide(const Session& s, SessionSide side) {
  return s.Character(FirstColumn(s, side) + 20, 1) == U'│';
}

}  // namespace

TEST(Menu, F9OpensTheActivePanelsMenuClosed) {
  Session s(kFiles);
  s.Keys("F9");
  EXPECT_TRUE(MenuIsUp(s));
  EXPECT_EQ(Title(s), "Left");
  EXPECT_FALSE(s.FindRow("Brief"));
  s.Keys("Esc");
  EXPECT_FALSE(MenuIsUp(s));
  s.Keys("Tab F9");
  EXPECT_EQ(Title(s), "Right");
}

TEST(Menu, CtrlNOpensItToo) {
  Session s(kFiles);
  s.Keys("Tab Ctrl-N");
  EXPECT_EQ(Title(s), "Right");
}

TEST(Menu, TheFunctionKeyBarOpensAndResumesIt) {
  Session s(kFiles);
  s.Click(66, 24);
  EXPECT_TRUE(MenuIsUp(s));
  s.Keys("o End Esc Esc");
  EXPECT_FALSE(MenuIsUp(s));
  s.Click(74, 24, kModShift);
  EXPECT_EQ(Title(s), "Options");
}

TEST(Menu, ARightClickOnTheTopRowOpensIt) {
  for (const int x : {5, 60, 79}) {
    Session s(kFiles);
    s.RightClick(x, 0);
    EXPECT_TRUE(MenuIsUp(s)) << x;
    EXPECT_EQ(Title(s), "Left") << "the active panel's, wherever the pointer is";
    s.Keys("Esc");
    EXPECT_FALSE(MenuIsUp(s));
    s.Quit();
  }
}

TEST(Menu, ARightDragFromTheTopRowChooses) {
  Session s(kFiles);
  s.Mouse(kMouseRightPress, 60, 0);
  s.Mouse(kMouseRightDrag, 45, 0);
  s.Mouse(kMouseRightDrag, 45, 2);
  s.Mouse(kMouseRightRelease, 45, 2);
  EXPECT_FALSE(MenuIsUp(s));
  EXPECT_TRUE(IsBrief(s, kRightSide));
  EXPECT_TRUE(IsFull(s, kLeftSide));
}

TEST(Menu, ShiftF10ReturnsToTheItemLastUsed) {
  Session s(kFiles);
  s.Keys("F9 r u");  // the right panel, unsorted
  EXPECT_FALSE(MenuIsUp(s));
  s.Keys("Shift-F10");
  EXPECT_EQ(Title(s), "Right");
  EXPECT_EQ(s.Attribute(45, 15), 0x0F);
  EXPECT_TRUE(s.Row(15).Contains("Unsorted"));
}

TEST(Menu, LeavesThePanelsAsTheyWere) {
  Session s(kFiles);
  s.Keys("Down Down");
  const std::string before = s.Screen();
  s.Keys("F9 Enter Right Right Down Esc Esc");
  EXPECT_EQ(s.Screen(), before);
  EXPECT_EQ(BarRow(s, kLeftSide), 3);
  s.Keys("Down");
  EXPECT_EQ(BarRow(s, kLeftSide), 4);
}

TEST(Menu, ComesUpWithBothPanelsOff) {
  Session s(kFiles);
  s.Keys("Ctrl-O 'text'");
  const std::string before = s.Screen();
  s.Keys("F9 Down Down");
  EXPECT_TRUE(MenuIsUp(s));
  s.Keys("Esc Esc");
  EXPECT_EQ(s.Screen(), before);
}

TEST(Menu, TheCloseButtonAsksFromWithinIt) {
  Session s(kFiles);
  s.Keys("F9 Down");
  s.Command(0x10044);
  EXPECT_TRUE(s.FindRow(kQuestion));
  EXPECT_FALSE(MenuIsUp(s));
  s.Keys("Enter");
  EXPECT_EQ(s.ExitCode(), 0);
}

TEST(Menu, QuitAsks) {
  Session s(kFiles);
  s.Keys("F9 f q");
  EXPECT_TRUE(s.FindRow(kQuestion));
  s.Keys("Esc");
  EXPECT_FALSE(s.FindRow(kQuestion));
}

TEST(Menu, ModifiersThatChangedMeanwhileShowOnTheBarAfterIt) {
  Session s(kFiles);
  s.Keys("F9 +Ctrl");
  EXPECT_TRUE(MenuIsUp(s));
  s.Click(60, 15, kModCtrl);
  EXPECT_FALSE(MenuIsUp(s));
  EXPECT_TRUE(s.Row(24).StartsWith("1Left   2Right  3Name"));
  s.Keys("-Ctrl");
  EXPECT_TRUE(s.Row(24).StartsWith("1Help   2Menu"));
}

TEST(Menu, TheClockGoesOnOverTheBar) {
  Session s(kFiles, {.settings = "Clock=on\n"});
  s.Keys("F9");
  const auto seconds = [&](char32_t separator) {
    s.WaitFor([&] { return s.Character(76, 0) == separator; });
  };
  seconds(U':');
  seconds(U' ');
  s.Keys("Down Esc Esc");
  EXPECT_FALSE(MenuIsUp(s));
  EXPECT_TRUE(s.Character(79, 0) == U'a' || s.Character(79, 0) == U'p');
  EXPECT_EQ(s.Character(40, 0), U'╔');
  s.Keys("F9 o l");  // off again
  EXPECT_EQ(s.Character(79, 0), U'╗');
  EXPECT_EQ(s.Character(74, 0), U'═');
}

TEST(Menu, HelpIsThatOfTheMenuAndComesBackToIt) {
  const std::pair<const char*, const char*> menus[] = {{"l", "The left and the right panel"},
                                                       {"f", " Files "},
                                                       {"c", " Commands "},
                                                       {"o", " Options "},
                                                       {"r", "The left and the right panel"}};
  for (const auto& [letter, title] : menus) {
    Session s(kFiles);
    s.Keys(std::string("F9 ") + letter + " Down");
    const std::string before = s.Screen();
    s.Keys("F1");
    bool shown = false;
    for (int y = 1; y < s.Rows(); ++y) shown |= s.Row(y).Contains(title);
    EXPECT_TRUE(shown) << title << '\n' << s.Screen();
    EXPECT_NE(s.Screen(), before);
    s.Keys("Esc");
    EXPECT_EQ(s.Screen(), before);
    s.Keys("Esc F1 Esc");  // with the drop-down closed
    EXPECT_TRUE(MenuIsUp(s));
    s.Keys("Esc");
    EXPECT_FALSE(MenuIsUp(s));
    s.Quit();
  }
}

TEST(MenuCommands, StylesOfBothSides) {
  const std::pair<const char*, bool (*)(const Session&, SessionSide)> styles[] = {
      {"b", IsBrief}, {"w", IsWide}, {"e", IsBriefWide}, {"f", IsFull}};
  Session s(kFiles);
  for (const auto& [letter, shows] : styles) {
    s.Keys(std::string("F9 l ") + letter);
    EXPECT_TRUE(shows(s, kLeftSide)) << letter;
    EXPECT_TRUE(IsFull(s, kRightSide)) << letter;
  }
  for (const auto& [letter, shows] : styles) {
    s.Keys(std::string("F9 r ") + letter);
    EXPECT_TRUE(shows(s, kRightSide)) << letter;
    EXPECT_TRUE(IsFull(s, kLeftSide)) << letter;
  }
  s.Keys("F9 l a");
  EXPECT_TRUE(PanelRow(s, kLeftSide, 2).Contains("│rw-"));
  s.Keys("F9 r a");
  EXPECT_TRUE(PanelRow(s, kRightSide, 2).Contains("│rw-"));
  EXPECT_EQ(s.Active(), kLeftSide);
}

TEST(MenuCommands, AStyleBringsAHiddenPanelUp) {
  Session s(kFiles);
  s.Keys("F9 r o");
  EXPECT_FALSE(IsShown(s, kRightSide));
  s.Keys("F9 r f");
  EXPECT_TRUE(IsShown(s, kRightSide));
}

TEST(MenuCommands, OrdersOfBothSidesAndTheirReverse) {
  Session s(kFiles);
  s.Keys("F9 l s");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "b.c", "c", "a.txt"}));
  s.Keys("F9 l v");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "a.txt", "c", "b.c"}));
  s.Keys("F9 r x");
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "c", "b.c", "a.txt"}));
  s.Keys("F9 r v F9 l n");
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "a.txt", "b.c", "c"}));
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "a.txt", "b.c", "c"}));
}

TEST(MenuCommands, AnOrderIsMarkedOnTheItemBefore) {
  Session s(kFiles);
  s.Keys("F9 l x F9 l");
  EXPECT_EQ(ItemRow(s, "Name        Ctrl-F3"), "√Name        Ctrl-F3");
  EXPECT_EQ(ItemRow(s, "Extension   Ctrl-F4"), "Extension   Ctrl-F4");
  EXPECT_EQ(ItemRow(s, "Unsorted    Ctrl-F7"), "Unsorted    Ctrl-F7");
  s.Keys("v F9 l");
  EXPECT_EQ(ItemRow(s, "Name        Ctrl-F3"), "√Name        Ctrl-F3");
  EXPECT_EQ(ItemRow(s, "Unsorted    Ctrl-F7"), "√Unsorted    Ctrl-F7");
}

TEST(MenuCommands, InfoOfASideComesAndGoesAndIsMarkedOnUnixDetail) {
  Session s(kFiles);
  s.Keys("F9 r i");
  EXPECT_FALSE(PanelRow(s, kRightSide, 2).Contains("a.txt"));
  EXPECT_TRUE(PanelRow(s, kLeftSide, 2).Contains("a.txt"));
  s.Keys("F9 r");
  EXPECT_EQ(ItemRow(s, "Unix detail AlSh-F5"), "√Unix detail AlSh-F5");
  EXPECT_EQ(ItemRow(s, "Info        Ctrl-L"), "Info        Ctrl-L");
  s.Keys("Esc Esc F9 l i");
  EXPECT_TRUE(PanelRow(s, kRightSide, 2).Contains("a.txt"));
  EXPECT_FALSE(PanelRow(s, kLeftSide, 2).Contains("a.txt"));
  s.Keys("F9 l i");
  EXPECT_TRUE(PanelRow(s, kLeftSide, 2).Contains("a.txt"));
}

TEST(MenuCommands, OnAndOffOfASide) {
  Session s(kFiles);
  s.Keys("F9 l o");
  EXPECT_FALSE(IsShown(s, kLeftSide));
  EXPECT_EQ(s.Active(), kRightSide);
  s.Keys("F9 l o");
  EXPECT_TRUE(IsShown(s, kLeftSide));
}

TEST(MenuCommands, ReReadOfASide) {
  Session s;
  s.Write("left/new", "");
  s.Write("right/new", "");
  s.Keys("F9 r r");
  EXPECT_EQ(s.Names(kLeftSide), Strings{".."});
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "new"}));
  s.Keys("F9 l r");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "new"}));
}

TEST(MenuCommands, DirectoryHistoryWithoutAltGoesToTheRoot) {
  Session s(kFiles);
  s.Keys("F9 c i");
  EXPECT_EQ(s.PanelPath(kLeftSide), "/");
}

TEST(MenuCommands, OptionsAreSwitchedAndMarked) {
  const std::pair<const char*, const char*> toggles[] = {
      {"h", "Hidden Files    Ctrl-H"}, {"p", "Path Prompt"},        {"f", "Full Screen"},     {"l", "Clock"},
      {"t", "Tag Directories"},        {"u", "Thousand Separator"}, {"r", "Retain Dir Count"}};
  Session s(kFiles);
  for (const auto& [letter, item] : toggles) {
    s.Keys("F9 o");
    const bool marked = ItemRow(s, item).starts_with("√");
    s.Keys(letter);
    EXPECT_FALSE(MenuIsUp(s)) << item;
    s.Keys("F9 o");
    EXPECT_EQ(ItemRow(s, item).starts_with("√"), !marked) << item;
    s.Keys(letter);
    s.Keys("F9 o");
    EXPECT_EQ(ItemRow(s, item).starts_with("√"), marked) << item;
    s.Keys("Esc Esc");
  }
}

TEST(MenuCommands, OptionsShowWhatTheySwitch) {
  Session s({{"left/.hidden", ""}, {"left/big", std::string(12345, 'x')}, {"right/.hidden", ""}});
  s.Keys("F9 o h");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", ".hidden", "big"}));
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", ".hidden"}));
  s.Keys("F9 o u");
  EXPECT_TRUE(PanelRow(s, kLeftSide, 3).Contains("  12,345│"));
  s.Keys("F9 o p");
  EXPECT_FALSE(PromptRow(s).starts_with(s.Path("left")));
  s.Keys("F9 o f");
  EXPECT_EQ(BottomRow(s, kLeftSide), 14);
  s.Keys("F9 o f");
  EXPECT_EQ(BottomRow(s, kLeftSide), 22);
}

TEST(MenuCommands, SaveSetupWritesTheSettings) {
  Session s({{"home/.orvane/", ""}});
  s.Keys("F9 o t F9 o s");
  EXPECT_NE(s.Content("home/.orvane/orvane.ini").find("TagDirs=on\r\n"), std::string::npos);
}

TEST(MenuCommands, MoreRowsAndTheMenuFitsThemToo) {
  Session s(kFiles);
  s.Keys("F9 c e");
  EXPECT_EQ(s.Rows(), 50);
  s.Keys("F9 c");
  EXPECT_TRUE(s.Row(2).Contains("Tree                 Alt-F10"));
  s.Keys("e Alt-Shift-F9 F9 r");
  EXPECT_EQ(s.Columns(), 132);
  EXPECT_EQ(s.Text(42, 1, 2), "╔═");
}

TEST(MenuCommands, OnTwentyRowsTheLastItemIsReached) {
  Session s(kFiles, {.settings = "Lines=20\n"});
  EXPECT_EQ(s.Rows(), 20);
  s.Keys("F9 f Up Enter");
  EXPECT_TRUE(s.FindRow(kQuestion));
}
