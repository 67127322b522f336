// A check box for each question that can be switched off.
#include "shell/confirmations_dialog.h"

#include <iterator>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "dialogs/dialog.h"
#include "dialogs/help.h"

namespace {

constexpr int kTop = 5, kWidth = 44, kHeight = 14;
constexpr int kColumn = 1, kFirstRow = 1, kRowsOfQuestion = 2, kButtonRow = 11;

// In the order of the option's bits.
constexpr const char* kQuestions[] = {
    "_Delete File/Empty Directory",
    "Delete _Tagged Files",
    "Delete _Non-empty Directory",
    "_Quit Orvane",
    "\"_YES\" prompt for Non-Empty Directory",
};
constexpr int kQuestionCount = static_cast<int>(std::size(kQuestions));

constexpr ButtonRow kButtons[] = {{kEnter, "_OK"}, {kEscape, "Cancel"}, {FKey(1), "Help"}, {0, nullptr}};

}  // namespace

void ConfirmationsDialog() {
  // A bit that is set spares the user the question.
  auto spared = static_cast<unsigned>(Options::Confirmations);
  bool asks[kQuestionCount];
  Dialog dialog(-1, kTop, kWidth, kTop + kHeight - 1, Options::Colours[kColourMessages]);
  dialog.PrintCentred(-1, L" Confirmations ");
  for (int i = 0; i < kQuestionCount; ++i) {
    asks[i] = (spared & 1u << i) == 0;
    dialog.AddCheckBox(kColumn, kFirstRow + i * kRowsOfQuestion, i == 0, &asks[i], kQuestions[i], true);
  }
  dialog.AddButtons(-1, kButtonRow, true, kButtons);
  if (RunWithHelp(dialog, kHelpConfirmations) == static_cast<int>(kEscape)) return;
  for (int i = 0; i < kQuestionCount; ++i) spared = asks[i] ? spared & ~(1u << i) : spared | 1u << i;
  Options::Confirmations = static_cast<int>(spared);
}
