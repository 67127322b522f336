// Plain text output: control characters, wrapping and scrolling.
#include "console/teletype.h"

#include <gtest/gtest.h>

#include <clocale>
#include <string>

#include "console/cell_grid.h"
#include "console/scrollback.h"
#include "support/cells.h"

namespace {

class GridScreen : public TeletypeScreen {
 public:
  GridScreen(int columns, int rows) : grid(columns, rows) {}
  int Columns() const override { return grid.Columns(); }
  int Rows() const override { return grid.Rows(); }
  void LoadRow(int y, CellString& row) const override { grid.ReadRow(row, 0, y, grid.Columns(), 1); }
  void StoreRow(int y, const CellString& row) override {
    grid.RestoreBlock(0, y, grid.Columns(), 1, row.Cells());
  }
  void ScrollUpOneRow(uint8_t attribute) override { grid.Scroll(grid.Bounds(), 1, attribute); }

  std::wstring Row(int y) const {
    std::wstring text;
    for (int x = 0; x < grid.Columns(); ++x) text += static_cast<wchar_t>(grid.At(x, y).character);
    return text.substr(0, text.find_last_not_of(L' ') + 1);
  }

  CellGrid grid;
};

class TeletypeTest : public testing::Test {
 protected:
  TeletypeTest() : oldLocale(setlocale(LC_CTYPE, nullptr)) {
    setlocale(LC_CTYPE, "C.UTF-8");
    ScrollBack.Clear();
  }
  ~TeletypeTest() override {
    ScrollBack.Clear();
    setlocale(LC_CTYPE, oldLocale.c_str());
  }

  void Print(const wchar_t* text, uint8_t attribute = 0x1E) { PrintText(screen, text, attribute, x, y); }

  const std::string oldLocale;
  GridScreen screen{20, 4};
  int x = 0, y = 0;
};

}  // namespace

TEST_F(TeletypeTest, TextGoesToTheCursorInTheAttribute) {
  x = 3;
  y = 1;
  Print(L"abc");
  EXPECT_EQ(screen.Row(1), L"   abc");
  EXPECT_EQ(screen.grid.At(3, 1).attribute, 0x1E);
  EXPECT_EQ(screen.grid.At(2, 1).attribute, 7);
  EXPECT_EQ(x, 6);
  EXPECT_EQ(y, 1);
}

TEST_F(TeletypeTest, LineFeedGoesToTheStartOfTheNextRow) {
  Print(L"ab\ncd");
  EXPECT_EQ(screen.Row(0), L"ab");
  EXPECT_EQ(screen.Row(1), L"cd");
}

TEST_F(TeletypeTest, CarriageReturnAndBackspaceMoveOnly) {
  Print(L"abcd\rX\b\b\bY");
  EXPECT_EQ(screen.Row(0), L"Ybcd");
  EXPECT_EQ(x, 1);
}

TEST_F(TeletypeTest, TabsGoToMultiplesOfEight) {
  Print(L"a\tb\tc");
  EXPECT_EQ(screen.Row(0), L"a       b       c");
  Print(L"\t");
  EXPECT_EQ(x, 0);
  EXPECT_EQ(y, 1);
}

TEST_F(TeletypeTest, TheRightEdgeWraps) {
  Print(L"12345678901234567890");
  EXPECT_EQ(x, 0);
  EXPECT_EQ(y, 1);
  Print(L"next");
  EXPECT_EQ(screen.Row(0), L"12345678901234567890");
  EXPECT_EQ(screen.Row(1), L"next");
}

TEST_F(TeletypeTest, UnprintableCharactersAreDropped) {
  Print(L"a\x01\x1B\x7F\x9B" L"b\xFFFFFFFF" L"c");
  EXPECT_EQ(screen.Row(0), L"abc");
}

TEST_F(TeletypeTest, PrintableMeansAnyLanguage) {
  Print(L"\xE9\x4E2D");
  EXPECT_EQ(screen.Row(0), L"\xE9\x4E2D");
}

TEST_F(TeletypeTest, TheTopRowGoesToTheScrollback) {
  Print(L"one\ntwo\nthree\nfour\nfive\n");
  ASSERT_EQ(ScrollBack.Count(), 2);
  int length = 0;
  ScrollBack.Row(0, length);
  EXPECT_EQ(length, 20);
  EXPECT_EQ(CharacterOf(ScrollBack.Row(1, length)[1]), 'w');
  EXPECT_EQ(screen.Row(0), L"three");
  EXPECT_EQ(screen.Row(2), L"five");
  EXPECT_EQ(y, 3);
  EXPECT_EQ(screen.grid.At(9, 3), (Cell{' ', 0x1E}));
}

TEST_F(TeletypeTest, ACursorOffTheScreenIsBroughtBack) {
  x = 99;
  y = -3;
  Print(L"ab");
  EXPECT_EQ(CharacterOf(screen.grid.At(19, 0)), 'a');
  EXPECT_EQ(screen.Row(1), L"b");
}
