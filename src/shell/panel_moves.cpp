// Moving in the active panel's list.
#include <algorithm>

#include "panels/draw_panel.h"
#include "panels/navigation.h"
#include "panels/tags.h"
#include "panels/tree_row.h"
#include "shell/command_line.h"
#include "shell/history.h"
#include "shell/panel_commands.h"
#include "shell/search_commands.h"

int GoFirst(Shell& shell) {
  if (shell.bothHidden) return MoveLineStart(shell);
  MoveCursor(ActivePanel(), -ActivePanel().CurrentIndex());
  return kRedrawNothing;
}

int GoLast(Shell& shell) {
  if (shell.bothHidden) return MoveLineEnd(shell);
  TPanel& panel = ActivePanel();
  MoveCursor(panel, panel.count - 1 - panel.CurrentIndex());
  return kRedrawNothing;
}

int GoRowUp(Shell& shell) {
  if (shell.bothHidden) return PreviousCommand(shell);
  MoveCursor(ActivePanel(), -1);
  return kRedrawNothing;
}

int GoRowDown(Shell& shell) {
  if (shell.bothHidden) return NextCommand(shell);
  MoveCursor(ActivePanel(), 1);
  return kRedrawNothing;
}

int PageDown(Shell&) {
  TPanel& panel = ActivePanel();
  if (!panel.IsVisibleFiles() || panel.count == 0) return kRedrawNothing;
  const int page = panel.visibleEntries;
  if (panel.topIndex + page < panel.count) {
    panel.topIndex += page;
    panel.cursorRow -= page;
    const int overhang = panel.topIndex + page - panel.count;
    if (overhang > 0) {
      panel.topIndex -= overhang;
      panel.cursorRow += overhang;
    }
    panel.cursorRow = std::max(panel.cursorRow, 0);
  } else {
    panel.cursorRow = panel.count - 1 - panel.topIndex;
  }
  DrawPanel(panel);
  return kRedrawNothing;
}

int PageUp(Shell&) {
  TPanel& panel = ActivePanel();
  if (!panel.IsVisibleFiles() || panel.count == 0) return kRedrawNothing;
  const int page = panel.visibleEntries;
  if (panel.topIndex > 0) {
    panel.topIndex -= page;
    panel.cursorRow += page;
    if (panel.topIndex < 0) {
      panel.cursorRow += panel.topIndex;
      panel.topIndex = 0;
    }
    if (panel.cursorRow >= page) panel.cursorRow = page - 1;
  } else {
    panel.cursorRow = 0;
  }
  DrawPanel(panel);
  return kRedrawNothing;
}

namespace {

bool MovesByColumns(const TPanel& panel) {
  return panel.IsVisibleFiles() && (panel.style == kStyleBrief || panel.style == kStyleBriefWide);
}

}  // namespace

int GoRight(Shell& shell) {
  TPanel& panel = ActivePanel();
  if (!MovesByColumns(panel)) return CompleteOrGoRight(shell);
  panel.quickSearch[0] = 0;
  const int rows = PanelRows;
  if (panel.CurrentIndex() + rows >= panel.count || rows + panel.cursorRow < panel.visibleEntries) {
    MoveCursor(panel, rows);
  } else {
    panel.topIndex += rows;
    DrawPanel(panel);
  }
  return kRedrawNothing;
}

int GoLeft(Shell& shell) {
  TPanel& panel = ActivePanel();
  if (!MovesByColumns(panel)) return CursorLeft(shell);
  panel.quickSearch[0] = 0;
  const int rows = PanelRows;
  if (panel.topIndex >= rows && rows > panel.cursorRow) {
    panel.topIndex -= rows;
    DrawPanel(panel);
  } else {
    MoveCursor(panel, -rows);
  }
  return kRedrawNothing;
}

int TagAndGoDown(Shell& shell) {
  if (!shell.currentEntry) return kRedrawNothing;
  TPanel& panel = ActivePanel();
  Tag(panel, shell.currentIndex, 0);
  MoveCursor(panel, 1);
  return kRedrawNothing;
}

namespace {

constexpr int kNoEntry = -1;

int FindTagged(const TPanel& panel, int index, int step) {
  for (int i = index + step; i >= 0 && i < panel.count; i += step)
    if (panel.entries[i]->tagged) return i;
  return kNoEntry;
}

// The next directory with the same parent.
int FindSibling(const TPanel& panel, int index, int step) {
  const int depth = TreeDepth(*panel.entries[index]);
  for (int i = index + step; i >= 0 && i < panel.count; i += step) {
    const int found = TreeDepth(*panel.entries[i]);
    if (found == depth) return i;
    if (found < depth) break;
  }
  return kNoEntry;
}

int GoToRelated(Shell& shell, int step) {
  TPanel& panel = ActivePanel();
  if (!shell.currentEntry) return kRedrawNothing;
  const int index = shell.currentIndex;
  const int found = panel.IsTree() ? FindSibling(panel, index, step) : FindTagged(panel, index, step);
  if (found != kNoEntry) MoveCursor(panel, found - index);
  return kRedrawNothing;
}

}  // namespace

int PreviousTagged(Shell& shell) { return GoToRelated(shell, -1); }
int NextTagged(Shell& shell) { return GoToRelated(shell, 1); }

int ChangeSide(Shell&) {
  if (!OtherPanel().visible && ActivePanel().visible) return kRedrawNothing;
  ActivateSide(static_cast<int>(ActiveSide ^ 1));
  return kRedrawAll;
}
