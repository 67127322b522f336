// The screen's size and the panels' windows on it.
#pragma once

#include "console/cell.h"
#include "shell/shell.h"

// Percent of a cell that the cursor on the command line fills.
constexpr int kLineCursorSize = 15;

// Reads the console's size back and works out what follows from it.
void UpdateGeometry();
void ApplyScreenSize(int rows, int columns);
// After a change of size: every visible panel gets a new window.
void RebuildScreen();

void MakePanelWindow(TPanel& panel, int side);
void HidePanel(TPanel& panel);

// Puts the panels back over the console text, or takes them off. True if a
// panel was painted anew, so that its cursor bar is gone.
bool ShowPanels(bool show);

// At the end: blanks the last two rows, takes the title away and puts the cursor on
// the last row.
void LeaveScreen();

// Gives the mouse to the console text while no panel is shown.
void UpdateSelectableRegion();

// While it lives, the mouse selects text on all of the screen.
class WholeScreenSelectable {
 public:
  WholeScreenSelectable();
  ~WholeScreenSelectable();
  WholeScreenSelectable(const WholeScreenSelectable&) = delete;
  WholeScreenSelectable& operator=(const WholeScreenSelectable&) = delete;

 private:
  CellRect before;
};

// Number formats, the code page and the case tables of the locale.
void SetupLocale();
