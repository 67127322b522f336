// Asking for a file; see file_question.h.
#include "dialogs/file_question.h"

#include "config/values/colours.h"
#include "dialogs/dialog.h"
#include "dialogs/dialog_history.h"

namespace {

constexpr int kTop = 6, kWidth = 74, kHeight = 9;
constexpr int kColumn = 1, kLabelRow = 1, kFieldRow = 3, kButtonRow = 5;
constexpr int kFieldWidth = 70, kLongestName = 512;

}  // namespace

bool AskForFile(const char* label, Westring& name) {
  Dialog dialog(-1, kTop, kWidth, kTop + kHeight - 1, Options::Colours[kColourMessages]);
  dialog.PrintBytes(kColumn, kLabelRow, label);
  dialog.AddStringField(kColumn, kFieldRow, true, &name, kFieldWidth, kLongestName, kNoHistory);
  dialog.AddOkCancel(-1, kButtonRow, true);
  return dialog.Run() == static_cast<int>(kEnter);
}
