// The dialog of a copy or move, and what becomes of the destinations typed in it.
#include "session/copy_screen.h"

namespace {

// The inside of the dialog on a screen of 80 by 25, without and with the row of
// overwrite modes.
constexpr int kInsideX = 3, kInsideY = 7, kOverwriteInsideY = 6;

const FileList kFiles = {{"left/dir/", ""}, {"left/a.txt", "a"}, {"left/b.txt", "b"}, {"right/", ""}};

std::string DialogRow(const Session& s, int y) { return s.Text(kInsideX, y, 74).Trimmed(); }
std::string Title(const Session& s) { return DialogRow(s, kInsideY + 1); }
std::string Field(const Session& s) { return s.Text(kInsideX + 1, kInsideY + 2, 72).Trimmed(); }
std::string TitleAboveModes(const Session& s) { return DialogRow(s, kOverwriteInsideY + 1); }
std::string FieldAboveModes(const Session& s) { return DialogRow(s, kOverwriteInsideY + 2); }
bool IsOpen(const Session& s) { return Shows(s, "[ F10-Tree ]"); }

// A message about the destination, which ends the command.
void ExpectRefused(Session& s, const std::string& keys, const std::string& message) {
  s.Keys(keys);
  EXPECT_TRUE(Shows(s, message)) << s.Screen();
  s.Keys("Enter");
  EXPECT_FALSE(IsOpen(s));
  EXPECT_FALSE(Shows(s, message));
}

}  // namespace

TEST(CopyDialog, EscLeavesEverythingAsItWas) {
  Session s(kFiles);
  GoTo(s, "a.txt");
  s.Keys("F5 Esc");
  EXPECT_TRUE(s.Row(24).StartsWith("1Help"));
  EXPECT_FALSE(s.Exists("right/a.txt"));
  EXPECT_EQ(s.Under(kLeftSide), "a.txt");
}

TEST(CopyDialog, IsSevenRowsHighForOneName) {
  Session s(kFiles);
  GoTo(s, "a.txt");
  s.Keys("F5");
  EXPECT_EQ(s.Character(2, 6), U'╔');
  EXPECT_EQ(s.Character(77, 12), U'╝');
  EXPECT_EQ(s.Attribute(10, 7), 0x70);
  EXPECT_EQ(Title(s), "Copy \"a.txt\" to");
  EXPECT_EQ(Field(s), s.Path("right/a.txt"));
  EXPECT_EQ(DialogRow(s, kInsideY + 4), "[ OK ]  [ Cancel ]  [ F10-Tree ]  [ Dir Hist ]");
  EXPECT_FALSE(Shows(s, "Overwrite"));
  s.Keys("Esc");
}

TEST(CopyDialog, AMoveOfOneIsAlsoARename) {
  Session s(kFiles);
  GoTo(s, "a.txt");
  s.Keys("F6");
  EXPECT_EQ(Title(s), "Move/Rename \"a.txt\" to");
  EXPECT_EQ(Field(s), s.Path("right/a.txt"));
  s.Keys("Esc");
}

TEST(CopyDialog, WithShiftTheBareNameIsOffered) {
  Session s(kFiles);
  GoTo(s, "a.txt");
  s.Keys("Shift-F5");
  EXPECT_EQ(Title(s), "Copy \"a.txt\" to");
  EXPECT_EQ(Field(s), "a.txt");
  s.Keys("Esc Shift-F6");
  EXPECT_EQ(Title(s), "Move/Rename \"a.txt\" to");
  EXPECT_EQ(Field(s), "a.txt");
  s.Keys("Esc");
}

TEST(CopyDialog, WithoutAnotherListTheBareNameIsOffered) {
  Session s(kFiles);
  GoTo(s, "a.txt");
  s.Keys("Ctrl-P F5");
  EXPECT_EQ(Field(s), "a.txt");
  s.Keys("Esc Ctrl-P");
}

TEST(CopyDialog, WithShiftTagsDoNotCount) {
  Session s(kFiles);
  TagNames(s, {"a.txt"});
  GoTo(s, "b.txt");
  s.Keys("Shift-F5 'c.txt' Enter");
  EXPECT_EQ(s.Content("left/c.txt"), "b");
  EXPECT_EQ(Tagged(kLeftSide), Strings{"a.txt"});
}

TEST(CopyDialog, IsNineRowsHighForTaggedNames) {
  Session s(kFiles);
  TagNames(s, {"a.txt", "b.txt"});
  s.Keys("F5");
  EXPECT_EQ(s.Character(2, 5), U'╔');
  EXPECT_EQ(s.Character(77, 13), U'╝');
  EXPECT_EQ(TitleAboveModes(s), "Copy 2 files to");
  EXPECT_EQ(FieldAboveModes(s), s.Path("right/"));
  EXPECT_EQ(DialogRow(s, kOverwriteInsideY + 4), "Overwrite:  (•) Ask  ( ) Always  ( ) Never  ( ) If Older");
  s.Keys("Esc");
  EXPECT_EQ(Tagged(kLeftSide), (Strings{"a.txt", "b.txt"}));
}

TEST(CopyDialog, OneTaggedFileIsNoPlural) {
  Session s(kFiles);
  TagNames(s, {"a.txt"});
  s.Keys("F6");
  EXPECT_EQ(TitleAboveModes(s), "Move 1 file  to");
  s.Keys("Esc");
}

TEST(CopyDialog, AsksAboutOverwritingWhereADirectoryIsOffered) {
  Session s({{"left/dir/", ""}, {"right/dir/", ""}});
  GoTo(s, "dir");
  s.Keys("F5");
  EXPECT_TRUE(Shows(s, "Overwrite: "));
  EXPECT_EQ(TitleAboveModes(s), "Copy \"dir\" to");
  s.Keys("Esc");
}

TEST(CopyDialog, ShortensALongNameInItsTitle) {
  const std::string name = std::string(70, 'n');
  Session s({{"left/" + name, ""}});
  GoTo(s, name);
  s.Keys("F5");
  EXPECT_EQ(Title(s).substr(0, 60), "Copy \"" + std::string(54, 'n'));
  EXPECT_TRUE(ScreenText(Title(s)).Contains("\" to"));
  s.Keys("Esc");
}

TEST(CopyDialog, FlipsBetweenBareNameAndOtherDirectory) {
  for (const char* key : {"F5", "F6", "Alt-d"}) {
    Session s(kFiles);
    GoTo(s, "a.txt");
    s.Keys(std::string("F5 ") + key);
    EXPECT_EQ(Field(s), "a.txt") << key;
    s.Keys(key);
    EXPECT_EQ(Field(s), s.Path("right/a.txt")) << key;
    s.Keys("Esc");
  }
}

TEST(CopyDialog, FlipsNothingForTaggedNames) {
  Session s(kFiles);
  TagNames(s, {"a.txt"});
  s.Keys("F5 F5 F6 Alt-d");
  EXPECT_EQ(FieldAboveModes(s), s.Path("right/"));
  s.Keys("Esc");
}

TEST(CopyDialog, TakesADirectoryOfTheHistory) {
  Session s({{"left/a.txt", "a"}, {"left/dir/", ""}, {"right/", ""}});
  GoTo(s, "dir");
  s.Keys("Enter Ctrl-PgUp");
  GoTo(s, "a.txt");
  s.Keys("F5 Alt-\\ Enter");
  EXPECT_EQ(Field(s), s.Path("left/dir/"));
  s.Keys("Enter");
  EXPECT_EQ(s.Content("left/dir/a.txt"), "a");
}

TEST(CopyDialog, StaysWithoutAChoiceFromTheTree) {
  Session s(kFiles);
  GoTo(s, "a.txt");
  s.Keys("F5 F10");
  EXPECT_TRUE(IsOpen(s));
  EXPECT_EQ(Field(s), s.Path("right/a.txt"));
  s.Keys("Enter");
  EXPECT_EQ(s.Content("right/a.txt"), "a");
}

TEST(CopyDialog, DoesNotOpenForTheWayUpNorForNothing) {
  Session s(kFiles);
  s.Keys("Home F5");
  EXPECT_FALSE(IsOpen(s));
  s.Keys("F6 Shift-F5 Shift-F6");
  EXPECT_FALSE(IsOpen(s));
}

TEST(CopyDialog, DoesNotOpenWithoutPanelsNorForAPanelOfInformation) {
  Session s(kFiles);
  GoTo(s, "a.txt");
  for (const char* way : {"Ctrl-O", "Ctrl-L Tab"}) {
    s.Keys(way);
    for (const char* key : {"F5", "F6", "Shift-F5", "Shift-F6"}) {
      s.Keys(key);
      EXPECT_FALSE(IsOpen(s)) << way << key;
    }
    s.Keys(std::string(way) == "Ctrl-O" ? "Ctrl-O" : "Tab Ctrl-L");
  }
  s.Keys("F5");
  EXPECT_TRUE(IsOpen(s));
  s.Keys("Esc");
}

TEST(CopyDialog, EndsAQuickSearch) {
  Session s(kFiles);
  for (const char* key : {"F5", "F6"}) {
    s.Keys("Alt-b");
    EXPECT_EQ(Panels[kLeftSide].quickSearch[0], L'b');
    s.Keys(std::string(key) + " Esc");
    EXPECT_EQ(Panels[kLeftSide].quickSearch[0], 0) << key;
  }
}

TEST(CopyDialog, ExpandsVariables) {
  Session s(kFiles, {.environment = {{"DEST", "../right"}}});
  GoTo(s, "a.txt");
  s.Keys("F5 '$DEST/new' Enter");
  EXPECT_EQ(s.Content("right/new"), "a");
}

TEST(CopyDialog, RefusesAnEmptyText) {
  Session s(kFiles);
  GoTo(s, "a.txt");
  ExpectRefused(s, "F5 x Backspace Enter", "Invalid path");
}

TEST(CopyDialog, RefusesAPathThatIsTooLong) {
  Session s(kFiles, {.environment = {{"LONG", std::string(600, 'x')}}});
  GoTo(s, "a.txt");
  ExpectRefused(s, "F5 '$LONG' Enter", "Invalid path");
  TagNames(s, {"a.txt"});
  ExpectRefused(s, "F5 '$LONG' Enter", "Invalid path");
  EXPECT_EQ(Tagged(kLeftSide), Strings{"a.txt"});
}

TEST(CopyDialog, ForManyADirectoryThatIsNamedSoMustExist) {
  Session s(kFiles);
  TagNames(s, {"a.txt", "b.txt"});
  ExpectRefused(s, "F5 'none/' Enter", "Directory does not exist");
  ExpectRefused(s, "F5 'none/*.bak' Enter", "Directory does not exist");
  EXPECT_EQ(Tagged(kLeftSide), (Strings{"a.txt", "b.txt"}));
}

TEST(CopyDialog, ForManyTheDestinationMustBeADirectory) {
  Session s({{"left/a.txt", "a"}, {"left/b.txt", "b"}, {"right/file", ""}});
  TagNames(s, {"a.txt", "b.txt"});
  ExpectRefused(s, "F5 'none' Enter", "Destination must be a valid directory");
  ExpectRefused(s, "F6 '../right/file' Enter", "Destination must be a valid directory");
  EXPECT_EQ(s.Content("right/file"), "");
  EXPECT_TRUE(s.Exists("left/a.txt"));
}

TEST(CopyDialog, APatternNeedsNoObjectOfItsName) {
  Session s(kFiles);
  TagNames(s, {"a.txt", "b.txt"});
  s.Keys("F5 '*.bak' Enter");
  EXPECT_EQ(s.Content("left/a.bak"), "a");
  EXPECT_EQ(s.Content("left/b.bak"), "b");
  EXPECT_TRUE(Tagged(kLeftSide).empty());
}

TEST(CopyDialog, APatternOfStarsKeepsNames) {
  Session s(kFiles);
  TagNames(s, {"a.txt", "b.txt"});
  s.Keys("F5 '../right/*.*' Enter");
  EXPECT_EQ(s.Content("right/a.txt"), "a");
  EXPECT_EQ(s.Content("right/b.txt"), "b");
}

TEST(CopyDialog, TwoPointsAreTheDirectoryAbove) {
  Session s(kFiles);
  GoTo(s, "a.txt");
  s.Keys("F5 '..' Enter");
  EXPECT_EQ(s.Content("a.txt"), "a");
}

TEST(CopyDialog, ASlashAtTheEndNamesADirectory) {
  Session s(kFiles);
  GoTo(s, "a.txt");
  s.Keys("F5 'dir/' Enter");
  EXPECT_EQ(s.Content("left/dir/a.txt"), "a");
  s.Keys("F5 'none/' Enter");
  EXPECT_TRUE(Shows(s, "File not found"));
  s.Keys("Esc");
  EXPECT_FALSE(s.Exists("left/none"));
}

TEST(CopyDialog, ASlashAtTheEndIsKeptForMany) {
  Session s({{"left/sub/a", "one"}, {"right/sub/", ""}});
  TagNames(s, {"sub"});
  s.Keys("F5 '../right/sub' Enter");
  EXPECT_EQ(s.Content("right/sub/a"), "one");
  TagNames(s, {"sub"});
  s.Keys("F5 '../right/sub/' Enter");
  EXPECT_EQ(s.Content("right/sub/sub/a"), "one");
}

TEST(CopyDialog, ADeviceTakesMany) {
  Session s(kFiles);
  TagNames(s, {"a.txt", "b.txt"});
  s.Keys("F5 '/dev/null' Enter");
  EXPECT_TRUE(Tagged(kLeftSide).empty());
  EXPECT_EQ(Processed(kLeftSide), (Strings{"a.txt", "b.txt"}));
}

// Nobody typed a variable or a pattern there.
TEST(CopyDialog, ADestinationLeftAsItWasOfferedIsTakenForWhatItIs) {
  for (const std::string name : {"what?.txt", "a*b.txt", "x$NO_SUCH_NAME.txt", "a\\b"}) {
    Session s({{"left/" + name, "a"}, {"right/", ""}});
    GoTo(s, name);
    s.Keys("F5 Enter");
    EXPECT_EQ(s.Content("right/" + name), "a");
    s.Keys("F6 Enter y");
    EXPECT_EQ(s.Content("right/" + name), "a");
    EXPECT_FALSE(s.Exists("left/" + name));
  }
}

TEST(CopyDialog, ADirectoryOfTheSameListLeftAsItWasOfferedIsNoPatternForMany) {
  Session s({{"left/a.txt", "a"}, {"left/b.txt", "b"}, {"left/d*/", ""}});
  TagNames(s, {"a.txt", "b.txt"});
  GoTo(s, "d*");
  s.Keys("Ctrl-P F5 Enter");
  EXPECT_EQ(s.Content("left/d*/a.txt"), "a");
  EXPECT_EQ(s.Content("left/d*/b.txt"), "b");
  s.Keys("Ctrl-P");
}

TEST(CopyDialog, ADirectoryLeftAsItWasOfferedIsNoPatternForMany) {
  Session s({{"left/a.txt", "a"}, {"left/b.txt", "b"}, {"right/*$NO_SUCH_NAME.bak/", ""}});
  s.Keys("Tab Down Enter Tab");
  TagNames(s, {"a.txt", "b.txt"});
  s.Keys("F5 Enter");
  EXPECT_EQ(s.Content("right/*$NO_SUCH_NAME.bak/a.txt"), "a");
  EXPECT_EQ(s.Content("right/*$NO_SUCH_NAME.bak/b.txt"), "b");
}
