// Which viewer a file is shown with.
#include <gtest/gtest.h>

#include "session/command_fixture.h"
#include "session/viewer_screen.h"

namespace {

bool IsViewed(const Session& s, const std::string& name) {
  return s.Row(kStatusRow).StartsWith("View: " + s.Path(name) + " ");
}

constexpr char kAssociations[] =
    "Viewer=echo other ! > ../home/seen\n"
    "Viewer2=echo second ! > ../home/seen\n"
    "[Viewer Associations]\n"
    "*.txt: echo text ! > ../home/seen\n"
    "*.t*: echo never\n";

const FileList kFiles = {{"left/a b.txt", "one\n"}, {"left/c.dat", "two\n"}, {"left/sub/", ""}};

}  // namespace

TEST(ViewCommands, F3TakesTheFirstAssociationOfTheName) {
  Session s(kFiles, {.settings = kAssociations});
  s.Keys("Down Down F3");
  EXPECT_EQ(s.Content("home/seen"), "text a b.txt\n");
  EXPECT_EQ(s.Under(kLeftSide), "a b.txt");
}

TEST(ViewCommands, WithoutOneItTakesTheSetting) {
  Session s(kFiles, {.settings = kAssociations});
  s.Keys("End F3");
  EXPECT_EQ(s.Content("home/seen"), "other c.dat\n");
}

TEST(ViewCommands, AltF3TakesTheAlternateOne) {
  Session s(kFiles, {.settings = kAssociations});
  s.Keys("Down Down Alt-F3");
  EXPECT_EQ(s.Content("home/seen"), "second a b.txt\n");
}

TEST(ViewCommands, AnEmptyAlternateOneIsOurOwn) {
  Session s(kFiles, {.settings = "Viewer2=\nViewer=echo other !\n"});
  s.Keys("Down Down Alt-F3");
  EXPECT_TRUE(IsViewed(s, "left/a b.txt"));
}

TEST(ViewCommands, AnAssociationMayNameOurOwn) {
  Session s(kFiles, {.settings = "Viewer=echo other !\n[Viewer Associations]\n*.txt: $view !\n"});
  s.Keys("Down Down F3");
  EXPECT_TRUE(IsViewed(s, "left/a b.txt"));
  s.Keys("Esc");
  EXPECT_TRUE(IsShown(s, kLeftSide));
}

TEST(ViewCommands, ADirectoryIsCounted) {
  for (const char* key : {"F3", "Alt-F3"}) {
    Session s({{"left/sub/file", "12345"}}, {.settings = kAssociations});
    s.Keys(std::string("Down ") + key);
    EXPECT_EQ(Panels[0].Current()->size, 5) << key;
    EXPECT_EQ(s.Content("home/seen"), "") << key;
  }
}

TEST(ViewCommands, WhereNoListIsShownNothingHappens) {
  Session s(kFiles);
  s.Keys("End Ctrl-O F3");
  EXPECT_FALSE(s.FindRow("View: "));
  s.Keys("Ctrl-O Ctrl-L Tab F3 Alt-F3");
  EXPECT_FALSE(s.FindRow("View: "));
}

TEST(ViewCommands, AnEmptyListHasNothingToView) {
  Session s({{"left/file", ""}}, {.settings = "LeftFilter=none\n"});
  s.Keys("F3 Alt-F3");
  EXPECT_FALSE(s.FindRow("View: "));
}

TEST(ViewCommands, TheMenuViews) {
  Session s(kFiles);
  s.Keys("End F9 f v");
  EXPECT_TRUE(IsViewed(s, "left/c.dat"));
}

TEST(ViewCommands, TheClockIsNotOverTheText) {
  Session s(kFiles, {.settings = "Clock=on\n"});
  const auto isClockShown = [&] { return s.Character(79, 0) == U'a' || s.Character(79, 0) == U'p'; };
  s.Keys("End");
  EXPECT_TRUE(isClockShown());
  s.Keys("F3");
  EXPECT_TRUE(s.Row(kStatusRow).EndsWith("%"));
  s.Keys("Esc");
  EXPECT_TRUE(isClockShown());
}

// ---- Shift-F3

TEST(ViewNamed, TheBoxOffersTheEntryUnderTheCursor) {
  Session s(kFiles);
  s.Keys("End Shift-F3");
  EXPECT_EQ(s.Character(3, 6), U'╔');
  EXPECT_EQ(s.Character(76, 14), U'╝');
  EXPECT_EQ(s.Text(5, 8, 14), "View the file:");
  EXPECT_EQ(s.Text(5, 10, 70).Trimmed(), "c.dat");
  EXPECT_NE(s.Attribute(74, 10), s.Attribute(75, 10));  // the field is 70 wide
  EXPECT_TRUE(s.Row(12).Contains("[ OK ]  [ Cancel ]"));
}

TEST(ViewNamed, EscEndsIt) {
  Session s(kFiles);
  s.Keys("End");
  const std::string before = s.Screen();
  s.Keys("Shift-F3 Esc");
  EXPECT_EQ(s.Screen(), before);
}

TEST(ViewNamed, ThePathStartsAtThePanels) {
  Session s({{"left/file", "left\n"}, {"right/other", "right\n"}});
  s.Keys("Shift-F3 '../right/other' Enter");
  EXPECT_TRUE(IsViewed(s, "right/other"));
  EXPECT_TRUE(s.Row(1).StartsWith("right "));
  s.Keys("Esc");
  EXPECT_TRUE(IsShown(s, kLeftSide));
  s.Keys("Shift-F3 " + Typed(s.Path("right/other")) + " Enter");
  EXPECT_TRUE(IsViewed(s, "right/other"));
}

TEST(ViewNamed, NoNameIsNoFile) {
  Session s(kFiles);
  const std::string before = s.Screen();
  s.Keys("Shift-F3 Home Del Del Enter");
  EXPECT_EQ(s.Screen(), before);
}

TEST(ViewNamed, AFileThatIsNotThereIsTold) {
  Session s(kFiles);
  s.Keys("Shift-F3 'none' Enter");
  EXPECT_TRUE(s.FindRow("No such file or directory"));
  s.Keys("Enter");
  EXPECT_TRUE(IsShown(s, kLeftSide));
}

TEST(ViewNamed, TheSettingShowsItAndNoAssociation) {
  Session s(kFiles, {.settings = kAssociations});
  s.Keys("Shift-F3 'a b.txt' Enter");
  EXPECT_EQ(s.Content("home/seen"), "other " + s.Path("left/a b.txt") + "\n");
}

TEST(ViewNamed, ItIsThereWithThePanelsOffToo) {
  Session s(kFiles);
  s.Keys("Ctrl-O Shift-F3 'c.dat' Enter");
  EXPECT_TRUE(IsViewed(s, "left/c.dat"));
}
