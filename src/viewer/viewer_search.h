// The search of the viewer, from the question to the hit on the screen.
#pragma once

#include "viewer/viewer.h"

// asks is whether the user is asked first; without it the last search goes on.
void SearchAndShow(CViewer& viewer, bool asks);
