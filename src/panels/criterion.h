// The criteria of filter expressions, "%size>100k" and its like: a number of the
// entry compared with one that is written.
#pragma once

#include "panels/entry.h"

// Evaluates the criterion at p, its "%", and moves p behind it. Sets error, and never
// clears it, for a keyword, an operator or a value that can't be read.
bool TestCriterion(const wchar_t*& p, const entry& e, bool& error);
