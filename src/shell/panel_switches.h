// Commands that change how the panels stand on the screen: on and off, style,
// sort, information, size, and the toggles of the Options menu.
#pragma once

#include "shell/shell.h"

int SwitchBothPanels(Shell& shell);
int SwitchPanel(Shell& shell, int side);
int SwitchOtherPanel(Shell& shell);
int SwapPanels(Shell& shell);
int SetStyle(Shell& shell, int side, int style);
// The same, and the panel comes up even if it had the style already.
int ShowStyle(Shell& shell, int side, int style);
int SetPanelSort(Shell& shell, int side, int key);
int ReverseSort(Shell& shell, int side);
// Shows or hides information on the side opposite to side.
int ToggleInfo(Shell& shell, int side);
int ToggleInfoOfActive(Shell& shell);
int ShowInfoOn(Shell& shell, int side);
int ToggleRows(Shell& shell);
int ToggleColumns(Shell& shell);
int ToggleFullScreen(Shell& shell);
int ToggleClock(Shell& shell);
int TogglePathPrompt(Shell& shell);
int ToggleTagDirs(Shell& shell);
int ToggleThousandSep(Shell& shell);
int ToggleRetainCount(Shell& shell);
