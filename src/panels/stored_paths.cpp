// The box of the ten stored directories.
#include "panels/stored_paths.h"

#include <algorithm>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "console/console.h"
#include "dialogs/list_box.h"
#include "dialogs/prompt.h"
#include "foundation/environment.h"
#include "foundation/paths.h"
#include "panels/navigation.h"

namespace {

constexpr wchar_t kTitle[] = L" Stored Paths ";
constexpr int kBesidePath = 6;  // frame, the number and what follows it
constexpr int kWidest = 76;
constexpr int kFrame = 2;

// As wide as the longest path asks for, and so that the title has frame beside it.
int BoxWidth() {
  int longest = Length(kTitle) + kFrame + 2 - kBesidePath;
  for (const Westring& path : StoredDirectories) longest = std::max(longest, Length(path));
  return std::min({longest + kBesidePath, kWidest, ScreenColumns});
}

Westring RowText(int number, int width) {
  const Westring& path = StoredDirectories[number];
  return Westring(Estring::Format("%d - ", number)) + (path.IsEmpty() ? L"Empty" : ShortenPath(path, width));
}

// False where the row is empty or leads nowhere; the user is told of the latter.
bool Open(TPanel& panel, int number) {
  if (StoredDirectories[number].IsEmpty()) return false;
  const Westring target = ExpandEnvironment(StoredDirectories[number]);
  if (ChangeDirectory(panel, target)) return true;
  Prompt(L"Invalid directory", target, kPromptOk);
  return false;
}

enum class BoxEnd { Chosen, Left, RowsChanged };

// row: the one with the cursor, before and after.
BoxEnd ShowBox(TPanel& panel, int32_t& row) {
  const int width = BoxWidth();
  WestringStore rows;
  for (int i = 0; i < kStoredDirectories; ++i) rows.Add(RowText(i, width - kBesidePath));
  Dialog dialog(-1, -3, width, kStoredDirectories + kFrame, Options::Colours[kColourMenu]);
  dialog.PrintCentred(-1, kTitle);
  dialog.AddListBoxWestring(0, 0, true, width - kFrame, kStoredDirectories, &rows, &row, kListAnyKey);

  for (;;) {
    const int key = dialog.Run();
    const bool isDigit = key >= '0' && key <= '9';
    if (isDigit) row = key - '0';
    if (key == kEscape) return BoxEnd::Left;
    if ((isDigit || key == kEnter) && Open(panel, row)) return BoxEnd::Chosen;
    if (key != kInsert && key != kDelete) continue;
    StoredDirectories[row] = key == kInsert ? panel.path : L"";
    return BoxEnd::RowsChanged;
  }
}

}  // namespace

bool StoredPaths(TPanel& panel) {
  int32_t row = 0;
  BoxEnd end = BoxEnd::RowsChanged;
  while (end == BoxEnd::RowsChanged) end = ShowBox(panel, row);
  return end == BoxEnd::Chosen;
}
