// Undo of the editor: a range is replaced by a text.
#pragma once

#include <cstdint>

#include "foundation/collections.h"

struct TextPosition {
  int32_t column = 0, line = 0;
};

struct TextRange {
  int32_t startLine = 0, startColumn = 0, endLine = 0, endColumn = 0;  // the end is exclusive
};

struct UndoItem {
  Westring Text;                             // what the edit removed, lines separated by "\n"
  TextPosition Before, After;                // the cursor's
  TextRange Range;                           // what the edit put in its place
  bool CursorAtEnd = false, Active = false;  // of the block
};

class TUndoStack : public TObjectStore<UndoItem> {
 public:
  void CopyFrom(const TUndoStack& other);  // deep
};
