// The question of a command's macro: a field under its title.
#include "shell/macro_prompt.h"

#include <algorithm>

#include "config/values/colours.h"
#include "console/console.h"
#include "dialogs/dialog.h"
#include "dialogs/dialog_history.h"

namespace {

constexpr int kBesideTitle = 8;
constexpr int kLeastWidth = 20, kMostTyped = 512;
constexpr int kFrame = 2, kMargin = 2, kFieldRow = 1, kRows = 3;

}  // namespace

bool AskForMacro(const Westring& title, Westring& answer) {
  const Westring shown = Left(title, std::max(ScreenColumns - kBesideTitle, 0));
  const int width = std::max(Length(shown), kLeastWidth);
  Dialog dialog(-1, -3, width + 2 * kMargin + kFrame, kRows + kFrame, Options::Colours[kColourMessages]);
  dialog.PrintCentred(-1, L" " + shown + L" ");
  dialog.AddStringField(kMargin, kFieldRow, true, &answer, width, kMostTyped, kNoHistory);
  return dialog.Run() != static_cast<int>(kEscape);
}
