// Launchers for the files of a panel: the box, its answers, and what keeps one
// from being made.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "session/main_screen.h"

namespace {

using Strings = std::vector<std::string>;

constexpr int kBoxLeft = 15, kBoxRight = 64;  // 50 columns in the middle of 80
constexpr int kTagged = 0x1E, kTaggedUnderCursor = 0x3E;

// A desktop, and in the left panel a directory, a document and a program.
class MakeObjects : public testing::Test {
 protected:
  Session& Start(FileList files = {}, Strings arguments = {"-l", "left", "-r", "right"}) {
    files.insert(files.end(),
                 {{"home/Desktop/", ""}, {"left/dir.d/", ""}, {"left/notes.txt", ""}, {"left/run.sh", ""}});
    session.emplace(files, SessionSetup{.arguments = arguments, .prepare = [](const Sandbox& sandbox) {
                                          chmod(sandbox.Path("left/run.sh").c_str(), 0755);
                                        }});
    return *session;
  }

  // Goes to an entry of the left panel and opens the box.
  Session& StartOn(const std::string& name, const FileList& files = {}) {
    Session& s = Start(files);
    while (s.Under(kLeftSide) != name) s.Keys("Down");
    s.Keys("Alt-F6");
    return s;
  }

  static std::string Launcher(const std::string& title) { return "home/Desktop/" + title + ".desktop"; }

  bool HasLine(const std::string& title, const std::string& line) const {
    return session->Content(Launcher(title)).find("\n" + line + "\n") != std::string::npos;
  }

  bool HasBox() const { return session->FindRow(" Make ").has_value(); }

  // A row of the box, without its frame.
  std::string BoxRow(int y) const {
    const auto top = session->FindRow(" Make ");
    if (!top) return "no box";
    std::string row = session->Text(kBoxLeft + 1, *top + y, kBoxRight - kBoxLeft - 1).String();
    row.erase(row.find_last_not_of(' ') + 1);
    return row;
  }

  std::string Caption() const { return session->Text(kBoxLeft, *session->FindRow(" Make "), 50).String(); }

  Strings Tagged() const {
    Strings names;
    for (int y = 1; y < 20; ++y) {
      const int attribute = session->Attribute(1, y);
      if (attribute == kTagged || attribute == kTaggedUnderCursor)
        names.push_back(session->Text(1, y, 12).Trimmed());
    }
    return names;
  }

  std::optional<Session> session;
};

}  // namespace

// ---- the box -----------------------------------------------------------------

TEST_F(MakeObjects, ForAProgramItAsksTitleAndTerminal) {
  Session& s = StartOn("run.sh");
  EXPECT_EQ(Caption(), "╔══════════ Make an object for run.sh ═══════════╗");
  EXPECT_EQ(BoxRow(1), "");
  EXPECT_EQ(BoxRow(2), "   Title:  Run");
  EXPECT_EQ(BoxRow(3), "");
  EXPECT_EQ(BoxRow(4), "   [ ]  Terminal session");
  EXPECT_EQ(BoxRow(5), "");
  EXPECT_EQ(BoxRow(6), "               [ OK ]  [ Cancel ]");
  EXPECT_EQ(s.FindRow(" Make "), 5);
  EXPECT_EQ(s.Attribute(kBoxLeft, 5), 0x70);
  EXPECT_EQ(s.Attribute(kBoxLeft + 1, 6), 0x70);
  EXPECT_EQ(s.Attribute(kBoxLeft + 12, 7), s.Attribute(kBoxLeft + 44, 7));  // the field, 33 wide
  EXPECT_NE(s.Attribute(kBoxLeft + 44, 7), s.Attribute(kBoxLeft + 45, 7));
}

TEST_F(MakeObjects, ForADocumentItAsksTheTitle) {
  StartOn("notes.txt");
  EXPECT_EQ(BoxRow(2), "   Title:  Notes");
  EXPECT_EQ(BoxRow(3), "");
  EXPECT_EQ(BoxRow(4), "               [ OK ]  [ Cancel ]");
}

TEST_F(MakeObjects, ForADirectoryItAsksNothing) {
  StartOn("dir.d");
  EXPECT_EQ(BoxRow(1), "");
  EXPECT_EQ(BoxRow(2), "               [ OK ]  [ Cancel ]");
}

TEST_F(MakeObjects, ForTagsItTellsTheirNumberAndAsksForTheTerminal) {
  Session& s = Start();
  s.Keys("Down Ins Ins Alt-F6");
  EXPECT_EQ(Caption(), "╔════════════════ Make 2 objects ════════════════╗");
  EXPECT_EQ(BoxRow(2), "   [ ]  Terminal session");
  EXPECT_EQ(BoxRow(4), "               [ OK ]  [ Cancel ]");
}

TEST_F(MakeObjects, ALongNameIsAbbreviatedToTheFrame) {
  const std::string name(200, 'x');
  StartOn(name, {{"left/" + name, ""}});
  EXPECT_TRUE(ScreenText(Caption()).StartsWith("╔ Make an object for xxxxxxxxxx"));
  EXPECT_TRUE(ScreenText(Caption()).EndsWith("x► ╗"));
}

// ---- what it makes -----------------------------------------------------------

TEST_F(MakeObjects, EnterMakesTheLauncherOfAProgram) {
  Session& s = StartOn("run.sh");
  s.Keys("Enter");
  EXPECT_FALSE(HasBox());
  EXPECT_EQ(s.Content(Launcher("Run")),
            "#!/usr/bin/env xdg-open\n\n[Desktop Entry]\nVersion=1.0\nEncoding=UTF-8\nName=Run\n"
            "Exec=\"" +
                s.Path("left/run.sh") + "\"\nTerminal=false\nType=Application\n");
  struct stat status;
  ASSERT_EQ(stat(s.Path(Launcher("Run")).c_str(), &status), 0);
  const mode_t mask = umask(0);
  umask(mask);
  EXPECT_EQ(status.st_mode & 07777, 0775 & ~mask);
}

TEST_F(MakeObjects, TheLauncherOfADocumentOpensIt) {
  Session& s = StartOn("notes.txt");
  s.Keys("Enter");
  EXPECT_TRUE(HasLine("Notes", "Exec=xdg-open \"" + s.Path("left/notes.txt") + "\""));
}

TEST_F(MakeObjects, TheLauncherOfADirectoryHasTheDefaultTitle) {
  Session& s = StartOn("dir.d");
  s.Keys("Enter");
  EXPECT_TRUE(HasLine("Dir", "Exec=xdg-open \"" + s.Path("left/dir.d") + "\""));
}

TEST_F(MakeObjects, TheTitleTypedNamesIt) {
  Session& s = StartOn("notes.txt");
  s.Keys("'My notes' Enter");
  EXPECT_TRUE(HasLine("My notes", "Name=My notes"));
}

TEST_F(MakeObjects, ATitleThatNoFileCanHaveStaysInTheLauncher) {
  Session& s = StartOn("notes.txt");
  s.Keys("'../a/b' Enter");
  EXPECT_TRUE(HasLine("_._a_b", "Name=../a/b"));
}

TEST_F(MakeObjects, AnEmptyTitleIsTheDefaultOne) {
  Session& s = StartOn("notes.txt");
  s.Keys("Home Del Del Del Del Del Enter");
  EXPECT_TRUE(HasLine("Notes", "Name=Notes"));
}

TEST_F(MakeObjects, TheCheckBoxAsksForATerminal) {
  Session& s = StartOn("run.sh");
  s.Keys("Tab Space Enter");
  EXPECT_TRUE(HasLine("Run", "Terminal=true"));
}

TEST_F(MakeObjects, EachTaggedEntryGetsOneAndLosesItsTag) {
  Session& s = Start();
  s.Keys("Down Ins Ins Ins Alt-F6 Space Enter");
  EXPECT_TRUE(HasLine("Dir", "Exec=xdg-open \"" + s.Path("left/dir.d") + "\""));
  EXPECT_TRUE(HasLine("Notes", "Exec=xdg-open \"" + s.Path("left/notes.txt") + "\""));
  EXPECT_TRUE(HasLine("Run", "Exec=\"" + s.Path("left/run.sh") + "\""));
  for (const char* title : {"Dir", "Notes", "Run"}) EXPECT_TRUE(HasLine(title, "Terminal=true"));
  EXPECT_EQ(Tagged(), Strings());
  EXPECT_EQ(s.Attribute(1, 2), 0x1A);
  s.Keys("Alt-F6");
  EXPECT_TRUE(ScreenText(Caption()).Contains(" Make an object for run.sh "));
}

TEST_F(MakeObjects, EscLeavesEverythingAsItWas) {
  Session& s = Start();
  s.Keys("Down Down Ins Up");
  const std::string before = s.Screen();
  s.Keys("Alt-F6 Space Esc");
  EXPECT_EQ(s.Screen(), before);
  EXPECT_EQ(Tagged(), Strings{"notes.txt"});
  EXPECT_FALSE(s.Exists(Launcher("Notes")));
}

TEST_F(MakeObjects, APanelOnTheDesktopShowsTheLauncher) {
  Session& s = Start({}, {"-l", "left", "-r", "home/Desktop"});
  s.Keys("End Alt-F6 Enter");
  EXPECT_EQ(s.Names(kRightSide), (Strings{"..", "Run.desktop"}));
  EXPECT_TRUE(PanelRow(s, kRightSide, 2).Contains("Run.desk"));
}

// ---- launchers that are there already ----------------------------------------

TEST_F(MakeObjects, ALauncherIsReplacedOnlyIfTheUserAgrees) {
  Session& s = StartOn("notes.txt", {{Launcher("Notes"), "old"}});
  s.Keys("Enter");
  EXPECT_TRUE(s.FindRow("The launcher exists already. Replace it?"));
  EXPECT_TRUE(s.FindRow(s.Path(Launcher("Notes"))));
  EXPECT_EQ(s.Content(Launcher("Notes")), "old");
  s.Keys("Esc");
  EXPECT_EQ(s.Content(Launcher("Notes")), "old");
  EXPECT_EQ(BoxRow(2), "   Title:  Notes");
  s.Keys("Enter Enter");
  EXPECT_TRUE(HasLine("Notes", "Name=Notes"));
  EXPECT_FALSE(HasBox());
}

TEST_F(MakeObjects, AfterTheQuestionTheBoxTakesAnotherTitle) {
  Session& s = StartOn("notes.txt", {{Launcher("Notes"), "old"}});
  s.Keys("Enter Esc 'Other' Enter");
  EXPECT_EQ(s.Content(Launcher("Notes")), "old");
  EXPECT_TRUE(HasLine("Other", "Name=Other"));
}

TEST_F(MakeObjects, OneThatIsKeptLeavesTheTag) {
  Session& s = Start({{Launcher("Notes"), "old"}});
  s.Keys("Down Ins Ins Ins Alt-F6 Enter s");
  EXPECT_FALSE(HasBox());
  EXPECT_EQ(s.Content(Launcher("Notes")), "old");
  EXPECT_TRUE(s.Exists(Launcher("Dir")));
  EXPECT_TRUE(s.Exists(Launcher("Run")));
  EXPECT_EQ(Tagged(), Strings{"notes.txt"});
}

TEST_F(MakeObjects, AllAndNoneHoldForTheRest) {
  for (const char* answer : {"a", "e"}) {
    Session& s = Start({{Launcher("Notes"), "old"}, {Launcher("Run"), "old"}});
    s.Keys(std::string("Down Ins Ins Ins Alt-F6 Enter ") + answer);
    EXPECT_FALSE(HasBox());
    EXPECT_EQ(s.Content(Launcher("Notes")) == "old", *answer == 'e');
    EXPECT_EQ(s.Content(Launcher("Run")) == "old", *answer == 'e');
    s.Quit();
  }
}

TEST_F(MakeObjects, TwoFilesOfOneTitleAskForTheSecond) {
  Session& s = Start({{"left/notes.md", ""}});
  s.Keys("Down Down Ins Ins Alt-F6 Enter");
  EXPECT_TRUE(s.FindRow("The launcher exists already. Replace it?"));
  EXPECT_TRUE(HasLine("Notes", "Exec=xdg-open \"" + s.Path("left/notes.md") + "\""));
  s.Keys("Esc");
  EXPECT_TRUE(ScreenText(Caption()).Contains(" Make 1 objects "));
  EXPECT_EQ(Tagged(), Strings{"notes.txt"});
}

// ---- what keeps one from being made ------------------------------------------

TEST_F(MakeObjects, WithoutADesktopItTellsItsPathAndComesBack) {
  Session& s = Start();
  ASSERT_EQ(rmdir(s.Path("home/Desktop").c_str()), 0);
  s.Keys("End Alt-F6 'Mine' Tab Space Enter");
  const auto row = s.FindRow("No such file or directory (2)");
  ASSERT_TRUE(row);
  EXPECT_TRUE(s.Row(*row + 1).Contains(" " + s.Path("home/Desktop") + " "));
  s.Keys("Enter");
  EXPECT_EQ(BoxRow(2), "   Title:  Mine");
  EXPECT_EQ(BoxRow(4), "   [X]  Terminal session");
}

TEST_F(MakeObjects, AFileInTheDesktopsPlaceIsToldAndTagsStay) {
  Session& s = Start();
  ASSERT_EQ(rmdir(s.Path("home/Desktop").c_str()), 0);
  s.Write("home/Desktop", "");
  s.Keys("Down Down Ins Ins Alt-F6 Enter");
  EXPECT_TRUE(s.FindRow("Not a directory (20)"));
  s.Keys("Enter Esc");
  EXPECT_EQ(Tagged(), (Strings{"notes.txt", "run.sh"}));
}

TEST_F(MakeObjects, ALauncherThatCannotBeWrittenIsTold) {
  Session& s = StartOn("notes.txt", {{Launcher("Notes") + "/", ""}});
  s.Keys("Enter Enter");
  const auto row = s.FindRow("Is a directory (21)");
  ASSERT_TRUE(row);
  EXPECT_TRUE(s.Row(*row + 1).Contains(s.Path(Launcher("Notes"))));
}

TEST_F(MakeObjects, AFileThatIsGoneIsTold) {
  Session& s = Start();
  ASSERT_EQ(unlink(s.Path("left/notes.txt").c_str()), 0);
  s.Keys("Down Down Alt-F6");
  const auto row = s.FindRow("No such file or directory (2)");
  ASSERT_TRUE(row);
  EXPECT_TRUE(s.Row(*row + 1).Contains(s.Path("left/notes.txt")));
  s.Keys("Enter Ins Ins Alt-F6 Enter");
  EXPECT_TRUE(s.Row(*s.FindRow("No such file or directory (2)") + 1).Contains(s.Path("left/notes.txt")));
  s.Keys("Enter Esc");
  EXPECT_EQ(Tagged(), (Strings{"notes.txt", "run.sh"}));
}

TEST_F(MakeObjects, TheWayUpIsNoObject) {
  Session& s = Start();
  s.Keys("Alt-F6");
  EXPECT_TRUE(s.FindRow("No launcher can be made for this entry"));
  s.Keys("Enter");
  EXPECT_FALSE(HasBox());
}

TEST_F(MakeObjects, AnInformationPanelHasNone) {
  Session& s = Start();
  s.Keys("Ctrl-L Tab");
  const std::string before = s.Screen();
  s.Keys("Alt-F6");
  EXPECT_EQ(s.Screen(), before);
}
