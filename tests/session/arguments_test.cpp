// The program's arguments, as the started program takes them.
#include <gtest/gtest.h>

#include "session/main_screen.h"

namespace {

const char kUsage[] =
    "Usage:\torvane [ini_file] [-v|-e file_name] [-l|-r directory]\n"
    "\t-v: invoke internal viewer\n"
    "\t-e: invoke internal editor\n"
    "\t-l: specify left panel's directory\n"
    "\t-r: specify right panel's directory\n";

}  // namespace

TEST(Arguments, AViewerWithoutAFileEndsWithAMessage) {
  for (const char* option : {"-v", "-e", "\\e"}) {
    const EndedRun run = RunToEnd({option});
    EXPECT_EQ(run.exitCode, 1) << option;
    EXPECT_EQ(run.output, "No file specified\n") << option;
  }
}

TEST(Arguments, AnUnknownOptionEndsWithTheUsage) {
  for (const char* option : {"-Q", "-", "\\h"}) {
    const EndedRun run = RunToEnd({"-l", "/", option, "-v"});
    EXPECT_EQ(run.exitCode, 1) << option;
    EXPECT_EQ(run.output, kUsage) << option;
  }
}

TEST(Arguments, TheEditorThatIsNotThereIsRefused) {
  for (const char* option : {"-e", "\\e"}) EXPECT_EQ(RunToEnd({option, "file"}).exitCode, 1) << option;
}

TEST(Arguments, AUsageErrorShowsNoPromptOfTheSettings) {
  const EndedRun run = RunToEnd({"-Q"}, {{"home/.orvane/orvane.ini", "nonsense=1\n"}});
  EXPECT_EQ(run.exitCode, 1);
}

TEST(Arguments, APositionalFileHoldsTheSettings) {
  Session s({{"mine.ini", "StartupSide=R\n"}}, {.settings = "Clock=on\n", .arguments = {{"mine.ini"}}});
  EXPECT_EQ(s.Active(), kRightSide);
  EXPECT_FALSE(s.Row(0).EndsWith("a"));
}

TEST(Arguments, SettingsAreSavedToTheFileNamed) {
  Session s({{"mine.ini", "StartupSide=R\n"}}, {.arguments = {{"mine.ini"}}});
  s.Keys("Tab Shift-F9");
  EXPECT_NE(s.Content("mine.ini").find("StartupSide=L\r\n"), std::string::npos);
  EXPECT_FALSE(s.Exists("home/.orvane/orvane.ini"));
}

TEST(Arguments, ADirectoryByPositionIsPassedOver) {
  Session s({{"mine/", ""}}, {.settings = "StartupSide=R\n", .arguments = {{"mine"}}});
  EXPECT_EQ(s.Active(), kRightSide);
  EXPECT_EQ(s.PanelPath(kLeftSide), s.Path());
  EXPECT_EQ(s.PanelPath(kRightSide), s.Path());
}
