// Plain text output at the cursor, as a printing terminal would do it.
#pragma once

#include "console/cell.h"
#include "console/cell_string.h"
#include "foundation/strings.h"

// What the teletype prints on.
class TeletypeScreen {
 public:
  virtual ~TeletypeScreen() = default;
  virtual int Columns() const = 0;
  virtual int Rows() const = 0;
  virtual void LoadRow(int y, CellString& row) const = 0;  // row is empty
  virtual void StoreRow(int y, const CellString& row) = 0;
  virtual void ScrollUpOneRow(uint8_t attribute) = 0;  // row 0 is lost
};

// Prints text from (x, y), which become the place behind it. Rows that scroll
// off go to ScrollBack.
void PrintText(TeletypeScreen& screen, const Westring& text, uint8_t attribute, int& x, int& y);
