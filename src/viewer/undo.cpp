// Deep copies of undo stacks.
#include "viewer/undo.h"

void TUndoStack::CopyFrom(const TUndoStack& other) {
  Clear();
  for (int i = 0; i < other.Count(); ++i) Append(new UndoItem(*other.Peek(i)));
}
