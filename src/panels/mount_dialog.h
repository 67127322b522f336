// The list of mounts, to take a panel to one of them or eject it.
#pragma once

#include "panels/panel.h"

// filterless shows every mount, also those without blocks.
void MountDialog(TPanel& panel, bool filterless);
