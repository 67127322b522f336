// Prompt: the message box of the whole program.
#include "dialogs/prompt.h"

#include <algorithm>
#include <iterator>

#include "config/values/colours.h"
#include "console/console.h"
#include "dialogs/dialog.h"
#include "dialogs/prompt_layout.h"
#include "foundation/std_file.h"

namespace {

constexpr int kSetMask = 15;

// A button's code is its letter, so that the letter alone presses it.
constexpr ButtonRow kOk[] = {{'y', "_OK"}, {0, nullptr}};
constexpr ButtonRow kOkCancel[] = {{'y', "_OK"}, {kEscape, "Cancel"}, {0, nullptr}};
constexpr ButtonRow kAllNone[] = {{'y', "_OK"}, {kEscape, "Cancel"}, {'s', "Skip"},
                                  {'a', "All"}, {'e', "None"},       {0, nullptr}};
constexpr ButtonRow kRetry[] = {{'r', "Retry"}, {'s', "Skip"}, {kEscape, "Cancel"}, {0, nullptr}};
constexpr ButtonRow kAllOlder[] = {{'y', "_OK"},  {kEscape, "Cancel"}, {'s', "Skip"}, {'a', "All"},
                                   {'e', "None"}, {'d', "All Older"},  {0, nullptr}};
constexpr ButtonRow kNoButtons[] = {{0, nullptr}};

struct PromptSet {
  const ButtonRow* buttons;
  int cells;  // what the box is at least wide for
  const char* hotLetters;
  int hotLetterCount;
};

// By the low bits of the flags; the last row is for all that are higher.
constexpr PromptSet kSets[] = {
    {kOk, 8, "o", 1},      {kOkCancel, 20, "o", 1},       {kAllNone, 50, "o\0sae", 5},
    {kRetry, 33, "rs", 2}, {kAllOlder, 61, "o\0saed", 6}, {kNoButtons, 0, "o", 1},
};

const PromptSet& SetOf(int flags) {
  return kSets[std::min(flags & kSetMask, static_cast<int>(std::size(kSets)) - 1)];
}

}  // namespace

int Prompt(const Westring& text, const Westring& detail, int flags) {
  const PromptSet& set = SetOf(flags);
  const PromptLayout layout = LayOutPrompt(text, detail, set.cells, ScreenColumns);
  const ColourName colour = (flags & kPromptMessage) != 0 ? kColourMessages : kColourErrors;
  Dialog dialog(-1, -3, layout.width, layout.height, Options::Colours[colour]);
  int row = 0;
  for (const Westring& line : layout.lines) dialog.PrintCentred(row++, line);
  dialog.PrintCentred(row, layout.detail);
  dialog.SetHotLetters(set.hotLetters, set.hotLetterCount);
  dialog.AddButtons(-1, row + 1, true, set.buttons);
  const int answer = PromptAnswer(dialog.Run());
  // Whatever ended a box without buttons, nothing was agreed to.
  const bool hasButtons = set.buttons->code != 0;
  return hasButtons ? answer : static_cast<int>(kEscape);
}

int PromptForFile(StdFile* file, const Westring& text, const Westring& detail, int flags) {
  if (file != nullptr) file->Close();
  return Prompt(text, detail, flags);
}
