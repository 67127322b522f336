// The functions of Dialog that make its plain elements.
#include <algorithm>

#include "dialogs/dialog.h"
#include "dialogs/elements.h"

int Dialog::AddStaticText(int x, int y, const char* bytes, uint8_t attribute) {
  return Add(new StaticText(*this, count, x, y, bytes, attribute));
}

int Dialog::AddButton(int x, int y, bool startGroup, Key code, const char* label) {
  const int added = Add(new PushButton(*this, count, x, y, startGroup, code, label));
  if (added >= 0 && defaultResult == 0) defaultResult = static_cast<int32_t>(code);
  return added;
}

int Dialog::AddButtons(int x, int y, bool startGroup, const ButtonRow* table) {
  if (x < 0) x = std::max((InnerWidth() - ButtonRowCells(table)) / 2, 0);
  if (y < 0) y += InnerHeight();
  int first = -1;
  for (const ButtonRow* row = table; row->code != 0; ++row) {
    const int added = AddButton(x, y, startGroup && row == table, row->code, row->label);
    if (row == table) first = added;
    x += ButtonStep(row->label);
  }
  return first;
}

int Dialog::AddOkCancel(int x, int y, bool startGroup) {
  static constexpr ButtonRow kOkCancel[] = {{kEnter, "_OK"}, {kEscape, "Cancel"}, {0, nullptr}};
  return AddButtons(x, y, startGroup, kOkCancel);
}

int Dialog::AddExitKey(Key code) { return Add(new ExitKey(*this, count, code)); }

int Dialog::AddProgressIndicator(int x, int y, int width, const float* fraction) {
  return Add(new ProgressIndicator(*this, count, x, y, fraction, width));
}
