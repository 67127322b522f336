// The command line: editing and painting.
#pragma once

#include "shell/shell.h"

void SetCommandLine(Shell& shell, const Westring& text);  // cursor to the end
void EmptyCommandLine(Shell& shell);

// Characters of the line. Typing may fill it to the last place; what is put in
// as a whole leaves one free.
constexpr int kMaxTypedLine = 512;
constexpr int kMaxInsertedLine = 511;

// Puts text in at the cursor if the line then holds at most that many
// characters. Tells whether it did.
bool InsertText(Shell& shell, const Westring& text, int most = kMaxInsertedLine);
// Text that the expansion of macros gives back as it is.
Westring WithoutMacros(const Westring& text);
// The same with text quoted for the shell and for macros, and a blank behind it.
bool InsertAtCursor(Shell& shell, const Westring& text);

// What part of the line is in view.
struct LineView {
  int cursor = 0;  // in the line
  int scroll = 0;  // first character shown
};
// The view that keeps the cursor between the prompt and the screen's last column,
// and a long line's last 40 characters from being scrolled out on the left.
LineView FitLine(LineView view, int length, int promptWidth, int columns);

// The side whose directory commands run in: the other one for a panel that shows
// information or a tree.
int CommandSide(int side);
// What stands in front of a command: the panel's path, shortened, and ">".
Westring PromptOf(const TPanel& panel);
// The prompt in front of the line.
Westring PromptText();
void PaintCommandLine(Shell& shell);
void PlaceCommandCursor(const Shell& shell);

// Commands; each returns what is to be painted.
int TypeCharacter(Shell& shell);
int DeleteAtCursor(Shell& shell);
int DeleteLeft(Shell& shell);
int DeleteWordLeft(Shell& shell);
int DeleteWordRight(Shell& shell);
int MoveWordLeft(Shell& shell);
int MoveWordRight(Shell& shell);
int MoveLineStart(Shell& shell);
int MoveLineEnd(Shell& shell);
int CursorLeft(Shell& shell);  // or scrolls the long name under the panel cursor
int CursorRight(Shell& shell);
int CopyLine(Shell& shell);
int PasteLine(Shell& shell);
