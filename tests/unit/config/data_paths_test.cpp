// Where the program looks for its files.
#include "config/data_paths.h"

#include "unit/config/settings_fixture.h"

namespace {

using DataPaths = SettingsTest;

std::string Path(DataFile kind, bool shared = false) { return ToUtf8(DataFilePath(kind, shared)).Text(); }

}  // namespace

TEST_F(DataPaths, NamesBeginWithThatOfTheProgram) {
  const std::string settings = home.Path(".orvane/");
  EXPECT_EQ(Path(kHelpFile), ORVANE_SHARE_DIR "orvane.ovd");
  EXPECT_EQ(Path(kManualFile), ORVANE_DOC_DIR "manual/orvane.html");
  EXPECT_EQ(Path(kMenuFile), settings + "orvane.mnu");
  EXPECT_EQ(Path(kSettingsFile), settings + "orvane.ini");
  EXPECT_EQ(Path(kHistoryFile), settings + "orvane.hst");
  EXPECT_EQ(Path(kLogFile), settings + "orvane.log");
  EXPECT_EQ(Path(kSyntaxFile, false), settings + "orvanesyntax.ini");
  EXPECT_EQ(Path(kSyntaxFile, true), ORVANE_SHARE_DIR "orvanesyntax.ini");
}

TEST_F(DataPaths, OnlyTheSyntaxFileAsksForTheSharedDirectory) {
  EXPECT_EQ(Path(kSettingsFile, true), home.Path(".orvane/orvane.ini"));
}

TEST_F(DataPaths, ProgramsNameIsCutBehindItsLastDot) {
  ProgramPath = L"/opt/v1.2/other.name.bin";
  EXPECT_EQ(Path(kSettingsFile), home.Path(".orvane/other.name.ini"));
  ProgramPath = L"/opt/v1.2/other";
  EXPECT_EQ(Path(kSettingsFile), home.Path(".orvane/other.ini"));
  ProgramPath = L"";
  EXPECT_EQ(Path(kSettingsFile), home.Path(".orvane/orvane.ini"));
}

TEST_F(DataPaths, SettingsFileOfTheCommandLineGivesDirectoryAndName) {
  IniFileArgument = L"/etc/own/my.settings.cfg";
  EXPECT_STREQ(SettingsDirectory().Text(), L"/etc/own/");
  EXPECT_EQ(Path(kSettingsFile), "/etc/own/my.settings.ini");
  EXPECT_EQ(Path(kMenuFile), "/etc/own/my.settings.mnu");
  EXPECT_EQ(Path(kHelpFile), ORVANE_SHARE_DIR "my.settings.ovd");
  EXPECT_EQ(Path(kSyntaxFile), "/etc/own/my.settingssyntax.ini");
  IniFileArgument = L"/my";
  EXPECT_EQ(Path(kSettingsFile), "/my.ini");
}

TEST_F(DataPaths, HomeMayBeTheRootOrEndInASlash) {
  setenv("HOME", "/", 1);
  EXPECT_STREQ(SettingsDirectory().Text(), L"/.orvane/");
  setenv("HOME", "/home/me/", 1);
  EXPECT_STREQ(SettingsDirectory().Text(), L"/home/me/.orvane/");
}

TEST_F(DataPaths, WithoutAHomeVariableTheAccountsIsTaken) {
  unsetenv("HOME");
  const std::string directory = ToUtf8(SettingsDirectory()).Text();
  EXPECT_EQ(directory.substr(0, 1), "/");
  EXPECT_TRUE(directory.ends_with("/.orvane/")) << directory;
}

TEST_F(DataPaths, HomeThatTheSettingsSetDoesNotMoveThem) {
  Load("[Environment]\nHOME=/elsewhere\n");
  EXPECT_STREQ(Variables.Get("HOME"), "/elsewhere");
  EXPECT_EQ(Path(kSettingsFile), home.Path(".orvane/orvane.ini"));
}

TEST_F(DataPaths, IconsStandInTheirTheme) {
  EXPECT_STREQ(ToUtf8(IconPath(L"16x16/apps/orvane.png")).Text(), ORVANE_ICON_DIR "16x16/apps/orvane.png");
}
