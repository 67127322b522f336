// Writing the settings file: its order, that it reads back, and that a failure
// or a kill leaves the old one.
#include <csignal>
#include <cstring>
#include <random>

#include <sched.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "config/option_text.h"
#include "config/values/archivers.h"
#include "config/values/colours.h"
#include "unit/config/settings_fixture.h"

namespace {

class SettingsWriter : public SettingsTest {
 protected:
  void WriteOldFile(const std::string& content) {
    home.MakeDirectory(".orvane");
    home.Write(".orvane/orvane.ini", content);
  }
  void ExpectNoScratch() { EXPECT_FALSE(home.Exists(".orvane/orvane.!!!")); }
};

// Every option, slot, pair and archiver as one text. Archivers without blanks at
// the ends: one default has one there, and the file can't hold it.
std::string Everything() {
  std::string all;
  for (int i = 0; i < kOptionCount; ++i)
    if (kOptionTable[i].store) all += std::string(OptionText(kOptionTable[i]).Text()) + "\n";
  for (const Westring& path : StoredDirectories) all += std::string(ToUtf8(path).Text()) + "\n";
  for (const ArchiverRecord& archiver : Archivers)
    for (const ArchiverKey& key : kArchiverKeys) all += std::string(Trim(archiver.*key.field).Text()) + "\n";
  for (const AssociationSet* store : kAssociationStores)
    for (int i = 0; const Association* pair = store->Peek(i); ++i)
      all += std::string(ToUtf8(pair->test).Text()) + "\t" + ToUtf8(pair->value).Text() + "\n";
  for (int i = 0; const EnvironmentAddition* addition = EnvironmentAdditions.Peek(i); ++i)
    all += std::string(addition->name.Text()) + "\t" + addition->value.Text() + "\n";
  return all;
}

}  // namespace

// ---- form and order --------------------------------------------------------

TEST_F(SettingsWriter, WritesEverySectionInItsOrder) {
  WriteOldFile("*.a: one\n[Viewer Associations]\n*.b: two\n[Environment]\nORVANE_A=1\n");
  StoredDirectories[0] = L"/zero";
  StoredDirectories[7] = L"/seven";
  ASSERT_TRUE(SaveSettings());
  std::vector<std::string> expected = {"[Associations]",
                                       "*.a: one",
                                       "",
                                       "[Viewer Associations]",
                                       "*.b: two",
                                       "",
                                       "[Editor Associations]",
                                       "",
                                       "[Colours]",
                                       "",
                                       "[Directory Colours]",
                                       "",
                                       "[Environment]",
                                       "ORVANE_A=1",
                                       ""};
  for (const ArchiverRecord& archiver : Archivers) {
    expected.push_back(std::string("[Archiver:") + archiver.name + "]");
    expected.push_back(std::string("Compress=") + archiver.compress.Text());
    expected.push_back(std::string("CompressListfileSwitch=") + archiver.compressListfileSwitch.Text());
    expected.push_back(std::string("Extract=") + archiver.extract.Text());
    expected.push_back(std::string("ExtractListfileSwitch=") + archiver.extractListfileSwitch.Text());
    expected.push_back(std::string("Delete=") + archiver.deleteCommand.Text());
    expected.push_back(std::string("CompressDirSpec=") + archiver.compressDirSpec.Text());
    expected.push_back(std::string("ExtractDirSpec=") + archiver.extractDirSpec.Text());
    expected.push_back("");
  }
  expected.push_back("[General Options]");
  for (int i = 0; i < kOptionCount; ++i)
    if (kOptionTable[i].store)
      expected.push_back(std::string(kOptionTable[i].key) + "=" + OptionText(kOptionTable[i]).Text());
  expected.push_back("");
  expected.push_back("d0=/zero");
  expected.push_back("d7=/seven");
  EXPECT_EQ(SavedLines(), expected);
  EXPECT_TRUE(Saved().ends_with("\r\n"));
  EXPECT_EQ(SavedValue("Manual"), "(none)");
  EXPECT_EQ(SavedValue("Use132"), "(none)");
  EXPECT_TRUE(prompts.empty());
  ExpectNoScratch();
}

TEST_F(SettingsWriter, EveryLineEndsInReturnAndNewline) {
  ASSERT_TRUE(SaveSettings());
  const std::string text = Saved();
  char before = 0;
  for (const char c : text) {
    EXPECT_EQ(c == '\n', before == '\r');
    before = c;
  }
}

TEST_F(SettingsWriter, EmptySlotIsNotWritten) {
  Load("d3=/tmp\nd4=\n");
  ASSERT_TRUE(SaveSettings());
  EXPECT_EQ(SavedValue("d3"), "/tmp");
  EXPECT_EQ(SavedValue("d4"), "(none)");
}

TEST_F(SettingsWriter, TimeMode24ComesBack) {
  Load("TimeMode=24\n");
  ASSERT_TRUE(SaveSettings());
  EXPECT_EQ(SavedValue("TimeMode"), "24");
}

TEST_F(SettingsWriter, TreeStyleReloadsAsFull) {
  Options::LeftStyle = 5;
  ASSERT_TRUE(SaveSettings());
  EXPECT_EQ(SavedValue("LeftStyle"), "tree");
  LoadSettings(false);
  EXPECT_EQ(Options::LeftStyle, 1);
}

TEST_F(SettingsWriter, StoresComeFromTheFileAsItIsNow) {
  Load("[Associations]\n*.old: 1\n");
  Options::TabWidth = 3;
  WriteOldFile("TabWidth=5\n[Associations]\n*.new: 2\n[Archiver:TAR]\nDelete=other\n");
  ASSERT_TRUE(SaveSettings());
  const std::string text = Saved();
  EXPECT_EQ(text.find("*.old"), std::string::npos);
  EXPECT_NE(text.find("*.new: 2\r\n"), std::string::npos);
  EXPECT_NE(text.find("Delete=other\r\n"), std::string::npos);
  EXPECT_EQ(SavedValue("TabWidth"), "3");
}

TEST_F(SettingsWriter, LinesTakesTheScreensRowsUnlessItIsZero) {
  ScreenRows = 33;
  ASSERT_TRUE(SaveSettings());
  EXPECT_EQ(SavedValue("Lines"), "0");
  Options::Lines = 40;
  ASSERT_TRUE(SaveSettings());
  EXPECT_EQ(SavedValue("Lines"), "33");
}

TEST_F(SettingsWriter, PanelStateIsCollectedFirst) {
  TheSettingsHooks.collectPanelState = [] {
    Options::LeftShowing = false;
    Options::RightFilter = L"*.c";
  };
  ASSERT_TRUE(SaveSettings());
  EXPECT_EQ(SavedValue("LeftShowing"), "off");
  EXPECT_EQ(SavedValue("RightFilter"), "*.c");
}

TEST_F(SettingsWriter, EnvironmentIsWrittenExpanded) {
  WriteOldFile("[Environment]\nORVANE_A=~/x\n");
  ASSERT_TRUE(SaveSettings());
  EXPECT_EQ(SavedValue("ORVANE_A"), home.Path("x"));
}

TEST_F(SettingsWriter, EnvironmentValueThatWouldExpandAgainIsWrittenAsItStood) {
  setenv("ORVANE_TEST_VARIABLE", "$five$six", 1);
  setenv("ORVANE_TEST_LINES", "one\ntwo", 1);
  Variables.Load();
  WriteOldFile("[Environment]\nORVANE_A=$ORVANE_TEST_VARIABLE\nORVANE_B=$ORVANE_TEST_LINES\n");
  ASSERT_TRUE(SaveSettings());
  EXPECT_EQ(SavedValue("ORVANE_A"), "$ORVANE_TEST_VARIABLE");
  EXPECT_EQ(SavedValue("ORVANE_B"), "$ORVANE_TEST_LINES");
  LoadSettings(true);
  EXPECT_STREQ(Variables.Get("ORVANE_A"), "$five$six");
  EXPECT_STREQ(Variables.Get("ORVANE_B"), "one\ntwo");
  unsetenv("ORVANE_TEST_VARIABLE");
  unsetenv("ORVANE_TEST_LINES");
}

// ---- reading back ----------------------------------------------------------

TEST_F(SettingsWriter, WhatTheFormatHoldsReadsBackTheSame) {
  // No blanks at the ends, no line ends, no more than a line.
  const wchar_t* values[] = {L"a:b=c",        L"=x",         L"[Colours]",   L":",      L"a\tb\x01\x7F",
                             L"\u00E4\u4E2D", L"\U0001F600", L"# no remark", L"$HOME$", L"\"a, b\""};
  for (const wchar_t* value : values) {
    LoadSettings(false);
    Options::Left = value;
    Options::Background = value;
    Options::FontFamily = ToUtf8(value);
    StoredDirectories[2] = value;
    Options::CmdChar = '=';
    Options::StartupSide = '[';
    Options::MaxHist = -12345;
    for (int i = 0; i < 18; ++i) Options::Colours[i] = static_cast<uint8_t>(255 - i);
    ASSERT_TRUE(SaveSettings());
    const std::string before = Everything();
    LoadSettings(false);
    EXPECT_EQ(Everything(), before);
    EXPECT_TRUE(prompts.empty());
  }
}

TEST_F(SettingsWriter, BytesOutsideUtf8ReadBackTheSame) {
  Load("FontFamily=\xFF\xC3(\nLeft=/\xFF\xC3(\n");
  const std::string before = Everything();
  ASSERT_TRUE(SaveSettings());
  LoadSettings(false);
  EXPECT_EQ(Everything(), before);
}

// Any values at all: each other line must stay as it is, and what was read back
// once must stay the same for good.
TEST_F(SettingsWriter, AnyValueLeavesAllOthersAloneAndSettlesAtOnce) {
  answer = kEscape;
  std::mt19937 random(23);
  const wchar_t letters[] = L" \t\r\n:=[]\\$~\"ab\x01\x1B\u00E4\uFFFD\U0001F600";
  const auto anyText = [&] {
    Westring text;
    const auto n = random() % 4 == 0 ? 3000 + random() % 8000 : random() % 12;
    std::wstring characters;
    for (auto i = n; i > 0; i--) characters += letters[random() % (std::size(letters) - 1)];
    text = characters.c_str();
    if (random() % 20 == 0) text += L"\r\n[Colours]\r\n*: red\r\nClock=on\r\n";
    return text;
  };
  for (int round = 0; round < 60; ++round) {
    LoadSettings(false);
    Options::Left = anyText();
    Options::Viewer = anyText();
    Options::FontFamily = ToUtf8(anyText());
    StoredDirectories[5] = anyText();
    const bool clock = Options::Clock;
    const std::string right = Text(Options::Right);
    ASSERT_TRUE(SaveSettings());
    for (const std::string& line : SavedLines()) ASSERT_LE(line.size(), 4095u);

    LoadSettings(false);
    EXPECT_EQ(Options::Clock, clock);
    EXPECT_EQ(Text(Options::Right), right);
    EXPECT_EQ(Text(StoredDirectories[4]), "");
    EXPECT_EQ(FileColours.Count(), 0);
    const std::string once = Everything();
    ASSERT_TRUE(SaveSettings());
    LoadSettings(false);
    ASSERT_EQ(Everything(), once);
  }
  EXPECT_TRUE(prompts.empty());
}

TEST_F(SettingsWriter, AnyPairReadsBackOnceItHasBeenRead) {
  answer = kEscape;
  std::mt19937 random(29);
  const char letters[] = " \t:=[]()&|!*%\"ab\x01\xC3\xA4\xFF";
  for (int round = 0; round < 200; ++round) {
    std::string content;
    for (int line = 0; line < 5; ++line) {
      content += line == 2 ? "[Directory Colours]\n" : line == 4 ? "[Environment]\n" : "";
      for (auto n = random() % 20; n > 0; n--) content += letters[random() % (std::size(letters) - 1)];
      content += "\n";
    }
    Load(content);
    const std::string before = Everything();
    prompts.clear();
    ASSERT_TRUE(SaveSettings());
    prompts.clear();
    LoadSettings(false);
    EXPECT_EQ(Everything(), before) << content;
    EXPECT_TRUE(prompts.empty()) << content;
  }
}

TEST_F(SettingsWriter, LineEndsInValuesBecomeBlanks) {
  Options::Left = L"one\r\ntwo";
  ASSERT_TRUE(SaveSettings());
  EXPECT_EQ(SavedValue("Left"), "one  two");
}

TEST_F(SettingsWriter, PairsThatTheFormatCannotHoldBecomeTheNearestThatItCan) {
  TheSettingsHooks.collectPanelState = [] {
    Associations.Add(L" a:b ", L" one\ntwo ");
    Associations.Add(L" ", L"nothing to test");
    Associations.Add(L"*.c", L"");
  };
  ASSERT_TRUE(SaveSettings());
  LoadSettings(false);
  EXPECT_EQ(Pairs(Associations), (std::vector<std::string>{"a?b=one two", "*.c="}));
  EXPECT_TRUE(prompts.empty());
}

TEST_F(SettingsWriter, TooLongAValueIsCutBetweenCharacters) {
  for (int shift = 0; shift < 4; ++shift) {
    Options::Left = Westring::Replicate(L'a', shift) + Westring::Replicate(L'\u4E2D', 3000);
    ASSERT_TRUE(SaveSettings());
    const std::string value = SavedValue("Left");
    EXPECT_LE(value.size(), 4095u - 5);
    EXPECT_GT(value.size(), 4095u - 5 - 3);
    EXPECT_TRUE(Westring().FromUtf8(value.c_str()));
  }
}

// ---- where it goes ---------------------------------------------------------

TEST_F(SettingsWriter, FirstSaveMakesTheUsersDirectory) {
  umask(0);
  ASSERT_TRUE(SaveSettings());
  EXPECT_EQ(Mode(".orvane"), 0700u);
  EXPECT_TRUE(home.Exists(".orvane/orvane.ini"));
  umask(022);
}

TEST_F(SettingsWriter, HomeThatIsNotThereIsTold) {
  setenv("HOME", home.Path("none").c_str(), 1);
  EXPECT_FALSE(SaveSettings());
  EXPECT_EQ(prompts,
            std::vector<std::string>{"No such file or directory|" + home.Path("none/.orvane/orvane.!!!")});
  EXPECT_FALSE(home.Exists("none"));
}

TEST_F(SettingsWriter, FileOfTheCommandLineIsWrittenAsItStands) {
  home.Write("own.ini", "TabWidth=5\n");
  IniFileArgument = Westring(home.Path("own.cfg").c_str());
  LoadSettings(false);
  ASSERT_TRUE(SaveSettings());
  EXPECT_NE(home.Content("own.cfg").find("TabWidth=5\r\n"), std::string::npos);
  EXPECT_EQ(home.Content("own.ini"), "TabWidth=5\n");
  EXPECT_FALSE(home.Exists(".orvane"));
}

TEST_F(SettingsWriter, LinkStaysAndItsTargetIsReplaced) {
  home.MakeDirectory("dotfiles");
  home.MakeDirectory(".orvane");
  home.Write("dotfiles/settings.ini", "TabWidth=5\n");
  ASSERT_EQ(symlink("../dotfiles/settings.ini", home.Path(".orvane/orvane.ini").c_str()), 0);
  LoadSettings(false);
  ASSERT_TRUE(SaveSettings());
  struct stat status {};
  ASSERT_EQ(lstat(home.Path(".orvane/orvane.ini").c_str(), &status), 0);
  EXPECT_TRUE(S_ISLNK(status.st_mode));
  EXPECT_NE(home.Content("dotfiles/settings.ini").find("TabWidth=5\r\n"), std::string::npos);
}

// ---- failures --------------------------------------------------------------

TEST_F(SettingsWriter, UnreadableFileIsNotOverwritten) {
  home.MakeDirectory(".orvane/orvane.ini/inside");
  EXPECT_FALSE(SaveSettings());
  EXPECT_EQ(prompts, std::vector<std::string>{"Is a directory|" + home.Path(".orvane/orvane.ini")});
  EXPECT_TRUE(home.Exists(".orvane/orvane.ini/inside"));
}

TEST_F(SettingsWriter, FullDiskLeavesTheOldFileAndRemovesTheScratch) {
  WriteOldFile("TabWidth=5\n");
  auto* oldHandler = signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit limit{1000, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &limit);
  const bool saved = SaveSettings();
  setrlimit(RLIMIT_FSIZE, &before);
  signal(SIGXFSZ, oldHandler);
  EXPECT_FALSE(saved);
  ASSERT_EQ(prompts.size(), 1u);
  EXPECT_TRUE(prompts[0].ends_with("|" + home.Path(".orvane/orvane.ini"))) << prompts[0];
  EXPECT_EQ(Saved(), "TabWidth=5\n");
  ExpectNoScratch();
}

TEST_F(SettingsWriter, DirectoryInTheScratchsPlaceIsToldAndTheOldFileStays) {
  WriteOldFile("TabWidth=5\n");
  home.MakeDirectory(".orvane/orvane.!!!");
  EXPECT_FALSE(SaveSettings());
  EXPECT_EQ(prompts, std::vector<std::string>{"Is a directory|" + home.Path(".orvane/orvane.!!!")});
  EXPECT_EQ(Saved(), "TabWidth=5\n");
}

TEST_F(SettingsWriter, KillDuringASaveLeavesTheOldFileBesideTheScratch) {
  WriteOldFile("TabWidth=5\n");
  const pid_t child = fork();
  if (child == 0) {
    // Asked for when the scratch file is open.
    TheSettingsHooks.collectPanelState = [] { raise(SIGKILL); };
    SaveSettings();
    _exit(1);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(Saved(), "TabWidth=5\n");
  EXPECT_TRUE(home.Exists(".orvane/orvane.!!!"));
  // What the kill left is in nobody's way.
  EXPECT_TRUE(SaveSettings());
  EXPECT_EQ(SavedValue("TabWidth"), "8");
  ExpectNoScratch();
}

TEST_F(SettingsWriter, KillAtAnyMomentLeavesOneOfTheTwoFilesWhole) {
  const auto saveSmall = [] {
    Options::Left = L"";
    for (Westring& path : StoredDirectories) path = L"";
    return SaveSettings();
  };
  const auto saveLarge = [] {
    Options::Left = Westring::Replicate(L'x', 4000);
    for (Westring& path : StoredDirectories) path = Westring::Replicate(L'y', 4000);
    return SaveSettings();
  };
  ASSERT_TRUE(saveSmall());
  ASSERT_TRUE(saveLarge());
  const std::string large = Saved();
  ASSERT_TRUE(saveSmall());
  const std::string small = Saved();
  for (int round = 0; round < 40; ++round) {
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) {
      for (;;) {
        saveLarge();
        [[maybe_unused]] const auto written = write(ready[1], "x", 1);
        saveSmall();
      }
    }
    char byte;
    ASSERT_EQ(read(ready[0], &byte, 1), 1);  // one save is done, the next begins
    for (int i = 0; i < round * 10; ++i) sched_yield();
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    close(ready[0]);
    close(ready[1]);
    const std::string text = Saved();
    ASSERT_TRUE(text == small || text == large) << "after round " << round;
  }
}

TEST_F(SettingsWriter, TwoProcessesThatSaveAtOnceDoNotMixTheirFiles) {
  ASSERT_TRUE(SaveSettings());
  ASSERT_TRUE(SaveSettings());  // what was read once stays the same
  const std::string small = Saved();
  const pid_t child = fork();
  if (child == 0) {
    Options::Left = Westring::Replicate(L'x', 4000);
    for (int i = 0; i < 60; ++i)
      if (!SaveSettings()) _exit(1);
    _exit(0);
  }
  bool whole = true;
  for (int i = 0; i < 60; ++i) {
    EXPECT_TRUE(SaveSettings());
    const std::string text = Saved();
    whole =
        whole && (text == small || text.find("Left=" + std::string(4000, 'x') + "\r\n") != std::string::npos);
    whole = whole && text.ends_with("\r\n\r\n");
  }
  int status = 1;
  waitpid(child, &status, 0);
  EXPECT_TRUE(whole);
  EXPECT_EQ(status, 0);
  EXPECT_TRUE(prompts.empty());
}
