// Deleting a directory with all that it holds.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "session/delete_fixture.h"
#include "support/faults.h"

namespace {

namespace fs = std::filesystem;
using Strings = std::vector<std::string>;
class DeleteTreeTest : public DeleteFixture {
 protected:
  Strings NamesIn(const std::string& directory) const {
    Strings names;
    for (const auto& item : fs::directory_iterator(place.Path(directory)))
      names.push_back(item.path().filename());
    return names;
  }
};

void PutEscape() {
  auto* const event = new TEvent;
  event->type = kEventKey;
  event->code = kEscape;
  Console->Events().Put(event);
}

// Directories below each other, made and looked at without a path for them all.
class DeepTree {
 public:
  DeepTree(const std::string& top, const std::string& name, int levels) {
    int directory = open(top.c_str(), O_RDONLY | O_DIRECTORY);
    for (int i = 0; i < levels && directory >= 0; ++i) {
      EXPECT_EQ(mkdirat(directory, name.c_str(), 0755), 0);
      const int below = openat(directory, name.c_str(), O_RDONLY | O_DIRECTORY);
      close(openat(below, "file", O_CREAT | O_WRONLY, 0644));
      close(directory);
      directory = below;
    }
    EXPECT_GE(directory, 0);
    close(directory);
  }
};

// The directory some levels down in a deep tree of "l".
std::string Below(std::string top, int levels) {
  for (int i = 0; i < levels; ++i) top += "/l";
  return top;
}

}  // namespace

// ---- the question ------------------------------------------------------------

TEST_F(DeleteTreeTest, TheWordIsAskedFor) {
  place.Make({{"dir/a", ""}, {"dir/sub/b", ""}});
  Then([this] {
    EXPECT_TRUE(Shows("Directory"));
    EXPECT_TRUE(Shows(place.Path("dir")));
    EXPECT_TRUE(Shows("is not empty"));
    EXPECT_TRUE(Shows("Delete tree?"));
    EXPECT_TRUE(Shows("Type \"YES\""));
  });
  Keys("'YES' Enter");
  EXPECT_EQ(DeleteTreeAt("dir"), 1);
  EXPECT_FALSE(Exists("dir"));
}

TEST_F(DeleteTreeTest, TheBoxIsSevenRowsHighAndAtLeastThirtyOneWide) {
  std::string rule;
  for (int i = 0; i < 29; ++i) rule += "═";
  Then([this, rule] {
    EXPECT_EQ(Row(6).String().find("╔"), 24u);
    EXPECT_TRUE(Row(6).Contains("╔" + rule + "╗"));
    EXPECT_TRUE(Row(12).Contains("╝"));
    EXPECT_EQ(Attribute(25, 7), kDefaultColours[kColourErrors]);
  });
  Keys("Esc");
  EXPECT_EQ(DeleteTree(operation, L"/short", L"*"), -1);
}

TEST_F(DeleteTreeTest, TheWordCountsInAnyCase) {
  for (const char* word : {"'yes'", "'Yes'", "'yEs'"}) {
    place.Make({{"dir/a", ""}});
    Keys(std::string(word) + " Enter");
    EXPECT_EQ(DeleteTreeAt("dir"), 1);
    EXPECT_FALSE(Exists("dir"));
  }
}

TEST_F(DeleteTreeTest, AnythingElseLeavesAllAlone) {
  place.Make({{"dir/a", ""}});
  for (const char* keys : {"'YE' Enter", "Enter", "'YESS' Enter", "'no' Enter", "'YES' Esc", "Esc"}) {
    Keys(keys);
    EXPECT_EQ(DeleteTreeAt("dir"), -1) << keys;
    EXPECT_TRUE(Exists("dir/a")) << keys;
  }
  EXPECT_EQ(operation.treeDepth, 0);
}

TEST_F(DeleteTreeTest, ByOptionButtonsAskInsteadOfTheWord) {
  Options::Confirmations = 16;
  place.Make({{"a/x", ""}, {"b/x", ""}, {"c/x", ""}, {"d/x", ""}});
  Then([this] {
    EXPECT_TRUE(Shows("[ OK ]  [ Cancel ]  [ All ]"));
    EXPECT_FALSE(Shows("Type"));
  });
  Keys("n");
  EXPECT_EQ(DeleteTreeAt("a"), -1);
  Keys("Esc");
  EXPECT_EQ(DeleteTreeAt("a"), -1);
  EXPECT_TRUE(Exists("a/x"));
  Keys("Enter");
  EXPECT_EQ(DeleteTreeAt("a"), 1);
  EXPECT_FALSE(operation.treeAll);
  Keys("y");
  EXPECT_EQ(DeleteTreeAt("b"), 1);
  Keys("a");
  EXPECT_EQ(DeleteTreeAt("c"), 1);
  EXPECT_TRUE(operation.treeAll);
  EXPECT_EQ(DeleteTreeAt("d"), 1);  // without a question
  EXPECT_FALSE(Exists("d"));
}

TEST_F(DeleteTreeTest, ByOptionNothingIsAsked) {
  Options::Confirmations = 4;
  place.Make({{"dir/sub/deeper/a", ""}});
  EXPECT_EQ(DeleteTreeAt("dir"), 1);
  EXPECT_FALSE(Exists("dir"));
}

// ---- what goes ---------------------------------------------------------------

TEST_F(DeleteTreeTest, LinksGoAndTheirTargetsStay) {
  Options::Confirmations = 4;
  place.Make({{"outside/dir/a", "kept"}, {"dir/sub/b", ""}});
  ASSERT_EQ(symlink("../outside", place.Path("dir/out").c_str()), 0);
  ASSERT_EQ(symlink("../../outside/dir/a", place.Path("dir/sub/file").c_str()), 0);
  ASSERT_EQ(symlink("..", place.Path("dir/sub/up").c_str()), 0);
  ASSERT_EQ(symlink("self", place.Path("dir/self").c_str()), 0);
  EXPECT_EQ(DeleteTreeAt("dir"), 1);
  EXPECT_FALSE(Exists("dir"));
  EXPECT_EQ(place.Content("outside/dir/a"), "kept");
}

TEST_F(DeleteTreeTest, EveryKindOfObjectGoes) {
  Options::Confirmations = 4;
  place.Make({{"dir/.hidden", ""},
              {"dir/descript.ion", ".hidden text\nx y\n"},
              {"dir/..x", ""},
              {"dir/empty/", ""}});
  ASSERT_EQ(mkfifo(place.Path("dir/fifo").c_str(), 0600), 0);
  EXPECT_EQ(DeleteTreeAt("dir"), 1);
  EXPECT_FALSE(Exists("dir"));
}

TEST_F(DeleteTreeTest, EveryByteThatANameCanHoldIsDeleted) {
  Options::Confirmations = 4;
  place.Make({{"dir/", ""}});
  for (int c = 1; c < 0x80; ++c)
    if (c != '/') place.Write(std::string("dir/x") + static_cast<char>(c), "");
  place.Write("dir/gr\xC3\xBCn \xF0\x9F\x98\x80", "");
  place.Write("dir/" + std::string(255, 'n'), "");
  EXPECT_EQ(DeleteTreeAt("dir"), 1);
  EXPECT_FALSE(Exists("dir"));
}

TEST_F(DeleteTreeTest, ANameThatIsNoTextIsRefusedAndItsLikesAreTheirOwn) {
  Options::Confirmations = 4;
  place.Make({{"dir/a", ""}, {"dir/caf\xE9", "kept"}});
  Then([this] {
    EXPECT_TRUE(Shows("(84)"));
    EXPECT_TRUE(Shows(place.Path("dir/caf\u00E9")));
  });
  Keys("s");
  Expect("Directory not empty (39)", "s");
  EXPECT_EQ(DeleteTreeAt("dir"), 1);
  EXPECT_FALSE(Exists("dir/a"));
  EXPECT_EQ(place.Content("dir/caf\xE9"), "kept");
}

TEST_F(DeleteTreeTest, ANameThatReadsAsAPathElsewhereLeadsNowhere) {
  Options::Confirmations = 4;
  place.Make({{"victim", "kept"}, {"dir/..\xC0\xAFvictim", ""}});
  Expect("(84)", "s");
  Expect("Directory not empty (39)", "s");
  EXPECT_EQ(DeleteTreeAt("dir"), 1);
  EXPECT_EQ(place.Content("victim"), "kept");
}

// Also more than may be open at once.
TEST_F(DeleteTreeTest, HundredsOfLevelsGo) {
  Options::Confirmations = 4;
  for (const int levels : {200, 1200}) {
    place.Make({{"dir/", ""}});
    DeepTree(place.Path("dir"), "l", levels);
    EXPECT_EQ(DeleteTreeAt("dir"), 1) << levels;
    EXPECT_FALSE(Exists("dir")) << levels;
  }
}

TEST_F(DeleteTreeTest, OnTheWayUpNothingIsAskedForTwice) {
  Options::Confirmations = 4;
  place.Make({{"dir/keep", ""}});
  SetMode("dir/keep", 0444);
  DeepTree(place.Path("dir"), "l", 100);
  for (const char* name : {"dir/0", "dir/n", "dir/z"}) place.Write(name, "");
  AsNobody nobody(place.Path());
  Expect("File is Read Only, Delete anyway?", "s");
  Expect("Directory not empty (39)", "s");
  EXPECT_EQ(DeleteTreeAt("dir"), 1);
  EXPECT_EQ(NamesIn("dir"), Strings{"keep"});
}

TEST_F(DeleteTreeTest, WhereTheWayUpLeadsElsewhereNothingElseGoes) {
  Options::Confirmations = 4;
  place.Make({{"dir/", ""}, {"elsewhere/file", "kept"}});
  DeepTree(place.Path("dir"), "l", 100);
  Fault moved(kCallUnlink, {.path = place.Path(Below("dir", 90)), .before = [this] {
                              fs::rename(place.Path(Below("dir", 11)), place.Path("elsewhere/l"));
                            }});
  Expect("File not found", "Enter");
  EXPECT_EQ(DeleteTreeAt("dir"), -1);
  EXPECT_EQ(place.Content("elsewhere/file"), "kept");
  EXPECT_TRUE(Exists("elsewhere/l"));
  EXPECT_TRUE(Exists(Below("dir", 10)));
}

TEST_F(DeleteTreeTest, LevelsWithoutEndAreRefused) {
  Options::Confirmations = 4;
  place.Make({{"dir/", ""}});
  DeepTree(place.Path("dir"), "l", 1600);
  Expect("Name too long", "Enter");
  EXPECT_EQ(DeleteTreeAt("dir"), -1);
  EXPECT_TRUE(Exists(Below("dir", 1499)));
  // In two parts it goes.
  fs::rename(place.Path(Below("dir", 800)), place.Path("rest"));
  EXPECT_EQ(DeleteTreeAt("dir"), 1);
  EXPECT_EQ(DeleteTreeAt("rest"), 1);
}

// No path leads to the lowest of them.
TEST_F(DeleteTreeTest, LevelsBelowTheLongestPathGo) {
  Options::Confirmations = 4;
  place.Make({{"dir/", ""}});
  DeepTree(place.Path("dir"), std::string(200, 'l'), 30);
  EXPECT_EQ(DeleteTreeAt("dir"), 1);
  EXPECT_FALSE(Exists("dir"));
}

TEST_F(DeleteTreeTest, TheMaskKeepsTheOthersAndTheDirectoryIsTold) {
  Options::Confirmations = 4;
  place.Make({{"dir/a.c", ""}, {"dir/b.h", ""}, {"dir/sub/c.c", ""}});
  Then([this] {
    EXPECT_TRUE(Shows("Directory not empty (39)"));
    EXPECT_TRUE(Shows(place.Path("dir")));
  });
  Keys("s");
  EXPECT_EQ(DeleteTreeAt("dir", L"*.c"), 1);
  EXPECT_TRUE(Exists("dir/b.h"));
  EXPECT_FALSE(Exists("dir/a.c"));
  EXPECT_FALSE(Exists("dir/sub"));
}

TEST_F(DeleteTreeTest, AMaskInErrorDeletesNothing) {
  Options::Confirmations = 4;
  place.Make({{"dir/a", ""}});
  Expect("Directory not empty (39)", "s");
  EXPECT_EQ(DeleteTreeAt("dir", L"(*"), 1);
  EXPECT_TRUE(Exists("dir/a"));
}

// ---- what stays --------------------------------------------------------------

TEST_F(DeleteTreeTest, AnItemThatStaysKeepsTheDirectoriesAboveIt) {
  Options::Confirmations = 4;
  place.Make({{"dir/sub/keep", ""}, {"dir/sub/go", ""}, {"dir/go", ""}});
  SetMode("dir/sub/keep", 0444);
  AsNobody nobody(place.Path());
  Expect("File is Read Only, Delete anyway?", "s");
  Then([this] { EXPECT_TRUE(Shows(place.Path("dir/sub") + " ")); });
  Expect("Directory not empty (39)", "s");
  Then([this] { EXPECT_TRUE(Shows(place.Path("dir") + " ")); });
  Expect("Directory not empty (39)", "s");
  EXPECT_EQ(DeleteTreeAt("dir"), 1);
  EXPECT_TRUE(Exists("dir/sub/keep"));
  EXPECT_FALSE(Exists("dir/sub/go"));
  EXPECT_FALSE(Exists("dir/go"));
}

TEST_F(DeleteTreeTest, RetryWalksWhatIsLeftAgain) {
  Options::Confirmations = 4;
  place.Make({{"dir/keep", ""}});
  SetMode("dir/keep", 0444);
  AsNobody nobody(place.Path());
  Expect("File is Read Only, Delete anyway?", "s");
  Expect("Directory not empty (39)", "r");
  Expect("File is Read Only, Delete anyway?", "y");
  EXPECT_EQ(DeleteTreeAt("dir"), 1);
  EXPECT_FALSE(Exists("dir"));
}

TEST_F(DeleteTreeTest, ASubdirectoryThatCannotBeReadIsAskedFor) {
  Options::Confirmations = 4;
  place.Make({{"dir/closed/", ""}, {"dir/a", ""}});
  SetMode("dir/closed", 0);
  AsNobody nobody(place.Path());
  Expect("Directory is Read Only, Delete anyway?", "y");
  EXPECT_EQ(DeleteTreeAt("dir"), 1);
  EXPECT_FALSE(Exists("dir"));
}

TEST_F(DeleteTreeTest, AllAndNoneHoldForDirectoriesInside) {
  Options::Confirmations = 4;
  place.Make({{"dir/one/", ""}, {"dir/two/", ""}, {"dir/file", ""}});
  for (const char* name : {"dir/one", "dir/two"}) SetMode(name, 0);
  SetMode("dir/file", 0444);
  AsNobody nobody(place.Path());
  Expect(" is Read Only, Delete anyway?", "e");
  Expect("Directory not empty (39)", "s");
  EXPECT_EQ(DeleteTreeAt("dir"), 1);
  EXPECT_EQ(NamesIn("dir").size(), 3u);
  operation.readOnlyMode = kReadOnlyAsk;
  Expect(" is Read Only, Delete anyway?", "a");
  EXPECT_EQ(DeleteTreeAt("dir"), 1);
  EXPECT_FALSE(Exists("dir"));
}

TEST_F(DeleteTreeTest, ASubdirectoryThatMayNotBeChangedKeepsItsFiles) {
  Options::Confirmations = 4;
  place.Make({{"dir/fixed/a", ""}});
  SetMode("dir/fixed", 0555);
  AsNobody nobody(place.Path());
  Expect("Access Denied", "s");
  Expect("Directory not empty (39)", "s");
  Expect("Directory not empty (39)", "s");
  EXPECT_EQ(DeleteTreeAt("dir"), 1);
  EXPECT_TRUE(Exists("dir/fixed/a"));
  SetMode("dir/fixed", 0755);
}

// ---- Esc ---------------------------------------------------------------------

TEST_F(DeleteTreeTest, EscThatWaitsStopsBeforeTheFirstFile) {
  Options::Confirmations = 4;
  place.Make({{"dir/a", ""}, {"dir/sub/b", ""}});
  PutEscape();
  EXPECT_EQ(DeleteTreeAt("dir"), -1);
  EXPECT_TRUE(Exists("dir/a"));
  EXPECT_TRUE(Exists("dir/sub/b"));
  EXPECT_EQ(operation.treeDepth, 0);
  EXPECT_FALSE(Shows("Deleting"));
}

TEST_F(DeleteTreeTest, EscDuringTheWalkStopsBeforeTheNext) {
  Options::Confirmations = 4;
  FileList files;
  for (int i = 0; i < 20; ++i) files.emplace_back("dir/sub/" + std::to_string(i), "");
  place.Make(files);
  Fault pressed(kCallUnlink, {.path = place.Path("dir"), .at = 7, .before = PutEscape});
  EXPECT_EQ(DeleteTreeAt("dir"), -1);
  EXPECT_EQ(pressed.Calls(), 7);
  EXPECT_EQ(NamesIn("dir/sub").size(), 13u);
  EXPECT_FALSE(Shows("Deleting"));
}

TEST_F(DeleteTreeTest, BreakAtTheTreeQuestionStopsAllTheSame) {
  place.Make({{"dir/a", ""}});
  BreakScope command;
  Then([] { RequestBreak(); });
  Keys("'yes' Enter");
  EXPECT_EQ(DeleteTreeAt("dir"), -1);
  EXPECT_TRUE(Exists("dir/a"));
}

TEST_F(DeleteTreeTest, EscAtAQuestionStopsTheWholeTree) {
  Options::Confirmations = 4;
  place.Make({{"dir/one/a", ""}, {"dir/one/b", ""}, {"dir/two/a", ""}, {"dir/two/b", ""}});
  for (const auto& item : fs::recursive_directory_iterator(place.Path("dir")))
    if (item.is_regular_file()) chmod(item.path().c_str(), 0444);
  AsNobody nobody(place.Path());
  Expect("File is Read Only, Delete anyway?", "Esc");
  EXPECT_EQ(DeleteTreeAt("dir"), -1);
  for (const char* name : {"dir/one/a", "dir/one/b", "dir/two/a", "dir/two/b"}) EXPECT_TRUE(Exists(name));
}

TEST_F(DeleteTreeTest, BreakDuringAQuestionStopsAfterIt) {
  Options::Confirmations = 4;
  place.Make({{"dir/a", ""}, {"dir/b", ""}});
  SetMode("dir/a", 0444);
  SetMode("dir/b", 0444);
  AsNobody nobody(place.Path());
  Then([] { RequestBreak(); });
  Keys("a");
  EXPECT_EQ(DeleteTreeAt("dir"), -1);
  EXPECT_NE(Exists("dir/a"), Exists("dir/b"));
  EXPECT_EQ(BreakState, 0);
}

// ---- a directory that changes meanwhile --------------------------------------

TEST_F(DeleteTreeTest, AFileThatSomebodyElseTakesMeanwhileIsTold) {
  Options::Confirmations = 4;
  place.Make({{"dir/a", ""}, {"dir/b", ""}, {"dir/sub/c", ""}});
  SetMode("dir/a", 0444);
  SetMode("dir/b", 0444);
  AsNobody nobody(place.Path());
  Then([this] {
    for (const char* name : {"dir/a", "dir/b"}) unlink(place.Path(name).c_str());
    fs::remove_all(place.Path("dir/sub"));
  });
  Expect("File is Read Only, Delete anyway?", "y");
  Expect("File not found", "Enter");
  Expect("File not found", "Enter");
  EXPECT_EQ(DeleteTreeAt("dir"), 1);
  EXPECT_FALSE(Exists("dir"));
}

TEST_F(DeleteTreeTest, WhatComesMeanwhileIsToldAndGoesAtAnotherTry) {
  Options::Confirmations = 4;
  place.Make({{"dir/sub/a", ""}});
  SetMode("dir/sub/a", 0444);
  AsNobody nobody(place.Path());
  Expect("File is Read Only, Delete anyway?", "s");
  Then([this] {
    EXPECT_TRUE(Shows(place.Path("dir/sub") + " "));
    unlink(place.Path("dir/sub/a").c_str());
    place.Write("dir/sub/new", "");
  });
  Expect("Directory not empty (39)", "r");
  EXPECT_EQ(DeleteTreeAt("dir"), 1);
  EXPECT_FALSE(Exists("dir"));
}

TEST_F(DeleteTreeTest, ADirectoryExchangedForALinkLeadsNobodyElsewhere) {
  Options::Confirmations = 4;
  place.Make({{"dir/sub/a", ""}, {"dir/sub/b", ""}, {"outside/a", "kept"}, {"outside/b", "kept"}});
  SetMode("dir/sub/a", 0444);
  SetMode("dir/sub/b", 0444);
  AsNobody nobody(place.Path());
  Then([this] {
    fs::rename(place.Path("dir/sub"), place.Path("moved"));
    fs::create_symlink("../outside", place.Path("dir/sub"));
  });
  Expect("File is Read Only, Delete anyway?", "a");
  Expect("Directory does not exist, cannot delete", "Enter");
  Expect("Directory not empty (39)", "s");
  EXPECT_EQ(DeleteTreeAt("dir"), 1);
  EXPECT_EQ(place.Content("outside/a"), "kept");
  EXPECT_EQ(place.Content("outside/b"), "kept");
  EXPECT_FALSE(Exists("moved/a"));
}

// ---- descriptions and the tree's data ----------------------------------------

TEST_F(DeleteTreeTest, DescriptionsOfWhatIsGoneGoAndTheOthersStay) {
  Options::Confirmations = 4;
  place.Make({{"descript.ion", "dir a tree\nother text\n"},
              {"dir/descript.ion", "a.c first\nb.h second\n"},
              {"dir/a.c", ""},
              {"dir/b.h", ""}});
  Expect("Directory not empty (39)", "s");
  EXPECT_EQ(DeleteTreeAt("dir", L"*.c"), 1);
  EXPECT_EQ(place.Content("dir/descript.ion"), "b.h second\n");
  EXPECT_EQ(place.Content("descript.ion"), "dir a tree\nother text\n");
  EXPECT_EQ(DeleteTreeAt("dir"), 1);
  EXPECT_EQ(place.Content("descript.ion"), "other text\n");
}

TEST_F(DeleteTreeTest, TheTreesDataHearsOfEachDirectory) {
  static std::vector<std::string> removed;
  removed.clear();
  TheTreeHooks.removed = [](const Westring& path) { removed.push_back(ToUtf8(path).Text()); };
  Options::Confirmations = 4;
  place.Make({{"dir/sub/a", ""}});
  EXPECT_EQ(DeleteTreeAt("dir"), 1);
  TheTreeHooks.removed = nullptr;
  EXPECT_EQ(removed, (std::vector<std::string>{place.Path("dir/sub"), place.Path("dir")}));
}
