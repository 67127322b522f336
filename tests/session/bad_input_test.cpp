// What the program is given does not have to be what it hopes for: it says what
// is wrong, where there is something to say, and goes on.
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "session/main_screen.h"

namespace {

namespace fs = std::filesystem;
using Strings = std::vector<std::string>;

constexpr char kSettingsFile[] = "home/.orvane/orvane.ini";
constexpr uid_t kNobody = 65534;

// Every row of both frames is closed, so that no name has broken out of its cell.
void ExpectFramesWhole(const Session& s) {
  const int half = s.Columns() / 2;
  for (int y = 1; y < BottomRow(s, kLeftSide) - 2; ++y) {
    for (int x : {0, half - 1, half, 2 * half - 1}) EXPECT_EQ(s.Character(x, y), U'║') << x << ' ' << y;
  }
}

// The program still does what it is told.
void ExpectAtWork(Session& s) {
  s.Keys("Esc 'ok'");
  EXPECT_TRUE(PromptRow(s).ends_with(">ok"));
  s.Keys("Esc");
  EXPECT_TRUE(s.Row(s.Rows() - 1).StartsWith("1Help"));
}

// The superuser may read everything; as somebody else he may not.
void GiveUpPrivileges(const Sandbox& files) {
  if (geteuid() != 0) return;
  for (const auto& item : fs::recursive_directory_iterator(files.Path()))
    ASSERT_EQ(lchown(item.path().c_str(), kNobody, kNobody), 0);
  ASSERT_EQ(chown(files.Path().c_str(), kNobody, kNobody), 0);
  ASSERT_EQ(setgroups(0, nullptr), 0);
  ASSERT_EQ(setresgid(kNobody, kNobody, kNobody), 0);
  ASSERT_EQ(setresuid(kNobody, kNobody, kNobody), 0);
  ASSERT_EQ(prctl(PR_SET_DUMPABLE, 1), 0);  // or the leak check could not look
}

}  // namespace

TEST(BadSettings, ADirectoryInPlaceOfTheFileIsTold) {
  Session s({{std::string(kSettingsFile) + "/", ""}});
  EXPECT_TRUE(s.FindRow("Is a directory")) << s.Screen();
  ExpectAtWork(s);
}

TEST(BadSettings, AFileThatCannotBeReadIsTold) {
  Session s({{kSettingsFile, "StartupSide=R\n"}}, {.prepare = [](const Sandbox& files) {
              chmod(files.Path(kSettingsFile).c_str(), 0);
              GiveUpPrivileges(files);
            }});
  EXPECT_TRUE(s.FindRow("Permission denied"));
  ExpectAtWork(s);
  EXPECT_EQ(s.Active(), kLeftSide);
}

TEST(BadSettings, ALinkToItselfIsTold) {
  Session s({{"home/.orvane/", ""}}, {.prepare = [](const Sandbox& files) {
              ASSERT_EQ(symlink("orvane.ini", files.Path(kSettingsFile).c_str()), 0);
            }});
  EXPECT_TRUE(s.FindRow("Too many levels of symbolic links"));
  ExpectAtWork(s);
}

TEST(BadSettings, AnUnknownKeyIsToldWithItsLine) {
  Session s({}, {.settings = "Clock=off\nfoo=1\nStartupSide=R\n"});
  EXPECT_TRUE(s.FindRow("Bad directive (foo) in orvane.ini, line 2"));
  s.Keys("Enter");
  EXPECT_EQ(s.Active(), kRightSide);
  ExpectAtWork(s);
}

TEST(BadSettings, ATestThatCannotBeReadIsTold) {
  Session s({}, {.settings = "[Associations]\n*.txt|: less !\n*.c: vi\n"});
  EXPECT_TRUE(s.FindRow("Syntax error in association"));
  EXPECT_TRUE(s.FindRow("*.txt|: less !"));
  ExpectAtWork(s);
}

TEST(BadSettings, RandomBytesDoNoHarm) {
  std::string bytes;
  unsigned seed = 1;
  for (int i = 0; i < 65536; ++i) {
    seed = seed * 1103515245 + 12345;
    bytes += static_cast<char>(seed >> 16);
  }
  Session s({}, {.settings = bytes});
  for (int i = 0; i < 1000 && s.FindRow("[ OK ]"); ++i) s.Keys("Esc");
  ExpectAtWork(s);
}

TEST(BadSettings, ALineOfAMegabyteDoesNoHarm) {
  Session s({}, {.settings = "Viewer=" + std::string(1 << 20, 'x') + "\nStartupSide=R\n"});
  for (int i = 0; i < 1000 && s.FindRow("[ OK ]"); ++i) s.Keys("Esc");
  EXPECT_EQ(s.Active(), kRightSide);
  ExpectAtWork(s);
}

TEST(BadSettings, AFontThatIsNotThereIsReplaced) {
  Session s({}, {.settings = "FontFamily=No Such Font At All\n"});
  EXPECT_EQ(s.Columns(), 80);
  ExpectAtWork(s);
}

TEST(BadSettings, FontSizesOutOfReasonLeaveTheScreenUsable) {
  for (const char* size : {"0", "-5", "4000", "99999999999", "x"}) {
    Session s({}, {.settings = std::string("FontSize=") + size + "\n"});
    EXPECT_EQ(s.Columns(), 80) << size;
    EXPECT_EQ(s.Rows(), 25) << size;
    ExpectAtWork(s);
  }
}

TEST(BadSettings, MoreThan250RowsBecome25) {
  Session s({}, {.settings = "Lines=9999\n"});
  EXPECT_EQ(s.Rows(), 25);
  s.Keys("Alt-F9 Alt-F9");
  ExpectAtWork(s);
  EXPECT_EQ(s.Columns(), 80);
}

TEST(BadSettings, OtherSizesOutOfReasonLeaveTheScreenUsable) {
  for (const char* size : {"Lines=1\n", "Lines=3\n", "Lines=-20\n", "Columns=99999\n", "Columns=-1\n"}) {
    Session s({{"left/a", ""}}, {.settings = size});
    s.Keys("Down PgDn PgUp End Ins Ctrl-O Ctrl-O Tab Ctrl-U");
    EXPECT_GE(s.Columns(), 80) << size;
    s.Keys("Alt-F9 Alt-Shift-F9");
    ExpectAtWork(s);
  }
}

TEST(BadSettings, NumbersOutOfTheirTablesFallBack) {
  Session s({{"left/a", ""}},
            {.settings = "LeftSort=nonsense\nLeftStyle=tree\nLeftType=7\nTimeMode=13\n"
                         "CodePage=4711\nMouSpeed=-1\nTabWidth=0\nCmdChar=\nStartupSide=Q\n"
                         "Confirmations=-1\nScrollDelay=-10\nColours=300 -1 x\nMaxHist=-4\n"});
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "a"}));
  EXPECT_EQ(s.Active(), kLeftSide);
  s.Keys("Down Ctrl-Enter Shift-F9 Esc Esc");
  ExpectAtWork(s);
}

TEST(BadSettings, WithoutAHomeTheProgramStarts) {
  Session s({}, {.environment = {{"HOME", "/proc/none"}}});
  s.Keys("Alt-Home");
  EXPECT_TRUE(s.FindRow("Invalid Directory"));
  s.Keys("Enter Shift-F9");
  EXPECT_TRUE(s.FindRow("/proc/none")) << s.Screen();
  s.Keys("Enter");
  ExpectAtWork(s);
}

TEST(BadSettings, ThatCannotBeSavedAtTheEndAreToldBeforeIt) {
  Session s({{kSettingsFile, "AutoSave=on\n"}}, {.prepare = [](const Sandbox& files) {
              chmod(files.Path("home/.orvane").c_str(), 0555);
              GiveUpPrivileges(files);
            }});
  s.Keys("F10 y");
  EXPECT_TRUE(s.FindRow("Permission denied"));
  s.Keys("Enter");
  EXPECT_TRUE(s.HasEnded());
  EXPECT_EQ(s.Content(kSettingsFile), "AutoSave=on\n");
}

TEST(BadDirectories, AStartDirectoryThatIsNotThereIsToldBehindThePanels) {
  Session s({}, {.arguments = {{"-l", "/no/such/place", "-r", "right"}}});
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path());
  EXPECT_EQ(s.PanelPath(kRightSide), s.Path("right"));
  s.Keys("Ctrl-O");
  EXPECT_TRUE(s.FindRow("Invalid directory: /no/such/place"));
}

TEST(BadDirectories, AStartDirectoryOfTheSettingsIsToldToo) {
  Session s({{"file", ""}}, {.settings = "Left=file\nRight=/no/such/place\n", .arguments = Strings{}});
  s.Keys("Ctrl-O");
  EXPECT_TRUE(s.FindRow("Invalid directory: file"));
  EXPECT_TRUE(s.FindRow("Invalid directory: /no/such/place"));
}

TEST(BadDirectories, AStartPathOfAnyLengthIsRefused) {
  Session s({}, {.arguments = {{"-l", "/" + std::string(5000, 'x'), "-r", "right"}}});
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path());
  ExpectAtWork(s);
}

TEST(BadDirectories, OneThatVanishesIsShownEmptyAndCanBeLeft) {
  Session s({{"left/a/file", ""}});
  s.Keys("Down Enter Down");
  fs::remove_all(s.Path("left/a"));
  s.Keys("Ctrl-R");
  EXPECT_EQ(s.Names(kLeftSide), Strings{".."});
  s.Keys("Enter");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  ExpectAtWork(s);
}

TEST(BadDirectories, BothMayVanishWithWhatHoldsThem) {
  Session s({{"left/a/b/file", ""}, {"right/x", ""}});
  s.Keys("Down Enter Down Enter");
  fs::remove_all(s.Path("left"));
  fs::remove_all(s.Path("right"));
  s.Keys("Ctrl-R Ctrl-H Tab Ctrl-R Ctrl-U Ctrl-O Ctrl-O Alt-F9 Tab Ctrl-PgUp Ctrl-PgUp Ctrl-PgUp");
  ExpectAtWork(s);
}

TEST(BadDirectories, OneThatVanishesUnderTheCursorIsEnteredEmpty) {
  Session s({{"left/a/", ""}, {"left/b", ""}});
  s.Keys("Down");
  fs::remove(s.Path("left/a"));
  s.Keys("Enter");
  EXPECT_EQ(s.Names(kLeftSide), Strings{".."});
  s.Keys("Ctrl-PgUp");
  EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "b"}));
}

TEST(BadDirectories, OneThatCannotBeReadIsToldAndLeft) {
  Session s({{"left/shut/file", ""}}, {.prepare = [](const Sandbox& files) {
              chmod(files.Path("left/shut").c_str(), 0);
              GiveUpPrivileges(files);
            }});
  s.Keys("Down Enter");
  EXPECT_TRUE(s.FindRow("Permission denied (13)"));
  s.Keys("Enter");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  EXPECT_EQ(s.Under(kLeftSide), "shut");
  ExpectAtWork(s);
}

TEST(BadDirectories, OneThatCannotBeReadAtTheStartIsToldAndLeft) {
  Session s({{"left/shut/file", ""}},
            {.arguments = {{"-l", "left/shut", "-r", "right"}}, .prepare = [](const Sandbox& files) {
               chmod(files.Path("left/shut").c_str(), 0);
               GiveUpPrivileges(files);
             }});
  EXPECT_TRUE(s.FindRow("Permission denied (13)"));
  s.Keys("Enter");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left"));
  EXPECT_EQ(s.Under(kLeftSide), "shut");
}

TEST(BadDirectories, APathTooLongForAPanelIsToldAndNotEntered) {
  const std::string deep = "left/" + std::string(250, 'a') + "/" + std::string(250, 'b') + "/";
  Session s({{deep, ""}});
  s.Keys("Down Enter Down Enter");
  EXPECT_TRUE(s.FindRow("File name too long (36)"));
  s.Keys("Enter");
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/" + std::string(250, 'a')));
  ExpectAtWork(s);
}

TEST(StrangeNames, StayInTheirCells) {
  const Strings names = {std::string(255, 'n'),
                         "line\nbreak",
                         "tab\there\x1b[31m",
                         "\x01\x02\x7f",
                         "\xff\xfe invalid",
                         "\xE4\xB8\x96界",
                         "שלום עולם",
                         "e\xCC\x81\xCC\x82",
                         " ",
                         "-x",
                         "\\",
                         "%s%n"};
  FileList files;
  for (const std::string& name : names) files.emplace_back("left/" + name, "");
  Session s(files);
  EXPECT_EQ(s.Names(kLeftSide).size(), names.size() + 1);
  for (const char* style : {"Alt-Shift-F2", "Alt-Shift-F1", "Alt-Shift-F3", "Alt-Shift-F4", "Alt-Shift-F5"}) {
    s.Keys(style);
    for (size_t i = 0; i <= names.size(); ++i) {
      s.Keys("Ctrl-D Down");
      ExpectFramesWhole(s);
    }
    s.Keys("Home");
  }
}

TEST(StrangeNames, DirectoriesOfThemCanBeEnteredAndLeft) {
  const Strings names = {"a\nb", "tab\t", "\x01", "世界", "שלום", "\\", std::string(255, 'n')};
  FileList files;
  for (const std::string& name : names) files.emplace_back("left/" + name + "/inside", "");
  Session s(files);
  for (size_t i = 0; i < names.size(); ++i) {
    s.Keys("Down");
    const std::string name = s.Under(kLeftSide);
    s.Keys("Enter");
    EXPECT_EQ(s.PanelPath(kLeftSide), s.Path("left/" + name));
    EXPECT_EQ(s.Names(kLeftSide), (Strings{"..", "inside"}));
    ExpectFramesWhole(s);
    s.Keys("Enter");
    EXPECT_EQ(s.Under(kLeftSide), name);
  }
}

TEST(StrangeNames, GoToTheCommandLineWhole) {
  Session s({{"left/世界 $x", ""}});
  s.Keys("Down Ctrl-Enter");
  EXPECT_EQ(PromptRow(s), s.Path("left") + ">世界\\ \\$x");
}
