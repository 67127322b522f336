// Commands that change how the panels stand on the screen.
#include "shell/panel_switches.h"

#include <utility>

#include "config/values/colours.h"
#include "config/values/options.h"
#include "console/console.h"
#include "panels/draw_panel.h"
#include "panels/navigation.h"
#include "panels/read_panel.h"
#include "panels/sort_order.h"
#include "shell/clock.h"
#include "shell/screen.h"

namespace {

void SwitchOff(TPanel& panel) {
  HidePanel(panel);
  panel.switchedOff = false;
}

// Both are off: the ones come back that were on before they went together.
void BringPanelsBack(TPanel& left, TPanel& right) {
  if (left.switchedOff && !right.switchedOff) {
    right.visible = true;
    return;
  }
  if (left.switchedOff && right.switchedOff) {
    left.switchedOff = right.switchedOff = false;
    left.visible = right.visible = true;
    return;
  }
  left.visible = true;
  if (!right.switchedOff) right.visible = true;
}

}  // namespace

int SwitchBothPanels(Shell&) {
  TPanel& left = Panels[0];
  TPanel& right = Panels[1];
  if (left.visible) {
    SwitchOff(left);
    if (right.visible)
      SwitchOff(right);
    else
      right.switchedOff = true;
  } else if (right.visible) {
    left.switchedOff = true;
    SwitchOff(right);
  } else {
    BringPanelsBack(left, right);
  }
  UpdateSelectableRegion();
  return kRedrawAll;
}

int SwitchPanel(Shell& shell, int side) {
  TPanel& panel = Panels[side];
  if (panel.visible) {
    HidePanel(panel);
    panel.switchedOff = true;
  } else {
    MakePanelWindow(panel, side);
  }
  UpdateSelectableRegion();
  shell.cursorDirty = true;
  if (ActivePanel().visible || !OtherPanel().visible) return kRedrawAll;
  ActivateSide(static_cast<int>(ActiveSide ^ 1));
  return kRedrawLine;
}

int SwitchOtherPanel(Shell& shell) { return SwitchPanel(shell, static_cast<int>(ActiveSide ^ 1)); }

int SwapPanels(Shell& shell) {
  RemoveClock();
  // The windows belong to the sides; each list gets one afresh where it goes.
  for (int side = 0; side < 2; ++side) {
    Panels[side].window.reset();
    Panels[side].redrawPending = true;
  }
  SwapPanelRecords(Panels[0], Panels[1]);
  std::swap(Options::LeftSort, Options::RightSort);
  std::swap(shell.info.broughtUp[0], shell.info.broughtUp[1]);
  ActivateSide(static_cast<int>(ActiveSide ^ 1));
  shell.cursorDirty = true;
  return kRedrawAll;
}

int SetStyle(Shell& shell, int side, int style) {
  TPanel& panel = Panels[side];
  if (panel.style == style && panel.IsFiles()) return kRedrawNothing;
  const bool otherListing = panel.style == kStyleTree || style == kStyleTree;
  panel.style = style;
  panel.panelType = kPanelFiles;
  if (!panel.visible) {
    MakePanelWindow(panel, side);
    UpdateSelectableRegion();
  }
  if (otherListing || panel.readPending) ReadPanel(panel);
  DrawPanel(panel);
  ActivateSide(static_cast<int>(ActiveSide));
  shell.cursorDirty = true;
  return kRedrawAll;
}

int ShowStyle(Shell& shell, int side, int style) {
  const int redraw = SetStyle(shell, side, style);
  return Panels[side].visible ? redraw : SwitchPanel(shell, side);
}

int SetPanelSort(Shell& shell, int side, int key) {
  SetSort(Panels[side], key);
  shell.cursorDirty = true;
  return kRedrawAll;
}

int ReverseSort(Shell& shell, int side) {
  const int key = Panels[side].sortKey;
  return SetPanelSort(shell, side, key < 5 ? key + 5 : key - 5);
}

namespace {

void ShowInfo(TPanel& panel, Shell& shell, int side) {
  shell.info.broughtUp[side] = !panel.visible;
  panel.panelType = kPanelInfo;
  if (!panel.visible) {
    panel.readPending = true;
    MakePanelWindow(panel, side);
    return;
  }
  panel.window->Clear();
  DrawPanel(panel);
}

void HideInfo(TPanel& panel, Shell& shell, int side) {
  panel.panelType = kPanelFiles;
  if (shell.info.broughtUp[side]) {
    HidePanel(panel);
    panel.switchedOff = true;
    return;
  }
  if (panel.readPending) ReadPanel(panel);
  DrawPanel(panel);
}

}  // namespace

int ToggleInfo(Shell& shell, int side) {
  const int opposite = side ^ 1;
  TPanel& panel = Panels[opposite];
  if (panel.visible && !panel.IsFiles())
    HideInfo(panel, shell, opposite);
  else
    ShowInfo(panel, shell, opposite);
  UpdateSelectableRegion();
  shell.cursorDirty = true;
  return kRedrawAll;
}

int ToggleInfoOfActive(Shell& shell) {
  const int active = static_cast<int>(ActiveSide);
  return ToggleInfo(shell, ActivePanel().IsFiles() ? active : active ^ 1);
}

int ShowInfoOn(Shell& shell, int side) {
  const TPanel& other = Panels[side ^ 1];
  if (other.visible && !other.IsFiles()) ToggleInfo(shell, side);
  return ToggleInfo(shell, side ^ 1);
}

namespace {

int Resized(Shell& shell, int rows, int columns) {
  ScreenRows = rows;
  ScreenColumns = columns;
  RebuildScreen();
  shell.cursorDirty = true;
  return kRedrawAll;
}

}  // namespace

int ToggleRows(Shell& shell) {
  const int lines = Options::Lines;
  int rows = ScreenRows < 50 ? 50 : 25;
  if (ScreenRows == 25) rows = lines > 25 && lines <= 50 ? lines : 50;
  if (ScreenRows == 50) rows = lines > 50 ? lines : 25;
  return Resized(shell, rows, ScreenColumns);
}

int ToggleColumns(Shell& shell) {
  const int wanted = Options::Columns;
  int columns = 80;
  if (ScreenColumns == 80) columns = 132;
  if (ScreenColumns == 132 && wanted > 80 && wanted != 132) columns = wanted;
  return Resized(shell, ScreenRows, columns);
}

int ToggleFullScreen(Shell& shell) {
  RemoveClock();
  for (int side = 0; side < 2; ++side) {
    if (Panels[side].visible)
      Panels[side].window.reset();
    else
      Panels[side].readPending = true;
  }
  Options::FullScreen = !Options::FullScreen;
  UpdateGeometry();
  for (int side = 0; side < 2; ++side)
    if (Panels[side].visible) MakePanelWindow(Panels[side], side);
  shell.cursorDirty = true;
  return kRedrawAll;
}

int ToggleClock(Shell&) {
  Options::Clock = !Options::Clock;
  if (!Options::Clock) {
    RemoveClock();
    if (!Panels[1].visible)
      Console->FillBlank(ScreenColumns - 10, 0, 10, 1, Options::Colours[kColourCommandLine]);
  }
  if (Panels[1].visible) DrawTitle(Panels[1]);
  return kRedrawAll;
}

int TogglePathPrompt(Shell&) {
  Options::PathPrompt = !Options::PathPrompt;
  return kRedrawLine;
}

int ToggleTagDirs(Shell&) {
  Options::TagDirs = !Options::TagDirs;
  return kRedrawNothing;
}

int ToggleThousandSep(Shell& shell) {
  Options::ThousandSep = !Options::ThousandSep;
  for (int side = 0; side < 2; ++side) DrawPanel(Panels[side]);
  shell.cursorDirty = true;
  return kRedrawAll;
}

int ToggleRetainCount(Shell& shell) {
  Options::RetainCount = !Options::RetainCount;
  ReadBothPanels();
  shell.cursorDirty = true;
  return kRedrawAll;
}
