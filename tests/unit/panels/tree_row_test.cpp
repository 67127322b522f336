// Rows of a tree: the lines in front of the names, and the paths.
#include "panels/tree_row.h"

#include "support/hand_made_panels.h"

namespace {

using std::wstring;

class TreeRow : public PanelRecords {
 protected:
  TreeRow() { SetStyle(kStyleTree); }

  // mask: bit d is set where something follows at depth d.
  entry& AddNode(const wchar_t* name, int depth, uint64_t mask) {
    entry& e = Add(name, static_cast<int64_t>(mask), kAttrDirectory);
    e.sizeKnown = static_cast<uint8_t>(depth);
    return e;
  }

  // /
  // ├─etc
  // │ └─ssl
  // └─usr
  //   ├─bin
  //   └─lib
  void AddSmallTree() {
    AddNode(L"/", 0, 0);
    AddNode(L"etc", 1, 2);
    AddNode(L"ssl", 2, 2);
    AddNode(L"usr", 1, 0);
    AddNode(L"bin", 2, 4);
    AddNode(L"lib", 2, 0);
  }
};

}  // namespace

TEST_F(TreeRow, LinesLeadToEachName) {
  AddSmallTree();
  const wchar_t* const expected[] = {
      L"/",
      L"\x251C\x2500"
      L"etc",
      L"\x2502 \x2514\x2500ssl",
      L"\x2514\x2500usr",
      L"  \x251C\x2500"
      L"bin",
      L"  \x2514\x2500lib",
  };
  for (int i = 0; i < 6; ++i) {
    const wstring text = expected[i];
    EXPECT_EQ(TextOf(Row(i)), text + wstring(38 - text.size(), L' '));
  }
}

TEST_F(TreeRow, RowIsInTheColourOfDirectories) {
  AddSmallTree();
  EXPECT_EQ(ColoursOf(Row(2)), "1A*38");
  EXPECT_EQ(ColoursOf(BuildEntryRow(panel, 2, kStyleTree, 0x20, nullptr)), "20*38");
}

TEST_F(TreeRow, LongNameIsCutAtThePanelsWidth) {
  AddNode(L"/", 0, 0);
  AddNode(wstring(60, L'x').c_str(), 2, 0);
  EXPECT_EQ(TextOf(Row(1)), L"  \x2514\x2500" + wstring(33, L'x') + L'\x10');
}

TEST_F(TreeRow, DepthsBeyondThePanelAreLinesOnly) {
  AddNode(L"deep", 62, ~uint64_t{0});
  const wstring text = TextOf(Row(0));
  EXPECT_EQ(text.size(), 38u);
  EXPECT_EQ(text.substr(0, 4), L"\x2502 \x2502 ");
}

TEST_F(TreeRow, DepthsBeyondTheMaskAreHarmless) {
  SetSize(600, 5);
  AddNode(L"deep", 255, ~uint64_t{0});
  const wstring text = TextOf(Row(0));
  EXPECT_EQ(text[2 * 62], 0x2502);
  EXPECT_EQ(text[2 * 63], L' ');
  EXPECT_EQ(text.substr(2 * 254, 6),
            L"\x2514\x2500"
            L"deep");
}

TEST_F(TreeRow, RowsOfTheDialogAreSeventyWide) {
  AddSmallTree();
  EXPECT_EQ(BuildEntryRow(panel, 2, kStyleTreeDialog, 0x3F, nullptr).Length(), kTreeDialogWidth);
}

TEST_F(TreeRow, PathIsFoundByTheRowsAbove) {
  AddSmallTree();
  const wchar_t* const paths[] = {L"/", L"/etc", L"/etc/ssl", L"/usr", L"/usr/bin", L"/usr/lib"};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(wstring(TreeRowPath(panel, i).Text()), paths[i]);
  EXPECT_TRUE(TreeRowPath(panel, -1).IsEmpty());
  EXPECT_TRUE(TreeRowPath(panel, 6).IsEmpty());
}

TEST_F(TreeRow, PathOfARowWithoutARootEnds) {
  AddNode(L"orphan", 3, 0);
  EXPECT_EQ(wstring(TreeRowPath(panel, 0).Text()), L"orphan");
}
