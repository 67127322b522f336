// The measures of push buttons and of rows of them.
#include "dialogs/button_row.h"

#include <cstring>

namespace {

constexpr int kBrackets = 4;  // "[ " and " ]"
constexpr int kSeparation = 2;

}  // namespace

int ButtonCells(const char* label) {
  const int length = static_cast<int>(strlen(label)) + kBrackets;
  return strchr(label, kHotMark) == nullptr ? length : length - 1;
}

int ButtonStep(const char* label) { return ButtonCells(label) + kSeparation; }

int ButtonRowCells(const ButtonRow* table) {
  int cells = 0;
  for (const ButtonRow* row = table; row->code != 0; ++row) cells += ButtonStep(row->label);
  return cells == 0 ? 0 : cells - kSeparation;
}
