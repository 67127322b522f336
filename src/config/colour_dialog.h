// The dialog of the program's colours.
#pragma once

// True if the user accepted; otherwise all colours are as they were. What is on
// the screen is the caller's to repaint.
bool ColourDialog();
