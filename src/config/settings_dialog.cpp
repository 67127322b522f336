// The Configuration dialog: one table for each kind of control.
#include "config/settings_dialog.h"

#include "config/option_snapshot.h"
#include "config/values/colours.h"
#include "config/values/options.h"
#include "dialogs/dialog.h"
#include "dialogs/dialog_history.h"
#include "dialogs/help.h"

namespace {

constexpr int kWidth = 76, kHeight = 19;
constexpr int kLabelColumn = 2;
constexpr int kTextColumn = 28, kTextWidth = 20;
constexpr int kRightColumn = 51;
constexpr int kNumberColumn = 65, kNumberWidth = 3;
constexpr int kTimeModeRow = 10, kButtonRow = 16;

// In UTF-8 well within a line of the settings file.
constexpr int kLongestText = 511;

struct TextRow {
  int y;
  const char* label;
  Westring* option;
};

constexpr TextRow kTexts[] = {
    {1, "_Viewer:", &Options::Viewer},
    {2, "Alternate V_iewer:", &Options::Viewer2},
    {3, "_Editor:", &Options::Editor},
    {4, "Alternate E_ditor:", &Options::Editor2},
    {6, "_Left Startup Directory:", &Options::Left},
    {7, "_Right Startup Directory:", &Options::Right},
    {9, "_Separate Session Prefix:", &Options::Background},
    {10, "_Tree Data Directory:", &Options::TreeDir},
    {11, "Case _Filter File Systems:", &Options::CaseFilter},
    {12, "_Path Extension:", &Options::PathAppend},
};

struct SwitchRow {
  int y;
  const char* label;
  bool* option;
};

constexpr SwitchRow kSwitches[] = {
    {1, "_Auto Save", &Options::AutoSave},
    {2, "Use _X clipboard", &Options::PMClip},
    {3, "ESC Panel S_witch", &Options::EscPanelSwitch},
    {4, "Size Co_unt Pause", &Options::SizeCountPause},
};

struct NumberRow {
  int y;
  const char* label;
  int* option;
};

constexpr NumberRow kNumbers[] = {
    {6, "Li_nes", &Options::Lines},
    {7, "Colu_mns", &Options::Columns},
    {8, "Scroll Dela_y", &Options::ScrollDelay},
};

constexpr ButtonRow kButtons[] = {{kEnter, "_OK"}, {kEscape, "Cancel"}, {FKey(1), "Help"}, {0, nullptr}};

// A field has no label of its own; the hot letter of this one leads to it.
void PrintLabel(Dialog& dialog, int x, int y, const char* text, int field) {
  Estring label(text);
  dialog.TakeHotLetter(field, label);
  const char letters[] = {dialog.HotLetter(field), 0};
  dialog.PrintHighlighted(x, y, label.Text(), letters, dialog.Colour(kDialogText));
}

void AddTexts(Dialog& dialog) {
  for (const TextRow& row : kTexts) {
    const int field = dialog.AddStringField(kTextColumn, row.y, &row == kTexts, row.option, kTextWidth,
                                            kLongestText, kNoHistory);
    PrintLabel(dialog, kLabelColumn, row.y, row.label, field);
  }
}

void AddSwitches(Dialog& dialog) {
  for (const SwitchRow& row : kSwitches)
    dialog.AddCheckBox(kRightColumn, row.y, &row == kSwitches, row.option, row.label, true);
}

void AddNumbers(Dialog& dialog) {
  for (const NumberRow& row : kNumbers) {
    const int field = dialog.AddIntegerField(kNumberColumn, row.y, &row == kNumbers, row.option, kNumberWidth,
                                             true, kNoHistory);
    PrintLabel(dialog, kRightColumn, row.y, row.label, field);
  }
}

void AddTimeMode(Dialog& dialog, int& timeMode) {
  dialog.PrintBytes(kRightColumn, kTimeModeRow, "Time Mode");
  dialog.AddRadioButton(kRightColumn, kTimeModeRow + 1, true, &timeMode, 12, "_12 HR");
  dialog.AddRadioButton(kRightColumn, kTimeModeRow + 2, false, &timeMode, 24, "_24 HR");
}

int RunDialog(int& timeMode) {
  Dialog dialog(-1, -2, kWidth, kHeight, Options::Colours[kColourMessages]);
  dialog.PrintCentred(-1, L" Configuration ");
  AddTexts(dialog);
  AddSwitches(dialog);
  AddNumbers(dialog);
  AddTimeMode(dialog, timeMode);
  dialog.AddButtons(-1, kButtonRow, true, kButtons);
  return RunWithHelp(dialog, kHelpConfiguration);
}

}  // namespace

bool SettingsDialog() {
  const OptionSnapshot before;
  // The clock ticks on beside the dialog, in a window made for the old mode.
  int timeMode = Options::TimeMode;
  if (RunDialog(timeMode) == static_cast<int>(kEscape)) {
    before.Restore();
    return false;
  }
  Options::TimeMode = timeMode;
  return true;
}
