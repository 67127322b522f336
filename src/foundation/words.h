// Where the keys that go by words go in a line, by the table of word characters.
#pragma once

#include "foundation/strings.h"

// The start of the word left of cursor, at least one character back unless the
// line starts there.
int WordStart(const Westring& line, int cursor);

// How far Ctrl-Right goes from the start of text: behind the next word with
// brief, otherwise to its start and at least one character.
int WordEnd(const wchar_t* text, bool brief);
