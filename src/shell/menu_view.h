// The menus on the screen: the bar over the top row, the drop-down under a
// title. What they cover comes back when the view dies.
#pragma once

#include <memory>

#include "console/cell_string.h"
#include "dialogs/win.h"
#include "shell/menu.h"
#include "shell/menu_table.h"

// The drop-down's outer corners: under its title, moved to the left and cut at
// the bottom as far as the screen asks for it. A cut one scrolls.
CellRect PlaceDropDown(const TMenu& menu, int column, int screenColumns, int screenRows);

// The item that a drop-down of some rows shows first: as before, but for what
// brings the chosen one into view.
int FirstShown(int before, int item, int rows);

// A row of a drop-down that is width cells wide, with the frame's sides.
CellString BuildMenuRow(const TMenuItem& item, bool selected, int width);

class MenuView {
 public:
  // The clock must be off the screen; the view shows it over its bar and takes
  // it off again.
  explicit MenuView(const MenuSet& menus);
  ~MenuView();

  void Show(const MenuPlace& place);

  // Of the drop-down, if one hangs.
  bool Covers(int x, int y) const;
  int ItemAt(int x, int y) const;  // -1 on the frame, on a separator, and outside

 private:
  void ShowBar(int menu);
  void ShowDropDown(const MenuPlace& place);
  void DrawItems(int selected);
  void DrawScrollMarks();

  const MenuSet& menus;
  Win bar;
  std::unique_ptr<Win> dropDown;
  int menu = -1;  // whose drop-down hangs
  int first = 0;  // item in its first row
};
