// F7: a new directory in the panel of a side.
#pragma once

// Asks for the name, makes the directory, and puts the cursor on it.
void MakeDirectory(int side);
