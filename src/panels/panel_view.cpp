// Rows and entries at their places inside a panel's frame.
#include "panels/panel_view.h"

#include "panels/columns.h"
#include "panels/entry_row.h"
#include "panels/name_field.h"

bool IsOnScreen(const TPanel& panel) { return panel.visible && panel.window && !panel.window->IsHidden(); }

bool ShowsList(const TPanel& panel) { return panel.IsFiles() && IsOnScreen(panel); }

void PutRow(TPanel& panel, int x, int y, CellString& row) {
  const int room = panel.window->InnerWidth() - x;
  if (room <= 0 || y < 0 || y >= panel.window->InnerHeight()) return;
  if (row.Length() > room) FitCells(row, room);
  panel.window->PrintCellString(x, y, row);
}

void PutListRow(TPanel& panel, int y) {
  CellString row = BuildListRow(panel, y);
  PutRow(panel, 0, y, row);
}

void PutEntry(TPanel& panel, int index, int forcedColour, int32_t* scroll) {
  const int slot = index - panel.topIndex;
  if (index < 0 || index >= panel.count) return;
  if (slot < 0 || slot >= VisibleEntries(panel.style, PanelRows)) return;
  CellString row = BuildEntryRow(panel, index, panel.style, forcedColour, scroll);
  int x, y;
  SlotPosition(panel.style, PanelRows, slot, x, y);
  PutRow(panel, x, y, row);
}
