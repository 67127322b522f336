// The screen's size and the panels' windows on it.
#include "shell/screen.h"

#include "config/values/colours.h"
#include "config/values/locale_format.h"
#include "config/values/options.h"
#include "console/console.h"
#include "foundation/code_pages.h"
#include "panels/columns.h"
#include "panels/draw_panel.h"
#include "panels/navigation.h"
#include "panels/read_panel.h"
#include "shell/clock.h"

void UpdateGeometry() {
  Console->GetSize(ScreenColumns, ScreenRows);
  const int below = Options::FullScreen ? 6 : ScreenRows / 2 + 2;
  PanelRows = ScreenRows > below ? ScreenRows - below : 1;
  ComputeColumns(ScreenColumns / 2 - 2);
}

void ApplyScreenSize(int rows, int columns) {
  Console->Resize(columns, rows, Options::FontFamily, Options::FontSize);
  UpdateGeometry();
}

void RebuildScreen() {
  RemoveClock();
  for (int side = 0; side < 2; ++side) {
    if (Panels[side].visible)
      Panels[side].window.reset();
    else
      Panels[side].redrawPending = true;
  }
  ApplyScreenSize(ScreenRows, ScreenColumns);
  for (int side = 0; side < 2; ++side)
    if (Panels[side].visible) MakePanelWindow(Panels[side], side);
  UpdateSelectableRegion();
}

void MakePanelWindow(TPanel& panel, int side) {
  panel.visible = true;
  panel.switchedOff = false;
  if (side == 1) RemoveClock();
  panel.window.reset();  // first puts back what it covers
  const int half = ScreenColumns / 2;
  const uint8_t colour = Options::Colours[kColourPanel];
  panel.window =
      std::make_unique<Win>(side * half, 0, (side + 1) * half - 1, PanelRows + 3, colour, colour, true);
  DrawTitle(panel);
  if (panel.readPending) ReadPanel(panel);
  DrawPanel(panel);
}

void HidePanel(TPanel& panel) {
  if (!panel.visible) return;
  if (panel.Side() == 1) RemoveClock();
  if (panel.window) panel.window->SetHidden(true);
  panel.visible = false;
}

namespace {

bool ShowPanel(TPanel& panel, int side) {
  const bool stale = panel.readPending || panel.redrawPending;
  if (!panel.window || (panel.window->IsHidden() && stale)) {
    MakePanelWindow(panel, side);
    return true;
  }
  if (panel.window->IsHidden()) {
    if (side == 1) RemoveClock();
    panel.window->SetHidden(false);
  }
  if (panel.readPending) ReadPanel(panel);
  if (!panel.redrawPending) return false;
  DrawPanel(panel);
  return true;
}

}  // namespace

bool ShowPanels(bool show) {
  bool painted = false;
  for (int side = 0; side < 2; ++side) {
    TPanel& panel = Panels[side];
    if (!panel.visible) continue;
    if (show) {
      painted |= ShowPanel(panel, side);
    } else if (panel.window && !panel.window->IsHidden()) {
      if (side == 1) RemoveClock();
      panel.window->SetHidden(true);
    }
  }
  return painted;
}

void LeaveScreen() {
  Console->FillBlank(0, ScreenRows - 2, ScreenColumns, 2, Options::Colours[kColourCommandLine]);
  Console->SetCursorSize(kLineCursorSize);
  SetAppTitle(L"");
  Console->SetCursor(0, ScreenRows - 1);
}

void UpdateSelectableRegion() {
  if (Panels[0].visible || Panels[1].visible)
    Console->SetSelectableRegion(0, 0, 0, 0);
  else
    Console->SetSelectableRegion(0, 0, ScreenColumns, ScreenRows - 2);
}

WholeScreenSelectable::WholeScreenSelectable() {
  Console->GetSelectableRegion(before);
  Console->SetSelectableRegion(0, 0, ScreenColumns, ScreenRows);
}

WholeScreenSelectable::~WholeScreenSelectable() { Console->SetSelectableRegion(before); }

void SetupLocale() {
  ReadLocaleFormats();
  DefaultCodePage = static_cast<unsigned short>(Options::CodePage ? Options::CodePage : 850);
  Console->SetCodePage(DefaultCodePage);
  BuildCaseTables();
}
