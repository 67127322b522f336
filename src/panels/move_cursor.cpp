// The cursor bar of a panel and its way through the list. A step of one row
// costs the rows it touches, never a full redraw.
#include <algorithm>

#include "config/values/colours.h"
#include "panels/draw_panel.h"
#include "panels/entry_row.h"
#include "panels/panel_view.h"

namespace {

uint8_t BarColour(const entry& e) {
  if (e.tagged) return Options::Colours[kColourHighlightTagged];
  return Options::Colours[e.IsDirectory() ? kColourDirectoryHigh : kColourHighlight];
}

void DrawBar(TPanel& panel, const entry& e, bool on) {
  const int index = panel.CurrentIndex();
  const bool scrolled = on && panel.nameScrollEntry == index;
  PutEntry(panel, index, on ? BarColour(e) : kNoForcedColour, scrolled ? &panel.nameScroll : nullptr);
}

// step is 1 or -1. The picture moves as it stands and only the row that came in
// is drawn; with several columns each takes its part of it from its neighbour.
void ScrollByOne(TPanel& panel, int step) {
  panel.topIndex += step;
  panel.cursorRow -= step;
  if (!ShowsList(panel)) return;
  panel.window->Scroll(0, 0, panel.window->InnerWidth(), PanelRows, step);
  PutListRow(panel, step > 0 ? PanelRows - 1 : 0);
}

void ScrollFar(TPanel& panel, int distance) {
  panel.topIndex += distance;
  panel.cursorRow -= distance;
  DrawPanel(panel);
}

}  // namespace

void DrawCursor(int side, bool on) {
  TPanel& panel = Panels[side];
  if (!ShowsList(panel)) return;
  if (const entry* e = panel.Current()) DrawBar(panel, *e, on);
  DrawStatusLine(panel);
}

void MoveCursor(TPanel& panel, int delta) {
  if (!panel.IsVisibleFiles()) return;
  const int64_t firstRow = -int64_t{panel.topIndex}, lastRow = firstRow + panel.count - 1;
  const int64_t row = std::max(std::min(int64_t{panel.cursorRow} + delta, lastRow), firstRow);
  panel.cursorRow = static_cast<int32_t>(row);
  const int visible = std::max(panel.visibleEntries, 1);
  int distance = 0;
  if (panel.cursorRow < 0) distance = panel.cursorRow;
  if (panel.cursorRow >= visible) distance = panel.cursorRow + 1 - visible;
  if (distance == 1 || distance == -1)
    ScrollByOne(panel, distance);
  else if (distance != 0)
    ScrollFar(panel, distance);
}
