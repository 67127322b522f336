// The mouse on the main screen: clicks in the lists, tag drags with the right
// button, scrolling at the lists' ends, the wheel, and the function-key bar.
#include "shell/mouse.h"

#include <algorithm>
#include <chrono>
#include <thread>

#include "config/values/options.h"
#include "console/console.h"
#include "panels/draw_panel.h"
#include "panels/navigation.h"
#include "panels/tags.h"
#include "shell/execute.h"
#include "shell/key_bar.h"
#include "shell/panel_commands.h"

namespace {

constexpr int kWheelRows = 3;
constexpr int kRowsBelowList = 3;

bool IsRelease(const TMouseEvent& mouse) {
  return mouse.kind == kMouseLeftRelease || mouse.kind == kMouseRightRelease;
}

bool IsPress(const TMouseEvent& mouse) {
  return mouse.kind == kMouseLeftPress || mouse.kind == kMouseRightPress;
}

bool IsAboveList(int y) { return y == 0; }
bool IsBelowList(int y) { return y > PanelRows && y <= PanelRows + kRowsBelowList; }

void ClearSearch(TPanel& panel) { panel.quickSearch[0] = 0; }

void TurnWheel(Shell& shell) {
  DrawCursor(static_cast<int>(ActiveSide), false);
  for (int i = 0; i < kWheelRows; ++i) MoveCursor(ActivePanel(), shell.mouse.delta > 0 ? -1 : 1);
  ClearSearch(ActivePanel());
  shell.cursorDirty = true;
}

// The panel under the pointer becomes the active one. False if it is hidden.
bool TakePanelUnder(Shell& shell) {
  const unsigned side = shell.mouse.x < ScreenColumns / 2 ? 0 : 1;
  if (side == ActiveSide) return Panels[side].visible;
  if (!Panels[side].visible) return false;
  DrawCursor(static_cast<int>(ActiveSide), false);
  const int oldRow = ActivePanel().cursorRow;
  ActivateSide(static_cast<int>(side));
  const TPanel& panel = Panels[side];
  shell.dragIndex = std::min(oldRow + panel.topIndex, panel.count - 1);
  shell.cursorDirty = true;
  shell.redrawLevel = kRedrawAll;
  return true;
}

void DragTags(Shell& shell, int index) {
  TPanel& panel = ActivePanel();
  if (shell.dragIndex < 0) shell.dragIndex = index;
  const int step = index > shell.dragIndex ? 1 : -1;
  for (int i = shell.dragIndex; i != index;) {
    i += step;
    if (i >= 0 && i < panel.count) Tag(panel, i, shell.dragValue);
  }
  shell.dragIndex = index;
}

void ToggleTag(Shell& shell, int index) {
  TPanel& panel = ActivePanel();
  shell.dragIndex = index;
  Tag(panel, index, 0);
  shell.dragValue = panel.entries[index]->tagged ? 1 : -1;
}

void ActInList(Shell& shell) {
  if (!TakePanelUnder(shell)) return;
  TPanel& panel = ActivePanel();
  if (!panel.IsVisibleFiles()) return;
  const int half = ScreenColumns / 2;
  const int column = shell.mouse.x - static_cast<int>(ActiveSide) * half;
  const int slot = SlotUnder(panel.style, column, shell.mouse.y, half, PanelRows);
  const int index = panel.topIndex + slot;
  if (slot < 0 || slot >= panel.visibleEntries || index >= panel.count) return;
  DrawCursor(static_cast<int>(ActiveSide), false);
  shell.cursorDirty = true;
  if (slot != panel.cursorRow) {
    ClearSearch(panel);
    MoveCursor(panel, slot - panel.cursorRow);
  }
  switch (shell.mouse.kind) {
    case kMouseLeftDouble:
      shell.redrawLevel =
          std::max(shell.redrawLevel, ExecuteCommandLine(static_cast<int>(ActiveSide), L"", false));
      break;
    case kMouseRightPress:
      ToggleTag(shell, index);
      break;
    case kMouseRightDrag:
      DragTags(shell, index);
      break;
  }
}

// True if the waiting event ends the scrolling.
bool EndsScroll(Shell& shell, bool upward, bool tagging) {
  bool timedOut = false;
  if (ReadKey(timedOut, &shell.mouse, 0) != kMouseKey) return false;
  const int release = tagging ? kMouseRightRelease : kMouseLeftRelease;
  if (shell.mouse.kind == release) return true;
  if (IsRelease(shell.mouse) || shell.mouse.kind == kMouseWheel) return false;
  return upward ? !IsAboveList(shell.mouse.y) : !IsBelowList(shell.mouse.y);
}

// Moves the cursor as long as the button is held at the list's end.
void AutoScroll(Shell& shell, TPanel& panel, bool upward, int tag) {
  const int side = static_cast<int>(ActiveSide);
  for (;;) {
    const int before = panel.CurrentIndex(), top = panel.topIndex;
    DrawCursor(side, false);
    MoveCursor(panel, upward ? -1 : 1);
    if (panel.CurrentIndex() == before) break;
    if (tag) Tag(panel, panel.CurrentIndex(), tag);
    DrawCursor(side, true);
    if (panel.topIndex != top) std::this_thread::sleep_for(std::chrono::milliseconds(Options::ScrollDelay));
    if (KeyPending() && EndsScroll(shell, upward, tag != 0)) break;
  }
  shell.dragIndex = panel.CurrentIndex();
  shell.cursorDirty = true;
}

void ActAtListEnd(Shell& shell) {
  if (!TakePanelUnder(shell)) return;
  TPanel& panel = ActivePanel();
  if (!panel.IsVisibleFiles() || panel.count == 0) return;
  const bool upward = IsAboveList(shell.mouse.y);
  const int last = upward ? 0 : panel.count - 1;
  if (panel.CurrentIndex() == last || shell.mouse.kind == kMouseRightPress) return;
  ClearSearch(panel);
  AutoScroll(shell, panel, upward, shell.mouse.kind == kMouseRightDrag ? shell.dragValue : 0);
}

}  // namespace

int SlotUnder(int style, int c, int y, int half, int rows) {
  if (y < 1 || y > rows) return -1;
  int column = 0;
  if (style == kStyleBrief) {
    column = (3 * c - 3) / (half - 2);
    if (c == half - 1) --column;  // the right frame counts with its neighbour
  } else if (style == kStyleBriefWide) {
    column = c >= half / 2 ? 1 : 0;
  }
  return y - 1 + column * rows;
}

void DispatchMouse(Shell& shell) {
  const TMouseEvent& mouse = shell.mouse;
  const bool onBar = mouse.y == ScreenRows - 1;
  shell.key = 0;
  if (IsRelease(mouse)) {
    if (onBar && shell.barKey && BarKey(mouse, ScreenColumns) == shell.barKey) shell.key = shell.barKey;
    shell.barKey = 0;
  } else if (mouse.kind == kMouseWheel) {
    TurnWheel(shell);
  } else if (onBar) {
    if (IsPress(mouse)) shell.barKey = BarKey(mouse, ScreenColumns);
  } else if (mouse.y == 0 && mouse.kind == kMouseRightPress) {
    shell.key = FKey(9);
  } else if (mouse.y >= 1 && mouse.y <= PanelRows) {
    ActInList(shell);
  } else if (IsAboveList(mouse.y) || IsBelowList(mouse.y)) {
    ActAtListEnd(shell);
  }
}
