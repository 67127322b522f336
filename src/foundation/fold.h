// Case folding by the program's own table (to upper case), the comparisons
// built on it, and the one table of word characters.
#pragma once

// One element through the fold table. Values above 0x7FFF, and negative ones,
// come back unchanged.
wchar_t FoldChar(wchar_t ch);

// tolower up to 127, above that through Lower() of foundation/strings.h.
wchar_t LowerChar(wchar_t ch);

// Difference of the first unequal folded pair, 0 if there is none.
int CompareNoCase(const wchar_t* a, const wchar_t* b);
// The same over at most n elements; n 0 still compares the first pair.
int CompareNoCaseN(const wchar_t* a, const wchar_t* b, int n);

// The order of names in a listing: only the low byte of each folded element
// counts, and "_" weighs 1, ahead of every other character.
int CompareFileNames(const wchar_t* a, const wchar_t* b);

void FoldInPlace(wchar_t* text);
void LowerInPlace(wchar_t* text);

// Letters, digits and "_" of the Basic Multilingual Plane.
bool IsWordChar(wchar_t ch);
