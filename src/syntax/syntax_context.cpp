// In which states an item applies; see syntax_context.h.
#include "syntax/syntax_context.h"

#include "syntax/syntax_element.h"

void CSyntaxContext::Set(const Estring* list) {
  Clear();
  TopLevel = list == nullptr;
  Everywhere = false;
  if (list == nullptr) return;
  // The comma ends the last name, so that an empty one counts there as well.
  AddList(*list + ",");
  int64_t index = 0;
  const Estring topLevel, everywhere("*");
  TopLevel = Search(&topLevel, index) == 0;
  Everywhere = Search(&everywhere, index) == 0;
}

bool CSyntaxContext::ValidIn(const CSyntaxElement* current) const {
  if (Everywhere) return true;
  if (current == nullptr) return TopLevel;
  int64_t index = 0;
  return Count() > 0 && Search(&current->Name, index) == 0;
}
