// Where the keys that go by words go in a line, by the table of word characters.
#pragma once

#include "foundation/strings.h"

// The start of the word left of cursor, at least one character back unless the
// line starts there.
int WordStart(const Westring& line, int cursor);

// How far it is from the start of text behind the next word with brief,
// otherwise to the start of the next word.
int NextWord(const wchar_t* text, bool brief);

// The same for the command line, where the way to a word's start begins with
// a step over the first character, whatever that is.
int WordEnd(const wchar_t* text, bool brief);
