// The dialog of a copy or move.
#include "fileops/copy_dialog.h"

#include "config/values/colours.h"
#include "dialogs/dialog_history.h"
#include "fileops/copy_command.h"
#include "foundation/paths.h"

namespace {

constexpr int kWidth = 76, kHeight = 7, kOverwriteHeight = 9;
constexpr int kColumn = 1, kTitleRow = 1, kFieldRow = 2, kOverwriteRow = 4;
constexpr int kFieldWidth = 72;
constexpr int kNoLimit = -1;

struct ModeRow {
  int x;
  int mode;
  const char* label;
};
constexpr ModeRow kModes[] = {
    {13, kOverwriteAsk, "As_k"},
    {22, kOverwriteAlways, "_Always"},
    {34, kOverwriteNever, "N_ever"},
    {45, kOverwriteIfOlder, "If O_lder"},
};

constexpr ButtonRow kButtons[] = {
    {kEnter, "_OK"}, {kEscape, "Cancel"}, {FKey(10), "F10-_Tree"}, {kAltBackslash, "Dir _Hist"}, {0, nullptr},
};

}  // namespace

// A key that ends a run of the dialog but not the dialog.
struct CCopyDlg::KeyRow {
  Key key;
  bool flips;
  void (CCopyDlg::*run)();
};

const CCopyDlg::KeyRow CCopyDlg::kKeys[] = {
    {FKey(10), false, &CCopyDlg::ChooseInTree}, {kAltBackslash, false, &CCopyDlg::ChooseFromHistory},
    {kAltD, true, &CCopyDlg::FlipDirectory},    {FKey(5), true, &CCopyDlg::FlipDirectory},
    {FKey(6), true, &CCopyDlg::FlipDirectory},
};

CCopyDlg::CCopyDlg(CopyQuestion& asked)
    : Dialog(-1, -3, kWidth, asked.asksOverwrite ? kOverwriteHeight : kHeight,
             Options::Colours[kColourMessages]),
      question(asked) {
  Print(kColumn, kTitleRow, question.title);
  field = AddStringField(kColumn, kFieldRow, true, &question.destination, kFieldWidth, kNoLimit, kNoHistory);
  if (question.asksOverwrite) AddOverwriteRow(kOverwriteRow);
  AddButtons(-1, -1, true, kButtons);
  if (!question.flips) return;
  for (const KeyRow& row : kKeys)
    if (row.flips) AddExitKey(row.key);
}

void CCopyDlg::AddOverwriteRow(int y) {
  PrintBytes(kColumn, y, "Overwrite: ");
  bool startGroup = true;
  for (const ModeRow& row : kModes) {
    AddRadioButton(row.x, y, startGroup, &question.overwriteMode, row.mode, row.label);
    startGroup = false;
  }
}

bool CCopyDlg::Ask() {
  while (true) {
    const auto key = static_cast<Key>(Run());
    if (key == kEscape) return false;
    const KeyRow* pressed = nullptr;
    for (const KeyRow& row : kKeys)
      if (row.key == key) pressed = &row;
    if (!pressed) return true;
    (this->*pressed->run)();
    SetFocus(field);
  }
}

void CCopyDlg::ChooseInTree() {
  Westring path;
  if (TheCopyHooks.chooseInTree && TheCopyHooks.chooseInTree(path)) question.destination = path;
}

void CCopyDlg::ChooseFromHistory() {
  Westring path;
  if (TheCopyHooks.chooseFromHistory && TheCopyHooks.chooseFromHistory(path))
    question.destination = AddTrailingSlash(path);
}

void CCopyDlg::FlipDirectory() {
  Westring& text = question.destination;
  const int slash = RFind(text, L'/');
  text = slash >= 0 ? Mid(text, slash + 1) : JoinPath(question.otherDirectory, text);
}
