// The rows of the list: name field, colours and the order of the columns.
#include "panels/entry_row.h"

#include <unistd.h>

#include <random>

#include "panels/name_field.h"
#include "support/hand_made_panels.h"
#include "unit/scratch_directory.h"

namespace {

using std::wstring;

const wstring kMark(1, wchar_t{kCutMark});
const wstring kArrow = L" \xBB ";
const wstring kShade = L"\x2591";

class EntryRow : public PanelRecords {
 protected:
  // The name field alone, as brief shows it in its first column of 12.
  wstring Brief(const wchar_t* name, unsigned attributes = 0) {
    SetStyle(kStyleBrief);
    Add(name, 0, attributes);
    panel.topIndex = panel.count - 1;
    return TextOf(Row(panel.count - 1));
  }

  // A field of that width with a sideways scroll.
  wstring Scrolled(const entry& e, int width, int32_t& scroll) {
    return TextOf(BuildNameField(panel, e, width, 0x1B, &scroll));
  }

  static void AddRule(AssociationSet& rules, const wchar_t* test, const wchar_t* colour) {
    rules.Add(test, colour);
  }
};

// A panel whose path is a directory of its own, for links.
class LinkRow : public EntryRow {
 protected:
  LinkRow() { CopyText(panel.path, Westring(directory.Path().c_str()).Text()); }

  entry& AddLink(const char* name, const char* target, unsigned attributes = 0) {
    EXPECT_EQ(symlink(target, (directory.Path() + "/" + name).c_str()), 0);
    return Add(Westring(name).Text(), 10, attributes | kAttrLink);
  }

  ScratchDirectory directory;
};

}  // namespace

// ---- the styles ------------------------------------------------------------

TEST_F(EntryRow, FullHasNameSizeDateAndTime) {
  Add(L"readme.txt", 1234);
  EXPECT_EQ(TextOf(Row(0)),
            L"readme.txt   \x2502    1234\x2502"
            L"03/05/24\x2502 14:07");
}

TEST_F(EntryRow, WideHasTheSizeInFront) {
  SetStyle(kStyleWide);
  Add(L"readme.txt", 1234);
  EXPECT_EQ(TextOf(Row(0)), L"    1234\x2502readme.txt                   ");
}

TEST_F(EntryRow, UnixHasPermissionsOwnerAndGroup) {
  SetStyle(kStyleUnix);
  entry& e = Add(L"readme.txt", 1234);
  e.mode = 0100644;
  const wstring owner = OwnerText(e, 3).Text(), group = GroupText(e, 3).Text();
  EXPECT_EQ(TextOf(Row(0)), L"readme.txt  \x2502   1234\x2502rw-r--r--\x2502" + owner + L"\x2502" + group);
}

TEST_F(EntryRow, NameMakesRoomForASizeOfElevenDigits) {
  SetSize(48, 5);
  Add(L"abcdefghijklmnopqrstu", 10000000000);
  EXPECT_EQ(TextOf(Row(0)), L"abcdefghijklmnopqrs" + kMark +
                                L"\x2502"
                                L"10000000000\x2502"
                                L"03/05/24\x2502 14:07");
  SetStyle(kStyleWide);
  EXPECT_EQ(TextOf(Row(0)),
            L"10000000000\x2502"
            L"abcdefghijklmnopqrstu" +
                wstring(15, L' '));
}

TEST_F(EntryRow, BriefIsTheNameFieldOfItsColumn) {
  SetSize(48, 5);
  SetStyle(kStyleBrief);
  AddMany(15);
  EXPECT_EQ(TextOf(Row(0)), L"f000            ");
  EXPECT_EQ(TextOf(Row(4)), L"f004            ");
  EXPECT_EQ(TextOf(Row(5)), L"f005           ");
  panel.topIndex = 1;
  EXPECT_EQ(Row(5).Length(), 16);
}

TEST_F(EntryRow, BriefwideHasTwoSuchColumns) {
  SetStyle(kStyleBriefWide);
  AddMany(10);
  EXPECT_EQ(Row(4).Length(), 19);
  EXPECT_EQ(Row(5).Length(), 18);
}

TEST_F(EntryRow, NoDateLeavesBothColumnsBlank) {
  Add(L"a").modified = FileTime::None();
  EXPECT_EQ(TextOf(Row(0)), L"a            \x2502       0\x2502        \x2502      ");
}

TEST_F(EntryRow, DirectoryShowsItsMarkAndCountedOnesTheirSize) {
  Add(L"..", 0, kAttrDirectory);
  Add(L"counted", 4096, kAttrDirectory).sizeKnown = 1;
  EXPECT_EQ(TextOf(Row(0)).substr(13, 10), L"\x2502\x10UP-DIR\x11\x2502");
  EXPECT_EQ(TextOf(Row(1)).substr(13, 10), L"\x2502    4096\x2502");
}

// ---- the name field --------------------------------------------------------

TEST_F(EntryRow, LongNameWithoutADotEndsInTheMark) {
  EXPECT_EQ(Brief(L"abcdefghijkl"), L"abcdefghijkl");
  EXPECT_EQ(Brief(L"abcdefghijklm"), L"abcdefghijk" + kMark);
  Options::KeepExtVisible = true;
  EXPECT_EQ(Brief(L"abcdefghijklm"), L"abcdefghijk" + kMark);
}

TEST_F(EntryRow, ExtensionStaysVisibleWithTheOption) {
  Options::KeepExtVisible = true;
  EXPECT_EQ(Brief(L"longfilename.txt"), L"longfil" + kMark + L".txt");
  EXPECT_EQ(Brief(L"archive-2024.tar.gz"), L"archive-" + kMark + L".gz");
  EXPECT_EQ(Brief(L"longfilename.12345"), L"longf" + kMark + L".12345");
}

TEST_F(EntryRow, ExtensionOverHalfTheFieldIsCut) {
  Options::KeepExtVisible = true;
  EXPECT_EQ(Brief(L"readme.markdown"), L"readme.mark" + kMark);
  EXPECT_EQ(Brief(L"longname.123456"), L"longname.12" + kMark);
  EXPECT_EQ(Brief(L".averyverylongname", kAttrHidden), L".averyvery" + kMark + kShade);
}

TEST_F(EntryRow, ExtensionIsCutWithoutTheOption) {
  EXPECT_EQ(Brief(L"longfilename.txt"), L"longfilenam" + kMark);
}

TEST_F(EntryRow, HiddenEntryHasAShadeInItsLastColumn) {
  EXPECT_EQ(Brief(L".profile", kAttrHidden), L".profile   " + kShade);
  EXPECT_EQ(Brief(L".git", kAttrHidden | kAttrDirectory), L".git       " + kShade);
  EXPECT_EQ(Brief(L".abcdefghij", kAttrHidden), L".abcdefghij" + kShade);
  EXPECT_EQ(Brief(L".abcdefghijk", kAttrHidden), L".abcdefghi" + kMark + kShade);
}

TEST_F(EntryRow, ScrollCutsTheHeadAndStopsAtTheEndOfTheName) {
  entry& e = Add(L"abcdefghijklmnop");
  int32_t scroll = 2;
  EXPECT_EQ(Scrolled(e, 12, scroll), L"cdefghijklm" + kMark);
  EXPECT_EQ(scroll, 2);
  scroll = 4;
  EXPECT_EQ(Scrolled(e, 12, scroll), L"efghijklmnop");
  EXPECT_EQ(scroll, 4);
  scroll = 5;
  EXPECT_EQ(Scrolled(e, 12, scroll), L"efghijklmnop");
  EXPECT_EQ(scroll, 4);
  scroll = INT32_MAX;
  EXPECT_EQ(Scrolled(e, 20, scroll), L"abcdefghijklmnop    ");
  EXPECT_EQ(scroll, 0);
}

TEST_F(EntryRow, NegativeScrollIsNone) {
  entry& e = Add(L"abc");
  int32_t scroll = -3;
  EXPECT_EQ(Scrolled(e, 3, scroll), L"abc");
}

TEST_F(EntryRow, ScrollCountsTheFlagsColumn) {
  entry& e = Add(L".bcdefghij", 0, kAttrHidden);
  int32_t scroll = 9;
  EXPECT_EQ(Scrolled(e, 5, scroll), L"ghij" + kShade);
  EXPECT_EQ(scroll, 6);
}

TEST_F(EntryRow, FieldOfNoWidthHasNoFlag) {
  entry& e = Add(L".x", 0, kAttrHidden);
  EXPECT_EQ(BuildNameField(panel, e, 0, 0x1B, nullptr).Length(), 0);
  EXPECT_EQ(BuildNameField(panel, e, -5, 0x1B, nullptr).Length(), 0);
  EXPECT_EQ(TextOf(BuildNameField(panel, e, 1, 0x1B, nullptr)), kShade);
}

TEST_F(EntryRow, EachElementOfAStrangeNameIsOneCell) {
  const wchar_t name[] = {L'a', L'\n', 27, 0x7F, 0x9B, -1, 0x301, 0x5D0, 0x4E2D, 0x1F600, 0};
  EXPECT_EQ(Brief(name), wstring(name) + L"  ");
}

// ---- links -----------------------------------------------------------------

TEST_F(LinkRow, NameIsFollowedByTheTarget) {
  SetStyle(kStyleWide);
  AddLink("a", "b/c");
  EXPECT_EQ(TextOf(Row(0)),
            L"      10\x2502"
            L"a" +
                kArrow + L"b/c" + wstring(21, L' ') + L"@");
  EXPECT_EQ(ColoursOf(Row(0)), "1B*11 1E*1 1B*26");
}

TEST_F(LinkRow, LinkToADirectoryHasNoFlag) {
  entry& e = AddLink("d", "dir", kAttrDirectory);
  EXPECT_EQ(TextOf(BuildNameField(panel, e, 9, 0x1A, nullptr)), L"d" + kArrow + L"dir  ");
  EXPECT_EQ(TextOf(Row(0)).substr(14, 8), L"\x10 LINK \x11");
}

TEST_F(LinkRow, HiddenLinkShowsThatItIsALink) {
  entry& e = AddLink(".l", "x", kAttrHidden);
  EXPECT_EQ(TextOf(BuildNameField(panel, e, 9, 0x1B, nullptr)), L".l" + kArrow + L"x  @");
}

TEST_F(LinkRow, HiddenLinkToADirectoryHasTheShade) {
  entry& e = AddLink(".l", "x", kAttrHidden | kAttrDirectory);
  EXPECT_EQ(TextOf(BuildNameField(panel, e, 9, 0x1A, nullptr)), L".l" + kArrow + L"x  " + kShade);
}

TEST_F(LinkRow, ArrowOfADanglingLinkIsLightRed) {
  AddLink("a", "gone", kAttrDangling);
  EXPECT_EQ(ColoursOf(Row(0)), "1B*2 1C*1 1B*35");
}

TEST_F(LinkRow, ArrowStandsOnTheColourOfTheRow) {
  entry& e = AddLink("a", "b");
  EXPECT_EQ(ColoursOf(BuildEntryRow(panel, 0, kStyleFull, 0x30, nullptr)),
            "30*2 3E*1 30*10 3B*1 30*8 3B*1 30*8 3B*1 30*6");
  e.tagged = 1;
  EXPECT_EQ(ColoursOf(Row(0)), "1E*13 1B*1 1E*8 1B*1 1E*8 1B*1 1E*6");
}

TEST_F(LinkRow, LongTargetIsCutOrKeepsItsExtension) {
  entry& e = AddLink("link", "a/long/way/file.txt");
  EXPECT_EQ(TextOf(BuildNameField(panel, e, 13, 0x1B, nullptr)), L"link" + kArrow + L"a/lo" + kMark + L"@");
  Options::KeepExtVisible = true;
  EXPECT_EQ(TextOf(BuildNameField(panel, e, 13, 0x1B, nullptr)), L"link" + kArrow + kMark + L".txt@");
}

TEST_F(LinkRow, UnreadableLinkHasAnEmptyTarget) {
  entry& e = Add(L"nothing", 0, kAttrLink);
  EXPECT_EQ(TextOf(BuildNameField(panel, e, 12, 0x1B, nullptr)), L"nothing" + kArrow + L" @");
}

TEST_F(LinkRow, TargetIsReadOnceAndKept) {
  entry& e = AddLink("l", "one");
  BuildNameField(panel, e, 12, 0x1B, nullptr);
  const std::string path = directory.Path() + "/l";
  ASSERT_EQ(unlink(path.c_str()), 0);
  EXPECT_EQ(TextOf(BuildNameField(panel, e, 12, 0x1B, nullptr)), L"l" + kArrow + L"one    @");
}

// ---- colours ---------------------------------------------------------------

TEST_F(EntryRow, ColourTellsFilesDirectoriesAndTags) {
  EXPECT_EQ(EntryColour(Add(L"f")), 0x1B);
  entry& d = Add(L"d", 0, kAttrDirectory);
  EXPECT_EQ(EntryColour(d), 0x1A);
  d.tagged = 1;
  EXPECT_EQ(EntryColour(d), 0x1E);
}

TEST_F(EntryRow, SeparatorsKeepThePanelsForeground) {
  Add(L"d", 0, kAttrDirectory);
  EXPECT_EQ(ColoursOf(Row(0)), "1A*13 1B*1 1A*8 1B*1 1A*8 1B*1 1A*6");
  EXPECT_EQ(ColoursOf(BuildEntryRow(panel, 0, kStyleFull, 0x20, nullptr)),
            "20*13 2B*1 20*8 2B*1 20*8 2B*1 20*6");
}

TEST_F(EntryRow, FirstRuleThatHoldsColoursAFile) {
  AddRule(FileColours, L"*.c", L"bright red");
  AddRule(FileColours, L"*.c | *.h", L"green on black");
  EXPECT_EQ(EntryColour(Add(L"a.c")), 0x1C);
  EXPECT_EQ(EntryColour(Add(L"a.h")), 0x02);
  EXPECT_EQ(EntryColour(Add(L"a.o")), 0x1B);
}

TEST_F(EntryRow, DirectoriesHaveRulesOfTheirOwn) {
  AddRule(FileColours, L"*", L"red");
  AddRule(DirectoryColours, L"src", L"yellow");
  EXPECT_EQ(EntryColour(Add(L"src", 0, kAttrDirectory)), 0x16);
  EXPECT_EQ(EntryColour(Add(L"doc", 0, kAttrDirectory)), 0x1A);
}

TEST_F(EntryRow, TaggedEntriesIgnoreTheRules) {
  AddRule(FileColours, L"*", L"red");
  entry& e = Add(L"a");
  EXPECT_EQ(EntryColour(e), 0x14);
  e.tagged = 1;
  EXPECT_EQ(EntryColour(e), 0x1E);
}

TEST_F(EntryRow, ForcedColourIgnoresTagAndRules) {
  AddRule(FileColours, L"*", L"red");
  Add(L"a").tagged = 1;
  EXPECT_EQ(BuildEntryRow(panel, 0, kStyleFull, 0x1B, nullptr)[0].attribute, 0x1B);
}

// ---- whole rows of the list ------------------------------------------------

TEST_F(EntryRow, ListRowJoinsTheColumnsOfBrief) {
  SetStyle(kStyleBrief);
  AddMany(12);
  panel.entries[5]->tagged = 1;
  EXPECT_EQ(TextOf(BuildListRow(panel, 0)),
            L"f000        \x2502"
            L"f005        \x2502"
            L"f010        ");
  EXPECT_EQ(ColoursOf(BuildListRow(panel, 0)), "1B*13 1E*12 1B*13");
  EXPECT_EQ(TextOf(BuildListRow(panel, 2)),
            L"f002        \x2502"
            L"f007        \x2502            ");
}

TEST_F(EntryRow, RowsBehindTheEndKeepTheSeparators) {
  Add(L"a");
  EXPECT_EQ(TextOf(BuildListRow(panel, 1)), L"             \x2502        \x2502        \x2502      ");
  EXPECT_EQ(ColoursOf(BuildListRow(panel, 1)), "1B*38");
  SetStyle(kStyleTree);
  EXPECT_EQ(TextOf(BuildListRow(panel, 1)), wstring(38, L' '));
}

TEST_F(EntryRow, WildIndexGivesBlanks) {
  Add(L"a");
  for (int index : {-1, 1, INT32_MAX, INT32_MIN + 10})
    EXPECT_EQ(BuildEntryRow(panel, index, kStyleFull, kNoForcedColour, nullptr).Length(), 38) << index;
}

// ---- any name, any width, any option ---------------------------------------

namespace {

constexpr int kMostOfName = 300;
// Of every length of UTF-8, control characters, what invalid bytes become,
// combining, right-to-left and wide characters.
constexpr wchar_t kElements[] = {L'a', L'.', L' ',  1,     10,     16,      27, 0x7F,
                                 0x9F, 0xBB, 0x301, 0x5D0, 0x4E2D, 0x1F600, -1};

// Turns of a fixed sequence.
class Dice {
 public:
  int Pick(int most) { return static_cast<int>(random() % static_cast<unsigned>(most)); }
  bool Toss() { return Pick(2); }

 private:
  std::mt19937 random{4711};
};

void Scramble(entry& e, Dice& dice) {
  const int length = dice.Pick(kMostOfName) + 1;
  for (int i = 0; i < length; ++i) e.name[i] = kElements[dice.Pick(std::size(kElements))];
  e.name[length] = 0;
  e.attributes = static_cast<uint16_t>(dice.Pick(128));
  e.size = dice.Toss() ? -1 : int64_t{1} << dice.Pick(63);
  e.sizeKnown = static_cast<uint8_t>(dice.Pick(256));
  e.tagged = dice.Toss();
  e.modified = {0, static_cast<uint32_t>(dice.Pick(INT32_MAX)) * 2u + 1u};
  e.uid = static_cast<uint16_t>(dice.Pick(3));
  e.mode = static_cast<uint16_t>(dice.Pick(65536));
}

void ScrambleOptions(Dice& dice) {
  Options::KeepExtVisible = dice.Toss();
  Options::ThousandSep = dice.Toss();
  Options::TimeMode = dice.Toss() ? 12 : 24;
}

}  // namespace

TEST_F(EntryRow, RowsAreAsWideAsThePanelWhateverTheyShow) {
  Dice dice;
  entry& e = Add(std::wstring(kMostOfName, L'x').c_str());
  AddMany(10);
  for (int round = 0; round < 5000; ++round) {
    Scramble(e, dice);
    ScrambleOptions(dice);
    const int inner = dice.Pick(200) + 1, style = dice.Pick(6);
    SetSize(inner, dice.Pick(4));
    SetStyle(style);
    panel.topIndex = dice.Pick(3) - 1;
    int32_t scroll = dice.Pick(400);
    const CellString row = BuildEntryRow(panel, 0, style, kNoForcedColour, &scroll);
    const int column = SlotColumn(style, PanelRows, -panel.topIndex);
    ASSERT_EQ(row.Length(), NameColumns(style) > 1 ? NameWidth(style, column) : inner) << "style " << style;
    ASSERT_EQ(BuildListRow(panel, dice.Pick(8)).Length(), inner) << "style " << style;
    ASSERT_EQ(TextOf(row).find(L'\0'), wstring::npos);
  }
}
