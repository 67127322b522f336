// F8: which entries, the questions before, and the panels afterwards.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

#include "config/values/options.h"
#include "session/copy_screen.h"
#include "support/as_nobody.h"

namespace {

constexpr int kMessages = 0x70, kErrors = 0x4F;

const FileList kFiles = {{"left/dir/inside", ""}, {"left/empty/", ""}, {"left/a", ""},
                         {"left/b", ""},          {"left/c", ""},      {"right/other", ""}};

// The row of the box that holds a text, without what is beside the box.
std::string BoxRow(const Session& s, int left, int y, int width) { return s.Text(left, y, width).String(); }

}  // namespace

// ---- one entry ---------------------------------------------------------------

TEST(DeleteCommand, OnTheWayUpItDoesNothing) {
  Session s(kFiles);
  const std::string before = s.Screen();
  s.Keys("F8");
  EXPECT_EQ(s.Screen(), before);
}

TEST(DeleteCommand, AFileIsAskedForAndGoes) {
  Session s(kFiles);
  GoTo(s, "b");
  s.Keys("F8");
  const auto row = s.FindRow("Do you wish to delete");
  ASSERT_TRUE(row);
  // 21 characters and one more to be even, in a box of 26 by 6.
  EXPECT_EQ(BoxRow(s, 27, *row, 26), "║ Do you wish to delete  ║");
  EXPECT_EQ(BoxRow(s, 27, *row + 1, 26), "║           b            ║");
  EXPECT_EQ(BoxRow(s, 27, *row + 2, 26), "║                        ║");
  EXPECT_EQ(BoxRow(s, 27, *row + 3, 26), "║   [ OK ]  [ Cancel ]   ║");
  EXPECT_EQ(s.Character(27, *row + 4), U'╚');
  EXPECT_EQ(s.Attribute(28, *row), kMessages);
  s.Keys("Enter");
  EXPECT_FALSE(s.Exists("left/b"));
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "dir", "empty", "a", "c"}));
  EXPECT_EQ(s.Under(kLeftSide), "c");
}

TEST(DeleteCommand, EscLeavesEverythingAsItWas) {
  Session s(kFiles);
  GoTo(s, "b");
  const std::string before = s.Screen();
  s.Keys("F8 Esc");
  EXPECT_TRUE(s.Exists("left/b"));
  EXPECT_EQ(s.Screen(), before);
  s.Keys("F8 Alt-c F8 Right Enter");
  EXPECT_TRUE(s.Exists("left/b"));
}

TEST(DeleteCommand, ADirectoryHasTheRowOfReadOnlyFiles) {
  Session s(kFiles);
  GoTo(s, "empty");
  s.Keys("F8");
  const auto row = s.FindRow("Do you wish to delete");
  ASSERT_TRUE(row);
  EXPECT_EQ(BoxRow(s, 17, *row + 1, 46), "║                   empty                    ║");
  EXPECT_EQ(BoxRow(s, 17, *row + 3, 46), "║ Delete Read Only: (•) Ask ( ) All ( ) None ║");
  EXPECT_EQ(BoxRow(s, 17, *row + 5, 46), "║             [ OK ]  [ Cancel ]             ║");
  EXPECT_EQ(s.Character(17, *row + 6), U'╚');
  s.Keys("Enter");
  EXPECT_FALSE(s.Exists("left/empty"));
  EXPECT_FALSE(Shows(s, "Delete tree?"));
}

TEST(DeleteCommand, ADirectoryThatIsNotEmptyHasTwoQuestions) {
  Session s(kFiles);
  GoTo(s, "dir");
  s.Keys("F8 Enter");
  EXPECT_TRUE(Shows(s, "is not empty"));
  EXPECT_TRUE(Shows(s, s.Path("left/dir")));
  EXPECT_TRUE(s.Exists("left/dir/inside"));
  s.Keys("'yes' Enter");
  EXPECT_FALSE(s.Exists("left/dir"));
  EXPECT_EQ(s.Under(kLeftSide), "empty");
}

TEST(DeleteCommand, EscAtTheTreeLeavesEverything) {
  Session s(kFiles);
  GoTo(s, "dir");
  s.Keys("F8 Enter 'yes' Esc");
  EXPECT_TRUE(s.Exists("left/dir/inside"));
  s.Keys("F8 Enter 'ye' Enter");
  EXPECT_TRUE(s.Exists("left/dir/inside"));
  EXPECT_EQ(s.Under(kLeftSide), "dir");
}

TEST(DeleteCommand, ALinkToADirectoryGoesAsALink) {
  Session s(kFiles, {.prepare = [](const Sandbox& files) {
              ASSERT_EQ(symlink("../right", files.Path("left/link").c_str()), 0);
            }});
  GoTo(s, "link");
  s.Keys("F8 Enter");
  EXPECT_FALSE(s.Exists("left/link"));
  EXPECT_TRUE(s.Exists("right/other"));
}

TEST(DeleteCommand, ALongNameIsAbbreviated) {
  const std::string name(200, 'x');
  Session s({{"left/" + name, ""}});
  GoTo(s, name);
  s.Keys("F8");
  const auto row = s.FindRow("Do you wish to delete");
  ASSERT_TRUE(row);
  EXPECT_EQ(s.Text(3, *row + 1, 74).String(), "║ " + std::string(69, 'x') + "► ║");
}

TEST(DeleteCommand, AnEmptyListDoesNothing) {
  Session s(kFiles);
  GoTo(s, "a");
  Panels[0].FreeEntries();
  Panels[0].count = 0;
  s.Keys("F8");
  EXPECT_FALSE(Shows(s, "delete"));
}

TEST(DeleteCommand, TheUserMayBeAskedToDoWithoutUndelete) {
  Session s({{"left/dir/", ""}, {"left/a", ""}}, {.environment = {{"DELDIR", "/var;/tmp"}}});
  GoTo(s, "a");
  s.Keys("F8");
  auto row = s.FindRow("Do you wish to delete");
  ASSERT_TRUE(row);
  EXPECT_EQ(BoxRow(s, 27, *row + 3, 26), "║ [ ]  No Undelete       ║");
  EXPECT_EQ(BoxRow(s, 27, *row + 5, 26), "║   [ OK ]  [ Cancel ]   ║");
  EXPECT_EQ(s.Character(27, *row + 6), U'╚');
  s.Keys("Alt-u");
  EXPECT_EQ(BoxRow(s, 27, *row + 3, 26), "║ [X]  No Undelete       ║");
  s.Keys("Esc");
  GoTo(s, "dir");
  s.Keys("F8");
  row = s.FindRow("Do you wish to delete");
  ASSERT_TRUE(row);
  EXPECT_TRUE(s.Row(*row + 3).Contains("Delete Read Only:"));
  EXPECT_TRUE(s.Row(*row + 4).Contains("[ ]  No Undelete"));
  EXPECT_TRUE(s.Row(*row + 6).Contains("[ OK ]"));
  s.Keys("Enter");
  EXPECT_FALSE(s.Exists("left/dir"));
}

TEST(DeleteCommand, OtherPlacesHaveNoUndelete) {
  Session s(kFiles, {.environment = {{"DELDIR", "/var;/home"}}});
  GoTo(s, "a");
  s.Keys("F8");
  EXPECT_FALSE(Shows(s, "Undelete"));
}

// ---- tagged entries ----------------------------------------------------------

TEST(DeleteCommand, TaggedEntriesAreAskedForTwice) {
  Session s(kFiles);
  TagNames(s, {"a", "c"});
  s.Keys("F8");
  auto row = s.FindRow("You have selected 2 files");
  ASSERT_TRUE(row);
  EXPECT_TRUE(s.Row(*row + 1).Contains("      Delete?      "));
  EXPECT_TRUE(s.Row(*row + 3).Contains("Delete Read Only: (•) Ask ( ) All ( ) None"));
  EXPECT_EQ(s.Attribute(30, *row), kMessages);
  s.Keys("Enter");
  row = s.FindRow("You are deleting 2 selected files from");
  ASSERT_TRUE(row);
  EXPECT_TRUE(s.Row(*row + 1).Contains(" " + s.Path("left") + " "));
  EXPECT_TRUE(s.Row(*row + 3).Contains("[ OK ]  [ Cancel ]"));
  EXPECT_EQ(s.Attribute(30, *row), kErrors);
  EXPECT_TRUE(s.Exists("left/a"));
  s.Keys("Enter");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "dir", "empty", "b"}));
  EXPECT_EQ(Panels[0].taggedCount, 0);
}

TEST(DeleteCommand, OneTaggedEntryIsOneFile) {
  Session s(kFiles);
  TagNames(s, {"a"});
  s.Keys("F8");
  EXPECT_TRUE(Shows(s, " You have selected 1 file "));
  s.Keys("Enter");
  EXPECT_TRUE(Shows(s, "You are deleting 1 selected files from"));
}

TEST(DeleteCommand, EscAtEitherQuestionKeepsFilesAndTags) {
  Session s(kFiles);
  TagNames(s, {"a", "c"});
  for (const char* keys : {"F8 Esc", "F8 Enter Esc", "F8 Enter y Esc"}) {
    s.Keys(keys);
    EXPECT_TRUE(s.Exists("left/a"));
    EXPECT_EQ(Tagged(kLeftSide), (Strings{"a", "c"})) << keys;
  }
}

TEST(DeleteCommand, TheBitsOfConfirmationsSpareTheQuestions) {
  struct {
    int bits;
    const char* one;     // keys for one file after F8
    const char* tagged;  // and for tagged ones
  } const cases[] = {{0, "Enter", "Enter Enter"}, {1, "", "Enter"}, {2, "Enter", "Enter"}, {3, "", ""}};
  for (const auto& row : cases) {
    Session s(kFiles, {.settings = "Confirmations=" + std::to_string(row.bits) + "\n"});
    GoTo(s, "a");
    s.Keys(std::string("F8 ") + row.one);
    EXPECT_FALSE(s.Exists("left/a")) << row.bits;
    TagNames(s, {"b", "c"});
    s.Keys(std::string("F8 ") + row.tagged);
    EXPECT_FALSE(s.Exists("left/b")) << row.bits;
    EXPECT_FALSE(Shows(s, "[ OK ]")) << row.bits;
    s.Quit();
  }
}

TEST(DeleteCommand, TaggedDirectoriesAndLinksGoAsWhatTheyAre) {
  Session s(kFiles, {.settings = "Confirmations=20\n", .prepare = [](const Sandbox& files) {
                       ASSERT_EQ(symlink("../right", files.Path("left/link").c_str()), 0);
                     }});
  TagNames(s, {"dir", "link", "a"});
  s.Keys("F8 Enter Enter");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "empty", "b", "c"}));
  EXPECT_TRUE(s.Exists("right/other"));
}

TEST(DeleteCommand, AllAtTheTreeHoldsForTheTaggedOnes) {
  Session s({{"left/one/x", ""}, {"left/two/x", ""}, {"left/zero/x", ""}},
            {.settings = "Confirmations=19\n"});
  TagNames(s, {"one", "two", "zero"});
  s.Keys("F8");
  EXPECT_TRUE(Shows(s, "Delete tree?"));
  s.Keys("a");
  EXPECT_EQ(s.Names(kLeftSide), Strings{".."});
}

TEST(DeleteCommand, EscAtTheTreeStopsTheTaggedOnes) {
  Session s({{"left/one/x", ""}, {"left/two/x", ""}, {"left/zero", ""}}, {.settings = "Confirmations=3\n"});
  TagNames(s, {"one", "two", "zero"});
  s.Keys("F8 'yes' Enter Esc");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "two", "zero"}));
  EXPECT_EQ(Tagged(kLeftSide), (Strings{"two", "zero"}));
  EXPECT_EQ(Panels[0].taggedCount, 2);
}

TEST(DeleteCommand, EscTypedAheadStopsBeforeTheNext) {
  Session s(kFiles, {.settings = "Confirmations=3\n"});
  TagNames(s, {"a", "b", "c"});
  s.KeysTypedAhead("F8 Esc");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "dir", "empty", "a", "b", "c"}));
  EXPECT_EQ(Tagged(kLeftSide), (Strings{"a", "b", "c"}));
}

TEST(DeleteCommand, BreakAtAQuestionStopsBeforeTheFirst) {
  Session s(kFiles);
  TagNames(s, {"a", "b"});
  s.Keys("F8");
  RequestBreak();
  s.Keys("Enter Enter");
  EXPECT_TRUE(s.Exists("left/a"));
  EXPECT_TRUE(s.Exists("left/b"));
  EXPECT_EQ(Tagged(kLeftSide), (Strings{"a", "b"}));
}

TEST(DeleteCommand, WhatCouldNotBeDeletedLosesItsTagAndRestoreBringsItBack) {
  Session s(kFiles, {.settings = "Confirmations=3\n"});
  TagNames(s, {"a", "b", "c"});
  chmod(s.Path("left/b").c_str(), 0444);
  {
    AsNobody nobody(s.Path());
    s.Keys("F8");
    EXPECT_TRUE(Shows(s, "File is Read Only, Delete anyway?"));
    s.Keys("s");
  }
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "dir", "empty", "b"}));
  EXPECT_EQ(Tagged(kLeftSide), Strings());
  EXPECT_EQ(Panels[0].taggedCount, 0);
  EXPECT_EQ(Panels[0].taggedBytes, 0u);
  s.Keys("Alt-Grey+");
  EXPECT_EQ(Tagged(kLeftSide), Strings{"b"});
}

TEST(DeleteCommand, WhatWasDoneBeforeIsForgotten) {
  Session s(kFiles, {.settings = "Confirmations=3\n"});
  GoTo(s, "a");
  Panels[0].Current()->processed = 1;
  TagNames(s, {"b"});
  s.Keys("F8");
  EXPECT_EQ(Processed(kLeftSide), Strings());
}

TEST(DeleteCommand, TheDialogsChoiceAnswersTheReadOnlyQuestion) {
  for (const bool all : {true, false}) {
    Session s(kFiles);
    TagNames(s, {"a", "b"});
    chmod(s.Path("left/a").c_str(), 0444);
    AsNobody nobody(s.Path());
    s.Keys("F8");
    s.Keys(all ? "Alt-a" : "Alt-e");
    EXPECT_TRUE(Shows(s, all ? "( ) Ask (•) All ( ) None" : "( ) Ask ( ) All (•) None"));
    s.Keys("Enter Enter");
    EXPECT_FALSE(Shows(s, "Delete anyway?"));
    EXPECT_EQ(s.Exists("left/a"), !all);
    EXPECT_FALSE(s.Exists("left/b"));
    s.Quit();
  }
}

TEST(DeleteCommand, TheAnswerOfOneCommandIsNotTheNextOnes) {
  Session s(kFiles, {.settings = "Confirmations=3\n"});
  for (const char* name : {"left/a", "left/b"}) chmod(s.Path(name).c_str(), 0444);
  AsNobody nobody(s.Path());
  GoTo(s, "a");
  s.Keys("F8 a");
  EXPECT_FALSE(s.Exists("left/a"));
  GoTo(s, "b");
  s.Keys("F8");
  EXPECT_TRUE(Shows(s, "File is Read Only, Delete anyway?"));
  s.Keys("Esc");
  EXPECT_TRUE(s.Exists("left/b"));
}

// ---- awkward names -----------------------------------------------------------

TEST(DeleteCommand, ANameThatIsNoTextIsRefusedAndItsLikeStays) {
  Session s({{"left/caf\xE9", "raw"}, {"left/caf\xC3\xA9", "text"}, {"left/plain", ""}},
            {.settings = "Confirmations=3\n"});
  GoTo(s, "caf\xC3\xA9");
  s.Keys("F8");
  EXPECT_TRUE(Shows(s, "(84)"));
  s.Keys("s");
  EXPECT_EQ(s.Content("left/caf\xE9"), "raw");
  EXPECT_EQ(s.Content("left/caf\xC3\xA9"), "text");
  TagNames(s, {"caf\xC3\xA9", "plain"});
  s.Keys("F8 s");
  EXPECT_FALSE(s.Exists("left/plain"));
  EXPECT_EQ(s.Content("left/caf\xE9"), "raw");
  EXPECT_EQ(s.Content("left/caf\xC3\xA9"), "text");
}

TEST(DeleteCommand, ANameThatOnlyReadsAsAWayToAnotherFileIsRefused) {
  Session s({{"left/sub\xC0\xAFx", "false"}, {"left/sub/x", "true"}}, {.settings = "Confirmations=3\n"});
  s.Keys("End F8");
  EXPECT_TRUE(Shows(s, "(84)"));
  s.Keys("s Ins F8");
  EXPECT_TRUE(Shows(s, "(84)"));
  s.Keys("s");
  EXPECT_EQ(s.Content("left/sub/x"), "true");
}

TEST(DeleteCommand, AnotherTryTakesTheFileThatIsTextOnceItsLikeHasGone) {
  Session s({{"left/caf\xE9", ""}, {"left/caf\xC3\xA9", ""}}, {.settings = "Confirmations=3\n"});
  GoTo(s, "caf\xC3\xA9");
  s.Keys("F8 r");
  EXPECT_TRUE(Shows(s, "(84)"));
  ASSERT_EQ(rename(s.Path("left/caf\xE9").c_str(), s.Path("left/cafe").c_str()), 0);
  s.Keys("r");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "cafe"}));
}

TEST(DeleteCommand, OddNamesAreDeletedAsTheyAre) {
  const Strings names = {"a b", "-rf", "$HOME", "back\\slash", "*", "new\nline", "~", "gr\xC3\xBCn"};
  FileList files = {{"left/zz", ""}};
  for (const std::string& name : names) files.emplace_back("left/" + name, "");
  Session s(files, {.settings = "Confirmations=3\n"});
  for (const std::string& name : names) {
    GoTo(s, name);
    s.Keys("F8");
    EXPECT_FALSE(s.Exists("left/" + name)) << name;
  }
  EXPECT_TRUE(s.Exists("left/zz"));
}

// ---- where it works ----------------------------------------------------------

TEST(DeleteCommand, BothPanelsAreReadAgain) {
  Session s({{"left/a", ""}, {"left/b", ""}},
            {.settings = "Confirmations=1\n", .arguments = Strings{"-l", "left", "-r", "left"}});
  GoTo(s, "a");
  s.Keys("F8");
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "b"}));
}

TEST(DeleteCommand, AnInformationPanelHasNone) {
  Session s(kFiles);
  GoTo(s, "a");
  s.Keys("Ctrl-L Tab");
  const std::string before = s.Screen();
  s.Keys("F8");
  EXPECT_EQ(s.Screen(), before);
}

TEST(DeleteCommand, WithBothPanelsOffNothingIsDeleted) {
  Session s(kFiles, {.settings = "Confirmations=3\n"});
  GoTo(s, "a");
  s.Keys("Ctrl-O F8");
  EXPECT_TRUE(s.Exists("left/a"));
  s.Keys("Ctrl-O F8");
  EXPECT_FALSE(s.Exists("left/a"));
}

TEST(DeleteCommand, TheMenuHasIt) {
  Session s(kFiles);
  GoTo(s, "a");
  s.Keys("F9 f d Enter");
  EXPECT_FALSE(s.Exists("left/a"));
}

TEST(DeleteCommand, DescriptionsGoWithTheirFiles) {
  Session s({{"left/a", ""}, {"left/b", ""}, {"left/descript.ion", "a first\nb second\n"}},
            {.settings = "Confirmations=3\n"});
  GoTo(s, "a");
  s.Keys("F8");
  EXPECT_EQ(s.Content("left/descript.ion"), "b second\n");
  TagNames(s, {"b"});
  s.Keys("F8");
  EXPECT_FALSE(s.Exists("left/descript.ion"));
}

TEST(DeleteCommand, DescriptionsThatWentWithTheLastOfTheirFilesAreNotMissed) {
  Session s({{"left/a", ""}, {"left/descript.ion", "a first\n"}, {"left/z", ""}},
            {.settings = "Confirmations=3\n"});
  TagNames(s, {"a", "descript.ion", "z"});
  s.Keys("F8");
  EXPECT_EQ(s.Names(kLeftSide), Strings{".."});
  EXPECT_FALSE(Shows(s, "File not found"));
}
