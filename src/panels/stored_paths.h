// The box of the ten stored directories.
#pragma once

#include "panels/panel.h"

// Lets the user store, clear and choose. True if the panel's path is now a
// stored one, to be entered by the caller.
bool StoredPaths(TPanel& panel);
