// Wildcard matching of names.
#pragma once

#include "foundation/strings.h"

// "?" and "*" only, case-sensitive: the mask of the directory scanner.
bool MatchSimple(const wchar_t* pattern, const wchar_t* name);

// "?", "*", sets "[a-c]" "[^a-c]" and alternatives "{txt,doc}", without regard
// to case. Sets of the wide form work for Latin text only.
bool WildMatch(const char* pattern, const char* name);
bool WildMatchW(const wchar_t* pattern, const wchar_t* name);

// The name that a rename mask makes of source: "*.bak" turns "a.txt" into "a.bak".
void ApplyRenameMask(const wchar_t* source, const wchar_t* mask, Westring& target);
