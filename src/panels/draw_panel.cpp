// The full redraw of a panel, and of its single parts: title, status line, one
// entry. Start at DrawPanel().
#include "panels/draw_panel.h"

#include <algorithm>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "console/console.h"
#include "panels/columns.h"
#include "panels/entry_row.h"
#include "panels/navigation.h"
#include "panels/panel_frame.h"
#include "panels/panel_view.h"
#include "panels/status_line.h"

namespace {

// One drawing for all that is written in its life.
struct UpdateScope {
  UpdateScope() { Console->BeginUpdate(); }
  ~UpdateScope() { Console->EndUpdate(); }
  UpdateScope(const UpdateScope&) = delete;
  UpdateScope& operator=(const UpdateScope&) = delete;
};

// Into the window, which may have become smaller, and onto the list, which may
// have become shorter.
void BringCursorIntoView(TPanel& panel) {
  panel.topIndex = std::max(panel.topIndex, 0);
  panel.cursorRow = std::max(panel.cursorRow, 0);
  if (panel.cursorRow >= panel.visibleEntries) {
    panel.topIndex += panel.cursorRow - (panel.visibleEntries - 1);
    panel.cursorRow = panel.visibleEntries - 1;
  }
  if (panel.CurrentIndex() < panel.count) return;
  const int last = std::max(panel.count - 1, 0);
  panel.topIndex = std::min(panel.topIndex, last);
  panel.cursorRow = last - panel.topIndex;
}

void DrawList(TPanel& panel) {
  const int inner = panel.window->InnerWidth();
  for (int y = 0; y < PanelRows; ++y) PutListRow(panel, y);
  CellString divider = BuildDivider(panel.style, inner);
  panel.window->PrintCellString(-1, PanelRows, divider);
  CellString bottom = BuildBottomFrame(panel.style, inner);
  panel.window->PrintCellString(-1, PanelRows + 2, bottom);
  DrawTitle(panel);
}

// A list that was here before leaves no divider behind, nor its junctions.
void DrawInfo(TPanel& panel) {
  const int inner = panel.window->InnerWidth();
  const uint8_t colour = Options::Colours[kColourPanel];
  const Westring side(L"\x2551");
  panel.window->Print(-1, PanelRows, side, colour);
  panel.window->Print(inner, PanelRows, side, colour);
  CellString bottom = BuildPlainBottomFrame(inner);
  panel.window->PrintCellString(-1, PanelRows + 2, bottom);
  DrawTitle(panel);
  if (ThePanelHooks.drawInfo)
    ThePanelHooks.drawInfo(panel);
  else
    panel.window->Clear();
}

int ClockWidth(int side) {
  if (side != 1 || !Options::Clock) return 0;
  return Options::TimeMode == 12 ? 6 : 5;
}

}  // namespace

void DrawPanel(TPanel& panel) {
  panel.visibleEntries = VisibleEntries(panel.style, PanelRows);
  if (!IsOnScreen(panel)) return;
  panel.redrawPending = false;
  const UpdateScope update;
  if (!panel.IsFiles()) {
    DrawInfo(panel);
    return;
  }
  BringCursorIntoView(panel);
  DrawList(panel);
  ShowPathInAppTitle();
}

void DrawTitle(TPanel& panel, bool active, int clockWidth) {
  if (!IsOnScreen(panel)) return;
  const Win& window = *panel.window;
  CellString line = BuildTitle(panel, active, clockWidth, window.Right() - window.Left() + 1);
  panel.window->PrintCellString(-1, -1, line);
}

void DrawTitle(TPanel& panel) {
  const int side = panel.Side();
  DrawTitle(panel, static_cast<unsigned>(side) == ActiveSide, ClockWidth(side));
}

void DrawStatusLine(TPanel& panel) {
  if (!ShowsList(panel)) return;
  CellString line = BuildStatusLine(panel, panel.window->InnerWidth());
  PutRow(panel, 0, PanelRows + 1, line);
}

void DrawEntry(TPanel& panel, int index) {
  if (ShowsList(panel)) PutEntry(panel, index, kNoForcedColour, nullptr);
}
