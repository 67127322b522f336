// Filter expressions: wildcard patterns and tests of a file's attributes,
// joined by "!", "&" and "|". Parsed afresh for each entry.
#pragma once

#include "config/values/associations.h"
#include "panels/entry.h"

// Non-zero if the entry matches, 0 if not, -1 for a syntax error.
int MatchEntry(const wchar_t* expression, const entry& e);

// The same for a name alone, all else zero.
int MatchName(const wchar_t* expression, const wchar_t* name);

// The check of every input.
bool HasSyntaxError(const Westring& expression);

// The text of the first rule whose expression matches; a rule with a syntax
// error does. False if there is none.
bool TestRuleList(AssociationSet& rules, const entry& e, Westring& text);
bool TestRuleList(AssociationSet& rules, const wchar_t* name, Westring& text);
