// Win: a rectangle of the screen that saves what it covers and puts it back
// when it dies. Its lifetime is the window's lifetime on the screen.
#pragma once

#include <cstdint>
#include <memory>

#include "console/cell.h"
#include "console/cell_string.h"
#include "foundation/strings.h"

class Win {
 public:
  // Outer corners, inclusive. A negative left centres a window whose width is
  // right; a negative top puts a window whose height is bottom at that fraction
  // of the free rows (-2 the middle, -3 a third down). A negative attribute
  // leaves the inside as it is; a frameAttribute of 0 or more draws a frame.
  Win(int left, int top, int right, int bottom, int attribute, int frameAttribute = -1,
      bool noShadow = false);
  virtual ~Win();
  Win(const Win&) = delete;
  Win& operator=(const Win&) = delete;

  // Swaps screen and saved block: the window vanishes or comes back.
  void SetHidden(bool hide);
  bool IsHidden() const { return hidden; }

  int Left() const { return left; }
  int Top() const { return top; }
  int Right() const { return right; }
  int Bottom() const { return bottom; }
  int OriginX() const { return originX; }
  int OriginY() const { return originY; }
  int InnerWidth() const;
  int InnerHeight() const;
  uint8_t Attribute() const { return attribute; }
  bool HasShadow() const { return hasShadow; }

  // Writing, relative to the inside. Without a position: at the cursor, which
  // advances. Without an attribute: in the window's.
  void Print(int x, int y, const Westring& text, uint8_t attribute);
  void Print(int x, int y, const Westring& text);
  void Print(const Westring& text);
  void Print(const Westring& text, uint8_t attribute);
  void PrintBytes(int x, int y, const char* bytes, uint8_t attribute);  // in the console's code page
  void PrintBytes(int x, int y, const char* bytes);
  void PrintCentred(int y, const Westring& text, uint8_t attribute);
  void PrintCentred(int y, const Westring& text);
  void PrintCentredBytes(int y, const char* bytes, uint8_t attribute);
  void PrintCells(int x, int y, const Cell* zeroEnded);
  void PrintCellString(int x, int y, CellString& line);  // gives the line its end
  // In rows, broken at blanks: the first from column x on, the others from 0. A
  // last row may be one longer than the inside is wide.
  void PrintWrapped(int x, int y, const Westring& text);
  // The bytes, then the first place of each of letters highlighted.
  void PrintHighlighted(int x, int y, const char* bytes, const char* letters, uint8_t attribute);
  void GotoXY(int x, int y);                                    // and the console's cursor
  void Scroll(int x, int y, int width, int height, int lines);  // positive up
  void Clear();
  void Clear(int topMargin, int bottomMargin);  // rows at both ends that stay
  // From the cursor to the end of the line; a window without a frame keeps its
  // last column.
  void ClearToEnd(uint8_t attribute);

 protected:
  std::unique_ptr<Cell[]> savedCells;
  int32_t left, top, right, bottom;
  int32_t originX, originY;
  int32_t cursorX = 0, cursorY = 0;
  uint8_t attribute;
  bool hasShadow = false, hasFrame = false, hidden = false;

 private:
  CellRect Covered() const;  // with the shadow
};
