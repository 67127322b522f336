// Asking for the filter of a panel.
#include "shell/filter_dialog.h"

#include "config/values/colours.h"
#include "dialogs/dialog.h"
#include "dialogs/dialog_history.h"
#include "dialogs/prompt.h"
#include "panels/expression.h"
#include "panels/panel.h"

namespace {

constexpr int kTop = 5, kWidth = 76, kHeight = 8;
constexpr int kColumn = 1, kLabelRow = 1, kFieldRow = 2, kButtonRow = 4;
constexpr int kFieldWidth = 72;  // and the arrow of its history

// In UTF-8 well within a line of the settings file.
constexpr int kLongestFilter = 511;

}  // namespace

bool FilterDialog(int side) {
  TPanel& panel = Panels[side];
  Westring filter = panel.filter;
  Dialog dialog(-1, kTop, kWidth, kTop + kHeight - 1, Options::Colours[kColourMessages]);
  dialog.PrintBytes(kColumn, kLabelRow,
                    Estring::Format("Filter for %s panel", side == 0 ? "left" : "right").Text());
  dialog.AddStringField(kColumn, kFieldRow, true, &filter, kFieldWidth, kLongestFilter, kHistoryFilter);
  dialog.AddOkCancel(-1, kButtonRow, true);
  while (dialog.Run() != static_cast<int>(kEscape)) {
    if (!HasSyntaxError(filter)) {
      panel.filter = filter;
      return true;
    }
    Prompt(L"Syntax error in expression", filter, kPromptOk);
  }
  return false;
}
