// The lists of earlier commands and directories; see history_dialogs.h.
#include "shell/history_dialogs.h"

#include <algorithm>

#include "config/values/colours.h"
#include "console/console.h"
#include "dialogs/dialog.h"
#include "dialogs/dialog_history.h"
#include "dialogs/help.h"
#include "dialogs/list_box.h"
#include "dialogs/prompt.h"
#include "foundation/paths.h"
#include "panels/navigation.h"
#include "shell/execute.h"
#include "shell/history.h"
#include "shell/history_file.h"

namespace {

constexpr int kFrame = 2;
constexpr int kFreeColumns = 7;  // of the screen, beside the list
constexpr int kFreeRows = 5;

int Longest(const WestringStore& texts) {
  int longest = 0;
  for (int i = 0; i < texts.Count(); ++i) longest = std::max(longest, Length(*texts.Peek(i)));
  return longest;
}

int FitList(int width) { return std::max(std::min(width, ScreenColumns - kFreeColumns), 1); }

// A box with nothing but a list. The rows are the caller's.
class HistoryBox : public Dialog {
 public:
  HistoryBox(const wchar_t* title, WestringStore& rows, int width, int32_t* row)
      : HistoryBox(title, rows, width, std::max(std::min(rows.Count(), ScreenRows - kFreeRows), 1), row) {}

 private:
  HistoryBox(const wchar_t* title, WestringStore& rows, int width, int height, int32_t* row)
      : Dialog(-1, -3, width + kFrame, height + kFrame, Options::Colours[kColourMenu]) {
    PrintCentred(-1, title);
    AddListBoxWestring(0, 0, true, width, height, &rows, row, kListDefault);
  }
};

// ---- commands

constexpr int kLeastCommandWidth = 8;

int WidthOfCommands() {
  const int widest = std::max(Longest(CommandHistory), kLeastCommandWidth);
  return FitList(widest + widest % 2 + 2);
}

// What was searched for, for the next time.
Westring SearchedText;

bool AskSearchedText() {
  constexpr int kWidth = 60, kHeight = 4, kFieldWidth = 55, kLongest = 512;
  Westring text = SearchedText;
  Dialog dialog(-1, -3, kWidth, kHeight, Options::Colours[kColourMessages]);
  dialog.AddStaticText(1, 0, "Search:");
  dialog.AddStringField(1, 1, true, &text, kFieldWidth, kLongest, kNoHistory);
  if (dialog.Run() == static_cast<int>(kEscape)) return false;
  SearchedText = text;
  return !text.IsEmpty();
}

// One visit to the list of commands. A command is run when the box has gone.
class CommandVisit {
 public:
  CommandVisit(Westring& line, int& lineCursor) : commandLine(line), cursor(lineCursor) {}

  // 2 where chosen is to be run, otherwise as HistoryDialog.
  int Show() {
    row = CommandHistory.Count() - 1;
    Next next = Next::kRebuild;
    while (next == Next::kRebuild && CommandHistory.Count() > 0) next = ShowBox();
    return result;
  }

  Westring chosen;
  bool separate = false;

 private:
  enum class Next { kStay, kRebuild, kLeave };

  struct KeyRow {
    Key key;
    Next (CommandVisit::*act)();
  };
  static const KeyRow kKeys[];

  Next ShowBox() {
    HistoryBox box(L" History ", CommandHistory, WidthOfCommands(), &row);
    for (const KeyRow* known = kKeys; known->act; ++known) box.AddExitKey(known->key);
    Next next = Next::kStay;
    while (next == Next::kStay) next = Act(static_cast<Key>(box.Run()));
    return next;
  }

  Next Act(Key key) {
    for (const KeyRow* known = kKeys; known->act; ++known)
      if (known->key == key) return (this->*known->act)();
    return Next::kLeave;
  }

  Next Choose(bool apart) {
    chosen = *CommandHistory.Peek(row);
    separate = apart;
    result = kRedrawAll;
    return Next::kLeave;
  }
  Next Run() { return Choose(false); }
  Next RunSeparate() { return Choose(true); }

  Next CopyToLine() {
    commandLine = *CommandHistory.Peek(row);
    cursor = Length(commandLine);
    result = kRedrawLine;
    return Next::kLeave;
  }

  Next Help() {
    ShowHelp(kHelpHistory);
    return Next::kStay;
  }

  Next Search() { return AskSearchedText() ? SearchFrom(row, -1) : Next::kStay; }
  Next SearchDown() { return SearchFrom(row + 1, 1); }
  Next SearchUp() { return SearchFrom(row - 1, -1); }

  Next SearchFrom(int first, int step) {
    for (int i = first; !SearchedText.IsEmpty() && CommandHistory.Peek(i); i += step) {
      if (Find(*CommandHistory.Peek(i), SearchedText.Text()) < 0) continue;
      row = i;
      return Next::kStay;
    }
    Prompt(L"String not found", L"", kPromptOk);
    return Next::kStay;
  }

  Next Remove() {
    if (Prompt(L"Remove command from history?", L"", kPromptOkCancel | kPromptMessage) != 'y')
      return Next::kStay;
    RemoveCommandFromFile(*CommandHistory.At(row));
    CommandHistory.Remove();
    row = std::min(row, CommandHistory.Count() - 1);
    return Next::kRebuild;
  }

  Westring& commandLine;
  int& cursor;
  int32_t row = 0;
  int result = kRedrawNothing;
};

// Any other end of the box, such as Esc or a click beside it, leaves.
const CommandVisit::KeyRow CommandVisit::kKeys[] = {
    {kEnter, &CommandVisit::Run},
    {kAltEnter, &CommandVisit::RunSeparate},
    {kCtrlEnter, &CommandVisit::CopyToLine},
    {FKey(1), &CommandVisit::Help},
    {FKey(7), &CommandVisit::Search},
    {AltFKey(7), &CommandVisit::SearchDown},
    {ShiftFKey(7), &CommandVisit::SearchUp},
    {kDelete, &CommandVisit::Remove},
    {0, nullptr},
};

}  // namespace

int HistoryDialog(int side, Westring& commandLine, int& cursor) {
  CommandVisit visit(commandLine, cursor);
  const int result = visit.Show();
  if (result == kRedrawAll) ExecuteCommandLine(side, visit.chosen, visit.separate);
  return result;
}

// ---- directories

void DirectoryHistoryDialog(Westring& path) {
  constexpr int kLeastWidth = 21;
  path = L"";
  if (DirectoryHistory.Count() == 0) return;
  const int width = FitList(std::max(Longest(DirectoryHistory), kLeastWidth));
  WestringStore rows;
  for (int i = 0; i < DirectoryHistory.Count(); ++i) rows.Add(ShortenPath(*DirectoryHistory.Peek(i), width));
  int32_t row = DirectoryHistory.Count() - 1;
  HistoryBox box(L" Directory History ", rows, width, &row);
  if (box.Run() == static_cast<int>(kEnter)) path = *DirectoryHistory.Peek(row);
}
