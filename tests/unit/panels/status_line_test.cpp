// The line under the list: which of its cases holds, and what it says.
#include "panels/status_line.h"

#include <unistd.h>

#include "panels/name_field.h"
#include "support/hand_made_panels.h"
#include "unit/scratch_directory.h"

namespace {

using std::wstring;

class StatusLine : public PanelRecords {
 protected:
  wstring Text(int width = 38) { return TextOf(BuildStatusLine(panel, width)); }
  std::string Colours() { return ColoursOf(BuildStatusLine(panel, 38)); }
  static wstring Padded(wstring text, size_t width = 38) { return text + wstring(width - text.size(), L' '); }
};

}  // namespace

TEST_F(StatusLine, ReadErrorComesFirst) {
  panel.readError = 5;
  panel.taggedCount = 1;
  CopyText(panel.quickSearch, L"abc");
  EXPECT_EQ(Text(), Padded(L" Error reading drive"));
  EXPECT_EQ(Colours(), "1E*38");
  panel.readError = kDriveNotReady;
  EXPECT_EQ(Text(), Padded(L" No disk in drive"));
  EXPECT_EQ(Colours(), "1E*38");
}

TEST_F(StatusLine, QuickSearchComesBeforeTheTags) {
  panel.taggedCount = 1;
  CopyText(panel.quickSearch, L"abc");
  EXPECT_EQ(Text(), Padded(L"Search: abc"));
  EXPECT_EQ(Colours(), "1E*38");
}

TEST_F(StatusLine, LongSearchKeepsItsEndInView) {
  CopyText(panel.quickSearch, L"0123456789abcdefghijABCDEFGHIJ");
  EXPECT_EQ(Text(), L"Search: 0123456789abcdefghijABCDEFGHIJ");
  CopyText(panel.quickSearch, L"0123456789abcdefghijABCDEFGHIJk");
  EXPECT_EQ(Text(), L"Search: 123456789abcdefghijABCDEFGHIJk");
}

TEST_F(StatusLine, TagsAreCountedAndCentred) {
  Add(L"a");
  panel.taggedCount = 1;
  panel.taggedBytes = 1234;
  EXPECT_EQ(Text(), L"    1,234 bytes in 1 selected file    ");
  EXPECT_EQ(Colours(), "1E*38");
  panel.taggedCount = 2;
  panel.taggedBytes = 0;
  EXPECT_EQ(Text(), L"     0 bytes in 2 selected files      ");
}

TEST_F(StatusLine, ManyTaggedBytesTakeTheRoomThatIsLeft) {
  panel.taggedCount = 100000;
  panel.taggedBytes = 123456789012;  // in 7 columns, as 117,737M has 8
  EXPECT_EQ(Text(), L" 114G bytes in 100000 selected files  ");
}

TEST_F(StatusLine, EmptyListSaysSo) {
  EXPECT_EQ(Text(), Padded(L"Directory is empty"));
  EXPECT_EQ(Colours(), "1B*38");
  panel.cursorRow = 7;
  EXPECT_EQ(Text(), Padded(L"Directory is empty"));
}

TEST_F(StatusLine, FullShowsTheWholeName) {
  Add(L"a name of thirty-three characters");
  EXPECT_EQ(Text(), Padded(L"a name of thirty-three characters"));
  EXPECT_EQ(Colours(), "1B*38");
  EXPECT_EQ(Text(10), L"a name of" + wstring(1, wchar_t{kCutMark}));
}

TEST_F(StatusLine, FullShowsWhereALinkLeads) {
  const ScratchDirectory directory;
  CopyText(panel.path, Westring(directory.Path().c_str()).Text());
  ASSERT_EQ(symlink("to/there", directory.Path("from").c_str()), 0);
  Options::Colours[kColourTagged] = 0x4E;
  Add(L"from", 0, kAttrLink | kAttrDangling);
  EXPECT_EQ(Text(), Padded(L"from \xBB to/there"));
  EXPECT_EQ(Colours(), "1B*5 4E*1 1B*32");
}

TEST_F(StatusLine, OtherStylesShowTheEntryAsFullDoes) {
  entry& e = Add(L"readme.txt", 1234, kAttrDirectory);
  e.sizeKnown = 1;
  for (int style : {kStyleBrief, kStyleWide, kStyleBriefWide, kStyleUnix}) {
    SetStyle(style);
    EXPECT_EQ(Text(),
              L"readme.txt   \x2502    1234\x2502"
              L"03/05/24\x2502 14:07")
        << style;
    EXPECT_EQ(Colours(), "1B*38") << style;
  }
}

TEST_F(StatusLine, TreeShowsThePathOfTheRow) {
  SetStyle(kStyleTree);
  Add(L"/", 0, kAttrDirectory);
  Add(L"usr", 0, kAttrDirectory).sizeKnown = 1;
  Add(L"a directory with a long name, so that it is cut", 0, kAttrDirectory).sizeKnown = 2;
  panel.cursorRow = 1;
  EXPECT_EQ(Text(), Padded(L"/usr"));
  panel.cursorRow = 2;
  EXPECT_EQ(Text(), L"/usr/...a long name, so that it is cut");
}

TEST_F(StatusLine, WildCursorAndAnyWidthAreHarmless) {
  AddMany(3);
  for (int style = 0; style <= kStyleTree; ++style) {
    SetStyle(style);
    for (int cursor : {-5, 0, 3, 1000})
      for (int width = 0; width < 50; ++width) {
        panel.cursorRow = cursor;
        EXPECT_EQ(BuildStatusLine(panel, width).Length(), width);
      }
  }
  panel.taggedCount = INT32_MAX;
  panel.taggedBytes = UINT64_MAX;
  for (int width = 0; width < 250; ++width) EXPECT_EQ(BuildStatusLine(panel, width).Length(), width);
}
