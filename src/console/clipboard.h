// The desktop's clipboard. The primary selection is left alone.
#pragma once

#include "foundation/strings.h"

// Waits for the text of whichever program owns the clipboard; empty if there
// is none or the owner does not answer. From the application thread only, and
// without the toolkit's lock: the GUI thread carries the answer.
Westring ReadClipboard();

// Under the toolkit's lock.
void WriteClipboard(const Westring& text);

// As UTF-8 that the toolkit takes: what is no character becomes U+FFFD.
Estring ValidUtf8(const Westring& text);
