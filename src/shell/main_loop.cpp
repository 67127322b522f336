// One pass after the other: paint what is due, read a key, act on it.
#include "shell/main_loop.h"

#include "console/console.h"
#include "panels/draw_panel.h"
#include "panels/navigation.h"
#include "shell/clock.h"
#include "shell/command_line.h"
#include "shell/dispatch.h"
#include "shell/key_bar.h"
#include "shell/screen.h"

namespace {

void ChooseActiveSide(Shell& shell) {
  shell.bothHidden = !Panels[0].visible && !Panels[1].visible;
  if (!shell.bothHidden && !ActivePanel().visible) {
    ActivateSide(static_cast<int>(ActiveSide ^ 1));
    shell.cursorDirty = true;
  } else if (shell.redrawLevel != kRedrawNothing) {
    ActivateSide(static_cast<int>(ActiveSide));
  }
}

void PaintCursorBar(Shell& shell) {
  TPanel& panel = ActivePanel();
  shell.currentIndex = panel.CurrentIndex();
  shell.currentEntry = panel.Current();
  if (panel.nameScrollEntry != shell.currentIndex) panel.nameScroll = 0;
  if (!shell.cursorDirty) return;
  DrawCursor(static_cast<int>(ActiveSide), true);
  DrawStatusLine(OtherPanel());
  shell.cursorDirty = false;
}

void PaintBar(Shell& shell) {
  PaintKeyBar(BarLabels(CurrentModifiers));
  shell.drawnModifiers = CurrentModifiers;
}

void PaintLines(Shell& shell) {
  if (CurrentModifiers != shell.drawnModifiers) shell.redrawLevel = kRedrawAll;
  if (shell.redrawLevel == kRedrawNothing) return;
  PaintCommandLine(shell);
  if (shell.redrawLevel < kRedrawAll) return;
  PaintBar(shell);
  ShowPathInAppTitle();
}

void ReadNextKey(Shell& shell) {
  TPanel& panel = ActivePanel();
  panel.lastTop = panel.topIndex;
  panel.lastCursor = panel.cursorRow;
  PlaceCommandCursor(shell);
  if (shell.keyPending) return;
  Console->SetCursorSize(kLineCursorSize);
  bool timedOut = false;
  shell.key = ReadKey(timedOut, &shell.mouse, -1);
  Console->SetCursorSize(0);
}

}  // namespace

void RunMainLoop(Shell& shell) {
  ThePanelHooks.modifiersChanged = [&shell] { PaintBar(shell); };
  while (!shell.quit) {
    if (ShowPanels(true)) shell.cursorDirty = true;
    ShowClock();
    ChooseActiveSide(shell);
    PaintCursorBar(shell);
    PaintLines(shell);
    ReadNextKey(shell);
    shell.keyPending = false;
    DispatchKey(shell);
  }
  ThePanelHooks.modifiersChanged = nullptr;
}
