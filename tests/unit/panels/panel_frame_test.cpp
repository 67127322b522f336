// Title, divider and bottom of a panel's frame.
#include "panels/panel_frame.h"

#include "support/hand_made_panels.h"

namespace {

using std::wstring;

class PanelFrame : public PanelRecords {
 protected:
  // The title of a panel of 40 columns.
  wstring Title(int clockWidth = 0) { return TextOf(BuildTitle(panel, true, clockWidth, 40)); }
  // The frame's line, with marks at these cells of the frame.
  static wstring Line(const wchar_t* ends, wchar_t across,
                      std::initializer_list<std::pair<int, wchar_t>> marks) {
    wstring line(40, across);
    line.front() = ends[0];
    line.back() = ends[1];
    for (const auto& [x, mark] : marks) line[static_cast<size_t>(x)] = mark;
    return line;
  }
};

// An archive that only has a name.
class NamedLevel : public ArchiveLevel {
 public:
  NamedLevel() : ArchiveLevel(L"/a.zip") {}
  bool StillThere() const override { return true; }
  std::unique_ptr<EntrySource> Open(const Westring&) override { return nullptr; }
  bool Lookup(const Westring&, uint16_t&) override { return false; }
};

constexpr wchar_t kDown = 0x252C, kUp = 0x2534, kCross = 0x253C, kBottom = 0x2567;

}  // namespace

TEST_F(PanelFrame, TitleIsCentredBetweenTheBordersOfTheStyle) {
  EXPECT_EQ(Title(), L"\x2554" + wstring(13, L'\x2550') + L"\x2564\x2550 /home \x2564" +
                         wstring(8, L'\x2550') + L"\x2564" + wstring(6, L'\x2550') + L"\x2557");
  SetStyle(kStyleWide);
  EXPECT_EQ(Title(), L"\x2554" + wstring(8, L'\x2550') + L"\x2564" + wstring(6, L'\x2550') + L" /home " +
                         wstring(16, L'\x2550') + L"\x2557");
}

TEST_F(PanelFrame, TitleOfTreeAndInfoIsTheirName) {
  SetStyle(kStyleTree);
  EXPECT_EQ(Title(), L"\x2554" + wstring(16, L'\x2550') + L" TREE " + wstring(16, L'\x2550') + L"\x2557");
  SetStyle(kStyleFull);
  panel.panelType = kPanelInfo;
  EXPECT_EQ(Title(), L"\x2554" + wstring(16, L'\x2550') + L" INFO " + wstring(16, L'\x2550') + L"\x2557");
}

TEST_F(PanelFrame, FilterShowsAsAQuestionMark) {
  panel.filter = L"*.c";
  EXPECT_NE(Title().find(L" /home? "), wstring::npos);
  panel.filter = L"*";
  EXPECT_NE(Title().find(L" /home "), wstring::npos);
}

TEST_F(PanelFrame, TitleColourTellsSideAndArchive) {
  const auto colour = [&](bool active) { return BuildTitle(panel, active, 0, 40)[20].attribute; };
  EXPECT_EQ(colour(true), 0x30);
  EXPECT_EQ(colour(false), 0x1B);
  panel.archive = std::make_unique<NamedLevel>();
  EXPECT_EQ(colour(true), 0x3E);
  EXPECT_EQ(colour(false), 0x1E);
  EXPECT_EQ(BuildTitle(panel, true, 0, 40)[0].attribute, 0x1B);
}

TEST_F(PanelFrame, LongPathKeepsItsHeadAndTail) {
  CopyText(panel.path, L"/home/user/documents/letters/2024/march/private");
  EXPECT_EQ(Title(), L"\x2554 /home/.../letters/2024/march/private \x2557");
}

TEST_F(PanelFrame, LongPathLeavesTheClocksRoomAndEndsAtIt) {
  CopyText(panel.path, L"/home/user/documents/letters/2024/march/private");
  // 31 columns of path and two blanks; centred it would begin at 3 and end one
  // column inside the clock.
  const wstring title = Title(5);
  EXPECT_EQ(title, L"\x2554\x2550 /home/...ers/2024/march/private ");
}

TEST_F(PanelFrame, TitleMovesLeftOnlyAsFarAsTheClockNeeds) {
  CopyText(panel.path, L"/0123456789012345678901234");  // 26, so 28 with blanks: 6 to 33
  EXPECT_EQ(Title(6).find(L" /0123"), 6u);
  CopyText(panel.path, L"/012345678901234567890123456");  // 28, so 30: 5 to 34 becomes 4 to 33
  EXPECT_EQ(Title(6).find(L" /0123"), 4u);
  EXPECT_EQ(Title(0).find(L" /0123"), 5u);
}

TEST_F(PanelFrame, TitleOfTheNarrowestPanelsStaysInside) {
  for (int width = 0; width < 30; ++width)
    for (int clockWidth : {0, 5, 6}) {
      const int length = BuildTitle(panel, true, clockWidth, width).Length();
      EXPECT_LE(length, std::max(width, 2)) << width;
    }
}

TEST_F(PanelFrame, DividerOfFullEndsItsColumns) {
  EXPECT_EQ(TextOf(BuildDivider(kStyleFull, 38)),
            Line(L"\x255F\x2562", L'\x2500', {{14, kUp}, {23, kUp}, {32, kUp}}));
}

TEST_F(PanelFrame, DividerOfOtherStylesBeginsTheStatusLinesColumns) {
  EXPECT_EQ(TextOf(BuildDivider(kStyleBrief, 38)),
            Line(L"\x255F\x2562", L'\x2500', {{13, kUp}, {26, kUp}, {14, kDown}, {23, kDown}, {32, kDown}}));
  EXPECT_EQ(TextOf(BuildDivider(kStyleWide, 38)),
            Line(L"\x255F\x2562", L'\x2500', {{9, kUp}, {14, kDown}, {23, kDown}, {32, kDown}}));
  EXPECT_EQ(TextOf(BuildDivider(kStyleTree, 38)),
            Line(L"\x255F\x2562", L'\x2500', {{14, kDown}, {23, kDown}, {32, kDown}}));
}

TEST_F(PanelFrame, BorderOfBothIsACross) {
  ColumnTable[kStyleWide][0].width = 13;
  EXPECT_EQ(TextOf(BuildDivider(kStyleWide, 38)),
            Line(L"\x255F\x2562", L'\x2500', {{14, kCross}, {23, kDown}, {32, kDown}}));
  ComputeColumns(38);
}

TEST_F(PanelFrame, BottomEndsTheStatusLinesColumnsWhereItHasThem) {
  const wstring joined = Line(L"\x255A\x255D", L'\x2550', {{14, kBottom}, {23, kBottom}, {32, kBottom}});
  for (int style : {kStyleBrief, kStyleWide, kStyleBriefWide, kStyleUnix})
    EXPECT_EQ(TextOf(BuildBottomFrame(style, 38)), joined) << style;
  const wstring plain = Line(L"\x255A\x255D", L'\x2550', {});
  for (int style : {kStyleFull, kStyleTree}) EXPECT_EQ(TextOf(BuildBottomFrame(style, 38)), plain) << style;
  EXPECT_EQ(TextOf(BuildPlainBottomFrame(38)), plain);
}

TEST_F(PanelFrame, NarrowPanelsHaveOnlyTheBordersThatFit) {
  for (int inner = 0; inner < 40; ++inner) {
    ComputeColumns(inner);
    for (int style = 0; style <= kStyleTree; ++style) {
      EXPECT_EQ(BuildDivider(style, inner).Length(), inner + 2);
      EXPECT_EQ(TextOf(BuildDivider(style, inner)).back(), 0x2562);
      EXPECT_EQ(TextOf(BuildBottomFrame(style, inner)).back(), 0x255D);
    }
  }
}
