// Commands that open the dialogs of the settings, and what follows from them.
#include "config/colour_dialog.h"
#include "config/settings_dialog.h"
#include "config/values/options.h"
#include "console/console.h"
#include "panels/draw_panel.h"
#include "panels/read_panel.h"
#include "shell/clock.h"
#include "shell/confirmations_dialog.h"
#include "shell/dialog_commands.h"
#include "shell/filter_dialog.h"
#include "shell/panel_commands.h"
#include "shell/screen.h"

namespace {

void DrawTitles() {
  for (int side = 0; side < 2; ++side) DrawTitle(Panels[side]);
}

// An option of 0 leaves the size alone. True if there is a new size to apply.
bool TakeSize(int before, int now, int& size) {
  if (now == before || now <= 0) return false;
  size = now;
  return true;
}

// Its width depends on the time mode, and so does the title beside it.
void RenewClock() {
  RemoveClock();
  DrawTitle(Panels[1]);
  ShowClock();
}

}  // namespace

int RunConfiguration(Shell&) {
  const int codePage = Options::CodePage, lines = Options::Lines, columns = Options::Columns;
  if (SettingsDialog()) {
    SetupLocale();
    if (Options::CodePage != codePage) DrawTitles();
    ReadBothPanels();
  }
  const bool newRows = TakeSize(lines, Options::Lines, ScreenRows);
  const bool newColumns = TakeSize(columns, Options::Columns, ScreenColumns);
  if (newRows || newColumns) RebuildScreen();
  RenewClock();
  return kRedrawAll;
}

int RunColours(Shell&) {
  if (!ColourDialog()) return kRedrawAll;
  RemoveClock();
  for (int side = 0; side < 2; ++side) {
    if (Panels[side].visible)
      MakePanelWindow(Panels[side], side);
    else
      Panels[side].redrawPending = true;  // its window comes back afresh
  }
  return kRedrawAll;
}

int RunConfirmations(Shell&) {
  ConfirmationsDialog();
  return kRedrawAll;
}

int RunFilter(Shell&, int side) {
  TPanel& panel = Panels[side];
  if (FilterDialog(side) && !panel.visible) panel.readPending = true;
  return ReReadSide(side);
}
