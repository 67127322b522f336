// Stepping through the user's list of code pages, Options::TranslateCP.
#pragma once

extern int TranslateCursor;  // index in the list's text
extern int LastCodePage;     // chosen last; 0 for none

// The next page of the list, around its end; 0 for the usual one and for what is
// no code page, which is told.
void NextCodePage(int& page);

// Asks for the list. 0 on OK, with the list stored and the cursor at its start; -1
// on Esc.
int CodePageDialog();

// The page after a step, for a reader that goes on with it.
int StepCodePage();
