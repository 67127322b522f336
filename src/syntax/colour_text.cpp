// Colours in words, as the syntax file has them.
#include "config/values/colours.h"
#include "syntax/syntax_definition.h"

uint8_t ParseColourText(const char* text, uint8_t base) {
  return ApplyColourText(base, Westring(text).Text());
}
