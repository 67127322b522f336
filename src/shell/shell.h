// The state of the main loop, handed to every command.
#pragma once

#include "console/input.h"
#include "console/key_codes.h"
#include "foundation/strings.h"
#include "panels/panel.h"
#include "shell/menu.h"

// What a command leaves to paint.
enum Redraw {
  kRedrawNothing = 0,
  kRedrawLine = 1,  // the command line
  kRedrawAll = 2,   // and the function-key bar and the window's title
};

// A side's panel was brought up only to show information; it goes with it.
struct InfoMemory {
  bool broughtUp[2] = {false, false};
};

struct Shell {
  Westring commandLine;
  int commandCursor = 0;
  int commandScroll = 0;  // first character shown
  int promptWidth = 0;    // as last painted

  int historyIndex = 0;  // 0 is the line being edited
  Westring savedLine;    // that line, while browsing

  int redrawLevel = kRedrawAll;
  uint32_t drawnModifiers = 0;  // for which the function-key bar was painted
  bool cursorDirty = true;  // the panel cursor must be painted
  bool bothHidden = false;
  int currentIndex = 0;
  entry* currentEntry = nullptr;
  bool quit = false;

  bool keyPending = false;  // key is to be acted on without a read
  Key key = 0;
  uint32_t modifiers = 0;  // held with key; none for a menu command
  TMouseEvent mouse;
  Key barKey = 0;  // function key under the mouse at a press on the bar

  int dragIndex = -1;  // right-button tag drag
  int dragValue = 1;

  InfoMemory info;
  MenuPlace menu;
};
