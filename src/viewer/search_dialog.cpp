// The dialog that asks for what is searched for and how.
#include "config/values/colours.h"
#include "dialogs/dialog.h"
#include "dialogs/dialog_history.h"
#include "viewer/search_settings.h"

namespace {

constexpr int kWidth = 65, kHeight = 7;
constexpr int kColumn = 1, kLabelRow = 0, kFieldRow = 1, kFieldWidth = 40;
constexpr int kOkColumn = 10, kButtonRow = 4;
constexpr int kBoxColumn = 43, kFirstBoxRow = 1;
constexpr int kNoLimit = -1;

// What the dialog works on, so that Esc leaves the settings alone.
struct Answers {
  Westring text = SearchString;
  bool caseSensitive = CaseSensitive, reverse = Reverse, wholeWord = WholeWord;

  void Store() const {
    SearchString = text;
    CaseSensitive = caseSensitive;
    Reverse = reverse;
    WholeWord = wholeWord;
  }
};

void AddBoxes(Dialog& dialog, Answers& answers) {
  const struct {
    bool* value;
    const char* label;
  } rows[] = {
      {&answers.caseSensitive, "Case Sensitive"},
      {&answers.reverse, "Reverse"},
      {&answers.wholeWord, "Whole Word"},
  };
  int y = kFirstBoxRow;
  for (const auto& row : rows) {
    dialog.AddCheckBox(kBoxColumn, y, y == kFirstBoxRow, row.value, row.label, true);
    ++y;
  }
}

}  // namespace

bool SearchDialog() {
  Answers answers;
  Dialog dialog(-1, -3, kWidth, kHeight, Options::Colours[kColourMessages]);
  dialog.PrintHighlighted(kColumn, kLabelRow, "Search for:", "s", dialog.Colour(kDialogText));
  dialog.AddStringField(kColumn, kFieldRow, true, &answers.text, kFieldWidth, kNoLimit, kHistorySearch);
  dialog.AddOkCancel(kOkColumn, kButtonRow, true);
  AddBoxes(dialog, answers);
  dialog.SetHotLetters("so", 2);
  if (dialog.Run() == kEscape) return false;
  answers.Store();
  return true;
}
