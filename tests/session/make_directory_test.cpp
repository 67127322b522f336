// F7: the dialog, the directory, and where the cursor stands then.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "config/values/options.h"
#include "fileops/delete_file.h"
#include "fileops/make_directory.h"
#include "session/copy_screen.h"
#include "support/as_nobody.h"
#include "support/console_fixture.h"
#include "support/hand_made_panels.h"

namespace {

bool IsDirectory(const std::string& path) {
  struct stat status;
  return lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

TEST(MakeDirectory, TheDialogAsksForTheName) {
  Session s({{"left/a", ""}});
  s.Keys("F7");
  const auto row = s.FindRow("Create the directory");
  ASSERT_TRUE(row);
  EXPECT_EQ(s.Character(2, *row - 1), U'╔');
  EXPECT_EQ(s.Character(77, *row + 4), U'╝');
  EXPECT_EQ(s.Attribute(4, *row), 0x70);
  EXPECT_NE(s.Attribute(75, *row + 1), s.Attribute(76, *row + 1));  // the field is 72 wide
  EXPECT_EQ(s.Attribute(4, *row + 1), s.Attribute(75, *row + 1));
  EXPECT_TRUE(s.Row(*row + 3).Contains("[ OK ]  [ Cancel ]"));
}

TEST(MakeDirectory, EnterMakesItAndTheCursorGoesThere) {
  Session s({{"left/a/", ""}, {"left/z/", ""}, {"left/file", ""}});
  s.Keys("F7 'new' Enter");
  EXPECT_TRUE(IsDirectory(s.Path("left/new")));
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "a", "new", "z", "file"}));
  EXPECT_EQ(s.Under(kLeftSide), "new");
  EXPECT_EQ(BarRow(s, kLeftSide), 3);
  EXPECT_TRUE(PanelRow(s, kLeftSide, 3).Contains("new"));
}

TEST(MakeDirectory, TheModeIsWhatTheMaskLeaves) {
  Session s;
  const mode_t mask = umask(027);
  s.Keys("F7 'new' Enter");
  umask(mask);
  struct stat status;
  ASSERT_EQ(stat(s.Path("left/new").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0750u);
}

TEST(MakeDirectory, EscOrNoTextMakesNone) {
  Session s({{"left/a", ""}});
  const std::string before = s.Screen();
  s.Keys("F7 'new' Esc F7 Enter");
  EXPECT_EQ(s.Screen(), before);
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "a"}));
}

TEST(MakeDirectory, TheTextIsExpanded) {
  Session s({}, {.environment = {{"PLACE", "expanded"}}});
  s.Keys("F7 '$PLACE$.d' Enter");
  EXPECT_TRUE(IsDirectory(s.Path("left/expanded.d")));
  s.Keys("F7 '~/mine' Enter");
  EXPECT_TRUE(IsDirectory(s.Path("home/mine")));
}

TEST(MakeDirectory, APathMakesItElsewhereAndTheCursorStays) {
  Session s({{"left/sub/", ""}, {"left/x/", ""}, {"left/new", ""}});
  s.Keys("Down Down F7 'sub/new' Enter");
  EXPECT_TRUE(IsDirectory(s.Path("left/sub/new")));
  EXPECT_EQ(s.Under(kLeftSide), "x");
  s.Keys("F7 './below/' Enter");
  EXPECT_TRUE(IsDirectory(s.Path("left/below")));
  EXPECT_EQ(s.Under(kLeftSide), "below");
}

// ---- what is in the way ------------------------------------------------------

TEST(MakeDirectory, ADirectoryOfThatNameIsTold) {
  Session s({{"left/a/", ""}, {"left/there/", ""}});
  s.Keys("F7 'there' Enter");
  const auto row = s.FindRow("Directory already exists");
  ASSERT_TRUE(row);
  EXPECT_TRUE(s.Row(*row + 1).Contains(s.Path("left/there")));
  EXPECT_TRUE(s.Row(*row + 2).Contains("[ OK ]"));
  EXPECT_FALSE(Shows(s, "Retry"));
  s.Keys("Enter");
  EXPECT_EQ(s.Under(kLeftSide), "there");
}

TEST(MakeDirectory, AFileOfThatNameIsTold) {
  Session s({{"left/there", "kept"}}, {.prepare = [](const Sandbox& files) {
              ASSERT_EQ(symlink("nowhere", files.Path("left/link").c_str()), 0);
            }});
  for (const char* name : {"there", "link"}) {
    s.Keys("F7 '" + std::string(name) + "' Enter");
    EXPECT_TRUE(Shows(s, "File already exists named"));
    EXPECT_TRUE(Shows(s, s.Path("left/") + name));
    s.Keys("Enter");
  }
  EXPECT_EQ(s.Content("left/there"), "kept");
}

TEST(MakeDirectory, InADirectoryThatIsNotWritableItIsDenied) {
  Session s({{"left/a", ""}});
  ASSERT_EQ(chmod(s.Path("left").c_str(), 0555), 0);
  AsNobody nobody(s.Path());
  s.Keys("F7 'new' Enter");
  EXPECT_TRUE(Shows(s, "Access Denied"));
  EXPECT_TRUE(Shows(s, s.Path("left/new")));
  ASSERT_EQ(chmod(s.Path("left").c_str(), 0755), 0);
  s.Keys("r");
  EXPECT_TRUE(IsDirectory(s.Path("left/new")));
  EXPECT_EQ(s.Under(kLeftSide), "new");
}

TEST(MakeDirectory, ADirectoryThatIsNotThereIsTold) {
  Session s;
  s.Keys("F7 'none/new' Enter");
  EXPECT_TRUE(Shows(s, "File not found"));
  s.Keys("Esc F7 'left' Enter F7 'left/../left/none/new' Enter");
  EXPECT_TRUE(Shows(s, "File not found"));
}

TEST(MakeDirectory, AFileOnTheWayIsNoPath) {
  Session s({{"left/file", "kept"}});
  s.Keys("F7 'file/new' Enter");
  EXPECT_TRUE(Shows(s, "Path not found"));
  EXPECT_FALSE(Shows(s, "Retry"));
  s.Keys("Enter");
  EXPECT_EQ(s.Content("left/file"), "kept");
}

TEST(MakeDirectory, ATooLongNameHasNoRetry) {
  Session s;
  for (const int length : {300, 500}) {
    s.Keys("F7 '" + std::string(static_cast<size_t>(length), 'x') + "' Enter");
    EXPECT_TRUE(Shows(s, "Name too long")) << length;
    EXPECT_FALSE(Shows(s, "Retry"));
    s.Keys("Enter");
  }
  EXPECT_EQ(s.Names(kLeftSide), Strings{".."});
}

TEST(MakeDirectory, TheNameHasAtMost512Characters) {
  Session s;
  s.Keys("F7 '" + std::string(512, 'x') + "#' End");
  EXPECT_FALSE(Shows(s, "#"));
}

// ---- panels ------------------------------------------------------------------

TEST(MakeDirectory, FromAnInformationPanelItIsMadeInTheOther) {
  Session s({{"left/a/", ""}});
  s.Keys("Ctrl-L Tab F7 'new' Enter");
  EXPECT_TRUE(IsDirectory(s.Path("left/new")));
  EXPECT_FALSE(s.Exists("right/new"));
  EXPECT_EQ(s.Under(kLeftSide), "new");
}

TEST(MakeDirectory, WithBothPanelsOffItWorks) {
  Session s;
  s.Keys("Ctrl-O F7 'new' Enter Ctrl-O");
  EXPECT_TRUE(IsDirectory(s.Path("left/new")));
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "new"}));
}

TEST(MakeDirectory, WhereTheCaseIsFilteredTheNameIsInUpperCase) {
  Session s({{"left/sub/", ""}});
  Options::CaseFilter = L"vfat,OtherFS";
  CopyText(Panels[0].fileSystem, L"otherfs");
  s.Keys("F7 'new' Enter");
  EXPECT_TRUE(IsDirectory(s.Path("left/NEW")));
  EXPECT_FALSE(s.Exists("left/new"));
  EXPECT_EQ(s.Under(kLeftSide), "NEW");
  CopyText(Panels[0].fileSystem, L"otherfs");
  s.Keys("F7 'sub/new' Enter");
  EXPECT_TRUE(IsDirectory(s.Path("left/sub/NEW")));
}

TEST(MakeDirectory, AnUnknownFileSystemKeepsTheCase) {
  Session s;
  Options::CaseFilter = L"vfat";
  Panels[0].fileSystem[0] = 0;
  s.Keys("F7 'new' Enter");
  EXPECT_TRUE(IsDirectory(s.Path("left/new")));
}

TEST(MakeDirectory, TheMenuHasIt) {
  Session s;
  s.Keys("F9 f m 'new' Enter");
  EXPECT_TRUE(s.Exists("left/new"));
}

namespace {

// A tree that somebody read into the left panel.
class MakeInTree : public ConsoleFixture, protected HandMadePanels {
 protected:
  MakeInTree() {
    place.Make({{"dir/", ""}, {"other/", ""}});
    CopyText(panel.path, Westring(place.Path().c_str()).Text());
    panel.style = kStyleTree;
    panel.visible = panels[1].visible = false;
    AddRow(L"/", 0);
    std::string path = place.Path("dir");
    int depth = 0;
    for (size_t start = 1, end; start < path.size(); start = end + 1) {
      end = std::min(path.find('/', start), path.size());
      AddRow(Westring(path.substr(start, end - start).c_str()).Text(), ++depth);
    }
    panel.cursorRow = panel.count - 1;
  }

  void AddRow(const wchar_t* name, int depth) {
    Add(name, 0, kAttrDirectory).sizeKnown = static_cast<uint8_t>(depth);
  }

  Sandbox place;
};

}  // namespace

TEST_F(MakeInTree, TheNameCountsFromTheRowUnderTheCursor) {
  static Strings told;
  told.clear();
  TheTreeHooks.made = [](const Westring& path) { told.push_back(ToUtf8(path).Text()); };
  TheTreeHooks.save = [] { told.push_back("saved"); };
  Keys("'new' Enter");
  MakeDirectory(0);
  TheTreeHooks = TreeHooks();
  EXPECT_TRUE(IsDirectory(place.Path("dir/new")));
  EXPECT_EQ(told, (Strings{place.Path("dir/new"), "saved"}));
}
