// A growable line of cells.
#pragma once

#include "console/cell.h"
#include "foundation/strings.h"

// Keeps up to 20 cells inside. No terminator unless a caller appends one.
class CellString {
 public:
  static constexpr int kInlineCells = 20;

  CellString();
  explicit CellString(int size);  // room for size cells
  CellString(const wchar_t* text, uint8_t attribute);
  CellString(const CellString& other);
  CellString& operator=(const CellString& other);
  ~CellString();

  const Cell* Cells() const { return p; }
  Cell* Cells() { return p; }
  Cell& operator[](int i) { return p[i]; }
  const Cell& operator[](int i) const { return p[i]; }
  int Length() const { return length; }
  int Capacity() const { return capacity; }

  void Assign(const Cell* cells, int n);  // exact size
  void Append(const Cell& cell);
  void Append(wchar_t character);          // in the default attribute
  void Append(const Cell* cells, int n);   // a negative n: up to a zero cell
  // A negative n, or one past the text, takes all of it.
  void Append(const wchar_t* text, uint8_t attribute, int n = -1);
  void Append(const CellString& other);
  void SetLength(int n);  // new cells are blanks in the default attribute
  void Terminate() { Append(Cell{0, attribute}); --length; }

  uint8_t attribute = 7;  // default for text appended without one

 private:
  void EnsureCapacity(int needed);  // grows to needed + needed / 2

  Cell inlineCells[kInlineCells];
  Cell* p;
  int32_t length = 0;
  int32_t capacity = kInlineCells;
};

// A copy filled to width with blanks in the source's default attribute.
CellString Pad(const CellString& source, int width);
int CellsLength(const Cell* zeroEnded);
bool CellsEqual(const Cell* a, const Cell* b, int n);
