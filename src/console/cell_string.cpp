// A growable line of cells.
#include "console/cell_string.h"

#include <algorithm>
#include <climits>
#include <cwchar>
#include <memory>

CellString::CellString() : p(inlineCells) {}

CellString::CellString(int size) : CellString() {
  if (size > capacity) {
    p = new Cell[size];
    capacity = size;
  }
}

CellString::CellString(const wchar_t* text, uint8_t attribute) : CellString() {
  this->attribute = attribute;
  Append(text, attribute);
}

CellString::CellString(const CellString& other) : CellString() { *this = other; }

CellString& CellString::operator=(const CellString& other) {
  if (this == &other) return *this;
  attribute = other.attribute;
  Assign(other.p, other.length);
  return *this;
}

CellString::~CellString() {
  if (p != inlineCells) delete[] p;
}

void CellString::Assign(const Cell* cells, int n) {
  n = std::max(n, 0);
  if (n <= capacity) {
    std::copy_n(cells, n, p);  // to the front, so a part of our own cells may be handed in
  } else {
    Cell* exact = new Cell[n];
    std::copy_n(cells, n, exact);
    if (p != inlineCells) delete[] p;
    p = exact;
    capacity = n;
  }
  length = n;
}

void CellString::EnsureCapacity(int needed) {
  if (needed <= capacity) return;
  const int larger = needed > INT_MAX - needed / 2 ? INT_MAX : needed + needed / 2;
  Cell* grown = new Cell[larger];
  std::copy_n(p, length, grown);
  if (p != inlineCells) delete[] p;
  p = grown;
  capacity = larger;
}

void CellString::Append(const Cell& cell) {
  const Cell copy = cell;  // it may be one of our own, which growing moves
  EnsureCapacity(length + 1);
  p[length++] = copy;
}

void CellString::Append(wchar_t character) { Append(Cell{character, attribute}); }

void CellString::Append(const Cell* cells, int n) {
  if (n < 0) n = CellsLength(cells);
  const bool own = cells >= p && cells < p + capacity;
  const auto offset = own ? cells - p : 0;
  EnsureCapacity(length + n);
  std::copy_n(own ? p + offset : cells, n, p + length);
  length += n;
}

void CellString::Append(const wchar_t* text, uint8_t textAttribute, int n) {
  const int available = static_cast<int>(n < 0 ? wcslen(text) : wcsnlen(text, n));
  EnsureCapacity(length + available);
  for (int i = 0; i < available; ++i) p[length++] = Cell{text[i], textAttribute};
}

void CellString::Append(const CellString& other) { Append(other.p, other.length); }

void CellString::SetLength(int n) {
  n = std::max(n, 0);
  EnsureCapacity(n);
  if (n > length) std::fill(p + length, p + n, Cell{' ', attribute});
  length = n;
}

CellString Pad(const CellString& source, int width) {
  CellString padded(std::max(width, source.Length()));
  padded = source;
  if (width > padded.Length()) padded.SetLength(width);
  return padded;
}

int CellsLength(const Cell* zeroEnded) {
  int n = 0;
  while (zeroEnded[n].character != 0) ++n;
  return n;
}

bool CellsEqual(const Cell* a, const Cell* b, int n) { return std::equal(a, a + n, b); }
