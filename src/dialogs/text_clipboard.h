// The clipboard of fields and editor: lines of our own, shared with the desktop
// where the option PMClip is on. With the option off the lines stand alone.
#pragma once

#include "foundation/collections.h"

extern WestringStore TextClipboard;  // no item holds a line feed

// Publishes the lines, joined by line feeds, to the desktop.
void PublishClipboard();
// Takes the desktop's text, if it holds any, in place of the lines.
void RefreshClipboard();

// For one-line fields. Copying replaces the lines and publishes them; pasting
// refreshes them first. The joined form has one blank between two lines, and no
// empty lines at its ends.
void CopyToClipboard(const Westring& text);
Westring PasteFromClipboard();
