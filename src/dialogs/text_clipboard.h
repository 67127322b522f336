// The clipboard of fields and editor: lines of our own, shared with the desktop
// where the option PMClip allows it.
#pragma once

#include "foundation/collections.h"

extern WestringStore TextClipboard;

// Publishes the lines, joined by line feeds, to the desktop.
void PublishClipboard();
// Takes the desktop's text, if it holds any, in place of the lines.
void RefreshClipboard();

// For one-line fields. Copying replaces the lines; the joined form has one blank
// between two lines, and no empty lines at its ends.
void CopyToClipboard(const Westring& text);
Westring PasteFromClipboard();
