// Panels on the screen: the list, the frame's title, the divider, the status
// line, the cursor bar.
#pragma once

#include "panels/panel.h"

void DrawPanel(TPanel& panel);

// The frame's top line with the path.
void DrawTitle(TPanel& panel, bool active, int clockWidth);
// The same with what this side reserves for the clock.
void DrawTitle(TPanel& panel);

void DrawStatusLine(TPanel& panel);

// The cursor bar, and the status line with it.
void DrawCursor(int side, bool on);

// Repaints one entry if it is in view, without the bar.
void DrawEntry(TPanel& panel, int index);

// Scrolls as far as needed; repaints only what came into view where the list
// moves by one.
void MoveCursor(TPanel& panel, int delta);
