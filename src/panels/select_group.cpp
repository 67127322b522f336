// Tagging by expression: the dialog, and the pass through the list.
#include "panels/select_group.h"

#include "config/values/colours.h"
#include "config/values/options.h"
#include "dialogs/dialog.h"
#include "dialogs/dialog_history.h"
#include "dialogs/prompt.h"
#include "panels/expression.h"
#include "panels/tags.h"

namespace {

constexpr int kTop = 6, kWidth = 34, kHeight = 10;
constexpr int kColumn = 1, kTitleRow = 1, kFieldRow = 2, kLabelRow = 3, kLabelColumn = 19, kButtonRow = 5;
constexpr int kFieldWidth = 30;  // and the arrow of its history
constexpr int kLongestExpression = 511;

// What is selected by; both commands and both panels go on from the last one.
Westring TheExpression = L"*";

Estring Title(int mode, bool includeDirs) {
  return Estring::Format("%s the files%-12s", mode > 0 ? "Select" : "Unselect",
                         includeDirs ? "/directories" : "");
}

// False, with nothing changed, where the user gave up.
bool AskExpression(int mode, bool& includeDirs) {
  Westring expression = TheExpression;
  Dialog dialog(-1, kTop, kWidth, kTop + kHeight - 1, Options::Colours[kColourMessages]);
  dialog.AddStringField(kColumn, kFieldRow, true, &expression, kFieldWidth, kLongestExpression,
                        kHistorySelectGroup);
  dialog.PrintBytes(kLabelColumn, kLabelRow, " Alt-D=Dirs ");
  dialog.AddExitKey(kAltD);
  dialog.AddOkCancel(-1, kButtonRow, true);
  for (;;) {
    dialog.PrintBytes(kColumn, kTitleRow, Title(mode, includeDirs).Text());
    const int result = dialog.Run();
    if (result == static_cast<int>(kEscape)) return false;
    if (result == static_cast<int>(kAltD)) {
      includeDirs = !includeDirs;
    } else if (HasSyntaxError(expression)) {
      Prompt(L"Syntax error in search expression", expression, kPromptOk);
    } else {
      TheExpression = expression;
      return true;
    }
  }
}

// What has the tag already, or lacks it, is left without evaluating anything.
void TagMatching(TPanel& panel, int mode, bool includeDirs) {
  const bool tag = mode > 0;
  const wchar_t* const expression = TheExpression.Text();
  for (int i = 0; i < panel.count; ++i) {
    const entry& e = *panel.entries[i];
    if ((e.tagged != 0) == tag || (e.IsDirectory() && !includeDirs)) continue;
    if (tag && IsSystemFile(e.name)) continue;
    if (MatchEntry(expression, e) > 0) Tag(panel, i, mode);
  }
}

}  // namespace

void SelectGroup(TPanel& panel, int mode, bool shift) {
  bool includeDirs = mode < 0 || Options::TagDirs != shift;
  if (AskExpression(mode, includeDirs)) TagMatching(panel, mode, includeDirs);
}
