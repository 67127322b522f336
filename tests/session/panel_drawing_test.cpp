// Panels on the screen: where everything stands, what a step costs, and that
// scrolling shows what a full redraw would.
#include "panels/draw_panel.h"

#include <unistd.h>

#include "support/console_fixture.h"
#include "support/hand_made_panels.h"

namespace {

// The left panel in the left half of the screen, five rows high: the frame in
// rows 0 and 8, the divider in row 6, the status line in row 7.
class PanelDrawing : public ConsoleFixture, protected HandMadePanels {
 protected:
  static constexpr int kDividerRow = 6, kStatusRow = 7, kBottomRow = 8;

  void Open(int side = 0, int half = 40) {
    const uint8_t colour = Options::Colours[kColourPanel];
    panels[side].window =
        std::make_unique<Win>(side * half, 0, (side + 1) * half - 1, PanelRows + 3, colour, colour, true);
    DrawPanel(panels[side]);
  }

  ScreenText Left(int y) { return Text(0, y, 40); }
  ScreenText Right(int y) { return Text(40, y, 40); }

  // The attributes of cells of a row, as runs.
  std::string Colours(int x, int y, int width) const {
    CellString line;
    Console->ReadRow(line, x, y, width, 1);
    return ColoursOf(line);
  }

  uint64_t Draws(const std::function<void()>& action) const {
    const uint64_t before = Console->DrawCount();
    action();
    return Console->DrawCount() - before;
  }

  // A key that moves the cursor, as the main loop treats it.
  void Step(int delta) {
    DrawCursor(0, false);
    MoveCursor(panel, delta);
    DrawCursor(0, true);
  }

  // A list in which every row looks different.
  void AddVariety(int count) {
    for (int i = 0; i < count; ++i) {
      const std::wstring name = L"entry" + std::to_wstring(i * 7919 % 1000) + (i % 3 ? L".txt" : L"");
      entry& e = Add(name.c_str(), i * 1000, i % 5 == 0 ? kAttrDirectory : 0);
      e.tagged = i % 7 == 3;
      e.mode = static_cast<uint16_t>(i * 73 & 0777);
    }
  }
};

constexpr int kStyles[] = {kStyleBrief, kStyleFull, kStyleWide, kStyleBriefWide, kStyleUnix, kStyleTree};

}  // namespace

TEST_F(PanelDrawing, FullStandsInItsFrame) {
  Add(L"..", 0, kAttrDirectory);
  Add(L"readme.txt", 1234);
  Open();
  DrawStatusLine(panel);
  EXPECT_EQ(Left(0), "╔═════════════╤═ /home ╤════════╤══════╗");
  EXPECT_EQ(Left(1), "║..           │►UP-DIR◄│03/05/24│ 14:07║");
  EXPECT_EQ(Left(2), "║readme.txt   │    1234│03/05/24│ 14:07║");
  for (int y = 3; y < kDividerRow; ++y) EXPECT_EQ(Left(y), "║             │        │        │      ║");
  EXPECT_EQ(Left(kDividerRow), "╟─────────────┴────────┴────────┴──────╢");
  EXPECT_EQ(Left(kStatusRow), "║..                                    ║");
  EXPECT_EQ(Left(kBottomRow), "╚══════════════════════════════════════╝");
}

TEST_F(PanelDrawing, BriefJoinsThreeColumns) {
  AddMany(12);
  panel.style = kStyleBrief;
  Open();
  DrawStatusLine(panel);
  EXPECT_EQ(Left(0), "╔════════════╤══ /home ═══╤════════════╗");
  EXPECT_EQ(Left(1), "║f000        │f005        │f010        ║");
  EXPECT_EQ(Left(3), "║f002        │f007        │            ║");
  EXPECT_EQ(Left(kDividerRow), "╟────────────┴┬────────┬──┴─────┬──────╢");
  EXPECT_EQ(Left(kStatusRow), "║f000         │       0│03/05/24│ 14:07║");
  EXPECT_EQ(Left(kBottomRow), "╚═════════════╧════════╧════════╧══════╝");
}

TEST_F(PanelDrawing, WideBriefwideUnixAndTreeHaveTheirColumns) {
  Add(L"a", 5, kAttrDirectory).mode = 0750;
  panel.entries[0]->sizeKnown = 1;
  panel.style = kStyleWide;
  Open();
  EXPECT_EQ(Left(1), "║       5│a                            ║");
  panel.style = kStyleBriefWide;
  DrawPanel(panel);
  EXPECT_EQ(Left(1), "║a                  │                  ║");
  panel.style = kStyleUnix;
  DrawPanel(panel);
  EXPECT_TRUE(Left(1).StartsWith("║a           │      5│rwxr-x---│"));
  panel.style = kStyleTree;
  DrawPanel(panel);
  EXPECT_EQ(Left(0), "╔════════════════ TREE ════════════════╗");
  EXPECT_EQ(Left(1), "║└─a                                   ║");
}

TEST_F(PanelDrawing, StyleChangesLeaveNothingBehind) {
  AddVariety(12);
  Open();
  const auto full = Snapshot();
  for (int style : kStyles) {
    panel.style = style;
    DrawPanel(panel);
  }
  panel.panelType = kPanelInfo;
  DrawPanel(panel);
  panel.panelType = kPanelFiles;
  panel.style = kStyleFull;
  DrawPanel(panel);
  EXPECT_EQ(ChangesSince(full), "");
}

TEST_F(PanelDrawing, InfoPanelIsAPlainFrame) {
  AddVariety(12);
  Open();
  DrawStatusLine(panel);
  panel.panelType = kPanelInfo;
  DrawPanel(panel);
  EXPECT_EQ(Left(0), "╔════════════════ INFO ════════════════╗");
  for (int y = 1; y < kBottomRow; ++y) EXPECT_EQ(Left(y), "║                                      ║") << y;
  EXPECT_EQ(Left(kBottomRow), "╚══════════════════════════════════════╝");
  EXPECT_EQ(Colours(0, 3, 40), "1B*40");
}

TEST_F(PanelDrawing, InfoPanelIsFilledByItsHook) {
  ThePanelHooks.drawInfo = [](TPanel& p) { p.window->Print(0, 0, L"about"); };
  panel.panelType = kPanelInfo;
  Open();
  ThePanelHooks.drawInfo = nullptr;
  EXPECT_TRUE(Left(1).StartsWith("║about"));
}

TEST_F(PanelDrawing, EachSideStaysInItsHalf) {
  AddVariety(12);
  Open();
  panel.window->SetHidden(true);
  const auto before = Snapshot();
  panel.window->SetHidden(false);
  for (int style : kStyles) {
    panel.style = style;
    DrawPanel(panel);
    DrawCursor(0, true);
    for (int y = 0; y <= kBottomRow; ++y) EXPECT_EQ(Right(y).Trimmed(), "") << y;
  }
  panel.window->SetHidden(true);
  EXPECT_EQ(ChangesSince(before), "");
}

TEST_F(PanelDrawing, NarrowPanelClipsItsRowsAtTheFrame) {
  AddVariety(12);
  Add(L"a very long name that fits nowhere");
  for (int half = 4; half < 40; ++half) {
    panel.window.reset();
    SetSize(half - 2, 5);
    for (int style : kStyles) {
      panel.style = style;
      Open(0, half);
      DrawCursor(0, true);
      for (int y = 1; y < kBottomRow; ++y) {
        EXPECT_EQ(Text(half - 1, y, 1), y == kDividerRow ? "╢" : "║") << half << " " << style;
        EXPECT_EQ(Text(half, y, 80 - half).Trimmed(), "") << half << " " << style;
      }
      panel.window.reset();
    }
  }
}

TEST_F(PanelDrawing, TitleLeavesTheCellsOfTheClockAlone) {
  Options::Clock = true;
  ActiveSide = 1;
  CopyText(panels[1].path, L"/home/user/documents/letters/2024/march/private");
  Open(1);
  Console->PutString(75, 0, L"12:34", 0x30);
  DrawTitle(panels[1]);
  EXPECT_EQ(Right(0), "╔═ /home/...ers/2024/march/private 12:34");
  Options::TimeMode = 12;
  Console->PutString(74, 0, L"12:34p", 0x30);
  DrawTitle(panels[1]);
  EXPECT_EQ(Right(0), "╔═ /home/...rs/2024/march/private 12:34p");
}

TEST_F(PanelDrawing, LeftPanelHasNoClock) {
  Options::Clock = true;
  CopyText(panel.path, L"/home/user/documents/letters/2024/march/private");
  Open();
  EXPECT_EQ(Left(0), "╔ /home/.../letters/2024/march/private ╗");
}

TEST_F(PanelDrawing, TitlesTellTheActiveSide) {
  Open(0);
  Open(1);
  EXPECT_EQ(Attribute(19, 0), 0x30);
  DrawTitle(panels[1]);
  EXPECT_EQ(Attribute(59, 0), 0x1B);
  ActiveSide = 1;
  DrawTitle(panels[0]);
  DrawTitle(panels[1]);
  EXPECT_EQ(Attribute(19, 0), 0x1B);
}

// ---- the cursor bar --------------------------------------------------------

TEST_F(PanelDrawing, BarColoursTheEntryAndComesOffAgain) {
  Add(L"..", 0, kAttrDirectory);
  Add(L"file");
  Add(L"tagged").tagged = 1;
  Open();
  DrawStatusLine(panel);
  const char* const bars[] = {"20*13 2B*1 20*8 2B*1 20*8 2B*1 20*6", "30*13 3B*1 30*8 3B*1 30*8 3B*1 30*6",
                              "3E*13 3B*1 3E*8 3B*1 3E*8 3B*1 3E*6"};
  for (int i = 0; i < 3; ++i) {
    panel.cursorRow = i;
    DrawStatusLine(panel);
    const auto before = Snapshot();
    DrawCursor(0, true);
    EXPECT_EQ(Colours(1, i + 1, 38), bars[i]);
    DrawCursor(0, false);
    EXPECT_EQ(ChangesSince(before), "");
  }
}

TEST_F(PanelDrawing, BarOfBriefIsOneColumnWide) {
  AddMany(12);
  panel.style = kStyleBrief;
  panel.cursorRow = 7;
  Open();
  DrawCursor(0, true);
  EXPECT_EQ(Colours(0, 3, 40), "1B*14 30*12 1B*14");
  EXPECT_TRUE(Left(kStatusRow).StartsWith("║f007 "));
}

TEST_F(PanelDrawing, BarShowsTheScrolledNameAndOnlyWhileItIsOn) {
  Add(L"abcdefghijklmnopqrst");
  Add(L"another long name");
  Open();
  panel.nameScroll = 3;
  panel.nameScrollEntry = 0;
  DrawCursor(0, true);
  EXPECT_TRUE(Left(1).StartsWith("║defghijklmno►│"));
  DrawCursor(0, false);
  EXPECT_TRUE(Left(1).StartsWith("║abcdefghijkl►│"));
  panel.nameScroll = 100;
  DrawCursor(0, true);
  EXPECT_TRUE(Left(1).StartsWith("║hijklmnopqrst│"));
  EXPECT_EQ(panel.nameScroll, 7);
  Step(1);
  EXPECT_TRUE(Left(2).StartsWith("║another long►│"));
  EXPECT_EQ(panel.nameScroll, 7);
}

TEST_F(PanelDrawing, EmptyPanelHasNoBarButAStatusLine) {
  Open();
  DrawCursor(0, true);
  EXPECT_EQ(Colours(0, 1, 40), "1B*40");
  EXPECT_EQ(Left(kStatusRow), "║Directory is empty                    ║");
}

// ---- redraws and their cost ------------------------------------------------

TEST_F(PanelDrawing, RepeatedRedrawDrawsNothing) {
  AddVariety(30);
  Open();
  for (int style : kStyles) {
    panel.style = style;
    DrawPanel(panel);
    DrawStatusLine(panel);
    EXPECT_EQ(Draws([&] { DrawPanel(panel); }), 0u) << style;
    EXPECT_EQ(Draws([&] { DrawStatusLine(panel); }), 0u) << style;
  }
}

TEST_F(PanelDrawing, RedrawIsOneDrawing) {
  AddVariety(30);
  Open();
  panel.style = kStyleUnix;
  EXPECT_EQ(Draws([&] { DrawPanel(panel); }), 1u);
}

TEST_F(PanelDrawing, StepInsideTheWindowDrawsTwoRowsAndTheStatusLine) {
  AddVariety(30);
  panel.taggedCount = 0;
  for (int style : kStyles) {
    panel.style = style;
    panel.cursorRow = 0;
    Open();
    DrawCursor(0, true);
    EXPECT_EQ(Draws([&] { Step(1); }), 3u) << style;
  }
}

TEST_F(PanelDrawing, ScrollByOneDrawsNoOtherRowThanTheNewOne) {
  AddVariety(60);
  for (int style : kStyles) {
    panel.style = style;
    panel.topIndex = 0;
    panel.cursorRow = VisibleEntries(style, PanelRows) - 1;
    Open();
    DrawCursor(0, true);
    Console->PutString(2, 3, L"(mark)", 0x4F);  // moves with its row and nobody paints over it
    // The bar goes, the vacated row, the new row, its bar, and the status line.
    EXPECT_LE(Draws([&] { Step(1); }), 5u) << style;
    EXPECT_EQ(Text(2, 2, 6), "(mark)") << style;
    panel.cursorRow = 0;
    Step(-1);
    EXPECT_EQ(Text(2, 3, 6), "(mark)") << style;
  }
}

TEST_F(PanelDrawing, OnlyRowsThatAreDrawnAreLookedInto) {
  for (int i = 0; i < 30; ++i) Add((L"link" + std::to_wstring(i)).c_str(), 0, kAttrLink);
  Open();
  EXPECT_EQ(panel.linkTargets.Count(), 5);
  panel.cursorRow = 4;
  DrawCursor(0, true);
  Step(1);
  EXPECT_EQ(panel.linkTargets.Count(), 6);
}

TEST_F(PanelDrawing, ScrollingShowsWhatAFullRedrawWould) {
  AddVariety(60);
  for (int style : kStyles) {
    panel.style = style;
    panel.topIndex = panel.cursorRow = 0;
    Open();
    DrawCursor(0, true);
    const int steps[] = {1, 4, 1, 1, 20, 1, 1, -1, -30, 15, 1, 1, 1, -1, -13, -1, -1, -1, 100, -1, -59, -1};
    for (int delta : steps) {
      for (int i = 0; i < 3; ++i) Step(delta);
      const auto stepped = Snapshot();
      DrawPanel(panel);
      DrawCursor(0, true);
      EXPECT_EQ(ChangesSince(stepped), "") << "style " << style << " delta " << delta;
    }
  }
}

TEST_F(PanelDrawing, RedrawBringsTheCursorIntoASmallerWindow) {
  AddMany(30);
  panel.topIndex = 3;
  panel.cursorRow = 9;
  Open();
  EXPECT_EQ(panel.topIndex, 8);
  EXPECT_EQ(panel.cursorRow, 4);
  EXPECT_TRUE(Left(5).StartsWith("║f012 "));
}

TEST_F(PanelDrawing, RedrawPullsTheCursorBackToTheLastEntry) {
  AddMany(3);
  panel.cursorRow = 4;
  Open();
  EXPECT_EQ(panel.topIndex, 0);
  EXPECT_EQ(panel.cursorRow, 2);
  panel.topIndex = 1000;
  DrawPanel(panel);
  EXPECT_EQ(panel.CurrentIndex(), 2);
  EXPECT_TRUE(Left(panel.cursorRow + 1).StartsWith("║f002 "));
  panel.FreeEntries();
  DrawPanel(panel);
  EXPECT_EQ(panel.CurrentIndex(), 0);
}

TEST_F(PanelDrawing, HiddenPanelsAreNotDrawn) {
  AddMany(3);
  Open();
  panel.redrawPending = true;
  panel.window->SetHidden(true);
  const auto before = Snapshot();
  DrawPanel(panel);
  DrawTitle(panel);
  DrawCursor(0, true);
  DrawEntry(panel, 0);
  MoveCursor(panel, 1);
  EXPECT_EQ(ChangesSince(before), "");
  EXPECT_TRUE(panel.redrawPending);
  panel.window->SetHidden(false);
  DrawPanel(panel);
  EXPECT_FALSE(panel.redrawPending);
}

TEST_F(PanelDrawing, EntryIsRepaintedInItsSlotIfItIsInView) {
  AddMany(30);
  panel.topIndex = 2;
  panel.style = kStyleBriefWide;
  Open();
  panel.entries[8]->tagged = panel.entries[1]->tagged = panel.entries[12]->tagged = 1;
  for (int index : {-1, 1, 12, 30, 1000}) EXPECT_EQ(Draws([&] { DrawEntry(panel, index); }), 0u) << index;
  DrawEntry(panel, 8);
  EXPECT_EQ(Colours(0, 2, 40), "1B*21 1E*18 1B*1");
}

TEST_F(PanelDrawing, ControlCharactersShowAsGlyphs) {
  const wchar_t name[] = {L'a', L'\n', 0x9B, 27, 0};
  Add(name);
  Open();
  EXPECT_TRUE(Left(1).StartsWith("║a◙⌂←         │"));
}
