// The question before a tree goes; see tree_question.h.
#include "fileops/tree_question.h"

#include <algorithm>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "dialogs/dialog.h"
#include "dialogs/dialog_history.h"
#include "fileops/shown_path.h"

namespace {

constexpr int kButtonsInsteadOfWord = 16;  // in Options::Confirmations
constexpr int kHeight = 7, kLeastWidth = 27, kBesideText = 4;
constexpr int kAnswerRow = 4;

constexpr ButtonRow kButtons[] = {{'y', "_OK"}, {'n', "Cancel"}, {'a', "All"}, {0, nullptr}};

constexpr char kWordLabel[] = "Type \"YES\"";
constexpr int kLabelCells = 10, kWordCells = 4;

TreeAnswer AskByButtons(Dialog& dialog) {
  dialog.AddButtons(-1, kAnswerRow, true, kButtons);
  const int answer = dialog.Run();
  if (answer == 'a') return TreeAnswer::All;
  return answer == 'y' ? TreeAnswer::Yes : TreeAnswer::No;
}

TreeAnswer AskByWord(Dialog& dialog) {
  Westring word;
  const int x = (dialog.InnerWidth() - kLabelCells - 1 - kWordCells) / 2;
  dialog.PrintBytes(x, kAnswerRow, kWordLabel);
  dialog.AddStringField(x + kLabelCells + 1, kAnswerRow, true, &word, kWordCells, kWordCells, kNoHistory);
  const bool accepted = dialog.Run() == static_cast<int>(kEnter);
  return accepted && word == L"YES" ? TreeAnswer::Yes : TreeAnswer::No;
}

}  // namespace

TreeAnswer AskForTree(const Westring& path) {
  const Westring shown = ShownPath(path);
  const int width = std::max(kLeastWidth, Length(shown)) + kBesideText;
  Dialog dialog(-1, -3, width, kHeight, Options::Colours[kColourErrors]);
  dialog.PrintCentred(0, L"Directory");
  dialog.PrintCentred(1, shown);
  dialog.PrintCentred(2, L"is not empty");
  dialog.PrintCentred(3, L"Delete tree?");
  return Options::Confirmations & kButtonsInsteadOfWord ? AskByButtons(dialog) : AskByWord(dialog);
}
