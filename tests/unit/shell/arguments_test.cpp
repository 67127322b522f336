// The program's arguments.
#include "shell/arguments.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "config/values/options.h"
#include "foundation/paths.h"
#include "unit/scratch_directory.h"

namespace {

const char kUsageText[] =
    "Usage:\torvane [ini_file] [-v|-e file_name] [-l|-r directory]\n"
    "\t-v: invoke internal viewer\n"
    "\t-e: invoke internal editor\n"
    "\t-l: specify left panel's directory\n"
    "\t-r: specify right panel's directory";

Arguments Read(std::vector<std::string> texts) {
  texts.insert(texts.begin(), "orvane");
  std::vector<char*> argv;
  for (std::string& text : texts) argv.push_back(text.data());
  argv.push_back(nullptr);
  return ReadArguments(static_cast<int>(texts.size()), argv.data());
}

std::string Text(const Westring& text) { return ToUtf8(text).Text(); }

// Stands in a directory of its own.
class ArgumentsTest : public testing::Test {
 protected:
  ArgumentsTest() {
    files.MakeDirectory("docs");
    EXPECT_EQ(chdir(files.Path().c_str()), 0);
  }
  ~ArgumentsTest() override { EXPECT_EQ(chdir("/"), 0); }

  ScratchDirectory files;
};

}  // namespace

TEST_F(ArgumentsTest, NoneGivesNoFileAndNoDirectory) {
  const Arguments arguments = Read({});
  EXPECT_EQ(arguments.usageError, nullptr);
  EXPECT_EQ(Text(arguments.viewFile), "");
  EXPECT_EQ(Text(arguments.editFile), "");
  EXPECT_EQ(Text(arguments.startDirectory[0]), "");
  EXPECT_EQ(Text(arguments.startDirectory[1]), "");
  EXPECT_EQ(Text(arguments.exitScript), "");
  EXPECT_EQ(Text(IniFileArgument), "");
}

TEST_F(ArgumentsTest, EachLetterTakesTheNextArgument) {
  const Arguments arguments = Read({"-v", "/a", "-e", "/b", "-l", "/c", "-r", "/d", "-x", "/e"});
  EXPECT_EQ(arguments.usageError, nullptr);
  EXPECT_EQ(Text(arguments.viewFile), "/a");
  EXPECT_EQ(Text(arguments.editFile), "/b");
  EXPECT_EQ(Text(arguments.startDirectory[0]), "/c");
  EXPECT_EQ(Text(arguments.startDirectory[1]), "/d");
  EXPECT_EQ(Text(arguments.exitScript), "/e");
}

TEST_F(ArgumentsTest, ABackslashBeginsAnOptionAsADashDoes) {
  EXPECT_EQ(Text(Read({"\\e", "notes.txt"}).editFile), files.Path("notes.txt"));
}

TEST_F(ArgumentsTest, TheLetterCountsInEitherCaseAndWhatFollowsItDoesNot) {
  EXPECT_EQ(Text(Read({"-Left", "/c"}).startDirectory[0]), "/c");
  EXPECT_EQ(Text(Read({"\\Vx=y", "/a"}).viewFile), "/a");
}

TEST_F(ArgumentsTest, PathsAreAbsoluteFromWhereTheProgramWasStarted) {
  const Arguments arguments = Read({"-l", "docs/..", "-r", "./docs", "-x", "out/script"});
  EXPECT_EQ(Text(arguments.startDirectory[0]), files.Path());
  EXPECT_EQ(Text(arguments.startDirectory[1]), files.Path("docs"));
  EXPECT_EQ(Text(arguments.exitScript), files.Path("out/script"));
}

TEST_F(ArgumentsTest, AnotherLetterIsAUsageError) {
  EXPECT_STREQ(Read({"-Q"}).usageError, kUsageText);
  EXPECT_STREQ(Read({"\\?"}).usageError, kUsageText);
  EXPECT_STREQ(Read({"-l", "/c", "--help"}).usageError, kUsageText);
}

TEST_F(ArgumentsTest, ADashAloneIsAUsageError) {
  EXPECT_STREQ(Read({"-"}).usageError, kUsageText);
  EXPECT_STREQ(Read({"\\"}).usageError, kUsageText);
}

TEST_F(ArgumentsTest, ViewerAndEditorNeedAFile) {
  EXPECT_STREQ(Read({"-v"}).usageError, "No file specified");
  EXPECT_STREQ(Read({"-v", "/a", "\\E"}).usageError, "No file specified");
}

TEST_F(ArgumentsTest, OtherOptionsWithoutAValueArePassedOver) {
  for (const char* letter : {"-l", "-r", "-x"}) {
    const Arguments arguments = Read({letter});
    EXPECT_EQ(arguments.usageError, nullptr) << letter;
    EXPECT_EQ(
        Text(arguments.startDirectory[0]) + Text(arguments.startDirectory[1]) + Text(arguments.exitScript),
        "");
  }
}

TEST_F(ArgumentsTest, AValueMayLookLikeAnOption) {
  EXPECT_EQ(Text(Read({"-l", "-r"}).startDirectory[0]), files.Path("-r"));
}

TEST_F(ArgumentsTest, APositionalArgumentIsTheSettingsFile) {
  Read({"mine.ini"});
  EXPECT_EQ(Text(IniFileArgument), files.Path("mine.ini"));
}

TEST_F(ArgumentsTest, TheLastPositionalArgumentWins) {
  Read({"one.ini", "-l", "/c", "two.ini"});
  EXPECT_EQ(Text(IniFileArgument), files.Path("two.ini"));
}

TEST_F(ArgumentsTest, AnExistingDirectoryIsNoSettingsFileAndNoStartDirectory) {
  const Arguments arguments = Read({"one.ini", "docs", "/"});
  EXPECT_EQ(arguments.usageError, nullptr);
  EXPECT_EQ(Text(IniFileArgument), files.Path("one.ini"));
  EXPECT_EQ(Text(arguments.startDirectory[0]) + Text(arguments.startDirectory[1]), "");
}

TEST_F(ArgumentsTest, AnEmptyArgumentIsPassedOver) {
  EXPECT_EQ(Read({""}).usageError, nullptr);
  EXPECT_EQ(Text(IniFileArgument), "");
}
