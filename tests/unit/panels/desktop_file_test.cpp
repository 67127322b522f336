// Launchers: titles, names of files and what stands in them.
#include "panels/desktop_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <clocale>
#include <cstdlib>

#include "panels/make_objects.h"
#include "unit/panels/fake_archive.h"
#include "unit/panels/recorded_prompts.h"
#include "unit/panels/two_panels.h"

namespace {

std::wstring TitleOf(const wchar_t* name) { return DefaultTitle(name).Text(); }
std::wstring NameOf(const wchar_t* title) { return LauncherName(title).Text(); }
std::wstring NameOf(const std::wstring& title) { return NameOf(title.c_str()); }
size_t BytesOf(const std::wstring& name) { return static_cast<size_t>(Length(ToUtf8(name.c_str()))); }

// The value of a key in a launcher.
std::string Value(const DesktopFile& launcher, const std::string& key) {
  const std::string text = LauncherText(launcher).Text();
  const size_t start = text.find("\n" + key + "=") + key.size() + 2;
  return text.substr(start, text.find('\n', start) - start);
}

std::string CommandOf(const wchar_t* target) { return Value({L"Title", target, true, false}, "Exec"); }
std::string NameLineOf(const wchar_t* title) { return Value({title, L"/x", true, false}, "Name"); }

}  // namespace

TEST(DefaultTitle, IsTheNameBeforeItsLastDotWithAnUpperCaseLetterFirst) {
  EXPECT_EQ(TitleOf(L"README.TXT"), L"Readme");
  EXPECT_EQ(TitleOf(L"my.tool.sh"), L"My.tool");
  EXPECT_EQ(TitleOf(L"program"), L"Program");
  EXPECT_EQ(TitleOf(L"two words.sh"), L"Two words");
  EXPECT_EQ(TitleOf(L"7z"), L"7z");
}

TEST(DefaultTitle, ChangesTheCaseOfAllScripts) {
  setlocale(LC_CTYPE, "C.UTF-8");
  EXPECT_EQ(TitleOf(L"\x444\x410\x419\x41B.x"), L"\x424\x430\x439\x43B");
  setlocale(LC_CTYPE, "C");
}

TEST(DefaultTitle, OfANameThatIsAllExtensionIsTheName) {
  EXPECT_EQ(TitleOf(L".Profile"), L".profile");
  EXPECT_EQ(TitleOf(L".a.b"), L".a");
  EXPECT_EQ(TitleOf(L""), L"");
}

TEST(LauncherName, IsTheTitleWithItsExtension) {
  EXPECT_EQ(NameOf(L"My Tool"), L"My Tool.desktop");
  EXPECT_EQ(NameOf(L"a.b \"c\" $d \\e"), L"a.b \"c\" $d \\e.desktop");
  EXPECT_EQ(NameOf(L"\x444\xE9\x4E16"), L"\x444\xE9\x4E16.desktop");
}

TEST(LauncherName, HasNothingThatANameCannotHold) {
  EXPECT_EQ(NameOf(L"a/b/c"), L"a_b_c.desktop");
  EXPECT_EQ(NameOf(L"a\nb\tc\x7F\x85"), L"a_b_c__.desktop");
  EXPECT_EQ(NameOf(std::wstring(1, wchar_t(-1))), L"_.desktop");
  EXPECT_EQ(NameOf(L""), L"_.desktop");
}

TEST(LauncherName, IsNeverHiddenNorADirectoryAbove) {
  EXPECT_EQ(NameOf(L".hidden"), L"_hidden.desktop");
  EXPECT_EQ(NameOf(L".."), L"_..desktop");
  EXPECT_EQ(NameOf(L"../x"), L"_._x.desktop");
}

TEST(LauncherName, IsCutAtACharacterSoThatItFitsADirectory) {
  EXPECT_EQ(NameOf(std::wstring(247, L'x')), std::wstring(247, L'x') + L".desktop");
  EXPECT_EQ(BytesOf(NameOf(std::wstring(248, L'x'))), 255u);
  EXPECT_EQ(NameOf(std::wstring(250, L'\xE9')), std::wstring(123, L'\xE9') + L".desktop");
  EXPECT_EQ(NameOf(L"x" + std::wstring(250, L'\xE9')), L"x" + std::wstring(123, L'\xE9') + L".desktop");
  EXPECT_EQ(NameOf(std::wstring(250, L'\x1F600')), std::wstring(61, L'\x1F600') + L".desktop");
}

TEST(LauncherText, OfAProgramStartsIt) {
  EXPECT_STREQ(LauncherText({L"My Tool", L"/home/me/bin/my tool.sh", true, false}).Text(),
               "#!/usr/bin/env xdg-open\n"
               "\n"
               "[Desktop Entry]\n"
               "Version=1.0\n"
               "Encoding=UTF-8\n"
               "Name=My Tool\n"
               "Exec=\"/home/me/bin/my tool.sh\"\n"
               "Terminal=false\n"
               "Type=Application\n");
}

TEST(LauncherText, OfAnythingElseOpensItByTheDesktop) {
  EXPECT_EQ(Value({L"Notes", L"/home/me/notes.txt", false, false}, "Exec"),
            "xdg-open \"/home/me/notes.txt\"");
}

TEST(LauncherText, TellsWhetherATerminalIsNeeded) {
  EXPECT_EQ(Value({L"T", L"/t", true, true}, "Terminal"), "true");
  EXPECT_EQ(Value({L"T", L"/t", true, false}, "Terminal"), "false");
}

TEST(LauncherText, KeepsTheTitleInOneLine) {
  EXPECT_EQ(NameLineOf(L"a/b = [c]; #d"), "a/b = [c]; #d");
  EXPECT_EQ(NameLineOf(L"\x444\xE9"), "\xD1\x84\xC3\xA9");
  EXPECT_EQ(NameLineOf(L"a\nType=Link\r\tb"), "a Type=Link  b");
  EXPECT_EQ(NameLineOf(L"a\\nb"), "a\\\\nb");
}

TEST(LauncherText, LeavesAPlainPathAsItIs) {
  EXPECT_EQ(CommandOf(L"/home/me/Tools & more/it's (1) [a]{b};*?#~!|<>=,+-@_.sh"),
            "\"/home/me/Tools & more/it's (1) [a]{b};*?#~!|<>=,+-@_.sh\"");
  EXPECT_EQ(CommandOf(L"/\x444\x4E16"), "\"/\xD1\x84\xE4\xB8\x96\"");
}

TEST(LauncherText, EscapesWhatAQuotedArgumentCannotHold) {
  EXPECT_EQ(CommandOf(L"/a\"b"), "\"/a\\\\\"b\"");
  EXPECT_EQ(CommandOf(L"/a$HOME"), "\"/a\\\\$HOME\"");
  EXPECT_EQ(CommandOf(L"/a`b`"), "\"/a\\\\`b\\\\`\"");
  EXPECT_EQ(CommandOf(L"/a\\b"), "\"/a\\\\\\\\b\"");
  EXPECT_EQ(CommandOf(L"/100%f"), "\"/100%%f\"");
  EXPECT_EQ(CommandOf(L"/a\nb\tc\rd"), "\"/a\\nb\\tc\\rd\"");
}

// ---- the file on the desktop -------------------------------------------------

namespace {

// A home with a desktop, and a panel in it.
class MakeDesktopFileTest : public testing::Test {
 protected:
  MakeDesktopFileTest() : oldHome(getenv("HOME") ? getenv("HOME") : ""), oldMask(umask(022)) {
    setenv("HOME", files.Path().c_str(), 1);
    files.MakeDirectory("Desktop");
    CopyText(panel.path, Westring(files.Path().c_str()).Text());
  }
  ~MakeDesktopFileTest() override {
    umask(oldMask);
    setenv("HOME", oldHome.c_str(), 1);
  }

  mode_t ModeOf(const std::string& name) const {
    struct stat status;
    return stat(files.Path(name).c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
  }

  bool HasLine(const std::string& name, const std::string& line) const {
    return files.Content(name).find("\n" + line + "\n") != std::string::npos;
  }

  size_t FilesOnDesktop() const {
    const std::filesystem::directory_iterator first(files.Path("Desktop"));
    return static_cast<size_t>(std::distance(begin(first), end(first)));
  }

  ScratchDirectory files;
  TPanel panel;

 private:
  std::string oldHome;
  mode_t oldMask;
};

}  // namespace

TEST_F(MakeDesktopFileTest, WritesTheLauncherAndNothingBesideIt) {
  files.Write("notes.txt", "");
  EXPECT_EQ(MakeDesktopFile(panel, L"notes.txt", L"Notes", false), 0);
  EXPECT_EQ(files.Content("Desktop/Notes.desktop"),
            LauncherText({L"Notes", files.Path("notes.txt").c_str(), false, false}).Text());
  EXPECT_EQ(FilesOnDesktop(), 1u);
}

TEST_F(MakeDesktopFileTest, IsMadeWithTheRightsOfAProgramThatTheUserAllows) {
  files.Write("a", "");
  EXPECT_EQ(MakeDesktopFile(panel, L"a", L"One", false), 0);
  EXPECT_EQ(ModeOf("Desktop/One.desktop"), 0755u);
  umask(0);
  EXPECT_EQ(MakeDesktopFile(panel, L"a", L"Two", false), 0);
  EXPECT_EQ(ModeOf("Desktop/Two.desktop"), 0775u);
}

TEST_F(MakeDesktopFileTest, AnyExecuteBitMakesAFileAProgram) {
  files.Write("tool", "");
  for (const mode_t mode : {0100u, 0010u, 0001u}) {
    chmod(files.Path("tool").c_str(), 0600 | mode);
    EXPECT_EQ(MakeDesktopFile(panel, L"tool", L"Tool", true), 0);
    EXPECT_TRUE(HasLine("Desktop/Tool.desktop", "Exec=\"" + files.Path("tool") + "\"")) << mode;
    EXPECT_TRUE(HasLine("Desktop/Tool.desktop", "Terminal=true"));
  }
}

TEST_F(MakeDesktopFileTest, ADirectoryIsOpenedByTheDesktop) {
  files.MakeDirectory("dir");
  EXPECT_EQ(MakeDesktopFile(panel, L"dir", L"Dir", false), 0);
  EXPECT_TRUE(HasLine("Desktop/Dir.desktop", "Exec=xdg-open \"" + files.Path("dir") + "\""));
}

TEST_F(MakeDesktopFileTest, ALinkCountsAsWhatItLeadsTo) {
  files.Write("tool", "");
  chmod(files.Path("tool").c_str(), 0700);
  ASSERT_EQ(symlink("tool", files.Path("link").c_str()), 0);
  EXPECT_EQ(MakeDesktopFile(panel, L"link", L"Link", false), 0);
  EXPECT_TRUE(HasLine("Desktop/Link.desktop", "Exec=\"" + files.Path("link") + "\""));
}

TEST_F(MakeDesktopFileTest, ATitleOfATreeRowMayBeAWholePath) {
  files.MakeDirectory("x/y");
  EXPECT_EQ(MakeDesktopFile(panel, files.Path("x/y").c_str(), L"Y", false), 0);
  EXPECT_TRUE(HasLine("Desktop/Y.desktop", "Exec=xdg-open \"" + files.Path("x/y") + "\""));
}

TEST_F(MakeDesktopFileTest, AnAwkwardTitleGetsASafeName) {
  files.Write("a", "");
  EXPECT_EQ(MakeDesktopFile(panel, L"a", L"../a/b\nc", false), 0);
  EXPECT_TRUE(HasLine("Desktop/_._a_b_c.desktop", "Name=../a/b c"));
}

TEST_F(MakeDesktopFileTest, AnErrorIsToldAndLeavesNothingBehind) {
  files.Write("a", "");
  EXPECT_EQ(MakeDesktopFile(panel, L"gone", L"Gone", false), ENOENT);
  files.MakeDirectory("Desktop/Dir.desktop/x");
  EXPECT_EQ(MakeDesktopFile(panel, L"a", L"Dir", false), EISDIR);
  EXPECT_EQ(FilesOnDesktop(), 1u);
  setenv("HOME", files.Path("nowhere").c_str(), 1);
  EXPECT_EQ(MakeDesktopFile(panel, L"a", L"A", false), ENOENT);
}

TEST_F(MakeDesktopFileTest, ALauncherThatIsThereIsReplacedWithItsRights) {
  files.Write("a", "");
  files.Write("Desktop/A.desktop",
              "old and much longer than what comes in its place" + std::string(1000, 'x'));
  chmod(files.Path("Desktop/A.desktop").c_str(), 0600);
  EXPECT_EQ(MakeDesktopFile(panel, L"a", L"A", false), 0);
  EXPECT_EQ(files.Content("Desktop/A.desktop"),
            LauncherText({L"A", files.Path("a").c_str(), false, false}).Text());
  EXPECT_EQ(ModeOf("Desktop/A.desktop"), 0755u);
}

class ObjectsInAnArchive : public TwoPanels {};

TEST_F(ObjectsInAnArchive, AreRefused) {
  RecordedPrompts.clear();
  MakeFiles({"a"});
  Read().archive = std::make_unique<FakeLevel>(L"/a.zip");
  Left().cursorRow = 1;
  MakeObjects(Left());
  EXPECT_EQ(RecordedPrompts,
            (std::vector<RecordedPrompt>{{"No launcher can be made for a file in an archive", "a"}}));
  Left().archive.reset();
}
