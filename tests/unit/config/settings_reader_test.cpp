// Reading the settings file: sections, separators, complaints, and files that
// nobody should have named.
#include <sys/stat.h>

#include <climits>
#include <random>

#include "config/settings_lines.h"
#include "config/values/archivers.h"
#include "config/values/colours.h"
#include "unit/config/settings_fixture.h"

namespace {

class SettingsReader : public SettingsTest {
 protected:
  // The number in the last complaint about a directive.
  static int LineOfLastPrompt() {
    const std::string text = prompts.empty() ? "" : prompts.back();
    const auto at = text.rfind("line ");
    return at == std::string::npos ? -1 : std::stoi(text.substr(at + 5));
  }
};

}  // namespace

// ---- sections and lines ----------------------------------------------------

TEST_F(SettingsReader, MissingFileLeavesTheDefaultsAndSaysNothing) {
  Options::TabWidth = 3;
  LoadSettings(false);
  EXPECT_EQ(Options::TabWidth, 8);
  EXPECT_TRUE(prompts.empty());
  EXPECT_FALSE(home.Exists(".orvane"));
}

TEST_F(SettingsReader, LinesBeforeAnyHeadAreGeneralOptions) {
  Load("AutoSave=on\n[General Options]\nclock=ON\n");
  EXPECT_TRUE(Options::AutoSave);
  EXPECT_TRUE(Options::Clock);
}

TEST_F(SettingsReader, BlanksAroundLineKeyAndValueGo) {
  Load("  AutoSave  =  on  \r\n\t[Associations]\t\n  *.txt  :  less !  \n");
  EXPECT_TRUE(Options::AutoSave);
  EXPECT_EQ(Pairs(Associations), std::vector<std::string>{"*.txt=less !"});
}

TEST_F(SettingsReader, EveryLineEndIsTaken) {
  for (const char* end : {"\n", "\r\n", "\r"}) {
    const std::string e = end;
    Load("AutoSave=on" + e + "[Associations]" + e + "*.a: one" + e + e + "*.b: two");
    EXPECT_TRUE(Options::AutoSave);
    EXPECT_EQ(Pairs(Associations), (std::vector<std::string>{"*.a=one", "*.b=two"}));
    EXPECT_TRUE(prompts.empty());
  }
}

TEST_F(SettingsReader, EachPairSectionHasItsStore) {
  Load(
      "[Associations]\n*.1: a\n[Viewer Associations]\n*.2: b\n[Editor Associations]\n*.3: c\n"
      "[Colours]\n*.4: red\n[Directory Colours]\n*.5: blue\n");
  EXPECT_EQ(Pairs(Associations), std::vector<std::string>{"*.1=a"});
  EXPECT_EQ(Pairs(ViewerAssociations), std::vector<std::string>{"*.2=b"});
  EXPECT_EQ(Pairs(EditorAssociations), std::vector<std::string>{"*.3=c"});
  EXPECT_EQ(Pairs(FileColours), std::vector<std::string>{"*.4=red"});
  EXPECT_EQ(Pairs(DirectoryColours), std::vector<std::string>{"*.5=blue"});
}

TEST_F(SettingsReader, HeadsAreMatchedExactly) {
  Load("[viewer associations]\n[Viewer Associations] \n*.1: a\n[Editor  Associations]\n*.2: b\n");
  EXPECT_EQ(Pairs(ViewerAssociations), (std::vector<std::string>{"*.1=a", "*.2=b"}));
  EXPECT_TRUE(prompts.empty());
}

TEST_F(SettingsReader, SectionsMayComeAgain) {
  Load("[Colours]\n*.1: red\n[General Options]\nClock=on\n[Colours]\n*.2: blue\n");
  EXPECT_EQ(Pairs(FileColours), (std::vector<std::string>{"*.1=red", "*.2=blue"}));
  EXPECT_TRUE(Options::Clock);
}

TEST_F(SettingsReader, PairInGeneralOptionsIsAnAssociation) {
  Load("[General Options]\n*.txt: less !\n");
  EXPECT_EQ(Pairs(Associations), std::vector<std::string>{"*.txt=less !"});
  EXPECT_TRUE(prompts.empty());
}

TEST_F(SettingsReader, FirstSeparatorDecidesInGeneralOptions) {
  Load("Left=/a:b\n*.x: y=z\n");
  EXPECT_STREQ(Options::Left.Text(), L"/a:b");
  EXPECT_EQ(Pairs(Associations), std::vector<std::string>{"*.x=y=z"});
}

TEST_F(SettingsReader, PairSectionsKnowOnlyTheColon) {
  Load("[Associations]\n%size=3: cmd\nClock=on\n");
  EXPECT_EQ(Pairs(Associations), std::vector<std::string>{"%size=3=cmd"});
  EXPECT_FALSE(Options::Clock);
}

TEST_F(SettingsReader, OnlyTheFirstColonDivides) {
  Load("[Associations]\n*.c: a: b:c\n");
  EXPECT_EQ(Pairs(Associations), std::vector<std::string>{"*.c=a: b:c"});
}

TEST_F(SettingsReader, LinesWithoutASeparatorAreDropped) {
  Load("Clock\n[Associations]\nClock=on\n[Environment]\nA: b\n[Archiver:ZIP]\nExtract: x\n# a remark\n");
  EXPECT_TRUE(prompts.empty());
  EXPECT_EQ(Associations.Count(), 0);
  EXPECT_EQ(EnvironmentAdditions.Count(), 0);
  EXPECT_STREQ(Archivers[0].extract.Text(), "unzip --z");
}

TEST_F(SettingsReader, UnknownArchiverHeadIsDroppedByItsFirstNineCharacters) {
  Load("[General Options]\n[Archiver:NEW]\n[Archiverish: x\n[Archive:NEW]\n");
  EXPECT_EQ(Pairs(Associations), std::vector<std::string>{"[Archive=NEW]"});
  EXPECT_TRUE(prompts.empty());
}

TEST_F(SettingsReader, ArchiverValuesGoToTheirRecord) {
  Load(
      "[Archiver:7ZIP]\nextract=a b\nEXTRACTLISTFILESWITCH=c\nCompress=d\nCompressListfileSwitch=e\n"
      "Delete=\nCompressDirSpec=f=g\nExtractDirSpec=h: i\nOther=x\nName=y\n[Archiver:ZIP]\nDelete=z\n");
  EXPECT_STREQ(Archivers[8].extract.Text(), "a b");
  EXPECT_STREQ(Archivers[8].extractListfileSwitch.Text(), "c");
  EXPECT_STREQ(Archivers[8].compress.Text(), "d");
  EXPECT_STREQ(Archivers[8].compressListfileSwitch.Text(), "e");
  EXPECT_STREQ(Archivers[8].deleteCommand.Text(), "");
  EXPECT_STREQ(Archivers[8].compressDirSpec.Text(), "f=g");
  EXPECT_STREQ(Archivers[8].extractDirSpec.Text(), "h: i");
  EXPECT_STREQ(Archivers[8].name, "7ZIP");
  EXPECT_STREQ(Archivers[0].deleteCommand.Text(), "z");
  EXPECT_TRUE(prompts.empty());
}

TEST_F(SettingsReader, RowsWithoutAStoreAreKnown) {
  Load("Manual=/usr/x\nuse132=on\n");
  EXPECT_TRUE(prompts.empty());
}

TEST_F(SettingsReader, StoredDirectoriesGoToTheirSlots) {
  Load("d3=/tmp\nD0=/x\nd9=\n");
  EXPECT_STREQ(StoredDirectories[3].Text(), L"/tmp");
  EXPECT_STREQ(StoredDirectories[0].Text(), L"/x");
  EXPECT_TRUE(prompts.empty());
  Load("d10=/x\nda=/x\nd=/x\n");
  EXPECT_EQ(prompts.size(), 3u);
}

TEST_F(SettingsReader, ValuesAreReadAsUtf8) {
  Load("Left=/h\xC3\xA4user\nFontFamily=Sch\xC3\xB6n\nRight=/bad\xFF\n");
  EXPECT_STREQ(Options::Left.Text(), L"/h\u00E4user");
  EXPECT_STREQ(Options::FontFamily.Text(), "Sch\xC3\xB6n");
  EXPECT_STREQ(Options::Right.Text(), L"/bad\u00FF");
}

// ---- the environment -------------------------------------------------------

TEST_F(SettingsReader, EnvironmentValuesAreExpanded) {
  setenv("ORVANE_TEST_VARIABLE", "outer", 1);
  Variables.Load();
  Load("[Environment]\nORVANE_A=~/bin:$ORVANE_TEST_VARIABLE\nORVANE_B=$orvane_a$:x\nNOTE = a = b \n=empty\n");
  EXPECT_EQ(Variables.Get("ORVANE_A"), home.Path("bin:outer"));
  EXPECT_EQ(Variables.Get("ORVANE_B"), home.Path("bin:outer:x"));
  EXPECT_STREQ(Variables.Get("NOTE"), "a = b");
  EXPECT_EQ(EnvironmentAdditions.Count(), 3);
  unsetenv("ORVANE_TEST_VARIABLE");
}

TEST_F(SettingsReader, ReloadTakesTheEnvironmentAnewAndDoesNotGrowIt) {
  setenv("ORVANE_TEST_VARIABLE", "/bin", 1);
  Variables.Load();
  const char content[] = "[Environment]\nORVANE_TEST_VARIABLE=$ORVANE_TEST_VARIABLE$:/x\nORVANE_NEW=1\n";
  Load(content);
  EXPECT_STREQ(Variables.Get("ORVANE_TEST_VARIABLE"), "/bin:/x");
  Load(content, true);
  EXPECT_STREQ(Variables.Get("ORVANE_TEST_VARIABLE"), "/bin:/x");
  Load("", true);
  EXPECT_STREQ(Variables.Get("ORVANE_TEST_VARIABLE"), "/bin");
  EXPECT_EQ(Variables.Get("ORVANE_NEW"), nullptr);
  unsetenv("ORVANE_TEST_VARIABLE");
}

TEST_F(SettingsReader, ReloadKeepsWhatTheUserHasSetHimself) {
  Load("[Environment]\nORVANE_A=file\n");
  Variables.Set("ORVANE_A", "user");
  Variables.Set("ORVANE_B", "user");
  Load("", true);
  EXPECT_STREQ(Variables.Get("ORVANE_A"), "user");
  EXPECT_STREQ(Variables.Get("ORVANE_B"), "user");
}

// ---- complaints ------------------------------------------------------------

TEST_F(SettingsReader, UnknownKeyIsABadDirectiveWithItsLine) {
  Load("zero=0\n");
  const int before = LineOfLastPrompt();
  Load("AutoSave=on\n\nfoo=1\nClock=on\n");
  EXPECT_EQ(prompts.back(), "Bad directive (foo) in orvane.ini, line " + std::to_string(before + 3) + "|");
  EXPECT_TRUE(Options::Clock);
}

TEST_F(SettingsReader, LineCounterGoesOnThroughReloads) {
  Load("foo=1\n");
  const int first = LineOfLastPrompt();
  Load("a\nb\nc\n", true);
  Load("foo=1\n");
  EXPECT_EQ(LineOfLastPrompt(), first + 4);
}

TEST_F(SettingsReader, LongKeyDoesNotCutTheLineNumber) {
  Load(std::string(3000, 'k') + "=1\n");
  EXPECT_GT(LineOfLastPrompt(), 0);
  EXPECT_TRUE(prompts.back().starts_with("Bad directive (kkk"));
}

TEST_F(SettingsReader, ExpressionWithASyntaxErrorIsToldAndNotStored) {
  Load("[Viewer Associations]\n(*.txt: less !\n: nothing\n*.c: ok\n");
  EXPECT_EQ(prompts, (std::vector<std::string>{"Syntax error in association|(*.txt: less !",
                                               "Syntax error in association|: nothing"}));
  EXPECT_EQ(Pairs(ViewerAssociations), std::vector<std::string>{"*.c=ok"});
}

TEST_F(SettingsReader, EscSparesTheRestOfTheComplaintsOfThisRead) {
  std::string bad;
  for (int i = 0; i < 5000; ++i) bad += "bad=1\n(: x\n";
  answer = kEscape;
  Load(bad + "Clock=on\n");
  EXPECT_EQ(prompts.size(), 1u);
  EXPECT_TRUE(Options::Clock);
  answer = 'y';
  Load("bad=1\nworse=2\n");
  EXPECT_EQ(prompts.size(), 3u);
}

// ---- reload ----------------------------------------------------------------

TEST_F(SettingsReader, ReloadTakesTheStoresAndLeavesTheOptions) {
  Load("TabWidth=4\nd1=/one\n[Associations]\n*.a: 1\n");
  Options::AutoSave = true;
  Load("TabWidth=5\nd1=/two\nfoo=1\n*.c: 3\n[Associations]\n*.b: 2\n", true);
  EXPECT_EQ(Options::TabWidth, 4);
  EXPECT_TRUE(Options::AutoSave);
  EXPECT_STREQ(StoredDirectories[1].Text(), L"/one");
  EXPECT_EQ(Pairs(Associations), (std::vector<std::string>{"*.c=3", "*.b=2"}));
  EXPECT_TRUE(prompts.empty());
}

TEST_F(SettingsReader, ReloadOfARemovedFileEmptiesTheStores) {
  Load("[Associations]\n*.a: 1\n");
  ASSERT_EQ(remove(home.Path(".orvane/orvane.ini").c_str()), 0);
  LoadSettings(true);
  EXPECT_EQ(Associations.Count(), 0);
}

// ---- ranges ----------------------------------------------------------------

TEST_F(SettingsReader, MouseSpeedOutsideItsRangeBecomesEight) {
  const std::pair<const char*, int> rows[] = {{"0", 8}, {"1", 1}, {"1000", 1000}, {"1001", 8}, {"-3", 8}};
  for (const auto& [text, expected] : rows) {
    Load(std::string("MouSpeed=") + text + "\n");
    EXPECT_EQ(Options::MouSpeed, expected) << text;
  }
}

TEST_F(SettingsReader, TabWidthOutsideOneToEightBecomesEight) {
  const std::pair<const char*, int> rows[] = {{"0", 8}, {"1", 1}, {"8", 8}, {"9", 8}, {"-1", 8}};
  for (const auto& [text, expected] : rows) {
    Load(std::string("TabWidth=") + text + "\n");
    EXPECT_EQ(Options::TabWidth, expected) << text;
  }
}

TEST_F(SettingsReader, LinesAndColumnsGoToTheScreen) {
  Load("Lines=40\nColumns=100\n");
  EXPECT_EQ(ScreenRows, 40);
  EXPECT_EQ(ScreenColumns, 100);
  EXPECT_EQ(sizes, (std::vector<std::pair<int, int>>{{40, 100}}));
}

TEST_F(SettingsReader, ZeroAndNegativeSizesKeepTheScreen) {
  Load("Lines=0\nColumns=-100\n");
  EXPECT_EQ(ScreenRows, 25);
  EXPECT_EQ(ScreenColumns, 80);
  EXPECT_TRUE(sizes.empty());
}

TEST_F(SettingsReader, MoreThan250RowsBecome25) {
  Load("Lines=250\n");
  EXPECT_EQ(ScreenRows, 250);
  Load("Lines=251\n");
  EXPECT_EQ(ScreenRows, 25);
}

TEST_F(SettingsReader, AnotherFontAppliesTheSizeToo) {
  Load("FontSize=14\n");
  EXPECT_EQ(sizes.size(), 1u);
  Load("FontFamily=Mono\n");
  EXPECT_EQ(sizes.size(), 2u);
  Load("FontFamily=DejaVu Sans Mono\nFontSize=12\nLines=25\nColumns=80\n");
  EXPECT_EQ(sizes.size(), 2u);
}

TEST_F(SettingsReader, ReloadAppliesNoSize) {
  Load("Lines=40\n");
  Options::TabWidth = 99;
  sizes.clear();
  ScreenRows = 30;
  Load("Lines=50\n", true);
  EXPECT_EQ(ScreenRows, 30);
  EXPECT_EQ(Options::TabWidth, 99);
  EXPECT_TRUE(sizes.empty());
}

// ---- which file ------------------------------------------------------------

TEST_F(SettingsReader, FileOfTheCommandLineIsTakenIfItIsThere) {
  home.Write("own.cfg", "TabWidth=3\n");
  home.Write("own.ini", "TabWidth=5\n");
  IniFileArgument = Westring(home.Path("own.cfg").c_str());
  LoadSettings(false);
  EXPECT_EQ(Options::TabWidth, 3);
  ASSERT_EQ(remove(home.Path("own.cfg").c_str()), 0);
  LoadSettings(false);
  EXPECT_EQ(Options::TabWidth, 5);
}

TEST_F(SettingsReader, DirectoryInPlaceOfTheFileIsTold) {
  home.MakeDirectory(".orvane/orvane.ini");
  LoadSettings(false);
  EXPECT_EQ(prompts, std::vector<std::string>{"Is a directory|" + home.Path(".orvane/orvane.ini")});
  EXPECT_EQ(Options::TabWidth, 8);
}

TEST_F(SettingsReader, UnreadableFileIsToldAndAReloadKeepsTheStores) {
  Load("[Associations]\n*.a: 1\n[Environment]\nORVANE_A=1\n");
  ASSERT_EQ(rename(home.Path(".orvane").c_str(), home.Path("moved").c_str()), 0);
  home.Write(".orvane", "a file in place of the directory");
  LoadSettings(true);
  EXPECT_EQ(prompts, std::vector<std::string>{"Not a directory|" + home.Path(".orvane/orvane.ini")});
  EXPECT_EQ(Associations.Count(), 1);
  EXPECT_EQ(EnvironmentAdditions.Count(), 1);
}

TEST_F(SettingsReader, PipeAndDeviceAreRefusedAtOnce) {
  ASSERT_EQ(mkfifo(home.Path("pipe").c_str(), 0600), 0);
  for (const std::string& path : {home.Path("pipe"), std::string("/dev/zero")}) {
    prompts.clear();
    IniFileArgument = Westring(path.c_str());
    LoadSettings(false);
    EXPECT_EQ(prompts, std::vector<std::string>{"Invalid argument|" + path});
  }
}

TEST_F(SettingsReader, FileOfAbsurdSizeIsRefused) {
  Load("TabWidth=3\n");
  ASSERT_EQ(truncate(home.Path(".orvane/orvane.ini").c_str(), int64_t{1} << 40), 0);
  LoadSettings(false);
  ASSERT_EQ(prompts.size(), 1u);
  EXPECT_EQ(Options::TabWidth, 8);
}

// ---- odd content -----------------------------------------------------------

TEST_F(SettingsReader, OnlyTheFrontOfALongLineCounts) {
  const std::string front = "Left=/" + std::string(kLongestSettingsLine - 6, 'a');
  Load(front + std::string(1 << 20, 'b') + "\rClock=on\n");
  EXPECT_EQ("Left=" + Text(Options::Left), front);
  EXPECT_TRUE(Options::Clock);
  EXPECT_TRUE(prompts.empty());
}

TEST_F(SettingsReader, LongestLineIsTakenWhole) {
  const std::string value(kLongestSettingsLine - 5, 'a');
  for (const char* end : {"\n", "\r\n", ""}) {
    Load("Left=" + value + end);
    EXPECT_EQ(Text(Options::Left), value);
  }
}

TEST_F(SettingsReader, ZeroBytesEndLines) {
  using std::string_literals::operator""s;
  Load("Clock=on\0AutoSave=on\n\0\0TabWidth=3"s);
  EXPECT_TRUE(Options::Clock);
  EXPECT_TRUE(Options::AutoSave);
  EXPECT_EQ(Options::TabWidth, 3);
}

TEST_F(SettingsReader, RandomBytesDoNoHarm) {
  answer = kEscape;
  std::mt19937 random(5);
  const char* pieces[] = {"[Colours]\n",
                          "[Environment]\n",
                          "[Archiver:TAR]\n",
                          "[General Options]\n",
                          "=",
                          ":",
                          "d3",
                          "Colours=",
                          "\r\n",
                          "$HOME",
                          "(",
                          "*"};
  for (int round = 0; round < 300; ++round) {
    std::string content;
    while (content.size() < 600)
      if (random() % 2)
        content += pieces[random() % 12];
      else
        content += static_cast<char>(random());
    Load(content);
    Load(content, true);
  }
  SUCCEED();
}

TEST_F(SettingsReader, SectionOutsideTheTableCountsAsGeneral) {
  for (int section : {-1, 17, INT_MAX}) {
    Options::Clock = false;
    ReadSettingsLine("Clock=on", section, false);
    EXPECT_TRUE(Options::Clock);
    ReadSettingsLine("[Colours]", section, false);
    EXPECT_EQ(section, 13);
  }
}
