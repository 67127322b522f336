// The measures of push buttons and of rows of them.
#pragma once

#include "console/key_codes.h"

// Marks the hot letter in a label; takes no cell itself.
constexpr char kHotMark = '_';

struct ButtonRow {
  Key code;  // 0 ends a table
  const char* label;
};

int ButtonCells(const char* label);          // the face, without the blanks between buttons
int ButtonStep(const char* label);           // from a button to the next one
int ButtonRowCells(const ButtonRow* table);  // 0 for an empty table
