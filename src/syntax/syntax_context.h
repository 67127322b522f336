// In which states an item of a definition applies.
#pragma once

#include "foundation/collections.h"

class CSyntaxElement;

// The names of the states.
class CSyntaxContext : public StringCollection {
 public:
  // list is a comma-separated one; null where the line gave none, which means the
  // top level only. An empty name in it means the top level, "*" everywhere.
  void Set(const Estring* list);

  // current is the element that is open, null for none.
  bool ValidIn(const CSyntaxElement* current) const;

  bool TopLevel = true;
  bool Everywhere = false;
};
