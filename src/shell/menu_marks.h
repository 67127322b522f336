// What the menus mark: how the panels look, and which options are on.
#pragma once

#include "panels/panel.h"
#include "shell/menu_table.h"

// The five menus with the marks of this moment.
MenuSet MarkedMenus();

// The parts of it. A menu is given unmarked.
void MarkPanelMenu(TMenu& menu, const TPanel& panel);
void MarkOptionsMenu(TMenu& menu);
