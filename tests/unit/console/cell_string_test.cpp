// Growth, appending and padding of lines of cells.
#include "console/cell_string.h"

#include <gtest/gtest.h>

#include <string>

#include "support/cells.h"

namespace {

std::wstring TextOf(const CellString& line) {
  std::wstring text;
  for (int i = 0; i < line.Length(); ++i) text += static_cast<wchar_t>(line[i].character);
  return text;
}

}  // namespace

TEST(CellStrings, StartEmptyWithRoomForTwentyAndAttributeSeven) {
  const CellString line;
  EXPECT_EQ(line.Length(), 0);
  EXPECT_EQ(line.Capacity(), 20);
  EXPECT_EQ(line.attribute, 7);
}

TEST(CellStrings, GrowToTheNeedAndHalfOfIt) {
  CellString line;
  for (int i = 0; i < 20; ++i) line.Append(L'a');
  EXPECT_EQ(line.Capacity(), 20);
  line.Append(L'b');
  EXPECT_EQ(line.Capacity(), 31);
  EXPECT_EQ(TextOf(line), std::wstring(20, L'a') + L"b");
}

TEST(CellStrings, AssignmentTakesTheExactSize) {
  const Cell cells[50] = {};
  CellString line;
  line.Assign(cells, 50);
  EXPECT_EQ(line.Length(), 50);
  EXPECT_EQ(line.Capacity(), 50);
  line.Assign(cells, 3);
  EXPECT_EQ(line.Length(), 3);
}

TEST(CellStrings, RoomAskedForAtTheStartIsExact) {
  EXPECT_EQ(CellString(100).Capacity(), 100);
  EXPECT_EQ(CellString(100).Length(), 0);
  EXPECT_EQ(CellString(5).Capacity(), 20);
}

TEST(CellStrings, CopiesAreTheirOwn) {
  CellString line(L"a text longer than the cells inside", 0x1E);
  CellString copy(line);
  line[0].character = 'X';
  EXPECT_EQ(TextOf(copy), L"a text longer than the cells inside");
  EXPECT_EQ(copy.attribute, 0x1E);
  EXPECT_EQ(copy[3].attribute, 0x1E);
  const CellString& itself = copy;
  copy = itself;
  EXPECT_EQ(copy.Length(), 35);
}

TEST(CellStrings, ACharacterComesInTheDefaultAttribute) {
  CellString line;
  line.attribute = 0x4F;
  line.Append(L'x');
  line.Append(Cell{'y', 0x2E});
  EXPECT_EQ(line[0].attribute, 0x4F);
  EXPECT_EQ(line[1].attribute, 0x2E);
}

TEST(CellStrings, ANegativeCountOfCellsEndsAtTheZeroCell) {
  const Cell cells[] = {{'a', 1}, {'b', 2}, {0, 0}, {'c', 3}};
  CellString line;
  line.Append(cells, -1);
  EXPECT_EQ(TextOf(line), L"ab");
  line.Append(cells + 3, 1);
  EXPECT_EQ(TextOf(line), L"abc");
}

TEST(CellStrings, ACountOfTextThatIsNegativeOrTooLargeTakesAll) {
  CellString line;
  line.Append(L"one", 1, -1);
  line.Append(L"two", 1, 99);
  line.Append(L"three", 1, 2);
  line.Append(L"four", 1, 0);
  EXPECT_EQ(TextOf(line), L"onetwoth");
}

TEST(CellStrings, MayBeAppendedToThemselves) {
  CellString line(L"0123456789abc", 7);
  line.Append(line);
  EXPECT_EQ(TextOf(line), L"0123456789abc0123456789abc");
  for (int i = 0; i < 40; ++i) line.Append(line[0]);
  EXPECT_EQ(CharacterOf(line[65]), '0');
  line.Append(line.Cells() + 10, 3);
  EXPECT_EQ(TextOf(line).substr(66), L"abc");
}

TEST(CellStrings, NewLengthIsFilledWithBlanksInTheDefaultAttribute) {
  CellString line(L"abc", 0x1B);
  line.SetLength(5);
  EXPECT_EQ(TextOf(line), L"abc  ");
  EXPECT_EQ(line[4].attribute, 0x1B);
  line.SetLength(2);
  EXPECT_EQ(TextOf(line), L"ab");
  line.SetLength(-4);
  EXPECT_EQ(line.Length(), 0);
}

TEST(CellStrings, PadFillsACopyInTheSourcesAttribute) {
  const CellString line(L"abc", 0x1B);
  const CellString padded = Pad(line, 30);
  EXPECT_EQ(padded.Length(), 30);
  EXPECT_EQ(padded[29], (Cell{' ', 0x1B}));
  EXPECT_EQ(line.Length(), 3);
  EXPECT_EQ(TextOf(Pad(line, 2)), L"abc");
}

TEST(CellStrings, ATerminatorIsNotPartOfTheLength) {
  CellString line(L"abc", 7);
  line.Terminate();
  EXPECT_EQ(line.Length(), 3);
  EXPECT_EQ(CellsLength(line.Cells()), 3);
}

TEST(CellStrings, EqualMeansCharacterAndAttribute) {
  const CellString a(L"abc", 1), b(L"abc", 2);
  EXPECT_TRUE(CellsEqual(a.Cells(), a.Cells(), 3));
  EXPECT_FALSE(CellsEqual(a.Cells(), b.Cells(), 3));
  EXPECT_TRUE(CellsEqual(a.Cells(), b.Cells(), 0));
}
