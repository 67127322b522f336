// The console on a display: what its calls cost, change and leave alone.
#include "console/console.h"

#include <utility>

#include "config/values/colours.h"
#include "console/scrollback.h"
#include "support/cells.h"
#include "support/console_fixture.h"

namespace {

class ConsoleTest : public ConsoleFixture {
 protected:
  // How many blocks a step draws.
  template <class Step>
  uint64_t DrawsOf(Step step) {
    const uint64_t before = Console->DrawCount();
    step();
    return Console->DrawCount() - before;
  }

  void PutKey(Key code, uint32_t modifiers = 0) {
    Console->Events().Put(
        new TEvent{kEventKey, static_cast<int32_t>(code), static_cast<int32_t>(modifiers), 0, 0, 0});
  }

  void ExpectSize(int columns, int rows) {
    int realColumns = 0, realRows = 0;
    Console->GetSize(realColumns, realRows);
    EXPECT_EQ(realColumns, columns);
    EXPECT_EQ(realRows, rows);
  }

  void ExpectCursor(int x, int y) {
    int realX = -1, realY = -1;
    Console->GetCursor(realX, realY);
    EXPECT_EQ(realX, x);
    EXPECT_EQ(realY, y);
  }
};

}  // namespace

// ---- drawing costs -----------------------------------------------------------

TEST_F(ConsoleTest, UnchangedCellsAreNotDrawn) {
  const auto write = [] { Console->PutString(3, 4, L"hello", 0x1E); };
  EXPECT_EQ(DrawsOf(write), 1u);
  EXPECT_EQ(DrawsOf(write), 0u);
  EXPECT_EQ(DrawsOf([] { Console->FillBlank(0, 5, 80, 10, 7); }), 0u);
  EXPECT_EQ(DrawsOf([] { Console->PutString(80, 4, L"hello", 0x1E); }), 0u);
}

TEST_F(ConsoleTest, ABatchIsDrawnOnceAtItsOutermostEnd) {
  Console->BeginUpdate();
  EXPECT_EQ(DrawsOf([] {
              Console->PutString(0, 0, L"one", 7);
              Console->BeginUpdate();
              Console->PutString(0, 9, L"two", 7);
              Console->EndUpdate();
            }),
            0u);
  EXPECT_EQ(DrawsOf([] { Console->EndUpdate(); }), 1u);
}

TEST_F(ConsoleTest, ABatchWithoutAChangeDrawsNothing) {
  EXPECT_EQ(DrawsOf([] {
              Console->BeginUpdate();
              Console->FillBlank(0, 0, 80, 25, 7);
              Console->EndUpdate();
            }),
            0u);
}

TEST_F(ConsoleTest, AnEndWithoutABeginDoesNothing) {
  EXPECT_EQ(DrawsOf([] { Console->EndUpdate(); }), 0u);
  EXPECT_EQ(DrawsOf([] { Console->PutString(0, 0, L"x", 7); }), 1u);
}

TEST_F(ConsoleTest, AScrollIsOneDrawEvenInABatch) {
  Console->PutString(0, 5, L"moves", 0x1E);
  Console->BeginUpdate();
  EXPECT_EQ(DrawsOf([] { Console->ScrollUp(0, 0, 80, 25, 1, 7); }), 1u);
  Console->EndUpdate();
  EXPECT_EQ(Row(4).Trimmed(), "moves");
}

TEST_F(ConsoleTest, AHiddenCursorMovesForNothing) {
  Console->SetCursorSize(0);
  EXPECT_EQ(DrawsOf([] { Console->SetCursor(10, 10); }), 0u);
  ExpectCursor(10, 10);
  EXPECT_EQ(DrawsOf([] { Console->SetCursorSize(15); }), 1u);
  EXPECT_EQ(DrawsOf([] { Console->SetCursor(11, 10); }), 2u) << "where it was and where it is";
  EXPECT_EQ(DrawsOf([] { Console->SetCursor(11, 10); }), 0u);
}

// ---- cells -------------------------------------------------------------------

TEST_F(ConsoleTest, BlocksScrollBothWaysAndOnlyInside) {
  for (int y = 0; y < 5; ++y) Console->PutRepeated(0, y, 10, {'a' + y, 7});
  Console->ScrollUp(2, 1, 3, 3, 1, 0x1F);
  EXPECT_EQ(Text(0, 1, 10), "bbcccbbbbb");
  EXPECT_EQ(Text(0, 3, 10), "dd   ddddd");
  EXPECT_EQ(Attribute(2, 3), 0x1F);
  Console->ScrollDown(2, 1, 3, 3, 99, 7);
  EXPECT_EQ(Text(0, 2, 10), "cc   ccccc");
  EXPECT_EQ(Text(0, 4, 10), "eeeeeeeeee");
}

TEST_F(ConsoleTest, AScrollByNothingChangesNothing) {
  Console->PutString(0, 1, L"stays", 7);
  EXPECT_EQ(DrawsOf([] {
              Console->ScrollUp(0, 0, 80, 25, 0, 7);
              Console->ScrollDown(0, 0, 80, 25, -3, 7);
              Console->ScrollUp(80, 0, 80, 25, 1, 7);
            }),
            0u);
  EXPECT_EQ(Row(1).Trimmed(), "stays");
}

TEST_F(ConsoleTest, AnyValueOfACellIsDrawn) {
  std::vector<Cell> row(kColumns, Cell{'x', 0x1F});
  for (int32_t first : {0, 0x300, 0x590, 0x1100, 0x2000, 0x3000, 0xAC00, 0xD7F0, 0xFE00, 0x1F600, 0x10FFC0}) {
    for (int i = 0; i < kColumns; ++i) row[i].character = first + i;
    Console->RestoreBlock(0, 0, kColumns, 1, row.data());
  }
  for (int i = 0; i < kColumns; ++i) row[i].character = INT32_MIN + i;
  EXPECT_EQ(DrawsOf([&] { Console->RestoreBlock(0, 0, kColumns, 1, row.data()); }), 1u);
}

// ---- the teletype ------------------------------------------------------------

TEST_F(ConsoleTest, TextIsWrittenAtTheCursorInTheDefaultAttribute) {
  Console->SetDefaultAttribute(0x2E);
  Console->SetCursor(5, 20);
  Console->SetCursorSize(30);
  Console->WriteText("caf\xC3\xA9\r\n\tx");
  EXPECT_EQ(Row(20).Trimmed(), "caf\xC3\xA9");
  EXPECT_EQ(Attribute(5, 20), 0x2E);
  EXPECT_EQ(Text(8, 21, 1), "x");
  ExpectCursor(9, 21);
  EXPECT_EQ(Console->CursorSize(), 30);
}

TEST_F(ConsoleTest, TextAtTheBottomScrollsIntoTheScrollback) {
  ScrollBack.Clear();
  Console->PutString(0, 0, L"first row", 7);
  Console->SetCursor(0, 24);
  Console->WriteText("last\n\n");
  EXPECT_EQ(Row(22).Trimmed(), "last");
  ExpectCursor(0, 24);
  ASSERT_EQ(ScrollBack.Count(), 2);
  int length = 0;
  EXPECT_EQ(CharacterOf(ScrollBack.Row(0, length)[0]), 'f');
  ScrollBack.Clear();
}

// ---- size and font -----------------------------------------------------------

TEST_F(ConsoleTest, StartsAsAnOrdinaryTextScreen) {
  ExpectSize(80, 25);
  EXPECT_STREQ(Console->FontFamily().Text(), "DejaVu Sans Mono");
  EXPECT_EQ(Console->FontSize(), 12);
  EXPECT_EQ(Console->CodePage(), 850);
  ExpectCursor(0, 0);
}

TEST_F(ConsoleTest, ANewSizeIsBlank) {
  Console->FillBlank(0, 0, 80, 25, 0x1F);
  Console->PutString(0, 0, L"gone", 0x1F);
  Console->Resize(80, 25, "", 0);
  EXPECT_EQ(Row(0).Trimmed(), "");
  EXPECT_EQ(Attribute(40, 12), 7);
  EXPECT_EQ(Console->FontSize(), 12);
  EXPECT_STREQ(Console->FontFamily().Text(), "DejaVu Sans Mono");
}

TEST_F(ConsoleTest, SizeAndFontAreTakenTogether) {
  Console->Resize(100, 40, "Monospace", 9);
  ExpectSize(100, 40);
  EXPECT_STREQ(Console->FontFamily().Text(), "Monospace");
  EXPECT_EQ(Console->FontSize(), 9);
  Console->PutString(98, 39, L"xyz", 7);
  EXPECT_EQ(Text(98, 39, 2), "xy");
}

TEST_F(ConsoleTest, SizesThatCantBeMadeAreCut) {
  Console->Resize(80, 9999, "", 0);
  int columns = 0, rows = 0;
  Console->GetSize(columns, rows);
  EXPECT_EQ(columns, 80);
  EXPECT_GT(rows, 100);
  EXPECT_LT(rows, 9999);
  Console->PutString(0, rows - 1, L"bottom", 7);
  EXPECT_EQ(Text(0, rows - 1, 6), "bottom");
}

TEST_F(ConsoleTest, AFontTooLargeForAScreenIsMadeSmaller) {
  Console->Resize(80, 25, "", 4000);
  ExpectSize(80, 25);
  EXPECT_GT(Console->FontSize(), 12);
  EXPECT_LE(Console->FontSize(), 96);  // the window stays within the display
  Console->PutString(0, 0, L"large", 7);
  Console->Resize(-1, 0, "", -5);
  ExpectSize(80, 25);
}

TEST_F(ConsoleTest, AFamilyThatIsNotThereIsReplaced) {
  Console->Resize(80, 25, "No Such Family", 0);
  Console->PutString(0, 0, L"shown all the same \x4E2D", 7);
  ExpectSize(80, 25);
}

// ---- the window --------------------------------------------------------------

TEST_F(ConsoleTest, IconsThatCantBeReadArePassedOver) {
  WestringStore paths;
  paths.Add(L"no/such/icon.png");
  Console->SetIconList(paths);
  Console->SetIconFromFile(L"no/such/icon.png");
}

TEST_F(ConsoleTest, TheClipboardKeepsText) {
  Console->SetClipboardText(Westring(L"two\nlines \xE9\x4E2D\x1F600"));
  Westring text(L"before");
  EXPECT_TRUE(Console->GetClipboardText(text));
  EXPECT_STREQ(text.Text(), L"two\nlines \xE9\x4E2D\x1F600");
}

TEST_F(ConsoleTest, TheClipboardTakesBytesOfTheCodePage) {
  Westring text;
  Console->SetClipboardText("caf\x82");
  Console->GetClipboardText(text);
  EXPECT_STREQ(text.Text(), L"caf\xE9");
  Console->SetCodePage(819);
  Console->SetCodePage(0);
  EXPECT_EQ(Console->CodePage(), 819);
  Console->SetClipboardText("caf\xE9");
  Console->GetClipboardText(text);
  EXPECT_STREQ(text.Text(), L"caf\xE9");
}

TEST_F(ConsoleTest, AnEmptyClipboardIsNoFailure) {
  Westring text(L"before");
  EXPECT_TRUE(Console->GetClipboardText(text));
  EXPECT_TRUE(text.IsEmpty());
}

TEST_F(ConsoleTest, TheSelectableRegionIsEmptyUntilItIsSet) {
  CellRect region{1, 1, 1, 1};
  Console->GetSelectableRegion(region);
  EXPECT_TRUE(region.IsEmpty());
  Console->SetSelectableRegion(2, 3, 10, 4);
  Console->GetSelectableRegion(region);
  EXPECT_EQ(region, (CellRect{2, 3, 11, 6}));
  Console->SetSelectableRegion(0, 0, 0, 25);
  Console->GetSelectableRegion(region);
  EXPECT_TRUE(region.IsEmpty());
}

// ---- input -------------------------------------------------------------------

TEST_F(ConsoleTest, KeysAreReadFromTheQueue) {
  EXPECT_FALSE(KeyPending());
  PutKey(FKey(3), kModShift);
  EXPECT_TRUE(KeyPending());
  bool timedOut = false;
  EXPECT_EQ(ReadKey(timedOut, nullptr, 0), FKey(3));
  EXPECT_FALSE(KeyPending());
  PutKey(kEscape);
  EXPECT_TRUE(CheckEscape());
}

TEST_F(ConsoleTest, EscapeStopsLongWorkAndKeepsWhatIsTypedBehindIt) {
  BreakScope scope;
  EXPECT_FALSE(scope.Stopped());
  PutKey('a');
  EXPECT_FALSE(scope.Stopped());
  PutKey(kEscape);
  PutKey('b');
  EXPECT_TRUE(scope.Stopped());
  TEvent event;
  ASSERT_TRUE(Console->GetEvent(event, 0));
  EXPECT_EQ(event.code, 'b');
  EXPECT_FALSE(Console->EventPending());
}

// ---- life --------------------------------------------------------------------

TEST(ConsoleLife, StartsAndEndsAtAnyMoment) {
  Sandbox files;
  files.Make({{"home/", ""}, {"temp/", ""}});
  const VirtualDisplay display;
  EnterTestEnvironment(files, display.Name());
  char name[] = "session";
  char* arguments[] = {name, nullptr};
  int argc = 1;
  char** argv = arguments;
  const Toolkit toolkit(argc, argv);
  ASSERT_TRUE(toolkit.IsReady());
  for (int i = 0; i < 300; ++i) {
    CConsole console;
    if (i % 3 == 1) console.PutString(0, 0, L"drawn before the window is there", 7);
    if (i % 7 == 2) console.Resize(40 + i % 50, 10 + i % 20, "", 8 + i % 5);
    if (i % 11 == 3) console.WriteText("one\ntwo\n");
    if (i % 50 == 4) {
      Westring text;
      console.GetClipboardText(text);  // needs the GUI thread to run
    }
  }
}

TEST(ConsoleLife, BeginsWithTextInTheColourOfTheCommandLine) {
  Sandbox files;
  files.Make({{"home/", ""}, {"temp/", ""}});
  const VirtualDisplay display;
  EnterTestEnvironment(files, display.Name());
  char name[] = "session";
  char* arguments[] = {name, nullptr};
  int argc = 1;
  char** argv = arguments;
  const Toolkit toolkit(argc, argv);
  ASSERT_TRUE(toolkit.IsReady());
  const uint8_t usual = std::exchange(Options::Colours[kColourCommandLine], 0x2E);
  CConsole console;
  Options::Colours[kColourCommandLine] = usual;
  console.WriteText("text");
  CellString row;
  console.ReadRow(row, 0, 0, 5, 1);
  EXPECT_EQ(row[0], (Cell{'t', 0x2E}));
  EXPECT_EQ(row[4].attribute, 7);
}

TEST(ConsoleLife, WithoutADisplayTheToolkitIsNotReady) {
  setenv("DISPLAY", "", 1);
  char name[] = "session";
  char* arguments[] = {name, nullptr};
  int argc = 1;
  char** argv = arguments;
  EXPECT_FALSE(Toolkit(argc, argv).IsReady());
}
