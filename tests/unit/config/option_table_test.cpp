// The table of options: its rows, and how each type reads and writes.
#include <gtest/gtest.h>

#include <climits>
#include <set>
#include <string>
#include <vector>

#include "config/option_text.h"
#include "config/settings_file.h"
#include "config/values/archivers.h"
#include "config/values/colours.h"
#include "config/values/options.h"

namespace {

const OptionRow& Row(const std::string& key) {
  for (int i = 0; i < kOptionCount; ++i)
    if (key == kOptionTable[i].key) return kOptionTable[i];
  ADD_FAILURE() << key;
  return kOptionTable[0];
}

void Set(const char* key, const char* text) { SetOption(Row(key), text); }
std::string TextOf(const char* key) { return OptionText(Row(key)).Text(); }

class OptionTable : public testing::Test {
 protected:
  OptionTable() { SetDefaultOptions(); }
};

}  // namespace

TEST_F(OptionTable, HasSeventyNineRowsOfWhichTwoHaveNoStore) {
  EXPECT_EQ(kOptionCount, 79);
  std::set<std::string> keys;
  std::set<const void*> stores;
  for (int i = 0; i < kOptionCount; ++i) {
    keys.insert(kOptionTable[i].key);
    if (kOptionTable[i].store) stores.insert(kOptionTable[i].store);
  }
  EXPECT_EQ(keys.size(), 79u);
  EXPECT_EQ(stores.size(), 77u);
  EXPECT_EQ(Row("Manual").store, nullptr);
  EXPECT_EQ(Row("Use132").store, nullptr);
  EXPECT_STREQ(kOptionTable[0].key, "AutoIndent");
  EXPECT_STREQ(kOptionTable[78].key, "Colours");
}

// What users have in their files, letter by letter.
TEST_F(OptionTable, KeysAndDefaultsAreThoseOfEveryFileInTheirOrder) {
  const std::vector<std::string> expected = {
      "AutoIndent=off", "AutoSave=off", "Background=gnome-terminal -x ! &", "BriefWordRight=on",
      "CaseFilter=", "CaseMod=ll", "CaseModRecurse=off", "CaseModDirs=on", "CaseModFiles=on",
      "Clock=off", "CmdChar=!", "CMPContents=off", "CMPMask=*", "CMPSize=0", "CMPTime=1",
      "CMPUnmatched=on", "CodePage=0", "Confirmations=0", "ConsoleScrollback=on", "CtrlRDriveChng=off",
      "DisableInvert=off", "Editor=", "Editor2=editor", "EscPanelSwitch=off", "ExpandedTrees=on",
      "FFRootSearch=on", "FFRecurse=on", "FFCase=off", "FFWholeWord=off", "FFMultiDrive=off",
      "FFDriveList=", "FontFamily=DejaVu Sans Mono", "FontSize=12", "FullScreen=on", "Hidden=off",
      "IndentWidth=1", "KeepExtVisible=on", "Left=", "Right=", "LeftFilter=*", "RightFilter=*",
      "LeftSort=name", "RightSort=name", "LeftStyle=full", "RightStyle=full", "LeftShowing=on",
      "RightShowing=on", "LeftType=files", "RightType=files", "Lines=0", "Columns=0", "MaxHist=500",
      "MouSpeed=8", "NumLock=off", "OverStrike=off", "PathAppend=", "PathPrompt=on", "PMClip=on",
      "RetainCount=off", "Saver=0", "ScrollDelay=10", "Shadows=on", "SizeCountPause=off",
      "StartupSide=L", "StickyAlt=on", "TabWidth=8", "TagDirs=off", "TextCodePage=0", "TimeMode=12",
      "ThousandSep=off", "TranslateCP=", "TreeDir=", "Viewer=", "Viewer2=pager", "ViewerWrap=on",
      "WaitDOS=off", "Colours=27 48 30 62 26 32 7 112 79 48 3 63 48 15 14 7 27 48 ",
  };
  std::vector<std::string> lines;
  for (int i = 0; i < kOptionCount; ++i)
    if (const OptionRow& row = kOptionTable[i]; row.store)
      lines.push_back(std::string(row.key) + "=" + OptionText(row).Text());
  EXPECT_EQ(lines, expected);
}

TEST_F(OptionTable, DefaultsOfEachType) {
  EXPECT_FALSE(Options::AutoSave);
  EXPECT_TRUE(Options::FullScreen);
  EXPECT_STREQ(Options::Background.Text(), L"gnome-terminal -x ! &");
  EXPECT_STREQ(Options::CaseMod.Text(), "ll");
  EXPECT_STREQ(Options::FontFamily.Text(), "DejaVu Sans Mono");
  EXPECT_EQ(Options::FontSize, 12);
  EXPECT_EQ(Options::CmdChar, '!');
  EXPECT_EQ(Options::StartupSide, 'L');
  EXPECT_EQ(Options::TimeMode, 12);
  EXPECT_EQ(Options::LeftSort, 0);
  EXPECT_EQ(Options::RightStyle, 1);
  EXPECT_EQ(Options::LeftType, 0);
  EXPECT_EQ(Options::MaxHist, 500);
  EXPECT_TRUE(Options::Editor.IsEmpty());
  EXPECT_STREQ(Options::Viewer2.Text(), L"pager");
}

TEST_F(OptionTable, DefaultColoursAreThoseOfTheColourTable) {
  for (int i = 0; i < kColourCount; ++i) EXPECT_EQ(Options::Colours[i], kDefaultColours[i]) << i;
  EXPECT_EQ(Options::Colours[kColourPanel], 0x1B);
  EXPECT_EQ(Options::Colours[kColourMenuQuickKey], 0x0E);
  EXPECT_EQ(Options::Colours[kColourClock], 0x30);
}

TEST_F(OptionTable, EveryDefaultReadsBackFromItsText) {
  for (int i = 0; i < kOptionCount; ++i) {
    const OptionRow& row = kOptionTable[i];
    if (!row.store) continue;
    const std::string text = OptionText(row).Text();
    EXPECT_EQ(text, std::string(row.defaultText) + (row.type == OptionType::ColourList ? " " : ""))
        << row.key;
    SetOption(row, text.c_str());
    EXPECT_EQ(OptionText(row).Text(), text) << row.key;
  }
}

TEST_F(OptionTable, OnlyTheWordOnIsOn) {
  for (const char* text : {"on", "On", "ON"}) {
    Set("AutoSave", text);
    EXPECT_TRUE(Options::AutoSave) << text;
  }
  for (const char* text : {"off", "yes", "1", "true", "", "on "}) {
    Set("AutoSave", text);
    EXPECT_FALSE(Options::AutoSave) << text;
  }
}

TEST_F(OptionTable, IntegersAreDecimalAndBounded) {
  Set("MaxHist", "042x");
  EXPECT_EQ(Options::MaxHist, 42);
  Set("MaxHist", "0x10");
  EXPECT_EQ(Options::MaxHist, 0);
  Set("MaxHist", "-7");
  EXPECT_EQ(TextOf("MaxHist"), "-7");
  Set("MaxHist", "99999999999999999999");
  EXPECT_EQ(Options::MaxHist, INT_MAX);
  Set("MaxHist", "-4294967295");
  EXPECT_EQ(Options::MaxHist, INT_MIN);
}

TEST_F(OptionTable, CharacterIsTheFirstByteAndNeverZero) {
  Set("CmdChar", "%x");
  EXPECT_EQ(Options::CmdChar, '%');
  EXPECT_EQ(TextOf("CmdChar"), "%");
  Set("CmdChar", "");
  EXPECT_EQ(Options::CmdChar, '%');
}

TEST_F(OptionTable, TimeModeIs24OnlyForExactlyThat) {
  Set("TimeMode", "24");
  EXPECT_EQ(TextOf("TimeMode"), "24");
  for (const char* text : {"240", "12", "", "2", "24h"}) {
    Set("TimeMode", text);
    EXPECT_EQ(Options::TimeMode, 12) << text;
  }
}

TEST_F(OptionTable, SortNamesInTheirOrder) {
  const char* names[] = {"name",  "extension",  "time",  "size", "unsorted",
                         "rname", "rextension", "rtime", "rsize"};
  for (int i = 0; i < 9; ++i) {
    Set("LeftSort", names[i]);
    EXPECT_EQ(Options::LeftSort, i);
    EXPECT_EQ(TextOf("LeftSort"), names[i]);
  }
  Set("LeftSort", "RTime");
  EXPECT_EQ(Options::LeftSort, 7);
  Set("LeftSort", "colour");
  EXPECT_EQ(Options::LeftSort, 0);
}

TEST_F(OptionTable, UnsortedReversedComesBackAsUnsorted) {
  Options::LeftSort = 9;
  const std::string stored = TextOf("LeftSort");
  EXPECT_EQ(stored, "unsorted");
  Set("LeftSort", stored.c_str());
  EXPECT_EQ(Options::LeftSort, 4);
}

TEST_F(OptionTable, TreeStyleIsWrittenButReadAsFull) {
  const char* names[] = {"brief", "full", "wide", "briefwide", "unix"};
  for (int i = 0; i < 5; ++i) {
    Set("RightStyle", names[i]);
    EXPECT_EQ(Options::RightStyle, i);
    EXPECT_EQ(TextOf("RightStyle"), names[i]);
  }
  Options::RightStyle = 5;
  EXPECT_EQ(TextOf("RightStyle"), "tree");
  Set("RightStyle", "tree");
  EXPECT_EQ(Options::RightStyle, 1);
}

TEST_F(OptionTable, PanelTypes) {
  Set("LeftType", "INFO");
  EXPECT_EQ(Options::LeftType, 1);
  EXPECT_EQ(TextOf("LeftType"), "info");
  Set("LeftType", "other");
  EXPECT_EQ(Options::LeftType, 0);
}

TEST_F(OptionTable, NumbersWithoutANameAreWrittenAsTheFallback) {
  Options::LeftSort = 99;
  Options::LeftStyle = -1;
  Options::LeftType = 7;
  EXPECT_EQ(TextOf("LeftSort"), "name");
  EXPECT_EQ(TextOf("LeftStyle"), "full");
  EXPECT_EQ(TextOf("LeftType"), "files");
}

TEST_F(OptionTable, ColoursAreDecimalEachWithABlank) {
  EXPECT_EQ(TextOf("Colours"), "27 48 30 62 26 32 7 112 79 48 3 63 48 15 14 7 27 48 ");
}

TEST_F(OptionTable, ShortColourListLeavesTheTail) {
  Set("Colours", "1 2 3");
  EXPECT_EQ(TextOf("Colours"), "1 2 3 62 26 32 7 112 79 48 3 63 48 15 14 7 27 48 ");
  Set("Colours", "9 x 8");
  EXPECT_EQ(Options::Colours[0], 9);
  EXPECT_EQ(Options::Colours[1], 2);
  Set("Colours", "");
  EXPECT_EQ(Options::Colours[0], 9);
}

TEST_F(OptionTable, LongColourListStaysInside) {
  std::string text;
  for (int i = 0; i < 1000; ++i) text += "5 ";
  Set("Colours", text.c_str());
  EXPECT_EQ(Options::Colours[kColourCount - 1], 5);
}

TEST(ArchiverDefaults, TenRecordsInTheirOrder) {
  SetArchiverDefaults();
  const char* names[] = {"ZIP", "RAR", "LHARC", "ARJ", "ACE", "HA", "GZIP", "TAR", "7ZIP", "BZIP2"};
  for (int i = 0; i < kArchiverCount; ++i) {
    EXPECT_STREQ(Archivers[i].name, names[i]);
    EXPECT_EQ(Archivers[i].unixPaths, std::string(names[i]) == "TAR");
  }
}

TEST(ArchiverDefaults, CommandsAndSwitches) {
  SetArchiverDefaults();
  EXPECT_STREQ(Archivers[0].extract.Text(), "unzip --z");
  EXPECT_STREQ(Archivers[0].compressListfileSwitch.Text(), "-@ < ");
  EXPECT_STREQ(Archivers[0].extractListfileSwitch.Text(), "");
  EXPECT_STREQ(Archivers[0].compressDirSpec.Text(), "! !\\*");
  EXPECT_STREQ(Archivers[0].extractDirSpec.Text(), "!\\*");
  EXPECT_STREQ(Archivers[2].deleteCommand.Text(), "lha d /s");
  EXPECT_STREQ(Archivers[3].compressDirSpec.Text(), "!\\*.*");
  EXPECT_STREQ(Archivers[6].compress.Text(), "gzip -c %f > %a");
  EXPECT_STREQ(Archivers[6].deleteCommand.Text(), "");
  EXPECT_STREQ(Archivers[7].extractListfileSwitch.Text(), "--files-from=");
  EXPECT_STREQ(Archivers[7].deleteCommand.Text(), "tar --delete -f");
  EXPECT_STREQ(Archivers[9].extract.Text(), "bzip2 -dc %a > %f");
}
