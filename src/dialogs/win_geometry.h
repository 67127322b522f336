// The arithmetic of windows, apart from any screen: places, attributes and the
// breaking of lines.
#pragma once

#include <cstdint>

#include "console/cell.h"

// Turns the corners that a Win is made with into screen cells: a negative left
// centres a window whose width is right, a negative top puts one whose height
// is bottom at that fraction of the free rows. A window that is larger than
// the screen starts in its first row or column; one without a size is a cell.
CellRect PlaceWindow(int left, int top, int right, int bottom, int screenColumns, int screenRows);

// A shadow takes two columns on the right and a row below; it is thrown whole
// or not at all.
CellRect WithShadow(const CellRect& window);
bool HasRoomForShadow(const CellRect& window, int screenColumns, int screenRows);
uint8_t ShadowAttribute(uint8_t attribute);

// What the hot letter of a text in attribute is shown in.
uint8_t HighlightAttribute(uint8_t attribute);

// Index of the first place of letter in bytes, as a capital if there is one,
// or else small; -1 for none.
int FindLetter(const char* bytes, char letter);

// Characters of text that go on a line of width cells: all of them if they are
// at most width + 1, otherwise those before the last blank of the first
// width + 1, or width of them if there is no blank.
int WrappedLength(const wchar_t* text, int width);
