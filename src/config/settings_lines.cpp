// Lines of the settings file; see settings_lines.h.
#include "config/settings_lines.h"

bool SettingsLines::Next() {
  int length = 0;
  bool anything = false;
  for (;;) {
    char c = 0;
    if (file.Read(&c, 1) != 0) break;
    const bool restOfLineEnd = afterReturn && c == '\n';
    afterReturn = c == '\r';
    if (restOfLineEnd) continue;
    anything = true;
    if (c == '\n' || c == '\r' || c == 0) break;
    if (length < kLongestSettingsLine) line[length++] = c;
  }
  line[length] = 0;
  return anything;
}
